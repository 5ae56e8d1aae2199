#pragma once

#include "vexel/platform/painter.h"
#include "vexel/scroll/scrollable_element.h"

namespace vexel
{

/// The pane in the middle of a scrolled view: it moves what is on the screen already and leaves only the uncovered strip
/// to be painted (see GetDrawValidRect). It is its own central pane.
class VEXEL_API CCentralPart : public CScrollableElement
{
public:
    CCentralPart(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    /// The bounds as they were when the control last began a layout; control pixels.
    rectangle<int> const& GetRearrangeRect() const { return m_RearrangeRect; }
    void StartRearrange();  ///< Notes them. Called by the control.

    // From CScrollableElement -------------------------------------------------------------------------------------------
    void SetCentralPane(CVisualElement*) override {}
    /// Moves the pixels that stay by (dx, dy) and narrows the valid rectangle to them. Where nothing stays, or not all of
    /// the pane shows, no pixels are moved and nothing is valid. False: no distance.
    bool ScrollContent(int dx, int dy) override;

    // From CVisualElement -----------------------------------------------------------------------------------------------
    void SetPos(rectangle<int> const& rect, bool force) override;
    bool IsFullRepainted() const override { return false; }
    void ProcessSetControl(IControl* control) override;
    /// With a control and both models: logical units of these.
    void SetCoordSystem(IPainter* painter) override;

public:  // Overridable
    /// The mapping of the axes that have a model: from its start on, by its measure, backwards where it is reversed.
    virtual void FillCoordInfo(IPainter::CoordInfo* info);

private:
    rectangle<int> m_RearrangeRect;
};

}  // namespace vexel
