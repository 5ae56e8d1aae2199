// What a strip of slanted tabs draws.

#include "tests/support/paint_calls.h"
#include "tests/widgets/tabs_bench.h"

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

using TabsPaint = CTabsBench;

class TabsPaintScaled : public CTabsBench
{
protected:
    TabsPaintScaled() : CTabsBench(1.5) {}
};

}  // namespace

// The strip -------------------------------------------------------------------------------------------------------------------

TEST_F(TabsPaint, TheGroundIsFilledAndTheTabsHangFromALineInShadowColour)
{
    m_Tabs.SetModel(nullptr);
    PaintLog const log = Repaint();
    EXPECT_THAT(log, Draws("SetBrush #D9D9D9")
                         .Then("SetPen #808080")
                         .Then("FillRect 0 0 200 20")
                         .Then("MoveTo 0 0")
                         .Then("LineTo 200 0")
                         .Then("SetClipRect 0 0 200 20"));
    EXPECT_EQ(log.Count("LineTo*"), 1);
    EXPECT_EQ(log.Count("FillRect*"), 1);
}

TEST_F(TabsPaint, WithoutAModelNothingIsDrawnButTheStrip)
{
    m_Tabs.SetModel(nullptr);
    PaintLog const log = Repaint();
    EXPECT_EQ(log.Count("Polygon*"), 0);
    EXPECT_EQ(log.Count("DrawString*"), 0);
    EXPECT_EQ(m_Tabs.m_Drawn, "");
    EXPECT_EQ(m_Host.PixelAt(10, 30), _color(0xFF808080));
    EXPECT_EQ(m_Host.PixelAt(210, 30), _color(0xFF808080));
    EXPECT_EQ(m_Host.PixelAt(10, 31), _color(0xFFD9D9D9));
    EXPECT_EQ(m_Host.PixelAt(210, 50), _color(0xFFD9D9D9));
    EXPECT_NE(m_Host.PixelAt(211, 40), _color(0xFFD9D9D9));
}

TEST_F(TabsPaint, AModelWithoutItemsDrawsNoTabs)
{
    m_Model.Set({});
    EXPECT_EQ(Repaint().Count("Polygon*"), 0);
}

TEST_F(TabsPaint, AStripThatHasNoPlaceYetDrawsNothing)
{
    CTabs alone(nullptr, {50, 20}, alTop);
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssMeasure);
    alone.DrawContent(&painter);
    painter.EndPaint();
}

// Tabs ------------------------------------------------------------------------------------------------------------------------

TEST_F(TabsPaint, TheCurrentTabIsATrapezoidAndOpenToTheTop)
{
    PaintLog const log = Repaint();
    EXPECT_THAT(log, Draws("SetBrush yellow")
                         .Then("Polygon 0 0 9 18 31 18 40 0")
                         .Then("SetPen yellow")
                         .Then("MoveTo 1 0")
                         .Then("LineTo 39 0")
                         .Then("SetPen #808080")
                         .Then("DrawString \"ab\" 9 0 31 19 0x24 2")
                         .Then("SetBrush cyan"));
    EXPECT_EQ(log.Count("SetPen yellow"), 1);
    // The top edge: its two ends stay.
    EXPECT_EQ(m_Host.PixelAt(10, 30), _color(0xFF808080));
    EXPECT_EQ(m_Host.PixelAt(11, 30), color_table[3]);
    EXPECT_EQ(m_Host.PixelAt(49, 30), color_table[3]);
    EXPECT_EQ(m_Host.PixelAt(50, 30), _color(0xFF808080));
}

TEST_F(TabsPaint, OtherTabsAreTuckedUnderTheirLeftNeighbours)
{
    PaintLog const log = Repaint();
    EXPECT_EQ(CallsFrom(log, "Polygon"), "0 0 9 18 31 18 40 0; "
                                         "40 0 35.5 9 40 18 70 18 79 0; "
                                         "79 0 74.5 9 79 18 93 18 102 0; "
                                         "102 0 97.5 9 102 18 140 18 149 0");
    EXPECT_EQ(CallsFrom(log, "DrawString"), "\"ab\" 9 0 31 19 0x24 2; \"abc\" 40 0 70 19 0x24 3; "
                                            "\"a\" 79 0 93 19 0x24 1; \"abcd\" 102 0 140 19 0x24 4");
    EXPECT_EQ(log.Count("MoveTo*"), 2);  // of the strip and of the current tab
    EXPECT_EQ(m_Tabs.m_Drawn, "0@0+31 1@31+39 2@70+23 3@93+47 ");
}

