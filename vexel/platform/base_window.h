#pragma once

#include "vexel/export.h"
#include "vexel/platform/base_painter.h"
#include "vexel/platform/events.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/raster_device.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/vexel_control.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>

namespace vexelbase
{

/// What windows of all backends have in common: the persistent surface with its painter, frames, the delivery of native
/// events to the control, and the queue. A backend adds the native window, children and focus.
/// Exceptions stop at each entry: nothing a handler throws reaches the native loop (they are reported on stderr).
class VEXEL_API CBaseWindow : public ISysWindow
{
public:
    ~CBaseWindow() override;

    // From ISysWindow ---------------------------------------------------------------------------------------------
    rectangle<int> GetRect() const override;
    void InvalidateRect(int left, int top, int right, int bottom) override;
    void UpdateNow() override;
    void ScrollPixels(int dx, int dy, screen_rectangle<int> const& area) override;
    void LockDrawing(bool lock) override;
    IPainter* GetPainter() override { return m_Painter.get(); }
    bool IsDestroying() const override { return m_Destroying; }
    void SetEventTarget(CVexelControl* target) override;  ///< A new control begins with a full paint.
    CVexelControl* GetEventTarget() const override { return m_Target; }
    void SetOption(bool option) override { m_Option = option; }
    void Post(IRunnable* runnable) override;

    CPixelBuffer& GetPixels() { return m_Pixels; }  ///< The surface; the backend's device paints on it.
    CPixelBuffer const& GetPixels() const { return m_Pixels; }
    CRasterDevice& GetDevice() { return *m_Device; }
    /// A frame was asked for and has not come yet: of a paint, or only of moved pixels that are not shown yet.
    bool IsFramePending() const { return m_FramePending; }
    bool IsDrawingLocked() const { return m_DrawingLock > 0; }

protected:
    CBaseWindow() = default;
    /// To be called once by the backend's constructor. Takes the painter from CreatePainter.
    void SetDevice(std::unique_ptr<CRasterDevice> device);
    /// Makes the painter on the device; a backend may give one of its own.
    virtual std::unique_ptr<CBasePainter> CreatePainter(CRasterDevice& device)
    {
        return std::make_unique<CBasePainter>(device, false);
    }

    // For the backend ---------------------------------------------------------------------------------------------
    virtual void RequestFrame() = 0;  ///< A frame is wanted: call PaintFrame later, once. Never called while locked.
    virtual void
    PresentDamage() = 0;  ///< The surface changed where GetDevice().GetDamage() says; show it and clear that.
    /// From any thread: call RunQueue on the GUI thread after the present event. Called with the queue locked, so that
    /// it never comes after StartDestroying: it must only leave a note, and call neither Post nor RunQueue.
    virtual void WakeQueue() = 0;
    virtual void BeforePaint() {}  ///< A paint of the control begins.
    virtual void AfterPaint() {}   ///< A paint of the control has ended: deferred native moves and shows are due.

    /// The surface takes a new size, keeping what fits; the next paint is a full one. Then OnResize is delivered.
    void ResizeSurface(size<int> const& extent);
    /// What the surface held is lost: the next paint is a full one.
    void LoseSurface();
    /// Runs the control's paint if one is due, then PresentDamage. Does nothing during a paint or while drawing is
    /// locked; the frame is then asked for again, and comes later. A paint that an exception has ended is repeated once, as a full one.
    /// The window may be gone afterwards.
    void PaintFrame();
    /// Runs what is queued now, in order; what is posted meanwhile waits for the next call. Deletes each. A runnable
    /// may call it again (by a native loop of its own) or delete the window, which deletes the rest unrun.
    void RunQueue();
    /// OnDestroy to the control, which then forgets the window; empties the queue. To be called first thing by the
    /// backend's destruction (or native close); further calls do nothing.
    void StartDestroying();

    /// Calls a handler of the control with the event; nothing may leave it. Returns false if there is no control.
    /// The window itself may be gone afterwards: `IsAlive` of a life token taken before tells.
    template <class Event> bool Deliver(void (CVexelControl::*handler)(Event*), Event* event)
    {
        CVexelControl* const target = m_Target;
        if (!target)
            return false;
        try
        {
            (target->*handler)(event);
        }
        catch (...)
        {
            ReportException();
        }
        return true;
    }
    /// Inside a catch block: one line on stderr, nothing for the cancellation types, which are no errors.
    static void ReportException();

    /// Says whether the window still lives.
    std::weak_ptr<int> GetLifeToken() const { return m_Life; }
    bool IsPainting() const { return m_InPaint; }

private:
    void AskForFrame();
    bool PaintTarget();
    void CloseQueue();

    CPixelBuffer m_Pixels;
    std::unique_ptr<CRasterDevice> m_Device;
    std::unique_ptr<CBasePainter> m_Painter;
    CVexelControl* m_Target = nullptr;
    bool m_Destroying = false;
    bool m_FramePending = false;
    bool m_FrameMissed = false;  // a frame came while one was under way
    bool m_PaintDue = false;
    bool m_InPaint = false;
    bool m_Retrying = false;  // the last paint was ended by an exception
    bool m_Option = false;
    int m_DrawingLock = 0;

    std::mutex m_QueueMutex;  // guards what follows
    std::deque<std::unique_ptr<IRunnable>> m_Queue;
    std::uint64_t m_Posted = 0;  // how many there were in all
    std::uint64_t m_Taken = 0;   // and how many of these have left the queue
    bool m_WakePending = false;
    bool m_QueueClosed = false;

    std::shared_ptr<int> m_Life = std::make_shared<int>(0);
};

}  // namespace vexelbase
