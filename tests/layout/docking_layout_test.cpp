// Along and across an edge: what the four docking layouts make of coordinates, fonts and text flags.

#include "vexel/layout/layout.h"
#include "vexel/layout/layout_flavor.h"

#include <gtest/gtest.h>

#include <set>

using namespace vexel;

namespace
{

ILayout const& Left()
{
    return *CLayoutManager::GetLayout(alLeft);
}
ILayout const& Right()
{
    return *CLayoutManager::GetLayout(alRight);
}
ILayout const& Top()
{
    return *CLayoutManager::GetLayout(alTop);
}
ILayout const& Bottom()
{
    return *CLayoutManager::GetLayout(alBottom);
}

class HorzLayout : public testing::TestWithParam<Alignment>
{
protected:
    ILayout const& m_Layout = *CLayoutManager::GetLayout(GetParam());
};

class VertLayout : public testing::TestWithParam<Alignment>
{
protected:
    ILayout const& m_Layout = *CLayoutManager::GetLayout(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Edges, HorzLayout, testing::Values(alTop, alBottom));
INSTANTIATE_TEST_SUITE_P(Edges, VertLayout, testing::Values(alLeft, alRight));

// A font of which every member says something.
font SomeFont(int rotation)
{
    font value;
    value.name = "Square";
    value.family = font::ffMono;
    value.size = 11;
    value.style = font::fsBold;
    value.rotation = rotation;
    value.factor = 1.5;
    return value;
}

// Which layout an alignment gets -----------------------------------------------------------------------------------

TEST(LayoutManager, EachEdgeHasALayoutOfItsOwn)
{
    EXPECT_TRUE(dynamic_cast<CLeftLayout*>(CLayoutManager::GetLayout(alLeft)));
    EXPECT_TRUE(dynamic_cast<CRightLayout*>(CLayoutManager::GetLayout(alRight)));
    EXPECT_TRUE(dynamic_cast<CTopLayout*>(CLayoutManager::GetLayout(alTop)));
    EXPECT_TRUE(dynamic_cast<CBottomLayout*>(CLayoutManager::GetLayout(alBottom)));
}

TEST(LayoutManager, WhatIsNotAtAnotherEdgeGetsTheBottomLayout)
{
    ILayout* const bottom = CLayoutManager::GetLayout(alBottom);
    EXPECT_EQ(CLayoutManager::GetLayout(alClient), bottom);
    EXPECT_EQ(CLayoutManager::GetLayout(alNone), bottom);
    EXPECT_EQ(CLayoutManager::GetLayout(static_cast<Alignment>(6)), bottom);
    EXPECT_EQ(CLayoutManager::GetLayout(static_cast<Alignment>(-1)), bottom);
}

TEST(LayoutManager, AllWidgetsShareFourLayouts)
{
    std::set<ILayout*> layouts;
    for (int round = 0; round < 3; ++round)
        for (Alignment const alignment : {alNone, alLeft, alRight, alTop, alBottom, alClient})
            layouts.insert(CLayoutManager::GetLayout(alignment));
    EXPECT_EQ(layouts.size(), 4u);
}

// Horizontal: along is x -------------------------------------------------------------------------------------------

TEST_P(HorzLayout, AlongIsXAndAcrossIsY)
{
    EXPECT_EQ(m_Layout.GetAlong(3.5, 7.25), 3.5);
    EXPECT_EQ(m_Layout.GetAcross(3.5, 7.25), 7.25);
}

TEST_P(HorzLayout, IncrementsAddToXAlongAndToYAcross)
{
    point<double> position{10, 20};
    m_Layout.IncAlong(&position, 1.5);
    EXPECT_EQ(position, (point<double>{11.5, 20}));
    m_Layout.IncAcross(&position, -4.25);
    EXPECT_EQ(position, (point<double>{11.5, 15.75}));
}

TEST_P(HorzLayout, ReferencesAreToTheFirstAlongAndToTheSecondAcross)
{
    double x = 1;
    double y = 2;
    EXPECT_EQ(&m_Layout.GetAlongRef(x, y), &x);
    EXPECT_EQ(&m_Layout.GetAcrossRef(x, y), &y);
    int i = 1;
    int j = 2;
    EXPECT_EQ(&m_Layout.GetAlongRef(i, j), &i);
    EXPECT_EQ(&m_Layout.GetAcrossRef(i, j), &j);
}

TEST_P(HorzLayout, PointsAndRectanglesTakeAlongFirst)
{
    EXPECT_EQ(m_Layout.MakePoint(3, 4), (point<double>{3, 4}));
    EXPECT_EQ(m_Layout.MakeRect(1, 2, 3, 4), (rectangle<double>{1, 2, 3, 4}));
}

TEST_P(HorzLayout, CuttingNarrowsLeftAndRightAlone)
{
    rectangle<int> rect{0, -50, 100, 500};
    m_Layout.CutRect(&rect, {10, 20, 90, 40});
    EXPECT_EQ(rect, (rectangle<int>{10, -50, 90, 500}));
}

TEST_P(HorzLayout, CuttingWidensNothing)
{
    rectangle<int> rect{30, 25, 60, 30};
    m_Layout.CutRect(&rect, {10, 20, 90, 40});
    EXPECT_EQ(rect, (rectangle<int>{30, 25, 60, 30}));
}

TEST_P(HorzLayout, CuttingMovesEachEndByItself)
{
    rectangle<int> beyond{0, 1, 5, 2};
    m_Layout.CutRect(&beyond, {10, 20, 90, 40});
    EXPECT_EQ(beyond, (rectangle<int>{10, 1, 5, 2}));
    rectangle<int> behind{95, 1, 99, 2};
    m_Layout.CutRect(&behind, {10, 20, 90, 40});
    EXPECT_EQ(behind, (rectangle<int>{95, 1, 90, 2}));
}

TEST_P(HorzLayout, FontsStayAsTheyAre)
{
    for (int const rotation : {0, 900, 2700})
    {
        font value = SomeFont(rotation);
        m_Layout.ConvFont(&value);
        EXPECT_EQ(value, SomeFont(rotation));
    }
}

// Vertical: along is y ---------------------------------------------------------------------------------------------

TEST_P(VertLayout, AlongIsYAndAcrossIsX)
{
    EXPECT_EQ(m_Layout.GetAlong(3.5, 7.25), 7.25);
    EXPECT_EQ(m_Layout.GetAcross(3.5, 7.25), 3.5);
}

TEST_P(VertLayout, IncrementsAddToYAlongAndToXAcross)
{
    point<double> position{10, 20};
    m_Layout.IncAlong(&position, 1.5);
    EXPECT_EQ(position, (point<double>{10, 21.5}));
    m_Layout.IncAcross(&position, -4.25);
    EXPECT_EQ(position, (point<double>{5.75, 21.5}));
}

TEST_P(VertLayout, ReferencesAreToTheSecondAlongAndToTheFirstAcross)
{
    double x = 1;
    double y = 2;
    EXPECT_EQ(&m_Layout.GetAlongRef(x, y), &y);
    EXPECT_EQ(&m_Layout.GetAcrossRef(x, y), &x);
    int i = 1;
    int j = 2;
    EXPECT_EQ(&m_Layout.GetAlongRef(i, j), &j);
    EXPECT_EQ(&m_Layout.GetAcrossRef(i, j), &i);
}

TEST_P(VertLayout, PointsAndRectanglesTakeAlongAsY)
{
    EXPECT_EQ(m_Layout.MakePoint(3, 4), (point<double>{4, 3}));
    EXPECT_EQ(m_Layout.MakeRect(1, 2, 3, 4), (rectangle<double>{2, 1, 4, 3}));
}

TEST_P(VertLayout, TheAlongValueOfARectanglesLeftTopIsItsFirstArgument)
{
    rectangle<double> const rect = m_Layout.MakeRect(17, 2, 30, 4);
    EXPECT_EQ(m_Layout.GetAlong(rect.left, rect.top), 17);
    EXPECT_EQ(m_Layout.GetAcross(rect.left, rect.top), 2);
    EXPECT_EQ(m_Layout.GetAlong(rect.right, rect.bottom), 30);
}

TEST_P(VertLayout, CuttingNarrowsTopAndBottomAlone)
{
    rectangle<int> rect{-50, 0, 500, 100};
    m_Layout.CutRect(&rect, {20, 10, 40, 90});
    EXPECT_EQ(rect, (rectangle<int>{-50, 10, 500, 90}));
}

TEST_P(VertLayout, CuttingWidensNothing)
{
    rectangle<int> rect{25, 30, 30, 60};
    m_Layout.CutRect(&rect, {20, 10, 40, 90});
    EXPECT_EQ(rect, (rectangle<int>{25, 30, 30, 60}));
}

TEST_P(VertLayout, CuttingMovesEachEndByItself)
{
    rectangle<int> beyond{1, 0, 2, 5};
    m_Layout.CutRect(&beyond, {20, 10, 40, 90});
    EXPECT_EQ(beyond, (rectangle<int>{1, 10, 2, 5}));
    rectangle<int> behind{1, 95, 2, 99};
    m_Layout.CutRect(&behind, {20, 10, 40, 90});
    EXPECT_EQ(behind, (rectangle<int>{1, 95, 2, 90}));
}

TEST_P(VertLayout, LevelTextIsTurnedDownwards)
{
    font value = SomeFont(0);
    m_Layout.ConvFont(&value);
    EXPECT_EQ(value, SomeFont(2700));
}

TEST_P(VertLayout, TextThatRunsDownwardsBecomesLevel)
{
    font value = SomeFont(2700);
    m_Layout.ConvFont(&value);
    EXPECT_EQ(value, SomeFont(0));
}

TEST_P(VertLayout, OtherRotationsStay)
{
    for (int const rotation : {900, 1800, 3600, -2700, 1})
    {
        font value = SomeFont(rotation);
        m_Layout.ConvFont(&value);
        EXPECT_EQ(value, SomeFont(rotation));
    }
}

// Text flags: 1 left, 2 right, 4 centre, 8 top, 16 bottom, 32 middle ---------------------------------------------------

TEST(TextFlags, AtTheLeftEdgeLeftIsTopAndTopIsRight)
{
    EXPECT_EQ(Left().ConvTextAlign(1), 8);
    EXPECT_EQ(Left().ConvTextAlign(2), 16);
    EXPECT_EQ(Left().ConvTextAlign(4), 32);
    EXPECT_EQ(Left().ConvTextAlign(8), 2);
    EXPECT_EQ(Left().ConvTextAlign(16), 1);
    EXPECT_EQ(Left().ConvTextAlign(32), 4);
}

TEST(TextFlags, AtTheRightEdgeLeftIsTopAndTopIsLeft)
{
    EXPECT_EQ(Right().ConvTextAlign(1), 8);
    EXPECT_EQ(Right().ConvTextAlign(2), 16);
    EXPECT_EQ(Right().ConvTextAlign(4), 32);
    EXPECT_EQ(Right().ConvTextAlign(8), 1);
    EXPECT_EQ(Right().ConvTextAlign(16), 2);
    EXPECT_EQ(Right().ConvTextAlign(32), 4);
}

TEST(TextFlags, AtTheSidesTheyAreTurnedTogether)
{
    EXPECT_EQ(Left().ConvTextAlign(1 | 32), 8 | 4);
    EXPECT_EQ(Right().ConvTextAlign(2 | 8), 16 | 1);
    EXPECT_EQ(Left().ConvTextAlign(63), 63);
    EXPECT_EQ(Right().ConvTextAlign(63), 63);
    EXPECT_EQ(Left().ConvTextAlign(0), 0);
    EXPECT_EQ(Right().ConvTextAlign(0), 0);
}

TEST(TextFlags, AtTheSidesTheHigherOnesAreDropped)
{
    EXPECT_EQ(Left().ConvTextAlign(0x40 | 0x100 | 0x1000 | 0x2000), 0);
    EXPECT_EQ(Right().ConvTextAlign(0x40 | 0x100 | 0x1000 | 0x2000), 0);
    EXPECT_EQ(Left().ConvTextAlign(0x1000 | 4), 32);
    EXPECT_EQ(Right().ConvTextAlign(0x2000 | 4), 32);
}

TEST(TextFlags, AtTheTopEitherOfTopAndBottomBringsTheOther)
{
    EXPECT_EQ(Top().ConvTextAlign(8), 8 | 16);
    EXPECT_EQ(Top().ConvTextAlign(16), 8 | 16);
    EXPECT_EQ(Top().ConvTextAlign(8 | 16), 8 | 16);
}

TEST(TextFlags, AtTheTopAllOthersStay)
{
    for (int const flags : {0, 1, 2, 4, 32, 0x40, 0x100, 0x1000, 0x2000, 1 | 32 | 0x2140})
        EXPECT_EQ(Top().ConvTextAlign(flags), flags);
    EXPECT_EQ(Top().ConvTextAlign(4 | 8 | 0x1000), 4 | 8 | 16 | 0x1000);
}

TEST(TextFlags, AtTheBottomAllStay)
{
    for (int const flags : {0, 1, 2, 4, 8, 16, 32, 63, 0x1000, 0x2140 | 8})
        EXPECT_EQ(Bottom().ConvTextAlign(flags), flags);
}

TEST(TextFlags, ChangingOneAddsItOnlyWhereTheOtherStands)
{
    int result = 0x40;
    ChangeAlign(1 | 8, &result, IPainter::AlignTop, IPainter::AlignRight);
    EXPECT_EQ(result, 0x40 | 2);
    ChangeAlign(1 | 8, &result, IPainter::AlignBottom, IPainter::AlignHCenter);
    EXPECT_EQ(result, 0x40 | 2);
    ChangeAlign(1 | 8, &result, IPainter::AlignLeft, IPainter::AlignRight);
    EXPECT_EQ(result, 0x40 | 2);
}

TEST(TextFlags, OneOfSeveralIsEnoughToChange)
{
    int result = 0;
    ChangeAlign(8, &result, static_cast<IPainter::AlignmentFlags>(8 | 16), IPainter::AlignVCenter);
    EXPECT_EQ(result, 32);
}

// The mix-in -------------------------------------------------------------------------------------------------------

TEST(LayoutFlavor, ChangingTheLayoutAlwaysGivesLeaveToGoOn)
{
    CLayoutFlavor flavor;
    for (Alignment const alignment : {alLeft, alLeft, alNone, alClient, alTop, static_cast<Alignment>(77)})
        EXPECT_TRUE(flavor.ChangeLayout(alignment));
}

TEST(LayoutFlavor, HasTheBottomLayoutUntilItIsToldAnother)
{
    CLayoutFlavor flavor;
    flavor.SetTextConversion(true);
    EXPECT_EQ(flavor.GetAlong(3, 4), 3);
    EXPECT_EQ(flavor.ConvTextAlign(8), 8);
}

TEST(LayoutFlavor, DoesEverythingAsTheLayoutOfItsEdge)
{
    CLayoutFlavor flavor;
    flavor.ChangeLayout(alLeft);

    point<double> position{10, 20};
    flavor.IncAlong(&position, 1);
    flavor.IncAcross(&position, 5);
    EXPECT_EQ(position, (point<double>{15, 21}));
    EXPECT_EQ(flavor.GetAlong(3, 4), 4);
    EXPECT_EQ(flavor.GetAcross(3, 4), 3);
    double x = 0;
    double y = 0;
    EXPECT_EQ(&flavor.GetAlongRef(x, y), &y);
    EXPECT_EQ(&flavor.GetAcrossRef(x, y), &x);
    int i = 0;
    int j = 0;
    EXPECT_EQ(&flavor.GetAlongRef(i, j), &j);
    EXPECT_EQ(&flavor.GetAcrossRef(i, j), &i);
    rectangle<int> rect{0, 0, 9, 9};
    flavor.CutRect(&rect, {2, 3, 6, 7});
    EXPECT_EQ(rect, (rectangle<int>{0, 3, 9, 7}));
    EXPECT_EQ(flavor.MakePoint(1, 2), (point<double>{2, 1}));
    EXPECT_EQ(flavor.MakeRect(1, 2, 3, 4), (rectangle<double>{2, 1, 4, 3}));
}

TEST(LayoutFlavor, AnotherEdgeTurnsItOver)
{
    CLayoutFlavor flavor;
    flavor.ChangeLayout(alLeft);
    flavor.ChangeLayout(alTop);
    EXPECT_EQ(flavor.GetAlong(3, 4), 3);
    EXPECT_EQ(flavor.MakeRect(1, 2, 3, 4), (rectangle<double>{1, 2, 3, 4}));
    flavor.ChangeLayout(alRight);
    EXPECT_EQ(flavor.GetAlong(3, 4), 4);
}

TEST(LayoutFlavor, ConvertsNoTextsUnlessItIsTold)
{
    CLayoutFlavor flavor;
    EXPECT_FALSE(flavor.IsTextConverted());
    flavor.SetTextConversion(true);
    EXPECT_TRUE(flavor.IsTextConverted());
    flavor.SetTextConversion(false);
    EXPECT_FALSE(flavor.IsTextConverted());
}

TEST(LayoutFlavor, WithoutTextConversionFontsAndFlagsStay)
{
    CLayoutFlavor flavor;
    flavor.ChangeLayout(alLeft);
    font value = SomeFont(0);
    flavor.ConvFont(&value);
    EXPECT_EQ(value, SomeFont(0));
    EXPECT_EQ(flavor.ConvTextAlign(1 | 8 | 0x1140), 1 | 8 | 0x1140);
}

TEST(LayoutFlavor, WithTextConversionFontsAndFlagsAreTurnedByItsEdge)
{
    CLayoutFlavor flavor;
    flavor.SetTextConversion(true);
    flavor.ChangeLayout(alLeft);
    font value = SomeFont(0);
    flavor.ConvFont(&value);
    EXPECT_EQ(value, SomeFont(2700));
    EXPECT_EQ(flavor.ConvTextAlign(8 | 0x1000), 2);
    flavor.ChangeLayout(alRight);
    EXPECT_EQ(flavor.ConvTextAlign(8 | 0x1000), 1);
    flavor.ChangeLayout(alTop);
    EXPECT_EQ(flavor.ConvTextAlign(8 | 0x1000), 8 | 16 | 0x1000);
    flavor.ConvFont(&value);
    EXPECT_EQ(value, SomeFont(2700));
}

}  // namespace
