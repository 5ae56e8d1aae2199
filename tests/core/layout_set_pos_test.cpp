// What a new rectangle does: when children are laid out, what is asked to be repainted, what is heard.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/recording_painter.h"
#include "tests/support/scripted_system.h"
#include "tests/support/slot.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

// A wide root on a control, and in it a docked box of 40 x 20 at (0, 0).
class SetPos : public testing::Test
{
protected:
    SetPos()
    {
        m_Root.SetControl(&m_Control);
        m_Root.SetPos({0, 0, 500, 400}, false);
        m_Box.SetPos({0, 0, 40, 20}, false);
        m_Control.m_UpdatesCount = 0;
        m_Log.Clear();
    }

    // What the box asks of the control.
    std::string TakeRequests() { return m_Log.Take({"ClearUpdates", "UpdateElement"}); }

    template <class Element> auto CountSizes(Element& element, int& count)
    {
        return Listen(element.m_SigSize, [&count](CVisualElement*) { ++count; });
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingPainter m_Painter{m_Log};
    CRecordingElement m_Root{m_Log, "root", nullptr, {0, 0}, alClient};
    CRecordingElement m_Box{m_Log, "box", &m_Root, {40, 20}, alLeft};
};

TEST_F(SetPos, TheSameRectangleDoesNothing)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    int sizes = 0;
    auto const slot = CountSizes(m_Box, sizes);
    m_Log.Clear();

    m_Box.SetPos({0, 0, 40, 20}, false);

    EXPECT_EQ(sizes, 0);
    EXPECT_EQ(m_Log.Take(), "box.SetPos(0 0 40 20, false)");
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(SetPos, TheSameRectangleByForceLaysOut)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    int sizes = 0;
    auto const slot = CountSizes(m_Box, sizes);

    m_Box.SetPos({0, 0, 40, 20}, true);

    EXPECT_EQ(sizes, 1);
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 40, 10}));
}

TEST_F(SetPos, ForceIsHandedToTheChildren)
{
    CRecordingElement docked(m_Log, "docked", &m_Box, {10, 10}, alTop);
    CRecordingElement client(m_Log, "client", &m_Box, {10, 10}, alClient);
    m_Log.Clear();

    m_Box.SetPos({0, 0, 40, 20}, true);
    EXPECT_EQ(m_Log.Take({"SetPos"}), "box.SetPos(0 0 40 20, true) docked.SetPos(0 0 40 10, true) "
                                      "client.SetPos(0 11 40 20, true)");

    m_Box.SetPos({0, 0, 41, 20}, false);
    EXPECT_EQ(m_Log.Take({"SetPos"}), "box.SetPos(0 0 41 20, false) docked.SetPos(0 0 41 10, false) "
                                      "client.SetPos(0 11 41 20, false)");
}

TEST_F(SetPos, AnotherWidthLaysOut)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);

    m_Box.SetPos({0, 0, 41, 20}, false);

    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 41, 10}));
}

TEST_F(SetPos, AnotherHeightLaysOut)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alLeft);

    m_Box.SetPos({0, 0, 40, 21}, false);

    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 10, 21}));
}

TEST_F(SetPos, AMoveWithoutAnotherSizeLaysNothingOut)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    int sizes = 0;
    auto const slot = CountSizes(m_Box, sizes);

    m_Box.SetPos({5, 6, 45, 26}, false);

    EXPECT_EQ(m_Box.GetPos(), (rectangle<int>{5, 6, 45, 26}));
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(sizes, 0);
    EXPECT_EQ(TakeRequests().find("box, 2"), std::string::npos);
}

TEST_F(SetPos, AnElementThatIsNotDockedLaysNothingOutWhenItsSizeChanges)
{
    CRecordingElement loose(m_Log, "loose", &m_Root, {0, 0}, alNone);
    CRecordingElement child(m_Log, "child", &loose, {10, 10}, alTop);
    int sizes = 0;
    auto const slot = CountSizes(loose, sizes);

    loose.SetPos({0, 0, 60, 60}, false);

    EXPECT_EQ(loose.GetPos(), (rectangle<int>{0, 0, 60, 60}));
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(sizes, 0);
}

