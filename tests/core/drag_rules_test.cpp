// Who is asked and told in a drag, what is repainted, and how the saved screen is kept true.

#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// May be dragged and accepts what it is told to; writes down its handlers.
class CPiece : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

    DragInfo m_Wanted;
    bool m_Accepts = false;
    std::string m_Told;

    bool HandleStartDragging(int x, int y, DragInfo& info) override
    {
        m_Told += "start(" + std::to_string(x) + "," + std::to_string(y) + ") ";
        m_Fresh = info;
        info = m_Wanted;
        return true;
    }
    void HandleDragFinished(CVisualElement* target, DragInfo&) override
    {
        m_Told += "finished(" + ElementName(target) + ") ";
    }
    void HandleDrawDragItem(IPainter* painter, DragInfo& info, bool accepted, CVisualElement* under) override
    {
        m_Told += std::string("item(") + (accepted ? "accepted, " : "refused, ") + ElementName(under) + ") ";
        rectangle<int> rect = info.m_Rect;
        ControlToElement(&rect);
        painter->SetBrush({color_table[6], brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    }
    bool HandleDragOver(CVisualElement*, int x, int y, DragInfo&) override
    {
        m_Told += "over(" + std::to_string(x) + "," + std::to_string(y) + ") ";
        return m_Accepts;
    }
    void HandleDropDone(CVisualElement*, int, int, DragInfo&) override { m_Told += "drop "; }
    std::string TakeTold() { return std::exchange(m_Told, ""); }

    DragInfo m_Fresh;

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        painter->FillRect(0, 0, rect.right, rect.bottom);
    }
};

// source (0, 0, 30, 39), target (31, 0, 69, 39), other (70, 0, 99, 39)
class DragRules : public testing::Test
{
protected:
    DragRules()
    {
        NameElement(m_Source, "source");
        NameElement(m_Target, "target");
        NameElement(m_Other, "other");
        m_Source.SetBkColor(color_table[3]);
        m_Target.SetBkColor(color_table[9]);
        m_Other.SetBkColor(color_table[4]);
        m_Source.m_Wanted.m_Rect = {0, 0, 5, 5};
        m_Host.Paint();
    }
    IControl& Control() { return *m_Host.Control().GetControl(); }
    // The pointer stands at (10, 10), the item at (10, 10, 14, 14).
    void StartByProgram(bool global, bool background = true)
    {
        DragInfo info;
        info.m_Rect = {10, 10, 14, 14};
        info.m_GlobalUpdate = global;
        info.m_UseBackground = background;
        m_Host.Mouse().Move(10, 10);
        Control().StartDragging(&m_Source, info);
    }

    CTestHost m_Host{100, 40};
    CPiece& m_Source = *new CPiece(m_Host.Root(), {30, 0}, alLeft);
    CPiece& m_Target = *new CPiece(m_Host.Root(), {38, 0}, alLeft);
    CPiece& m_Other = *new CPiece(m_Host.Root(), {0, 0}, alClient);
};

}  // namespace

// Start -------------------------------------------------------------------------------------------------------------------------

TEST_F(DragRules, EachStartIsAskedWithAFreshRecord)
{
    m_Source.m_Wanted = {{1, 2, 3, 4}, {0, 0, 90, 30}, 7, false, false};
    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(20, 10);
    m_Host.Mouse().Release();

    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(20, 10);

    EXPECT_EQ(m_Source.m_Fresh.m_Rect, rectangle<int>());
    EXPECT_EQ(m_Source.m_Fresh.m_Bounds, rectangle<int>());
    EXPECT_EQ(m_Source.m_Fresh.m_Data, 0);
    EXPECT_TRUE(m_Source.m_Fresh.m_GlobalUpdate);
    EXPECT_TRUE(m_Source.m_Fresh.m_UseBackground);
    m_Host.Mouse().Release();
}

TEST_F(DragRules, ThePlaceOfThePressIsToldInTheElementsOwnPixels)
{
    m_Host.Mouse().Press(m_Target, 4, 6);
    m_Host.Mouse().Move(m_Target, 5, 6);
    m_Target.TakeTold();

    m_Host.Mouse().Move(m_Target, 9, 7);

    EXPECT_EQ(m_Target.TakeTold(), "start(4,6) over(9,7) ");
    m_Host.Mouse().Release();
}

