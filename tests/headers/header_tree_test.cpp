// The tree of sections and the visitors that walk it.

#include "tests/headers/header_items.h"
#include "tests/support/slot.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// Writes down what it visits; goes into all but one, and stops at another.
class CWriter : public IHeaderVisitor
{
public:
    std::string m_Text;
    std::string m_Skip;
    std::string m_Stop;

    bool Visit(IHeaderItem* item, int level) override
    {
        m_Text += NameOf(item) + std::to_string(level) + " ";
        m_Stopped = m_Stopped || NameOf(item) == m_Stop;
        return NameOf(item) != m_Skip;
    }
    bool IsFinished() const override { return m_Stopped; }

private:
    bool m_Stopped = false;
};

class CByName : public FindVisitor
{
public:
    explicit CByName(std::string name) : m_Name(std::move(name)) {}
    bool CheckItem(IHeaderItem* item) const override { return NameOf(item) == m_Name; }

private:
    std::string m_Name;
};

// Writes down the rectangles.
class CPlaces : public CPositionProcessor
{
public:
    using CPositionProcessor::CPositionProcessor;
    std::string m_Text;
    std::string m_Skip;

    bool ProcessSection(IHeaderItem* item, rectangle<double> const& rect) override
    {
        m_Text += NameOf(item) + " " + Describe(rect) + "; ";
        return NameOf(item) != m_Skip;
    }
};

class CDrawn : public IHeaderItemDrawing
{
public:
    std::string m_Text;
    void DrawSection(IPainter*, IHeaderItem* item, rectangle<double> const&) override { m_Text += NameOf(item); }
};

// A button of 10 x 10 at the right top of what can be expanded.
class CButtons : public IHeaderItemVisualisation
{
public:
    int GetVisualisationState(IHeaderItem const*) const override { return 0; }
    rectangle<double> GetExpandBtnRect(rectangle<double> const& rect, IHeaderItem const*) const override
    {
        return {rect.right - 20, rect.top, rect.right - 10, rect.top + 10};
    }
    rectangle<double> GetSectionContentRect(rectangle<double> const& rect, IHeaderItem const*) const override
    {
        return rect;
    }
    void DrawSectionBackground(IPainter*, rectangle<double> const&, IHeaderItem const*) override {}
    void DrawSectionContent(IPainter*, rectangle<double> const&, IHeaderItem const*) override {}
    void DrawExpandButton(IPainter*, rectangle<double> const&, IHeaderItem const*) override {}
    void DrawSortingMarker(IPainter*, bool, point<double> const&) override {}
};

std::string Places(CItemTree& tree, rectangle<double> const& strip, int levels, bool stretch,
                   std::string const& skip = "")
{
    CPlaces places(strip, levels, stretch);
    places.m_Skip = skip;
    WalkHeaderModel(&tree, &places, 0);
    return places.m_Text;
}

std::string Hit(CItemTree& tree, double x, double y, rectangle<double> const& strip = {0, 0, 199, 60})
{
    CButtons buttons;
    HeaderHitTestResult result;
    CHitTester tester(strip, 3, false, &result, x, y, &buttons);
    WalkHeaderModel(&tree, &tester, 0);
    EXPECT_EQ(tester.IsFinished(), result.m_Item != nullptr);
    return NameOf(result.m_Item) + " " + std::to_string(result.m_Area) + " " + Describe(result.m_Rect);
}

int CountLevels(CItemTree& tree)
{
    CLevelCounter counter;
    WalkHeaderModel(&tree, &counter, 0);
    return counter.GetLevelCount();
}

int WidthOf(CItem& item)
{
    CWidthCalc widths;
    WalkHeaderItem(&item, &widths, 0);
    return widths.GetWidth();
}

}  // namespace

// Items -------------------------------------------------------------------------------------------------------------------

TEST(HeaderTree, AModelHasNoParentAndAnItemHasOne)
{
    CItemTree tree("A(a b) B");
    IHeaderContainer const& asConst = tree;
    EXPECT_EQ(tree.GetParent(), nullptr);
    EXPECT_EQ(asConst.GetParent(), nullptr);
    EXPECT_EQ(tree["A"].GetParent(), &tree);
    EXPECT_EQ(tree["b"].GetParent(), &tree["A"]);
    EXPECT_EQ(asConst.GetChild(1), &tree["B"]);
}

