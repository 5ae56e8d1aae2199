// A page of categories that scrolls: the editors of the open one go with its row.

#include "tests/widgets/viewer_page.h"
#include "vexel/platform/memory/memory_scroll_bar.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/views/continuous_item_view_model.h"

using namespace vexel;
using namespace vexel::test;

using Rect = rectangle<int>;

namespace
{

// Tells of its moves.
class CMovedEditor : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    CTextLog m_Log{"; "};
    CTestHost* m_Host = nullptr;
    void SetPos(Rect const& rect, bool force) override
    {
        m_Log.Add(Describe(rect) + (force ? " force" : "") +
                  (m_Host && m_Host->Window().IsDrawingLocked() ? " locked" : ""));
        CVisualElement::SetPos(rect, force);
    }
};

// The view is 40 high, over rows of 24, 24 and 32; open ones are larger.
class ConfigurationScroll : public CViewerPage
{
protected:
    ConfigurationScroll()
    {
        m_Host.Resize(400, 41);
        SetUpModel();
    }
    void ExpectBeside(CVisualElement const& editor, int row, int line)
    {
        int top = -Rows().GetOffset();
        for (int i = 0; i < row; ++i)
            top += Rows().GetItemSize(i);
        int const head = row == 2 ? 32 : 24;
        EXPECT_EQ(editor.GetPos().top, top + head - 2 + 25 * line);
        EXPECT_EQ(editor.GetPos().left, 185);
    }
    void ScrollTo(int offset)
    {
        Rows().SetOffset(offset);
        EXPECT_EQ(Rows().GetOffset(), offset);
        EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    }
    void Stand(Rect const& name, Rect const& kind)
    {
        EXPECT_EQ(m_Name.GetPos(), name);
        EXPECT_EQ(m_Kind.GetPos(), kind);
    }
};

// In a box with a bar: nine more categories below the usual ones, 296 high in all, in a view 101 high.
class ConfigurationInABox : public CViewerPage
{
protected:
    ConfigurationInABox()
    {
        for (int i = 0; i < 9; ++i)
            m_Model.AddCategory("More", "of them");
        m_Host.Resize(400, 102);
        m_Viewer.ReParent(m_Box, true);
        m_Box->ConnectElement(&m_Viewer, CScrollBox::ctVertical, true);
        SetUpModel();
        Open(0);
    }
    vexelbase::memory::CMemoryScrollBar& Bar() const
    {
        return *m_Host.Native<vexelbase::memory::CMemoryScrollBar>(
            m_Host.Native<vexelbase::memory::CMemoryScrollBar>()->IsVertical() ? 0 : 1);
    }
    void ExpectBeside()
    {
        m_Host.Paint();
        EXPECT_EQ(m_Name.GetPos(), (Rect{185, 22 - Rows().GetOffset(), 245, 42 - Rows().GetOffset()}));
        EXPECT_EQ(m_Kind.GetPos(), (Rect{185, 47 - Rows().GetOffset(), 275, 67 - Rows().GetOffset()}));
        EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    }

    CScrollBox* m_Box = new CScrollBox(m_Host.Root(), {10, 10}, alClient);
};

}  // namespace

// By its model --------------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationScroll, EditorsMoveWithTheRows)
{
    Open(0);
    Stand({185, 22, 245, 42}, {185, 47, 275, 67});
    ScrollTo(10);
    Stand({185, 12, 245, 32}, {185, 37, 275, 57});
    ScrollTo(45);
    Stand({185, -23, 245, -3}, {185, 2, 275, 22});
    ScrollTo(0);
    Stand({185, 22, 245, 42}, {185, 47, 275, 67});
}

TEST_F(ConfigurationScroll, AlsoByMoreThanTheViewIsHigh)
{
    Open(0);
    ScrollTo(85);
    Stand({185, -63, 245, -43}, {185, -38, 275, -18});
    ScrollTo(0);
    Stand({185, 22, 245, 42}, {185, 47, 275, 67});
}

TEST_F(ConfigurationScroll, AlsoWhileTheViewerIsHidden)
{
    Open(0);
    m_Viewer.SetVisible(false);
    Rows().SetOffset(10);
    m_Viewer.SetVisible(true);
    m_Host.Paint();
    Stand({185, 12, 245, 32}, {185, 37, 275, 57});
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationScroll, AllChildrenMoveHiddenOnesToo)
{
    CVisualElement stranger(&m_Viewer, {10, 10}, alNone);
    stranger.SetDynamic(false);
    stranger.SetPos({300, 200, 310, 210}, false);
    Open(0);
    Open(1);
    int const before = m_Name.GetPos().top;
    int const offset = Rows().GetOffset();
    Rows().SetOffset(offset + 5);
    ASSERT_EQ(Rows().GetOffset(), offset + 5);
    EXPECT_FALSE(m_Name.IsVisible());
    EXPECT_EQ(m_Name.GetPos().top, before - 5);
    ExpectBeside(m_Below, 1, 0);
}

