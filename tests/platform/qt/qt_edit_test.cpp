#include "tests/platform/qt/native_test_kit.h"
#include "vexel/platform/qt/detail/native_node.h"
#include "vexel/platform/system.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace vexelbase::qt::test
{

namespace
{

class QtEdit : public testing::Test
{
protected:
    QtEdit()
    {
        m_Edit->SetPos(10, 20, 100, 24);
        m_Edit->SetVisible(true);
        m_Edit->SetFocus();
        m_Edit->Subscribe(&m_Words, typeid(IEditNotify), true);
        m_Hosted.Control().Take();
    }
    QLineEdit& Native() { return *FindNative<QLineEdit>(m_Hosted); }

    bool const m_Parked = (ParkPointer(), true);  // before there is anything to enter
    CHosted m_Hosted{200, 200};
    CEditWords m_Words;
    vexel_ptr<IEdit> m_Edit = m_Hosted.Window().CreateEdit(false);
};

}  // namespace

// What all have in common ------------------------------------------------------------------------------------------

TEST(QtNativePlace, WindowPixelsArePartedByTheRatioAndNeighboursMeet)
{
    EXPECT_EQ(ToQtRect({10, 20, 60, 36}, 1.0), QRect(10, 20, 50, 16));
    EXPECT_EQ(ToQtRect({10, 20, 60, 36}, 2.0), QRect(5, 10, 25, 8));
    QRect const left = ToQtRect({0, 0, 50, 30}, 1.5);
    QRect const right = ToQtRect({50, 0, 101, 30}, 1.5);
    EXPECT_EQ(left, QRect(0, 0, 33, 20));
    EXPECT_EQ(right, QRect(33, 0, 34, 20));
    EXPECT_EQ(ToQtRect({-3, -3, -1, -1}, 2.0), QRect(-1, -1, 1, 1));
}

TEST_F(QtEdit, IsAQtLineEditInTheWindow)
{
    EXPECT_EQ(Native().geometry(), QRect(10, 20, 100, 24));
    EXPECT_EQ(m_Edit->GetRect(), (rectangle<int>{10, 20, 110, 44}));
    EXPECT_TRUE(Native().isVisible());
    EXPECT_TRUE(Native().hasFocus());
    m_Edit->SetVisible(false);
    EXPECT_FALSE(Native().isVisible());
    EXPECT_FALSE(m_Edit->IsVisible());
}

TEST_F(QtEdit, ANegativeSizeCountsAsNone)
{
    m_Edit->SetPos(10, 20, -1, -5);
    EXPECT_EQ(m_Edit->GetRect(), (rectangle<int>{10, 20, 10, 20}));
}

TEST_F(QtEdit, WhatIsAskedDuringAPaintHappensAfterItWhileTheAnswersComeAtOnce)
{
    bool wanted = true;
    rectangle<int> told;
    QLineEdit* const native = m_Hosted.Widget()->findChildren<QLineEdit*>().front();
    m_Hosted.Control().m_Draw = [&](IPainter*) {
        m_Edit->SetVisible(false);
        m_Edit->SetPos(1, 2, 30, 40);
        wanted = m_Edit->IsVisible();
        told = m_Edit->GetRect();
        EXPECT_TRUE(native->isVisible());
        EXPECT_EQ(native->geometry(), QRect(10, 20, 100, 24));
    };
    m_Hosted.Window().InvalidateRect(0, 0, 200, 200);
    m_Hosted.Window().UpdateNow();
    EXPECT_FALSE(wanted);
    EXPECT_EQ(told, (rectangle<int>{1, 2, 31, 42}));
    EXPECT_FALSE(native->isVisible());
    EXPECT_EQ(native->geometry(), QRect(1, 2, 30, 40));
}

TEST_F(QtEdit, TheFocusIsToldAndTheWindowLosesIt)
{
    CFocusCount count(*m_Edit);
    m_Hosted.Window().SetFocus();
    EXPECT_EQ(m_Hosted.Control().Take(), "focus");
    m_Edit->SetFocus();
    EXPECT_EQ(count.m_Count, 1);
    EXPECT_FALSE(m_Hosted.Window().HasFocus());
    EXPECT_EQ(m_Hosted.Control().Take(), "nofocus");
    m_Edit->SetFocus();
    EXPECT_EQ(count.m_Count, 1);
}

TEST_F(QtEdit, AHiddenControlGetsTheFocusWhenItIsShown)
{
    vexel_ptr<IEdit> const other = m_Hosted.Window().CreateEdit(false);
    CFocusCount count(*other);
    other->SetFocus();
    EXPECT_EQ(count.m_Count, 0);
    EXPECT_TRUE(m_Hosted.Widget()->findChildren<QLineEdit*>().front()->hasFocus());
    other->SetVisible(true);
    EXPECT_EQ(count.m_Count, 1);
}

TEST_F(QtEdit, ButNotIfTheFocusWasGivenElsewhereMeanwhile)
{
    vexel_ptr<IEdit> const other = m_Hosted.Window().CreateEdit(false);
    other->SetFocus();
    m_Hosted.Window().SetFocus();
    other->SetVisible(true);
    EXPECT_TRUE(m_Hosted.Window().HasFocus());
}

TEST_F(QtEdit, HidingOrDisablingGivesTheFocusToNobody)
{
    vexel_ptr<IEdit> const other = m_Hosted.Window().CreateEdit(false);
    other->SetVisible(true);
    m_Edit->SetEnabled(false);
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
    m_Edit->SetFocus();
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
    m_Edit->SetEnabled(true);
    m_Edit->SetFocus();
    EXPECT_NE(QApplication::focusWidget(), nullptr);
    m_Edit->SetVisible(false);
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
}

TEST_F(QtEdit, ThePointerThatEntersItHasLeftTheWindow)
{
    QPointF const at(1, 1);
    QEnterEvent entered(at, at, at);
    QCoreApplication::sendEvent(&Native(), &entered);
    EXPECT_EQ(m_Hosted.Control().Take(), "leave");
}

TEST_F(QtEdit, TheWindowGetsNoneOfItsInput)
{
    ClickAt(&Native(), 5, 5);
    SendMouse(&Native(), QEvent::MouseMove, 6, 5);
    PressKey(&Native(), Qt::Key_A, Qt::NoModifier, "a");
    PressKey(&Native(), Qt::Key_Escape);
    PressKey(&Native(), Qt::Key_Down);
    PressKey(&Native(), Qt::Key_F5);
    EXPECT_EQ(m_Hosted.Control().Take(), "");
}

TEST_F(QtEdit, OutlivesItsWindowHarmlessly)
{
    m_Edit->SetText("still");
    m_Hosted.m_Window.reset();
    Settle();
    EXPECT_EQ(m_Edit->GetText(), "still");
    m_Words.Take();
    m_Edit->SetText("other");
    EXPECT_EQ(m_Words.Take(), "change");
    m_Edit->SetFocus();
    m_Edit->SetPos(1, 2, 3, 4);
    m_Edit->SetVisible(false);
    m_Edit->SetEnabled(false);
    m_Edit->SelectAll();
    m_Edit->SetSelection(1, 1);
    m_Edit->SetReadOnly(true);
    m_Edit->SetMaxLength(2);
    m_Edit->Refresh();
    EXPECT_EQ(m_Edit->GetText(), "other");
    EXPECT_FALSE(m_Edit->IsVisible());
}

TEST_F(QtEdit, OutlivesTheHostWidget)
{
    auto top = std::make_unique<QWidget>();
    std::unique_ptr<ISysWindow> const window = HostWindow(top.get());
    vexel_ptr<IEdit> const edit = window->CreateEdit(false);
    vexel_ptr<IComboBox> const box = window->CreateComboBox(true);
    vexel_ptr<IPopup> const popup = window->CreatePopup();
    edit->SetText("still");
    box->AddItem("one");
    top.reset();
    edit->SetText("there");
    EXPECT_EQ(edit->GetText(), "there");
    box->AddItem("two");
    box->SetCurrentItem(1);
    box->ShowDropDown(true);
    EXPECT_EQ(box->GetText(), "two");
    EXPECT_FALSE(window->CreateEdit(false));
    EXPECT_FALSE(window->CreateScrollBar(1));
    EXPECT_FALSE(window->CreateComboBox(false));
    EXPECT_FALSE(window->CreatePopup());
    EXPECT_EQ(popup->GetOwner(), nullptr);
}

// Edits ------------------------------------------------------------------------------------------------------------

TEST_F(QtEdit, TextSetByCodeFiresOnlyOnAChange)
{
    m_Edit->SetText("\xC3\xA4 one");
    m_Edit->SetText("\xC3\xA4 one");
    EXPECT_EQ(m_Edit->GetText(), "\xC3\xA4 one");
    EXPECT_EQ(Native().text(), QString::fromUtf8("\xC3\xA4 one"));
    EXPECT_EQ(m_Words.Take(), "change");
}

TEST_F(QtEdit, TypingFiresKeyCharacterAndChange)
{
    TypeText(&Native(), "a");
    EXPECT_EQ(m_Words.Take(), "key(65,0) char(97) change");
    PressKey(&Native(), Qt::Key_B, Qt::ShiftModifier, "B");
    EXPECT_EQ(m_Words.Take(), "key(66,256) char(66) change");
    EXPECT_EQ(m_Edit->GetText(), "aB");
}

TEST_F(QtEdit, AnInputMethodsCharactersFireByteByByte)
{
    QInputMethodEvent composing("k", {});
    QCoreApplication::sendEvent(&Native(), &composing);
    EXPECT_EQ(m_Edit->GetText(), "");
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("\xC3\xA4"));
    QCoreApplication::sendEvent(&Native(), &event);
    EXPECT_EQ(m_Edit->GetText(), "\xC3\xA4");
    EXPECT_EQ(m_Words.Take(), "char(195) char(164) change");
}

