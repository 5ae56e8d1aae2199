// What a multi-level header draws.

#include "tests/headers/tree_bench.h"
#include "tests/support/paint_calls.h"
#include "tests/support/test_images.h"

#include <gmock/gmock.h>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

// A from 0 to 99 with a to 39 and b to 99, that one with x to 69 and y; B from 100 to the end, 199. Without the focus.
using HeaderPaint = CTreeBench;

class HeaderPaintScaled : public CTreeBench
{
protected:
    HeaderPaintScaled() : CTreeBench("A(a:100 b:60) B:50", 2.0) {}
};

// Writes down what it is asked to draw.
class CTellingLook : public IHeaderItemVisualisation
{
public:
    std::string m_Told;

    int GetVisualisationState(IHeaderItem const*) const override { return 0; }
    rectangle<double> GetExpandBtnRect(rectangle<double> const&, IHeaderItem const*) const override
    {
        return {1, 2, 3, 4};
    }
    rectangle<double> GetSectionContentRect(rectangle<double> const&, IHeaderItem const*) const override
    {
        return {5, 6, 7, 8};
    }
    void DrawSectionBackground(IPainter*, rectangle<double> const& rect, IHeaderItem const* item) override
    {
        m_Told += "back " + NameOf(item) + " " + Describe(rect) + "; ";
    }
    void DrawSectionContent(IPainter*, rectangle<double> const& rect, IHeaderItem const* item) override
    {
        m_Told += "content " + NameOf(item) + " " + Describe(rect) + "; ";
    }
    void DrawExpandButton(IPainter*, rectangle<double> const& rect, IHeaderItem const* item) override
    {
        m_Told += "button " + NameOf(item) + " " + Describe(rect) + "; ";
    }
    void DrawSortingMarker(IPainter*, bool, point<double> const&) override {}
};

// As the header itself, but for the sort marks, which it writes down.
class CMarkingLook : public IHeaderItemVisualisation
{
public:
    explicit CMarkingLook(CHeader& header) : m_Header(header) {}

    std::string m_Told;

    int GetVisualisationState(IHeaderItem const* item) const override { return m_Header.GetVisualisationState(item); }
    rectangle<double> GetExpandBtnRect(rectangle<double> const& section, IHeaderItem const* item) const override
    {
        return m_Header.GetExpandBtnRect(section, item);
    }
    rectangle<double> GetSectionContentRect(rectangle<double> const& section, IHeaderItem const* item) const override
    {
        return m_Header.GetSectionContentRect(section, item);
    }
    void DrawSectionBackground(IPainter* painter, rectangle<double> const& section, IHeaderItem const* item) override
    {
        m_Header.DrawSectionBackground(painter, section, item);
    }
    void DrawSectionContent(IPainter* painter, rectangle<double> const& content, IHeaderItem const* item) override
    {
        m_Header.DrawSectionContent(painter, content, item);
    }
    void DrawExpandButton(IPainter* painter, rectangle<double> const& button, IHeaderItem const* item) override
    {
        m_Header.DrawExpandButton(painter, button, item);
    }
    void DrawSortingMarker(IPainter*, bool up, point<double> const& position) override
    {
        m_Told += std::string(up ? "up" : "down") + " at " + std::to_string(static_cast<int>(position.x)) + "; ";
    }

private:
    CHeader& m_Header;
};

// The pen and the brush that a call was made with.
std::string ToolsOf(PaintLog const& log, std::string const& wanted)
{
    std::string pen;
    std::string brush;
    for (std::string const& call : log.Calls())
    {
        if (call.starts_with("SetPen "))
            pen = call;
        else if (call.starts_with("SetBrush "))
            brush = call;
        else if (call == wanted)
            return pen + ", " + brush;
    }
    return "not called";
}

}  // namespace

// The strip ---------------------------------------------------------------------------------------------------------------

TEST_F(HeaderPaint, WithoutAScrollModelItDrawsItsBackgroundAlone)
{
    m_Header.SetHorzScroll(nullptr);
    PaintLog const log = Draw();
    EXPECT_EQ(CallsFrom(log, "FillRect"), "0 0 199 60");
    EXPECT_THAT(log, Draws("SetBrush yellow").Then("FillRect*"));
    EXPECT_THAT(log, Not(Draws("DrawString*")));
    EXPECT_THAT(log, Not(Draws("SetClipRect*")));
}

