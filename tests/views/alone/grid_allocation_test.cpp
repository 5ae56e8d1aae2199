// What a grid takes of memory while it is scrolled, selected in and painted: nothing, once each of these has been done.

#include "tests/support/allocation.h"
#include "vexel/core/base_control.h"
#include "vexel/headers/simple_header.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/testing/test_kit.h"
#include "vexel/views/grid_viewer.h"

#include <gtest/gtest.h>

#include <charconv>
#include <limits>

namespace vexel::test
{

namespace
{

class CNumbers : public CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>
{
public:
    explicit CNumbers(CVisualElement* parent) : CGridViewer(parent, {0, 0}, alClient)
    {
        GetRowViewModel()->SetCount(2000000000);
        GetColumnViewModel()->SetDefaultItemSize(40);
        GetColumnViewModel()->SetCount(1000);
    }

    long m_Cells = 0;  // drawn
    bool m_Handled = false;

protected:
    void DrawCell(IPainter* painter, int row, int, int column, int, int state, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType dirty) override
    {
        if (dirty == IDirtyItemSet::dirtyOther)
            return;
        ++m_Cells;
        painter->SetBrush({color_table[state & isSelected ? 10 : 12], brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
        char text[32];
        char* const end = std::to_chars(text, text + sizeof text, row * 1000LL + column).ptr;
        painter->DrawString(rect, text, IPainter::AlignVCenter, static_cast<int>(end - text));
    }
};

// In a window of 300 x 200. Without bars: this backend keeps lists of what native controls cover.
struct SGrid
{
    SGrid()
    {
        box.GetVertElement().SetPolicy(CScrollElement::spNever);
        box.GetHorzElement().SetPolicy(CScrollElement::spNever);
        box.ConnectElement(&grid, CScrollBox::ctBoth, true);
        header.SetViewModel(grid.GetColumnViewModel());
        box.ConnectElement(&header, CScrollBox::ctHorizontal, false);
        for (CVisualElement* const element : {static_cast<CVisualElement*>(&box), static_cast<CVisualElement*>(&grid)})
            element->SetDynamic(false);
        header.SetDynamic(false);
        Paint();
        grid.SetFocus(true);
        Paint();
    }
    void Paint()
    {
        while (host.Window().RunFrame())
            ;
    }

    CTestHost host{300, 200};
    CScrollBox box{host.Root(), {0, 0}, alClient};
    CSimpleHeader header{&box, {0, 16}, alTop};
    CNumbers grid{&box};
};

// What a frame of this backend takes by itself, for its list of native controls.
constexpr long g_Frame = 2;

// What `act` takes with the paints that follow from it, when it has been done twice before.
template <class Act> long AllocationsOf(SGrid& table, Act const& act)
{
    auto const all = [&] {
        act();
        table.Paint();
    };
    all();
    all();
    long const cells = table.grid.m_Cells;
    long const count = CountAllocations(all);
    EXPECT_GT(table.grid.m_Cells, cells) << "something is painted";
    return count - g_Frame;
}

}  // namespace

TEST(GridAllocation, AStepOfTheScrollTakesNoMemory)
{
    SGrid table;
    IScrollModel* const rows = table.box.GetWrappedVertScroll();
    EXPECT_EQ(AllocationsOf(table, [&] { rows->SetStart(rows->GetStart() + 1); }), 0);
    EXPECT_EQ(rows->GetStart(), 3);
    EXPECT_EQ(AllocationsOf(table, [&] { rows->SetStart(rows->GetStart() - 1); }), 0);
    EXPECT_EQ(rows->GetStart(), 0);
}

TEST(GridAllocation, AStepOfTheColumnsTakesNoMemory)
{
    SGrid table;
    IScrollModel* const columns = table.box.GetWrappedHorzScroll();
    EXPECT_EQ(AllocationsOf(table, [&] { columns->SetStart(columns->GetStart() + 1); }), 0);
    EXPECT_EQ(columns->GetStart(), 3);
}

TEST(GridAllocation, AJumpTakesNoMemory)
{
    SGrid table;
    IScrollModel* const rows = table.box.GetWrappedVertScroll();
    EXPECT_EQ(AllocationsOf(table, [&] { rows->SetStart(rows->GetStart() < 1 ? 1e9 : 0); }), 0);
    EXPECT_EQ(rows->GetStart(), 1e9);
}

TEST(GridAllocation, APaintOfAllCellsTakesNoMemory)
{
    SGrid table;
    EXPECT_EQ(AllocationsOf(table,
                            [&] {
                                table.grid.GetRowViewModel()->AddDirtyItems(0, std::numeric_limits<int>::max());
                                table.grid.Update(utElement);
                            }),
              0);
}

// A selection of one row is one node, but each row's node is made anew.
TEST(GridAllocation, AKeyTakesMemoryForTheSelectionAlone)
{
    SGrid table;
    auto const down = [&] { table.grid.GetRowHandler().HandleKeyDown(0, vkDown, &table.grid.m_Handled); };
    long const count = AllocationsOf(table, down);
    EXPECT_LE(count, 4) << "whatever the number of cells";
    EXPECT_EQ(table.grid.GetRowSelectionModel()->GetCurrent(), 2);
}

}  // namespace vexel::test
