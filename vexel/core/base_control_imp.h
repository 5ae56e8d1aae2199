#pragma once

#include "vexel/core/alive_guard.h"
#include "vexel/core/control.h"
#include "vexel/core/drag_drop.h"
#include "vexel/core/element_list.h"
#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/events.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/platform/ref_ptr.h"
#include "vexel/signals/signal.h"

#include <memory>
#include <string>
#include <vector>

namespace vexel
{

/// What stands behind a CBaseControl: the root, all state of the control, and the two deferred mechanisms (pending
/// repaints, pending layouts). Without a window every Process operation returns at once.
class VEXEL_API CBaseControlImp final : public IControl, public subscriber_base_t
{
public:
    explicit CBaseControlImp(CBaseControl* host);
    ~CBaseControlImp() override;

    // From IControl ---------------------------------------------------------------------------------------------------------
    void SetCapture(CVisualElement* element) override;
    CVisualElement* GetCapture() override { return m_Capture; }
    ISysWindow* GetWindow() override { return FindWindow(); }
    IImageList* GetImageList() override;
    void SetImageList(IImageList* list) override;
    int GetUpdatesLastPos() const override { return m_Updates.GetCount(); }
    void ClearUpdates(int keep) override { m_Updates.Clear(keep); }
    void StartDragging(CVisualElement* element, DragInfo const& info) override;
    size<int> GetDragStartSensitivity() const override { return m_DragStartSensitivity; }
    void SetDragStartSensitivity(size<int> const& distance) override { m_DragStartSensitivity = distance; }
    bool IsClicked() const override { return (m_MouseFlags & mfClicked) != 0; }
    void ScrollContent(int dx, int dy, screen_rectangle<int> const& area) override;
    void ForceRearrange() override;
    bool IsRearrangeNeeded() const override { return m_RearrangeNeeded; }
    void LockRearrange(bool lock) override;
    CVisualElement* GetMouseElement() override { return m_MouseElement; }
    CVisualElement* GetFocusedElement() override { return m_FocusedElement; }
    CVisualElement* GetFocussingElement() override { return m_FocussingElement; }
    void SetFocusedElement(CVisualElement* element, bool takeNative) override;
    void SetTabHandler(CVisualElement* element) override;
    void UpdateElement(CVisualElement* element, UpdateType type) override;
    void RearrangeElement(CVisualElement* element) override;
    bool IsTabKeyProcessing() const override { return m_TabKeyProcessing; }
    void ActivateHelp(std::string const& id) const override;
    void SetMouseElement(CVisualElement* element) override;
    CVisualElement* GetDraggedElement() const override { return m_DraggedElement; }
    void SetDragTarget(CVisualElement* element) override;
    CVisualElement* GetDragTarget() const override { return m_DragTarget; }

    // Tree ------------------------------------------------------------------------------------------------------------------
    CVisualElement* GetContent() const { return m_Root; }
    void SetContent(CVisualElement* root);

    // Painting and layout ---------------------------------------------------------------------------------------------------
    /// The paint pass: completes the layout, then paints the elements that wait, or everything.
    void ProcessDraw(IPainter* painter);
    void ProcessResize(CWindowEvent* event, bool full);
    void Rearrange();
    void DoRearrange(bool force);  ///< Gives the root the window's rectangle; with `force` everything is laid out anew.
    void RearrangeInt();           ///< Lays out the elements that wait.
    rectangle<int> GetRealDrawRect() const;  ///< The window's rectangle, right and bottom less 1.
    void InvalidateWindow();
    /// What waits for a repaint, or for a layout of its children: for tools that look for what doesn't belong there.
    /// An entry that was taken out while the list was walked may be null.
    std::vector<CVisualElement*> ListUpdates() { return ListItems(m_Updates); }
    std::vector<CVisualElement*> ListRearranges() { return ListItems(m_Rearranges); }
    bool IsRearrangeLocked() const { return m_RearrangeLock > 0; }

    // Mouse -----------------------------------------------------------------------------------------------------------------
    void ProcessMouseMove(CMouseEvent* event);
    void ProcessButtonDown(CMouseEvent* event);
    void ProcessButtonUp(CMouseEvent* event);
    void ProcessDoubleClick(CMouseEvent* event);
    void ProcessWheel(CMouseWheelEvent* event);
    void ProcessLeave(CMouseEvent* event);
    void ProcessOnHover(CMouseEvent* event);
    void ProcessTooltip(CTooltipEvent* event);
    void ProcessTooltipTrack(CTooltipEvent* event);
    void ProcessContextMenu(CContextMenuEvent* event);

