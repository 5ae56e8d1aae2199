#include "tests/platform/qt/qt_test_kit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QEnterEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace vexelbase::qt::test
{

namespace
{

QMouseEvent Mouse(QEvent::Type type, int x, int y, Qt::MouseButton button, Qt::MouseButtons buttons,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return QMouseEvent(type, QPointF(x, y), QPointF(x, y), button, buttons, modifiers);
}

QKeyEvent Key(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, QString const& text = {},
              bool repeated = false)
{
    return QKeyEvent(type, key, modifiers, text, repeated);
}

QWheelEvent Wheel(QPoint const& angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier, QPoint const& pixels = {})
{
    return QWheelEvent(QPointF(30, 40), QPointF(30, 40), pixels, angle, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                       false);
}

}  // namespace

TEST(QtMouse, APressCarriesItsButtonAndTheStateAfterIt)
{
    CHosted hosted;
    hosted.Send(Mouse(QEvent::MouseButtonPress, 10, 20, Qt::LeftButton, Qt::LeftButton));
    hosted.Send(Mouse(QEvent::MouseButtonRelease, 10, 20, Qt::LeftButton, Qt::NoButton));
    EXPECT_EQ(hosted.Control().Take(), "down(10,20,0x1,1) up(10,20,0x0,1)");

    hosted.Send(Mouse(QEvent::MouseButtonPress, 1, 2, Qt::RightButton, Qt::LeftButton | Qt::RightButton));
    hosted.Send(Mouse(QEvent::MouseButtonPress, 1, 2, Qt::MiddleButton, Qt::MiddleButton, Qt::ShiftModifier));
    EXPECT_EQ(hosted.Control().Take(), "down(1,2,0x3,3) down(1,2,0x104,2)");
}

TEST(QtMouse, AMoveCarriesTheHeldButtonTheLeftOneFirst)
{
    CHosted hosted;
    hosted.Send(Mouse(QEvent::MouseMove, 5, 6, Qt::NoButton, Qt::NoButton));
    hosted.Send(Mouse(QEvent::MouseMove, 7, 6, Qt::NoButton, Qt::LeftButton | Qt::RightButton | Qt::MiddleButton));
    hosted.Send(Mouse(QEvent::MouseMove, 8, 6, Qt::NoButton, Qt::RightButton | Qt::MiddleButton, Qt::ControlModifier));
    hosted.Send(Mouse(QEvent::MouseMove, 9, 6, Qt::NoButton, Qt::MiddleButton, Qt::AltModifier));
    EXPECT_EQ(hosted.Control().Take(), "move(5,6,0x0,0) move(7,6,0x7,1) move(8,6,0x206,3) move(9,6,0x404,2)");
}

TEST(QtMouse, LockAndKeypadKeysLeaveTheStateAlone)
{
    CHosted hosted;
    hosted.Send(Mouse(QEvent::MouseMove, 5, 6, Qt::NoButton, Qt::NoButton,
                      Qt::KeypadModifier | Qt::GroupSwitchModifier | Qt::MetaModifier));
    EXPECT_EQ(hosted.Control().Take(), "move(5,6,0x0,0)");
}

TEST(QtMouse, TheSecondPressIsAPressAndADoubleClick)
{
    CHosted hosted;
    hosted.Send(Mouse(QEvent::MouseButtonDblClick, 10, 20, Qt::LeftButton, Qt::LeftButton));
    EXPECT_EQ(hosted.Control().Take(), "down(10,20,0x1,1) double(10,20,0x1,1)");
}

TEST(QtMouse, ButtonsThatTheFrameworkDoesNotKnowGoOnToTheParent)
{
    CHosted hosted;
    QMouseEvent event = Mouse(QEvent::MouseButtonPress, 10, 20, Qt::BackButton, Qt::BackButton);
    QCoreApplication::sendEvent(hosted.Widget(), &event);
    EXPECT_FALSE(event.isAccepted());
    EXPECT_EQ(hosted.Control().Take(), "");
}

TEST(QtMouse, EnteringTellsThePositionAndTheSameMoveIsNotToldTwice)
{
    CHosted hosted;
    QPointF const at(12, 13);
    hosted.Send(QEnterEvent(at, at, at));
    hosted.Send(Mouse(QEvent::MouseMove, 12, 13, Qt::NoButton, Qt::NoButton));
    hosted.Send(Mouse(QEvent::MouseMove, 12, 13, Qt::NoButton, Qt::NoButton));
    hosted.Send(QEvent(QEvent::Leave));
    EXPECT_EQ(hosted.Control().Take(), "move(12,13,0x0,0) move(12,13,0x0,0) leave");
}

TEST(QtMouse, ADisabledWidgetTellsNothing)
{
    CHosted hosted;
    hosted.Top().setEnabled(false);
    hosted.Control().Take();
    hosted.Send(Mouse(QEvent::MouseButtonPress, 10, 20, Qt::LeftButton, Qt::LeftButton));
    hosted.Send(Wheel({0, 120}));
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a"));
    EXPECT_EQ(hosted.Control().Take(), "");
}

TEST(QtMouse, CaptureIsTakenOnceAndGivenUpHoweverOften)
{
    CHosted hosted;
    hosted.Window().ReleaseMouse();
    hosted.Window().CaptureMouse();
    hosted.Window().CaptureMouse();
    EXPECT_EQ(QWidget::mouseGrabber(), hosted.Widget());
    hosted.Window().ReleaseMouse();
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    hosted.Window().ReleaseMouse();
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
}

TEST(QtMouse, TheCapturedPointerLeavesWhenTheCaptureEndsElsewhere)
{
    CHosted hosted;
    hosted.Window().CaptureMouse();
    hosted.Send(QEvent(QEvent::Leave));
    EXPECT_EQ(hosted.Control().Take(), "");
    hosted.Window().ReleaseMouse();
    EXPECT_EQ(hosted.Control().Take(), "");  // not within the call
    Settle();
    EXPECT_EQ(hosted.Control().Take(), "leave");
    Settle();
    EXPECT_EQ(hosted.Control().Take(), "");

    // It came back before.
    hosted.Window().CaptureMouse();
    hosted.Send(QEvent(QEvent::Leave));
    hosted.Send(QEnterEvent(QPointF(5, 6), QPointF(5, 6), QPointF(5, 6)));
    hosted.Window().ReleaseMouse();
    Settle();
    EXPECT_EQ(hosted.Control().Take(), "move(5,6,0x0,0)");

    // Captured once more before the end was told.
    hosted.Window().CaptureMouse();
    hosted.Send(QEvent(QEvent::Leave));
    hosted.Window().ReleaseMouse();
    hosted.Window().CaptureMouse();
    Settle();
    EXPECT_EQ(hosted.Control().Take(), "");
    hosted.Window().ReleaseMouse();
    Settle();
    EXPECT_EQ(hosted.Control().Take(), "leave");
}

TEST(QtMouse, HidingGivesUpTheCapture)
{
    CHosted hosted;
    hosted.Window().CaptureMouse();
    hosted.Top().hide();
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
}

TEST(QtMouse, TheCursorFollowsTheNumber)
{
    CHosted hosted;
    struct
    {
        int number;
        Qt::CursorShape shape;
    } const cases[] = {{7, Qt::SizeVerCursor},    {9, Qt::SizeHorCursor}, {12, Qt::PointingHandCursor},
                       {13, Qt::ForbiddenCursor}, {1, Qt::ArrowCursor},   {99, Qt::ArrowCursor}};
    for (auto const& one : cases)
    {
        hosted.Window().SetCursor(one.number);
        EXPECT_EQ(hosted.Widget()->cursor().shape(), one.shape) << one.number;
    }
}

TEST(QtWheel, WholeNotchesArriveAndTheRestIsKept)
{
    CHosted hosted;
    hosted.Send(Wheel({0, 120}));
    EXPECT_EQ(hosted.Control().Take(), "wheel(30,40,1)");
    hosted.Send(Wheel({0, -240}));
    EXPECT_EQ(hosted.Control().Take(), "wheel(30,40,-2)");
    hosted.Send(Wheel({0, 50}));  // rest 50
    hosted.Send(Wheel({0, 50}));  // rest 100
    EXPECT_EQ(hosted.Control().Take(), "");
    hosted.Send(Wheel({0, 50}));  // 150: one notch, rest 30
    EXPECT_EQ(hosted.Control().Take(), "wheel(30,40,1)");
    hosted.Send(Wheel({0, 90}));  // 120
    EXPECT_EQ(hosted.Control().Take(), "wheel(30,40,1)");
}

TEST(QtWheel, AMovementThatTurnsRoundStartsAnew)
{
    CHosted hosted;
    hosted.Send(Wheel({0, 100}));
    hosted.Send(Wheel({0, -30}));
    hosted.Send(Wheel({0, -80}));  // -110, had the rest of 100 stayed it would be -10
    EXPECT_EQ(hosted.Control().Take(), "");
    hosted.Send(Wheel({0, -10}));
    EXPECT_EQ(hosted.Control().Take(), "wheel(30,40,-1)");
}

TEST(QtWheel, ADeviceThatTellsPixelsAloneMovesANotchEverySixty)
{
    CHosted hosted;
    hosted.Send(Wheel({0, 0}, Qt::NoModifier, {0, 45}));
    EXPECT_EQ(hosted.Control().Take(), "");
    hosted.Send(Wheel({0, 0}, Qt::NoModifier, {0, 15}));
    EXPECT_EQ(hosted.Control().Take(), "wheel(30,40,1)");
}

TEST(QtWheel, SidewaysIsLeftToTheParentUnlessAltHasTurnedIt)
{
    CHosted hosted;
    QWheelEvent sideways = Wheel({120, 0});
    QCoreApplication::sendEvent(hosted.Widget(), &sideways);
    EXPECT_FALSE(sideways.isAccepted());
    EXPECT_EQ(hosted.Control().Take(), "");
    hosted.Send(Wheel({120, 0}, Qt::AltModifier));
    EXPECT_EQ(hosted.Control().Take(), "wheel(30,40,1)");
}

TEST(QtKeys, KeysHaveTheFrameworksNumbers)
{
    CHosted hosted;
    struct
    {
        int key;
        int number;
    } const cases[] = {
        {Qt::Key_A, 65},        {Qt::Key_C, 67},        {Qt::Key_Z, 90},     {Qt::Key_0, 48},      {Qt::Key_9, 57},
        {Qt::Key_Backspace, 8}, {Qt::Key_Return, 13},   {Qt::Key_Enter, 13}, {Qt::Key_Escape, 27}, {Qt::Key_Space, 32},
        {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},   {Qt::Key_Home, 36},   {Qt::Key_Left, 37},
        {Qt::Key_Up, 38},       {Qt::Key_Right, 39},    {Qt::Key_Down, 40},  {Qt::Key_Insert, 45}, {Qt::Key_Delete, 46},
        {Qt::Key_F1, 112},      {Qt::Key_F12, 123},     {Qt::Key_F24, 135},  {Qt::Key_Exclam, 0},
    };
    for (auto const& one : cases)
    {
        hosted.Send(Key(QEvent::KeyPress, one.key));
        EXPECT_EQ(hosted.Control().Take(), "keydown(" + std::to_string(one.number) + ",0x0)") << one.key;
    }
}

TEST(QtKeys, TheStateIsThatAfterTheKey)
{
    CHosted hosted;
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier, "\x03"));
    EXPECT_EQ(hosted.Control().Take(), "keydown(67,0x200)");
    // Qt hands over the state before a modifier key.
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier));
    hosted.Send(Key(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier));
    EXPECT_EQ(hosted.Control().Take(), "keydown(16,0x100) keyup(16,0x0)");
}

