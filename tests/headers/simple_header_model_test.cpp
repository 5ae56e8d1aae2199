// The order of the sections.

#include "tests/headers/header_bench.h"
#include "tests/support/slot.h"

#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

std::string OrderOf(CSimpleHeaderModel const& model)
{
    std::string text;
    for (int i = 0; model.IndexIsValid(i); ++i)
        text += (i ? " " : "") + std::to_string(model.VisibleIndex2ModelIndex(i));
    return text;
}

class SimpleHeaderModel : public testing::Test
{
protected:
    CSections m_Model{{10, 10, 10, 10, 10, 10, 10}};  // 0 1 2 3 4 5 6
};

}  // namespace

TEST_F(SimpleHeaderModel, TheOrderIsEmptyAtFirst)
{
    CSections const model({});
    EXPECT_EQ(OrderOf(model), "");
    EXPECT_FALSE(model.IndexIsValid(0));
    EXPECT_EQ(model.GetModelIndex(0), -1);
    EXPECT_EQ(model.ModelIndex2Index(0), -1);
}

TEST_F(SimpleHeaderModel, DefaultsTellNothing)
{
    class CBare : public ISimpleHeaderModel
    {
    public:
        int GetItemCount() const override { return 1; }
        std::string GetItemCaption(int) const override { return "x"; }
        int GetItemImageIndex(int) const override { return -1; }
        int GetItemTextAlign(int) const override { return 1; }
        int GetItemWidth(int) const override { return 5; }
        int TranslateIndex(int index, bool*) const override { return index; }
    } bare;
    EXPECT_EQ(bare.GetItemDescr(0), "");
    EXPECT_EQ(bare.GetSortingDirection(0), 0);
    EXPECT_TRUE(bare.TranslationIsPresented());
    CTestHost host(50, 50);
    CSimpleHeader header(host.Root(), {10, 10}, alTop);
    bare.ConnectHeader(&header);
    bare.DisconnectHeader(&header);
    header.m_SigSectionMoved(&header, 0, 0);  // nobody hears
}

TEST_F(SimpleHeaderModel, IndicesOutsideTheOrderAreMinusOne)
{
    EXPECT_TRUE(m_Model.IndexIsValid(0));
    EXPECT_TRUE(m_Model.IndexIsValid(6));
    EXPECT_FALSE(m_Model.IndexIsValid(7));
    EXPECT_FALSE(m_Model.IndexIsValid(-1));
    EXPECT_EQ(m_Model.VisibleIndex2ModelIndex(6), 6);
    EXPECT_EQ(m_Model.VisibleIndex2ModelIndex(7), -1);
    EXPECT_EQ(m_Model.VisibleIndex2ModelIndex(-1), -1);
    EXPECT_EQ(m_Model.GetModelIndex(7), -1);
    EXPECT_EQ(m_Model.ModelIndex2Index(7), -1);
}

TEST_F(SimpleHeaderModel, TheFirstPlaceThatShowsASectionCounts)
{
    m_Model.SetModelIndex(2, 6);
    EXPECT_EQ(OrderOf(m_Model), "0 1 6 3 4 5 6");
    EXPECT_EQ(m_Model.ModelIndex2Index(6), 2);
    EXPECT_EQ(m_Model.ModelIndex2Index(2), -1);
    m_Model.SetModelIndex(7, 1);
    m_Model.SetModelIndex(-1, 1);
    EXPECT_EQ(OrderOf(m_Model), "0 1 6 3 4 5 6");
}

TEST_F(SimpleHeaderModel, AMoveForwardPullsThoseBetweenBack)
{
    m_Model.OnMoveSection(nullptr, 2, 5);
    EXPECT_EQ(OrderOf(m_Model), "0 1 3 4 5 2 6");
    bool removed = true;
    EXPECT_EQ(m_Model.TranslateIndex(2, &removed), 5);
    EXPECT_FALSE(removed);
    EXPECT_EQ(m_Model.TranslateIndex(3, nullptr), 2);
    EXPECT_EQ(m_Model.TranslateIndex(5, nullptr), 4);
    EXPECT_EQ(m_Model.TranslateIndex(1, nullptr), 1);
    EXPECT_EQ(m_Model.TranslateIndex(6, nullptr), 6);
}

