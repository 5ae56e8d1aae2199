// Repaint requests: what waits for the next paint, and what the next paint then draws.

#include "tests/support/host_bench.h"
#include "tests/support/slot.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

// root > (left > leaf, right), painted once; nothing waits.
class HostUpdate : public testing::Test, protected CHostBench
{
protected:
    HostUpdate()
    {
        Paint();
        m_Log.Clear();
    }

    UpdateType Type(int bits) { return static_cast<UpdateType>(bits); }

    CRecordingElement m_Left{m_Log, "left", m_Root, {30, 10}, alLeft};
    CRecordingElement m_Leaf{m_Log, "leaf", &m_Left, {10, 10}, alTop};
    CRecordingElement m_Right{m_Log, "right", m_Root, {30, 10}, alRight};

    static constexpr char const* s_All = "root.DrawContent() left.DrawContent() leaf.DrawContent() "
                                         "right.DrawContent()";
    static constexpr char const* s_Invalidated = "window.InvalidateRect(0 0 100 50)";

    std::string TakeInvalidations() { return m_Log.Take({"InvalidateRect"}); }
};

TEST_F(HostUpdate, AnElementWaitsAndTheWholeWindowIsInvalidated)
{
    m_Left.Update(utElement);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 1);
    EXPECT_EQ(TakeInvalidations(), s_Invalidated);
}

TEST_F(HostUpdate, OnlyTheElementThatWaitsIsPainted)
{
    m_Right.Update(utElement);

    EXPECT_EQ(Paint(), "right.DrawContent()");
    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
}

TEST_F(HostUpdate, AnElementIsPaintedWithItsChildren)
{
    m_Left.Update(utElement);

    EXPECT_EQ(Paint(), "left.DrawContent() leaf.DrawContent()");
}

TEST_F(HostUpdate, ASecondRequestOfAnElementInvalidatesNothingAndPaintsItOnce)
{
    m_Right.Update(utElement);
    m_Log.Clear();

    m_Right.Update(utElement);

    EXPECT_EQ(TakeInvalidations(), "");
    EXPECT_EQ(Host().GetUpdatesLastPos(), 1);
    EXPECT_EQ(Paint(), "right.DrawContent()");
}

TEST_F(HostUpdate, ARequestAfterThePaintInvalidatesAgain)
{
    m_Right.Update(utElement);
    Paint();

    m_Right.Update(utElement);

    EXPECT_EQ(TakeInvalidations(), s_Invalidated);
}

TEST_F(HostUpdate, ElementsArePaintedInTheOrderOfTheirRequests)
{
    m_Right.Update(utElement);
    m_Left.Update(utElement);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 2);
    EXPECT_EQ(Paint(), "right.DrawContent() left.DrawContent() leaf.DrawContent()");
}

TEST_F(HostUpdate, AnElementUnderAWaitingOneIsPaintedOnce)
{
    m_Leaf.Update(utElement);
    m_Left.Update(utElement);

    EXPECT_EQ(Paint(), "left.DrawContent() leaf.DrawContent()");
}

TEST_F(HostUpdate, AHiddenElementAsksForNothing)
{
    m_Left.m_OnRearrange = [](CVisualElement** element) { *element = nullptr; };
    m_Left.SetVisible(false);
    m_Log.Clear();

    m_Left.Update(utElement);
    m_Leaf.Update(utElement);

    EXPECT_EQ(TakeInvalidations(), "");
    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
}

TEST_F(HostUpdate, AnElementHiddenAfterItsRequestIsNotPainted)
{
    m_Left.m_OnRearrange = [](CVisualElement** element) { *element = nullptr; };
    m_Leaf.Update(utElement);

    m_Left.SetVisible(false);

    EXPECT_EQ(Paint(), "");
}

TEST_F(HostUpdate, TheFullUpdatePaintsEverything)
{
    m_Right.Update(utElement);
    m_Log.Clear();

    m_Left.Update(utFull);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(m_Log.Take({"InvalidateRect", "UpdateElement"}), s_Invalidated);
    EXPECT_EQ(Paint(), s_All);
}

TEST_F(HostUpdate, AfterAFullUpdateAPaintWithoutARequestPaintsNothing)
{
    m_Left.Update(utFull);
    Paint();

    EXPECT_EQ(Paint(), "");
}

TEST_F(HostUpdate, AnElementDuringAFullUpdateJoinsNoListAndInvalidatesAgain)
{
    m_Left.Update(utFull);
    m_Log.Clear();

    m_Right.Update(utElement);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(TakeInvalidations(), s_Invalidated);
    EXPECT_EQ(Paint(), s_All);
}