TEST_F(QtEdit, KeysEditAsQtDoes)
{
    m_Edit->SetText("abcd");
    m_Words.Take();
    PressKey(&Native(), Qt::Key_Backspace);
    EXPECT_EQ(m_Edit->GetText(), "abc");
    PressKey(&Native(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_Edit->GetText(), "abcd");
    PressKey(&Native(), Qt::Key_A, Qt::ControlModifier);
    PressKey(&Native(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(GetCurrentSystem()->GetClipboard()->GetText(), "abcd");
    PressKey(&Native(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_Edit->GetText(), "abcd");
    EXPECT_EQ(m_Words.Take(), "key(8,0) change key(90,512) change key(65,512) key(88,512) change key(86,512) change");
}

TEST_F(QtEdit, ReturnAndEscapeAreTold)
{
    PressKey(&Native(), Qt::Key_Return, Qt::NoModifier, "\r");
    PressKey(&Native(), Qt::Key_Escape, Qt::NoModifier, "\x1B");
    EXPECT_EQ(m_Words.Take(), "key(13,0) return key(27,0)");
}

TEST_F(QtEdit, AClearedContinueFlagRefusesKeysAndCharacters)
{
    m_Edit->SetText("a");
    m_Words.Take();
    m_Words.m_Refuse = "key";
    PressKey(&Native(), Qt::Key_Backspace);
    PressKey(&Native(), Qt::Key_Return);
    PressKey(&Native(), Qt::Key_Tab);
    EXPECT_TRUE(Native().hasFocus());
    m_Words.m_Refuse = "char";
    TypeText(&Native(), "x");
    QInputMethodEvent event;
    event.setCommitString("y");
    QCoreApplication::sendEvent(&Native(), &event);
    EXPECT_EQ(m_Edit->GetText(), "a");
    EXPECT_EQ(m_Words.Take(), "key(8,0) key(13,0) key(9,0) key(88,0) char(120) char(121)");
}

TEST_F(QtEdit, AReadOnlyEditCannotBeTypedInto)
{
    m_Edit->SetText("abc");
    m_Edit->SetReadOnly(true);
    TypeText(&Native(), "x");
    PressKey(&Native(), Qt::Key_Backspace);
    EXPECT_EQ(m_Edit->GetText(), "abc");
    m_Edit->SetText("by code");
    EXPECT_EQ(m_Edit->GetText(), "by code");
}

TEST_F(QtEdit, TypingStopsAtTheGreatestLengthAndWhatStandsThereStays)
{
    m_Edit->SetMaxLength(3);
    TypeText(&Native(), "abcd");
    EXPECT_EQ(m_Edit->GetText(), "abc");
    m_Edit->SetMaxLength(1);
    EXPECT_EQ(m_Edit->GetText(), "abc");
    m_Edit->SetMaxLength(0);
    TypeText(&Native(), "d");
    EXPECT_EQ(m_Edit->GetText(), "abcd");
}

TEST_F(QtEdit, SelectionIsCountedInCharactersAndCutToTheText)
{
    m_Edit->SetText("\xF0\x9F\x99\x82"
                    "bc");
    m_Edit->SetSelection(1, 1);
    EXPECT_EQ(Native().selectedText(), "b");
    m_Edit->SetSelection(1, 99);
    EXPECT_EQ(Native().selectedText(), "bc");
    m_Edit->SetSelection(0, 1);
    EXPECT_EQ(Native().selectedText().size(), 2);
    m_Edit->SetSelection(2, 0);
    EXPECT_EQ(Native().selectedText(), "");
    EXPECT_EQ(Native().cursorPosition(), 3);
    m_Edit->SelectAll();
    EXPECT_EQ(Native().selectedText().size(), 4);
}

TEST_F(QtEdit, ShowingIsTold)
{
    m_Edit->SetVisible(false);
    m_Edit->SetVisible(false);
    m_Edit->SetVisible(true);
    EXPECT_EQ(m_Words.Take(), "visible visible");
}

TEST_F(QtEdit, TheWheelIsToldAndGoesOnToTheWindowUnlessItWasDealtWith)
{
    EXPECT_FALSE(TurnWheel(&Native(), -1));  // then Qt asks the parent
    EXPECT_EQ(m_Words.Take(), "wheel(-1)");
    m_Words.m_Refuse = "wheel";
    EXPECT_TRUE(TurnWheel(&Native(), -1));
}

TEST_F(QtEdit, RefreshMakesItAsHighAsQtWantsIt)
{
    int const wanted = Native().sizeHint().height();
    m_Edit->SetPos(1, 2, 50, 5);
    m_Edit->Refresh();
    EXPECT_EQ(m_Edit->GetRect(), (rectangle<int>{1, 2, 51, 2 + wanted}));
}

TEST_F(QtEdit, AListenerMayDropTheLastReferenceInAnyEvent)
{
    for (char const* const when : {"key(65,0)", "char(97)", "change", "return", "visible", "wheel(1)"})
    {
        m_Edit = m_Hosted.Window().CreateEdit(false);
        CEditWords words;
        words.m_Do = [&](std::string const& what) {
            if (what == when)
                m_Edit.reset();
        };
        m_Edit->Subscribe(&words, typeid(IEditNotify), true);
        m_Edit->SetVisible(true);
        if (m_Edit)
            TypeText(m_Hosted.Widget()->findChildren<QLineEdit*>().back(), "a");
        if (m_Edit)
            PressKey(m_Hosted.Widget()->findChildren<QLineEdit*>().back(), Qt::Key_Return);
        if (m_Edit)
            TurnWheel(m_Hosted.Widget()->findChildren<QLineEdit*>().back(), 1);
        EXPECT_FALSE(m_Edit) << when;
        Settle();
        EXPECT_EQ(m_Hosted.Widget()->findChildren<QLineEdit*>().size(), 0) << when;
    }
}

TEST_F(QtEdit, AListenerMayDeleteTheWindowInAnyEvent)
{
    for (char const* const when : {"key(65,0)", "char(97)", "change", "return", "visible", "wheel(1)", "key(9,0)"})
    {
        CHosted hosted;
        vexel_ptr<IEdit> const edit = hosted.Window().CreateEdit(false);
        CEditWords words;
        words.m_Do = [&](std::string const& what) {
            if (what == when)
                hosted.m_Window.reset();
        };
        edit->Subscribe(&words, typeid(IEditNotify), true);
        edit->SetVisible(true);
        edit->SetFocus();
        if (hosted.m_Window)
            TypeText(FindNative<QLineEdit>(hosted), "a");
        if (hosted.m_Window)
            PressKey(FindNative<QLineEdit>(hosted), Qt::Key_Return);
        if (hosted.m_Window)
            TurnWheel(FindNative<QLineEdit>(hosted), 1);
        if (hosted.m_Window)
            PressKey(FindNative<QLineEdit>(hosted), Qt::Key_Tab);
        EXPECT_FALSE(hosted.m_Window) << when;
        Settle();
        edit->SetVisible(false);
    }
}

TEST_F(QtEdit, AListenerOfTheFocusMayDeleteControlAndWindow)
{
    {
        vexel_ptr<IEdit> other = m_Hosted.Window().CreateEdit(false);
        other->SetVisible(true);
        CFocusCount count(*other);
        count.m_Do = [&] { other.reset(); };
        other->SetFocus();
        EXPECT_FALSE(other);
    }
    CHosted hosted;
    vexel_ptr<IEdit> const other = hosted.Window().CreateEdit(false);
    other->SetVisible(true);
    CFocusCount count(*other);
    count.m_Do = [&] { hosted.m_Window.reset(); };
    other->SetFocus();
    EXPECT_FALSE(hosted.m_Window);
    Settle();
}

// Tab --------------------------------------------------------------------------------------------------------------

namespace
{

// A line edit of Qt's, the window with native controls, and another line edit.
class QtNativeTab : public testing::Test
{
protected:
    QtNativeTab()
    {
        auto* const layout = new QVBoxLayout(&m_Top);
        m_First = new QLineEdit(&m_Top);
        m_Middle = new QWidget(&m_Top);
        m_Window = HostWindow(m_Middle);
        m_Last = new QLineEdit(&m_Top);  // behind the window in Qt's order
        layout->addWidget(m_First);
        layout->addWidget(m_Middle);
        layout->addWidget(m_Last);
        m_Top.resize(200, 200);
        m_Control = std::make_unique<CRecorder>(m_Window.get());
        m_Top.show();
        Settle();
        m_First->setFocus();
        m_One = m_Window->CreateEdit(false);
        m_Two = m_Window->CreateEdit(false);
        m_One->SetVisible(true);
        m_Two->SetVisible(true);
        m_Control->Take();
    }
    void Tab() { PressKey(QApplication::focusWidget(), Qt::Key_Tab); }
    void BackTab() { PressKey(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier); }
    std::string Where()
    {
        QWidget* const focus = QApplication::focusWidget();
        auto const natives = GetWidget(m_Window.get())->findChildren<QLineEdit*>();
        if (focus == m_First)
            return "first";
        if (focus == m_Last)
            return "last";
        if (focus == GetWidget(m_Window.get()))
            return "window";
        for (int i = 0; i < natives.size(); ++i)
        {
            if (focus == natives[i])
                return "native " + std::to_string(i);
        }
        return "elsewhere";
    }

    QWidget m_Top;
    QLineEdit* m_First;
    QWidget* m_Middle;
    QLineEdit* m_Last;
    std::unique_ptr<ISysWindow> m_Window;
    std::unique_ptr<CRecorder> m_Control;
    vexel_ptr<IEdit> m_One;
    vexel_ptr<IEdit> m_Two;
};

}  // namespace

TEST_F(QtNativeTab, GoesThroughTheWindowItsControlsAndOutForward)
{
    Tab();
    EXPECT_EQ(Where(), "window");
    EXPECT_EQ(m_Control->Take(), "focus custom(0)");
    Tab();
    EXPECT_EQ(Where(), "native 0");
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x0) nofocus");
    Tab();
    EXPECT_EQ(Where(), "native 1");
    Tab();
    EXPECT_EQ(Where(), "last");
    EXPECT_EQ(m_Control->Take(), "");
    Tab();
    EXPECT_EQ(Where(), "first");
}

TEST_F(QtNativeTab, AndBackwardTheSameWay)
{
    m_Last->setFocus();
    BackTab();
    EXPECT_EQ(Where(), "native 1");
    BackTab();
    EXPECT_EQ(Where(), "native 0");
    EXPECT_EQ(m_Control->Take(), "");
    BackTab();
    EXPECT_EQ(Where(), "window");
    EXPECT_EQ(m_Control->Take(), "focus custom(1)");
    BackTab();
    EXPECT_EQ(Where(), "first");
}

TEST_F(QtNativeTab, HiddenAndDisabledOnesAreLeftOut)
{
    m_One->SetVisible(false);
    m_Two->SetEnabled(false);
    Tab();
    EXPECT_EQ(Where(), "window");
    Tab();
    EXPECT_EQ(Where(), "last");
    BackTab();
    EXPECT_EQ(Where(), "window");
}

TEST_F(QtNativeTab, OneInTheControlsOrderIsLeftOutAndItsTabIsTheControls)
{
    m_One->SetTabStop(false);
    m_Two->SetTabStop(false);
    Tab();
    EXPECT_EQ(Where(), "window");
    m_One->SetFocus();
    m_Control->Take();
    bool had = false;
    m_Control->m_KeyDown = [&](CKeyboardEvent* event) {
        had = m_Window->HasFocus();
        m_Two->SetFocus();
        event->m_PassOn = false;
    };
    Tab();
    EXPECT_TRUE(had);
    EXPECT_EQ(Where(), "native 1");
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x0)");

    // Now the control keeps the focus.
    m_Control->m_KeyDown = [](CKeyboardEvent* event) { event->m_PassOn = false; };
    BackTab();
    EXPECT_EQ(Where(), "window");
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x100) focus");

    // And here its order has ended.
    m_Control->m_KeyDown = nullptr;
    m_One->SetFocus();
    m_Control->Take();
    Tab();
    EXPECT_EQ(Where(), "last");
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x0)");
    m_One->SetFocus();
    BackTab();
    EXPECT_EQ(Where(), "first");
}