TEST_F(SetPos, AnElementThatIsNotDockedLaysOutByForce)
{
    CRecordingElement loose(m_Log, "loose", &m_Root, {0, 0}, alNone);
    CRecordingElement child(m_Log, "child", &loose, {10, 10}, alTop);

    loose.SetPos({0, 0, 60, 60}, true);

    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 60, 10}));
}

TEST_F(SetPos, AHiddenElementLaysNothingOutWhenItsSizeChanges)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    m_Box.SetVisible(false);

    m_Box.SetPos({0, 0, 60, 60}, false);

    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(SetPos, AnElementUnderAHiddenParentLaysOutByItsOwnFlag)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    m_Root.SetVisible(false);

    m_Box.SetPos({0, 0, 60, 60}, false);

    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 60, 10}));
}

TEST_F(SetPos, AChildWhoseRectangleStaysIsNotLaidOutAgain)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alLeft);
    CRecordingElement grandchild(m_Log, "grandchild", &child, {0, 5}, alTop);
    m_Box.SetPos({0, 0, 40, 20}, true);
    m_Log.Clear();

    m_Box.SetPos({0, 0, 50, 20}, false);

    EXPECT_EQ(m_Log.Take({"SetPos"}), "box.SetPos(0 0 50 20, false) child.SetPos(0 0 10 20, false)");
}

TEST_F(SetPos, ItWorksWithoutAControl)
{
    CRecordingElement loose(m_Log, "loose", nullptr, {0, 0}, alClient);
    CRecordingElement child(m_Log, "child", &loose, {10, 10}, alTop);

    loose.SetPos({0, 0, 60, 60}, false);

    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 60, 10}));
}

TEST_F(SetPos, TheRectangleIsStoredBeforeTheChildrenArePlaced)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    rectangle<int> seen;
    auto const slot = Listen(child.m_SigSize, [&](CVisualElement*) { seen = m_Box.GetPos(); });

    m_Box.SetPos({3, 0, 53, 30}, false);

    EXPECT_EQ(seen, (rectangle<int>{3, 0, 53, 30}));
}

TEST_F(SetPos, ASlotThatDeletesAChildDuringTheLayoutDoesNoHarm)
{
    CRecordingElement first(m_Log, "first", &m_Box, {10, 10}, alLeft);
    auto* const second = new CRecordingElement(m_Log, "second", &m_Box, {10, 10}, alLeft);
    CRecordingElement third(m_Log, "third", &m_Box, {10, 10}, alLeft);
    bool once = true;
    auto const slot = Listen(first.m_SigSize, [&](CVisualElement*) {
        if (once)
            delete second;
        once = false;
    });

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(m_Box.GetChildren()->GetCount(), 2);
    EXPECT_EQ(first.GetPos(), (rectangle<int>{0, 0, 10, 30}));
}

// The signal --------------------------------------------------------------------------------------------------------------

TEST_F(SetPos, TheSignalFiresFromTheBottomUp)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    CRecordingElement grandchild(m_Log, "grandchild", &child, {10, 10}, alLeft);
    CRecordingElement client(m_Log, "client", &m_Box, {10, 10}, alClient);
    std::string order;
    auto const note = [&](CVisualElement* element) { order += m_Log.NameOf(element) + " "; };
    auto const a = Listen(m_Box.m_SigSize, note);
    auto const b = Listen(child.m_SigSize, note);
    auto const c = Listen(grandchild.m_SigSize, note);
    auto const d = Listen(client.m_SigSize, note);

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(order, "grandchild child client box ");
}

TEST_F(SetPos, TheSignalFiresAfterTheRepaintWasAskedFor)
{
    CRecordingElement* const box = &m_Box;
    auto const slot = Listen(m_Box.m_SigSize, [&](CVisualElement* element) {
        EXPECT_EQ(element, box);
        m_Log.Add("slot", "UpdateElement");
    });

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(box, 2) slot.UpdateElement()");
}

