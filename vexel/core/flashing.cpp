#include "vexel/core/flashing.h"

#include "vexel/core/visual_element.h"

namespace vexel
{

namespace
{

_color OrSystemColor(_color const& color, ISysPalette::SysColor number)
{
    if (!color.m_None)
        return color;
    ISysPalette const* const palette = GetSysPalette();
    return palette ? palette->GetColor(number) : color;
}

}  // namespace

void SBkFgElement::ProcessFlashed()
{
    if (!m_Element)
        return;
    CAliveGuard const alive(m_Element);
    m_Element->SetFgColor(OrSystemColor(m_FlashedFg, ISysPalette::scHighlightText));
    if (alive)
        m_Element->SetBkColor(OrSystemColor(m_FlashedBk, ISysPalette::scHighlight));
}

void SBkFgElement::ProcessNormal()
{
    if (!m_Element)
        return;
    CAliveGuard const alive(m_Element);
    m_Element->SetFgColor(m_NormalFg);
    if (alive)
        m_Element->SetBkColor(m_NormalBk);
}

void CBkFgRoutine::AddElement(CVisualElement* element, _color const& flashedFg, _color const& flashedBk)
{
    if (element)
        m_Elements.push_back({element, element->GetFgColor(), element->GetBkColor(), flashedFg, flashedBk});
}

void CBkFgRoutine::ProcessFlashed()
{
    for (SBkFgElement& element : m_Elements)
        element.ProcessFlashed();
}

void CBkFgRoutine::ProcessNormal()
{
    for (SBkFgElement& element : m_Elements)
        element.ProcessNormal();
}

IPaletteSupport::~IPaletteSupport() = default;

void SPaletteElement::ProcessFlashed()
{
    if (m_Target)
        m_Target->SetPalette(m_FlashedPalette);
}

void SPaletteElement::ProcessNormal()
{
    if (m_Target)
        m_Target->SetPalette(m_NormalPalette);
}

void CPaletteRoutine::AddElement(IPaletteSupport* target, vexel_ptr<ICustomPaletteEx> flashed)
{
    if (target)
        m_Elements.push_back({target, target->GetPalette(), flashed});
}

void CPaletteRoutine::ProcessFlashed()
{
    for (SPaletteElement& element : m_Elements)
        element.ProcessFlashed();
}

void CPaletteRoutine::ProcessNormal()
{
    for (SPaletteElement& element : m_Elements)
        element.ProcessNormal();
}

}  // namespace vexel