TEST_F(QtNativeTab, WhereThereIsNobodyElseItComesBackIn)
{
    m_First->setEnabled(false);
    m_Last->setEnabled(false);
    m_Window->SetFocus();
    m_Control->Take();
    Tab();
    Tab();
    EXPECT_EQ(Where(), "native 1");
    Tab();
    EXPECT_EQ(Where(), "window");
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x0) nofocus focus custom(0)");
    BackTab();
    EXPECT_EQ(Where(), "native 1");
    m_One->SetTabStop(false);
    m_Two->SetTabStop(false);
    m_Control->Take();
    Tab();
    EXPECT_EQ(Where(), "window");
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x0) focus custom(0)");
}

TEST_F(QtNativeTab, TheControlMayDeleteTheWindowWhenItGetsTheKey)
{
    m_One->SetTabStop(false);
    m_One->SetFocus();
    m_Control->m_KeyDown = [&](CKeyboardEvent*) {
        m_Control.reset();
        m_Window.reset();
    };
    Tab();
    EXPECT_FALSE(m_Window);
    Settle();
}

// Combo boxes ------------------------------------------------------------------------------------------------------

namespace
{

class QtComboBox : public testing::Test
{
protected:
    QtComboBox() { Use(true); }
    void Use(bool editable)
    {
        m_Box.reset();
        Settle();
        m_Box = m_Hosted.Window().CreateComboBox(editable);
        m_Box->AddItem("one");
        m_Box->AddItem("two");
        m_Box->SetPos(0, 0, 100, 24);
        m_Box->SetVisible(true);
        m_Box->SetFocus();
        m_Box->Subscribe(&m_Words, typeid(IEditNotify), true);
        m_Hosted.Control().Take();
    }
    QComboBox& Native() { return *FindNative<QComboBox>(m_Hosted); }
    bool IsListShown() { return Native().view()->isVisible(); }

