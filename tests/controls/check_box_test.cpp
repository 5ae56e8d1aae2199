// Check boxes: what turns them, how mark and caption stand, and those with images of the application.

#include "vexel/controls/check_box.h"

#include "tests/support/slot.h"
#include "tests/support/test_images.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <string>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Size = size<int>;

namespace
{

// A box at (0, 0, 199, 40) with the caption "abc"; its mark is 16 x 16. The window has no focus.
class CheckBox : public testing::Test
{
protected:
    CheckBox()
    {
        NameElement(m_Box, "box");
        m_Box.SetCaption("abc");
        m_Log.Add(m_Box.m_CheckChanged, "changed");
        m_Host.Paint();
    }
    PaintLog Draw()
    {
        m_Box.Update(utElement);
        return m_Host.Paint().Of("box");
    }
    PaintLog DrawAs(int width, int height)
    {
        m_Box.SetAlignment(alNone);
        m_Box.SetPos({0, 0, width, height}, true);
        return Draw();
    }

    CTestHost m_Host{200, 100};
    CCheckBox& m_Box = *new CCheckBox(m_Host.Root(), {0, 40}, alTop);
    CSignalLog m_Log;
};

// The same with images of the application: number 0 is 16 x 12, number 1 is 7 x 9.
class CustomCheckBox : public testing::Test
{
protected:
    CustomCheckBox()
    {
        NameElement(m_Box, "box");
        m_Host.Control().SetImageList(&m_Images);
        m_Box.SetCaption("abc");
        m_Box.SetCanHaveFocus(false);
        m_Host.Focus();
    }
    ~CustomCheckBox() override { m_Host.Control().SetImageList(nullptr); }
    PaintLog Draw()
    {
        m_Images.Take();
        m_Box.Update(utElement);
        return m_Host.Paint().Of("box");
    }

    CTestImages m_Images{{{16, 12}, {7, 9}}};
    CTestHost m_Host{200, 100};
    CCustomCheckBox& m_Box = *new CCustomCheckBox(m_Host.Root(), {0, 40}, alTop);
    std::string m_Asked;
    int m_Image = 0;
    std::unique_ptr<subscriber_base_t> m_Slot =
        Listen(m_Box.m_NeedImage, [this](CCustomCheckBox* box, int key, CImageHolder& holder) {
            EXPECT_EQ(box, &m_Box);
            EXPECT_EQ(holder.m_Index, -1);
            EXPECT_FALSE(holder.IsAssigned(&m_Images));
            m_Asked += std::to_string(key) + " ";
            holder.m_Index = m_Image;
        });
};

}  // namespace

// On and off ----------------------------------------------------------------------------------------------------------------

TEST_F(CheckBox, StartsOff)
{
    EXPECT_FALSE(m_Box.IsChecked());
    EXPECT_TRUE(m_Box.ChangeAllowed());
    EXPECT_TRUE(m_Box.GetCanHaveFocus());
}

TEST_F(CheckBox, EachClickTurnsItAndTells)
{
    m_Host.Mouse().Press(m_Box, 5, 20);
    EXPECT_FALSE(m_Box.IsChecked());
    m_Host.Mouse().Release();
    EXPECT_TRUE(m_Box.IsChecked());
    EXPECT_EQ(m_Log.Text(), "changed()");
    m_Host.Mouse().Click(m_Box, 150, 5);
    EXPECT_FALSE(m_Box.IsChecked());
    EXPECT_EQ(m_Log.Text(), "changed() changed()");
}

TEST_F(CheckBox, SpaceAndReturnTurnItToo)
{
    m_Host.Focus();
    m_Box.SetFocus(true);
    m_Host.Keyboard().Press(vkSpace);
    EXPECT_TRUE(m_Box.IsChecked());
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_FALSE(m_Box.IsChecked());
    EXPECT_EQ(m_Log.Text(), "changed() changed()");
}