TEST_F(HeaderPaint, WithoutAModelItDrawsItsBackgroundAlone)
{
    m_Header.SetModel(nullptr);
    EXPECT_EQ(CallsFrom(Draw(), "FillRect"), "0 0 199 60");
}

TEST_F(HeaderPaint, SectionsAreDrawnParentsFirstInsideTheBounds)
{
    PaintLog const log = Draw();
    EXPECT_EQ(CallsFrom(log, "FillRect"), "0 0 199 60; 0 0 99 19; 0 20 39 60; 40 20 99 39; 40 40 69 60; 70 40 99 60; "
                                          "100 0 199 60");
    EXPECT_EQ(CallsFrom(log, "SetClipRect"), "0 0 199 60");
}

TEST_F(HeaderPaint, OnlySectionsThatShowAreDrawn)
{
    m_Scroll.m_Start = 75;  // a ends at -36, x at -6, y from -5
    EXPECT_EQ(CallsFrom(Draw(), "FillRect"), "0 0 199 60; -75 0 24 19; -35 20 24 39; -5 40 24 60; 25 0 199 60");
}

TEST_F(HeaderPaint, TheRestOfTheStripIsASectionWithoutAnItem)
{
    m_Header.SetStretchLastItem(false);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 100 0 149 60").Then("FillRect 150 0 219 60"));
    m_Tree["B"].m_Width = 119;  // ends at 218; the rest begins at 219 and has no width
    m_Tree.m_SigChanged();
    EXPECT_THAT(Draw(), Not(Draws("FillRect 219*")));
}

TEST_F(HeaderPaint, APartIsDrawnBehindTheOther)
{
    CTellingLook look;
    m_Header.SetItemVisualisation(&look);
    m_Tree.Read("A:60");
    m_Tree.m_SigChanged();
    look.m_Told.clear();
    Draw();
    EXPECT_EQ(look.m_Told, "back A (0, 0, 199, 60); button A (1, 2, 3, 4); content A (5, 6, 7, 8); ");
    m_Header.SetItemVisualisation(nullptr);
    EXPECT_EQ(m_Header.GetItemVisualisation(), static_cast<IHeaderItemVisualisation*>(&m_Header));
}

TEST_F(HeaderPaint, ASingleSectionIsCutIfItIsToFit)
{
    m_Tree.Read("A:300");
    m_Tree.m_SigChanged();
    m_Header.SetStretchLastItem(false);
    m_Scroll.m_Start = 20;
    EXPECT_THAT(Draw(), Draws("FillRect -20 0 279 60"));
    m_Header.SetSingleColumnFit(true);
    EXPECT_THAT(m_Host.Paint(), Draws("FillRect 0 0 199 60").Then("FillRect 0 0 199 60"));
}

// Texts -------------------------------------------------------------------------------------------------------------------

TEST_F(HeaderPaint, TextsAreDimmedWithoutTheFocusAndWhenDisabled)
{
    m_Header.SetFgColor(color_table[4]);
    EXPECT_THAT(Draw(), Draws("SetTextColor #808080").Then("DrawStringEx \"A\"*"));
    m_Host.Focus();
    EXPECT_TRUE(m_Host.IsFramePending());
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetTextColor blue").Then("DrawStringEx \"A\"*"));
    m_Header.SetEnabled(false);
    EXPECT_THAT(Draw(), Draws("SetTextColor #808080").Then("DrawStringEx \"A\"*"));
}

TEST_F(HeaderPaint, ATextStandsFourPixelsInside)
{
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"a\" 4 20 35 60 0x121").Then("DrawStringEx \"B\" 104 0 195 60 0x121"));
}

TEST_F(HeaderPaint, ATextKeepsClearOfTheButton)
{
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"A\" 4 0 80 19 0x121"));
}

TEST_F(HeaderPaint, AnImageStandsBeforeTheText)
{
    CTestImages images({{6, 6}});
    m_Host.Control().GetControl()->SetImageList(&images);
    m_Tree["B"].m_Image = 0;
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"B\" 113*"));
    EXPECT_EQ(images.Take(), "draw 0 at 104 27");
    m_Host.Control().GetControl()->SetImageList(nullptr);
}

// Background --------------------------------------------------------------------------------------------------------------

