#include "vexel/core/element_list.h"

#include "vexel/core/alive_guard.h"
#include "vexel/core/visual_element.h"
#include "vexel/signals/assertion.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace vexel
{

IVisualElements::~IVisualElements() = default;

// CChildren -------------------------------------------------------------------------------------------------------------

CChildren::~CChildren()
{
    CChildren::Clear();
    delete[] m_Items;
}

void CChildren::MoveItem(int from, int to)
{
    if (from < 0 || from >= m_Count || to < 0)
        return;
    CVisualElement** const items = m_Items + m_Head;
    int const target = std::min(to, m_Count - 1);
    if (from < target)
        std::rotate(items + from, items + from + 1, items + target + 1);
    else
        std::rotate(items + target, items + from, items + from + 1);
}

int CChildren::GetIndex(CVisualElement* element) const
{
    return Find(element);
}

void CChildren::Clear()
{
    if (m_Count > 0 && m_Owner && !m_Owner->m_Destroying)
    {
        CAlivePtr<CChildren> const alive(this);
        while (alive && m_Count > 0)
            TakeFirst();
        return;
    }
    while (m_Count > 0)  // the owner's destructor waits for this: no guard for each level of a deep tree
        TakeFirst();
}

void CChildren::TakeFirst()
{
    CVisualElement* const child = m_Items[m_Head];
    if (!child->IsDynamic() || child->m_Destroying)
    {
        RemoveAt(0);
        if (child->m_Parent == m_Owner)
            child->LeaveParent();
        return;
    }
    if (m_Loose)
        while (Find(child) >= 0)  // it doesn't know that it stands here
            RemoveAt(Find(child));
    delete child;  // takes itself out of this list
}

void CChildren::AddItem(CVisualElement* element)
{
    if (!element)
        return;
    if (m_Owner && element->m_Parent == m_Owner)
    {
        plinth::ReportAssertion("element->GetParent() != owner", "core/element_list", __LINE__,
                                "void vexel::CChildren::AddItem(CVisualElement *)");
        return;
    }
    m_Loose = true;
    Append(element);
}

void CChildren::RemoveItem(CVisualElement* element)
{
    int const index = Find(element);
    if (index >= 0)
        RemoveAt(index);
}

// After it an Append can't fail.
void CChildren::MakeRoom()
{
    if (m_Head + m_Count < m_Capacity)
        return;
    if (m_Head > m_Capacity / 2)
    {
        std::memmove(m_Items, m_Items + m_Head, static_cast<std::size_t>(m_Count) * sizeof(void*));
    }
    else
    {
        int const capacity = m_Capacity > std::numeric_limits<int>::max() / 2 ? std::numeric_limits<int>::max()
                                                                              : std::max(4, m_Capacity * 2);
        CVisualElement** const items = new CVisualElement*[static_cast<std::size_t>(capacity)];
        if (m_Count > 0)
            std::memcpy(items, m_Items + m_Head, static_cast<std::size_t>(m_Count) * sizeof(void*));
        delete[] m_Items;
        m_Items = items;
        m_Capacity = capacity;
    }
    m_Head = 0;
}

void CChildren::Append(CVisualElement* element)
{
    MakeRoom();
    m_Items[m_Head + m_Count++] = element;
}

// Moves the shorter side, so that emptying the list from either end takes linear time.
void CChildren::RemoveAt(int index)
{
    CVisualElement** const items = m_Items + m_Head;
    if (index < m_Count - 1 - index)
    {
        std::memmove(items + 1, items, static_cast<std::size_t>(index) * sizeof(void*));
        ++m_Head;
    }
    else
    {
        std::memmove(items + index, items + index + 1, static_cast<std::size_t>(m_Count - 1 - index) * sizeof(void*));
    }
    if (--m_Count == 0)
        m_Head = 0;
}

// The first match. Where no item can stand twice it may be looked for from both ends at once.
int CChildren::Find(CVisualElement const* element) const
{
    CVisualElement* const* const items = m_Items + m_Head;
    for (int front = 0, back = m_Count - 1; front <= back; ++front)
    {
        if (items[front] == element)
            return front;
        if (m_Loose)
            continue;
        if (items[back] == element)
            return back;
        --back;
    }
    return -1;
}

// CElementList ----------------------------------------------------------------------------------------------------------

namespace
{

// Up to so many entries are looked through one by one.
constexpr std::size_t s_PlainCount = 8;

char s_HoleMark;
CVisualElement* const s_Hole = reinterpret_cast<CVisualElement*>(&s_HoleMark);  // a removed entry; never followed

std::size_t HashPointer(CVisualElement const* element)
{
    auto const value = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(element));
    return static_cast<std::size_t>(value * 0x9E3779B97F4A7C15u >> 32);
}

}  // namespace

CVisualElement* CElementList::GetItem(int index)
{
    Compact();
    return index < 0 || static_cast<std::size_t>(index) >= m_Items.size() ? nullptr
                                                                          : m_Items[static_cast<std::size_t>(index)];
}

void CElementList::AddElement(CVisualElement* element)
{
    if (!element || Contains(element) || !element->IsDisplayable())
        return;
    m_Items.push_back(element);
    Note(element, static_cast<int>(m_Items.size()) - 1);
}

