#include "vexel/core/visual_element.h"

#include "vexel/core/control.h"
#include "vexel/core/detail/element_parts.h"
#include "vexel/core/dpi.h"
#include "vexel/core/element_observer.h"
#include "vexel/platform/sys_window.h"
#include "vexel/signals/assertion.h"

#include <cstddef>
#include <utility>

namespace vexel
{

unsigned long CVisualElement::s_TreeVersion = 1;
unsigned long CVisualElement::s_DestroyCount = 0;
bool CVisualElement::s_DrawnWithParent = true;
CVisualElement::CTransit* CVisualElement::s_Transit = nullptr;

CVisualElement::CVisualElement(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : m_Alignment(alignment), m_Size(extent), m_Children(this)
{
    if (IElementObserver* const observer = GetElementObserver())
        observer->ElementMade(this);
    ApplyDPIScale(m_Size);
    try
    {
        ReParent(parent, true);
    }
    catch (...)
    {
        CTransit const transit(this, nullptr);
        CAliveLink::Forget(this, sizeof *this);
        Withdraw();  // a slot threw, and the destructor won't run
        throw;
    }
}

CVisualElement::~CVisualElement()
{
    m_Destroying = true;
    m_DestroyTop = m_Parent && m_Parent->m_Destroying ? m_Parent->m_DestroyTop : this;
    CAliveLink::Forget(this, sizeof *this);  // no chain on the stack comes back to what is left
    CTransit const transit(this, nullptr);
    m_SigDestroy(this);
    OnChange(this, utRemoved);
    if (!m_Parent)
        m_Control = nullptr;  // it has forgotten this root; what slots ask of it from here on must not get there
    m_Children.Clear();
    Withdraw();
}

// The last steps of an element's life: nobody knows it afterwards.
void CVisualElement::Withdraw() noexcept
{
    if (IElementObserver* const observer = GetElementObserver())
        observer->ElementGone(this);
    m_Destroying = true;
    if (m_Parent)
    {
        m_Parent->m_Children.RemoveItem(this);
        LeaveParent();
    }
    if (m_IsKeyDelegate)
        ForgetKeyDelegates(nullptr);
    if (m_KeyDelegate)
        SetKeyDelegate(nullptr);
    DropFont();
    ++s_TreeVersion;
    ++s_DestroyCount;
}

// Tree --------------------------------------------------------------------------------------------------------------------

void CVisualElement::ReParent(CVisualElement* parent, bool rearrange)
{
    if (parent == m_Parent)
        return;
    if (parent && (parent == this || (m_Children.GetCount() > 0 && IsAncestor(parent, this))))
    {
        plinth::ReportAssertion("!IsAncestor(parent, this)", "core/visual_element", __LINE__,
                                "void vexel::CVisualElement::ReParent(CVisualElement *, bool)");
        return;
    }

    CAliveGuard const alive(this);
    CTransit const transit(this, &alive);
    CAlivePtr<CVisualElement> const target(parent);
    CAlivePtr<CVisualElement> const oldParent(m_Parent);
    if (m_Parent)
    {
        if (rearrange && m_Visible && m_Alignment != alNone)
        {
            OnRearrange(this);
            if (!alive || m_Parent != oldParent.get())
                return;
        }
    }
    if (m_Parent)  // it may have died, and this element not with it
    {
        if (target)
            target->m_Children.MakeRoom();  // if there is no memory, the element stays where it is
        m_Parent->m_Children.RemoveItem(this);
        if (m_Parent->m_KeyDelegate == this)
            m_Parent->SetKeyDelegate(nullptr);
        m_Parent = nullptr;
        ++s_TreeVersion;
    }

    if (target)
    {
        target->m_Children.Append(this);
        m_Parent = target.get();
        ++s_TreeVersion;
        ChangeControl(m_Parent->m_Control);
        if (!alive || !target || m_Parent != target.get())
            return;
        if (!HasSameFont(*m_Parent))
        {
            ShareFont(*m_Parent);
            AttributeChanged();
            if (!alive || !target || m_Parent != target.get())
                return;
        }
        target->AddNewChild(this);
        if (!alive || !target || m_Parent != target.get())
            return;
        if (rearrange && m_Visible && m_Alignment != alNone)
        {
            OnRearrange(this);
            if (!alive)
                return;
        }
    }
    else
    {
        ChangeControl(nullptr);
        if (!alive)
            return;
    }
    ChangeParent(oldParent.get());
}

// The parent's list has let go of this element already.
void CVisualElement::LeaveParent()
{
    CAliveGuard const alive(this);
    CTransit const transit(this, &alive);
    CAlivePtr<CVisualElement> const oldParent(m_Parent);
    if (m_Parent && m_Parent->m_KeyDelegate == this)
        m_Parent->SetKeyDelegate(nullptr);
    m_Parent = nullptr;
    ++s_TreeVersion;
    ChangeControl(nullptr);
    if (alive)
        ChangeParent(oldParent.get());
}

void CVisualElement::SetControl(IControl* control)
{
    if (control == m_Control)
        return;
    CAliveGuard const alive(this);
    CAlivePtr<IControl> const fresh(control);
    IControl* const old = m_Control;
    CVisualElement const* const parent = m_Parent;
    ProcessSetControl(control);
    if (!alive || m_Control != old || m_Parent != parent)
        return;
    if (old)
    {
        // Told also if an ancestor swallows the change, or if the element goes straight to another control.
        bool const told = !control && RunChangeChain(this, utRemoved) == this;
        if (!alive || m_Control != old || m_Parent != parent)
            return;
        if (!told)
            old->UpdateElement(this, utRemoved);
        if (!alive || m_Control != old || m_Parent != parent)
            return;
    }
    if (control && !fresh)
        return;
    m_Control = control;
    for (int i = 0; i < m_Children.GetCount(); ++i)
    {
        m_Children.GetItem(i)->SetControl(control);
        if (!alive || m_Control != control)
            return;
    }
    if (control)
    {
        AttributeChanged();
        if (alive && m_Control == control)
            AfterSetControl();
    }
}

// The control lets go of this root.
void CVisualElement::LeaveControl()
{
    CAliveGuard const alive(this);
    CTransit const transit(this, &alive);
    ChangeControl(nullptr);
}

// As SetControl; where a slot throws on the way, nothing below still points to the control that is being left.
void CVisualElement::ChangeControl(IControl* control)
{
    CAliveGuard const alive(this);
    CAlivePtr<IControl> const old(m_Control);
    try
    {
        SetControl(control);
    }
    catch (...)
    {
        if (alive && old && old.get() != control)
            ForsakeControl(*old.get());
        throw;
    }
}

void CVisualElement::ForsakeControl(IControl& old)
{
    if (m_Control == &old)
    {
        old.UpdateElement(this, utRemoved);
        m_Control = nullptr;
    }
    for (CVisualElement* const child : m_Children)
        child->ForsakeControl(old);
}

// The control has died while slots ran: nothing below this element may point to it.
void CVisualElement::DropControl(IControl const* gone)
{
    if (m_Control == gone)
        m_Control = nullptr;
    for (CVisualElement* const child : m_Children)
        child->DropControl(gone);
}

void CVisualElement::ControlGone(IControl const* gone)
{
    for (CTransit const* transit = s_Transit; transit; transit = transit->m_Outer)
        if (!transit->m_Alive || transit->m_Alive->IsAlive())
            transit->m_Top->DropControl(gone);
}

bool CVisualElement::IsChildrenAvailable(int count) const
{
    return count < 1 ? m_Children.GetCount() > 0 : m_Children.GetCount() == count;
}

CVisualElement* CVisualElement::FindChildAt(int x, int y) const
{
    constexpr std::ptrdiff_t ahead = 8;  // siblings lie far apart in memory: have them fetched in time
    CVisualElement* const* const end = m_Children.end();
    for (CVisualElement* const* child = m_Children.begin(); child != end; ++child)
    {
        if (end - child > ahead)
            __builtin_prefetch(&child[ahead]->m_Pos);
        if ((*child)->m_Visible && (*child)->m_Pos.Contains(x, y))
            return *child;
    }
    return nullptr;
}

CVisualElement* CVisualElement::FindVisualElement(int x, int y) const
{
    CVisualElement* found = nullptr;
    for (CVisualElement* child = FindChildAt(x, y); child; child = child->FindChildAt(x, y))
    {
        found = child;
        x = SubtractSaturated(x, child->m_Pos.left);
        y = SubtractSaturated(y, child->m_Pos.top);
    }
    return found;
}

CVisualElement* CVisualElement::FindVisualElement(unsigned long const& id, bool visibleOnly) const
{
    if (m_Id == id && (!visibleOnly || IsDisplayable()))
        return const_cast<CVisualElement*>(this);
    for (CVisualElement const* const child : m_Children)
        if (CVisualElement* const found = child->FindVisualElement(id, visibleOnly))
            return found;
    return nullptr;
}

// State -------------------------------------------------------------------------------------------------------------------

bool CVisualElement::IsDisplayable() const
{
    for (CVisualElement const* element = this; element; element = element->m_Parent)
        if (!element->m_Visible)
            return false;
    return true;
}

void CVisualElement::SetVisible(bool visible)
{
    if (visible == m_Visible)
        return;
    CAliveGuard const alive(this);
    m_Visible = visible;
    m_SigVisible(this, visible);
    if (!alive)
        return;
    ProcessSetVisible(visible);
    if (!alive)
        return;
    SetParentVisible(visible);
    if (alive && m_Alignment != alNone)
        OnRearrange(this);
}

void CVisualElement::SetParentVisible(bool visible)
{
    CAliveGuard const alive(this);
    for (int i = 0; i < m_Children.GetCount(); ++i)
    {
        m_Children.GetItem(i)->SetParentVisible(visible);
        if (!alive)
            return;
    }
    ProcessSetParentVisible(visible);
}

void CVisualElement::SetEnabled(bool enabled)
{
    if (enabled == m_Enabled)
        return;
    m_Enabled = enabled;
    AttributeChanged();
}

void CVisualElement::SetCursor(int cursor)
{
    if (cursor == m_Cursor)
        return;
    m_Cursor = cursor;
    if (m_Control && m_Control->GetMouseElement() == this)
        if (ISysWindow* const window = m_Control->GetWindow())
            window->SetCursor(cursor);
}

void CVisualElement::SetHelpId(std::string const& id)
{
    if (m_Texts || !id.empty())
        GetTexts().m_HelpId = id;
}

void CVisualElement::SetTooltip(std::string const& text)
{
    if (m_Texts || !text.empty())
        GetTexts().m_Tooltip = text;
}

std::string const& CVisualElement::GetHelpId() const
{
    return m_Texts ? m_Texts->m_HelpId : detail::NoText();
}

std::string const& CVisualElement::GetTooltip() const
{
    return m_Texts ? m_Texts->m_Tooltip : detail::NoText();
}

CVisualElement::STexts& CVisualElement::GetTexts()
{
    if (!m_Texts)
        m_Texts = std::make_unique<STexts>();
    return *m_Texts;
}

// ---------------------------------------------------------------------------------------------------------------------

CContent::~CContent() = default;

bool CanHaveFocus(CVisualElement* element)
{
    return element && element->GetCanHaveFocus() && element->IsDisplayable() && element->IsEnabled() &&
           element->GetControl();
}

bool IsAncestor(CVisualElement const* element, CVisualElement const* ancestor)
{
    if (!ancestor)
        return false;
    for (; element; element = element->GetParent())
        if (element == ancestor)
            return true;
    return false;
}

}  // namespace vexel
