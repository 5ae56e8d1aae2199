#include "vexel/core/drag_drop.h"

#include "vexel/core/alive_guard.h"

namespace vexel
{

CDragSource::~CDragSource() = default;

bool CDragSource::CanStartDragging(CVisualElement* element, int x, int y, DragInfo& info)
{
    CAlivePtr<CDragSource> const alive(this);
    bool allowed = false;
    bool handled = false;
    m_SigStartDragging(element, x, y, &info, &allowed, &handled);
    if (!handled && alive && HandleStartDragging(x, y, info))
        allowed = true;
    return allowed;
}

void CDragSource::DrawDragItem(CVisualElement* element, IPainter* painter, DragInfo& info, bool accepted,
                               CVisualElement* under)
{
    CAlivePtr<CDragSource> const alive(this);
    CAlivePtr<IPainter> const surface(painter);
    CAlivePtr<CVisualElement> const target(under);
    bool handled = false;
    m_SigDrawDragItem(element, under, painter, &info, accepted, &handled);
    if (!handled && alive && (surface || !painter))
        HandleDrawDragItem(painter, info, accepted, target.get());
}

void CDragSource::DragFinished(CVisualElement* element, CVisualElement* target, DragInfo& info)
{
    CAlivePtr<CDragSource> const alive(this);
    CAlivePtr<CVisualElement> const over(target);
    bool handled = false;
    m_SigDragFinished(element, target, &info, &handled);
    if (!handled && alive)
        HandleDragFinished(over.get(), info);
}

CDropTarget::~CDropTarget() = default;

bool CDropTarget::DragOver(CVisualElement* source, CVisualElement* target, int x, int y, DragInfo& info)
{
    CAlivePtr<CDropTarget> const alive(this);
    CAlivePtr<CVisualElement> const dragged(source);
    bool accepted = false;
    bool handled = false;
    m_SigDragOver(source, target, &info, &accepted, &handled);
    if (!handled && alive && (dragged || !source) && HandleDragOver(source, x, y, info))
        accepted = true;
    return accepted;
}

void CDropTarget::DropDone(CVisualElement* source, CVisualElement* target, int x, int y, DragInfo& info)
{
    CAlivePtr<CDropTarget> const alive(this);
    CAlivePtr<CVisualElement> const dragged(source);
    bool handled = false;
    m_SigDropDone(source, target, x, y, &info, &handled);
    if (!handled && alive && (dragged || !source))
        HandleDropDone(source, x, y, info);
}

} // namespace vexel