TEST(HeaderTree, AVisualLeafIsCollapsedOrWithoutChildren)
{
    CItemTree tree("A(a) B-(b) C C-");
    EXPECT_FALSE(IsVisualLeaf(tree["A"]));
    EXPECT_TRUE(IsVisualLeaf(tree["B"]));
    EXPECT_TRUE(IsVisualLeaf(tree["C"]));
    EXPECT_TRUE(IsVisualLeaf(tree["a"]));
}

TEST(HeaderTree, AModelThatDiesSaysSo)
{
    auto tree = std::make_unique<CItemTree>("A");
    IHeaderModel* dead = nullptr;
    auto const ear = Listen(tree->m_SigDestroy, [&](IHeaderModel* model) { dead = model; });
    IHeaderModel* const expected = tree.get();
    tree.reset();
    EXPECT_EQ(dead, expected);
}

TEST(HeaderTree, ItemsThatDieAreCounted)
{
    unsigned long const before = IHeaderItem::GetDestroyCount();
    {
        CItemTree const tree("A(a b) B");
        EXPECT_EQ(IHeaderItem::GetDestroyCount(), before);
    }
    EXPECT_EQ(IHeaderItem::GetDestroyCount(), before + 4);
}

// Walks -------------------------------------------------------------------------------------------------------------------

TEST(HeaderTree, AWalkComesToParentsBeforeTheirChildren)
{
    CItemTree tree("A(a(x y) b) B-(c)");
    CWriter writer;
    WalkHeaderModel(&tree, &writer, 0);
    EXPECT_EQ(writer.m_Text, "A0 a1 x2 y2 b1 B0 c1 ");
}

TEST(HeaderTree, AWalkFromALaterItemLeavesTheEarlierOnesOut)
{
    CItemTree tree("A(a) B(b) C");
    CWriter writer;
    WalkHeaderModel(&tree, &writer, 1);
    EXPECT_EQ(writer.m_Text, "B0 b1 C0 ");
}

TEST(HeaderTree, AWalkFromNoValidItemVisitsNothing)
{
    CItemTree tree("A B");
    CWriter writer;
    WalkHeaderModel(&tree, &writer, 2);
    WalkHeaderModel(&tree, &writer, -1);
    WalkHeaderModel(nullptr, &writer, 0);
    WalkHeaderItem(nullptr, &writer, 0);
    EXPECT_EQ(writer.m_Text, "");
}

TEST(HeaderTree, AVisitThatAnswersFalseLeavesTheChildrenOut)
{
    CItemTree tree("A(a b(c)) B(d)");
    CWriter writer;
    writer.m_Skip = "A";
    WalkHeaderModel(&tree, &writer, 0);
    EXPECT_EQ(writer.m_Text, "A0 B0 d1 ");
}

TEST(HeaderTree, AWalkThatIsFinishedLeavesLaterSiblingsUnvisitedAtAllLevels)
{
    CItemTree tree("A(a(x y) b) B");
    CWriter writer;
    writer.m_Stop = "x";
    WalkHeaderModel(&tree, &writer, 0);
    EXPECT_EQ(writer.m_Text, "A0 a1 x2 ");
}

TEST(HeaderTree, AnItemsWalkBeginsAtTheLevelThatItIsTold)
{
    CItemTree tree("A(a(x) b) B");
    CWriter writer;
    WalkHeaderItem(&tree["a"], &writer, 4);
    EXPECT_EQ(writer.m_Text, "a4 x5 ");
}

// Search ------------------------------------------------------------------------------------------------------------------

TEST(HeaderTree, ASearchStopsAtTheFirstThatFits)
{
    CItemTree tree("A(x y) B(x)");
    CByName search("x");
    EXPECT_EQ(search.GetFound(), nullptr);
    EXPECT_FALSE(search.IsFinished());
    WalkHeaderModel(&tree, &search, 0);
    EXPECT_EQ(search.GetFound(), tree["A"].At(0));
    EXPECT_TRUE(search.IsFinished());
}

