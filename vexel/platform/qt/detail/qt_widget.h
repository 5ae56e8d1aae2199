#pragma once

#include <QWidget>

namespace vexelbase::qt
{

class CQtWindow;

/// The native side of a window: hands Qt's events to it and shows its pixels. Any event may end in the deletion of the
/// window, or of the widget itself.
class CQtWidget final : public QWidget
{
public:
    /// With a parent it fills the parent's contents and follows their size, unless the flags make it a window.
    CQtWidget(CQtWindow& window, QWidget* parent, Qt::WindowFlags flags = {});
    ~CQtWidget() override;

    void Detach() { m_Window = nullptr; }  ///< The window goes before the widget.
    /// Moves the focus to the next or previous widget, as Tab does. False if there is none.
    bool MoveFocus(bool forward) { return QWidget::focusNextPrevChild(forward); }
    void FillParent();
    QPaintDevice* GetPaintTarget() const;  ///< What the paint event under way is meant for; null outside of one.
    void WatchNeighbours();  ///< The window is told of widgets that come, or move, where they may hide it.

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

    static int FrameEvent();  ///< Types of the events that a window posts to its widget.
    static int QueueEvent();
    static int RatioEvent();
    static int ReleaseEvent();  ///< The capture has ended.

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    // The window's business; Qt would repaint everything.
    void focusInEvent(QFocusEvent*) override {}
    void focusOutEvent(QFocusEvent*) override {}

private:
    void NoteNeighbour(QEvent const& event);

    CQtWindow* m_Window;
};

}  // namespace vexelbase::qt
