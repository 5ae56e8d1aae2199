#include "tests/platform/qt/native_test_kit.h"
#include "vexel/platform/qt/detail/scroll_steps.cpp"  // hidden in the library
#include "vexel/platform/system.h"
#include "vexel/testing/expect_report.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

#include <limits>
#include <stdexcept>

namespace vexelbase::qt::test
{

namespace
{

class QtScrollBar : public testing::Test
{
protected:
    QtScrollBar()
    {
        m_Bar->SetPos(10, 0, 20, 180);
        m_Bar->SetVisible(true);
        SetRange(0, 200, 50);
        m_Bar->Subscribe(&m_Words, typeid(IScrollBarNotify), true);
    }
    void SetRange(double minimum, double maximum, double page, bool inverted = false, double position = 0)
    {
        SScrollBarInfo info;
        info.minimum = minimum;
        info.maximum = maximum;
        info.page = page;
        info.lineStep = 3;
        info.position = position;
        info.inverted = inverted;
        m_Bar->SetInfo(info);
    }
    QScrollBar& Native() { return *FindNative<QScrollBar>(m_Hosted); }
    // In the middle of a part of the bar.
    void Click(QStyle::SubControl part)
    {
        QPoint const at = Part(part).center();
        ClickAt(&Native(), at.x(), at.y());
    }
    QRect Part(QStyle::SubControl part)
    {
        QScrollBar& bar = Native();
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.subControls = QStyle::SC_All;
        option.orientation = bar.orientation();
        option.minimum = bar.minimum();
        option.maximum = bar.maximum();
        option.sliderPosition = bar.sliderPosition();
        option.sliderValue = bar.value();
        option.singleStep = bar.singleStep();
        option.pageStep = bar.pageStep();
        if (bar.orientation() == Qt::Horizontal)
            option.state |= QStyle::State_Horizontal;
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
    }

    bool const m_Parked = (ParkPointer(), true);  // before there is anything to enter
    CHosted m_Hosted{200, 200};
    CScrollWords m_Words;
    vexel_ptr<IScrollBar> m_Bar = m_Hosted.Window().CreateScrollBar(ISysWindow::stVertical);
};

}  // namespace

TEST(QtScrollSteps, AWayOfWholeNumbersIsTakenAsItIs)
{
    CScrollSteps const steps(150);
    EXPECT_EQ(steps.GetCount(), 150);
    EXPECT_EQ(steps.FromDistance(72.4), 72);
    EXPECT_EQ(steps.ToDistance(72), 72.0);
    EXPECT_EQ(steps.ToDistance(150), 150.0);
    EXPECT_EQ(steps.FromLength(50), 50);
}

TEST(QtScrollSteps, AWayBeyondQtsNumbersIsPartedEvenly)
{
    CScrollSteps const steps(1e18);
    EXPECT_EQ(steps.GetCount(), 1000000000);
    EXPECT_EQ(steps.ToDistance(1000000000), 1e18);
    EXPECT_EQ(steps.ToDistance(500000000), 5e17);
    EXPECT_EQ(steps.FromDistance(5e17), 500000000);
    EXPECT_EQ(steps.FromLength(1.0), 1);
    EXPECT_EQ(steps.FromLength(1e30), std::numeric_limits<int>::max());
}

TEST(QtScrollSteps, AWayWithAFractionEndsExactly)
{
    CScrollSteps const steps(2.5);
    EXPECT_EQ(steps.GetCount(), 3);
    EXPECT_EQ(steps.ToDistance(3), 2.5);
    EXPECT_EQ(steps.FromDistance(2.5), 3);
}

TEST(QtScrollSteps, WithoutAWayThereAreNoSteps)
{
    for (double const way : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()})
    {
        CScrollSteps const steps(way);
        EXPECT_EQ(steps.GetCount(), 0);
        EXPECT_EQ(steps.FromDistance(7), 0);
        EXPECT_EQ(steps.ToDistance(7), 0.0);
        EXPECT_EQ(steps.FromLength(7), 1);
    }
}

TEST_F(QtScrollBar, IsPaintedOnlyWhereItsThumbMoves)
{
    SetRange(0, 1000000, 50, false, 500);
    Settle();
    CPaintWatch watch(&Native());
    m_Bar->SetScrollPos(501);
    SetRange(0, 1000000, 50, false, 502);
    Settle();
    EXPECT_EQ(watch.m_Count, 0);

    m_Bar->SetScrollPos(400000);
    Settle();
    EXPECT_EQ(watch.m_Count, 1);

    m_Bar->SetEnabled(false);
    Settle();
    EXPECT_EQ(watch.m_Count, 2);
}

