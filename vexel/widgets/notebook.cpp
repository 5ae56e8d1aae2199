#include "vexel/widgets/notebook.h"

namespace vexel
{

CNotebook::CNotebook(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{}

CNotebook::~CNotebook() = default;

CVisualElement* CNotebook::GetPage(int index) const
{
    IChildren* const pages = GetChildren();
    return index >= 0 && index < pages->GetCount() ? pages->GetItem(index) : nullptr;
}

int CNotebook::GetPageIndex(CVisualElement* page) const
{
    return GetChildren()->GetIndex(page);
}

// The number alone says nothing once the page that it meant has moved, was deleted or taken away.
bool CNotebook::IsPresent(int index) const
{
    return IsShown(m_Shown.get()) ? GetPage(index) == m_Shown.get() : index == m_PageIndex;
}

void CNotebook::SetPageIndex(int index)
{
    CVisualElement* const page = GetPage(index);
    bool const current = m_PageIndex >= 0 && IsShown(m_Shown.get());
    if (!page || (index == m_PageIndex && current))
        return;

    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const next(page);
    CAlivePtr<CVisualElement> const present(GetPage(m_PageIndex));
    CAlivePtr<CVisualElement> const shown(m_Shown.get());
    if (present && present.get() != page)
        present->SetVisible(false);
    // Pages removed before it have moved it down from its number.
    if (alive && shown && shown.get() != page && IsShown(shown.get()))
        shown->SetVisible(false);
    if (!alive || !next || next->GetParent() != this)
        return;

    m_Shown.Watch(page);
    next->SetVisible(true);
    if (alive && next)
        next->SetAlignment(alClient);
    if (!alive)
        return;
    m_PageIndex = index;
    if (next)
        next->SetPos(GetBounds(), true);
    if (alive)
        OnChange(this, utElement);
}

CVisualElement* CNotebook::RemovePage(int index)
{
    CVisualElement* const page = GetPage(index);
    if (!page)
        return nullptr;
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const removed(page);
    bool const shown = IsPresent(index);
    page->ReParent(nullptr, true);
    if (!alive || !shown)
        return removed.get();

    int const last = GetChildren()->GetCount() - 1;
    m_PageIndex = -1;
    SetPageIndex(index > last ? last : index);
    return removed.get();
}

CVisualElement* CNotebook::ReplacePage(int index, CVisualElement* page)
{
    CVisualElement* const old = GetPage(index);
    if (!old || !page || page == old || IsAncestor(this, page))
        return nullptr;
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const former(old);
    CAlivePtr<CVisualElement> const next(page);
    bool const shown = IsPresent(index);

    old->SetVisible(false);
    if (former && alive)
        former->ReParent(nullptr, true);
    if (alive && next)
        next->ReParent(this, true);
    if (!alive || !next || next->GetParent() != this)
        return former.get();

    int const landed = GetPageIndex(page);
    if (landed > index)
        GetChildren()->MoveItem(landed, index);
    if (shown)
    {
        m_PageIndex = -1;
        SetPageIndex(GetPageIndex(page));
    }
    return former.get();
}

void CNotebook::SetPos(rectangle<int> const& rect, bool force)
{
    CAliveGuard const alive(this);
    CVisualElement::SetPos(rect, force);
    // Also a page that somebody docked otherwise meanwhile, as constructors of subclasses do, fills the notebook.
    if (alive && m_Shown && IsShown(m_Shown.get()))
        m_Shown->SetPos(GetBounds(), false);
}

bool CNotebook::IsTransparent() const
{
    return !m_Shown || !IsShown(m_Shown.get()) || !m_Shown->IsVisible();
}

void CNotebook::AddNewChild(CVisualElement* child)
{
    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const page(child);
    page->SetPos(GetBounds(), true);
    if (page)
        page->SetVisible(false);
    if (page)
        page->SetAlignment(alClient);
    if (alive && GetChildren()->GetCount() == 1)
        SetPageIndex(0);
}

void CNotebook::ProcessRearrange(CVisualElement** element)
{
    if (*element && (*element)->GetParent() == this && !(*element)->IsVisible())
        *element = nullptr;
}

}  // namespace vexel
