#pragma once

#include "vexel/controls/bevel.h"
#include "vexel/controls/control_caption.h"

namespace vexel
{

/// A bevelled panel with a caption strip at its inner side. A click on the strip rolls the panel up, until its thickness is
/// that of the caption's text, and the next one gives the size back.
class VEXEL_API CRoll : public CBevel
{
public:
    CRoll(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    /// The strip, a child. It stands opposite to the edge that the roll is made with; at none of the edges, like the roll.
    CControlCaption& GetCaption() { return m_Caption; }
    CControlCaption const& GetCaption() const { return m_Caption; }
    void SetCaptionAlignment(Alignment alignment);  ///< Docks the strip to another side.

    /// Turns it over: takes the size of the strip, at an edge only in the thickness, or that from before. Called by a click
    /// on the strip, whichever is handed over.
    void Expand(CControlCaption* caption);
    bool IsExpanded() const { return m_Expanded; }                 ///< Expand changed the size; false at first.
    size<int> const& GetSavedSize() const { return m_SavedSize; }  ///< The one to come back to.
    void Layout();  ///< The arrow points where the next click moves the inner side to. At none of the edges it stays.

public:  // From CVisualElement
    /// A size that somebody else gives it and that is larger in either direction ends the expanded state.
    void SetSize(size<int> const& extent, bool scale) override;

private:
    size<int> CalcExpandedSize() const;

    CControlCaption m_Caption;
    size<int> m_SavedSize;
    bool m_Expanded = false;
    bool m_InExpand = false;
};

}  // namespace vexel
