// The workbench without a desktop: what it shows, what it does, what it keeps.

#include "examples/workbench/workbench.h"

#include "examples/workbench/table_page.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/event_log.h"
#include "vexel/widgets/notebook.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <utility>
#include <vector>

using namespace vexel;
using namespace vexel::test;
using namespace workbench;

namespace
{

class WorkbenchBench : public testing::Test, public subscriber_base_t
{
protected:
    WorkbenchBench() : m_Path(testing::TempDir() + "workbench-state") { std::filesystem::remove(m_Path); }
    ~WorkbenchBench() override { std::filesystem::remove(m_Path); }

    void Start(int lines = 100)
    {
        CWorkbench::SHooks hooks;
        hooks.setTheme = [this](SState::Theme theme) { m_Themes.push_back(theme); };
        hooks.quit = [this](int code) { m_Quits.push_back(code); };
        m_Bench.emplace(m_Host.Control(), m_Host.Window(), m_Path, hooks);
        m_Bench->LoadHistory(lines);
        m_Bench->Start();
        m_Host.Paint();
    }
    void Write(std::string const& text) { std::ofstream(m_Path) << text; }
    std::string GetLastLine() const
    {
        CLogLines const& lines = m_Bench->GetLines();
        return lines.GetItemCount() > 0 ? lines.GetItemCaption(lines.GetItemCount() - 1) : "";
    }
    int GetTabsTop() { return m_Bench->GetNotebook().GetPos().bottom; }
    void ClickSearch()
    {
        m_Host.Mouse().Click(960, 665);
        m_Host.Paint();
    }
    // The log's last line shows in its pane.
    bool IsEndInView()
    {
        CEventLog& log = m_Bench->GetLog();
        return log.GetPos().bottom <= log.GetParent()->GetBounds().bottom && log.GetPos().top < 0;
    }

    CTestHost m_Host{1000, 700};
    std::string const m_Path;
    std::vector<SState::Theme> m_Themes;
    std::vector<int> m_Quits;
    std::optional<CWorkbench> m_Bench;
};

using Workbench = WorkbenchBench;

}  // namespace

TEST_F(Workbench, ShowsTheEndOfTheLogAtTheStart)
{
    Start();
    EXPECT_TRUE(IsEndInView());
    EXPECT_EQ(GetLastLine(), "Ready");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Workbench, ShowsTheChosenRowAtLength)
{
    Start();
    m_Host.Mouse().Click(50, 75);  // in the third row
    m_Host.Paint();
    int const row = m_Bench->GetTablePage().GetGrid().GetRowSelectionModel()->GetCurrent();
    EXPECT_GT(row, 0);
    EXPECT_NE(m_Bench->GetTablePage().AsString().find("Day " + FormatTime(row)), std::string::npos);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Workbench, TurnsThePagesByTheTabs)
{
    Start();
    EXPECT_EQ(m_Bench->GetNotebook().GetPageIndex(), 0);
    for (auto const& [x, page] : {std::pair{120, 1}, {170, 2}, {30, 0}})
    {
        m_Host.Mouse().Click(x, GetTabsTop() + 10);
        m_Host.Paint();
        EXPECT_EQ(m_Bench->GetNotebook().GetPageIndex(), page);
        EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    }
    EXPECT_EQ(GetLastLine(), "Page Readings");
}

TEST_F(Workbench, ALineOfTheLogRepaintsTheLogAlone)
{
    Write("workbench 1\nlive=1\n");
    Start();
    NameElement(m_Bench->GetTablePage(), "readings");
    NameElement(m_Bench->GetTablePage().GetGrid(), "grid");
    NameElement(m_Bench->GetLog().GetList(), "lines");
    int const before = m_Bench->GetLines().GetItemCount();
    m_Host.Clock().Advance(250);
    PaintLog const log = m_Host.Paint();
    EXPECT_EQ(m_Bench->GetLines().GetItemCount(), before + 1);
    EXPECT_FALSE(log.Of("lines").IsEmpty());
    EXPECT_TRUE(log.Of("readings").IsEmpty());
    EXPECT_TRUE(log.Of("grid").IsEmpty());
    EXPECT_TRUE(IsEndInView());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Workbench, AUserWhoHasScrolledAwayIsNotPulledBack)
{
    Write("workbench 1\nlive=1\n");
    Start();
    m_Host.Mouse().Wheel(500, 560, 3);
    m_Host.Paint();
    EXPECT_FALSE(IsEndInView());
    int const top = m_Bench->GetLog().GetPos().top;
    m_Host.Clock().Advance(1000);
    m_Host.Paint();
    EXPECT_EQ(m_Bench->GetLog().GetPos().top, top);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Workbench, KeepsItsLayoutBetweenTwoRuns)
{
    Start();
    m_Host.Mouse().Drag(500, GetTabsTop() + 27, 500, GetTabsTop() - 23);  // the splitter above the log
    m_Host.Mouse().Release();
    m_Host.Paint();
    m_Host.Mouse().Click(120, GetTabsTop() + 10);
    m_Host.Paint();
    ASSERT_TRUE(m_Bench->Save());
    m_Bench.reset();
    SState state;
    ASSERT_EQ(ReadState(m_Path, &state), ReadResult::Read);
    EXPECT_EQ(state.logHeight, 220);  // 50 more
    EXPECT_EQ(state.page, 1);

    Start();
    EXPECT_EQ(m_Bench->GetNotebook().GetPageIndex(), 1);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    ASSERT_TRUE(m_Bench->Save());
    SState again;
    ASSERT_EQ(ReadState(m_Path, &again), ReadResult::Read);
    EXPECT_EQ(again.logHeight, 220);
}

