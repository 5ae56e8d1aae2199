#pragma once

#include "vexel/export.h"
#include "vexel/platform/base_window.h"
#include "vexel/platform/memory/memory_node.h"

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace vexelbase::memory
{

class CMemoryPopup;

/// The tip that a window shows, or showed last.
struct STooltip
{
    bool shown = false;
    point<int> position;  ///< Of the pointer when it came up; window pixels, as the rectangles.
    std::string text;
    rectangle<int> hotRect;     ///< All zero: none, the tip stands until something hides it.
    rectangle<int> boundsRect;  ///< All zero: at the pointer.
    bool multiline = false;
    font textFont;
};

/// A window of the memory backend: real pixels, frames on demand, and a record of what it was asked to do.
/// It has no frame; its client area is all of it. Visible from the start, without the focus.
class VEXEL_MEMORY_API CMemoryWindow : public CBaseWindow, public CMemoryNode
{
public:
    /// `screen`: its left-top. `extent`: of the surface, device pixels.
    CMemoryWindow(CMemorySystem& system, point<int> const& screen, size<int> const& extent);
    ~CMemoryWindow() override;  ///< Destroys it natively first, if that wasn't done.

    // What happens to it ------------------------------------------------------------------------------------------
    void Resize(size<int> const& extent);   ///< OnResize.
    void MoveTo(point<int> const& screen);  ///< OnMove, if it differs.
    void Show(bool visible);                ///< OnShow or OnHide, if it differs.
    void Destroy();                         ///< OnDestroy; the control forgets the window. Once.
    /// Runs the pending frame if there is one, the window is visible and its drawing isn't locked. Returns whether it
    /// ran.
    bool RunFrame();
    void LoseSurface();  ///< The next paint, asked for at once, is a full one.
    int RunPosted();     ///< What is queued now. Returns how many runnables ran.
    int GetPostedCount() const;
    void DropPosted();  ///< Deletes what is queued, unrun.
    /// Asks the control for a tip at the pointer. Returns whether one is shown now.
    bool AskTooltip();
    void AskContextMenu();      ///< At the pointer.
    void TellSysColorChange();  ///< OnSysColorChanged.

    // What it was asked to do -------------------------------------------------------------------------------------
    int GetCursor() const { return m_Cursor; }  ///< 1 at first.
    bool HasCapture() const;
    bool IsTracking() const { return m_Tracking; }  ///< Asked for hover and leave since the pointer came in.
    STooltip const& GetTooltip() const { return m_Tooltip; }
    int GetFrameCount() const { return m_Frames; }                      ///< Native paints so far.
    static int GetCount();                                              ///< Living windows of the process.
    bool IsInPaint() const { return IsPainting(); }                     ///< The control's paint is under way.
    virtual CMemoryPopup* GetPopup() { return nullptr; }                ///< The popup whose window it is.
    void BringUp();                                                     ///< Above all other windows, and visible.
    void AddPopup(CMemoryPopup& popup) { m_Popups.push_back(&popup); }  ///< A popup that it owns.
    void RemovePopup(CMemoryPopup& popup) { std::erase(m_Popups, &popup); }

    // From ISysWindow ---------------------------------------------------------------------------------------------
    void SetFocus() override;
    bool HasFocus() const override;
    void SetCursor(int cursor) override { m_Cursor = cursor; }
    void CaptureMouse() override;
    void ReleaseMouse() override;
    void TrackPointer() override { m_Tracking = true; }
    void HideTooltip() override { m_Tooltip.shown = false; }
    void ScreenToClient(point<int>* position) const override;
    void ClientToScreen(point<int>* position) const override;
    vexel_ptr<IScrollBar> CreateScrollBar(int type) override;
    vexel_ptr<IEdit> CreateEdit(bool option) override;
    vexel_ptr<IComboBox> CreateComboBox(bool editable) override;
    vexel_ptr<IPopup> CreatePopup() override;
    void Post(IRunnable* runnable) override;

    // From CMemoryNode --------------------------------------------------------------------------------------------
    CMemoryWindow* GetWindowNode() override { return this; }
    void NodeMouseMove(CMouseEvent& event) override;
    void NodeButtonDown(CMouseEvent& event, bool doubled) override;
    void NodeButtonUp(CMouseEvent& event) override;
    void NodeWheel(CMouseWheelEvent& event) override;
    void NodeHover(CMouseEvent& event) override;
    void NodeLeave(CMouseEvent& event) override;
    bool NodeKeyDown(CKeyboardEvent& event) override;
    void NodeKeyUp(CKeyboardEvent& event) override;
    void NodeChar(CKeyboardEvent& event) override;
    void NodeFocus(bool has) override;
    void NodeTabbedInto(bool forward) override;

protected:  // From CBaseWindow
    void RequestFrame() override {}
    void PresentDamage() override;
    void WakeQueue() override {}
    void AfterPaint() override;
    std::unique_ptr<CBasePainter> CreatePainter(CRasterDevice& device) override;

private:
    class CPosted;
    struct SQueueCounts
    {
        std::atomic<int> waiting{0};
        std::atomic<int> ran{0};
        std::atomic<bool> dropping{false};
    };

    void FinishDestroying();
    point<int> GetPointer() const;  // window pixels
    bool ShowsTooltipAt(point<int> const& position) const;

    int m_Cursor = 1;
    bool m_Tracking = false;
    bool m_Destroyed = false;
    STooltip m_Tooltip;
    std::vector<CMemoryPopup*> m_Popups;
    int m_Frames = 0;
    std::shared_ptr<SQueueCounts> m_QueueCounts = std::make_shared<SQueueCounts>();
};

}  // namespace vexelbase::memory
