#include "gallery/frame/native_log.h"

#include "gallery/frame/log.h"
#include "vexel/platform/sys_window.h"

#include <string>

namespace gallery
{

using namespace vexelbase;

namespace
{

template <class Notify> void Join(CVexelControl& control, CSubscriber<Notify>* subscriber)
{
    control.Subscribe(subscriber, typeid(Notify), true);
}

void Tell(std::string const& line)
{
    CLog::Get().Write("native " + line);
}

void Tell(char const* name, CMouseEvent const& event)
{
    Tell(std::string(name) + " " + std::to_string(event.m_X) + " " + std::to_string(event.m_Y) +
         " keys=" + std::to_string(event.m_Keys) + " button=" + std::to_string(event.m_Button));
}

}  // namespace

CNativeLog::CNativeLog(CVexelControl& control) : m_Control(control)
{
    Join<IMouseNotify>(control, this);
    Join<IMouseClickNotify>(control, this);
    Join<IKeyboardNotify>(control, this);
    Join<IWindowNotify>(control, this);
    Join<IFocusNotify>(control, this);
    Join<IContextMenuNotify>(control, this);
    Join<ITooltipNotify>(control, this);
}

void CNativeLog::OnButtonDown(CMouseEvent* event)
{
    Tell("down", *event);
}

void CNativeLog::OnButtonUp(CMouseEvent* event)
{
    Tell("up", *event);
}

void CNativeLog::OnMouseMove(CMouseEvent* event)
{
    Tell("move", *event);
}

void CNativeLog::OnWheel(CMouseWheelEvent* event)
{
    Tell("wheel " + std::to_string(event->m_Delta));
}

void CNativeLog::OnClick(CMouseEvent* event)
{
    Tell("click", *event);
}

void CNativeLog::OnDoubleClick(CMouseEvent* event)
{
    Tell("double", *event);
}

void CNativeLog::OnKeyDown(CKeyboardEvent* event)
{
    Tell("keydown " + std::to_string(event->GetVirtualKey()) + " keys=" + std::to_string(event->m_Keys));
}

void CNativeLog::OnKeyUp(CKeyboardEvent* event)
{
    Tell("keyup " + std::to_string(event->GetVirtualKey()) + " keys=" + std::to_string(event->m_Keys));
}

void CNativeLog::OnChar(CKeyboardEvent* event)
{
    Tell("char " + std::to_string(static_cast<unsigned char>(event->GetCharacterCode())));
}

void CNativeLog::OnResize(CWindowEvent*)
{
    if (ISysWindow* const window = m_Control.GetWindow())
    {
        rectangle<int> const rect = window->GetRect();
        Tell("resize " + std::to_string(rect.right) + " " + std::to_string(rect.bottom));
    }
}

void CNativeLog::OnMove(CWindowEvent*)
{
    Tell("window moved");
}

void CNativeLog::OnDestroy(CWindowEvent*)
{
    Tell("destroy");
}

void CNativeLog::OnShow(CWindowEvent*)
{
    Tell("show");
}

void CNativeLog::OnHide(CWindowEvent*)
{
    Tell("hide");
}

void CNativeLog::OnGetFocus(CFocusEvent*)
{
    Tell("focus");
}

void CNativeLog::OnLostFocus(CFocusEvent*)
{
    Tell("unfocus");
}

void CNativeLog::OnContextMenu(CContextMenuEvent* event)
{
    Tell("menu " + std::to_string(event->m_X) + " " + std::to_string(event->m_Y));
}

void CNativeLog::OnTooltip(CTooltipEvent* event)
{
    Tell("tooltip \"" + event->m_Text + "\"");
}

void CNativeLog::OnTooltipTrack(CTooltipEvent*)
{
    Tell("tooltip track");
}

}  // namespace gallery
