// The button with a drop arrow, and the arrow of a combo box.

#include "vexel/controls/drop_button.h"

#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

using Size = size<int>;
using Rect = rectangle<int>;

namespace
{

// A button at (0, 0, 199, 40); its arrow is 16 wide.
class DropButton : public testing::Test
{
protected:
    DropButton()
    {
        NameElement(m_Button, "button");
        m_Button.SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
        m_Button.SetCaption("a");
        m_Log.Add(m_Button.m_Clicked, "click");
        m_Log.Add(m_Button.m_SigDropDown, "drop");
        m_Host.Focus();
        m_Host.Paint();
    }
    PaintLog Draw()
    {
        m_Button.Update(utElement);
        return m_Host.Paint().Of("button");
    }

    CTestHost m_Host{200, 100};
    CDropButton& m_Button = *new CDropButton(m_Host.Root(), {0, 40}, alTop);
    CSignalLog m_Log;
};

using ComboButton = DropButton;

}  // namespace

// Metrics -------------------------------------------------------------------------------------------------------------------

TEST_F(DropButton, ItsTextStaysClearOfTheArrow)
{
    EXPECT_EQ(m_Button.GetInternalRect(), (Rect{0, 0, 183, 40}));
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"a\" 11 0 172 40 0x109"));
    CTestHost::System().SetMetric(0, 25);
    CTestHost::System().SetMetric(1, 3);
    EXPECT_EQ(m_Button.GetInternalRect(), (Rect{0, 0, 174, 40}));
    m_Host.SetScale(2);
    EXPECT_EQ(m_Button.GetInternalRect(), (Rect{0, 0, 174, 40})) << "the bar's width is scaled already";
    CTestHost::System().SetMetric(0, 16);
    CTestHost::System().SetMetric(1, 16);
}

TEST_F(DropButton, ItsTextMovesAPixelWhilePressed)
{
    m_Host.Mouse().Press(m_Button, 5, 5);
    EXPECT_EQ(m_Button.GetInternalRect(), (Rect{1, 1, 184, 41}));
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"a\" 12 1 173 41 0x109"));
}

TEST_F(DropButton, ItsRectangleIsInOrder)
{
    CDropButton odd(nullptr, {0, 0}, alNone);
    odd.SetPos({100, 20, 0, 0}, true);
    EXPECT_EQ(odd.GetInternalRect(), (Rect{-100, -20, -16, 0}));
}

TEST_F(DropButton, AutomaticSizeHasRoomForTheArrowTheTextItselfHasNot)
{
    EXPECT_EQ(m_Button.GetAutoSizeAdditionalExtent(), (Size{38, 9}));
    EXPECT_EQ(m_Button.GetDrawingAdditionalExtent(), (Size{22, 9}));
    m_Host.SetScale(1.5);
    EXPECT_EQ(m_Button.GetAutoSizeAdditionalExtent(), (Size{49, 13}));  // 33 + 16, 13.5
    EXPECT_EQ(m_Button.GetDrawingAdditionalExtent(), (Size{33, 13}));
    m_Button.SetImageIndex(2);
    EXPECT_EQ(m_Button.GetAutoSizeAdditionalExtent(), (Size{29, 13}));
    EXPECT_EQ(m_Button.GetDrawingAdditionalExtent(), (Size{13, 13}));
    m_Host.SetScale(1);
    EXPECT_EQ(m_Button.GetAutoSizeAdditionalExtent(), (Size{25, 9}));
    EXPECT_EQ(m_Button.GetDrawingAdditionalExtent(), (Size{9, 9}));
}

TEST_F(DropButton, ItSizesItselfToTextAndArrow)
{
    m_Button.SetAutoSize(true);
    m_Button.SetCaption("abc");
    EXPECT_EQ(m_Button.GetSize(), (Size{62, 17}));  // 24 + 38, 8 + 9
}

// Drawing -------------------------------------------------------------------------------------------------------------------

TEST_F(DropButton, TheArrowStandsAtTheRightEdgeOverTheFullHeight)
{
    EXPECT_THAT(Draw(), Draws("DrawControlElement 7 0 0 199 40 0x2")
                            .Then("DrawStringEx*")
                            .Then("DrawControlElement 9 183 0 199 40 0x2"));
}