TEST_F(TabsPaint, TheFirstTabIsATrapezoidAlsoWhenItIsNotCurrent)
{
    m_Tabs.SetCurrentTab(2);
    PaintLog const log = Repaint();
    EXPECT_THAT(log, Draws("SetBrush cyan")
                         .Then("Polygon 0 0 9 18 31 18 40 0")
                         .Then("DrawString \"ab\" 9 0 31 19 0x24 2")
                         .Then("Polygon 40 0 35.5 9 40 18 70 18 79 0")
                         .Then("SetBrush yellow")
                         .Then("Polygon 70 0 79 18 93 18 102 0")
                         .Then("SetPen yellow")
                         .Then("MoveTo 71 0")
                         .Then("LineTo 101 0")
                         .Then("SetPen #808080")
                         .Then("DrawString \"a\" 79 0 93 19 0x24 1")
                         .Then("SetBrush cyan")
                         .Then("Polygon 102 0 97.5 9 102 18 140 18 149 0"));
    EXPECT_EQ(log.Count("SetPen yellow"), 1);
}

TEST_F(TabsPaint, TheCurrentTabStandsInFrontOfItsLeftNeighbour)
{
    // Their slants cross in the middle of the neighbour's right one, at (35.5, 9) of the strip.
    EXPECT_EQ(m_Host.PixelAt(10 + 34, 30 + 6), color_table[3]);
    m_Tabs.SetCurrentTab(1);
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(10 + 36, 30 + 5), color_table[3]);
    EXPECT_EQ(m_Host.PixelAt(10 + 36, 30 + 3), color_table[3]);
    EXPECT_EQ(m_Host.PixelAt(10 + 32, 30 + 13), color_table[12]);  // below it the neighbour's slant shows
    EXPECT_EQ(m_Host.PixelAt(10 + 74, 30 + 3), color_table[3]);    // and its own right one is in front, too
    EXPECT_EQ(m_Host.PixelAt(10 + 75, 30 + 5), color_table[3]);
}

TEST_F(TabsPaint, ATabThatDoesNotFitIsStillDrawnAndCut)
{
    Place(60, 20);
    Repaint();
    EXPECT_EQ(m_Tabs.m_Drawn, "0@0+31 1@31+39 ");
    EXPECT_EQ(m_Host.PixelAt(10 + 60, 30 + 3), color_table[12]);
    EXPECT_NE(m_Host.PixelAt(10 + 61, 30 + 3), color_table[12]);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabsPaint, ATabThatFitsExactlyIsTheLastOneDrawn)
{
    Place(70, 20);
    Repaint();
    EXPECT_EQ(m_Tabs.m_Drawn, "0@0+31 1@31+39 ");
    Place(71, 20);
    Repaint();
    EXPECT_EQ(m_Tabs.m_Drawn, "0@0+31 1@31+39 2@70+23 ");
    Place(31, 20);
    Repaint();
    EXPECT_EQ(m_Tabs.m_Drawn, "0@0+31 ");
}

TEST_F(TabsPaint, AStripWithoutRoomDrawsNoTabs)
{
    m_Tabs.SetPos({10, 30, 10, 60}, true);
    Repaint();
    EXPECT_EQ(m_Tabs.m_Drawn, "");
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssMeasure);
    m_Tabs.DrawContent(&painter);
    painter.EndPaint();
    EXPECT_EQ(m_Tabs.m_Drawn, "");
}

TEST_F(TabsPaint, AScrolledStripBeginsWithTheSliverOfTheTabBefore)
{
    m_Tabs.SetCurrentTab(3);
    m_Tabs.SetFirstVisibleTab(1);
    PaintLog const log = Repaint();
    EXPECT_EQ(CallsFrom(log, "Polygon"), "0 0 0 18 9 0; "
                                         "9 0 4.5 9 9 18 39 18 48 0; "
                                         "48 0 43.5 9 48 18 62 18 71 0; "
                                         "62 0 71 18 109 18 118 0");
    EXPECT_THAT(log, Draws("SetBrush cyan").Then("Polygon 0 0 0 18 9 0").Then("Polygon 9 0*"));
    EXPECT_EQ(log.Count("SetBrush yellow"), 1);
    EXPECT_EQ(m_Tabs.m_Drawn, "1@0+39 2@39+23 3@62+47 ");
}

