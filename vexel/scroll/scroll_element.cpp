#include "vexel/scroll/scroll_element.h"

#include "vexel/core/alive_guard.h"
#include "vexel/platform/convert.h"

#include <algorithm>
#include <cmath>

namespace vexel
{

CScrollElement::~CScrollElement()
{
    CAliveLink::Forget(this);
}

void CScrollElement::Recalculate(IScrollModel* model, int pagePixels)
{
    if (!m_ScrollBar)
        return;
    m_Converter = CScrollConverter(model);
    if (!model || m_Policy == spNever)
    {
        m_Visible = m_Policy == spAlways;
        m_ScrollBar->SetEnabled(false);
        return;
    }
    CAlivePtr<CScrollElement> const alive(this);
    // Whoever hears of what happens here may have taken the bar or the model away.
    auto const goesOn = [&] { return alive && m_ScrollBar && m_Converter.GetModel() == model; };
    m_Converter.NormalizeScale();
    if (!goesOn())
        return;

    int const page = std::max(pagePixels, 1);
    double const origin = m_Converter.L2P(model->GetFrom());
    SScrollBarInfo info;
    info.maximum = std::abs(std::trunc(m_Converter.L2P(model->GetTo()) - origin));
    info.page = model->IsInseparableStep() ? GetWholePage(*model, page) : page;
    info.lineStep = model->GetMinScrollDistance();
    info.position = std::abs(std::trunc(m_Converter.L2P(model->GetStart()) - origin));
    info.inverted = model->GetFrom() > model->GetTo();

    bool const scrolls = info.maximum > info.page;
    if (scrolls && info.position + info.page > info.maximum)
    {
        info.position = std::max(0.0, info.maximum - info.page);
        double const start = m_Converter.P2L(info.inverted ? 0.0 : info.position);
        m_SigScroll(CScrollEvent::saRangeChanged, start);
        if (!goesOn())
            return;
    }
    if (scrolls)
    {
        m_Visible = true;
        m_ScrollBar->SetInfo(info);
        if (m_Enabled)
            m_ScrollBar->SetEnabled(true);
        return;
    }
    m_Visible = m_Policy == spAlways;
    double const low = std::min(model->GetFrom(), model->GetTo());
    if (model->GetStart() != low)
    {
        model->SetStart(low);
        if (!goesOn())
            return;
    }
    m_ScrollBar->SetEnabled(false);
}

// The page in whole items, so that the thumb and the page step match what really fits.
double CScrollElement::GetWholePage(IScrollModel const& model, int page) const
{
    double const start = model.GetStart();
    double const to = model.GetTo();
    int const item = ToInt(start);
    double const size = model.GetStepSize(item);
    double const first = size - (start - item);  // what shows of the first item

    double room = m_Converter.P2L(page) - first;
    int whole = 0;
    for (double i = item + 1.0; room >= 0 && to > i; i += 1)
    {
        double const step = model.GetStepSize(i);
        if (!(step > 0))  // an item without size doesn't fit: the walk would not end
            break;
        if (room >= step)
            ++whole;
        room -= step;
    }
    return m_Converter.L2P((size == 0 ? 0 : first / size) + whole);
}

double CScrollElement::GetVal() const
{
    return m_ScrollBar ? m_Converter.P2L(std::trunc(m_ScrollBar->GetScrollPos())) : 0.0;
}

void CScrollElement::SetVal(double value)
{
    if (!m_ScrollBar)
        return;
    m_ScrollBar->SetScrollPos(std::trunc(m_Converter.L2P(value)));
    double const accepted = m_Converter.P2L(std::trunc(m_ScrollBar->GetScrollPos()));
    m_SigScroll(CScrollEvent::saSetValue, accepted);
}

void CScrollElement::ScrollBarOnScroll(CScrollEvent* event)
{
    if (!m_ScrollBar)
        return;
    SScrollBarInfo info;
    m_ScrollBar->GetInfo(info);
    double position = event->m_Position;
    if (position + info.page > info.maximum)
        position = info.maximum - info.page;
    if (info.inverted)
        position = info.maximum - position - info.page;
    double const start = m_Converter.P2L(std::trunc(position));
    m_SigScroll(event->m_Action, start);
}

}  // namespace vexel
