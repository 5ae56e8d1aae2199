#pragma once

#include "vexel/export.h"
#include "vexel/platform/color.h"
#include "vexel/platform/ref_ptr.h"

namespace vexelbase
{

/// The system's colours by number.
class VEXEL_API ISysPalette
{
public:
    enum SysColor : int
    {
        scWindow = 1,
        scWindowText = 2,
        scFace = 3,  ///< Default background.
        scLight = 4,
        scHalfLight = 5,
        scShadow = 6,  ///< Also text of what is disabled.
        scDarkShadow = 7,
        scControlText = 8,  ///< Default foreground.
        scHighlight = 9,
        scHighlightText = 10,
        scTooltip = 11,
        scTooltipText = 12,
        scLink = 13,
        scLiteral = 14  ///< No colour: marks an element's literal colour.
    };

    virtual ~ISysPalette();
    virtual _color GetColor(SysColor number) const = 0;  ///< None for numbers that name no colour.
};

/// A palette whose colours an application sets.
class VEXEL_API ICustomPalette
{
public:
    virtual ~ICustomPalette();
    virtual _color GetColor(ISysPalette::SysColor number) const = 0;
    virtual void SetColor(ISysPalette::SysColor number, _color const& color) = 0;
};

/// A shared palette that can derive its edges (numbers 3 to 7) from one base colour.
class VEXEL_API ICustomPaletteEx : public CBase, public ICustomPalette
{
public:
    /// Sets number 3 to `color` and derives from it 4 (80 hundredths of the way to white), 5 (40 of them), 6 (35
    /// hundredths of the way to black) and 7 (65 of them), also where these had been set. None gives the five numbers back
    /// to the system. All other numbers stay as they are.
    virtual void SetBaseColor(_color const& color) = 0;
    virtual _color GetBaseColor() const = 0;  ///< None until set.
};

/// The current system's palette; never null in practice, null without a system.
VEXEL_API ISysPalette* GetSysPalette();
/// The system's colours seen as a custom palette; setting a colour of it does nothing. Follows theme changes.
/// Without a system it has plain grey ones of its own, so it always answers.
VEXEL_API ICustomPalette* GetDefaultPalette();
/// A new palette that shows the system's colours until colours are set.
VEXEL_API vexel_ptr<ICustomPaletteEx> CreateCustomPalette();

}  // namespace vexelbase
