#include "vexel/platform/detail/round_corner.h"

#include <algorithm>
#include <cmath>

namespace vexelbase::detail
{

CRoundCorner::CRoundCorner(int radiusX, int radiusY)
    : m_RadiusX(std::clamp(radiusX, 0, Limit)), m_RadiusY(std::clamp(radiusY, 0, Limit))
{}

// Whether (2 rx - 2 column - 1)² / (2 rx)² + (2 ry - 2 row - 1)² / (2 ry)² <= 1, in whole numbers.
bool CRoundCorner::Contains(std::int64_t column, std::int64_t row) const
{
    std::uint64_t const width = 2u * static_cast<std::uint64_t>(m_RadiusX);
    std::uint64_t const height = 2u * static_cast<std::uint64_t>(m_RadiusY);
    std::uint64_t const x = width - 2u * static_cast<std::uint64_t>(column) - 1u;
    std::uint64_t const y = height - 2u * static_cast<std::uint64_t>(row) - 1u;
    return x * x * (height * height) <= width * width * (height * height - y * y);
}

int CRoundCorner::GetInset(int row) const
{
    if (row >= m_RadiusY - 1)
        return 0;
    // Near the answer by floating point, the rest by whole numbers.
    double const distance = (m_RadiusY - row - 0.5) / m_RadiusY;
    double const reach = m_RadiusX * std::sqrt(std::max(0.0, 1.0 - distance * distance));
    int inset = std::clamp(static_cast<int>(m_RadiusX - reach - 0.5), 0, m_RadiusX - 1);
    while (inset > 0 && Contains(inset - 1, row))
        --inset;
    while (inset < m_RadiusX - 1 && !Contains(inset, row))
        ++inset;
    return inset;
}

int CRoundCorner::GetOutlineLength(int row) const
{
    if (row == 0)
        return m_RadiusX - GetInset(0);
    return std::max(1, GetInset(row - 1) - GetInset(row));
}

}  // namespace vexelbase::detail
