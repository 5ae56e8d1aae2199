// How a category looks, how high it is, and where its editors stand.

#include "vexel/widgets/category_visualisation.h"

#include "tests/support/paint_calls.h"
#include "tests/support/recording_painter.h"
#include "tests/support/virtual_order.h"
#include "tests/widgets/config_tree.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Rect = rectangle<int>;
using Area = rectangle<double>;

namespace
{

// Paints what the test says.
class CCanvasElement : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    std::function<void(IPainter*)> m_Draw;
    void DrawContent(IPainter* painter) override
    {
        if (m_Draw)
            m_Draw(painter);
    }
};

// Titles are 10 high, with characters 10 wide; descriptions 8 and 8. "General" has two editors with a line without one
// between them.
class CategoryVis : public testing::Test
{
protected:
    CategoryVis()
    {
        NameElement(m_Canvas, "canvas");
        m_Host.Paint();
    }
    void UseScale(double scale) { m_Host.SetScale(scale); }
    PaintLog Draw(IConfigCategory const* category, Area const& rect, int width, unsigned int state)
    {
        m_Canvas.m_Draw = [=, this](IPainter* painter) { m_Vis.Draw(painter, category, rect, width, state); };
        m_Canvas.Update(utElement);
        PaintLog log = m_Host.Paint().Of("canvas");
        m_Canvas.m_Draw = nullptr;
        return log;
    }
    int Collapsed(IConfigCategory const* category, int width = 370)
    {
        CMeasure const measure(*Painter());
        return m_Vis.GetCollapsedSize(Painter(), category, width);
    }
    int Expanded(IConfigCategory const* category, int width = 370)
    {
        CMeasure const measure(*Painter());
        return m_Vis.GetExpandedSize(Painter(), category, width);
    }
    void Arrange(IConfigCategory* category, Area const& area)
    {
        CMeasure const measure(*Painter());
        m_Vis.ArrangeEditors(Painter(), category, m_Host.Root(), area);
    }
    IPainter* Painter() const { return m_Host.Window().GetPainter(); }

    class CMeasure
    {
    public:
        explicit CMeasure(IPainter& painter) : m_Painter(painter) { painter.BeginPaint(IPainter::ssMeasure); }
        ~CMeasure() { m_Painter.EndPaint(); }

    private:
        IPainter& m_Painter;
    };

    CTreeModel m_Model;
    CTreeCategory& m_General = m_Model.AddCategory("General", "of all");
    CVisualElement& m_First = m_General.AddEditor("Name", 60);
    CTreeItem& m_Bare = m_General.AddItem("Bare");
    CVisualElement& m_Last = m_General.AddEditor("Last", 90);
    CTestHost m_Host{400, 300};
    CCanvasElement& m_Canvas = *new CCanvasElement(m_Host.Root(), {10, 10}, alClient);
    CDefCategoryVis m_Vis;
};

}  // namespace

TEST(CategoryVisVirtualOrder, TheOperationsStandInOrder)
{
    ExpectOrder(2, &ICategoryVis::GetExpandedSize, &ICategoryVis::GetCollapsedSize, &ICategoryVis::ArrangeEditors,
                &ICategoryVis::Draw);
    EXPECT_EQ(ICategoryVis::stOpen, 1u);
    EXPECT_EQ(ICategoryVis::stHighlighted, 2u);
}

TEST(ConfigModelVirtualOrder, TheOperationsStandInOrder)
{
    using set = ICategorySet;
    ExpectOrder(2, &set::GetCategoryCount, static_cast<IConfigCategory* (set::*)(int)>(&set::GetCategory),
                static_cast<IConfigCategory const* (set::*)(int) const>(&set::GetCategory));
    using category = IConfigCategory;
    ExpectOrder(2, &category::GetCaption, &category::GetDescription, &category::Activate, &category::Deactivate);
    ExpectOrder(7, &category::GetParent, &category::GetItemCount,
                static_cast<IConfigItem* (category::*)(int)>(&category::GetItem),
                static_cast<IConfigItem const* (category::*)(int) const>(&category::GetItem));
    ExpectOrder(2, &IConfigItem::GetEditor, &IConfigItem::GetCaption);
}

