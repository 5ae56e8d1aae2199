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

// Those that were there at the start. Each is a copy, since what it switches may add more.
template <class Record, class Switch> void ForEach(std::vector<Record> const& records, Switch const& change)
{
    std::size_t const count = records.size();
    for (std::size_t i = 0; i < count && i < records.size(); ++i)
    {
        Record record = records[i];
        change(record);
    }
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
    ForEach(m_Elements, [](SBkFgElement& element) { element.ProcessFlashed(); });
}

void CBkFgRoutine::ProcessNormal()
{
    ForEach(m_Elements, [](SBkFgElement& element) { element.ProcessNormal(); });
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
    ForEach(m_Elements, [](SPaletteElement& element) { element.ProcessFlashed(); });
}

void CPaletteRoutine::ProcessNormal()
{
    ForEach(m_Elements, [](SPaletteElement& element) { element.ProcessNormal(); });
}

}  // namespace vexel
