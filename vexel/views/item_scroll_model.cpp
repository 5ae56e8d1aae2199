#include "vexel/views/item_scroll_model.h"

#include "vexel/platform/convert.h"
#include "vexel/views/item_view_model.h"

namespace vexel
{

double CDiscreteItemScrollModel::GetTo() const
{
    return m_ViewModel ? m_ViewModel->GetCount() : 0.0;
}

void CDiscreteItemScrollModel::SetStart(double value)
{
    if (m_ViewModel)
        m_ViewModel->SetStartItem(ToInt(value + 0.5));
}

double CDiscreteItemScrollModel::GetStart() const
{
    return m_ViewModel ? m_ViewModel->GetStartItem() : 0.0;
}

int CDiscreteItemScrollModel::GetMinScrollDistance() const
{
    return m_ViewModel ? m_ViewModel->GetDefaultItemSize() : 1;
}

double CDiscreteItemScrollModel::GetStepSize(double index) const
{
    int const unit = m_ViewModel ? m_ViewModel->GetDefaultItemSize() : 0;
    return unit != 0 ? static_cast<double>(m_ViewModel->GetItemSize(ToInt(index))) / unit : 0.0;
}

void CDiscreteItemScrollModel::SetStepSize(double index, double size) const
{
    if (m_ViewModel)
        m_ViewModel->SetItemSize(ToInt(index), ToInt(m_ViewModel->GetDefaultItemSize() * size));
}

std::pair<double, int> CDiscreteItemScrollModel::GetMeasure() const
{
    return {1.0, m_ViewModel ? m_ViewModel->GetDefaultItemSize() : 1};
}

double CContinuousItemScrollModel::GetTo() const
{
    return m_ViewModel ? m_ViewModel->GetFullItemsSize() : 0.0;
}

void CContinuousItemScrollModel::SetStart(double value)
{
    if (m_ViewModel)
        m_ViewModel->SetOffset(ToInt(value));
}

double CContinuousItemScrollModel::GetStart() const
{
    return m_ViewModel ? m_ViewModel->GetOffset() : 0.0;
}

}  // namespace vexel
