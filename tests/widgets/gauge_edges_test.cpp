// Gauges at the ends of their ranges, and what moves the parts of a gauge box.

#include "tests/support/leaf.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/gauge_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <utility>

using namespace vexel;
using namespace vexel::test;

namespace
{

// Does something when one below asks for a layout.
class CMeddler : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    std::function<void()> m_Deed;

    void ProcessRearrange(CVisualElement**) override
    {
        if (m_Deed)
            std::exchange(m_Deed, nullptr)();
    }
};

class CTellingGauge : public CGauge
{
public:
    using CGauge::CGauge;
    int m_Grounds = 0;

    void DrawBackground(IPainter* painter) override
    {
        ++m_Grounds;
        CGauge::DrawBackground(painter);
    }
};

}  // namespace

TEST(GaugeText, IsOfTheRangeWithItsSignAndEndsWhereNumbersDo)
{
    CGauge gauge(nullptr, {10, 10}, alNone);
    gauge.SetMin(10);
    EXPECT_EQ(gauge.AsString(), "[-100%]");  // 10 of 0 - 10
    gauge.SetMax(10);
    EXPECT_EQ(gauge.AsString(), "[0%]");
    gauge.SetMax(11);
    EXPECT_EQ(gauge.AsString(), "[1000%]");
    gauge.SetMax(1e9);
    gauge.Increase(1e9);
    gauge.SetMin(1e9 - 1);
    EXPECT_EQ(gauge.AsString(), "[2147483647%]");
}

TEST(GaugeText, OfAValueBelowZeroIsTruncatedTowardsIt)
{
    CGauge gauge(nullptr, {10, 10}, alNone);
    gauge.SetMin(-3);
    gauge.Increase(-1);
    EXPECT_EQ(gauge.AsString(), "[-33%]");
    gauge.Increase(-1);
    EXPECT_EQ(gauge.AsString(), "[-66%]");
}

TEST(GaugeBar, OfEndsFarApartIsSurvived)
{
    CGauge gauge(nullptr, {10, 10}, alNone);
    gauge.SetPos({0, 0, 100, 10}, false);
    double const most = std::numeric_limits<double>::max();
    gauge.SetMin(-most);
    gauge.SetMax(most);
    EXPECT_EQ(gauge.GetDrawingVal(), 0);
    gauge.Increase(most);
    EXPECT_EQ(gauge.GetValue(), most);
    gauge.Increase(most);
    EXPECT_EQ(gauge.GetValue(), most);
    gauge.Increase(std::numeric_limits<double>::quiet_NaN());
    gauge.Reset();
    EXPECT_EQ(gauge.GetValue(), -most);
}

TEST(GaugeBar, OfAnEmptyRangeHasNoLengthWhateverTheValue)
{
    CGauge gauge(nullptr, {10, 10}, alNone);
    gauge.SetPos({0, 0, 100, 10}, false);
    gauge.SetMax(40);
    gauge.SetMin(50);
    gauge.SetMin(40);
    ASSERT_EQ(gauge.GetValue(), 50);
    EXPECT_EQ(gauge.GetDrawingVal(), 0);
}

TEST(GaugePaint, TheBarOfAValueBeyondTheMaximumEndsWhereTheGaugeDoes)
{
    CTestHost host(200, 100);
    auto* const gauge = new CGauge(host.Root(), {100, 0}, alLeft);
    NameElement(*gauge, "gauge");
    gauge->SetMax(40);
    gauge->SetMin(50);
    gauge->SetMin(0);
    PaintLog const log = host.Paint();
    ASSERT_EQ(gauge->GetDrawingVal(), 125);
    EXPECT_EQ(log.Of("gauge").Count("FillRect 0 0 100 99"), 2);  // ground and bar
    EXPECT_EQ(log.Of("gauge").Count("FillRect*"), 2);
}