    bool const m_Parked = (ParkPointer(), true);  // before there is anything to enter
    CHosted m_Hosted{200, 200};
    CEditWords m_Words;
    vexel_ptr<IComboBox> m_Box;
};

}  // namespace

TEST_F(QtComboBox, KeepsItsItems)
{
    for (bool const editable : {true, false})
    {
        Use(editable);
        EXPECT_EQ(m_Box->IsEditable(), editable);
        EXPECT_EQ(m_Box->GetItemCount(), 2);
        EXPECT_EQ(Native().count(), 2);
        EXPECT_EQ(m_Box->GetItemText(1), "two");
        EXPECT_EQ(m_Box->GetItemText(2), "");
        EXPECT_EQ(m_Box->GetItemText(-1), "");
        EXPECT_EQ(m_Box->GetCurrentItem(), -1);
        EXPECT_EQ(Native().currentIndex(), -1);
        EXPECT_EQ(m_Box->GetText(), "");
        m_Box->SetOption(false);
        m_Box->SetOption(true);
        m_Box->SetOption(false);
        m_Box->SetCurrentItem(1);
        m_Box->ClearItems();
        EXPECT_EQ(m_Box->GetItemCount(), 0);
        EXPECT_EQ(m_Box->GetCurrentItem(), -1);
        EXPECT_EQ(m_Box->GetText(), "two");
    }
}

