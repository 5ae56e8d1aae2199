// Layout requests: what waits for the next layout, and what that lays out.

#include "tests/support/host_bench.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control_imp.h"
#include "vexel/signals/cancel_processing.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

// root > (left > (leaf, other), right), painted once; no layout waits.
class HostRearrange : public testing::Test, protected CHostBench
{
protected:
    HostRearrange()
    {
        Paint();
        m_Before = Listen(Host().m_SigBeforeRearrange, [this] { OnBefore(); });
        m_After = Listen(Host().m_SigAfterRearrange, [this] { OnAfter(); });
        m_Log.Clear();
    }

    virtual void OnBefore()
    {
        m_Log.Add("host", "before");
        if (m_InBefore)
            std::exchange(m_InBefore, nullptr)();
    }
    virtual void OnAfter()
    {
        m_Log.Add("host", "after");
        if (m_InAfter)
            std::exchange(m_InAfter, nullptr)();
    }

    // The course of layouts: the signals, direct and indirect new rectangles, the end.
    std::string TakeLayout() { return m_Log.Take({"before", "after", "SetPos"}); }

    CRecordingElement m_Left{m_Log, "left", m_Root, {30, 10}, alLeft};
    CRecordingElement m_Leaf{m_Log, "leaf", &m_Left, {10, 10}, alTop};
    CRecordingElement m_Other{m_Log, "other", &m_Left, {10, 10}, alTop};
    CRecordingElement m_Right{m_Log, "right", m_Root, {30, 10}, alRight};
    std::function<void()> m_InBefore;  // run once
    std::function<void()> m_InAfter;
    std::unique_ptr<CSlot<>> m_Before;
    std::unique_ptr<CSlot<>> m_After;

    static constexpr char const* s_Everything =
        "host.before() root.SetPos(0 0 99 49, true) left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 10, true) "
        "other.SetPos(0 11 30 21, true) right.SetPos(69 0 99 49, true) host.after()";
    static constexpr char const* s_Invalidated = "window.InvalidateRect(0 0 100 50)";
};

// Asking ----------------------------------------------------------------------------------------------------------------------

TEST_F(HostRearrange, ARequestInvalidatesTheWindowAndLaysNothingOutYet)
{
    EXPECT_FALSE(Host().IsRearrangeNeeded());

    m_Leaf.SetSize({10, 20}, false);

    EXPECT_TRUE(Host().IsRearrangeNeeded());
    EXPECT_EQ(m_Log.Take({"InvalidateRect", "SetPos"}), s_Invalidated);
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 10}));
}

TEST_F(HostRearrange, TheParentOfTheElementIsLaidOutByForce)
{
    m_Leaf.SetSize({10, 20}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_FALSE(Host().IsRearrangeNeeded());
    EXPECT_EQ(TakeLayout(), "host.before() left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 20, true) "
                            "other.SetPos(0 21 30 31, true) host.after()");
}

TEST_F(HostRearrange, ThePaintLaysOutAtTheLatest)
{
    m_Leaf.SetSize({10, 20}, false);

    EXPECT_EQ(Paint(), "left.DrawContent() leaf.DrawContent() other.DrawContent()");

    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 20}));
    EXPECT_FALSE(Host().IsRearrangeNeeded());
}

TEST_F(HostRearrange, EachRequestInvalidatesAgain)
{
    m_Leaf.SetSize({10, 20}, false);
    m_Leaf.SetSize({10, 21}, false);

    EXPECT_EQ(m_Log.Take({"InvalidateRect"}), std::string(s_Invalidated) + " " + s_Invalidated);
}

