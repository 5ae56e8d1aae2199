#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/color.h"
#include "vexel/platform/palette.h"
#include "vexel/platform/ref_ptr.h"

#include <vector>

namespace vexel
{

/// An element's colours, normal and flashed. The element must outlive the record.
struct VEXEL_API SBkFgElement
{
    CVisualElement* m_Element = nullptr;
    _color m_NormalFg;
    _color m_NormalBk;
    _color m_FlashedFg;  ///< None: the system's highlight text.
    _color m_FlashedBk;  ///< None: the system's highlight.

    void ProcessFlashed();
    void ProcessNormal();
};

/// Makes a set of elements flash by their colours. Whoever owns it drives the switching.
class VEXEL_API CBkFgRoutine
{
public:
    /// The present colours become the normal look. Null does nothing.
    void AddElement(CVisualElement* element, _color const& flashedFg, _color const& flashedBk);
    void ProcessFlashed();
    void ProcessNormal();

    int GetCount() const { return static_cast<int>(m_Elements.size()); }

private:
    std::vector<SBkFgElement> m_Elements;
};

/// Something that draws with a palette of its own.
class VEXEL_API IPaletteSupport
{
public:
    virtual ~IPaletteSupport();
    virtual void SetPalette(vexel_ptr<ICustomPaletteEx> palette) = 0;
    virtual vexel_ptr<ICustomPaletteEx> GetPalette() = 0;
};

/// A target's palettes, normal and flashed. The target must outlive the record.
struct VEXEL_API SPaletteElement
{
    IPaletteSupport* m_Target = nullptr;
    vexel_ptr<ICustomPaletteEx> m_NormalPalette;
    vexel_ptr<ICustomPaletteEx> m_FlashedPalette;

    void ProcessFlashed();
    void ProcessNormal();
};

/// Makes a set of targets flash by their palettes.
class VEXEL_API CPaletteRoutine
{
public:
    /// The present palette becomes the normal one. Null does nothing.
    void AddElement(IPaletteSupport* target, vexel_ptr<ICustomPaletteEx> flashed);
    void ProcessFlashed();
    void ProcessNormal();

    int GetCount() const { return static_cast<int>(m_Elements.size()); }

private:
    std::vector<SPaletteElement> m_Elements;
};

}  // namespace vexel
