#include "vexel/platform/qt/detail/qt_scroll_bar.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/qt_input.h"
#include "vexel/platform/qt/detail/qt_system.h"
#include "vexel/platform/qt/detail/qt_window.h"
#include "vexel/signals/notify.h"

#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace vexelbase::qt
{

namespace
{

constexpr int LinesPerNotch = 3;
constexpr int Shadow = 8;  // pixels of Qt's

}  // namespace

// In a long range most steps leave the thumb on its pixels: then nothing needs to be painted. And a thumb that moves leaves
// the rest as it is.
class CQtScrollBar::CBar final : public CNativeWidget<QScrollBar>
{
public:
    using CNativeWidget<QScrollBar>::CNativeWidget;

protected:
    void sliderChange(SliderChange change) override
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        SLook const look{style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this),
                         sliderPosition() == minimum(), sliderPosition() == maximum()};
        SLook const before = std::exchange(m_Look, look);
        if (change != SliderValueChange || before.atMinimum != look.atMinimum || before.atMaximum != look.atMaximum)
            CNativeWidget<QScrollBar>::sliderChange(change);
        else if (before.thumb != look.thumb)
            update(QRegion(Around(before.thumb)) + Around(look.thumb));
    }

private:
    // A style may draw a shadow beside the thumb.
    static QRect Around(QRect const& thumb) { return thumb.adjusted(-Shadow, -Shadow, Shadow, Shadow); }

    struct SLook
    {
        QRect thumb;
        bool atMinimum = false;  // a style may show an arrow that leads nowhere
        bool atMaximum = false;
    };

    SLook m_Look;
};

CQtScrollBar::CQtScrollBar(CQtWindow& window, bool vertical)
    : CQtNativeControl<IScrollBar>(window), m_Vertical(vertical)
{
    SetSupportedEvent(typeid(IScrollBarNotify));
    m_Bar = new CBar(window.GetWidget());
    m_Bar->setOrientation(vertical ? Qt::Vertical : Qt::Horizontal);
    m_Bar->setCursor(Qt::ArrowCursor);
    m_Bar->setAutoFillBackground(true);  // whatever the style leaves out, nothing shows through
    Take(m_Bar, *m_Bar);
    QObject::connect(m_Bar, &QAbstractSlider::actionTriggered, m_Bar, [this, bar = m_Bar](int action) {
        CInQt const inside;
        if (bar->owner)
            ActionTriggered(action);
    });
    QObject::connect(m_Bar, &QAbstractSlider::valueChanged, m_Bar, [this, bar = m_Bar](int value) {
        CInQt const inside;
        if (bar->owner)
            ValueChanged(value);
    });
    ShowInfo();
    int const width = CQtSystem::Get().GetSystemMetric(ISystem::smScrollBarWidth);
    int const height = CQtSystem::Get().GetSystemMetric(ISystem::smScrollBarHeight);
    Place({0, 0, vertical ? width : 3 * width, vertical ? 3 * height : height});
    Listen();
}

CQtScrollBar::~CQtScrollBar()
{
    GiveUp();
}

double CQtScrollBar::GetWay() const
{
    return std::max(ToFinite(m_Info.maximum) - ToFinite(m_Info.page) - ToFinite(m_Info.minimum), 0.0);
}

double CQtScrollBar::GetThumbPos() const
{
    double const way = GetWay();
    double const position = std::clamp(ToFinite(m_Info.position) - ToFinite(m_Info.minimum), 0.0, way);
    return m_Info.inverted ? way - position : position;
}

void CQtScrollBar::SetInfo(SScrollBarInfo const& info)
{
    m_Info = info;
    ShowInfo();
}

void CQtScrollBar::SetScrollPos(double position)
{
    double const least = ToFinite(m_Info.minimum);
    m_Info.position = std::clamp(ToFinite(position), least, least + GetWay());
    ShowInfo();
}