TEST(ConfigModel, TheDefaultOneHasNoCategories)
{
    CDefConfigModel model;
    CDefConfigModel const& fixed = model;
    EXPECT_EQ(model.GetCategoryCount(), 0);
    EXPECT_EQ(model.GetCategory(0), nullptr);
    EXPECT_EQ(fixed.GetCategory(0), nullptr);
}

// Heights -------------------------------------------------------------------------------------------------------------------

TEST_F(CategoryVis, AClosedOneIsAsHighAsItsTextsAndSixPixels)
{
    EXPECT_EQ(Collapsed(&m_General), 24);  // 10 + 8 + 6
}

TEST_F(CategoryVis, EachLineOfBothTextsCounts)
{
    CTreeCategory const category("two\nlines", "and\nthree\nmore");
    EXPECT_EQ(Collapsed(&category), 50);  // 20 + 24 + 6
}

TEST_F(CategoryVis, TheWidthWrapsNothing)
{
    CTreeCategory const category("a title that is longer", "than the category is wide");
    EXPECT_EQ(Collapsed(&category, 40), 24);
}

TEST_F(CategoryVis, HeightsFollowTheFontTheRestDoesNotScale)
{
    UseScale(1.5);
    EXPECT_EQ(Collapsed(&m_General), 33);  // 15 + 12 + 6
    EXPECT_EQ(Expanded(&m_General), 108);  // and 3 x 25
    UseScale(2.0);
    EXPECT_EQ(Collapsed(&m_General), 42);  // 20 + 16 + 6
    EXPECT_EQ(Expanded(&m_General), 117);
}

TEST_F(CategoryVis, NoCategoryIsFourHigh)
{
    EXPECT_EQ(Collapsed(nullptr), 4);
    EXPECT_EQ(Expanded(nullptr), 4);
}

TEST_F(CategoryVis, AnOpenOneHasTwentyFivePixelsMoreForEachItem)
{
    EXPECT_EQ(Expanded(&m_General), 99);  // 24 + 3 x 25: also for the one without an editor
    m_General.AddNoItem();
    EXPECT_EQ(Expanded(&m_General), 124) << "and for one that isn't there";
}

TEST_F(CategoryVis, ACategoryWithoutItemsIsAsHighOpenAsClosed)
{
    CTreeCategory const category("Empty", "nothing in it");
    EXPECT_EQ(Collapsed(&category), 24);
    EXPECT_EQ(Expanded(&category), 24);
}

TEST_F(CategoryVis, MeasuringPaintsNothing)
{
    vexelbase::CPixelBuffer const before = m_Host.Pixels();
    Collapsed(&m_General);
    Expanded(&m_General);
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_EQ(ComparePixels(before, m_Host.Pixels()), "");
    EXPECT_EQ(ComparePixels(before, m_Host.Pixels()), "");
}

TEST_F(CategoryVis, TheTitleIsBoldAndTwoLargerTheDescriptionPlain)
{
    CMeasure const measure(*Painter());
    m_Vis.SetCaptionFont(Painter());
    EXPECT_EQ(Describe(Painter()->GetFont()), "\"Square\" 10 bold");
    m_Vis.SetDescrFont(Painter());
    EXPECT_EQ(Describe(Painter()->GetFont()), "\"Square\" 8");
}

// Writes down what it is asked to measure.
class CMeasuringPainter : public CRecordingPainter
{
public:
    using CRecordingPainter::CRecordingPainter;
    using IPainter::DrawString;
    std::string m_Asked;
    vexelbase::size<double> DrawString(Area const& rect, char const* text, int flags, int) override
    {
        m_Asked += std::string(text) + " in " + Describe(rect) + " by " + std::to_string(flags) + "; ";
        return {50, 7.75};
    }
};

TEST_F(CategoryVis, TextsAreMeasuredInTheWidthOfACategoryTheDescriptionIndented)
{
    CCallLog calls;
    CMeasuringPainter painter(calls);
    EXPECT_EQ(m_Vis.GetCollapsedSize(&painter, &m_General, 200), 20);  // 7 + 7 + 6
    EXPECT_EQ(painter.m_Asked, "General in (5, 0, 197, 1000) by 4105; of all in (15, 0, 197, 1000) by 4105; ");
}

// Editors -------------------------------------------------------------------------------------------------------------------

