#include "workbench.h"

#include "chart_page.h"
#include "ground.h"
#include "settings_page.h"
#include "table_page.h"

#include "vexel/core/base_control.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/widgets/event_log.h"
#include "vexel/widgets/gauge_box.h"
#include "vexel/widgets/notebook.h"
#include "vexel/widgets/splitter.h"
#include "vexel/widgets/tabs.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace workbench
{

namespace
{

int const g_LiveInterval = 250;  // milliseconds
int const g_Poll = 300;
int const g_SmallestWidth = 640;  // unscaled pixels that the program has room in
int const g_SearchedRows = 20000000;

std::string MakeHistoryLine(int number)
{
    static char const* const deeds[] = {"valve opened", "valve closed", "pump on",
                                        "pump off",     "sensor asked", "limit passed"};
    return FormatTime(std::int64_t{number} * 900) + "  unit " + std::to_string(number % 9) + ": " +
           deeds[number * 7 % 6] + " (" + std::to_string(number) + ")";
}

std::string Number(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.3g", value);
    return text;
}

}  // namespace

std::string CWorkbench::CTabTexts::GetItemCaption(int index) const
{
    static char const* const texts[] = {"Readings", "Chart", "Settings"};
    return texts[index];
}

CWorkbench::CWorkbench(CBaseControl& control, ISysWindow& window, std::string const& statePath, SHooks hooks)
    : CRepeatableOperation(g_LiveInterval), m_Control(control), m_Window(window), m_StatePath(statePath),
      m_Hooks(std::move(hooks)), m_StateRead(ReadState(statePath, &m_State))
{
    if (m_Hooks.setTheme)
        m_Hooks.setTheme(m_State.theme);
    Build(m_Control.GetContent());
}

CWorkbench::~CWorkbench()
{
    m_Search.reset();
}

// The tree --------------------------------------------------------------------------------------------------------------------

// Docked in this order: what stands at the edges first, and what fills the rest last.
void CWorkbench::Build(CVisualElement* parent)
{
    auto* const notices = new CVertBox(parent, {0, 0}, alTop);  // as high as the boxes of the checks
    notices->SetClipToParent(false);
    notices->SetBkColor(ISysPalette::scTooltip);
    notices->SetFgColor(ISysPalette::scTooltipText);
    BuildStatus(parent);
    BuildLog(parent);
    auto* const splitter = new CSplitter(parent, {0, 5}, alBottom);
    m_Tabs = new CTabs(parent, {0, 24}, alBottom);
    m_Tabs->SetModel(&m_TabTexts);
    m_Notebook = new CNotebook(parent, {0, 0}, alClient);
    splitter->SetElements(m_LogPane, m_Notebook);
    splitter->SetMinSize(ToDevicePixels(60));

    m_TablePage = new CTablePage(m_State);
    m_ChartPage = new CChartPage(m_State);
    m_SettingsPage = new CSettingsPage(m_State);
    for (CVisualElement* const page :
         {static_cast<CVisualElement*>(m_TablePage), static_cast<CVisualElement*>(m_ChartPage),
          static_cast<CVisualElement*>(m_SettingsPage)})
        page->ReParent(m_Notebook, true);

    parent->m_SigKeyDown.connect(this, &CWorkbench::KeyDown);
    m_Tabs->m_TabChanged.connect(this, &CWorkbench::TabChosen);
    m_TablePage->m_SigRowChosen.connect(this, &CWorkbench::RowChosen);
    m_ChartPage->m_SigSpanChosen.connect(this, &CWorkbench::SpanChosen);
    m_SettingsPage->m_SigTheme.connect(this, &CWorkbench::ThemeChosen);
    m_SettingsPage->m_SigLive.connect(this, &CWorkbench::LiveSwitched);
    m_SettingsPage->m_SigFollow.connect(this, &CWorkbench::FollowSwitched);
    m_SettingsPage->m_SigClearLog.connect(this, &CWorkbench::ClearLog);
    AddChecks(notices);
}

void CWorkbench::BuildStatus(CVisualElement* parent)
{
    auto* const strip = new CGround(parent, {0, 46}, alBottom);
    new CGround(strip, {8, 0}, alLeft);
    new CGround(strip, {8, 0}, alRight);
    m_Gauge = new CGaugeBoxEx(strip, {0, 0}, alTop);
    m_Gauge->GetButton().SetCaption("Search extremes");
    m_Gauge->GetButton().m_Clicked.connect(this, &CWorkbench::SearchClicked);
    m_Gauge->GetText().SetCaption("Nothing is being searched");
    m_Gauge->GetGauge().SetBkColor(ISysPalette::scWindow);
}

void CWorkbench::BuildLog(CVisualElement* parent)
{
    m_LogPane = new CVisualElement(parent, {0, m_State.logHeight}, alBottom);
    auto* const view = new CScrollContainer(m_LogPane, {0, 0}, alClient);
    view->GetCentralPart().SetFitMode(CScrollContainer::fmWidth);
    view->GetCentralPart().SetFillAroundChild(true);
    m_Log = new CEventLog(nullptr, {10, 10}, alNone);
    view->SetScrolled(m_Log);
    m_Log->SetAutoScroll(m_State.follow);
    for (CVisualElement* const part :
         {static_cast<CVisualElement*>(m_Log), static_cast<CVisualElement*>(&m_Log->GetTitledList()),
          static_cast<CVisualElement*>(&m_Log->GetList())})
    {
        part->SetBkColor(ISysPalette::scWindow);
        part->SetFgColor(ISysPalette::scWindowText);
    }
    m_Log->GetText().SetTransparent(true);
    m_Log->GetText().SetCaption("Lines of this run follow those of earlier ones");
    m_Log->GetTitledList().GetTitle().SetCaption("Events");
    m_Log->GetTitledList().GetTitle().SetFgColor(ISysPalette::scWindowText);
    m_Log->GetTitledList().GetImage().SetRasterPicture(CMessageBox::GetPicture(CMessageSetUp::ImageInfo));
    m_Log->SetModel(&m_Lines);
}

void CWorkbench::Tell(std::string const& line)
{
    m_Lines.Append(line);
    m_SigReport(line);
}

// Checks ----------------------------------------------------------------------------------------------------------------------

void CWorkbench::AddChecks(CVisualElement* place)
{
    m_StateCheck.m_Check.connect(this, &CWorkbench::CheckState);
    m_StateCheck.m_Result.connect(this, &CWorkbench::StateAnswered);
    m_StateCheck.SetParent(place);
    m_StateCheck.SetMessage(CMessageSetUp::ImageWarning, "The layout of the last run can't be read",
                            "The file " + m_StatePath + " is damaged. Go on with a fresh layout, or quit and keep it?");
    m_StateCheck.SetButtons(CMessageSetUp::ButtonGoOn | CMessageSetUp::ButtonQuit, CMessageSetUp::ButtonGoOn);

    m_RoomCheck.m_Check.connect(this, &CWorkbench::CheckRoom);
    m_RoomCheck.SetParent(place);
    m_RoomCheck.SetMessage(CMessageSetUp::ImageInfo, "The window is narrow",
                           "Make it wider, and this goes away by itself; or go on.");
    m_RoomCheck.SetButtons(CMessageSetUp::ButtonGoOn, CMessageSetUp::ButtonGoOn);
    m_RoomCheck.SetTimer(GetCurrentSystem()->CreateTimer(g_Poll, 0));

    m_Stages.AddStage(&m_StateCheck);
    m_Stages.AddStage(&m_RoomCheck);
    m_Stages.m_Finished.connect(this, &CWorkbench::ChecksDone);
    m_Stages.m_Aborted.connect(this, &CWorkbench::ChecksAborted);
}

void CWorkbench::Start()
{
    m_Log->ForceRearrange();
    m_Log->GotoEnd();
    m_Stages.StartProcessing();
}

void CWorkbench::CheckState(bool& failed)
{
    failed = m_StateRead == ReadResult::Damaged;
}

void CWorkbench::CheckRoom(bool& failed)
{
    failed = m_Window.GetRect().right < ToDevicePixels(g_SmallestWidth);
}

void CWorkbench::StateAnswered(CCheckStageGui*, int button)
{
    if (button == CMessageSetUp::ButtonGoOn)
        m_StateRead = ReadResult::Absent;
}

void CWorkbench::ChecksDone()
{
    m_Tabs->SetCurrentTab(m_State.page);
    LiveSwitched(m_State.live);
    m_TablePage->GetGrid().SetFocus(true);
    Tell("Ready");
}

void CWorkbench::ChecksAborted()
{
    if (m_Hooks.quit)
        m_Hooks.quit(1);
}

// What a user does --------------------------------------------------------------------------------------------------------------

// Control and Q ends the program.
void CWorkbench::KeyDown(CVisualElement*, int keys, int key)
{
    if ((keys & ksControl) && key == 'Q' && m_Hooks.quit)
        m_Hooks.quit(0);
}

void CWorkbench::TabChosen(CVisualElement*, int tab)
{
    m_Notebook->SetPageIndex(tab);
    Tell("Page " + m_TabTexts.GetItemCaption(tab));
}

void CWorkbench::RowChosen(int row)
{
    m_ChartPage->ShowRow(row);
}

void CWorkbench::SpanChosen(int span)
{
    Tell("The chart shows span " + std::to_string(span));
}

void CWorkbench::ThemeChosen(SState::Theme theme)
{
    if (m_Hooks.setTheme)
        m_Hooks.setTheme(theme);
    static char const* const names[] = {"the desktop's", "light", "dark"};
    Tell(std::string("The theme is ") + names[theme]);
}

void CWorkbench::LiveSwitched(bool on)
{
    on ? StartRepeating() : StopRepeating();
}

void CWorkbench::FollowSwitched(bool on)
{
    m_Log->SetAutoScroll(on);
}

void CWorkbench::ClearLog()
{
    m_Log->SetModel(nullptr);
    m_Lines.Clear();
    m_Log->SetModel(&m_Lines);
    Tell("Cleared");
}

void CWorkbench::LoadHistory(int count)
{
    m_Lines.Append(count, &MakeHistoryLine);
}

void CWorkbench::ProcessRepeatOperation()
{
    Tell(MakeHistoryLine(m_Lines.GetItemCount()));
}

void CWorkbench::SearchClicked(CButton*)
{
    if (m_Search)
    {
        m_Search.reset();
        m_Gauge->GetGauge().Reset();
        m_Gauge->GetButton().SetCaption("Search extremes");
        m_Gauge->GetText().SetCaption("Given up");
        return Tell("The search was given up");
    }
    m_Search = std::make_unique<CSearch>(m_Window, g_SearchedRows);
    m_Search->m_SigRound.connect(this, &CWorkbench::SearchRound);
    m_Gauge->GetGauge().Reset();
    m_Gauge->GetGauge().SetMax(m_Search->GetCount());
    m_Gauge->GetButton().SetCaption("Give up");
    Tell("Searching " + std::to_string(m_Search->GetCount()) + " readings");
    m_Search->Execute();
}

void CWorkbench::SearchRound()
{
    if (!m_Search)
        return;
    CGauge& gauge = m_Gauge->GetGauge();
    gauge.Increase(m_Search->GetDone() - gauge.GetValue());
    m_Gauge->GetText().SetCaption(std::to_string(m_Search->GetDone() / 1000000) + " million readings searched");
    if (!m_Search->IsDone())
        return;
    std::unique_ptr<CSearch> const search = std::move(m_Search);
    m_Gauge->GetButton().SetCaption("Search extremes");
    for (int sensor = 0; sensor < g_SensorCount; ++sensor)
        Tell(GetSensorName(sensor) + std::string(" from ") + Number(search->GetExtremes(sensor).least) + " to " +
             Number(search->GetExtremes(sensor).most) + " " + GetSensorUnit(sensor));
}

bool CWorkbench::Save() const
{
    if (m_StateRead == ReadResult::Damaged)
        return true;  // the user wants to keep that file
    SState state = m_State;
    m_TablePage->Save(state);
    m_ChartPage->Save(state);
    m_SettingsPage->Save(state);
    state.page = m_Notebook->GetPageIndex();
    state.logHeight = ToInt(m_LogPane->GetSize().height / GetSystemScale() + 0.5);
    return WriteState(m_StatePath, state);
}

}  // namespace workbench
