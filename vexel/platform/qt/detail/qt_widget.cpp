#include "vexel/platform/qt/detail/qt_widget.h"

#include "vexel/platform/qt/detail/guard.h"
#include "vexel/platform/qt/detail/in_qt.h"
#include "vexel/platform/qt/detail/qt_window.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPointer>

namespace vexelbase::qt
{

CQtWidget::CQtWidget(CQtWindow& window, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_Window(&window)
{
    // Every pixel comes from the window's surface.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_InputMethodEnabled);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    if (isWindow())
    {
        setAttribute(Qt::WA_QuitOnClose, flags == Qt::WindowFlags());
        setAttribute(Qt::WA_NoMouseReplay);  // its window passes on what closes a popup
    }
    if (parent && !isWindow())
    {
        FillParent();
        parent->installEventFilter(this);
    }
}

CQtWidget::~CQtWidget()
{
    if (m_Window)
        Guarded([this] { m_Window->WidgetGoes(); });
}

void CQtWidget::FillParent()
{
    QWidget const* const parent = parentWidget();
    if (!parent || isWindow())
        return;
    QRect const area = parent->contentsRect();
    if (pos() == area.topLeft())
        resize(area.size());  // setGeometry would tell of a move
    else
        setGeometry(area);
}

void CQtWidget::WatchNeighbours()
{
    auto const watchChildren = [this](QWidget& parent) {
        for (QObject* const child : parent.children())
            if (child->isWidgetType() && child != this)
                child->installEventFilter(this);
    };
    watchChildren(*this);
    for (QWidget* inner = this; !inner->isWindow() && inner->parentWidget(); inner = inner->parentWidget())
    {
        watchChildren(*inner->parentWidget());
        inner->parentWidget()->installEventFilter(this);
    }
}

void CQtWidget::NoteNeighbour(QEvent const& event)
{
    if (!m_Window)
        return;
    switch (event.type())
    {
    case QEvent::ChildAdded:
        if (QObject* const child = static_cast<QChildEvent const&>(event).child(); child != this)
            child->installEventFilter(this);
        m_Window->NeighbourComes();
        break;
    case QEvent::ChildRemoved:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ParentChange:
    case QEvent::ZOrderChange:
        m_Window->NeighbourMoves();
        break;
    default:
        break;
    }
}

QPaintDevice* CQtWidget::GetPaintTarget() const
{
    QPoint offset;
    return redirected(&offset);
}

int CQtWidget::FrameEvent()
{
    static int const type = QEvent::registerEventType();
    return type;
}

int CQtWidget::QueueEvent()
{
    static int const type = QEvent::registerEventType();
    return type;
}

int CQtWidget::RatioEvent()
{
    static int const type = QEvent::registerEventType();
    return type;
}

int CQtWidget::ReleaseEvent()
{
    static int const type = QEvent::registerEventType();
    return type;
}

bool CQtWidget::event(QEvent* event)
{
    CInQt const inside;
    if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildRemoved)
        NoteNeighbour(*event);
    bool handled = false;
    bool result = true;
    if (m_Window && m_Window->IsForWindow(*event))
    {
        // What Qt keeps of its own comes first: afterwards the widget may be gone.
        if (CQtWindow::NeedsQtFirst(*event))
            result = QWidget::event(event);
        handled = true;
        Guarded([&] { result = m_Window->HandleEvent(*event) && result; });
    }
    if (!handled)
        result = QWidget::event(event);
    return result;
}

bool CQtWidget::eventFilter(QObject* watched, QEvent* event)
{
    NoteNeighbour(*event);
    if (watched == parent() && (event->type() == QEvent::Resize || event->type() == QEvent::ContentsRectChange))
    {
        CInQt const inside;
        QPointer<CQtWidget> const self(this);
        FillParent();
        if (m_Window)
            Guarded([this] { m_Window->SyncSurface(); });
        if (!self)
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

void CQtWidget::paintEvent(QPaintEvent* event)
{
    if (m_Window)
        m_Window->Show(event->region());
}

QVariant CQtWidget::inputMethodQuery(Qt::InputMethodQuery query) const
{
    if (query == Qt::ImEnabled)
        return m_Window != nullptr;
    return QWidget::inputMethodQuery(query);
}

}  // namespace vexelbase::qt
