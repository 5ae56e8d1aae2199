#pragma once

#include "vexel/core/types.h"
#include "vexel/core/visual_element.h"
#include "vexel/export.h"

namespace vexel
{

class CExpander;

/// The direction in which an expander opens. Stateless and shared. Extents of title and body are the sizes that they ask
/// for, 0 where there is none; the frame's is the sum of the expander's offsets and content offsets on both sides.
class VEXEL_API CExpanderLogic
{
public:
    virtual ~CExpanderLogic();

    /// Shows or hides the body; the expander asks for frame and title, and the body where it is shown.
    virtual void Expand(CExpander* expander, bool expand) = 0;
    /// Whether there is a body that is shown.
    virtual bool IsExpanded(CExpander const* expander) const;
    /// A step of the animation, a quarter of the body's extent. True: it has reached the end; when closing, the body is
    /// hidden then.
    virtual bool UpdateSize(CExpander* expander, bool opening) = 0;
    virtual Alignment GetTitleAlignment() const = 0;

    /// Docks the title and makes it a child. Null: nothing.
    void UpdateTitle(CExpander* expander, CVisualElement* title);
    void UpdateBody(CExpander* expander, CVisualElement* body);  ///< The same with the body, which fills the rest.
};

/// Works on heights.
class VEXEL_API CVertExpanderLogic : public CExpanderLogic
{
public:
    void Expand(CExpander* expander, bool expand) override;
    bool UpdateSize(CExpander* expander, bool opening) override;
};

/// Works on widths.
class VEXEL_API CHorzExpanderLogic : public CExpanderLogic
{
public:
    void Expand(CExpander* expander, bool expand) override;
    bool UpdateSize(CExpander* expander, bool opening) override;
};

class VEXEL_API CTopBottomExpanderLogic final : public CVertExpanderLogic
{
public:
    Alignment GetTitleAlignment() const override { return alTop; }
};

class VEXEL_API CBottomTopExpanderLogic final : public CVertExpanderLogic
{
public:
    Alignment GetTitleAlignment() const override { return alBottom; }
};

class VEXEL_API CLeftRightExpanderLogic final : public CHorzExpanderLogic
{
public:
    Alignment GetTitleAlignment() const override { return alLeft; }
};

class VEXEL_API CRightLeftExpanderLogic final : public CHorzExpanderLogic
{
public:
    Alignment GetTitleAlignment() const override { return alRight; }
};

}  // namespace vexel
