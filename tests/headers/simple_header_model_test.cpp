// The order of the sections of a one-level header.

#include "vexel/headers/simple_header.h"
#include "vexel/headers/simple_header_model.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

class CSections : public CSimpleHeaderModel
{
public:
    int m_Count = 0;

    int GetItemCount() const override { return m_Count; }
    std::string GetItemCaption(int) const override { return "caption"; }
    int GetItemImageIndex(int) const override { return -1; }
    int GetItemTextAlign(int) const override { return 0; }
    int GetItemWidth(int) const override { return 40; }
};

/// The model indices in order of place.
std::string Order(CSimpleHeaderModel const& model)
{
    std::string text;
    for (int i = 0; model.IndexIsValid(i); ++i)
        text += (i ? " " : "") + std::to_string(model.VisibleIndex2ModelIndex(i));
    return text;
}

TEST(SimpleHeaderModel, HasNoSectionsAtFirst)
{
    CSections model;
    EXPECT_EQ(Order(model), "");
    EXPECT_FALSE(model.IndexIsValid(0));
    EXPECT_EQ(model.GetModelIndex(0), -1);
    EXPECT_EQ(model.ModelIndex2Index(0), -1);
    EXPECT_EQ(model.GetItemDescr(0), "");
    EXPECT_EQ(model.GetSortingDirection(0), 0);
    EXPECT_TRUE(model.TranslationIsPresented());
    EXPECT_EQ(model.TranslateIndex(3, nullptr), 3);
}

TEST(SimpleHeaderModel, TheStartOrderIsThatOfTheData)
{
    CSections model;
    model.InitStartOrder(4);
    EXPECT_EQ(Order(model), "0 1 2 3");
    model.OnMoveSection(nullptr, 0, 3);
    model.InitStartOrder(2);
    EXPECT_EQ(Order(model), "0 1");
    model.InitStartOrder(-1);
    EXPECT_EQ(Order(model), "");
}

TEST(SimpleHeaderModel, OutsideOfTheOrderThereIsNoModelIndex)
{
    CSections model;
    model.InitStartOrder(3);
    EXPECT_TRUE(model.IndexIsValid(0));
    EXPECT_TRUE(model.IndexIsValid(2));
    EXPECT_FALSE(model.IndexIsValid(3));
    EXPECT_FALSE(model.IndexIsValid(-1));
    EXPECT_EQ(model.VisibleIndex2ModelIndex(3), -1);
    EXPECT_EQ(model.VisibleIndex2ModelIndex(-1), -1);
    EXPECT_EQ(model.GetModelIndex(2), 2);
    EXPECT_EQ(model.GetModelIndex(3), -1);
    EXPECT_EQ(model.ModelIndex2Index(7), -1);
}

TEST(SimpleHeaderModel, AMoveTakesOneSectionAndTheOthersMakeRoom)
{
    CSections model;
    model.InitStartOrder(7);
    model.OnMoveSection(nullptr, 2, 5);
    EXPECT_EQ(Order(model), "0 1 3 4 5 2 6");
    EXPECT_EQ(model.ModelIndex2Index(2), 5);
    bool removed = true;
    EXPECT_EQ(model.TranslateIndex(2, &removed), 5);
    EXPECT_FALSE(removed);
    EXPECT_EQ(model.TranslateIndex(3, nullptr), 2);
    EXPECT_EQ(model.TranslateIndex(5, nullptr), 4);
    EXPECT_EQ(model.TranslateIndex(1, nullptr), 1);
    EXPECT_EQ(model.TranslateIndex(6, nullptr), 6);

    model.OnMoveSection(nullptr, 6, 0);
    EXPECT_EQ(Order(model), "6 0 1 3 4 5 2");
    EXPECT_EQ(model.TranslateIndex(6, nullptr), 0);
    EXPECT_EQ(model.TranslateIndex(0, nullptr), 1);
}

TEST(SimpleHeaderModel, AMoveFromOrToNowhereDoesNothing)
{
    CSections model;
    model.InitStartOrder(3);
    model.OnMoveSection(nullptr, 0, 2);
    model.OnMoveSection(nullptr, 0, 3);
    model.OnMoveSection(nullptr, 3, 0);
    model.OnMoveSection(nullptr, -1, 0);
    model.OnMoveSection(nullptr, 0, -1);
    EXPECT_EQ(Order(model), "1 2 0");
    EXPECT_EQ(model.TranslateIndex(0, nullptr), 2);
}

TEST(SimpleHeaderModel, AMoveOntoItselfIsAMoveAllTheSame)
{
    CSections model;
    model.InitStartOrder(3);
    model.OnMoveSection(nullptr, 0, 2);
    model.OnMoveSection(nullptr, 1, 1);
    EXPECT_EQ(Order(model), "1 2 0");
    EXPECT_EQ(model.TranslateIndex(0, nullptr), 0);
}

TEST(SimpleHeaderModel, ACountKeepsTheOrderOfWhatIsThere)
{
    CSections model;
    model.InitStartOrder(3);
    model.OnMoveSection(nullptr, 0, 2);
    model.SetCount(3);
    EXPECT_EQ(Order(model), "1 2 0");
    model.SetCount(5);
    EXPECT_EQ(Order(model), "1 2 0 3 4");
    model.SetCount(2);
    EXPECT_EQ(Order(model), "1 2");
    model.SetCount(-3);
    EXPECT_EQ(Order(model), "");
}

TEST(SimpleHeaderModel, SectionsAreInsertedRemovedAndReplaced)
{
    CSections model;
    model.InitStartOrder(3);
    model.InsertSection(1, 8);
    EXPECT_EQ(Order(model), "0 8 1 2");
    model.InsertSection(4, 9);
    EXPECT_EQ(Order(model), "0 8 1 2 9");
    model.RemoveSection(0);
    EXPECT_EQ(Order(model), "8 1 2 9");
    model.SetModelIndex(3, 1);
    model.SetModelIndex(4, 7);
    model.SetModelIndex(-1, 7);
    EXPECT_EQ(Order(model), "8 1 2 1");
    EXPECT_EQ(model.ModelIndex2Index(1), 1);  // the first of them
}

TEST(SimpleHeaderModel, AHeaderThatIsConnectedMovesTheSections)
{
    CSimpleHeader header(nullptr, {100, 20}, alTop);
    CSections model;
    model.InitStartOrder(3);
    model.ConnectHeader(&header);
    header.m_SigSectionMoved(&header, 0, 2);
    EXPECT_EQ(Order(model), "1 2 0");
    model.DisconnectHeader(&header);
    header.m_SigSectionMoved(&header, 0, 2);
    EXPECT_EQ(Order(model), "1 2 0");
    model.ConnectHeader(nullptr);
    model.DisconnectHeader(nullptr);
}

TEST(SimpleHeaderModel, MayDieBeforeItsHeader)
{
    CSimpleHeader header(nullptr, {100, 20}, alTop);
    {
        CSections model;
        model.InitStartOrder(3);
        model.ConnectHeader(&header);
    }
    header.m_SigSectionMoved(&header, 0, 2);
}

}  // namespace
