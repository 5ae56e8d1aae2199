#pragma once

#include "gallery/frame/page.h"
#include "vexel/controls/list.h"
#include "vexel/controls/list_box.h"

#include <string>
#include <vector>

namespace gallery
{

/// Lines of text that the page gives to its lists.
class CLines : public IPicturedItemsModel
{
public:
    explicit CLines(std::vector<std::string> lines) : m_Lines(std::move(lines)) {}

    int GetItemCount() const override { return static_cast<int>(m_Lines.size()); }
    std::string GetItemCaption(int index) const override { return m_Lines.at(static_cast<std::size_t>(index)); }
    int GetItemImageIndex(int index) const override { return index % 3; }

private:
    std::vector<std::string> const m_Lines;
};

/// As many lines as there can be.
class CNumberedLines : public IItemsModel
{
public:
    int GetItemCount() const override;
    std::string GetItemCaption(int index) const override;
};

/// Draws a line of a list box with a bar of its own behind the text.
class CShareDrawing : public IListBoxItemDrawing
{
public:
    void DrawItem(IPainter* painter, int item, int state, rectangle<double> const& rect, bool* drawDefault) override;
};

/// Plain lists, lists with images, and list boxes.
class CListBoxesPage : public CPage
{
public:
    void Build(CVisualElement* parent) override;

private:
    CLines m_Seasons{{"Spring", "Summer", "Autumn", "Winter"}};
    CLines m_Shapes{{"A red disc", "A blue square", "A green triangle"}};
    CLines m_Long{{"A short line", "A line that is so long that the list has to be scrolled to the side for its end",
                   "Another short one", "One", "Two", "Three"}};
    CNumberedLines m_Numbered;
    CShareDrawing m_Shares;
};

}  // namespace gallery
