#include "vexel/scroll/scroll_converter.h"

#include "vexel/platform/convert.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vexel
{

namespace
{

constexpr double s_MaxLength = 2147483647.0;     // physical units: too long
constexpr double s_NormalLength = 2147483646.0;  // what a range that is too long is spread over

bool HasConstantSteps(IScrollModel const* model)
{
    return model->IsFixedStepSize() || model->IsInseparableStep();
}

}  // namespace

double CScrollConverter::L2P(double value) const
{
    if (!m_Model)
        return 0.0;
    auto const [logical, physical] = m_Model->GetMeasure();
    double v = 0;
    if (HasConstantSteps(m_Model))
    {
        v = value - std::min(m_Model->GetTo(), m_Model->GetFrom());
    }
    else
    {
        int const whole = ToInt(value);
        for (int i = 0; i < whole; ++i)
            v += m_Model->GetStepSize(i);
        v += (value - whole) * m_Model->GetStepSize(whole);
    }
    return physical * v / logical;
}

double CScrollConverter::P2L(double position) const
{
    if (!m_Model)
        return 0.0;
    auto const [logical, physical] = m_Model->GetMeasure();
    double target = logical * position / physical;
    if (HasConstantSteps(m_Model))
        return std::min(m_Model->GetTo(), m_Model->GetFrom()) + target;

    double const limit = std::max(m_Model->GetFrom(), m_Model->GetTo());
    for (int i = 0;; ++i)
    {
        double const step = m_Model->GetStepSize(i);
        if (step > target)
            return step == 0 ? i : i + target / step;
        target -= step;
        if (!(i + 1.0 <= limit) || i == std::numeric_limits<int>::max())
            return i + 1.0;
    }
}

double CScrollConverter::GetPhysicalLength() const
{
    auto const [logical, physical] = m_Model->GetMeasure();
    return physical / logical * std::abs(m_Model->GetTo() - m_Model->GetFrom());
}

bool CScrollConverter::IsNormalScale() const
{
    return GetPhysicalLength() < s_MaxLength;
}

bool CScrollConverter::NormalizeScale()
{
    if (IsNormalScale())
        return false;
    int const physical = m_Model->GetMeasure().second;
    m_Model->SetMeasure({std::abs(m_Model->GetTo() - m_Model->GetFrom()) * physical / s_NormalLength, physical});
    return true;
}

}  // namespace vexel
