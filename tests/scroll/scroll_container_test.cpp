// A view on one element that is larger than itself.

#include "tests/support/call_log.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"
#include "vexel/core/base_control.h"
#include "vexel/layout/container.h"
#include "vexel/platform/memory/memory_edit.h"
#include "vexel/platform/memory/memory_scroll_bar.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A coloured area; can have the focus.
class CLeaf : public CVisualElement
{
public:
    CLeaf(CVisualElement* parent, rectangle<int> const& pos, int colour) : CVisualElement(parent, {1, 1}, alNone)
    {
        SetBkColor(color_table[colour]);
        SetPos(pos, false);
        SetCanHaveFocus(true);
    }
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
    }
};

// Notes its places.
class CPlaced : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    std::string m_Places;
    void SetPos(rectangle<int> const& rect, bool force) override
    {
        m_Places += (m_Places.empty() ? "(" : " (") + Text(rect) + (force ? ", force)" : ")");
        CVisualElement::SetPos(rect, force);
    }
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
    }
    std::string Take() { return std::exchange(m_Places, {}); }
};

// Fills a window of 100 x 80 and shows an element that asks for 300 x 400. With both bars the view is 82 wide, 62 high.
class ScrollContainer : public testing::Test
{
protected:
    ScrollContainer()
    {
        m_Content = new CPlaced(nullptr, {300, 400}, alLeft);
        m_Container->SetScrolled(m_Content);
        m_Host.Paint();
        m_Content->Take();
    }
    CScrollContainer::CCentralPart& Part() { return m_Container->GetCentralPart(); }
    vexelbase::memory::CMemoryScrollBar* Vert() const
    {
        return dynamic_cast<vexelbase::memory::CMemoryScrollBar*>(m_Container->GetVertBar());
    }
    vexelbase::memory::CMemoryScrollBar* Horz() const
    {
        return dynamic_cast<vexelbase::memory::CMemoryScrollBar*>(m_Container->GetHorzBar());
    }
    std::string Starts() { return Describe(Part().GetHorzStart()) + " " + Describe(Part().GetVertStart()); }
    void ExpectPainted() { EXPECT_EQ(m_Host.CompareWithFullPaint(), ""); }

    CTestHost m_Host{100, 80};
    CScrollContainer* m_Container = new CScrollContainer(m_Host.Root(), {10, 10}, alClient);
    CPlaced* m_Content = nullptr;
};

TEST_F(ScrollContainer, HasAViewOfItsOwnAndNothingInIt)
{
    CScrollContainer container(nullptr, {10, 10}, alTop);
    CScrollContainer::CCentralPart& part = container.GetCentralPart();
    EXPECT_EQ(container.GetScrolled(), nullptr);
    EXPECT_EQ(part.GetScrolled(), nullptr);
    EXPECT_EQ(part.GetSize(), (size<int>{12, 12}));
    EXPECT_EQ(part.GetAlignment(), alClient);
    EXPECT_EQ(part.GetParent(), &container);
    EXPECT_FALSE(part.IsDynamic());
    EXPECT_EQ(part.GetFitMode(), CScrollContainer::fmNone);
    EXPECT_EQ(part.GetHorzStepInPixels(), 10);
    EXPECT_EQ(part.GetVertStepInPixels(), 10);
    EXPECT_EQ(container.GetCentralPane(), &part);
    EXPECT_EQ(container.GetHorzScroll(), static_cast<IHorzPhysicalScrollModel*>(&part));
    EXPECT_EQ(container.GetVertScroll(), static_cast<IVertPhysicalScrollModel*>(&part));
    EXPECT_EQ(part.GetHorzScroll(), container.GetWrappedHorzScroll());
    EXPECT_EQ(part.GetVertScroll(), container.GetWrappedVertScroll());
    EXPECT_EQ(part.GetHorzTo(), 0.0);
    EXPECT_EQ(part.GetVertTo(), 0.0);
    EXPECT_EQ(part.GetHorzStart(), 0.0);
    EXPECT_EQ(part.GetVertStart(), 0.0);
    part.SetVertStart(5);
    part.SetHorzStart(5);
}

