#include "vexel/platform/memory/memory_window.h"

#include "vexel/platform/memory/memory_device.h"
#include "vexel/platform/memory/memory_edit.h"
#include "vexel/platform/memory/memory_painter.h"
#include "vexel/platform/memory/memory_popup.h"
#include "vexel/platform/memory/memory_scroll_bar.h"
#include "vexel/platform/memory/memory_system.h"

#include <algorithm>
#include <utility>

namespace vexelbase::memory
{

namespace
{
int g_Count = 0;
}

/// Keeps account of a posted runnable until it is deleted.
class CMemoryWindow::CPosted : public IRunnable
{
public:
    CPosted(IRunnable* runnable, std::shared_ptr<SQueueCounts> counts)
        : m_Runnable(runnable), m_Counts(std::move(counts))
    {
        ++m_Counts->waiting;
    }
    ~CPosted() override { --m_Counts->waiting; }

    bool Run() override
    {
        if (m_Counts->dropping)
            return false;
        ++m_Counts->ran;
        return m_Runnable->Run();
    }

private:
    std::unique_ptr<IRunnable> m_Runnable;
    std::shared_ptr<SQueueCounts> m_Counts;
};

CMemoryWindow::CMemoryWindow(CMemorySystem& system, point<int> const& screen, size<int> const& extent)
    : CMemoryNode(system, nullptr)
{
    ++g_Count;
    GetPixels().Resize(extent, 0xFFFFFFFFu);
    SetNodeRect({screen.x, screen.y, screen.x + GetPixels().GetWidth(), screen.y + GetPixels().GetHeight()});
    SetDevice(std::make_unique<CMemoryDevice>(GetPixels()));
    GetSystem().m_Windows.push_back(this);
    InvalidateRect(0, 0, GetPixels().GetWidth(), GetPixels().GetHeight());
}

CMemoryWindow::~CMemoryWindow()
{
    CMemoryWindow::Destroy();
    FinishDestroying();  // still to be done if the window is deleted while it is being destroyed
    --g_Count;
}

int CMemoryWindow::GetCount()
{
    return g_Count;
}

std::unique_ptr<CBasePainter> CMemoryWindow::CreatePainter(CRasterDevice& device)
{
    return std::make_unique<CMemoryPainter>(device, false);
}

// What happens to it -----------------------------------------------------------------------------------------------

void CMemoryWindow::Resize(size<int> const& extent)
{
    rectangle<int> const& rect = GetNodeRect();
    int const width = std::max(extent.width, 0);
    int const height = std::max(extent.height, 0);
    if (width == rect.Width() && height == rect.Height())
        return;
    SetNodeRect({rect.left, rect.top, rect.left + width, rect.top + height});
    ResizeSurface({width, height});
}

void CMemoryWindow::MoveTo(point<int> const& screen)
{
    rectangle<int> rect = GetNodeRect();
    if (rect.LeftTop() == screen)
        return;
    rect.Offset(screen.x - rect.left, screen.y - rect.top);
    SetNodeRect(rect);
    CWindowEvent event;
    Deliver(&CVexelControl::OnMove, &event);
}

void CMemoryWindow::Show(bool visible)
{
    if (visible == IsNodeVisible())
        return;
    std::weak_ptr<int> const life = GetLifeToken();
    SetNodeVisible(visible);
    if (life.expired())
        return;
    CWindowEvent event;
    Deliver(visible ? &CVexelControl::OnShow : &CVexelControl::OnHide, &event);
}

void CMemoryWindow::BringUp()
{
    RaiseNode();
    Show(true);
}

void CMemoryWindow::Destroy()
{
    if (m_Destroyed)
        return;
    m_Destroyed = true;
    std::weak_ptr<int> const life = GetLifeToken();
    StartDestroying();
    if (!life.expired())
        FinishDestroying();
}

void CMemoryWindow::FinishDestroying()
{
    while (!m_Popups.empty())
    {
        CMemoryPopup* const popup = m_Popups.back();
        m_Popups.pop_back();
        popup->OwnerGone();
    }
    std::erase(GetSystem().m_Windows, this);
    LeaveScreen();
}

bool CMemoryWindow::RunFrame()
{
    if (!IsFramePending() || !IsNodeVisible() || IsDrawingLocked() || IsDestroying())
        return false;
    PaintFrame();
    return true;
}

void CMemoryWindow::LoseSurface()
{
    static_cast<CBasePainter*>(GetPainter())->RequestFullPaint();
    InvalidateRect(0, 0, GetPixels().GetWidth(), GetPixels().GetHeight());
}

int CMemoryWindow::RunPosted()
{
    std::shared_ptr<SQueueCounts> const counts = m_QueueCounts;  // a runnable may delete the window
    int const before = counts->ran;
    RunQueue();
    return counts->ran - before;
}

int CMemoryWindow::GetPostedCount() const
{
    return m_QueueCounts->waiting;
}

void CMemoryWindow::DropPosted()
{
    m_QueueCounts->dropping = true;
    RunQueue();
    m_QueueCounts->dropping = false;
}

void CMemoryWindow::Post(IRunnable* runnable)
{
    if (runnable)
        CBaseWindow::Post(new CPosted(runnable, m_QueueCounts));
}

// Tooltip, context menu, colours -----------------------------------------------------------------------------------

point<int> CMemoryWindow::GetPointer() const
{
    point<int> position = GetSystem().GetPointerPos();
    ScreenToClient(&position);
    return position;
}

bool CMemoryWindow::ShowsTooltipAt(point<int> const& position) const
{
    return m_Tooltip.shown && (m_Tooltip.hotRect.IsZero() || m_Tooltip.hotRect.Contains(position.x, position.y));
}

bool CMemoryWindow::AskTooltip()
{
    point<int> const position = GetPointer();
    CTooltipEvent event;
    event.m_X = position.x;
    event.m_Y = position.y;
    std::weak_ptr<int> const life = GetLifeToken();
    if (!Deliver(&CVexelControl::OnTooltip, &event) || life.expired())
        return false;
    m_Tooltip = {!event.m_Text.empty(), position,          event.m_Text, event.m_HotRect,
                 event.m_BoundsRect,    event.m_Multiline, event.m_Font};
    return m_Tooltip.shown;
}

void CMemoryWindow::AskContextMenu()
{
    point<int> const position = GetPointer();
    CContextMenuEvent event(position.x, position.y);
    Deliver(&CVexelControl::OnContextMenu, &event);
}

void CMemoryWindow::TellSysColorChange()
{
    CEvent event;
    Deliver(&CVexelControl::OnSysColorChanged, &event);
}

// What it was asked to do ------------------------------------------------------------------------------------------

bool CMemoryWindow::HasCapture() const
{
    return GetSystem().GetCaptureNode() == this;
}

void CMemoryWindow::SetFocus()
{
    if (!m_Destroyed)
        GetSystem().SetFocusNode(this);
}

bool CMemoryWindow::HasFocus() const
{
    return GetSystem().GetFocusNode() == this;
}

void CMemoryWindow::CaptureMouse()
{
    if (!m_Destroyed)
        GetSystem().SetCaptureNode(this);
}

void CMemoryWindow::ReleaseMouse()
{
    if (HasCapture())
        GetSystem().SetCaptureNode(nullptr);
}

void CMemoryWindow::ScreenToClient(point<int>* position) const
{
    point<int> const origin = GetScreenPos();
    position->x -= origin.x;
    position->y -= origin.y;
}

void CMemoryWindow::ClientToScreen(point<int>* position) const
{
    point<int> const origin = GetScreenPos();
    position->x += origin.x;
    position->y += origin.y;
}

vexel_ptr<IScrollBar> CMemoryWindow::CreateScrollBar(int type)
{
    if (m_Destroyed)
        return {};
    return MakeRef<CMemoryScrollBar>(GetSystem(), *this, type == stVertical);
}

vexel_ptr<IEdit> CMemoryWindow::CreateEdit(bool)
{
    if (m_Destroyed)
        return {};
    return MakeRef<CMemoryEdit>(GetSystem(), *this);
}

vexel_ptr<IComboBox> CMemoryWindow::CreateComboBox(bool editable)
{
    if (m_Destroyed)
        return {};
    return MakeRef<CMemoryComboBox>(GetSystem(), *this, editable);
}

vexel_ptr<IPopup> CMemoryWindow::CreatePopup()
{
    if (m_Destroyed)
        return {};
    return MakeRef<CMemoryPopup>(*this);
}

// Native events ----------------------------------------------------------------------------------------------------

void CMemoryWindow::NodeMouseMove(CMouseEvent& event)
{
    point<int> const position{event.m_X, event.m_Y};
    if (!ShowsTooltipAt(position))
        HideTooltip();
    std::weak_ptr<int> const life = GetLifeToken();
    Deliver(&CVexelControl::OnMouseMove, &event);
    if (life.expired() || !m_Tooltip.shown)
        return;
    CTooltipEvent track;
    track.m_X = position.x;
    track.m_Y = position.y;
    Deliver(&CVexelControl::OnTooltipTrack, &track);
}

void CMemoryWindow::NodeButtonDown(CMouseEvent& event, bool doubled)
{
    HideTooltip();
    CMouseEvent second = event;
    std::weak_ptr<int> const life = GetLifeToken();
    Deliver(&CVexelControl::OnButtonDown, &event);
    if (doubled && !life.expired())
        Deliver(&CVexelControl::OnDoubleClick, &second);
}

void CMemoryWindow::NodeButtonUp(CMouseEvent& event)
{
    Deliver(&CVexelControl::OnButtonUp, &event);
}

void CMemoryWindow::NodeWheel(CMouseWheelEvent& event)
{
    Deliver(&CVexelControl::OnWheel, &event);
}

void CMemoryWindow::NodeHover(CMouseEvent& event)
{
    if (m_Tracking)
        Deliver(&CVexelControl::OnHover, &event);
}

void CMemoryWindow::NodeLeave(CMouseEvent& event)
{
    HideTooltip();
    if (std::exchange(m_Tracking, false))
        Deliver(&CVexelControl::OnLeave, &event);
}

bool CMemoryWindow::NodeKeyDown(CKeyboardEvent& event)
{
    HideTooltip();
    Deliver(&CVexelControl::OnKeyDown, &event);
    return !event.IsContinue() || !event.m_PassOn;
}

void CMemoryWindow::NodeKeyUp(CKeyboardEvent& event)
{
    Deliver(&CVexelControl::OnKeyUp, &event);
}

void CMemoryWindow::NodeChar(CKeyboardEvent& event)
{
    Deliver(&CVexelControl::OnChar, &event);
}

void CMemoryWindow::NodeFocus(bool has)
{
    CFocusEvent event;
    Deliver(has ? &CVexelControl::OnGetFocus : &CVexelControl::OnLostFocus, &event);
}

void CMemoryWindow::NodeTabbedInto(bool forward)
{
    if (GetEventTarget())
        Deliver(&CVexelControl::OnCustomEvent,
                new CCustomEvent(forward ? CCustomEvent::ceFirstTabElement : CCustomEvent::ceLastTabElement));
}

// Frames -----------------------------------------------------------------------------------------------------------

void CMemoryWindow::PresentDamage()
{
    GetDevice().GetDamage().Clear();
}

void CMemoryWindow::AfterPaint()
{
    ++m_Frames;
    // What the paint asked of native controls. Their handlers may delete any of them.
    std::vector<std::pair<CMemoryNode*, std::weak_ptr<int>>> children;
    for (CMemoryNode* child : GetChildNodes())
        children.emplace_back(child, child->GetNodeLife());
    for (auto const& [child, life] : children)
    {
        if (!life.expired())
            child->NodePaintEnded();
    }
}

}  // namespace vexelbase::memory
