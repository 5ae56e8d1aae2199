// Lists with an image before each line.

#include "tests/support/lines_model.h"
#include "tests/support/test_images.h"
#include "vexel/controls/list.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <string>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

class CNoText : public IItemDrawing
{
public:
    void DrawItem(IPainter*, int item, rectangle<int> const&, bool* drawDefault) override
    {
        m_Last = item;
        *drawDefault = false;
    }

    int m_Last = -1;
};

// A list at (0, 0, 99, 60) with two lines, whose images are 8 x 7 and 10 x 9.
class PicturedList : public testing::Test
{
protected:
    PicturedList()
    {
        NameElement(m_List, "list");
        m_Host.Control().SetImageList(&m_Images);
        m_List.SetModel(&m_Model);
        m_Host.Paint();
        m_Images.Take();
    }
    ~PicturedList() override { m_Host.Control().SetImageList(nullptr); }
    PaintLog Draw()
    {
        m_Images.Take();
        m_List.Update(utElement);
        return m_Host.Paint().Of("list");
    }

    CTestImages m_Images{{{8, 7}, {10, 9}}};
    CPicturedLinesModel m_Model{{"one", "two"}};
    CNoText m_NoText;
    CTestHost m_Host{100, 100};
    CPicturedList& m_List = *new CPicturedList(m_Host.Root(), {0, 60}, alTop);
};

}  // namespace

// A line of 14 pixels and its spacing of 5 are what image and text stand in the middle of.
TEST_F(PicturedList, DrawsTheImageAndBehindItTheText)
{
    EXPECT_EQ(m_List.GetImageSpace(), 6);
    EXPECT_EQ(m_List.GetModel(), &m_Model);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 0 99 60")
                         .Then("DrawStringEx \"one\" 19 5 94 24 0x121")
                         .Then("DrawStringEx \"two\" 21 24 94 43 0x121"));
    EXPECT_EQ(log.Count("DrawString*"), 2);
    EXPECT_EQ(m_Images.Take(), "draw 0 at 5 11; draw 1 at 5 29");
}

TEST_F(PicturedList, AnotherImageSpaceMovesTheText)
{
    m_List.SetImageSpace(1);
    EXPECT_EQ(m_List.GetImageSpace(), 1);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"one\" 14 5 94 24 0x121"));
}

TEST_F(PicturedList, WithoutImagesTheTextStandsAtTheMargin)
{
    m_Host.Control().SetImageList(nullptr);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"one\" 5 5 94 24 0x121"));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(PicturedList, ALineWithoutAnImageHasItsTextAtTheMargin)
{
    class CFirstOnly : public IPicturedItemsModel
    {
    public:
        int GetItemCount() const override { return 2; }
        std::string GetItemCaption(int) const override { return "x"; }
        int GetItemImageIndex(int index) const override { return index == 0 ? 0 : -1; }
    };
    CFirstOnly model;
    m_List.SetModel(&model);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"x\" 19 5 94 24 0x121").Then("DrawStringEx \"x\" 5 24 94 43 0x121"));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 5 11");
}

TEST_F(PicturedList, WithoutAControlALineDrawsNothing)
{
    CPicturedList alone(nullptr, {50, 50}, alNone);
    alone.SetModel(&m_Model);
    m_List.SetModel(nullptr);
    class CBorrowed : public CVisualElement
    {
    public:
        CBorrowed(CVisualElement* parent, CList& list) : CVisualElement(parent, {0, 20}, alBottom), m_Borrowed(list) {}
        void DrawContent(IPainter* painter) override { m_Borrowed.DrawItem(painter, 0, {0, 0, 50, 14}); }

    private:
        CList& m_Borrowed;
    };
    CBorrowed& drawing = *new CBorrowed(m_Host.Root(), alone);
    NameElement(drawing, "drawing");
    PaintLog const log = m_Host.Paint();
    EXPECT_EQ(log.Count("DrawString*"), 0);
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(PicturedList, AnotherDrawingMayTakeItsPlace)
{
    m_List.SetItemDrawing(&m_NoText);
    PaintLog const log = Draw();
    EXPECT_EQ(m_NoText.m_Last, 1);
    EXPECT_THAT(log, Not(Draws("DrawString*")));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(PicturedList, AModelThatDiesIsForgotten)
{
    {
        CPicturedLinesModel other({"x"});
        m_List.SetModel(&other);
    }
    EXPECT_EQ(m_List.GetModel(), nullptr);
    EXPECT_THAT(Draw(), Not(Draws("DrawString*")));
}