TEST_F(TabsPaint, TheSliverOfTheCurrentTabHasItsColour)
{
    m_Tabs.SetFirstVisibleTab(1);
    PaintLog const log = Repaint();
    EXPECT_THAT(log, Draws("SetBrush yellow")
                         .Then("Polygon 0 0 0 18 9 0")
                         .Then("SetBrush cyan")
                         .Then("Polygon 9 0 4.5 9 9 18 39 18 48 0"));
    EXPECT_EQ(log.Count("SetPen yellow"), 0);
    EXPECT_EQ(m_Host.PixelAt(10 + 2, 30 + 5), color_table[3]);
}

TEST_F(TabsPaint, TheFirstVisibleTabIsATrapezoidIfItIsCurrent)
{
    m_Tabs.SetCurrentTab(1);
    m_Tabs.SetFirstVisibleTab(1);
    PaintLog const log = Repaint();
    EXPECT_THAT(log, Draws("SetBrush cyan")
                         .Then("Polygon 0 0 0 18 9 0")
                         .Then("SetBrush yellow")
                         .Then("Polygon 0 0 9 18 39 18 48 0")
                         .Then("MoveTo 1 0")
                         .Then("LineTo 47 0"));
}

TEST_F(TabsPaint, AStripShorterThanThreePixelsHasTabsOfNoHeightAndNoSlant)
{
    Place(200, 2);
    EXPECT_EQ(CallsFrom(Repaint(), "Polygon"), "0 0 0 0 22 0 22 0; "
                                               "22 0 22 0 22 0 52 0 52 0; "
                                               "52 0 52 0 52 0 66 0 66 0; "
                                               "66 0 66 0 66 0 104 0 104 0");
    EXPECT_EQ(m_Tabs.m_Drawn, "0@0+22 1@22+30 2@52+14 3@66+38 ");
    Place(200, 3);  // (3 - 1) / 2
    EXPECT_THAT(Repaint(), Draws("Polygon 0 0 1 2 23 2 24 0"));
    Place(200, 1);
    EXPECT_THAT(Repaint(), Draws("Polygon 0 0 0 0 22 0 22 0"));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabsPaint, AnOddHeightIsHalvedDownward)
{
    Place(200, 21);
    EXPECT_THAT(Repaint(), Draws("Polygon 0 0 10 20 32 20 42 0").Then("DrawString \"ab\" 10 0 32 20 0x24 2"));
    Place(200, 22);
    EXPECT_THAT(Repaint(), Draws("Polygon 0 0 10 20 32 20 42 0").Then("DrawString \"ab\" 10 0 32 21 0x24 2"));
}

TEST_F(TabsPaintScaled, TextsGrowAndTheSixPixelsDoNot)
{
    PaintLog const log = Repaint();
    EXPECT_THAT(log, Draws("Polygon 0 0 9 18 39 18 48 0")
                         .Then("MoveTo 1 0")
                         .Then("LineTo 47 0")
                         .Then("DrawString \"ab\" 9 0 39 19 0x24 2")
                         .Then("Polygon 48 0 43.5 9 48 18 90 18 99 0"));
    EXPECT_EQ(m_Tabs.m_Drawn, "0@0+39 1@39+51 2@90+27 3@117+63 ");
}

// Colours ---------------------------------------------------------------------------------------------------------------------

