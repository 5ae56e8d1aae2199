// Clicks with shift, alone and with control: what lies between the anchor and the row that is clicked.

#include "tests/views/viewer_bench.h"

using namespace viewer_test;

namespace
{

class ShiftSelect : public CRowsBench<IDiscreteItemViewModel>
{
protected:
    // A press on a row that is in view.
    void ClickRow(int row, int keys = 0) { Click((row - View().GetStartItem()) * 10 + 5, keys); }
    void ShiftClickRow(int row) { ClickRow(row, ksShift); }
};

TEST_F(ShiftSelect, SelectsFromTheAnchorToTheRowInBothDirections)
{
    struct SCase
    {
        int from;
        int to;
        char const* selected;
    };
    for (SCase const& each : {SCase{0, 4, "0 1 2 3 4"}, SCase{4, 0, "0 1 2 3 4"}, SCase{2, 3, "2 3"},
                              SCase{3, 2, "2 3"}, SCase{1, 4, "1 2 3 4"}, SCase{3, 0, "0 1 2 3"}, SCase{2, 2, "2"}})
    {
        SCOPED_TRACE(std::to_string(each.from) + " to " + std::to_string(each.to));
        ClickRow(each.from);
        ShiftClickRow(each.to);
        EXPECT_EQ(Selected(), each.selected);
        EXPECT_EQ(Current(), each.to);
        EXPECT_EQ(Handler().GetAnchor(), each.from);
    }
}

TEST_F(ShiftSelect, TurnsAboutTheAnchorHoweverOftenItIsClicked)
{
    ClickRow(2);
    ShiftClickRow(4);
    EXPECT_EQ(Selected(), "2 3 4");
    ShiftClickRow(0);
    EXPECT_EQ(Selected(), "0 1 2");
    ShiftClickRow(3);
    EXPECT_EQ(Selected(), "2 3");
    ShiftClickRow(1);
    EXPECT_EQ(Selected(), "1 2");
    ShiftClickRow(2);
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(Current(), 2);
    EXPECT_EQ(Handler().GetAnchor(), 2);
}

TEST_F(ShiftSelect, TellsOnceOfTheCurrentRowAndOfTheSelection)
{
    ClickRow(1);
    CSignalLog log;
    log.Add(Selection().m_SigCurrentChanged, "current");
    log.Add(Selection().m_SigSelectionChanged, "selected");
    ShiftClickRow(3);
    EXPECT_EQ(log.Take(), "current(1, 3) selected()");
    ShiftClickRow(3);
    EXPECT_EQ(log.Take(), "");
    ShiftClickRow(0);
    EXPECT_EQ(log.Take(), "current(3, 0) selected()");
}

TEST_F(ShiftSelect, RepaintsWhatLeavesTheRange)
{
    ClickRow(0);
    ShiftClickRow(4);
    Settle();
    ShiftClickRow(2);
    EXPECT_EQ(Paint(),
              "0 state 1 item, 1 state 1 item, 2 state 3 item, 3 state 0 item, 4 state 0 item, 5 state 0 other");
}

TEST_F(ShiftSelect, RepaintsOnlyWhatComesIntoTheRangeAndTheRange)
{
    ClickRow(1);
    ShiftClickRow(2);
    Settle();
    ShiftClickRow(3);
    EXPECT_EQ(Paint(),
              "0 state 0 other, 1 state 1 item, 2 state 1 item, 3 state 3 item, 4 state 0 other, 5 state 0 other");
}

TEST_F(ShiftSelect, TheAnchorMayHaveLeftTheView)
{
    View().SetStartItem(3);
    Settle();
    ClickRow(4);
    ShiftClickRow(7);
    EXPECT_EQ(Selected(), "4 5 6 7");
    View().SetStartItem(0);
    Settle();
    ShiftClickRow(0);
    EXPECT_EQ(Selected(), "0 1 2 3 4");
    EXPECT_EQ(Handler().GetAnchor(), 4);
    View().SetStartItem(5);
    Settle();
    ShiftClickRow(9);
    EXPECT_EQ(Selected(), "4 5 6 7 8 9");
    EXPECT_EQ(Handler().GetAnchor(), 4);
}

TEST_F(ShiftSelect, WithControlTheRowThatIsClickedIsTakenOutAgain)
{
    ClickRow(2);
    ClickRow(4, ksShift | ksControl);
    EXPECT_EQ(Selected(), "2 3");
    EXPECT_EQ(Current(), 4);
    EXPECT_EQ(Handler().GetAnchor(), 2);
    ClickRow(0, ksShift | ksControl);
    EXPECT_EQ(Selected(), "1 2");
    EXPECT_EQ(Current(), 0);
    EXPECT_EQ(Handler().GetAnchor(), 2);
    ShiftClickRow(4);
    EXPECT_EQ(Selected(), "2 3 4");
}

TEST_F(ShiftSelect, WithControlTheCurrentRowIsOnlyToggled)
{
    ClickRow(1);
    ShiftClickRow(3);
    ClickRow(3, ksShift | ksControl);
    EXPECT_EQ(Selected(), "1 2");
    ClickRow(3, ksShift | ksControl);
    EXPECT_EQ(Selected(), "1 2 3");
    EXPECT_EQ(Handler().GetAnchor(), 1);
}

TEST_F(ShiftSelect, WithControlNextToTheAnchorTheAnchorAloneStays)
{
    for (int const row : {3, 1})
    {
        ClickRow(2);
        ClickRow(row, ksShift | ksControl);
        EXPECT_EQ(Selected(), "2");
        EXPECT_EQ(Current(), row);
        EXPECT_EQ(Handler().GetAnchor(), 2);
    }
    ShiftClickRow(0);
    EXPECT_EQ(Selected(), "0 1 2");
}

TEST_F(ShiftSelect, AControlClickLeavesTheAnchorWhereItWas)
{
    ClickRow(1);
    ClickRow(3, ksControl);
    EXPECT_EQ(Handler().GetAnchor(), 1);
    ShiftClickRow(4);
    EXPECT_EQ(Selected(), "1 2 3 4");
    ClickRow(3, ksControl);
    EXPECT_EQ(Selected(), "1 2 4");
    ShiftClickRow(0);
    EXPECT_EQ(Selected(), "0 1");
}

TEST_F(ShiftSelect, APlainClickMovesTheAnchor)
{
    ClickRow(1);
    ShiftClickRow(4);
    ClickRow(3);
    EXPECT_EQ(Handler().GetAnchor(), 3);
    ShiftClickRow(2);
    EXPECT_EQ(Selected(), "2 3");
}

TEST_F(ShiftSelect, TheLastRowIsAnAnchorAndOneBehindItIsNone)
{
    View().SetCount(4);
    Selection().SetCurrent(1);
    Handler().SetAnchor(3);
    ShiftClickRow(2);
    EXPECT_EQ(Selected(), "2 3");
    Selection().SetCurrent(1);
    Handler().SetAnchor(4);
    ShiftClickRow(2);
    EXPECT_EQ(Selected(), "1 2");
    EXPECT_EQ(Handler().GetAnchor(), 1);
}

TEST_F(ShiftSelect, TheFirstRowIsAnAnchor)
{
    Selection().SetCurrent(3);
    Handler().SetAnchor(0);
    ShiftClickRow(2);
    EXPECT_EQ(Selected(), "0 1 2");
    EXPECT_EQ(Handler().GetAnchor(), 0);
}

}  // namespace
