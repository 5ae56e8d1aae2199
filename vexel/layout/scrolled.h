#pragma once

#include "vexel/core/transparent_flavor.h"
#include "vexel/core/visual_element.h"

namespace vexel
{

/// An element larger than its parent, which is the view it is seen through: it moves by changing its own rectangle,
/// whose left and top are negative where it lies beyond the view's edge, and takes the navigation keys.
///
/// m_SigSize fires after a layout, as for every element, and also after a pure move.
class VEXEL_API CScrolled : public CTransparentFlavor<CVisualElement>
{
public:
    CScrolled(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    /// Whether it knows of the view: paints only what shows there, and takes keys. True at first.
    bool IsClippedToParent() const { return m_ClipToParent; }
    void SetClipToParent(bool clip);  ///< Repaints on a change.

    // Moves: pixels, above 0 towards the beginning. The size stays --------------------------------------------------
    void JumpVert(int delta);  ///< Not away from the view's top, nor from its foot: of these the foot wins.
    void JumpHorz(int delta);  ///< The same for left and right.
    void GotoBegin();          ///< The top to the view's top.
    void GotoEnd();            ///< Moves up by what the asked-for height is beyond the lowest visible row.
    void GotoBeginLine();      ///< The left to the view's left.
    void GotoEndLine();        ///< Moves left likewise, as seen from the present left edge.

    // From CVisualElement ---------------------------------------------------------------------------------------------
    void SetPos(rectangle<int> const& rect, bool force) override;
    void DrawContent(IPainter* painter) override;  ///< Fills what shows, unless it is transparent.
    rectangle<int> GetDrawBounds() const override;
    /// Page up and down, end, home and the arrows. The parent is laid out again, also where nothing was to do.
    bool HandleKeyDown(int keys, int key) override;

protected:
    /// One direction's ends have moved by the same amount.
    static bool HasMovedWhole(rectangle<int> const& old, rectangle<int> const& now);

private:
    void MoveByKey(int keys, int key);

    bool m_ClipToParent = true;
};

}  // namespace vexel
