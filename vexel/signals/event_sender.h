#pragma once

#include "vexel/export.h"
#include "vexel/signals/event.h"

#include <typeinfo>

namespace vexelbase
{

class IEventSender;

/// Root of the notify interfaces (vexel/signals/notify.h).
class VEXEL_API INotify
{
public:
    virtual ~INotify();

    /// A sender took this object into, or dropped it from, one of its lists, with notice. A sender that dies gives the
    /// second one to everybody it still has.
    virtual void NoticeStarted(IEventSender* sender) = 0;
    virtual void NoticeStopped(IEventSender* sender) = 0;

    /// Calls `Handler` of the interface that declares it, on this object, which must have that interface: the shape in
    /// which IEventSender::FireEvent takes a handler. See Fire.
    template <auto Handler> void Handle(CEvent* event);
};

/// Sends events of several types, each to a list of subscribers. A type is named by its notify interface's type_info.
/// Takes no lock and belongs to the GUI thread. The order of the operations is binary interface.
class VEXEL_API IEventSender
{
public:
    virtual ~IEventSender();

    /// Puts `subscriber` before, or behind, all others of the type; with `notify` it gets NoticeStarted. Nothing keeps
    /// one from standing twice. False: the type is not supported, nothing happens. A notice that throws undoes it.
    virtual bool SubscribeToFront(INotify* subscriber, std::type_info const& type, bool notify) = 0;
    virtual bool Subscribe(INotify* subscriber, std::type_info const& type, bool notify) = 0;

    /// Drops `subscriber` from the list of the type; with `notify` it gets NoticeStopped, even if it wasn't there.
    /// False: the type is not supported, nothing happens.
    virtual bool Unsubscribe(INotify* subscriber, std::type_info const& type, bool notify) = 0;

    /// The same for every list that has it, each with a notice of its own. False: no list has it.
    virtual bool Unsubscribe(INotify* subscriber, bool notify) = 0;

    virtual void SetSupportedEvent(std::type_info const& type) = 0;
    virtual bool IsEventSupported(std::type_info const& type) = 0;

    /// Calls `handler` with `event` on each of the type's subscribers that stood there at the start, in the list's order.
    /// A cleared continue flag of `event` ends it if `stoppable`; the event must then outlive its handlers. A
    /// vexelbase::cancel_processing ends it silently, any other exception passes. So does the death of the sender.
    virtual void FireEvent(std::type_info const& type, void (INotify::*handler)(CEvent*), CEvent* event,
                           bool stoppable) = 0;

    virtual bool IsSubscribed(std::type_info const& type) = 0;  ///< Somebody is subscribed to the type.
    virtual int GetSubscribersCount(std::type_info const& type) = 0;
    virtual void StopEventSending(bool stop) = 0;  ///< While stopped, firings do nothing.
};

/// Fires `Handler`, such as &IMouseNotify::OnButtonDown, to the subscribers of the interface that declares it.
/// `event`: what the handler takes, or null. The event's class must be complete where this is used.
template <auto Handler, class Event> void Fire(IEventSender& sender, Event* event, bool stoppable);

/// The senders that a subscriber knows.
class VEXEL_API IEventSenderList
{
public:
    virtual ~IEventSenderList();

    virtual IEventSender* First() = 0;  ///< Any that stays the same until the next change; null when empty.
    virtual void Add(IEventSender* sender) = 0;
    virtual void Remove(IEventSender* sender) = 0;  ///< Does nothing when it isn't there.
    virtual bool Contains(IEventSender* sender) = 0;
};

/// The subscribers of one sender to one type, in order.
class VEXEL_API ISubscribersList
{
public:
    virtual ~ISubscribersList();

    virtual void AddToFront(INotify* subscriber) = 0;
    virtual void Add(INotify* subscriber) = 0;
    virtual void Remove(INotify* subscriber) = 0;  ///< Every entry of it.
    virtual bool Contains(INotify* subscriber) = 0;
    virtual int GetCount() = 0;
    virtual INotify* GetItem(int index) = 0;  ///< Throws vexelbase::cancel_processing outside 0 to the count.
};

/// All lists of one sender, one per supported type; they live as long as the table.
class VEXEL_API ISubscribersTable
{
public:
    virtual ~ISubscribersTable();

