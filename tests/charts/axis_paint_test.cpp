// What an axis draws.

#include "tests/charts/axis_bench.h"
#include "tests/support/slot.h"

#include <gmock/gmock.h>

#include <limits>

using namespace charts_test;
using testing::ElementsAre;
using testing::Not;

namespace
{

using AxisPaint = CAxisBench<CAxis>;

constexpr double s_Smallest = std::numeric_limits<double>::min();

// 4 units of 10 pixels: a step of 5 in 5 parts.
class AxisOfFour : public CAxisBench<CAxis>
{
protected:
    AxisOfFour()
    {
        m_Pane->SetPos({20, 20, 60, 60}, false);
        SetRange(0, 20, 0);
        m_Model.m_Measure = {1.0, 10};
    }
};

// Writes down what it is asked to draw.
class CTellingAxis : public CAxis
{
public:
    using CAxis::CAxis;
    std::string m_Told;

    void DrawBackground(IPainter* painter) override
    {
        m_Told += "background; ";
        CAxis::DrawBackground(painter);
    }
    void DrawLine(IPainter* painter, point<double>* position, bool major) override
    {
        if (!major)
            return;
        m_Told += "line " + Describe(position->x) + " " + Describe(position->y);
        CAxis::DrawLine(painter, position, major);
        m_Told += " to " + Describe(position->x) + " " + Describe(position->y) + "; ";
    }
    void PrepareAttr(point<double> const& position, double value) override
    {
        m_Told += "prepare " + Describe(position.x) + " " + Describe(position.y) + " " + Describe(value) + "; ";
    }
    std::string GetLabelText(double value, double step) const override
    {
        return CAxis::GetLabelText(value, step) + "%";
    }
};
using TellingAxis = CAxisBench<CTellingAxis>;

}  // namespace

// Ticks and labels --------------------------------------------------------------------------------------------------------

TEST_F(AxisOfFour, AtTheBottomTicksPointDownFromThePaneAndLabelsStandBelow)
{
    EXPECT_EQ(Drawing(Draw()), R"(
tick 0 0 - 0 5
"0.0" -1.2 7 1.2 30 0x4C
tick 1 0 - 1 2
tick 2 0 - 2 2
tick 3 0 - 3 2
tick 4 0 - 4 2
)");
}

TEST_F(AxisOfFour, AtTheTopAllIsTurnedOverAcross)
{
    Make(alTop);
    PaintLog const log = Draw();
    EXPECT_EQ(Drawing(log), R"(
tick 0 0 - 0 5
"0.0" -1.2 7 1.2 30 0x5C
tick 1 0 - 1 2
tick 2 0 - 2 2
tick 3 0 - 3 2
tick 4 0 - 4 2
)");
    EXPECT_THAT(log, Draws("SetCoordSystem 3 0 0 20 30 20 30 200 -30"));
}

TEST_F(AxisOfFour, AtTheRightTextsRunDown)
{
    Make(alRight);
    PaintLog const log = Draw();
    EXPECT_EQ(Drawing(log), R"(
tick 0 0 - 5 0
"0.0" 7 -1.2 30 1.2 0x61
tick 0 1 - 2 1
tick 0 2 - 2 2
tick 0 3 - 2 3
tick 0 4 - 2 4
)");
    EXPECT_THAT(log, Draws("SetFont * rotation 2700").Then("DrawString*").Then("SetFont*"));
}

TEST_F(AxisOfFour, AtTheLeftTextsStandAtTheirTicks)
{
    Make(alLeft);
    PaintLog const log = Draw();
    EXPECT_EQ(Drawing(log), R"(
tick 0 0 - 5 0
"0.0" 7 -1.2 30 1.2 0x62
tick 0 1 - 2 1
tick 0 2 - 2 2
tick 0 3 - 2 3
tick 0 4 - 2 4
)");
    EXPECT_THAT(log, Draws("SetCoordSystem 3 0 0 30 20 30 20 -30 200"));
}

