#include "vexel/views/viewer_base.h"

#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/platform/convert.h"
#include "vexel/views/event_handler.h"

namespace vexel
{

CViewerBase::CViewerBase(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CCentralPart(parent, extent, alignment)
{
    if (IControl* const control = GetControl())
        control->m_SigAfterDraw.connect(this, &CViewerBase::OnEndDraw);
}

CViewerBase::~CViewerBase()
{
    while (m_Handlers)
        RemoveEventHandler(m_Handlers);
}

void CViewerBase::ProcessSetControl(IControl* control)
{
    IControl* const old = GetControl();
    if (control != old)
    {
        if (old)
            old->m_SigAfterDraw.disconnect(this, &CViewerBase::OnEndDraw);
        if (control)
            control->m_SigAfterDraw.connect(this, &CViewerBase::OnEndDraw);
    }
    CCentralPart::ProcessSetControl(control);
}

void CViewerBase::OnEndDraw()
{
    ProcessEndDraw();
}

// Handlers ------------------------------------------------------------------------------------------------------------------

void CViewerBase::SetDefEventHandler(CEventHandler* handler)
{
    if (!handler)
        return;
    if (handler->m_ChainOwner)
        handler->m_ChainOwner->RemoveEventHandler(handler);
    handler->m_Next = m_Handlers;
    handler->m_ChainOwner = this;
    m_Handlers = handler;
}

void CViewerBase::AddEventHandler(CEventHandler* handler)
{
    if (!handler)
        return;
    if (handler->m_ChainOwner)
        handler->m_ChainOwner->RemoveEventHandler(handler);
    CEventHandler** place = &m_Handlers;
    while (*place)
        place = &(*place)->m_Next;
    *place = handler;
    handler->m_Next = nullptr;
    handler->m_ChainOwner = this;
}

bool CViewerBase::RemoveEventHandler(CEventHandler* handler)
{
    for (CEventHandler** place = &m_Handlers; *place; place = &(*place)->m_Next)
    {
        if (*place != handler)
            continue;
        *place = handler->m_Next;  // which the handler keeps: a walk that stands at it goes on
        handler->m_ChainOwner = nullptr;
        return true;
    }
    return false;
}

// One handler after the other, as long as none has taken the event and none has died.
template <class Process> void CViewerBase::ForAll(Process const& process)
{
    bool handled = false;
    CAlivePtr<CEventHandler> handler(m_Handlers);
    CAlivePtr<CEventHandler> next(nullptr);
    while (handler)
    {
        next.Watch(handler->m_Next);
        process(handler.get(), &handled);
        if (handled || !handler)
            return;
        handler.Watch(handler->m_ChainOwner == this ? handler->m_Next : next.get());
    }
}

// Place and paint -----------------------------------------------------------------------------------------------------------

void CViewerBase::SetPos(rectangle<int> const& rect, bool force)
{
    rectangle<int> const old = GetBounds();
    CAliveGuard const alive(this);
    CCentralPart::SetPos(rect, force);
    if (!alive)
        return;
    rectangle<int> const now = GetBounds();
    ForAll([&](CEventHandler* handler, bool*) { handler->ProcessResize(old, now, false); });
}

bool CViewerBase::ScrollContent(int dx, int dy)
{
    CAliveGuard const alive(this);
    ForAll([&](CEventHandler* handler, bool*) { handler->ProcessScroll(dx, dy); });
    if (alive)
        OnChange(this, utElement);
    return false;
}

void CViewerBase::DrawContent(IPainter* painter)
{
    if (!m_Handlers)
        return;
    rectangle<double> const draw = GetDrawRect(nullptr);
    rectangle<int> rect{ToInt(draw.left), ToInt(draw.top), ToInt(draw.right), ToInt(draw.bottom)};
    ControlToElement(&rect);
    rectangle<double> const area{static_cast<double>(rect.left), static_cast<double>(rect.top),
                                 static_cast<double>(rect.right), static_cast<double>(rect.bottom)};
    CClipHolder const clip(painter, area);
    m_Handlers->ProcessDraw(painter, area);
}

// Input ---------------------------------------------------------------------------------------------------------------------

bool CViewerBase::HandleMouseMove(int x, int y, int keys, MouseButton button)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleMouseMove(x, y, keys, button, &handled);
}

bool CViewerBase::HandleButtonDown(int x, int y, int keys, MouseButton button)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleButtonDown(x, y, keys, button, &handled);
}

bool CViewerBase::HandleButtonUp(int x, int y, int keys, MouseButton button)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleButtonUp(x, y, keys, button, &handled);
}

bool CViewerBase::HandleClick(int x, int y, int keys, MouseButton button)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleClick(x, y, keys, button, &handled);
}

bool CViewerBase::HandleDoubleClick(int x, int y, int keys, MouseButton button)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleDoubleClick(x, y, keys, button, &handled);
}

void CViewerBase::HandleMouseHover(CVisualElement*)
{
    ForAll([](CEventHandler* handler, bool* handled) { handler->ProcessMouseHover(handled); });
}

void CViewerBase::HandleMouseLeave(CVisualElement*)
{
    ForAll([](CEventHandler* handler, bool* handled) { handler->ProcessMouseLeave(handled); });
}

bool CViewerBase::HandleKeyDown(int keys, int key)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleKeyDown(keys, key, &handled);
}

bool CViewerBase::HandleKeyUp(int keys, int key)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleKeyUp(keys, key, &handled);
}

bool CViewerBase::HandleChar(char character)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleChar(character, &handled);
}

bool CViewerBase::HandleOnTooltip(CTooltipEvent* event)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleOnTooltip(event, &handled);
}

bool CViewerBase::HandleOnTooltipTrack(CTooltipEvent* event)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleOnTooltipTrack(event, &handled);
}

bool CViewerBase::HandleContextMenu(int x, int y)
{
    bool handled = false;
    return m_Handlers && m_Handlers->HandleContextMenu(x, y, &handled);
}

void CViewerBase::HandleGetFocus(CVisualElement* other, bool focused)
{
    if (!focused)
    {
        CCentralPart::HandleGetFocus(other, focused);
        return;
    }
    ForAll([](CEventHandler* handler, bool* handled) { handler->ProcessGetFocus(handled); });
}

void CViewerBase::HandleLostFocus(CVisualElement*)
{
    ForAll([](CEventHandler* handler, bool* handled) { handler->ProcessLostFocus(handled); });
}

}  // namespace vexel
