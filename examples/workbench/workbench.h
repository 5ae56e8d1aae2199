#pragma once

#include "log_lines.h"
#include "messages.h"
#include "state.h"
#include "work.h"

#include "vexel/tasks/repeatable_operation.h"
#include "vexel/widgets/check_stage_gui.h"
#include "vexel/widgets/check_stages.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace vexel
{
class CBaseControl;
class CButton;
class CEventLog;
class CGaugeBoxEx;
class CNotebook;
class CTabs;
}  // namespace vexel

namespace workbench
{

class CChartPage;
class CSettingsPage;
class CTablePage;

/// The whole program in a window: pages in a notebook and their tabs, a splitter, the event log, a gauge while something
/// is being searched, and the checks at the start.
class CWorkbench : public subscriber_base_t,
                   private CRepeatableOperation  // lines that come by themselves
{
public:
    /// What only a backend can do.
    struct SHooks
    {
        std::function<void(SState::Theme)> setTheme;
        std::function<void(int code)> quit;
    };

    /// `statePath`: the file that is read at the start and written at the end. Control and window must outlive it.
    CWorkbench(CBaseControl& control, ISysWindow& window, std::string const& statePath, SHooks hooks);
    ~CWorkbench() override;

    signal_t<std::string const&> m_SigReport;  ///< What has happened, a line each time.

    void Start();                 ///< Runs the checks, and goes on when they have passed.
    bool Save() const;            ///< Writes the state; false: the file can't be written.
    void LoadHistory(int count);  ///< So many lines that were written before.

    // For tests
    CEventLog& GetLog() { return *m_Log; }
    CNotebook& GetNotebook() { return *m_Notebook; }
    CTablePage& GetTablePage() { return *m_TablePage; }
    CLogLines const& GetLines() const { return m_Lines; }
    CSearch const* GetSearch() const { return m_Search.get(); }

private:
    void Build(CVisualElement* parent);
    void BuildLog(CVisualElement* parent);
    void BuildStatus(CVisualElement* parent);
    void AddChecks(CVisualElement* place);
    void Tell(std::string const& line);

    // Checks
    void CheckState(bool& failed);
    void CheckRoom(bool& failed);
    void StateAnswered(CCheckStageGui*, int button);
    void ChecksDone();
    void ChecksAborted();
    void KeyDown(CVisualElement*, int keys, int key);

    // What a user does
    void TabChosen(CVisualElement*, int tab);
    void RowChosen(int row);
    void SpanChosen(int span);
    void ThemeChosen(SState::Theme theme);
    void LiveSwitched(bool on);
    void FollowSwitched(bool on);
    void ClearLog();
    void SearchClicked(CButton*);
    void SearchRound();
    void ProcessRepeatOperation() override;

    class CTabTexts : public IItemsModel
    {
    public:
        int GetItemCount() const override { return 3; }
        std::string GetItemCaption(int index) const override;
    };

    CBaseControl& m_Control;
    ISysWindow& m_Window;
    std::string const m_StatePath;
    SHooks const m_Hooks;
    SState m_State;
    ReadResult m_StateRead;
    CMessageSetUp m_Messages;
    CTabTexts m_TabTexts;
    CLogLines m_Lines;

    // The tree's
    CNotebook* m_Notebook = nullptr;
    CTabs* m_Tabs = nullptr;
    CTablePage* m_TablePage = nullptr;
    CChartPage* m_ChartPage = nullptr;
    CSettingsPage* m_SettingsPage = nullptr;
    CVisualElement* m_LogPane = nullptr;
    CEventLog* m_Log = nullptr;
    CGaugeBoxEx* m_Gauge = nullptr;

    CCheckStages m_Stages;
    CCheckStageGui m_StateCheck;
    CCheckStageGui m_RoomCheck;
    std::unique_ptr<CSearch> m_Search;
};

}  // namespace workbench
