#include "tests/platform/contract_bench.h"
#include "tests/platform/qt/qt_test_kit.h"

#include "vexel/platform/qt/application.h"

#include <QApplication>
#include <QCursor>
#include <QPalette>
#include <QPoint>
#include <QScreen>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <cmath>

// How the window system hands its events to Qt; exported for tests.
extern Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, QPointF const& local, QPointF const& global,
                                             Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                             Qt::KeyboardModifiers mods, int timestamp);
extern Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type t, int k, Qt::KeyboardModifiers mods,
                                           QString const& text = QString(), bool autorep = false, ushort count = 1);

namespace vexelbase::tests
{

namespace
{

Qt::MouseButton ToQtButton(MouseButton button)
{
    switch (button)
    {
    case mbLeft:
        return Qt::LeftButton;
    case mbMiddle:
        return Qt::MiddleButton;
    case mbRight:
        return Qt::RightButton;
    default:
        return Qt::NoButton;
    }
}

int ToQtKey(int virtualKey)
{
    switch (virtualKey)
    {
    case vkTab:
        return Qt::Key_Tab;
    case vkReturn:
        return Qt::Key_Return;
    case vkEscape:
        return Qt::Key_Escape;
    case vkLeft:
        return Qt::Key_Left;
    case vkDown:
        return Qt::Key_Down;
    default:
        return virtualKey;  // letters, digits and blank have the same codes
    }
}

class CQtBench final : public CContractBench
{
public:
    CQtBench()
    {
        SetScale(1.0);
        // Qt remembers the keys of the last event, be it one of another test.
        qt_handleKeyEvent(nullptr, QEvent::KeyPress, Qt::Key_F35, Qt::NoModifier);
        MovePointer({700, 700});  // where no window stands
    }
    ~CQtBench() override
    {
        SetScale(1.0);
        if (QApplication::palette() != m_Palette)
            QApplication::setPalette(m_Palette);
        qt::test::Settle();
    }

    std::unique_ptr<ISysWindow> MakeWindow(point<int> const& screen, size<int> const& extent) override
    {
        std::unique_ptr<ISysWindow> window =
            qt::CApplication().CreateMainWindow("", {ToQt(extent.width), ToQt(extent.height)});
        QWidget& widget = Own(*window);
        widget.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);  // then it stands where it is put
        widget.setAttribute(Qt::WA_QuitOnClose, false);
        widget.move(ToQt(screen.x), ToQt(screen.y));
        widget.show();
        qt::test::Settle();
        return window;
    }
    void Resize(ISysWindow& window, size<int> const& extent) override
    {
        Own(window).resize(ToQt(extent.width), ToQt(extent.height));
        qt::test::Settle();
    }
    void Move(ISysWindow& window, point<int> const& screen) override
    {
        Own(window).move(ToQt(screen.x), ToQt(screen.y));
        qt::test::Settle();
    }
    void Show(ISysWindow& window, bool visible) override
    {
        Own(window).setVisible(visible);
        qt::test::Settle();
    }
    void Close(ISysWindow& window) override { delete &Own(window); }
    int GetCursor(ISysWindow& window) override
    {
        switch (Own(window).cursor().shape())
        {
        case Qt::ArrowCursor:
            return 1;
        case Qt::SizeVerCursor:
            return 7;
        case Qt::SizeHorCursor:
            return 9;
        case Qt::PointingHandCursor:
            return 12;
        case Qt::ForbiddenCursor:
            return 13;
        default:
            return -1;
        }
    }

    void Settle() override { qt::test::Settle(); }
    bool RunUntil(std::function<bool()> const& condition) override { return qt::test::RunUntil(condition); }
    void Wait(int milliseconds) override
    {
        bool over = false;
        QTimer::singleShot(milliseconds, Qt::PreciseTimer, [&over] { over = true; });
        qt::test::RunUntil([&over] { return over; });
    }

