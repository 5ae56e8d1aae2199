#include "vexel/views/tooltip_event_handler.h"

#include "vexel/platform/sys_window.h"

namespace vexel
{

void CTooltipEventHandler::HideTooltip()
{
    if (m_Window)
        m_Window->HideTooltip();
}

bool CTooltipEventHandler::ProcessOnTooltip(CTooltipEvent* event, bool*)
{
    GetTooltipAttr(event);
    return true;
}

void CTooltipEventHandler::ProcessScroll(int, int)
{
    HideTooltip();
}

bool CTooltipEventHandler::ProcessKeyDown(int, int, bool*)
{
    HideTooltip();
    return false;
}

bool CTooltipEventHandler::ProcessContextMenu(int, int, bool*)
{
    HideTooltip();
    return false;
}

}  // namespace vexel