TEST_F(DropButton, TheArrowShowsTheState)
{
    m_Button.SetFocus(true);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 9 * 0x2"));
    m_Host.Mouse().Move(m_Button, 5, 5);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 9 183 0 199 40 0x6"));
    m_Host.Mouse().Press();
    EXPECT_THAT(Draw(), Draws("DrawControlElement 9 184 1 199 40 0xA")) << "a pixel further, but not beyond the edges";
    m_Button.SetEnabled(false);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 9 183 0 199 40 0x3")) << "under the pointer, but not hot";
    m_Host.Unfocus();
    EXPECT_THAT(Draw(), Draws("DrawControlElement 9 * 0x1"));
}

// Keys ----------------------------------------------------------------------------------------------------------------------

TEST_F(DropButton, AltAndDownDropItDown)
{
    m_Button.SetFocus(true);
    m_Host.Keyboard().Press(vkDown, ksAlt);
    EXPECT_EQ(m_Log.Text(), "drop()");
    EXPECT_TRUE(m_Button.HandleKeyDown(ksAlt, vkDown));
}

TEST_F(DropButton, NoOtherKeyDoesAnything)
{
    m_Button.SetFocus(true);
    m_Host.Keyboard().Press(vkReturn);
    m_Host.Keyboard().Press(vkSpace);
    m_Host.Keyboard().Press(vkDown);
    m_Host.Keyboard().Press(vkDown, ksAlt | ksShift);
    m_Host.Keyboard().Press(vkUp, ksAlt);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageNormal);
    EXPECT_FALSE(m_Button.HandleKeyDown(0, vkReturn));
    EXPECT_FALSE(m_Button.HandleKeyDown(0, vkSpace));
    EXPECT_FALSE(m_Button.HandleKeyDown(0, vkDown));
    EXPECT_FALSE(m_Button.HandleKeyDown(ksAlt | ksLeft, vkDown));
}

TEST_F(DropButton, TheMouseClicksItAsAnyButton)
{
    m_Host.Mouse().Click(m_Button, 190, 5);
    EXPECT_EQ(m_Log.Text(), "click()");
}

TEST_F(DropButton, WhoHearsOfTheDropMayDeleteIt)
{
    for (bool const all : {false, true})
    {
        CTestHost host(100, 100);
        CDropButton* const button = new CDropButton(host.Root(), {0, 40}, alTop);
        host.Focus();
        button->SetFocus(true);
        auto const slot = Listen(button->m_SigDropDown, [&](CDropButton* dropped) {
            if (all)
                host.DestroyControl();
            else
                delete dropped;
        });
        host.Keyboard().Press(vkDown, ksAlt);
        EXPECT_EQ(host.HasControl(), !all);
        EXPECT_EQ(all ? 0 : host.Root()->GetChildren()->GetCount(), 0);
    }
}

// The arrow of a combo box --------------------------------------------------------------------------------------------------

TEST_F(ComboButton, TakesNoFocusAndIsAsWideAsABar)
{
    CComboButton& arrow = *new CComboButton(m_Host.Root(), {30, 30}, alLeft);
    EXPECT_FALSE(arrow.GetCanHaveFocus());
    arrow.RecalculateSize();
    EXPECT_EQ(arrow.GetSize(), (Size{16, 30}));
    CTestHost::System().SetMetric(0, 21);
    m_Host.SetScale(2);
    arrow.RecalculateSize();
    EXPECT_EQ(arrow.GetSize(), (Size{21, 30}));
    CTestHost::System().SetMetric(0, 16);
    m_Host.Focus();
    m_Host.Paint();
    m_Host.Mouse().Click(arrow, 5, 5);
    EXPECT_FALSE(arrow.IsFocused());
}

TEST_F(ComboButton, IsDrawnAsOnePart)
{
    CComboButton& arrow = *new CComboButton(m_Host.Root(), {30, 30}, alLeft);
    NameElement(arrow, "arrow");
    arrow.SetCaption("not shown");
    PaintLog log = m_Host.Paint().Of("arrow");
    EXPECT_EQ(log.Count("DrawControlElement*"), 1);
    EXPECT_THAT(log, Draws("DrawControlElement 8 0 0 16 58 0x0"));
    EXPECT_EQ(log.Count("DrawString*"), 0);
    m_Host.Mouse().Press(arrow, 5, 5);
    EXPECT_THAT(m_Host.Paint().Of("arrow"), Draws("DrawControlElement 8 0 0 16 58 0x8"));
    m_Host.Mouse().Release();
    EXPECT_THAT(m_Host.Paint().Of("arrow"), Draws("DrawControlElement 8 0 0 16 58 0x4"));
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.m_PenDirty = true;
    arrow.DrawContent(&painter);
    EXPECT_FALSE(painter.m_PenDirty);
}
