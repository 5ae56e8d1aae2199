// The progress bar, and the box around it.

#include "vexel/widgets/gauge.h"

#include "tests/support/leaf.h"
#include "tests/support/slot.h"
#include "tests/support/virtual_order.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/gauge_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A gauge in the left half of a window: (0, 0, 100, 99).
class CGaugeBench : public testing::Test
{
protected:
    CGaugeBench() : m_Gauge(*new CGauge(m_Host.Root(), {100, 0}, alLeft))
    {
        NameElement(m_Gauge, "gauge");
        m_Host.Paint();
    }
    bool IsRepainted() { return !m_Host.Paint().Of("gauge").IsEmpty(); }

    CTestHost m_Host{200, 100};
    CGauge& m_Gauge;
};

using Gauge = CGaugeBench;

}  // namespace

// The value -------------------------------------------------------------------------------------------------------------------

TEST(GaugeDefaults, AFreshOneHasAnEmptyRangeAndNoBar)
{
    CTestHost host(200, 100);
    CGauge gauge(host.Root(), {100, 0}, alLeft);
    NameElement(gauge, "gauge");
    EXPECT_EQ(gauge.GetMin(), 0);
    EXPECT_EQ(gauge.GetMax(), 0);
    EXPECT_EQ(gauge.GetValue(), 0);
    EXPECT_FALSE(gauge.IsTransparent());
    EXPECT_EQ(gauge.GetFgSysColor(), 9);
    EXPECT_EQ(gauge.AsString(), "[0%]");
    PaintLog const log = host.Paint();
    EXPECT_EQ(gauge.GetDrawingVal(), 0);
    EXPECT_EQ(log.Of("gauge").Count("FillRect*"), 1);  // the ground alone
}

TEST(GaugeVirtualOrder, ItsOneOperationStandsBehindThoseOfAnElement)
{
    EXPECT_EQ(Place(&CGauge::DrawBackground), Place(&CVisualElement::HandleCopyToClipboard) + 1);
    EXPECT_EQ(Place(&CGauge::DrawContent), Place(&CVisualElement::DrawContent));
    EXPECT_EQ(Place(&CGaugeBox::ProcessRearrange), Place(&CVisualElement::ProcessRearrange));
    EXPECT_EQ(Place(&CGaugeBox::SetPos), Place(&CVisualElement::SetPos));
}

TEST_F(Gauge, AMinimumAboveTheValuePullsItUp)
{
    m_Gauge.SetMin(10);
    EXPECT_EQ(m_Gauge.GetMin(), 10);
    EXPECT_EQ(m_Gauge.GetValue(), 10);
    EXPECT_TRUE(IsRepainted());
    m_Gauge.SetMin(10);
    EXPECT_FALSE(IsRepainted());
    m_Gauge.SetMin(-5);
    EXPECT_EQ(m_Gauge.GetValue(), 10);
    EXPECT_TRUE(IsRepainted());
}

TEST_F(Gauge, AMaximumBelowTheValuePullsItDown)
{
    m_Gauge.SetMax(100);
    EXPECT_TRUE(IsRepainted());
    m_Gauge.Increase(60);
    m_Gauge.SetMax(40);
    EXPECT_EQ(m_Gauge.GetValue(), 40);
    EXPECT_TRUE(IsRepainted());
    m_Gauge.SetMax(40);
    EXPECT_FALSE(IsRepainted());
    m_Gauge.SetMax(80);
    EXPECT_EQ(m_Gauge.GetValue(), 40);
}

TEST_F(Gauge, AnIncreaseEndsAtTheEndsOfTheRange)
{
    m_Gauge.SetMin(10);
    m_Gauge.SetMax(30);
    m_Gauge.Increase(5);
    EXPECT_EQ(m_Gauge.GetValue(), 15);
    m_Gauge.Increase(100);
    EXPECT_EQ(m_Gauge.GetValue(), 30);
    m_Host.Paint();
    m_Gauge.Increase(1);
    EXPECT_FALSE(IsRepainted());
    m_Gauge.Increase(-3);
    EXPECT_EQ(m_Gauge.GetValue(), 27);
    EXPECT_TRUE(IsRepainted());
    m_Gauge.Increase(-100);
    EXPECT_EQ(m_Gauge.GetValue(), 10);
    m_Host.Paint();
    m_Gauge.Increase(-1);
    EXPECT_FALSE(IsRepainted());
}

