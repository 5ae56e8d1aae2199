#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"

namespace vexel
{

/// A rectangle minus the part of it that still stands, as at most four rectangles: left, right, top, bottom. The side
/// strips take the full height, top and bottom fit between them; all share the border line with the valid part.
/// Works for turned axes too: there both rectangles run backwards.
class VEXEL_API CInvalidRegion
{
public:
    CInvalidRegion() = default;
    CInvalidRegion(rectangle<double> const& whole, rectangle<double> const& valid) { FillRects(whole, valid); }

    /// A valid rectangle with equal ends leaves the whole; one that equals the whole leaves nothing.
    void FillRects(rectangle<double> const& whole, rectangle<double> const& valid);

    int GetCount() const { return m_Count; }
    rectangle<double> const& operator[](int index) const;  ///< All zero outside the count.

    static bool TopIsInvalid(rectangle<double> const& whole, rectangle<double> const& valid);
    static bool BottomIsInvalid(rectangle<double> const& whole, rectangle<double> const& valid);
    static bool LeftIsInvalid(rectangle<double> const& whole, rectangle<double> const& valid);
    static bool RightIsInvalid(rectangle<double> const& whole, rectangle<double> const& valid);

private:
    void Add(double left, double top, double right, double bottom);

    int m_Count = 0;
    rectangle<double> m_Rects[4];
};

}  // namespace vexel
