// A bar at rest: defaults, sections, where a point lies, what is selected.

#include "tests/charts/bar_bench.h"
#include "tests/support/virtual_order.h"

#include <limits>
#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Bar = CBarBench;
using BarOnSide = CBarOnSide;
INSTANTIATE_TEST_SUITE_P(AtEdge, BarOnSide, testing::Values(alTop, alBottom, alLeft, alRight));

class BarOnLeft : public CBarBench
{
protected:
    BarOnLeft() : CBarBench(alLeft) {}
};

class ThinBar : public CBarBench, public testing::WithParamInterface<std::pair<Alignment, int>>
{
protected:
    ThinBar() : CBarBench(GetParam().first, GetParam().second) {}
    int const m_Thickness = GetParam().second;
};
INSTANTIATE_TEST_SUITE_P(AtEdge, ThinBar,
                         testing::Values(std::pair(alRight, 20), std::pair(alRight, 3), std::pair(alRight, 2),
                                         std::pair(alBottom, 20), std::pair(alBottom, 3), std::pair(alBottom, 2)));

double const g_Infinity = std::numeric_limits<double>::infinity();
double const g_NotANumber = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(BarDefaults, OfStyleSelectionAndState)
{
    CBar bar(nullptr, {20, 20}, alTop);
    EXPECT_EQ(bar.GetStyle(), 0u);
    EXPECT_EQ(bar.GetMinSectionSize(), 1);
    EXPECT_EQ(bar.GetMinBarSize(), 4);
    EXPECT_EQ(bar.GetMaxBarSize(), 0x7FFFFFFF);
    EXPECT_EQ(bar.GetDragTransparency(), 128);
    EXPECT_TRUE(bar.GetSelection().IsEmpty());
    EXPECT_TRUE(bar.GetRangeSelection().IsEmpty());
    EXPECT_EQ(bar.GetSelAnchor(), -1);
    EXPECT_EQ(bar.GetSelLast(), -1);
    EXPECT_EQ(bar.GetDragSection(), -1);
    EXPECT_EQ(bar.GetDropTarget(), -1);
    EXPECT_TRUE(bar.IsTargetChanged());
    EXPECT_EQ(bar.GetState(), CBar::stIdle);
    EXPECT_EQ(bar.GetActiveSection(), -1);
    EXPECT_EQ(bar.GetCategoryModel(), nullptr);
    EXPECT_TRUE(bar.IsTextConverted());
}

TEST(BarNumbers, OfAreasStatesAndStyles)
{
    EXPECT_EQ(CBar::htNothing, 0);
    EXPECT_EQ(CBar::htSection, 1);
    EXPECT_EQ(CBar::htDivider, 2);
    EXPECT_EQ(CBar::htBefore, 3);
    EXPECT_EQ(CBar::htBehind, 4);
    EXPECT_EQ(CBar::htFreeEdge, 5);
    EXPECT_EQ(CBar::stIdle, 0);
    EXPECT_EQ(CBar::stResizingSection, 1);
    EXPECT_EQ(CBar::stResizingBar, 2);
    EXPECT_EQ(CBar::stDragging, 3);
    EXPECT_EQ(CBar::stPressed, 4);
    EXPECT_EQ(CBar::bsResizeSections, 1u);
    EXPECT_EQ(CBar::bsResizeBar, 2u);
}

TEST(BarVirtualOrder, SectionsBeforeDragging)
{
    using Start = bool (CBar::*)(int, int, DragInfo&);
    using Finished = void (CBar::*)(CVisualElement*, DragInfo&);
    using Item = void (CBar::*)(IPainter*, DragInfo&, bool, CVisualElement*);
    using Over = bool (CBar::*)(CVisualElement*, int, int, DragInfo&);
    using Drop = void (CBar::*)(CVisualElement*, int, int, DragInfo&);
    ExpectOrder(Place(&CCategoricalAxis::updateCategoryLabelRect) + 2, &CBar::DrawSection, &CBar::DrawSpace,
                static_cast<Start>(&CBar::CanStartDragging), static_cast<Finished>(&CBar::DragFinished),
                static_cast<Item>(&CBar::DrawDragItem), static_cast<Over>(&CBar::DragOver),
                static_cast<Drop>(&CBar::DropDone));
}

