// Elements whose size follows another one's.

#include "tests/support/call_log.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"
#include "vexel/layout/resizer.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A pane of 80 x 50 is watched, an element of 7 x 9 is resized.
class Resizer : public testing::Test
{
protected:
    Resizer() { m_Pane.SetPos({5, 6, 85, 56}, false); }

    void MakePane(int width, int height) { m_Pane.SetPos({5, 6, 5 + width, 6 + height}, false); }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CVisualElement m_Pane{nullptr, {1000, 1000}, alNone};
    CRecordingElement m_Element{m_Log, "element", nullptr, {7, 9}};
};

// A part -----------------------------------------------------------------------------------------------------------

TEST_F(Resizer, AHeightIsAPartOfTheWatchedHeight)
{
    CVertProportionalResizer resizer(&m_Element, 0.25);
    EXPECT_EQ(resizer.GetSize(&m_Pane), 50);
    resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 12})) << "12.5 without its fraction";
}

TEST_F(Resizer, AWidthIsAPartOfTheWatchedWidth)
{
    CHorzProportionalResizer resizer(&m_Element, 0.66);
    EXPECT_EQ(resizer.GetSize(&m_Pane), 80);
    resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{52, 9})) << "52.8 without its fraction";
}

TEST_F(Resizer, TheSizeIsNotScaled)
{
    m_System.SetScale(2.0);
    CVertProportionalResizer vert(&m_Element, 0.5);
    CHorzProportionalResizer horz(&m_Element, 0.5);
    vert.ProcessResize(&m_Pane);
    horz.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Log.Take({"SetSize"}), "element.SetSize(7 25, false) element.SetSize(40 25, false)");
}

TEST_F(Resizer, FollowsTheSizeSignal)
{
    CVertProportionalResizer resizer(&m_Element, 2.0);
    m_Pane.m_SigSize.connect(&resizer, &CResizer::ProcessResize);
    m_Pane.SetPos({5, 6, 85, 36}, true);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 60}));
}

TEST_F(Resizer, AResizerThatIsGoneIsNotCalled)
{
    {
        CVertProportionalResizer resizer(&m_Element, 2.0);
        m_Pane.m_SigSize.connect(&resizer, &CResizer::ProcessResize);
    }
    m_Pane.SetPos({5, 6, 85, 36}, true);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 9}));
}

TEST_F(Resizer, WithoutAWatchedElementNothingHappens)
{
    CVertProportionalResizer vert(&m_Element, 2.0);
    vert.ProcessResize(nullptr);
    CHorzProportionalResizer horz(&m_Element, 2.0);
    horz.ProcessResize(nullptr);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 9}));
}

TEST_F(Resizer, WithoutAnElementNothingHappens)
{
    CVertProportionalResizer resizer(nullptr, 2.0);
    resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(resizer.GetElement(), nullptr);
    resizer.SetElement(&m_Element);
    resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 100}));
}

TEST_F(Resizer, AnElementThatDiesIsForgotten)
{
    auto element = std::make_unique<CVisualElement>(nullptr, size<int>{7, 9}, alNone);
    CVertProportionalResizer resizer(element.get(), 2.0);
    element.reset();
    EXPECT_EQ(resizer.GetElement(), nullptr);
    resizer.ProcessResize(&m_Pane);
}

TEST_F(Resizer, AnotherElementOrRatioCountsFromTheNextTime)
{
    CVisualElement other(nullptr, {1, 2}, alNone);
    CVertProportionalResizer resizer(&m_Element, 2.0);
    resizer.SetElement(&other);
    resizer.SetRatio(0.5);
    EXPECT_EQ(resizer.GetRatio(), 0.5);
    resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(other.GetSize(), (size<int>{1, 25}));
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 9}));
}

TEST_F(Resizer, APartBelowZeroIsNothing)
{
    CVertProportionalResizer resizer(&m_Element, -1.0);
    resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 0}));
}

// A part up to what is wanted: the element wants 30 and its neighbour 70 ------------------------------------------------

template <class R> class CShared : public R
{
public:
    using R::m_Element;
    using R::m_Ratio;
    using R::R;
};

template <class R> class ResizerEx : public Resizer
{
protected:
    ResizerEx()
    {
        m_Neighbour.SetPos({0, 0, 3, 4}, false);
        m_Resizer.SetElementSize(30);
        m_Resizer.SetValidatorSize(70);
    }
    // Both elements along the direction that counts.
    void Have(size<int> const& element, size<int> const& neighbour)
    {
        m_Element.SetSize(element, false);
        m_Neighbour.SetPos({8, 9, 8 + neighbour.width, 9 + neighbour.height}, false);
    }

    CVisualElement m_Neighbour{nullptr, {500, 500}, alNone};
    CShared<R> m_Resizer{&m_Element, &m_Neighbour};
};

using VertResizerEx = ResizerEx<CVertProportionalResizerEx>;
using HorzResizerEx = ResizerEx<CHorzProportionalResizerEx>;

