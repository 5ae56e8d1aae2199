// Fonts and colours.

#include "vexel/core/control.h"
#include "vexel/core/detail/element_parts.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"

namespace vexel
{

namespace
{

// What an element's own font comes to on the default one.
font Combine(font const& own, font const& base)
{
    font result = base;
    if (result.size >= 1)
        result.size = ToInt(result.size * own.factor);
    else
        result.factor = own.factor;
    if (own.style != font::fsPlain)
        result.style = own.style;
    if (!own.name.empty())
        result.name = own.name;
    if (own.family != font::ffDefault && own.family != base.family)
    {
        result.family = own.family;
        if (own.name.empty())
            result.name.clear();  // so that the family decides
    }
    return result;
}

}  // namespace

// Fonts -------------------------------------------------------------------------------------------------------------------

CVisualElement::SFont const& CVisualElement::GetFontRecord() const
{
    static SFont const* const nothingSet = new SFont(font());  // outlives static elements
    return m_Font ? *m_Font : *nothingSet;
}

font const& CVisualElement::GetEffectiveFont() const
{
    SFont const& record = GetFontRecord();
    if (record.m_Own.size > 0)
        return record.m_Own;
    font const& base = GetDefaultGUIFont();
    if (!record.m_Known || record.m_Default != base)
    {
        record.m_Default = base;
        record.m_Effective = Combine(record.m_Own, base);
        record.m_Known = true;
    }
    return record.m_Effective;
}

void CVisualElement::SetFont(font const& value)
{
    if (GetOwnFont() == value)
        return;
    SFont* const record = value == font() ? nullptr : new SFont(value);
    DropFont();
    m_Font = record;
    AttributeChanged();
}

font CVisualElement::GetFont() const
{
    return GetEffectiveFont();
}

font const& CVisualElement::GetOwnFont() const
{
    return GetFontRecord().m_Own;
}

bool CVisualElement::HasSameFont(CVisualElement const& other) const
{
    return m_Font == other.m_Font || GetOwnFont() == other.GetOwnFont();
}

void CVisualElement::ShareFont(CVisualElement const& other)
{
    if (other.m_Font)
        ++other.m_Font->m_References;
    DropFont();
    m_Font = other.m_Font;
}

void CVisualElement::DropFont()
{
    if (m_Font && --m_Font->m_References == 0)
        delete m_Font;
    m_Font = nullptr;
}

double CVisualElement::GetSizeScale() const
{
    int const points = GetEffectiveFont().size;
    return points < 1 ? 1.0 : points * 0.125;
}

int CVisualElement::GetTextLineHeight() const
{
    ISysWindow* const window = m_Control ? m_Control->GetWindow() : nullptr;
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!painter)
        return -1;
    detail::CMeasuring const measuring(painter);
    painter->SetFont(GetEffectiveFont());
    fontmetrics metrics;
    painter->GetFontMetrics(&metrics);
    return metrics.ascent + metrics.descent + metrics.leading;
}

// Colours -----------------------------------------------------------------------------------------------------------------

_color CVisualElement::LookUp(_color const& literal, ISysPalette::SysColor color) const
{
    if (color == ISysPalette::scLiteral)
        return literal;
    if (ICustomPalette const* const custom = GetCustomPalette())
        return custom->GetColor(color);
    ISysPalette const* const palette = GetSysPalette();
    return palette ? palette->GetColor(color) : color_table[0];
}

_color CVisualElement::GetBkColor() const
{
    return LookUp(m_BkColor, m_BkSysColor);
}

_color CVisualElement::GetFgColor() const
{
    return LookUp(m_FgColor, m_FgSysColor);
}

void CVisualElement::SetBkColor(_color const& color)
{
    if (LookUp(m_BkColor, m_BkSysColor).m_Value == color.m_Value)
        return;
    m_BkColor = color;
    m_BkSysColor = ISysPalette::scLiteral;
    AttributeChanged();
}

void CVisualElement::SetBkColor(ISysPalette::SysColor color)
{
    if (color == m_BkSysColor)
        return;
    m_BkSysColor = color;
    AttributeChanged();
}

void CVisualElement::SetFgColor(_color const& color)
{
    if (LookUp(m_FgColor, m_FgSysColor).m_Value == color.m_Value)
        return;
    m_FgColor = color;
    m_FgSysColor = ISysPalette::scLiteral;
    AttributeChanged();
}

void CVisualElement::SetFgColor(ISysPalette::SysColor color)
{
    if (color == m_FgSysColor)
        return;
    m_FgSysColor = color;
    AttributeChanged();
}

}  // namespace vexel