TEST_F(HostRearrange, AParentWithManyRequestsIsLaidOutOnce)
{
    m_Leaf.SetSize({10, 20}, false);
    m_Other.SetSize({10, 20}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(TakeLayout(), "host.before() left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 20, true) "
                            "other.SetPos(0 21 30 41, true) host.after()");
}

TEST_F(HostRearrange, AParentUnderAWaitingOneIsLaidOutWithIt)
{
    m_Leaf.SetSize({10, 20}, false);
    m_Left.SetSize({40, 10}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(TakeLayout(), "host.before() root.SetPos(0 0 99 49, true) left.SetPos(0 0 40 49, true) "
                            "leaf.SetPos(0 0 40 20, true) other.SetPos(0 21 40 31, true) "
                            "right.SetPos(69 0 99 49, true) host.after()");
}

TEST_F(HostRearrange, AnElementUnderAHiddenAncestorAsksForNothing)
{
    m_Left.SetVisible(false);
    Host().ForceRearrange();
    m_Log.Clear();

    m_Leaf.SetSize({10, 20}, false);

    EXPECT_FALSE(Host().IsRearrangeNeeded());
    EXPECT_EQ(m_Log.Take({"InvalidateRect"}), "");
}

TEST_F(HostRearrange, AnElementThatHidesItselfAsksItsParentToLayOut)
{
    m_Leaf.SetVisible(false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(m_Other.GetPos(), (rectangle<int>{0, 0, 30, 10}));
}

TEST_F(HostRearrange, AParentHiddenAfterTheRequestIsNotLaidOut)
{
    m_Leaf.SetSize({10, 20}, false);
    m_Left.m_OnRearrange = [](CVisualElement** element) { *element = nullptr; };
    m_Left.SetVisible(false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(TakeLayout(), "host.before() host.after()");
    m_Left.m_OnRearrange = nullptr;
}

TEST_F(HostRearrange, TheRootIsLaidOutItself)
{
    m_Root->SetSize({1, 1}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(TakeLayout(), s_Everything);
}

TEST_F(HostRearrange, AParentlessElementThatIsNotTheRootLeadsToAWholeLayout)
{
    CRecordingElement loose(m_Log, "loose");
    m_Log.Clear();

    Host().RearrangeElement(&loose);
    EXPECT_TRUE(Host().IsRearrangeNeeded());
    EXPECT_EQ(m_Log.Take(), s_Invalidated);

    Host().ForceRearrange();
    EXPECT_EQ(TakeLayout(), s_Everything);
    EXPECT_EQ(loose.GetPos(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(HostRearrange, NothingIsAskedForANullElement)
{
    Host().RearrangeElement(nullptr);

    EXPECT_FALSE(Host().IsRearrangeNeeded());
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(HostRearrange, AParentThatIsDeletedBeforeTheLayoutIsForgotten)
{
    auto* const extra = new CRecordingElement(m_Log, "extra", m_Root);
    auto* const inner = new CRecordingElement(m_Log, "inner", extra, {10, 10}, alTop);
    inner->SetSize({10, 20}, false);
    m_Leaf.SetSize({10, 20}, false);

    delete extra;
    m_Log.Clear();
    Host().ForceRearrange();

    EXPECT_EQ(TakeLayout(), "host.before() left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 20, true) "
                            "other.SetPos(0 21 30 31, true) host.after()");
}

TEST_F(HostRearrange, AnElementThatAsksWhileItsBranchLeavesLeavesNothingWaiting)
{
    CRecordingElement branch(m_Log, "branch", m_Root, {30, 10}, alLeft);
    CRecordingElement child(m_Log, "child", &branch, {10, 10}, alTop);
    Host().ForceRearrange();
    child.m_BeforeChange = [&](CVisualElement*, UpdateType type) {
        if (type == utRemoved)
            child.SetSize({10, 20}, false);  // the branch has lost its control already
        return true;
    };
    branch.ReParent(nullptr, false);
    m_Left.SetSize({40, 10}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(m_Log.Take({"SetPos"}).find("branch"), std::string::npos);
}

TEST_F(HostRearrange, AnElementOfAnotherTreeAsksForNothing)
{
    CRecordingElement stranger(m_Log, "stranger");
    CRecordingElement child(m_Log, "child", &stranger, {10, 10}, alTop);
    m_Log.Clear();

    m_Leaf.OnRearrange(&child);

    EXPECT_FALSE(Host().IsRearrangeNeeded());
    EXPECT_EQ(m_Log.Take({"InvalidateRect"}), "");
    Host().ForceRearrange();
    EXPECT_EQ(TakeLayout(), "");
}

TEST_F(HostRearrange, ATargetWithReversedEdgesIsLaidOutWithThemInOrder)
{
    CRecordingElement extra(m_Log, "extra", m_Root);
    CRecordingElement inner(m_Log, "inner", &extra, {10, 5}, alTop);
    Host().ForceRearrange();
    extra.SetPos({40, 30, 20, 10}, false);
    inner.SetSize({10, 6}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(TakeLayout(), "host.before() extra.SetPos(20 10 40 30, true) inner.SetPos(0 0 20 6, true) host.after()");
}

// Forcing it --------------------------------------------------------------------------------------------------------------------

TEST_F(HostRearrange, ForcingWithoutANeedDoesNothing)
{
    Host().ForceRearrange();

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(HostRearrange, EveryElementOfTheTreeIsToldAfterALayoutAndBeforeTheSignal)
{
    m_Leaf.SetSize({10, 20}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(m_Log.Take({"before", "after", "HandleRefreshPos"}),
              "host.before() root.HandleRefreshPos() left.HandleRefreshPos() leaf.HandleRefreshPos() "
              "other.HandleRefreshPos() right.HandleRefreshPos() host.after()");
}

TEST_F(HostRearrange, TheTreeIsToldAfterTheLayout)
{
    m_Leaf.SetSize({10, 20}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    std::string const course = m_Log.Take({"SetPos", "HandleRefreshPos"});
    EXPECT_LT(course.rfind("SetPos"), course.find("HandleRefreshPos"));
}

TEST_F(HostRearrange, AWholeLayoutTellsTheTreeBetweenItsSignalsToo)
{
    m_Control->Rearrange();

    EXPECT_EQ(m_Log.Take({"before", "after", "HandleRefreshPos"}),
              "host.before() root.HandleRefreshPos() left.HandleRefreshPos() leaf.HandleRefreshPos() "
              "other.HandleRefreshPos() right.HandleRefreshPos() host.after()");
}

TEST_F(HostRearrange, AnElementForcesTheLayoutOfItsControl)
{
    m_Leaf.SetSize({10, 20}, false);

    m_Right.ForceRearrange();

    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 20}));
}

TEST_F(HostRearrange, ARequestInTheBeforeSignalIsServedByTheSamePass)
{
    m_Leaf.SetSize({10, 20}, false);
    m_InBefore = [&] { m_Other.SetSize({10, 25}, false); };
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(TakeLayout(), "host.before() left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 20, true) "
                            "other.SetPos(0 21 30 46, true) host.after()");
    EXPECT_TRUE(Host().IsRearrangeNeeded());
}

TEST_F(HostRearrange, ForcingInTheBeforeSignalIsRememberedAndServesWhatIsAskedForMeanwhile)
{
    m_Leaf.SetSize({10, 20}, false);
    m_InBefore = [&] {
        m_Other.SetSize({10, 25}, false);
        Host().ForceRearrange();  // remembered
        m_Other.SetSize({10, 26}, false);
    };
    m_Log.Clear();

    Host().ForceRearrange();

    // The running pass takes both requests; the second one finds an empty list and lays everything out.
    EXPECT_EQ(TakeLayout(),
              "host.before() left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 20, true) "
              "other.SetPos(0 21 30 47, true) host.after() "
              "host.before() root.SetPos(0 0 99 49, true) left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 20, true) "
              "other.SetPos(0 21 30 47, true) right.SetPos(69 0 99 49, true) host.after()");
    EXPECT_FALSE(Host().IsRearrangeNeeded());
}

TEST_F(HostRearrange, ForcingInASignalWithoutALaterRequestStartsNoSecondPass)
{
    m_Leaf.SetSize({10, 20}, false);
    m_InBefore = [&] {
        m_Other.SetSize({10, 25}, false);
        Host().ForceRearrange();
    };
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(TakeLayout(), "host.before() left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 20, true) "
                            "other.SetPos(0 21 30 46, true) host.after()");
    EXPECT_FALSE(Host().IsRearrangeNeeded());
}

TEST_F(HostRearrange, ForcingInTheAfterSignalServesTheListOfWhatIsAskedForMeanwhile)
{
    m_Leaf.SetSize({10, 20}, false);
    m_InAfter = [&] {
        m_Leaf.SetSize({10, 21}, false);
        Host().ForceRearrange();  // remembered
        m_Other.SetSize({10, 25}, false);
    };
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(TakeLayout(), "host.before() left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 20, true) "
                            "other.SetPos(0 21 30 31, true) host.after() "
                            "host.before() left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 21, true) "
                            "other.SetPos(0 22 30 47, true) host.after()");
}

TEST_F(HostRearrange, ARequestInTheAfterSignalWaitsForTheNextLayout)
{
    m_Leaf.SetSize({10, 20}, false);
    m_InAfter = [&] { m_Leaf.SetSize({10, 21}, false); };
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 20}));
    EXPECT_TRUE(Host().IsRearrangeNeeded());
    Host().ForceRearrange();
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 21}));
}

TEST_F(HostRearrange, ALayoutThatForcesAndAsksForTheNextOneEachTimeEnds)
{
    int passes = 0;
    auto const slot = Listen(Host().m_SigBeforeRearrange, [&] {
        ++passes;
        m_Leaf.SetSize({10, 100 + passes}, false);
        Host().ForceRearrange();  // remembered
        m_Other.SetSize({10, 100 + passes}, false);
    });
    m_Leaf.SetSize({10, 20}, false);

    Host().ForceRearrange();

    EXPECT_EQ(passes, 64);
    EXPECT_FALSE(Host().IsRearrangeNeeded());
}

TEST_F(HostRearrange, AnExceptionInALayoutLeavesNoLayoutOpen)
{
    m_Leaf.SetSize({10, 20}, false);
    m_InBefore = [] { throw vexel::cancel_processing(); };
    EXPECT_THROW(Host().ForceRearrange(), vexel::cancel_processing);
    m_Leaf.SetSize({10, 21}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(m_Log.Take({"before", "after"}), "host.before() host.after()");
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 21}));
}

// Requests during a layout --------------------------------------------------------------------------------------------------

TEST_F(HostRearrange, ARequestDuringALayoutIsServedInTheNextRound)
{
    bool once = true;
    auto const slot = Listen(m_Left.m_SigSize, [&](CVisualElement*) {
        if (std::exchange(once, false))
            m_Right.SetSize({40, 10}, false);
    });
    m_Leaf.SetSize({10, 20}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(m_Right.GetPos(), (rectangle<int>{59, 0, 99, 49}));
    EXPECT_EQ(m_Log.Take({"before", "after"}), "host.before() host.after()");
}

TEST_F(HostRearrange, ALayoutThatKeepsAskingForTheSameElementEndsAfterTwoRounds)
{
    int sizes = 0;
    auto const slot = Listen(m_Left.m_SigSize, [&](CVisualElement*) { m_Leaf.SetSize({10, 20 + ++sizes}, false); });
    m_Leaf.SetSize({10, 20}, false);

    Host().ForceRearrange();

    EXPECT_EQ(sizes, 1);  // the second round finds the list unchanged and drops it
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 20}));
}

TEST_F(HostRearrange, ALayoutWhoseElementsAskForEachOtherInTurnEnds)
{
    int sizes = 0;
    CRecordingElement belowRight(m_Log, "belowRight", &m_Right, {10, 10}, alTop);
    Host().ForceRearrange();
    auto const a = Listen(m_Left.m_SigSize, [&](CVisualElement*) { belowRight.SetSize({10, 20 + ++sizes}, false); });
    auto const b = Listen(m_Right.m_SigSize, [&](CVisualElement*) { m_Leaf.SetSize({10, 20 + ++sizes}, false); });
    m_Leaf.SetSize({10, 20}, false);

    Host().ForceRearrange();

    EXPECT_GE(sizes, 2);
    EXPECT_LE(sizes, 1000);
}

TEST_F(HostRearrange, AnElementDeletedDuringALayoutIsNotLaidOut)
{
    auto* const extra = new CRecordingElement(m_Log, "extra", m_Root);
    auto* const inner = new CRecordingElement(m_Log, "inner", extra, {10, 10}, alTop);
    Host().ForceRearrange();
    bool once = true;
    auto const slot = Listen(m_Left.m_SigSize, [&](CVisualElement*) {
        if (std::exchange(once, false))
            delete extra;
    });
    m_Leaf.SetSize({10, 20}, false);  // left comes first
    inner->SetSize({10, 20}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_FALSE(once);
    EXPECT_EQ(m_Log.Take({"SetPos"}).find("extra"), std::string::npos);
    EXPECT_EQ(m_Root->GetChildren()->GetCount(), 2);
}

// The lock --------------------------------------------------------------------------------------------------------------------

TEST_F(HostRearrange, WhileLockedNothingIsLaidOut)
{
    m_Control->LockRearrange(true);
    m_Leaf.SetSize({10, 20}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(m_Log.Take({"SetPos"}), "");
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 10}));
    m_Control->LockRearrange(false);
}