TEST_F(DragRules, ASlotThatHandlesTheStartSparesTheHandler)
{
    auto const refuse = Listen(m_Source.m_SigStartDragging,
                               [](CVisualElement*, int, int, DragInfo*, bool*, bool* handled) { *handled = true; });

    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(20, 10);

    EXPECT_EQ(Control().GetDraggedElement(), nullptr);
    EXPECT_EQ(m_Source.TakeTold(), "");
}

TEST_F(DragRules, ASourceThatLeavesWhileItIsAskedIsNotDragged)
{
    auto const leave = Listen(m_Source.m_SigStartDragging, [&](CVisualElement*, int, int, DragInfo*, bool*, bool*) {
        m_Source.ReParent(nullptr, false);
    });

    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(20, 10);

    EXPECT_EQ(Control().GetDraggedElement(), nullptr);
    EXPECT_FALSE(m_Host.Window().HasCapture());
    m_Host.Mouse().Release();
    delete &m_Source;
}

// Moves -------------------------------------------------------------------------------------------------------------------------

TEST_F(DragRules, TheCapturingElementIsAskedWhereverThePointerIs)
{
    StartByProgram(false);
    m_Other.CaptureMouse();

    m_Host.Mouse().Move(40, 12);

    EXPECT_EQ(m_Target.TakeTold(), "");
    EXPECT_EQ(m_Other.TakeTold(), "over(-30,12) ");
    m_Other.ReleaseMouse();
    m_Host.Mouse().Release();
}

TEST_F(DragRules, ATargetThatNoLongerAcceptsGetsNoDrop)
{
    m_Target.m_Accepts = true;
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Target.m_Accepts = false;
    m_Host.Mouse().Move(41, 12);
    m_Host.Paint();
    EXPECT_EQ(m_Source.TakeTold(), "item(refused, target) ");
    m_Target.TakeTold();

    m_Host.Mouse().Release();

    EXPECT_EQ(m_Target.TakeTold(), "");
    EXPECT_EQ(m_Source.TakeTold(), "finished(null) ");
}

TEST_F(DragRules, ATargetThatWithdrawsWhileItIsAskedGetsNoDrop)
{
    m_Target.m_Accepts = true;
    auto const withdraw = Listen(m_Target.m_SigDragOver, [&](CVisualElement*, CVisualElement*, DragInfo*, bool*,
                                                             bool*) { Control().SetDragTarget(nullptr); });
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Target.TakeTold();

    EXPECT_EQ(m_Host.Window().GetCursor(), 13);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Target.TakeTold(), "");
}

TEST_F(DragRules, TheMoveIsToldInControlPixels)
{
    StartByProgram(false);
    CVisualElement* who = nullptr;
    point<int> where;
    auto const slot = Listen(Control().m_SigDragMove, [&](CVisualElement* element, int x, int y) {
        who = element;
        where = {x, y};
    });

    m_Host.Mouse().Move(40, 12);

    EXPECT_EQ(who, &m_Source);
    EXPECT_EQ(where, (point<int>{40, 12}));
    m_Host.Mouse().Release();
}

TEST_F(DragRules, TheBoundsHoldTheItemUpAndDownToo)
{
    m_Source.m_Wanted.m_Rect = {0, 10, 5, 15};
    m_Source.m_Wanted.m_Bounds = {0, 5, 99, 30};
    m_Source.m_Wanted.m_GlobalUpdate = false;
    rectangle<int> item;
    auto const slot = Listen(m_Source.m_SigDrawDragItem, [&](CVisualElement*, CVisualElement*, IPainter*,
                                                             DragInfo* info, bool, bool*) { item = info->m_Rect; });
    m_Host.Mouse().Press(10, 20);
    m_Host.Mouse().Move(20, 0);
    m_Host.Paint();
    EXPECT_EQ(item, (rectangle<int>{10, 5, 15, 10}));

    m_Host.Mouse().Move(20, 39);
    m_Host.Paint();
    EXPECT_EQ(item, (rectangle<int>{10, 25, 15, 30}));
    m_Host.Mouse().Release();
}

TEST_F(DragRules, HoveringIsNotToldDuringADrag)
{
    StartByProgram(false);
    CSignalLog log(m_Target.m_SigMouseHover, "hover");
    log.Add(m_Source.m_SigMouseLeave, "leave");

    m_Host.Mouse().Move(40, 12);

    EXPECT_EQ(log.Text(), "leave()");
    m_Host.Mouse().Release();
}

