#pragma once

#include "vexel/controls/list.h"
#include "vexel/headers/items_model.h"

#include <string>
#include <utility>
#include <vector>

namespace vexel::test
{

/// Lines of text.
class CLinesModel : public IItemsModel
{
public:
    explicit CLinesModel(std::vector<std::string> lines) : m_Lines(std::move(lines)) {}

    void Set(std::vector<std::string> lines)  ///< Tells.
    {
        m_Lines = std::move(lines);
        m_SigChanged();
    }

    int GetItemCount() const override { return static_cast<int>(m_Lines.size()); }
    std::string GetItemCaption(int index) const override
    {
        return index >= 0 && index < GetItemCount() ? m_Lines[static_cast<std::size_t>(index)] : "none";
    }

private:
    std::vector<std::string> m_Lines;
};

/// Lines "0", "1", ... as many as asked for.
inline std::vector<std::string> NumberedLines(int count)
{
    std::vector<std::string> lines;
    for (int i = 0; i < count; ++i)
        lines.push_back(std::to_string(i));
    return lines;
}

/// Lines of text whose image has the line's own number.
class CPicturedLinesModel : public IPicturedItemsModel
{
public:
    explicit CPicturedLinesModel(std::vector<std::string> lines) : m_Lines(std::move(lines)) {}

    int GetItemCount() const override { return m_Lines.GetItemCount(); }
    std::string GetItemCaption(int index) const override { return m_Lines.GetItemCaption(index); }
    int GetItemImageIndex(int index) const override { return index; }

private:
    CLinesModel m_Lines;
};

}  // namespace vexel::test
