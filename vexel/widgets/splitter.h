#pragma once

#include "vexel/controls/bevel.h"
#include "vexel/core/element_ptr.h"
#include "vexel/layout/layout_flavor.h"

namespace vexel
{

/// A bar between two siblings, docked between them: dragging it moves the boundary. Docked left or right it moves sideways,
/// top or bottom up and down, at none of the edges not at all. The first sibling is the one that is docked to the same edge
/// before the bar; its size is what the boundary is kept by. During the drag the siblings are moved directly; at its end,
/// the first one's size is set, so that later layouts agree.
class VEXEL_API CSplitter : public CBevel,
                            public CLayoutFlavor  // one code for both directions
{
public:
    CSplitter(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    // Signals: the splitter comes first. A slot may delete it, its siblings and the control -------------------------------
    signal_t<CSplitter*> m_Moved;  ///< A step of the drag took effect.
    /// Before the step: the size that the first sibling would be asked to have, without regard to the smallest one.
    signal_t<CSplitter*, size<int> const&> m_SizeProposed;
    /// Before the step: how much larger, in pixels, the first sibling is to be.
    signal_t<CSplitter*, int> m_Delta;
    signal_t<CSplitter*> m_Finished;           ///< A button came up, also where nothing had moved.
    signal_t<CSplitter*, bool> m_Highlighted;  ///< The pointer came (true) or left; only with highlighting.

    // Siblings: not owned, forgotten when they die. Without both nothing moves ---------------------------------------------
    void SetElements(CVisualElement* first, CVisualElement* second);
    CVisualElement* GetFirst() const { return m_First.get(); }
    CVisualElement* GetSecond() const { return m_Second.get(); }

    // Behaviour ------------------------------------------------------------------------------------------------------------
    int GetMinSize() const { return m_MinSize; }
    /// What is left to either sibling, across the bar; device pixels, below 0 counts as 0.
    void SetMinSize(int pixels);
    bool IsLiveResize() const { return m_LiveResize; }
    void SetLiveResize(bool on) { m_LiveResize = on; }  ///< False: the bar moves when the button comes up.
    bool IsRefreshWhileMoving() const { return m_RefreshWhileMoving; }
    void SetRefreshWhileMoving(bool on) { m_RefreshWhileMoving = on; }  ///< RefreshElementSize on every step.
    bool IsHighlight() const { return m_Highlight; }
    void SetHighlight(bool on) { m_Highlight = on; }  ///< Counts from the next time that the pointer comes or leaves.

    // Steps ------------------------------------------------------------------------------------------------------------------
    /// A step of the drag under way, to a pointer at these own pixels. False: there is no drag by this splitter, or the
    /// pointer is within two pixels of where it holds the bar.
    bool UpdateElementSize(int x, int y);
    /// Makes the first sibling's size what it has now, without a repaint of its own, and repaints the parent.
    void RefreshElementSize();
    /// Makes the first sibling larger by as much as CheckDelta leaves, and the second one smaller; the bar goes along.
    /// False: there was no room, and nothing has changed.
    bool UpdateSplitterPos(int delta);
    /// A step of this many pixels, less what would take a sibling below the smallest size. The first one comes first.
    int CheckDelta(int delta) const;

    // Slots for signals of another splitter that this one follows -----------------------------------------------------------
    void HandleUpdateSplitterPos(CSplitter*, int delta) { UpdateSplitterPos(delta); }  ///< Of m_Delta.
    void HandleRefreshSizes(CSplitter*) { RefreshElementSize(); }                      ///< Of m_Finished or m_Moved.

public:                                                            // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;  ///< Always lays out and repaints.
    void SetAlignment(Alignment alignment) override;               ///< The pointer's shape goes by it.
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    void HandleMouseHover(CVisualElement* previous) override;
    void HandleMouseLeave(CVisualElement* next) override;

public:  // Overridable
    /// Exchanges the text colour and the background colour, whatever the argument: two calls restore them.
    virtual void DrawHighlighted(bool highlighted);

private:
    bool IsCapturing() const;
    void InvalidateWindow();
    void ChangeHighlight(bool highlighted);

    CElementPtr<> m_First;
    CElementPtr<> m_Second;
    int m_StartX = 0;  // where the bar is held; own pixels
    int m_StartY = 0;
    int m_MinSize = 20;
    bool m_LiveResize = true;
    bool m_RefreshWhileMoving = false;
    bool m_Highlight = false;
};

}  // namespace vexel
