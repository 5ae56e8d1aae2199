#pragma once

#include "vexel/headers/items_model.h"
#include "vexel/signals/signal.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace vexel::test
{

/// Lines to which more can be added. Counts what is asked of it.
class CLogLines : public IItemsModel
{
public:
    CLogLines() = default;
    explicit CLogLines(int count) { Grow(count); }
    CLogLines(std::initializer_list<std::string> lines) : m_Lines(lines) {}

    void Append(std::string const& line)
    {
        m_Lines.push_back(line);
        m_SigChanged();
    }
    void AppendNumbers(int count)  ///< "0", "1", ...; tells once.
    {
        Grow(count);
        m_SigChanged();
    }
    void Shrink(int count)  ///< To so many lines.
    {
        m_Lines.resize(static_cast<std::size_t>(count));
        m_SigChanged();
    }
    /// The lines that were asked for since the last time, "3 4 5".
    std::string TakeAsked() const { return std::exchange(m_Asked, {}); }
    int TakeAskedCount() const { return std::exchange(m_AskedCount, 0); }
    void NoteAsked(bool note) { m_Note = note; }

    int GetItemCount() const override { return static_cast<int>(m_Lines.size()); }
    std::string GetItemCaption(int index) const override
    {
        ++m_AskedCount;
        if (m_Note)
            m_Asked += (m_Asked.empty() ? "" : " ") + std::to_string(index);
        return m_Lines.at(static_cast<std::size_t>(index));
    }

private:
    void Grow(int count)
    {
        for (int i = 0; i < count; ++i)
            m_Lines.push_back(std::to_string(m_Lines.size()));
    }

    std::vector<std::string> m_Lines;
    mutable std::string m_Asked;
    mutable int m_AskedCount = 0;
    bool m_Note = true;
};

}  // namespace vexel::test