TEST_F(VertResizerEx, WantsNothingAtFirst)
{
    CVertProportionalResizerEx resizer(&m_Element, &m_Neighbour);
    EXPECT_EQ(resizer.GetElementSize(), 0);
    EXPECT_EQ(resizer.GetValidatorSize(), 0);
    EXPECT_EQ(resizer.GetElement(), &m_Element);
    EXPECT_EQ(resizer.GetValidator(), &m_Neighbour);
    EXPECT_EQ(m_Resizer.GetElementSize(), 30);
    EXPECT_EQ(m_Resizer.GetValidatorSize(), 70);
}

TEST_F(VertResizerEx, MeasuresTheHeightAskedForAndTheNeighboursBounds)
{
    Have({11, 12}, {13, 14});
    EXPECT_EQ(m_Resizer.GetElementSize(&m_Element), 12);
    EXPECT_EQ(m_Resizer.GetValidatorSize(&m_Neighbour), 14);
    EXPECT_EQ(m_Resizer.GetSize(&m_Pane), 50);
}

TEST_F(HorzResizerEx, MeasuresTheWidthAskedForAndTheNeighboursBounds)
{
    Have({11, 12}, {13, 14});
    EXPECT_EQ(m_Resizer.GetElementSize(&m_Element), 11);
    EXPECT_EQ(m_Resizer.GetValidatorSize(&m_Neighbour), 13);
    EXPECT_EQ(m_Resizer.GetSize(&m_Pane), 80);
}

TEST_F(VertResizerEx, ThePartIsWhatTheElementWantsOfWhatBothWant)
{
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_DOUBLE_EQ(m_Resizer.m_Ratio, 0.3);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 15}));
    MakePane(80, 69);
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 20})) << "20.7 without its fraction";
}

TEST_F(HorzResizerEx, ThePartIsWhatTheElementWantsOfWhatBothWant)
{
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{24, 9}));
}

TEST_F(VertResizerEx, TheElementNeverGetsMoreThanItWants)
{
    MakePane(80, 500);
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 30}));
}

TEST_F(HorzResizerEx, TheElementNeverGetsMoreThanItWants)
{
    MakePane(500, 50);
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{30, 9}));
}

TEST_F(VertResizerEx, ItsSizesAreNotScaled)
{
    m_System.SetScale(2.0);
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Log.Take({"SetSize"}), "element.SetSize(7 15, false)");
}

TEST_F(VertResizerEx, OnceBothHaveWhatTheyWantThePartIsDroppedAndNothingHappens)
{
    m_Resizer.ProcessResize(&m_Pane);
    Have({7, 30}, {3, 70});
    m_Log.Clear();
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Resizer.m_Ratio, 0.0);
    EXPECT_FALSE(m_Resizer.IsProportionalResizing(&m_Pane));
}

TEST_F(VertResizerEx, AsLongAsOneOfThemWantsMoreThePartIsKept)
{
    Have({7, 29}, {3, 70});
    EXPECT_TRUE(m_Resizer.IsProportionalResizing(&m_Pane));
    Have({7, 30}, {3, 69});
    EXPECT_TRUE(m_Resizer.IsProportionalResizing(&m_Pane));
    Have({7, 31}, {3, 71});
    EXPECT_FALSE(m_Resizer.IsProportionalResizing(&m_Pane));
}

TEST_F(HorzResizerEx, AsLongAsOneOfThemWantsMoreThePartIsKept)
{
    Have({29, 99}, {70, 99});
    EXPECT_TRUE(m_Resizer.IsProportionalResizing(&m_Pane));
    Have({30, 99}, {69, 99});
    EXPECT_TRUE(m_Resizer.IsProportionalResizing(&m_Pane));
    Have({30, 0}, {70, 0});
    EXPECT_FALSE(m_Resizer.IsProportionalResizing(&m_Pane));
}

TEST_F(VertResizerEx, ThePartIsWorkedOutAnewOnlyAfterItWasDropped)
{
    EXPECT_TRUE(m_Resizer.IsProportionalResizing(&m_Pane));
    m_Resizer.SetElementSize(70);
    EXPECT_TRUE(m_Resizer.IsProportionalResizing(&m_Pane));
    EXPECT_DOUBLE_EQ(m_Resizer.m_Ratio, 0.3);
    Have({7, 70}, {3, 70});
    EXPECT_FALSE(m_Resizer.IsProportionalResizing(&m_Pane));
    Have({7, 70}, {3, 10});
    EXPECT_TRUE(m_Resizer.IsProportionalResizing(&m_Pane));
    EXPECT_DOUBLE_EQ(m_Resizer.m_Ratio, 0.5);
}

TEST_F(VertResizerEx, APartSetByHandIsTaken)
{
    m_Resizer.SetRatio(0.1);
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 5}));
}

TEST_F(VertResizerEx, WithoutAWatchedElementOrAnElementItDoesNotResize)
{
    m_Resizer.SetRatio(0.1);
    Have({7, 30}, {3, 70});
    EXPECT_FALSE(m_Resizer.IsProportionalResizing(nullptr));
    m_Resizer.ProcessResize(nullptr);
    m_Resizer.SetElement(nullptr);
    EXPECT_FALSE(m_Resizer.IsProportionalResizing(&m_Pane));
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Resizer.m_Ratio, 0.1) << "the part is dropped by growth alone";
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 30}));
}

