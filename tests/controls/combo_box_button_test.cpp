// The drop button with a list in a popup: when the popup opens, how large it is, what closes it, and what may die meanwhile.

#include "vexel/controls/combo_box_button.h"

#include "tests/support/lines_model.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_popup.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

using namespace vexel;
using namespace vexel::test;
using vexelbase::memory::CMemoryPopup;

using Size = size<int>;
using Rect = rectangle<int>;

namespace
{

class CCountedButton : public CComboBoxButton
{
public:
    using CComboBoxButton::CComboBoxButton;

    void DoDropDown() override
    {
        ++m_Drops;
        CComboBoxButton::DoDropDown();
    }

    int m_Drops = 0;
};

// A button at (0, 0, 199, 40) of a window at (200, 100) of the screen; its list has rows of 10 pixels.
class ComboBoxButton : public testing::Test
{
protected:
    ComboBoxButton()
    {
        Rows().SetAutoRowHeight(false);
        Rows().GetRowViewModel()->SetDefaultItemSize(10);
        Rows().SetModel(&m_Model);
        m_Host.Paint();
    }
    CListBoxViewer& Rows() { return m_Button.GetList()->GetViewer(); }
    CMemoryPopup* Popup() { return m_Host.Popup(); }
    Rect PopupRect() { return Popup()->GetMemoryWindow().GetNodeRect(); }
    Size PopupSize()
    {
        Rect const rect = PopupRect();
        return {rect.right - rect.left, rect.bottom - rect.top};
    }
    void Open(MouseButton button = mbLeft)
    {
        m_Host.Mouse().Click(m_Button, 5, 5, button);
        m_Host.RunPending();
        m_Host.Paint(Popup()->GetMemoryWindow());
    }
    // Clicks in the row of the open popup.
    void Choose(int row)
    {
        m_Host.Mouse().Click(2 + 20, 41 + 2 + row * 10 + 5);
        m_Host.RunPending();
    }

    CLinesModel m_Model{NumberedLines(20)};
    CTestHost m_Host{200, 100};
    CCountedButton& m_Button = *new CCountedButton(m_Host.Root(), {0, 40}, alTop);
};

}  // namespace

TEST_F(ComboBoxButton, StartsWithAListOfItsOwnAndNoPopup)
{
    CComboBoxButton const button(nullptr, {10, 10}, alNone);
    EXPECT_EQ(button.GetVisibleDropItemsCount(), 8);
    EXPECT_EQ(button.GetVisibleDropWidth(), 0);
    EXPECT_EQ(button.GetTextAlign(), 0x21);
    EXPECT_EQ(button.GetPopup(), nullptr);
    EXPECT_FALSE(button.IsDropDownShown());
    ASSERT_NE(button.GetList(), nullptr);
    EXPECT_EQ(button.GetList()->GetParent(), nullptr);
    EXPECT_EQ(button.GetList()->GetSize(), (Size{200, 100}));
    EXPECT_EQ(button.GetList()->GetAlignment(), alClient);
}

// Opening -------------------------------------------------------------------------------------------------------------------

TEST_F(ComboBoxButton, ThePressOpensThePopupAfterTheEvent)
{
    m_Host.Mouse().Press(m_Button, 5, 5);
    EXPECT_EQ(m_Host.Window().GetPostedCount(), 1);
    ASSERT_NE(Popup(), nullptr);
    EXPECT_FALSE(Popup()->IsVisible());
    EXPECT_FALSE(m_Button.IsDropDownShown());
    EXPECT_EQ(m_Button.m_Drops, 0);
    m_Host.RunPending();
    EXPECT_EQ(m_Button.m_Drops, 1);
    EXPECT_TRUE(Popup()->IsVisible());
    EXPECT_TRUE(m_Button.IsDropDownShown());
    EXPECT_EQ(m_Button.GetPopup().get(), Popup());
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Host.RunPending(), 0);
    EXPECT_TRUE(Popup()->IsVisible()) << "the release changes nothing";
}

