// Drag and drop within a control.

#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

std::string Text(rectangle<int> const& rect)
{
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) + " " +
           std::to_string(rect.bottom);
}

class CTile : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

    bool m_MayStart = true;
    bool m_Accepts = false;
    bool m_UseBackground = true;
    rectangle<int> m_Bounds;
    std::string m_Told;

    bool HandleStartDragging(int x, int y, DragInfo& info) override
    {
        m_Told += "start(" + std::to_string(x) + "," + std::to_string(y) + ") ";
        rectangle<int> rect = GetBounds();
        ElementToControl(&rect);
        m_FreshRect = info.m_Rect;
        m_FreshFlags = info.m_GlobalUpdate && info.m_UseBackground;
        info.m_Rect = rect;
        info.m_Bounds = m_Bounds;
        info.m_GlobalUpdate = false;
        info.m_UseBackground = m_UseBackground;
        return m_MayStart;
    }
    void HandleDragFinished(CVisualElement* target, DragInfo& info) override
    {
        m_Told += "finished(" + ElementName(target) + ", " + Text(info.m_Rect) + ") ";
    }
    void HandleDrawDragItem(IPainter* painter, DragInfo& info, bool accepted, CVisualElement*) override
    {
        m_Drawn += std::string(accepted ? "accepted " : "refused ") + Text(info.m_Rect) + "; ";
        rectangle<int> rect = info.m_Rect;
        ControlToElement(&rect);
        brush fill;
        fill.color = color_table[6];
        painter->SetBrush(fill);
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    }
    bool HandleDragOver(CVisualElement* source, int x, int y, DragInfo&) override
    {
        m_Told += "over(" + ElementName(source) + "," + std::to_string(x) + "," + std::to_string(y) + ") ";
        return m_Accepts;
    }
    void HandleDropDone(CVisualElement* source, int x, int y, DragInfo&) override
    {
        m_Told += "drop(" + ElementName(source) + "," + std::to_string(x) + "," + std::to_string(y) + ") ";
    }
    std::string TakeTold() { return std::exchange(m_Told, ""); }

    std::string m_Drawn;
    rectangle<int> m_FreshRect;
    bool m_FreshFlags = false;

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        painter->FillRect(0, 0, rect.right, rect.bottom);
    }
};

// source (0, 0, 30, 39), target (31, 0, 99, 39)
class DragDrop : public testing::Test
{
protected:
    DragDrop()
    {
        NameElement(m_Source, "source");
        NameElement(m_Target, "target");
        m_Source.SetBkColor(color_table[3]);
        m_Target.SetBkColor(color_table[9]);
        m_Target.SetCursor(7);
        m_Host.Paint();
    }
    CVisualElement* Dragged() { return m_Host.Control().GetControl()->GetDraggedElement(); }
    // Pressed at (10, 10) and moved to where the drag has started.
    void Start()
    {
        m_Host.Mouse().Press(10, 10);
        m_Host.Mouse().Move(13, 10);
        m_Source.m_Told.clear();
        m_Target.m_Told.clear();
    }

    CTestHost m_Host{100, 40};
    CTile& m_Source = *new CTile(m_Host.Root(), {30, 0}, alLeft);
    CTile& m_Target = *new CTile(m_Host.Root(), {0, 0}, alClient);
};

}  // namespace

TEST_F(DragDrop, AMoveOfExactlyTheSensitivityIsNoDragOnePixelMoreIs)
{
    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(12, 12);
    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_EQ(m_Source.TakeTold(), "");

    m_Host.Mouse().Move(12, 13);
    EXPECT_EQ(Dragged(), &m_Source);
    EXPECT_TRUE(m_Host.Window().HasCapture());
    EXPECT_EQ(m_Source.TakeTold(), "start(10,10) over(source,12,13) ");
    EXPECT_EQ(m_Source.m_FreshRect, rectangle<int>());
    EXPECT_TRUE(m_Source.m_FreshFlags);
}

TEST_F(DragDrop, TheSensitivityCanBeSet)
{
    m_Host.Control().GetControl()->SetDragStartSensitivity({10, 4});
    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(20, 14);
    EXPECT_EQ(Dragged(), nullptr);

    m_Host.Mouse().Move(20, 15);
    EXPECT_EQ(Dragged(), &m_Source);
}

