// Elements that stand in the sections of a multi-level header.

#include "tests/headers/tree_bench.h"
#include "tests/support/test_images.h"

#include <gmock/gmock.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A from 0 to 99 with a to 39 and b to 99, that one with x to 69 and y; B from 100 to the end, 199.
class HeaderElements : public CTreeBench
{
protected:
    // 10 wide and 8 high.
    CSheet& Carry(std::string const& item, Alignment alignment)
    {
        auto& element = *new CSheet(m_Host.Root(), {10, 8}, alNone);
        NameElement(element, "in " + item);
        m_Header.SetVisualElement(&m_Tree[item], &element, alignment);
        return element;
    }
};

}  // namespace

// Places ------------------------------------------------------------------------------------------------------------------

TEST_F(HeaderElements, AnElementBecomesAChildOfTheHeader)
{
    CSheet& element = Carry("a", alLeft);
    EXPECT_EQ(element.GetParent(), &m_Header);
    EXPECT_EQ(element.GetAlignment(), alNone);
    EXPECT_EQ(m_Header.GetVisualElement(1), &element);
    EXPECT_EQ(m_Header.GetVisualElement(0), nullptr);
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(HeaderElements, AnElementStandsAtTheLeftAtTheRightOrInTheMiddle)
{
    // B from 100 to 199, 0 to 60.
    EXPECT_EQ(Carry("B", alLeft).GetPos(), (rectangle<int>{104, 26, 114, 34}));
    EXPECT_EQ(Carry("a", alRight).GetPos(), (rectangle<int>{24, 36, 34, 44}));   // a from 0 to 39, 20 to 60
    EXPECT_EQ(Carry("b", alClient).GetPos(), (rectangle<int>{64, 25, 74, 33}));  // b from 40 to 99, 20 to 39
}

TEST_F(HeaderElements, AtTheRightItKeepsClearOfTheButton)
{
    EXPECT_EQ(Carry("b", alRight).GetPos(), (rectangle<int>{74, 25, 84, 33}));  // 99 - 5 - 10 - 10
}

TEST_F(HeaderElements, AnElementMayKeepItsPlaceInTheSection)
{
    auto& element = *new CSheet(&m_Header, {10, 8}, alNone);
    element.SetPos({47, 43, 57, 51}, false);
    m_Header.SetVisualElement(&m_Tree["x"], &element, true);  // x begins at 40, 40
    EXPECT_EQ(element.GetPos(), (rectangle<int>{47, 43, 57, 51}));
    m_Header.SetItemSize(0, 60);
    EXPECT_EQ(element.GetPos(), (rectangle<int>{67, 43, 77, 51}));
}

TEST_F(HeaderElements, APlaceInTheSectionsCornerIsKeptToo)
{
    auto& element = *new CSheet(&m_Header, {10, 8}, alNone);
    element.SetPos({100, 0, 110, 8}, false);
    m_Header.SetVisualElement(&m_Tree["B"], &element, true);
    EXPECT_EQ(element.GetPos(), (rectangle<int>{100, 0, 110, 8}));
}

TEST_F(HeaderElements, AtTheRightOfASingleSectionThatFitsItStandsInTheHeader)
{
    m_Tree.Read("A:300");
    m_Tree.m_SigChanged();
    m_Header.SetStretchLastItem(false);
    m_Header.SetSingleColumnFit(true);
    CSheet& element = Carry("A", alRight);
    EXPECT_EQ(element.GetPos(), (rectangle<int>{184, 26, 194, 34}));  // 199 - 5 - 10
    EXPECT_TRUE(element.IsVisible());
}

TEST_F(HeaderElements, WithoutAPlaceOfItsOwnItStandsAtTheLeft)
{
    auto& element = *new CSheet(&m_Header, {10, 8}, alNone);
    m_Header.SetVisualElement(&m_Tree["x"], &element, false);
    EXPECT_EQ(element.GetPos(), (rectangle<int>{44, 46, 54, 54}));
    m_Header.SetVisualElement(nullptr, &element, false);
    m_Header.SetVisualElement(&m_Tree["x"], nullptr, alLeft);
    EXPECT_EQ(m_Header.GetVisualElement(3), &element);
}

TEST_F(HeaderElements, AnElementGoesWithItsSection)
{
    CSheet& element = Carry("x", alLeft);
    m_Header.SetItemSize(0, 55);
    EXPECT_EQ(element.GetPos().left, 59);
    m_Scroll.m_Start = 5;
    m_Header.Scroll(-5, 0, false);
    EXPECT_EQ(element.GetPos().left, 54);
    CItemTree::Move(&m_Tree["b"], 0);
    m_Tree.m_SigChanged();
    EXPECT_FALSE(element.IsVisible());  // it would stick out
    m_Scroll.m_Start = 0;
    m_Header.Scroll(5, 0, false);
    EXPECT_EQ(element.GetPos().left, 4);
    EXPECT_TRUE(element.IsVisible());
}

TEST_F(HeaderElements, AnElementGoesWithTheHeadersHeight)
{
    CSheet& element = Carry("B", alLeft);
    m_Header.SetSize({60, 40}, false);
    m_Host.Paint();
    EXPECT_EQ(element.GetPos(), (rectangle<int>{104, 16, 114, 24}));
}

// Hiding ------------------------------------------------------------------------------------------------------------------

TEST_F(HeaderElements, AnElementOfACollapsedSectionIsHiddenUntilItIsExpanded)
{
    CSheet& element = Carry("x", alLeft);
    m_Header.ExpandItem(&m_Tree["A"], false);
    EXPECT_FALSE(element.IsVisible());
    m_Header.ExpandItem(&m_Tree["A"], true);
    EXPECT_TRUE(element.IsVisible());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(HeaderElements, AnElementThatItsOwnerHasHiddenStaysHidden)
{
    CSheet& element = Carry("x", alLeft);
    element.SetVisible(false);
    m_Header.ExpandItem(&m_Tree["A"], false);
    m_Header.ExpandItem(&m_Tree["A"], true);
    EXPECT_FALSE(element.IsVisible());
}

TEST_F(HeaderElements, AnElementWiderThanItsSectionDoesNotShow)
{
    CSheet& element = Carry("x", alLeft);
    m_Header.SetItemSize(1, 14);  // from 40 to 53; the element from 44 to 54
    EXPECT_FALSE(element.IsVisible());
    m_Header.SetItemSize(1, 15);
    EXPECT_TRUE(element.IsVisible());
}

// Coming and going --------------------------------------------------------------------------------------------------------

TEST_F(HeaderElements, ARemovedElementIsTheCallers)
{
    CSheet& element = Carry("x", alLeft);
    m_Header.ExpandItem(&m_Tree["A"], false);
    m_Header.RemoveVisualElement(3);
    EXPECT_EQ(element.GetParent(), nullptr);
    EXPECT_TRUE(element.IsVisible());
    EXPECT_EQ(m_Header.GetVisualElement(3), nullptr);
    m_Header.RemoveVisualElement(3);
    delete &element;
}

TEST_F(HeaderElements, ASecondElementTakesThePlaceOfTheFirst)
{
    CSheet& first = Carry("x", alLeft);
    CSheet& second = Carry("x", alLeft);
    EXPECT_EQ(first.GetParent(), nullptr);
    EXPECT_EQ(m_Header.GetVisualElement(3), &second);
    delete &first;
}

TEST_F(HeaderElements, AnElementStandsInOneSection)
{
    CSheet& element = Carry("x", alLeft);
    m_Header.SetVisualElement(&m_Tree["B"], &element, alRight);
    EXPECT_EQ(m_Header.GetVisualElement(3), nullptr);
    EXPECT_EQ(m_Header.GetVisualElement(5), &element);
    EXPECT_EQ(element.GetPos().right, 194);
}

TEST_F(HeaderElements, AnElementThatDiesOrMovesAwayIsForgotten)
{
    delete &Carry("x", alLeft);
    EXPECT_EQ(m_Header.GetVisualElement(3), nullptr);
    CSheet& element = Carry("a", alLeft);
    element.ReParent(&m_Pane, false);
    rectangle<int> const before = element.GetPos();
    m_Header.SetItemSize(0, 55);
    m_Header.UpdateElementsPos();
    EXPECT_EQ(element.GetPos(), before);
    EXPECT_EQ(m_Header.GetVisualElement(1), nullptr);
}

TEST_F(HeaderElements, AnotherTreesItemsAreFoundByTheirModelIndices)
{
    CSheet& element = Carry("a", alLeft);  // model index 1
    CItemTree other("P:20 Q:60");
    m_Header.SetModel(&other);
    EXPECT_EQ(element.GetPos().left, 24);
    other.Read("P:20");
    other.m_SigChanged();
    EXPECT_FALSE(element.IsVisible());
    other.Read("P:30 Q:60");
    m_Header.RecreateElements();
    EXPECT_TRUE(element.IsVisible());
    EXPECT_EQ(element.GetPos().left, 34);
    m_Header.SetModel(nullptr);
    EXPECT_FALSE(element.IsVisible());
}

// Room for text -------------------------------------------------------------------------------------------------------------

TEST_F(HeaderElements, TextStandsBesideAnElementAtTheLeftOrRight)
{
    Carry("B", alLeft);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"B\" 114 0 195 60 0x121"));
    delete m_Header.GetVisualElement(5);
    Carry("B", alRight);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"B\" 104 0 185 60 0x121"));
}

