// The chains of mouse, key, tooltip and context menu events. Each holds a guard on the element it comes back to: when a slot
// or handler has deleted that, the whole native event ends.

#include "vexel/core/context_menu.h"
#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/sys_window.h"

namespace vexel
{

IContextMenu::~IContextMenu() = default;

namespace
{

// Moves a position one level up.
void ToParent(CVisualElement const& element, int& x, int& y)
{
    x = AddSaturated(x, element.GetPos().left);
    y = AddSaturated(y, element.GetPos().top);
}

}  // namespace

// Mouse -------------------------------------------------------------------------------------------------------------------

bool CVisualElement::ProcessMouseMove(int x, int y, int keys, MouseButton button)
{
    CAliveGuard const alive(this);
    if (CVisualElement* const child = FindChildAt(x, y))
    {
        bool const consumed = child->ProcessMouseMove(SubtractSaturated(x, child->m_Pos.left),
                                                      SubtractSaturated(y, child->m_Pos.top), keys, button);
        alive.Check();
        m_SigMouseMove(this, x, y, keys, button);
        alive.Check();
        return consumed || HandleMouseMove(x, y, keys, button);
    }
    // One that captures and that the pointer has left does not become the mouse element.
    if (m_Control && m_Control->GetMouseElement() != this && GetBounds().Contains(x, y))
    {
        m_Control->SetMouseElement(this);
        alive.Check();
    }
    m_SigMouseMove(this, x, y, keys, button);
    alive.Check();
    return HandleMouseMove(x, y, keys, button);
}

bool CVisualElement::ProcessButtonDown(int x, int y, int keys, MouseButton button)
{
    if (!m_Enabled)
        return false;
    CAliveGuard const alive(this);
    m_Pressed = true;
    bool consumed = false;
    if (CVisualElement* const child = FindChildAt(x, y))
    {
        consumed = child->ProcessButtonDown(SubtractSaturated(x, child->m_Pos.left),
                                            SubtractSaturated(y, child->m_Pos.top), keys, button);
        alive.Check();
    }
    m_SigButtonDown(this, x, y, keys, button);
    alive.Check();
    if (consumed)
        return true;
    if ((keys & ksLeft) != 0 && m_Control && m_Control->GetMouseElement() == this)
    {
        SetFocus(true);
        alive.Check();
    }
    return HandleButtonDown(x, y, keys, button);
}

bool CVisualElement::ProcessButtonUp(int x, int y, int keys, MouseButton button)
{
    if (!m_Enabled)
        return false;
    CAliveGuard const alive(this);
    bool consumed = false;
    if (CVisualElement* const child = FindChildAt(x, y))
    {
        consumed = child->ProcessButtonUp(SubtractSaturated(x, child->m_Pos.left),
                                          SubtractSaturated(y, child->m_Pos.top), keys, button);
        alive.Check();
    }
    if (m_Pressed)
    {
        m_SigClick(this, x, y, keys, button);
        alive.Check();
    }
    m_SigButtonUp(this, x, y, keys, button);
    alive.Check();
    if (consumed)
    {
        m_Pressed = false;
        return true;
    }
    if (m_Pressed)
    {
        HandleClick(x, y, keys, button);
        alive.Check();
    }
    consumed = HandleButtonUp(x, y, keys, button);
    if (alive)
        m_Pressed = false;
    return consumed;
}

bool CVisualElement::ProcessDoubleClick(int x, int y, int keys, MouseButton button)
{
    if (!m_Enabled)
        return false;
    CAliveGuard const alive(this);
    bool consumed = false;
    if (CVisualElement* const child = FindChildAt(x, y))
    {
        consumed = child->ProcessDoubleClick(SubtractSaturated(x, child->m_Pos.left),
                                             SubtractSaturated(y, child->m_Pos.top), keys, button);
        alive.Check();
    }
    m_SigDoubleClick(this, x, y, keys, button);
    alive.Check();
    return consumed || HandleDoubleClick(x, y, keys, button);
}

// The only chain that runs from the top down.
bool CVisualElement::ProcessWheel(int x, int y, int keys, MouseButton button, int delta)
{
    CAlivePtr<CVisualElement> element(this);
    while (element->m_Enabled)
    {
        element->m_SigWheel(element.get(), x, y, keys, button, delta);
        element.Check();
        if (element->HandleWheel(x, y, keys, button, delta))
            return true;
        element.Check();
        CVisualElement* const child = element->FindChildAt(x, y);
        if (!child)
            return false;
        x = SubtractSaturated(x, child->m_Pos.left);
        y = SubtractSaturated(y, child->m_Pos.top);
        element.Watch(child);
    }
    return false;
}

// Hover -------------------------------------------------------------------------------------------------------------------

void CVisualElement::ProcessMouseHover(CVisualElement* previous)
{
    if (!m_Control || m_Control->GetDraggedElement())
        return;
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const from(previous);
    if (ISysWindow* const window = m_Control->GetWindow())
    {
        if (m_Enabled)
            window->SetCursor(m_Cursor);
        window->TrackPointer();
    }
    m_SigMouseHover(this);
    if (!alive)
        return;
    HandleMouseHover(from.get());
    if (alive)
        ProcessChildrenMouseHover(from.get());
}

void CVisualElement::ProcessMouseLeave(CVisualElement* next)
{
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const to(next);
    m_Pressed = false;
    m_SigMouseLeave(this);
    if (!alive)
        return;
    HandleMouseLeave(to.get());
    if (alive)
        ProcessChildrenMouseLeave(to.get());
}

void CVisualElement::ProcessChildrenMouseHover(CVisualElement* previous)
{
    CAlivePtr<CVisualElement> const from(previous);
    for (CAlivePtr<CVisualElement> element(this); element && element->m_Control; element.Watch(element->m_Parent))
    {
        element->HandleChildrenMouseHover(from.get());
        if (!element)
            return;
    }
}

void CVisualElement::ProcessChildrenMouseLeave(CVisualElement* next)
{
    CAlivePtr<CVisualElement> const to(next);
    for (CAlivePtr<CVisualElement> element(this); element && element->m_Control; element.Watch(element->m_Parent))
    {
        element->HandleChildrenMouseLeave(to.get());
        if (!element)
            return;
    }
}

void CVisualElement::CaptureMouse()
{
    if (m_Control)
        m_Control->SetCapture(this);
}

void CVisualElement::ReleaseMouse()
{
    if (m_Control)
        m_Control->SetCapture(nullptr);
}

// Keyboard ----------------------------------------------------------------------------------------------------------------

namespace
{

// While a delegate has the key, its owner waits: it must not be reached a second time from below.
class CWaiting
{
public:
    CWaiting(CAlivePtr<CVisualElement> const& element, bool& waits) : m_Element(element), m_Waits(waits)
    {
        m_Waits = true;
    }
    ~CWaiting()
    {
        if (m_Element)
            m_Waits = false;
    }
    CWaiting(CWaiting const&) = delete;
    CWaiting& operator=(CWaiting const&) = delete;

private:
    CAlivePtr<CVisualElement> const& m_Element;
    bool& m_Waits;
};

}  // namespace

// From this element to the root: the signal on every level, the handlers until one consumes.
template <class Fire, class Handle, class Pass>
bool CVisualElement::RunKeyChain(bool handled, Fire const& fire, Handle const& handle, Pass const& pass)
{
    if (!m_Enabled)
        return false;
    bool consumed = false;
    CAlivePtr<CVisualElement> element(this);
    for (;;)
    {
        if (handled)
        {
            fire(*element.get());
            element.Check();
        }
        else
        {
            CVisualElement* const delegate = element->m_WaitsForDelegate ? nullptr : element->m_KeyDelegate;
            if (delegate)
            {
                CWaiting const waiting(element, element->m_WaitsForDelegate);
                handled = pass(*delegate);
                element.Check();
            }
            fire(*element.get());
            element.Check();
            if (!handled)
            {
                handled = handle(*element.get());
                element.Check();
            }
        }
        CVisualElement* const parent = element->m_Parent;
        if (!parent || parent->m_KeyDelegate == element.get() || parent->m_WaitsForDelegate)
            return consumed || handled;
        consumed = consumed || handled;
        if (!parent->m_Enabled)
            return consumed;
        element.Watch(parent);
    }
}

bool CVisualElement::ProcessKeyDown(int keys, int key, bool handled)
{
    return RunKeyChain(
        handled, [=](CVisualElement& element) { element.m_SigKeyDown(&element, keys, key); },
        [=](CVisualElement& element) { return element.HandleKeyDown(keys, key); },
        [=](CVisualElement& element) { return element.ProcessKeyDown(keys, key, false); });
}

bool CVisualElement::ProcessKeyUp(int keys, int key, bool handled)
{
    return RunKeyChain(
        handled, [=](CVisualElement& element) { element.m_SigKeyUp(&element, keys, key); },
        [=](CVisualElement& element) { return element.HandleKeyUp(keys, key); },
        [=](CVisualElement& element) { return element.ProcessKeyUp(keys, key, false); });
}

bool CVisualElement::ProcessChar(char character, bool handled)
{
    return RunKeyChain(
        handled, [=](CVisualElement& element) { element.m_SigChar(&element, character); },
        [=](CVisualElement& element) { return element.HandleChar(character); },
        [=](CVisualElement& element) { return element.ProcessChar(character, false); });
}

// Tooltip and context menu ------------------------------------------------------------------------------------------------

bool CVisualElement::ProcessTooltip(CTooltipEvent* event)
{
    for (CAlivePtr<CVisualElement> element(this);;)
    {
        element->m_SigTooltip(element.get(), event);
        element.Check();
        bool const filledIn = element->HandleOnTooltip(event);
        element.Check();
        event->m_Font = element->GetEffectiveFont();
        if (filledIn)
        {
            if (!event->m_HotRect.IsZero())
                element->ElementToControl(&event->m_HotRect);
            if (!event->m_BoundsRect.IsZero())
                element->ElementToControl(&event->m_BoundsRect);
            return true;
        }
        if (!element->GetTooltip().empty())
        {
            event->m_Text = element->GetTooltip();
            event->m_HotRect = element->GetBounds();
            element->ElementToControl(&event->m_HotRect);
            event->m_HotRect.Normalize();
            event->m_Multiline = element->m_TooltipMultiline;
            return true;
        }
        if (!element->m_Parent)
            return false;
        ToParent(*element.get(), event->m_X, event->m_Y);
        element.Watch(element->m_Parent);
    }
}

bool CVisualElement::ProcessTooltipTrack(CTooltipEvent* event)
{
    if (!m_Enabled)
        return false;
    for (CAlivePtr<CVisualElement> element(this);;)
    {
        element->m_SigTooltipTrack(element.get(), event);
        element.Check();
        if (element->HandleOnTooltipTrack(event))
            return true;
        element.Check();
        if (!element->m_Parent || !element->m_Parent->m_Enabled)
            return false;
        ToParent(*element.get(), event->m_X, event->m_Y);
        element.Watch(element->m_Parent);
    }
}

void CVisualElement::ProcessContextMenu(int x, int y)
{
    if (!m_Enabled)
        return;
    for (CAlivePtr<CVisualElement> element(this);;)
    {
        element->m_SigContextMenu(element.get(), x, y);
        element.Check();
        if (element->HandleContextMenu(x, y))
            return;
        element.Check();
        if (IContextMenu* const menu = element->m_ContextMenu)
        {
            point<int> position{x, y};
            element->ElementToControl(&position);
            menu->Show(position.x, position.y, element.get());
            return;
        }
        if (!element->m_Parent || !element->m_Parent->m_Enabled)
            return;
        ToParent(*element.get(), x, y);
        element.Watch(element->m_Parent);
    }
}

// The control -------------------------------------------------------------------------------------------------------------

void CVisualElement::ProcessSysColorChanged()
{
    CAliveGuard const alive(this);
    int const count = m_Children.GetCount();
    for (int i = 0; i < count && i < m_Children.GetCount(); ++i)
    {
        m_Children.GetItem(i)->ProcessSysColorChanged();
        if (!alive)
            return;
    }
    SysColorsChanged();
    if (alive)
        AttributeChanged();
}

void CVisualElement::ProcessControlDestroy()
{
    CAliveGuard const alive(this);
    m_SigControlDestroy(this);
    if (!alive)
        return;
    HandleControlDestroy();
    if (!alive)
        return;
    int const count = m_Children.GetCount();
    for (int i = 0; i < count && i < m_Children.GetCount(); ++i)
    {
        m_Children.GetItem(i)->ProcessControlDestroy();
        if (!alive)
            return;
    }
}

}  // namespace vexel