TEST_F(DragDrop, ARefusedStartIsNotTriedAgainUntilTheButtonComesUp)
{
    m_Source.m_MayStart = false;
    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(15, 10);
    m_Host.Mouse().Move(20, 10);
    EXPECT_EQ(m_Source.TakeTold(), "start(10,10) ");
    EXPECT_EQ(Dragged(), nullptr);

    m_Host.Mouse().Release();
    m_Source.m_MayStart = true;
    m_Host.Mouse().Press(20, 10);
    m_Host.Mouse().Move(25, 10);
    EXPECT_EQ(Dragged(), &m_Source);
}

TEST_F(DragDrop, TheItemMovesWithThePointerAndTheTargetIsAsked)
{
    Start();
    CSignalLog log(m_Host.Control().GetControl()->m_SigDragMove, "move");

    m_Host.Mouse().Move(50, 20);

    EXPECT_EQ(m_Target.TakeTold(), "over(source,19,20) ");
    EXPECT_EQ(m_Host.Control().GetControl()->GetDragTarget(), &m_Target);
    m_Host.Paint();
    // (0, 0) + (50 - 10, 20 - 10)
    EXPECT_EQ(m_Source.m_Drawn, "refused 40 10 70 49; ");
    EXPECT_EQ(log.Count(), 1);
    EXPECT_EQ(m_Host.Window().GetCursor(), 13);
}

TEST_F(DragDrop, AnAcceptingTargetShowsInTheCursorAndInTheItem)
{
    m_Target.m_Accepts = true;
    Start();

    m_Host.Mouse().Move(50, 10);
    m_Host.Paint();

    EXPECT_EQ(m_Host.Window().GetCursor(), 1);
    EXPECT_EQ(m_Source.m_Drawn, "accepted 40 0 70 39; ");
}

TEST_F(DragDrop, ADropOnAnAcceptingTargetTellsTheTargetAndThenTheSource)
{
    m_Target.m_Accepts = true;
    Start();
    m_Host.Mouse().Move(50, 10);
    m_Target.TakeTold();
    m_Source.TakeTold();
    CSignalLog log(m_Host.Control().GetControl()->m_SigDragEnd, "end");

    m_Host.Mouse().Release();

    EXPECT_EQ(m_Target.TakeTold(), "drop(source,19,10) ");
    EXPECT_EQ(m_Source.TakeTold(), "finished(target, 40 0 70 39) ");
    EXPECT_EQ(m_Host.Window().GetCursor(), 7);
    EXPECT_FALSE(m_Host.Window().HasCapture());
    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_EQ(log.Count(), 1);
}

TEST_F(DragDrop, ADropOnNobodyThatAcceptsFinishesWithoutATarget)
{
    Start();
    m_Host.Mouse().Move(50, 10);
    m_Target.TakeTold();
    m_Source.TakeTold();

    m_Host.Mouse().Release();

    EXPECT_EQ(m_Target.TakeTold(), "");
    EXPECT_EQ(m_Source.TakeTold(), "finished(null, 40 0 70 39) ");
}

TEST_F(DragDrop, TheItemIsKeptInItsBounds)
{
    m_Source.m_Bounds = {0, 0, 60, 39};
    Start();

    m_Host.Mouse().Move(90, 30);
    m_Host.Paint();

    EXPECT_EQ(m_Source.m_Drawn, "refused 30 0 60 39; ");
}

TEST_F(DragDrop, AnItemLargerThanItsBoundsIsHeldByTheLaterCorrection)
{
    m_Source.m_Bounds = {10, 0, 20, 39};
    Start();

    m_Host.Mouse().Move(14, 10);
    m_Host.Paint();

    EXPECT_EQ(m_Source.m_Drawn, "refused -10 0 20 39; ");
}