TEST_F(Gauge, AnIncreaseByNothingDoesNothing)
{
    m_Gauge.SetMax(30);
    m_Host.Paint();
    m_Gauge.Increase(0);
    EXPECT_EQ(m_Gauge.GetValue(), 0);
    EXPECT_FALSE(IsRepainted());
}

TEST_F(Gauge, AResetGoesBackToTheMinimum)
{
    m_Gauge.SetMin(10);
    m_Gauge.SetMax(30);
    m_Gauge.Increase(5);
    m_Host.Paint();
    m_Gauge.Reset();
    EXPECT_EQ(m_Gauge.GetValue(), 10);
    EXPECT_TRUE(IsRepainted());
    m_Gauge.Reset();
    EXPECT_FALSE(IsRepainted());
}

// The bar ---------------------------------------------------------------------------------------------------------------------

TEST_F(Gauge, TheBarIsTheValuesPartOfTheWidthTruncated)
{
    m_Gauge.SetMin(10);
    m_Gauge.SetMax(40);
    m_Gauge.Increase(10);
    EXPECT_EQ(m_Gauge.GetDrawingVal(), 33);  // 10 / 30 of 100
    m_Gauge.Increase(10);
    EXPECT_EQ(m_Gauge.GetDrawingVal(), 66);
    m_Gauge.Increase(10);
    EXPECT_EQ(m_Gauge.GetDrawingVal(), 100);
}

TEST_F(Gauge, ARangeThatIsEmptyOrFallsHasNoBar)
{
    m_Gauge.SetMin(10);
    EXPECT_EQ(m_Gauge.GetDrawingVal(), 0);  // 10 to 0
    m_Gauge.SetMax(10);
    EXPECT_EQ(m_Gauge.GetDrawingVal(), 0);
    EXPECT_EQ(m_Host.Paint().Of("gauge").Count("FillRect*"), 1);
}