// Repaints ----------------------------------------------------------------------------------------------------------------------

TEST_F(DragRules, AMoveOfAGlobalDragRepaintsEverythingOfAnotherOneTheSource)
{
    StartByProgram(true);
    m_Host.Mouse().Move(40, 12);
    EXPECT_EQ(m_Host.Paint().Elements(), "CContent source target other");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Host.Paint().Elements(), "CContent source target other");

    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Host.Paint();
    m_Host.Mouse().Move(42, 12);
    EXPECT_EQ(m_Host.Paint().Elements(), "source");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Host.Paint().Elements(), "source");
}

TEST_F(DragRules, AnItemOfAHiddenSourceMovesAllTheSame)
{
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Source.SetVisible(false);
    m_Host.Paint();

    m_Host.Mouse().Move(60, 12);

    EXPECT_TRUE(m_Host.IsFramePending());
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(62, 14), color_table[6]);
    m_Host.Mouse().Release();
}

TEST_F(DragRules, TheSavedScreenFollowsPixelsThatAreMoved)
{
    StartByProgram(false);
    m_Host.Mouse().Move(80, 12);
    m_Host.Paint();  // the item covers (80, 12, 84, 16)

    Control().ScrollContent(20, 0, {31, 0, 49, 39});  // white over the blue of (51, 0) to (69, 39): no change there
    Control().ScrollContent(30, 5, {50, 0, 60, 20});  // white to (80, 5, 90, 25)
    m_Host.Mouse().Move(20, 12);
    m_Host.Paint();

    EXPECT_EQ(m_Host.PixelAt(82, 14), color_table[9]);
    EXPECT_EQ(m_Host.PixelAt(90, 25), color_table[9]);
    EXPECT_EQ(m_Host.PixelAt(91, 25), color_table[4]);
    EXPECT_EQ(m_Host.PixelAt(90, 26), color_table[4]);
    m_Host.Mouse().Release();
}

TEST_F(DragRules, TheSavedScreenIsMadeAnewWhenTheWindowGrows)
{
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Host.Paint();
    m_Host.Resize(140, 50);
    m_Host.Paint();
    m_Host.Mouse().Move(120, 42);
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(122, 44), color_table[6]);

    m_Host.Mouse().Move(20, 12);
    m_Host.Paint();

    EXPECT_EQ(m_Host.PixelAt(122, 44), color_table[4]);
    m_Host.Mouse().Release();
}

TEST_F(DragRules, ThePictureOfTheScreenIsDroppedWithTheFirstPaintAfterTheDrag)
{
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Host.Paint();
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Host.Paint().Count("DrawRasterPicture*"), 1);

    m_Target.SetBkColor(color_table[12]);
    PaintLog const paint = m_Host.Paint();

    EXPECT_EQ(paint.Count("DrawRasterPicture*"), 0);
    EXPECT_EQ(paint.Elements(), "target");
    StartByProgram(false);
    EXPECT_EQ(m_Host.FullPaint().Count("DrawRasterPicture*"), 0);  // a new drag finds none
    m_Host.Mouse().Release();
}

TEST_F(DragRules, TheItemIsWipedAlsoAfterAPressWhoseReleaseWasLost)
{
    m_Source.m_Wanted.m_GlobalUpdate = false;
    m_Source.m_Wanted.m_UseBackground = true;
    CPixelBuffer const clean = m_Host.Pixels();
    m_Host.Mouse().Drag(5, 5, 40, 12);
    m_Host.Paint();
    m_Host.Mouse().Release();

    // Before the next paint comes another press, whose end nobody tells.
    m_Host.Mouse().Press(mbRight);
    m_Host.Mouse().LoseRelease(mbRight);
    m_Host.Mouse().Move(45, 12);
    m_Host.Paint();

    EXPECT_EQ_PIXELS(clean, m_Host.Pixels());
}

TEST_F(DragRules, ADragStartedByProgramBeforeTheLastItemWasWipedSavesTheScreenAnew)
{
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Host.Paint();
    m_Host.Mouse().Release();
    StartByProgram(false);
    m_Host.Mouse().Move(45, 20);
    m_Host.Paint();

    m_Host.Mouse().Move(80, 12);
    m_Host.Paint();

    EXPECT_EQ(m_Host.PixelAt(47, 22), color_table[9]);
    EXPECT_EQ(m_Host.PixelAt(82, 14), color_table[6]);
    m_Host.Mouse().Release();
}

