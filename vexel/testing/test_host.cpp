#include "vexel/testing/test_host.h"

#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/memory/memory_popup.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/memory/png.h"
#include "vexel/testing/census.h"
#include "vexel/testing/detail/kit_system.h"
#include "vexel/testing/detail/paint_recording.h"
#include "vexel/testing/failure.h"

#include <algorithm>

namespace vexel::test
{

namespace
{

using vexelbase::memory::CMemorySystem;
using vexelbase::memory::CMemoryWindow;

constexpr int MostFrames = 8;      // of one Paint: enough for a layout that asks again, not for one that never ends
constexpr int MostRounds = 1000;   // of one RunBackground or RunPending

// A place for a new window that overlaps no other one.
point<int> FindPlace(CMemorySystem& system)
{
    point<int> place{200, 100};
    for (CMemoryWindow const* window : system.GetWindows())
    {
        rectangle<int> const& taken = window->GetNodeRect();
        place.y = std::max(place.y, taken.bottom + 50);
        place.x += 10;  // so that no two windows have a coordinate in common
    }
    return place;
}

} // namespace

CTestHost::CTestHost(int width, int height, double scale)
{
    Start(width, height, scale);
    m_Control = std::make_unique<CBaseControl>(m_Window.get());
}

CTestHost::CTestHost(int width, int height,
                     std::function<std::unique_ptr<CBaseControl>(vexelbase::ISysWindow*)> const& make, double scale)
{
    Start(width, height, scale);
    m_Control = make(m_Window.get());
}

CTestHost::~CTestHost()
{
    m_Control.reset();
    m_Window.reset();
}

void CTestHost::Start(int width, int height, double scale)
{
    InstallKit();
    CMemorySystem& system = System();
    if (system.GetScale() != scale)
        system.SetScale(scale);
    m_Window = std::make_unique<CMemoryWindow>(system, FindPlace(system), size<int>{width, height});
}

CMemorySystem& CTestHost::System()
{
    return detail::KitSystem();
}

CVisualElement* CTestHost::Root() const
{
    return m_Control->GetContent();
}

vexelbase::memory::CMemoryPopup* CTestHost::Popup(int index) const
{
    for (CMemoryWindow* window : System().GetWindows())
    {
        vexelbase::memory::CMemoryPopup* const popup = window->GetPopup();
        if (popup && popup->GetOwner() == m_Window.get() && index-- == 0)
            return popup;
    }
    return nullptr;
}

point<int> CTestHost::ToControl(CVisualElement const& element, int x, int y) const
{
    point<int> position{x, y};
    element.ElementToControl(&position);
    // The element may stand in another window, such as a popup.
    ISysWindow* const window = element.GetControl() ? element.GetControl()->GetWindow() : nullptr;
    if (window && m_Window && window != m_Window.get())
    {
        window->ClientToScreen(&position);
        m_Window->ScreenToClient(&position);
    }
    return position;
}

// Frames -----------------------------------------------------------------------------------------------------------

PaintLog CTestHost::Paint(CMemoryWindow& window)
{
    PaintLog log;
    CPaintRecording recording(log, window.GetPainter());
    std::weak_ptr<int> const life = window.GetNodeLife();
    for (int i = 0; i < MostFrames && !life.expired() && window.RunFrame(); ++i)
        recording.AddFrame();
    return log;
}

PaintLog CTestHost::Paint()
{
    m_Script.Add("paint");
    return m_Window ? Paint(*m_Window) : PaintLog();
}

PaintLog CTestHost::FullPaint()
{
    m_Script.Add("fullpaint");
    if (!m_Window)
        return {};
    m_Window->LoseSurface();
    return Paint(*m_Window);
}

std::string CTestHost::CompareWithFullPaint(CLegend const& legend)
{
    Paint();
    if (!m_Window)
        return {};
    CPixelBuffer const byParts = Pixels();
    FullPaint();
    return ComparePixels(Pixels(), byParts, legend);
}

bool CTestHost::IsFramePending() const
{
    return m_Window && m_Window->IsFramePending();
}

// Queue and background ---------------------------------------------------------------------------------------------

int CTestHost::RunPending()
{
    m_Script.Add("pending");
    int ran = 0;
    while (int const now = System().RunQueues())
    {
        ran += now;
        if (ran > MostRounds)
        {
            ReportFailure("RunPending: what is posted posts again without an end.");
            break;
        }
    }
    return ran;
}

int CTestHost::RunBackground()
{
    m_Script.Add("background");
    int const rounds = System().RunBackground(MostRounds + 1);
    if (rounds > MostRounds)
        ReportFailure("RunBackground: background work without a wait goes on without an end; use StepBackground.");
    return rounds;
}

int CTestHost::StepBackground()
{
    m_Script.Add("step");
    return System().StepBackground();
}

// Pixels -----------------------------------------------------------------------------------------------------------

CPixelBuffer const& CTestHost::Pixels() const
{
    return m_Window->GetPixels();
}

std::string CTestHost::PixelText(CLegend const& legend) const
{
    return PixelsToText(Pixels(), legend);
}

std::string CTestHost::PixelText(rectangle<int> const& area, CLegend const& legend) const
{
    return PixelsToText(Pixels(), area, legend);
}

vexelbase::_color CTestHost::PixelAt(int x, int y) const
{
    return Pixels().Contains(x, y) ? CPixelBuffer::ToColor(Pixels().Row(y)[x]) : vexelbase::color_table[0];
}

void CTestHost::SavePng(std::string const& path) const
{
    if (!vexelbase::memory::SavePng(path, Pixels()))
        ReportFailure("SavePng: can't write " + path);
}

// The desktop ------------------------------------------------------------------------------------------------------

void CTestHost::Resize(int width, int height)
{
    m_Script.Add("resize " + std::to_string(width) + " " + std::to_string(height));
    if (m_Window)
        m_Window->Resize({width, height});
}

void CTestHost::SetScale(double scale)
{
    System().SetScale(scale);
}

void CTestHost::Focus()
{
    m_Script.Add("focus");
    if (m_Window)
        m_Window->SetFocus();
}

void CTestHost::Unfocus()
{
    m_Script.Add("unfocus");
    if (m_Window && m_Window->HasFocus())
        System().SetFocusNode(nullptr);
}

void CTestHost::TabInto(bool forward)
{
    m_Script.Add(forward ? "tab 1" : "tab 0");
    if (m_Window)
        System().TabInto(*m_Window, forward);
}

std::string CTestHost::Tooltip(int x, int y)
{
    m_Mouse.Move(x, y);
    m_Script.Add("tooltip");
    return m_Window && m_Window->AskTooltip() ? m_Window->GetTooltip().text : std::string();
}

std::string CTestHost::Tooltip(CVisualElement const& element, int x, int y)
{
    point<int> const position = ToControl(element, x, y);
    return Tooltip(position.x, position.y);
}

void CTestHost::ContextMenu(int x, int y)
{
    m_Mouse.Move(x, y);
    m_Script.Add("menu");
    if (m_Window)
        m_Window->AskContextMenu();
}

void CTestHost::ContextMenu(CVisualElement const& element, int x, int y)
{
    point<int> const position = ToControl(element, x, y);
    ContextMenu(position.x, position.y);
}

void CTestHost::SysColorChange()
{
    m_Script.Add("colors");
    if (m_Window)
        m_Window->TellSysColorChange();
}

void CTestHost::DestroyWindow()
{
    m_Window.reset();
}

void CTestHost::DestroyControl()
{
    m_Control.reset();
}

std::string CTestHost::Pending() const
{
    std::string text;
    auto const add = [&](std::string const& item) { text += (text.empty() ? "" : ", ") + item; };
    if (IsFramePending())
        add("frame");
    if (int const posted = System().GetPostedCount())
        add(std::to_string(posted) + " posted");
    for (int const period : System().GetRunningPeriods())
        add("timer " + std::to_string(period));
    if (int const runners = System().GetRunningRunners())
        add(runners == 1 ? "runner" : std::to_string(runners) + " runners");
    return text;
}

} // namespace vexel::test
