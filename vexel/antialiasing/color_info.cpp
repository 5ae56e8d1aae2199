#include "vexel/antialiasing/color_info.h"

#include "vexel/antialiasing/detail/convert.h"

#include <cmath>

namespace antialiasing
{

namespace
{

void Go(unsigned long& channel, double step, double& carry)
{
    double const sum = step + carry;
    double const whole = std::floor(sum);
    carry = sum - whole;
    channel = detail::ToChannel(static_cast<double>(channel) + whole);
}

}  // namespace

CColorInfo& CColorInfo::operator+=(CColorInfoR& step)
{
    Go(m_Red, step.m_Red, step.m_RedCarry);
    Go(m_Green, step.m_Green, step.m_GreenCarry);
    Go(m_Blue, step.m_Blue, step.m_BlueCarry);
    Go(m_Alpha, step.m_Alpha, step.m_AlphaCarry);
    return *this;
}

}  // namespace antialiasing
