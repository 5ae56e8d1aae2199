#pragma once

#include "vexel/layout/scrolled.h"

namespace vexel
{

/// An element that sizes itself to its docked children, as long as it has a control.
class VEXEL_API CBoxBase : public CScrolled
{
public:
    CBoxBase(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CScrolled(parent, extent, alignment), m_AutoSize(GetControl() != nullptr)
    {}

    /// Takes the size that the visible children need. Without a control nothing happens.
    virtual void RecalculateSize() = 0;

    // From CVisualElement ---------------------------------------------------------------------------------------------
    bool IsScrollableOnSetPos() const override { return false; }
    void ProcessSetControl(IControl* control) override;
    void AfterSetControl() override;
    void AddNewChild(CVisualElement* child) override;
    void ProcessRearrange(CVisualElement** element) override;  ///< A child's request becomes one of the box.

protected:
    void PlaceBox(rectangle<int> const& rect, bool force, int (rectangle<int>::*across)() const);

    bool m_AutoSize;  // from the time that there is a control, which may be that of the parent it is made under
};

/// As high as its children at the top and bottom, and the one that fills the rest, ask for; each takes one pixel more
/// than its height, since edges are inclusive.
class VEXEL_API CVertBox : public CBoxBase
{
public:
    using CBoxBase::CBoxBase;

    void SetBottomPadSize(int extent);  ///< Room below the children; below 0 counts as 0.
    void RecalculateSize() override;
    void SetPos(rectangle<int> const& rect, bool force) override;

private:
    int m_BottomPad = 0;
};

/// As wide as its children at the left and right, and the one that fills the rest, ask for; each takes one pixel more
/// than its width.
class VEXEL_API CHorzBox : public CBoxBase
{
public:
    using CBoxBase::CBoxBase;

    void SetRightPadSize(int extent);  ///< Room to the right of the children; below 0 counts as 0.
    void RecalculateSize() override;
    void SetPos(rectangle<int> const& rect, bool force) override;

private:
    int m_RightPad = 0;
};

}  // namespace vexel
