#include "tests/platform/qt/native_test_kit.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPointer>
#include <QWindow>

namespace vexelbase::qt::test
{

namespace
{

class QtPopup : public testing::Test
{
protected:
    QtPopup()
    {
        m_Hosted.Top().move(20, 30);
        Settle();
        m_Hosted.Window().SetFocus();
        m_Popup = m_Hosted.Window().CreatePopup();
        m_Inner = std::make_unique<CRecorder>(m_Popup->GetWindow());
        m_Hosted.Control().Take();
    }
    QWidget* Widget() { return GetWidget(m_Popup->GetWindow()); }

    bool const m_Parked = (ParkPointer(), true);  // before there is anything to enter
    CHosted m_Hosted{200, 200};
    vexel_ptr<IPopup> m_Popup;
    std::unique_ptr<CRecorder> m_Inner;
};

}  // namespace

TEST_F(QtPopup, IsHiddenUntilItIsPlaced)
{
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_EQ(m_Popup->GetOwner(), &m_Hosted.Window());
    m_Popup->SetSize(50, 30);
    EXPECT_EQ(m_Popup->GetWindow()->GetRect(), (rectangle<int>{0, 0, 50, 30}));
    PositionPopup(m_Popup, {10, 10, 60, 20});
    EXPECT_TRUE(m_Popup->IsVisible());
    EXPECT_TRUE(Widget()->isVisible());
    EXPECT_EQ(Widget()->geometry(), QRect(30, 50, 50, 30));
    EXPECT_EQ(Widget()->windowType(), Qt::Popup);
}

TEST_F(QtPopup, TakesTheFocusAndGivesItBack)
{
    m_Popup->Show({30, 50});
    EXPECT_EQ(m_Hosted.Control().Take(), "nofocus");
    EXPECT_TRUE(m_Popup->GetWindow()->HasFocus());
    EXPECT_FALSE(m_Hosted.Window().HasFocus());
    m_Inner->Take();
    PressKey(Widget(), Qt::Key_Down);
    EXPECT_EQ(m_Inner->Take(), "keydown(40,0x0)");
    m_Popup->Close(3);
    EXPECT_EQ(m_Popup->GetCloseCode(), 3);
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_FALSE(Widget()->isVisible());
    EXPECT_EQ(m_Hosted.Control().Take(), "focus");
    EXPECT_EQ(m_Inner->Take(), "nofocus hidden");
}

TEST_F(QtPopup, ShownAgainItOnlyMoves)
{
    m_Popup->Show({30, 50});
    m_Inner->Take();
    m_Popup->Show({40, 50});
    EXPECT_EQ(Widget()->pos(), QPoint(40, 50));
    EXPECT_EQ(m_Inner->Take(), "moved");
}

TEST_F(QtPopup, APressOutsideClosesItAndOneInsideDoesNot)
{
    m_Popup->SetSize(50, 30);
    m_Popup->Show({30, 50});
    m_Inner->Take();
    ClickAt(Widget(), 5, 5);
    EXPECT_EQ(m_Inner->Take(), "down(5,5,0x1,1) up(5,5,0x0,1)");
    EXPECT_TRUE(m_Popup->IsVisible());
    SendMouse(Widget(), QEvent::MouseButtonPress, 60, 5);
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_FALSE(Widget()->isVisible());
    EXPECT_EQ(m_Popup->GetCloseCode(), 0);
    EXPECT_EQ(m_Inner->Take(), "nofocus hidden");
    EXPECT_EQ(m_Hosted.Control().Take(), "nofocus focus");
    Settle();
    EXPECT_EQ(m_Hosted.Control().Take().substr(0, 17), "down(70,25,0x1,1)");  // what lies there gets it

    // The press came by the native window, and so must its end.
    QPointF const at(70, 25);
    QMouseEvent released(QEvent::MouseButtonRelease, at, m_Hosted.Widget()->mapToGlobal(at), Qt::LeftButton,
                         Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_Hosted.Top().windowHandle(), &released);
}

TEST_F(QtPopup, APressOutsideIsTheControlsWhileItHasTheCapture)
{
    m_Popup->SetSize(50, 30);
    m_Popup->Show({30, 50});
    m_Popup->GetWindow()->CaptureMouse();
    m_Inner->Take();
    SendMouse(Widget(), QEvent::MouseButtonPress, 60, 5);
    EXPECT_TRUE(m_Popup->IsVisible());
    EXPECT_EQ(m_Inner->Take(), "down(60,5,0x1,1)");
    m_Popup->Close(1);
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
}

TEST_F(QtPopup, AnEscapeThatNobodyWantsClosesIt)
{
    m_Popup->Show({30, 50});
    m_Inner->m_KeyDown = [](CKeyboardEvent* event) { event->SetContinue(false); };
    PressKey(Widget(), Qt::Key_Escape);
    EXPECT_TRUE(m_Popup->IsVisible());
    m_Inner->m_KeyDown = nullptr;
    PressKey(Widget(), Qt::Key_Escape);
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_EQ(m_Popup->GetCloseCode(), 0);
}

TEST_F(QtPopup, AnEscapeInItsNativeControlClosesItToo)
{
    m_Popup->Show({30, 50});
    vexel_ptr<IEdit> const edit = m_Popup->GetWindow()->CreateEdit(false);
    edit->SetVisible(true);
    edit->SetFocus();
    EXPECT_FALSE(m_Popup->GetWindow()->HasFocus());
    EXPECT_TRUE(m_Popup->IsVisible());
    PressKey(Widget()->findChild<QLineEdit*>(), Qt::Key_Escape);
    EXPECT_FALSE(m_Popup->IsVisible());
}

TEST_F(QtPopup, TabStaysInIt)
{
    m_Popup->Show({30, 50});
    m_Inner->Take();
    PressKey(Widget(), Qt::Key_Tab);
    EXPECT_TRUE(m_Popup->GetWindow()->HasFocus());
    EXPECT_EQ(m_Inner->Take(), "keydown(9,0x0) custom(0)");
}

TEST_F(QtPopup, ClosesWhenQtClosesIt)
{
    m_Popup->Show({30, 50});
    m_Popup->Close(7);
    m_Popup->Show({30, 50});
    Widget()->close();
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_EQ(m_Popup->GetCloseCode(), 0);
    m_Popup->Show({30, 50});
    EXPECT_TRUE(Widget()->isVisible());
}

TEST_F(QtPopup, ClosesWhenItsOwnerIsHidden)
{
    m_Popup->Show({30, 50});
    m_Hosted.Top().hide();
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_EQ(m_Popup->GetOwner(), &m_Hosted.Window());
}

TEST_F(QtPopup, ClosesWithItsOwner)
{
    m_Popup->Show({30, 50});
    m_Hosted.m_Window.reset();
    Settle();
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_EQ(m_Popup->GetOwner(), nullptr);
    ASSERT_NE(Widget(), nullptr);
    EXPECT_FALSE(Widget()->isVisible());
    m_Popup->Close(1);
    PositionPopup(m_Popup, {0, 0, 10, 10});
    m_Popup->Show({0, 0});
    EXPECT_FALSE(m_Popup->IsVisible());
    EXPECT_EQ(m_Inner->GetWindow(), m_Popup->GetWindow());
}

TEST_F(QtPopup, ReleasedItDestroysItsWindow)
{
    m_Popup->Show({30, 50});
    m_Inner->Take();
    QPointer<QWidget> const widget(Widget());
    m_Popup.reset();
    EXPECT_EQ(m_Inner->Take(), "nofocus hidden destroyed");
    EXPECT_EQ(m_Inner->GetWindow(), nullptr);
    Settle();
    EXPECT_FALSE(widget);
}

TEST_F(QtPopup, MayGoInEachOfItsEvents)
{
    for (char const* const when : {"shown", "focus", "down(5,5,0x1,1)", "keydown(27,0x0)", "nofocus", "hidden"})
    {
        CHosted hosted;
        hosted.Window().SetFocus();
        vexel_ptr<IPopup> popup = hosted.Window().CreatePopup();
        CRecorder inner(popup->GetWindow());
        popup->SetSize(50, 30);
        QPointer<QWidget> const widget(GetWidget(popup->GetWindow()));
        inner.m_Before = [&](std::string const& word) {
            if (word == when)
                popup.reset();
        };
        popup->Show({30, 50});
        if (popup)
            ClickAt(widget, 5, 5);
        if (popup)
            PressKey(widget, Qt::Key_Escape);
        EXPECT_FALSE(popup) << when;
        Settle();
        EXPECT_FALSE(widget) << when;
    }
}

TEST_F(QtPopup, ItsOwnerMayGoInEachOfItsEvents)
{
    for (char const* const when : {"shown", "focus", "down(5,5,0x1,1)", "keydown(27,0x0)", "nofocus", "hidden"})
    {
        CHosted hosted;
        vexel_ptr<IPopup> const popup = hosted.Window().CreatePopup();
        CRecorder inner(popup->GetWindow());
        popup->SetSize(50, 30);
        inner.m_Before = [&](std::string const& word) {
            if (word == when)
                hosted.m_Window.reset();
        };
        popup->Show({30, 50});
        if (popup->GetOwner())
            ClickAt(GetWidget(popup->GetWindow()), 5, 5);
        if (popup->GetOwner())
            PressKey(GetWidget(popup->GetWindow()), Qt::Key_Escape);
        EXPECT_FALSE(hosted.m_Window) << when;
        Settle();
        EXPECT_FALSE(popup->IsVisible()) << when;
        EXPECT_FALSE(GetWidget(popup->GetWindow())->isVisible()) << when;
    }
}

TEST_F(QtPopup, APopupOfAPopupStaysOpenWhileTheInnerOneIsPressed)
{
    m_Popup->SetSize(50, 50);
    m_Popup->Show({30, 50});
    vexel_ptr<IPopup> const second = m_Popup->GetWindow()->CreatePopup();
    CRecorder innermost(second->GetWindow());
    second->SetSize(20, 20);
    second->Show({60, 70});
    QWidget* const widget = GetWidget(second->GetWindow());
    m_Inner->Take();
    ClickAt(widget, 5, 5);
    EXPECT_TRUE(second->IsVisible());
    EXPECT_TRUE(m_Popup->IsVisible());
    SendMouse(widget, QEvent::MouseButtonPress, -28, -18);  // (32, 52) of the screen, (2, 2) of the outer one
    EXPECT_FALSE(second->IsVisible());
    EXPECT_TRUE(m_Popup->IsVisible());
    EXPECT_EQ(m_Inner->Take(), "focus down(2,2,0x1,1)");
    second->Show({60, 70});
    SendMouse(widget, QEvent::MouseButtonPress, 100, 100);
    EXPECT_FALSE(second->IsVisible());
    EXPECT_FALSE(m_Popup->IsVisible());
}

}  // namespace vexelbase::qt::test