// Sections ------------------------------------------------------------------------------------------------------------------

TEST_P(BarOnSide, SectionsAreAsWideAsTheirSteps)
{
    EXPECT_EQ(m_Bar.GetSectionRect(0), SpanDouble(0, 50));
    EXPECT_EQ(m_Bar.GetSectionRect(1), SpanDouble(50, 110));
    EXPECT_EQ(m_Bar.GetSectionRect(2), SpanDouble(110, 150));
    EXPECT_EQ(m_Bar.GetSectionRect(3), SpanDouble(150, 154));
}

TEST_P(BarOnSide, SectionsMoveWithTheScrollModel)
{
    m_Steps.m_Start = 0.5;
    EXPECT_EQ(m_Bar.GetSectionRect(0), SpanDouble(-25, 25));
    EXPECT_EQ(m_Bar.GetSectionRect(1), SpanDouble(25, 85));
    m_Steps.m_Start = 2;
    EXPECT_EQ(m_Bar.GetSectionRect(2), SpanDouble(0, 40));
}

TEST_F(Bar, WithoutAScrollModelSectionsAreEmpty)
{
    m_Bar.SetHorzScroll(nullptr);
    EXPECT_EQ(m_Bar.GetSectionRect(1), rectangle<double>());
}

TEST_F(Bar, TheSizeHintIsTheHighestCaptionAndTwo)
{
    m_Names.m_Suffix = "long";
    EXPECT_EQ(m_Bar.GetSizeHint(), 10.0);
    font large;
    large.size = 16;
    m_Bar.SetFont(large);
    EXPECT_EQ(m_Bar.GetSizeHint(), 18.0);
    m_Names.m_Count = 0;
    EXPECT_EQ(m_Bar.GetSizeHint(), 2.0);
    m_Bar.SetCategoryModel(nullptr);
    EXPECT_EQ(m_Bar.GetSizeHint(), 2.0);
    EXPECT_EQ(CBar(nullptr, {20, 20}, alTop).GetSizeHint(), 0.0);
}

TEST_P(BarOnSide, TheSizeHintIsOfUprightText)
{
    m_Names.m_Suffix = "long";
    EXPECT_EQ(m_Bar.GetSizeHint(), 10.0);
}

// The mapping ----------------------------------------------------------------------------------------------------------------

TEST_P(BarOnSide, TheMappingIsInPixelsFromTheStripsBeginning)
{
    NarrowPane();
    m_Steps.m_Start = 1;
    IPainter::CoordInfo info;
    info.m_LogicalOrigin = {7, 8};
    if (IsUpright())
        m_Bar.FillVertical(&info, &m_Steps);
    else
        m_Bar.FillHorizontal(&info, &m_Steps);
    EXPECT_EQ(info.m_LogicalOrigin, (point<double>{0, 0}));
    switch (GetParam())
    {
    case alTop:
        EXPECT_EQ(info.m_LogicalExtent, (size<double>{139, 20}));
        EXPECT_EQ(info.m_DeviceOrigin, (point<int>{30, 20}));
        EXPECT_EQ(info.m_DeviceExtent, (size<int>{139, -20}));
        break;
    case alBottom:
        EXPECT_EQ(info.m_LogicalExtent, (size<double>{139, 20}));
        EXPECT_EQ(info.m_DeviceOrigin, (point<int>{30, 179}));
        EXPECT_EQ(info.m_DeviceExtent, (size<int>{139, 20}));
        break;
    case alLeft:
        EXPECT_EQ(info.m_LogicalExtent, (size<double>{20, 139}));
        EXPECT_EQ(info.m_DeviceOrigin, (point<int>{20, 30}));
        EXPECT_EQ(info.m_DeviceExtent, (size<int>{-20, 139}));
        break;
    default:
        EXPECT_EQ(info.m_LogicalExtent, (size<double>{20, 139}));
        EXPECT_EQ(info.m_DeviceOrigin, (point<int>{179, 30}));
        EXPECT_EQ(info.m_DeviceExtent, (size<int>{20, 139}));
        break;
    }
}