TEST_F(DragDrop, TheItemIsPaintedOverTheSavedScreenAndWipedAgain)
{
    Start();
    m_Host.Mouse().Move(50, 10);
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(40, 5), color_table[6]);
    EXPECT_EQ(m_Host.PixelAt(80, 5), color_table[9]);

    m_Host.Mouse().Move(60, 10);
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(40, 5), color_table[9]);
    EXPECT_EQ(m_Host.PixelAt(80, 5), color_table[6]);

    m_Host.Mouse().Release();
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(80, 5), color_table[9]);
    EXPECT_EQ(m_Host.PixelAt(5, 5), color_table[3]);
}

TEST_F(DragDrop, WithoutABackgroundThePaintNeitherWipesNorSaves)
{
    m_Source.m_UseBackground = false;
    Start();
    m_Host.Mouse().Move(50, 10);
    m_Host.Paint();
    m_Host.Mouse().Move(60, 10);

    PaintLog const paint = m_Host.Paint();

    EXPECT_EQ(paint.Count("DrawRasterPicture*"), 0);
    EXPECT_EQ(paint.Count("ExtractRasterPicture*"), 0);
    EXPECT_EQ(m_Host.PixelAt(40, 5), color_table[6]);  // where the item was before, and the source alone was repainted
}

TEST_F(DragDrop, ASlotThatHandlesTheQuestionAnswersAloneWhetherTheDropIsAccepted)
{
    class CAnswer : public subscriber_base_t
    {
    public:
        void Over(CVisualElement*, CVisualElement*, DragInfo*, bool* accepted, bool* handled)
        {
            *accepted = m_Accept;
            *handled = true;
        }
        bool m_Accept = false;
    } answer;
    m_Target.m_Accepts = true;
    m_Target.m_SigDragOver.connect(&answer, &CAnswer::Over);
    Start();

    m_Host.Mouse().Move(50, 10);
    EXPECT_EQ(m_Target.TakeTold(), "");
    EXPECT_EQ(m_Host.Window().GetCursor(), 13);

    answer.m_Accept = true;
    m_Host.Mouse().Move(51, 10);
    EXPECT_EQ(m_Host.Window().GetCursor(), 1);
    m_Host.Mouse().Release();
}

TEST_F(DragDrop, TheAnswerIsTheFlagOrTheHandlersWhereTheSlotDoesNotHandleIt)
{
    class CAnswer : public subscriber_base_t
    {
    public:
        void Start(CVisualElement*, int, int, DragInfo*, bool* allowed, bool*) { *allowed = true; }
    } answer;
    m_Source.m_MayStart = false;
    m_Source.m_SigStartDragging.connect(&answer, &CAnswer::Start);

    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(20, 10);

    EXPECT_EQ(Dragged(), &m_Source);
    m_Host.Mouse().Release();
}

TEST_F(DragDrop, ADragMayBeStartedByProgram)
{
    DragInfo info;
    info.m_Rect = {5, 5, 10, 10};
    m_Host.Mouse().Move(20, 20);

    m_Host.Control().GetControl()->StartDragging(&m_Source, info);
    m_Host.Mouse().Move(22, 21);
    m_Host.Paint();

    EXPECT_EQ(m_Source.m_Drawn, "refused 7 6 12 11; ");
    m_Host.Mouse().Release();
    EXPECT_EQ(Dragged(), nullptr);
}

TEST_F(DragDrop, NoTipComesUpDuringADrag)
{
    m_Target.SetTooltip("tip");
    Start();
    m_Host.Mouse().Move(50, 10);

    EXPECT_EQ(m_Host.Tooltip(50, 10), "");
    m_Host.Mouse().Release();
}

TEST_F(DragDrop, ALostReleaseForgetsThePress)
{
    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().LoseRelease();
    m_Host.Mouse().Move(20, 20);

    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_FALSE(m_Host.Control().GetControl()->IsClicked());
}

TEST_F(DragDrop, AHiddenDraggedElementLeavesNothingOnTheScreen)
{
    Start();
    m_Host.Mouse().Move(50, 10);
    m_Host.Paint();
    m_Source.SetVisible(false);
    m_Host.Paint();

    m_Host.Mouse().Release();
    m_Host.Paint();

    EXPECT_EQ(m_Host.PixelText().find('r'), std::string::npos);
}

