#pragma once

#include "tests/platform/qt/qt_test_kit.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/native_controls.h"
#include "vexel/signals/notify.h"
#include "vexel/signals/signal.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <functional>
#include <string>

namespace vexelbase::qt::test
{

/// Takes the pointer out of the way: a widget that is shown under it hears of it.
inline void ParkPointer()
{
    QCursor::setPos(700, 500);
    Settle();
}

/// What an edit or combo box tells, one word an event.
class CEditWords : public CEditNotify
{
public:
    void EditOnChangeText(CChangeTextEvent*) override { Note("change"); }
    void EditOnChar(CEditKeyDownEvent* event) override
    {
        Refuse(*event,
               "char(" + std::to_string(static_cast<int>(static_cast<unsigned char>(event->m_Character))) + ")");
    }
    void EditOnKeyDown(CEditKeyDownEvent* event) override
    {
        Refuse(*event, "key(" + std::to_string(event->m_VirtualKey) + "," + std::to_string(event->m_Keys) + ")");
    }
    void EditOnReturnPress(CEvent*) override { Note("return"); }
    void EditOnVisibleChange(CVisibleChangeEvent*) override { Note("visible"); }
    void EditOnMouseWheel(CEditMouseWheelEvent* event) override
    {
        Refuse(*event, "wheel(" + std::to_string(event->m_Delta) + ")");
    }

    std::string Take()
    {
        std::string text;
        text.swap(m_Text);
        return text;
    }
    std::string m_Refuse;  ///< What begins so is dealt with.
    std::function<void(std::string const&)> m_Do;

private:
    void Note(std::string const& word)
    {
        m_Text += (m_Text.empty() ? "" : " ") + word;
        if (m_Do)
            m_Do(word);
    }
    void Refuse(CEvent& event, std::string const& word)
    {
        if (!m_Refuse.empty() && word.rfind(m_Refuse, 0) == 0)
            event.SetContinue(false);
        Note(word);
    }

    std::string m_Text;
};

/// What a scroll bar tells: position/action.
class CScrollWords : public CScrollBarNotify
{
public:
    void ScrollBarOnScroll(CScrollEvent* event) override
    {
        std::ostringstream word;
        word.precision(17);
        word << event->m_Position << '/' << event->m_Action;
        m_Text += (m_Text.empty() ? "" : " ") + word.str();
        if (m_Do)
            m_Do(*event);
    }
    std::string Take()
    {
        std::string text;
        text.swap(m_Text);
        return text;
    }
    std::function<void(CScrollEvent const&)> m_Do;

private:
    std::string m_Text;
};

/// Counts how often a control told that it got the focus.
class CFocusCount : public plinth::subscriber_base_t
{
public:
    explicit CFocusCount(ICustomControl& control) { control.m_SigFocusIn.connect(this, &CFocusCount::FocusIn); }
    void FocusIn(ICustomControl*)
    {
        ++m_Count;
        if (m_Do)
            m_Do();
    }
    int m_Count = 0;
    std::function<void()> m_Do;
};

inline void PressKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                     QString const& text = {})
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(widget, &event);
}

inline void TypeText(QWidget* widget, QString const& text)
{
    for (QChar const character : text)
        PressKey(widget, character.toUpper().unicode(), Qt::NoModifier, QString(character));
}

inline void SendMouse(QWidget* widget, QEvent::Type type, int x, int y, Qt::MouseButton button = Qt::LeftButton)
{
    QPointF const at(x, y);
    Qt::MouseButtons const held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, at, widget->mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : button, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

inline void ClickAt(QWidget* widget, int x, int y)
{
    SendMouse(widget, QEvent::MouseButtonPress, x, y);
    SendMouse(widget, QEvent::MouseButtonRelease, x, y);
}

inline bool TurnWheel(QWidget* widget, int notches)
{
    QPointF const at(3, 3);
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, notches * 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/// The only widget of this kind in the window.
template <class Widget> Widget* FindNative(CHosted& hosted)
{
    auto const found = hosted.Widget()->findChildren<Widget*>(QString(), Qt::FindDirectChildrenOnly);
    return found.size() == 1 ? found.front() : nullptr;
}

}  // namespace vexelbase::qt::test