TEST_F(HostRearrange, WhileLockedAPaintLaysNothingOut)
{
    m_Control->LockRearrange(true);
    m_Leaf.SetSize({10, 20}, false);

    Paint();

    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 10}));
    m_Control->LockRearrange(false);
}

TEST_F(HostRearrange, WhileLockedAWholeLayoutDoesNothingAtAll)
{
    m_Control->LockRearrange(true);
    m_Leaf.SetSize({10, 20}, false);
    m_Log.Clear();

    dynamic_cast<CBaseControlImp&>(Host()).DoRearrange(true);

    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_TRUE(Host().IsRearrangeNeeded());
    m_Control->LockRearrange(false);
}

TEST_F(HostRearrange, TheLastUnlockLaysOut)
{
    m_Control->LockRearrange(true);
    m_Control->LockRearrange(true);
    m_Leaf.SetSize({10, 20}, false);
    m_Log.Clear();

    m_Control->LockRearrange(false);
    EXPECT_EQ(TakeLayout(), "");

    m_Control->LockRearrange(false);
    EXPECT_EQ(TakeLayout(), "host.before() left.SetPos(0 0 30 49, true) leaf.SetPos(0 0 30 20, true) "
                            "other.SetPos(0 21 30 31, true) host.after()");
}

TEST_F(HostRearrange, AnUnlockWithoutALockLaysOutAndLeavesTheCountAtZero)
{
    m_Leaf.SetSize({10, 20}, false);
    m_Control->LockRearrange(false);
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 20}));

    m_Control->LockRearrange(false);
    m_Control->LockRearrange(true);  // one lock holds, so the count was 0
    m_Leaf.SetSize({10, 21}, false);
    Host().ForceRearrange();
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 20}));

    m_Leaf.SetSize({10, 22}, false);
    m_Control->LockRearrange(false);
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 22}));
}