TEST_F(HeaderPaint, ASectionIsFilledAndEdgedBelowAndAtTheRight)
{
    // Window colour white, window text black: 2 and 40 hundredths of the way.
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetBrush #F9F9F9")
                         .Then("FillRect 0 0 99 19")
                         .Then("SetPen #999999")
                         .Then("MoveTo 0 19")
                         .Then("LineTo 99 19")
                         .Then("LineTo 99 0")
                         .Then("LineTo 0 0"));
    // Not at the strip's top: no line above.
    EXPECT_EQ(CallsFrom(log, "LineTo").find("39 20; 0 20"), std::string::npos);
    EXPECT_THAT(log, Draws("MoveTo 0 60").Then("LineTo 39 60").Then("LineTo 39 20"));
}

TEST_F(HeaderPaint, AHotAndAPressedSectionGoTowardsTheHighlight)
{
    Move(10, 30);
    PaintLog const hot = m_Host.Paint().Of("header");
    m_Host.Mouse().Press();
    PaintLog const pressed = m_Host.Paint().Of("header");
    m_Host.Mouse().Release();
    _color const highlight = GetSysPalette()->GetColor(ISysPalette::scHighlight);
    auto const mix = [&](double part) {
        auto const channel = [&](int to) { return static_cast<int>(255 + (to - 255) * part); };
        char text[8];
        std::snprintf(text, sizeof text, "#%02X%02X%02X", channel(highlight.Red()), channel(highlight.Green()),
                      channel(highlight.Blue()));
        return std::string(text);
    };
    EXPECT_THAT(hot, Draws("SetBrush " + mix(0.2)).Then("FillRect 0 20 39 60").Then("SetPen " + mix(0.7)));
    EXPECT_THAT(pressed, Draws("SetBrush " + mix(0.3)).Then("FillRect 0 20 39 60").Then("SetPen " + mix(0.9)));
}

TEST_F(HeaderPaint, APressedSectionsContentMovesByAPixel)
{
    Press(10, 30);
    EXPECT_THAT(m_Host.Paint(), Draws("DrawStringEx \"a\" 5 21 36 61 0x121"));
    m_Host.Mouse().Release();
    Press(10, 10);
    EXPECT_THAT(m_Host.Paint(), Draws("Rectangle 86 5 96 15"));
    m_Host.Mouse().Release();
}

TEST_F(HeaderPaint, TheNativeLookIsDrawnByThePlatform)
{
    m_Header.SetNativeDrawing(true);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 0 0 20 39 60 0x0"));
    Move(10, 30);
    EXPECT_THAT(m_Host.Paint(), Draws("DrawControlElement 0 0 20 39 60 0x4"));
    m_Host.Mouse().Press();
    EXPECT_THAT(m_Host.Paint(), Draws("DrawControlElement 0 0 20 39 60 0x8"));
    m_Host.Mouse().Release();
    m_Host.Mouse().Leave();
    m_Header.SetEnabled(false);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 0 0 20 39 60 0x1"));
}

TEST_F(HeaderPaint, ANativeSectionIsCutNearTheHeader)
{
    m_Header.SetNativeDrawing(true);
    m_Header.SetStretchLastItem(false);
    m_Tree["B"].m_Width = 400;
    m_Tree.m_SigChanged();
    m_Scroll.m_Start = 30;
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("DrawControlElement 0 -4 0 69 19 0x0").Then("DrawControlElement 0 70 0 203 60 0x0"));
}

// Button ------------------------------------------------------------------------------------------------------------------

TEST_F(HeaderPaint, AButtonShowsADoubleChevron)
{
    // A's, from 85 to 95 and 4 to 14, expanded: to the left, two pixels inside, 3 apart; each doubled a pixel further.
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetPen #808080")
                         .Then("Rectangle 85 4 95 14")
                         .Then("MoveTo 93 6")
                         .Then("LineTo 90 9")
                         .Then("LineTo 93 12")
                         .Then("MoveTo 90 6")
                         .Then("LineTo 87 9")
                         .Then("LineTo 90 12")
                         .Then("MoveTo 92 6")
                         .Then("MoveTo 89 6"));
    m_Header.ExpandItem(&m_Tree["A"], false);  // 50 wide: from 35
    EXPECT_THAT(Draw(), Draws("Rectangle 35 4 45 14")
                            .Then("MoveTo 37 6")
                            .Then("LineTo 40 9")
                            .Then("LineTo 37 12")
                            .Then("MoveTo 40 6")
                            .Then("LineTo 43 9")
                            .Then("MoveTo 38 6")
                            .Then("MoveTo 41 6"));
}