TEST_F(CategoryVis, EditorsStandInTheRightHalfTwentyFivePixelsApart)
{
    Arrange(&m_General, {0, 100, 370, 199});
    EXPECT_EQ(m_First.GetPos(), (Rect{185, 122, 245, 142}));  // 100 + 24 - 2
    EXPECT_EQ(m_Last.GetPos(), (Rect{185, 172, 275, 192}));   // two lines further
}

TEST_F(CategoryVis, TheHalfOfTheAreaIsTruncatedAndItsLeftDoesNotCount)
{
    Arrange(&m_General, {10, 5.75, 215, 300});
    EXPECT_EQ(m_First.GetPos(), (Rect{102, 27, 162, 47}));  // 102.5, 5 + 22
    EXPECT_EQ(m_Last.GetPos(), (Rect{102, 77, 192, 97}));
}

TEST_F(CategoryVis, EditorsBelowATallerHeadStandLower)
{
    CTreeCategory category("two\nlines", "three\nlines\nhere");
    CVisualElement const& editor = category.AddEditor("Name", 30);
    Arrange(&category, {0, 0, 100, 100});
    EXPECT_EQ(editor.GetPos(), (Rect{50, 48, 80, 68}));  // 20 + 24 + 6 - 2
}

TEST_F(CategoryVis, AnEditorBecomesAVisibleChildThatIsNotDocked)
{
    m_First.SetAlignment(alTop);
    m_First.SetVisible(false);
    m_First.SetSize({60, 33}, false);
    Arrange(&m_General, {0, 0, 370, 99});
    EXPECT_EQ(m_First.GetParent(), m_Host.Root());
    EXPECT_EQ(m_First.GetAlignment(), alNone);
    EXPECT_TRUE(m_First.IsVisible());
    EXPECT_EQ(m_First.GetPos(), (Rect{185, 22, 245, 42})) << "20 pixels high, whatever it asks for";
    EXPECT_FALSE(m_First.IsDynamic());
}

TEST_F(CategoryVis, ItemsThatAreNotThereTakeNoRoomAmongTheEditors)
{
    m_General.m_Items.insert(m_General.m_Items.begin(), nullptr);
    Arrange(&m_General, {0, 0, 370, 99});
    EXPECT_EQ(m_First.GetPos().top, 22);
    EXPECT_EQ(m_Last.GetPos().top, 72);
}

TEST_F(CategoryVis, AnEditorWithoutAPlaceIsAsWideAsItAsksForAndOneWithAPlaceAsThat)
{
    m_First.SetPos({0, 0, 0, 0}, true);
    m_First.SetSize({70, 20}, false);
    m_Last.SetPos({5, 5, 50, 25}, true);
    m_Last.SetSize({110, 20}, false);
    ASSERT_EQ(m_Last.GetBounds().right, 45);
    Arrange(&m_General, {0, 0, 370, 99});
    EXPECT_EQ(m_First.GetPos(), (Rect{185, 22, 255, 42}));
    EXPECT_EQ(m_Last.GetPos(), (Rect{185, 72, 230, 92}));
}

class CForcedEditor : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    std::string m_Log;
    void SetPos(Rect const& rect, bool force) override
    {
        m_Log += "pos " + Describe(rect) + " " + Describe(force) + "; ";
        CVisualElement::SetPos(rect, force);
    }
    void SetAlignment(Alignment alignment) override
    {
        m_Log += std::string("alignment ") + Describe(alignment) + (GetParent() ? " in a parent; " : "; ");
        CVisualElement::SetAlignment(alignment);
    }
};

TEST_F(CategoryVis, AnEditorGetsItsParentThenItsAlignmentThenItsPlaceByForce)
{
    auto& editor = m_General.AddEditor<CForcedEditor>("Forced", 40);
    editor.m_Log.clear();
    Arrange(&m_General, {0, 0, 370, 99});
    EXPECT_EQ(editor.m_Log, "alignment 0 in a parent; pos (185, 97, 225, 117) true; ");
}

TEST_F(CategoryVis, AnEditorThatStandsThereKeepsItsPlaceAmongTheChildren)
{
    Arrange(&m_General, {0, 0, 370, 99});
    Arrange(&m_General, {0, 50, 370, 149});
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 3);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetItem(1), &m_First);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetItem(2), &m_Last);
    EXPECT_EQ(m_First.GetPos(), (Rect{185, 72, 245, 92}));
}