// Repaints ------------------------------------------------------------------------------------------------------------------

TEST_F(SetPos, AnotherSizeRepaintsTheElementInPlaceOfItsChildren)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    m_Control.m_UpdatesCount = 3;
    m_Log.Clear();

    m_Box.SetPos({0, 0, 50, 30}, false);

    // Each drops what came since it began, and then asks for itself.
    EXPECT_EQ(TakeRequests(), "control.ClearUpdates(3) control.UpdateElement(child, 2) "
                              "control.ClearUpdates(3) control.UpdateElement(box, 2)");
}

TEST_F(SetPos, ThePlaceInTheListIsNotedBeforeTheChildrenArePlaced)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    auto const slot = Listen(child.m_SigSize, [&](CVisualElement*) { m_Control.m_UpdatesCount = 8; });
    m_Control.m_UpdatesCount = 3;
    m_Log.Clear();

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(m_Log.Take({"ClearUpdates"}), "control.ClearUpdates(3) control.ClearUpdates(3)");
    EXPECT_EQ(m_Control.m_UpdatesCount, 4);
}

TEST_F(SetPos, AClientThatFillsEverythingIsRepaintedAlone)
{
    CRecordingElement client(m_Log, "client", &m_Box, {0, 0}, alClient);
    m_Control.m_UpdatesCount = 3;
    m_Log.Clear();

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(TakeRequests(), "control.ClearUpdates(3) control.UpdateElement(client, 2)");
}

TEST_F(SetPos, DockedChildrenAndAClientTogetherFillEverythingToo)
{
    CRecordingElement docked(m_Log, "docked", &m_Box, {10, 10}, alTop);
    CRecordingElement client(m_Log, "client", &m_Box, {0, 0}, alClient);
    m_Control.m_UpdatesCount = 5;
    m_Log.Clear();

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(TakeRequests(), "control.ClearUpdates(5) control.UpdateElement(docked, 2) "
                              "control.ClearUpdates(6) control.UpdateElement(client, 2)");
}

TEST_F(SetPos, ADockedChildThatTakesEverythingIsNoClient)
{
    CRecordingElement docked(m_Log, "docked", &m_Box, {500, 10}, alLeft);
    m_Log.Clear();

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(docked, 2) control.UpdateElement(box, 2)");
}

TEST_F(SetPos, AMarginAroundAClientIsRepainted)
{
    CRecordingElement client(m_Log, "client", &m_Box, {0, 0}, alClient);
    m_Box.m_ContentRect = rectangle<int>{0, 0, 49, 30};
    m_Control.m_UpdatesCount = 3;
    m_Log.Clear();

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(TakeRequests(), "control.ClearUpdates(3) control.UpdateElement(client, 2) "
                              "control.ClearUpdates(3) control.UpdateElement(box, 2)");
}

TEST_F(SetPos, EachSideOfAMarginCounts)
{
    CRecordingElement client(m_Log, "client", &m_Box, {0, 0}, alClient);
    for (rectangle<int> const& content : {rectangle<int>{1, 0, 50, 30}, rectangle<int>{0, 1, 50, 30},
                                          rectangle<int>{0, 0, 49, 30}, rectangle<int>{0, 0, 50, 29}})
    {
        m_Box.m_ContentRect = content;
        m_Log.Clear();
        m_Box.SetPos({0, 0, 50, 30}, true);
        EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(client, 2) control.UpdateElement(box, 2)")
            << Text(content);
    }
}

TEST_F(SetPos, AHiddenClientFillsNothing)
{
    CRecordingElement client(m_Log, "client", &m_Box, {0, 0}, alClient);
    client.SetVisible(false);
    m_Log.Clear();

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(box, 2)");
}

