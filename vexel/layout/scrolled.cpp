#include "vexel/layout/scrolled.h"

#include "vexel/platform/painter.h"

namespace vexel
{

namespace
{

constexpr int s_Step = 10;  // pixels an arrow key moves by

enum Key : int
{
    PageUp = 33,
    PageDown = 34,
    End = 35,
    Home = 36,
    Left = 37,
    Up = 38,
    Right = 39,
    Down = 40
};

// One axis of a move: the ends of the element, which keeps its length, in a view that is `view` long.
void Shift(int& from, int& to, int delta, int view)
{
    int const length = SubtractSaturated(to, from);
    from = AddSaturated(from, delta);
    to = AddSaturated(to, delta);
    if (from > 0)
    {
        from = 0;
        to = length;
    }
    if (view > to)
    {
        from = AddSaturated(from, SubtractSaturated(view, to));
        to = view;
    }
}

}  // namespace

CScrolled::CScrolled(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CTransparentFlavor(parent, extent, alignment)
{}

void CScrolled::SetClipToParent(bool clip)
{
    if (clip == m_ClipToParent)
        return;
    m_ClipToParent = clip;
    Update(utElement);
}

void CScrolled::JumpVert(int delta)
{
    rectangle<int> rect = GetPos();
    Shift(rect.top, rect.bottom, delta, GetDrawBounds().Height());
    SetPos(rect, false);
}

void CScrolled::JumpHorz(int delta)
{
    rectangle<int> rect = GetPos();
    Shift(rect.left, rect.right, delta, GetDrawBounds().Width());
    SetPos(rect, false);
}

void CScrolled::GotoBegin()
{
    rectangle<int> rect = GetPos();
    rect.bottom = SubtractSaturated(rect.bottom, rect.top);
    rect.top = 0;
    SetPos(rect, false);
}

void CScrolled::GotoBeginLine()
{
    rectangle<int> rect = GetPos();
    rect.right = SubtractSaturated(rect.right, rect.left);
    rect.left = 0;
    SetPos(rect, false);
}

// The two ends are worked out in different ways; applications count on both.
void CScrolled::GotoEnd()
{
    int const delta = SaturateToInt(std::int64_t{GetDrawBounds().bottom} - GetSize().height - 1);
    if (delta >= 0)
        return;
    rectangle<int> rect = GetPos();
    rect.top = AddSaturated(rect.top, delta);
    rect.bottom = AddSaturated(rect.bottom, delta);
    SetPos(rect, false);
}

void CScrolled::GotoEndLine()
{
    int const delta = SaturateToInt(std::int64_t{GetDrawBounds().right} - GetSize().width - GetPos().left);
    if (delta >= 0)
        return;
    rectangle<int> rect = GetPos();
    rect.left = AddSaturated(rect.left, delta);
    rect.right = AddSaturated(rect.right, delta);
    SetPos(rect, false);
}

void CScrolled::SetPos(rectangle<int> const& rect, bool force)
{
    rectangle<int> const old = GetPos();
    CAliveGuard const alive(this);
    CTransparentFlavor::SetPos(rect, force);
    if (!alive)
        return;
    if (HasMovedWhole(old, GetPos()))
        m_SigSize(this);
}

bool CScrolled::HasMovedWhole(rectangle<int> const& old, rectangle<int> const& now)
{
    return (now.Height() == old.Height() && now.top != old.top) || (now.Width() == old.Width() && now.left != old.left);
}

rectangle<int> CScrolled::GetDrawBounds() const
{
    CVisualElement const* const parent = GetParent();
    if (!m_ClipToParent || !parent)
        return {};
    rectangle<int> const bounds = parent->GetBounds();
    rectangle<int> const& pos = GetPos();
    return {SubtractSaturated(bounds.left, pos.left), SubtractSaturated(bounds.top, pos.top),
            SubtractSaturated(bounds.right, pos.left), SubtractSaturated(bounds.bottom, pos.top)};
}

void CScrolled::DrawContent(IPainter* painter)
{
    if (IsTransparent())
        return;
    rectangle<int> rect = GetBounds();
    rectangle<int> const view = GetDrawBounds();
    if (!view.IsZero())
        rect.Intersect(view);
    if (rect.left <= rect.right && rect.top <= rect.bottom)
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
}

bool CScrolled::HandleKeyDown(int keys, int key)
{
    if (!m_ClipToParent || key < PageUp || key > Down)
        return false;
    CAliveGuard const alive(this);
    MoveByKey(keys, key);
    if (alive && GetParent())
        GetParent()->OnRearrange(GetParent());
    return true;
}

void CScrolled::MoveByKey(int keys, int key)
{
    int const page = GetDrawBounds().Height();
    bool const control = keys & ksControl;
    switch (key)
    {
    case PageUp:
        return JumpVert(page);
    case PageDown:
        return JumpVert(SubtractSaturated(0, page));
    case End:
        return control ? GotoEnd() : GotoEndLine();
    case Home:
        return control ? GotoBegin() : GotoBeginLine();
    case Left:
        return JumpHorz(s_Step);
    case Up:
        return JumpVert(s_Step);
    case Right:
        return JumpHorz(-s_Step);
    case Down:
        return JumpVert(-s_Step);
    }
}

}  // namespace vexel
