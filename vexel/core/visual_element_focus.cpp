// Focus, the tab walk, key delegates.

#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/sys_window.h"

#include <unordered_map>
#include <vector>

namespace vexel
{

// Focus -------------------------------------------------------------------------------------------------------------------

void CVisualElement::SetFocus(bool take)
{
    if (IsFocused())
        return;
    if (CanHaveFocus(this))
        m_Control->SetFocusedElement(this, take);
    else
        HandleGetFocus(nullptr, false);
}

bool CVisualElement::IsFocused() const
{
    ISysWindow* const window = m_Control ? m_Control->GetWindow() : nullptr;
    return window && window->HasFocus() && m_Control->GetFocusedElement() == this;
}

bool CVisualElement::IsControlFocused() const
{
    return m_Parent && m_Parent->IsControlFocused();
}

void CVisualElement::HandleGetFocus(CVisualElement* other, bool focused)
{
    if (focused || !m_KeyDelegate || m_WaitsForDelegate)
        return;
    CAliveGuard const alive(this);
    m_WaitsForDelegate = true;  // delegates in a ring end here
    try
    {
        m_KeyDelegate->HandleGetFocus(other, focused);
    }
    catch (...)
    {
        if (alive)
            m_WaitsForDelegate = false;
        throw;
    }
    if (alive)
        m_WaitsForDelegate = false;
}

// Signal and handler of each element from this one to the root.
template <class Fire>
void CVisualElement::WalkUpFocus(CVisualElement* element, CVisualElement* other, bool got, Fire const& fire)
{
    CAlivePtr<CVisualElement> const subject(element);
    CAlivePtr<CVisualElement> const partner(other);
    for (CAlivePtr<CVisualElement> step(this); step; step.Watch(step->m_Parent))
    {
        fire(*step.get(), subject.get());
        if (!step || !subject)
            return;
        step->HandleChildFocusChanged(subject.get(), partner.get(), got);
        if (!step || !subject)
            return;
    }
}

void CVisualElement::ProcessChildGetFocus(CVisualElement* element, CVisualElement* other)
{
    WalkUpFocus(element, other, true,
                [](CVisualElement& step, CVisualElement* subject) { step.m_SigChildGetFocus(subject, &step); });
}

void CVisualElement::ProcessChildLostFocus(CVisualElement* element, CVisualElement* other)
{
    WalkUpFocus(element, other, false,
                [](CVisualElement& step, CVisualElement* subject) { step.m_SigChildLostFocus(subject, &step); });
}

void CVisualElement::ProcessGetFocus(CVisualElement* previous)
{
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const from(previous);
    m_SigGetFocus(this);
    if (!alive)
        return;
    HandleGetFocus(from.get(), true);
    if (!alive)
        return;
    ProcessChildGetFocus(this, from.get());
    if (alive)
        OnChange(this, utElement);
}

void CVisualElement::ProcessLostFocus(CVisualElement* next)
{
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const to(next);
    m_SigLostFocus(this);
    if (!alive)
        return;
    HandleLostFocus(to.get());
    if (!alive)
        return;
    ProcessChildLostFocus(this, to.get());
    if (alive)
        OnChange(this, utElement);
}

void CVisualElement::ProcessControlChangeFocus(bool focused)
{
    CAliveGuard const alive(this);
    HandleControlChangeFocus(focused);
    if (!alive)
        return;
    int const count = m_Children.GetCount();
    for (int i = 0; i < count && i < m_Children.GetCount(); ++i)
    {
        m_Children.GetItem(i)->ProcessControlChangeFocus(focused);
        if (!alive)
            return;
    }
}

// Tab walk ----------------------------------------------------------------------------------------------------------------

CVisualElement* CVisualElement::GetFirstTabElement()
{
    for (int i = 0; i < m_Children.GetCount(); ++i)
    {
        CVisualElement* const child = m_Children.GetItem(i);
        if (CanHaveFocus(child))
            return child;
        if (child->m_Visible && child->m_Enabled)
            if (CVisualElement* const inner = child->GetFirstTabElement())
                return inner;
    }
    return nullptr;
}

CVisualElement* CVisualElement::GetLastTabElement()
{
    for (int i = m_Children.GetCount() - 1; i >= 0; --i)
    {
        CVisualElement* const child = m_Children.GetItem(i);
        if (CanHaveFocus(child))
            return child;
        if (child->m_Visible && child->m_Enabled)
            if (CVisualElement* const inner = child->GetLastTabElement())
                return inner;
    }
    return nullptr;
}

CVisualElement* CVisualElement::GetNextTabElement(CVisualElement* from)
{
    return GetNextTabElementInt(from, true);
}

CVisualElement* CVisualElement::GetNextTabElementInt(CVisualElement* from, bool descend)
{
    bool passed = false;
    for (int i = 0; i < m_Children.GetCount(); ++i)
    {
        CVisualElement* const child = m_Children.GetItem(i);
        if (!passed)
        {
            passed = child == from;
            if (passed && descend)
            {
                CVisualElement* const inner = from->GetFirstTabElement();
                if (inner && inner != from)
                    return inner;
            }
            continue;
        }
        if (CanHaveFocus(child) && child != from)
            return child;
        if (child->m_Visible && child->m_Enabled)
        {
            CVisualElement* const inner = child->GetFirstTabElement();
            if (inner && inner != from)
                return inner;
        }
    }
    if (!m_Parent)
        return from;
    CVisualElement* const next = m_Parent->GetNextTabElementInt(this, false);
    return next == this ? from : next;
}

CVisualElement* CVisualElement::GetPrevTabElement(CVisualElement* from)
{
    bool passed = false;
    for (int i = m_Children.GetCount() - 1; i >= 0; --i)
    {
        CVisualElement* const child = m_Children.GetItem(i);
        if (!passed)
        {
            passed = child == from;
            continue;
        }
        // Inner elements first: on the way back an element comes after them.
        if (child->m_Visible && child->m_Enabled)
        {
            CVisualElement* const inner = child->GetLastTabElement();
            if (inner && inner != from)
                return inner;
        }
        if (CanHaveFocus(child) && child != from)
            return child;
    }
    if (!m_Parent)
        return from;
    CVisualElement* const previous = m_Parent->GetPrevTabElement(this);
    return previous == this ? from : previous;
}

// Key delegates -----------------------------------------------------------------------------------------------------------

namespace
{

// Who has whom as a delegate: few elements do, and a delegate must not carry a list for them.
using CDelegations = std::unordered_multimap<CVisualElement*, CVisualElement*>;

CDelegations& Delegations()
{
    static CDelegations* const delegations = new CDelegations;  // outlives static elements
    return *delegations;
}

}  // namespace

void CVisualElement::SetKeyDelegate(CVisualElement* element)
{
    if (element == m_KeyDelegate || element == this)
        return;
    CDelegations& delegations = Delegations();
    if (m_KeyDelegate)
    {
        auto const [first, last] = delegations.equal_range(m_KeyDelegate);
        for (auto it = first; it != last; ++it)
            if (it->second == this)
            {
                delegations.erase(it);
                break;
            }
        m_KeyDelegate->m_IsKeyDelegate = delegations.count(m_KeyDelegate) != 0;
        m_KeyDelegate = nullptr;
    }
    if (element)
    {
        delegations.emplace(element, this);
        m_KeyDelegate = element;
        element->m_IsKeyDelegate = true;
    }
}

// This element leaves the control, or dies if that is null: those that stay behind no longer pass keys to it.
void CVisualElement::ForgetKeyDelegates(IControl const* leaving)
{
    auto const [first, last] = Delegations().equal_range(this);
    std::vector<CVisualElement*> delegators;
    for (auto it = first; it != last; ++it)
        if (!leaving || it->second->m_Control == leaving)
            delegators.push_back(it->second);
    for (CVisualElement* const delegator : delegators)
        delegator->SetKeyDelegate(nullptr);
}

}  // namespace vexel
