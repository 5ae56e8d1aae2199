// Where the sections of a header stand, and what lies under a point.

#include "tests/headers/header_bench.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/views/continuous_item_view_model.h"

#include <numeric>

using namespace vexel;
using namespace vexel::test;

namespace
{

// Sections 0 to 49, 50 to 109, 110 to 149; the strip ends at 199.
using SimpleHeaderOnSide = CHeaderOnSide;
using SimpleHeaderPlaces = CHeaderBench;
INSTANTIATE_TEST_SUITE_P(AtEdge, SimpleHeaderOnSide, testing::Values(alTop, alBottom, alLeft, alRight));

std::string First(CSimpleHeader const& header)
{
    int first = -7;
    int offset = -8;
    header.CalcFirstSection(&first, &offset);
    return std::to_string(first) + ", " + std::to_string(offset);
}

// Narrows the pane, and with it the strip, to 30 ... 169 of the header.
void NarrowPane(CVisualElement& pane, Alignment side)
{
    bool const upright = side == alLeft || side == alRight;
    pane.SetAlignment(alNone);
    pane.SetPos(upright ? rectangle<int>{40, 30, 160, 169} : rectangle<int>{30, 40, 169, 160}, false);
}

}  // namespace

// Hit tests -------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderOnSide, TheGripReachesThreePixelsToEachSideOfADivider)
{
    std::string const first = Describe(Span(0, 49));
    std::string const second = Describe(Span(50, 109));
    std::string const third = Describe(Span(110, 149));
    EXPECT_EQ(Hit(0), "1: 0 0 " + first);
    EXPECT_EQ(Hit(46), "1: 0 0 " + first);
    EXPECT_EQ(Hit(47), "2: 0 1 " + first);
    EXPECT_EQ(Hit(52), "2: 0 1 " + first);
    EXPECT_EQ(Hit(53), "1: 1 1 " + second);
    EXPECT_EQ(Hit(106), "1: 1 1 " + second);
    EXPECT_EQ(Hit(107), "2: 1 2 " + second);
    EXPECT_EQ(Hit(112), "2: 1 2 " + second);
    EXPECT_EQ(Hit(113), "1: 2 2 " + third);
    EXPECT_EQ(Hit(147), "2: 2 3 " + third);
    EXPECT_EQ(Hit(152), "2: 2 3 " + third);
}