TEST_F(HostRearrange, ForcingUnderALockForgetsTheNeedUntilTheNextRequest)
{
    m_Control->LockRearrange(true);
    m_Leaf.SetSize({10, 20}, false);
    Host().ForceRearrange();
    EXPECT_FALSE(Host().IsRearrangeNeeded());

    m_Control->LockRearrange(false);
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 10}));

    m_Right.SetSize({20, 10}, false);
    Host().ForceRearrange();
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 20}));
}

TEST_F(HostRearrange, TheInterfaceLocksLikeTheControl)
{
    Host().LockRearrange(true);
    m_Leaf.SetSize({10, 20}, false);
    Host().ForceRearrange();
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 10}));

    m_Leaf.SetSize({10, 21}, false);
    Host().LockRearrange(false);
    EXPECT_EQ(m_Leaf.GetPos(), (rectangle<int>{0, 0, 30, 21}));
}

// The whole layout --------------------------------------------------------------------------------------------------------------

TEST_F(HostRearrange, RearrangeLaysEverythingOutAndPaintsEverything)
{
    m_Control->Rearrange();

    EXPECT_EQ(TakeLayout(), s_Everything);
    EXPECT_FALSE(Host().IsRearrangeNeeded());
    EXPECT_EQ(Paint(), "root.DrawContent() left.DrawContent() leaf.DrawContent() other.DrawContent() "
                       "right.DrawContent()");
}

