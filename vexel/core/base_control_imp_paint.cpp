// The control's paint pass.

#include "vexel/core/base_control_imp.h"
#include "vexel/core/detail/control_scopes.h"
#include "vexel/core/draw_elements.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"

namespace vexel
{

void CBaseControlImp::ProcessDraw(IPainter* painter)
{
    if (!FindWindow())
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    CAlivePtr<IPainter> const surface(painter);
    m_SigBeforeDraw();
    if (!alive || !surface || !FindWindow())
        return;
    if (m_FirstDraw)
    {
        m_RearrangeNeeded = true;
        m_Rearranges.Clear(0);
    }
    bool draw = m_RearrangeNeeded || m_FullUpdate || m_Updates.GetCount() > 0;
    LayOutForPaint();
    if (!alive || !surface || !FindWindow())
        return;
    // The item of the last paint must go, even if nobody waits.
    draw = draw || m_DraggedElement || (m_MouseFlags & mfPutBackground);
    if (m_FirstDraw)
    {
        m_Updates.Clear(0);
        m_FirstDraw = false;
    }

    painter->m_DisabledBkColor = painter->m_DisabledMode ? _color(0xFF000000) : _color(0, true);
    detail::CPaintBracket bracket(surface);
    if (painter->IsFullPaint())
    {
        // Nobody knows what the screen shows.
        m_Updates.Clear(0);
        draw = true;
    }
    IPainter::MapMode mode = IPainter::mmDevice;
    IPainter::CoordInfo info;
    painter->GetCoordSystem(mode, &info);
    try
    {
        if (draw || m_Updates.GetCount() > 0)
        {
            if (m_DraggedElement || (m_MouseFlags & mfPutBackground))
                PaintDragBackground(painter);
            m_MouseFlags &= ~unsigned{mfMakeBackground | mfPutBackground};
            PaintTree(painter);
            if (!alive || !surface)
                return;
            m_Updates.Clear(0);
            painter->ResetClip();
            painter->m_ClipCache = {};
            painter->SetCoordSystem(mode, &info);
            if (m_DraggedElement && m_DragBackground)
            {
                size<int> const extent = m_DragBackground->GetSize();
                painter->ExtractRasterPicture(m_DragBackground.get(), 0, 0, extent.width - 1, extent.height - 1);
            }
        }
        if (m_DraggedElement)
            PaintDragItem(painter);
    }
    catch (...)
    {
        if (alive)
            m_FullUpdate = true;  // the next paint makes good what this one has left out
        throw;
    }
    if (!alive || !surface)
        return;
    bracket.Close();
    m_FullUpdate = false;
    m_SigAfterDraw();
}

// The tree takes the window's size, however that changed; otherwise only what waits is laid out.
void CBaseControlImp::LayOutForPaint()
{
    rectangle<int> rect = GetRealDrawRect();
    rect.Normalize();
    if (!m_Root)
    {
        ForceRearrange();
        return;
    }
    rectangle<int> const bounds = m_Root->GetBounds();
    if (rect.left == 0 && rect.top == 0 && rect.right == bounds.right && rect.bottom == bounds.bottom)
        ForceRearrange();
    else
        DoRearrange(true);
}

// The elements that wait, or everything.
void CBaseControlImp::PaintTree(IPainter* painter)
{
    if (m_FullUpdate || m_Updates.GetCount() == 0)
    {
        CVisualElement::s_DrawnWithParent = true;
        if (m_Root)
            m_Root->OnDraw(painter);
        return;
    }
    m_Updates.Reduce();
    m_Updates.DropHidden();
    CElementList::CWalk const walk(m_Updates);
    DrawElements(&m_Updates, painter, {});
}

// Wipes the drag item that the last paint drew.
void CBaseControlImp::PaintDragBackground(IPainter* painter)
{
    bool const ended = (m_MouseFlags & mfPutBackground) != 0;
    bool const wanted = m_DragInfo->m_UseBackground;  // by the drag that is on, which may not be the one that has ended
    if (!wanted && !(ended && m_DragBackground))
        return;
    rectangle<int> const area = FindWindow()->GetRect();
    size<int> const extent{area.Width(), area.Height()};
    bool const fits = m_DragBackground && m_DragBackground->GetSize() == extent;  // else everything is painted anew
    bool const started = (m_MouseFlags & mfMakeBackground) != 0;
    // A new drag may have started before the item of the last one was wiped.
    if (fits && (ended || !started))
        painter->DrawRasterPicture(m_DragBackground.get(), 0, 0, area.right, area.bottom, IPainter::roCopy);
    if (ended)
        m_DragBackground.reset();
    if (m_DraggedElement && wanted && (started || !fits))
        m_DragBackground = GetCurrentSystem()->CreateRasterPicture(extent);
}

// In the dragged element's own pixels.
void CBaseControlImp::PaintDragItem(IPainter* painter)
{
    CVisualElement* const dragged = m_DraggedElement;
    rectangle<int> bounds = dragged->GetBounds();
    IPainter::CoordInfo info;
    info.m_DeviceExtent = {bounds.right, bounds.bottom};
    info.m_LogicalExtent = {static_cast<double>(bounds.right), static_cast<double>(bounds.bottom)};
    dragged->ElementToControl(&bounds);
    info.m_DeviceOrigin = {bounds.left, bounds.top};
    painter->SetCoordSystem(IPainter::mmCustom, &info);
    std::shared_ptr<DragInfo> const drag = m_DragInfo;
    dragged->DrawDragItem(dragged, painter, *drag, (m_MouseFlags & mfAccepted) != 0, m_MouseElement);
}

void CBaseControlImp::ScrollContent(int dx, int dy, screen_rectangle<int> const& area)
{
    ISysWindow* const window = FindWindow();
    if (!window)
        return;
    window->ScrollPixels(dx, dy, area);
    if (!m_DragBackground)
        return;
    // The picture of the screen follows.
    rectangle<int> const rect = window->GetRect();
    vexel_ptr<IRasterPicture> const copy = GetCurrentSystem()->CreateRasterPicture({rect.Width(), rect.Height()});
    IPainter* const painter = copy->GetPainter();
    painter->BeginPaint(IPainter::ssPaint);
    painter->DrawRasterPicture(m_DragBackground.get(), 0, 0, rect.right, rect.bottom, IPainter::roCopy);
    rectangle<double> target{static_cast<double>(area.left), static_cast<double>(area.top),
                             static_cast<double>(area.right), static_cast<double>(area.bottom)};
    target.Offset(dx, dy);
    painter->ExtractRasterPictureEx(m_DragBackground.get(), area.left, area.top, area.right, area.bottom, target.left,
                                    target.top, target.right, target.bottom);
    painter->EndPaint();
}

}  // namespace vexel
