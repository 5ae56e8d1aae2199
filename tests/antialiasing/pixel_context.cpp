#include "tests/antialiasing/pixel_context.h"

#include <sstream>
#include <utility>

namespace antialiasing::tests
{

unsigned long CPixelContext::GetPixel(long x, long y)
{
    std::ostringstream text;
    text << (m_Log.empty() ? "" : " ") << "get " << x << ',' << y;
    m_Log += text.str();
    auto const found = m_Pixels.find({x, y});
    return found == m_Pixels.end() ? m_Background : found->second;
}

void CPixelContext::SetPixel(long x, long y, unsigned long value)
{
    std::ostringstream text;
    text << (m_Log.empty() ? "" : " ") << "set " << x << ',' << y << ' ' << std::hex << value;
    m_Log += text.str();
    m_Pixels[{x, y}] = value;
}

std::string CPixelContext::Take()
{
    return std::exchange(m_Log, {});
}

}  // namespace antialiasing::tests
