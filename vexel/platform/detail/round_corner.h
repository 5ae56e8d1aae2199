#pragma once

#include <cstdint>

namespace vexelbase::detail
{

/// The corner of a rounded rectangle: a block of pixels, in which those belong to the shape whose centre lies in the
/// quarter of an ellipse. The block's innermost row and column always do, so that the shape reaches all four edges.
class CRoundCorner
{
public:
    static constexpr int Limit = 8191;  ///< Larger radii count as this.

    CRoundCorner(int radiusX, int radiusY);

    int GetRadiusX() const { return m_RadiusX; }
    int GetRadiusY() const { return m_RadiusY; }
    /// How many pixels at the outer end of a row don't belong to the shape; 0 inside the block's rows is the outermost.
    int GetInset(int row) const;
    /// How many pixels of a row belong to the one pixel wide outline.
    int GetOutlineLength(int row) const;

private:
    bool Contains(std::int64_t column, std::int64_t row) const;

    int m_RadiusX;
    int m_RadiusY;
};

}  // namespace vexelbase::detail
