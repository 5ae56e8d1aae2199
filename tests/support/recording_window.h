#pragma once

#include "tests/support/call_log.h"
#include "tests/support/recording_painter.h"
#include "vexel/platform/sys_window.h"

/// A native window that writes down what is asked of it. It paints and delivers events only when the test calls the
/// control. On the screen it stands at (1000, 2000). Must outlive its control.
class CRecordingWindow : public vexelbase::ISysWindow
{
public:
    CRecordingWindow(CCallLog& log, int width, int height) : m_Painter(log), m_Log(log), m_Rect{0, 0, width, height} {}

    CRecordingPainter m_Painter;
    bool m_HasPainter = true;
    bool m_Focused = false;

    void Resize(int width, int height) { m_Rect = {0, 0, width, height}; }

    // From ISysWindow
    vexelbase::rectangle<int> GetRect() const override { return m_Rect; }
    void InvalidateRect(int left, int top, int right, int bottom) override
    {
        Note("InvalidateRect", Text({left, top, right, bottom}));
    }
    void UpdateNow() override { Note("UpdateNow"); }
    void ScrollPixels(int dx, int dy, vexelbase::screen_rectangle<int> const& area) override
    {
        Note("ScrollPixels", std::to_string(dx) + ", " + std::to_string(dy) + ", " +
                                 Text({area.left, area.top, area.right, area.bottom}));
    }
    void LockDrawing(bool) override {}
    vexelbase::IPainter* GetPainter() override { return m_HasPainter ? &m_Painter : nullptr; }
    void SetFocus() override
    {
        Note("SetFocus");
        m_Focused = true;
    }
    bool HasFocus() const override { return m_Focused; }
    void SetOption(bool option) override { Note("SetOption", option ? "true" : "false"); }
    void SetCursor(int cursor) override { Note("SetCursor", std::to_string(cursor)); }
    void CaptureMouse() override { Note("CaptureMouse"); }
    void ReleaseMouse() override { Note("ReleaseMouse"); }
    void TrackPointer() override {}
    void HideTooltip() override {}
    void ScreenToClient(vexelbase::point<int>* position) const override
    {
        position->x -= 1000;
        position->y -= 2000;
    }
    void ClientToScreen(vexelbase::point<int>* position) const override
    {
        position->x += 1000;
        position->y += 2000;
    }
    bool IsDestroying() const override { return false; }
    void SetEventTarget(vexelbase::CVexelControl* target) override { m_Target = target; }
    vexelbase::CVexelControl* GetEventTarget() const override { return m_Target; }
    vexelbase::vexel_ptr<vexelbase::IScrollBar> CreateScrollBar(int) override { return nullptr; }
    vexelbase::vexel_ptr<vexelbase::IEdit> CreateEdit(bool) override { return nullptr; }
    vexelbase::vexel_ptr<vexelbase::IComboBox> CreateComboBox(bool) override { return nullptr; }
    vexelbase::vexel_ptr<vexelbase::IPopup> CreatePopup() override { return nullptr; }
    void Post(vexelbase::IRunnable* runnable) override { delete runnable; }

private:
    void Note(std::string const& what, std::string const& arguments = "") { m_Log.Add("window", what, arguments); }

    CCallLog& m_Log;
    vexelbase::rectangle<int> m_Rect;
    vexelbase::CVexelControl* m_Target = nullptr;
};