TEST_F(HostRearrange, RearrangeInvalidatesTheWindowInTheEnd)
{
    m_Control->Rearrange();

    std::string const calls = m_Log.Take({"after", "InvalidateRect"});
    EXPECT_EQ(calls.substr(calls.find("host.after()")), std::string("host.after() ") + s_Invalidated);
}

TEST_F(HostRearrange, AWholeLayoutServesTheWaitingElementsToo)
{
    CRecordingElement extra(m_Log, "extra", m_Root);
    CRecordingElement inner(m_Log, "inner", &extra, {10, 5}, alTop);
    extra.SetPos({40, 0, 60, 40}, false);
    EXPECT_EQ(inner.GetPos(), (rectangle<int>{0, 0, 0, 0}));  // extra is not docked, so nobody lays it out

    dynamic_cast<CBaseControlImp&>(Host()).DoRearrange(false);

    EXPECT_EQ(inner.GetPos(), (rectangle<int>{0, 0, 20, 5}));
}

TEST_F(HostRearrange, AnEmptyWindowGivesItsRootASortedRectangle)
{
    m_Window.Resize(0, 0);

    m_Control->Rearrange();

    EXPECT_EQ(m_Root->GetPos(), (rectangle<int>{-1, -1, 0, 0}));
}

// The native size -----------------------------------------------------------------------------------------------------------------