TEST_P(BarOnSide, AReversedModelTurnsTheMappingAlong)
{
    NarrowPane();
    m_Steps.m_From = 3;
    m_Steps.m_To = 0;
    IPainter::CoordInfo info;
    if (IsUpright())
    {
        m_Bar.FillVertical(&info, &m_Steps);
        EXPECT_EQ(info.m_LogicalExtent.height, 139);
        EXPECT_EQ(info.m_DeviceOrigin.y, 169);
        EXPECT_EQ(info.m_DeviceExtent.height, -139);
    }
    else
    {
        m_Bar.FillHorizontal(&info, &m_Steps);
        EXPECT_EQ(info.m_LogicalExtent.width, 139);
        EXPECT_EQ(info.m_DeviceOrigin.x, 169);
        EXPECT_EQ(info.m_DeviceExtent.width, -139);
    }
}

TEST_P(BarOnSide, WithoutAModelTheMappingIsLeftAlone)
{
    IPainter::CoordInfo info;
    info.m_LogicalOrigin = {7, 8};
    info.m_DeviceExtent = {5, 6};
    IPainter::CoordInfo const before = info;
    m_Bar.FillHorizontal(&info, nullptr);
    m_Bar.FillVertical(&info, nullptr);
    EXPECT_EQ(info, before);
}

// Where a point lies -----------------------------------------------------------------------------------------------------------

TEST_P(BarOnSide, APointLiesInASectionOrAtADivider)
{
    EXPECT_EQ(Hit(0), "1: 0 0 0 first");  // section 0 has no divider on its left side
    EXPECT_EQ(Hit(2), "1: 0 0 0 first");
    EXPECT_EQ(Hit(25), "1: 0 0 0 first");
    EXPECT_EQ(Hit(26), "1: 0 0 0");
    EXPECT_EQ(Hit(47), "1: 0 0 0");
    EXPECT_EQ(Hit(48), "2: 0 1 0");
    EXPECT_EQ(Hit(49), "2: 0 1 0");
    EXPECT_EQ(Hit(50), "2: 0 1 1 first");
    EXPECT_EQ(Hit(52), "2: 0 1 1 first");
    EXPECT_EQ(Hit(53), "1: 1 1 1 first");
    EXPECT_EQ(Hit(80), "1: 1 1 1 first");
    EXPECT_EQ(Hit(81), "1: 1 1 1");
    EXPECT_EQ(Hit(108), "2: 1 2 1");
    EXPECT_EQ(Hit(111), "2: 1 2 2 first");
    EXPECT_EQ(Hit(120), "1: 2 2 2 first");
    EXPECT_EQ(Hit(149), "2: 2 3 2");
    EXPECT_EQ(Hit(150), "2: 2 3 3 first");  // the count itself is not above the count
    EXPECT_EQ(Hit(151), "4: 3 3 3");
    EXPECT_EQ(Hit(199), "4: 3 3 3");
}

