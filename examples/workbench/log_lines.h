#pragma once

#include "vexel/headers/items_model.h"

#include <string>
#include <utility>
#include <vector>

namespace workbench
{

/// The lines of a log, kept as they came.
class CLogLines : public vexel::IItemsModel
{
public:
    int GetItemCount() const override { return static_cast<int>(m_Lines.size()); }
    std::string GetItemCaption(int index) const override { return m_Lines.at(static_cast<std::size_t>(index)); }

    void Append(std::string line)
    {
        m_Lines.push_back(std::move(line));
        m_SigChanged();
    }
    /// Many at once, which are measured and laid out once.
    template <class Make> void Append(int count, Make const& make)
    {
        for (int i = 0; i < count; ++i)
            m_Lines.push_back(make(GetItemCount()));
        m_SigChanged();
    }
    void Clear() { m_Lines.clear(); }  ///< Tells nobody: whoever shows them takes the model anew.

private:
    std::vector<std::string> m_Lines;
};

}  // namespace workbench
