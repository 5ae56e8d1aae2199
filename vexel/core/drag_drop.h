#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/signals/signal.h"

#include <cstdint>

namespace vexel
{

/// A drag under way. Lives in the control; all parties get it by reference.
struct DragInfo
{
    rectangle<int> m_Rect;        ///< The dragged item, in control pixels. Moves with the pointer.
    rectangle<int> m_Bounds;      ///< The item is kept inside; all zero: no limit. Control pixels.
    std::intptr_t m_Data = 0;     ///< The application's.
    bool m_GlobalUpdate = true;   ///< Each move repaints the whole control, not only the dragged element.
    bool m_UseBackground = true;  ///< The screen under the item is saved before it is drawn and put back after.
};

/// What can be dragged: every element is one. The signals' last bool* is the handled flag: a slot that sets it takes the
/// place of the virtual handler.
class VEXEL_API CDragSource
{
public:
    CDragSource() = default;
    virtual ~CDragSource();
    CDragSource(CDragSource const&) = delete;
    CDragSource& operator=(CDragSource const&) = delete;

    // Handlers ----------------------------------------------------------------------------------------------------
    /// True: the drag may start. `x`, `y`: where the button went down, in the element's pixels. `info` is fresh; the
    /// item's rectangle is to be filled in.
    virtual bool HandleStartDragging(int, int, DragInfo&) { return false; }
    /// The drag is over. `target`: the element under the pointer if the drop was accepted, otherwise null.
    virtual void HandleDragFinished(CVisualElement*, DragInfo&) {}
    /// Draws the item; coordinates are the dragged element's own. `accepted`: it lies over a target that would take it.
    /// `under`: the element under the pointer, or null.
    virtual void HandleDrawDragItem(IPainter*, DragInfo&, bool, CVisualElement*) {}

    // The control's side: signal first, then the handler unless the handled flag was set -----------------------------
    bool CanStartDragging(CVisualElement* element, int x, int y, DragInfo& info);
    void DrawDragItem(CVisualElement* element, IPainter* painter, DragInfo& info, bool accepted, CVisualElement* under);
    void DragFinished(CVisualElement* element, CVisualElement* target, DragInfo& info);

    /// This element, x, y, info, answer (may start), handled.
    signal_t<CVisualElement*, int, int, DragInfo*, bool*, bool*> m_SigStartDragging;
    /// This element, target or null, info, handled.
    signal_t<CVisualElement*, CVisualElement*, DragInfo*, bool*> m_SigDragFinished;
    /// This element, the element under the pointer, painter, info, accepted, handled.
    signal_t<CVisualElement*, CVisualElement*, IPainter*, DragInfo*, bool, bool*> m_SigDrawDragItem;
};

/// What can be dropped on: every element is one.
class VEXEL_API CDropTarget
{
public:
    CDropTarget() = default;
    virtual ~CDropTarget();
    CDropTarget(CDropTarget const&) = delete;
    CDropTarget& operator=(CDropTarget const&) = delete;

    // Handlers: `source` is the dragged element; `x`, `y`: this element's pixels --------------------------------------
    /// The item is over this element. True: a drop would be accepted.
    virtual bool HandleDragOver(CVisualElement*, int, int, DragInfo&) { return false; }
    virtual void HandleDropDone(CVisualElement*, int, int, DragInfo&) {}

    // The control's side ------------------------------------------------------------------------------------------
    bool DragOver(CVisualElement* source, CVisualElement* target, int x, int y, DragInfo& info);
    void DropDone(CVisualElement* source, CVisualElement* target, int x, int y, DragInfo& info);

    /// Dragged element, this element, info, answer (accepted), handled.
    signal_t<CVisualElement*, CVisualElement*, DragInfo*, bool*, bool*> m_SigDragOver;
    /// Dragged element, this element, x, y, info, handled.
    signal_t<CVisualElement*, CVisualElement*, int, int, DragInfo*, bool*> m_SigDropDone;
};

}  // namespace vexel