TEST_F(DragRules, ADragWithoutABackgroundFindsNoPictureOfALastOne)
{
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Host.Paint();
    m_Host.Mouse().Release();
    m_Host.Paint();

    StartByProgram(false, false);
    PaintLog const paint = m_Host.FullPaint();

    EXPECT_EQ(paint.Count("ExtractRasterPicture*"), 0);
    EXPECT_EQ(paint.Count("DrawRasterPicture*"), 0);
    m_Host.Mouse().Release();
}

TEST_F(DragRules, OnlyTheFirstPaintAfterTheDragPaintsUnasked)
{
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Host.Paint();
    m_Host.Mouse().Release();
    m_Host.Paint();
    m_Host.Window().InvalidateRect(0, 0, 100, 40);

    EXPECT_EQ(m_Host.Paint().Elements(), "");
}

TEST_F(DragRules, ASlotThatHandlesTheDrawingSparesTheHandler)
{
    auto const draw = Listen(m_Source.m_SigDrawDragItem, [](CVisualElement*, CVisualElement*, IPainter*, DragInfo*,
                                                            bool, bool* handled) { *handled = true; });
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Host.Paint();

    EXPECT_EQ(m_Source.TakeTold(), "");
    EXPECT_EQ(m_Host.PixelAt(42, 14), color_table[9]);
    m_Host.Mouse().Release();
}

// End ---------------------------------------------------------------------------------------------------------------------------

TEST_F(DragRules, TheSourceIsToldTheElementUnderThePointerThoughAnotherOneCaptures)
{
    m_Other.m_Accepts = true;
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Other.CaptureMouse();
    m_Host.Mouse().Move(45, 12);
    m_Host.Paint();
    EXPECT_EQ(m_Source.TakeTold(), "item(accepted, target) ");
    m_Other.TakeTold();

    m_Host.Mouse().Release();

    EXPECT_EQ(m_Other.TakeTold(), "drop ");
    EXPECT_EQ(m_Source.TakeTold(), "finished(target) ");
    m_Other.ReleaseMouse();
}

TEST_F(DragRules, SlotsThatHandleTheDropAndTheEndSpareTheHandlers)
{
    auto const drop = Listen(m_Target.m_SigDropDone, [](CVisualElement*, CVisualElement*, int, int, DragInfo*,
                                                        bool* handled) { *handled = true; });
    auto const end = Listen(m_Source.m_SigDragFinished,
                            [](CVisualElement*, CVisualElement*, DragInfo*, bool* handled) { *handled = true; });
    m_Target.m_Accepts = true;
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);
    m_Target.TakeTold();

    m_Host.Mouse().Release();

    EXPECT_EQ(m_Target.TakeTold(), "");
    EXPECT_EQ(m_Source.TakeTold(), "");
}

TEST_F(DragRules, NobodyIsDraggedAnyMoreWhenTheEndIsTold)
{
    CVisualElement* dragged = &m_Other;
    auto const end = Listen(m_Source.m_SigDragFinished, [&](CVisualElement*, CVisualElement*, DragInfo*, bool*) {
        dragged = Control().GetDraggedElement();
    });
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);

    m_Host.Mouse().Release();

    EXPECT_EQ(dragged, nullptr);
}

TEST_F(DragRules, TheDraggedElementIsKnownWhileTheReleaseIsRouted)
{
    CVisualElement* dragged = nullptr;
    auto const up = Listen(m_Target.m_SigButtonUp, [&](CVisualElement*, int, int, int, MouseButton) {
        dragged = Control().GetDraggedElement();
    });
    StartByProgram(false);
    m_Host.Mouse().Move(40, 12);

    m_Host.Mouse().Release();

    EXPECT_EQ(dragged, &m_Source);
}

TEST_F(DragRules, ARemovedSourceGivesTheCaptureBack)
{
    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(20, 10);
    EXPECT_TRUE(m_Host.Window().HasCapture());

    delete &m_Source;

    EXPECT_FALSE(m_Host.Window().HasCapture());
    m_Host.Mouse().Release();
}
