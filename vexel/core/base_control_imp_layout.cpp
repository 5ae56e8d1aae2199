// The control's deferred layout.

#include "vexel/core/base_control_imp.h"
#include "vexel/core/detail/control_scopes.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/sys_window.h"

#include <utility>

namespace vexel
{

namespace
{

// Elements that ask for each other in turn would go on for ever; after so many rounds the rest is dropped.
constexpr int s_MaxRounds = 64;

}  // namespace

void CBaseControlImp::RearrangeElement(CVisualElement* element)
{
    if (!element || !FindWindow())
        return;
    CVisualElement* const parent = element->GetParent();
    // An element whose branch is leaving may still ask; nobody would tell this control when the parent dies.
    if (parent && (parent->GetControl() != this || !parent->IsDisplayable()))
        return;
    if (parent)
        m_Rearranges.AddElement(parent);
    else if (element == m_Root)
        m_Rearranges.AddElement(m_Root);
    m_RearrangeNeeded = true;
    InvalidateWindow();
}

void CBaseControlImp::ForceRearrange()
{
    if (!m_RearrangeNeeded)
        return;
    m_RearrangeNeeded = false;
    if (m_InRearrange)
    {
        m_RearrangeAgain = true;
        return;
    }
    CAlivePtr<CBaseControlImp> const alive(this);
    for (int round = 0; round < s_MaxRounds; ++round)
    {
        RunPass();
        if (!alive || !m_RearrangeAgain)
            return;
        // Only what was asked for meanwhile has an effect: the flag is as the first step left it.
        m_RearrangeAgain = false;
        if (!std::exchange(m_RearrangeNeeded, false))
            return;
    }
    m_Rearranges.Clear(0);
}

// What waits, or everything if nothing does.
void CBaseControlImp::RunPass()
{
    CAlivePtr<CBaseControlImp> const alive(this);
    CLayoutDebt const debt(this);
    CFlagScope const inRearrange(this, &CBaseControlImp::m_InRearrange);
    if (m_Rearranges.GetCount() == 0)
    {
        DoRearrange(true);
        return;
    }
    m_SigBeforeRearrange();
    if (!alive)
        return;
    RearrangeInt();
    if (!alive)
        return;
    if (m_Root)
        m_Root->RefreshPos();
    if (alive)
        m_SigAfterRearrange();
}

void CBaseControlImp::RearrangeInt()
{
    if (m_RearrangeLock > 0 || m_Rearranges.GetCount() == 0)
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    m_Rearranges.Reduce();
    SPass pass(this);
    for (int round = 0; round < s_MaxRounds; ++round)
    {
        if (pass.m_Entries.IsEqual(m_Rearranges))
            break;  // a list that repeats itself would never end
        pass.m_Entries.TakeFrom(m_Rearranges);
        CElementList::CWalk const walk(pass.m_Entries);
        int const count = pass.m_Entries.GetCount();
        for (int i = 0; i < count; ++i)
        {
            CVisualElement* const element = pass.m_Entries.GetItem(i);
            if (!element || !element->IsDisplayable())
                continue;
            rectangle<int> rect = element->GetPos();
            rect.Normalize();
            element->SetPos(rect, true);
            if (!alive)
                return;
        }
        if (m_Rearranges.GetCount() == 0)
            return;
    }
    m_Rearranges.Clear(0);
}

void CBaseControlImp::DoRearrange(bool force)
{
    if (m_RearrangeLock != 0)
        return;
    m_RearrangeNeeded = false;
    CLayoutDebt const debt(this);
    rectangle<int> rect = GetRealDrawRect();
    rect.Normalize();

    CAlivePtr<CBaseControlImp> const alive(this);
    m_SigBeforeRearrange();
    if (!alive)
        return;
    if (m_Root)
        m_Root->SetPos(rect, force);
    if (!alive)
        return;
    RearrangeInt();
    if (!alive)
        return;
    if (m_Root)
        m_Root->RefreshPos();
    if (!alive)
        return;
    m_SigAfterRearrange();
}

void CBaseControlImp::LockRearrange(bool lock)
{
    if (lock)
    {
        ++m_RearrangeLock;
        return;
    }
    m_RearrangeLock = m_RearrangeLock > 0 ? m_RearrangeLock - 1 : 0;
    if (m_RearrangeLock == 0)
        ForceRearrange();
}

void CBaseControlImp::Rearrange()
{
    if (!FindWindow())
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    m_FullUpdate = true;
    DoRearrange(true);
    if (alive)
        InvalidateWindow();
}

void CBaseControlImp::ProcessResize(CWindowEvent*, bool full)
{
    if (!FindWindow())
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    if (full)
        m_FullUpdate = true;
    DoRearrange(full);
    if (alive)
        InvalidateWindow();
}

rectangle<int> CBaseControlImp::GetRealDrawRect() const
{
    ISysWindow* const window = FindWindow();
    if (!window)
        return {};
    rectangle<int> rect = window->GetRect();
    rect.right = SubtractSaturated(rect.right, 1);
    rect.bottom = SubtractSaturated(rect.bottom, 1);
    return rect;
}

}  // namespace vexel