TEST_F(ScrollContainer, ShowsItsElementFromTheLeftTopWithBarsAround)
{
    EXPECT_EQ(m_Container->GetScrolled(), m_Content);
    EXPECT_EQ(Part().GetScrolled(), m_Content);
    EXPECT_EQ(m_Content->GetParent(), &Part());
    EXPECT_EQ(m_Content->GetAlignment(), alNone);
    EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 0, 82, 62}));
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 300, 400}));
    SScrollBarInfo info;
    Vert()->GetInfo(info);
    EXPECT_EQ(info.maximum, 401.0);
    EXPECT_EQ(info.page, 62.0);
    EXPECT_EQ(info.lineStep, 10.0);
    Horz()->GetInfo(info);
    EXPECT_EQ(info.maximum, 301.0);
    EXPECT_EQ(info.page, 82.0);
    EXPECT_EQ(info.lineStep, 10.0);
}

TEST_F(ScrollContainer, TheRangeIsOneMoreThanTheElement)
{
    EXPECT_EQ(Part().GetHorzFrom(), 0.0);
    EXPECT_EQ(Part().GetVertFrom(), 0.0);
    EXPECT_EQ(Part().GetHorzTo(), 301.0);
    EXPECT_EQ(Part().GetVertTo(), 401.0);
    Part().SetSteps(0, 7);
    EXPECT_EQ(Part().GetHorzTo(), 0.0);
    EXPECT_EQ(Part().GetVertTo(), 401.0);
    EXPECT_EQ(Part().GetVertStepInPixels(), 7);
    Part().SetSteps(8, 0);
    EXPECT_EQ(Part().GetHorzTo(), 301.0);
    EXPECT_EQ(Part().GetVertTo(), 0.0);
    EXPECT_EQ(Part().GetHorzStepInPixels(), 8);
}

// Moves --------------------------------------------------------------------------------------------------------------------

TEST_F(ScrollContainer, AMovePlacesTheElementAndPaintsAtOnce)
{
    int const frames = m_Host.Window().GetFrameCount();
    Part().SetVertStart(100.75);
    EXPECT_EQ(m_Content->Take(), "(0 -100 300 299, force)");  // -100.75 and 299.25 truncated
    EXPECT_GT(m_Host.Window().GetFrameCount(), frames);
    EXPECT_EQ(Part().GetVertStart(), 100.0);
    m_Content->Take();
    Part().SetHorzStart(20);
    EXPECT_EQ(Starts(), "20 100");
    EXPECT_EQ(m_Content->GetPos().left, -20);
    EXPECT_EQ(m_Content->GetPos().right, 280);
    ExpectPainted();
}

TEST_F(ScrollContainer, AMoveIsCutToTheRange)
{
    Part().SetVertStart(1000);
    EXPECT_EQ(Starts(), "0 339");  // 401 - 62
    Part().SetVertStart(339.5);
    EXPECT_EQ(Starts(), "0 339");
    Part().SetVertStart(-5);
    EXPECT_EQ(Starts(), "0 0");
    Part().SetHorzStart(1000);
    EXPECT_EQ(Starts(), "219 0");  // 301 - 82
    Part().SetHorzStart(-1e300);
    EXPECT_EQ(Starts(), "0 0");
    Part().SetHorzStart(1e300);
    EXPECT_EQ(Starts(), "219 0");
}

TEST_F(ScrollContainer, TheSamePositionMovesNothing)
{
    Part().SetVertStart(50);
    m_Content->Take();
    int const frames = m_Host.Window().GetFrameCount();
    Part().SetVertStart(50);
    Part().SetHorzStart(0);
    EXPECT_EQ(m_Content->Take(), "");
    EXPECT_EQ(m_Host.Window().GetFrameCount(), frames);
}

TEST_F(ScrollContainer, ADraggedBarMovesTheElement)
{
    Vert()->DragThumb(100);
    Horz()->DragThumb(30);
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{-30, -100, 270, 300}));
    Vert()->StepLine(-1);
    EXPECT_EQ(Starts(), "30 90");
    Vert()->DragThumb(1000);
    EXPECT_EQ(Starts(), "30 339");
    ExpectPainted();
}