TEST_F(HeaderPaint, AHotButtonHasTheTextsColour)
{
    m_Host.Focus();
    PaintLog const log = Draw();
    EXPECT_EQ(ToolsOf(log, "Rectangle 85 4 95 14"), "SetPen #404040, SetBrush #C0C0C0");
    EXPECT_EQ(ToolsOf(log, "MoveTo 93 6"), "SetPen #404040, SetBrush #C0C0C0");
    EXPECT_EQ(ToolsOf(log, "MoveTo 92 6"), "SetPen #808080, SetBrush #C0C0C0");  // the second time
    Move(90, 8);
    // A quarter of the way from the face, #C0C0C0, to the highlight, #3060C0.
    EXPECT_EQ(ToolsOf(m_Host.Paint(), "Rectangle 85 4 95 14"), "SetPen #101010, SetBrush #9CA8C0");
}

TEST_F(HeaderPaint, AHotButtonHasItAlsoWithoutTheFocus)
{
    EXPECT_EQ(ToolsOf(Draw(), "Rectangle 85 4 95 14"), "SetPen #808080, SetBrush #C0C0C0");
    Move(90, 8);
    EXPECT_EQ(ToolsOf(m_Host.Paint(), "Rectangle 85 4 95 14"), "SetPen #101010, SetBrush #9CA8C0");
}

TEST_F(HeaderPaintScaled, ButtonsGrowWithTheScale)
{
    // Levels of 30, A from 0 to 159: the button from 131 to 151, 8 to 28; margin 4, 6 apart.
    EXPECT_THAT(Draw(), Draws("Rectangle 131 8 151 28")
                            .Then("MoveTo 147 12")
                            .Then("LineTo 141 18")
                            .Then("LineTo 147 24")
                            .Then("MoveTo 141 12"));
}

// Sort mark ---------------------------------------------------------------------------------------------------------------

TEST_F(HeaderPaint, AMarkStandsBehindTheText)
{
    m_Tree["B"].m_Sorting = 1;
    // The label from 104 to 112, its room up to 180; 3 further; 9 high in the middle of the section's 60, less a half.
    PaintLog const log = Draw();
    EXPECT_THAT(
        log,
        Draws("DrawStringEx \"B\" 104 0 180 60 0x121").Then("SetBrush #404040").Then("Polygon 120 29 124 33 116 33"));
    m_Tree["B"].m_Sorting = 2;
    EXPECT_THAT(Draw(), Draws("Polygon 115 29 123 29 119 33"));
}

TEST_F(HeaderPaint, AMarkStaysInItsSection)
{
    m_Tree["a"].m_Sorting = 1;
    m_Tree["a"].m_Name = "a long name";
    // Content from 4 to 35; the mark's 15 begin at 20.
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("DrawStringEx \"a long name\" 4 20 20 60 0x121"));
    std::string const marks = CallsFrom(log, "Polygon");
    EXPECT_EQ(marks.substr(0, 3), "28 ");  // (20 + 3) + 5, the tip
}

TEST_F(HeaderPaint, AMarkBeginsNoFurtherLeftThanItsSectionsContent)
{
    m_Tree["a"].m_Sorting = 1;
    m_Tree["a"].m_Width = 20;
    m_Tree["a"].m_Align = 0x22;  // at the right
    m_Tree.m_SigChanged();
    // Content from 4 to 15, less the mark's 15: nothing is left of it.
    std::string const marks = CallsFrom(Draw(), "Polygon");
    EXPECT_EQ(marks.substr(0, 3), "12 ");  // (4 + 3) + 5, the tip
}

TEST_F(HeaderPaint, AMarkWithoutATextStandsAtTheLeft)
{
    m_Tree["B"].m_Sorting = 2;
    m_Tree["B"].m_Name = "";
    EXPECT_THAT(Draw(), Draws("Polygon 105 29 113 29 109 33"));
}

TEST_F(HeaderPaint, AnotherLookDrawsTheMarksOfContentsThatTheHeaderDraws)
{
    CMarkingLook look(m_Header);
    m_Header.SetItemVisualisation(&look);
    m_Tree["a"].m_Sorting = 1;
    m_Tree["B"].m_Sorting = 2;
    EXPECT_THAT(Draw(), Not(Draws("Polygon*")));
    EXPECT_EQ(look.m_Told, "up at 15; down at 115; ");  // labels of 8 from 4 and from 104, 3 further
    m_Header.SetItemVisualisation(nullptr);
}
