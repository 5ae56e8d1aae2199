#include "vexel/core/base_control.h"

#include "vexel/core/alive_guard.h"
#include "vexel/core/base_control_imp.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/events.h"
#include "vexel/platform/sys_window.h"
#include "vexel/signals/cancel_processing.h"

#include <utility>

namespace vexel
{

namespace
{

// Ends the processing of one native event where a handler says so.
template <class Work> void Guarded(Work const& work)
{
    try
    {
        work();
    }
    catch (cancel_processing const&)
    {}
}

}  // namespace

CBaseControl::CBaseControl(ISysWindow* window) : CVexelControl(window, false)
{
    m_Imp = new CBaseControlImp(this);
    auto* const content = new CContent(nullptr, size<int>(), alClient);
    m_Imp->SetContent(content);
    if (window)
        window->SetOption(false);
}

CBaseControl::~CBaseControl()
{
    CAliveLink::Forget(this);
    ForgetPainter();
    delete std::exchange(m_Imp, nullptr);
}

// A paint under way ends without touching the painter again; the window closes its brackets.
void CBaseControl::ForgetPainter()
{
    ISysWindow* const window = GetWindow();
    if (IPainter* const painter = window ? window->GetPainter() : nullptr)
        CAliveLink::Forget(painter);
}

// Tree -----------------------------------------------------------------------------------------------------------------------

void CBaseControl::SetContent(CVisualElement* root)
{
    if (m_Imp)
        m_Imp->SetContent(root);
}

CVisualElement* CBaseControl::GetContent() const
{
    return m_Imp ? m_Imp->GetContent() : nullptr;
}

IControl* CBaseControl::GetControl() const
{
    return m_Imp;
}

void CBaseControl::Rearrange()
{
    if (m_Imp)
        m_Imp->Rearrange();
}

void CBaseControl::LockRearrange(bool lock)
{
    if (m_Imp)
        m_Imp->LockRearrange(lock);
}

CVisualElement* CBaseControl::GetMouseElement() const
{
    return m_Imp ? m_Imp->GetMouseElement() : nullptr;
}

CVisualElement* CBaseControl::GetFocusedElement() const
{
    return m_Imp ? m_Imp->GetFocusedElement() : nullptr;
}

std::string CBaseControl::GetHelpId(CVisualElement* element) const
{
    for (CVisualElement const* e = element ? element : GetFocusedElement(); e; e = e->GetParent())
        if (!e->GetHelpId().empty())
            return e->GetHelpId();
    return {};
}

bool CBaseControl::CopyToClipboard()
{
    CAlivePtr<CVisualElement> const focused(GetFocusedElement());
    int depth = 0;
    for (CVisualElement const* element = focused.get(); element; element = element->GetParent())
        ++depth;
    // Root first. A slot may change the tree, so the way up is walked anew.
    while (focused && depth > 0)
    {
        --depth;
        CVisualElement const* element = focused.get();
        for (int i = 0; i < depth && element; ++i)
            element = element->GetParent();
        if (element && element->CopyToClipboard())
            return true;
    }
    return false;
}

// Native events --------------------------------------------------------------------------------------------------------------

// First the tree, then the control's subscribers; one that ends the event keeps it from them.
template <class Process, class Base> void CBaseControl::Pass(Process const& process, Base const& base)
{
    CAlivePtr<CBaseControl> const alive(this);
    Guarded([&] {
        if (m_Imp)
            process(*m_Imp);
        if (alive)
            base();
    });
}

void CBaseControl::OnDraw(IPainter* painter)
{
    if (m_Imp)
        m_Imp->ProcessDraw(painter);
}

void CBaseControl::OnResize(CWindowEvent* event)
{
    Pass([=](CBaseControlImp& imp) { imp.ProcessResize(event, false); }, [=, this] { CVexelControl::OnResize(event); });
}

void CBaseControl::OnDestroy(CWindowEvent* event)
{
    CAlivePtr<CBaseControl> const alive(this);
    ForgetPainter();
    if (ISysWindow* const window = GetWindow())
        CAliveLink::Forget(window);
    CVexelControl::OnDestroy(event);
    if (!alive)
        return;
    m_SigDestroyed(this);
    if (!alive || !m_Imp)
        return;
    m_Imp->ProcessControlDestroy();
    if (alive && m_Imp)
        m_Imp->m_SigWindowDestroyed();
}

void CBaseControl::OnGetFocus(CFocusEvent* event)
{
    CAlivePtr<CBaseControl> const alive(this);
    Guarded([&] {
        if (m_Imp)
            m_Imp->ProcessGetFocus();
        if (alive)
            CVexelControl::OnGetFocus(event);
        if (alive)
            m_SigGetFocus(this);
    });
}

void CBaseControl::OnLostFocus(CFocusEvent* event)
{
    CAlivePtr<CBaseControl> const alive(this);
    Guarded([&] {
        if (m_Imp)
            m_Imp->ProcessLostFocus();
        if (alive)
            CVexelControl::OnLostFocus(event);
        if (alive)
            m_SigLostFocus(this);
    });
}

void CBaseControl::OnTooltip(CTooltipEvent* event)
{
    CAlivePtr<CBaseControl> const alive(this);
    int const x = event->m_X;
    int const y = event->m_Y;
    Guarded([&] {
        if (m_Imp)
            m_Imp->ProcessTooltip(event);
    });
    // The position went up the tree with the event.
    event->m_X = x;
    event->m_Y = y;
    if (alive)
        Guarded([&] { CVexelControl::OnTooltip(event); });
}

void CBaseControl::OnTooltipTrack(CTooltipEvent* event)
{
    CAlivePtr<CBaseControl> const alive(this);
    int const x = event->m_X;
    int const y = event->m_Y;
    Guarded([&] {
        if (m_Imp)
            m_Imp->ProcessTooltipTrack(event);
        event->m_X = x;
        event->m_Y = y;
        if (alive)
            CVexelControl::OnTooltipTrack(event);
    });
}

void CBaseControl::OnButtonDown(CMouseEvent* event)
{
    Pass([=](CBaseControlImp& imp) { imp.ProcessButtonDown(event); },
         [=, this] { CVexelControl::OnButtonDown(event); });
}

void CBaseControl::OnButtonUp(CMouseEvent* event)
{
    Pass([=](CBaseControlImp& imp) { imp.ProcessButtonUp(event); }, [=, this] { CVexelControl::OnButtonUp(event); });
}

void CBaseControl::OnMouseMove(CMouseEvent* event)
{
    Pass([=](CBaseControlImp& imp) { imp.ProcessMouseMove(event); }, [=, this] { CVexelControl::OnMouseMove(event); });
}

void CBaseControl::OnWheel(CMouseWheelEvent* event)
{
    Pass([=](CBaseControlImp& imp) { imp.ProcessWheel(event); }, [=, this] { CVexelControl::OnWheel(event); });
}

void CBaseControl::OnDoubleClick(CMouseEvent* event)
{
    Pass([=](CBaseControlImp& imp) { imp.ProcessDoubleClick(event); },
         [=, this] { CVexelControl::OnDoubleClick(event); });
}

void CBaseControl::OnHover(CMouseEvent* event)
{
    Pass([=](CBaseControlImp& imp) { imp.ProcessOnHover(event); }, [=, this] { CVexelControl::OnHover(event); });
}

void CBaseControl::OnLeave(CMouseEvent* event)
{
    Pass([=](CBaseControlImp& imp) { imp.ProcessLeave(event); }, [=, this] { CVexelControl::OnLeave(event); });
}

void CBaseControl::OnContextMenu(CContextMenuEvent* event)
{
    Pass([=](CBaseControlImp& imp) { imp.ProcessContextMenu(event); },
         [=, this] { CVexelControl::OnContextMenu(event); });
}

void CBaseControl::OnKeyDown(CKeyboardEvent* event)
{
    CAlivePtr<CBaseControl> const alive(this);
    Guarded([&] {
        if (m_CopyShortcut && event->m_Keys == ksControl && event->GetVirtualKey() == 'C' && CopyToClipboard())
            return;
        alive.Check();
        if (m_Imp)
            m_Imp->ProcessKeyDown(event);
        if (alive && event->m_PassOn)
            CVexelControl::OnKeyDown(event);
    });
}

void CBaseControl::OnKeyUp(CKeyboardEvent* event)
{
    CAlivePtr<CBaseControl> const alive(this);
    Guarded([&] {
        if (m_Imp)
            m_Imp->ProcessKeyUp(event);
        if (alive && event->m_PassOn)
            CVexelControl::OnKeyUp(event);
    });
}

void CBaseControl::OnChar(CKeyboardEvent* event)
{
    CAlivePtr<CBaseControl> const alive(this);
    Guarded([&] {
        if (m_Imp)
            m_Imp->ProcessChar(event);
        if (alive && event->m_PassOn)
            CVexelControl::OnChar(event);
    });
}

void CBaseControl::OnSysColorChanged(CEvent*)
{
    CAlivePtr<CBaseControl> const alive(this);
    Guarded([&] {
        if (m_Imp)
            m_Imp->ProcessSysColorChanged();
    });
    if (alive)
        Guarded([&] { m_SigSysColorChanged(this); });
}

void CBaseControl::OnCustomEvent(CCustomEvent* event)
{
    if (!m_Imp)
    {
        delete event;
        return;
    }
    Guarded([&] { m_Imp->ProcessCustom(event); });
}

}  // namespace vexel
