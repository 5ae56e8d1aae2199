#pragma once

#include "vexel/core/fwd.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/platform/vexel_control.h"

#include <functional>
#include <string>

namespace vexel::test
{

/// A control without a tree that writes down the native events it gets: "move 3 4 0 0" (x, y, keys, button).
class CEventControl : public CVexelControl
{
public:
    explicit CEventControl(ISysWindow& window) : CVexelControl(&window, false) {}

    std::string Take()
    {
        std::string text;
        text.swap(m_Text);
        return text;
    }
    void Note(std::string const& text) { m_Text += (m_Text.empty() ? "" : ", ") + text; }

    /// Called with the name of each event, before it is dealt with.
    std::function<void(std::string const&)> m_Do;
    bool m_ConsumeKeys = false;  ///< Clears the continue flag of keys.
    bool m_StopKeys = false;     ///< Clears their pass-on flag.
    std::string m_TipText;       ///< Answer to OnTooltip.
    rectangle<int> m_TipHotRect;

    void OnDraw(IPainter* painter) override
    {
        painter->BeginPaint(IPainter::ssPaint);
        Heard(painter->IsFullPaint() ? "draw full" : "draw");
        painter->EndPaint();
    }
    void OnButtonDown(CMouseEvent* e) override { Heard("down", *e); }
    void OnButtonUp(CMouseEvent* e) override { Heard("up", *e); }
    void OnMouseMove(CMouseEvent* e) override { Heard("move", *e); }
    void OnWheel(CMouseWheelEvent* e) override { Heard("wheel " + std::to_string(e->m_Delta), *e); }
    void OnDoubleClick(CMouseEvent* e) override { Heard("double", *e); }
    void OnHover(CMouseEvent* e) override { Heard("hover", *e); }
    void OnLeave(CMouseEvent* e) override { Heard("leave", *e); }
    void OnKeyDown(CKeyboardEvent* e) override
    {
        Heard("key " + std::to_string(e->GetVirtualKey()) + " " + std::to_string(e->m_Keys));
        if (m_ConsumeKeys)
            e->SetContinue(false);
        if (m_StopKeys)
            e->m_PassOn = false;
    }
    void OnKeyUp(CKeyboardEvent* e) override
    {
        Heard("keyup " + std::to_string(e->GetVirtualKey()) + " " + std::to_string(e->m_Keys));
    }
    void OnChar(CKeyboardEvent* e) override
    {
        Heard("char " + std::to_string(static_cast<unsigned char>(e->GetCharacterCode())));
    }
    void OnResize(CWindowEvent*) override { Heard("resize"); }
    void OnMove(CWindowEvent*) override { Heard("moved"); }
    void OnDestroy(CWindowEvent*) override { Heard("destroy"); }
    void OnShow(CWindowEvent*) override { Heard("show"); }
    void OnHide(CWindowEvent*) override { Heard("hide"); }
    void OnGetFocus(CFocusEvent*) override { Heard("focus"); }
    void OnLostFocus(CFocusEvent*) override { Heard("blur"); }
    void OnContextMenu(CContextMenuEvent* e) override
    {
        Heard("menu " + std::to_string(e->m_X) + " " + std::to_string(e->m_Y));
    }
    void OnTooltip(CTooltipEvent* e) override
    {
        Heard("tip " + std::to_string(e->m_X) + " " + std::to_string(e->m_Y));
        e->m_Text = m_TipText;
        e->m_HotRect = m_TipHotRect;
    }
    void OnTooltipTrack(CTooltipEvent* e) override
    {
        Heard("track " + std::to_string(e->m_X) + " " + std::to_string(e->m_Y));
    }
    void OnCustomEvent(CCustomEvent* e) override
    {
        Heard("custom " + std::to_string(e->m_Id));
        delete e;
    }
    void OnSysColorChanged(CEvent*) override { Heard("colors"); }

private:
    void Heard(std::string const& text)
    {
        Note(text);
        if (m_Do)
            m_Do(text.substr(0, text.find(' ')));
    }
    void Heard(std::string const& name, CMouseEvent const& e)
    {
        Heard(name + " " + std::to_string(e.m_X) + " " + std::to_string(e.m_Y) + " " + std::to_string(e.m_Keys) + " " +
              std::to_string(e.m_Button));
    }

    std::string m_Text;
};

} // namespace vexel::test