TEST_F(CategoryVis, AnEmptyCategoryArrangesNothing)
{
    CTreeCategory category("Empty", "");
    Arrange(&category, {0, 0, 370, 99});
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
}

// Drawing -------------------------------------------------------------------------------------------------------------------

TEST_F(CategoryVis, DrawsAClosedOneAsABoxWithItsTexts)
{
    PaintLog const log = Draw(&m_General, {0, 10, 399, 33}, 370, 0);
    EXPECT_THAT(log, Draws("SetBrush white").Then("FillRect 0 10 399 33").Then("RoundRect 2 12 368 31 7 9"));
    EXPECT_THAT(log, Draws("SetTextColor black").Then("RoundRect*"));
    EXPECT_THAT(log, Draws("SetPen #C0C0C0").Then("RoundRect*"));
    EXPECT_THAT(log, Draws("RoundRect*")
                         .Then("SetFont \"Square\" 10 bold")
                         .Then("DrawString \"General\" 5 12 368 31 0x9*")
                         .Then("SetFont \"Square\" 8")
                         .Then("DrawString \"of all\" 15 22 368 31 0x9*"));
    EXPECT_EQ(log.Count("DrawString*"), 2);
    EXPECT_EQ(log.Count("RoundRect*"), 1);
    EXPECT_THAT(log, Not(Draws("SetBrush white").Then("SetBrush*").Then("RoundRect*")));
}

TEST_F(CategoryVis, DrawsAHighlightedOneInTheColoursOfTheSelection)
{
    PaintLog const log = Draw(&m_General, {0, 10, 399, 33}, 370, ICategoryVis::stHighlighted);
    EXPECT_THAT(log, Draws("SetBrush white").Then("FillRect 0 10 399 33").Then("SetBrush #3060C0").Then("RoundRect*"));
    EXPECT_THAT(log, Draws("FillRect*").Then("SetTextColor white").Then("RoundRect*"));
    EXPECT_THAT(log, Draws("FillRect*").Then("SetPen #404040").Then("RoundRect*"));
    EXPECT_EQ(log.Count("DrawString*"), 2) << "its items only if it is open";
}

TEST_F(CategoryVis, DrawsTheLabelsOfAnOpenOneInItsLeftHalf)
{
    PaintLog const log = Draw(&m_General, {0, 10, 399, 108}, 370, ICategoryVis::stOpen | ICategoryVis::stHighlighted);
    EXPECT_THAT(log, Draws("RoundRect 2 12 368 106 7 9")
                         .Then("DrawString \"General\" 5 12 368 106 0x9*")
                         .Then("DrawString \"of all\" 15 22 368 106 0x9*")
                         .Then("DrawString \"Name\" 0 30 180 50 0x22*")  // 366 x 0.5 + 0 - 3
                         .Then("DrawString \"Bare\" 0 55 180 75 0x22*")
                         .Then("DrawString \"Last\" 0 80 180 100 0x22*"));
    EXPECT_EQ(log.Count("DrawString*"), 5);
    EXPECT_EQ(log.Count("SetFont*10*"), 1);
}

TEST_F(CategoryVis, AnOpenOneNeedNotBeHighlighted)
{
    PaintLog const log = Draw(&m_General, {0, 10, 399, 108}, 370, ICategoryVis::stOpen);
    EXPECT_THAT(log, Draws("SetTextColor black").Then("DrawString \"Name\"*"));
    EXPECT_THAT(log, Not(Draws("SetBrush #3060C0")));
}

TEST_F(CategoryVis, AnItemThatIsNotThereLeavesALineFree)
{
    m_General.m_Items.insert(m_General.m_Items.begin(), nullptr);
    PaintLog const log = Draw(&m_General, {0, 10, 399, 133}, 370, ICategoryVis::stOpen);
    EXPECT_THAT(log, Draws("DrawString \"Name\" 0 55 180 75 0x22*"));
    EXPECT_EQ(log.Count("DrawString*"), 5);
}

