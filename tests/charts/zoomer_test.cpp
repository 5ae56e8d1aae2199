// The zoom slider: its groove and thumb, presses beside the thumb, drags.

#include "vexel/charts/zoomer.h"

#include "tests/support/slot.h"
#include "tests/support/virtual_order.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/random.h"
#include "vexel/testing/test_kit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

// A zoomer at (0, 0, 138, 19): the groove runs from 16 to 122, the thumb has 100 pixels to go.
class Zoomer : public testing::Test
{
protected:
    Zoomer()
    {
        NameElement(m_Zoomer, "zoomer");
        m_Log.Add(m_Zoomer.m_SigPosChanging, "changing").Add(m_Zoomer.m_SigPosChanged, "changed");
        m_Host.Paint();
    }
    PaintLog Draw()
    {
        m_Zoomer.Update(utElement);
        return m_Host.Paint().Of("zoomer");
    }
    bool IsRepainted() { return !m_Host.Paint().IsEmpty(); }
    CVisualElement* Captured() { return m_Host.Control().GetControl()->GetCapture(); }

    CTestHost m_Host{200, 20};
    CZoomer& m_Zoomer = *new CZoomer(m_Host.Root(), {138, 0}, alLeft);
    CSignalLog m_Log;
};

}  // namespace

TEST_F(Zoomer, StartsAtTheLeftAndFollowsNoPointer)
{
    EXPECT_EQ(m_Zoomer.GetPos(), (rectangle<int>{0, 0, 138, 19}));
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.0);
    EXPECT_FALSE(m_Zoomer.IsDragging());
    EXPECT_EQ(CZoomer::slider_step, 0.2);
    CZoomer fresh(nullptr, {10, 10}, alNone);
    EXPECT_EQ(fresh.GetThumbRect(), rectangle<int>());
    fresh.SetSliderPos(0.5);
    EXPECT_EQ(fresh.GetSliderPos(), 0.5);
}

TEST(ZoomerVirtualOrder, TheBackgroundIsItsOwn)
{
    ExpectOrder(Place(&CVisualElement::HandleCopyToClipboard) + 1, &CZoomer::DrawBackground);
}

// Position ------------------------------------------------------------------------------------------------------------------

TEST_F(Zoomer, ThePositionThatIsSetIsKeptAndTold)
{
    m_Zoomer.SetSliderPos(0.25);
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.25);
    EXPECT_TRUE(IsRepainted());
    m_Zoomer.SetSliderPos(1.0);
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 1.0);
    m_Zoomer.SetSliderPos(0.0);
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.0);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(Zoomer, APositionOutsideIsIgnoredAndStillRepaints)
{
    m_Zoomer.SetSliderPos(0.25);
    m_Host.Paint();
    double const infinite = std::numeric_limits<double>::infinity();
    for (double const wrong : {1.5, -0.001, 1.001, std::numeric_limits<double>::quiet_NaN(), infinite, -infinite})
    {
        m_Zoomer.SetSliderPos(wrong);
        EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.25) << wrong;
        EXPECT_TRUE(IsRepainted()) << wrong;
    }
    m_Zoomer.SetSliderPos(0.25);
    EXPECT_TRUE(IsRepainted());
}

// Painting ------------------------------------------------------------------------------------------------------------------