TEST_P(BarOnSide, SectionZeroHasNoDividerOnItsLeft)
{
    m_Bar.SetStyle(CBar::bsResizeSections);
    for (int const along : {0, 1, 2})
    {
        EXPECT_EQ(Hit(along), "1: 0 0 0 first") << along;
        Press(along);
        EXPECT_EQ(m_Bar.GetState(), CBar::stPressed) << along;
        EXPECT_EQ(m_Bar.GetActiveSection(), 0) << along;
        EXPECT_EQ(m_Bar.GetCursor(), 1) << along;
        Release();
    }
    m_Steps.m_Start = 1;  // section 1 has one, there as anywhere else
    EXPECT_EQ(Hit(0), "2: 0 1 1 first");
    EXPECT_EQ(Hit(2), "2: 0 1 1 first");
    EXPECT_EQ(Hit(3), "1: 1 1 1 first");
}

TEST_P(BarOnSide, SectionZeroHasNoDividerOnItsLeftWhereTheStripBeginsLaterEither)
{
    NarrowPane();  // to 30
    EXPECT_EQ(Hit(29), "3: -1 -1 -1");
    EXPECT_EQ(Hit(30), "1: 0 0 0 first");
    EXPECT_EQ(Hit(32), "1: 0 0 0 first");
    EXPECT_EQ(Hit(78), "2: 0 1 0");  // the one on its right
}

TEST_P(BarOnSide, ASectionZeroOfTwoPixelsIsAllItsRightDivider)
{
    m_Steps.m_Steps = {0.5, 15, 10};
    EXPECT_EQ(Hit(0), "2: 0 1 0 first");
    EXPECT_EQ(Hit(1), "2: 0 1 0 first");
    EXPECT_EQ(Hit(2), "2: 0 1 1 first");
}

TEST_P(BarOnSide, APointOutsideTheElementLiesNowhere)
{
    EXPECT_EQ(Hit(-1), "0: -1 -1 -1");
    EXPECT_EQ(Hit(200), "0: -1 -1 -1");
    EXPECT_EQ(Hit(60, -1), "0: -1 -1 -1");
    EXPECT_EQ(Hit(60, 21), "0: -1 -1 -1");
    EXPECT_EQ(Hit(60, 0), "1: 1 1 1 first");
    EXPECT_EQ(Hit(60, 20), "1: 1 1 1 first");
}

TEST_P(BarOnSide, APointBesideTheStripLiesBeforeOrBehindIt)
{
    NarrowPane();
    EXPECT_EQ(Hit(29), "3: -1 -1 -1");
    EXPECT_EQ(Hit(30), "1: 0 0 0 first");
    EXPECT_EQ(Hit(82), "2: 0 1 1 first");
    EXPECT_EQ(Hit(169), "1: 2 2 2");
    EXPECT_EQ(Hit(170), "4: -1 -1 -1");
    EXPECT_EQ(Hit(199), "4: -1 -1 -1");
    EXPECT_EQ(Hit(200), "0: -1 -1 -1");
    EXPECT_EQ(Hit(29, 21), "0: -1 -1 -1");
}

TEST_P(BarOnSide, APointInAScrolledStripCountsFromItsStart)
{
    m_Steps.m_Start = 0.5;
    EXPECT_EQ(Hit(0), "1: 0 0 0 first");
    EXPECT_EQ(Hit(1), "1: 0 0 0");
    EXPECT_EQ(Hit(23), "2: 0 1 0");
    EXPECT_EQ(Hit(28), "1: 1 1 1 first");
    m_Steps.m_Start = 1;
    EXPECT_EQ(Hit(0), "2: 0 1 1 first");
    EXPECT_EQ(Hit(100), "2: 2 3 3 first");
    EXPECT_EQ(Hit(101), "4: 3 3 3");
}

TEST_P(BarOnSide, WithoutACategoryModelAPointLiesNowhere)
{
    m_Bar.SetCategoryModel(nullptr);
    EXPECT_EQ(Hit(60), "0: -1 -1 -1");
}

TEST_P(BarOnSide, WithoutAScrollModelAPointInTheStripLiesNowhere)
{
    m_Bar.SetHorzScroll(nullptr);
    m_Bar.SetVertScroll(nullptr);
    EXPECT_EQ(Hit(60), "0: -1 -1 -1");
}

