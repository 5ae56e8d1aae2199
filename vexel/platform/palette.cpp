#include "vexel/platform/palette.h"

#include "vexel/platform/system.h"

#include <array>
#include <cstddef>
#include <optional>

namespace vexelbase
{

namespace
{

// What there is without a system.
_color GetPlainColor(ISysPalette::SysColor number)
{
    switch (number)
    {
    case ISysPalette::scWindow:
    case ISysPalette::scHighlightText:
    case ISysPalette::scLight:
        return color_table[9];
    case ISysPalette::scFace:
        return _color::FromRgb(0xE0, 0xE0, 0xE0);
    case ISysPalette::scHalfLight:
        return _color::FromRgb(0xF0, 0xF0, 0xF0);
    case ISysPalette::scShadow:
        return _color::FromRgb(0x90, 0x90, 0x90);
    case ISysPalette::scDarkShadow:
        return _color::FromRgb(0x50, 0x50, 0x50);
    case ISysPalette::scHighlight:
        return _color::FromRgb(0x30, 0x60, 0xC0);
    case ISysPalette::scTooltip:
        return _color::FromRgb(0xFF, 0xFF, 0xE0);
    case ISysPalette::scLink:
        return color_table[4];
    default:
        return color_table[1];
    }
}

class CDefaultPalette : public ICustomPalette
{
public:
    _color GetColor(ISysPalette::SysColor number) const override
    {
        ISysPalette const* const palette = GetSysPalette();
        return palette ? palette->GetColor(number) : GetPlainColor(number);
    }
    void SetColor(ISysPalette::SysColor, _color const&) override {}
};

class CCustomPalette : public ICustomPaletteEx
{
public:
    _color GetColor(ISysPalette::SysColor number) const override
    {
        if (IsKnown(number) && Slot(number))
            return *Slot(number);
        return GetDefaultPalette()->GetColor(number);
    }

    void SetColor(ISysPalette::SysColor number, _color const& color) override
    {
        if (IsKnown(number))
            m_Colors[static_cast<std::size_t>(number)] = color;
    }

    void SetBaseColor(_color const& color) override
    {
        m_Base = color;
        if (color.m_None)
        {
            for (std::size_t i = ISysPalette::scFace; i <= ISysPalette::scDarkShadow; ++i)
                m_Colors[i].reset();
            return;
        }
        SetColor(ISysPalette::scFace, color);
        SetColor(ISysPalette::scLight, color.Lighter(80));
        SetColor(ISysPalette::scHalfLight, color.Lighter(40));
        SetColor(ISysPalette::scShadow, color.Darker(35));
        SetColor(ISysPalette::scDarkShadow, color.Darker(65));
    }
    _color GetBaseColor() const override { return m_Base; }

private:
    static bool IsKnown(int number) { return number >= 0 && number < ISysPalette::scLiteral; }
    std::optional<_color> const& Slot(int number) const { return m_Colors[static_cast<std::size_t>(number)]; }

    std::array<std::optional<_color>, ISysPalette::scLiteral> m_Colors;
    _color m_Base{0, true};
};

}  // namespace

ISysPalette::~ISysPalette() = default;
ICustomPalette::~ICustomPalette() = default;

ISysPalette* GetSysPalette()
{
    ISystem* const system = GetCurrentSystem();
    return system ? system->GetPalette() : nullptr;
}

ICustomPalette* GetDefaultPalette()
{
    static CDefaultPalette palette;
    return &palette;
}

vexel_ptr<ICustomPaletteEx> CreateCustomPalette() { return vexel_ptr<ICustomPaletteEx>(new CCustomPalette); }

}  // namespace vexelbase