TEST_F(AxisOfFour, WithoutRotationTextsOfASideStayLevel)
{
    Make(alRight);
    m_Axis->SetRotateText(false);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Not(Draws("SetFont * rotation*")));
    EXPECT_THAT(log, Draws("DrawString \"0.0\" 7 -0.4 30 0.4 0x61"));
}

TEST_F(AxisOfFour, OffsetsAndTickSizesMoveWhatTheySay)
{
    m_Axis->SetAxisOffset(3);
    m_Axis->SetLabelOffset(4);
    m_Axis->SetTickMarksSize(7, 1);
    EXPECT_EQ(Drawing(Draw()), R"(
tick 0 3 - 0 10
"0.0" -1.2 11 1.2 30 0x4C
tick 1 3 - 1 4
tick 2 3 - 2 4
tick 3 3 - 3 4
tick 4 3 - 4 4
)");
}

TEST_F(AxisOfFour, TicksThatBeginOutsideOfItAreNotDrawn)
{
    m_Axis->SetAxisOffset(30);
    EXPECT_THAT(Draw(), Draws("MoveTo 0 30"));
    m_Axis->SetAxisOffset(31);
    EXPECT_EQ(Drawing(Draw()), "\n");
    EXPECT_TRUE(m_Axis->GetMajorTicks().empty());
    EXPECT_TRUE(m_Axis->GetMinorTicks().empty());
    m_Axis->SetAxisOffset(-1);
    EXPECT_EQ(Drawing(Draw()), "\n");
}

TEST_F(AxisOfFour, TheBackgroundIsFilledFirstAndItsOwnPixelsAreTheClip)
{
    m_Axis->SetBkColor(color_table[3]);
    EXPECT_THAT(Draw().Calls(), testing::Contains(std::string("FillRect 0 0 239 30")).Times(1));
    EXPECT_THAT(Draw(), Draws("SetBrush yellow")
                            .Then("FillRect 0 0 239 30")
                            .Then("SetClipRect 0 0 239 30")
                            .Then("SetCoordSystem 3 0 0 20 30 20 109 200 30")
                            .Then("MoveTo 0 0")
                            .Then("DrawString*")
                            .Then("LineTo 4 2")
                            .Then("ResetClip"));
}

TEST_F(AxisPaint, TheBackgroundIsItsOwnWhateverBrushThePainterHas)
{
    m_Axis->SetBkColor(color_table[3]);
    auto const red = Listen(m_Axis->m_SigDraw, [](CVisualElement*, IPainter* painter) {
        painter->SetBrush(brush{color_table[6], brush::bsSolid});
    });
    EXPECT_THAT(Draw(), Draws("SetBrush red").Then("SetBrush yellow").Then("FillRect 0 0 239 30"));
}

TEST_F(AxisPaint, ALayoutThatChangesThePanesSpanRepaintsIt)
{
    auto* const around = new CVisualElement(m_Host.Root(), {0, 0}, alClient);
    auto* const axis = new CAxis(around, {20, 20}, alTop);
    auto* const inner = new CVisualElement(around, {0, 0}, alClient);
    auto* const side = new CVisualElement(inner, {20, 20}, alRight);
    auto* const foot = new CVisualElement(inner, {20, 20}, alBottom);
    auto* const pane = new CVisualElement(inner, {0, 0}, alClient);
    m_Host.Name(*axis, "axis");
    axis->SetCentralPane(pane);
    axis->SetHorzScroll(&m_Model);
    m_Host.Paint();
    rectangle<int> const before = axis->GetPos();
    side->SetSize({40, 20}, false);
    EXPECT_THAT(m_Host.Paint().Elements(), testing::HasSubstr("axis"));
    EXPECT_EQ(axis->GetPos(), before);
    foot->SetSize({20, 30}, false);  // shortens the pane across only
    EXPECT_THAT(m_Host.Paint().Elements(), Not(testing::HasSubstr("axis")));
}