TEST_F(ConfigurationScroll, EachChildIsPlacedByForceWhileTheScreenStands)
{
    auto& editor = m_General.AddEditor<CMovedEditor>("Moved", 40);
    Open(0);
    editor.m_Host = &m_Host;
    editor.m_Log.Take();
    m_Viewer.ScrollElements(3, -4);
    EXPECT_EQ(editor.m_Log.Take(), "(188, 68, 228, 88) force locked");
    EXPECT_FALSE(m_Host.Window().IsDrawingLocked());
    EXPECT_EQ(m_Name.GetPos(), (Rect{188, 18, 248, 38}));
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(ConfigurationScroll, APlaceWithTurnedEdgesIsPutInOrder)
{
    Open(0);
    m_Name.SetPos({100, 60, 40, 20}, false);
    m_Viewer.ScrollElements(1, 2);
    EXPECT_EQ(m_Name.GetPos(), (Rect{41, 22, 101, 62}));
}

TEST_F(ConfigurationScroll, MovingByHandNeedsNoWindow)
{
    CConfigurationViewer viewer(nullptr, {100, 100}, alClient);
    CVisualElement child(&viewer, {10, 10}, alNone);
    child.SetDynamic(false);
    child.SetPos({1, 2, 3, 4}, false);
    viewer.ScrollElements(10, 20);
    EXPECT_EQ(child.GetPos(), (Rect{11, 22, 13, 24}));
}

TEST_F(ConfigurationScroll, AVerticalMoveOfItsModelMovesUpAndDown)
{
    Open(0);
    bool moved = true;
    m_Viewer.ModelScrolledVert(0, -7, &moved);
    EXPECT_EQ(m_Name.GetPos(), (Rect{185, 15, 245, 35}));
    EXPECT_TRUE(moved);
}

TEST_F(ConfigurationScroll, AHorizontalOneMovesSideways)
{
    Open(0);
    bool moved = true;
    m_Viewer.ModelScrolledHorz(0, -7, &moved);
    EXPECT_EQ(m_Name.GetPos(), (Rect{178, 22, 238, 42}));
    moved = false;
    m_Viewer.ModelScrolledHorz(0, -7, &moved);
    EXPECT_EQ(m_Name.GetPos(), (Rect{178, 22, 238, 42})) << "nothing was moved";
}

TEST_F(ConfigurationScroll, OpeningAndClosingMovesNothingByTheWay)
{
    CVisualElement stranger(&m_Viewer, {10, 10}, alNone);
    stranger.SetDynamic(false);
    stranger.SetPos({300, 20, 310, 30}, false);
    Open(0);
    Open(2);
    Open(-1);
    EXPECT_EQ(stranger.GetPos(), (Rect{300, 20, 310, 30}));
}

TEST_F(ConfigurationScroll, ScrollingWhileOneOpensLeavesTheChildrenToTheirArrangement)
{
    CVisualElement stranger(&m_Viewer, {10, 10}, alNone);
    stranger.SetDynamic(false);
    stranger.SetPos({300, 20, 310, 30}, false);
    auto const slot = Listen(m_General.m_Activated, [&](CTreeCategory*) { Rows().SetOffset(10); });
    Open(0);
    EXPECT_EQ(Rows().GetOffset(), 10);
    EXPECT_EQ(stranger.GetPos(), (Rect{300, 20, 310, 30}));
    ExpectBeside(m_Name, 0, 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationScroll, AModelThatComesMovesNothing)
{
    CVisualElement stranger(&m_Viewer, {10, 10}, alNone);
    stranger.SetDynamic(false);
    stranger.SetPos({300, 20, 310, 30}, false);
    SetUpModel();
    EXPECT_EQ(stranger.GetPos(), (Rect{300, 20, 310, 30}));
}

TEST_F(ConfigurationScroll, OpeningARowInAScrolledViewPlacesItsEditorsThere)
{
    Rows().SetOffset(30);
    Open(1);
    ExpectBeside(m_Below, 1, 0);
    Open(0);
    ExpectBeside(m_Name, 0, 0);
    ExpectBeside(m_Kind, 0, 1);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationScroll, AViewAtTheEndThatGetsShorterRowsKeepsTheEditorsBesideTheirLabels)
{
    Open(0);
    ScrollTo(90);
    Open(1);
    EXPECT_EQ(Rows().GetOffset(), 90) << "rows that shrink leave the view where it is";
    ExpectBeside(m_Below, 1, 0);
    Rows().SetOffset(91);
    EXPECT_EQ(Rows().GetOffset(), 65);
    ExpectBeside(m_Below, 1, 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationScroll, AViewThatGrowsAtTheEndKeepsTheEditorsBesideTheirLabels)
{
    Open(1);
    ScrollTo(65);
    m_Host.Resize(400, 81);
    m_Host.Paint();
    EXPECT_EQ(Rows().GetOffset(), 25);
    ExpectBeside(m_Below, 1, 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationScroll, AnotherHeightOfARowAboveMovesTheEditorsBelowIt)
{
    Open(1);
    Rows().SetOffset(0);
    m_Host.Paint();
    Rows().SetItemSize(0, 34);
    m_Host.Paint();
    EXPECT_EQ(m_Below.GetPos(), (Rect{185, 56, 235, 76}));
    Rows().SetOffset(20);
    Rows().SetItemSize(0, 24);
    m_Host.Paint();
    EXPECT_EQ(m_Below.GetPos(), (Rect{185, 26, 235, 46}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationScroll, AnElementAtTheVeryEndOfARowMovesWithTheNextOne)
{
    m_Name.SetPos({0, 24, 60, 44}, true);
    m_Name.ReParent(&m_Viewer, true);
    m_Kind.SetPos({0, 23, 60, 43}, true);
    m_Kind.ReParent(&m_Viewer, true);
    Rows().SetItemSize(0, 34);
    EXPECT_EQ(m_Name.GetPos(), (Rect{0, 34, 60, 54}));
    EXPECT_EQ(m_Kind.GetPos(), (Rect{0, 23, 60, 43}));
}

TEST_F(ConfigurationScroll, MovingByHandPaintsTheWindowAnewEvenWithNothingToMove)
{
    m_Host.Paint();
    ASSERT_FALSE(m_Host.IsFramePending());
    m_Viewer.ScrollElements(0, 5);
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(ConfigurationScroll, AnotherHeightOfARowBelowLeavesTheEditors)
{
    Open(0);
    Rows().SetItemSize(2, 100);
    m_Host.Paint();
    Stand({185, 22, 245, 42}, {185, 47, 275, 67});
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationScroll, RefreshingInAScrolledViewPlacesTheEditorsThere)
{
    Open(0);
    ScrollTo(20);
    m_Viewer.RefreshActiveCategory();
    m_Host.Paint();
    Stand({185, 2, 245, 22}, {185, 27, 275, 47});
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// What is cut off -----------------------------------------------------------------------------------------------------------

class CSolidEditor : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->SetBrush({color_table[6], brush::bsSolid});
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
    }
};

TEST_F(ConfigurationScroll, AnEditorThatSticksOutIsNotPaintedBesideTheViewer)
{
    auto& wide = m_Other.AddEditor<CSolidEditor>("Wide", 300);
    NameElement(wide, "wide");
    CVisualElement head(nullptr, {10, 30}, alTop);
    head.SetDynamic(false);
    m_Viewer.ReParent(nullptr, true);
    head.ReParent(m_Host.Root(), true);
    m_Viewer.ReParent(m_Host.Root(), true);
    m_Host.Resize(300, 81);  // the viewer: 300 x 50, from 31 on
    m_Host.Paint();
    Open(2);
    Rows().SetOffset(71);
    m_Host.Paint();
    ASSERT_EQ(Rows().GetOffset(), 56);  // 105 - 49
    ASSERT_EQ(wide.GetPos(), (Rect{185, 22, 485, 42}));
    EXPECT_EQ(Describe(m_Host.PixelAt(200, 60)), "red");
    Rows().SetItemSize(2, 150);
    Rows().SetOffset(85);
    m_Host.Paint();
    ASSERT_EQ(wide.GetPos().top, -7);
    EXPECT_EQ(Describe(m_Host.PixelAt(200, 31)), "red");
    EXPECT_NE(Describe(m_Host.PixelAt(200, 30)), "red");
    wide.Update(utElement);
    EXPECT_EQ(m_Host.Paint().Elements(), "viewer wide") << "it is cut by the viewer";
    EXPECT_NE(Describe(m_Host.PixelAt(200, 30)), "red");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    EXPECT_NE(Describe(m_Host.PixelAt(200, 30)), "red");
    m_Viewer.ReParent(nullptr, true);
    head.ReParent(nullptr, true);
    m_Viewer.ReParent(m_Host.Root(), true);
}

TEST_F(ConfigurationScroll, AnEditorThatBeginsAboveTheViewerIsPaintedWithItAndNotAlone)
{
    Open(0);
    m_Name.SetPos({185, -7, 245, 13}, true);
    m_Host.Paint();
    m_Name.Update(utElement);
    EXPECT_EQ(m_Host.Paint().Elements(), "viewer name");
    m_Name.SetPos({185, 0, 245, 20}, true);
    m_Host.Paint();
    m_Name.Update(utElement);
    EXPECT_EQ(m_Host.Paint().Elements(), "name");
}

TEST_F(ConfigurationScroll, AnEditorInViewIsPaintedAlone)
{
    auto& editor = m_Other.AddEditor<CSolidEditor>("Short", 30);
    NameElement(editor, "short");
    m_Host.Resize(400, 200);
    Open(2);
    editor.Update(utElement);
    EXPECT_EQ(m_Host.Paint().Elements(), "short");
}

TEST_F(ConfigurationScroll, AViewerThatIsHiddenPaintsNoEditor)
{
    Open(0);
    m_Viewer.SetVisible(false);
    m_Name.Update(utElement);
    EXPECT_EQ(m_Host.FullPaint().Of("viewer").Text(), m_Host.FullPaint().Of("nobody").Text());
}

TEST_F(ConfigurationScroll, AnotherHeightOfARowInViewLeavesTheEditorsAboveIt)
{
    m_Host.Resize(400, 300);
    Open(0);
    Rows().SetItemSize(2, 100);
    m_Host.Paint();
    Stand({185, 22, 245, 42}, {185, 47, 275, 67});
    Rows().SetItemSize(1, 50);
    m_Host.Paint();
    Stand({185, 22, 245, 42}, {185, 47, 275, 67});
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// In a box ------------------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationInABox, TheWheelMovesTheEditorsAlong)
{
    m_Host.Mouse().Wheel(m_Viewer, 300, 90, -3);
    EXPECT_EQ(Rows().GetOffset(), 3);
    ExpectBeside();
    m_Host.Mouse().Wheel(m_Viewer, 300, 90, 2);
    EXPECT_EQ(Rows().GetOffset(), 1);
    ExpectBeside();
}

TEST_F(ConfigurationInABox, TheWheelOverAnEditorToo)
{
    m_Host.Mouse().Wheel(m_Name, 5, 5, -4);
    EXPECT_EQ(Rows().GetOffset(), 4);
    ExpectBeside();
}

TEST_F(ConfigurationInABox, TheBarMovesTheEditorsAlong)
{
    Bar().StepLine(2);
    EXPECT_EQ(Rows().GetOffset(), 8);
    ExpectBeside();
    Bar().DragThumb(60);
    EXPECT_EQ(Rows().GetOffset(), 60);
    ExpectBeside();
    Bar().DragThumb(240);
    EXPECT_EQ(Rows().GetOffset(), 240);
    ExpectBeside();
    Bar().StepPage(-1);
    ExpectBeside();
    Bar().DragThumb(0);
    EXPECT_EQ(Rows().GetOffset(), 0);
    ExpectBeside();
}

TEST_F(ConfigurationInABox, ABoxThatGrowsMovesTheEditorsBack)
{
    Bar().DragThumb(1000);
    EXPECT_EQ(Rows().GetOffset(), 245);  // 346 - 101
    ExpectBeside();
    m_Host.Resize(400, 152);
    ExpectBeside();
    EXPECT_EQ(Rows().GetOffset(), 195);
}

TEST_F(ConfigurationInABox, OpeningAnotherRowAtTheEndStaysBesideItsLabel)
{
    Bar().DragThumb(1000);
    Open(1);
    m_Host.Paint();
    EXPECT_EQ(m_Below.GetPos().top, 46 - Rows().GetOffset());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    Bar().DragThumb(30);
    EXPECT_EQ(m_Below.GetPos().top, 16);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationInABox, ItsBarFollowsTheHeightOfTheOpenCategory)
{
    SScrollBarInfo info;
    Bar().GetInfo(info);
    EXPECT_EQ(info.maximum, 346.0);  // 74 + 24 + 32 + 9 x 24
    Open(-1);
    Bar().GetInfo(info);
    EXPECT_EQ(info.maximum, 296.0);
}
