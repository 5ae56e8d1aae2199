#include "vexel/platform/base_window.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/exception_report.h"

#include <utility>

namespace vexelbase
{

CBaseWindow::~CBaseWindow()
{
    // Still there if the window is deleted by its own OnDestroy.
    if (m_Target)
        m_Target->SetSysWindow(nullptr);
    CloseQueue();
}

void CBaseWindow::SetDevice(std::unique_ptr<CRasterDevice> device)
{
    m_Device = std::move(device);
    m_Painter = CreatePainter(*m_Device);
}

void CBaseWindow::ReportException()
{
    vexelbase::ReportException("an event handler");
}

// Area and frames --------------------------------------------------------------------------------------------------

rectangle<int> CBaseWindow::GetRect() const
{
    return m_Pixels.GetRect();
}

void CBaseWindow::SetEventTarget(CVexelControl* target)
{
    if (target == m_Target)
        return;
    m_Target = target;
    if (target && m_Painter)
        LoseSurface();
}

void CBaseWindow::LoseSurface()
{
    if (m_Painter)
        m_Painter->RequestFullPaint();
    rectangle<int> const area = GetRect();
    InvalidateRect(area.left, area.top, area.right, area.bottom);
}

void CBaseWindow::InvalidateRect(int, int, int, int)
{
    if (m_Destroying)
        return;
    m_PaintDue = true;
    AskForFrame();
}

// The backend hears of it once, and not before drawing is unlocked.
void CBaseWindow::AskForFrame()
{
    if (m_Destroying || m_FramePending)
        return;
    m_FramePending = true;
    if (m_DrawingLock == 0)
        RequestFrame();
}

void CBaseWindow::UpdateNow()
{
    if (m_Destroying)
        return;
    m_PaintDue = true;
    if (m_InPaint || m_DrawingLock > 0 || !m_Painter || m_Painter->m_Painting)
        AskForFrame();
    else
        PaintFrame();
}

void CBaseWindow::LockDrawing(bool lock)
{
    if (lock)
    {
        ++m_DrawingLock;
        return;
    }
    if (m_DrawingLock == 0 || --m_DrawingLock > 0)
        return;
    if (m_FramePending && !m_Destroying)
        RequestFrame();
}

void CBaseWindow::ScrollPixels(int dx, int dy, screen_rectangle<int> const& area)
{
    if (!m_Device || area.right < area.left || area.bottom < area.top)
        return;
    rectangle<int> const moved{area.left, area.top, AddSaturated(area.right, 1), AddSaturated(area.bottom, 1)};
    if (!m_Device->Move(moved, dx, dy))
    {
        m_Painter->RequestFullPaint();
        InvalidateRect(moved.left, moved.top, moved.right, moved.bottom);
    }
    else if (!m_InPaint && m_Device->GetDamage().GetCount() > 0)
        AskForFrame();
}

void CBaseWindow::ResizeSurface(size<int> const& extent)
{
    size<int> const before = m_Pixels.GetSize();
    m_Pixels.Resize(extent, 0xFFFFFFFFu);
    if (m_Pixels.GetSize() == before || m_Destroying)
        return;
    if (m_Device)
    {
        m_Device->GetDamage().Clear();
        m_Device->GetDamage().Add(GetRect());
    }
    LoseSurface();
    CWindowEvent event;
    Deliver(&CVexelControl::OnResize, &event);
}

void CBaseWindow::PaintFrame()
{
    if (m_InPaint)
        m_FrameMissed = true;
    if (m_InPaint || m_DrawingLock > 0 || m_Destroying || !m_Device)
        return;
    m_FramePending = false;
    // What is due without an area waits for one. The control would lay out in vain, and ask for the next frame by that.
    if (GetRect().IsEmpty())
        return;
    if (std::exchange(m_PaintDue, false) && !PaintTarget())
        return;
    // A frame that came during the paint, from a native loop of some handler, has brought nothing.
    if (std::exchange(m_FrameMissed, false) && m_FramePending && m_DrawingLock == 0)
        RequestFrame();
    if (m_Device->GetDamage().GetCount() == 0)
        return;
    if (m_DrawingLock == 0)
        PresentDamage();
    else
        AskForFrame();
}

// Returns false if the window is gone or going.
bool CBaseWindow::PaintTarget()
{
    std::weak_ptr<int> const life = GetLifeToken();
    bool completed = true;
    BeforePaint();
    int const depth = m_Painter->GetBracketDepth();
    m_InPaint = true;
    try
    {
        if (m_Target)
            m_Target->OnDraw(m_Painter.get());
    }
    catch (...)
    {
        completed = false;
        ReportException();
    }
    if (life.expired())
        return false;
    m_InPaint = false;
    m_Painter->AbandonBrackets(depth);
    if (!completed)
        m_Painter->RequestFullPaint();
    if (!completed && !std::exchange(m_Retrying, true))
        InvalidateRect(0, 0, m_Pixels.GetWidth(), m_Pixels.GetHeight());
    if (completed)
        m_Retrying = false;
    if (m_Destroying)
        return false;

    try
    {
        AfterPaint();
    }
    catch (...)
    {
        ReportException();
    }
    return !life.expired() && !m_Destroying;
}

// Queue ------------------------------------------------------------------------------------------------------------

void CBaseWindow::Post(IRunnable* runnable)
{
    std::unique_ptr<IRunnable> owned(runnable);
    if (!owned)
        return;
    std::lock_guard<std::mutex> const lock(m_QueueMutex);
    if (m_QueueClosed)
        return;
    m_Queue.push_back(std::move(owned));
    ++m_Posted;
    if (!std::exchange(m_WakePending, true))
        WakeQueue();
}

void CBaseWindow::RunQueue()
{
    std::weak_ptr<int> const life = GetLifeToken();
    std::uint64_t end = 0;
    {
        std::lock_guard<std::mutex> const lock(m_QueueMutex);
        m_WakePending = false;
        end = m_Posted;
    }
    for (;;)
    {
        std::unique_ptr<IRunnable> runnable;
        {
            std::lock_guard<std::mutex> const lock(m_QueueMutex);
            if (m_Queue.empty() || m_Taken >= end)
                return;
            runnable = std::move(m_Queue.front());
            m_Queue.pop_front();
            ++m_Taken;
        }
        try
        {
            runnable->Run();
        }
        catch (...)
        {
            ReportException();
        }
        runnable.reset();
        if (life.expired())
            return;
    }
}

void CBaseWindow::CloseQueue()
{
    // Taken out first: what a runnable's destructor posts finds the queue closed, and unlocked.
    std::deque<std::unique_ptr<IRunnable>> left;
    {
        std::lock_guard<std::mutex> const lock(m_QueueMutex);
        m_QueueClosed = true;
        left.swap(m_Queue);
    }
}

void CBaseWindow::StartDestroying()
{
    if (m_Destroying)
        return;
    m_Destroying = true;
    m_FramePending = false;
    m_PaintDue = false;
    std::weak_ptr<int> const life = GetLifeToken();
    CloseQueue();
    if (life.expired())
        return;

    CWindowEvent event;
    Deliver(&CVexelControl::OnDestroy, &event);
    if (!life.expired() && m_Target)
        std::exchange(m_Target, nullptr)->SetSysWindow(nullptr);
}

}  // namespace vexelbase