TEST_F(ScrollContainer, ANotchOfTheWheelGoesALineOfText)
{
    ASSERT_EQ(m_Container->GetTextLineHeight(), 8);
    m_Host.Mouse().Wheel(*m_Content, 10, 10, -1);
    EXPECT_EQ(Starts(), "0 8");
    EXPECT_EQ(Vert()->GetScrollPos(), 8.0);
    m_Host.Mouse().Wheel(*m_Content, 10, 20, -3);
    EXPECT_EQ(Starts(), "0 32");
    m_Host.Mouse().Wheel(*m_Content, 10, 40, 2);
    EXPECT_EQ(Starts(), "0 16");
    int step = 3;
    m_Container->GetWheelStepSize(m_Content, step);
    EXPECT_EQ(step, 8);
    m_Content->SetSize({300, 40}, false);
    m_Host.Paint();
    m_Host.Mouse().Wheel(*m_Content, 10, 10, -2);
    EXPECT_EQ(Starts(), "16 0");
    ExpectPainted();
}

TEST_F(ScrollContainer, AnElementThatShrinksBelowTheViewComesBackToTheStart)
{
    Part().SetVertStart(200);
    Part().SetHorzStart(100);
    m_Content->SetSize({50, 40}, false);
    m_Host.Paint();
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 50, 40}));
    EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 0, 99, 79}));
    EXPECT_FALSE(Vert()->IsVisible());
    EXPECT_FALSE(Horz()->IsVisible());
    ExpectPainted();
}

TEST_F(ScrollContainer, AViewThatGrowsTakesTheOffsetAlong)
{
    Part().SetVertStart(339);
    Part().SetHorzStart(219);
    m_Host.Resize(150, 200);
    m_Host.Paint();
    EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 0, 132, 182}));
    EXPECT_EQ(Starts(), "169 219");  // 301 - 132, 401 - 182
    m_Host.Resize(600, 600);
    m_Host.Paint();
    EXPECT_EQ(Starts(), "0 0");
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 300, 400}));
    ExpectPainted();
}

TEST_F(ScrollContainer, AnElementThatGrowsGetsItsBars)
{
    m_Content->SetSize({50, 40}, false);
    m_Host.Paint();
    ASSERT_FALSE(Vert()->IsVisible());
    m_Content->SetSize({50, 200}, false);
    m_Host.Paint();
    EXPECT_TRUE(Vert()->IsVisible());
    EXPECT_FALSE(Horz()->IsVisible());
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 50, 200}));
    SScrollBarInfo info;
    Vert()->GetInfo(info);
    EXPECT_EQ(info.maximum, 201.0);
    EXPECT_EQ(info.page, 79.0);
    ExpectPainted();
}

TEST_F(ScrollContainer, AnElementMayFollowTheHeightOrTheWidthOfTheView)
{
    Part().SetFitMode(CScrollContainer::fmWidth);
    m_Host.Paint();
    // 83 - 1 wide at last: no horizontal bar, and the view is 82 wide and 79 high.
    EXPECT_EQ(m_Content->GetSize().width, 81);
    EXPECT_EQ(m_Content->GetSize().height, 400);
    EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 0, 82, 79}));
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 81, 400}));
    m_Host.Resize(200, 80);
    m_Host.Paint();
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 181, 400}));
    Part().SetFitMode(CScrollContainer::fmHeight);
    m_Host.Paint();
    EXPECT_EQ(m_Content->GetSize().height, 78);
    EXPECT_EQ(Part().GetFitMode(), CScrollContainer::fmHeight);
    ExpectPainted();
}

TEST_F(ScrollContainer, ThePlaceOfTheViewIsForcedOnToItsElement)
{
    Part().SetPos({0, 0, 82, 50}, false);
    EXPECT_EQ(m_Content->Take(), "(0 0 300 400)");
    Part().SetPos({0, 0, 82, 50}, true);
    EXPECT_EQ(m_Content->Take(), "(0 0 300 400, force)");
    Part().SetVertStart(351);
    m_Content->Take();
    Part().SetPos({0, 0, 82, 62}, false);
    EXPECT_EQ(m_Content->Take(), "(0 -339 300 61)");
}

// Another element -------------------------------------------------------------------------------------------------------------

TEST_F(ScrollContainer, AnotherElementIsShownFromItsStart)
{
    Part().SetVertStart(100);
    auto* const other = new CPlaced(nullptr, {40, 500}, alTop);
    m_Container->SetScrolled(other);
    std::unique_ptr<CVisualElement> const former(m_Content);
    m_Host.Paint();
    EXPECT_EQ(former->GetParent(), nullptr);
    EXPECT_EQ(former->GetControl(), nullptr);
    EXPECT_EQ(m_Container->GetScrolled(), other);
    EXPECT_EQ(other->GetPos(), (rectangle<int>{0, 0, 40, 500}));
    EXPECT_EQ(Starts(), "0 0");
    SScrollBarInfo info;
    Vert()->GetInfo(info);
    EXPECT_EQ(info.maximum, 501.0);
    EXPECT_FALSE(Horz()->IsVisible());
    former->SetPos({0, 0, 10, 900}, false);  // nobody here listens to it any more
    other->SetSize({40, 20}, false);
    m_Host.Paint();
    EXPECT_FALSE(Vert()->IsVisible());
    ExpectPainted();
}