TEST_F(Zoomer, DrawsSignsGrooveAndThumb)
{
    m_Zoomer.SetBkColor(color_table[3]);
    m_Zoomer.SetFgColor(color_table[6]);
    m_Zoomer.SetSliderPos(0.5);
    PaintLog const log = Draw();
    EXPECT_EQ(m_Zoomer.GetThumbRect(), (rectangle<int>{66, 0, 72, 19}));
    std::string const light = "SetPen #F0F0F0";
    std::string const shadow = "SetPen #808080";
    std::string const dark = "SetPen #404040";
    EXPECT_THAT(log, Draws("SetBrush yellow")
                         .Then("FillRect 0 0 138 19")
                         .Then("DrawString \"-\" 0 0 138 19 0x21")
                         .Then("DrawString \"+\" 0 0 132 19 0x22")
                         .Then(dark)
                         .Then("MoveTo 16 18")
                         .Then("LineTo 16 3")
                         .Then("LineTo 122 3")
                         .Then(shadow)
                         .Then("MoveTo 16 17")
                         .Then("LineTo 16 2")
                         .Then("LineTo 122 2")
                         .Then(light)
                         .Then("MoveTo 122 2")
                         .Then("LineTo 122 18")
                         .Then("LineTo 16 18")
                         .Then("FillRect 66 0 72 19")
                         .Then(dark)
                         .Then("MoveTo 66 19")
                         .Then("LineTo 72 19")
                         .Then("LineTo 72 0")
                         .Then(shadow)
                         .Then("MoveTo 67 18")
                         .Then("LineTo 71 18")
                         .Then("LineTo 71 1")
                         .Then(light)
                         .Then("MoveTo 66 18")
                         .Then("LineTo 66 0")
                         .Then("LineTo 71 0"));
    EXPECT_THAT(log, Draws("SetBrush #C0C0C0").Then("FillRect 66 0 72 19"));
    EXPECT_EQ(log.Count("FillRect*"), 2);
    EXPECT_EQ(log.Count("DrawString*"), 2);
}

TEST_F(Zoomer, TheThumbStandsByThePositionRoundedDown)
{
    for (auto const& [position, left] :
         std::vector<std::pair<double, int>>{{0.0, 16}, {0.009, 16}, {0.01, 17}, {0.259, 41}, {0.999, 115}, {1.0, 116}})
    {
        m_Zoomer.SetSliderPos(position);
        Draw();
        EXPECT_EQ(m_Zoomer.GetThumbRect(), (rectangle<int>{left, 0, left + 6, 19})) << position;
    }
}

TEST_F(Zoomer, OneTooSmallForTheSliderDrawsItsBackgroundAlone)
{
    m_Zoomer.SetSize({38, 0}, false);
    EXPECT_THAT(Draw(), Draws("FillRect 0 0 38 19").Then("DrawString*").Then("FillRect 16 0 22 19"));
    m_Zoomer.SetSize({37, 0}, false);
    PaintLog const narrow = Draw();
    EXPECT_THAT(narrow, Draws("FillRect 0 0 37 19"));
    EXPECT_EQ(narrow.Count("FillRect*"), 1);
    EXPECT_THAT(narrow, Not(Draws("DrawString*")));
    EXPECT_THAT(narrow, Not(Draws("LineTo*")));
    m_Zoomer.SetSliderPos(0.5);
    Draw();
    EXPECT_EQ(m_Zoomer.GetThumbRect(), (rectangle<int>{15, 0, 21, 19}));  // 16 - 0.5, cut

    m_Zoomer.SetSize({138, 0}, false);
    m_Host.Resize(200, 4);
    EXPECT_THAT(Draw(), Not(Draws("LineTo*")));
    m_Host.Resize(200, 5);
    EXPECT_THAT(Draw(), Draws("FillRect 0 0 138 4").Then("MoveTo 16 3").Then("LineTo 16 3"));
}

// Presses beside the thumb ----------------------------------------------------------------------------------------------------

TEST_F(Zoomer, APressBesideTheThumbMovesItByAFifthAndStopsAtTheEnds)
{
    struct SStep
    {
        int x;
        double position;
        char const* told;
    };
    for (SStep const& step :
         {SStep{60, 0.2, "changed(0.2)"}, SStep{130, 0.4, "changed(0.4)"}, SStep{55, 0.2, "changed(0.2)"},
          SStep{17, 0.0, "changed(0)"}, SStep{3, 0.0, "changed(0)"}})
    {
        m_Host.Mouse().Click(m_Zoomer, step.x, 10);
        EXPECT_DOUBLE_EQ(m_Zoomer.GetSliderPos(), step.position) << step.x;
        EXPECT_EQ(m_Log.Take(), step.told) << step.x;
        EXPECT_FALSE(m_Zoomer.IsDragging());
        EXPECT_EQ(Captured(), nullptr);
        EXPECT_TRUE(IsRepainted());
    }
    m_Zoomer.SetSliderPos(0.9);
    m_Host.Paint();
    m_Host.Mouse().Click(m_Zoomer, 130, 10);
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 1.0);
    m_Zoomer.SetSliderPos(0.1);
    m_Host.Paint();
    m_Host.Mouse().Click(m_Zoomer, 3, 10);
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.0);
    EXPECT_EQ(m_Log.Text(), "changed(1) changed(0)");
}