TEST_F(AxisPaint, ItsTicksAreThoseOfTheLastDrawing)
{
    Draw();
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{0, 100, 200}));
    EXPECT_EQ(m_Axis->GetMinorTicks(),
              (std::vector<double>{10, 20, 30, 40, 50, 60, 70, 80, 90, 110, 120, 130, 140, 150, 160, 170, 180, 190}));
    EXPECT_EQ(m_Axis->GetStep(), 100.0);
    EXPECT_EQ(m_Axis->GetMinorCount(), 10);
    EXPECT_EQ(m_Axis->GetLabelGap(), 10.0);
    m_Axis->SetHorzScroll(nullptr);
    Draw();
    EXPECT_TRUE(m_Axis->GetMajorTicks().empty());
    EXPECT_TRUE(m_Axis->GetMinorTicks().empty());
}

TEST_F(AxisPaint, TicksDoNotDriftAlongTheAxis)
{
    m_Model.m_Measure = {1.0, 50};
    SetRange(0, 4, 0);
    Draw();
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{0, 1, 2, 3, 4}));
    EXPECT_EQ(m_Axis->GetMinorTicks().size(), 36u);  // tenths
}

TEST_F(AxisPaint, AScrolledViewBeginsWithTheFirstTickOfAnyKind)
{
    SetRange(0, 1000, 237);
    EXPECT_EQ(Labels(Draw()), "\"300\" 288 7 312 30 0x4C\n\"400\" 388 7 412 30 0x4C");
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{300, 400}));
    EXPECT_EQ(m_Axis->GetMinorTicks().front(), 240.0);
    EXPECT_EQ(m_Axis->GetMinorTicks().back(), 430.0);
    EXPECT_EQ(m_Axis->GetMinorTicks().size(), 18u);
}

TEST_F(AxisPaint, MajorTicksAreCountedFromTheBeginningOfTheRange)
{
    SetRange(50, 1050, 50);
    Draw();
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{50, 150, 250}));
    SetRange(7, 1007, 100);
    Draw();
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{107, 207}));
    EXPECT_EQ(m_Axis->GetMinorTicks().front(), 117.0);
}

TEST_F(AxisPaint, AReversedRangeGrowsFromTheFarEndByTheSameFormulas)
{
    SetRange(1000, 0, 0);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetCoordSystem 3 0 0 1000 30 220 109 -1000 30"));
    EXPECT_EQ(Labels(log), "\"0\" -4 7 4 30 0x4C\n\"100\" 88 7 112 30 0x4C\n\"200\" 176 7 200 30 0x4A");
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{0, 100, 200}));
    EXPECT_EQ(m_Axis->GetMinorTicks().size(), 18u);

    SetRange(1000, 0, 230);  // 770 before the beginning: 8 steps back is 200, from there 3 minor ones
    Draw();
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{300, 400}));
    EXPECT_EQ(m_Axis->GetMinorTicks().front(), 230.0);
}

TEST_F(AxisPaint, ATickBeforeAReversedViewIsPutOnItsStart)
{
    SetRange(1000, 0, 237);  // from 200 on 3 minor steps reach 230 only
    Draw();
    EXPECT_EQ(m_Axis->GetMinorTicks().front(), 237.0);
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{307, 407}));
}

TEST_F(AxisPaint, AStartBeforeTheRangeIsCountedBackwards)
{
    SetRange(0, 1000, -150);
    Draw();
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{-100, 0}));
    EXPECT_EQ(m_Axis->GetMinorTicks().front(), -150.0);
    EXPECT_EQ(m_Axis->GetMinorTicks().back(), 50.0);
}

TEST_F(AxisPaint, NothingButTheBackgroundIsDrawnWithoutAModelOrLength)
{
    m_Axis->SetHorzScroll(nullptr);
    PaintLog log = Draw();
    EXPECT_EQ(Drawing(log), "\n");
    EXPECT_THAT(log, Draws("FillRect 0 0 239 30"));

    m_Axis->SetHorzScroll(&m_Model);
    m_Axis->SetCentralPane(nullptr);
    log = Draw();
    EXPECT_EQ(Drawing(log), "\n");
    EXPECT_THAT(log, Draws("FillRect 0 0 239 30"));

    m_Axis->SetCentralPane(m_Pane);
    m_Pane->SetPos({20, 20, 20, 120}, false);
    m_Model.m_Measure = {100, 1};
    EXPECT_EQ(Drawing(Draw()), "\n");
    EXPECT_EQ(m_Axis->GetStep(), 100.0);  // as before
    m_Pane->SetPos({20, 20, 21, 120}, false);
    EXPECT_THAT(Draw(), Draws("MoveTo 0 0"));
}

