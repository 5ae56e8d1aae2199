#pragma once

#include "vexel/core/fwd.h"
#include "vexel/core/types.h"
#include "vexel/export.h"
#include "vexel/platform/events.h"
#include "vexel/platform/geometry.h"

namespace vexel
{

class CViewerBase;

/// A link of the chain that gives a viewer its behaviour. Coordinates are the viewer's pixels. `Process...` is this
/// handler's own reaction; `Handle...` walks the chain from this handler on. Whoever sets `*handled` ends the walk; one
/// that only answers true does not: the answers of all are or'ed.
///
/// Not owned by the viewer. A handler that dies leaves its chain.
class VEXEL_API CEventHandler
{
public:
    CEventHandler() = default;
    CEventHandler(CEventHandler const&) = delete;
    CEventHandler& operator=(CEventHandler const&) = delete;
    virtual ~CEventHandler();

    // Overridable: nothing by default ----------------------------------------------------------------------------------
    virtual bool ProcessMouseMove(int, int, int, MouseButton, bool*) { return false; }
    virtual bool ProcessButtonDown(int, int, int, MouseButton, bool*) { return false; }
    virtual bool ProcessButtonUp(int, int, int, MouseButton, bool*) { return false; }
    virtual bool ProcessClick(int, int, int, MouseButton, bool*) { return false; }
    virtual bool ProcessDoubleClick(int, int, int, MouseButton, bool*) { return false; }
    virtual void ProcessMouseHover(bool*) {}
    virtual void ProcessMouseLeave(bool*) {}
    virtual bool ProcessKeyDown(int, int, bool*) { return false; }
    virtual bool ProcessKeyUp(int, int, bool*) { return false; }
    virtual bool ProcessChar(char, bool*) { return false; }
    virtual bool ProcessOnTooltip(CTooltipEvent*, bool*) { return false; }
    virtual bool ProcessOnTooltipTrack(CTooltipEvent*, bool*) { return false; }
    virtual bool ProcessContextMenu(int, int, bool*) { return false; }
    virtual bool ProcessDragOver(CVisualElement*, bool*) { return false; }
    virtual bool ProcessDragDrop(CVisualElement*, bool*) { return false; }
    virtual void ProcessGetFocus(bool*) {}
    virtual void ProcessLostFocus(bool*) {}
    /// Only the first handler of a chain is asked to draw; one that doesn't hands over, as here.
    virtual void ProcessDraw(IPainter* painter, rectangle<double> const& rect);
    virtual void ProcessResize(rectangle<int> const& /*old*/, rectangle<int> const& /*now*/, bool /*invalidate*/) {}
    virtual void ProcessScroll(int, int) {}

    // The chain ----------------------------------------------------------------------------------------------------------
    bool HandleMouseMove(int x, int y, int keys, MouseButton button, bool* handled);
    bool HandleButtonDown(int x, int y, int keys, MouseButton button, bool* handled);
    bool HandleButtonUp(int x, int y, int keys, MouseButton button, bool* handled);
    bool HandleClick(int x, int y, int keys, MouseButton button, bool* handled);
    bool HandleDoubleClick(int x, int y, int keys, MouseButton button, bool* handled);
    bool HandleKeyDown(int keys, int key, bool* handled);
    bool HandleKeyUp(int keys, int key, bool* handled);
    bool HandleChar(char character, bool* handled);
    bool HandleOnTooltip(CTooltipEvent* event, bool* handled);
    bool HandleOnTooltipTrack(CTooltipEvent* event, bool* handled);
    bool HandleContextMenu(int x, int y, bool* handled);

    CEventHandler* GetNext() const { return m_Next; }
    CViewerBase* GetChainOwner() const { return m_ChainOwner; }  ///< The viewer in whose chain it stands, or null.

private:
    friend class CViewerBase;

    template <class Process> bool WalkChain(bool* handled, Process const& process);

    CEventHandler* m_Next = nullptr;
    CViewerBase* m_ChainOwner = nullptr;
};

}  // namespace vexel