TEST_F(HostUpdate, TheGlobalUpdateTellsEveryElementOfTheTreeAndPaintsEverything)
{
    m_Right.Update(utElement);
    m_Log.Clear();

    m_Leaf.Update(utGlobal);

    EXPECT_EQ(m_Log.Take({"UpdateElement", "InvalidateRect"}),
              std::string("root.UpdateElement() left.UpdateElement() leaf.UpdateElement() right.UpdateElement() ") +
                  s_Invalidated);
    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(Paint(), s_All);
}

TEST_F(HostUpdate, TheUnnamedBitIsAGlobalUpdateToo)
{
    m_Leaf.Update(Type(4));

    EXPECT_EQ(m_Log.Take({"UpdateElement"}),
              "root.UpdateElement() left.UpdateElement() leaf.UpdateElement() right.UpdateElement()");
    EXPECT_EQ(Paint(), s_All);
}

TEST_F(HostUpdate, BothGlobalBitsTellEveryElementOnce)
{
    m_Leaf.Update(Type(5));

    EXPECT_EQ(m_Log.Take({"UpdateElement"}),
              "root.UpdateElement() left.UpdateElement() leaf.UpdateElement() right.UpdateElement()");
}

TEST_F(HostUpdate, AGlobalUpdateOfAnElementTellsEveryElementAndPaintsThatOne)
{
    m_Right.Update(Type(3));

    EXPECT_EQ(m_Log.Take({"UpdateElement"}),
              "root.UpdateElement() left.UpdateElement() leaf.UpdateElement() right.UpdateElement()");
    EXPECT_EQ(Paint(), "right.DrawContent()");
}

TEST_F(HostUpdate, TheUnnamedBitWithAnElementTellsEveryElementAndPaintsThatOne)
{
    m_Right.Update(Type(6));

    EXPECT_EQ(m_Log.Take({"UpdateElement"}),
              "root.UpdateElement() left.UpdateElement() leaf.UpdateElement() right.UpdateElement()");
    EXPECT_EQ(Paint(), "right.DrawContent()");
}

TEST_F(HostUpdate, WhatAsksDuringAGlobalUpdateIsPartOfTheFullPaint)
{
    m_Left.m_OnUpdateElement = [&] { m_Right.Update(utElement); };

    m_Leaf.Update(utGlobal);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(Paint(), s_All);
}

TEST_F(HostUpdate, ARemovalTakesTheElementFromTheWaitingOnesAndInvalidates)
{
    m_Left.Update(utElement);
    m_Right.Update(utElement);
    m_Log.Clear();

    m_Left.Update(utRemoved);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 1);
    EXPECT_EQ(TakeInvalidations(), s_Invalidated);
    EXPECT_EQ(Paint(), "right.DrawContent()");
}

TEST_F(HostUpdate, ARemovalDuringAFullUpdateLeavesItFull)
{
    m_Left.Update(utFull);

    m_Right.Update(utRemoved);

    EXPECT_EQ(Paint(), s_All);
}

TEST_F(HostUpdate, AGlobalRemovalTellsEveryElementFirst)
{
    m_Left.Update(utElement);
    m_Log.Clear();

    m_Left.Update(Type(17));

    EXPECT_EQ(m_Log.Take({"UpdateElement"}),
              "root.UpdateElement() left.UpdateElement() leaf.UpdateElement() right.UpdateElement()");
    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(Paint(), "");
}

TEST_F(HostUpdate, ARemovedElementThatAsksDuringItsGlobalUpdateIsForgottenAllTheSame)
{
    m_Left.m_OnUpdateElement = [&] { m_Left.Update(utElement); };

    m_Left.Update(Type(17));

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(Paint(), "");
}

TEST_F(HostUpdate, AnElementOfAnotherTreeAsksForNoRepaint)
{
    CRecordingElement stranger(m_Log, "stranger");
    m_Log.Clear();

    Host().UpdateElement(&stranger, utElement);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(m_Log.Take({"InvalidateRect"}), "");
}

TEST_F(HostUpdate, NothingIsAskedForANullElement)
{
    Host().UpdateElement(nullptr, utElement);
    Host().UpdateElement(nullptr, utGlobal);
    Host().UpdateElement(nullptr, utFull);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(HostUpdate, TheListCanBeCutFromAPlaceOn)
{
    m_Left.Update(utElement);
    int const noted = Host().GetUpdatesLastPos();
    m_Right.Update(utElement);

    Host().ClearUpdates(noted);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 1);
    EXPECT_EQ(Paint(), "left.DrawContent() leaf.DrawContent()");
}

TEST_F(HostUpdate, TheListCanBeEmptied)
{
    m_Left.Update(utElement);
    m_Right.Update(utElement);

    Host().ClearUpdates(0);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(Paint(), "");
}

TEST_F(HostUpdate, APaintFromOutsidePaintsEverything)
{
    m_Right.Update(utElement);
    m_Window.m_Painter.m_FullPaint = true;

    EXPECT_EQ(Paint(), s_All);
    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
}