TEST_F(AxisPaint, NothingButTheBackgroundIsDrawnForARangeThatIsNoNumber)
{
    for (double const bad :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -HUGE_VAL})
    {
        SetRange(bad, 1000, 0);
        EXPECT_EQ(Drawing(Draw()), "\n");
        SetRange(0, bad, 0);
        EXPECT_EQ(Drawing(Draw()), "\n");
        SetRange(0, 1000, bad);
        EXPECT_EQ(Drawing(Draw()), "\n");
    }
}

TEST_F(AxisPaint, ValuesSoLargeThatAStepIsLostEndTheWalk)
{
    SetRange(2e18, 3e18, 2e18);  // where the next number is 256 further, beyond a step of 100
    Draw();
    EXPECT_EQ(m_Axis->GetMajorTicks(), (std::vector<double>{2e18}));
    EXPECT_TRUE(m_Axis->GetMinorTicks().empty());
    SetRange(1e300, 2e300, 1e300);  // where even the view has no length
    EXPECT_EQ(Drawing(Draw()), "\n");
}

TEST_F(AxisPaint, ThereIsNeverMoreThanATickAPixel)
{
    class CNoText : public CAxis
    {
    public:
        using CAxis::CAxis;
        std::string GetLabelText(double, double) const override { return {}; }
    };
    auto* const axis = new CNoText(m_Host.Root(), {10, 10}, alBottom);
    axis->SetCentralPane(m_Pane);
    axis->SetHorzScroll(&m_Model);
    axis->SetLabelGapPixels(-8000);  // no room at all for a label
    m_Model.m_Measure = {0.001, 1};  // the mapping's ratio is 1: the whole range is less than a pixel
    SetRange(0, 0.0005, 0);
    m_Host.Paint();
    EXPECT_EQ(axis->GetStep(), 0.005);
    EXPECT_EQ(axis->GetMajorTicks().size() + axis->GetMinorTicks().size(), 201u);
}

// Labels at the far end ---------------------------------------------------------------------------------------------------

TEST_F(AxisPaint, ALabelThatWouldOvershootTheEndIsPulledBack)
{
    EXPECT_EQ(Labels(Draw()), "\"0\" -4 7 4 30 0x4C\n"
                              "\"100\" 88 7 112 30 0x4C\n"
                              "\"200\" 176 7 200 30 0x4A");  // right instead of centred
}

TEST_F(AxisPaint, ALabelThatEndsExactlyAtTheEndStaysInItsMiddle)
{
    m_Pane->SetPos({20, 20, 232, 120}, false);
    EXPECT_THAT(Draw(), Draws("DrawString \"200\" 188 7 212 30 0x4C"));
    m_Pane->SetPos({20, 20, 231, 120}, false);
    EXPECT_THAT(Draw(), Draws("DrawString \"200\" 187 7 211 30 0x4A"));
}

namespace
{

struct SOnce
{
    CAxis* axis;
    double along, lastEnd, limit;
    double result = -1;
    void Draw(CVisualElement*, IPainter* painter)
    {
        result = axis->DrawLabel(painter, {along, 5}, 100, lastEnd, limit);
    }
};
class CCanvas : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    SOnce* m_Once = nullptr;
    void DrawContent(IPainter* painter) override { m_Once->Draw(this, painter); }
};