void CElementList::RemoveElement(CVisualElement const* element)
{
    if (m_Items.empty() || !element)
        return;
    int const found = Find(element);
    if (found < 0)
        return;
    auto const index = static_cast<std::size_t>(found);
    if (m_Walks > 0)
    {
        m_Items[index] = nullptr;
        return;
    }
    m_Items[index] = s_Hole;
    ++m_Holes;
    while (!m_Items.empty() && m_Items.back() == s_Hole)
    {
        m_Items.pop_back();
        --m_Holes;
    }
    if (m_Items.empty())
        DropTable();
    else if (static_cast<std::size_t>(m_Holes) > 32 + m_Items.size() / 2)
        Compact();
}

bool CElementList::Contains(CVisualElement const* element) const
{
    return element && Find(element) >= 0;
}

void CElementList::Reduce()
{
    Compact();
    CVisualElement const* lastParent = nullptr;
    bool lastAnswer = false;
    for (CVisualElement*& entry : m_Items)
    {
        if (!entry)
            continue;
        CVisualElement const* const parent = entry->GetParent();
        if (parent != lastParent)  // siblings share the answer
        {
            lastAnswer = false;
            for (CVisualElement const* ancestor = parent; ancestor && !lastAnswer; ancestor = ancestor->GetParent())
                lastAnswer = Find(ancestor) >= 0;
            lastParent = parent;
        }
        if (parent && lastAnswer)
            entry = nullptr;
    }
}

void CElementList::DropHidden()
{
    Compact();
    for (CVisualElement*& entry : m_Items)
        if (entry && !entry->IsDisplayable())
            entry = nullptr;
}

void CElementList::Clear(int keep)
{
    if (keep < 1)
    {
        m_Items.clear();
        m_Holes = 0;
        DropTable();
        return;
    }
    Compact();
    if (static_cast<std::size_t>(keep) < m_Items.size())
        m_Items.resize(static_cast<std::size_t>(keep));
}

void CElementList::TakeFrom(CElementList& other)
{
    std::swap(m_Items, other.m_Items);
    std::swap(m_Holes, other.m_Holes);
    std::swap(m_Table, other.m_Table);
    std::swap(m_Indexed, other.m_Indexed);
    std::swap(m_Epoch, other.m_Epoch);
    std::swap(m_UsedPlaces, other.m_UsedPlaces);
    other.Clear(0);
}

bool CElementList::IsEqual(CElementList& other)
{
    Compact();
    other.Compact();
    return m_Items == other.m_Items;
}

int CElementList::Find(CVisualElement const* element) const
{
    if (m_Hinted)
    {
        int const index = element->m_ListIndex;
        return static_cast<std::size_t>(index) < m_Items.size() && m_Items[static_cast<std::size_t>(index)] == element
                   ? index
                   : -1;
    }
    if (!m_Indexed)
    {
        auto const found = std::find(m_Items.begin(), m_Items.end(), element);
        return found == m_Items.end() ? -1 : static_cast<int>(found - m_Items.begin());
    }
    std::size_t const mask = m_Table.size() - 1;
    for (std::size_t place = HashPointer(element) & mask; m_Table[place].epoch == m_Epoch; place = (place + 1) & mask)
    {
        int const index = m_Table[place].index;  // stale where its entry has gone or changed: then it doesn't match
        if (static_cast<std::size_t>(index) < m_Items.size() && m_Items[static_cast<std::size_t>(index)] == element)
            return index;
    }
    return -1;
}

void CElementList::Note(CVisualElement* element, int index)
{
    if (m_Hinted)
    {
        element->m_ListIndex = index;
        return;
    }
    if (!m_Indexed || (m_UsedPlaces + 1) * 2 > m_Table.size())
    {
        if (m_Items.size() > s_PlainCount)
            BuildTable();
        return;
    }
    std::size_t const mask = m_Table.size() - 1;
    std::size_t place = HashPointer(element) & mask;
    while (m_Table[place].epoch == m_Epoch)
        place = (place + 1) & mask;
    m_Table[place] = {m_Epoch, index};
    ++m_UsedPlaces;
}

void CElementList::BuildTable()
{
    DropTable();
    std::size_t places = std::max<std::size_t>(m_Table.size(), 64);
    while (places < m_Items.size() * 4)
        places *= 2;
    if (places != m_Table.size())
    {
        m_Table.assign(places, SPlace());
        m_Epoch = 1;
    }
    m_Indexed = true;
    NoteAll();
}

void CElementList::NoteAll()
{
    for (std::size_t i = 0; i < m_Items.size(); ++i)
        if (m_Items[i] && m_Items[i] != s_Hole)
            Note(m_Items[i], static_cast<int>(i));
}

void CElementList::DropTable()
{
    m_Indexed = false;
    m_UsedPlaces = 0;
    if (++m_Epoch == 0)
    {
        std::fill(m_Table.begin(), m_Table.end(), SPlace());
        m_Epoch = 1;
    }
}

void CElementList::Compact()
{
    if (m_Holes == 0)
        return;
    m_Items.erase(std::remove(m_Items.begin(), m_Items.end(), s_Hole), m_Items.end());
    m_Holes = 0;
    DropTable();
    if (m_Hinted)
        NoteAll();
    else if (m_Items.size() > s_PlainCount)
        BuildTable();
}

}  // namespace vexel