TEST_F(HostRearrange, AResizeLaysOutWithoutForceThenInvalidates)
{
    m_Window.Resize(200, 50);
    CWindowEvent event;

    m_Control->OnResize(&event);

    EXPECT_EQ(m_Log.Take({"before", "after", "SetPos"}),
              "host.before() root.SetPos(0 0 199 49, false) left.SetPos(0 0 30 49, false) "
              "right.SetPos(169 0 199 49, false) host.after()");
}

TEST_F(HostRearrange, AResizeInvalidatesTheNewWholeWindowInTheEnd)
{
    m_Window.Resize(200, 50);
    CWindowEvent event;

    m_Control->OnResize(&event);

    std::string const calls = m_Log.Take({"after", "InvalidateRect"});
    EXPECT_EQ(calls.substr(calls.find("host.after()")), "host.after() window.InvalidateRect(0 0 200 50)");
}

TEST_F(HostRearrange, ASizeTravelsToTheLeavesAndTheirSignalsFireOnTheWayBack)
{
    m_Left.SetAlignment(alClient);
    m_Control->Rearrange();
    auto const note = [&](CVisualElement* element) { m_Log.Add(m_Log.NameOf(element), "SigSize"); };
    auto const a = Listen(m_Root->m_SigSize, note);
    auto const b = Listen(m_Left.m_SigSize, note);
    auto const c = Listen(m_Leaf.m_SigSize, note);
    m_Window.Resize(200, 50);
    CWindowEvent event;
    m_Log.Clear();

    m_Control->OnResize(&event);

    EXPECT_EQ(m_Log.Take({"SigSize", "before", "after", "HandleRefreshPos"}),
              "host.before() leaf.SigSize() left.SigSize() root.SigSize() "
              "root.HandleRefreshPos() left.HandleRefreshPos() leaf.HandleRefreshPos() other.HandleRefreshPos() "
              "right.HandleRefreshPos() host.after()");
}

