#include "vexel/signals/event_sender.h"

#include "vexel/platform/events.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/signals/notify.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

using namespace vexelbase;

namespace
{

using Sender = CImplEventSender<IEventSender>;

std::type_info const& timer = typeid(ITimerNotify);
std::type_info const& click = typeid(IMouseClickNotify);
std::type_info const& system_type = typeid(ISystemNotify);

/// Notes notices as "+" and "-", ticks as its name.
class CTick : public ITimerNotify
{
public:
    CTick(std::string& log, std::string name) : m_Log(log), m_Name(std::move(name)) {}

    void NoticeStarted(IEventSender* sender) override
    {
        m_Log += "+" + m_Name;
        m_Sender = sender;
        if (m_OnStarted)
            m_OnStarted();
    }
    void NoticeStopped(IEventSender* sender) override
    {
        m_Log += "-" + m_Name;
        m_Sender = sender;
        if (m_OnStopped)
            m_OnStopped();
    }
    void OnTimer(CTimerEvent* event) override
    {
        m_Log += m_Name;
        m_Event = event;
        if (std::function<void()> const action = m_Action)
            action();
    }

    std::function<void()> m_Action;
    std::function<void()> m_OnStarted;
    std::function<void()> m_OnStopped;
    IEventSender* m_Sender = nullptr;
    CTimerEvent* m_Event = nullptr;

private:
    std::string& m_Log;
    std::string m_Name;
};

class EventSender : public testing::Test
{
protected:
    EventSender()
    {
        sender.SetSupportedEvent(timer);
        sender.SetSupportedEvent(click);
    }
    ~EventSender() override
    {
        log.clear();
        sender.Unsubscribe(&a, false);
        sender.Unsubscribe(&b, false);
        sender.Unsubscribe(&c, false);
    }

    void SubscribeAll()
    {
        for (CTick* subscriber : {&a, &b, &c})
            sender.Subscribe(subscriber, timer, false);
    }

    std::string FireTimer(CEvent* event = nullptr, bool stoppable = true)
    {
        log.clear();
        sender.FireEvent(timer, &INotify::Handle<&ITimerNotify::OnTimer>, event, stoppable);
        return log;
    }