TEST_F(CheckBox, AChangeByProgramTellsTooButOnlyAChange)
{
    m_Box.SetChecked(false);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Box.SetChecked(true);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(m_Host.Paint().Elements(), "box");
    m_Box.SetChecked(true);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(CheckBox, WhoHearsOfAChangeSeesTheNewState)
{
    std::string seen;
    auto const slot = Listen(m_Box.m_CheckChanged, [&](CCheckBox* box) { seen += box->IsChecked() ? "on " : "off "; });
    m_Box.SetChecked(true);
    m_Box.ChangeCheck(nullptr);
    m_Box.ChangeCheck(&m_Box);
    EXPECT_EQ(seen, "on off on ");
}

TEST_F(CheckBox, AClickRepaintsIt)
{
    m_Box.ChangeCheck(&m_Box);
    EXPECT_THAT(m_Host.Paint().Of("box"), Draws("DrawControlElement 1 *"));
}

TEST_F(CheckBox, ASubclassMayForbidTheChangeByClickNotThatByProgram)
{
    class CFixed : public CCheckBox
    {
    public:
        using CCheckBox::CCheckBox;
        bool ChangeAllowed() const override { return false; }
    };
    CFixed box(nullptr, {10, 10}, alNone);
    CSignalLog const log(box.m_CheckChanged, "changed");
    box.ChangeCheck(&box);
    box.ProcessClick();
    EXPECT_FALSE(box.IsChecked());
    EXPECT_EQ(log.Text(), "");
    box.SetChecked(true);
    EXPECT_TRUE(box.IsChecked());
    EXPECT_EQ(log.Text(), "changed()");
}

TEST_F(CheckBox, ADisabledOneIsNotTurned)
{
    m_Box.SetEnabled(false);
    m_Host.Mouse().Click(m_Box, 5, 20);
    EXPECT_FALSE(m_Box.IsChecked());
}

TEST_F(CheckBox, ALinkInItsCaptionDoesNotTurnIt)
{
    m_Box.UseHTML(true);
    m_Box.SetCaption("<a href=\"x\">link</a>");
    CSignalLog const links(m_Box.m_LinkClicked, "link");
    m_Host.Paint();
    m_Host.Mouse().Click(m_Box, 25, 20);
    EXPECT_EQ(links.Count(), 1);
    EXPECT_FALSE(m_Box.IsChecked());
    m_Host.Mouse().Click(m_Box, 5, 20);
    EXPECT_TRUE(m_Box.IsChecked());
}

TEST_F(CheckBox, AsAStringItShowsItsState)
{
    EXPECT_EQ(m_Box.HandleAsString(), "[ ] abc");
    m_Box.SetChecked(true);
    EXPECT_EQ(m_Box.HandleAsString(), "[X] abc");
}

// Size ----------------------------------------------------------------------------------------------------------------------

TEST_F(CheckBox, ItsImageIsAsLargeAsTheMarkOfTheSystem)
{
    EXPECT_EQ(m_Box.GetImageSize(), (Size{16, 16}));
    CTestHost::System().SetMetric(0, 11);
    EXPECT_EQ(m_Box.GetImageSize(), (Size{16, 16}));
    CTestHost::System().SetMetric(1, 13);
    EXPECT_EQ(m_Box.GetImageSize(), (Size{13, 13}));
    CCheckBox const alone(nullptr, {10, 10}, alNone);
    EXPECT_EQ(alone.GetImageSize(), (Size{13, 13}));
    CTestHost::System().SetMetric(0, 16);
    CTestHost::System().SetMetric(1, 16);
}

TEST_F(CheckBox, AutomaticSizeIsMarkTextAndALittleRoom)
{
    EXPECT_EQ(m_Box.GetAutoSizeAdditionalExtent(), (Size{8, 2}));
    m_Box.SetAutoSize(true);
    EXPECT_EQ(m_Box.GetSize(), (Size{48, 18}));
    m_Host.SetScale(1.5);
    EXPECT_EQ(m_Box.GetAutoSizeAdditionalExtent(), (Size{12, 3}));
    m_Host.SetScale(1.2);
    EXPECT_EQ(m_Box.GetAutoSizeAdditionalExtent(), (Size{9, 2}));  // 9.6, 2.4
}

// Drawing -------------------------------------------------------------------------------------------------------------------

TEST_F(CheckBox, TheMarkStandsAtTheLeftInTheMiddleAndTheTextFivePixelsBehind)
{
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 0 199 40")
                         .Then("DrawControlElement 2 0 12 16 28 0x0")
                         .Then("DrawStringEx \"abc\" 21 0 199 40 0x121"));
    EXPECT_EQ(log.Count("DrawControlElement*"), 1) << "it has no button's ground";
    EXPECT_EQ(log.Count("FocusRect*"), 0);
    m_Box.SetChecked(true);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 1 0 12 16 28 0x0"));
}