    // Keyboard and focus ------------------------------------------------------------------------------------------------------
    void ProcessKeyDown(CKeyboardEvent* event);
    void ProcessKeyUp(CKeyboardEvent* event);
    void ProcessChar(CKeyboardEvent* event);
    void ProcessCustom(CCustomEvent* event);  ///< Frees the event.
    void ProcessGetFocus();
    void ProcessLostFocus();
    void ProcessFocusChange(bool forward);  ///< What the tab key does.
    CVisualElement* GetFirstElement() const;
    CVisualElement* GetLastElement() const;
    CVisualElement* GetNextElement(CVisualElement* element) const;
    CVisualElement* GetPrevElement(CVisualElement* element) const;

    void ProcessSysColorChanged();
    void ProcessControlDestroy();

private:
    enum MouseFlags : unsigned
    {
        mfClicked = 16,         // a button is down
        mfMakeBackground = 32,  // a drag has started: the next paint makes the picture of the screen
        mfPutBackground = 64,   // a drag has ended: the next paint puts the picture back and drops it
        mfAccepted = 128,       // the drag lies over a target that would take it
        mfRefused = 256         // no new attempt until the button comes up
    };

    struct SPass;
    class CFlagScope;
    class CLayoutDebt;

    static std::vector<CVisualElement*> ListItems(CElementList& list);
    ISysWindow* FindWindow() const;
    void SetWindowCursor(int cursor) const;
    CVisualElement* GetMouseTarget() const { return m_Capture ? m_Capture : m_Root; }
    CVisualElement* GetKeyTarget() const { return m_FocusedElement ? m_FocusedElement : m_Root; }
    CVisualElement* GetTabWalker(CVisualElement* from) const;
    void Forget(CVisualElement* element);
    void HandleRootDestroy(CVisualElement* root);
    void ReleaseRoot();
    CVisualElement* GiveUpRoot();

    void RunPass();
    void LayOutForPaint();
    void PaintTree(IPainter* painter);
    void PaintDragBackground(IPainter* painter);
    void PaintDragItem(IPainter* painter);

    bool IsForeign(CVisualElement const* element) const;  // of another control, or of none; null is not
    void LeaveMouseElement(CVisualElement* next);
    void TryStartDrag();
    void MoveDrag(point<int> const& position);
    void FinishDrag(CVisualElement* draggedElement, point<int> const& position);
    void FocusFirst();

    CBaseControl* const m_Host;
    CVisualElement* m_Root = nullptr;  // owned if dynamic
    CVisualElement* m_Capture = nullptr;
    CVisualElement* m_MouseElement = nullptr;
    CVisualElement* m_DraggedElement = nullptr;
    CVisualElement* m_DragTarget = nullptr;
    CVisualElement* m_FocusedElement = nullptr;
    CVisualElement* m_FocussingElement = nullptr;
    CVisualElement* m_TabHandler = nullptr;
    CElementList m_Updates{true};  // wait for a repaint
    CElementList m_Rearranges;     // their children wait for a layout
    SPass* m_Passes = nullptr;     // layout passes on the stack, innermost first
    CElementList m_SpareEntries;   // empty: memory for the next pass
    bool m_FullUpdate = false;     // the next paint paints everything
    bool m_RearrangeNeeded = true;
    bool m_RearrangeAgain = false;  // asked for during a layout
    bool m_InRearrange = false;
    bool m_FirstDraw = true;
    bool m_TabKeyProcessing = false;
    int m_RearrangeLock = 0;
    point<int> m_LastMousePos;
    point<int> m_PressPos;  // control pixels
    CVisualElement* m_PressedElement = nullptr;
    vexel_ptr<IRasterPicture> m_DragBackground;
    size<int> m_DragStartSensitivity{2, 2};
    std::shared_ptr<DragInfo> m_DragInfo;  // shared with the steps of a drag under way, which may outlive the control
    unsigned m_MouseFlags = 0;
};

}  // namespace vexel