    virtual void SetSupportedEvent(std::type_info const& type) = 0;     ///< Makes the type's list, once.
    virtual ISubscribersList* GetList(std::type_info const& type) = 0;  ///< Null for an unsupported type.

    /// The first list that has `subscriber`, or null. With `remember` FindNextList goes on with the same subscriber.
    virtual ISubscribersList* FindFirstList(INotify* subscriber, bool remember) = 0;
    /// Steps from the list to the next one that has the remembered subscriber, or to null. It may meanwhile have left
    /// the present one.
    virtual void FindNextList(ISubscribersList** list) = 0;

    virtual void Clear() = 0;                              ///< Empties all lists without a notice.
    virtual bool IsEmpty(std::type_info const& type) = 0;  ///< True also for an unsupported type.
    virtual int GetCount(std::type_info const& type) = 0;  ///< 0 for an unsupported type.

    virtual INotify* GetAny() = 0;  ///< Some subscriber of some list, null when there is none.
};

VEXEL_API IEventSenderList* CreateDefSenderList();         ///< The caller owns it.
VEXEL_API ISubscribersTable* CreateDefSubscribersTable();  ///< The caller owns it.

/// The sender's operations for any interface that extends IEventSender.
template <class Sender> class CImplEventSender : public Sender
{
public:
    CImplEventSender() : m_subscribers(CreateDefSubscribersTable()) {}
    CImplEventSender(CImplEventSender const&) = delete;
    CImplEventSender& operator=(CImplEventSender const&) = delete;

    /// Gives NoticeStopped to all subscribers that remain, so that none remembers a dead sender.
    ~CImplEventSender() override;

    bool SubscribeToFront(INotify* subscriber, std::type_info const& type, bool notify) override;
    bool Subscribe(INotify* subscriber, std::type_info const& type, bool notify) override;
    bool Unsubscribe(INotify* subscriber, std::type_info const& type, bool notify) override;
    bool Unsubscribe(INotify* subscriber, bool notify) override;
    void SetSupportedEvent(std::type_info const& type) override { m_subscribers->SetSupportedEvent(type); }
    bool IsEventSupported(std::type_info const& type) override { return m_subscribers->GetList(type) != nullptr; }
    void FireEvent(std::type_info const& type, void (INotify::*handler)(CEvent*), CEvent* event,
                   bool stoppable) override;
    bool IsSubscribed(std::type_info const& type) override { return !m_subscribers->IsEmpty(type); }
    int GetSubscribersCount(std::type_info const& type) override { return m_subscribers->GetCount(type); }
    void StopEventSending(bool stop) override { m_stopped = stop; }

private:
    class CFiring;

    void GiveNoticeStarted(ISubscribersList* list, INotify* subscriber);

    ISubscribersTable* m_subscribers;
    bool m_stopped = false;
    CFiring* m_firing = nullptr;  ///< The innermost firing under way.
};

// ---------------------------------------------------------------------------------------------------------------------

/// Stands on the stack of a firing, or of notices, and learns of the sender's death.
template <class Sender> class CImplEventSender<Sender>::CFiring
{
public:
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdangling-pointer"  // the destructor takes it back, unless the sender has died
#endif
    explicit CFiring(CImplEventSender* sender) : m_Sender(sender), m_Outer(sender->m_firing)
    {
        sender->m_firing = this;
    }
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif
    ~CFiring()
    {
        if (m_Sender)
            m_Sender->m_firing = m_Outer;
    }
    CFiring(CFiring const&) = delete;
    CFiring& operator=(CFiring const&) = delete;

    bool IsSenderAlive() const
    {
        return m_Sender != nullptr;
    }

    /// Tells this firing and those around it.
    void SenderDies()
    {
        for (CFiring* firing = this; firing; firing = firing->m_Outer)
            firing->m_Sender = nullptr;
    }

private:
    CImplEventSender* m_Sender;
    CFiring* m_Outer;
};

template <class Sender> CImplEventSender<Sender>::~CImplEventSender()
{
    if (m_firing)
        m_firing->SenderDies();
    while (INotify* const subscriber = m_subscribers->GetAny())
        CImplEventSender::Unsubscribe(subscriber, true);
    delete m_subscribers;
}

template <class Sender>
bool CImplEventSender<Sender>::SubscribeToFront(INotify* subscriber, std::type_info const& type, bool notify)
{
    ISubscribersList* const list = m_subscribers->GetList(type);
    if (!list)
        return false;
    list->AddToFront(subscriber);
    if (notify)
        GiveNoticeStarted(list, subscriber);
    return true;
}

template <class Sender>
bool CImplEventSender<Sender>::Subscribe(INotify* subscriber, std::type_info const& type, bool notify)
{
    ISubscribersList* const list = m_subscribers->GetList(type);
    if (!list)
        return false;
    list->Add(subscriber);
    if (notify)
        GiveNoticeStarted(list, subscriber);
    return true;
}

/// A subscriber that cannot remember the sender would not leave it when it dies.
template <class Sender> void CImplEventSender<Sender>::GiveNoticeStarted(ISubscribersList* list, INotify* subscriber)
{
    try
    {
        subscriber->NoticeStarted(this);
    }
    catch (...)
    {
        list->Remove(subscriber);
        throw;
    }
}

template <class Sender>
bool CImplEventSender<Sender>::Unsubscribe(INotify* subscriber, std::type_info const& type, bool notify)
{
    ISubscribersList* const list = m_subscribers->GetList(type);
    if (!list)
        return false;
    list->Remove(subscriber);
    if (notify)
        subscriber->NoticeStopped(this);
    return true;
}

template <class Sender> bool CImplEventSender<Sender>::Unsubscribe(INotify* subscriber, bool notify)
{
    ISubscribersList* list = m_subscribers->FindFirstList(subscriber, true);
    if (!list)
        return false;
    CFiring const notices(this);  // one of them may delete the sender
    while (list)
    {
        list->Remove(subscriber);
        if (notify)
        {
            subscriber->NoticeStopped(this);
            if (!notices.IsSenderAlive())
                return true;
            m_subscribers->FindFirstList(subscriber, true);  // the notice may have made somebody else leave
        }
        m_subscribers->FindNextList(&list);
    }
    return true;
}

template <class Sender>
void CImplEventSender<Sender>::FireEvent(std::type_info const& type, void (INotify::*handler)(CEvent*), CEvent* event,
                                         bool stoppable)
{
    if (m_stopped)
        return;
    ISubscribersList* const list = m_subscribers->GetList(type);
    if (!list)
        return;
    int const count = list->GetCount();
    if (count < 1)
        return;

    CFiring const firing(this);
    try
    {
        for (int i = 0; i < count; ++i)
        {
            INotify* const subscriber = list->GetItem(i);
            (subscriber->*handler)(event);
            if (event && stoppable && !event->IsContinue())
                return;
            if (!firing.IsSenderAlive())
                return;
        }
    }
    catch (cancel_processing const&)
    {}
}

namespace detail
{

template <class Member> struct SHandlerOf;
template <class Interface, class Event> struct SHandlerOf<void (Interface::*)(Event*)>
{
    using interface_type = Interface;
    using event_type = Event;
};

}  // namespace detail

template <auto Handler> void INotify::Handle(CEvent* event)
{
    using handler = detail::SHandlerOf<decltype(Handler)>;
    (static_cast<typename handler::interface_type*>(this)->*Handler)(static_cast<typename handler::event_type*>(event));
}

template <auto Handler, class Event> void Fire(IEventSender& sender, Event* event, bool stoppable)
{
    using handler = detail::SHandlerOf<decltype(Handler)>;
    typename handler::event_type* const exact = event;
    sender.FireEvent(typeid(typename handler::interface_type), &INotify::Handle<Handler>, exact, stoppable);
}

}  // namespace vexelbase
