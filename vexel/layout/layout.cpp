#include "vexel/layout/layout.h"

#include <algorithm>

namespace vexel
{

namespace
{

constexpr int s_Downwards = 2700;  // tenths of a degree

// What the vertical layouts have in common.
int TurnHorizontalFlags(int flags)
{
    int result = 0;
    ChangeAlign(flags, &result, IPainter::AlignLeft, IPainter::AlignTop);
    ChangeAlign(flags, &result, IPainter::AlignRight, IPainter::AlignBottom);
    ChangeAlign(flags, &result, IPainter::AlignHCenter, IPainter::AlignVCenter);
    ChangeAlign(flags, &result, IPainter::AlignVCenter, IPainter::AlignHCenter);
    return result;
}

}  // namespace

ILayout::~ILayout() = default;

void ChangeAlign(int flags, int* result, IPainter::AlignmentFlags from, IPainter::AlignmentFlags to)
{
    if (flags & from)
        *result |= to;
}

void CHorzLayout::CutRect(rectangle<int>* rect, rectangle<int> const& limit) const
{
    rect->left = std::max(rect->left, limit.left);
    rect->right = std::min(rect->right, limit.right);
}

void CVertLayout::CutRect(rectangle<int>* rect, rectangle<int> const& limit) const
{
    rect->top = std::max(rect->top, limit.top);
    rect->bottom = std::min(rect->bottom, limit.bottom);
}

void CVertLayout::ConvFontInt(font* value) const
{
    if (value->rotation == 0)
        value->rotation = s_Downwards;
    else if (value->rotation == s_Downwards)
        value->rotation = 0;
}

int CTopLayout::ConvTextAlignInt(int flags) const
{
    int result = flags;
    ChangeAlign(flags, &result, IPainter::AlignTop, IPainter::AlignBottom);
    ChangeAlign(flags, &result, IPainter::AlignBottom, IPainter::AlignTop);
    return result;
}

int CLeftLayout::ConvTextAlignInt(int flags) const
{
    int result = TurnHorizontalFlags(flags);
    ChangeAlign(flags, &result, IPainter::AlignTop, IPainter::AlignRight);
    ChangeAlign(flags, &result, IPainter::AlignBottom, IPainter::AlignLeft);
    return result;
}

int CRightLayout::ConvTextAlignInt(int flags) const
{
    int result = TurnHorizontalFlags(flags);
    ChangeAlign(flags, &result, IPainter::AlignTop, IPainter::AlignLeft);
    ChangeAlign(flags, &result, IPainter::AlignBottom, IPainter::AlignRight);
    return result;
}

// The layouts are never freed: static widgets may ask for them until the process ends.
ILayout* CLayoutManager::GetLayout(Alignment alignment)
{
    if (alignment == alLeft)
    {
        static ILayout* const left = new CLeftLayout;
        return left;
    }
    if (alignment == alRight)
    {
        static ILayout* const right = new CRightLayout;
        return right;
    }
    if (alignment == alTop)
    {
        static ILayout* const top = new CTopLayout;
        return top;
    }
    static ILayout* const bottom = new CBottomLayout;
    return bottom;
}

}  // namespace vexel
