#include "vexel/layout/resizer.h"

#include <algorithm>

namespace vexel
{

CResizer::~CResizer() = default;

// CProportionalResizer ---------------------------------------------------------------------------------------------------

CProportionalResizer::CProportionalResizer(CVisualElement* element, double ratio) : m_Ratio(ratio)
{
    SetElement(element);
}

void CProportionalResizer::SetElement(CVisualElement* element)
{
    if (element == m_Element)
        return;
    if (element)
        element->m_SigDestroy.connect(this, &CProportionalResizer::ElementGone);
    if (m_Element)
        m_Element->m_SigDestroy.disconnect(this, &CProportionalResizer::ElementGone);
    m_Element = element;
}

void CProportionalResizer::ProcessResize(CVisualElement* watched)
{
    if (watched && m_Element)
        SetSize(ToInt(GetSize(watched) * m_Ratio));
}

// CProportionalResizerEx -------------------------------------------------------------------------------------------------

CProportionalResizerEx::CProportionalResizerEx(CVisualElement* element, CVisualElement* validator)
    : CProportionalResizer(element, 0)
{
    SetValidator(validator);
}

void CProportionalResizerEx::SetValidator(CVisualElement* validator)
{
    if (validator == m_Validator)
        return;
    if (validator)
        validator->m_SigDestroy.connect(this, &CProportionalResizerEx::ValidatorGone);
    if (m_Validator)
        m_Validator->m_SigDestroy.disconnect(this, &CProportionalResizerEx::ValidatorGone);
    m_Validator = validator;
}

void CProportionalResizerEx::ProcessResize(CVisualElement* watched)
{
    if (IsProportionalResizing(watched) && watched && m_Element)
        SetSize(std::min(m_ElementSize, ToInt(GetSize(watched) * m_Ratio)));
}

bool CProportionalResizerEx::IsProportionalResizing(CVisualElement* watched)
{
    if (!watched || !m_Element)
        return false;
    int const validatorSize = m_Validator ? GetValidatorSize(m_Validator) : 0;
    if (validatorSize >= m_ValidatorSize && GetElementSize(m_Element) >= m_ElementSize)
    {
        m_Ratio = 0;  // both have grown enough
        return false;
    }
    double const wanted = static_cast<double>(m_ElementSize) + m_ValidatorSize;
    if (m_Ratio == 0 && wanted != 0)
        m_Ratio = m_ElementSize / wanted;
    return true;
}

// CUniformVertResizer ----------------------------------------------------------------------------------------------------

void CUniformVertResizer::ProcessResize(CVisualElement* watched)
{
    if (!watched)
        return;
    IChildren& children = *watched->GetChildren();
    int const count = children.GetCount();
    std::int64_t heights = 0;
    for (int i = 0; i < count; ++i)
        heights += children.GetItem(i)->GetSize().height;
    rectangle<int> const bounds = watched->GetBounds();
    std::int64_t const gap = count > 1 ? (std::int64_t{bounds.Height()} - heights - bounds.top) / (count - 1) : 0;

    CAliveGuard const alive(watched);
    std::int64_t top = bounds.top;
    for (int i = 0; i < count && i < children.GetCount(); ++i)
    {
        CVisualElement& child = *children.GetItem(i);
        if (i > 0)
            top += gap;
        std::int64_t const bottom = top + child.GetSize().height;
        child.SetPos({bounds.left, SaturateToInt(top), bounds.right, SaturateToInt(bottom)}, false);
        if (!alive)
            return;
        top = bottom + 1;
    }
}

}  // namespace vexel