TEST(HeaderTree, ASearchGoesIntoTheChildrenOnlyOfWhatDoesNotFit)
{
    CItemTree tree("A(a) B(b)");  // 0 to 3
    FindByModelIndex search(2);
    EXPECT_TRUE(search.Visit(&tree["A"], 0));
    EXPECT_FALSE(search.Visit(&tree["B"], 0));
    EXPECT_FALSE(search.Visit(&tree["b"], 1));  // nor anywhere afterwards
    EXPECT_EQ(NameOf(search.GetFound()), "B");
}

TEST(HeaderTree, ASearchThatFindsNothingIsNotFinished)
{
    CItemTree tree("A(x y) B(x)");
    CByName search("z");
    WalkHeaderModel(&tree, &search, 0);
    EXPECT_EQ(search.GetFound(), nullptr);
    EXPECT_FALSE(search.IsFinished());
}

TEST(HeaderTree, AModelIndexIsFoundAtAnyLevelAlsoInACollapsedItem)
{
    CItemTree tree("A B-(c d(e))");  // 0 to 4
    for (auto const& [index, name] : std::vector<std::pair<int, std::string>>{{0, "A"}, {3, "d"}, {4, "e"}, {5, "-"}})
    {
        FindByModelIndex search(index);
        WalkHeaderModel(&tree, &search, 0);
        EXPECT_EQ(NameOf(search.GetFound()), name);
    }
}

// Counting ----------------------------------------------------------------------------------------------------------------

TEST(HeaderTree, LevelsAreTheDepthOfTheDeepestItem)
{
    CItemTree tree;
    EXPECT_EQ(CountLevels(tree), 1);
    tree.Read("A B");
    EXPECT_EQ(CountLevels(tree), 1);
    tree.Read("A(a) B");
    EXPECT_EQ(CountLevels(tree), 2);
    tree.Read("A B(b(x))");
    EXPECT_EQ(CountLevels(tree), 3);
    tree.Read("A(a(x(y))) B C(c)");
    EXPECT_EQ(CountLevels(tree), 4);
}

TEST(HeaderTree, TheLevelsOfACollapsedItemCount)
{
    CItemTree tree("A B-(b-(x))");
    EXPECT_EQ(CountLevels(tree), 3);
}

TEST(HeaderTree, AWidthIsTheSumOfTheVisualLeaves)
{
    CItemTree tree("A:7(a:20 b:9(x:30 y:5)) B-:40(c:10)");
    EXPECT_EQ(WidthOf(tree["A"]), 55);
    EXPECT_EQ(WidthOf(tree["b"]), 35);
    EXPECT_EQ(WidthOf(tree["x"]), 30);
    EXPECT_EQ(CPositionProcessor::GetItemWidth(&tree["A"]), 55);
    EXPECT_EQ(CPositionProcessor::GetItemWidth(nullptr), 0);
}

TEST(HeaderTree, ACollapsedParentIsOneColumnOfItsOwnWidth)
{
    CItemTree tree("B-:40(c:10 d:20)");
    EXPECT_EQ(WidthOf(tree["B"]), 40);
    tree["B"].m_Collapsed = false;
    EXPECT_EQ(WidthOf(tree["B"]), 30);
}

TEST(HeaderTree, WidthsStopAtTheLargestIntAndANegativeOneIsNone)
{
    CItemTree tree("A(a:2000000000 b:2000000000) B(c:-5 d:3)");
    EXPECT_EQ(WidthOf(tree["A"]), 2147483647);
    EXPECT_EQ(WidthOf(tree["B"]), 3);
}

// Places ------------------------------------------------------------------------------------------------------------------

TEST(HeaderTree, SectionsStandSideBySideAndLeavesReachToTheFoot)
{
    CItemTree tree("A(a:20 b:30(x:10 y:20)) B:40");
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 3, false), "A (0, 0, 49, 19); a (0, 20, 19, 60); b (20, 20, 49, 39); "
                                                       "x (20, 40, 29, 60); y (30, 40, 49, 60); B (50, 0, 89, 60); ");
}

TEST(HeaderTree, AnEmptyTreeHasOneLevelOfTheFullHeight)
{
    CItemTree tree;
    EXPECT_EQ(CountLevels(tree), 1);
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 1, true), "");
    tree.Read("A");
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 1, false), "A (0, 0, 49, 60); ");
}

TEST(HeaderTree, ACollapsedSectionReachesToTheFootToo)
{
    CItemTree tree("A-:70(a:20 b:30) B(c:40)");
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 2, false), "A (0, 0, 69, 60); B (70, 0, 109, 29); c (70, 30, 109, 60); ");
}

