#include "vexel/controls/click_handler.h"

namespace vexel
{

int const CClickHandler::s_Transitions[5][3] = {{StageNormal, EventMouseEnter, StageHot},
                                                {StageHot, EventDown, StagePressed},
                                                {StagePressed, EventUp, StageHot},
                                                {StageHot, EventMouseLeave, StageNormal},
                                                {StagePressed, EventMouseLeave, StageNormal}};

void CClickHandler::ProcessEvent(ClickEvent event)
{
    CAlivePtr<CClickHandler const> const alive(this);
    if (m_Stage == StagePressed && event == EventUp)
    {
        ProcessClick();
        alive.Check();
    }
    for (auto const& [stage, cause, next] : s_Transitions)
    {
        if (stage != m_Stage || cause != event)
            continue;
        m_Stage = static_cast<ClickStage>(next);
        ProcessStageChange(m_Stage);
        alive.Check();
    }
}

bool CClickHandler::HandleButtonDown(int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    ProcessEvent(EventDown);
    return true;
}

bool CClickHandler::HandleButtonUp(int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    ProcessEvent(EventUp);
    return true;
}

bool CClickHandler::HandleKeyDown(int, int key)
{
    if (key == vkReturn)
    {
        ProcessClick();
        return true;
    }
    if (key != vkSpace)
        return false;
    m_Stage = StageNormal;
    ProcessEvent(EventMouseEnter);
    ProcessEvent(EventDown);
    return true;
}

bool CClickHandler::HandleKeyUp(int, int key)
{
    if (key != vkSpace)
        return false;
    ProcessEvent(EventUp);
    return true;
}

}  // namespace vexel