TEST_P(BarOnSide, InAnEmptyStripAPointLiesBehind)
{
    m_Names.m_Count = 0;
    EXPECT_EQ(Hit(0), "4: 0 0 0");
    EXPECT_EQ(Hit(60), "4: 0 0 0");
}

TEST_F(Bar, OfASectionTooNarrowForBothTheDividerBeforeItCounts)
{
    m_Steps.m_Steps = {12.5, 1, 10};  // 50, 4 and 40 pixels
    EXPECT_EQ(Hit(52), "2: 0 1 1 first");
    EXPECT_EQ(Hit(53), "2: 1 2 1");
}

TEST_F(Bar, AWidthThatIsAlmostWholeCountsAsWhole)
{
    m_Steps.m_Measure = {0.1, 2};
    m_Steps.m_Steps = {3.0 - 1e-10, 15, 10};  // a hair below 60 pixels
    EXPECT_EQ(Hit(57), "1: 0 0 0");
    EXPECT_EQ(Hit(58), "2: 0 1 0");
}

TEST_F(Bar, WithoutAScaleAPointLiesNowhere)
{
    m_Steps.m_Fixed = true;
    m_Steps.m_Measure = {g_NotANumber, 2};
    EXPECT_EQ(Hit(60), "0: -1 -1 -1");
}

TEST_F(Bar, BeforeTheFirstSectionAPointLiesBeforeTheStrip)
{
    m_Steps.m_Fixed = true;
    m_Steps.m_Measure = {0.5, 10};  // 20 pixels
    m_Steps.m_From = -2;
    m_Steps.m_Start = -2;
    EXPECT_EQ(Hit(39), "3: -1 -1 -1");
    EXPECT_EQ(Hit(45), "1: 0 0 0 first");
}

TEST_F(Bar, OddModelsAreSurvived)
{
    struct SOdd
    {
        double from;
        double to;
        double start;
        std::pair<double, int> measure;
        std::vector<double> steps;
    };
    std::vector<double> const steps{12.5, 15, 10};
    SOdd const odds[] = {{0, 3, g_NotANumber, {0.5, 2}, steps},
                         {0, 3, g_Infinity, {0.5, 2}, steps},
                         {0, 3, -g_Infinity, {0.5, 2}, steps},
                         {g_NotANumber, g_NotANumber, 0, {0.5, 2}, steps},
                         {0, 3, 0, {0, 0}, steps},
                         {0, 3, 0, {0.5, 0}, steps},
                         {0, 3, 0, {-0.5, 2}, steps},
                         {0, 3, 0, {g_NotANumber, 2}, steps},
                         {-10, 3, -10, {0.5, 2}, steps},
                         {3, 0, 0, {0.5, 2}, steps},
                         {0, 3, 0, {0.5, 2}, {0, 0, 0}},
                         {0, 3, 0, {0.5, 2}, {g_NotANumber, g_Infinity, -5}},
                         {0, 1e300, 1e299, {1e-300, 2147483647}, {1e300, 1e300}}};
    m_Bar.SetStyle(3);
    for (bool const fixed : {false, true})
    {
        for (SOdd const& odd : odds)
        {
            m_Steps.m_Fixed = fixed;
            m_Steps.m_From = odd.from;
            m_Steps.m_To = odd.to;
            m_Steps.m_Start = odd.start;
            m_Steps.m_Measure = odd.measure;
            m_Steps.m_Steps = odd.steps;
            // The converter counts whole steps up to the position, so an endless one is asked for nothing here.
            if (!fixed && !(odd.start < 1e6))
                continue;
            Draw();
            for (int const along : {0, 10, 100, 199})
            {
                CBar::HitTestResult const hit = m_Bar.HitTest(At(along));
                EXPECT_GE(hit.m_Section, -1);
                EXPECT_LE(hit.m_Section, 3);
                Click(along, ksShift);
                Press(along);
                Move(along + 20);
                m_Host.Paint();
                Move(along - 300);
                m_Host.Clock().Advance(300);
                m_Host.Paint();
                Release();
            }
        }
    }
}