TEST(HeaderTree, TheLastChildOfEachParentIsStretched)
{
    CItemTree tree("A(a:20 b:30) B(c:40 d:10)");
    // Not only the very last one, but where the parent is as wide as its children nothing shows of it.
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 2, true), "A (0, 0, 49, 29); a (0, 30, 19, 60); b (20, 30, 49, 60); "
                                                      "B (50, 0, 199, 29); c (50, 30, 89, 60); d (90, 30, 199, 60); ");
}

TEST(HeaderTree, AStretchedSectionEndsWithTheStripAlsoIfItIsWider)
{
    CItemTree tree("A:150 B(c:60 d:60)");
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 2, true),
              "A (0, 0, 149, 60); B (150, 0, 199, 29); c (150, 30, 209, 60); d (210, 30, 199, 60); ");
}

TEST(HeaderTree, SectionsBeginWhereTheStripBegins)
{
    CItemTree tree("A(a:20) B:40");
    EXPECT_EQ(Places(tree, {-35, 10, 199, 50}, 2, false),
              "A (-35, 10, -16, 29); a (-35, 30, -16, 50); B (-15, 10, 24, 50); ");
}

TEST(HeaderTree, LevelsShareTheHeightInFractions)
{
    CItemTree tree("A(a:20(x:20))");
    EXPECT_EQ(Places(tree, {0, 0, 99, 50}, 4, false), "A (0, 0, 19, 11.5); a (0, 12.5, 19, 24); x (0, 25, 19, 50); ");
}

TEST(HeaderTree, WithoutLevelsNothingHasAPlace)
{
    CItemTree tree("A(a)");
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 0, false), "");
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 1, false), "A (0, 0, 49, 59); ");  // deeper ones have none
}

TEST(HeaderTree, ASectionWithoutWidthEndsBeforeItBegins)
{
    CItemTree tree("A:0 B:10");
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 1, false), "A (0, 0, -1, 60); B (0, 0, 9, 60); ");
}

TEST(HeaderTree, WhatIsSkippedKeepsItsRoom)
{
    CItemTree tree("A(a:20 b:30) B:40");
    EXPECT_EQ(Places(tree, {0, 0, 199, 60}, 2, false, "A"), "A (0, 0, 49, 29); B (50, 0, 89, 60); ");
}

TEST(HeaderTree, TheRunningRectangleTellsWhereTheNextWouldBegin)
{
    CItemTree tree("A:30 B:40");
    CPlaces places({0, 0, 199, 60}, 1, false);
    EXPECT_EQ(places.GetRunning(0), (rectangle<double>{0, 0, 199, 60}));
    WalkHeaderModel(&tree, &places, 0);
    EXPECT_EQ(places.GetRunning(0), (rectangle<double>{70, 0, 199, 60}));
}

// Drawing -----------------------------------------------------------------------------------------------------------------

TEST(HeaderTree, SectionsThatOverlapTheStripAreDrawn)
{
    CItemTree tree("A(a:20 b:30) B(c:40 d:10) E:10 F:10");  // 0 to 49, 50 to 99, 100 to 109, 110 to 119
    for (auto const& [right, names] : std::vector<std::pair<double, std::string>>{
             {-1, ""}, {0, "Aa"}, {19, "Aa"}, {20, "Aab"}, {99, "AabBcd"}, {100, "AabBcdE"}})
    {
        CDrawn drawn;
        CDrawer drawer({0, 0, right, 60}, 2, false, nullptr, &drawn);
        WalkHeaderModel(&tree, &drawer, 0);
        EXPECT_EQ(drawn.m_Text, names) << right;
    }
}

// Hit test ----------------------------------------------------------------------------------------------------------------

TEST(HeaderTree, AHitFindsTheSectionOfItsLevel)
{
    CItemTree tree("A(a:60 b:80(x:40 y:40)) B:40");
    EXPECT_EQ(Hit(tree, 10, 10), "A 1 (0, 0, 139, 19)");
    EXPECT_EQ(Hit(tree, 10, 20), "a 1 (0, 20, 59, 60)");
    EXPECT_EQ(Hit(tree, 10, 60), "a 1 (0, 20, 59, 60)");
    EXPECT_EQ(Hit(tree, 70, 25), "b 1 (60, 20, 139, 39)");
    EXPECT_EQ(Hit(tree, 70, 45), "x 1 (60, 40, 99, 60)");
    EXPECT_EQ(Hit(tree, 145, 45), "B 1 (140, 0, 179, 60)");
}

