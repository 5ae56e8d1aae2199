// Which pixels a list moves when its model scrolls.

#include "tests/views/viewer_bench.h"

using namespace viewer_test;

namespace
{

// Each row has a colour of its own.
class CColouredRows : public CRowViewer<IDiscreteItemViewModel>
{
public:
    using CRowViewer::CRowViewer;
    void DrawRow(IPainter* painter, int row, int, int, rectangle<double> const& rect, IDirtyItemSet::DirtyType) override
    {
        painter->SetBrush({color_table[2 + row], brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    }
};

// Ten rows of 10 pixels in a list that lies 10 pixels below the window's top and is 50 high.
class MovedPixels : public testing::Test
{
protected:
    MovedPixels()
    {
        m_Rows->SetPos({0, 10, 99, 60}, false);
        m_Rows->SetAutoRowHeight(false);
        m_Rows->GetRowViewModel()->SetDefaultItemSize(10);
        m_Rows->GetRowViewModel()->SetCount(10);
    }
    // The rows at every fifth pixel from 2 to 67 of the window, of those that show at first; "-" for none.
    std::string Column()
    {
        std::string text;
        for (int y = 2; y < 70; y += 5)
        {
            char letter = '-';
            for (int row = 0; row <= 5; ++row)
                if (m_Host.PixelAt(50, y) == vexelbase::_color(color_table[2 + row]))
                    letter = static_cast<char>('0' + row);
            text += letter;
        }
        return text;
    }
    std::string After(int position, int delta)
    {
        m_Host.FullPaint();
        EXPECT_EQ(Column(), "--0011223344--");
        EXPECT_TRUE(m_Rows->GetRowHandler().ScrollItems(position, delta));
        return Column();
    }

    CTestHost m_Host{100, 71};
    CColouredRows* m_Rows = new CColouredRows(m_Host.Root(), {10, 10}, alNone);
};

TEST_F(MovedPixels, GoUpOrDownWithAScroll)
{
    EXPECT_EQ(After(0, -10), "--1122334444--");
    EXPECT_EQ(After(0, -25), "--2334423344--");
    EXPECT_EQ(After(0, 10), "--0000112233--");
    EXPECT_EQ(After(0, 25), "--0011200112--");
}

TEST_F(MovedPixels, AreThoseBehindARowThatGrows)
{
    EXPECT_EQ(After(20, 10), "--0011222233--");
    EXPECT_EQ(After(10, 20), "--0011221122--");
}

TEST_F(MovedPixels, AreThoseBehindARowThatShrinks)
{
    EXPECT_EQ(After(20, -10), "--0022334444--");
    EXPECT_EQ(After(20, -20), "--2233443344--");
}

TEST_F(MovedPixels, StayInTheListWhereARowShrinksByMoreThanShows)
{
    EXPECT_EQ(After(5, -10), "--1122334444--");
    EXPECT_EQ(After(10, -25), "--2334423344--");
}

TEST_F(MovedPixels, AreNoneWhereWhatFollowsLeavesTheView)
{
    EXPECT_EQ(After(49, 10), "--0011223344--");
    EXPECT_EQ(After(45, 30), "--0011223344--");
}

}  // namespace
