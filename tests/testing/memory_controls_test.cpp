#include "vexel/platform/memory/memory_edit.h"
#include "vexel/platform/memory/memory_popup.h"
#include "vexel/platform/memory/memory_scroll_bar.h"

#include "tests/testing/event_control.h"
#include "vexel/signals/notify.h"
#include "vexel/testing/test_kit.h"

#include <functional>
#include <memory>
#include <stdexcept>

namespace vexel
{
namespace
{

using namespace vexel::test;
using vexelbase::memory::CLineText;
using vexelbase::memory::CMemoryComboBox;
using vexelbase::memory::CMemoryEdit;
using vexelbase::memory::CMemoryPopup;
using vexelbase::memory::CMemoryScrollBar;
using vexelbase::memory::CMemorySystem;
using vexelbase::memory::CMemoryWindow;

// A window of 200 x 200 pixels at (0, 0) of the screen.
class MemoryControls : public ::testing::Test
{
protected:
    MemoryControls()
    {
        m_Window->RunFrame();
        m_Control.Take();
    }

    CMemorySystem m_System;
    std::unique_ptr<CMemoryWindow> m_Window =
        std::make_unique<CMemoryWindow>(m_System, point<int>{0, 0}, size<int>{200, 200});
    CEventControl m_Control{*m_Window};
};

// What all have in common ------------------------------------------------------------------------------------------

class CFocusLog : public subscriber_base_t
{
public:
    void FocusIn(ICustomControl*) { ++m_Count; }
    int m_Count = 0;
};

TEST_F(MemoryControls, ANewControlIsHiddenAndShownWhenAsked)
{
    vexel_ptr<IEdit> const edit = m_Window->CreateEdit(false);
    EXPECT_FALSE(edit->IsVisible());
    edit->SetPos(10, 20, 50, 16);
    EXPECT_EQ(edit->GetRect(), (rectangle<int>{10, 20, 60, 36}));
    edit->SetVisible(true);
    EXPECT_TRUE(edit->IsVisible());
    m_System.MovePointer({15, 25});
    EXPECT_EQ(m_System.GetNodeUnderPointer(), static_cast<CMemoryEdit*>(edit.get()));
}

TEST_F(MemoryControls, ANegativeSizeCountsAsNone)
{
    vexel_ptr<IEdit> const edit = m_Window->CreateEdit(false);
    edit->SetPos(10, 20, -1, -5);
    EXPECT_EQ(edit->GetRect(), (rectangle<int>{10, 20, 10, 20}));
}

TEST_F(MemoryControls, ShowingDuringAPaintWaitsForItsEndWhileIsVisibleAnswersAtOnce)
{
    vexel_ptr<IEdit> const edit = m_Window->CreateEdit(false);
    auto* const node = static_cast<CMemoryEdit*>(edit.get());
    bool wanted = false, shown = true;
    m_Control.m_Do = [&](std::string const& name) {
        if (name != "draw")
            return;
        edit->SetVisible(true);
        wanted = edit->IsVisible();
        shown = node->IsNodeVisible();
    };
    m_Window->InvalidateRect(0, 0, 200, 200);
    m_Window->RunFrame();
    EXPECT_TRUE(wanted);
    EXPECT_FALSE(shown);
    EXPECT_TRUE(node->IsNodeVisible());
}

TEST_F(MemoryControls, TheFocusComesByCodeByMouseAndByTabAndIsTold)
{
    vexel_ptr<IEdit> const first = m_Window->CreateEdit(false);
    vexel_ptr<IEdit> const second = m_Window->CreateEdit(false);
    CFocusLog log;
    second->m_SigFocusIn.connect(&log, &CFocusLog::FocusIn);
    first->SetPos(0, 0, 50, 16);
    second->SetPos(0, 20, 50, 16);
    first->SetVisible(true);
    second->SetVisible(true);

    m_Window->SetFocus();
    second->SetFocus();
    EXPECT_EQ(log.m_Count, 1);
    EXPECT_FALSE(m_Window->HasFocus());
    EXPECT_EQ(m_Control.Take(), "focus, blur");

    first->SetFocus();
    m_System.MovePointer({5, 25});
    m_System.PressButton(mbLeft);
    m_System.ReleaseButton(mbLeft);
    EXPECT_EQ(log.m_Count, 2);
    EXPECT_EQ(m_Control.Take(), "");

    first->SetFocus();
    m_System.KeyDown(vkTab);
    EXPECT_EQ(log.m_Count, 3);
    m_System.KeyDown(vkTab);  // behind the last one comes the window itself
    EXPECT_EQ(m_Control.Take(), "focus, custom 0");
}

TEST_F(MemoryControls, AHiddenControlGetsTheFocusWhenItIsShown)
{
    vexel_ptr<IEdit> const edit = m_Window->CreateEdit(false);
    CFocusLog log;
    edit->m_SigFocusIn.connect(&log, &CFocusLog::FocusIn);
    edit->SetFocus();
    EXPECT_EQ(log.m_Count, 0);
    edit->SetVisible(true);
    EXPECT_EQ(log.m_Count, 1);
}

TEST_F(MemoryControls, ButNotIfTheFocusWasGivenElsewhereMeanwhile)
{
    vexel_ptr<IEdit> const edit = m_Window->CreateEdit(false);
    edit->SetFocus();
    m_Window->SetFocus();
    edit->SetVisible(true);
    EXPECT_TRUE(m_Window->HasFocus());
}

TEST_F(MemoryControls, HidingOrDisablingTakesTheFocus)
{
    vexel_ptr<IEdit> const edit = m_Window->CreateEdit(false);
    edit->SetVisible(true);
    edit->SetFocus();
    edit->SetEnabled(false);
    EXPECT_EQ(m_System.GetFocusNode(), nullptr);
    edit->SetFocus();
    EXPECT_EQ(m_System.GetFocusNode(), nullptr);
    edit->SetEnabled(true);
    edit->SetFocus();
    edit->SetVisible(false);
    EXPECT_EQ(m_System.GetFocusNode(), nullptr);
}

TEST_F(MemoryControls, AControlOutlivesItsWindowHarmlessly)
{
    vexel_ptr<IEdit> const edit = m_Window->CreateEdit(false);
    edit->SetVisible(true);
    edit->SetFocus();
    m_Window->Destroy();
    EXPECT_EQ(m_System.GetFocusNode(), nullptr);
    edit->SetFocus();
    edit->SetText("still");
    edit->SetPos(1, 2, 3, 4);
    edit->SetVisible(false);
    EXPECT_EQ(m_System.GetFocusNode(), nullptr);
    EXPECT_EQ(edit->GetText(), "still");
    EXPECT_FALSE(m_Window->CreateEdit(false));
    EXPECT_FALSE(m_Window->CreateScrollBar(1));
    EXPECT_FALSE(m_Window->CreateComboBox(false));
    EXPECT_FALSE(m_Window->CreatePopup());
}

TEST_F(MemoryControls, TheHostFindsThem)
{
    CTestHost host(100, 100);
    vexel_ptr<IScrollBar> const bar = host.Window().CreateScrollBar(ISysWindow::stVertical);
    vexel_ptr<IEdit> const first = host.Window().CreateEdit(false);
    vexel_ptr<IEdit> const second = host.Window().CreateEdit(false);
    vexel_ptr<IPopup> const popup = host.Window().CreatePopup();
    EXPECT_EQ(host.Native<CMemoryEdit>(), first.get());
    EXPECT_EQ(host.Native<CMemoryEdit>(1), second.get());
    EXPECT_EQ(host.Native<CMemoryEdit>(2), nullptr);
    EXPECT_EQ(host.Native<CMemoryScrollBar>(), bar.get());
    EXPECT_EQ(host.Popup(), popup.get());
    EXPECT_EQ(host.Popup(1), nullptr);
}

// Scroll bars ------------------------------------------------------------------------------------------------------

class CScrollLog : public CScrollBarNotify
{
public:
    void ScrollBarOnScroll(CScrollEvent* event) override
    {
        m_Text += (m_Text.empty() ? "" : " ") + Describe(event->m_Position) + "/" + Describe(event->m_Action);
        if (m_Do)
            m_Do();
    }
    std::string Take()
    {
        std::string text;
        text.swap(m_Text);
        return text;
    }
    std::function<void()> m_Do;

private:
    std::string m_Text;
};

// A vertical bar, 16 x 132 pixels: arrows of 16, a track of 100. 0 to 200 with a page of 50: a thumb of 25, which goes
// 75 pixels for 150.
class MemoryScrollBar : public MemoryControls
{
protected:
    MemoryScrollBar()
    {
        m_Bar->SetPos(0, 0, 16, 132);
        m_Bar->SetVisible(true);
        SetRange(false);
        m_Bar->Subscribe(&m_Log, typeid(IScrollBarNotify), true);
    }
    void SetRange(bool inverted)
    {
        SScrollBarInfo info;
        info.maximum = 200;
        info.lineStep = 3;
        info.page = 50;
        info.position = 0;
        info.inverted = inverted;
        m_Bar->SetInfo(info);
    }
    void Press(int y)
    {
        m_System.MovePointer({5, y});
        m_System.PressButton(mbLeft);
    }
    CMemoryScrollBar& Bar() { return static_cast<CMemoryScrollBar&>(*m_Bar); }

