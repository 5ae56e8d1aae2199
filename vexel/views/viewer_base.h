#pragma once

#include "vexel/scroll/central_part.h"

namespace vexel
{

class CEventHandler;

/// An element that shows items out of a model and holds nothing per item. What it draws and does is its chain of event
/// handlers; it hands them every input event, and the paint to the first of them.
class VEXEL_API CViewerBase : public CCentralPart
{
public:
    CViewerBase(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CViewerBase() override;

    // Handlers: not owned ------------------------------------------------------------------------------------------------
    void SetDefEventHandler(CEventHandler* handler);                ///< To the front. Null is ignored.
    void AddEventHandler(CEventHandler* handler);                   ///< To the end. Null is ignored.
    bool RemoveEventHandler(CEventHandler* handler);                ///< False: it isn't in the chain.
    CEventHandler* GetEventHandlers() const { return m_Handlers; }  ///< The first, or null.

    void OnEndDraw();  ///< Called by the control at the end of each paint.

    // From CCentralPart --------------------------------------------------------------------------------------------------
    /// Tells the handlers, and repaints what they have marked. Moves no pixels: handlers do.
    bool ScrollContent(int dx, int dy) override;

    // From CVisualElement ------------------------------------------------------------------------------------------------
    void SetPos(rectangle<int> const& rect, bool force) override;
    void ProcessSetControl(IControl* control) override;
    void DrawContent(IPainter* painter) override;  ///< Nothing without a handler.
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    bool HandleClick(int x, int y, int keys, MouseButton button) override;
    bool HandleDoubleClick(int x, int y, int keys, MouseButton button) override;
    void HandleMouseHover(CVisualElement* previous) override;
    void HandleMouseLeave(CVisualElement* next) override;
    bool HandleKeyDown(int keys, int key) override;
    bool HandleKeyUp(int keys, int key) override;
    bool HandleChar(char character) override;
    bool HandleOnTooltip(CTooltipEvent* event) override;
    bool HandleOnTooltipTrack(CTooltipEvent* event) override;
    bool HandleContextMenu(int x, int y) override;
    void HandleGetFocus(CVisualElement* other, bool focused) override;
    void HandleLostFocus(CVisualElement* other) override;

public:                               // Overridable
    virtual void ProcessEndDraw() {}  ///< A paint of the control has ended.

private:
    template <class Process> void ForAll(Process const& process);

    CEventHandler* m_Handlers = nullptr;
};

}  // namespace vexel
