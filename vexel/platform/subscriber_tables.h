#pragma once

#include "vexel/signals/event_sender.h"

#include <deque>
#include <typeinfo>
#include <vector>

namespace vexelbase
{

/// Senders in the order of their coming.
class CEventSenderList : public IEventSenderList
{
public:
    IEventSender* First() override { return m_Senders.empty() ? nullptr : m_Senders.front(); }
    void Add(IEventSender* sender) override { m_Senders.push_back(sender); }
    void Remove(IEventSender* sender) override { std::erase(m_Senders, sender); }
    bool Contains(IEventSender* sender) override;

private:
    std::vector<IEventSender*> m_Senders;
};

class CSubscribersList : public ISubscribersList
{
public:
    void AddToFront(INotify* subscriber) override { m_Subscribers.insert(m_Subscribers.begin(), subscriber); }
    void Add(INotify* subscriber) override { m_Subscribers.push_back(subscriber); }
    void Remove(INotify* subscriber) override { std::erase(m_Subscribers, subscriber); }
    bool Contains(INotify* subscriber) override;
    int GetCount() override { return static_cast<int>(m_Subscribers.size()); }
    INotify* GetItem(int index) override;

    void Clear() { m_Subscribers.clear(); }

private:
    std::vector<INotify*> m_Subscribers;
};

/// Lists in the order in which their types became supported.
class CSubscribersTable : public ISubscribersTable
{
public:
    void SetSupportedEvent(std::type_info const& type) override;
    ISubscribersList* GetList(std::type_info const& type) override { return Find(type); }
    ISubscribersList* FindFirstList(INotify* subscriber, bool remember) override;
    void FindNextList(ISubscribersList** list) override;
    void Clear() override;
    bool IsEmpty(std::type_info const& type) override { return GetCount(type) == 0; }
    int GetCount(std::type_info const& type) override;
    INotify* GetAny() override;

private:
    struct SRow
    {
        explicit SRow(std::type_info const& type) : m_Type(type) {}

        std::type_info const& m_Type;
        CSubscribersList m_List;
    };

    CSubscribersList* Find(std::type_info const& type);

    std::deque<SRow> m_Rows;  // its rows stay where they are
    INotify* m_Searched = nullptr;
};

}  // namespace vexelbase
