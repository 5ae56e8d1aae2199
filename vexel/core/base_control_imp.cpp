#include "vexel/core/base_control_imp.h"

#include "vexel/core/base_control.h"
#include "vexel/core/detail/control_scopes.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/sys_window.h"

#include <utility>

namespace vexel
{

IControl::~IControl() = default;

CBaseControlImp::CBaseControlImp(CBaseControl* host) : m_Host(host), m_DragInfo(std::make_shared<DragInfo>()) {}

CBaseControlImp::~CBaseControlImp()
{
    CAliveLink::Forget(static_cast<IControl*>(this), sizeof *this);
    CVisualElement::ControlGone(this);
    ReleaseRoot();
}

// The window -----------------------------------------------------------------------------------------------------------------

ISysWindow* CBaseControlImp::FindWindow() const
{
    return m_Host ? m_Host->GetWindow() : nullptr;
}

IImageList* CBaseControlImp::GetImageList()
{
    return m_Host ? m_Host->GetImageList() : nullptr;
}

void CBaseControlImp::SetImageList(IImageList* list)
{
    if (m_Host)
        m_Host->SetImageList(list);
}

void CBaseControlImp::SetWindowCursor(int cursor) const
{
    if (ISysWindow* const window = FindWindow())
        window->SetCursor(cursor);
}

void CBaseControlImp::InvalidateWindow()
{
    ISysWindow* const window = FindWindow();
    if (!window)
        return;
    rectangle<int> const rect = window->GetRect();
    window->InvalidateRect(rect.left, rect.top, rect.right, rect.bottom);
}

bool CBaseControlImp::IsForeign(CVisualElement const* element) const
{
    return element && element->GetControl() != this;
}

void CBaseControlImp::SetCapture(CVisualElement* element)
{
    if (IsForeign(element))
        return;
    m_Capture = element;
    ISysWindow* const window = FindWindow();
    if (!window)
        return;
    if (element)
        window->CaptureMouse();
    else
        window->ReleaseMouse();
}

void CBaseControlImp::ActivateHelp(std::string const& id) const
{
    if (m_Host && !id.empty())
        m_Host->m_SigHelp(m_Host, id);
}

// The root -------------------------------------------------------------------------------------------------------------------

void CBaseControlImp::SetContent(CVisualElement* root)
{
    if (root == m_Root)
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    CAlivePtr<CVisualElement> const fresh(root);
    if (root)
    {
        root->ReParent(nullptr, true);
        if (!alive || !fresh)
            return;
        if (m_Root && !root->HasSameFont(*m_Root))
        {
            root->ShareFont(*m_Root);
            root->AttributeChanged();
            if (!alive)
                return;
        }
    }
    while (m_Root && m_Root != root)  // a slot may bring another one while the old one goes
    {
        ReleaseRoot();
        if (!alive || (root && !fresh))
            return;
    }
    if (!fresh || m_Root == root)
        return;
    if (auto* const other = dynamic_cast<CBaseControlImp*>(root->GetControl()); other && other->m_Root == root)
        other->GiveUpRoot();
    m_Root = root;
    root->m_SigDestroy.connect(this, &CBaseControlImp::HandleRootDestroy);
    root->SetControl(this);
}

// Deletes the root if it is dynamic; another one, and one that is being deleted already, goes its own way.
void CBaseControlImp::ReleaseRoot()
{
    CVisualElement* const root = GiveUpRoot();
    if (!root)
        return;
    if (root->IsDynamic() && !root->m_Destroying)
        delete root;
    else if (root->GetControl() == this)
        root->LeaveControl();
}

CVisualElement* CBaseControlImp::GiveUpRoot()
{
    CVisualElement* const root = std::exchange(m_Root, nullptr);
    if (root)
        root->m_SigDestroy.disconnect(this, &CBaseControlImp::HandleRootDestroy);
    return root;
}

// The application has deleted the root.
void CBaseControlImp::HandleRootDestroy(CVisualElement* root)
{
    if (m_Root == root)
        m_Root = nullptr;
}

// Pending repaints -----------------------------------------------------------------------------------------------------------

void CBaseControlImp::UpdateElement(CVisualElement* element, UpdateType type)
{
    if (!element)
        return;
    if (type & utRemoved)
        Forget(element);  // also when the window is gone, so that nothing dangles
    if (!FindWindow())
        return;
    if (type & (utGlobal | 4))
    {
        CAlivePtr<CBaseControlImp> const alive(this);
        CAliveGuard const target(element);
        if (m_Root)
            m_Root->OnGlobalUpdate();
        if (!alive || (!target && (type & utElement)))
            return;
        if (target && (type & utRemoved))
            Forget(element);  // it may have asked again meanwhile
    }
    if (!m_FullUpdate && (type & utElement) && !(type & utRemoved))
    {
        int const count = m_Updates.GetCount();
        if (element->m_Control == this)
            m_Updates.AddElement(element);
        if (m_Updates.GetCount() == count)
            return;  // asked for already, or not displayable
    }
    else if (!(type & utRemoved))
    {
        m_Updates.Clear(0);
        m_FullUpdate = true;
    }
    InvalidateWindow();
}

std::vector<CVisualElement*> CBaseControlImp::ListItems(CElementList& list)
{
    std::vector<CVisualElement*> items(static_cast<std::size_t>(list.GetCount()));
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i] = list.GetItem(static_cast<int>(i));
    return items;
}

// No list and none of the remembered pointers has the element afterwards.
void CBaseControlImp::Forget(CVisualElement* element)
{
    m_Updates.RemoveElement(element);
    m_Rearranges.RemoveElement(element);
    for (SPass* pass = m_Passes; pass; pass = pass->m_Outer)
        pass->m_Entries.RemoveElement(element);

    auto const clear = [element](CVisualElement*& pointer) {
        if (pointer == element)
            pointer = nullptr;
    };
    clear(m_FocusedElement);
    clear(m_FocussingElement);
    clear(m_MouseElement);
    clear(m_PressedElement);
    clear(m_DragTarget);
    clear(m_TabHandler);
    bool const dragged = m_DraggedElement == element;
    bool const captured = m_Capture == element;
    if (dragged)
    {
        m_DraggedElement = nullptr;
        m_DragTarget = nullptr;
        m_MouseFlags = (m_MouseFlags & ~unsigned{mfAccepted}) | mfPutBackground;
        m_FullUpdate = true;  // so that the next paint wipes the item
    }
    if (captured)
        m_Capture = nullptr;
    if ((dragged || captured) && !m_DraggedElement && !m_Capture)
        if (ISysWindow* const window = FindWindow())
            window->ReleaseMouse();
    if (element->m_IsKeyDelegate)
        element->ForgetKeyDelegates(this);
    if (m_Root == element && element->GetParent())
        GiveUpRoot();  // it has moved into another tree
}

}  // namespace vexel
