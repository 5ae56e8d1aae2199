// The handler that gives a viewer tooltips of its items.

#include "tests/views/viewer_bench.h"
#include "vexel/views/tooltip_event_handler.h"

using namespace viewer_test;

namespace
{

class CRowTips : public CTooltipEventHandler
{
public:
    int m_Asked = 0;

    void GetTooltipAttr(CTooltipEvent* event) override
    {
        ++m_Asked;
        int const row = event->m_Y / 10;
        event->m_Text = row < 3 ? "row " + std::to_string(row) : "";
        event->m_HotRect = {0, row * 10, 99, row * 10 + 9};
    }
};

class TooltipEventHandler : public CRowsBench<IDiscreteItemViewModel>
{
protected:
    TooltipEventHandler()
    {
        m_Tips.SetWindow(&m_Host.Window());
        m_Rows->SetDefEventHandler(&m_Tips);
    }
    bool IsShown() { return m_Host.Window().GetTooltip().shown; }

    CRowTips m_Tips;
};

TEST_F(TooltipEventHandler, FillsInTextAndRectangleOfTheItemUnderThePointer)
{
    EXPECT_EQ(m_Host.Tooltip(*m_Rows, 5, 15), "row 1");
    EXPECT_EQ(m_Host.Window().GetTooltip().hotRect, (rectangle<int>{0, 10, 99, 19}));
    EXPECT_EQ(m_Host.Tooltip(*m_Rows, 5, 25), "row 2");
    EXPECT_EQ(m_Host.Tooltip(*m_Rows, 5, 35), "");
}

TEST_F(TooltipEventHandler, AnswersForTheViewerAlsoWithoutText)
{
    m_Rows->SetTooltip("of the list");
    EXPECT_EQ(m_Host.Tooltip(*m_Rows, 5, 35), "");
}

TEST_F(TooltipEventHandler, DoesNotKeepTheEventFromTheNextHandler)
{
    CRowTips next;
    m_Rows->AddEventHandler(&next);
    m_Host.Tooltip(*m_Rows, 5, 15);
    EXPECT_EQ(m_Tips.m_Asked, 1);
    EXPECT_EQ(next.m_Asked, 1);
}

TEST_F(TooltipEventHandler, TheTooltipGoesWhenTheViewerScrolls)
{
    m_Host.Tooltip(*m_Rows, 5, 15);
    ASSERT_TRUE(IsShown());
    m_Rows->ScrollContent(0, 10);
    EXPECT_FALSE(IsShown());
}

TEST_F(TooltipEventHandler, TheTooltipGoesWithAKeyWhichStillActs)
{
    m_Host.Tooltip(*m_Rows, 5, 15);
    ASSERT_TRUE(IsShown());
    GoTo(3);
    Press(vkDown);
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(Current(), 4);
}

TEST_F(TooltipEventHandler, TheTooltipGoesWithAContextMenuWhichStillOpens)
{
    m_Host.Tooltip(*m_Rows, 5, 15);
    ASSERT_TRUE(IsShown());
    bool handled = false;
    EXPECT_FALSE(m_Tips.ProcessContextMenu(5, 15, &handled));
    EXPECT_FALSE(handled);
    EXPECT_FALSE(IsShown());
}

TEST_F(TooltipEventHandler, ClicksAndMovesLeaveTheTooltip)
{
    m_Host.Tooltip(*m_Rows, 5, 15);
    bool handled = false;
    EXPECT_FALSE(m_Tips.ProcessMouseMove(6, 15, 0, mbNone, &handled));
    EXPECT_FALSE(m_Tips.ProcessButtonDown(6, 15, ksLeft, mbLeft, &handled));
    EXPECT_FALSE(m_Tips.ProcessKeyUp(0, vkDown, &handled));
    EXPECT_FALSE(handled);
    EXPECT_TRUE(IsShown());
}

TEST_F(TooltipEventHandler, WithoutAWindowNothingGoes)
{
    m_Tips.SetWindow(nullptr);
    EXPECT_EQ(m_Tips.GetWindow(), nullptr);
    m_Tips.HideTooltip();
    m_Rows->ScrollContent(0, 10);
    Press(vkDown);
    m_Host.ContextMenu(*m_Rows, 5, 15);
    EXPECT_EQ(m_Host.Tooltip(*m_Rows, 5, 15), "row 1");  // texts need none
}

TEST_F(TooltipEventHandler, LeavesItsViewerWhenItDies)
{
    {
        CRowTips other;
        m_Rows->SetDefEventHandler(&other);
        EXPECT_EQ(m_Rows->GetEventHandlers(), &other);
    }
    EXPECT_EQ(m_Rows->GetEventHandlers(), &m_Tips);
    EXPECT_EQ(m_Host.Tooltip(*m_Rows, 5, 15), "row 1");
}

}  // namespace