TEST_F(CategoryVis, ASubCategoryIsIndentedByTwentyPixelsForEachAncestor)
{
    CTreeCategory& sub = m_General.AddCategory("Sub", "below");
    CTreeCategory& deep = sub.AddCategory("Deep", "further");
    deep.AddItem("Item");
    EXPECT_THAT(Draw(&sub, {0, 10, 399, 33}, 370, 0), Draws("RoundRect 22 12 368 31 7 9")
                                                          .Then("DrawString \"Sub\" 25 12 368 31 0x9*")
                                                          .Then("DrawString \"below\" 35 22 368 31 0x9*"));
    EXPECT_THAT(Draw(&deep, {0, 10, 399, 58}, 370, ICategoryVis::stOpen),
                Draws("FillRect 0 10 399 58")
                    .Then("RoundRect 42 12 368 56 7 9")
                    .Then("DrawString \"Deep\" 45 12 368 56 0x9*")
                    .Then("DrawString \"further\" 55 22 368 56 0x9*")
                    .Then("DrawString \"Item\" 0 30 160 50 0x22*"));  // 326 x 0.5 - 3
}

TEST_F(CategoryVis, TheBoxBeginsWhereTheRectangleDoesAndIsAsWideAsTold)
{
    EXPECT_THAT(Draw(&m_General, {30, 10, 399, 108}, 101, ICategoryVis::stOpen),
                Draws("RoundRect 32 12 129 106 7 9")
                    .Then("DrawString \"General\" 35 12 129 106 0x9*")
                    .Then("DrawString \"of all\" 45 22 129 106 0x9*")
                    .Then("DrawString \"Name\" 30 30 75 50 0x22*"));  // trunc(48.5) + 30 - 3
}

TEST_F(CategoryVis, ATurnedRectangleHasTheSameBox)
{
    PaintLog const log = Draw(&m_General, {399, 108, 0, 10}, 370, ICategoryVis::stOpen);
    EXPECT_THAT(log, Draws("FillRect 399 108 0 10")
                         .Then("RoundRect 2 12 368 106 7 9")
                         .Then("DrawString \"General\" 5 12 368 106 0x9*")
                         .Then("DrawString \"Name\" 0 30 180 50 0x22*"));
}

TEST_F(CategoryVis, LongerTextsMoveWhatStandsBelowThem)
{
    CTreeCategory category("two\nlines", "and\nthree\nmore");
    category.AddItem("Item");
    EXPECT_THAT(Draw(&category, {0, 0, 399, 74}, 370, ICategoryVis::stOpen),
                Draws("DrawString \"two\\nlines\" 5 2 368 72 0x9*")
                    .Then("DrawString \"and\\nthree\\nmore\" 15 22 368 72 0x9*")
                    .Then("DrawString \"Item\" 0 46 180 66 0x22*"));
}

TEST_F(CategoryVis, NoCategoryDrawsNothing)
{
    PaintLog const log = Draw(nullptr, {0, 10, 399, 33}, 370, ICategoryVis::stOpen | ICategoryVis::stHighlighted);
    EXPECT_THAT(log, Not(Draws("FillRect*")));
    EXPECT_THAT(log, Not(Draws("RoundRect*")));
    EXPECT_THAT(log, Not(Draws("DrawString*")));
}

TEST_F(CategoryVis, ItsMetricsDoNotScaleWithTheDisplay)
{
    UseScale(2.0);
    EXPECT_THAT(Draw(&m_General, {0, 10, 399, 126}, 370, ICategoryVis::stOpen),
                Draws("RoundRect 2 12 368 124 7 9")
                    .Then("DrawString \"General\" 5 12 368 124 0x9*")
                    .Then("DrawString \"of all\" 15 32 368 124 0x9*")
                    .Then("DrawString \"Name\" 0 48 180 68 0x22*")
                    .Then("DrawString \"Bare\" 0 73 180 93 0x22*"));
    Arrange(&m_General, {0, 10, 370, 126});
    EXPECT_EQ(m_First.GetPos(), (Rect{185, 50, 245, 70}));  // 10 + 42 - 2
}

TEST_F(CategoryVis, AnEditorStandsBesideItsLabel)
{
    Arrange(&m_General, {0, 10, 370, 108});
    EXPECT_EQ(m_First.GetPos().top, 32);  // the label: 30 to 50
    EXPECT_EQ(m_Last.GetPos().top, 82);   // 80 to 100
}