TEST_F(ComboBoxButton, EachButtonOfTheMouseOpensIt)
{
    for (MouseButton const button : {mbLeft, mbMiddle, mbRight})
    {
        m_Host.Mouse().Press(m_Button, 5, 5, button);
        m_Host.RunPending();
        EXPECT_TRUE(m_Button.IsDropDownShown());
        m_Host.Mouse().Release(button);
        Popup()->Close(0);
        EXPECT_FALSE(m_Button.IsDropDownShown());
    }
    EXPECT_EQ(m_Button.m_Drops, 3);
    EXPECT_EQ(m_Host.Popup(1), nullptr) << "it is the same popup";
}

TEST_F(ComboBoxButton, AltAndDownOpensItReturnAndSpaceDoNot)
{
    m_Host.Focus();
    m_Button.SetFocus(true);
    m_Host.Keyboard().Press(vkReturn);
    m_Host.Keyboard().Press(vkSpace);
    EXPECT_EQ(m_Host.RunPending(), 0);
    m_Host.Keyboard().Press(vkDown, ksAlt);
    m_Host.RunPending();
    EXPECT_TRUE(m_Button.IsDropDownShown());
}

TEST_F(ComboBoxButton, ASecondCallBeforeItHasOpenedShowsItTwice)
{
    m_Button.ScheduleDropDown();
    m_Button.ScheduleDropDown();
    EXPECT_EQ(m_Host.RunPending(), 2);
    EXPECT_EQ(m_Button.m_Drops, 2);
    EXPECT_TRUE(m_Button.IsDropDownShown());
}

TEST_F(ComboBoxButton, WithoutAControlOrAWindowNothingHappens)
{
    CComboBoxButton alone(nullptr, {10, 10}, alNone);
    alone.ScheduleDropDown();
    alone.UpdateDropSize();
    alone.UpdateCaption(0);
    EXPECT_EQ(alone.GetPopup(), nullptr);
    m_Host.DestroyWindow();
    m_Button.ScheduleDropDown();
    EXPECT_EQ(m_Button.GetPopup(), nullptr);
}

TEST_F(ComboBoxButton, NothingHappensWhileItsWindowIsBeingDestroyed)
{
    bool asked = false;
    class CAsker : public CVisualElement
    {
    public:
        CAsker(CVisualElement* parent, std::function<void()> ask)
            : CVisualElement(parent, {10, 10}, alLeft), m_Ask(std::move(ask))
        {}
        void HandleControlDestroy() override
        {
            if (auto const ask = std::exchange(m_Ask, nullptr))
                ask();
        }

    private:
        std::function<void()> m_Ask;
    };
    new CAsker(m_Host.Root(), [&] {
        asked = true;
        EXPECT_TRUE(m_Button.GetControl()->GetWindow()->IsDestroying());
        m_Button.ProcessMouseDown(&m_Button, 5, 5, ksLeft, mbLeft);
        m_Button.ProcessDropDown(&m_Button);
    });
    m_Host.DestroyWindow();
    EXPECT_TRUE(asked);
    EXPECT_EQ(m_Button.GetPopup(), nullptr);
    EXPECT_EQ(m_Button.m_Drops, 0);
}

TEST_F(ComboBoxButton, ThePopupStandsBelowTheButtonAndHasTheListInIt)
{
    CListBox* const list = m_Button.GetList();
    Open();
    Rect const rect = PopupRect();
    EXPECT_EQ(rect.left, 200);
    EXPECT_EQ(rect.top, 140);
    EXPECT_EQ(m_Button.GetList(), list);
    ASSERT_NE(list->GetControl(), nullptr);
    EXPECT_EQ(list->GetControl()->GetWindow(), &Popup()->GetMemoryWindow());
}

TEST_F(ComboBoxButton, ThePressGivesTheListTheFocusAndItsKeysChoose)
{
    m_Host.Focus();
    Open();
    EXPECT_TRUE(Rows().IsFocused());
    m_Host.Mouse().Leave();
    m_Host.Keyboard().Press(vkDown);
    m_Host.Keyboard().Press(vkDown);
    EXPECT_EQ(Rows().GetCurrentItem(), 1);
    EXPECT_TRUE(m_Button.IsDropDownShown());
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_FALSE(m_Button.IsDropDownShown());
    EXPECT_EQ(m_Button.GetCaption(), "1");
}

// Size ----------------------------------------------------------------------------------------------------------------------