TEST_F(CheckBox, TheMiddleOfAnOddRestIsTheLowerPixel)
{
    EXPECT_THAT(DrawAs(199, 41), Draws("DrawControlElement 2 0 13 16 29 0x0"));
    EXPECT_THAT(DrawAs(199, 39), Draws("DrawControlElement 2 0 12 16 28 0x0"));
    EXPECT_THAT(DrawAs(199, 10), Draws("DrawControlElement 2 0 -2 16 14 0x0"));  // -2.5
}

TEST_F(CheckBox, TheGapBeforeTheTextDoesNotScale)
{
    m_Host.SetScale(2);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 2 0 12 16 28 0x0").Then("DrawStringEx \"abc\" 21 0 199 40 0x121"));
}

TEST_F(CheckBox, StyleShapeAndNativeDrawingDoNotMatter)
{
    m_Box.SetNativeDrawing(false);
    m_Box.SetStyle(CButton::BorderFlat);
    m_Box.SetShape(CButton::ShapeNoFrame);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 0 199 40").Then("DrawControlElement 2 0 12 16 28 0x0"));
    EXPECT_EQ(log.Count("Rectangle*"), 0);
    EXPECT_EQ(log.Count("FillRect*"), 1);
}

TEST_F(CheckBox, ATransparentOneHasNoGround)
{
    m_Box.SetTransparent(true);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Not(Draws("FillRect*")));
    EXPECT_THAT(log, Draws("DrawControlElement 2 0 12 16 28 0x0").Then("DrawStringEx*"));
}

TEST_F(CheckBox, TheMarkShowsTheStateOfTheButtonAndTheTextDoesNotMove)
{
    m_Box.SetCanHaveFocus(false);
    m_Host.Mouse().Move(m_Box, 5, 5);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 2 * 0x4"));
    m_Host.Mouse().Press();
    EXPECT_THAT(Draw(), Draws("DrawControlElement 2 0 12 16 28 0x8").Then("DrawStringEx \"abc\" 21 0 199 40 0x121"));
    m_Host.Mouse().Release();
    EXPECT_THAT(Draw(), Draws("DrawControlElement 1 * 0x4"));
    m_Box.SetEnabled(false);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 1 * 0x1"));
}

TEST_F(CheckBox, TheFocusMarkIsAroundTheText)
{
    m_Host.Focus();
    m_Box.SetFocus(true);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 2 * 0x2").Then("DrawStringEx*").Then("FocusRect 19 16 48 24"));
    EXPECT_THAT(DrawAs(199, 41), Draws("FocusRect 19 17 48 25"));
    EXPECT_THAT(DrawAs(199, 43), Draws("FocusRect 19 18 48 26"));
}

TEST_F(CheckBox, WithoutACaptionTheFocusMarkIsAroundTheMark)
{
    m_Box.SetCaption("");
    m_Host.Focus();
    m_Box.SetFocus(true);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FocusRect 0 12 16 28"));
    EXPECT_THAT(log, Not(Draws("DrawString*")));
}

