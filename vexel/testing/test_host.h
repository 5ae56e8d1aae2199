#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/testing/clock.h"
#include "vexel/testing/event_script.h"
#include "vexel/testing/keyboard.h"
#include "vexel/testing/mouse.h"
#include "vexel/testing/names.h"
#include "vexel/testing/paint_log.h"
#include "vexel/testing/pixels.h"

#include <functional>
#include <memory>
#include <string>

namespace vexelbase::memory
{
class CMemoryPopup;
class CMemorySystem;
}

namespace vexel::test
{

/// A window of the memory backend with a control on it, and a user in front of it. Everything happens when the test says
/// so: time passes in Clock().Advance, frames are painted in Paint, posted work runs in RunPending, background work in
/// RunBackground. Nothing sleeps.
///
///     CTestHost host(100, 40);
///     CButton button(host.Root(), {60, 20}, alLeft);
///     host.Paint();                      // settle the layout, forget the first paint
///     host.Mouse().Click(button, 5, 5);
///
/// The window starts without native focus at (200, 100) of the screen; more hosts stand beside and below each other
/// without overlapping. The pointer starts at (0, 0) of the screen, outside of all of them.
class VEXEL_TESTING_API CTestHost
{
public:
    /// Size of the window's client area in device pixels. `scale`: the system's scale, kept until changed.
    CTestHost(int width, int height, double scale = 1.0);
    /// With a control of the test's own making; `make` gets the window.
    CTestHost(int width, int height, std::function<std::unique_ptr<CBaseControl>(vexelbase::ISysWindow*)> const& make,
              double scale = 1.0);
    /// The control goes first, then the window.
    ~CTestHost();
    CTestHost(CTestHost const&) = delete;
    CTestHost& operator=(CTestHost const&) = delete;

    // The cast -----------------------------------------------------------------------------------------------------
    CVisualElement* Root() const;       ///< The control's content: the parent for the test's elements.
    CBaseControl& Control() const { return *m_Control; }
    bool HasControl() const { return m_Control != nullptr; }
    vexelbase::memory::CMemoryWindow& Window() const { return *m_Window; }
    bool HasWindow() const { return m_Window != nullptr; }
    /// The memory system, which it makes the current one if there is none. Needs no host.
    static vexelbase::memory::CMemorySystem& System();
    CTestClock& Clock() { return m_Clock; }
    CMouse& Mouse() { return m_Mouse; }
    CKeyboard& Keyboard() { return m_Keyboard; }
    CEventScript& Script() { return m_Script; }   ///< What was done to the host so far.
    /// A name for an element in all logs; see NameElement.
    void Name(CVisualElement const& element, std::string const& name) { NameElement(element, name); }

    /// The native control of this class that stands in the window and was made `index`-th, or null:
    /// host.Native<CMemoryEdit>().
    template <class Control> Control* Native(int index = 0) const
    {
        for (vexelbase::memory::CMemoryNode* node : m_Window->GetChildNodes())
        {
            auto* const control = dynamic_cast<Control*>(node);
            if (control && index-- == 0)
                return control;
        }
        return nullptr;
    }
    /// The popup of the window that was made `index`-th, or null.
    vexelbase::memory::CMemoryPopup* Popup(int index = 0) const;

    // Frames -------------------------------------------------------------------------------------------------------
    /// Runs the frames that are pending, until none is, at most eight. Empty if none was.
    PaintLog Paint();
    /// The same for another window, such as a popup's.
    PaintLog Paint(vexelbase::memory::CMemoryWindow& window);
    /// Paints everything, as after the surface was lost.
    PaintLog FullPaint();
    bool IsFramePending() const;
    /// Paints what is pending, then everything, and says how the two pictures differ; empty if they don't. What is
    /// painted bit by bit must look as if painted at once.
    std::string CompareWithFullPaint(CLegend const& legend = CLegend());

    // Queue and background -----------------------------------------------------------------------------------------
    /// Runs what was posted to any window, and what that posts, until nothing is left. Returns how many ran.
    int RunPending();
    /// Runs background work on this thread: every round that is due, until none is; a runner's wait passes on the
    /// virtual clock. Returns the number of rounds; more than 1000 in one call fail the test.
    int RunBackground();
    /// One round of every runner that is due.
    int StepBackground();

    // Pixels -------------------------------------------------------------------------------------------------------
    /// The surface as it stands, without painting.
    vexelbase::CPixelBuffer const& Pixels() const;
    /// The surface, or a part of it (right and bottom excluded), as text.
    std::string PixelText(CLegend const& legend = CLegend()) const;
    std::string PixelText(vexelbase::rectangle<int> const& area, CLegend const& legend = CLegend()) const;
    vexelbase::_color PixelAt(int x, int y) const;
    void SavePng(std::string const& path) const;

    // The desktop --------------------------------------------------------------------------------------------------
    void Resize(int width, int height);    ///< OnResize; the next paint is a full one.
    /// The system's scale and with it the default font; sizes of elements that exist stay.
    void SetScale(double scale);
    void Focus();                          ///< The window gets the native focus.
    void Unfocus();                        ///< It loses it to nobody.
    /// The native focus comes in by Tab: OnGetFocus, then the custom event for the first or the last element.
    void TabInto(bool forward = true);
    /// Moves the pointer there and lets the tip come up. Returns the text shown, empty for none; more in
    /// Window().GetTooltip().
    std::string Tooltip(CVisualElement const& element, int x, int y);
    std::string Tooltip(int x, int y);
    void ContextMenu(CVisualElement const& element, int x, int y);  ///< Moves the pointer there and asks for the menu.
    void ContextMenu(int x, int y);
    void SysColorChange();                 ///< The desktop's colours have changed.
    /// The window is destroyed natively, as by the desktop. The control lives on.
    void DestroyWindow();
    void DestroyControl();

    /// What is still to happen, empty if nothing: "frame, 2 posted, timer 100, runner".
    std::string Pending() const;
    /// Plays a script of events; see CEventScript.
    void Replay(std::string const& script) { CEventScript::Replay(*this, script); }

private:
    friend class CMouse;
    friend class CKeyboard;

    vexelbase::point<int> ToControl(CVisualElement const& element, int x, int y) const;
    void Start(int width, int height, double scale);
    vexelbase::memory::CMemoryNode* KeyTarget() const { return m_Window.get(); }

    std::unique_ptr<vexelbase::memory::CMemoryWindow> m_Window;
    std::unique_ptr<CBaseControl> m_Control;
    CEventScript m_Script;
    CTestClock m_Clock{m_Script};
    CMouse m_Mouse{*this};
    CKeyboard m_Keyboard{*this};
};

} // namespace vexel::test