TEST(QtKeys, ACharacterComesAsItsBytesAfterItsKey)
{
    CHosted hosted;
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a"));
    hosted.Send(Key(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, "a"));
    EXPECT_EQ(hosted.Control().Take(), "keydown(65,0x0) char(61) keyup(65,0x0)");
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_Udiaeresis, Qt::NoModifier, QString(QChar(0xFC))));
    EXPECT_EQ(hosted.Control().Take(), "keydown(0,0x0) char(c3) char(bc)");
}

TEST(QtKeys, ControlCharactersAndCommandsAreNoText)
{
    CHosted hosted;
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r"));
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, "\x7f"));
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_A, Qt::AltModifier, "a"));
    EXPECT_EQ(hosted.Control().Take(), "keydown(13,0x0) keydown(46,0x0) keydown(65,0x400)");
    // What the keyboard offers with control and alt is text.
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@"));
    EXPECT_EQ(hosted.Control().Take(), "keydown(0,0x600) char(40)");
}

TEST(QtKeys, ARepeatedKeyGoesDownOftenAndUpOnce)
{
    CHosted hosted;
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_Down));
    hosted.Send(Key(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier, {}, true));
    hosted.Send(Key(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, {}, true));
    hosted.Send(Key(QEvent::KeyRelease, Qt::Key_Down));
    EXPECT_EQ(hosted.Control().Take(), "keydown(40,0x0) keydown(40,0x0) keyup(40,0x0)");
}