TEST_F(ScrollContainer, MayShowNothingAgain)
{
    Part().SetVertStart(100);
    m_Container->SetScrolled(nullptr);
    delete m_Content;
    m_Host.Paint();
    EXPECT_EQ(m_Container->GetScrolled(), nullptr);
    EXPECT_EQ(Part().GetVertTo(), 0.0);
    EXPECT_EQ(Starts(), "0 0");
    EXPECT_FALSE(Vert()->IsVisible());
    ExpectPainted();
}

TEST_F(ScrollContainer, AnElementThatWasShownIsPutBackToTheStart)
{
    m_Content->SetPos({-30, -70, 270, 330}, false);
    m_Container->SetScrolled(m_Content);
    EXPECT_EQ(Starts(), "0 0");
    EXPECT_EQ(m_Content->GetParent(), &Part());
}

TEST_F(ScrollContainer, AnElementThatLeftMayBeShownAgain)
{
    m_Content->ReParent(nullptr, true);
    m_Host.Paint();
    m_Container->SetScrolled(m_Content);
    m_Host.Paint();
    EXPECT_EQ(m_Content->GetParent(), &Part());
    EXPECT_EQ(Part().GetScrolled(), m_Content);
    Part().SetVertStart(50);
    EXPECT_EQ(m_Content->GetPos().top, -50);
    m_Content->SetSize({20, 20}, false);
    m_Host.Paint();
    EXPECT_FALSE(Vert()->IsVisible());
    ExpectPainted();
}

TEST_F(ScrollContainer, AnElementThatWasDockedNowhereIsLaidOutAsWell)
{
    m_Container->SetScrolled(nullptr);
    delete m_Content;
    m_Host.Paint();
    auto* const plain = new CPlaced(nullptr, {30, 40}, alNone);
    m_Container->SetScrolled(plain);
    m_Host.Paint();
    EXPECT_EQ(plain->GetPos(), (rectangle<int>{0, 0, 30, 40}));
    ExpectPainted();
}

TEST_F(ScrollContainer, AMoveUncoversTheBackgroundOfTheView)
{
    // The last line of the range lies below the element.
    Part().SetVertStart(339);
    EXPECT_EQ(m_Content->GetPos().bottom, 61);
    ExpectPainted();
    Part().SetFillAroundChild(true);
    Part().SetVertStart(300);
    m_Host.Paint();
    Part().SetVertStart(339);
    Part().SetHorzStart(219);
    ExpectPainted();
}

TEST_F(ScrollContainer, AnElementThatDoesNotFillItselfMovesOnTheBackgroundOfTheView)
{
    auto* const group = new CVisualElement(nullptr, {300, 400}, alNone);
    m_Container->SetScrolled(group);
    delete m_Content;
    new CLeaf(group, {10, 10, 40, 40}, 10);
    new CLeaf(group, {60, 100, 90, 150}, 11);
    m_Host.Paint();
    Vert()->DragThumb(30);
    ExpectPainted();
    Horz()->DragThumb(30);
    ExpectPainted();
}

TEST_F(ScrollContainer, AnElementThatDiesOrLeavesIsForgotten)
{
    delete m_Content;
    EXPECT_EQ(m_Container->GetScrolled(), nullptr);
    EXPECT_EQ(Part().GetScrolled(), nullptr);
    m_Host.Paint();
    EXPECT_FALSE(Vert()->IsVisible());
    ExpectPainted();

    auto* const second = new CVisualElement(nullptr, {300, 400}, alNone);
    m_Container->SetScrolled(second);
    m_Host.Paint();
    second->ReParent(nullptr, true);
    EXPECT_EQ(Part().GetScrolled(), nullptr);
    Part().SetVertStart(50);
    m_Host.Paint();
    delete second;
    m_Host.Paint();
    ExpectPainted();
}

