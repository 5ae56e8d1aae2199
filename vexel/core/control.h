#pragma once

#include "vexel/core/fwd.h"
#include "vexel/core/types.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/signals/signal.h"

#include <string>

namespace vexel
{

/// The host of a tree, as its elements know it. An element that is not its own, given to be remembered, is ignored.
class VEXEL_API IControl
{
public:
    IControl() = default;
    IControl(IControl const&) = delete;
    IControl& operator=(IControl const&) = delete;

    // Signals ---------------------------------------------------------------------------------------------------------------
    signal_t<> m_SigBeforeRearrange;
    signal_t<> m_SigAfterRearrange;
    signal_t<> m_SigBeforeDraw;
    signal_t<> m_SigAfterDraw;                          ///< Also when the paint had nothing to draw.
    signal_t<CVisualElement*, int, int> m_SigDragMove;  ///< Dragged element, pointer in control pixels.
    signal_t<CVisualElement*> m_SigDragEnd;
    signal_t<> m_SigWindowDestroyed;

    // Operations, in binary order -----------------------------------------------------------------------------------------------
    /// All mouse events go to the element, and the window takes the native capture; null gives both up.
    virtual void SetCapture(CVisualElement* element) = 0;
    virtual CVisualElement* GetCapture() = 0;
    virtual ISysWindow* GetWindow() = 0;  ///< Null without a window, or when it is gone.
    virtual IImageList* GetImageList() = 0;
    virtual void SetImageList(IImageList* list) = 0;
    virtual int GetUpdatesLastPos() const = 0;  ///< How many elements wait for a repaint.
    virtual void ClearUpdates(int keep) = 0;    ///< Drops the waiting ones from index `keep` on.
    /// Starts a drag by program; the element follows the pointer from the next move on.
    virtual void StartDragging(CVisualElement* element, DragInfo const& info) = 0;
    virtual size<int> GetDragStartSensitivity() const = 0;
    virtual void SetDragStartSensitivity(size<int> const& distance) = 0;  ///< A move of up to this is no drag.
    virtual bool IsClicked() const = 0;                                   ///< A button is down in the control.
    /// The window moves the pixels of `area` (control pixels, right and bottom included) now.
    virtual void ScrollContent(int dx, int dy, screen_rectangle<int> const& area) = 0;
    /// Completes the pending layout now; during a layout the request is remembered and served after it.
    virtual void ForceRearrange() = 0;
    virtual bool IsRearrangeNeeded() const = 0;
    /// Counted; the last unlock lays out. While locked a layout is skipped, also the one of a paint.
    virtual void LockRearrange(bool lock) = 0;
    virtual CVisualElement* GetMouseElement() = 0;      ///< The deepest one under the pointer.
    virtual CVisualElement* GetFocusedElement() = 0;    ///< Kept while another control has the native focus.
    virtual CVisualElement* GetFocussingElement() = 0;  ///< The last one that the focus was given to.
    /// Moves the focus, with the whole chain of signals; null takes it away. `takeNative`: the window gets it too.
    virtual void SetFocusedElement(CVisualElement* element, bool takeNative) = 0;
    /// Whose tab walk the next tab uses in place of the focused element's parent; until the focus moves.
    virtual void SetTabHandler(CVisualElement* element) = 0;
    virtual void UpdateElement(CVisualElement* element, UpdateType type) = 0;  ///< The end of the change chain.
    virtual void
    RearrangeElement(CVisualElement* element) = 0;  ///< The end of the rearrange chain: its parent lays out.
    virtual bool IsTabKeyProcessing() const = 0;    ///< The focus is moving by the tab key.
    virtual void
    ActivateHelp(std::string const& id) const = 0;  ///< Fires the host's m_SigHelp; nothing for an empty id.
    virtual void SetMouseElement(CVisualElement* element) = 0;
    virtual CVisualElement* GetDraggedElement() const = 0;
    virtual void SetDragTarget(CVisualElement* element) = 0;
    virtual CVisualElement* GetDragTarget() const = 0;  ///< The element that the drag was last offered to.

    virtual ~IControl();
};

}  // namespace vexel
