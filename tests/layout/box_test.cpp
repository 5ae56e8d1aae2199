// Boxes size themselves to their docked children.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"
#include "vexel/layout/box.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>

using namespace vexel;
using namespace vexel::test;

namespace
{

template <class Base> class CLogged : public Base
{
public:
    CLogged(CCallLog& log, CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : Base(parent, extent, alignment), m_Log(log)
    {
        log.Name(this, "box");
    }
    void SetSize(size<int> const& extent, bool scale) override
    {
        m_Log.Add("box", "SetSize",
                  std::to_string(extent.width) + " " + std::to_string(extent.height) + (scale ? ", scale" : ""));
        Base::SetSize(extent, scale);
    }
    void SetPos(rectangle<int> const& rect, bool force) override
    {
        m_Log.Add("box", "SetPos", Text(rect) + (force ? ", force" : ""));
        Base::SetPos(rect, force);
    }
    using Base::m_AutoSize;

private:
    CCallLog& m_Log;
};

// A box of 50 x 0, or 0 x 50, in a tree that has a recording control.
template <class Box, int Width, int Height> class BoxTest : public testing::Test
{
protected:
    BoxTest() { m_Root.SetControl(&m_Control); }
    ~BoxTest() override { m_Root.SetControl(nullptr); }

    CVisualElement* Add(int width, int height, Alignment alignment)
    {
        return new CVisualElement(m_Box, {width, height}, alignment);
    }
    std::string MoveTo(rectangle<int> const& rect, bool force = false)
    {
        m_Log.Clear();
        CSignalLog log(m_Box->m_SigSize, "size");
        m_Box->SetPos(rect, force);
        return log.Text();
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingElement m_Root{m_Log, "root", nullptr, {0, 0}, alClient};
    CLogged<Box>* m_Box = new CLogged<Box>(m_Log, &m_Root, {Width, Height}, alNone);
};

using VertBox = BoxTest<CVertBox, 50, 0>;
using HorzBox = BoxTest<CHorzBox, 0, 50>;

// Size -------------------------------------------------------------------------------------------------------------

TEST_F(VertBox, IsNotScrollable)
{
    EXPECT_FALSE(m_Box->IsScrollableOnSetPos());
    EXPECT_TRUE(m_Box->IsClippedToParent());
    EXPECT_FALSE(m_Box->IsTransparent());
}

TEST_F(HorzBox, IsNotScrollable)
{
    EXPECT_FALSE(m_Box->IsScrollableOnSetPos());
}

TEST_F(VertBox, ANewChildMakesItHigherByItsHeightAndOne)
{
    Add(5, 10, alTop);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{50, 11}));
    Add(5, 0, alTop);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{50, 12}));
}

TEST_F(VertBox, CountsChildrenAtTheTopAtTheBottomAndTheOneThatFillsTheRest)
{
    Add(5, 10, alTop);
    Add(5, 7, alBottom);
    Add(5, 4, alClient);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{50, 24}));
    Add(60, 70, alLeft);
    Add(60, 70, alRight);
    Add(60, 70, alNone);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{50, 24}));
}

TEST_F(HorzBox, ANewChildMakesItWiderByItsWidthAndOne)
{
    Add(10, 5, alLeft);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{11, 50}));
}

TEST_F(HorzBox, CountsChildrenAtTheSidesAndTheOneThatFillsTheRest)
{
    Add(10, 5, alLeft);
    Add(7, 5, alRight);
    Add(4, 5, alClient);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{24, 50}));
    Add(60, 70, alTop);
    Add(60, 70, alBottom);
    Add(60, 70, alNone);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{24, 50}));
}

TEST_F(VertBox, AHiddenChildDoesNotCount)
{
    Add(5, 10, alTop);
    CVisualElement* const child = Add(5, 20, alTop);
    child->SetVisible(false);
    EXPECT_EQ(m_Box->GetSize().height, 11);
    child->SetVisible(true);
    EXPECT_EQ(m_Box->GetSize().height, 32);
}

TEST_F(HorzBox, AHiddenChildDoesNotCount)
{
    Add(10, 5, alLeft);
    Add(20, 5, alLeft)->SetVisible(false);
    EXPECT_EQ(m_Box->GetSize().width, 11);
}

