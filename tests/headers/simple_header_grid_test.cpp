// A header over a grid in a scroll box: it goes along with the columns, and the columns with it.

#include "tests/headers/header_grid.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/views/discrete_item_view_model.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// 220 x 100: a header of 20 pixels over ten columns of 50, which scroll whole; cells are 20 high.
class SimpleHeaderOverGrid : public testing::Test
{
protected:
    SimpleHeaderOverGrid()
    {
        NameElement(m_Header, "header");
        m_Grid.SetAutoRowHeight(false);
        m_Grid.GetRowViewModel()->SetDefaultItemSize(20);
        m_Grid.GetRowViewModel()->SetCount(2);
        m_Grid.SetColumnViewModel(&m_Columns);
        m_Columns.SetDefaultItemSize(50);
        m_Columns.SetCount(10);
        m_Header.SetModel(&m_Sections);
        m_Header.SetViewModel(&m_Columns);
        m_Sections.ConnectHeader(&m_Header);
        m_Box.ConnectElement(&m_Grid, CScrollBox::ctBoth, true);
        m_Box.ConnectElement(&m_Header, CScrollBox::ctHorizontal, false);
        m_Host.Paint();
    }
    ~SimpleHeaderOverGrid() override { m_Grid.SetColumnViewModel(nullptr); }

    std::string Captions()
    {
        m_Header.Update(utElement);
        std::string text;
        for (std::string const& call : m_Host.Paint().Of("header").Calls())
            if (call.starts_with("DrawStringEx"))
                text += call.substr(14, 1);
        return text;
    }

    CSections m_Sections{{1, 1, 1, 1, 1, 1, 1, 1, 1, 1}};
    CDefaultDiscreteItemViewModel m_Columns;
    CTestHost m_Host{220, 100};
    CScrollBox& m_Box = *new CScrollBox(m_Host.Root(), {0, 0}, alClient);
    CSimpleHeader& m_Header = *new CSimpleHeader(&m_Box, {20, 20}, alTop);
    CSectionGrid& m_Grid = *new CSectionGrid(&m_Box, &m_Sections);
};

}  // namespace

TEST_F(SimpleHeaderOverGrid, TheHeaderScrollsWithTheColumns)
{
    EXPECT_EQ(Captions(), "ABCDE");
    m_Host.Paint();
    m_Box.GetWrappedHorzScroll()->SetStart(3);
    EXPECT_EQ(m_Columns.GetStartItem(), 3);
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(Captions(), "DEFGH");
    EXPECT_EQ(m_Header.HitTest({10, 10}).m_Section, 3);
    EXPECT_EQ(m_Header.GetSectionRect(4), (rectangle<int>{50, 0, 99, 20}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(SimpleHeaderOverGrid, ADividerMovesTheColumns)
{
    m_Host.Mouse().Drag(m_Header, 98, 10, 130, 10);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Columns.GetItemSize(1), 80);
    EXPECT_EQ(m_Header.GetSectionRect(2), (rectangle<int>{130, 0, 179, 20}));
    m_Host.Paint();
    CLegend legend;
    legend.Set('2', color_table[15]);
    EXPECT_EQ(m_Host.PixelText({128, 30, 132, 31}, legend), "cc22\n");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(SimpleHeaderOverGrid, ADroppedSectionTakesItsColumnAlong)
{
    m_Columns.SetItemSize(0, 70);
    m_Host.Paint();
    m_Host.Mouse().Drag(m_Header, 10, 10, 150, 10);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Sections.Order(), "BCADEFGHIJ");
    EXPECT_EQ(m_Columns.GetItemSize(0), 50);
    EXPECT_EQ(m_Columns.GetItemSize(2), 70);
    EXPECT_EQ(Captions(), "ADEF");  // the view goes with the column that it began with
}

// By whole columns, too.
TEST_F(SimpleHeaderOverGrid, ADragBehindTheHeaderScrollsTheColumns)
{
    m_Host.Mouse().Drag(m_Header, 10, 10, 225, 10);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Columns.GetStartItem(), 6);  // eight, but for the last view full, which is four columns
    m_Host.Mouse().Move(m_Header, 10, 10);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Sections.Order(), "BCDEFGAHIJ");
}

TEST_F(SimpleHeaderOverGrid, TheLastColumnIsStretchedByItsModel)
{
    m_Columns.SetCount(3);
    m_Columns.SetStretchLastItem(true);
    m_Box.RefreshScroll();
    m_Host.Paint();
    EXPECT_EQ(m_Header.GetSectionRect(2).right, m_Grid.GetPos().right);
    EXPECT_EQ(m_Header.HitTest({m_Grid.GetPos().right, 10}).m_Area, CSimpleHeader::htSection);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(SimpleHeaderOverGrid, AHeaderWithoutAViewModelTakesTheModelsWidths)
{
    m_Header.SetViewModel(nullptr);
    EXPECT_EQ(m_Header.GetSectionRect(3), (rectangle<int>{3, 0, 3, 20}));
    m_Header.SetModel(nullptr);
    EXPECT_EQ(m_Header.GetSectionRect(3), rectangle<int>());
    m_Header.SetViewModel(&m_Columns);
    EXPECT_EQ(m_Header.GetSectionRect(3), (rectangle<int>{150, 0, 199, 20}));
}