TEST_F(QtComboBox, TheCurrentItemGivesTheText)
{
    for (bool const editable : {true, false})
    {
        Use(editable);
        m_Box->SetCurrentItem(1);
        EXPECT_EQ(m_Box->GetText(), "two");
        EXPECT_EQ(Native().currentIndex(), 1);
        EXPECT_EQ(m_Words.Take(), "change");
        m_Box->SetCurrentItem(7);
        EXPECT_EQ(m_Box->GetCurrentItem(), -1);
        EXPECT_EQ(m_Box->GetText(), "two");
        m_Box->SetText("three");
        EXPECT_EQ(m_Box->GetText(), "three");
        EXPECT_EQ(m_Words.Take(), "change");
    }
    Use(true);
    m_Box->SetText("three");
    EXPECT_EQ(Native().currentText(), "three");
}

TEST_F(QtComboBox, TheListOpensAndClosesAndIsChosenFrom)
{
    for (bool const editable : {true, false})
    {
        Use(editable);
        m_Box->ShowDropDown(true);
        m_Box->ShowDropDown(true);
        EXPECT_TRUE(IsListShown());
        m_Words.Take();
        Native().view()->setCurrentIndex(Native().model()->index(1, 0));
        PressKey(Native().view(), Qt::Key_Return);
        EXPECT_FALSE(IsListShown());
        EXPECT_EQ(m_Box->GetText(), "two");
        EXPECT_EQ(m_Box->GetCurrentItem(), 1);
        EXPECT_EQ(m_Words.Take(), "change");
        PressKey(&Native(), Qt::Key_Down, Qt::AltModifier);
        EXPECT_TRUE(IsListShown());
        m_Box->ShowDropDown(false);
        EXPECT_FALSE(IsListShown());
    }
}

