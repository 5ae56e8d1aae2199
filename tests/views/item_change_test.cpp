// The single steps by which a selection follows the current item, and what they leave alone.

#include "tests/views/viewer_bench.h"

using namespace viewer_test;

namespace
{

class ItemChanges : public CRowsBench<IDiscreteItemViewModel>
{
protected:
    ItemChanges()
    {
        m_Log.Add(Selection().m_SigChanged, "changed");
        m_Log.Add(Selection().m_SigSelectionChanged, "selected");
    }

    CSignalLog m_Log;
};

TEST_F(ItemChanges, OfAnItemToItselfIsNone)
{
    Selection().SelectItem(1, true);
    m_Log.Clear();
    for (int const keys : {0, static_cast<int>(ksShift), static_cast<int>(ksControl)})
    {
        Handler().ProcessItemChangeFree(2, 2, keys, &Selection());
        Handler().ProcessItemChangeOneItem(2, 2, keys, &Selection());
        Handler().ProcessItemChange(1, 1, keys, &Selection());
    }
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Selected(), "1");
    EXPECT_EQ(Handler().GetAnchor(), -1);
}

TEST_F(ItemChanges, WithoutASelectionIsNone)
{
    for (int const keys : {0, static_cast<int>(ksShift), static_cast<int>(ksControl)})
    {
        Handler().ProcessItemChangeFree(1, 2, keys, nullptr);
        Handler().ProcessItemChangeOneItem(1, 2, keys, nullptr);
        Handler().ProcessItemChange(1, 2, keys, nullptr);
    }
    Handler().Reselect(2, nullptr);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Handler().GetAnchor(), -1);
}

// Says that something is selected and doesn't find it.
class CBlindSelection : public CDefaultSelectionModel
{
public:
    bool GetNextSelectedItem(int&) const override { return false; }
};

TEST_F(ItemChanges, ClearsTheSelectionWhereNothingIsFoundToDrop)
{
    for (bool const free : {false, true})
    {
        CBlindSelection blind;
        blind.SelectItem(5, true);
        if (free)
            Handler().ProcessItemChangeFree(1, 2, 0, &blind);
        else
            Handler().ProcessItemChangeOneItem(1, 2, 0, &blind);
        EXPECT_FALSE(blind.IsItemSelected(5));
        EXPECT_TRUE(blind.IsItemSelected(2));
    }
}

TEST_F(ItemChanges, AFirstRowThatIsSelectedAloneAndCurrentBecomesTheAnchor)
{
    Click(25);
    EXPECT_EQ(Handler().GetAnchor(), 2);
    Click(5);
    EXPECT_EQ(Handler().GetAnchor(), 0);
}

TEST_F(ItemChanges, ControlAndASelectAllAnew)
{
    GoTo(2);
    m_Log.Clear();
    Press('A', ksControl);
    EXPECT_EQ(m_Log.Take(), "changed() changed() selected()");
    View().SetCount(1);
    Selection().ClearSelection();
    Press('A', ksControl);
    EXPECT_EQ(Selected(), "0");
}

TEST_F(ItemChanges, SpaceTogglesInAListOfOneItem)
{
    Handler().SetSelectionType(CEventHandlerBase::stOneItem);
    Selection().SetCurrent(3);
    Press(vkSpace);
    EXPECT_EQ(Selected(), "3");
    Press(vkSpace);
    EXPECT_EQ(Selected(), "");
}

// A shift-click on `row` while the current row and the anchor are where they never came by clicks.
TEST_F(ItemChanges, AShiftClickRepaintsASelectionThatOneEndOfTheRangeWasNotIn)
{
    struct SCase
    {
        int first, last;  // of the run that is selected
        int current, anchor, row;
        char const* selected;
        char const* painted;
    };
    for (SCase const& each :
         {SCase{3, 5, 3, 1, 4, "1 2 3 4", "5 state 0 item"}, SCase{3, 5, 1, 3, 2, "2 3", "5 state 0 item"},
          SCase{5, 5, 3, 1, 2, "1 2", "5 state 0 item"}})
    {
        Selection().ClearSelection();
        Selection().SetCurrent(each.current);
        if (each.first == each.last)
            Selection().SelectItem(each.first, true);
        else
            Selection().SetSelectionRange(each.first, each.last);
        Handler().SetAnchor(each.anchor);
        Settle();
        Click(each.row * 10 + 5, ksShift);
        EXPECT_EQ(Selected(), each.selected);
        std::string const painted = Paint();
        EXPECT_NE(painted.find(each.painted), std::string::npos) << painted;
    }
}

TEST_F(ItemChanges, ASlotThatGivesAnotherSelectionLeavesTheCurrentRowsOfBoth)
{
    CDefaultSelectionModel other;
    Selection().SetCurrent(1);
    ISelectionModel& former = Selection();
    m_Rows->m_OnCurrent = [&](int&) { m_Rows->SetRowSelectionModel(&other); };
    Handler().SetCurrentItem(4);
    EXPECT_EQ(former.GetCurrent(), 1);
    EXPECT_EQ(other.GetCurrent(), -1);
    m_Rows->SetRowSelectionModel(nullptr);
}

TEST_F(ItemChanges, ASlotMayTakeTheViewerAwayInAnyStep)
{
    m_Rows->m_OnCurrent = [&](int&) { Handler().SetViewer(nullptr); };
    Click(25);
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(Current(), 2);
    m_Rows->m_OnCurrent = nullptr;
    Press(vkPageDown);
    Press(vkEnd, ksShift);
    EXPECT_EQ(Current(), 9);
    m_Host.Mouse().Press(*m_Rows, 5, 5);
    m_Host.Mouse().Move(*m_Rows, 5, 70);
    m_Host.Mouse().Release();
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    Handler().SetNotifySelection(true);
    Handler().SetViewer(m_Rows);
    auto const slot = Listen(View().m_SigChanged, [&] { Handler().SetViewer(nullptr); });
    Press(vkHome);
    EXPECT_EQ(View().GetStartItem(), 0);
    EXPECT_EQ(Current(), 0);
    m_Rows->SetFocus(false);
    m_Host.Paint();
}

}  // namespace