TEST_F(VertBox, FollowsTheSizeAndTheAlignmentOfItsChildren)
{
    CVisualElement* const child = Add(5, 10, alTop);
    child->SetHeight(30, false);
    EXPECT_EQ(m_Box->GetSize().height, 31);
    child->SetAlignment(alLeft);
    EXPECT_EQ(m_Box->GetSize().height, 0);
}

TEST_F(HorzBox, FollowsTheSizeOfItsChildren)
{
    Add(10, 5, alLeft)->SetWidth(30, false);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{31, 50}));
}

TEST_F(VertBox, ItsSizeIsNotScaledAgain)
{
    m_System.SetScale(2.0);
    m_Log.Clear();
    Add(5, 10, alTop);  // asks for 10 x 20 on this display
    EXPECT_EQ(m_Box->GetSize(), (size<int>{50, 21}));
    EXPECT_EQ(m_Log.Take({"SetSize"}), "box.SetSize(50 21) box.SetSize(50 21)") << "as a new child and as a request";
}

TEST_F(HorzBox, ItsSizeIsNotScaledAgain)
{
    m_System.SetScale(2.0);
    m_Log.Clear();
    Add(10, 5, alLeft);
    EXPECT_EQ(m_Log.Take({"SetSize"}), "box.SetSize(21 50) box.SetSize(21 50)");
}

TEST_F(VertBox, ASizeGivenByHandStaysUntilAChildAsks)
{
    CVisualElement* const child = Add(5, 10, alTop);
    m_Box->SetSize({60, 99}, false);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{60, 99}));
    child->OnRearrange(child);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{60, 11}));
}

TEST_F(VertBox, RecalculatingTakesTheSizeThatTheChildrenNeed)
{
    Add(5, 10, alTop);
    m_Box->SetSize({60, 99}, false);
    m_Box->RecalculateSize();
    EXPECT_EQ(m_Box->GetSize(), (size<int>{60, 11}));
}

// With and without a control ---------------------------------------------------------------------------------------

TEST_F(VertBox, WithoutAControlItDoesNotSizeItself)
{
    CVertBox alone(nullptr, {50, 3}, alTop);
    auto* const child = new CVisualElement(&alone, {5, 10}, alTop);
    EXPECT_EQ(alone.GetSize(), (size<int>{50, 3}));
    child->SetHeight(20, false);
    EXPECT_EQ(alone.GetSize(), (size<int>{50, 3}));
    alone.RecalculateSize();
    EXPECT_EQ(alone.GetSize(), (size<int>{50, 3}));
    alone.SetBottomPadSize(4);
    EXPECT_EQ(alone.GetSize(), (size<int>{50, 3}));
}

TEST_F(HorzBox, WithoutAControlItDoesNotSizeItself)
{
    CHorzBox alone(nullptr, {3, 50}, alTop);
    new CVisualElement(&alone, {10, 5}, alLeft);
    alone.RecalculateSize();
    alone.SetRightPadSize(4);
    EXPECT_EQ(alone.GetSize(), (size<int>{3, 50}));
}

TEST_F(VertBox, SizesItselfWhenItGetsAControl)
{
    auto* const box = new CVertBox(nullptr, {50, 3}, alTop);
    new CVisualElement(box, {5, 10}, alTop);
    box->SetBottomPadSize(4);
    box->ReParent(&m_Root, true);
    EXPECT_EQ(box->GetSize(), (size<int>{50, 15}));
}

TEST_F(HorzBox, SizesItselfWhenItGetsAControl)
{
    auto* const box = new CHorzBox(nullptr, {3, 50}, alTop);
    new CVisualElement(box, {10, 5}, alLeft);
    box->SetRightPadSize(4);
    box->ReParent(&m_Root, true);
    EXPECT_EQ(box->GetSize(), (size<int>{15, 50}));
}

// A child that asks for another size when it gets a control.
class CEager : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    std::function<void()> m_OnControl;

protected:
    void AfterSetControl() override
    {
        if (m_OnControl)
            m_OnControl();
    }
};

