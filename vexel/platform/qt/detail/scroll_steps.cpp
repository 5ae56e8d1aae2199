#include "vexel/platform/qt/detail/scroll_steps.h"

#include "vexel/platform/convert.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vexelbase::qt
{

double ToFinite(double value)
{
    constexpr double largest = std::numeric_limits<double>::max() / 4;
    return value == value ? std::clamp(value, -largest, largest) : 0.0;
}

CScrollSteps::CScrollSteps(double way) : m_Way(std::max(ToFinite(way), 0.0))
{
    if (m_Way > 0)
        m_Count = std::max(1, ToInt(std::min<double>(std::ceil(m_Way), MaxCount)));
}

int CScrollSteps::FromDistance(double distance) const
{
    if (m_Count == 0)
        return 0;
    double const part = std::clamp(ToFinite(distance) / m_Way, 0.0, 1.0);
    return ToInt(std::floor(part * m_Count + 0.5));
}

double CScrollSteps::ToDistance(int step) const
{
    if (step >= m_Count)
        return m_Way;
    return step <= 0 ? 0.0 : step * (m_Way / m_Count);
}

int CScrollSteps::FromLength(double length) const
{
    if (m_Count == 0)
        return 1;
    return std::max(1, ToInt(std::floor(ToFinite(length) / m_Way * m_Count + 0.5)));
}

}  // namespace vexelbase::qt