TEST_F(Zoomer, TheThumbsEdgesBelongToIt)
{
    m_Host.Mouse().Click(m_Zoomer, 16, 10);
    m_Host.Mouse().Click(m_Zoomer, 22, 10);
    EXPECT_EQ(m_Log.Take(), "changed(0) changed(0)");  // drags of no length
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.0);
    m_Host.Mouse().Click(m_Zoomer, 23, 10);
    EXPECT_DOUBLE_EQ(m_Zoomer.GetSliderPos(), 0.2);
}

TEST_F(Zoomer, OtherButtonsDoNothing)
{
    for (MouseButton const button : {mbRight, mbMiddle})
    {
        EXPECT_FALSE(m_Zoomer.HandleButtonDown(60, 10, 0, button));
        EXPECT_FALSE(m_Zoomer.HandleButtonDown(18, 10, 0, button));
        EXPECT_FALSE(m_Zoomer.HandleButtonUp(60, 10, 0, button));
    }
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.0);
    EXPECT_FALSE(m_Zoomer.IsDragging());
    EXPECT_FALSE(IsRepainted());
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_TRUE(m_Zoomer.HandleButtonDown(60, 10, 0, mbLeft));
}

// Drags ---------------------------------------------------------------------------------------------------------------------

TEST_F(Zoomer, TheThumbFollowsThePointerAndTellsEachStep)
{
    m_Host.Mouse().Press(m_Zoomer, 20, 10);
    EXPECT_TRUE(m_Zoomer.IsDragging());
    EXPECT_EQ(Captured(), &m_Zoomer);
    EXPECT_EQ(m_Log.Text(), "");
    m_Host.Mouse().Move(m_Zoomer, 70, 10);
    EXPECT_EQ(m_Log.Take(), "changing(0.5)");
    EXPECT_TRUE(IsRepainted());
    m_Host.Mouse().Move(m_Zoomer, 45, 300);
    EXPECT_EQ(m_Log.Take(), "changing(0.25)");
    EXPECT_DOUBLE_EQ(m_Zoomer.GetSliderPos(), 0.25);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "changed(0.25)");
    EXPECT_FALSE(m_Zoomer.IsDragging());
    EXPECT_EQ(Captured(), nullptr);
    m_Host.Mouse().Move(m_Zoomer, 60, 10);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_FALSE(m_Zoomer.HandleMouseMove(60, 10, 0, mbNone));
    EXPECT_FALSE(m_Zoomer.HandleButtonUp(60, 10, 0, mbLeft));
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(Zoomer, AThumbDraggedPastAnEndIsThereWithoutASignal)
{
    m_Host.Mouse().Press(m_Zoomer, 20, 10);
    m_Host.Mouse().Move(m_Zoomer, 123, 10);
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 1.0);
    EXPECT_TRUE(IsRepainted());
    m_Host.Mouse().Move(m_Zoomer, 15, 10);
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.0);
    EXPECT_TRUE(IsRepainted());
    m_Host.Mouse().Move(m_Zoomer, -500, 10);
    m_Host.Mouse().Move(m_Zoomer, 5000, 10);
    EXPECT_EQ(m_Log.Text(), "");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "changed(1)");
}