TEST_F(ComboBoxButton, ThePopupShowsEightRowsAtMostAsWideAsTheButton)
{
    Open();
    EXPECT_EQ(PopupSize(), (Size{200, 88}));  // 8 x 11
}

TEST_F(ComboBoxButton, ItHasRoomForTheFrameWhereThereAreFewRows)
{
    m_Model.Set(NumberedLines(2));
    Open();
    EXPECT_EQ(PopupSize(), (Size{200, 25}));  // 2 x 10, the frame takes 4, and one more; 2 x 11 would cut a row
    m_Button.SetVisibleDropItemsCount(1);
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize(), (Size{200, 15}));
    m_Model.Set(NumberedLines(6));
    m_Button.SetVisibleDropItemsCount(9);
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize(), (Size{200, 66}));
}

TEST_F(ComboBoxButton, NumberAndWidthAreSetWithoutFurtherEffect)
{
    Open();
    m_Button.SetVisibleDropItemsCount(12);
    m_Button.SetVisibleDropWidth(77);
    EXPECT_EQ(m_Button.GetVisibleDropItemsCount(), 12);
    EXPECT_EQ(m_Button.GetVisibleDropWidth(), 77);
    EXPECT_EQ(PopupSize(), (Size{200, 88}));
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize(), (Size{77, 132}));
    m_Button.SetVisibleDropWidth(1);
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize().width, 1);
    m_Button.SetVisibleDropWidth(0);
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize().width, 200);
    m_Button.SetVisibleDropWidth(-5);
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize().width, 200);
}

TEST_F(ComboBoxButton, ItIsSizedAnewWithEachOpening)
{
    Open();
    Popup()->Close(0);
    m_Button.SetHeight(20, false);
    m_Host.Resize(150, 100);
    m_Host.Paint();
    Rows().GetRowViewModel()->SetDefaultItemSize(20);
    Open();
    EXPECT_EQ(PopupSize(), (Size{150, 168}));  // 8 x 21
    EXPECT_EQ(PopupRect().top, 120);
}

TEST_F(ComboBoxButton, WithoutAModelThePopupHasNoRows)
{
    Rows().SetModel(nullptr);
    m_Host.Mouse().Press(m_Button, 5, 5);
    m_Host.RunPending();
    EXPECT_EQ(PopupSize(), (Size{200, 0}));
    EXPECT_TRUE(m_Button.IsDropDownShown());
}

TEST_F(ComboBoxButton, AHorizontalBarTakesRoomOfItsOwn)
{
    Rows().SetLineWidth(1000);
    Open();
    ASSERT_TRUE(m_Button.GetList()->GetScrollBox().GetHorzElement().IsScrollBarVisible());
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize(), (Size{200, 104}));
    CTestHost::System().SetMetric(1, 99);  // the other bar's
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize(), (Size{200, 104}));
    CTestHost::System().SetMetric(1, 16);
}

TEST_F(ComboBoxButton, WithNoRowsToShowThePopupKeepsItsSize)
{
    Open();
    m_Button.SetVisibleDropItemsCount(0);
    m_Button.SetVisibleDropWidth(50);
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize(), (Size{200, 88}));
    m_Button.SetVisibleDropItemsCount(-3);
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize(), (Size{200, 88}));
}

TEST_F(ComboBoxButton, NoRowIsCutInItsPopup)
{
    for (int const rows : {1, 3, 5, 8})
    {
        m_Model.Set(NumberedLines(rows));
        Open();
        m_Host.Paint(Popup()->GetMemoryWindow());
        EXPECT_GE(Rows().GetBounds().bottom + 1, rows * 10) << rows;
        EXPECT_FALSE(m_Button.GetList()->GetScrollBox().GetVertElement().IsScrollBarVisible()) << rows;
        Popup()->Close(0);
    }
}

// Closing -------------------------------------------------------------------------------------------------------------------

TEST_F(ComboBoxButton, AnActivatedRowClosesThePopupAndBecomesTheCaption)
{
    Open();
    Choose(3);
    EXPECT_FALSE(m_Button.IsDropDownShown());
    EXPECT_EQ(Popup()->GetCloseCode(), 3);
    EXPECT_EQ(m_Button.GetCaption(), "3");
    EXPECT_EQ(Rows().GetCurrentItem(), 3);
    Open();
    Choose(3);
    EXPECT_FALSE(m_Button.IsDropDownShown()) << "the same row again";
    EXPECT_EQ(m_Button.GetCaption(), "3");
}