// Painting -----------------------------------------------------------------------------------------------------------------------

TEST_F(ScrollContainer, PaintsOnlyWhatHasChangedAndCutsItToTheView)
{
    auto* const first = new CLeaf(m_Content, {10, 10, 40, 40}, 10);
    auto* const second = new CLeaf(m_Content, {60, 30, 200, 100}, 11);
    m_Host.Name(*first, "first");
    m_Host.Name(*second, "second");
    m_Host.Paint();
    m_Host.Paint();
    second->Update(utElement);
    PaintLog const paint = m_Host.Paint();
    EXPECT_EQ(paint.Count("FillRect*"), 1);
    EXPECT_THAT(paint, Draws("FillRect 0 0 140 70"));
    EXPECT_THAT(paint.Elements(), testing::HasSubstr("second"));
    EXPECT_THAT(paint.Elements(), testing::Not(testing::HasSubstr("first")));
    EXPECT_NE(m_Host.PixelAt(90, 40), color_table[11]);  // the bar's edge is not painted over
    EXPECT_EQ(m_Host.PixelAt(82, 40), color_table[11]);
    ExpectPainted();
    Part().Update(utElement);
    EXPECT_GT(m_Host.Paint().Count("FillRect*"), 2);
}

TEST_F(ScrollContainer, AChangeOfTheViewItselfOutdoesAllOthers)
{
    auto* const leaf = new CLeaf(m_Content, {10, 10, 40, 40}, 10);
    m_Host.Name(*leaf, "leaf");
    m_Host.Paint();
    leaf->Update(utElement);
    Part().Update(utElement);
    leaf->Update(utElement);
    EXPECT_EQ(m_Host.Paint().Count("FillRect 0 0 82 62"), 1);
    m_Host.Paint();
    leaf->Update(utElement);
    EXPECT_EQ(m_Host.Paint().Count("FillRect 0 0 82 62"), 0);
}

TEST_F(ScrollContainer, OfTwoChangesOneInsideTheOtherOnlyTheOuterIsPainted)
{
    auto* const outer = new CLeaf(m_Content, {10, 10, 60, 60}, 10);
    auto* const inner = new CLeaf(outer, {5, 5, 20, 20}, 11);
    m_Host.Paint();
    inner->Update(utElement);
    outer->Update(utElement);
    inner->Update(utElement);
    EXPECT_EQ(m_Host.Paint().Count("FillRect*"), 2);  // one each
    ExpectPainted();
}

TEST_F(ScrollContainer, WhatChangedAndDiedOrLeftIsNotPainted)
{
    auto* const first = new CLeaf(m_Content, {10, 10, 40, 40}, 10);
    auto* const second = new CLeaf(m_Content, {50, 30, 80, 50}, 11);
    auto* const third = new CLeaf(first, {5, 5, 10, 10}, 12);
    m_Host.Paint();
    third->Update(utElement);
    second->Update(utElement);
    delete first;
    Part().Update(utElement);  // as whoever deletes one that is docked nowhere does
    m_Host.Paint();
    ExpectPainted();
    second->Update(utElement);
    second->ReParent(nullptr, true);
    delete second;
    m_Content->Update(utElement);
    m_Host.Paint();
    ExpectPainted();
}

TEST_F(ScrollContainer, MayFillOnlyWhatTheElementLeavesFree)
{
    m_Content->SetSize({50, 40}, false);
    m_Host.Paint();
    EXPECT_EQ(m_Host.FullPaint().Of("CCentralPart").Count("FillRect 0 0 99 79"), 1);
    Part().SetFillAroundChild(true);
    PaintLog const paint = m_Host.FullPaint().Of("CCentralPart");
    EXPECT_EQ(paint.Count("FillRect 0 0 99 79"), 0);
    EXPECT_EQ(paint.Count("FillRect*"), 2);  // right of it and below
    m_Content->SetSize({300, 400}, false);
    m_Host.Paint();
    EXPECT_EQ(m_Host.FullPaint().Of("CCentralPart").Count("FillRect*"), 0);
    Part().SetFillAroundChild(false);
    m_Host.Paint();
    ExpectPainted();
}

