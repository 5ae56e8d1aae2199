#pragma once

#include "vexel/headers/header.h"

#include <memory>
#include <string>
#include <vector>

namespace gallery
{

using namespace vexel;

class CGroup;

/// What groups stand in.
using Groups = std::vector<std::unique_ptr<CGroup>>;

/// A section: a column, or a group of sections.
class CGroup : public IHeaderItem
{
public:
    CGroup(IHeaderContainer* parent, std::string text, int width);

    CGroup& Add(std::string text, int width = 0);  ///< Its new last child; unscaled pixels, 0: as this one.

    Groups m_Children;
    int m_Image = -1;
    int m_Align = IPainter::AlignLeft | IPainter::AlignVCenter;
    int m_Index = -1;  ///< Of the column.
    int m_Sorting = 0;
    bool m_Expanded = true;
    std::string m_Description;

    // From IHeaderItem
    IHeaderContainer* GetParent() override { return m_Parent; }
    IHeaderContainer const* GetParent() const override { return m_Parent; }
    int GetChildCount() const override { return static_cast<int>(m_Children.size()); }
    IHeaderItem* GetChild(int index) override { return m_Children[static_cast<std::size_t>(index)].get(); }
    IHeaderItem const* GetChild(int index) const override { return m_Children[static_cast<std::size_t>(index)].get(); }
    std::string GetText() const override { return m_Text; }
    int GetWidth() const override { return m_Width; }
    void SetWidth(int width) override { m_Width = width; }
    int GetImageIndex() const override { return m_Image; }
    int GetTextAlign() const override { return m_Align; }
    int GetModelIndex() const override { return m_Index; }
    int GetSortingDirection() const override { return m_Sorting; }
    std::string GetDescription() const override { return m_Description; }
    void Expand(bool expand) override { m_Expanded = expand; }
    int GetExpandState() const override { return m_Children.empty() ? esNone : m_Expanded ? esExpanded : esCollapsed; }

private:
    IHeaderContainer* const m_Parent;
    std::string const m_Text;
    int m_Width;
};

/// A tree of sections that does what its header's user wants: a section that is dropped moves there.
class CGroupModel : public IHeaderModel, public subscriber_base_t
{
public:
    CGroup& Add(std::string text, int width = 90);
    /// From now on drops move sections, clicks sort columns and a double click on a grip gives the best width.
    void Serve(CHeader* header);

    Groups m_Children;
    signal_t<> m_SigMoved;  ///< A section has another place.

    // From IHeaderModel
    int GetChildCount() const override { return static_cast<int>(m_Children.size()); }
    IHeaderItem* GetChild(int index) override { return m_Children[static_cast<std::size_t>(index)].get(); }
    IHeaderItem const* GetChild(int index) const override { return m_Children[static_cast<std::size_t>(index)].get(); }

private:
    void DraggedOver(CHeader*, IHeaderItem*, int, int to) { m_Target = to; }
    void Dropped(CHeader* header, IHeaderItem* item, int column);
    void Clicked(CHeader* header, IHeaderItem* item);
    void DoubleClicked(CHeader* header, IHeaderItem* item);

    CGroup* m_Sorted = nullptr;
    int m_Target = -1;
};

}  // namespace gallery
