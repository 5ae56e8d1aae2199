// The animation that runs in tabs.

#include "tests/controls/tab_bench.h"
#include "tests/support/leaf.h"

using namespace tab_test;

namespace
{

class TabPaneAnimation : public CTabBench
{
protected:
    TabPaneAnimation() { m_Tabs.m_Frames = m_Frames; }

    void Start()
    {
        m_Tabs[1].animated = true;
        m_Pane.CheckAnimation();
        Settle();
    }
    bool Runs() const { return m_Host.Pending().find("timer") != std::string::npos; }

    vexel_ptr<CTestFrames> m_Frames{new CTestFrames};
};

TEST_F(TabPaneAnimation, StandsUntilItIsCheckedOrTheModelChanges)
{
    m_Tabs[1].animated = true;
    m_Tabs.m_SigTabChanged(1);
    EXPECT_FALSE(Runs());
    m_Pane.CheckAnimation();
    EXPECT_TRUE(Runs());
    m_Tabs[1].animated = false;
    m_Tabs.m_SigChanged();
    EXPECT_FALSE(Runs());
    m_Tabs[2].animated = true;
    m_Tabs.m_SigChanged();
    EXPECT_TRUE(Runs());
}

TEST_F(TabPaneAnimation, NeedsAnAnimation)
{
    m_Tabs.m_Frames = nullptr;
    m_Tabs[1].animated = true;
    m_Pane.CheckAnimation();
    EXPECT_FALSE(Runs());
    m_Tabs.m_Frames = m_Frames;
    m_Pane.CheckAnimation();
    EXPECT_TRUE(Runs());
    m_Tabs.m_Frames = nullptr;
    m_Pane.CheckAnimation();
    EXPECT_FALSE(Runs());
}

TEST_F(TabPaneAnimation, EachFrameRepaintsTheAnimatedTabsInView)
{
    m_Tabs[0].animated = true;
    m_Tabs[2].animated = true;
    m_Pane.CheckAnimation();
    Settle();
    int const frame = m_Frames->m_Frame;
    m_Host.Clock().Advance(50);
    EXPECT_EQ(m_Frames->m_Frame, frame + 1);
    EXPECT_EQ(DrawnTabs(), "0 2");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabPaneAnimation, AFrameThatNobodySeesRepaintsNothing)
{
    for (int i = 0; i < 20; ++i)
        m_Tabs.Add("xyz");
    m_Tabs[20].animated = true;
    m_Tabs.m_SigChanged();
    Settle();
    m_Host.Clock().Advance(50);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Pane.SetFirstVisibleTab(18);
    Settle();
    m_Host.Clock().Advance(50);
    EXPECT_EQ(DrawnTabs(), "20");
}

TEST_F(TabPaneAnimation, ADisabledTabShowsNoFrame)
{
    m_Tabs[1].enabled = false;
    Start();
    EXPECT_TRUE(Runs());
    m_Host.Clock().Advance(50);
    EXPECT_EQ(DrawnTabs(), "");
    EXPECT_THAT(FullPaint(), Draws("DrawString \"def\" 51 2 79 14 0x121 3"));
}

TEST_F(TabPaneAnimation, TheFrameStandsInPlaceOfTheImageInTheMiddleOfTheHeight)
{
    m_Tabs[1].image = 0;
    Start();
    // 43 + 4, (2 + 14 - 4) / 2; behind the frame of 6 another 4.
    EXPECT_THAT(FullPaint(), Draws("FillRect 47 6 52 9").Then("DrawString \"def\" 57 2 * 14 0x121 3"));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(TabPaneAnimation, IsNotSteppedWhileThePaneIsHidden)
{
    Start();
    m_Pane.SetVisible(false);
    int const frame = m_Frames->m_Frame;
    m_Host.Clock().Advance(500);
    EXPECT_EQ(m_Frames->m_Frame, frame);
    m_Pane.SetVisible(true);
    m_Host.Clock().Advance(50);
    EXPECT_GT(m_Frames->m_Frame, frame);
}

TEST_F(TabPaneAnimation, StopsWithoutAModelAndGivesTheAnimationUp)
{
    Start();
    EXPECT_EQ(m_Frames->GetRefCount(), 3);
    m_Pane.SetModel(nullptr);
    EXPECT_FALSE(Runs());
    EXPECT_EQ(m_Frames->GetRefCount(), 2);
}

TEST_F(TabPaneAnimation, KeepsTheAnimationThatItRunsWhereTheModelDropsIt)
{
    Start();
    m_Tabs.m_Frames = nullptr;
    EXPECT_EQ(m_Frames->GetRefCount(), 2);
    m_Host.Clock().Advance(50);
    EXPECT_EQ(DrawnTabs(), "");  // the model has none to show
    m_Pane.CheckAnimation();
    EXPECT_EQ(m_Frames->GetRefCount(), 1);
}

TEST_F(TabPaneAnimation, StopsWhenTheModelDies)
{
    auto tabs = std::make_unique<CTestTabs>(std::vector<std::string>{"a"});
    tabs->m_Frames = m_Frames;
    (*tabs)[0].animated = true;
    m_Pane.SetModel(tabs.get());
    EXPECT_TRUE(Runs());
    tabs.reset();
    EXPECT_FALSE(Runs());
}

TEST_F(TabPaneAnimation, StopsWithItsControlAndGoesOnInTheNextOne)
{
    Start();
    m_Pane.ReParent(nullptr, true);
    EXPECT_FALSE(Runs());
    m_Pane.ReParent(m_Host.Root(), true);
    EXPECT_TRUE(Runs());
    Settle();
    m_Host.Clock().Advance(50);
    EXPECT_EQ(DrawnTabs(), "1");
}

TEST_F(TabPaneAnimation, StopsWhenTheWindowIsDestroyed)
{
    Start();
    m_Host.DestroyWindow();
    EXPECT_FALSE(Runs());
    m_Pane.CheckAnimation();
    EXPECT_FALSE(Runs());
}

TEST_F(TabPaneAnimation, AStepOnAThreadThatComesTooLateFindsNobody)
{
    SetDefAnimationProcess(aptThread);
    auto& pane = *new CTestPane(m_Host.Root(), {0, 20}, alTop);
    pane.SetModel(&m_Tabs);
    m_Tabs[1].animated = true;
    pane.CheckAnimation();
    m_Host.Paint();
    int const frame = m_Frames->m_Frame;
    m_Host.StepBackground();  // has posted a step
    delete &pane;
    m_Host.RunPending();
    EXPECT_EQ(m_Frames->m_Frame, frame);
    EXPECT_EQ(m_Frames->GetRefCount(), 2);
}

TEST_F(TabPaneAnimation, RunsOnAThreadToo)
{
    SetDefAnimationProcess(aptThread);
    Start();
    int const frame = m_Frames->m_Frame;
    m_Host.Clock().Advance(50);
    m_Host.StepBackground();
    m_Host.RunPending();
    EXPECT_GT(m_Frames->m_Frame, frame);
    EXPECT_EQ(DrawnTabs(), "1");
    m_Pane.SetModel(nullptr);
}

TEST_F(TabPaneAnimation, WithoutAProcessNothingRuns)
{
    SetDefAnimationProcess(static_cast<AnimationProcessType>(7));
    Start();
    EXPECT_FALSE(Runs());
    EXPECT_EQ(m_Frames->m_Frame, 0);
}

}  // namespace