TEST_F(ScrollContainer, AHiddenOrEmptyViewDrawsNothing)
{
    Part().SetVisible(false);
    m_Host.Paint();
    EXPECT_EQ(m_Host.FullPaint().Of("CCentralPart").Count("FillRect*"), 0);
    Part().SetVisible(true);
    Part().SetPos({5, 5, 5, 30}, false);
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssMeasure);
    Part().OnDraw(painter);
    EXPECT_TRUE(painter->GetClipRect().IsZero());
    painter->EndPaint();
}

TEST_F(ScrollContainer, ThePainterGetsItsClipBack)
{
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssPaint);
    painter->SimpleSetClipRect({3, 4, 50, 60}, false);
    Part().OnDraw(painter);
    EXPECT_EQ(painter->GetClipRect(), (rectangle<double>{3, 4, 50, 60}));
    painter->EndPaint();
}

TEST_F(ScrollContainer, ARemovalFromTheViewStopsNowhere)
{
    CLeaf leaf(m_Content, {10, 10, 40, 40}, 10);
    leaf.SetDynamic(false);
    EXPECT_FALSE(Part().BeforeProcessChange(&leaf, utRemoved));
    EXPECT_TRUE(Part().BeforeProcessChange(&leaf, utElement));
    EXPECT_TRUE(Part().BeforeProcessChange(&leaf, utFull));
    CVisualElement* element = &leaf;
    Part().ProcessChange(&element);
    EXPECT_EQ(element, &Part());
    element = &Part();
    Part().ProcessChange(&element);
    EXPECT_EQ(element, &Part());
}

// Into view ------------------------------------------------------------------------------------------------------------------------

TEST_F(ScrollContainer, ADescendantIsBroughtIntoViewTheShortestWay)
{
    auto* const low = new CLeaf(m_Content, {10, 200, 60, 220}, 10);
    auto* const right = new CLeaf(m_Content, {100, 20, 150, 40}, 11);
    Part().ChildToParentView(low);
    EXPECT_EQ(Starts(), "0 158");  // 220 lies on 62 now
    Part().ChildToParentView(low);
    EXPECT_EQ(Starts(), "0 158");
    Part().ChildToParentView(right);
    EXPECT_EQ(Starts(), "68 20");
    Part().ChildToParentView(low);
    EXPECT_EQ(Starts(), "10 158");
    EXPECT_EQ(Vert()->GetScrollPos(), 158.0);  // the bars come along
    EXPECT_EQ(Horz()->GetScrollPos(), 10.0);
    auto* const inner = new CLeaf(low, {0, 0, 5, 5}, 12);
    Part().SetVertStart(0);
    Part().ChildToParentView(inner);
    EXPECT_EQ(Starts(), "10 143");
    ExpectPainted();
}

TEST_F(ScrollContainer, EdgesBelongToTheView)
{
    auto* const leaf = new CLeaf(m_Content, {0, 0, 82, 62}, 10);
    Part().ChildToParentView(leaf);
    EXPECT_EQ(Starts(), "0 0");
    leaf->SetPos({1, 1, 82, 63}, false);
    Part().ChildToParentView(leaf);
    EXPECT_EQ(Starts(), "0 1");
    Part().ChildToParentView(leaf);
    EXPECT_EQ(Starts(), "0 1");
}

TEST_F(ScrollContainer, OneThatIsLargerOnBothAxesStays)
{
    auto* const leaf = new CLeaf(m_Content, {50, 50, 200, 200}, 10);
    Part().ChildToParentView(leaf);
    EXPECT_EQ(Starts(), "0 0");
    leaf->SetPos({0, 150, 200, 170}, false);  // wide, but not high
    Part().ChildToParentView(leaf);
    EXPECT_EQ(Part().GetVertStart(), 108.0);
}

TEST_F(ScrollContainer, StrangersAreNotBroughtIntoView)
{
    CLeaf stranger(nullptr, {10, 200, 60, 220}, 10);
    Part().ChildToParentView(&stranger);
    EXPECT_EQ(Starts(), "0 0");
    Part().ChildToParentView(nullptr);
}

TEST_F(ScrollContainer, TheFocusBringsItsElementIntoView)
{
    m_Host.Focus();
    auto* const first = new CLeaf(m_Content, {10, 10, 40, 20}, 10);
    new CLeaf(m_Content, {10, 300, 40, 320}, 11);
    new CLeaf(m_Content, {200, 300, 240, 320}, 12);
    m_Host.Paint();
    first->SetFocus(true);
    EXPECT_EQ(Starts(), "0 0");
    m_Host.Keyboard().Tab();
    EXPECT_EQ(Starts(), "0 258");
    m_Host.Keyboard().Tab();
    EXPECT_EQ(Starts(), "158 258");
    m_Host.Keyboard().Tab(false);
    EXPECT_EQ(Starts(), "10 258");
    m_Host.Keyboard().Tab(false);
    EXPECT_EQ(Starts(), "10 10");
    ExpectPainted();
}