TEST_F(Zoomer, AtTheEdgesOfTheGrooveADragIsStillTold)
{
    m_Host.Mouse().Press(m_Zoomer, 20, 10);
    m_Host.Mouse().Move(m_Zoomer, 122, 10);
    EXPECT_EQ(m_Log.Take(), "changing(1)");  // 102 pixels of 100
    m_Host.Mouse().Move(m_Zoomer, 16, 10);
    EXPECT_EQ(m_Log.Take(), "changing(0)");
}

TEST_F(Zoomer, PastAnEndTheLastPlaceInsideCounts)
{
    m_Host.Mouse().Press(m_Zoomer, 20, 10);
    m_Host.Mouse().Move(m_Zoomer, 60, 10);
    m_Host.Mouse().Move(m_Zoomer, 130, 10);
    m_Log.Clear();
    m_Host.Mouse().Move(m_Zoomer, 50, 10);
    EXPECT_EQ(m_Log.Take(), "changing(0.9)");  // from 1.0, and 10 pixels left of 60
}

TEST_F(Zoomer, AThumbWithoutRoomStaysUnderADrag)
{
    m_Zoomer.SetSize({38, 0}, false);
    m_Host.Paint();
    m_Host.Mouse().Press(m_Zoomer, 18, 10);
    m_Host.Mouse().Move(m_Zoomer, 20, 10);
    EXPECT_EQ(m_Log.Take(), "changing(0)");
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.0);
}

TEST_F(Zoomer, ADisabledOneIsDeafAndADrawingIsGrey)
{
    m_Zoomer.SetEnabled(false);
    m_Host.Paint();
    m_Host.Mouse().Click(m_Zoomer, 60, 10);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Zoomer.GetSliderPos(), 0.0);
    EXPECT_THAT(Draw(), Draws("SetTextColor grey").Then("DrawString \"-\"*"));
}

// Slots that do away with things -----------------------------------------------------------------------------------------------

TEST_F(Zoomer, MayDieInEachOfItsSignals)
{
    for (bool const control : {false, true})
    {
        for (int const way : {0, 1, 2})
        {
            CTestHost host(200, 20);
            auto* const zoomer = new CZoomer(host.Root(), {138, 0}, alLeft);
            host.Paint();
            int fired = 0;
            auto const end = [&](double) {
                ++fired;
                if (control)
                    host.DestroyControl();
                else
                    delete zoomer;
            };
            auto const changing = way == 1 ? Listen(zoomer->m_SigPosChanging, end) : nullptr;
            auto const changed = way != 1 ? Listen(zoomer->m_SigPosChanged, end) : nullptr;
            host.Mouse().Press(*zoomer, way == 0 ? 60 : 18, 10);
            if (way != 0)
                host.Mouse().Move(50, 10);
            host.Mouse().Release();
            if (host.HasControl())
                host.Paint();
            EXPECT_EQ(fired, 1) << way;
        }
    }
}

// Bit by bit ----------------------------------------------------------------------------------------------------------------

TEST(IncrementalZoomers, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    for (int game = 0; game < 30; ++game)
    {
        CTestHost host(random.Int(20, 200), random.Int(3, 40), random.Bool() ? 1.0 : 1.5);
        auto* const zoomer = new CZoomer(host.Root(), {random.Int(10, 180), 0}, alLeft);
        zoomer->SetBkColor(color_table[3]);
        host.Paint();
        for (int round = 0; round < 60; ++round)
        {
            switch (random.Int(0, 6))
            {
            case 0:
                zoomer->SetSliderPos(random.Int(-2, 12) * 0.1);
                break;
            case 1:
                zoomer->SetSize({random.Int(0, 180), 0}, false);
                break;
            case 2:
                zoomer->SetEnabled(random.Bool());
                break;
            case 3:
                if (!host.Mouse().IsHeld(mbLeft))
                    host.Mouse().Press();
                break;
            case 4:
                host.Mouse().Release();
                break;
            default:
                host.Mouse().Move(random.Int(-10, 210), random.Int(0, 20));
                break;
            }
            ASSERT_EQ(host.CompareWithFullPaint(), "");
        }
    }
}
