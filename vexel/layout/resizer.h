#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/signals/signal.h"

namespace vexel
{

/// Keeps an element's size in step with another's. The application connects ProcessResize to the m_SigSize of the
/// element that is watched:
///
///     CVertProportionalResizer resizer(&list, 0.25);
///     pane.m_SigSize.connect(&resizer, &CResizer::ProcessResize);
class VEXEL_API CResizer : public subscriber_base_t
{
public:
    CResizer() = default;
    ~CResizer() override;

    virtual void ProcessResize(CVisualElement* watched) = 0;  ///< The watched element has another size.
};

/// An element gets a fixed part of the watched one's extent.
class VEXEL_API CProportionalResizer : public CResizer
{
public:
    /// `element`: the one to be resized; not owned, forgotten when it dies.
    CProportionalResizer(CVisualElement* element, double ratio);

    double GetRatio() const { return m_Ratio; }
    void SetRatio(double ratio) { m_Ratio = ratio; }
    CVisualElement* GetElement() const { return m_Element; }
    void SetElement(CVisualElement* element);  ///< Null: nobody is resized.

    void ProcessResize(CVisualElement* watched) override;
    virtual int GetSize(CVisualElement* watched) = 0;  ///< The extent that counts: of the bounds, in pixels.
    virtual void SetSize(int extent) = 0;              ///< Of the element to be resized; unscaled.

protected:
    double m_Ratio;
    CVisualElement* m_Element = nullptr;

private:
    void ElementGone(CVisualElement*) { m_Element = nullptr; }
};

class VEXEL_API CVertProportionalResizer : public CProportionalResizer
{
public:
    using CProportionalResizer::CProportionalResizer;
    int GetSize(CVisualElement* watched) override { return watched->GetBounds().Height(); }
    void SetSize(int extent) override { m_Element->SetHeight(extent, false); }
};

class VEXEL_API CHorzProportionalResizer : public CProportionalResizer
{
public:
    using CProportionalResizer::CProportionalResizer;
    int GetSize(CVisualElement* watched) override { return watched->GetBounds().Width(); }
    void SetSize(int extent) override { m_Element->SetWidth(extent, false); }
};

/// Two elements share an extent: the resized one and a neighbour, the validator. As long as either is below the size it
/// wants, the resized one gets its part of the watched extent, but never more than it wants; the part is what it wants of
/// what both want. Once both have what they want, nothing happens, and the part is worked out anew the next time.
class VEXEL_API CProportionalResizerEx : public CProportionalResizer
{
public:
    /// Sizes wanted are 0 at first. Both elements are not owned and forgotten when they die.
    CProportionalResizerEx(CVisualElement* element, CVisualElement* validator);

    CVisualElement* GetValidator() const { return m_Validator; }
    void SetValidator(CVisualElement* validator);  ///< Null counts as an element of size 0.

    void ProcessResize(CVisualElement* watched) override;
    virtual void SetValidatorSize(int extent) { m_ValidatorSize = extent; }  ///< What the validator wants.
    virtual int GetValidatorSize() const { return m_ValidatorSize; }
    virtual void SetElementSize(int extent) { m_ElementSize = extent; }  ///< What the resized element wants.
    virtual int GetElementSize() const { return m_ElementSize; }
    virtual bool IsProportionalResizing(CVisualElement* watched);
    virtual int GetValidatorSize(CVisualElement* validator) const = 0;  ///< What it has: the extent of its bounds.
    virtual int GetElementSize(CVisualElement* element) const = 0;      ///< What it asks for when docked.

private:
    void ValidatorGone(CVisualElement*) { m_Validator = nullptr; }

    CVisualElement* m_Validator = nullptr;
    int m_ValidatorSize = 0;
    int m_ElementSize = 0;
};

class VEXEL_API CVertProportionalResizerEx : public CProportionalResizerEx
{
public:
    using CProportionalResizerEx::CProportionalResizerEx;
    using CProportionalResizerEx::GetElementSize;
    using CProportionalResizerEx::GetValidatorSize;
    int GetSize(CVisualElement* watched) override { return watched->GetBounds().Height(); }
    void SetSize(int extent) override { m_Element->SetHeight(extent, false); }
    int GetValidatorSize(CVisualElement* validator) const override { return validator->GetBounds().Height(); }
    int GetElementSize(CVisualElement* element) const override { return element->GetSize().height; }
};

class VEXEL_API CHorzProportionalResizerEx : public CProportionalResizerEx
{
public:
    using CProportionalResizerEx::CProportionalResizerEx;
    using CProportionalResizerEx::GetElementSize;
    using CProportionalResizerEx::GetValidatorSize;
    int GetSize(CVisualElement* watched) override { return watched->GetBounds().Width(); }
    void SetSize(int extent) override { m_Element->SetWidth(extent, false); }
    int GetValidatorSize(CVisualElement* validator) const override { return validator->GetBounds().Width(); }
    int GetElementSize(CVisualElement* element) const override { return element->GetSize().width; }
};

/// Spreads the watched element's children (of alNone) evenly over its height, each as high as it asks for and as wide as
/// the element, with equal gaps between them; a single child stands at the top.
class VEXEL_API CUniformVertResizer : public CResizer
{
public:
    void ProcessResize(CVisualElement* watched) override;
};

}  // namespace vexel