TEST_F(ScrollContainer, APressBesideFocusesTheFirstThatCanHaveIt)
{
    m_Host.Focus();
    auto* const group = new CVisualElement(m_Content, {1, 1}, alNone);
    group->SetPos({5, 5, 70, 50}, false);
    auto* const first = new CLeaf(group, {2, 2, 10, 10}, 10);
    auto* const second = new CLeaf(group, {20, 2, 30, 10}, 11);
    m_Host.Paint();
    m_Host.Mouse().Click(*m_Content, 75, 60, mbRight);
    EXPECT_FALSE(first->IsFocused());
    m_Host.Mouse().Click(*m_Content, 75, 60);
    EXPECT_TRUE(first->IsFocused());
    second->SetFocus(true);
    m_Host.Mouse().Click(*m_Content, 75, 60);
    EXPECT_TRUE(second->IsFocused());  // it lies in there already
    m_Host.Mouse().Click(*first, 3, 3);
    EXPECT_TRUE(first->IsFocused());
}

TEST_F(ScrollContainer, APressWhereNothingCanHaveTheFocusTakesItFromNobody)
{
    m_Host.Focus();
    m_Host.Mouse().Click(*m_Content, 75, 60);
    EXPECT_FALSE(m_Content->IsFocused());
}

// Native controls -------------------------------------------------------------------------------------------------------------------

TEST_F(ScrollContainer, ANativeControlFollowsEveryMove)
{
    auto* const holder = new CContainer(m_Content, {40, 16}, alNone);
    holder->SetPos({10, 30, 50, 46}, false);
    vexel_ptr<IEdit> const edit = m_Host.Window().CreateEdit(false);
    holder->SetNativeControl(edit.get());
    m_Host.Paint();
    auto* const native = m_Host.Native<vexelbase::memory::CMemoryEdit>();
    ASSERT_NE(native, nullptr);
    EXPECT_EQ(native->GetNodeRect(), (rectangle<int>{10, 30, 50, 46}));
    Vert()->DragThumb(10);
    EXPECT_EQ(native->GetNodeRect(), (rectangle<int>{10, 20, 50, 36}));
    Horz()->DragThumb(5);
    EXPECT_EQ(native->GetNodeRect(), (rectangle<int>{5, 20, 45, 36}));
    m_Host.Mouse().Wheel(*m_Content, 70, 60, 1);
    EXPECT_EQ(native->GetNodeRect(), (rectangle<int>{5, 28, 45, 44}));
    Part().SetVertStart(200);
    m_Host.Paint();
    EXPECT_FALSE(native->IsVisible());  // nothing of it can show
    Part().SetVertStart(0);
    m_Host.Paint();
    EXPECT_TRUE(native->IsVisible());
    EXPECT_EQ(native->GetNodeRect(), (rectangle<int>{5, 30, 45, 46}));
}

TEST_F(ScrollContainer, AScrollOfATreeAroundRefreshesThePlacesBelow)
{
    CCallLog log;
    auto* const element = new CRecordingElement(log, "element", m_Content);
    log.Clear();
    EXPECT_FALSE(Part().ScrollContent(3, 4));
    EXPECT_EQ(log.Take(), "element.HandleRefreshPos()");
    static_cast<void>(element);
}

TEST_F(ScrollContainer, AMoveDoesNotScrollThePanesThatMoveAlong)
{
    CCallLog log;
    auto* const deep = new CRecordingElement(log, "deep", m_Content);
    log.Clear();
    Vert()->DragThumb(30);
    EXPECT_EQ(log.Take({"ScrollContent"}), "");
    m_Content->Scroll(3, 4, false);  // by itself it would hear
    EXPECT_EQ(log.Take({"ScrollContent"}), "deep.ScrollContent(3, 4)");
    static_cast<void>(deep);
}

