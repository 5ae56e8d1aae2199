// The change chain, the rearrange chain, and what else runs over a tree.

#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"

namespace vexel
{

void CVisualElement::OnChange(CVisualElement* element, UpdateType type)
{
    RunChangeChain(element, type);
}

// Returns what reached the control, null if nothing did.
CVisualElement* CVisualElement::RunChangeChain(CVisualElement* element, UpdateType type)
{
    if (!element)
        return nullptr;
    Invalidate();

    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> target(element);
    CVisualElement* p = element;
    if (BeforeProcessChange(p, type))
    {
        if (!alive || !target)
            return nullptr;
        ProcessChange(&p);
    }
    if (!alive || !p)
        return nullptr;
    if (p != element)
        target.Watch(p);
    else if (!target)
        return nullptr;

    // Ancestors that are being destroyed have nothing to say any more: a deep tree dies without walking up each time.
    CVisualElement* const parent = p->m_Parent;
    CAlivePtr<CVisualElement> ancestor(parent && parent->m_DestroyTop ? parent->m_DestroyTop->m_Parent : parent);
    if (ancestor && p->IsTransparent())
    {
        // What shines through must be painted again first.
        ancestor->OnChange(ancestor.get(), type);
        if (!alive || !target)
            return nullptr;
    }
    while (ancestor)
    {
        if (ancestor->BeforeProcessChange(p, type))
        {
            if (!alive || !target || !ancestor)
                return nullptr;
            CVisualElement* const before = p;
            ancestor->ProcessChange(&p);
            if (!p)
                return nullptr;
            if (p != before)
                target.Watch(p);
        }
        if (!alive || !target || !ancestor)
            return nullptr;
        ancestor.Watch(ancestor->m_Parent);
    }
    if (!m_Control)
        return nullptr;
    m_Control->UpdateElement(p, type);
    return p;
}

void CVisualElement::OnRearrange(CVisualElement* element)
{
    if (!element)
        return;
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> target(element);
    CVisualElement* p = element;
    for (CAlivePtr<CVisualElement> step(this); step; step.Watch(step->m_Parent))
    {
        CVisualElement* const before = p;
        step->ProcessRearrange(&p);
        if (!p || !alive || !step)
            return;
        if (p != before)
            target.Watch(p);
        else if (!target)
            return;
    }
    if (m_Control)
        m_Control->RearrangeElement(p);
}

void CVisualElement::AttributeChanged()
{
    OnChange(this, utElement);
}

void CVisualElement::OnGlobalUpdate()
{
    CAliveGuard const alive(this);
    UpdateElement();
    if (!alive)
        return;
    int const count = m_Children.GetCount();
    for (int i = 0; i < count && i < m_Children.GetCount(); ++i)
    {
        m_Children.GetItem(i)->OnGlobalUpdate();
        if (!alive)
            return;
    }
}

void CVisualElement::ForceRearrange()
{
    if (m_Control)
        m_Control->ForceRearrange();
}

void CVisualElement::RefreshPos()
{
    CAliveGuard const alive(this);
    HandleRefreshPos();
    if (!alive)
        return;
    for (int i = 0; i < m_Children.GetCount(); ++i)
    {
        m_Children.GetItem(i)->RefreshPos();
        if (!alive)
            return;
    }
}

void CVisualElement::Scroll(int dx, int dy, bool repaint)
{
    CAliveGuard const alive(this);
    rectangle<int> const before = m_ValidRect;
    bool const whole = repaint;
    repaint = ScrollContent(dx, dy) || repaint;
    if (!alive)
        return;
    if (repaint)
    {
        // One that has moved its own pixels has narrowed what stands to them: only the rest is to be painted.
        rectangle<int> const pos = m_Pos;
        rectangle<int> const after = m_ValidRect;
        OnChange(this, utElement);
        if (!alive)
            return;
        if (!whole && after != before && m_Pos == pos)
            m_ValidRect = after;
    }
    int const count = m_Children.GetCount();
    for (int i = 0; i < count && i < m_Children.GetCount(); ++i)
    {
        CVisualElement* const child = m_Children.GetItem(i);
        if (!child->m_Visible)
            continue;
        child->Scroll(dx, dy, repaint);
        if (!alive)
            return;
    }
}

}  // namespace vexel