TEST_F(SetPos, AnElementThatShrinksToNothingAsksForNothing)
{
    m_Box.SetPos({0, 0, 0, 0}, false);

    EXPECT_EQ(TakeRequests(), "");
}

TEST_F(SetPos, AMovedElementAsksForNoRepaint)
{
    m_Box.SetPos({5, 6, 45, 26}, false);

    EXPECT_EQ(TakeRequests(), "");
}

TEST_F(SetPos, ARepaintGoesThroughTheChangeChain)
{
    m_Root.m_OnChange = [](CVisualElement** element) { *element = nullptr; };

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(TakeRequests(), "control.ClearUpdates(0)");
}

// Moving pixels ----------------------------------------------------------------------------------------------------------------

TEST_F(SetPos, AMoveOfAFullyRepaintedElementMovesItsPixels)
{
    m_Root.SetPos({100, 200, 600, 600}, false);
    m_Log.Clear();

    m_Box.SetPos({5, 6, 45, 26}, false);

    EXPECT_EQ(m_Log.Take({"ScrollContent"}), "control.ScrollContent(5, 6, 100 200 140 220)");
}

TEST_F(SetPos, AMoveOfAnElementThatCannotBeScrolledMovesNoPixels)
{
    m_Box.m_ScrollableOnSetPos = false;

    m_Box.SetPos({5, 6, 45, 26}, false);

    EXPECT_EQ(m_Log.Take({"ScrollContent"}), "");
}

TEST_F(SetPos, AnElementThatIsNotFullyRepaintedMovesItsPixelsOnce)
{
    m_Box.m_FullRepainted = false;

    m_Box.SetPos({5, 6, 45, 26}, false);

    EXPECT_EQ(m_Log.Take({"ScrollContent"}), "control.ScrollContent(5, 6, 0 0 40 20)");
}

TEST_F(SetPos, AnElementThatIsNotFullyRepaintedMovesItsPixelsBeforeItLaysOut)
{
    m_Box.m_FullRepainted = false;

    m_Box.SetPos({5, 6, 55, 36}, false);

    EXPECT_EQ(m_Log.Take({"ScrollContent", "UpdateElement"}),
              "control.ScrollContent(5, 6, 0 0 40 20) control.UpdateElement(box, 2)");
}

TEST_F(SetPos, AFullyRepaintedElementOfAnotherSizeMovesNoPixels)
{
    m_Box.SetPos({5, 6, 55, 36}, false);

    EXPECT_EQ(m_Log.Take({"ScrollContent"}), "");
}

TEST_F(SetPos, AFullyRepaintedElementThatIsMovedByForceMovesNoPixels)
{
    m_Box.SetPos({5, 6, 45, 26}, true);

    EXPECT_EQ(m_Log.Take({"ScrollContent"}), "");
}

TEST_F(SetPos, TheDrawBoundsLimitWhatIsMoved)
{
    m_Box.m_DrawBounds = {10, 0, 40, 20};

    m_Box.SetPos({5, 0, 45, 20}, false);

    // What moves out at the right is left behind: 5 pixels less.
    EXPECT_EQ(m_Log.Take({"ScrollContent"}), "control.ScrollContent(5, 0, 15 0 40 20)");
}

// The picture that stands -------------------------------------------------------------------------------------------------