TEST_F(QtComboBox, AListAskedForWhileHiddenOpensWhenTheBoxIsShown)
{
    m_Box->SetVisible(false);
    m_Box->ShowDropDown(true);
    EXPECT_FALSE(IsListShown());
    m_Box->SetVisible(true);
    Settle();
    EXPECT_TRUE(IsListShown());
    m_Box->SetVisible(false);
    EXPECT_FALSE(IsListShown());
    m_Box->ShowDropDown(true);
    m_Box->ShowDropDown(false);
    m_Box->SetVisible(true);
    Settle();
    EXPECT_FALSE(IsListShown());
}

TEST_F(QtComboBox, UpAndDownTakeTheNextItem)
{
    for (bool const editable : {true, false})
    {
        Use(editable);
        PressKey(&Native(), Qt::Key_Down);
        PressKey(&Native(), Qt::Key_Down);
        PressKey(&Native(), Qt::Key_Down);
        EXPECT_EQ(m_Box->GetCurrentItem(), 1);
        EXPECT_EQ(m_Box->GetText(), "two");
        PressKey(&Native(), Qt::Key_Up);
        PressKey(&Native(), Qt::Key_Up);
        EXPECT_EQ(m_Box->GetCurrentItem(), 0);
        EXPECT_EQ(m_Box->GetText(), "one");
    }
}