TEST_F(DragDrop, ADraggedElementThatDiesTakesItsItemWithIt)
{
    Start();
    m_Host.Mouse().Move(50, 10);
    m_Host.Paint();

    delete &m_Source;
    m_Host.Control().Rearrange();
    m_Host.Paint();

    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_EQ(m_Host.PixelText().find('r'), std::string::npos);
    m_Host.Mouse().Release();
}

TEST_F(DragDrop, ANewDragStartedBeforeTheLastItemWasWipedLeavesNothingOfIt)
{
    Start();
    m_Host.Mouse().Move(50, 10);
    m_Host.Paint();
    m_Host.Mouse().Release();
    m_Host.Mouse().Press(10, 10);
    m_Host.Mouse().Move(13, 10);
    m_Host.Paint();
    m_Host.Mouse().Release();
    m_Host.Paint();

    EXPECT_EQ(m_Host.PixelText().find('r'), std::string::npos);
}

TEST_F(DragDrop, AnElementThatDiesWhileItIsDraggedLeavesNoTargetBehind)
{
    auto& spare = *new CTile(m_Host.Root(), {10, 0}, alRight);
    m_Host.Paint();
    m_Target.m_Accepts = true;
    Start();
    {
        auto const slot = Listen(m_Target.m_SigDragOver,
                                 [&](CVisualElement* source, CVisualElement*, DragInfo*, bool*, bool* handled) {
                                     *handled = true;
                                     delete source;
                                 });
        auto const accept = Listen(m_Target.m_SigDragOver, [](CVisualElement*, CVisualElement*, DragInfo*,
                                                              bool* accepted, bool*) { *accepted = true; });
        m_Host.Mouse().Move(50, 10);
    }
    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_EQ(m_Host.Control().GetControl()->GetDragTarget(), nullptr);

    m_Host.Control().GetControl()->StartDragging(&spare, DragInfo());
    m_Host.Mouse().Release();

    EXPECT_EQ(m_Target.TakeTold(), "");
    EXPECT_EQ(spare.TakeTold(), "finished(null, 0 0 0 0) ");
}

TEST_F(DragDrop, ADropThatIsCancelledLeavesNoTargetBehind)
{
    m_Target.m_Accepts = true;
    Start();
    m_Host.Mouse().Move(50, 10);
    {
        auto const slot = Listen(m_Target.m_SigDropDone, [](CVisualElement*, CVisualElement*, int, int, DragInfo*,
                                                            bool*) { throw vexel::cancel_processing(); });
        m_Host.Mouse().Release();
    }
    EXPECT_EQ(m_Host.Control().GetControl()->GetDragTarget(), nullptr);
    m_Target.m_Told.clear();

    m_Host.Control().GetControl()->StartDragging(&m_Source, DragInfo());
    m_Host.Mouse().Release();

    EXPECT_EQ(m_Target.TakeTold(), "");
}

TEST_F(DragDrop, AMoveThatIsCancelledOverTheTargetMovesTheItemOnce)
{
    Start();  // the item stands at (3, 0, 33, 39)
    {
        auto const slot = Listen(m_Target.m_SigDragOver, [](CVisualElement*, CVisualElement*, DragInfo*, bool*, bool*) {
            throw vexel::cancel_processing();
        });
        m_Host.Mouse().Move(50, 10);
    }

    m_Host.Mouse().Move(60, 10);
    m_Host.Paint();

    EXPECT_EQ(m_Source.m_Drawn, "refused 50 0 80 39; ");
    m_Host.Mouse().Release();
}

TEST_F(DragDrop, ADragWithoutABackgroundWipesTheItemOfTheLastOne)
{
    Start();
    m_Host.Mouse().Move(50, 10);
    m_Host.Paint();
    m_Host.Mouse().Release();
    DragInfo info;
    info.m_Rect = {0, 0, 5, 5};
    info.m_GlobalUpdate = false;
    info.m_UseBackground = false;
    m_Host.Control().GetControl()->StartDragging(&m_Source, info);

    m_Host.Paint();

    EXPECT_EQ(m_Host.PixelAt(60, 5), color_table[9]);
    EXPECT_EQ(m_Host.Paint().Count("ExtractRasterPicture*"), 0);
    m_Host.Mouse().Release();
}