    std::string log;
    CTick a{log, "a"}, b{log, "b"}, c{log, "c"};
    Sender sender;
};

TEST_F(EventSender, SupportsOnlyWhatItWasTold)
{
    EXPECT_TRUE(sender.IsEventSupported(timer));
    EXPECT_FALSE(sender.IsEventSupported(system_type));
    sender.SetSupportedEvent(system_type);
    EXPECT_TRUE(sender.IsEventSupported(system_type));
}

TEST_F(EventSender, SupportingATypeOnceMoreKeepsItsSubscribers)
{
    SubscribeAll();
    sender.SetSupportedEvent(timer);
    EXPECT_EQ(sender.GetSubscribersCount(timer), 3);
}

TEST_F(EventSender, SubscribeAppendsAndGivesNoticeIfAsked)
{
    EXPECT_TRUE(sender.Subscribe(&a, timer, true));
    EXPECT_EQ(log, "+a");
    EXPECT_EQ(a.m_Sender, &sender);
    EXPECT_TRUE(sender.Subscribe(&b, timer, false));
    EXPECT_EQ(log, "+a");
    EXPECT_EQ(FireTimer(), "ab");
}

TEST_F(EventSender, SubscribeToFrontPutsBeforeAllOthersAndGivesNoticeIfAsked)
{
    sender.Subscribe(&a, timer, false);
    EXPECT_TRUE(sender.SubscribeToFront(&b, timer, false));
    EXPECT_EQ(log, "");
    EXPECT_TRUE(sender.SubscribeToFront(&c, timer, true));
    EXPECT_EQ(log, "+c");
    EXPECT_EQ(FireTimer(), "cba");
}

TEST_F(EventSender, ANoticeThatThrowsUndoesTheSubscription)
{
    sender.Subscribe(&b, timer, false);
    a.m_OnStarted = [] { throw std::runtime_error("notice"); };
    EXPECT_THROW(sender.Subscribe(&a, timer, true), std::runtime_error);
    EXPECT_THROW(sender.SubscribeToFront(&a, timer, true), std::runtime_error);
    EXPECT_EQ(sender.GetSubscribersCount(timer), 1);
    log.clear();
    EXPECT_EQ(FireTimer(), "b");
}

TEST_F(EventSender, RefusesSubscribersToAnUnsupportedType)
{
    EXPECT_FALSE(sender.Subscribe(&a, system_type, true));
    EXPECT_FALSE(sender.SubscribeToFront(&a, system_type, true));
    EXPECT_FALSE(sender.Unsubscribe(&a, system_type, true));
    EXPECT_EQ(log, "");
    EXPECT_FALSE(sender.IsSubscribed(system_type));
    EXPECT_EQ(sender.GetSubscribersCount(system_type), 0);
}

TEST_F(EventSender, UnsubscribeFromATypeRemovesAndGivesNoticeIfAsked)
{
    SubscribeAll();
    EXPECT_TRUE(sender.Unsubscribe(&b, timer, true));
    EXPECT_EQ(log, "-b");
    EXPECT_EQ(b.m_Sender, &sender);
    EXPECT_EQ(FireTimer(), "ac");
    log.clear();
    EXPECT_TRUE(sender.Unsubscribe(&a, timer, false));
    EXPECT_EQ(log, "");
    EXPECT_EQ(FireTimer(), "c");
}

TEST_F(EventSender, UnsubscribeOfSomebodyWhoIsntThereStillAnswersTrueAndGivesNotice)
{
    EXPECT_TRUE(sender.Unsubscribe(&a, timer, true));
    EXPECT_EQ(log, "-a");
}

TEST_F(EventSender, ASecondEntryOfOneSubscriberGoesWithTheFirst)
{
    sender.Subscribe(&a, timer, false);
    sender.Subscribe(&b, timer, false);
    sender.Subscribe(&a, timer, false);
    EXPECT_EQ(FireTimer(), "aba");
    sender.Unsubscribe(&a, timer, false);
    EXPECT_EQ(FireTimer(), "b");
}

TEST_F(EventSender, UnsubscribeWithoutATypeLeavesEveryListWithANoticeEach)
{
    SubscribeAll();
    sender.Subscribe(&b, click, false);
    EXPECT_TRUE(sender.Unsubscribe(&b, true));
    EXPECT_EQ(log, "-b-b");
    EXPECT_EQ(sender.GetSubscribersCount(timer), 2);
    EXPECT_EQ(sender.GetSubscribersCount(click), 0);
}

TEST_F(EventSender, UnsubscribeWithoutATypeAndNoticeIsSilent)
{
    SubscribeAll();
    EXPECT_TRUE(sender.Unsubscribe(&b, false));
    EXPECT_EQ(log, "");
    EXPECT_EQ(sender.GetSubscribersCount(timer), 2);
}

TEST_F(EventSender, UnsubscribeWithoutATypeOfSomebodyInNoListAnswersFalse)
{
    sender.Subscribe(&a, timer, false);
    EXPECT_FALSE(sender.Unsubscribe(&b, true));
    EXPECT_EQ(log, "");
}

TEST_F(EventSender, ANoticeMayMakeAnotherSubscriberLeaveAllLists)
{
    for (CTick* subscriber : {&a, &b})
    {
        sender.Subscribe(subscriber, timer, false);
        sender.Subscribe(subscriber, click, false);
    }
    a.m_OnStopped = [this] {
        a.m_OnStopped = nullptr;
        sender.Unsubscribe(&b, true);
    };
    EXPECT_TRUE(sender.Unsubscribe(&a, true));
    EXPECT_EQ(log, "-a-b-b-a");
    EXPECT_FALSE(sender.IsSubscribed(timer));
    EXPECT_FALSE(sender.IsSubscribed(click));
}

TEST_F(EventSender, CountsSubscribersPerType)
{
    EXPECT_FALSE(sender.IsSubscribed(timer));
    sender.Subscribe(&a, timer, false);
    sender.Subscribe(&b, timer, false);
    EXPECT_TRUE(sender.IsSubscribed(timer));
    EXPECT_FALSE(sender.IsSubscribed(click));
    EXPECT_EQ(sender.GetSubscribersCount(timer), 2);
    EXPECT_EQ(sender.GetSubscribersCount(click), 0);
}

// Firing --------------------------------------------------------------------------------------------------------------

TEST_F(EventSender, FiresToTheSubscribersOfTheTypeInOrderWithTheEvent)
{
    SubscribeAll();
    sender.Subscribe(&a, click, false);
    CTimerEvent event;
    EXPECT_EQ(FireTimer(&event), "abc");
    EXPECT_EQ(a.m_Event, &event);
    EXPECT_EQ(c.m_Event, &event);
}

TEST_F(EventSender, FiresNothingWithoutSubscribersOrSupport)
{
    EXPECT_EQ(FireTimer(), "");
    Sender unsupported;
    unsupported.FireEvent(timer, &INotify::Handle<&ITimerNotify::OnTimer>, nullptr, true);
    EXPECT_EQ(log, "");
}

TEST_F(EventSender, FiresNothingWhileItIsStopped)
{
    SubscribeAll();
    sender.StopEventSending(true);
    EXPECT_EQ(FireTimer(), "");
    sender.StopEventSending(false);
    EXPECT_EQ(FireTimer(), "abc");
}

TEST_F(EventSender, BeingStoppedByAHandlerTakesEffectWithTheNextFiring)
{
    SubscribeAll();
    a.m_Action = [this] { sender.StopEventSending(true); };
    EXPECT_EQ(FireTimer(), "abc");
    EXPECT_EQ(FireTimer(), "");
}

TEST_F(EventSender, AClearedContinueFlagEndsAStoppableFiringBehindThatHandler)
{
    SubscribeAll();
    CTimerEvent event;
    EXPECT_TRUE(event.IsContinue());
    b.m_Action = [&] { event.SetContinue(false); };
    EXPECT_EQ(FireTimer(&event), "ab");
    EXPECT_FALSE(event.IsContinue());
}

TEST_F(EventSender, AFlagThatIsClearedBeforehandStillLetsTheFirstHandlerRun)
{
    SubscribeAll();
    CTimerEvent event;
    event.SetContinue(false);
    EXPECT_EQ(FireTimer(&event), "a");
}

TEST_F(EventSender, AClearedContinueFlagDoesNotEndAFiringThatIsNotStoppable)
{
    SubscribeAll();
    CTimerEvent event;
    event.SetContinue(false);
    EXPECT_EQ(FireTimer(&event, false), "abc");
}

TEST_F(EventSender, AnEventThatItsHandlerFreesIsNotReadUnlessTheFiringIsStoppable)
{
    sender.Subscribe(&a, timer, false);
    auto event = std::make_unique<CTimerEvent>();
    a.m_Action = [&] { event.reset(); };
    EXPECT_EQ(FireTimer(event.get(), false), "a");
}

TEST_F(EventSender, AHandlerThatThrowsCancelProcessingEndsTheFiringWhichReturnsNormally)
{
    SubscribeAll();
    b.m_Action = [] { throw vexelbase::cancel_processing(); };
    EXPECT_EQ(FireTimer(), "ab");
    b.m_Action = nullptr;
    EXPECT_EQ(FireTimer(), "abc");
}

TEST_F(EventSender, AnyOtherExceptionLeavesTheFiring)
{
    SubscribeAll();
    b.m_Action = [] { throw std::runtime_error("handler"); };
    EXPECT_THROW(FireTimer(), std::runtime_error);
    EXPECT_EQ(log, "ab");
    b.m_Action = [] { throw vexel::cancel_processing(); };
    EXPECT_THROW(FireTimer(), vexel::cancel_processing);
    EXPECT_EQ(log, "ab");
}

TEST_F(EventSender, ASubscriberAddedDuringAFiringIsNotReached)
{
    sender.Subscribe(&a, timer, false);
    sender.Subscribe(&b, timer, false);
    a.m_Action = [this] {
        a.m_Action = nullptr;
        sender.Subscribe(&c, timer, false);
    };
    EXPECT_EQ(FireTimer(), "ab");
    EXPECT_EQ(FireTimer(), "abc");
}

TEST_F(EventSender, ASubscriberAddedToTheFrontShiftsTheOthersSoThatOneIsCalledTwice)
{
    sender.Subscribe(&a, timer, false);
    sender.Subscribe(&b, timer, false);
    a.m_Action = [this] {
        a.m_Action = nullptr;
        sender.SubscribeToFront(&c, timer, false);
    };
    EXPECT_EQ(FireTimer(), "aa");
    EXPECT_EQ(FireTimer(), "cab");
}

TEST_F(EventSender, ASubscriberThatLeavesShiftsTheOthersSoThatOneIsMissed)
{
    SubscribeAll();
    a.m_Action = [this] {
        a.m_Action = nullptr;
        sender.Unsubscribe(&a, timer, false);
    };
    EXPECT_EQ(FireTimer(), "ac") << "the third index is past the end";
    EXPECT_EQ(FireTimer(), "bc");
}

TEST_F(EventSender, FiringsMayBeNested)
{
    SubscribeAll();
    b.m_Action = [this] {
        b.m_Action = nullptr;
        sender.FireEvent(timer, &INotify::Handle<&ITimerNotify::OnTimer>, nullptr, true);
    };
    EXPECT_EQ(FireTimer(), "ababcc");
}

TEST_F(EventSender, AHandlerMayDeleteTheSenderAlsoFromANestedFiring)
{
    auto dying = std::make_unique<Sender>();
    dying->SetSupportedEvent(timer);
    for (CTick* subscriber : {&a, &b, &c})
        dying->Subscribe(subscriber, timer, false);
    bool nested = false;
    a.m_Action = [&] {
        if (nested)
            return dying.reset();
        nested = true;
        dying->FireEvent(timer, &INotify::Handle<&ITimerNotify::OnTimer>, nullptr, true);
    };
    CTimerEvent event;
    dying->FireEvent(timer, &INotify::Handle<&ITimerNotify::OnTimer>, &event, true);
    EXPECT_EQ(log, "aa-a-b-c");
}

TEST_F(EventSender, AHandlerMayDeleteTheSenderAndThrow)
{
    auto dying = std::make_unique<Sender>();
    dying->SetSupportedEvent(timer);
    dying->Subscribe(&a, timer, false);
    dying->Subscribe(&b, timer, false);
    a.m_Action = [&] {
        dying.reset();
        throw cancel_processing();
    };
    dying->FireEvent(timer, &INotify::Handle<&ITimerNotify::OnTimer>, nullptr, true);
    EXPECT_EQ(log, "a-a-b");
}

TEST_F(EventSender, ANoticeMayDeleteTheSenderThatIsBeingLeft)
{
    auto dying = std::make_unique<Sender>();
    dying->SetSupportedEvent(timer);
    dying->SetSupportedEvent(click);
    dying->Subscribe(&a, timer, false);
    dying->Subscribe(&a, click, false);
    dying->Subscribe(&b, click, false);
    a.m_OnStopped = [&] { dying.reset(); };

    EXPECT_TRUE(dying->Unsubscribe(&a, true));

    EXPECT_FALSE(dying);
    EXPECT_EQ(log, "-a-a-b");
    a.m_OnStopped = nullptr;
}

TEST_F(EventSender, ThatDiesGivesNoticeToAllWhoRemain)
{
    {
        Sender dying;
        dying.SetSupportedEvent(timer);
        dying.SetSupportedEvent(click);
        dying.Subscribe(&a, timer, false);
        dying.Subscribe(&b, timer, false);
        dying.Subscribe(&a, click, false);
        dying.Subscribe(&c, timer, false);
        dying.Unsubscribe(&c, timer, false);
    }
    EXPECT_EQ(log, "-a-a-b");
}

// Fire ----------------------------------------------------------------------------------------------------------------

class CMouse : public IMouseNotify, public ISystemNotify
{
public:
    void NoticeStarted(IEventSender*) override {}
    void NoticeStopped(IEventSender*) override {}
    void OnButtonDown(CMouseEvent* event) override { m_Log += "down" + std::to_string(event->m_X); }
    void OnButtonUp(CMouseEvent* event) override
    {
        m_Log += "up" + std::to_string(event->m_Y);
        event->SetContinue(false);
    }
    void OnMouseMove(CMouseEvent* event) override { m_Log += event ? "move" : "null"; }
    void OnWheel(CMouseWheelEvent* event) override { m_Log += "wheel" + std::to_string(event->m_Delta); }
    void OnSysColorChanged(CEvent* event) override { m_Log += event ? "color" : "no color"; }