TEST_F(QtScrollBar, IsAQtBarInTheWindow)
{
    EXPECT_EQ(Native().orientation(), Qt::Vertical);
    EXPECT_EQ(Native().geometry(), QRect(10, 0, 20, 180));
    EXPECT_TRUE(Native().isVisible());
    EXPECT_EQ(Native().maximum(), 150);
    EXPECT_EQ(Native().pageStep(), 50);
}

TEST_F(QtScrollBar, KeepsTheRecordAsGiven)
{
    SScrollBarInfo info;
    info.mask = 7;
    info.minimum = 1;
    info.maximum = 10;
    info.lineStep = 2;
    info.page = 4;
    info.position = 99;
    info.inverted = true;
    m_Bar->SetInfo(info);
    SScrollBarInfo read;
    m_Bar->GetInfo(read);
    EXPECT_EQ(read.mask, 7u);
    EXPECT_EQ(read.minimum, 1);
    EXPECT_EQ(read.maximum, 10);
    EXPECT_EQ(read.lineStep, 2);
    EXPECT_EQ(read.page, 4);
    EXPECT_EQ(read.position, 99);
    EXPECT_TRUE(read.inverted);
    EXPECT_EQ(m_Words.Take(), "");
}

TEST_F(QtScrollBar, CutsAPositionToItsRangeAndFiresNothing)
{
    m_Bar->SetScrollPos(151);
    EXPECT_EQ(m_Bar->GetScrollPos(), 150);
    EXPECT_EQ(Native().value(), 150);
    m_Bar->SetScrollPos(-1);
    EXPECT_EQ(m_Bar->GetScrollPos(), 0);
    m_Bar->SetScrollPos(72.5);
    EXPECT_EQ(m_Bar->GetScrollPos(), 72.5);
    m_Bar->SetScrollPos(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(m_Bar->GetScrollPos(), 0);
    EXPECT_EQ(m_Words.Take(), "");
}

TEST_F(QtScrollBar, ArrowsStepByLinesAndTheTrackByPages)
{
    Native().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(m_Words.Take(), "3/2");
    Native().triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(m_Words.Take(), "0/2");
    Native().triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(m_Words.Take(), "");  // it stands at its end
    Click(QStyle::SC_ScrollBarAddPage);
    EXPECT_EQ(m_Words.Take(), "50/3");
    EXPECT_EQ(Native().value(), 50);
    Click(QStyle::SC_ScrollBarSubPage);
    EXPECT_EQ(m_Words.Take(), "0/3");
    EXPECT_EQ(m_Hosted.Control().Take(), "");
}

TEST_F(QtScrollBar, TheThumbIsDraggedToItsEnd)
{
    QPoint const at = Part(QStyle::SC_ScrollBarSlider).center();
    SendMouse(&Native(), QEvent::MouseButtonPress, at.x(), at.y());
    QMouseEvent move(QEvent::MouseMove, QPointF(at.x(), 170), QPointF(at.x(), 170), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&Native(), &move);
    SendMouse(&Native(), QEvent::MouseButtonRelease, at.x(), 170);
    EXPECT_EQ(m_Words.Take(), "150/0");
    EXPECT_EQ(m_Bar->GetScrollPos(), 150);
}

TEST_F(QtScrollBar, ALongRangeIsSteppedExactly)
{
    SetRange(0, 1e18, 5e17);
    m_Bar->SetScrollPos(1024);
    Native().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(m_Words.Take(), "1027/2");
    Native().triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(m_Words.Take(), "5e+17/3");  // cut to the end
    Native().setValue(0);                  // as the bar's own menu does
    EXPECT_EQ(m_Words.Take(), "0/0");
}

TEST_F(QtScrollBar, ARangeMayBeginAnywhere)
{
    SetRange(-100, 100, 50, false, -40);
    EXPECT_EQ(Native().value(), 60);
    Native().triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(m_Words.Take(), "-43/2");
    EXPECT_EQ(m_Bar->GetScrollPos(), -43);
}

TEST_F(QtScrollBar, AnInvertedBarTellsTheDistanceFromTheTop)
{
    SetRange(0, 200, 50, true);
    EXPECT_EQ(Native().value(), 150);
    Native().triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(m_Words.Take(), "147/2");
    EXPECT_EQ(m_Bar->GetScrollPos(), 3);
    EXPECT_EQ(Native().value(), 147);
}

TEST_F(QtScrollBar, TheWheelMovesThreeLinesANotch)
{
    m_Bar->SetScrollPos(20);
    EXPECT_TRUE(TurnWheel(&Native(), 1));
    EXPECT_EQ(m_Words.Take(), "11/2");
    TurnWheel(&Native(), -1);
    EXPECT_EQ(m_Words.Take(), "20/2");
    EXPECT_EQ(Native().value(), 20);
    EXPECT_EQ(m_Hosted.Control().Take(), "");
}

TEST_F(QtScrollBar, ADisabledBarDoesNotMove)
{
    m_Bar->SetEnabled(false);
    EXPECT_FALSE(Native().isEnabled());
    Click(QStyle::SC_ScrollBarAddPage);
    TurnWheel(&Native(), -1);
    EXPECT_EQ(m_Words.Take(), "");
}

TEST_F(QtScrollBar, RefreshGivesItsThicknessBack)
{
    int const thickness = GetCurrentSystem()->GetSystemMetric(ISystem::smScrollBarWidth);
    m_Bar->SetPos(3, 4, 5, 60);
    m_Bar->Refresh();
    EXPECT_EQ(m_Bar->GetRect(), (rectangle<int>{3, 4, 3 + thickness, 64}));
    vexel_ptr<IScrollBar> const lying = m_Hosted.Window().CreateScrollBar(ISysWindow::stHorizontal);
    lying->SetPos(3, 4, 60, 5);
    lying->Refresh();
    EXPECT_EQ(lying->GetRect(), (rectangle<int>{3, 4, 63, 4 + thickness}));
}

TEST_F(QtScrollBar, WhatTheListenerSetsDuringAnEventStays)
{
    m_Words.m_Do = [&](CScrollEvent const&) { SetRange(0, 200, 50, false, 20); };
    Click(QStyle::SC_ScrollBarAddPage);
    EXPECT_EQ(m_Bar->GetScrollPos(), 20);
    EXPECT_EQ(Native().value(), 20);
}

TEST_F(QtScrollBar, AListenerMayDropTheLastReference)
{
    m_Words.m_Do = [&](CScrollEvent const&) { m_Bar.reset(); };
    Click(QStyle::SC_ScrollBarAddPage);
    EXPECT_EQ(m_Words.Take(), "50/3");
    Settle();
    EXPECT_EQ(FindNative<QScrollBar>(m_Hosted), nullptr);
}

TEST_F(QtScrollBar, AListenerMayDeleteTheWindow)
{
    m_Words.m_Do = [&](CScrollEvent const&) { m_Hosted.m_Window.reset(); };
    TurnWheel(&Native(), -1);
    EXPECT_EQ(m_Words.Take(), "9/2");
    Settle();
    m_Bar->SetScrollPos(4);
    m_Bar->SetPos(1, 2, 3, 4);
    m_Bar->Refresh();
    m_Bar->SetVisible(false);
    m_Bar->SetFocus();
    m_Bar->SetEnabled(false);
    EXPECT_EQ(m_Bar->GetScrollPos(), 4);
    EXPECT_FALSE(m_Bar->IsVisible());
}

TEST_F(QtScrollBar, AListenersExceptionIsReported)
{
    m_Words.m_Do = [](CScrollEvent const&) { throw std::runtime_error("scroll failed"); };
    vexel::test::CExpectException once("scroll failed");
    Click(QStyle::SC_ScrollBarAddPage);
}

TEST_F(QtScrollBar, WithoutARangeItDoesNotMove)
{
    m_Bar->SetInfo({});
    EXPECT_EQ(Native().maximum(), 0);
    Native().triggerAction(QAbstractSlider::SliderPageStepAdd);
    TurnWheel(&Native(), -1);
    EXPECT_EQ(m_Words.Take(), "");
}

TEST_F(QtScrollBar, IsNoStopForTab)
{
    m_Hosted.Window().SetFocus();
    PressKey(m_Hosted.Widget(), Qt::Key_Tab);
    EXPECT_TRUE(m_Hosted.Window().HasFocus());
}

}  // namespace vexelbase::qt::test
