// A multi-level header over a grid in a scroll box: the grid reads its columns from the header, and both scroll together.

#include "tests/headers/tree_bench.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/grid_viewer.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// Writes down the cells of the first row: "0 0 49; 1 50 99; ", column and span.
template <class RowModel> class CSpans : public CGridViewer<RowModel, IContinuousItemViewModel>
{
public:
    explicit CSpans(CVisualElement* parent) : CGridViewer<RowModel, IContinuousItemViewModel>(parent, {0, 0}, alClient)
    {}
    std::string m_Text;
    void DrawCell(IPainter*, int row, int, int column, int skip, int, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType) override
    {
        if (row == 0)
            m_Text += std::to_string(column) + " " + std::to_string(static_cast<int>(rect.left) - skip) + " " +
                      std::to_string(static_cast<int>(rect.right)) + "; ";
    }
};

// 220 x 100: a header of 40 pixels over columns of 50, 60, 70 and 80 in two groups, 260 in all.
template <class RowModel> class HeaderOverGrid : public testing::Test
{
protected:
    HeaderOverGrid()
    {
        m_Header.SetModel(&m_Tree);
        m_Grid.SetColumnViewModel(&m_Header);
        m_Grid.GetRowViewModel()->SetCount(2);
        m_Box.ConnectElement(&m_Grid, CScrollBox::ctBoth, true);
        m_Box.ConnectElement(&m_Header, CScrollBox::ctHorizontal, false);
        m_Host.Paint();
        m_Grid.m_Text.clear();
    }
    std::string Cells()
    {
        m_Grid.m_Text.clear();
        m_Host.FullPaint();
        return m_Grid.m_Text;
    }

    CItemTree m_Tree{"A(a:50 b:60) B(c:70 d:80)"};
    CTestHost m_Host{220, 100};
    CScrollBox& m_Box = *new CScrollBox(m_Host.Root(), {0, 0}, alClient);
    CHeader& m_Header = *new CHeader(&m_Box, {40, 40}, alTop);
    CSpans<RowModel>& m_Grid = *new CSpans<RowModel>(&m_Box);
};
using RowModels = testing::Types<IDiscreteItemViewModel, IContinuousItemViewModel>;
TYPED_TEST_SUITE(HeaderOverGrid, RowModels);

}  // namespace

TYPED_TEST(HeaderOverGrid, TheGridReadsItsColumnsFromTheHeader)
{
    // The last column ends with the view; the stretch comes from the header.
    EXPECT_EQ(this->Cells(), "0 0 49; 1 50 109; 2 110 179; 3 180 259; ");
    this->m_Header.ExpandItem(&this->m_Tree["A"], false);  // 50 wide: 200 in all
    EXPECT_EQ(this->Cells(), "0 0 49; 1 50 119; 2 120 219; ");
}

TYPED_TEST(HeaderOverGrid, BothScrollTogether)
{
    ASSERT_EQ(this->m_Header.GetViewSize(), this->m_Grid.GetBounds().right);
    this->m_Box.GetWrappedHorzScroll()->SetStart(30);
    EXPECT_EQ(this->m_Header.GetOffset(), 30);
    EXPECT_EQ(this->m_Header.GetItemRect(&this->m_Tree["b"]), (rectangle<double>{20, 20, 79, 40}));
    EXPECT_EQ(this->Cells(), "0 -30 19; 1 20 79; 2 80 149; 3 150 229; ");
}

TYPED_TEST(HeaderOverGrid, AGripMovesTheCells)
{
    this->m_Host.Mouse().Drag(this->m_Header, 48, 30, 70, 30);
    this->m_Host.Mouse().Release();
    EXPECT_EQ(this->m_Header.GetItemSize(0), 70);
    EXPECT_EQ(this->Cells(), "0 0 69; 1 70 129; 2 130 199; 3 200 279; ");
}

TYPED_TEST(HeaderOverGrid, AHeaderThatDiesLeavesTheGridItsOwnColumns)
{
    delete &this->m_Header;
    EXPECT_EQ(this->m_Grid.GetColumnViewModel()->GetCount(), 0);
    EXPECT_EQ(this->Cells(), "");
}