TEST_F(ComboBoxButton, BeforeItWasEverOpenedAnActivatedRowLeavesTheCaption)
{
    m_Button.SetCaption("as it was");
    Rows().SetCurrentItemEx(1);
    EXPECT_EQ(m_Button.GetCaption(), "as it was");
    Open();
    Rows().SetCurrentItemEx(2);
    EXPECT_EQ(m_Button.GetCaption(), m_Model.GetItemCaption(2));
}

TEST_F(ComboBoxButton, ByProgramARowIsActivatedToo)
{
    Open();
    Rows().SetCurrentItem(2);
    EXPECT_TRUE(m_Button.IsDropDownShown());
    EXPECT_EQ(m_Button.GetCaption(), "");
    Rows().SetCurrentItemEx(4);
    EXPECT_FALSE(m_Button.IsDropDownShown());
    EXPECT_EQ(m_Button.GetCaption(), "4");
}

TEST_F(ComboBoxButton, WithoutAModelTheCaptionStays)
{
    m_Button.SetCaption("before");
    Open();
    Rows().SetModel(nullptr);
    m_Button.ProcessClosePopup(1);
    EXPECT_FALSE(m_Button.IsDropDownShown());
    EXPECT_EQ(m_Button.GetCaption(), "before");
}

TEST_F(ComboBoxButton, TheCaptionAloneCanBeTaken)
{
    m_Button.UpdateCaption(6);
    EXPECT_EQ(m_Button.GetCaption(), "6");
    m_Button.UpdateCaption(20);
    m_Button.UpdateCaption(-1);
    EXPECT_EQ(m_Button.GetCaption(), "6") << "there is no such row";
    EXPECT_EQ(m_Button.GetPopup(), nullptr);
}

TEST_F(ComboBoxButton, EscapeAndAPressElsewhereCloseItAndChooseNothing)
{
    m_Host.Focus();
    Open();
    m_Host.Keyboard().Press(vkEscape);
    EXPECT_FALSE(m_Button.IsDropDownShown());
    Open();
    m_Host.Mouse().Click(150, -50);
    EXPECT_FALSE(m_Button.IsDropDownShown());
    EXPECT_EQ(m_Button.GetCaption(), "");
}

TEST_F(ComboBoxButton, ItsListScrollsWhatDoesNotFit)
{
    Open();
    EXPECT_TRUE(m_Button.GetList()->GetScrollBox().GetVertElement().IsScrollBarVisible());
    Rows().GetVertScroll()->SetStart(5);
    m_Host.Paint(Popup()->GetMemoryWindow());
    Choose(2);
    EXPECT_EQ(m_Button.GetCaption(), "7");
}

// What dies -----------------------------------------------------------------------------------------------------------------

TEST_F(ComboBoxButton, ItMayDieBeforeThePopupOpensWhileItIsOpenAndAfterwards)
{
    for (int when = 0; when < 4; ++when)
    {
        SCOPED_TRACE(when);
        CTestHost host(200, 100);
        auto* const button = new CComboBoxButton(host.Root(), {0, 40}, alTop);
        button->GetList()->GetViewer().SetModel(&m_Model);
        host.Paint();
        if (when > 0)
            host.Mouse().Press(*button, 5, 5);
        if (when > 1)
            host.RunPending();
        if (when > 2)
            host.Popup()->Close(0);
        delete button;
        EXPECT_EQ(host.Popup(), nullptr);
        host.RunPending();
        if (when > 0)
            host.Mouse().Release();
    }
}

TEST_F(ComboBoxButton, TheControlAndTheWindowMayDieWhileItIsOpen)
{
    for (bool const window : {false, true})
    {
        CTestHost host(200, 100);
        auto* const button = new CComboBoxButton(host.Root(), {0, 40}, alTop);
        button->GetList()->GetViewer().SetModel(&m_Model);
        host.Paint();
        host.Mouse().Press(*button, 5, 5);
        host.RunPending();
        EXPECT_TRUE(button->IsDropDownShown());
        if (window)
        {
            host.DestroyWindow();
            EXPECT_FALSE(button->IsDropDownShown());
            button->ScheduleDropDown();
            button->UpdateDropSize();
        }
        host.DestroyControl();
    }
}

