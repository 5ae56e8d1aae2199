#include "vexel/platform/memory/memory_system.h"

#include "vexel/platform/memory/detail/runner_queue.h"
#include "vexel/platform/memory/detail/timer_queue.h"
#include "vexel/platform/memory/memory_picture.h"
#include "vexel/platform/memory/memory_popup.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/platform/memory/native_control.h"
#include "vexel/platform/runner.h"
#include "vexel/platform/xpm.h"

#include <algorithm>
#include <atomic>
#include <cmath>

namespace vexelbase::memory
{

namespace
{

std::atomic<int> g_ThreadRunners{0};
std::atomic<int> g_Locks{0};

class CCountedRunner final : public CThreadRunner
{
public:
    CCountedRunner() { ++g_ThreadRunners; }
    ~CCountedRunner() override { --g_ThreadRunners; }
};

class CCountedLock final : public CLock
{
public:
    CCountedLock() { ++g_Locks; }
    ~CCountedLock() override { --g_Locks; }
};

int StateBit(MouseButton button)
{
    switch (button)
    {
    case mbLeft:
        return ksLeft;
    case mbRight:
        return ksRight;
    case mbMiddle:
        return ksMiddle;
    default:
        return 0;
    }
}

}  // namespace

CMemorySystem::CMemorySystem()
    : m_Timers(std::make_shared<CTimerQueue>()), m_Runners(std::make_shared<CRunnerQueue>(m_Timers))
{
    m_Before = SetCurrentSystem(this);
    RefreshDefaultGUIFont();
}

CMemorySystem::~CMemorySystem()
{
    m_Timers->Reset();
    m_Runners->Reset();
    if (GetCurrentSystem() == this)
        SetCurrentSystem(m_Before);
    RefreshDefaultGUIFont();
}

void CMemorySystem::Reset()
{
    m_Timers->Reset();
    m_Runners->Reset();
    m_RealThreads = false;
    SetScale(1.0);
    m_Metrics[0] = m_Metrics[1] = 16;
    m_Palette.Reset();
    m_Clipboard.SetText("");
    m_PointerPos = {};
    m_Buttons = m_Keys = 0;
    m_Under = m_Focus = m_ToldOfFocus = m_FocusWhenShown = m_Capture = nullptr;
    for (CMemoryWindow* window : m_Windows)
        window->DropPosted();
}

// Time -------------------------------------------------------------------------------------------------------------

std::int64_t CMemorySystem::GetTime() const
{
    return m_Timers->Now();
}

void CMemorySystem::Advance(int milliseconds)
{
    m_Timers->Advance(milliseconds);
}

std::vector<int> CMemorySystem::GetRunningPeriods() const
{
    return m_Timers->GetRunningPeriods();
}

// Background work --------------------------------------------------------------------------------------------------

int CMemorySystem::StepBackground()
{
    return m_Runners->Step();
}

int CMemorySystem::RunBackground(int limit)
{
    int rounds = 0;
    while (rounds < limit)
    {
        int const step = StepBackground();
        if (step == 0)
            break;
        rounds += step;
    }
    return rounds;
}

int CMemorySystem::GetRunningRunners() const
{
    return m_Runners->GetRunning();
}

// Queues -----------------------------------------------------------------------------------------------------------

int CMemorySystem::RunQueues()
{
    int ran = 0;
    std::vector<CMemoryWindow*> const windows = m_Windows;
    for (CMemoryWindow* window : windows)
    {
        // One runnable may delete another window.
        if (std::find(m_Windows.begin(), m_Windows.end(), window) != m_Windows.end())
            ran += window->RunPosted();
    }
    return ran;
}

int CMemorySystem::GetPostedCount() const
{
    int count = 0;
    for (CMemoryWindow const* window : m_Windows)
        count += window->GetPostedCount();
    return count;
}

// The machine ------------------------------------------------------------------------------------------------------

void CMemorySystem::SetScale(double scale)
{
    m_Scale = scale;
    RefreshDefaultGUIFont();
}

void CMemorySystem::SetMetric(int metric, int pixels)
{
    if (metric == smScrollBarWidth || metric == smScrollBarHeight)
        m_Metrics[metric] = pixels;
}

IPointer* CMemorySystem::GetPointer()
{
    return &m_Pointer;
}

IClipboard* CMemorySystem::GetClipboard()
{
    return &m_Clipboard;
}

font CMemorySystem::GetDefaultFont()
{
    font value;
    value.name = "Square";
    value.family = font::ffSans;
    value.size = 8;
    return value;
}

int CMemorySystem::GetSystemMetric(int metric)
{
    return metric == smScrollBarWidth || metric == smScrollBarHeight ? m_Metrics[metric] : 0;
}

rectangle<int> CMemorySystem::GetWorkArea(point<int> const&)
{
    return {0, 0, ScreenSize.width, ScreenSize.height};
}

vexel_ptr<ISysTimer> CMemorySystem::CreateTimer(int period, int)
{
    return MakeRef<CMemoryTimer>(m_Timers, period);
}

vexel_ptr<IRasterPicture> CMemorySystem::CreateRasterPicture(size<int> const& pictureSize)
{
    return MakeRef<CMemoryPicture>(pictureSize);
}

vexel_ptr<IRasterPicture> CMemorySystem::CreateRasterPicture(XPMBuf const& buffer)
{
    XPMImage const image(buffer);
    auto picture = MakeRef<CMemoryPicture>(size<int>{image.GetWidth(), image.GetHeight()});
    CPixelBuffer& pixels = picture->GetPixels();
    for (int y = 0; y < pixels.GetHeight(); ++y)
    {
        for (int x = 0; x < pixels.GetWidth(); ++x)
        {
            _color const color = image.GetPixel(x, y);
            pixels.Row(y)[x] = CPixelBuffer::ToPixel(color.m_None ? color_table[9] : color);
        }
    }
    return picture;
}

vexel_ptr<IRunner> CMemorySystem::GetRunner()
{
    if (m_RealThreads)
        return MakeRef<CCountedRunner>();
    return MakeRef<CScriptedRunner>(m_Runners);
}

vexel_ptr<ILock> CMemorySystem::CreateLock()
{
    return MakeRef<CCountedLock>();
}

// Mouse ------------------------------------------------------------------------------------------------------------

CMemoryNode* CMemorySystem::GetNodeUnderPointer()
{
    for (auto node = m_TopNodes.rbegin(); node != m_TopNodes.rend(); ++node)
    {
        if (CMemoryNode* const found = (*node)->Find(m_PointerPos))
            return found;
    }
    return nullptr;
}

CMemoryNode* CMemorySystem::PointerTarget()
{
    CMemoryNode* const node = m_Capture ? m_Capture : GetNodeUnderPointer();
    return node && node->IsNodeEnabled() ? node : nullptr;
}

CMouseEvent CMemorySystem::MakeMouseEvent(CMemoryNode& node, MouseButton button) const
{
    point<int> const origin = node.GetScreenPos();
    return CMouseEvent(m_PointerPos.x - origin.x, m_PointerPos.y - origin.y, GetKeyState(), button);
}

MouseButton CMemorySystem::GetHeldButton() const
{
    return m_Buttons & ksLeft ? mbLeft : m_Buttons & ksRight ? mbRight : m_Buttons & ksMiddle ? mbMiddle : mbNone;
}

int CMemorySystem::GetKeyState() const
{
    return m_Buttons | m_Keys;
}

bool CMemorySystem::IsButtonHeld(MouseButton button) const
{
    return (m_Buttons & StateBit(button)) != 0;
}

// Tells a node that the pointer has left it, unless the capture keeps the pointer there.
void CMemorySystem::SettlePointer()
{
    if (m_Capture || !m_Under || m_Under == GetNodeUnderPointer())
        return;
    CMemoryNode* const left = std::exchange(m_Under, nullptr);
    CMouseEvent event = MakeMouseEvent(*left, GetHeldButton());
    left->NodeLeave(event);
}

void CMemorySystem::MovePointer(point<int> const& screen)
{
    if (screen == m_PointerPos)
        return;
    m_PointerPos = screen;
    SettlePointer();
    if (!m_Capture)
        m_Under = GetNodeUnderPointer();
    if (CMemoryNode* const target = PointerTarget())
    {
        CMouseEvent event = MakeMouseEvent(*target, GetHeldButton());
        target->NodeMouseMove(event);
    }
    SettlePointer();
}

void CMemorySystem::PressButton(MouseButton button, bool doubled)
{
    m_Buttons |= StateBit(button);
    if (!m_Capture)
        m_Under = GetNodeUnderPointer();
    CloseOtherPopups(GetNodeUnderPointer());
    if (CMemoryNode* const target = PointerTarget())
    {
        CMouseEvent event = MakeMouseEvent(*target, button);
        target->NodeButtonDown(event, doubled);
    }
    SettlePointer();
}

void CMemorySystem::ReleaseButton(MouseButton button)
{
    m_Buttons &= ~StateBit(button);
    if (CMemoryNode* const target = PointerTarget())
    {
        CMouseEvent event = MakeMouseEvent(*target, button);
        target->NodeButtonUp(event);
    }
    SettlePointer();
}

void CMemorySystem::DropButton(MouseButton button)
{
    m_Buttons &= ~StateBit(button);
}

void CMemorySystem::TurnWheel(int notches)
{
    if (CMemoryNode* const target = PointerTarget())
    {
        CMouseEvent const at = MakeMouseEvent(*target, GetHeldButton());
        CMouseWheelEvent event(at.m_X, at.m_Y, at.m_Keys, at.m_Button, notches);
        target->NodeWheel(event);
    }
    SettlePointer();
}

void CMemorySystem::RestPointer()
{
    if (CMemoryNode* const target = PointerTarget())
    {
        CMouseEvent event = MakeMouseEvent(*target, GetHeldButton());
        target->NodeHover(event);
    }
    SettlePointer();
}

// Keyboard ---------------------------------------------------------------------------------------------------------

void CMemorySystem::SetHeldKeys(int keys)
{
    m_Keys = keys & (ksShift | ksControl | ksAlt);
}

bool CMemorySystem::KeyDown(int virtualKey, CMemoryNode* otherwise, bool* passOn)
{
    CMemoryNode* const target = m_Focus ? m_Focus : otherwise;
    if (!target)
        return false;
    std::weak_ptr<int> const life = target->GetNodeLife();
    CKeyboardEvent event(GetKeyState(), virtualKey);
    bool done = target->NodeKeyDown(event);
    bool const walks = !done && virtualKey == vkTab && !(m_Keys & (ksControl | ksAlt)) && !life.expired();
    if (walks && !target->IsTabStop() && target->GetWindowNode())
        done = TabInTree(*target, event);
    else if (walks)
        TabFrom(target, !(m_Keys & ksShift));
    if (passOn)
        *passOn = event.m_PassOn;
    SettlePointer();
    return done;
}

void CMemorySystem::KeyUp(int virtualKey, CMemoryNode* otherwise)
{
    if (CMemoryNode* const target = m_Focus ? m_Focus : otherwise)
    {
        CKeyboardEvent event(GetKeyState(), virtualKey);
        target->NodeKeyUp(event);
    }
    SettlePointer();
}

void CMemorySystem::Character(char byte, CMemoryNode* otherwise)
{
    if (CMemoryNode* const target = m_Focus ? m_Focus : otherwise)
    {
        CKeyboardEvent event(GetKeyState(), 0, byte);
        target->NodeChar(event);
    }
    SettlePointer();
}

// Focus and capture ------------------------------------------------------------------------------------------------

void CMemorySystem::SetFocusNode(CMemoryNode* node)
{
    m_FocusWhenShown = nullptr;
    if (node == m_Focus)
        return;
    m_Focus = node;
    // Only who was told that it has the focus is told that it lost it. A handler may give the focus away again, or
    // delete the node.
    if (CMemoryNode* const old = std::exchange(m_ToldOfFocus, nullptr))
        old->NodeFocus(false);
    if (!node || node != m_Focus || m_ToldOfFocus == node)
        return;
    m_ToldOfFocus = node;
    node->NodeFocus(true);
}

// The window takes the focus and the key for a control that stands in its tree. It is told of the focus only if it keeps
// it, so that the tree goes on from the control's place.
bool CMemorySystem::TabInTree(CMemoryNode& node, CKeyboardEvent& event)
{
    CMemoryWindow* const window = node.GetWindowNode();
    std::weak_ptr<int> const life = window->GetNodeLife();
    m_FocusWhenShown = nullptr;
    m_Focus = window;
    if (CMemoryNode* const old = std::exchange(m_ToldOfFocus, nullptr))
        old->NodeFocus(false);
    bool const done = !life.expired() && window->NodeKeyDown(event);
    if (!life.expired() && !done)
        TabFrom(window, !(m_Keys & ksShift));
    if (!life.expired() && m_Focus == window && m_ToldOfFocus != window)
    {
        m_ToldOfFocus = window;
        window->NodeFocus(true);
    }
    return done;
}

void CMemorySystem::TabFrom(CMemoryNode* node, bool forward)
{
    std::vector<CMemoryNode*> stops;
    auto const collect = [&](auto const& self, CMemoryNode* candidate) -> void {
        if (candidate == node || (candidate->TakesFocus() && candidate->IsTabStop() && candidate->IsNodeVisible() &&
                                  candidate->IsNodeEnabled()))
            stops.push_back(candidate);
        for (CMemoryNode* child : candidate->GetChildNodes())
            self(self, child);
    };
    // A popup is a ring of its own; all other windows count as standing side by side.
    CMemoryWindow* const own = node->GetWindowNode();
    if (own && own->GetPopup())
        collect(collect, own);
    else
    {
        for (CMemoryWindow* window : m_Windows)
        {
            if (!window->GetPopup())
                collect(collect, window);
        }
    }
    auto const here = std::find(stops.begin(), stops.end(), node);
    if (here == stops.end() || stops.size() < 2)
        return;
    auto const next = forward ? (here + 1 == stops.end() ? stops.begin() : here + 1)
                              : (here == stops.begin() ? stops.end() : here) - 1;
    TabInto(**next, forward);
}

void CMemorySystem::TabInto(CMemoryNode& node, bool forward)
{
    SetFocusNode(&node);
    if (m_Focus == &node)
        node.NodeTabbedInto(forward);
}

void CMemorySystem::SetCaptureNode(CMemoryNode* node)
{
    if (node == m_Capture)
        return;
    CMemoryNode* const old = std::exchange(m_Capture, node);
    if (old)
        old->NodeLostCapture();
}

void CMemorySystem::NodeGone(CMemoryNode* node)
{
    for (CMemoryNode** pointer : {&m_Under, &m_Focus, &m_ToldOfFocus, &m_FocusWhenShown, &m_Capture})
    {
        if (*pointer == node)
            *pointer = nullptr;
    }
}

void CMemorySystem::NodeHidden(CMemoryNode* node)
{
    if (m_Capture && m_Capture->IsInside(node))
        SetCaptureNode(nullptr);
    if (m_Focus && m_Focus->IsInside(node))
        SetFocusNode(nullptr);
}

void CMemorySystem::NodeShown(CMemoryNode* node)
{
    if (m_FocusWhenShown && m_FocusWhenShown->IsInside(node) && m_FocusWhenShown->IsNodeVisible())
        SetFocusNode(m_FocusWhenShown);
}

// Popups -----------------------------------------------------------------------------------------------------------

// A press closes the popups that it is outside of, the uppermost first.
void CMemorySystem::CloseOtherPopups(CMemoryNode* pressed)
{
    std::vector<CMemoryWindow*> const windows = m_Windows;
    for (auto window = windows.rbegin(); window != windows.rend(); ++window)
    {
        if (std::find(m_Windows.begin(), m_Windows.end(), *window) == m_Windows.end())
            continue;
        CMemoryPopup* const popup = (*window)->GetPopup();
        if (!popup || !popup->IsVisible())
            continue;
        if (pressed && pressed->IsInside(*window))
            return;  // those below own it
        popup->Close(0);
    }
}

// Census -----------------------------------------------------------------------------------------------------------

SMemoryCounts GetMemoryCounts()
{
    SMemoryCounts counts;
    counts.windows = CMemoryWindow::GetCount();
    counts.timers = CMemoryTimer::GetCount();
    counts.runningTimers = CMemoryTimer::GetRunningCount();
    counts.timerSubscriptions = CMemoryTimer::GetSubscriptionCount();
    counts.pictures = CMemoryPicture::GetCount();
    counts.runners = GetScriptedRunnerCount() + g_ThreadRunners;
    counts.locks = g_Locks;
    counts.nativeControls = CMemoryNativeNode::GetCount();
    counts.popups = CMemoryPopup::GetCount();
    return counts;
}

}  // namespace vexelbase::memory