TEST_F(Workbench, TakesItsThemeFromTheFileAndTheOrderOfItsColumns)
{
    Write("workbench 1\ntheme=2\ncolumns=3:80 0:150 1:96 2:96 4:96 5:96 6:96\n");
    Start();
    EXPECT_EQ(m_Themes, std::vector{SState::ThemeDark});
    EXPECT_EQ(m_Bench->GetTablePage().GetGrid().GetText(7, 0), FormatReading(7, 2));
    EXPECT_EQ(m_Bench->GetTablePage().GetGrid().GetText(7, 1), FormatTime(7));
    EXPECT_EQ(m_Bench->GetTablePage().GetGrid().GetColumnViewModel()->GetItemSize(0), 80);
}

TEST_F(Workbench, AsksBeforeItOverwritesAFileThatItCannotRead)
{
    Write("something else\n");
    Start();
    EXPECT_NE(m_Host.Root()->AsString().find("can't be read"), std::string::npos);
    EXPECT_NE(GetLastLine(), "Ready");
    m_Host.Keyboard().Press(9);  // from the first button to the second, which quits
    m_Host.Keyboard().Press(32);
    m_Host.Paint();
    EXPECT_EQ(m_Quits, std::vector{1});
    ASSERT_TRUE(m_Bench->Save());
    std::ifstream kept(m_Path);
    std::string line;
    std::getline(kept, line);
    EXPECT_EQ(line, "something else");
}

TEST_F(Workbench, GoesOnWithAFreshLayoutIfItMay)
{
    Write("workbench 1\npage=9\n");
    Start();
    m_Host.Keyboard().Press(32);  // the first button has the focus
    m_Host.Paint();
    EXPECT_TRUE(m_Quits.empty());
    EXPECT_EQ(GetLastLine(), "Ready");
    EXPECT_EQ(m_Host.Root()->AsString().find("can't be read"), std::string::npos);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    ASSERT_TRUE(m_Bench->Save());
    SState state;
    EXPECT_EQ(ReadState(m_Path, &state), ReadResult::Read);
}

TEST_F(Workbench, ANarrowWindowIsToldUntilItIsWider)
{
    m_Host.Resize(500, 600);
    Start();
    EXPECT_NE(m_Host.Root()->AsString().find("The window is narrow"), std::string::npos);
    m_Host.Clock().Advance(900);
    m_Host.Paint();
    EXPECT_NE(GetLastLine(), "Ready");
    m_Host.Resize(800, 600);
    m_Host.Clock().Advance(300);
    m_Host.Paint();
    EXPECT_EQ(m_Host.Root()->AsString().find("The window is narrow"), std::string::npos);
    EXPECT_EQ(GetLastLine(), "Ready");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Workbench, ControlAndQEndsIt)
{
    Start();
    m_Host.Keyboard().Press('Q');
    EXPECT_TRUE(m_Quits.empty());
    m_Host.Keyboard().Press('Q', ksControl);
    EXPECT_EQ(m_Quits, std::vector{0});
}