TEST_F(SetPos, AMoveEmptiesTheValidRectangle)
{
    m_Box.OnDraw(&m_Painter);
    ASSERT_EQ(m_Box.GetValidRect(), (rectangle<int>{0, 0, 40, 20}));

    m_Box.SetPos({5, 6, 45, 26}, false);

    EXPECT_EQ(m_Box.GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(SetPos, GrowthInPlaceOfAnElementThatIsNotDockedMakesAllOfItValid)
{
    CRecordingElement loose(m_Log, "loose", &m_Root, {0, 0}, alNone);

    loose.SetPos({0, 0, 30, 10}, false);

    EXPECT_EQ(loose.GetValidRect(), (rectangle<int>{0, 0, 30, 10}));
}

TEST_F(SetPos, GrowthInPlaceKeepsTheValidRectangleOfAnElementThatCannotBeScrolled)
{
    CRecordingElement loose(m_Log, "loose", &m_Root, {0, 0}, alNone);
    loose.m_ScrollableOnSetPos = false;
    loose.SetPos({1, 2, 31, 12}, false);
    loose.OnDraw(&m_Painter);

    loose.SetPos({1, 2, 51, 22}, false);

    EXPECT_EQ(loose.GetValidRect(), (rectangle<int>{0, 0, 30, 10}));
}

TEST_F(SetPos, AValidRectangleIsEmptyOnlyIfBothPairsOfEndsAreEqual)
{
    CRecordingElement loose(m_Log, "loose", &m_Root, {0, 0}, alNone);
    loose.m_ScrollableOnSetPos = false;
    loose.SetPos({1, 2, 31, 12}, false);
    loose.SetValidRect({6, 2, 6, 12});

    loose.SetPos({1, 2, 51, 22}, false);

    EXPECT_EQ(loose.GetValidRect(), (rectangle<int>{5, 0, 5, 10}));
}

TEST_F(SetPos, AnElementThatLeavesInItsLayoutDropsNothingOfItsFormerControl)
{
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    auto const slot = Listen(child.m_SigSize, [&](CVisualElement*) { m_Box.ReParent(nullptr, false); });
    m_Log.Clear();

    m_Box.SetPos({0, 0, 30, 20}, false);

    EXPECT_EQ(m_Log.Take({"ClearUpdates"}), "control.ClearUpdates(1)");  // the child's own
    EXPECT_EQ(m_Box.GetControl(), nullptr);
}

TEST_F(SetPos, AClientThatLeavesDuringTheLayoutIsNotPlaced)
{
    CRecordingElement client(m_Log, "client", &m_Box, {0, 0}, alClient);
    CRecordingElement child(m_Log, "child", &m_Box, {10, 10}, alTop);
    auto const slot = Listen(child.m_SigSize, [&](CVisualElement*) { client.ReParent(&m_Root, false); });
    m_Log.Clear();

    m_Box.SetPos({0, 0, 30, 20}, false);

    EXPECT_EQ(client.GetParent(), &m_Root);
    EXPECT_EQ(client.GetPos(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(SetPos, GrowthInPlaceKeepsTheValidRectangleWhenAClientFillsEverything)
{
    CRecordingElement client(m_Log, "client", &m_Box, {0, 0}, alClient);
    m_Box.SetPos({0, 0, 40, 20}, true);
    m_Box.OnDraw(&m_Painter);

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(m_Box.GetValidRect(), (rectangle<int>{0, 0, 40, 20}));
}

TEST_F(SetPos, GrowthInPlaceWithARepaintEmptiesTheValidRectangle)
{
    m_Box.OnDraw(&m_Painter);

    m_Box.SetPos({0, 0, 50, 30}, false);

    EXPECT_EQ(m_Box.GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(SetPos, AnEmptyValidRectangleIsMovedToTheNewLeftTop)
{
    m_Box.SetPos({5, 6, 45, 26}, true);

    EXPECT_EQ(m_Box.GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(SetPos, TheSameRectangleKeepsTheValidRectangle)
{
    m_Box.OnDraw(&m_Painter);

    m_Box.SetPos({0, 0, 40, 20}, false);

    EXPECT_EQ(m_Box.GetValidRect(), (rectangle<int>{0, 0, 40, 20}));
}

TEST_F(SetPos, TheValidRectangleIsTakenInTheParentsPixelsAndGivenInItsOwn)
{
    m_Box.SetPos({5, 6, 45, 26}, true);

    m_Box.SetValidRect({7, 9, 20, 21});

    EXPECT_EQ(m_Box.GetValidRect(), (rectangle<int>{2, 3, 15, 15}));
    EXPECT_EQ(m_Box.GetBounds(), (rectangle<int>{0, 0, 40, 20}));
}

}  // namespace