TEST_F(ComboBoxButton, AListThatDiesLeavesAButtonThatStillOpensAndCloses)
{
    delete m_Button.GetList();
    EXPECT_EQ(m_Button.GetList(), nullptr);
    m_Button.ScheduleDropDown();
    m_Host.RunPending();
    m_Button.UpdateDropSize();
    m_Button.UpdateCaption(1);
    m_Button.ProcessClosePopup(1);
    EXPECT_EQ(m_Button.GetCaption(), "");
}

TEST_F(ComboBoxButton, AModelThatDiesWhileItIsOpenLeavesNoRows)
{
    auto model = std::make_unique<CLinesModel>(NumberedLines(4));
    Rows().SetModel(model.get());
    Open();
    model.reset();
    m_Host.Paint(Popup()->GetMemoryWindow());
    m_Button.UpdateDropSize();
    EXPECT_EQ(PopupSize().height, 0);
    m_Button.ProcessClosePopup(2);
    EXPECT_EQ(m_Button.GetCaption(), "");
}

// Signals of the way from the press to the choice; victims: the button, its list, its model, the control, the window.
TEST_F(ComboBoxButton, EachOfThemMayDieInEachSignalOfTheWay)
{
    for (int signal = 0; signal < 8; ++signal)
    {
        for (int victim = 0; victim < 5; ++victim)
        {
            SCOPED_TRACE("signal " + std::to_string(signal) + ", victim " + std::to_string(victim));
            auto model = std::make_unique<CLinesModel>(NumberedLines(20));
            CTestHost host(200, 100);
            auto* const button = new CComboBoxButton(host.Root(), {0, 40}, alTop);
            CListBoxViewer& rows = button->GetList()->GetViewer();
            rows.SetModel(model.get());
            rows.GetRowHandler().SetNotifySelection(true);
            host.Focus();
            host.Paint();
            bool buttonLives = true;
            bool fired = false;
            auto const death = Listen(button->m_SigDestroy, [&](CVisualElement*) { buttonLives = false; });
            auto const kill = [&] {
                if (fired)
                    return;
                fired = true;
                if (victim == 0)
                    delete button;
                else if (victim == 1)
                    delete button->GetList();
                else if (victim == 2)
                    model.reset();
                else if (victim == 3)
                    host.DestroyControl();
                else
                    host.DestroyWindow();
            };
            std::unique_ptr<subscriber_base_t> slot;
            if (signal == 0)
                slot = Listen(button->m_SigButtonDown, [&](CVisualElement*, int, int, int, MouseButton) { kill(); });
            else if (signal == 1)
                slot = Listen(rows.m_SigItemActivated, [&](int) { kill(); });
            else if (signal == 2)
                slot = Listen(rows.m_SigSelectionChanged, [&] { kill(); });
            else if (signal == 3)
                slot = Listen(rows.GetRowSelectionModel()->m_SigCurrentChanged, [&](int, int) { kill(); });
            else if (signal == 4)
                slot = Listen(rows.m_SigGetFocus, [&](CVisualElement*) { kill(); });
            else if (signal == 5)
                slot = Listen(button->m_SigLostFocus, [&](CVisualElement*) { kill(); });
            else if (signal == 6)
                slot = Listen(rows.m_SigButtonDown, [&](CVisualElement*, int, int, int, MouseButton) { kill(); });
            else
                slot = Listen(rows.m_SigSize, [&](CVisualElement*) { kill(); });
            host.Mouse().Click(5, 5);
            host.RunPending();
            if (host.HasWindow() && host.Popup())
            {
                host.Paint(host.Popup()->GetMemoryWindow());
                host.Mouse().Move(30, 60);
                host.Mouse().Click(30, 61);
            }
            host.RunPending();
            if (victim != 4)
                host.Mouse().Click(150, 95);
            EXPECT_TRUE(fired || signal == 5);
            if (buttonLives)
                button->IsDropDownShown();
        }
    }
}
