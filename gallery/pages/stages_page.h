#pragma once

#include "examples/workbench/messages.h"
#include "gallery/frame/page.h"
#include "vexel/widgets/check_stage_gui.h"
#include "vexel/widgets/check_stages.h"

#include <array>

namespace vexel
{
class CButton;
}

namespace gallery
{

class CPanel;
class CToggle;

class CStagesPage : public CPage, public subscriber_base_t
{
public:
    void Build(CVisualElement* parent) override;

private:
    void Start(CButton*);
    void Starting(int stage);
    void Finished();
    void Aborted();
    void CheckDisk(bool& failed);
    void CheckNetwork(bool& failed);
    void CheckLicence(bool& failed);

    workbench::CMessageSetUp m_SetUp;
    CCheckStages m_Stages;
    std::array<CCheckStageGui, 3> m_Gui;
    std::array<CToggle*, 3> m_Fails{};
    CPanel* m_State = nullptr;
};

}  // namespace gallery
