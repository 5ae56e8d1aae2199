// A bar over a model that runs backwards: the drawing is turned round, and nothing else. Whatever the pointer does is
// counted from where the strip begins, so that the section under the pointer is not the one that is drawn there.

#include "tests/charts/bar_bench.h"
#include "vexel/platform/palette.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// Sections 0 to 50, 50 to 110, 110 to 150; the strip ends at 199, from where it is drawn: 149 to 199, 89 to 149, 49 to 89.
class ReversedBar : public CBarOnSide
{
protected:
    ReversedBar()
    {
        m_Steps.m_From = 3;
        m_Steps.m_To = 0;
        m_Bar.SetStyle(CBar::bsResizeSections);
        HearAll(m_Log);
    }
    // What is drawn at a place along, beside texts and frames.
    std::string Ground(int along)
    {
        Draw();
        point<int> const where = At(along, 4);
        _color const pixel = m_Host.PixelAt(m_Bar.GetPos().left + where.x, m_Bar.GetPos().top + where.y);
        if (pixel == GetSysPalette()->GetColor(ISysPalette::scHighlight))
            return "selected";
        return pixel == color_table[3] ? "plain" : Describe(pixel);
    }
    // The places from 0 to 199 in steps of 10 where the highlight is.
    std::string Highlight()
    {
        std::string text;
        for (int along = 5; along < 199; along += 10)
            if (Ground(along) == "selected")
                text += std::to_string(along) + " ";
        return text;
    }
    int TargetAt(int along)
    {
        DragInfo info;
        point<int> const where = At(along);
        EXPECT_TRUE(m_Bar.HandleDragOver(&m_Bar, where.x, where.y, info));
        return m_Bar.GetDropTarget();
    }

    CSignalLog m_Log;
};
INSTANTIATE_TEST_SUITE_P(AtEdge, ReversedBar, testing::Values(alTop, alBottom, alLeft, alRight));

}  // namespace

TEST_P(ReversedBar, IsDrawnFromTheStripsEnd)
{
    EXPECT_EQ(Highlight(), "");
    EXPECT_EQ(Ground(195), "plain");
    m_Bar.SetSelectedSections({0});
    EXPECT_EQ(Highlight(), "155 165 175 185 195 ");
    EXPECT_EQ(Ground(150), "selected");
    EXPECT_EQ(Ground(147), "plain");
    m_Bar.SetSelectedSections({1});
    EXPECT_EQ(Highlight(), "95 105 115 125 135 145 ");
    m_Bar.SetSelectedSections({2});
    EXPECT_EQ(Highlight(), "55 65 75 85 ");
    m_Steps.m_From = 0;  // and forward again
    m_Steps.m_To = 3;
    EXPECT_EQ(Highlight(), "115 125 135 145 ");
}

TEST_P(ReversedBar, HasItsSectionsWhereTheyWouldBeForward)
{
    EXPECT_EQ(m_Bar.GetSectionRect(0), SpanDouble(0, 50));
    EXPECT_EQ(m_Bar.GetSectionRect(1), SpanDouble(50, 110));
    EXPECT_EQ(m_Bar.GetSectionRect(2), SpanDouble(110, 150));
}

TEST_P(ReversedBar, IsHitFromTheStripsBeginning)
{
    EXPECT_EQ(Hit(0), "1: 0 0 0 first");
    EXPECT_EQ(Hit(26), "1: 0 0 0");
    EXPECT_EQ(Hit(48), "2: 0 1 0");
    EXPECT_EQ(Hit(50), "2: 0 1 1 first");
    EXPECT_EQ(Hit(120), "1: 2 2 2 first");
    EXPECT_EQ(Hit(151), "4: 3 3 3");
    EXPECT_EQ(Hit(190), "4: 3 3 3");  // where section 0 is drawn
}

TEST_P(ReversedBar, SelectsTheSectionThatIsHitAndShowsItElsewhere)
{
    KeepFromDragging();
    Click(10);
    EXPECT_EQ(Selected(), "0");
    EXPECT_EQ(Highlight(), "155 165 175 185 195 ");
    Click(120);
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(Highlight(), "55 65 75 85 ");
    Click(190);  // behind the strip, though section 0 is drawn there
    EXPECT_EQ(Selected(), "2");
}

TEST_P(ReversedBar, IsResizedFromTheStripsBeginning)
{
    KeepFromDragging();
    Press(48);
    Move(58);
    Release();
    EXPECT_EQ(m_Log.Text(), "resizeAllowed(0, true) resizing(0, 15) resized(0, 50)");
}

TEST_P(ReversedBar, IsDraggedAndDroppedFromTheStripsBeginning)
{
    DragInfo info;
    point<int> const where = At(70);
    ASSERT_TRUE(m_Bar.HandleStartDragging(where.x, where.y, info));
    EXPECT_EQ(m_Bar.GetDragSection(), 1);
    rectangle<int> expected = Span(50, 110);
    expected.Offset(m_Bar.GetPos().left, m_Bar.GetPos().top);
    EXPECT_EQ(info.m_Rect, expected);
    EXPECT_EQ(TargetAt(10), 0);
    EXPECT_EQ(TargetAt(26), 1);
    EXPECT_EQ(TargetAt(81), 2);
    EXPECT_EQ(TargetAt(190), 3);
    EXPECT_EQ(TargetAt(20), 0);
    m_Bar.HandleDropDone(&m_Bar, At(20).x, At(20).y, info);
    m_Bar.HandleDragFinished(&m_Bar, info);
    EXPECT_EQ(m_Log.Text(), "dropped(1, 0)");
}

TEST_P(ReversedBar, IsScrolledFromTheStripsBeginning)
{
    m_Steps.m_Start = 1;
    m_Bar.SetSelectedSections({1});
    EXPECT_EQ(Highlight(), "145 155 165 175 185 195 ");  // 139 to 199
    EXPECT_EQ(Hit(0), "2: 0 1 1 first");
    EXPECT_EQ(Hit(30), "1: 1 1 1 first");
    EXPECT_EQ(Hit(101), "4: 3 3 3");
}

TEST_P(ReversedBar, BesideANarrowPaneIsTurnedWithinIt)
{
    NarrowPane();  // 30 to 169
    m_Bar.SetSelectedSections({0});
    EXPECT_EQ(Highlight(), "125 135 145 155 165 ");  // 119 to 169
    EXPECT_EQ(Hit(29), "3: -1 -1 -1");
    EXPECT_EQ(Hit(30), "1: 0 0 0 first");
    EXPECT_EQ(Hit(78), "2: 0 1 0");
    EXPECT_EQ(Hit(169), "1: 2 2 2");
    EXPECT_EQ(Hit(170), "4: -1 -1 -1");
}

TEST_P(ReversedBar, OfEqualStepsIsTheSame)
{
    m_Steps.m_Fixed = true;
    m_Steps.m_Measure = {0.025, 1};  // 40 pixels a step
    m_Steps.m_Steps = {1, 1, 1};
    m_Bar.SetSelectedSections({1});
    EXPECT_EQ(m_Bar.GetSectionRect(1), SpanDouble(40, 80));
    EXPECT_EQ(Highlight(), "125 135 145 155 ");  // 119 to 159
    EXPECT_EQ(Hit(20), "1: 0 0 0 first");
    EXPECT_EQ(Hit(38), "2: 0 1 0");
    EXPECT_EQ(Hit(42), "2: 0 1 1 first");
}
