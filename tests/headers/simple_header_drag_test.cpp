// A user drags a section to another place.

#include "tests/headers/header_bench.h"
#include "tests/support/slot.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/views/continuous_item_view_model.h"

#include <gmock/gmock.h>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

// Sections 0 to 49, 50 to 109, 110 to 149; the strip ends at 199.
class SimpleHeaderDrag : public CHeaderOnSide
{
protected:
    SimpleHeaderDrag()
    {
        HearAll(m_Log);
        m_Sections.ConnectHeader(&m_Header);
    }
    // Pressed at `from`, and moved until the drag has begun; `to` is the pointer's place then.
    void Start(int from, int to)
    {
        Press(from);
        m_Log.Clear();
        Move(to);
    }
    // What was said but for the targets on the way.
    std::string TakeDropped()
    {
        std::string text;
        for (std::string const& entry : m_Log.Entries())
            if (!entry.starts_with("dragOver") && !entry.starts_with("can"))
                text += entry;
        m_Log.Clear();
        return text;
    }
    // Narrows the pane, and with it the strip, to 30 ... 169 of the header.
    void NarrowPane()
    {
        m_Pane.SetAlignment(alNone);
        m_Pane.SetPos(IsUpright() ? rectangle<int>{40, 30, 160, 169} : rectangle<int>{30, 40, 169, 160}, false);
        m_Host.Paint();
    }
    // The pane's side of the header, 60 pixels away.
    int InPane() const { return GetParam() == alTop || GetParam() == alLeft ? 80 : -60; }
    std::string Text(int along, int across) const
    {
        point<int> const place = At(along, across);
        return std::to_string(place.x) + " " + std::to_string(place.y);
    }
    std::string Triangle(int along, int across) const
    {
        return "Polygon " + Text(along, across) + " " + Text(along + 12, across) + " " + Text(along + 6, across + 6);
    }
    // What was painted behind the elements.
    PaintLog Frame() { return m_Host.Paint(); }

    CSignalLog m_Log;
};
using SimpleHeaderDragAtTop = CHeaderBench;
INSTANTIATE_TEST_SUITE_P(AtEdge, SimpleHeaderDrag, testing::Values(alTop, alBottom, alLeft, alRight));

}  // namespace

// Start ----------------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderDrag, ASectionThatIsPulledIsDragged)
{
    Press(10);
    m_Log.Clear();
    Move(12);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stPressed);
    Move(13);
    EXPECT_EQ(m_Log.Take(), "canDrag(0, true) dragOver(0, 0)");
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stDragging);
    EXPECT_EQ(m_Header.GetActiveSection(), 0);
    EXPECT_EQ(Dragged(), &m_Header);
    Move(80);
    EXPECT_EQ(m_Log.Take(), "dragOver(0, 1)");
    Move(112);
    EXPECT_EQ(m_Log.Take(), "dragOver(0, 1)");  // the divider belongs to the section before it
    Release();
    EXPECT_EQ(m_Log.Take(), "moved(0, 1)");
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(m_Header.GetActiveSection(), -1);
    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_EQ(m_Sections.Order(), "BAC");
}

TEST_P(SimpleHeaderDrag, ARefusedDragStaysAPress)
{
    auto const no = Listen(m_Header.m_SigCanDrag, [](CSimpleHeader*, int, bool* allow) { *allow = false; });
    Press(10);
    Move(80);
    EXPECT_EQ(m_Log.Count("canDrag"), 1);
    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stPressed);
    Release();
    EXPECT_EQ(TakeDropped(), "clicked(0)");
}

TEST_P(SimpleHeaderDrag, WithoutTheStyleNothingIsDragged)
{
    m_Header.SetStyle(CSimpleHeader::hsResize | CSimpleHeader::hsPress);
    Press(10);
    Move(80);
    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_EQ(m_Log.Count("canDrag"), 0);
    Release();
}

TEST_P(SimpleHeaderDrag, ASectionThatMustNotBePressedCanBeDragged)
{
    m_Header.SetStyle(CSimpleHeader::hsDrag);
    Start(10, 80);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stDragging);
    Release();
    EXPECT_EQ(TakeDropped(), "moved(0, 1)");
}

TEST_P(SimpleHeaderDrag, OnlySectionsAreDragged)
{
    for (int along : {48, 170, -3})
    {
        DragInfo info;
        EXPECT_FALSE(m_Header.HandleStartDragging(At(along).x, At(along).y, info)) << along;
    }
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Header.GetActiveSection(), -1);
}