TEST(QtKeys, AKeyThatNobodyDealtWithGoesOnToTheParent)
{
    CHosted hosted;
    QKeyEvent ignored = Key(QEvent::KeyPress, Qt::Key_Escape);
    QCoreApplication::sendEvent(hosted.Widget(), &ignored);
    EXPECT_FALSE(ignored.isAccepted());

    hosted.Control().m_KeyDown = [](CKeyboardEvent* event) { event->SetContinue(false); };
    QKeyEvent used = Key(QEvent::KeyPress, Qt::Key_Escape);
    QCoreApplication::sendEvent(hosted.Widget(), &used);
    EXPECT_TRUE(used.isAccepted());
}

TEST(QtKeys, ComposedTextComesAsBytes)
{
    CHosted hosted;
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("\xe6\x97\xa5x"));
    QCoreApplication::sendEvent(hosted.Widget(), &event);
    EXPECT_EQ(hosted.Control().Take(), "char(e6) char(97) char(a5) char(78)");
    EXPECT_TRUE(hosted.Widget()->testAttribute(Qt::WA_InputMethodEnabled));
    EXPECT_TRUE(hosted.Widget()->inputMethodQuery(Qt::ImEnabled).toBool());
}

// A window between two line edits, as in a Qt program.
class QtTab : public testing::Test
{
protected:
    QtTab()
    {
        auto* const layout = new QVBoxLayout(&m_Top);
        m_First = new QLineEdit(&m_Top);
        m_Host = new QWidget(&m_Top);
        m_Last = new QLineEdit(&m_Top);
        layout->addWidget(m_First);
        layout->addWidget(m_Host);
        layout->addWidget(m_Last);
        m_Host->setMinimumSize(60, 40);
        m_Window = HostWindow(m_Host);
        m_Control = std::make_unique<CRecorder>(m_Window.get());
        // The child was made last; it stands between the two edits.
        QWidget::setTabOrder(m_First, GetWidget(m_Window.get()));
        QWidget::setTabOrder(GetWidget(m_Window.get()), m_Last);
        m_Top.show();
        m_Top.activateWindow();
        QApplication::setActiveWindow(&m_Top);
        m_First->setFocus();
        Settle();
        m_Control->Take();
    }
    void Press(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event = Key(QEvent::KeyPress, key, modifiers, key == Qt::Key_Tab ? "\t" : "");
        QCoreApplication::sendEvent(widget, &event);
    }