TEST_F(VertBox, SizesItselfOnceAllChildrenHaveTheControl)
{
    auto* const box = new CLogged<CVertBox>(m_Log, nullptr, {50, 3}, alTop);
    auto* const first = new CEager(box, {5, 10}, alTop);
    first->m_OnControl = [first] { first->SetHeight(20, false); };
    new CVisualElement(box, {5, 30}, alTop);
    m_Log.Clear();
    box->ReParent(&m_Root, false);
    EXPECT_EQ(m_Log.Take({"SetSize"}), "box.SetSize(50 52)");
}

TEST_F(VertBox, IsAutomaticFromTheTimeThatItHasAControl)
{
    EXPECT_TRUE(m_Box->m_AutoSize);
    m_Box->ReParent(nullptr, false);
    EXPECT_FALSE(m_Box->m_AutoSize);
    m_Box->SetBottomPadSize(4);
    EXPECT_EQ(m_Box->GetSize().height, 0);
    m_Box->ReParent(&m_Root, false);
    EXPECT_TRUE(m_Box->m_AutoSize);
    EXPECT_EQ(m_Box->GetSize().height, 4);
}

TEST_F(VertBox, OneThatIsMadeUnderAControlIsAutomaticFromTheBeginning)
{
    auto* const box = new CLogged<CVertBox>(m_Log, &m_Root, {50, 0}, alTop);
    EXPECT_TRUE(box->m_AutoSize);
    auto* const child = new CVisualElement(box, {5, 10}, alTop);
    child->SetHeight(20, false);
    EXPECT_EQ(box->GetSize(), (size<int>{50, 21}));
    box->SetBottomPadSize(4);
    EXPECT_EQ(box->GetSize(), (size<int>{50, 25}));
}

TEST_F(HorzBox, OneThatIsMadeUnderAControlIsAutomaticFromTheBeginning)
{
    auto* const box = new CHorzBox(&m_Root, {0, 50}, alTop);
    auto* const child = new CVisualElement(box, {10, 5}, alLeft);
    child->SetWidth(20, false);
    EXPECT_EQ(box->GetSize(), (size<int>{21, 50}));
}

// The rearrange chain ----------------------------------------------------------------------------------------------

TEST_F(VertBox, AChildsRequestBecomesOneOfTheBox)
{
    CVisualElement* const child = Add(5, 10, alTop);
    m_Log.Clear();
    child->SetAlignment(alBottom);
    EXPECT_EQ(m_Log.Take({"SetSize", "ProcessRearrange", "RearrangeElement"}),
              "box.SetSize(50 11) root.ProcessRearrange(box) control.RearrangeElement(box)");
}

TEST_F(VertBox, ARequestThatResizesTheBoxAsksForTheBoxTwice)
{
    CVisualElement* const child = Add(5, 10, alTop);
    m_Log.Clear();
    child->SetHeight(20, false);
    EXPECT_EQ(m_Log.Take({"SetSize", "ProcessRearrange", "RearrangeElement"}),
              "box.SetSize(50 21) root.ProcessRearrange(box) control.RearrangeElement(box) "
              "root.ProcessRearrange(box) control.RearrangeElement(box)");
}

TEST_F(VertBox, ItsOwnRequestPassesAsItIs)
{
    Add(5, 10, alTop);
    m_Log.Clear();
    m_Box->OnRearrange(m_Box);
    EXPECT_EQ(m_Log.Take({"SetSize", "ProcessRearrange", "RearrangeElement"}),
              "root.ProcessRearrange(box) control.RearrangeElement(box)");
}

TEST_F(VertBox, WithoutAControlAChildsRequestPassesAsItIs)
{
    CRecordingElement top(m_Log, "top");
    auto* const box = new CLogged<CVertBox>(m_Log, &top, {50, 3}, alTop);
    auto* const child = new CVisualElement(box, {5, 10}, alTop);
    m_Log.Name(child, "child");
    m_Log.Clear();
    child->SetHeight(20, false);
    EXPECT_EQ(m_Log.Take({"SetSize", "ProcessRearrange"}), "top.ProcessRearrange(child)");
}