TEST_P(SimpleHeaderDrag, NothingIsDraggedDuringAResize)
{
    Press(48);
    DragInfo info;
    EXPECT_FALSE(m_Header.HandleStartDragging(At(80).x, At(80).y, info));
    EXPECT_EQ(m_Header.GetActiveSection(), 0);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stResizing);
    Release();
}

TEST_P(SimpleHeaderDrag, TheDragTakesTheSectionsPlaceAndTheHeadersBoundsInControlPixels)
{
    rectangle<int> section = Span(50, 109);
    rectangle<int> bounds = m_Header.GetBounds();
    m_Header.ElementToControl(&section);
    m_Header.ElementToControl(&bounds);
    DragInfo info;
    EXPECT_TRUE(m_Header.HandleStartDragging(At(80).x, At(80).y, info));
    EXPECT_EQ(info.m_Rect, section);
    EXPECT_EQ(info.m_Bounds, bounds);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stDragging);

    rectangle<int> limit = Span(5, 100);
    m_Header.SetDragRect(limit);
    m_Header.ElementToControl(&limit);
    EXPECT_TRUE(m_Header.HandleStartDragging(At(80).x, At(80).y, info));
    EXPECT_EQ(info.m_Bounds, limit);

    info.m_Data = 7;
    m_Header.HandleDragFinished(nullptr, info);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(info.m_Rect, rectangle<int>());
    EXPECT_EQ(info.m_Bounds, rectangle<int>());
    EXPECT_EQ(info.m_Data, 0);
}

// Drop -----------------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderDrag, ADropOnTheSectionItselfIsAMoveToItsPlace)
{
    Start(10, 30);
    Release();
    EXPECT_EQ(TakeDropped(), "moved(0, 0)");
    EXPECT_EQ(m_Sections.Order(), "ABC");
}

TEST_P(SimpleHeaderDrag, ADropOnADividerGoesToTheSectionBeforeIt)
{
    Start(130, 52);
    Release();
    EXPECT_EQ(TakeDropped(), "moved(2, 0)");
    EXPECT_EQ(m_Sections.Order(), "CAB");
}

TEST_P(SimpleHeaderDrag, ADropBehindTheLastSectionGoesToTheEnd)
{
    Start(10, 170);
    EXPECT_EQ(m_Log.Take(), "canDrag(0, true) dragOver(0, 0)");
    Release();
    EXPECT_EQ(TakeDropped(), "moved(0, 2)");
    EXPECT_EQ(m_Sections.Order(), "BCA");
}

// Not to the front.
TEST_P(SimpleHeaderDrag, ADropBeforeTheStripGoesToTheEnd)
{
    NarrowPane();
    Start(100, 20);
    Release();
    EXPECT_EQ(TakeDropped(), "moved(1, 2)");
}

TEST_P(SimpleHeaderDrag, ADropBeforeTheHeaderGoesToTheEnd)
{
    Start(60, -5);
    Release();
    EXPECT_EQ(TakeDropped(), "moved(1, 2)");
}

TEST_P(SimpleHeaderDrag, ADropBehindTheStripOrElsewhereDropsNothing)
{
    for (auto const& [along, across] : {std::pair{180, 10}, {205, 10}, {80, InPane()}})
    {
        NarrowPane();
        Start(100, 120);
        Move(along, across);
        m_Log.Clear();
        m_Host.Paint();
        Release();
        EXPECT_EQ(TakeDropped(), "") << along;
        EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
        EXPECT_EQ(m_Header.GetActiveSection(), -1);
        EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    }
    EXPECT_EQ(m_Sections.Order(), "ABC");
}