TEST_F(VertResizerEx, ANeighbourThatDiesCountsAsOneWithoutExtent)
{
    auto neighbour = std::make_unique<CVisualElement>(nullptr, size<int>{7, 9}, alNone);
    neighbour->SetPos({0, 0, 3, 70}, false);
    m_Resizer.SetValidator(neighbour.get());
    Have({7, 30}, {3, 4});
    EXPECT_FALSE(m_Resizer.IsProportionalResizing(&m_Pane));
    neighbour.reset();
    EXPECT_EQ(m_Resizer.GetValidator(), nullptr);
    EXPECT_TRUE(m_Resizer.IsProportionalResizing(&m_Pane));
}

TEST_F(VertResizerEx, WhereNobodyWantsAnythingThereIsNoPart)
{
    m_Resizer.SetElementSize(0);
    m_Resizer.SetValidatorSize(0);
    EXPECT_FALSE(m_Resizer.IsProportionalResizing(&m_Pane));
    m_Neighbour.SetPos({0, 10, 5, 5}, false);  // reversed: less than nothing
    EXPECT_TRUE(m_Resizer.IsProportionalResizing(&m_Pane));
    EXPECT_EQ(m_Resizer.m_Ratio, 0.0);
    m_Resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 0}));
}

TEST_F(VertResizerEx, ASubclassMayForbidIt)
{
    struct SForbidding : CVertProportionalResizerEx
    {
        using CVertProportionalResizerEx::CVertProportionalResizerEx;
        bool IsProportionalResizing(CVisualElement*) override { return false; }
    } resizer(&m_Element, &m_Neighbour);
    resizer.SetElementSize(30);
    resizer.SetValidatorSize(70);
    resizer.SetRatio(0.5);
    resizer.ProcessResize(&m_Pane);
    EXPECT_EQ(m_Element.GetSize(), (size<int>{7, 9}));
}

// Even gaps --------------------------------------------------------------------------------------------------------

class UniformResizer : public Resizer
{
protected:
    CRecordingElement* Add(std::string const& name, int height)
    {
        return new CRecordingElement(m_Log, name, &m_Pane, {3, height});
    }
    std::string Spread(int height)
    {
        MakePane(80, height);
        m_Log.Clear();
        m_Resizer.ProcessResize(&m_Pane);
        return m_Log.Take({"SetPos"});
    }

    CUniformVertResizer m_Resizer;
};

TEST_F(UniformResizer, SpreadsTheChildrenWithEqualGapsOverTheHeight)
{
    Add("a", 10);
    Add("b", 20);
    Add("c", 30);
    EXPECT_EQ(Spread(100), "a.SetPos(0 0 80 10, false) b.SetPos(0 31 80 51, false) c.SetPos(0 72 80 102, false)");
}

TEST_F(UniformResizer, TheGapIsAWholeNumber)
{
    Add("a", 10);
    Add("b", 20);
    Add("c", 30);
    EXPECT_EQ(Spread(101), "a.SetPos(0 0 80 10, false) b.SetPos(0 31 80 51, false) c.SetPos(0 72 80 102, false)");
    EXPECT_EQ(Spread(102), "a.SetPos(0 0 80 10, false) b.SetPos(0 32 80 52, false) c.SetPos(0 74 80 104, false)");
}

TEST_F(UniformResizer, ChildrenThatFindNoRoomOverlap)
{
    Add("a", 30);
    Add("b", 30);
    EXPECT_EQ(Spread(50), "a.SetPos(0 0 80 30, false) b.SetPos(0 21 80 51, false)");
}

TEST_F(UniformResizer, HiddenChildrenAreSpreadToo)
{
    Add("a", 10);
    Add("b", 10)->SetVisible(false);
    Add("c", 10);
    EXPECT_EQ(Spread(50), "a.SetPos(0 0 80 10, false) b.SetPos(0 21 80 31, false) c.SetPos(0 42 80 52, false)");
}

TEST_F(UniformResizer, ASingleChildStandsAtTheTop)
{
    Add("a", 10);
    EXPECT_EQ(Spread(50), "a.SetPos(0 0 80 10, false)");
}

TEST_F(UniformResizer, WithoutChildrenOrAnElementNothingHappens)
{
    EXPECT_EQ(Spread(50), "");
    m_Resizer.ProcessResize(nullptr);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(UniformResizer, FollowsTheSizeSignal)
{
    CRecordingElement* const first = Add("a", 10);
    CRecordingElement* const second = Add("b", 10);
    m_Pane.m_SigSize.connect(&m_Resizer, &CResizer::ProcessResize);
    m_Pane.SetPos({0, 0, 40, 30}, true);
    EXPECT_EQ(first->GetPos(), (rectangle<int>{0, 0, 40, 10}));
    EXPECT_EQ(second->GetPos(), (rectangle<int>{0, 21, 40, 31}));
}

}  // namespace
