// An element along one edge of a scrolled view: which model it follows, how long it is, and how it paints in its units.

#include "tests/scroll/scroll_support.h"
#include "vexel/core/base_control.h"
#include "vexel/scroll/scrollable_element_ex.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

// A window of 200 x 100 with a pane at (30, 30, 130, 80). Both models: 10 to 110, at 25; 2 units are 3 pixels.
class ScrollableElementEx : public testing::Test
{
protected:
    ScrollableElementEx()
    {
        m_Pane->SetPos({30, 30, 130, 80}, false);
        m_Horz.m_Measure = m_Vert.m_Measure = {2.0, 3};
    }
    // Stands at its edge, 20 wide or high.
    CScrollableElementEx* Make(Alignment alignment)
    {
        auto* const element = new CScrollableElementEx(m_Host.Root(), {20, 20}, alignment);
        element->SetCentralPane(m_Pane);
        element->SetHorzScroll(&m_Horz);
        element->SetVertScroll(&m_Vert);
        m_Host.Paint();
        return element;
    }
    std::string Horizontal(CScrollableElementEx* element)
    {
        IPainter::CoordInfo info;
        element->FillHorizontal(&info, &m_Horz);
        return Text(info);
    }
    std::string Vertical(CScrollableElementEx* element)
    {
        IPainter::CoordInfo info;
        element->FillVertical(&info, &m_Vert);
        return Text(info);
    }

    CTestHost m_Host{200, 100};
    CVisualElement* m_Pane = new CVisualElement(m_Host.Root(), {10, 10}, alNone);
    CTestModel m_Horz{10, 110, 25};
    CTestModel m_Vert{10, 110, 25};
};

TEST_F(ScrollableElementEx, FollowsTheModelOfItsEdge)
{
    CScrollableElementEx* const element = Make(alLeft);
    EXPECT_EQ(element->GetScrollModel(), &m_Vert);
    element->SetAlignment(alRight);
    EXPECT_EQ(element->GetScrollModel(), &m_Vert);
    element->SetAlignment(alTop);
    EXPECT_EQ(element->GetScrollModel(), &m_Horz);
    element->SetAlignment(alBottom);
    EXPECT_EQ(element->GetScrollModel(), &m_Horz);
    element->SetAlignment(alNone);
    EXPECT_EQ(element->GetScrollModel(), nullptr);
    element->SetAlignment(alClient);
    EXPECT_EQ(element->GetScrollModel(), nullptr);
}

TEST_F(ScrollableElementEx, ItsAlongIsThatOfItsEdgeFromTheStart)
{
    for (Alignment const alignment : {alLeft, alRight})
        EXPECT_EQ(Make(alignment)->GetAlong(3, 4), 4.0) << alignment;
    for (Alignment const alignment : {alTop, alBottom})
        EXPECT_EQ(Make(alignment)->GetAlong(3, 4), 3.0) << alignment;
    CScrollableElementEx* const turned = Make(alTop);
    turned->SetAlignment(alLeft);
    EXPECT_EQ(turned->GetAlignment(), alLeft);
    EXPECT_EQ(turned->GetAlong(3, 4), 4.0);
    m_Host.Paint();
    turned->SetAlignment(alTop);
    EXPECT_EQ(turned->GetAlong(3, 4), 3.0);
    EXPECT_EQ(turned->GetAlignment(), alTop);
}

TEST_F(ScrollableElementEx, IsExactlyAsLongAsThePaneThatItServes)
{
    EXPECT_EQ(Make(alTop)->GetAxisRect(nullptr), (rectangle<double>{30, 0, 130, 20}));
    EXPECT_EQ(Make(alBottom)->GetAxisRect(nullptr), (rectangle<double>{30, 79, 130, 99}));
    // Between these: from 21 to 78.
    EXPECT_EQ(Make(alLeft)->GetAxisRect(nullptr), (rectangle<double>{0, 30, 20, 78}));
    m_Pane->SetPos({30, 30, 130, 60}, false);
    EXPECT_EQ(Make(alRight)->GetAxisRect(nullptr), (rectangle<double>{179, 30, 199, 60}));
}

TEST_F(ScrollableElementEx, ItsAxisIsToldInTheUnitsOfAPainter)
{
    CScrollableElementEx* const element = Make(alTop);
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssMeasure);
    IPainter::CoordInfo info;
    info.m_LogicalOrigin = {100, 0};
    info.m_LogicalExtent = {50, 100};
    info.m_DeviceOrigin = {0, 10};
    info.m_DeviceExtent = {100, 100};
    painter->SetCoordSystem(IPainter::mmCustom, &info);
    EXPECT_EQ(element->GetAxisRect(painter), (rectangle<double>{115, -10, 165, 10}));
    painter->EndPaint();
}

TEST_F(ScrollableElementEx, WithoutAPaneItsAxisHasNoLength)
{
    CScrollableElementEx* const element = Make(alTop);
    element->SetCentralPane(nullptr);
    EXPECT_FALSE(element->GetAxisRect(nullptr).Width() > 0);
    m_Horz.m_Start = 25;
    static_cast<void>(Horizontal(element));
}

// Mapping ----------------------------------------------------------------------------------------------------------------

TEST_F(ScrollableElementEx, AtTheTopTheAcrossAxisGrowsUpwards)
{
    EXPECT_EQ(Horizontal(Make(alTop)), "25 0, 100 20 -> 30 20, 150 -20");
}

TEST_F(ScrollableElementEx, AtTheBottomTheAcrossAxisGrowsDownwards)
{
    EXPECT_EQ(Horizontal(Make(alBottom)), "25 0, 100 20 -> 30 79, 150 20");
}