TEST_P(SimpleHeaderDrag, ADropWithoutAnActiveSectionDropsNothing)
{
    DragInfo info;
    m_Header.HandleDropDone(&m_Header, At(80).x, At(80).y, info);
    EXPECT_EQ(m_Log.Text(), "");
    m_Sections.m_Widths.clear();
    m_Header.HandleDropDone(&m_Header, At(-5).x, At(-5).y, info);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_P(SimpleHeaderDrag, WithoutSectionsThereIsNoLastToDropOn)
{
    Start(10, 80);
    m_Sections.m_Widths.clear();
    Move(-5);
    m_Log.Clear();
    Release();
    EXPECT_EQ(TakeDropped(), "");
    EXPECT_EQ(m_Header.GetActiveSection(), -1);
}

TEST_P(SimpleHeaderDrag, TheViewModelFollowsTheMove)
{
    CDefaultColumnViewModel columns;
    columns.SetCount(3);
    for (int i = 0; i < 3; ++i)
        columns.SetItemSize(i, 50 + i);
    m_Header.SetViewModel(&columns);
    std::string widths;
    auto const slot = Listen(m_Header.m_SigSectionMoved, [&](CSimpleHeader* header, int, int) {
        widths += std::to_string(header->GetActiveSection()) + " at " + std::to_string(columns.GetItemSize(0));
    });
    Start(10, 130);
    Release();
    EXPECT_EQ(widths, "0 at 50");  // the view model hears of it last
    EXPECT_EQ(columns.GetItemSize(0), 51);
    EXPECT_EQ(columns.GetItemSize(1), 52);
    EXPECT_EQ(columns.GetItemSize(2), 50);

    m_Header.SetModel(nullptr);
    Start(10, 130);
    Release();
    EXPECT_EQ(TakeDropped(), "moved(0, 2)");
    EXPECT_EQ(columns.GetItemSize(0), 51);
    m_Header.SetViewModel(nullptr);
}

TEST_P(SimpleHeaderDrag, AViewModelWithoutAModelIsToldOfNoMove)
{
    class CCounting : public CDefaultColumnViewModel
    {
    public:
        int m_Moves = 0;
        void UpdateModelState(IIndexTranslator*) override { ++m_Moves; }
    } columns;
    columns.SetCount(3);
    m_Header.SetViewModel(&columns);
    Start(5, 30);
    Release();
    EXPECT_EQ(columns.m_Moves, 1);
    m_Header.SetModel(nullptr);
    Start(5, 30);
    Release();
    EXPECT_EQ(columns.m_Moves, 1);
    m_Header.SetViewModel(nullptr);
}

TEST_P(SimpleHeaderDrag, ADropRepaintsTheHeader)
{
    DragInfo info;
    EXPECT_TRUE(m_Header.HandleStartDragging(At(10).x, At(10).y, info));
    m_Host.Paint();
    m_Header.HandleDropDone(&m_Header, At(80).x, At(80).y, info);
    EXPECT_EQ(m_Log.Text(), "canDrag(0, true) moved(0, 1)");
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
    m_Header.HandleDragFinished(nullptr, info);
}

TEST_P(SimpleHeaderDrag, AHeaderTakesItsOwnSectionsOnly)
{
    DragInfo info;
    EXPECT_TRUE(m_Header.HandleDragOver(&m_Header));
    EXPECT_FALSE(m_Header.HandleDragOver(&m_Pane));
    EXPECT_FALSE(m_Header.HandleDragOver(&m_Pane, At(80).x, At(80).y, info));
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_TRUE(m_Header.HandleDragOver(&m_Header, At(80).x, At(80).y, info));
    EXPECT_EQ(m_Log.Text(), "dragOver(-1, 1)");
}

TEST_F(SimpleHeaderDragAtTop, ASubclassMayTakeSectionsOfOthers)
{
    class COpen : public CSimpleHeader
    {
    public:
        using CSimpleHeader::CSimpleHeader;
        using CSimpleHeader::HandleDragOver;
        bool HandleDragOver(CVisualElement* source) override { return source != nullptr; }
    };
    COpen open(nullptr, {20, 20}, alTop);
    DragInfo info;
    EXPECT_TRUE(static_cast<CDropTarget&>(open).HandleDragOver(&m_Pane, 5, 5, info));
}

// The picture -----------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderDrag, ThePictureOfTheSectionMovesWithThePointer)
{
    Start(10, 100);
    PaintLog const log = Frame();
    std::string const blend = IsUpright() ? "AlphaBlend 21x50 0 90 20 139 70" : "AlphaBlend 50x21 90 0 139 20 70";
    EXPECT_THAT(log, Draws("picture SetBrush #C0C0C0")
                         .Then(IsUpright() ? "picture FillRect 0 0 20 49" : "picture FillRect 0 0 49 20")
                         .Then("picture SetFont \"Square\" 8")
                         .Then(IsUpright() ? "picture DrawStringEx \"A\" 1 5 19 44 0x10C"
                                           : "picture DrawStringEx \"A\" 5 1 44 19 0x121")
                         .Then(blend)
                         .Then("SetPen red")
                         .Then("SetBrush red")
                         .Then(Triangle(44, 12)));
    if (GetParam() == alTop)
        EXPECT_THAT(log, Draws("picture DrawControlElement 0 1 1 48 19 0x4"));
    else
        EXPECT_THAT(log, Draws(IsUpright() ? "picture FillRect 1 1 1 48" : "picture FillRect 1 1 1 19"));
    Move(103);
    EXPECT_THAT(Frame(), Draws(IsUpright() ? "AlphaBlend 21x50 0 93*" : "AlphaBlend 50x21 93 0*"));
    Release();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Only the strip's own captions are turned before they are drawn, and so twice.
TEST_P(SimpleHeaderDrag, TheCaptionInThePictureIsDrawnInTheElementsFont)
{
    font bold;
    bold.style = font::fsBold;
    m_Header.SetFont(bold);
    m_Header.SetFgColor(color_table[4]);
    Start(10, 100);
    std::string const turned = IsUpright() ? " rotation 2700" : "";
    PaintLog const log = Frame();
    EXPECT_THAT(log, Draws("picture FillRect*")
                         .Then("picture SetFont \"Square\" 8 bold")
                         .Then("picture SetTextColor blue")
                         .Then("picture SetFont \"Square\" 8 bold" + turned)
                         .Then("picture DrawStringEx*")
                         .Then("picture SetFont \"Square\" 8 bold"));
    Release();
}

TEST_P(SimpleHeaderDrag, ThePictureStaysOnTheHeader)
{
    Start(10, 100);
    Move(199, InPane());
    EXPECT_THAT(Frame(), Draws(IsUpright() ? "AlphaBlend 21x50 0 150 20 199 70" : "AlphaBlend 50x21 150 0 199 20 70"));
    m_Header.SetDragRect(Span(0, 100));
    Release();
    Start(60, 100);
    Move(190);
    EXPECT_THAT(Frame(), Draws(IsUpright() ? "AlphaBlend 21x60 0 41 20 100 70" : "AlphaBlend 60x21 41 0 100 20 70"));
    Release();
}

TEST_F(SimpleHeaderDragAtTop, TheSectionIsDrawnAPixelInsideItsPicture)
{
    class CTelling : public CSimpleHeader
    {
    public:
        using CSimpleHeader::CSimpleHeader;
        std::string m_Told;
        void DrawSectionRect(IPainter*, rectangle<double> const& rect, int section) override
        {
            m_Told += std::to_string(section) + " at " + Describe(rect) + "; ";
        }
    };
    CTelling header(m_Host.Root(), {20, 20}, alNone);
    header.SetPos({0, 50, 100, 70}, true);
    header.SetCentralPane(&m_Pane);
    header.SetModel(&m_Sections);
    auto const draw = [&](rectangle<int> const& place) {
        auto const slot = Listen(m_Pane.m_SigDraw, [&](CVisualElement*, IPainter* painter) {
            DragInfo info;
            info.m_Rect = place;
            header.HandleDrawDragItem(painter, info, true, nullptr);
        });
        m_Pane.Update(utElement);
        m_Host.Paint();
        return std::exchange(header.m_Told, "");
    };
    EXPECT_EQ(draw({5, 50, 45, 70}), "-1 at (1, 1, 39, 19); ");
    EXPECT_EQ(draw({5, 50, 6, 51}), "-1 at (1, 1, 0, 0); ");
    EXPECT_EQ(draw({}), "");
}

TEST_P(SimpleHeaderDrag, ThePointerStandsBeforeTheTarget)
{
    Start(10, 130);
    EXPECT_THAT(Frame(), Draws(Triangle(104, 12)));
    Move(80, InPane());  // only where along counts
    EXPECT_THAT(Frame(), Draws(Triangle(44, 12)));
    Move(112);
    EXPECT_THAT(Frame(), Draws(Triangle(44, 12)));
    Move(5);
    EXPECT_THAT(Frame(), Draws(Triangle(-6, 12)));
    Move(170);  // the empty end is no section's
    EXPECT_THAT(Frame(), Draws(Triangle(-6, 12)));
    Move(210);
    EXPECT_THAT(Frame(), Not(Draws("Polygon*")));
    Release();
}

TEST_P(SimpleHeaderDrag, ThePointerOfASectionThatBeginsBeforeTheHeaderStandsAtTheHeadersBeginning)
{
    m_Scroll.m_Start = 20;
    Start(10, 15);
    EXPECT_THAT(Frame(), Draws(Triangle(-6, 12)));
    Release();
}

TEST_P(SimpleHeaderDrag, ThePointerCanBeTurnedOff)
{
    m_Header.SetShowDragPointer(false);
    Start(10, 130);
    PaintLog const log = Frame();
    EXPECT_THAT(log, Draws("AlphaBlend*"));
    EXPECT_THAT(log, Not(Draws("Polygon*")));
    Release();
}

TEST_P(SimpleHeaderDrag, ThePointersPixels)
{
    m_Header.SetNativeDrawing(false);
    m_Sections.m_TextAlign = 0x09;
    m_Sections.m_Widths = {100, 60};
    Start(105, 110);
    m_Host.Paint();
    CLegend legend = CLegend::Empty();
    legend.Set('r', color_table[6]);
    rectangle<int> area = IsUpright() ? rectangle<int>{12, 93, 19, 108} : rectangle<int>{93, 12, 108, 19};
    m_Header.ElementToControl(&area);
    std::string const pixels = m_Host.PixelText(area, legend);
    if (IsUpright())
        EXPECT_EQ(pixels, "???????\nr??????\nrr?????\nrrr????\nrrrr???\nrrrrr??\nrrrrrr?\nrrrrrrr\nrrrrrr?\nrrrrr??\n"
                          "rrrr???\nrrr????\nrr?????\nr??????\n???????\n");
    else
        EXPECT_EQ(pixels, "?rrrrrrrrrrrrr?\n??rrrrrrrrrrr??\n???rrrrrrrrr???\n????rrrrrrr????\n?????rrrrr?????\n"
                          "??????rrr??????\n???????r???????\n");
    Release();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Scrolling on the way ----------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderDrag, BeforeTheStripItScrollsBack)
{
    NarrowPane();
    m_Scroll.m_Start = 20;
    Start(40, 45);
    EXPECT_FALSE(m_Header.IsScrolling());
    Move(29);
    EXPECT_TRUE(m_Header.IsScrolling());
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Scroll.m_Start, 12);
    Move(31);  // two pixels off, and back on the strip
    EXPECT_FALSE(m_Header.IsScrolling());
    Move(-5);
    m_Host.Clock().Advance(200);
    EXPECT_EQ(m_Scroll.m_Start, 0);
    EXPECT_FALSE(m_Header.IsScrolling());
    Release();
}

TEST_P(SimpleHeaderDrag, BehindTheStripItScrollsOn)
{
    NarrowPane();
    Start(60, 65);
    Move(170);
    EXPECT_TRUE(m_Header.IsScrolling());
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Scroll.m_Start, 8);
    Move(80, InPane());
    EXPECT_FALSE(m_Header.IsScrolling());
    Move(199, InPane());
    EXPECT_FALSE(m_Header.IsScrolling());
    Move(0, InPane());
    EXPECT_FALSE(m_Header.IsScrolling());
    Move(200);
    EXPECT_TRUE(m_Header.IsScrolling());
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Scroll.m_Start, 16);
    Release();
    EXPECT_FALSE(m_Header.IsScrolling());
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Scroll.m_Start, 16);
}

