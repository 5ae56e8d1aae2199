#pragma once

#include "vexel/views/event_handler.h"

namespace vexel
{

/// Gives a viewer tooltips of its items. A tooltip goes when the viewer scrolls, a key comes or a menu opens.
class VEXEL_API CTooltipEventHandler : public CEventHandler
{
public:
    ISysWindow* GetWindow() const { return m_Window; }
    /// Whose tooltip goes. Not owned: whoever sets it takes it back, by null, before the window goes.
    void SetWindow(ISysWindow* window) { m_Window = window; }
    void HideTooltip();  ///< Nothing without a window.

public:  // From CEventHandler
    bool ProcessOnTooltip(CTooltipEvent* event, bool* handled) override;
    void ProcessScroll(int dx, int dy) override;
    bool ProcessKeyDown(int keys, int key, bool* handled) override;
    bool ProcessContextMenu(int x, int y, bool* handled) override;

public:  // Overridable
    /// Fills in text and rectangle for the event's position; the viewer's pixels.
    virtual void GetTooltipAttr(CTooltipEvent* event) = 0;

private:
    ISysWindow* m_Window = nullptr;
};

}  // namespace vexel