TEST(GaugeBar, BelowZeroCountsFromTheMinimum)
{
    CGauge gauge(nullptr, {10, 10}, alNone);
    gauge.SetPos({50, 0, 150, 10}, false);
    gauge.SetMin(-10);
    gauge.SetMax(10);
    EXPECT_EQ(gauge.GetDrawingVal(), 50);
    gauge.Increase(-9);
    EXPECT_EQ(gauge.GetDrawingVal(), 5);
    gauge.Reset();
    EXPECT_EQ(gauge.GetDrawingVal(), 0);
}

TEST(GaugePaint, AChangeRepaintsTheGaugeAlone)
{
    CTestHost host(200, 100);
    auto* const bevel = new CBevel(host.Root(), {0, 0}, alClient);
    auto* const gauge = new CGauge(bevel, {0, 20}, alTop);
    auto* const rest = new CLeaf(bevel, {0, 0}, alClient, 1);
    NameElement(*bevel, "bevel");
    NameElement(*gauge, "gauge");
    NameElement(*rest, "rest");
    host.Paint();
    gauge->SetMax(10);
    EXPECT_EQ(host.Paint().Elements(), "gauge");
    gauge->Increase(4);
    EXPECT_EQ(host.Paint().Elements(), "gauge");
    gauge->SetMin(2);
    EXPECT_EQ(host.Paint().Elements(), "gauge");
    gauge->Reset();
    EXPECT_EQ(host.Paint().Elements(), "gauge");
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST(GaugePaint, TheGroundIsDrawnByItsOwnOperationAndNotUnderATransparentOne)
{
    CTestHost host(200, 100);
    auto* const gauge = new CTellingGauge(host.Root(), {0, 20}, alTop);
    gauge->SetMax(2);
    gauge->Increase(1);
    host.Paint();
    EXPECT_EQ(gauge->m_Grounds, 1);
    gauge->SetTransparent(true);
    host.FullPaint();
    EXPECT_EQ(gauge->m_Grounds, 1);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

// The box ---------------------------------------------------------------------------------------------------------------------

TEST(GaugeBoxWidth, AnotherLargestOneAsksForALayoutAndTheSameDoesNot)
{
    CTestHost host(200, 100);
    auto* const box = new CGaugeBox(host.Root(), {0, 40}, alTop);
    host.Paint();
    box->SetMaxWidth(0);
    EXPECT_FALSE(box->GetControl()->IsRearrangeNeeded());
    box->SetMaxWidth(120);
    EXPECT_TRUE(box->GetControl()->IsRearrangeNeeded());
    host.Paint();
    EXPECT_EQ(box->GetOffset().right, 79);
    box->SetMaxWidth(120);
    EXPECT_FALSE(box->GetControl()->IsRearrangeNeeded());
    box->SetMaxWidth(-1);
    EXPECT_EQ(box->GetMaxWidth(), -1);
    host.Resize(150, 100);
    host.Paint();
    EXPECT_EQ(box->GetOffset().right, 79);
}

TEST(GaugeBoxWidth, OffsetsOfTheOwnersStayAsLongAsTheRightOneFits)
{
    CTestHost host(200, 100);
    auto* const box = new CGaugeBox(host.Root(), {0, 40}, alTop);
    box->SetMaxWidth(120);
    host.Paint();
    box->SetOffset({4, 5, 79, 6});
    box->SetPos({0, 0, 199, 50}, false);
    EXPECT_EQ(box->GetOffset(), (rectangle<int>{4, 5, 79, 6}));
    box->SetPos({0, 0, 198, 50}, false);
    EXPECT_EQ(box->GetOffset(), (rectangle<int>{0, 0, 78, 0}));
    box->SetOffset({4, 5, 78, 6});
    box->SetPos({0, 0, 120, 50}, false);
    EXPECT_EQ(box->GetOffset(), (rectangle<int>{4, 5, 78, 6}));
    box->SetPos({0, 0, 121, 50}, false);
    EXPECT_EQ(box->GetOffset(), (rectangle<int>{0, 0, 1, 0}));
}

TEST(GaugeBoxWidth, CountsWhereverTheBoxStands)
{
    CGaugeBox box(nullptr, {0, 40}, alNone);
    box.SetMaxWidth(100);
    box.SetPos({1000, 5, 1130, 45}, false);
    EXPECT_EQ(box.GetOffset(), (rectangle<int>{0, 0, 30, 0}));
    EXPECT_EQ(box.GetStrip().GetPos(), (rectangle<int>{0, 0, 0, 0}));  // it isn't docked, and lays nothing out
}

TEST(GaugeBoxWidth, OfAPlaceOfAnySizeIsCut)
{
    int const most = std::numeric_limits<int>::max();
    CGaugeBox box(nullptr, {0, 40}, alNone);
    box.SetMaxWidth(100);
    box.SetPos({-most, 0, most, 40}, false);
    EXPECT_EQ(box.GetOffset(), (rectangle<int>{0, 0, most - 100, 0}));
    box.SetPos({most, 0, -most, 40}, false);
    EXPECT_EQ(box.GetOffset(), (rectangle<int>{0, 0, most - 100, 0}));
}

TEST(GaugeBoxStrip, OnlyTheButtonGivesTheGaugeItsHeight)
{
    CTestHost host(200, 100);
    auto* const box = new CGaugeBox(host.Root(), {0, 40}, alTop);
    host.Paint();
    box->GetGaugeBevel().SetHeight(33, false);
    EXPECT_EQ(box->GetGaugeBevel().GetSize().height, 33);
    box->GetStrip().SetHeight(50, false);
    EXPECT_EQ(box->GetGaugeBevel().GetSize().height, 33);
    box->GetButton().SetSize({30, 28}, false);
    EXPECT_EQ(box->GetGaugeBevel().GetSize().height, 20);  // hidden
    box->GetButton().SetVisible(true);
    EXPECT_EQ(box->GetGaugeBevel().GetSize().height, box->GetButton().GetSize().height);
    box->GetButton().SetVisible(false);
    EXPECT_EQ(box->GetGaugeBevel().GetSize().height, 20);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST(GaugeBoxText, StandsAtTheFootWithASpaceAboveIt)
{
    CTestHost host(200, 100);
    auto* const box = new CGaugeBoxEx(host.Root(), {0, 0}, alTop);
    EXPECT_EQ(CGaugeBoxEx(nullptr, {50, 3}, alTop).GetText().GetSize(), (size<int>{5, 5}));
    box->GetText().SetCaption("Copying");
    host.Paint();
    EXPECT_EQ(box->GetTextSpacer().GetParent(), box);
    EXPECT_EQ(box->GetText().GetPos(), (rectangle<int>{0, 24, 199, 34}));
    EXPECT_EQ(box->GetTextSpacer().GetPos(), (rectangle<int>{0, 21, 199, 23}));
    EXPECT_EQ(box->GetStrip().GetPos(), (rectangle<int>{0, 0, 199, 20}));
    box->GetTextSpacer().SetHeight(14, false);
    EXPECT_EQ(box->GetSize().height, 44);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST(GaugeBoxDeletion, WhileItAsksForALayoutIsSurvived)
{
    for (int way = 0; way < 6; ++way)
    {
        CTestHost host(200, 100);
        auto* const parent = new CMeddler(host.Root(), {0, 0}, alClient);
        auto* const box = new CGaugeBoxEx(parent, {0, 0}, alTop);
        box->GetText().SetCaption("Copying");
        host.Paint();
        parent->m_Deed = [&] { delete box; };
        if (way == 0)
            box->SetMaxWidth(100);
        else if (way == 1)
            box->GetText().SetCaption("two\nlines");
        else if (way == 2)
            box->GetButton().SetCaption("Stop");
        else if (way == 3)
            box->GetButton().SetVisible(true);
        else if (way == 4)
            box->GetStrip().SetHeight(30, false);
        else
            box->SetAlignment(alBottom);
        EXPECT_EQ(parent->GetChildren()->GetCount(), 0) << way;
        host.Paint();
    }
}