class AxisLabel : public CAxisBench<CAxis>
{
protected:
    AxisLabel() { Draw(); }  // a step of 100, a gap of 10
    // The label of a tick at this place in the way of which the last one ends, and what the drawing returned.
    std::string Draw100(double along, double lastEnd, double limit)
    {
        SOnce once{m_Axis, along, lastEnd, limit};
        CCanvas canvas(m_Host.Root(), {0, 0}, alNone);
        canvas.m_Once = &once;
        canvas.SetPos({0, 0, 200, 30}, false);
        canvas.Update(utElement);
        m_Host.Paint();  // the window's first after the change paints all
        canvas.Update(utElement);
        std::string const drawn = Labels(m_Host.Paint().Of("CCanvas"));
        canvas.ReParent(nullptr, false);
        return drawn + " -> " + Describe(once.result);
    }
    using CAxisBench<CAxis>::Draw;
};

}  // namespace

TEST_F(AxisLabel, EndsHalfItsWidthBehindTheTick)
{
    EXPECT_EQ(Draw100(50, 0, 100), "\"100\" 38 7 62 30 0x4C -> 62");
    EXPECT_EQ(Draw100(88, 0, 100), "\"100\" 76 7 100 30 0x4C -> 100");
}

TEST_F(AxisLabel, ThatIsPulledBackEndsAtTheLimit)
{
    EXPECT_EQ(Draw100(89, 0, 100), "\"100\" 76 7 100 30 0x4A -> 100");
    EXPECT_EQ(Draw100(89, 66, 100), "\"100\" 76 7 100 30 0x4A -> 100");  // 66 + gap 10 + 24
}

TEST_F(AxisLabel, ThatWouldRunIntoTheLastOneIsLeftOut)
{
    EXPECT_EQ(Draw100(89, 66.5, 100), " -> 89");
    EXPECT_EQ(Draw100(300, 66.5, 100), " -> 300");
}

TEST_F(AxisLabel, IsNotLookedAtWhereItFits)
{
    EXPECT_EQ(Draw100(88, 99, 100), "\"100\" 76 7 100 30 0x4C -> 100");
}

TEST_F(AxisLabel, TheFirstOneHasNothingToItsLeft)
{
    EXPECT_EQ(Draw100(30, s_Smallest, 34), "\"100\" 10 7 34 30 0x4A -> 34");
    EXPECT_EQ(Draw100(30, s_Smallest, 33), " -> 30");  // but the beginning
    EXPECT_EQ(Draw100(-30, s_Smallest, -25), " -> -30");
}

TEST_F(AxisPaint, TheFirstLabelIsNeverDroppedForLackOfRoomToItsLeft)
{
    EXPECT_THAT(Draw(), Draws("DrawString \"0\" -4 7 4 30 0x4C"));
    SetRange(0, 1000, 95);
    EXPECT_THAT(Draw(), Draws("DrawString \"100\" 88 7 112 30 0x4C"));
}

// What subclasses change ----------------------------------------------------------------------------------------------------

TEST_F(TellingAxis, TicksAndTextsAreTheSubclassesInTheirOrder)
{
    m_Axis->m_Told.clear();
    PaintLog const log = Draw();
    EXPECT_EQ(m_Axis->m_Told, "background; line 0 0 to 0 5; prepare 0 5 0; line 100 0 to 100 5; prepare 100 5 100; "
                              "line 200 0 to 200 5; prepare 200 5 200; ");
    EXPECT_THAT(log, Draws("DrawString \"100%\" 84 7 116 30 0x4C"));
}

TEST_F(AxisPaint, AFontOfASubclassIsMeasuredAndPutBack)
{
    class CLarge : public CAxis
    {
    public:
        using CAxis::CAxis;
        font m_After;
        void PrepareAttr(point<double> const&, double value) override
        {
            font large;
            large.size = value == 100 ? 16 : 8;
            m_Painter->SetFont(large);
        }
        void DrawContent(IPainter* painter) override
        {
            m_Painter = painter;
            CAxis::DrawContent(painter);
            m_After = painter->GetFont();
        }

    private:
        IPainter* m_Painter = nullptr;
    };
    auto* const axis = new CLarge(m_Host.Root(), {30, 30}, alBottom);
    axis->SetCentralPane(m_Pane);
    axis->SetHorzScroll(&m_Model);
    EXPECT_THAT(m_Host.Paint(), Draws("DrawString \"100\" 76 7 124 30 0x4C"));
    EXPECT_EQ(axis->m_After, axis->GetFont());
}