void CQtScrollBar::Refresh()
{
    rectangle<int> rect = GetPlace();
    if (m_Vertical)
        rect.right = AddSaturated(rect.left, CQtSystem::Get().GetSystemMetric(ISystem::smScrollBarWidth));
    else
        rect.bottom = AddSaturated(rect.top, CQtSystem::Get().GetSystemMetric(ISystem::smScrollBarHeight));
    Place(rect);
}

void CQtScrollBar::ShowInfo()
{
    m_Steps = CScrollSteps(GetWay());
    if (!GetWidget())
        return;
    bool const before = std::exchange(m_Showing, true);
    m_Bar->setRange(0, m_Steps.GetCount());
    m_Bar->setPageStep(m_Steps.FromLength(m_Info.page));
    m_Bar->setSingleStep(m_Steps.FromLength(m_Info.lineStep));
    m_Bar->setValue(m_Steps.FromDistance(GetThumbPos()));
    m_Showing = before;
}

// The user ---------------------------------------------------------------------------------------------------------

void CQtScrollBar::UserMoves(double fromEnd, CScrollEvent::ScrollAction action)
{
    double const way = GetWay();
    double const wanted = std::clamp(ToFinite(fromEnd), 0.0, way);
    if (wanted == GetThumbPos())
        return;
    double const least = ToFinite(m_Info.minimum);
    m_Info.position = least + (m_Info.inverted ? way - wanted : wanted);
    CScrollEvent event(least + wanted, action);
    Do([&] { Fire<&IScrollBarNotify::ScrollBarOnScroll>(*this, &event, true); });
}

// Qt has moved its thumb already, and takes over what stands there when this returns.
void CQtScrollBar::ActionTriggered(int action)
{
    vexel_ptr<CBase> const alive(GetSelf());
    switch (action)
    {
    case QAbstractSlider::SliderSingleStepAdd:
        StepBy(ToFinite(m_Info.lineStep), CScrollEvent::saLine);
        break;
    case QAbstractSlider::SliderSingleStepSub:
        StepBy(-ToFinite(m_Info.lineStep), CScrollEvent::saLine);
        break;
    case QAbstractSlider::SliderPageStepAdd:
        StepBy(ToFinite(m_Info.page), CScrollEvent::saPage);
        break;
    case QAbstractSlider::SliderPageStepSub:
        StepBy(-ToFinite(m_Info.page), CScrollEvent::saPage);
        break;
    case QAbstractSlider::SliderToMinimum:
    case QAbstractSlider::SliderToMaximum:
    case QAbstractSlider::SliderMove:
        // Where the thumb stands as the record has it, it was not moved.
        if (m_Bar->sliderPosition() != m_Steps.FromDistance(GetThumbPos()))
            UserMoves(m_Steps.ToDistance(m_Bar->sliderPosition()), CScrollEvent::saThumb);
        break;
    default:
        return;
    }
    if (!GetWidget())
        return;
    bool const before = std::exchange(m_Showing, true);
    m_Bar->setSliderPosition(m_Steps.FromDistance(GetThumbPos()));
    m_Showing = before;
}

// By other ways than an action, such as the bar's own menu.
void CQtScrollBar::ValueChanged(int value)
{
    if (m_Showing || value == m_Steps.FromDistance(GetThumbPos()))
        return;
    vexel_ptr<CBase> const alive(GetSelf());
    UserMoves(m_Steps.ToDistance(value), CScrollEvent::saThumb);
    ShowInfo();
}

bool CQtScrollBar::HandleEvent(QEvent& event)
{
    if (event.type() != QEvent::Wheel || !m_Bar->isEnabled())
        return false;
    auto& wheel = static_cast<QWheelEvent&>(event);
    int const notches = CQtInput::TakeNotches(m_WheelRest, CQtInput::GetWheelDelta(wheel));
    if (notches != 0)
        StepBy(-ToFinite(m_Info.lineStep) * LinesPerNotch * notches, CScrollEvent::saLine);
    if (GetWidget())
        ShowInfo();
    event.accept();
    return true;
}

}  // namespace vexelbase::qt