TEST_F(HostUpdate, AChangeOfAnAttributePaintsTheElement)
{
    m_Right.SetEnabled(false);

    EXPECT_EQ(Paint(), "right.DrawContent()");
}

// Elements that go before the paint ------------------------------------------------------------------------------------------

TEST_F(HostUpdate, AnElementDeletedBetweenRequestAndPaintIsNotDrawn)
{
    auto* const extra = new CRecordingElement(m_Log, "extra", m_Root);
    extra->SetPos({40, 0, 50, 10}, false);
    Paint();
    extra->Update(utElement);
    m_Right.Update(utElement);

    delete extra;

    EXPECT_EQ(Paint(), "right.DrawContent()");
}

TEST_F(HostUpdate, ADescendantOfADeletedElementIsNotDrawn)
{
    auto* const extra = new CRecordingElement(m_Log, "extra", m_Root);
    auto* const inner = new CRecordingElement(m_Log, "inner", extra);
    extra->SetPos({40, 0, 50, 10}, false);
    inner->SetPos({0, 0, 5, 5}, false);
    Paint();
    inner->Update(utElement);
    m_Right.Update(utElement);

    delete extra;

    EXPECT_EQ(Paint(), "right.DrawContent()");
}

TEST_F(HostUpdate, ABranchThatLeftTheTreeIsNotDrawn)
{
    CRecordingElement extra(m_Log, "extra", m_Root);
    CRecordingElement inner(m_Log, "inner", &extra);
    extra.SetPos({40, 0, 50, 10}, false);
    inner.SetPos({0, 0, 5, 5}, false);
    Paint();
    extra.Update(utElement);
    inner.Update(utElement);

    extra.ReParent(nullptr, false);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(Paint(), "");
}

TEST_F(HostUpdate, AnElementThatWentToAnotherControlIsDrawnThereOnly)
{
    CRecordingWindow otherWindow(m_Log, 100, 50);
    CBaseControl other(&otherWindow);
    CRecordingElement extra(m_Log, "extra", m_Root);
    extra.SetPos({40, 0, 50, 10}, false);
    Paint();
    other.OnDraw(&otherWindow.m_Painter);
    extra.Update(utElement);

    extra.ReParent(other.GetContent(), false);

    EXPECT_EQ(Paint(), "");
    other.OnDraw(&otherWindow.m_Painter);
    EXPECT_EQ(m_Log.Take({"DrawContent"}), "extra.DrawContent()");
}

TEST_F(HostUpdate, AnElementThatDiedInAnotherControlIsForgottenByItsFirstOne)
{
    CRecordingWindow otherWindow(m_Log, 100, 50);
    CBaseControl other(&otherWindow);
    auto* const extra = new CRecordingElement(m_Log, "extra", m_Root);
    extra->SetPos({40, 0, 50, 10}, false);
    extra->SetCanHaveFocus(true);
    Paint();
    extra->Update(utElement);
    extra->SetFocus(false);
    extra->CaptureMouse();

    extra->ReParent(other.GetContent(), false);
    delete extra;

    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(Host().GetCapture(), nullptr);
    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(Paint(), "");
}

// Pointers that are forgotten --------------------------------------------------------------------------------------------------

class HostForget : public HostUpdate
{
protected:
    HostForget()
    {
        m_Extra = new CRecordingElement(m_Log, "extra", m_Root);
        m_Extra->SetPos({40, 0, 60, 20}, false);
        m_Extra->SetCanHaveFocus(true);
        Paint();
    }

    CMouseEvent At(int x, int y, MouseButton button = mbNone)
    {
        return CMouseEvent(x, y, button == mbLeft ? 1 : 0, button);
    }

    CRecordingElement* m_Extra;
};

TEST_F(HostForget, ADyingElementIsNoLongerFocused)
{
    m_Extra->SetFocus(false);
    ASSERT_EQ(Host().GetFocusedElement(), m_Extra);
    ASSERT_EQ(Host().GetFocussingElement(), m_Extra);

    delete m_Extra;

    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(Host().GetFocussingElement(), nullptr);
    EXPECT_EQ(m_Control->GetFocusedElement(), nullptr);
}

TEST_F(HostForget, ADyingElementIsNoLongerUnderTheMouse)
{
    CMouseEvent move = At(45, 5);
    m_Control->OnMouseMove(&move);
    ASSERT_EQ(Host().GetMouseElement(), m_Extra);
    ASSERT_EQ(m_Control->GetMouseElement(), m_Extra);

    delete m_Extra;

    EXPECT_EQ(Host().GetMouseElement(), nullptr);
}

TEST_F(HostForget, ADyingElementGivesUpTheCapture)
{
    m_Extra->CaptureMouse();
    m_Log.Clear();

    delete m_Extra;

    EXPECT_EQ(Host().GetCapture(), nullptr);
    EXPECT_EQ(m_Log.Take({"ReleaseMouse"}), "window.ReleaseMouse()");
}