TEST_F(VertBox, ABoxInABoxGrowsBoth)
{
    auto* const inner = new CVertBox(m_Box, {5, 0}, alTop);
    EXPECT_EQ(m_Box->GetSize().height, 1);
    auto* const child = new CVisualElement(inner, {5, 10}, alTop);
    EXPECT_EQ(inner->GetSize().height, 11);
    EXPECT_EQ(m_Box->GetSize().height, 12);
    child->SetHeight(20, false);
    EXPECT_EQ(inner->GetSize().height, 21);
    EXPECT_EQ(m_Box->GetSize().height, 22);
}

// Pads -------------------------------------------------------------------------------------------------------------

TEST_F(VertBox, ThePadAddsToItsHeight)
{
    Add(5, 10, alTop);
    m_Box->SetBottomPadSize(6);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{50, 17}));
    Add(5, 3, alTop);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{50, 21}));
}

TEST_F(HorzBox, ThePadAddsToItsWidth)
{
    Add(10, 5, alLeft);
    m_Box->SetRightPadSize(6);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{17, 50}));
    Add(3, 5, alLeft);
    EXPECT_EQ(m_Box->GetSize(), (size<int>{21, 50}));
}

TEST_F(VertBox, AnotherPadChangesTheHeightByTheDifference)
{
    Add(5, 10, alTop);
    m_Box->SetSize({50, 100}, false);
    m_Log.Clear();
    m_Box->SetBottomPadSize(6);
    m_Box->SetBottomPadSize(2);
    m_Box->SetBottomPadSize(2);
    EXPECT_EQ(m_Log.Take({"SetSize"}), "box.SetSize(50 106) box.SetSize(50 102)");
}

TEST_F(HorzBox, AnotherPadChangesTheWidthByTheDifference)
{
    Add(10, 5, alLeft);
    m_Box->SetSize({100, 50}, false);
    m_Log.Clear();
    m_Box->SetRightPadSize(6);
    m_Box->SetRightPadSize(2);
    m_Box->SetRightPadSize(2);
    EXPECT_EQ(m_Log.Take({"SetSize"}), "box.SetSize(106 50) box.SetSize(102 50)");
}

TEST_F(VertBox, APadBelowZeroIsNone)
{
    m_Box->SetBottomPadSize(-5);
    EXPECT_EQ(m_Box->GetSize().height, 0);
    m_Box->SetBottomPadSize(6);
    m_Log.Clear();
    m_Box->SetBottomPadSize(-7);
    EXPECT_EQ(m_Log.Take({"SetSize"}), "box.SetSize(50 0)");
}

TEST_F(HorzBox, APadBelowZeroIsNone)
{
    m_Box->SetRightPadSize(6);
    m_Box->SetRightPadSize(-7);
    EXPECT_EQ(m_Box->GetSize().width, 0);
}

// Places -----------------------------------------------------------------------------------------------------------

TEST_F(VertBox, APureMoveIsToldByTheScrolledElementAndByTheBox)
{
    MoveTo({0, 0, 50, 30});
    EXPECT_EQ(MoveTo({0, 5, 50, 35}), "size() size()");
    EXPECT_EQ(MoveTo({6, 5, 56, 35}), "size() size()");
    EXPECT_EQ(MoveTo({6, 5, 56, 35}), "");
}

TEST_F(HorzBox, APureMoveIsToldByTheScrolledElementAndByTheBox)
{
    MoveTo({0, 0, 30, 50});
    EXPECT_EQ(MoveTo({0, 5, 30, 55}), "size() size()");
    EXPECT_EQ(MoveTo({6, 5, 36, 55}), "size() size()");
}

TEST_F(VertBox, GrowthInPlaceIsNotTold)
{
    MoveTo({0, 0, 50, 30});
    EXPECT_EQ(MoveTo({0, 0, 50, 40}), "");
    EXPECT_EQ(MoveTo({0, 5, 50, 50}), "") << "top and height have both changed";
}

TEST_F(VertBox, AnotherWidthMakesItTakeTheSizeItNeeds)
{
    Add(5, 10, alTop);
    MoveTo({0, 0, 50, 30});
    m_Box->SetSize({50, 99}, false);
    MoveTo({0, 0, 50, 40});
    EXPECT_EQ(m_Box->GetSize().height, 99) << "the height alone";
    MoveTo({4, 7, 54, 47});
    EXPECT_EQ(m_Box->GetSize().height, 99) << "a move";
    MoveTo({4, 7, 55, 47});
    EXPECT_EQ(m_Box->GetSize(), (size<int>{50, 11}));
}

