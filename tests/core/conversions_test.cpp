// From one coordinate system to another: element, control, screen, painter; and what of an element shows.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/recording_window.h"
#include "tests/support/scripted_system.h"

#include <gtest/gtest.h>

#include <optional>

using namespace vexel;

namespace
{

// The left-tops add up: root (1, 2), middle (10, 20), leaf (100, 200).
class Conversions : public testing::Test
{
protected:
    Conversions()
    {
        m_Control.m_Window = &m_Window;
        m_Root.SetControl(&m_Control);
        m_Root.SetPos({1, 2, 1001, 1002}, false);
        m_Middle.SetPos({10, 20, 810, 820}, false);
        m_Leaf.SetPos({100, 200, 400, 500}, false);
        m_Log.Clear();
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingWindow m_Window{m_Log, 1100, 1100};
    CRecordingElement m_Root{m_Log, "root"};
    CRecordingElement m_Middle{m_Log, "middle", &m_Root};
    CRecordingElement m_Leaf{m_Log, "leaf", &m_Middle};
};

// Element and control --------------------------------------------------------------------------------------------------------

TEST_F(Conversions, APointOfAnElementGainsAllLeftTopsOnTheWayUp)
{
    point<int> position{5, 6};

    m_Leaf.ElementToControl(&position);

    EXPECT_EQ(position, (point<int>{116, 228}));
}

TEST_F(Conversions, ThePointOfARootGainsItsOwnLeftTop)
{
    point<int> position{5, 6};

    m_Root.ElementToControl(&position);

    EXPECT_EQ(position, (point<int>{6, 8}));
}

TEST_F(Conversions, ARectangleOfAnElementGainsThemAtBothCorners)
{
    rectangle<int> rect{0, 1, 20, 30};

    m_Leaf.ElementToControl(&rect);

    EXPECT_EQ(rect, (rectangle<int>{111, 223, 131, 252}));
}

TEST_F(Conversions, APointOfTheControlLosesThem)
{
    point<int> position{0, 0};

    m_Leaf.ControlToElement(&position);

    EXPECT_EQ(position, (point<int>{-111, -222}));
}

TEST_F(Conversions, ARectangleOfTheControlLosesThemAtBothCorners)
{
    rectangle<int> rect{111, 223, 131, 252};

    m_Leaf.ControlToElement(&rect);

    EXPECT_EQ(rect, (rectangle<int>{0, 1, 20, 30}));
}

TEST_F(Conversions, NoControlIsNeeded)
{
    CVisualElement parent(nullptr, {0, 0}, alNone);
    CVisualElement child(&parent, {0, 0}, alNone);
    parent.SetPos({3, 4, 30, 40}, false);
    child.SetPos({-10, 5, 0, 10}, false);
    point<int> position{1, 1};

    child.ElementToControl(&position);

    EXPECT_EQ(position, (point<int>{-6, 10}));
}

TEST_F(Conversions, AnElementThatHasLeftItsParentCountsFromItsOwnLeftTop)
{
    CVisualElement parent(nullptr, {0, 0}, alNone);
    CVisualElement child(&parent, {0, 0}, alNone);
    parent.SetPos({10, 20, 110, 120}, false);
    child.SetPos({3, 4, 13, 14}, false);
    point<int> position;
    child.ElementToControl(&position);
    ASSERT_EQ(position, (point<int>{13, 24}));

    child.ReParent(nullptr, false);

    position = {};
    child.ElementToControl(&position);
    EXPECT_EQ(position, (point<int>{3, 4}));
}

TEST_F(Conversions, AnElementThatWasClearedAwayCountsFromItsOwnLeftTop)
{
    CVisualElement parent(nullptr, {0, 0}, alNone);
    CVisualElement child(&parent, {0, 0}, alNone);
    parent.SetPos({10, 20, 110, 120}, false);
    child.SetPos({3, 4, 13, 14}, false);
    point<int> position;
    child.ElementToControl(&position);
    ASSERT_EQ(position, (point<int>{13, 24}));

    parent.GetChildren()->Clear();

    position = {};
    child.ElementToControl(&position);
    EXPECT_EQ(position, (point<int>{3, 4}));
}

TEST_F(Conversions, AnElementInThePlaceOfADeadOneCountsAnew)
{
    std::optional<CVisualElement> element;
    element.emplace(nullptr, size<int>(), alNone);
    element->SetPos({10, 20, 110, 120}, false);
    point<int> position;
    element->ElementToControl(&position);
    ASSERT_EQ(position, (point<int>{10, 20}));

    element.emplace(nullptr, size<int>(), alNone);

    position = {};
    element->ElementToControl(&position);
    EXPECT_EQ(position, (point<int>{0, 0}));
}

TEST_F(Conversions, TheBoundsStartAtZero)
{
    EXPECT_EQ(m_Leaf.GetBounds(), (rectangle<int>{0, 0, 300, 300}));
    EXPECT_EQ(m_Leaf.GetContentRect(), (rectangle<int>{0, 0, 300, 300}));
}

TEST_F(Conversions, TheBoundsOfAReversedElementAreReversed)
{
    m_Leaf.SetPos({50, 60, 40, 30}, false);

    EXPECT_EQ(m_Leaf.GetBounds(), (rectangle<int>{0, 0, -10, -30}));
}

// Logical units ------------------------------------------------------------------------------------------------------------

TEST_F(Conversions, APixelBecomesLogicalInAMeasuringBracketWithTheElementsOwnCoordinates)
{
    point<double> position{5, 6};  // (116, 228) of the control

    m_Leaf.DP2LP(&position);

    EXPECT_EQ(position, (point<double>{29, 57}));
    EXPECT_EQ(m_Log.Take(), "painter.BeginPaint(3) leaf.SetCoordSystem() painter.DeconvertCoord1(116 228, false) "
                            "painter.EndPaint()");
}

TEST_F(Conversions, WhileThePainterPaintsItIsTakenAsItIs)
{
    m_Window.m_Painter.m_Painting = true;
    point<double> position{5, 6};

    m_Leaf.DP2LP(&position);
    m_Leaf.LP2DP(&position);

    EXPECT_EQ(m_Log.Take(), "painter.DeconvertCoord1(116 228, false) painter.ConvertCoord1(29 57, false)");
    m_Window.m_Painter.m_Painting = false;
}

TEST_F(Conversions, APixelIsTruncatedBeforeItBecomesLogical)
{
    point<double> position{5.9, 6.9};

    m_Leaf.DP2LP(&position);

    EXPECT_EQ(position, (point<double>{29, 57}));
}

TEST_F(Conversions, ANegativePixelIsTruncatedTowardZero)
{
    point<double> position{-0.9, -3.9};  // (0, -3), (111, 219) of the control

    m_Leaf.DP2LP(&position);

    EXPECT_EQ(position, (point<double>{27.75, 54.75}));
}

TEST_F(Conversions, ALogicalPointBecomesAPixelInTheSameBracket)
{
    point<double> position{29, 57};

    m_Leaf.LP2DP(&position);

    EXPECT_EQ(position, (point<double>{5, 6}));
    EXPECT_EQ(m_Log.Take(), "painter.BeginPaint(3) leaf.SetCoordSystem() painter.ConvertCoord1(29 57, false) "
                            "painter.EndPaint()");
}

TEST_F(Conversions, TheDevicePointIsTruncatedTowardZeroBeforeTheElementIsSubtracted)
{
    point<double> position{29.2, -0.2};  // device (116.8, -0.8)

    m_Leaf.LP2DP(&position);

    EXPECT_EQ(position, (point<double>{5, -222}));
}

TEST_F(Conversions, WithoutAControlALogicalConversionDoesNothing)
{
    CRecordingElement loose(m_Log, "loose");
    loose.SetPos({10, 10, 20, 20}, false);
    point<double> position{1.5, 2.5};

    loose.DP2LP(&position);
    loose.LP2DP(&position);

    EXPECT_EQ(position, (point<double>{1.5, 2.5}));
}

TEST_F(Conversions, WithoutAWindowOrPainterALogicalConversionDoesNothing)
{
    point<double> position{1.5, 2.5};

    m_Window.m_HasPainter = false;
    m_Leaf.DP2LP(&position);
    m_Leaf.LP2DP(&position);
    m_Control.m_Window = nullptr;
    m_Leaf.DP2LP(&position);
    m_Leaf.LP2DP(&position);

    EXPECT_EQ(position, (point<double>{1.5, 2.5}));
    EXPECT_EQ(m_Log.Take(), "");
}

// The mouse ------------------------------------------------------------------------------------------------------------------

TEST_F(Conversions, TheMousePositionComesFromTheScreen)
{
    m_System.m_PointerPos = {1200, 2300};  // the window stands at (1000, 2000)

    EXPECT_EQ(m_Leaf.GetMousePos(), (point<int>{89, 78}));
    EXPECT_EQ(m_Root.GetMousePos(), (point<int>{199, 298}));
}

TEST_F(Conversions, TheMousePositionIsZeroWithoutAControlAWindowOrASystem)
{
    m_System.m_PointerPos = {1200, 2300};
    CVisualElement loose(nullptr, {0, 0}, alNone);
    EXPECT_EQ(loose.GetMousePos(), (point<int>{0, 0}));

    ISystem* const system = SetCurrentSystem(nullptr);
    EXPECT_EQ(m_Leaf.GetMousePos(), (point<int>{0, 0}));
    SetCurrentSystem(system);

    m_Control.m_Window = nullptr;
    EXPECT_EQ(m_Leaf.GetMousePos(), (point<int>{0, 0}));
}

// What shows -----------------------------------------------------------------------------------------------------------------

class DisplayableRect : public testing::Test
{
protected:
    DisplayableRect()
    {
        m_Root.SetPos({0, 0, 100, 100}, false);
        m_Middle.SetPos({10, 20, 60, 70}, false);  // 50 x 50
        m_Leaf.SetPos({5, 6, 95, 96}, false);      // 90 x 90
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingElement m_Root{m_Log, "root"};
    CRecordingElement m_Middle{m_Log, "middle", &m_Root};
    CRecordingElement m_Leaf{m_Log, "leaf", &m_Middle};
};

TEST_F(DisplayableRect, IsCutByTheElementAndByEveryAncestor)
{
    rectangle<int> rect{-5, -5, 200, 200};

    EXPECT_TRUE(m_Leaf.GetDisplayableRect(&rect));

    // Middle shows 50 x 50, of which the leaf begins at (5, 6).
    EXPECT_EQ(rect, (rectangle<int>{0, 0, 45, 44}));
}

TEST_F(DisplayableRect, StaysAsItIsWhereAllOfItShows)
{
    rectangle<int> rect{3, 4, 20, 30};

    EXPECT_TRUE(m_Leaf.GetDisplayableRect(&rect));

    EXPECT_EQ(rect, (rectangle<int>{3, 4, 20, 30}));
}

TEST_F(DisplayableRect, IsCutByContentRectanglesNotByBounds)
{
    m_Middle.m_ContentRect = rectangle<int>{10, 10, 40, 40};
    rectangle<int> rect{0, 0, 90, 90};

    EXPECT_TRUE(m_Leaf.GetDisplayableRect(&rect));

    EXPECT_EQ(rect, (rectangle<int>{5, 4, 35, 34}));
}

TEST_F(DisplayableRect, IsCutByTheElementsOwnContentRectangle)
{
    m_Leaf.m_ContentRect = rectangle<int>{2, 3, 12, 13};
    rectangle<int> rect{0, 0, 90, 90};

    EXPECT_TRUE(m_Leaf.GetDisplayableRect(&rect));

    EXPECT_EQ(rect, (rectangle<int>{2, 3, 12, 13}));
}

TEST_F(DisplayableRect, TheRootsOwnPlaceIsTakenBackToo)
{
    m_Root.SetPos({1000, 2000, 1100, 2100}, false);
    rectangle<int> rect{3, 4, 20, 30};

    EXPECT_TRUE(m_Leaf.GetDisplayableRect(&rect));

    EXPECT_EQ(rect, (rectangle<int>{3, 4, 20, 30}));
}

TEST_F(DisplayableRect, OfAHiddenElementIsNothing)
{
    m_Leaf.SetVisible(false);
    rectangle<int> rect{0, 0, 90, 90};

    EXPECT_FALSE(m_Leaf.GetDisplayableRect(&rect));

    EXPECT_EQ(rect, (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(DisplayableRect, UnderAHiddenParentFailsWithTheNegatedOffset)
{
    m_Middle.SetVisible(false);
    rectangle<int> rect{0, 0, 90, 90};

    EXPECT_FALSE(m_Leaf.GetDisplayableRect(&rect));

    EXPECT_EQ(rect, (rectangle<int>{-5, -6, -5, -6}));
}

TEST_F(DisplayableRect, UnderAHiddenGrandparentFailsWithBothOffsetsNegated)
{
    m_Root.SetVisible(false);
    rectangle<int> rect{0, 0, 90, 90};

    EXPECT_FALSE(m_Leaf.GetDisplayableRect(&rect));

    EXPECT_EQ(rect, (rectangle<int>{-15, -26, -15, -26}));
}

TEST_F(DisplayableRect, OfWhatAnAncestorCutsAwayIsNothing)
{
    rectangle<int> rect{60, 0, 80, 20};

    EXPECT_FALSE(m_Leaf.GetDisplayableRect(&rect));

    EXPECT_EQ(rect, (rectangle<int>{-5, -6, -5, -6}));
}

TEST_F(DisplayableRect, OfASingleColumnOrRowIsNothing)
{
    rectangle<int> column{7, 0, 7, 20};
    rectangle<int> row{0, 7, 20, 7};

    EXPECT_FALSE(m_Leaf.GetDisplayableRect(&column));
    EXPECT_FALSE(m_Leaf.GetDisplayableRect(&row));
}

TEST_F(DisplayableRect, OfTwoColumnsShows)
{
    rectangle<int> rect{7, 0, 8, 1};

    EXPECT_TRUE(m_Leaf.GetDisplayableRect(&rect));
    EXPECT_EQ(rect, (rectangle<int>{7, 0, 8, 1}));
}

TEST_F(DisplayableRect, TouchingTheEdgeOfAnAncestorIsNothing)
{
    rectangle<int> rect{45, 0, 60, 20};  // begins at 50 in middle, which ends there

    EXPECT_FALSE(m_Leaf.GetDisplayableRect(&rect));
}

}  // namespace