TEST_F(QtComboBox, OnlyAnEditableOneIsTypedInto)
{
    TypeText(&Native(), "x");
    EXPECT_EQ(m_Box->GetText(), "x");
    EXPECT_EQ(m_Words.Take(), "key(88,0) char(120) change");
    PressKey(&Native(), Qt::Key_Return);
    EXPECT_EQ(m_Words.Take(), "key(13,0) return");
    EXPECT_EQ(m_Box->GetItemCount(), 2);
    EXPECT_EQ(Native().count(), 2);
    Use(false);
    TypeText(&Native(), "x");
    EXPECT_EQ(m_Box->GetText(), "");
}

TEST_F(QtComboBox, TheWheelDoesNotChoose)
{
    m_Box->SetCurrentItem(0);
    m_Words.Take();
    EXPECT_FALSE(TurnWheel(&Native(), -1));
    EXPECT_EQ(m_Box->GetCurrentItem(), 0);
    EXPECT_EQ(m_Words.Take(), "wheel(-1)");
}

TEST_F(QtComboBox, TheWindowGetsNoneOfItsInput)
{
    PressKey(&Native(), Qt::Key_F5);
    SendMouse(&Native(), QEvent::MouseButtonPress, 50, 10, Qt::RightButton);
    ClickAt(&Native(), 95, 10);
    EXPECT_TRUE(IsListShown());
    EXPECT_EQ(m_Hosted.Control().Take(), "");
}