    CScrollLog m_Log;
    vexel_ptr<IScrollBar> m_Bar = m_Window->CreateScrollBar(ISysWindow::stVertical);
};

TEST_F(MemoryScrollBar, KeepsTheRecordAsGiven)
{
    SScrollBarInfo info;
    info.mask = 7;
    info.minimum = 1;
    info.maximum = 10;
    info.lineStep = 2;
    info.page = 4;
    info.position = 99;
    info.inverted = true;
    m_Bar->SetInfo(info);
    SScrollBarInfo read;
    m_Bar->GetInfo(read);
    EXPECT_EQ(read.mask, 7u);
    EXPECT_EQ(read.minimum, 1);
    EXPECT_EQ(read.maximum, 10);
    EXPECT_EQ(read.lineStep, 2);
    EXPECT_EQ(read.page, 4);
    EXPECT_EQ(read.position, 99);
    EXPECT_TRUE(read.inverted);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(MemoryScrollBar, CutsAPositionToItsRangeAndFiresNothing)
{
    m_Bar->SetScrollPos(151);
    EXPECT_EQ(m_Bar->GetScrollPos(), 150);
    m_Bar->SetScrollPos(-1);
    EXPECT_EQ(m_Bar->GetScrollPos(), 0);
    m_Bar->SetScrollPos(72.5);
    EXPECT_EQ(m_Bar->GetScrollPos(), 72.5);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(MemoryScrollBar, TheThumbStandsByPositionAndPage)
{
    EXPECT_EQ(Bar().GetThumbPixels(), (range<int>{16, 41}));
    m_Bar->SetScrollPos(150);
    EXPECT_EQ(Bar().GetThumbPixels(), (range<int>{91, 116}));
    SetRange(true);
    EXPECT_EQ(Bar().GetThumbPixels(), (range<int>{91, 116}));
}

TEST_F(MemoryScrollBar, ArrowsStepByLinesAndTheTrackByPages)
{
    Press(131);
    EXPECT_EQ(m_Log.Take(), "3/2");
    Press(0);
    EXPECT_EQ(m_Log.Take(), "0/2");
    Press(0);
    EXPECT_EQ(m_Log.Take(), "");  // it stands at its end
    Press(115);
    EXPECT_EQ(m_Log.Take(), "50/3");
    Press(16);
    EXPECT_EQ(m_Log.Take(), "0/3");
    EXPECT_EQ(m_Control.Take(), "");
}

TEST_F(MemoryScrollBar, TheThumbIsDraggedEverywhereAndCutToItsRange)
{
    Press(20);
    m_System.MovePointer({500, 35});  // 15 pixels of 75: 30 of 150
    EXPECT_EQ(m_Log.Take(), "30/0");
    EXPECT_EQ(m_Bar->GetScrollPos(), 30);
    m_System.MovePointer({500, 1000});
    EXPECT_EQ(m_Log.Take(), "150/0");
    m_System.ReleaseButton(mbLeft);
    EXPECT_EQ(m_System.GetCaptureNode(), nullptr);
    m_System.MovePointer({5, 35});
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(MemoryScrollBar, AnInvertedBarTellsTheDistanceFromTheTop)
{
    SetRange(true);
    EXPECT_EQ(Bar().GetThumbPos(), 150);
    Bar().StepLine(-1);
    EXPECT_EQ(m_Log.Take(), "147/2");
    EXPECT_EQ(m_Bar->GetScrollPos(), 3);
}

TEST_F(MemoryScrollBar, TheWheelMovesThreeLinesANotch)
{
    m_Bar->SetScrollPos(20);
    m_System.MovePointer({5, 20});
    m_System.TurnWheel(1);
    EXPECT_EQ(m_Log.Take(), "11/2");
    m_System.TurnWheel(-1);
    EXPECT_EQ(m_Log.Take(), "20/2");
}

TEST_F(MemoryScrollBar, ADisabledBarDoesNotMove)
{
    m_Bar->SetEnabled(false);
    Press(131);
    Bar().StepPage(1);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(MemoryScrollBar, RefreshGivesItsThicknessBack)
{
    m_Bar->SetPos(3, 4, 5, 60);
    m_Bar->Refresh();
    EXPECT_EQ(m_Bar->GetRect(), (rectangle<int>{3, 4, 19, 64}));
    vexel_ptr<IScrollBar> const lying = m_Window->CreateScrollBar(ISysWindow::stHorizontal);
    m_System.SetMetric(ISystem::smScrollBarHeight, 20);
    lying->SetPos(3, 4, 60, 5);
    lying->Refresh();
    EXPECT_EQ(lying->GetRect(), (rectangle<int>{3, 4, 63, 24}));
}

TEST_F(MemoryScrollBar, AListenerMayDropTheLastReference)
{
    m_Log.m_Do = [&] { m_Bar.reset(); };
    Press(131);
    EXPECT_EQ(m_Log.Take(), "3/2");
    m_System.ReleaseButton(mbLeft);
}

TEST_F(MemoryScrollBar, AListenersExceptionIsReported)
{
    m_Log.m_Do = [] { throw std::runtime_error("scroll failed"); };
    CExpectException once("scroll failed");
    Bar().StepLine(1);
}

TEST_F(MemoryScrollBar, WithoutARangeTheThumbFillsTheTrack)
{
    m_Bar->SetInfo({});
    EXPECT_EQ(Bar().GetThumbPixels(), (range<int>{16, 116}));
    Bar().StepPage(1);
    Bar().DragThumb(5);
    EXPECT_EQ(m_Log.Take(), "");
}

// Line text --------------------------------------------------------------------------------------------------------

TEST(LineText, InsertsAtTheCaretAndInPlaceOfTheSelection)
{
    CLineText line;
    EXPECT_TRUE(line.SetText("abcd"));
    EXPECT_FALSE(line.SetText("abcd"));
    EXPECT_EQ(line.GetCaret(), 4);
    line.Select(1, 2);
    EXPECT_EQ(line.GetSelectedText(), "bc");
    EXPECT_TRUE(line.Insert("X"));
    EXPECT_EQ(line.GetText(), "aXd");
    EXPECT_EQ(line.GetCaret(), 2);
    line.MoveCaret(0, false);
    EXPECT_FALSE(line.Insert("\xC3"));  // half a character has no effect but to wait
    EXPECT_EQ(line.GetText(), "aXd");
    EXPECT_TRUE(line.Insert("\xA4"));
    EXPECT_EQ(line.GetText(), "\xC3\xA4" "aXd");
    EXPECT_EQ(line.GetLength(), 4);
}

TEST(LineText, CountsCharactersForSelectionLimitAndErasing)
{
    CLineText line;
    line.SetText("\xC3\xA4" "bc");
    line.SetMaxLength(4);
    EXPECT_TRUE(line.Insert("de"));
    EXPECT_EQ(line.GetText(), "\xC3\xA4" "bcd");
    EXPECT_FALSE(line.Insert("f"));
    line.MoveCaret(1, false);
    EXPECT_TRUE(line.Erase(-1));
    EXPECT_EQ(line.GetText(), "bcd");
    EXPECT_FALSE(line.Erase(-1));
    EXPECT_TRUE(line.Erase(1));
    EXPECT_EQ(line.GetText(), "cd");
    line.Select(1, 99);
    EXPECT_EQ(line.GetSelectionLength(), 1);
    EXPECT_TRUE(line.Erase(-1));
    EXPECT_EQ(line.GetText(), "c");
    line.Select(-5, 99);
    EXPECT_EQ(line.GetSelectedText(), "c");
}

TEST(LineText, MovesTheCaretWithOrWithoutTheSelection)
{
    CLineText line;
    line.SetText("abcd");
    line.MoveCaret(2, true);
    EXPECT_EQ(line.GetSelectedText(), "cd");
    line.MoveCaret(3, true);
    EXPECT_EQ(line.GetSelectedText(), "d");
    line.MoveCaret(-1, false);
    EXPECT_EQ(line.GetSelectionLength(), 0);
    EXPECT_EQ(line.GetCaret(), 0);
    line.MoveCaret(99, false);
    EXPECT_EQ(line.GetCaret(), 4);
}

// Edits ------------------------------------------------------------------------------------------------------------

class CEditLog : public CEditNotify
{
public:
    void EditOnChangeText(CChangeTextEvent*) override { Note("change"); }
    void EditOnChar(CEditKeyDownEvent* event) override
    {
        Note("char " + Describe(event->m_Character));
        if (m_Refuse)
            event->SetContinue(false);
    }
    void EditOnKeyDown(CEditKeyDownEvent* event) override
    {
        Note("key " + Describe(event->m_VirtualKey));
        if (m_Refuse)
            event->SetContinue(false);
    }
    void EditOnReturnPress(CEvent*) override { Note("return"); }
    void EditOnVisibleChange(CVisibleChangeEvent*) override { Note("visible"); }
    void EditOnMouseWheel(CEditMouseWheelEvent* event) override { Note("wheel " + Describe(event->m_Delta)); }

    std::string Take()
    {
        std::string text;
        text.swap(m_Text);
        return text;
    }
    std::function<void(std::string const&)> m_Do;
    bool m_Refuse = false;

private:
    void Note(std::string const& text)
    {
        m_Text += (m_Text.empty() ? "" : ", ") + text;
        if (m_Do)
            m_Do(text);
    }

    std::string m_Text;
};

class MemoryEdit : public ::testing::Test
{
protected:
    MemoryEdit()
    {
        m_Edit->SetVisible(true);
        m_Edit->SetFocus();
        m_Edit->Subscribe(&m_Log, typeid(IEditNotify), true);
    }

    CTestHost m_Host{200, 100};
    CEditLog m_Log;
    vexel_ptr<IEdit> m_Edit = m_Host.Window().CreateEdit(false);
};

TEST_F(MemoryEdit, TextSetByCodeFiresOnlyOnAChange)
{
    m_Edit->SetText("one");
    m_Edit->SetText("one");
    EXPECT_EQ(m_Edit->GetText(), "one");
    EXPECT_EQ(m_Log.Take(), "change");
}

TEST_F(MemoryEdit, TypingFiresKeyCharacterAndChange)
{
    m_Host.Keyboard().Type("aB");
    EXPECT_EQ(m_Edit->GetText(), "aB");
    EXPECT_EQ(m_Log.Take(), "key 65, char 'a', change, key 66, char 'B', change");
    m_Host.Keyboard().Type("\xC3\xA4");
    EXPECT_EQ(m_Edit->GetText(), "aB\xC3\xA4");
    EXPECT_EQ(m_Log.Take(), "char '\\xC3', char '\\xA4', change");
}

TEST_F(MemoryEdit, KeysEdit)
{
    m_Edit->SetText("abcd");
    m_Log.Take();
    m_Host.Keyboard().Press(vkBackspace);
    m_Host.Keyboard().Press(vkHome);
    m_Host.Keyboard().Press(vkDelete);
    m_Host.Keyboard().Press(vkRight);
    m_Host.Keyboard().Press(vkEnd, ksShift);
    m_Host.Keyboard().Type("x");
    EXPECT_EQ(m_Edit->GetText(), "bx");
    EXPECT_EQ(m_Log.Take(), "key 8, change, key 36, key 46, change, key 39, key 35, key 88, char 'x', change");
}

TEST_F(MemoryEdit, TheClipboardCopiesCutsAndPastes)
{
    m_Edit->SetText("word");
    m_Host.Keyboard().Press('A', ksControl);
    m_Host.Keyboard().Press('C', ksControl);
    EXPECT_EQ(CTestHost::System().GetClipboard()->GetText(), "word");
    m_Host.Keyboard().Press('X', ksControl);
    EXPECT_EQ(m_Edit->GetText(), "");
    m_Host.Keyboard().Press('V', ksControl);
    m_Host.Keyboard().Press('V', ksControl);
    EXPECT_EQ(m_Edit->GetText(), "wordword");
}

TEST_F(MemoryEdit, ReturnAndEscapeAreTold)
{
    m_Host.Keyboard().Press(vkReturn);
    m_Host.Keyboard().Press(vkEscape);
    EXPECT_EQ(m_Log.Take(), "key 13, return, key 27");
}

TEST_F(MemoryEdit, AClearedContinueFlagRefusesKeysAndCharacters)
{
    m_Log.m_Refuse = true;
    m_Edit->SetText("a");
    m_Log.Take();
    m_Host.Keyboard().Press(vkBackspace);
    m_Host.Keyboard().Press(vkReturn);
    m_Host.Keyboard().Type("x");
    EXPECT_EQ(m_Edit->GetText(), "a");
    EXPECT_EQ(m_Log.Take(), "key 8, key 13, key 88, char 'x'");
}

TEST_F(MemoryEdit, AReadOnlyEditCannotBeTypedInto)
{
    m_Edit->SetText("abc");
    m_Edit->SetReadOnly(true);
    m_Host.Keyboard().Type("x");
    m_Host.Keyboard().Press(vkBackspace);
    m_Host.Keyboard().Press('A', ksControl);
    m_Host.Keyboard().Press('X', ksControl);
    EXPECT_EQ(m_Edit->GetText(), "abc");
    EXPECT_EQ(CTestHost::System().GetClipboard()->GetText(), "abc");
    m_Edit->SetText("by code");
    EXPECT_EQ(m_Edit->GetText(), "by code");
}

TEST_F(MemoryEdit, TypingStopsAtTheGreatestLength)
{
    m_Edit->SetMaxLength(3);
    m_Host.Keyboard().Type("abcd");
    EXPECT_EQ(m_Edit->GetText(), "abc");
    m_Edit->SetMaxLength(0);
    m_Host.Keyboard().Type("d");
    EXPECT_EQ(m_Edit->GetText(), "abcd");
}

TEST_F(MemoryEdit, SelectionIsCutToTheText)
{
    auto const& line = static_cast<CMemoryEdit&>(*m_Edit).GetLine();
    m_Edit->SetText("abc");
    m_Edit->SelectAll();
    EXPECT_EQ(line.GetSelectedText(), "abc");
    m_Edit->SetSelection(1, 99);
    EXPECT_EQ(line.GetSelectedText(), "bc");
}

TEST_F(MemoryEdit, ShowingAndTheWheelAreTold)
{
    m_Edit->SetVisible(false);
    m_Edit->SetVisible(true);
    EXPECT_EQ(m_Log.Take(), "visible, visible");
    m_Edit->SetPos(0, 0, 50, 20);
    m_Host.Mouse().Wheel(5, 5, -1);
    EXPECT_EQ(m_Log.Take(), "wheel -1");
}

TEST_F(MemoryEdit, RefreshMakesItAsHighAsItsText)
{
    m_Edit->SetPos(1, 2, 50, 5);
    m_Edit->Refresh();
    EXPECT_EQ(m_Edit->GetRect(), (rectangle<int>{1, 2, 51, 18}));  // 8 and twice 4
}

TEST_F(MemoryEdit, ATabLeavesIt)
{
    m_Host.Keyboard().Tab();
    EXPECT_TRUE(m_Host.Window().HasFocus());
    m_Host.Keyboard().Tab(false);
    EXPECT_FALSE(m_Host.Window().HasFocus());
}

TEST_F(MemoryEdit, AListenerMayDropTheLastReferenceInAnyEvent)
{
    for (char const* const when : {"key 65", "char 'a'", "change", "return", "visible"})
    {
        vexel_ptr<IEdit> edit = m_Host.Window().CreateEdit(false);
        CEditLog log;
        log.m_Do = [&](std::string const& what) {
            if (what == when)
                edit.reset();
        };
        edit->Subscribe(&log, typeid(IEditNotify), true);
        edit->SetVisible(true);
        if (edit)
        {
            edit->SetFocus();
            m_Host.Keyboard().Type("a");
        }
        if (edit)
            m_Host.Keyboard().Press(vkReturn);
        EXPECT_FALSE(edit) << when;
    }
}

// Combo boxes ------------------------------------------------------------------------------------------------------

class MemoryComboBox : public ::testing::Test
{
protected:
    MemoryComboBox() { Use(true); }
    void Use(bool editable)
    {
        m_Box = m_Host.Window().CreateComboBox(editable);
        m_Box->AddItem("one");
        m_Box->AddItem("two");
        m_Box->SetPos(0, 0, 60, 16);
        m_Box->SetVisible(true);
        m_Box->SetFocus();
        m_Box->Subscribe(&m_Log, typeid(IEditNotify), true);
    }
    CMemoryComboBox& Box() { return static_cast<CMemoryComboBox&>(*m_Box); }

    CTestHost m_Host{200, 100};
    CEditLog m_Log;
    vexel_ptr<IComboBox> m_Box;
};

TEST_F(MemoryComboBox, KeepsItsItems)
{
    EXPECT_TRUE(m_Box->IsEditable());
    EXPECT_EQ(m_Box->GetItemCount(), 2);
    EXPECT_EQ(m_Box->GetItemText(1), "two");
    EXPECT_EQ(m_Box->GetItemText(2), "");
    EXPECT_EQ(m_Box->GetItemText(-1), "");
    EXPECT_EQ(m_Box->GetCurrentItem(), -1);
    m_Box->SetOption(false);
    EXPECT_FALSE(Box().GetOption());
    m_Box->SetCurrentItem(1);
    m_Box->ClearItems();
    EXPECT_EQ(m_Box->GetItemCount(), 0);
    EXPECT_EQ(m_Box->GetCurrentItem(), -1);
}

TEST_F(MemoryComboBox, TheCurrentItemGivesTheText)
{
    m_Box->SetCurrentItem(1);
    EXPECT_EQ(m_Box->GetText(), "two");
    EXPECT_EQ(m_Log.Take(), "change");
    m_Box->SetCurrentItem(7);
    EXPECT_EQ(m_Box->GetCurrentItem(), -1);
    EXPECT_EQ(m_Box->GetText(), "two");
}

TEST_F(MemoryComboBox, TheListOpensAndClosesAndIsChosenFrom)
{
    m_Box->ShowDropDown(true);
    m_Box->ShowDropDown(true);
    EXPECT_TRUE(Box().IsDropDownShown());
    EXPECT_EQ(Box().GetDropDownCount(), 1);
    Box().Choose(0);
    EXPECT_FALSE(Box().IsDropDownShown());
    EXPECT_EQ(m_Box->GetText(), "one");
    m_Host.Keyboard().Press(vkDown, ksAlt);
    EXPECT_TRUE(Box().IsDropDownShown());
    m_Host.Keyboard().Press(vkEscape);
    EXPECT_FALSE(Box().IsDropDownShown());
    m_Box->ShowDropDown(true);
    m_Host.Focus();
    EXPECT_FALSE(Box().IsDropDownShown());
}

TEST_F(MemoryComboBox, UpAndDownTakeTheNextItem)
{
    m_Host.Keyboard().Press(vkDown);
    m_Host.Keyboard().Press(vkDown);
    m_Host.Keyboard().Press(vkDown);
    EXPECT_EQ(m_Box->GetCurrentItem(), 1);
    m_Host.Keyboard().Press(vkUp);
    m_Host.Keyboard().Press(vkUp);
    EXPECT_EQ(m_Box->GetCurrentItem(), 0);
}

TEST_F(MemoryComboBox, OnlyAnEditableOneIsTypedInto)
{
    m_Host.Keyboard().Type("x");
    EXPECT_EQ(m_Box->GetText(), "x");
    Use(false);
    EXPECT_FALSE(m_Box->IsEditable());
    m_Host.Keyboard().Type("x");
    EXPECT_EQ(m_Box->GetText(), "");
}

TEST_F(MemoryComboBox, APressOnTheArrowOpensAndElsewhereOnlyIfItCanOnlyChoose)
{
    m_Host.Mouse().Click(10, 5);
    EXPECT_FALSE(Box().IsDropDownShown());
    m_Host.Mouse().Click(50, 5);
    EXPECT_TRUE(Box().IsDropDownShown());
    Use(false);
    m_Host.Mouse().Click(10, 5);
    EXPECT_TRUE(Box().IsDropDownShown());
}

// Popups -----------------------------------------------------------------------------------------------------------

class MemoryPopup : public MemoryControls
{
protected:
    CMemoryPopup& Popup() { return static_cast<CMemoryPopup&>(*m_Popup); }

    vexel_ptr<IPopup> m_Popup = m_Window->CreatePopup();
    std::unique_ptr<CEventControl> m_Inner = std::make_unique<CEventControl>(Popup().GetMemoryWindow());
};

TEST_F(MemoryPopup, IsHiddenUntilItIsPlaced)
{
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_EQ(m_Popup->GetOwner(), m_Window.get());
    m_Popup->SetSize(50, 30);
    PositionPopup(m_Popup, {10, 10, 60, 20});
    EXPECT_TRUE(m_Popup->IsVisible());
    EXPECT_EQ(Popup().GetMemoryWindow().GetScreenPos(), (point<int>{10, 20}));
    EXPECT_EQ(m_Popup->GetWindow()->GetRect(), (rectangle<int>{0, 0, 50, 30}));
    m_System.MovePointer({15, 25});
    EXPECT_EQ(m_Inner->Take(), "resize, moved, show, focus, move 5 5 0 0");
}

TEST_F(MemoryPopup, TakesTheFocusAndGivesItBack)
{
    m_Window->SetFocus();
    m_Control.Take();
    m_Popup->Show({10, 20});
    EXPECT_EQ(m_Control.Take(), "blur");
    m_System.KeyDown(vkDown);
    EXPECT_EQ(m_Inner->Take(), "moved, show, focus, key 40 0");
    m_Popup->Close(3);
    EXPECT_EQ(m_Popup->GetCloseCode(), 3);
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_EQ(m_Control.Take(), "focus");
    EXPECT_EQ(m_Inner->Take(), "blur, hide");
}

TEST_F(MemoryPopup, ShownAgainItOnlyMoves)
{
    m_Popup->Show({10, 20});
    m_Inner->Take();
    m_Popup->Show({10, 20});
    EXPECT_EQ(m_Inner->Take(), "");
    m_Popup->Show({20, 20});
    EXPECT_EQ(m_Inner->Take(), "moved");
}

TEST_F(MemoryPopup, APressOutsideClosesItBeforeThePressIsTold)
{
    m_Popup->SetSize(50, 30);
    m_Popup->Show({10, 20});
    m_System.MovePointer({15, 25});
    m_System.PressButton(mbLeft);
    m_System.ReleaseButton(mbLeft);
    EXPECT_TRUE(m_Popup->IsVisible());
    m_System.MovePointer({150, 150});
    m_Control.Take();
    m_Control.m_Do = [&](std::string const& name) {
        if (name == "down")
            m_Control.Note(m_Popup->IsVisible() ? "open" : "closed");
    };
    m_System.PressButton(mbLeft);
    EXPECT_EQ(m_Control.Take(), "down 150 150 1 1, closed");
    EXPECT_EQ(m_Popup->GetCloseCode(), 0);
}

TEST_F(MemoryPopup, AnEscapeThatNobodyWantsClosesIt)
{
    m_Popup->Show({10, 20});
    m_Inner->m_ConsumeKeys = true;
    m_System.KeyDown(vkEscape);
    EXPECT_TRUE(m_Popup->IsVisible());
    m_Inner->m_ConsumeKeys = false;
    m_System.KeyDown(vkEscape);
    EXPECT_FALSE(m_Popup->IsVisible());
}

TEST_F(MemoryPopup, TabStaysInIt)
{
    m_Popup->Show({10, 20});
    m_System.KeyDown(vkTab);
    EXPECT_TRUE(m_Popup->GetWindow()->HasFocus());
}

TEST_F(MemoryPopup, ClosesWithItsOwner)
{
    m_Popup->Show({10, 20});
    m_Window->Destroy();
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_EQ(m_Popup->GetOwner(), nullptr);
    m_Popup->Close(1);
    PositionPopup(m_Popup, {0, 0, 10, 10});
    EXPECT_FALSE(m_Popup->IsVisible());
}

TEST_F(MemoryPopup, ReleasedItDestroysItsWindow)
{
    m_Popup->Show({10, 20});
    m_Inner->Take();
    m_Popup.reset();
    EXPECT_EQ(m_Inner->Take(), "blur, hide, destroy");
    EXPECT_EQ(m_Inner->GetWindow(), nullptr);
    m_System.PressButton(mbLeft);
}

TEST_F(MemoryPopup, APopupOfAPopupStaysOpenWhileTheInnerOneIsPressed)
{
    m_Popup->SetSize(50, 50);
    m_Popup->Show({10, 20});
    vexel_ptr<IPopup> const inner = m_Popup->GetWindow()->CreatePopup();
    inner->SetSize(20, 20);
    inner->Show({40, 40});
    m_System.MovePointer({45, 45});
    m_System.PressButton(mbLeft);
    EXPECT_TRUE(inner->IsVisible());
    EXPECT_TRUE(m_Popup->IsVisible());
    m_System.MovePointer({12, 22});
    m_System.PressButton(mbLeft);
    EXPECT_FALSE(inner->IsVisible());
    EXPECT_TRUE(m_Popup->IsVisible());
}

} // namespace
} // namespace vexel