    QWidget m_Top;
    QLineEdit* m_First;
    QWidget* m_Host;
    QLineEdit* m_Last;
    std::unique_ptr<ISysWindow> m_Window;
    std::unique_ptr<CRecorder> m_Control;
};

TEST_F(QtTab, EnteringForwardAsksForTheFirstElement)
{
    Press(m_First, Qt::Key_Tab);
    EXPECT_TRUE(m_Window->HasFocus());
    EXPECT_EQ(m_Control->Take(), "focus custom(0)");
}

TEST_F(QtTab, EnteringBackwardAsksForTheLastElement)
{
    m_Last->setFocus();
    m_Control->Take();
    Press(m_Last, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(m_Control->Take(), "focus custom(1)");
}

TEST_F(QtTab, AFocusFromElsewhereAsksForNothing)
{
    m_Window->SetFocus();
    EXPECT_EQ(m_Control->Take(), "focus");
    m_Window->SetFocus();
    EXPECT_EQ(m_Control->Take(), "");
}

TEST_F(QtTab, ATabThatNobodyUsedGoesToTheNextWidget)
{
    m_Window->SetFocus();
    m_Control->Take();
    Press(GetWidget(m_Window.get()), Qt::Key_Tab);
    EXPECT_TRUE(m_Last->hasFocus());
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x0) nofocus");
}

TEST_F(QtTab, ABackTabIsATabWithShiftAndGoesToTheWidgetBefore)
{
    m_Window->SetFocus();
    m_Control->Take();
    Press(GetWidget(m_Window.get()), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(m_First->hasFocus());
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x100) nofocus");
}

