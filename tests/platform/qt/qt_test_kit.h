#pragma once

#include "vexel/platform/base_window.h"
#include "vexel/platform/qt/host_window.h"
#include "vexel/platform/vexel_control.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace vexelbase::qt::test
{

/// Handles what waits, and what that brings with it.
inline void Settle()
{
    for (int i = 0; i < 10; ++i)
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// Runs the loop until the condition holds; false if it does not within five seconds.
inline bool RunUntil(std::function<bool()> const& condition)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition())
    {
        if (clock.elapsed() > 5000)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
    }
    return true;
}

/// A control that writes down what it is told: one word an event, with its numbers.
class CRecorder : public CVexelControl
{
public:
    explicit CRecorder(ISysWindow* window) : CVexelControl(window, false) {}

    /// What came since the last call, parted by blanks.
    std::string Take()
    {
        std::string result;
        result.swap(m_Log);
        return result;
    }
    void Note(std::string const& word)
    {
        if (!m_Log.empty())
            m_Log += ' ';
        m_Log += word;
    }

    std::function<void(IPainter*)> m_Draw;
    std::function<void(std::string const&)> m_Before;  ///< Runs first, with the word to be noted.
    std::function<void(CKeyboardEvent*)> m_KeyDown;
    std::function<void(CTooltipEvent*)> m_Tooltip;
    int m_Draws = 0;

    void OnDraw(IPainter* painter) override
    {
        ++m_Draws;
        if (!m_Draw)
            return;
        painter->BeginPaint(IPainter::ssPaint);
        m_Draw(painter);
        painter->EndPaint();
    }
    void OnButtonDown(CMouseEvent* event) override { Mouse("down", *event); }
    void OnButtonUp(CMouseEvent* event) override { Mouse("up", *event); }
    void OnMouseMove(CMouseEvent* event) override { Mouse("move", *event); }
    void OnDoubleClick(CMouseEvent* event) override { Mouse("double", *event); }
    void OnHover(CMouseEvent* event) override { Mouse("hover", *event); }
    void OnLeave(CMouseEvent*) override { Told("leave"); }
    void OnWheel(CMouseWheelEvent* event) override
    {
        std::ostringstream text;
        text << "wheel(" << event->m_X << ',' << event->m_Y << ',' << event->m_Delta << ')';
        Told(text.str());
    }
    void OnKeyDown(CKeyboardEvent* event) override
    {
        auto const keyDown = m_KeyDown;  // the recorder may be gone afterwards
        Key("keydown", *event);
        if (keyDown)
            keyDown(event);
    }
    void OnKeyUp(CKeyboardEvent* event) override { Key("keyup", *event); }
    void OnChar(CKeyboardEvent* event) override
    {
        std::ostringstream text;
        text << "char(" << std::hex << static_cast<int>(static_cast<unsigned char>(event->GetCharacterCode())) << ')';
        Told(text.str());
    }
    void OnResize(CWindowEvent*) override
    {
        std::ostringstream text;
        if (GetWindow())
            text << "resize(" << GetWindow()->GetRect().right << ',' << GetWindow()->GetRect().bottom << ')';
        else
            text << "resize()";
        Told(text.str());
    }
    void OnMove(CWindowEvent*) override { Told("moved"); }
    void OnShow(CWindowEvent*) override { Told("shown"); }
    void OnHide(CWindowEvent*) override { Told("hidden"); }
    void OnDestroy(CWindowEvent*) override { Told("destroyed"); }
    void OnGetFocus(CFocusEvent*) override { Told("focus"); }
    void OnLostFocus(CFocusEvent*) override { Told("nofocus"); }
    void OnContextMenu(CContextMenuEvent* event) override
    {
        std::ostringstream text;
        text << "menu(" << event->m_X << ',' << event->m_Y << ')';
        Told(text.str());
    }
    void OnTooltip(CTooltipEvent* event) override
    {
        std::ostringstream text;
        text << "tooltip(" << event->m_X << ',' << event->m_Y << ')';
        if (m_Tooltip)
            m_Tooltip(event);
        Told(text.str());
    }
    void OnTooltipTrack(CTooltipEvent*) override { Told("track"); }
    void OnCustomEvent(CCustomEvent* event) override
    {
        std::string const word = "custom(" + std::to_string(event->m_Id) + ')';
        delete event;
        Told(word);
    }
    void OnSysColorChanged(CEvent*) override { Told("colors"); }

private:
    void Told(std::string const& word)
    {
        std::function<void(std::string const&)> const before = m_Before;
        Note(word);
        if (before)
            before(word);  // may delete this
    }
    void Mouse(char const* name, CMouseEvent const& event)
    {
        std::ostringstream text;
        text << name << '(' << event.m_X << ',' << event.m_Y << ",0x" << std::hex << event.m_Keys << std::dec << ','
             << event.m_Button << ')';
        Told(text.str());
    }
    void Key(char const* name, CKeyboardEvent const& event)
    {
        std::ostringstream text;
        text << name << '(' << event.GetVirtualKey() << ",0x" << std::hex << event.m_Keys << ')';
        Told(text.str());
    }

    std::string m_Log;
};

/// Sees the paint events of a widget.
class CPaintWatch : public QObject
{
public:
    explicit CPaintWatch(QWidget* widget) : m_Widget(widget) { widget->installEventFilter(this); }
    ~CPaintWatch() override { m_Widget->removeEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
        {
            ++m_Count;
            m_Region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
    void Forget()
    {
        m_Count = 0;
        m_Region = QRegion();
    }

    int m_Count = 0;
    QRegion m_Region;

private:
    QWidget* m_Widget;
};

/// A shown top-level widget that carries a window with a recorder on it, 100 x 80 at ratio 1.
class CHosted
{
public:
    explicit CHosted(int width = 100, int height = 80)
    {
        m_Top.setWindowFlags(Qt::FramelessWindowHint);  // then it stands where it is put
        m_Top.resize(width, height);
        m_Window = HostWindow(&m_Top);
        m_Control = std::make_unique<CRecorder>(m_Window.get());
        m_Top.show();
        Settle();
        // Qt remembers the keys of the last event, be it one of another test.
        Send(QKeyEvent(QEvent::KeyPress, Qt::Key_F35, Qt::NoModifier));
        m_Control->Take();
    }

    QWidget& Top() { return m_Top; }
    QWidget* Widget() { return GetWidget(m_Window.get()); }
    ISysWindow& Window() { return *m_Window; }
    CBaseWindow& Base() { return dynamic_cast<CBaseWindow&>(*m_Window); }
    CRecorder& Control() { return *m_Control; }
    bool Send(QEvent&& event) { return QCoreApplication::sendEvent(Widget(), &event); }

    QWidget m_Top;
    std::unique_ptr<ISysWindow> m_Window;
    std::unique_ptr<CRecorder> m_Control;
};

} // namespace vexelbase::qt::test