TEST_F(HeaderElements, TextStandsOnTheSideOfItsStyleOfAnElementInTheMiddle)
{
    Carry("B", alClient);  // from 144 to 154
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"B\" 104 0 144 60 0x121"));
    m_Tree["B"].m_Align = 0x22;
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"B\" 154 0 195 60 0x122"));
}

TEST_F(HeaderElements, BesideAnElementInTheMiddleTextGivesWayFirstThenTheImage)
{
    CTestImages images({{6, 6}});
    m_Host.Control().GetControl()->SetImageList(&images);
    m_Tree.Read("A:50");
    m_Tree["A"].m_Image = 0;
    m_Tree.m_SigChanged();
    m_Header.SetStretchLastItem(false);
    m_Host.Paint();
    auto const drawn = [&](int width) {
        images.Take();
        m_Header.SetItemSize(0, width);
        bool const text = Draw().Count("DrawStringEx \"A\"*") > 0;
        return std::string(text ? "text " : "") + (images.Take().empty() ? "" : "image");
    };
    Carry("A", alClient);
    // Beside the element there are (width - 11) / 2 less 4 pixels: 12 for image and text, 8 for the image alone.
    EXPECT_EQ(drawn(43), "text image");
    EXPECT_EQ(drawn(41), "image");
    EXPECT_EQ(drawn(35), "image");
    EXPECT_EQ(drawn(33), "");
    m_Host.Control().GetControl()->SetImageList(nullptr);
}

TEST_F(HeaderElements, BesideAnElementInTheMiddleTheMarkGivesWayLast)
{
    m_Tree.Read("A:50");
    m_Tree["A"].m_Sorting = 1;
    m_Tree.m_SigChanged();
    m_Header.SetStretchLastItem(false);
    Carry("A", alClient);
    auto const isMarked = [&](int width) {
        m_Header.SetItemSize(0, width);
        return Draw().Count("Polygon*") > 0;
    };
    // The content without the mark's 15 ends at the width less 20, and begins at 4.
    EXPECT_TRUE(isMarked(24));
    EXPECT_FALSE(isMarked(22));
}

TEST_F(HeaderElements, AHiddenElementNeedsNoRoom)
{
    Carry("B", alLeft).SetVisible(false);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"B\" 104 0 195 60 0x121"));
}
