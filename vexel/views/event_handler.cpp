#include "vexel/views/event_handler.h"

#include "vexel/core/alive_guard.h"
#include "vexel/views/viewer_base.h"

namespace vexel
{

CEventHandler::~CEventHandler()
{
    CAliveLink::Forget(this);
    if (m_ChainOwner)
        m_ChainOwner->RemoveEventHandler(this);
}

void CEventHandler::ProcessDraw(IPainter* painter, rectangle<double> const& rect)
{
    if (m_Next)
        m_Next->ProcessDraw(painter, rect);
}

// A handler may die in what it does; the walk then ends, for nobody knows what came after it. One that only left its chain
// is followed by the one that it stood before.
template <class Process> bool CEventHandler::WalkChain(bool* handled, Process const& process)
{
    bool result = false;
    CAlivePtr<CEventHandler> handler(this);
    CAlivePtr<CEventHandler> next(nullptr);
    while (handler)
    {
        CViewerBase const* const owner = handler->m_ChainOwner;
        next.Watch(handler->m_Next);
        result = process(handler.get()) || result;
        if (*handled || !handler)
            break;
        handler.Watch(handler->m_ChainOwner == owner ? handler->m_Next : next.get());
    }
    return result;
}

bool CEventHandler::HandleMouseMove(int x, int y, int keys, MouseButton button, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessMouseMove(x, y, keys, button, handled); });
}

bool CEventHandler::HandleButtonDown(int x, int y, int keys, MouseButton button, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessButtonDown(x, y, keys, button, handled); });
}

bool CEventHandler::HandleButtonUp(int x, int y, int keys, MouseButton button, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessButtonUp(x, y, keys, button, handled); });
}

bool CEventHandler::HandleClick(int x, int y, int keys, MouseButton button, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessClick(x, y, keys, button, handled); });
}

bool CEventHandler::HandleDoubleClick(int x, int y, int keys, MouseButton button, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessDoubleClick(x, y, keys, button, handled); });
}

bool CEventHandler::HandleKeyDown(int keys, int key, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessKeyDown(keys, key, handled); });
}

bool CEventHandler::HandleKeyUp(int keys, int key, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessKeyUp(keys, key, handled); });
}

bool CEventHandler::HandleChar(char character, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessChar(character, handled); });
}

bool CEventHandler::HandleOnTooltip(CTooltipEvent* event, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessOnTooltip(event, handled); });
}

bool CEventHandler::HandleOnTooltipTrack(CTooltipEvent* event, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessOnTooltipTrack(event, handled); });
}

bool CEventHandler::HandleContextMenu(int x, int y, bool* handled)
{
    return WalkChain(handled, [=](CEventHandler* h) { return h->ProcessContextMenu(x, y, handled); });
}

}  // namespace vexel
