#include "vexel/antialiasing/contour.h"
#include "vexel/antialiasing/detail/blend.h"
#include "vexel/antialiasing/drawing_context.h"

#include <cstddef>

namespace antialiasing
{

namespace
{

// What stands in for a colour that the surface doesn't know until there was a first one.
constexpr unsigned long UnknownColor = 0x808080;

// A mask of bytes, in which what lies outside isn't written.
class CMask
{
public:
    CMask(unsigned char* bytes, long stride, long height)
        : m_Bytes(bytes), m_Stride(stride), m_Rows(height < 0 ? -height : height)
    {}

    void Set(long column, long row, unsigned long value) const
    {
        if (column >= 0 && column < m_Stride && row >= 0 && row < m_Rows)
            m_Bytes[row * m_Stride + column] = static_cast<unsigned char>(value & 0xFFu);
    }

private:
    unsigned char* m_Bytes;
    long m_Stride;
    long m_Rows;
};

}  // namespace

void CContour::DrawSolidContour(vexel::IDrawingContext* context) const
{
    for (auto const& [position, colour] : m_Solid)
        context->SetPixel(position.x, position.y, colour);
}

void CContour::Draw(vexel::IDrawingContext* context) const
{
    unsigned long known = UnknownColor;
    auto const draw = [&](tagPOINT const& position, CColorInfo const& pixel, unsigned long background) {
        if (background != NoColor)
            known = background;
        context->SetPixel(position.x, position.y, detail::Blend(pixel, known));
    };
    if (!HasAmbientArea())
    {
        for (auto const& [position, pixel] : m_Contour)
            draw(position, pixel, context->GetPixel(position.x, position.y));
    }
    else
    {
        auto i = m_Contour.begin();
        for (auto const& [position, colour] : m_Ambient.m_Secondary)
        {
            if (i == m_Contour.end())
                break;
            if (i->first == position)
            {
                draw(position, i->second, *colour);
                ++i;
            }
        }
    }
    DrawSolidContour(context);
}

void CContour::Draw(vexel::IDrawingContext* context, unsigned long background) const
{
    for (auto const& [position, pixel] : m_Contour)
        context->SetPixel(position.x, position.y, detail::Blend(pixel, background));
    DrawSolidContour(context);
}

void CContour::Draw(vexel::IDrawingContext* context, unsigned long inner, unsigned long outer) const
{
    auto const mean = [](unsigned long a, unsigned long b) { return (a + b) >> 1; };
    unsigned long const both =
        detail::Compose(mean(detail::Red(inner), detail::Red(outer)), mean(detail::Green(inner), detail::Green(outer)),
                        mean(detail::Blue(inner), detail::Blue(outer)));
    for (auto const& [position, pixel] : m_Contour)
    {
        unsigned long background = inner;
        if (pixel.m_Kind & 2u)
            background = pixel.m_Kind & 1u ? both : outer;
        context->SetPixel(position.x, position.y, detail::Blend(pixel, background));
    }
    DrawSolidContour(context);
}

void CContour::FillAlphaMask(unsigned char* mask, long stride, long height, bool flip) const
{
    CMask const bytes(mask, stride, height);
    auto const row = [=](long y) { return flip ? height - 1 - y : y; };
    for (auto const& [position, colour] : m_Solid)
        bytes.Set(position.x, row(position.y), 0);
    for (auto const& [position, pixel] : m_Contour)
        bytes.Set(position.x, row(position.y), ~pixel.m_Alpha);
}

void CContour::ClearAlphaMask(unsigned char* mask, long stride, long height, bool flip) const
{
    CMask const bytes(mask, stride, height);
    auto const row = [=](long y) { return flip ? height - y : y; };
    for (auto const& [position, colour] : m_Solid)
        bytes.Set(position.x, row(position.y), 255);
    for (auto const& [position, pixel] : m_Contour)
        if (position.x >= 1 && position.x < stride && position.y >= 1 && position.y < height)
            bytes.Set(position.x, row(position.y), 255);
}

}  // namespace antialiasing
