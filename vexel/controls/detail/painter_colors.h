#pragma once

#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/palette.h"

#include <utility>

namespace vexel::detail
{

using namespace vexelbase;

/// The colour of the palette that is installed in the painter, else of the default one.
inline _color GetPainterColor(IPainter const& painter, ISysPalette::SysColor number)
{
    return painter.m_Palette ? painter.m_Palette->GetColor(number) : GetDefaultPalette()->GetColor(number);
}

/// `from` moved toward `to` by t, 0 to 1; each channel in single precision and truncated. Opaque.
inline _color MixColors(_color const& from, _color const& to, float t)
{
    auto const mix = [t](int a, int b) {
        float const start = static_cast<float>(a) / 255.0f;
        float const end = static_cast<float>(b) / 255.0f;
        return ToInt((start + (end - start) * t) * 255.0f);
    };
    return _color::FromRgb(mix(from.Red(), to.Red()), mix(from.Green(), to.Green()), mix(from.Blue(), to.Blue()));
}

/// Installs a palette in a painter for a scope and puts back what was there.
class CPaletteHolder
{
public:
    CPaletteHolder(IPainter* painter, vexel_ptr<ICustomPaletteEx> palette)
        : m_Painter(painter), m_Before(std::exchange(painter->m_Palette, std::move(palette)))
    {}
    ~CPaletteHolder() { m_Painter->m_Palette = std::move(m_Before); }
    CPaletteHolder(CPaletteHolder const&) = delete;
    CPaletteHolder& operator=(CPaletteHolder const&) = delete;

private:
    IPainter* const m_Painter;
    vexel_ptr<ICustomPaletteEx> m_Before;
};

}  // namespace vexel::detail