TEST_F(QtTab, ATabThatMovedTheFocusInsideStays)
{
    m_Window->SetFocus();
    m_Control->Take();
    m_Control->m_KeyDown = [](CKeyboardEvent* event) { event->m_PassOn = false; };
    Press(GetWidget(m_Window.get()), Qt::Key_Tab);
    EXPECT_TRUE(m_Window->HasFocus());
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x0)");

    m_Control->m_KeyDown = [](CKeyboardEvent* event) { event->SetContinue(false); };
    Press(GetWidget(m_Window.get()), Qt::Key_Tab);
    EXPECT_TRUE(m_Window->HasFocus());
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x0)");
}

TEST_F(QtTab, WithoutAnotherWidgetItComesBackInFromTheOtherEnd)
{
    m_First->setFocusPolicy(Qt::NoFocus);
    m_Last->setFocusPolicy(Qt::NoFocus);
    m_Window->SetFocus();
    m_Control->Take();
    Press(GetWidget(m_Window.get()), Qt::Key_Tab);
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x0) custom(0)");
    Press(GetWidget(m_Window.get()), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(m_Control->Take(), "keydown(9,0x100) custom(1)");
}

TEST(QtMenu, MouseAndKeyboardAskForTheContextMenuInPixels)
{
    CHosted hosted;
    hosted.Send(QContextMenuEvent(QContextMenuEvent::Mouse, QPoint(11, 12), QPoint(111, 112)));
    hosted.Send(QContextMenuEvent(QContextMenuEvent::Keyboard, QPoint(50, 40), QPoint(150, 140)));
    EXPECT_EQ(hosted.Control().Take(), "menu(11,12) menu(50,40)");
}

TEST(QtTooltip, ARestingPointerIsToldAndTheTextShows)
{
    CHosted hosted;
    hosted.Control().m_Tooltip = [](CTooltipEvent* event) {
        event->m_Text = "A <b>tip</b>\nwith marks";
        event->m_HotRect = {5, 5, 40, 30};
    };
    hosted.Send(QHelpEvent(QEvent::ToolTip, QPoint(10, 10), hosted.Widget()->mapToGlobal(QPoint(10, 10))));
    EXPECT_EQ(hosted.Control().Take(), "hover(10,10,0x0,0) tooltip(10,10)");
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_TRUE(QToolTip::text().contains("A &lt;b&gt;tip&lt;/b&gt; with marks"));

    hosted.Send(Mouse(QEvent::MouseMove, 12, 10, Qt::NoButton, Qt::NoButton));
    EXPECT_EQ(hosted.Control().Take(), "move(12,10,0x0,0) track");
    hosted.Window().HideTooltip();
    EXPECT_TRUE(RunUntil([] { return !QToolTip::isVisible(); }));
    hosted.Window().HideTooltip();
    hosted.Control().Take();
    hosted.Send(Mouse(QEvent::MouseMove, 13, 10, Qt::NoButton, Qt::NoButton));
    EXPECT_EQ(hosted.Control().Take(), "move(13,10,0x0,0)");
}

TEST(QtTooltip, PlainTextStaysPlainAndManyLinesStayLines)
{
    CHosted hosted;
    hosted.Control().m_Tooltip = [](CTooltipEvent* event) { event->m_Text = "plain"; };
    hosted.Send(QHelpEvent(QEvent::ToolTip, QPoint(10, 10), hosted.Widget()->mapToGlobal(QPoint(10, 10))));
    EXPECT_EQ(QToolTip::text(), "plain");

    hosted.Control().m_Tooltip = [](CTooltipEvent* event) {
        event->m_Text = "one\ntwo";
        event->m_Multiline = true;
    };
    hosted.Send(QHelpEvent(QEvent::ToolTip, QPoint(20, 10), hosted.Widget()->mapToGlobal(QPoint(20, 10))));
    EXPECT_TRUE(QToolTip::text().contains("one\ntwo"));
    EXPECT_TRUE(QToolTip::text().contains("pre-wrap"));
    hosted.Window().HideTooltip();
    Settle();
}

TEST(QtTooltip, NoTextShowsNoTip)
{
    CHosted hosted;
    hosted.Send(QHelpEvent(QEvent::ToolTip, QPoint(10, 10), hosted.Widget()->mapToGlobal(QPoint(10, 10))));
    EXPECT_EQ(hosted.Control().Take(), "hover(10,10,0x0,0) tooltip(10,10)");
    EXPECT_TRUE(RunUntil([] { return !QToolTip::isVisible(); }));
}

}  // namespace vexelbase::qt::test