TEST_F(HorzBox, AnotherHeightMakesItTakeTheSizeItNeeds)
{
    Add(10, 5, alLeft);
    MoveTo({0, 0, 30, 50});
    m_Box->SetSize({99, 50}, false);
    MoveTo({0, 0, 40, 50});
    EXPECT_EQ(m_Box->GetSize().width, 99) << "the width alone";
    MoveTo({7, 4, 47, 54});
    EXPECT_EQ(m_Box->GetSize().width, 99) << "a move";
    MoveTo({7, 4, 47, 55});
    EXPECT_EQ(m_Box->GetSize(), (size<int>{11, 50}));
}

TEST_F(VertBox, AnotherLeftTopRepaintsIt)
{
    MoveTo({0, 0, 50, 30});
    MoveTo({0, 5, 50, 35});
    EXPECT_EQ(m_Log.Take({"UpdateElement", "ScrollContent"}), "control.UpdateElement(box, 2)");
    MoveTo({3, 5, 53, 35});
    EXPECT_EQ(m_Log.Take({"UpdateElement", "ScrollContent"}), "control.UpdateElement(box, 2)");
    MoveTo({3, 5, 53, 45});
    EXPECT_EQ(m_Log.Take({"UpdateElement", "ScrollContent"}), "");
}

TEST_F(HorzBox, AnotherLeftTopRepaintsIt)
{
    MoveTo({0, 0, 30, 50});
    MoveTo({0, 5, 30, 55});
    EXPECT_EQ(m_Log.Take({"UpdateElement", "ScrollContent"}), "control.UpdateElement(box, 2)");
    MoveTo({0, 5, 40, 55});
    EXPECT_EQ(m_Log.Take({"UpdateElement", "ScrollContent"}), "");
}

// In a window ------------------------------------------------------------------------------------------------------

TEST(BoxInWindow, GrowsAndMovesWhatStandsBelowWithTheNextPaint)
{
    CTestHost host(100, 60);
    auto* const box = new CVertBox(host.Root(), {0, 0}, alTop);
    auto* const below = new CVisualElement(host.Root(), {0, 0}, alClient);
    auto* const first = new CVisualElement(box, {0, 10}, alTop);
    host.Paint();
    EXPECT_EQ(box->GetPos(), (rectangle<int>{0, 0, 99, 11}));
    EXPECT_EQ(first->GetPos(), (rectangle<int>{0, 0, 99, 10}));
    EXPECT_EQ(below->GetPos(), (rectangle<int>{0, 12, 99, 59}));

    auto* const second = new CVisualElement(box, {0, 5}, alTop);
    first->SetHeight(12, false);
    host.Paint();
    EXPECT_EQ(box->GetPos(), (rectangle<int>{0, 0, 99, 19}));
    EXPECT_EQ(first->GetPos(), (rectangle<int>{0, 0, 99, 12}));
    EXPECT_EQ(second->GetPos(), (rectangle<int>{0, 13, 99, 18}));
    EXPECT_EQ(below->GetPos(), (rectangle<int>{0, 20, 99, 59}));
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST(BoxInWindow, StandsSideBySide)
{
    CTestHost host(100, 60);
    auto* const box = new CHorzBox(host.Root(), {0, 0}, alLeft);
    auto* const rest = new CVisualElement(host.Root(), {0, 0}, alClient);
    new CVisualElement(box, {10, 0}, alLeft);
    auto* const second = new CVisualElement(box, {20, 0}, alLeft);
    box->SetRightPadSize(3);
    host.Paint();
    EXPECT_EQ(box->GetPos(), (rectangle<int>{0, 0, 35, 59}));
    EXPECT_EQ(second->GetPos(), (rectangle<int>{11, 0, 31, 59}));
    EXPECT_EQ(rest->GetPos(), (rectangle<int>{36, 0, 99, 59}));
}

}  // namespace