// The free edge ---------------------------------------------------------------------------------------------------------------

TEST_P(BarOnSide, WithoutTheStyleThereIsNoFreeEdge)
{
    for (unsigned long const style : {0ul, 1ul})
    {
        m_Bar.SetStyle(style);
        EXPECT_EQ(Hit(120, 20), "1: 2 2 2 first");
        EXPECT_EQ(Hit(199, 10), "4: 3 3 3");
    }
}

TEST_F(BarOnLeft, TheFreeEdgeIsItsInnerSide)
{
    m_Bar.SetStyle(CBar::bsResizeBar);
    EXPECT_EQ(Hit(120, 17), "1: 2 2 2 first");
    EXPECT_EQ(Hit(120, 18), "5: -1 -1 -1");
    EXPECT_EQ(Hit(120, 20), "5: -1 -1 -1");
    EXPECT_EQ(Hit(0, 20), "5: -1 -1 -1");
    EXPECT_EQ(Hit(120, 21), "0: -1 -1 -1");
    EXPECT_EQ(Hit(199, 10), "4: 3 3 3");
}

TEST_F(Bar, TheFreeEdgeOfATopBarIsItsFarEnd)
{
    m_Bar.SetStyle(CBar::bsResizeBar);
    EXPECT_EQ(Hit(196), "4: 3 3 3");
    EXPECT_EQ(Hit(197), "5: -1 -1 -1");
    EXPECT_EQ(Hit(199), "5: -1 -1 -1");
    EXPECT_EQ(Hit(120, 20), "1: 2 2 2 first");
}

TEST_P(ThinBar, OfTheRightOrBottomHasAFreeEdgeOnlyIfItIsThinnerThanThreePixels)
{
    m_Bar.SetStyle(CBar::bsResizeBar);
    EXPECT_EQ(Hit(120, 0), m_Thickness < 3 ? "5: -1 -1 -1" : "1: 2 2 2 first");
}

// Selected sections -------------------------------------------------------------------------------------------------------------

TEST_F(Bar, TheSectionsThatAreSelectedAreSet)
{
    m_Bar.SetSelectedSections({2, 0, 2});
    EXPECT_EQ(Selected(), "02");
    EXPECT_TRUE(m_Bar.IsSelected(0));
    EXPECT_FALSE(m_Bar.IsSelected(1));
    EXPECT_TRUE(IsRepainted());
    m_Bar.SetSelectedSections({1});
    EXPECT_EQ(Selected(), "1");
    m_Bar.SetSelectedSections({});
    EXPECT_EQ(Selected(), "");
}

TEST_F(Bar, OnlySectionsThatThereAreAreTold)
{
    m_Bar.SetSelectedSections({-5, 1, 2, 3, 2000000000});
    EXPECT_EQ(Selected(), "12");
    EXPECT_EQ(m_Bar.GetSelection().GetSelectedItems(), 4);
    m_Names.m_Count = 2;
    EXPECT_EQ(Selected(), "1");
    m_Bar.SetCategoryModel(nullptr);
    EXPECT_EQ(Selected(), "");
    m_Names.m_Count = 2147483647;
    m_Bar.SetHorzScroll(nullptr);
    m_Bar.SetCategoryModel(&m_Names);
    EXPECT_EQ(Selected(), "1232000000000");
}

TEST_F(Bar, ANewSelectionEndsAShiftSelection)
{
    Click(70);
    Click(120, ksShift);
    EXPECT_EQ(Selected(), "12");
    m_Bar.SetSelectedSections({0});
    EXPECT_EQ(Selected(), "0");
    EXPECT_TRUE(m_Bar.GetRangeSelection().IsEmpty());
}
