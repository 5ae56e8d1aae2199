#include "series.h"

#include <algorithm>
#include <utility>

namespace chart
{

CSeries::CSeries(std::string name, vexelbase::_color color, std::vector<double> x, std::vector<double> y)
    : m_Name(std::move(name)), m_Color(color), m_X(std::move(x)), m_Y(std::move(y))
{
    for (std::size_t count = m_Y.size(); count > s_Block; count = m_Levels.back().size())
    {
        std::vector<SBand> level((count + s_Block - 1) / s_Block);
        for (std::size_t i = 0; i < count; ++i)
            if (m_Levels.empty())
                level[i / s_Block].Add(m_Y[i]);
            else
                level[i / s_Block].Add(m_Levels.back()[i]);
        m_Levels.push_back(std::move(level));
    }
}

std::size_t CSeries::Find(double x) const
{
    return static_cast<std::size_t>(std::lower_bound(m_X.begin(), m_X.end(), x) - m_X.begin());
}

// The ends of the stretch that fill no block are taken one by one, the rest from the level above.
SBand CSeries::GetBand(std::size_t first, std::size_t end) const
{
    SBand band;
    for (std::size_t level = 0; first < end; ++level)
    {
        auto const add = [&](std::size_t i) { level == 0 ? band.Add(m_Y[i]) : band.Add(m_Levels[level - 1][i]); };
        if (level == m_Levels.size())
        {
            while (first < end)
                add(first++);
            break;
        }
        while (first < end && first % s_Block != 0)
            add(first++);
        while (first < end && end % s_Block != 0)
            add(--end);
        first /= s_Block;
        end /= s_Block;
    }
    return band;
}

}  // namespace chart
