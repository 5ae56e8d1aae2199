#include "vexel/core/invalid_region.h"

namespace vexel
{

namespace
{

bool IsTurned(double low, double high)
{
    return low > high;
}

}  // namespace

bool CInvalidRegion::LeftIsInvalid(rectangle<double> const& whole, rectangle<double> const& valid)
{
    bool const turned = IsTurned(whole.left, whole.right) && IsTurned(valid.left, valid.right);
    return turned ? whole.left > valid.left : valid.left > whole.left;
}

bool CInvalidRegion::RightIsInvalid(rectangle<double> const& whole, rectangle<double> const& valid)
{
    bool const turned = IsTurned(whole.left, whole.right) && IsTurned(valid.left, valid.right);
    return turned ? valid.right > whole.right : whole.right > valid.right;
}

bool CInvalidRegion::TopIsInvalid(rectangle<double> const& whole, rectangle<double> const& valid)
{
    bool const turned = IsTurned(whole.top, whole.bottom) && IsTurned(valid.top, valid.bottom);
    return turned ? whole.top > valid.top : valid.top > whole.top;
}

bool CInvalidRegion::BottomIsInvalid(rectangle<double> const& whole, rectangle<double> const& valid)
{
    bool const turned = IsTurned(whole.top, whole.bottom) && IsTurned(valid.top, valid.bottom);
    return turned ? valid.bottom > whole.bottom : whole.bottom > valid.bottom;
}

void CInvalidRegion::FillRects(rectangle<double> const& whole, rectangle<double> const& valid)
{
    m_Count = 0;
    if (valid.left == valid.right || valid.top == valid.bottom)
    {
        Add(whole.left, whole.top, whole.right, whole.bottom);
        return;
    }
    double left = whole.left;
    double right = whole.right;
    if (LeftIsInvalid(whole, valid))
    {
        Add(whole.left, whole.top, valid.left, whole.bottom);
        left = valid.left;
    }
    if (RightIsInvalid(whole, valid))
    {
        Add(valid.right, whole.top, whole.right, whole.bottom);
        right = valid.right;
    }
    if (TopIsInvalid(whole, valid))
        Add(left, whole.top, right, valid.top);
    if (BottomIsInvalid(whole, valid))
        Add(left, valid.bottom, right, whole.bottom);
}

rectangle<double> const& CInvalidRegion::operator[](int index) const
{
    static constexpr rectangle<double> none;
    return index < 0 || index >= m_Count ? none : m_Rects[index];
}

void CInvalidRegion::Add(double left, double top, double right, double bottom)
{
    m_Rects[m_Count++] = {left, top, right, bottom};
}

}  // namespace vexel