TEST_F(QtComboBox, NorThatOfOneThatCanOnlyChoose)
{
    Use(false);
    PressKey(&Native(), Qt::Key_F5);
    SendMouse(&Native(), QEvent::MouseButtonPress, 50, 10, Qt::RightButton);
    ClickAt(&Native(), 95, 10);
    EXPECT_TRUE(IsListShown());
    EXPECT_EQ(m_Hosted.Control().Take(), "");
}

TEST_F(QtComboBox, AListenerMayDropTheLastReferenceOfAnOpenBox)
{
    for (bool const editable : {true, false})
    {
        Use(editable);
        CEditWords words;
        words.m_Do = [&](std::string const& what) {
            if (what == "change")
                m_Box.reset();
        };
        m_Box->Subscribe(&words, typeid(IEditNotify), true);
        m_Box->ShowDropDown(true);
        QAbstractItemView* const view = Native().view();
        view->setCurrentIndex(Native().model()->index(1, 0));
        PressKey(view, Qt::Key_Return);
        EXPECT_FALSE(m_Box);
        Settle();
        EXPECT_EQ(FindNative<QComboBox>(m_Hosted), nullptr);
    }
}

TEST_F(QtComboBox, ItsWindowMayGoWhileTheListIsOpen)
{
    m_Box->ShowDropDown(true);
    m_Hosted.m_Window.reset();
    Settle();
    m_Box->ShowDropDown(false);
    EXPECT_EQ(m_Box->GetItemCount(), 2);
}

}  // namespace vexelbase::qt::test