    void MovePointer(point<int> const& screen) override
    {
        m_Pointer = {ToQt(screen.x), ToQt(screen.y)};
        // This platform has no native grab, which takes the pointer's events to the window that has it.
        if (QWidget::mouseGrabber())
            SendMouse(mbNone, QEvent::MouseMove);
        else
            QCursor::setPos(m_Pointer);
        qt::test::Settle();
    }
    void Press(MouseButton button) override
    {
        m_Time += 2 * QApplication::doubleClickInterval();
        SendPress(button);
    }
    void PressTwice(MouseButton button) override
    {
        Press(button);
        Release(button);
        SendPress(button);
    }
    void Release(MouseButton button) override
    {
        m_Buttons &= ~Qt::MouseButtons(ToQtButton(button));
        SendMouse(button, QEvent::MouseButtonRelease);
    }
    void TurnWheel(int notches) override
    {
        QPoint const global = QCursor::pos();
        QWidget* const widget = QApplication::widgetAt(global);
        ASSERT_TRUE(widget);
        QWheelEvent event(widget->mapFromGlobal(QPointF(global)), global, QPoint(), QPoint(0, notches * 120), m_Buttons,
                          m_Modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &event);
    }
    void HoldKeys(int keys) override
    {
        m_Modifiers = Qt::NoModifier;
        m_Modifiers.setFlag(Qt::ShiftModifier, keys & ksShift);
        m_Modifiers.setFlag(Qt::ControlModifier, keys & ksControl);
        m_Modifiers.setFlag(Qt::AltModifier, keys & ksAlt);
    }
    void KeyDown(int virtualKey, std::string const& text) override
    {
        SendKey(QEvent::KeyPress, virtualKey, QString::fromStdString(text));
    }
    void KeyUp(int virtualKey) override { SendKey(QEvent::KeyRelease, virtualKey, QString()); }

    void SetScale(double scale) override
    {
        qt::CApplication().SetZoom(scale / QGuiApplication::primaryScreen()->devicePixelRatio());
        qt::test::Settle();
    }
    void ChangeColors(ISysWindow&) override
    {
        QPalette changed = QApplication::palette();
        changed.setColor(QPalette::Highlight,
                         changed.color(QPalette::Highlight).red() == 1 ? QColor(2, 2, 3) : QColor(1, 2, 3));
        QApplication::setPalette(changed);
        qt::test::Settle();
    }

private:
    // The bench's pixels are the screen's; Qt's are as many times larger as the program's ratio says.
    static int ToQt(int pixels)
    {
        return static_cast<int>(std::lround(pixels / QGuiApplication::primaryScreen()->devicePixelRatio()));
    }
    static QWidget& Own(ISysWindow& window) { return *qt::GetWidget(&window); }

    void SendPress(MouseButton button)
    {
        m_Buttons |= ToQtButton(button);
        SendMouse(button, QEvent::MouseButtonPress);
    }
    void SendMouse(MouseButton button, QEvent::Type type)
    {
        QPoint const global = m_Pointer;
        QWidget* const widget = QApplication::widgetAt(global);
        QWindow* window = widget ? widget->window()->windowHandle() : nullptr;
        if (QWidget* const grabber = QWidget::mouseGrabber())
            window = grabber->window()->windowHandle();
        m_Time += 10;
        qt_handleMouseEvent(window, window ? window->mapFromGlobal(global) : global, global, m_Buttons,
                            ToQtButton(button), type, m_Modifiers, m_Time);
        qt::test::Settle();
    }
    void SendKey(QEvent::Type type, int virtualKey, QString const& text)
    {
        if (QWindow* const window = QGuiApplication::focusWindow())
            qt_handleKeyEvent(window, type, ToQtKey(virtualKey), m_Modifiers, text);
        qt::test::Settle();
    }

    Qt::MouseButtons m_Buttons;
    Qt::KeyboardModifiers m_Modifiers;
    int m_Time = 0;
    QPalette const m_Palette = QApplication::palette();
    QPoint m_Pointer;  // Qt's pixels
};

}  // namespace

std::unique_ptr<CContractBench> CContractBench::Create()
{
    return std::make_unique<CQtBench>();
}

}  // namespace vexelbase::tests