TEST_F(TabsPaint, AColourOfAnotherValueIsRepainted)
{
    m_Tabs.SetActiveColor(color_table[6]);
    EXPECT_EQ(m_Tabs.GetActiveColor(), color_table[6]);
    EXPECT_TRUE(m_Host.IsFramePending());
    m_Host.Paint();
    m_Tabs.SetInactiveColor(color_table[13]);
    EXPECT_EQ(m_Tabs.GetInactiveColor(), color_table[13]);
    EXPECT_TRUE(m_Host.IsFramePending());
    PaintLog const log = m_Host.Paint().Of("strip");
    EXPECT_EQ(log.Count("SetBrush red"), 1);
    EXPECT_GE(log.Count("SetBrush green"), 1);
    EXPECT_EQ(log.Count("SetPen red"), 1);
    m_Tabs.SetActiveColor(color_table[6]);
    m_Tabs.SetInactiveColor(color_table[13]);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(TabsPaint, ColoursAreComparedByTheirValuesAlone)
{
    m_Tabs.SetActiveColor(_color(color_table[3].m_Value, true));
    m_Tabs.SetInactiveColor(_color(color_table[12].m_Value, true));
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_FALSE(m_Tabs.GetActiveColor().m_None);
    EXPECT_FALSE(m_Tabs.GetInactiveColor().m_None);
}

TEST(TabsSystemColours, FollowTheDesktopUntilTheApplicationSetsItsOwn)
{
    CTestHost host(300, 200);
    CLinesModel model({"ab", "abc"});
    auto* const tabs = new CTabs(host.Root(), {50, 20}, alTop);
    NameElement(*tabs, "strip");
    tabs->SetModel(&model);
    PaintLog const first = host.Paint().Of("strip");
    EXPECT_EQ(first.Count("SetBrush white"), 1);    // window
    EXPECT_EQ(first.Count("SetBrush #C0C0C0"), 1);  // face
    tabs->SetInactiveColor(color_table[13]);
    auto& palette = CTestHost::System().GetMemoryPalette();
    palette.SetColor(ISysPalette::scWindow, _color(0xFF112233));
    palette.SetColor(ISysPalette::scFace, _color(0xFF000000));
    host.SysColorChange();
    EXPECT_EQ(tabs->GetActiveColor(), _color(0xFF112233));
    EXPECT_EQ(tabs->GetInactiveColor(), color_table[13]);
    EXPECT_EQ(tabs->GetBkColor(), _color(0xFF666666));  // 255 * 40 / 100
    EXPECT_EQ(host.CompareWithFullPaint(), "");
    tabs->SetBkColor(color_table[4]);
    palette.Reset();
    host.SysColorChange();
    EXPECT_EQ(tabs->GetActiveColor(), _color(0xFFFFFFFF));
    tabs->SetActiveColor(color_table[6]);
    host.SysColorChange();
    EXPECT_EQ(tabs->GetActiveColor(), color_table[6]);
    EXPECT_EQ(tabs->GetInactiveColor(), color_table[13]);
    EXPECT_EQ(tabs->GetBkColor(), color_table[4]);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
    tabs->SetModel(nullptr);
}

// Overridden ------------------------------------------------------------------------------------------------------------------

TEST_F(TabsPaint, TheCoordinateSystemIsAskedForInsideTheClip)
{
    class CShifted : public CTabs
    {
    public:
        using CTabs::CTabs;
        void SetCoordSystem(IPainter* painter) override { painter->SetDrawMode(IPainter::roCopy); }
    };
    auto& shifted = *new CShifted(m_Host.Root(), {50, 20}, alNone);
    NameElement(shifted, "shifted");
    shifted.SetModel(&m_Model);
    shifted.SetPos({0, 100, 100, 120}, true);
    shifted.Update(utElement);
    EXPECT_THAT(m_Host.Paint().Of("shifted"),
                Draws("SetClipRect 0 0 100 20").Then("SetDrawMode*").Then("Polygon 0 0 9 18 31 18 40 0"));
}

TEST_F(TabsPaint, WhatASubclassDrawsDecidesWhereTheNextTabBegins)
{
    class CPlainTabs : public CTabs
    {
    public:
        using CTabs::CTabs;
        std::string m_Drawn;
        int DrawTab(IPainter*, int tab, int x) override
        {
            m_Drawn += std::to_string(tab) + "@" + std::to_string(x) + " ";
            return 40;
        }
    };
    auto& plain = *new CPlainTabs(m_Host.Root(), {50, 20}, alNone);
    plain.SetModel(&m_Model);
    plain.SetPos({0, 100, 100, 120}, true);
    plain.Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(plain.m_Drawn, "0@0 1@40 2@80 ");
}

TEST_F(TabsPaint, TheClipHoldsForTheContentOnly)
{
    PaintLog const log = Repaint();
    EXPECT_EQ(log.Count("SetClipRect*"), 1);
    EXPECT_THAT(log, Draws("DrawString \"abcd\"*").Then("ResetClip"));
}

TEST_F(TabsPaint, MeasuringWithinAPaintChangesNothingOfWhatIsDrawn)
{
    font large;
    large.size = 16;
    m_Tabs.SetFont(large);
    std::string const before = Repaint().Text();
    int hit = -1;
    int last = -1;
    auto const drawn = Listen(m_Tabs.m_SigDraw, [&](CVisualElement*, IPainter*) {
        hit = HitTest(20, 10);
        last = m_Tabs.GetLastVisibleTab();
        m_Tabs.SetLastVisibleTab(0);
    });
    PaintLog const log = Repaint();
    EXPECT_EQ(hit, 0);
    EXPECT_EQ(last, 2);
    EXPECT_EQ(CallsFrom(log, "Polygon"), "0 0 9 18 47 18 56 0; "
                                         "56 0 51.5 9 56 18 110 18 119 0; "
                                         "119 0 114.5 9 119 18 141 18 150 0; "
                                         "150 0 145.5 9 150 18 220 18 229 0");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    EXPECT_NE(before, "");
}
