#include "vexel/platform/qt/detail/qt_input.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/font_face.h"
#include "vexel/platform/qt/detail/qt_keys.h"
#include "vexel/platform/qt/detail/qt_window.h"
#include "vexel/platform/system.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <utility>

namespace vexelbase::qt
{

namespace
{

constexpr int NotchDelta = QWheelEvent::DefaultDeltasPerStep;
constexpr int PixelsPerNotch = 60;  // of devices that tell pixels alone: three lines

bool IsCharacter(QChar character)
{
    return character.unicode() >= 0x20 && character.unicode() != 0x7F;
}

// Qt's tip takes plain text, unless it looks like mark-up, and wraps mark-up only.
QString ToTipText(CTooltipEvent const& event)
{
    QString text = ToQString(event.m_Text);
    bool const ownFont = event.m_Font.size > 0 && !(event.m_Font == GetDefaultGUIFont());
    if (!event.m_Multiline)
    {
        text.replace(u'\n', u' ');
        if (!ownFont && !Qt::mightBeRichText(text))
            return text;
    }

    QString style = event.m_Multiline ? QStringLiteral("white-space:pre-wrap") : QStringLiteral("white-space:pre");
    if (ownFont)
    {
        QFont const native = MakeQtFont(event.m_Font, 1.0);
        style += QStringLiteral(";font-family:'%1';font-size:%2pt;font-weight:%3;font-style:%4")
                     .arg(native.family().remove(u'\'').remove(u'"'))
                     .arg(native.pointSizeF())
                     .arg(native.weight())
                     .arg(native.italic() ? QStringLiteral("italic") : QStringLiteral("normal"));
    }
    return QStringLiteral("<p style=\"%1\">%2</p>").arg(style.toHtmlEscaped(), text.toHtmlEscaped());
}

}  // namespace

point<int> CQtInput::ToPixels(QPointF const& position) const
{
    double const ratio = m_Window.GetRatio();
    return {FloorToInt(position.x() * ratio), FloorToInt(position.y() * ratio)};
}

// Mouse ------------------------------------------------------------------------------------------------------------

bool CQtInput::Press(QMouseEvent const& event)
{
    MouseButton const button = ToMouseButton(event.button());
    if (button == mbNone)
        return false;
    m_JustEntered = false;
    point<int> const at = ToPixels(event.position());
    CMouseEvent sent(at.x, at.y, ToKeyState(event.modifiers(), event.buttons()), button);
    m_Window.Send(&CVexelControl::OnButtonDown, &sent);
    return true;
}

bool CQtInput::Release(QMouseEvent const& event)
{
    MouseButton const button = ToMouseButton(event.button());
    if (button == mbNone)
        return false;
    point<int> const at = ToPixels(event.position());
    CMouseEvent sent(at.x, at.y, ToKeyState(event.modifiers(), event.buttons()), button);
    m_Window.Send(&CVexelControl::OnButtonUp, &sent);
    return true;
}

bool CQtInput::DoubleClick(QMouseEvent const& event)
{
    MouseButton const button = ToMouseButton(event.button());
    if (button == mbNone)
        return false;
    point<int> const at = ToPixels(event.position());
    int const keys = ToKeyState(event.modifiers(), event.buttons());
    CMouseEvent pressed(at.x, at.y, keys, button);
    if (!m_Window.Send(&CVexelControl::OnButtonDown, &pressed))
        return true;
    CMouseEvent doubled(at.x, at.y, keys, button);
    m_Window.Send(&CVexelControl::OnDoubleClick, &doubled);
    return true;
}

bool CQtInput::Move(QMouseEvent const& event)
{
    bool const justEntered = std::exchange(m_JustEntered, false);
    SMove const before = m_LastMove;
    point<int> const at = ToPixels(event.position());
    if (justEntered && before == SMove{at.x, at.y, ToKeyState(event.modifiers(), event.buttons())})
        return true;  // has been told
    return SendMove(event.position(), event.modifiers(), event.buttons());
}

bool CQtInput::Enter(QEnterEvent const& event)
{
    m_JustEntered = true;
    m_LeaveDue = false;
    return SendMove(event.position(), QGuiApplication::keyboardModifiers(), event.buttons());
}

bool CQtInput::SendMove(QPointF const& position, Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons)
{
    point<int> const at = ToPixels(position);
    m_LastMove = {at.x, at.y, ToKeyState(modifiers, buttons)};
    CMouseEvent sent(at.x, at.y, m_LastMove.keys, ToHeldButton(buttons));
    if (!m_Window.Send(&CVexelControl::OnMouseMove, &sent))
        return true;
    if (!m_TooltipShown)
        return true;
    if (!QToolTip::isVisible())
    {
        m_TooltipShown = false;
        return true;
    }
    CTooltipEvent track;
    track.m_X = at.x;
    track.m_Y = at.y;
    m_Window.Send(&CVexelControl::OnTooltipTrack, &track);
    return true;
}

bool CQtInput::LeaveIfStillDue()
{
    return m_LeaveDue ? Leave() : true;
}

bool CQtInput::Leave()
{
    m_JustEntered = false;
    m_LeaveDue = QWidget::mouseGrabber() == m_Window.GetWidget();
    if (m_LeaveDue)
        return true;
    point<int> const at = ToPixels(m_Window.GetWidget()->mapFromGlobal(QPointF(QCursor::pos())));
    Qt::MouseButtons const buttons = QGuiApplication::mouseButtons();
    CMouseEvent sent(at.x, at.y, ToKeyState(QGuiApplication::keyboardModifiers(), buttons), ToHeldButton(buttons));
    m_Window.Send(&CVexelControl::OnLeave, &sent);
    return true;
}

int CQtInput::TakeNotches(int& rest, int delta)
{
    if ((rest < 0 && delta > 0) || (rest > 0 && delta < 0))
        rest = 0;
    rest = AddSaturated(rest, delta);
    int const notches = rest / NotchDelta;
    rest -= notches * NotchDelta;
    return notches;
}

int CQtInput::GetWheelDelta(QWheelEvent const& event)
{
    QPoint const angle = event.angleDelta();
    if (angle.isNull())
        return event.pixelDelta().y() * NotchDelta / PixelsPerNotch;
    if (angle.y() == 0 && (event.modifiers() & Qt::AltModifier))
        return angle.x();  // with this key Qt exchanges the directions
    return angle.y();
}

bool CQtInput::Wheel(QWheelEvent const& event)
{
    int const delta = GetWheelDelta(event);
    if (delta == 0)
        return false;

    int const notches = TakeNotches(m_WheelRest, delta);
    if (notches == 0)
        return true;
    point<int> const at = ToPixels(event.position());
    CMouseWheelEvent sent(at.x, at.y, ToKeyState(event.modifiers(), event.buttons()), ToHeldButton(event.buttons()),
                          notches);
    m_Window.Send(&CVexelControl::OnWheel, &sent);
    return true;
}

bool CQtInput::ContextMenu(QContextMenuEvent const& event)
{
    point<int> const at = ToPixels(event.pos());
    CContextMenuEvent sent(at.x, at.y);
    m_Window.Send(&CVexelControl::OnContextMenu, &sent);
    return true;
}

// Keyboard ---------------------------------------------------------------------------------------------------------

bool CQtInput::KeyDown(QKeyEvent const& event)
{
    int const key = ToVirtualKey(event);
    int keys = ToKeyState(event.modifiers(), QGuiApplication::mouseButtons());
    if (event.key() == Qt::Key_Backtab)
        keys |= ksShift;

    CKeyboardEvent sent(keys, key);
    if (!m_Window.Send(&CVexelControl::OnKeyDown, &sent))
        return true;
    bool const dealtWith = !sent.m_PassOn || !sent.IsContinue();
    if (!sent.m_PassOn || !m_Window.GetWidget())
        return true;
    if (key == vkTab)
    {
        if (dealtWith || (keys & (ksControl | ksAlt)) != 0)
            return dealtWith;
        m_Window.LeaveByTab((keys & ksShift) == 0);
        return true;
    }

    // A character with control and alt both held is one that the keyboard offers in no other way.
    int const commands = keys & (ksControl | ksAlt);
    if (commands == 0 || commands == (ksControl | ksAlt))
        SendCharacters(event.text(), keys);
    return dealtWith;
}

bool CQtInput::KeyUp(QKeyEvent const& event)
{
    if (event.isAutoRepeat())
        return true;
    int keys = ToKeyState(event.modifiers(), QGuiApplication::mouseButtons());
    CKeyboardEvent sent(keys, ToVirtualKey(event));
    if (!m_Window.Send(&CVexelControl::OnKeyUp, &sent))
        return true;
    return !sent.m_PassOn || !sent.IsContinue();
}

bool CQtInput::InputMethod(QInputMethodEvent const& event)
{
    SendCharacters(event.commitString(),
                   ToKeyState(QGuiApplication::keyboardModifiers(), QGuiApplication::mouseButtons()));
    return true;
}

QString CQtInput::GetPrintable(QString const& text)
{
    QString printable = text;
    printable.removeIf([](QChar character) { return !IsCharacter(character); });
    return printable;
}

// False: the window is gone.
bool CQtInput::SendCharacters(QString const& text, int keys)
{
    QByteArray const bytes = GetPrintable(text).toUtf8();
    for (char const byte : bytes)
    {
        CKeyboardEvent sent(keys, 0, byte);
        if (!m_Window.Send(&CVexelControl::OnChar, &sent))
            return false;
    }
    return true;
}

// Tooltips ---------------------------------------------------------------------------------------------------------

bool CQtInput::Tooltip(QHelpEvent const& event)
{
    point<int> const at = ToPixels(event.pos());
    Qt::MouseButtons const buttons = QGuiApplication::mouseButtons();
    CMouseEvent rested(at.x, at.y, ToKeyState(QGuiApplication::keyboardModifiers(), buttons), ToHeldButton(buttons));
    if (!m_Window.Send(&CVexelControl::OnHover, &rested))
        return true;

    CTooltipEvent asked;
    asked.m_X = at.x;
    asked.m_Y = at.y;
    if (!m_Window.Send(&CVexelControl::OnTooltip, &asked) || !m_Window.GetWidget())
        return true;
    if (asked.m_Text.empty())
        HideTooltip();
    else
        ShowTooltip(asked);
    return true;
}

void CQtInput::ShowTooltip(CTooltipEvent const& event)
{
    QWidget* const widget = m_Window.GetWidget();
    double const ratio = m_Window.GetRatio();
    auto const toQt = [&](int pixels) { return pixels / ratio; };

    QPointF where(toQt(event.m_X), toQt(event.m_Y));
    if (!event.m_BoundsRect.IsZero())
    {
        // Qt shows a tip a little below and to the right of the place that it is given.
        constexpr QPointF offset(2, 16);
        where = QPointF(toQt(event.m_BoundsRect.left), toQt(event.m_BoundsRect.top)) - offset;
    }
    QRect hot;
    if (!event.m_HotRect.IsZero())
    {
        rectangle<int> rect = event.m_HotRect;
        rect.Normalize();
        hot = QRectF(QPointF(toQt(rect.left), toQt(rect.top)), QPointF(toQt(rect.right), toQt(rect.bottom)))
                  .toAlignedRect();
    }
    QToolTip::showText(widget->mapToGlobal(where).toPoint(), ToTipText(event), widget, hot);
    m_TooltipShown = true;
}

void CQtInput::HideTooltip()
{
    if (m_TooltipShown && m_Window.GetWidget())
        QToolTip::hideText();
    m_TooltipShown = false;
}

}  // namespace vexelbase::qt