TEST_F(Gauge, NumbersThatAreNoneAreSurvived)
{
    m_Gauge.SetMax(std::numeric_limits<double>::infinity());
    m_Gauge.Increase(5);
    EXPECT_EQ(m_Gauge.GetDrawingVal(), 0);
    EXPECT_EQ(m_Gauge.AsString(), "[0%]");
    m_Gauge.SetMax(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(m_Gauge.GetDrawingVal(), 0);
    m_Host.Paint();
}

TEST_F(Gauge, GroundAndBarAreFilledFromTheLeft)
{
    m_Gauge.SetBkColor(color_table[9]);
    m_Gauge.SetFgColor(color_table[3]);
    m_Gauge.SetMax(4);
    m_Gauge.Increase(1);
    PaintLog const log = m_Host.Paint();
    EXPECT_THAT(log.Of("gauge"), Draws("FillRect 0 0 100 99").Then("SetBrush*").Then("FillRect 0 0 25 99"));
    EXPECT_EQ(m_Host.PixelAt(24, 50), color_table[3]);
    EXPECT_EQ(m_Host.PixelAt(25, 50), color_table[3]);
    EXPECT_EQ(m_Host.PixelAt(26, 50), color_table[9]);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Gauge, AValueBeyondTheMaximumIsDrawnToTheEnd)
{
    m_Gauge.SetMin(30);
    m_Gauge.SetMin(0);
    m_Gauge.SetMax(40);
    EXPECT_EQ(m_Gauge.GetDrawingVal(), 75);
    m_Gauge.SetMin(50);
    m_Gauge.SetMin(0);
    EXPECT_EQ(m_Gauge.GetValue(), 50);
    EXPECT_EQ(m_Gauge.GetDrawingVal(), 125);
    EXPECT_THAT(m_Host.Paint().Of("gauge"), Draws("SetBrush*").Then("FillRect 0 0 100 99"));
}

TEST_F(Gauge, ATransparentOneLeavesItsGroundOut)
{
    m_Gauge.SetTransparent(true);
    m_Gauge.SetMax(4);
    m_Gauge.Increase(1);
    PaintLog const log = m_Host.Paint();
    EXPECT_EQ(log.Of("gauge").Count("FillRect 0 0 100 99"), 0);
    EXPECT_EQ(log.Of("gauge").Count("FillRect 0 0 25 99"), 1);
}

TEST_F(Gauge, TheTextIsThePercentageOfTheValueItself)
{
    m_Gauge.SetMax(3);
    m_Gauge.Increase(1);
    EXPECT_EQ(m_Gauge.AsString(), "[33%]");
    m_Gauge.Increase(1);
    EXPECT_EQ(m_Gauge.AsString(), "[66%]");
    m_Gauge.SetMin(1);  // 2 of a range of 2
    EXPECT_EQ(m_Gauge.AsString(), "[100%]");
    m_Gauge.SetMax(1);
    EXPECT_EQ(m_Gauge.AsString(), "[0%]");
}

// The box ---------------------------------------------------------------------------------------------------------------------

namespace
{

class CGaugeBoxBench : public testing::Test
{
protected:
    CGaugeBoxBench() : m_Box(*new CGaugeBox(m_Host.Root(), {0, 40}, alTop)) { m_Host.Paint(); }

    CTestHost m_Host{200, 100};
    CGaugeBox& m_Box;
};

using GaugeBox = CGaugeBoxBench;

}  // namespace

TEST_F(GaugeBox, ItsPartsStandInEachOther)
{
    EXPECT_EQ(m_Box.GetOffset(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(m_Box.GetContentOffset(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(m_Box.GetMaxWidth(), 0);
    EXPECT_EQ(m_Box.GetStrip().GetParent(), &m_Box);
    EXPECT_EQ(m_Box.GetStrip().GetSize(), (size<int>{20, 20}));
    EXPECT_EQ(m_Box.GetStrip().GetAlignment(), alTop);
    EXPECT_EQ(m_Box.GetGaugeBevel().GetParent(), &m_Box.GetStrip());
    EXPECT_EQ(m_Box.GetGaugeBevel().GetAlignment(), alClient);
    EXPECT_EQ(m_Box.GetGaugeBevel().GetShape(), 0);
    EXPECT_EQ(m_Box.GetGaugeBevel().GetOffset(), (rectangle<int>{0, 3, 6, 3}));
    EXPECT_EQ(m_Box.GetGaugeBevel().GetContentOffset(), (rectangle<int>{3, 3, 3, 3}));
    EXPECT_EQ(m_Box.GetGauge().GetParent(), &m_Box.GetGaugeBevel());
    EXPECT_EQ(m_Box.GetGauge().GetSize(), (size<int>{5, 5}));
    EXPECT_EQ(m_Box.GetGauge().GetAlignment(), alClient);
    EXPECT_EQ(m_Box.GetButton().GetParent(), &m_Box.GetStrip());
    EXPECT_EQ(m_Box.GetButton().GetAlignment(), alRight);
    EXPECT_TRUE(m_Box.GetButton().IsTransparent());
    EXPECT_TRUE(m_Box.GetButton().IsAutoSize());
    EXPECT_FALSE(m_Box.GetButton().IsVisible());
    for (CVisualElement const* const part :
         {&m_Box.GetStrip(), static_cast<CVisualElement*>(&m_Box.GetGaugeBevel()),
          static_cast<CVisualElement*>(&m_Box.GetGauge()), static_cast<CVisualElement*>(&m_Box.GetButton())})
        EXPECT_FALSE(part->IsDynamic());
}

TEST_F(GaugeBox, WithoutItsButtonTheGaugeHasTheWholeWidth)
{
    EXPECT_EQ(m_Box.GetStrip().GetPos(), (rectangle<int>{0, 0, 199, 20}));
    EXPECT_EQ(m_Box.GetGaugeBevel().GetPos(), (rectangle<int>{0, 0, 199, 20}));
    EXPECT_EQ(m_Box.GetGauge().GetPos(), (rectangle<int>{3, 6, 190, 14}));
    EXPECT_EQ(m_Box.GetGaugeBevel().GetSize().height, 20);
}

TEST_F(GaugeBox, ACaptionBringsTheButtonOnce)
{
    m_Box.GetButton().SetCaption("Stop");
    EXPECT_TRUE(m_Box.GetButton().IsVisible());
    m_Host.Paint();
    // Four characters of 8 and 22 more; a line of 8 and 9 more.
    EXPECT_EQ(m_Box.GetButton().GetSize(), (size<int>{54, 17}));
    EXPECT_EQ(m_Box.GetButton().GetPos(), (rectangle<int>{145, 0, 199, 20}));
    EXPECT_EQ(m_Box.GetGaugeBevel().GetPos(), (rectangle<int>{0, 0, 144, 20}));
    EXPECT_EQ(m_Box.GetGaugeBevel().GetSize().height, 17);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Box.GetButton().SetVisible(false);
    EXPECT_EQ(m_Box.GetGaugeBevel().GetSize().height, 20);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetGaugeBevel().GetPos(), (rectangle<int>{0, 0, 199, 20}));
    m_Box.GetButton().SetCaption("Go");
    EXPECT_FALSE(m_Box.GetButton().IsVisible());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(GaugeBox, AnEmptyCaptionDoesNotBringTheButtonAndShowingDoes)
{
    m_Box.GetButton().SetImageIndex(0);
    EXPECT_FALSE(m_Box.GetButton().IsVisible());
    m_Box.GetButton().SetVisible(true);
    m_Box.GetButton().SetVisible(false);
    m_Box.GetButton().SetCaption("Stop");
    EXPECT_FALSE(m_Box.GetButton().IsVisible());
}

TEST(GaugeBoxAlone, ACaptionBringsTheButtonAlsoWithoutAControl)
{
    CGaugeBox box(nullptr, {100, 40}, alTop);
    box.GetButton().SetCaption("Stop");
    EXPECT_TRUE(box.GetButton().IsVisible());
}

TEST_F(GaugeBox, InAWiderPlaceTheContentKeepsToTheLeft)
{
    m_Box.SetMaxWidth(120);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetOffset(), (rectangle<int>{0, 0, 79, 0}));  // 199 - 120
    EXPECT_EQ(m_Box.GetStrip().GetPos(), (rectangle<int>{0, 0, 120, 20}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Host.Resize(150, 100);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetOffset(), (rectangle<int>{0, 0, 29, 0}));
    EXPECT_EQ(m_Box.GetStrip().GetPos(), (rectangle<int>{0, 0, 120, 20}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(GaugeBox, InAPlaceThatIsNotWiderTheOffsetStays)
{
    m_Box.SetMaxWidth(199);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetOffset().right, 0);
    m_Box.SetMaxWidth(150);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetOffset().right, 49);
    m_Host.Resize(151, 100);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetOffset().right, 49);
    m_Box.SetMaxWidth(0);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetOffset().right, 49);
}

TEST(GaugeBoxScaled, FirstSizesScaleAndMarginsDoNot)
{
    CTestHost host(200, 100, 1.5);
    auto* const box = new CGaugeBox(host.Root(), {0, 40}, alTop);
    host.Paint();
    EXPECT_EQ(box->GetStrip().GetSize(), (size<int>{30, 30}));
    EXPECT_EQ(box->GetGauge().GetSize(), (size<int>{7, 7}));
    EXPECT_EQ(box->GetGauge().GetPos(), (rectangle<int>{3, 6, 190, 24}));
    EXPECT_EQ(box->GetGaugeBevel().GetSize().height, 20);
}

TEST(GaugeBoxEx, IsAsHighAsItsParts)
{
    CTestHost host(200, 100);
    auto* const box = new CGaugeBoxEx(host.Root(), {0, 0}, alTop);
    box->GetText().SetCaption("Copying");
    host.Paint();
    EXPECT_EQ(box->GetText().GetParent(), box);
    EXPECT_EQ(box->GetText().GetAlignment(), alBottom);
    EXPECT_EQ(box->GetText().GetTextAlign(), 0x21);
    EXPECT_TRUE(box->GetText().IsAutoSize());
    EXPECT_FALSE(box->GetText().IsDynamic());
    EXPECT_FALSE(box->GetTextSpacer().IsDynamic());
    EXPECT_EQ(box->GetTextSpacer().GetAlignment(), alBottom);
    EXPECT_EQ(box->GetTextSpacer().GetSize(), (size<int>{5, 4}));  // 10 - 3 x 2
    EXPECT_EQ(box->GetText().GetSize(), (size<int>{58, 10}));
    EXPECT_EQ(box->GetSize().height, 34);  // 20, 4 and 10
    EXPECT_EQ(box->GetPos(), (rectangle<int>{0, 0, 199, 34}));
    EXPECT_EQ(box->GetText().GetPos(), (rectangle<int>{0, 24, 199, 34}));

    box->GetText().SetCaption("two\nlines");
    host.Paint();
    EXPECT_EQ(box->GetText().GetSize().height, 18);
    EXPECT_EQ(box->GetSize().height, 42);
    box->GetStrip().SetHeight(30, false);
    EXPECT_EQ(box->GetSize().height, 52);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST(GaugeBoxEx, ItsHeightIsInStepFromTheBeginning)
{
    CGaugeBoxEx box(nullptr, {50, 3}, alTop);
    EXPECT_EQ(box.GetSize(), (size<int>{50, 29}));  // 20, 4 and 5
    box.SetHeight(100, false);
    EXPECT_EQ(box.GetSize().height, 29);
}

TEST(GaugeBoxEx, AtAnotherScaleTheSpaceAboveTheTextIsScaledOnce)
{
    CTestHost host(200, 100, 1.5);
    CGaugeBoxEx box(nullptr, {50, 3}, alTop);
    EXPECT_EQ(box.GetTextSpacer().GetSize(), (size<int>{7, 6}));  // 15 - 3 x 3
    EXPECT_EQ(box.GetSize().height, 43);                          // 30, 6 and 7
}

TEST(GaugeBoxEx, ItsButtonComesWithACaptionToo)
{
    CTestHost host(200, 100);
    auto* const box = new CGaugeBoxEx(host.Root(), {0, 0}, alTop);
    host.Paint();
    box->GetButton().SetCaption("Stop");
    host.Paint();
    EXPECT_EQ(box->GetButton().GetPos(), (rectangle<int>{145, 0, 199, 20}));
    EXPECT_EQ(box->GetGaugeBevel().GetSize().height, 17);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

// Slots that do away with things ----------------------------------------------------------------------------------------------

TEST(GaugeBoxDeletion, OfTheBoxInSlotsOfItsPartsIsSurvived)
{
    for (int where = 0; where < 4; ++where)
        for (int deed = 0; deed < 3; ++deed)
        {
            CTestHost host(200, 100);
            auto* const parent = new CVisualElement(host.Root(), {0, 0}, alClient);
            auto* const box = new CGaugeBoxEx(parent, {0, 0}, alTop);
            host.Paint();
            int done = 0;
            auto const act = [&] {
                if (done++ > 0)
                    return;
                if (deed == 0)
                    delete box;
                else if (deed == 1)
                    delete parent;
                else
                    host.DestroyControl();
            };
            auto const shown = Listen(box->GetButton().m_SigVisible, [&](CVisualElement*, bool) {
                if (where == 0)
                    act();
            });
            auto const clicked = Listen(box->GetButton().m_Clicked, [&](CButton*) {
                if (where == 1)
                    act();
            });
            auto const laidOut = Listen(box->GetGauge().m_SigSize, [&](CVisualElement*) {
                if (where == 2)
                    act();
            });
            auto const painted = Listen(box->GetGauge().m_SigDraw, [&](CVisualElement*, IPainter*) {
                if (where == 3)
                    act();
            });
            box->GetButton().SetCaption("Stop");
            if (host.HasControl() && done == 0)
                host.Paint();
            if (host.HasControl() && done == 0)
                host.Mouse().Click(box->GetButton(), 5, 5);
            EXPECT_GT(done, 0) << where << " " << deed;
            if (host.HasControl())
                host.Paint();
        }
}