    std::string m_Log;
};

TEST(Fire, CallsTheNamedHandlerOfItsInterfaceWithTheDerivedEvent)
{
    CMouse mouse, another;
    Sender sender;
    sender.SetSupportedEvent(typeid(IMouseNotify));
    sender.SetSupportedEvent(typeid(ISystemNotify));
    IMouseNotify& first = mouse;
    IMouseNotify& second = another;
    ISystemNotify& third = mouse;
    sender.Subscribe(&first, typeid(IMouseNotify), false);
    sender.Subscribe(&second, typeid(IMouseNotify), false);
    sender.Subscribe(&third, typeid(ISystemNotify), false);

    CMouseEvent down(11, 12, 0, mbLeft);
    Fire<&IMouseNotify::OnButtonDown>(sender, &down, true);
    CMouseWheelEvent wheel(1, 2, 0, mbNone, -3);
    Fire<&IMouseNotify::OnWheel>(sender, &wheel, true);
    CEvent event;
    Fire<&ISystemNotify::OnSysColorChanged>(sender, &event, true);
    EXPECT_EQ(mouse.m_Log, "down11wheel-3color");
    EXPECT_EQ(another.m_Log, "down11wheel-3");

    // The flag is read from the event, whatever its class.
    CMouseWheelEvent up(1, 22, 0, mbNone, 0);
    Fire<&IMouseNotify::OnButtonUp>(sender, &up, true);
    EXPECT_EQ(mouse.m_Log, "down11wheel-3colorup22");
    EXPECT_EQ(another.m_Log, "down11wheel-3");

    Fire<&IMouseNotify::OnMouseMove>(sender, static_cast<CMouseEvent*>(nullptr), true);
    EXPECT_EQ(another.m_Log, "down11wheel-3null");
}

}  // namespace