TEST(HeaderTree, TheRightEdgeBelongsToTheSection)
{
    CItemTree tree("A:60 B:40");
    EXPECT_EQ(Hit(tree, 59, 10), "A 3 (0, 0, 59, 60)");
    EXPECT_EQ(Hit(tree, 60, 10), "B 1 (60, 0, 99, 60)");
}

TEST(HeaderTree, ASectionOfOnePixelIsHitAndOneWithoutWidthIsNot)
{
    CItemTree tree("A:1 B:0 C:40");
    EXPECT_EQ(Hit(tree, 0, 10), "A 3 (0, 0, 0, 60)");
    EXPECT_EQ(Hit(tree, 1, 10), "C 1 (1, 0, 40, 60)");
}

TEST(HeaderTree, TheLastEightPixelsAreTheGrip)
{
    CItemTree tree("A(a:60) B:40");  // the point given is 4 pixels to the left of the real one
    EXPECT_EQ(Hit(tree, 50, 10), "A 1 (0, 0, 59, 19)");
    EXPECT_EQ(Hit(tree, 51, 10), "A 3 (0, 0, 59, 19)");
    EXPECT_EQ(Hit(tree, 51, 30), "a 3 (0, 20, 59, 60)");
}

TEST(HeaderTree, AButtonIsHitAtTheRealPoint)
{
    CItemTree tree("A(a:100) B:40");  // the button from 79 to 89, 0 to 10
    EXPECT_EQ(Hit(tree, 74, 5), "A 1 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(tree, 75, 5), "A 2 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(tree, 85, 10), "A 2 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(tree, 86, 10), "A 1 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(tree, 80, 11), "A 1 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(tree, 80, 25), "a 1 (0, 20, 99, 60)");  // nothing to expand
}

TEST(HeaderTree, APointOutsideOfAllHitsNothing)
{
    CItemTree tree("A(a:60) B:40");
    EXPECT_EQ(Hit(tree, 100, 10), "- 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(tree, -1, 10), "- 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(tree, 10, -1), "- 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(tree, 10, 61), "- 0 (0, 0, 0, 0)");
}

TEST(HeaderTree, BehindTheStripNothingIsHit)
{
    CItemTree tree("A:60 B:40");
    EXPECT_EQ(Hit(tree, 55, 10, {0, 0, 50, 60}), "A 3 (0, 0, 59, 60)");  // that section reaches out of it
    EXPECT_EQ(Hit(tree, 65, 10, {0, 0, 50, 60}), "- 0 (0, 0, 0, 0)");
}

TEST(HeaderTree, ASectionOutsideTheStripWipesTheResult)
{
    CItemTree tree("A:60");
    CButtons buttons;
    HeaderHitTestResult result;
    result.m_Area = HeaderHitTestResult::haGrip;
    result.m_Item = &tree["A"];
    CHitTester tester({0, 0, 50, 60}, 1, false, &result, 70, 10, &buttons);
    EXPECT_FALSE(tester.ProcessSection(&tree["A"], {51, 0, 99, 60}));
    EXPECT_EQ(result.m_Area, 0);
    EXPECT_EQ(result.m_Item, nullptr);
    EXPECT_FALSE(tester.IsFinished());
}

// Rectangles --------------------------------------------------------------------------------------------------------------

TEST(HeaderTree, ARectangleIsFoundByItsItem)
{
    CItemTree tree("A(a:20 b:30(x:10 y:20)) B-:40(c)");
    for (auto const& [name, rect] : std::vector<std::pair<std::string, rectangle<double>>>{
             {"A", {0, 0, 49, 19}}, {"x", {20, 40, 29, 60}}, {"B", {50, 0, 89, 60}}, {"c", {0, 0, 0, 0}}})
    {
        CRectCalculator search({0, 0, 199, 60}, 3, false, &tree[name]);
        WalkHeaderModel(&tree, &search, 0);
        EXPECT_EQ(search.GetRect(), rect) << name;
        EXPECT_EQ(search.IsFinished(), name != "c");
    }
}