TEST_F(CheckBox, OneThatIsNarrowerThanItsMarkHasNoTextAndNoFocusMark)
{
    m_Host.Focus();
    m_Box.SetFocus(true);
    PaintLog const log = DrawAs(15, 40);
    EXPECT_THAT(log, Draws("DrawControlElement*"));
    EXPECT_THAT(log, Not(Draws("DrawString*")));
    EXPECT_THAT(log, Not(Draws("FocusRect*")));
    EXPECT_THAT(DrawAs(20, 40), Not(Draws("DrawString*")));
    EXPECT_THAT(DrawAs(21, 40), Draws("DrawStringEx \"abc\" 21 0 21 40 0x121").Then("FocusRect*"));
}

TEST_F(CheckBox, TheFocusMarkStaysInTheBox)
{
    m_Host.Focus();
    m_Box.SetFocus(true);
    EXPECT_THAT(DrawAs(40, 40), Draws("FocusRect 19 16 40 24"));
    EXPECT_THAT(DrawAs(40, 4), Draws("FocusRect 19 0 40 4"));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Box.SetCaption("");
    EXPECT_THAT(DrawAs(16, 10), Draws("FocusRect 0 0 16 10"));
    EXPECT_THAT(DrawAs(15, 40), Not(Draws("FocusRect*")));
}

TEST_F(CheckBox, ACaptionMayHaveMarkUp)
{
    m_Box.UseHTML(true);
    m_Box.SetCaption("<b>x</b>");
    EXPECT_THAT(Draw(), Draws("SetFont \"Square\" 8 bold").Then("DrawRun * \"x\""));
}

// Images of the application -------------------------------------------------------------------------------------------------

TEST_F(CustomCheckBox, EachStateIsAskedForOnce)
{
    static_assert(CCustomCheckBox::s_CheckedBit == 16);
    Draw();
    Draw();
    EXPECT_EQ(m_Asked, "0 ");
    m_Host.Mouse().Move(m_Box, 5, 5);
    Draw();
    EXPECT_EQ(m_Asked, "0 4 ");
    m_Host.Mouse().Press();
    Draw();
    EXPECT_EQ(m_Asked, "0 4 8 ");
    m_Host.Mouse().Release();
    Draw();
    EXPECT_EQ(m_Asked, "0 4 8 20 ");
    m_Host.Mouse().Click();
    m_Host.Mouse().Leave();
    Draw();
    EXPECT_EQ(m_Asked, "0 4 8 20 ");
    m_Box.SetEnabled(false);
    m_Box.SetChecked(true);
    Draw();
    EXPECT_EQ(m_Asked, "0 4 8 20 17 ");
}

TEST_F(CustomCheckBox, TheImageStandsWhereTheMarkWouldAndTheTextBehindIt)
{
    PaintLog log = Draw();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 14");  // 14.5
    EXPECT_THAT(log, Draws("FillRect 0 0 199 40").Then("DrawStringEx \"abc\" 21 0 199 40 0x121"));
    EXPECT_THAT(log, Not(Draws("DrawControlElement*")));
    m_Image = 1;
    m_Box.SetChecked(true);
    log = Draw();
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 16");
    EXPECT_THAT(log, Draws("DrawStringEx \"abc\" 12 0 199 40 0x121"));
}

TEST_F(CustomCheckBox, NothingIsKeptToo)
{
    m_Image = -1;
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 5 0 199 40 0x121"));
    m_Image = 0;
    Draw();
    EXPECT_EQ(m_Asked, "0 ");
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(CustomCheckBox, ItIsAsLargeAsTheMarkUntilThereIsAnImageThenAsTheFirst)
{
    EXPECT_EQ(m_Box.GetImageSize(), (Size{16, 16}));
    m_Host.Mouse().Move(150, 80);
    m_Image = 1;
    m_Box.SetChecked(true);
    Draw();
    EXPECT_EQ(m_Box.GetImageSize(), (Size{7, 9}));
    m_Image = 0;
    m_Box.SetChecked(false);
    Draw();
    EXPECT_EQ(m_Asked, "16 0 ");
    EXPECT_EQ(m_Box.GetImageSize(), (Size{16, 12})) << "the first is the one of the lowest state";
}
