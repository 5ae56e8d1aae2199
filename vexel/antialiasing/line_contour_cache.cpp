#include "vexel/antialiasing/line_contour_cache.h"

#include "vexel/platform/convert.h"

#include <algorithm>
#include <tuple>

namespace antialiasing
{

namespace
{

constexpr long BufferSize = 0x80000;

unsigned char g_Buffer[BufferSize];

std::uint32_t Tenths(double value)
{
    return static_cast<std::uint32_t>(vexelbase::ToInt(value * 10));
}

auto Order(CColorInfo const& colour)
{
    return std::tie(colour.m_Red, colour.m_Green, colour.m_Blue, colour.m_Alpha, colour.m_Kind);
}

}  // namespace

std::map<CCacheableLineContour::Tag, unsigned char*> CCacheableLineContour::sm_mapCache;

CCacheableLineContour::Tag::Tag(LINE_CONTOUR_PARAMS const& line, bool flag, long width, long height)
    : m_Size(static_cast<std::uint16_t>(width | height)), m_StartColor(line.m_StartColor), m_EndColor(line.m_EndColor)
{
    std::uint32_t const x1 = Tenths(line.m_Start.x), y1 = Tenths(line.m_Start.y);
    std::uint32_t const x2 = Tenths(line.m_End.x), y2 = Tenths(line.m_End.y);
    auto const low = [](auto value, std::uint32_t mask) { return static_cast<std::uint32_t>(value) & mask; };
    m_Packed1 = (flag ? 1u : 0u) + low(line.m_EndCap, 7) * 2 + (low(line.m_StartCap, 7) << 4) +
                (low(line.m_PenStyle, 7) << 7) + (low(line.m_Width, 7) << 13) + ((y2 & 0x3FFFu) << 16) + (x2 << 30);
    m_Packed2 = (x2 >> 2 & 0xFFu) + ((y1 & 0x3FFFu) << 8) + (x1 << 22);
}

bool CCacheableLineContour::Tag::operator<(Tag const& other) const
{
    auto const order = [](Tag const& tag) {
        return std::tuple_cat(std::tie(tag.m_Packed1, tag.m_Packed2, tag.m_Size), Order(tag.m_StartColor),
                              Order(tag.m_EndColor));
    };
    return order(*this) < order(other);
}

CCacheableLineContour::~CCacheableLineContour()
{
    if (m_OwnsMask)
        delete[] m_Mask;
}

void CCacheableLineContour::Generate(long width, long height, bool flip)
{
    if (m_OwnsMask)
        delete[] m_Mask;
    m_OwnsMask = false;
    m_Mask = g_Buffer;

    long const count = std::max(width, 0L) * (height < 0 ? -height : height);
    if (count >= BufferSize)
    {
        m_Mask = new unsigned char[static_cast<std::size_t>(count)];
        m_OwnsMask = true;
    }
    std::fill_n(m_Mask, count, static_cast<unsigned char>(255));

    CLineContour contour;
    contour.m_Mode = m_Mode;
    static_cast<LINE_CONTOUR_PARAMS&>(contour) = *this;
    contour.Generate(nullptr, nullptr);
    contour.Normalize(254);
    contour.FillAlphaMask(m_Mask, width, height, flip);
}

}  // namespace antialiasing
