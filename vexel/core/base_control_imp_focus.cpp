// Keyboard events and focus.

#include "vexel/core/base_control.h"
#include "vexel/core/base_control_imp.h"
#include "vexel/core/detail/control_scopes.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/events.h"
#include "vexel/platform/sys_window.h"

#include <memory>

namespace vexel
{

// Keyboard -------------------------------------------------------------------------------------------------------------------

void CBaseControlImp::ProcessKeyDown(CKeyboardEvent* event)
{
    ISysWindow* const window = FindWindow();
    if (!window)
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    if (event->GetVirtualKey() == vkTab)
    {
        if (!window->HasFocus())
        {
            m_FocusedElement = nullptr;
            window->SetFocus();
            alive.Check();
        }
        CAlivePtr<CVisualElement> const before(m_FocusedElement);
        bool const hadFocus = before.IsAlive();
        {
            CFlagScope const tab(this, &CBaseControlImp::m_TabKeyProcessing);
            ProcessFocusChange((event->m_Keys & ksShift) == 0);
        }
        alive.Check();
        if (m_FocusedElement != before.get() || hadFocus != before.IsAlive())
            event->m_PassOn = false;
    }
    CVisualElement* const target = GetKeyTarget();
    if (target && target->ProcessKeyDown(event->m_Keys, event->GetVirtualKey(), false))
        event->SetContinue(false);
}

void CBaseControlImp::ProcessKeyUp(CKeyboardEvent* event)
{
    CVisualElement* const target = FindWindow() ? GetKeyTarget() : nullptr;
    if (target)
        target->ProcessKeyUp(event->m_Keys, event->GetVirtualKey(), false);
}

void CBaseControlImp::ProcessChar(CKeyboardEvent* event)
{
    CVisualElement* const target = FindWindow() ? GetKeyTarget() : nullptr;
    if (target)
        target->ProcessChar(event->GetCharacterCode(), false);
}

// Focus ----------------------------------------------------------------------------------------------------------------------

void CBaseControlImp::SetTabHandler(CVisualElement* element)
{
    if (!IsForeign(element))
        m_TabHandler = element;
}

void CBaseControlImp::SetFocusedElement(CVisualElement* element, bool takeNative)
{
    if (!FindWindow() || element == m_FocusedElement || IsForeign(element))
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    CAlivePtr<CVisualElement> const old(m_FocusedElement);
    m_FocussingElement = element;
    m_FocusedElement = element;
    if (old)
    {
        old->ProcessLostFocus(element);
        if (!alive)
            return;
    }
    m_TabHandler = nullptr;
    if (m_FocusedElement)  // a handler may have changed it
    {
        m_FocusedElement->ProcessGetFocus(old.get());
        if (!alive)
            return;
    }
    ISysWindow* const window = FindWindow();
    if (takeNative && window && !window->HasFocus())
    {
        window->SetFocus();
        if (!alive)
            return;
    }
    m_Host->m_SigFocusedElement(m_Host, m_FocusedElement);
}

void CBaseControlImp::ProcessGetFocus()
{
    if (!FindWindow())
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    CVisualElement* element = m_FocusedElement;
    while (element && !CanHaveFocus(element))
        element = element->GetParent();
    m_FocusedElement = element;
    if (element)
        element->ProcessGetFocus(nullptr);
    else
        FocusFirst();
    if (alive && m_Root)
        m_Root->ProcessControlChangeFocus(true);
}

void CBaseControlImp::ProcessLostFocus()
{
    if (!FindWindow())
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    if (m_FocusedElement)
        m_FocusedElement->ProcessLostFocus(nullptr);
    if (alive && m_Root)
        m_Root->ProcessControlChangeFocus(false);
}

void CBaseControlImp::FocusFirst()
{
    if (CVisualElement* const first = GetFirstElement())
        first->SetFocus(true);
}

void CBaseControlImp::ProcessFocusChange(bool forward)
{
    if (!FindWindow())
        return;
    CVisualElement* next = nullptr;
    if (m_FocusedElement)
    {
        if (CVisualElement* const walker = GetTabWalker(m_FocusedElement))
            next = forward ? walker->GetNextTabElement(m_FocusedElement) : walker->GetPrevTabElement(m_FocusedElement);
    }
    else
    {
        next = forward ? GetFirstElement() : GetLastElement();
    }
    if (next)
        next->SetFocus(true);
}

CVisualElement* CBaseControlImp::GetTabWalker(CVisualElement* from) const
{
    if (m_TabHandler)
        return m_TabHandler;
    return from->GetParent() ? from->GetParent() : m_Root;
}

CVisualElement* CBaseControlImp::GetFirstElement() const
{
    if (!m_Root)
        return nullptr;
    return CanHaveFocus(m_Root) ? m_Root : m_Root->GetFirstTabElement();
}

CVisualElement* CBaseControlImp::GetLastElement() const
{
    return m_Root ? m_Root->GetLastTabElement() : nullptr;
}

CVisualElement* CBaseControlImp::GetNextElement(CVisualElement* element) const
{
    if (!element)
        return nullptr;
    CVisualElement* const walker = GetTabWalker(element);
    return walker ? walker->GetNextTabElement(element) : element;
}

CVisualElement* CBaseControlImp::GetPrevElement(CVisualElement* element) const
{
    if (!element)
        return nullptr;
    CVisualElement* const walker = GetTabWalker(element);
    return walker ? walker->GetPrevTabElement(element) : element;
}

void CBaseControlImp::ProcessCustom(CCustomEvent* event)
{
    std::unique_ptr<CCustomEvent> const owned(event);
    if (!FindWindow() || !m_Root || !event)
        return;
    CVisualElement* element = nullptr;
    if (event->m_Id == CCustomEvent::ceFirstTabElement)
        element = GetFirstElement();
    else if (event->m_Id == CCustomEvent::ceLastTabElement)
        element = GetLastElement();
    if (!element)
        return;
    CFlagScope const tab(this, &CBaseControlImp::m_TabKeyProcessing);
    element->SetFocus(true);
}

void CBaseControlImp::ProcessSysColorChanged()
{
    if (FindWindow() && m_Root)
        m_Root->ProcessSysColorChanged();
}

void CBaseControlImp::ProcessControlDestroy()
{
    if (m_Root)
        m_Root->ProcessControlDestroy();
}

}  // namespace vexel