TEST_F(ScrollableElementEx, AtTheLeftTheAcrossAxisGrowsToTheLeft)
{
    EXPECT_EQ(Vertical(Make(alLeft)), "0 25, 20 100 -> 20 30, -20 150");
}

TEST_F(ScrollableElementEx, AtTheRightTheAcrossAxisGrowsToTheRight)
{
    EXPECT_EQ(Vertical(Make(alRight)), "0 25, 20 100 -> 179 30, 20 150");
}

TEST_F(ScrollableElementEx, AReversedModelRunsBackFromTheFarEdge)
{
    std::swap(m_Horz.m_From, m_Horz.m_To);
    std::swap(m_Vert.m_From, m_Vert.m_To);
    EXPECT_EQ(Horizontal(Make(alTop)), "25 0, 100 20 -> 130 20, -150 -20");
    // Between top and bottom: 30 to 78.
    EXPECT_EQ(Horizontal(Make(alBottom)), "25 0, 100 20 -> 130 79, -150 20");
    EXPECT_EQ(Vertical(Make(alLeft)), "0 25, 20 100 -> 20 78, -20 -150");
}

TEST_F(ScrollableElementEx, WithoutAModelNothingIsFilledIn)
{
    CScrollableElementEx* const element = Make(alTop);
    IPainter::CoordInfo info;
    info.m_LogicalOrigin = {1, 2};
    IPainter::CoordInfo const before = info;
    element->FillHorizontal(&info, nullptr);
    EXPECT_EQ(info, before);
    element->FillVertical(&info, nullptr);
    EXPECT_EQ(info, before);
}

TEST_F(ScrollableElementEx, TheDeviceExtentIsTruncated)
{
    m_Horz.m_Measure = {3.0, 2};  // 200 / 3
    EXPECT_EQ(Horizontal(Make(alBottom)), "25 0, 100 20 -> 30 79, 66 20");
}

TEST_F(ScrollableElementEx, ARangeTooLongForTheDeviceKeepsItsScale)
{
    m_Horz.m_To = 1e18;
    m_Vert.m_To = -1e18;
    EXPECT_EQ(Horizontal(Make(alBottom)), "25 0, 2 20 -> 30 79, 3 20");
    EXPECT_EQ(Vertical(Make(alRight)), "0 25, 20 2 -> 179 78, 20 -3");
    m_Horz.m_To = 10;  // no length at all
    EXPECT_EQ(Horizontal(Make(alBottom)), "25 0, 0 20 -> 30 58, 0 20");
}

TEST_F(ScrollableElementEx, InstallsItsMappingAndLeavesTheModeOfThePainter)
{
    CScrollableElementEx* const top = Make(alTop);
    CScrollableElementEx* const left = Make(alLeft);
    CScrollableElementEx* const client = Make(alClient);
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssMeasure);
    IPainter::CoordInfo info;
    info.m_LogicalOrigin = {1, 2};
    info.m_LogicalExtent = {3, 4};
    info.m_DeviceOrigin = {5, 6};
    info.m_DeviceExtent = {7, 8};
    IPainter::MapMode mode = IPainter::mmDevice;
    IPainter::CoordInfo got;

    painter->SetCoordSystem(IPainter::mmCustom, &info);
    client->SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(mode, IPainter::mmCustom);
    EXPECT_EQ(Text(got), "1 2, 3 4 -> 5 6, 7 8");

    top->SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(mode, IPainter::mmCustom);
    EXPECT_EQ(Text(got), "25 0, 100 20 -> 30 20, 150 -20");

    left->SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(Text(got), "0 25, 20 100 -> 20 30, -20 150");

    top->SetHorzScroll(nullptr);
    top->SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(Text(got), "0 25, 20 100 -> 20 30, -20 150");

    IPainter::CoordInfo plain;
    painter->SetCoordSystem(IPainter::mmDevice, &plain);
    left->SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(mode, IPainter::mmDevice);

    CScrollableElementEx alone(nullptr, {20, 20}, alTop);
    alone.SetHorzScroll(&m_Horz);
    painter->SetCoordSystem(IPainter::mmCustom, &info);
    alone.SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(Text(got), "1 2, 3 4 -> 5 6, 7 8");
    painter->EndPaint();
}

TEST_F(ScrollableElementEx, AModelsPositionsPaintStraightIntoPixels)
{
    // 1 unit is 2 pixels; the pane begins at 30 with position 25, so that 35 lies at 50. Up is away from the pane.
    class CAxisLike : public CScrollableElementEx
    {
    public:
        using CScrollableElementEx::CScrollableElementEx;
        void DrawContent(IPainter* painter) override
        {
            SetCoordSystem(painter);
            painter->SetBrush(brush{color_table[4], brush::bsSolid});
            painter->FillRect(35, 2, 36, 2);
        }
    };
    m_Horz.m_Measure = {1.0, 2};
    auto* const axis = new CAxisLike(m_Host.Root(), {20, 20}, alTop);
    axis->SetCentralPane(m_Pane);
    axis->SetHorzScroll(&m_Horz);
    m_Host.Paint();
    _color const mark = color_table[4];
    EXPECT_EQ(m_Host.PixelAt(50, 18), mark);  // bottom of the axis is 20
    EXPECT_EQ(m_Host.PixelAt(52, 18), mark);
    EXPECT_NE(m_Host.PixelAt(49, 18), mark);
    EXPECT_NE(m_Host.PixelAt(53, 18), mark);
    EXPECT_NE(m_Host.PixelAt(50, 17), mark);
    EXPECT_NE(m_Host.PixelAt(50, 19), mark);
    m_Horz.m_Start = 30;
    axis->Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(40, 18), mark);
}

}  // namespace
