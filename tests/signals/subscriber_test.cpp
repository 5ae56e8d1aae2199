#include "vexel/platform/events.h"
#include "vexel/signals/notify.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <typeinfo>

using namespace vexelbase;

namespace
{

/// Notes what subscribers ask of it; calls them back like a real one.
class CTold : public CImplEventSender<IEventSender>
{
public:
    bool Unsubscribe(INotify* subscriber, std::type_info const& type, bool notify) override
    {
        m_Log +=
            std::string("leave ") + (type == typeid(ITimerNotify) ? "timer" : "other") + (notify ? " notify;" : ";");
        if (m_Throws)
            throw std::runtime_error("sender");
        return CImplEventSender::Unsubscribe(subscriber, type, notify);
    }
    using CImplEventSender::Unsubscribe;

    std::string m_Log;
    bool m_Throws = false;
};

class Subscriber : public testing::Test
{
protected:
    Subscriber()
    {
        for (CTold* sender : {&one, &two})
        {
            sender->SetSupportedEvent(typeid(ITimerNotify));
            sender->SetSupportedEvent(typeid(IScrollBarNotify));
        }
    }

    CTold one, two;
};

TEST_F(Subscriber, LeavesAllItsSendersWhenItDiesWithoutBeingNoticed)
{
    {
        CTimerNotify dies;
        one.Subscribe(&dies, typeid(ITimerNotify), true);
        two.Subscribe(&dies, typeid(ITimerNotify), true);
    }
    EXPECT_EQ(one.m_Log, "leave timer;");
    EXPECT_EQ(two.m_Log, "leave timer;");
    EXPECT_FALSE(one.IsSubscribed(typeid(ITimerNotify)));
    EXPECT_FALSE(two.IsSubscribed(typeid(ITimerNotify)));
}

TEST_F(Subscriber, RemembersASenderOnceHoweverOftenItIsSubscribed)
{
    {
        CTimerNotify dies;
        one.Subscribe(&dies, typeid(ITimerNotify), true);
        one.Subscribe(&dies, typeid(ITimerNotify), true);
    }
    EXPECT_EQ(one.m_Log, "leave timer;");
    EXPECT_EQ(one.GetSubscribersCount(typeid(ITimerNotify)), 0) << "both entries";
}

TEST_F(Subscriber, ForgetsASenderThatItLeft)
{
    CTimerNotify left;
    one.Subscribe(&left, typeid(ITimerNotify), true);
    one.Unsubscribe(&left, true);
    one.m_Log.clear();
    left.~CTimerNotify();
    EXPECT_EQ(one.m_Log, "");
    new (&left) CTimerNotify;
}

TEST_F(Subscriber, DoesNotKnowASenderThatTookItWithoutNotice)
{
    {
        CTimerNotify dies;
        one.Subscribe(&dies, typeid(ITimerNotify), false);
        one.CImplEventSender::Unsubscribe(&dies, typeid(ITimerNotify), false);
    }
    EXPECT_EQ(one.m_Log, "");
}

TEST_F(Subscriber, ForgetsASenderThatDies)
{
    CTimerNotify stays;
    {
        CTold dies;
        dies.SetSupportedEvent(typeid(ITimerNotify));
        dies.Subscribe(&stays, typeid(ITimerNotify), true);
    }
    one.Subscribe(&stays, typeid(ITimerNotify), true);
    one.Unsubscribe(&stays, true);
}

class CDies : public CTimerNotify
{
public:
    explicit CDies(int& ticks) : m_Ticks(ticks) {}
    void OnTimer(CTimerEvent*) override
    {
        ++m_Ticks;
        delete this;
    }

private:
    int& m_Ticks;
};

TEST_F(Subscriber, MayDieInItsHandler)
{
    int ticks = 0;
    one.Subscribe(new CDies(ticks), typeid(ITimerNotify), true);
    one.Subscribe(new CDies(ticks), typeid(ITimerNotify), true);
    CTimerEvent event;
    Fire<&ITimerNotify::OnTimer>(one, &event, true);
    EXPECT_EQ(ticks, 1) << "the second one has moved to the place of the first";
    Fire<&ITimerNotify::OnTimer>(one, &event, true);
    EXPECT_EQ(ticks, 2);
    EXPECT_FALSE(one.IsSubscribed(typeid(ITimerNotify)));
}

TEST_F(Subscriber, OfAScrollBarLeavesUnderItsOwnType)
{
    class CBarNotify : public CScrollBarNotify
    {
    public:
        void ScrollBarOnScroll(CScrollEvent* event) override { m_Position = event->m_Position; }
        double m_Position = 0;
    };
    {
        CBarNotify bar;
        one.Subscribe(&bar, typeid(IScrollBarNotify), true);
        CScrollEvent event(2.5, CScrollEvent::saThumb);
        Fire<&IScrollBarNotify::ScrollBarOnScroll>(one, &event, true);
        EXPECT_EQ(bar.m_Position, 2.5);
    }
    EXPECT_EQ(one.m_Log, "leave other;");
    EXPECT_FALSE(one.IsSubscribed(typeid(IScrollBarNotify)));
}

TEST_F(Subscriber, OfATimerIgnoresTicksUnlessItOverridesThem)
{
    CTimerNotify plain;
    CTimerEvent event;
    plain.OnTimer(&event);
    EXPECT_TRUE(event.IsContinue());
}

TEST_F(Subscriber, OfAnEditNeedsOnlyKeysAndReturn)
{
    static_assert(std::is_abstract_v<CEditNotify> && std::is_abstract_v<CScrollBarNotify>);
    static_assert(!std::is_abstract_v<CTimerNotify>);
    class CEdit : public CEditNotify
    {
    public:
        void EditOnKeyDown(CEditKeyDownEvent*) override { m_Log += "key"; }
        void EditOnReturnPress(CEvent*) override { m_Log += "return"; }
        std::string m_Log;
    } edit;
    IEditNotify& notify = edit;
    CChangeTextEvent text;
    CEditKeyDownEvent key;
    CVisibleChangeEvent visible;
    CEditMouseWheelEvent wheel;
    notify.EditOnChangeText(&text);
    notify.EditOnChar(&key);
    notify.EditOnVisibleChange(&visible);
    notify.EditOnMouseWheel(&wheel);
    EXPECT_EQ(edit.m_Log, "");
    notify.EditOnKeyDown(&key);
    notify.EditOnReturnPress(&text);
    EXPECT_EQ(edit.m_Log, "keyreturn");
}

TEST(SubscriberDeathTest, ASenderThatThrowsWhileASubscriberDiesEndsTheProcess)
{
    EXPECT_DEATH(
        {
            CTold sender;
            sender.SetSupportedEvent(typeid(ITimerNotify));
            CTimerNotify dies;
            sender.Subscribe(&dies, typeid(ITimerNotify), true);
            sender.m_Throws = true;
        },
        "");
}

}  // namespace