TEST_F(HostRearrange, AResizeToTheSameSizeLaysNothingOut)
{
    CWindowEvent event;

    m_Control->OnResize(&event);

    EXPECT_EQ(TakeLayout(), "host.before() root.SetPos(0 0 99 49, false) host.after()");
}

TEST_F(HostRearrange, ProcessResizeInFullLaysOutByForceAndPaintsEverything)
{
    auto& imp = dynamic_cast<CBaseControlImp&>(Host());
    CWindowEvent event;

    imp.ProcessResize(&event, true);

    EXPECT_EQ(TakeLayout(), s_Everything);
    EXPECT_EQ(Paint(), "root.DrawContent() left.DrawContent() leaf.DrawContent() other.DrawContent() "
                       "right.DrawContent()");
}

TEST_F(HostRearrange, ProcessResizeInPartLaysOutWithoutForceAndInvalidates)
{
    auto& imp = dynamic_cast<CBaseControlImp&>(Host());
    CWindowEvent event;

    imp.ProcessResize(&event, false);

    EXPECT_EQ(m_Log.Take({"before", "after", "SetPos", "InvalidateRect"}),
              std::string("host.before() root.SetPos(0 0 99 49, false) host.after() ") + s_Invalidated);
    EXPECT_EQ(Paint(), "");
}

// The first paint -----------------------------------------------------------------------------------------------------------------

class FirstPaint : public testing::Test, protected CHostBench
{};

TEST_F(FirstPaint, LaysEverythingOutByForceWhateverWaits)
{
    CRecordingElement child(m_Log, "child", m_Root, {30, 10}, alLeft);
    child.SetSize({40, 10}, false);
    m_Log.Clear();

    m_Control->OnDraw(&m_Window.m_Painter);

    std::string const course = m_Log.Take({"SetPos"});
    EXPECT_NE(course.find("root.SetPos(0 0 99 49, true) child.SetPos(0 0 40 49, true)"), std::string::npos) << course;
    EXPECT_FALSE(Host().IsRearrangeNeeded());
}

TEST_F(FirstPaint, PaintsTheWholeTreeAndDropsWhatWaited)
{
    CRecordingElement child(m_Log, "child", m_Root, {30, 10}, alLeft);
    CRecordingElement other(m_Log, "other", m_Root, {30, 10}, alLeft);
    child.Update(utElement);

    EXPECT_EQ(Paint(), "root.DrawContent() child.DrawContent() other.DrawContent()");

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(Paint(), "");
}

TEST_F(FirstPaint, PaintsARootThatOneChildFillsToo)
{
    CRecordingElement client(m_Log, "client", m_Root, {0, 0}, alClient);
    Host().ClearUpdates(0);

    EXPECT_EQ(Paint(), "root.DrawContent() client.DrawContent()");
}

TEST_F(FirstPaint, ComesOnceOnly)
{
    CRecordingElement child(m_Log, "child", m_Root, {30, 10}, alLeft);
    Paint();
    child.SetSize({40, 10}, false);
    m_Log.Clear();

    m_Control->OnDraw(&m_Window.m_Painter);

    EXPECT_EQ(m_Log.Take({"DrawContent"}), "root.DrawContent() child.DrawContent()");
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 40, 49}));
}

}  // namespace