TEST_F(ScrollContainer, WhatStandsBesideTheViewScrollsAlongWithIt)
{
    auto* const header = new CScrollableElement(m_Container, {10, 10}, alTop);
    m_Container->ConnectElement(header, CScrollBox::ctHorizontal, false);
    m_Host.Paint();
    m_Host.Name(*header, "header");
    Horz()->DragThumb(30);
    EXPECT_THAT(m_Host.Paint().Elements(), testing::HasSubstr("header"));
}

TEST_F(ScrollContainer, ContainersMayStandInContainers)
{
    auto* const inner = new CScrollContainer(m_Content, {10, 10}, alNone);
    inner->SetPos({10, 10, 70, 60}, true);
    auto* const deep = new CPlaced(nullptr, {30, 300}, alNone);
    inner->SetScrolled(deep);
    inner->SetPos({10, 10, 70, 60}, true);  // docked nowhere, it is laid out by whoever placed it
    m_Host.Paint();
    EXPECT_EQ(inner->GetCentralPart().GetPos(), (rectangle<int>{0, 0, 43, 50}));
    m_Host.Mouse().Wheel(*inner, 5, 5, -1);
    EXPECT_EQ(Starts(), "0 8");  // the outer one takes it first
    Part().SetVertStart(0);
    auto* const bar = dynamic_cast<vexelbase::memory::CMemoryScrollBar*>(inner->GetVertBar());
    ASSERT_NE(bar, nullptr);
    rectangle<int> const before = bar->GetNodeRect();
    Part().SetVertStart(7);
    EXPECT_EQ(bar->GetNodeRect().top, before.top - 7);
    EXPECT_EQ(bar->GetNodeRect().left, before.left);
    m_Host.Mouse().Wheel(*m_Content, 5, 65, -1);
    EXPECT_EQ(Starts(), "0 15");
    bar->DragThumb(100);
    EXPECT_EQ(deep->GetPos(), (rectangle<int>{0, -100, 30, 200}));
    m_Host.Paint();
    ExpectPainted();
}

}  // namespace

// Asks for its own width whatever it is given.
class CStubborn : public CPlaced
{
public:
    using CPlaced::CPlaced;
    int m_Wanted = 300;
    void ProcessRearrange(CVisualElement**) override
    {
        if (GetSize().width < m_Wanted)
            SetWidth(m_Wanted, false);
    }
};

TEST_F(ScrollContainer, AnElementThatInsistsOnItsWidthIsAskedAgainWhenItHasAnother)
{
    auto* const stubborn = new CStubborn(nullptr, {300, 400}, alNone);
    Part().SetFitMode(CScrollContainer::fmWidth);
    m_Container->SetScrolled(stubborn);
    delete m_Content;
    m_Host.Paint();  // fails if it goes on asking for frames
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_EQ(stubborn->GetSize().width, 300);
    EXPECT_EQ(Part().GetHorzTo(), 301);
    for (int const width : {120, 101, 40, 300, 100})
    {
        m_Host.Resize(width, 80);
        m_Host.Paint();
        EXPECT_FALSE(m_Host.IsFramePending());
        EXPECT_EQ(stubborn->GetSize().width, 300) << width;
        ExpectPainted();
    }

    m_Host.Resize(400, 80);
    m_Host.Paint();
    EXPECT_EQ(stubborn->GetSize().width, 381);  // so much is more than it wants
    stubborn->m_Wanted = 0;
    m_Host.Resize(120, 80);
    m_Host.Paint();
    EXPECT_EQ(stubborn->GetSize().width, 101);
    stubborn->SetWidth(250, false);
    m_Host.Paint();
    EXPECT_EQ(stubborn->GetSize().width, 101);
    ExpectPainted();
}

// The same for less than it is given.
class CNarrow : public CPlaced
{
public:
    using CPlaced::CPlaced;
    void ProcessRearrange(CVisualElement**) override { SetWidth(50, false); }
};

TEST_F(ScrollContainer, AnElementThatInsistsOnLessKeepsIt)
{
    auto* const narrow = new CNarrow(nullptr, {50, 400}, alNone);
    Part().SetFitMode(CScrollContainer::fmWidth);
    m_Container->SetScrolled(narrow);
    delete m_Content;
    for (int const width : {100, 200, 90})
    {
        m_Host.Resize(width, 80);
        m_Host.Paint();
        EXPECT_FALSE(m_Host.IsFramePending());
        EXPECT_EQ(narrow->GetSize().width, 50) << width;
        ExpectPainted();
    }
}