TEST_P(SimpleHeaderOnSide, BehindTheLastSectionTheStripIsEmptyAndBeyondItIsNothing)
{
    EXPECT_EQ(Hit(153), "3: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(199), "3: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(200), "0: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(-1), "0: 0 0 (0, 0, 0, 0)");
}

TEST_P(SimpleHeaderOnSide, ItsEdgesBelongToIt)
{
    EXPECT_EQ(Hit(10, 0).substr(0, 1), "1");
    EXPECT_EQ(Hit(10, 20).substr(0, 1), "1");
    EXPECT_EQ(Hit(10, 21), "0: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(10, -1), "0: 0 0 (0, 0, 0, 0)");
}

TEST_P(SimpleHeaderOnSide, TheLastExpandedSectionHasNoDivider)
{
    m_Header.ExpandLastSection(true);
    std::string const third = Describe(Span(110, 199));
    EXPECT_EQ(Hit(149), "1: 2 2 " + third);
    EXPECT_EQ(Hit(160), "1: 2 2 " + third);
    EXPECT_EQ(Hit(197), "1: 2 2 " + third);
    EXPECT_EQ(Hit(199), "1: 2 2 " + third);
    EXPECT_EQ(Hit(107), "2: 1 2 " + Describe(Span(50, 109)));
}

TEST_P(SimpleHeaderOnSide, AnExpandedSectionThatReachesTheEndAnywayKeepsItsWidth)
{
    m_Sections.m_Widths = {50, 60, 95};
    m_Header.ExpandLastSection(true);
    EXPECT_EQ(m_Header.GetSectionRect(2), Span(110, 204));
    EXPECT_EQ(Hit(190), "1: 2 2 " + Describe(Span(110, 204)));
}

TEST_P(SimpleHeaderOnSide, AStripShorterThanTheHeaderHasPlacesBeforeAndBehind)
{
    NarrowPane(m_Pane, GetParam());
    EXPECT_EQ(Hit(29), "4: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(0), "4: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(-1), "0: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(170), "5: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(199), "5: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(30), "1: 0 0 " + Describe(Span(30, 79)));
    EXPECT_EQ(Hit(77), "2: 0 1 " + Describe(Span(30, 79)));
    EXPECT_EQ(Hit(82), "2: 0 1 " + Describe(Span(30, 79)));
    EXPECT_EQ(Hit(83), "1: 1 1 " + Describe(Span(80, 139)));
    EXPECT_EQ(Hit(169), "1: 2 2 " + Describe(Span(140, 179)));
}

// The shift begins where it no longer leaves the strip.
TEST_P(SimpleHeaderOnSide, TheFirstThreePixelsOfTheStripAreNotShifted)
{
    m_Sections.m_Widths = {8, 60, 40};
    std::string areas;
    for (int along = 0; along < 12; ++along)
        areas += Hit(along).substr(0, 1);
    EXPECT_EQ(areas, "112112222221");

    NarrowPane(m_Pane, GetParam());
    areas.clear();
    for (int along = 30; along < 42; ++along)
        areas += Hit(along).substr(0, 1);
    EXPECT_EQ(areas, "112112222221");
}

TEST_F(SimpleHeaderPlaces, BesideTheStripAcrossIsNothing)
{
    class CInset : public CSimpleHeader
    {
    public:
        using CSimpleHeader::CSimpleHeader;
        rectangle<int> GetContentRect() const override { return {10, 4, 100, 16}; }
    };
    CInset header(nullptr, {20, 20}, alTop);
    header.ReParent(m_Host.Root(), true);
    header.SetPos({0, 40, 199, 60}, true);
    header.SetCentralPane(&m_Pane);
    header.SetHorzScroll(&m_Scroll);
    header.SetModel(&m_Sections);
    EXPECT_EQ(header.HitTest({50, 3}).m_Area, CSimpleHeader::htNothing);
    EXPECT_EQ(header.HitTest({50, 17}).m_Area, CSimpleHeader::htNothing);
    EXPECT_EQ(header.HitTest({50, 4}).m_Area, CSimpleHeader::htSection);
    EXPECT_EQ(header.HitTest({9, 3}).m_Area, CSimpleHeader::htBefore);
    EXPECT_EQ(header.HitTest({101, 17}).m_Area, CSimpleHeader::htBehind);
    EXPECT_EQ(header.GetSectionRect(0), (rectangle<int>{10, 0, 59, 20}));
}

TEST_P(SimpleHeaderOnSide, WithoutAModelEveryPointIsNothing)
{
    m_Header.SetModel(nullptr);
    EXPECT_EQ(Hit(10), "0: 0 0 (0, 0, 0, 0)");
    NarrowPane(m_Pane, GetParam());
    EXPECT_EQ(Hit(10), "0: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(m_Header.GetSectionRect(0), rectangle<int>());
}

TEST_P(SimpleHeaderOnSide, WithoutAScrollModelEveryPointOfTheStripIsNothing)
{
    m_Header.SetHorzScroll(nullptr);
    m_Header.SetVertScroll(nullptr);
    EXPECT_EQ(Hit(10), "0: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(First(m_Header), "-7, -8");
    NarrowPane(m_Pane, GetParam());
    EXPECT_EQ(Hit(10), "4: 0 0 (0, 0, 0, 0)");
}

TEST_P(SimpleHeaderOnSide, OnlyTheModelOfItsOwnAxisCounts)
{
    CPixelScroll other;
    other.m_Start = 30;
    if (IsUpright())
        m_Header.SetHorzScroll(&other);
    else
        m_Header.SetVertScroll(&other);
    m_Scroll.m_Start = 20;
    EXPECT_EQ(First(m_Header), "0, 20");
}

// The first section -------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderOnSide, TheFirstSectionIsTheOneAtTheStart)
{
    for (auto const& [start, expected] : std::vector<std::pair<double, std::string>>{{0, "0, 0"},
                                                                                     {49, "0, 49"},
                                                                                     {49.5, "0, 49"},
                                                                                     {50, "1, 0"},
                                                                                     {70.75, "1, 20"},
                                                                                     {109, "1, 59"},
                                                                                     {110, "2, 0"},
                                                                                     {149, "2, 39"},
                                                                                     {150, "-7, -8"},
                                                                                     {-5, "0, -5"}})
    {
        m_Scroll.m_Start = start;
        EXPECT_EQ(First(m_Header), expected) << start;
    }
}

// A view that was pulled beyond its beginning.
TEST_P(SimpleHeaderOnSide, AStartBeforeTheRangeLeavesRoomBeforeTheFirstSection)
{
    m_Scroll.m_Start = -5;
    EXPECT_EQ(m_Header.GetSectionRect(0), Span(5, 54));
    EXPECT_EQ(m_Header.GetSectionRect(1), Span(55, 114));
    EXPECT_EQ(Hit(0), "1: 0 0 " + Describe(Span(5, 54)));
    EXPECT_EQ(Hit(57), "2: 0 1 " + Describe(Span(5, 54)));
    m_Scroll.m_Start = -1;
    EXPECT_EQ(Hit(10), "1: 0 0 " + Describe(Span(1, 50)));
}

TEST_P(SimpleHeaderOnSide, WholeItemsBeforeTheFirstAreNone)
{
    CItemScroll items;
    m_Header.SetHorzScroll(&items);
    m_Header.SetVertScroll(&items);
    items.m_Start = -2;
    EXPECT_EQ(First(m_Header), "-2, 0");
    EXPECT_EQ(Hit(10), "0: 0 0 (0, 0, 0, 0)");
    EXPECT_EQ(m_Header.GetSectionRect(0), rectangle<int>());
}

TEST_P(SimpleHeaderOnSide, PixelsAreCountedFromTheLowEndOfTheModel)
{
    m_Scroll.m_From = 100;
    m_Scroll.m_Start = 170;
    EXPECT_EQ(First(m_Header), "1, 20");
    m_Scroll.m_From = 1000;
    m_Scroll.m_To = 100;
    EXPECT_EQ(First(m_Header), "1, 20");
}

TEST_P(SimpleHeaderOnSide, WholeItemsStandAtTheEdge)
{
    CItemScroll items;
    m_Header.SetHorzScroll(&items);
    m_Header.SetVertScroll(&items);
    items.m_Start = 1.75;
    EXPECT_EQ(First(m_Header), "1, 0");
    EXPECT_EQ(Hit(0), "1: 1 1 " + Describe(Span(0, 59)));
    EXPECT_EQ(m_Header.GetSectionRect(0), rectangle<int>());
    EXPECT_EQ(m_Header.GetSectionRect(2), Span(60, 99));
}

TEST_P(SimpleHeaderOnSide, UnequalStepsDivideTheWidths)
{
    CItemScroll steps;
    steps.m_Whole = false;
    steps.m_Steps = {2, 3, 2};
    m_Sections.m_Widths = {40, 60, 40};
    m_Header.SetHorzScroll(&steps);
    m_Header.SetVertScroll(&steps);
    steps.m_Start = 0.25;  // half a step of 20 pixels: 10
    EXPECT_EQ(First(m_Header), "0, 10");
    steps.m_Start = 0.75;  // 1.5 steps: 30, of which the first section's 40 / 2 are gone
    EXPECT_EQ(First(m_Header), "1, 10");
    steps.m_Start = 1.5;  // 2 and 1.5 steps: 70; three times 20
    EXPECT_EQ(First(m_Header), "-7, -8");
}

TEST_P(SimpleHeaderOnSide, AStepOfNoSizeIsTheFirst)
{
    CItemScroll steps;
    steps.m_Whole = false;
    steps.m_Steps = {0, 1};
    m_Header.SetHorzScroll(&steps);
    m_Header.SetVertScroll(&steps);
    steps.m_Start = 1.5;
    EXPECT_EQ(First(m_Header).substr(0, 3), "0, ");
}

TEST_P(SimpleHeaderOnSide, WithNoSectionsThereIsNoFirst)
{
    m_Sections.m_Widths.clear();
    EXPECT_EQ(First(m_Header), "-7, -8");
    EXPECT_EQ(Hit(10), "0: 0 0 (0, 0, 0, 0)");
    m_Scroll.m_Start = -10;
    EXPECT_EQ(First(m_Header), "-7, -8");
}

// Rectangles ------------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderOnSide, SectionsStandOneBehindTheOther)
{
    m_Scroll.m_Start = 70;
    EXPECT_EQ(m_Header.GetSectionRect(0), rectangle<int>());
    EXPECT_EQ(m_Header.GetSectionRect(1), Span(-20, 39));
    EXPECT_EQ(m_Header.GetSectionRect(2), Span(40, 79));
    EXPECT_EQ(Hit(0), "1: 1 1 " + Describe(Span(-20, 39)));
    EXPECT_EQ(Hit(42), "2: 1 2 " + Describe(Span(-20, 39)));
}

TEST_P(SimpleHeaderOnSide, ASectionBehindTheLastHasNoWidthAndStandsAtTheEnd)
{
    EXPECT_EQ(m_Header.GetSectionRect(3), Span(150, 150));
    EXPECT_EQ(m_Header.GetSectionRect(9), Span(150, 150));
}

TEST_P(SimpleHeaderOnSide, ASectionBeyondTheEndOfTheStripHasNoRectangle)
{
    m_Sections.m_Widths = {50, 149, 30, 10};
    EXPECT_EQ(m_Header.GetSectionRect(2), Span(199, 228));
    EXPECT_EQ(m_Header.GetSectionRect(3), rectangle<int>());
    EXPECT_EQ(m_Header.GetSectionRect(4), rectangle<int>());
    m_Sections.m_Widths = {50, 150, 30, 10};
    EXPECT_EQ(m_Header.GetSectionRect(1), Span(50, 199));
    EXPECT_EQ(m_Header.GetSectionRect(2), rectangle<int>());
}

TEST_P(SimpleHeaderOnSide, ANegativeSectionHasNoRectangle)
{
    EXPECT_EQ(m_Header.GetSectionRect(-1), rectangle<int>());
}

TEST_P(SimpleHeaderOnSide, OnePixelOfEachWidthIsTheDivider)
{
    EXPECT_EQ(m_Header.CalcItemWidth(0, 0, 199), 49);
    EXPECT_EQ(m_Header.CalcItemWidth(2, 110, 199), 39);
    m_Header.ExpandLastSection(true);
    EXPECT_EQ(m_Header.CalcItemWidth(1, 50, 199), 59);
    EXPECT_EQ(m_Header.CalcItemWidth(2, 110, 199), 89);
    EXPECT_EQ(m_Header.CalcItemWidth(2, 110.25, 199.9), 89);
    EXPECT_EQ(m_Header.CalcItemWidth(2, 170, 199), 39);
    EXPECT_EQ(m_Header.CalcItemWidth(2, 160, 199), 39);
}

// The strip -----------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderOnSide, TheStripIsAsLongAsThePaneInControlPixels)
{
    NarrowPane(m_Pane, GetParam());
    rectangle<double> const expected = GetParam() == alTop      ? rectangle<double>{30, 0, 169, 20}
                                       : GetParam() == alBottom ? rectangle<double>{30, 179, 169, 199}
                                       : GetParam() == alLeft   ? rectangle<double>{0, 30, 20, 169}
                                                                : rectangle<double>{179, 30, 199, 169};
    EXPECT_EQ(m_Header.GetHeaderRect(nullptr), expected);

    CDefaultColumnViewModel columns;
    columns.SetViewSize(120, false);
    m_Header.SetViewModel(&columns);
    EXPECT_EQ(m_Header.GetHeaderRect(nullptr), expected);
    m_Header.SetViewModel(nullptr);
}

TEST_P(SimpleHeaderOnSide, WithoutAPaneTheStripIsTheWholeHeaderOrWhatTheViewModelShows)
{
    m_Header.SetCentralPane(nullptr);
    rectangle<int> const pos = m_Header.GetPos();
    EXPECT_EQ(m_Header.GetHeaderRect(nullptr),
              (rectangle<double>{static_cast<double>(pos.left), static_cast<double>(pos.top),
                                 static_cast<double>(pos.right), static_cast<double>(pos.bottom)}));
    EXPECT_EQ(Hit(30), "1: 0 0 " + Describe(Span(0, 49)));

    CDefaultColumnViewModel columns;
    columns.SetCount(3);
    columns.SetDefaultItemSize(50);
    columns.SetViewSize(120, false);
    m_Header.SetViewModel(&columns);
    rectangle<double> const expected = GetParam() == alTop      ? rectangle<double>{0, 0, 120, 20}
                                       : GetParam() == alBottom ? rectangle<double>{0, 179, 120, 199}
                                       : GetParam() == alLeft   ? rectangle<double>{0, 0, 20, 120}
                                                                : rectangle<double>{179, 0, 199, 120};
    EXPECT_EQ(m_Header.GetHeaderRect(nullptr), expected);
    rectangle<double> const own = IsUpright() ? rectangle<double>{0, 0, 20, 120} : rectangle<double>{0, 0, 120, 20};
    EXPECT_EQ(m_Header.GetHeaderRect(m_Host.Window().GetPainter()), own);
    EXPECT_EQ(Hit(120), "1: 2 2 " + Describe(Span(100, 149)));
    EXPECT_EQ(Hit(121), "5: 0 0 (0, 0, 0, 0)");
    m_Header.SetViewModel(nullptr);
}

// A naive layout ------------------------------------------------------------------------------------------------------------

namespace
{

// All sections laid out, whether they show or not.
struct SNaive
{
    std::vector<int> widths;
    int from = 0;  // the strip on the header
    int to = 0;
    int start = 0;
    bool expanded = false;

    int Count() const { return static_cast<int>(widths.size()); }
    int Begin(int section) const { return from - start + std::accumulate(widths.begin(), widths.begin() + section, 0); }
    int End(int section) const
    {
        int const end = Begin(section) + widths[static_cast<std::size_t>(section)] - 1;
        return expanded && section == Count() - 1 && end < to ? to : end;
    }
    // The first whose end lies behind the start, were it not stretched.
    int First() const
    {
        for (int i = 0; i < Count(); ++i)
            if (Begin(i) + widths[static_cast<std::size_t>(i)] > from)
                return i;
        return -1;
    }
    bool Shows(int section) const { return First() >= 0 && section >= First() && Begin(section) <= to; }
    std::string Hit(int along) const
    {
        if (along < 0 || along > 199)
            return "0";
        if (along < from)
            return "4";
        if (along > to)
            return "5";
        if (First() < 0)
            return "0";
        int const place = along - from >= 3 ? along - 3 : along;
        for (int i = First(); i < Count(); ++i)
            if (place <= End(i))
            {
                bool const divider = End(i) - place < 6 && !(expanded && i == Count() - 1);
                return (divider ? "2 " : "1 ") + std::to_string(i);
            }
        return "3";
    }
};

}  // namespace

TEST_P(SimpleHeaderOnSide, ItStandsLikeANaiveLayout)
{
    CTestRandom random;
    for (int round = 0; round < 150; ++round)
    {
        SNaive naive;
        int total = 0;
        for (int count = random.Int(0, 12); count > 0; --count)
            total += naive.widths.emplace_back(random.Chance(10) ? random.Int(0, 3) : random.Int(4, 70));
        naive.from = random.Bool() ? 0 : random.Int(1, 60);
        naive.to = random.Bool() ? 199 : random.Int(naive.from + 10, 198);
        naive.start = random.Bool() ? 0 : random.Int(0, total + 10);
        naive.expanded = random.Bool();
        m_Sections.m_Widths = naive.widths;
        m_Sections.InitStartOrder(naive.Count());
        m_Scroll.m_Start = naive.start;
        m_Header.ExpandLastSection(naive.expanded);
        m_Pane.SetAlignment(alNone);
        m_Pane.SetPos(IsUpright() ? rectangle<int>{40, naive.from, 160, naive.to}
                                  : rectangle<int>{naive.from, 40, naive.to, 160},
                      false);

        std::string const about = Describe(naive.widths) + " from " + std::to_string(naive.from) + " to " +
                                  std::to_string(naive.to) + " start " + std::to_string(naive.start) +
                                  (naive.expanded ? " expanded" : "");
        int const first = naive.First();
        EXPECT_EQ(First(m_Header),
                  first < 0 ? "-7, -8" : std::to_string(first) + ", " + std::to_string(naive.from - naive.Begin(first)))
            << about;
        for (int i = 0; i < naive.Count(); ++i)
            EXPECT_EQ(m_Header.GetSectionRect(i),
                      naive.Shows(i) ? Span(naive.Begin(i), naive.End(i)) : rectangle<int>())
                << i << " of " << about;
        for (int along = -3; along < 203; ++along)
        {
            CSimpleHeader::HitTestResult const hit = m_Header.HitTest(At(along));
            std::string text = std::to_string(hit.m_Area);
            if (hit.m_Area == CSimpleHeader::htSection || hit.m_Area == CSimpleHeader::htDivider)
            {
                text += " " + std::to_string(hit.m_Section);
                EXPECT_EQ(hit.m_NextSection, hit.m_Section + (hit.m_Area == CSimpleHeader::htDivider ? 1 : 0));
                EXPECT_EQ(hit.m_Rect, Span(naive.Begin(hit.m_Section), naive.End(hit.m_Section)));
            }
            ASSERT_EQ(text, naive.Hit(along)) << along << " of " << about;
        }
    }
}
