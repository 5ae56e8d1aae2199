#include "vexel/layout/box.h"

#include <algorithm>

namespace vexel
{

namespace
{

/// What the visible children of these alignments, or filling the rest, need in one direction.
int SumExtents(CVisualElement const& box, Alignment first, Alignment second, int size<int>::*member, int pad)
{
    std::int64_t sum = pad;
    IChildren& children = *box.GetChildren();
    for (int i = 0; i < children.GetCount(); ++i)
    {
        CVisualElement const& child = *children.GetItem(i);
        Alignment const alignment = child.GetAlignment();
        if (child.IsVisible() && (alignment == first || alignment == second || alignment == alClient))
            sum += std::int64_t{child.GetSize().*member} + 1;
    }
    return SaturateToInt(sum);
}

}  // namespace

void CBoxBase::ProcessSetControl(IControl*)
{
    m_AutoSize = false;  // no sizing while the control changes
}

void CBoxBase::AfterSetControl()
{
    m_AutoSize = true;
    RecalculateSize();
}

void CBoxBase::AddNewChild(CVisualElement*)
{
    RecalculateSize();
}

void CBoxBase::ProcessRearrange(CVisualElement** element)
{
    if (*element == this || !m_AutoSize)
        return;
    CAliveGuard const alive(this);
    RecalculateSize();
    *element = alive ? this : nullptr;
}

// `across`: where a change asks for another size along the box.
void CBoxBase::PlaceBox(rectangle<int> const& rect, bool force, int (rectangle<int>::*across)() const)
{
    rectangle<int> const old = GetPos();
    CAliveGuard const alive(this);
    CScrolled::SetPos(rect, force);
    if (!alive)
        return;
    rectangle<int> const now = GetPos();
    if (HasMovedWhole(old, now))
        m_SigSize(this);  // for the second time, as observers of boxes count on
    if (alive && (now.*across)() != (old.*across)())
        RecalculateSize();
    if (alive && now.LeftTop() != old.LeftTop())
        Update(utElement);
}

// CVertBox -------------------------------------------------------------------------------------------------------------

void CVertBox::RecalculateSize()
{
    if (GetControl())
        SetSize({GetSize().width, SumExtents(*this, alTop, alBottom, &size<int>::height, m_BottomPad)}, false);
}

void CVertBox::SetBottomPadSize(int extent)
{
    int const pad = std::max(extent, 0);
    if (pad == m_BottomPad)
        return;
    int const difference = pad - m_BottomPad;
    m_BottomPad = pad;
    if (m_AutoSize)
        SetSize({GetSize().width, AddSaturated(GetSize().height, difference)}, false);
}

void CVertBox::SetPos(rectangle<int> const& rect, bool force)
{
    PlaceBox(rect, force, &rectangle<int>::Width);
}

// CHorzBox -------------------------------------------------------------------------------------------------------------

void CHorzBox::RecalculateSize()
{
    if (GetControl())
        SetSize({SumExtents(*this, alLeft, alRight, &size<int>::width, m_RightPad), GetSize().height}, false);
}

void CHorzBox::SetRightPadSize(int extent)
{
    int const pad = std::max(extent, 0);
    if (pad == m_RightPad)
        return;
    int const difference = pad - m_RightPad;
    m_RightPad = pad;
    if (m_AutoSize)
        SetSize({AddSaturated(GetSize().width, difference), GetSize().height}, false);
}

void CHorzBox::SetPos(rectangle<int> const& rect, bool force)
{
    PlaceBox(rect, force, &rectangle<int>::Height);
}

}  // namespace vexel
