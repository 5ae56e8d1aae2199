// Elements that stand in sections.

#include "vexel/headers/detail/header_drawing.h"
#include "vexel/headers/detail/header_index.h"
#include "vexel/headers/header.h"
#include "vexel/platform/convert.h"

#include <algorithm>

namespace vexel
{

namespace
{

constexpr int s_LeftInset = 4;  // pixels at any scale
constexpr int s_RightInset = 5;

}  // namespace

void CHeader::SetVisualElement(IHeaderItem* item, CVisualElement* element, bool keepPlace)
{
    if (!item || !element)
        return;
    int pos = -1;
    int acrossPos = -1;
    if (keepPlace)
    {
        rectangle<int> const section = detail::Truncate(GetItemRect(item));
        pos = std::max(SubtractSaturated(element->GetPos().left, section.left), 0);
        acrossPos = std::max(SubtractSaturated(element->GetPos().top, section.top), 0);
    }
    Carry(item, element, alLeft, pos, acrossPos);
}

void CHeader::SetVisualElement(IHeaderItem* item, CVisualElement* element, Alignment alignment)
{
    if (item && element)
        Carry(item, element, alignment, -1, -1);
}

void CHeader::Carry(IHeaderItem* item, CVisualElement* element, Alignment alignment, int pos, int acrossPos)
{
    CAliveGuard const alive(this);
    CAliveGuard const elementAlive(element);
    int const number = item->GetModelIndex();
    if (auto const old = m_Elements.find(number); old != m_Elements.end() && old->second.m_Element.get() != element)
        RemoveVisualElement(number);
    std::erase_if(m_Elements, [&](auto const& entry) { return entry.second.m_Element.get() == element; });
    if (!alive || !elementAlive)
        return;
    element->SetAlignment(alNone);
    if (element->GetParent() != this)
        element->ReParent(this, false);
    if (!alive || !elementAlive || element->GetParent() != this)
        return;
    ElementAnchor& anchor = m_Elements[number];
    anchor.m_Item = item;
    anchor.m_Element.Watch(element);
    anchor.m_Alignment = alignment;
    anchor.m_Pos = pos;
    anchor.m_AcrossPos = acrossPos;
    UpdateElementPos(anchor);
    if (alive)
        OnChange(this, utElement);
}

void CHeader::RemoveVisualElement(int modelIndex)
{
    auto const found = m_Elements.find(modelIndex);
    if (found == m_Elements.end())
        return;
    CVisualElement* const element = found->second.m_Element.get();
    bool const hidden = found->second.m_Hidden;
    m_Elements.erase(found);
    CAliveGuard const alive(this);
    CAliveGuard const elementAlive(element);
    if (element && element->GetParent() == this)
        element->ReParent(nullptr, false);
    if (elementAlive && hidden)
        element->SetVisible(true);
    if (alive)
        OnChange(this, utElement);
}

CVisualElement* CHeader::GetVisualElement(int modelIndex) const
{
    auto const found = m_Elements.find(modelIndex);
    return found == m_Elements.end() ? nullptr : found->second.m_Element.get();
}

CHeader::ElementAnchor* CHeader::FindAnchor(IHeaderItem const* item)
{
    auto const found = item && !m_Elements.empty() ? m_Elements.find(item->GetModelIndex()) : m_Elements.end();
    return found != m_Elements.end() && found->second.m_Item == item ? &found->second : nullptr;
}

CHeader::ElementAnchor const* CHeader::FindAnchor(IHeaderItem const* item) const
{
    return const_cast<CHeader*>(this)->FindAnchor(item);
}

void CHeader::RecreateElements()
{
    FindItems(true);
    UpdateElementsPos();
}

// `all`: not only of those whose item has gone.
void CHeader::FindItems(bool all)
{
    for (auto& [number, anchor] : m_Elements)
    {
        if (anchor.m_Item && !all)
            continue;
        FindByModelIndex search(number);
        WalkHeaderModel(m_Model, &search, 0);
        anchor.m_Item = search.GetFound();
    }
}

// Slots that hear of a move may take elements away.
void CHeader::UpdateElementsPos()
{
    if (m_Elements.empty())
        return;
    Sync();
    CAliveGuard const alive(this);
    for (auto place = m_Elements.begin(); place != m_Elements.end();)
    {
        int const number = place->first;
        CVisualElement const* const element = place->second.m_Element.get();
        if (!element || element->GetParent() != this)
        {
            place = m_Elements.erase(place);
            continue;
        }
        UpdateElementPos(place->second);
        if (!alive)
            return;
        place = m_Elements.upper_bound(number);
    }
}

void CHeader::UpdateElementPos(ElementAnchor& anchor)
{
    CVisualElement* const element = anchor.m_Element.get();
    size<int> const extent = element->GetSize();
    rectangle<double> section = GetItemRect(anchor.m_Item);
    bool shown = !section.IsZero();
    CutRectByBounds(section);
    double x = section.left + s_LeftInset;
    if (anchor.m_Pos >= 0)
        x = section.left + anchor.m_Pos;
    else if (anchor.m_Alignment == alClient)
        x = section.left + (section.Width() - extent.width) * 0.5;
    else if (anchor.m_Alignment == alRight)
        x = section.right - s_RightInset - extent.width -
            m_Visualisation->GetExpandBtnRect(section, anchor.m_Item).Width();
    double const y = anchor.m_AcrossPos >= 0 ? section.top + anchor.m_AcrossPos
                                             : section.top + (section.Height() - extent.height) * 0.5;
    int const left = ToInt(x);
    int const top = ToInt(y);
    rectangle<int> const rect{left, top, AddSaturated(left, extent.width), AddSaturated(top, extent.height)};
    // It must neither cover its neighbours nor stick out of the header.
    shown = shown && rect.left >= std::max(section.left, 0.0) && rect.right <= section.right &&
            rect.right <= GetBounds().right;

    CAliveGuard const alive(this);
    CAliveGuard const elementAlive(element);
    if (!shown)
    {
        if (!element->IsVisible())
            return;
        anchor.m_Hidden = true;
        element->SetVisible(false);
        return;
    }
    if (anchor.m_Hidden)
    {
        anchor.m_Hidden = false;
        element->SetVisible(true);
    }
    if (alive && elementAlive)
        element->SetPos(rect, false);
}

// Place ---------------------------------------------------------------------------------------------------------------------

void CHeader::SetPos(rectangle<int> const& rect, bool force)
{
    CAliveGuard const alive(this);
    CScrollableElementEx::SetPos(rect, force);
    if (alive)
        UpdateElementsPos();
}

bool CHeader::ScrollContent(int dx, int dy)
{
    CAliveGuard const alive(this);
    bool const scrolls = CScrollableElementEx::ScrollContent(dx, dy);
    if (alive && scrolls)
        UpdateElementsPos();
    return scrolls;
}

}  // namespace vexel