TEST_F(Workbench, GivesASearchUp)
{
    Start();
    ClickSearch();
    ASSERT_TRUE(m_Bench->GetSearch());
    EXPECT_EQ(GetLastLine(), "Searching 20000000 readings");
    ClickSearch();
    EXPECT_FALSE(m_Bench->GetSearch());
    EXPECT_EQ(GetLastLine(), "The search was given up");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Workbench, TheGaugeFollowsTheSearch)
{
    Start();
    ClickSearch();
    m_Host.StepBackground();
    m_Host.RunPending();
    m_Host.Paint();
    EXPECT_EQ(m_Bench->GetSearch()->GetDone(), 100000);
    EXPECT_NE(m_Host.Root()->AsString().find("0 million readings searched"), std::string::npos);
    for (int i = 0; i < 20; ++i)
    {
        m_Host.Clock().Advance(1);
        m_Host.StepBackground();
        m_Host.RunPending();
    }
    m_Host.Paint();
    EXPECT_EQ(m_Bench->GetSearch()->GetDone(), 2100000);
    EXPECT_NE(m_Host.Root()->AsString().find("[10%]"), std::string::npos);
    EXPECT_NE(m_Host.Root()->AsString().find("2 million readings searched"), std::string::npos);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST(WorkbenchSearch, FindsTheExtremes)
{
    CTestHost host(100, 100);
    CSearch search(host.Window(), 150000);
    search.Execute();
    host.RunBackground();
    host.RunPending();
    ASSERT_TRUE(search.IsDone());
    double least = Read(0, 4);
    double most = least;
    for (int row = 1; row < 150000; ++row)
    {
        least = std::min(least, Read(row, 4));
        most = std::max(most, Read(row, 4));
    }
    EXPECT_EQ(search.GetExtremes(4).least, least);
    EXPECT_EQ(search.GetExtremes(4).most, most);
    EXPECT_LT(least, most);
}

// The file ----------------------------------------------------------------------------------------------------------------------

class WorkbenchState : public testing::Test
{
protected:
    WorkbenchState() : m_Path(testing::TempDir() + "workbench-state-file") { std::filesystem::remove(m_Path); }
    ~WorkbenchState() override { std::filesystem::remove(m_Path); }
    ReadResult ReadText(std::string const& text)
    {
        std::ofstream(m_Path) << text;
        return ReadState(m_Path, &m_State);
    }

    std::string const m_Path;
    SState m_State;
};

TEST_F(WorkbenchState, IsWhatWasWritten)
{
    SState written;
    written.theme = SState::ThemeLight;
    written.page = 2;
    written.logHeight = 333;
    written.detailsWidth = 111;
    written.live = true;
    written.follow = false;
    written.span = 3;
    written.columns[0] = {6, 1};
    written.columns[6] = {0, 9999};
    ASSERT_TRUE(WriteState(m_Path, written));
    ASSERT_EQ(ReadState(m_Path, &m_State), ReadResult::Read);
    EXPECT_EQ(m_State.theme, SState::ThemeLight);
    EXPECT_EQ(m_State.page, 2);
    EXPECT_EQ(m_State.logHeight, 333);
    EXPECT_EQ(m_State.detailsWidth, 111);
    EXPECT_TRUE(m_State.live);
    EXPECT_FALSE(m_State.follow);
    EXPECT_EQ(m_State.span, 3);
    EXPECT_EQ(m_State.columns[0].number, 6);
    EXPECT_EQ(m_State.columns[0].width, 1);
    EXPECT_EQ(m_State.columns[6].number, 0);
    EXPECT_EQ(m_State.columns[6].width, 9999);
}

TEST_F(WorkbenchState, AFileThatIsNotThereChangesNothing)
{
    EXPECT_EQ(ReadState(m_Path, &m_State), ReadResult::Absent);
    EXPECT_EQ(m_State.logHeight, 170);
}

TEST_F(WorkbenchState, ADamagedFileChangesNothing)
{
    for (char const* const text :
         {"", "workbench", "workbench 2\n", "workbench 1\nlog height\n", "workbench 1\nlog height=\n",
          "workbench 1\nlog height=10x\n", "workbench 1\nlog height=-1\n", "workbench 1\nlog height=99999999999\n",
          "workbench 1\npage=3\n", "workbench 1\ntheme=3\n", "workbench 1\ncolumns=0:10\n",
          "workbench 1\ncolumns=0:10 0:10 2:10 3:10 4:10 5:10 6:10\n",
          "workbench 1\ncolumns=0:10 1:0 2:10 3:10 4:10 5:10 6:10\n",
          "workbench 1\ncolumns=0:10 1:10 2:10 3:10 4:10 5:10 6:10 7:10\n", "workbench 1\nlog height=50\nspan=4\n"})
    {
        EXPECT_EQ(ReadText(text), ReadResult::Damaged) << text;
        EXPECT_EQ(m_State.logHeight, 170) << text;
    }
}

TEST_F(WorkbenchState, NamesOfLaterVersionsAreLeftOut)
{
    EXPECT_EQ(ReadText("workbench 1\n\nzoom=7\nlog height=50\n"), ReadResult::Read);
    EXPECT_EQ(m_State.logHeight, 50);
}

TEST_F(WorkbenchState, AFolderThatIsNotThereTakesNoFile)
{
    EXPECT_FALSE(WriteState(m_Path + "/nowhere/file", SState()));
}
