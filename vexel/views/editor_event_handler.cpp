#include "vexel/views/editor_event_handler.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/system.h"
#include "vexel/views/viewer_base.h"

#include <algorithm>

namespace vexel
{

namespace
{

double const g_LeastExtent = 18.0;  // unscaled pixels
int const g_Parked = -10000;

}  // namespace

CEditorEventHandler::INotify::~INotify() = default;

void CEditorEventHandler::SetEditor(CVisualElement* editor)
{
    if (editor == m_Editor.get())
        return;
    m_Editor.Watch(editor);
    UpdateEditor();
}

void CEditorEventHandler::UpdateEditor()
{
    if (!m_Editor)
        return;
    m_EditorPos = m_Editor->GetPos();
    m_EditorVisible = m_Editor->IsVisible();
}

void CEditorEventHandler::ProcessResize(rectangle<int> const&, rectangle<int> const& now, bool)
{
    m_ViewRect = now;
}

void CEditorEventHandler::ProcessScroll(int dx, int dy)
{
    if (!m_Editor)
        return;
    m_EditorPos = {AddSaturated(m_EditorPos.left, dx), AddSaturated(m_EditorPos.top, dy),
                   AddSaturated(m_EditorPos.right, dx), AddSaturated(m_EditorPos.bottom, dy)};
    rectangle<int> const part = GetVisiblePart();
    int const least = ToDevicePixels(g_LeastExtent);
    bool const enough = !part.IsEmpty() && SubtractSaturated(part.right, part.left) >= least &&
                        SubtractSaturated(part.bottom, part.top) >= least;
    if (!enough)
    {
        Hide();
        return;
    }
    CAlivePtr<CVisualElement const> const editor(m_Editor.get());
    auto* const shown = m_Editor.get();
    bool const visible = m_EditorVisible;
    shown->SetPos(part, false);
    if (editor)
        shown->SetVisible(visible);
}

rectangle<int> CEditorEventHandler::GetVisiblePart() const
{
    // A handler that joined a viewer after its last resize hasn't heard of the view.
    rectangle<int> const view =
        m_ViewRect == rectangle<int>() && GetChainOwner() ? GetChainOwner()->GetBounds() : m_ViewRect;
    return {std::max(m_EditorPos.left, view.left), std::max(m_EditorPos.top, view.top),
            std::min(m_EditorPos.right, view.right), std::min(m_EditorPos.bottom, view.bottom)};
}

void CEditorEventHandler::Hide()
{
    if (!m_Editor->IsVisible())
        return;
    m_EditorVisible = true;
    CAlivePtr<CEventHandler> const alive(this);
    m_Editor->SetVisible(false);
    if (alive && m_Editor)
        m_Editor->SetPos({g_Parked, g_Parked, g_Parked, g_Parked}, false);
    if (alive && m_Notify)
        m_Notify->EditorHidden();
}

}  // namespace vexel