TEST_P(SimpleHeaderDrag, APointerThatGoesOnEndsTheScroll)
{
    NarrowPane();
    Start(60, 65);
    Move(175);
    Move(180);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Scroll.m_Start, 0);
    EXPECT_FALSE(m_Header.IsScrolling());
    Release();
}

TEST_P(SimpleHeaderDrag, ATremblingPointerDoesNotDelayTheScroll)
{
    NarrowPane();
    Start(60, 65);
    Move(175);
    m_Host.Clock().Advance(60);
    Move(176);
    m_Host.Clock().Advance(60);
    EXPECT_EQ(m_Scroll.m_Start, 8);
    Release();
}

TEST_P(SimpleHeaderDrag, TheDirectionStaysWhileItScrolls)
{
    NarrowPane();
    m_Scroll.m_Start = 20;
    Start(40, 45);
    Move(29);
    Move(199);
    Move(29);  // where the scroll began
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Scroll.m_Start, 12);
    Release();
}

TEST_P(SimpleHeaderDrag, OverTheEmptyEndAScrollNeitherStartsNorStops)
{
    m_Sections.m_Widths = {50, 60, 10};
    Start(10, 15);
    Move(150);
    EXPECT_FALSE(m_Header.IsScrolling());
    Move(201);
    EXPECT_TRUE(m_Header.IsScrolling());
    Move(199);
    EXPECT_TRUE(m_Header.IsScrolling());
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Scroll.m_Start, 8);
    Release();
    EXPECT_FALSE(m_Header.IsScrolling());
}

// The automatic scroll is the horizontal one, also beside a column of rows.
TEST_F(SimpleHeaderDragAtTop, AnUprightHeaderScrollsTheOtherAxis)
{
    CPixelScroll vertical;
    m_Header.SetVertScroll(&vertical);
    m_Header.SetAlignment(alLeft);
    m_Host.Paint();
    Press(10);
    Move(15);
    Move(205);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(vertical.m_Start, 0);
    EXPECT_EQ(m_Scroll.m_Start, 8);
    Release();
}
