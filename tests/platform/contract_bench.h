#pragma once

#include "tests/support/canvas.h"

#include "vexel/platform/events.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"
#include "vexel/platform/vexel_control.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// What the contract suite stands on. The suite is linked twice: into the program of the memory backend and into that of
// the Qt backend. Its tests know the contract's interfaces alone; what users, time and the desktop do comes from here.

namespace vexelbase::tests
{

/// The world around the backend under test. Windows stand at screen positions, in the backend's own pixels.
class CContractBench
{
public:
    /// Of the backend that the program is about; makes it the current system.
    static std::unique_ptr<CContractBench> Create();
    virtual ~CContractBench();

    // Windows: visible, without frame. Extents are multiples of 30, which all scales have in whole pixels -------------
    virtual std::unique_ptr<ISysWindow> MakeWindow(point<int> const& screen, size<int> const& extent) = 0;
    virtual void Resize(ISysWindow& window, size<int> const& extent) = 0;
    virtual void Move(ISysWindow& window, point<int> const& screen) = 0;
    virtual void Show(ISysWindow& window, bool visible) = 0;
    virtual void Close(ISysWindow& window) = 0;  ///< The desktop destroys it natively; the object stays.
    virtual int GetCursor(ISysWindow& window) = 0;

    // Time and what waits -----------------------------------------------------------------------------------------
    virtual void Settle() = 0;  ///< Handles frames, posts and events that wait, and what they bring.
    /// Lets time pass until the condition holds; false if that takes more than five seconds of it.
    virtual bool RunUntil(std::function<bool()> const& condition) = 0;
    /// Lets at least so much time pass.
    virtual void Wait(int milliseconds) = 0;

    // The user: screen pixels -------------------------------------------------------------------------------------
    virtual void MovePointer(point<int> const& screen) = 0;
    virtual void Press(MouseButton button) = 0;
    virtual void PressTwice(MouseButton button) = 0;  ///< Press, release and the second press of a double click.
    virtual void Release(MouseButton button) = 0;
    virtual void TurnWheel(int notches) = 0;
    virtual void HoldKeys(int keys) = 0;  ///< ksShift, ksControl, ksAlt: from now on.
    virtual void KeyDown(int virtualKey, std::string const& text = "") = 0;  ///< To the focus; with its characters.
    virtual void KeyUp(int virtualKey) = 0;

    // The desktop -------------------------------------------------------------------------------------------------
    virtual void SetScale(double scale) = 0;  ///< Of the system, whatever the screen's is.
    virtual void ChangeColors(ISysWindow& window) = 0;
};

/// A control that writes down what it is told: one word an event.
class CEar : public CVexelControl
{
public:
    explicit CEar(ISysWindow* window) : CVexelControl(window, false) {}

    std::string Take();  ///< What came since the last call, parted by blanks.
    void Note(std::string const& word);

    std::function<void(IPainter&)> m_Draw;            ///< Inside an ssPaint bracket.
    std::function<void(std::string const&)> m_After;  ///< With each word; may delete the control and its window.
    std::function<void(CKeyboardEvent&)> m_KeyDown;
    int m_Draws = 0;
    bool m_WasFull = false;  ///< The last draw was a full paint.

    void OnDraw(IPainter* painter) override;
    void OnButtonDown(CMouseEvent* event) override { Mouse("down", *event); }
    void OnButtonUp(CMouseEvent* event) override { Mouse("up", *event); }
    void OnMouseMove(CMouseEvent* event) override { Mouse("move", *event); }
    void OnDoubleClick(CMouseEvent* event) override { Mouse("double", *event); }
    void OnLeave(CMouseEvent*) override { Told("leave"); }
    void OnWheel(CMouseWheelEvent* event) override;
    void OnKeyDown(CKeyboardEvent* event) override;
    void OnKeyUp(CKeyboardEvent* event) override;
    void OnChar(CKeyboardEvent* event) override;
    void OnResize(CWindowEvent*) override;
    void OnMove(CWindowEvent*) override { Told("moved"); }
    void OnShow(CWindowEvent*) override { Told("shown"); }
    void OnHide(CWindowEvent*) override { Told("hidden"); }
    void OnDestroy(CWindowEvent*) override { Told("destroyed"); }
    void OnGetFocus(CFocusEvent*) override { Told("focus"); }
    void OnLostFocus(CFocusEvent*) override { Told("nofocus"); }
    void OnCustomEvent(CCustomEvent* event) override;
    void OnSysColorChanged(CEvent*) override { Told("colors"); }

private:
    void Told(std::string const& word);
    void Mouse(char const* name, CMouseEvent const& event);

    std::string m_Log;
};

/// A test on the backend.
class CContractTest : public testing::Test
{
protected:
    CContractTest() : m_Bench(CContractBench::Create()) {}

    CContractBench& Bench() { return *m_Bench; }
    static ISystem& System() { return *GetCurrentSystem(); }

private:
    std::unique_ptr<CContractBench> m_Bench;
};

/// With one window of 120 x 120 pixels at (60, 30) and an ear on it, settled.
class CContractWindowTest : public CContractTest
{
protected:
    CContractWindowTest();

    ISysWindow& Window() { return *m_Window; }
    CEar& Ear() { return *m_Ear; }
    IPainter& Painter() { return *m_Window->GetPainter(); }

    std::unique_ptr<ISysWindow> m_Window;
    std::unique_ptr<CEar> m_Ear;
};

/// The pixels of a surface from its left-top, read one by one through the contract.
CPixelBuffer ReadPixels(IPainter& painter, size<int> const& extent);
std::string ReadText(IPainter& painter, size<int> const& extent);

/// Tests of what drawing leaves behind. Everything is drawn on a picture and in a window's paint, at the scales 1, 1.25,
/// 1.5 and 2: what is told in pixels is the same everywhere.
class CContractPaintTest : public CContractWindowTest
{
protected:
    using Draw = std::function<void(IPainter&)>;

    /// Draws on white ground, black hollow pen of width 1, and compares the corner of the text's size with it.
    void ExpectDrawn(Draw const& draw, std::string const& text);
    /// Calls with each painter at each scale, within a paint on a white ground of 120 x 120 pixels.
    void OnEachPainter(Draw const& draw);

    static constexpr size<int> Extent{120, 120};
};

vexel_ptr<IRasterPicture> MakeSystemPicture(std::string const& text);  ///< Of the current system, from a text picture.

inline pen PenOf(_color const& color, int style = pen::psSolid, int width = 1)
{
    return {color, style, width};
}
inline brush BrushOf(_color const& color)
{
    return {color, brush::bsSolid};
}
inline brush const NoBrush{color_table[9], brush::bsNone};
inline void Line(IPainter& painter, double x1, double y1, double x2, double y2)
{
    painter.MoveTo(x1, y1);
    painter.LineTo(x2, y2);
}

}  // namespace vexelbase::tests