TEST_F(HostForget, ADyingElementIsNoDragTarget)
{
    Host().SetDragTarget(m_Extra);
    ASSERT_EQ(Host().GetDragTarget(), m_Extra);

    delete m_Extra;

    EXPECT_EQ(Host().GetDragTarget(), nullptr);
}

TEST_F(HostForget, ADyingElementIsNotDragged)
{
    DragInfo info;
    info.m_UseBackground = false;
    Host().StartDragging(m_Extra, info);
    ASSERT_EQ(Host().GetDraggedElement(), m_Extra);

    delete m_Extra;

    EXPECT_EQ(Host().GetDraggedElement(), nullptr);
}

TEST_F(HostForget, AfterADraggedElementDiedEverythingIsPaintedSoThatItsItemGoes)
{
    DragInfo info;
    info.m_UseBackground = false;
    Host().StartDragging(m_Extra, info);
    auto* const other = new CRecordingElement(m_Log, "other", m_Root);
    other->SetPos({70, 0, 80, 20}, false);
    Paint();

    delete m_Extra;
    other->Update(utElement);

    EXPECT_NE(Paint().find("root.DrawContent()"), std::string::npos);
}

TEST_F(HostForget, ADyingDraggedElementLeavesTheNativeCaptureToTheElementThatHasIt)
{
    Host().StartDragging(m_Extra, DragInfo());
    m_Root->CaptureMouse();
    m_Log.Clear();

    delete m_Extra;

    EXPECT_EQ(m_Log.Take({"ReleaseMouse"}), "");
    EXPECT_EQ(Host().GetCapture(), m_Root);
}

TEST_F(HostForget, ADyingPressedElementStartsNoDrag)
{
    CMouseEvent press = At(45, 5, mbLeft);
    m_Control->OnButtonDown(&press);
    ASSERT_TRUE(Host().IsClicked());

    delete m_Extra;
    CMouseEvent move = At(55, 15, mbLeft);
    m_Control->OnMouseMove(&move);

    EXPECT_EQ(Host().GetDraggedElement(), nullptr);
}

TEST_F(HostForget, ADyingTabHandlerIsNotAsked)
{
    m_Left.SetCanHaveFocus(true);
    m_Right.SetCanHaveFocus(true);
    m_Window.m_Focused = true;
    m_Left.SetFocus(false);
    Host().SetTabHandler(m_Extra);

    delete m_Extra;
    CKeyboardEvent tab(0, vkTab);
    m_Control->OnKeyDown(&tab);

    EXPECT_EQ(Host().GetFocusedElement(), &m_Right);
}

TEST_F(HostForget, TheDescendantsOfADyingElementAreForgottenToo)
{
    auto* const inner = new CRecordingElement(m_Log, "inner", m_Extra);
    inner->SetPos({0, 0, 10, 10}, false);
    inner->SetCanHaveFocus(true);
    inner->SetFocus(false);
    inner->CaptureMouse();
    Host().SetMouseElement(inner);

    delete m_Extra;

    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(Host().GetMouseElement(), nullptr);
    EXPECT_EQ(Host().GetCapture(), nullptr);
}

TEST_F(HostForget, AnElementThatLeavesTheTreeIsForgottenThoughItLives)
{
    m_Extra->SetFocus(false);
    m_Extra->CaptureMouse();
    Host().SetMouseElement(m_Extra);
    std::unique_ptr<CRecordingElement> const owner(m_Extra);

    m_Extra->ReParent(nullptr, false);

    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(Host().GetMouseElement(), nullptr);
    EXPECT_EQ(Host().GetCapture(), nullptr);
}

TEST_F(HostForget, TheRemovalOfOneElementForgetsNoOther)
{
    m_Extra->SetFocus(false);
    m_Extra->CaptureMouse();
    Host().SetMouseElement(m_Extra);
    m_Log.Clear();

    m_Right.Update(utRemoved);

    EXPECT_EQ(Host().GetFocusedElement(), m_Extra);
    EXPECT_EQ(Host().GetMouseElement(), m_Extra);
    EXPECT_EQ(Host().GetCapture(), m_Extra);
    EXPECT_EQ(m_Log.Take({"ReleaseMouse"}), "");
}

TEST_F(HostForget, AnElementThatMovesWithinItsTreeIsRemembered)
{
    m_Extra->SetFocus(false);
    m_Extra->CaptureMouse();
    Host().SetMouseElement(m_Extra);

    m_Extra->ReParent(&m_Left, false);

    EXPECT_EQ(Host().GetFocusedElement(), m_Extra);
    EXPECT_EQ(Host().GetMouseElement(), m_Extra);
    EXPECT_EQ(Host().GetCapture(), m_Extra);
}

}  // namespace
