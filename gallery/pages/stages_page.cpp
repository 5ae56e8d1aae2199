#include "gallery/pages/stages_page.h"

#include "gallery/frame/panel.h"
#include "gallery/frame/toggle.h"
#include "vexel/controls/button.h"

namespace gallery
{

namespace
{

using workbench::CMessageSetUp;

int const g_Poll = 300;  // milliseconds

}  // namespace

void CStagesPage::Build(CVisualElement* parent)
{
    auto* const row = new CPanel(parent, {0, 26}, alTop);
    auto* const start = new CButton(row, {120, 0}, alLeft);
    start->SetCaption("Run the checks");
    start->m_Clicked.connect(this, &CStagesPage::Start);
    new CPanel(row, {20, 0}, alLeft);
    char const* const causes[] = {"The disk is full", "The network is down", "The licence is missing"};
    for (std::size_t i = 0; i < m_Fails.size(); ++i)
    {
        m_Fails[i] = new CToggle(row, {180, 0}, alLeft, causes[i]);
        m_Fails[i]->SetOn(true);
    }
    m_State = new CPanel(parent, {0, 26}, alTop);
    m_State->SetTextFlags(IPainter::AlignLeft | IPainter::AlignVCenter);
    auto* const place = new CPanel(parent, {0, 0}, alClient);
    place->SetFrame(true);
    place->SetBkColor(ISysPalette::scTooltip);
    place->SetFgColor(ISysPalette::scTooltipText);

    CCheckStageGui& disk = m_Gui[0];
    disk.m_Check.connect(this, &CStagesPage::CheckDisk);
    disk.SetMessage(CMessageSetUp::ImageWarning, "The disk is almost full",
                    "Go on with less, or quit and free some space.");
    disk.SetButtons(CMessageSetUp::ButtonGoOn | CMessageSetUp::ButtonQuit, CMessageSetUp::ButtonGoOn);
    disk.SetRecheckOnButton(true);
    disk.SetWaitMessage(CMessageSetUp::ImageInfo, "Going on with less", "The disk is still full.");
    CCheckStageGui& network = m_Gui[1];
    network.m_Check.connect(this, &CStagesPage::CheckNetwork);
    network.SetMessage(CMessageSetUp::ImageError, "No network",
                       "The check passes by itself as soon as the switch above is off.");
    network.SetButtons(CMessageSetUp::ButtonGoOn | CMessageSetUp::ButtonQuit, CMessageSetUp::ButtonGoOn);
    if (ISystem* const system = GetCurrentSystem())
        network.SetTimer(system->CreateTimer(g_Poll, 0));
    CCheckStageGui& licence = m_Gui[2];
    licence.m_Check.connect(this, &CStagesPage::CheckLicence);
    licence.SetMessage(CMessageSetUp::ImageInfo, "No licence", "A notice without buttons holds nobody up.");

    for (CCheckStageGui& stage : m_Gui)
    {
        stage.SetParent(place);
        m_Stages.AddStage(&stage);
    }
    Report(disk.m_Result, "disk.result");
    Report(network.m_Result, "network.result");
    Report(m_Stages.m_StageStarting, "starting");
    Report(m_Stages.m_Finished, "finished");
    Report(m_Stages.m_Aborted, "aborted");
    m_Stages.m_StageStarting.connect(this, &CStagesPage::Starting);
    m_Stages.m_Finished.connect(this, &CStagesPage::Finished);
    m_Stages.m_Aborted.connect(this, &CStagesPage::Aborted);
    m_Stages.StartProcessing();
}

void CStagesPage::Start(CButton*)
{
    m_Stages.StartProcessing();
}

void CStagesPage::Starting(int stage)
{
    m_State->SetText("Check " + std::to_string(stage + 1) + " of 3");
}

void CStagesPage::Finished()
{
    m_State->SetText("All checks have passed");
}

void CStagesPage::Aborted()
{
    m_State->SetText("The checks were broken off");
}

void CStagesPage::CheckDisk(bool& failed)
{
    failed = m_Fails[0]->IsOn();
}

void CStagesPage::CheckNetwork(bool& failed)
{
    failed = m_Fails[1]->IsOn();
}

void CStagesPage::CheckLicence(bool& failed)
{
    failed = m_Fails[2]->IsOn();
}

}  // namespace gallery