TEST_F(SimpleHeaderModel, AMoveBackPushesThoseBetweenOn)
{
    m_Model.OnMoveSection(nullptr, 6, 0);
    EXPECT_EQ(OrderOf(m_Model), "6 0 1 2 3 4 5");
    EXPECT_EQ(m_Model.TranslateIndex(6, nullptr), 0);
    EXPECT_EQ(m_Model.TranslateIndex(0, nullptr), 1);
}

TEST_F(SimpleHeaderModel, AMoveOntoItselfKeepsTheOrderAndForgetsTheMoveBefore)
{
    m_Model.OnMoveSection(nullptr, 2, 5);
    m_Model.OnMoveSection(nullptr, 1, 1);
    EXPECT_EQ(OrderOf(m_Model), "0 1 3 4 5 2 6");
    EXPECT_EQ(m_Model.TranslateIndex(2, nullptr), 2);
}

TEST_F(SimpleHeaderModel, AMoveFromOrToNowhereDoesNothing)
{
    m_Model.OnMoveSection(nullptr, 2, 5);
    for (auto const& [from, to] : {std::pair{-1, 2}, {7, 2}, {2, -1}, {2, 7}})
        m_Model.OnMoveSection(nullptr, from, to);
    EXPECT_EQ(OrderOf(m_Model), "0 1 3 4 5 2 6");
    EXPECT_EQ(m_Model.TranslateIndex(2, nullptr), 5);
}

TEST_F(SimpleHeaderModel, AnotherCountKeepsWhatIsThereAndAddsNewPlacesByTheirNumber)
{
    m_Model.InitStartOrder(3);
    m_Model.OnMoveSection(nullptr, 0, 2);
    m_Model.SetCount(3);
    EXPECT_EQ(OrderOf(m_Model), "1 2 0");
    m_Model.SetCount(5);
    EXPECT_EQ(OrderOf(m_Model), "1 2 0 3 4");
    m_Model.SetCount(2);
    EXPECT_EQ(OrderOf(m_Model), "1 2");
    m_Model.SetCount(4);
    EXPECT_EQ(OrderOf(m_Model), "1 2 2 3");
    m_Model.InitStartOrder(3);
    EXPECT_EQ(OrderOf(m_Model), "0 1 2");
    m_Model.SetCount(-3);
    EXPECT_EQ(OrderOf(m_Model), "");
    m_Model.InitStartOrder(2);
    EXPECT_EQ(OrderOf(m_Model), "0 1");
}

TEST_F(SimpleHeaderModel, SectionsAreInsertedAndRemovedAtTheirPlaces)
{
    m_Model.InitStartOrder(3);
    m_Model.InsertSection(1, 9);
    EXPECT_EQ(OrderOf(m_Model), "0 9 1 2");
    m_Model.InsertSection(4, 8);
    m_Model.InsertSection(0, 7);
    EXPECT_EQ(OrderOf(m_Model), "7 0 9 1 2 8");
    m_Model.RemoveSection(0);
    m_Model.RemoveSection(1);
    EXPECT_EQ(OrderOf(m_Model), "0 1 2 8");
}

TEST_F(SimpleHeaderModel, AConnectedHeaderMovesTheSections)
{
    CTestHost host(50, 50);
    CSimpleHeader header(host.Root(), {10, 10}, alTop);
    m_Model.ConnectHeader(nullptr);
    m_Model.ConnectHeader(&header);
    header.m_SigSectionMoved(&header, 0, 1);
    EXPECT_EQ(OrderOf(m_Model), "1 0 2 3 4 5 6");

    m_Model.DisconnectHeader(nullptr);
    m_Model.DisconnectHeader(&header);
    header.m_SigSectionMoved(&header, 0, 1);
    EXPECT_EQ(OrderOf(m_Model), "1 0 2 3 4 5 6");
}

TEST_F(SimpleHeaderModel, AModelThatDiesLeavesTheHeader)
{
    CTestHost host(50, 50);
    CSimpleHeader header(host.Root(), {10, 10}, alTop);
    auto model = std::make_unique<CSections>(std::vector<int>{1, 2});
    model->ConnectHeader(&header);
    header.SetModel(model.get());
    model.reset();
    EXPECT_EQ(header.GetModel(), nullptr);
    header.m_SigSectionMoved(&header, 0, 1);  // nobody hears
    EXPECT_EQ(header.GetSectionCount(), 0);
}
