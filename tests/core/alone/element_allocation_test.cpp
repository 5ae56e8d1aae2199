// What a tree takes of memory: nothing while it stands still or repaints, and where there is none left, an element is
// either where it was, or where it was to go, or alone, but never half.

#include "tests/support/allocation.h"
#include "vexel/core/base_control.h"
#include "vexel/core/visual_element.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace vexel::test
{

namespace
{

font LargeFont()
{
    font large;
    large.name = "A font whose name takes memory of its own";
    large.size = 12;
    return large;
}

bool HasChild(CVisualElement const& parent, CVisualElement const& child)
{
    IChildren* const children = parent.GetChildren();
    for (int i = 0; i < children->GetCount(); ++i)
        if (children->GetItem(i) == &child)
            return true;
    return false;
}

/// Two panes in a window, a grandchild below a child of the first one.
struct STree
{
    CTestHost host{100, 60};
    CVisualElement first{host.Root(), {50, 0}, alLeft};
    CVisualElement second{host.Root(), {0, 0}, alClient};
    CVisualElement child{&first, {10, 10}, alTop};
    CVisualElement grandchild{&child, {5, 5}, alLeft};
    std::vector<CVisualElement*> all{&first, &second, &child, &grandchild};

    STree() { host.Paint(); }

    /// Parents and children know each other, and everybody below the root, and nobody else, has the control.
    void ExpectWhole() const
    {
        for (CVisualElement* const element : all)
        {
            for (CVisualElement* const other : all)
                EXPECT_EQ(HasChild(*other, *element), element->GetParent() == other);
            bool below = false;
            for (CVisualElement* parent = element; parent; parent = parent->GetParent())
                below = below || parent == host.Root();
            EXPECT_EQ(element->GetControl() != nullptr, below);
        }
    }
};

}  // namespace

TEST(ElementAllocation, AnElementThatCantBeMadeLeavesNoTrace)
{
    int const failures = FailAtEach<STree>([](STree&) {},
                                           [](STree& tree) {
                                               delete new CVisualElement(&tree.second, {5, 5}, alTop);
                                           },
                                           [](STree& tree) {
                                               EXPECT_EQ(tree.second.GetChildren()->GetCount(), 0);
                                               tree.ExpectWhole();
                                               EXPECT_EQ(tree.host.CompareWithFullPaint(), "");
                                           });
    EXPECT_GE(failures, 2) << "the element and its place in the list";
}

TEST(ElementAllocation, AnElementThatCantInheritTheFontLeavesNoTrace)
{
    FailAtEach<STree>([](STree& tree) { tree.second.SetFont(LargeFont()); },
                      [](STree& tree) {
                          delete new CVisualElement(&tree.second, {5, 5}, alTop);
                      },
                      [](STree& tree) {
                          EXPECT_EQ(tree.second.GetChildren()->GetCount(), 0);
                          tree.ExpectWhole();
                          EXPECT_EQ(tree.host.CompareWithFullPaint(), "");
                      });
}

TEST(ElementAllocation, AMoveThatFailsLeavesTheElementInOneTreeOrInNone)
{
    int const failures = FailAtEach<STree>([](STree&) {}, [](STree& tree) { tree.child.ReParent(&tree.second, true); },
                                           [](STree& tree) {
                                               tree.ExpectWhole();
                                               tree.host.Paint();
                                               EXPECT_EQ(tree.host.CompareWithFullPaint(), "");
                                           });
    EXPECT_GE(failures, 1);
}

TEST(ElementAllocation, AMoveIntoAnotherFontThatFailsLeavesTheElementInOneTreeOrInNone)
{
    int const failures = FailAtEach<STree>([](STree& tree) { tree.second.SetFont(LargeFont()); },
                                           [](STree& tree) { tree.child.ReParent(&tree.second, true); },
                                           [](STree& tree) {
                                               tree.ExpectWhole();
                                               tree.host.Paint();
                                               EXPECT_EQ(tree.host.CompareWithFullPaint(), "");
                                           });
    EXPECT_GE(failures, 1);
}

TEST(ElementAllocation, AMoveOutAndBackThatFailsLeavesTheElementInOneTreeOrInNone)
{
    FailAtEach<STree>([](STree&) {},
                      [](STree& tree) {
                          tree.child.ReParent(nullptr, true);
                          tree.child.ReParent(&tree.first, true);
                      },
                      [](STree& tree) {
                          tree.ExpectWhole();
                          tree.host.Paint();
                          EXPECT_EQ(tree.host.CompareWithFullPaint(), "");
                      });
}

TEST(ElementAllocation, AFontThatCantBeTakenLeavesAUsableTree)
{
    int const failures = FailAtEach<STree>([](STree&) {}, [](STree& tree) { tree.first.SetFont(LargeFont()); },
                                           [](STree& tree) {
                                               tree.ExpectWhole();
                                               tree.host.Paint();
                                               EXPECT_EQ(tree.host.CompareWithFullPaint(), "");
                                           });
    EXPECT_GE(failures, 1);
}

TEST(ElementAllocation, AChangeThatCantBeNotedIsPaintedAllTheSameAfterASecondTry)
{
    FailAtEach<STree>([](STree&) {}, [](STree& tree) { tree.child.SetBkColor(_color::FromRgb(1, 2, 3)); },
                      [](STree& tree) { tree.ExpectWhole(); });
}

TEST(ElementAllocation, DyingTakesNoMemory)
{
    CTestHost host(100, 60);
    auto* const top = new CVisualElement(host.Root(), {50, 0}, alLeft);
    for (int i = 0; i < 100; ++i)
        new CVisualElement(top, {10, 10}, alTop);
    host.Paint();
    for (int i = 0; i < 50; ++i)
        top->GetChildren()->GetItem(2 * i)->UpdateElement();

    EXPECT_EQ(CountAllocations([&] { delete top; }), 0);
}

// Steady state -------------------------------------------------------------------------------------------------------

TEST(ElementAllocation, AChangeAndItsPaintTakeNoMemoryFromTheSecondTimeOn)
{
    STree tree;
    auto const change = [&] {
        static int shade = 0;
        for (CVisualElement* const element : tree.all)
            element->SetBkColor(_color::FromRgb(++shade, 0, 0));
        while (tree.host.Window().RunFrame())
            ;
    };
    change();
    change();
    int const frames = tree.host.Window().GetFrameCount();

    EXPECT_EQ(CountAllocations(change), 0);

    EXPECT_EQ(tree.host.Window().GetFrameCount(), frames + 1);
}

TEST(ElementAllocation, ANewLayoutTakesNoMemoryFromTheSecondTimeOn)
{
    STree tree;
    auto const relayout = [&] {
        tree.first.SetWidth(tree.first.GetSize().width == 50 ? 40 : 50, false);
        while (tree.host.Window().RunFrame())
            ;
    };
    relayout();
    relayout();

    EXPECT_EQ(CountAllocations(relayout), 0);

    EXPECT_EQ(tree.first.GetSize().width, 40);
    EXPECT_EQ(tree.second.GetPos().left, 41) << "the first pane's right edge is its own";
}

TEST(ElementAllocation, TheMouseTakesNoMemoryWhileItMoves)
{
    STree tree;
    auto& system = CTestHost::System();
    auto const move = [&] {
        for (int i = 0; i < 20; ++i)
            system.MovePointer({200 + 5 * i, 100 + 2 * i});
    };
    move();

    EXPECT_EQ(CountAllocations(move), 0);
}

TEST(ElementAllocation, AnIdleTreeDoesNothing)
{
    STree tree;
    int const frames = tree.host.Window().GetFrameCount();

    EXPECT_EQ(tree.host.Pending(), "");
    CTestHost::System().Advance(3600 * 1000);
    CTestHost::System().RunQueues();
    EXPECT_FALSE(tree.host.Window().RunFrame());

    EXPECT_EQ(tree.host.Window().GetFrameCount(), frames);
    EXPECT_EQ(tree.host.Pending(), "");
    EXPECT_TRUE(CTestHost::System().GetRunningPeriods().empty());
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 0);
}

}  // namespace vexel::test