TEST_F(AxisPaint, LabelsShowTheConvertersUnits)
{
    CTenfold tenfold;
    m_Axis->SetUnitConverter(&tenfold);
    EXPECT_EQ(Labels(Draw()), "\"5\" -4 7 4 30 0x4C\n\"1005\" 84 7 116 30 0x4C\n\"2005\" 168 7 200 30 0x4A");
}

TEST_F(AxisPaint, AtASideTheStepFollowsTheTurnedText)
{
    Make(alLeft);
    Draw();
    EXPECT_EQ(m_Axis->GetStep(), 100.0);  // "1000" takes 50 pixels along
    m_Axis->SetRotateText(false);
    Draw();
    EXPECT_EQ(m_Axis->GetStep(), 50.0);  // 18 pixels: 100 is above 2.5 times that
}

TEST_F(AxisPaint, ADisabledAxisIsGrey)
{
    m_Axis->SetEnabled(false);
    EXPECT_THAT(Draw(), Draws("SetTextColor grey").Then("SetPen grey").Then("MoveTo 0 0"));
}

TEST_F(AxisPaint, WithoutAControlItChoosesNoStepAndDrawsInPixels)
{
    m_Host.Paint();
    IPainter* const painter = m_Host.Window().GetPainter();
    CAxis axis(nullptr, {30, 30}, alBottom);
    axis.SetPos({0, 0, 100, 30}, false);
    axis.SetHorzScroll(&m_Model);
    CVisualElement pane(nullptr, {0, 0}, alNone);
    pane.SetPos({0, 0, 50, 100}, false);
    axis.SetCentralPane(&pane);
    painter->BeginPaint(IPainter::ssMeasure);
    axis.DrawContent(painter);
    EXPECT_EQ(axis.GetStep(), 1.0);
    EXPECT_EQ(axis.GetMajorTicks(), (std::vector<double>{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(axis.GetMinorTicks().size(), 45u);  // one tick a pixel
    painter->EndPaint();
}

// Clips -------------------------------------------------------------------------------------------------------------------

namespace
{

// Leaves a clip behind for its children, as a scroller does.
class CClipping : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    void DrawContent(IPainter* painter) override
    {
        painter->FillRect(0, 0, GetBounds().right, GetBounds().bottom);
        painter->SetClipRect(0, 0, 180, 100, false);
    }
};

}  // namespace

TEST_F(AxisPaint, WithinAClipItsLastPixelIsNoUnitOfItsRange)
{
    auto* const around = new CClipping(m_Host.Root(), {0, 0}, alNone);
    around->SetBkColor(color_table[9]);
    around->SetPos({0, 0, 200, 100}, false);
    auto* const axis = new CAxis(around, {10, 10}, alNone);
    axis->SetBkColor(color_table[3]);
    axis->SetFgColor(color_table[1]);
    axis->SetCentralPane(m_Pane);
    axis->SetHorzScroll(&m_Model);
    m_Pane->SetPos({0, 0, 100, 100}, false);
    m_Model.m_Measure = {1.0, 50};
    for (bool const reversed : {false, true})
    {
        SetRange(reversed ? 4 : 0, reversed ? 0 : 4, 0);
        axis->SetAlignment(alNone);
        axis->SetAlignment(alBottom);
        m_Host.Paint();
        around->Update(utElement);
        m_Host.Paint();
        rectangle<int> const& pos = axis->GetPos();
        // The tick at 0 is as long as the others, and nothing is drawn beside the axis.
        int const zero = reversed ? 100 : 0;
        EXPECT_EQ(m_Host.PixelAt(zero, pos.top + 3).m_Value & 0xFFFFFFu, 0u) << reversed;
        EXPECT_EQ(m_Host.PixelAt(50, pos.top + 1).m_Value & 0xFFFFFFu, 0u) << reversed;
    }
}
