#include "vexel/platform/subscriber_tables.h"

#include <algorithm>

namespace vexelbase
{

bool CEventSenderList::Contains(IEventSender* sender)
{
    return std::find(m_Senders.begin(), m_Senders.end(), sender) != m_Senders.end();
}

bool CSubscribersList::Contains(INotify* subscriber)
{
    return std::find(m_Subscribers.begin(), m_Subscribers.end(), subscriber) != m_Subscribers.end();
}

INotify* CSubscribersList::GetItem(int index)
{
    // Past the end: somebody has left since the count was read.
    if (index < 0 || index >= GetCount())
        throw cancel_processing();
    return m_Subscribers[static_cast<std::size_t>(index)];
}

CSubscribersList* CSubscribersTable::Find(std::type_info const& type)
{
    auto const row = std::find_if(m_Rows.begin(), m_Rows.end(), [&](SRow const& r) { return r.m_Type == type; });
    return row == m_Rows.end() ? nullptr : &row->m_List;
}

void CSubscribersTable::SetSupportedEvent(std::type_info const& type)
{
    if (!Find(type))
        m_Rows.emplace_back(type);
}

ISubscribersList* CSubscribersTable::FindFirstList(INotify* subscriber, bool remember)
{
    if (remember)
        m_Searched = subscriber;
    for (SRow& row : m_Rows)
    {
        if (row.m_List.Contains(subscriber))
            return &row.m_List;
    }
    return nullptr;
}

void CSubscribersTable::FindNextList(ISubscribersList** list)
{
    auto row = std::find_if(m_Rows.begin(), m_Rows.end(), [&](SRow const& r) { return &r.m_List == *list; });
    if (row != m_Rows.end())
        row = std::find_if(row + 1, m_Rows.end(), [&](SRow& r) { return r.m_List.Contains(m_Searched); });
    *list = row == m_Rows.end() ? nullptr : &row->m_List;
}

void CSubscribersTable::Clear()
{
    for (SRow& row : m_Rows)
        row.m_List.Clear();
}

int CSubscribersTable::GetCount(std::type_info const& type)
{
    CSubscribersList* const list = Find(type);
    return list ? list->GetCount() : 0;
}

INotify* CSubscribersTable::GetAny()
{
    for (SRow& row : m_Rows)
    {
        if (row.m_List.GetCount() != 0)
            return row.m_List.GetItem(0);
    }
    return nullptr;
}

IEventSenderList* CreateDefSenderList()
{
    return new CEventSenderList;
}

ISubscribersTable* CreateDefSubscribersTable()
{
    return new CSubscribersTable;
}

}  // namespace vexelbase
