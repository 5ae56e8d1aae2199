// Every allocation in turn fails, and everything is as it was before.

#include "tests/signals/receiver.h"
#include "tests/signals/reports.h"
#include "tests/support/allocation.h"
#include "vexel/signals/notify.h"
#include "vexel/signals/signal.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace
{

using namespace vexelbase;
using plinth::signal_t;
using plinth::subscriber_base_t;
using vexel::test::FailAtEach;
using vexel::test::NoFailure;
using vexel::test::SAllocations;

class CCounter : public subscriber_base_t
{
public:
    void Slot() { ++m_Calls; }
    void OtherSlot() { ++m_Calls; }

    int m_Calls = 0;
};

struct SWorld
{
    signal_t<> signal;
    std::vector<std::unique_ptr<CCounter>> receivers;
    std::vector<std::unique_ptr<signal_t<>>> others;
    CCounter receiver;
};

bool IsFree(signal_t<>& signal)
{
    std::size_t count = 0;
    std::thread other([&] { count = 1 + signal.connection_count(); });
    other.join();
    return count != 0;
}

TEST(AllocationFailure, AConstructedSignalTakesNoMemory)
{
    long const before = SAllocations::s_Made;
    {
        signal_t<int, std::string const&> signal;
        signal(1, std::string());
    }
    EXPECT_EQ(SAllocations::s_Made, before);
}

TEST(AllocationFailure, AnEmissionTakesNoMemory)
{
    signal_t<int&> signal;
    struct SAdds : subscriber_base_t
    {
        void Slot(int& value) { ++value; }
    };
    std::vector<SAdds> receivers(100);
    for (SAdds& receiver : receivers)
        signal.connect(&receiver, &SAdds::Slot);
    long const before = SAllocations::s_Made;
    int value = 0;
    signal(value);
    EXPECT_EQ(SAllocations::s_Made, before);
    EXPECT_EQ(value, 100);
}

TEST(AllocationFailure, AConnectionThatComesAndGoesTakesMemoryOnlyTheFirstTime)
{
    signal_t<> signal;
    CCounter receiver;
    signal.connect(&receiver, &CCounter::Slot);
    signal.disconnect(&receiver, &CCounter::Slot);
    long const before = SAllocations::s_Made;
    for (int i = 0; i < 100; ++i)
    {
        signal.connect(&receiver, &CCounter::Slot);
        signal.disconnect(&receiver, &CCounter::Slot);
    }
    EXPECT_EQ(SAllocations::s_Made, before);
}

TEST(AllocationFailure, InTheFirstConnectLeavesBothUnconnected)
{
    int const failures = FailAtEach<SWorld>(
        [](SWorld&) {}, [](SWorld& world) { world.signal.connect(&world.receiver, &CCounter::Slot); },
        [](SWorld& world) {
            EXPECT_EQ(world.signal.connection_count(), 0u);
            EXPECT_EQ(world.receiver.signal_count(), 0u);
            EXPECT_TRUE(IsFree(world.signal));
            world.signal();
            EXPECT_EQ(world.receiver.m_Calls, 0);
        });
    EXPECT_EQ(failures, 2) << "the signal's state and the receiver's";
}

TEST(AllocationFailure, InAFurtherConnectLeavesTheOthersAlone)
{
    int const failures = FailAtEach<SWorld>(
        [](SWorld& world) {
            for (int i = 0; i < 5; ++i)
            {
                world.receivers.push_back(std::make_unique<CCounter>());
                world.signal.connect(world.receivers.back().get(), &CCounter::Slot);
                world.others.push_back(std::make_unique<signal_t<>>());
                world.others.back()->connect(&world.receiver, &CCounter::Slot);
            }
        },
        [](SWorld& world) { world.signal.connect(&world.receiver, &CCounter::Slot); },
        [](SWorld& world) {
            EXPECT_EQ(world.signal.connection_count(), 5u);
            EXPECT_EQ(world.receiver.signal_count(), 5u);
            EXPECT_EQ(world.receiver.count_signal(&world.signal), 0u);
            EXPECT_TRUE(IsFree(world.signal));
            world.signal();
            EXPECT_EQ(world.receivers[0]->m_Calls + world.receivers[4]->m_Calls, 2);
            EXPECT_EQ(world.receiver.m_Calls, 0);
        });
    EXPECT_EQ(failures, 2) << "a node on each side";
}

TEST(AllocationFailure, WhereALongListGetsItsIndexLeavesEverythingAsItWas)
{
    // Up to the length at which both sides begin to search by an index, and on to where these grow.
    for (int length = 14; length <= 70; ++length)
    {
        int const failures = FailAtEach<SWorld>(
            [length](SWorld& world) {
                for (int i = 0; i < length; ++i)
                {
                    world.receivers.push_back(std::make_unique<CCounter>());
                    world.signal.connect(world.receivers.back().get(), &CCounter::Slot);
                    world.others.push_back(std::make_unique<signal_t<>>());
                    world.others.back()->connect(&world.receiver, &CCounter::Slot);
                }
            },
            [](SWorld& world) { world.signal.connect(&world.receiver, &CCounter::Slot); },
            [length](SWorld& world) {
                EXPECT_EQ(world.signal.connection_count(), static_cast<std::size_t>(length));
                EXPECT_EQ(world.receiver.signal_count(), static_cast<std::size_t>(length));
                world.signal();
                EXPECT_EQ(world.receivers.back()->m_Calls, 1);

                // Searches still find all that is there, and nothing else.
                signals_test::CReports reports;
                world.signal.disconnect(&world.receiver, &CCounter::Slot);
                EXPECT_EQ(reports.Count(), 1u);
                for (auto const& receiver : world.receivers)
                    world.signal.disconnect(receiver.get(), &CCounter::Slot);
                EXPECT_EQ(reports.Count(), 1u);
                EXPECT_EQ(world.signal.connection_count(), 0u);
                for (auto const& other : world.others)
                    EXPECT_EQ(world.receiver.count_signal(other.get()), 1u);
            });
        EXPECT_GE(failures, 2) << length;
    }
}

TEST(AllocationFailure, InAConnectDuringAnEmissionLeavesTheEmissionRunning)
{
    struct SEmission : SWorld
    {
        struct SActs : subscriber_base_t
        {
            void Slot() { m_World->signal.connect(&m_World->receiver, &CCounter::Slot); }
            SEmission* m_World = nullptr;
        } acts;
        CCounter last;
    };
    int const failures = FailAtEach<SEmission>(
        [](SEmission& world) {
            world.acts.m_World = &world;
            world.signal.connect(&world.acts, &SEmission::SActs::Slot);
            world.signal.connect(&world.last, &CCounter::Slot);
        },
        [](SEmission& world) { world.signal(); },
        [](SEmission& world) {
            EXPECT_EQ(world.last.m_Calls, 0) << "the exception ended the emission";
            EXPECT_EQ(world.signal.connection_count(), 2u);
            EXPECT_EQ(world.receiver.signal_count(), 0u);
            EXPECT_TRUE(IsFree(world.signal));
        });
    EXPECT_GE(failures, 1);
}

TEST(AllocationFailure, DisconnectingAndDyingTakeNoMemory)
{
    SWorld world;
    for (int i = 0; i < 100; ++i)
    {
        world.receivers.push_back(std::make_unique<CCounter>());
        world.signal.connect(world.receivers.back().get(), &CCounter::Slot);
        world.others.push_back(std::make_unique<signal_t<>>());
        world.others.back()->connect(&world.receiver, &CCounter::Slot);
    }
    SAllocations::s_UntilFailure = 0;
    world.signal.disconnect(world.receivers[3].get(), &CCounter::Slot);
    world.receivers.erase(world.receivers.begin(), world.receivers.begin() + 20);
    world.others.clear();
    world.signal._erase_all();
    SAllocations::s_UntilFailure = NoFailure;
    EXPECT_EQ(world.signal.connection_count(), 0u);
    EXPECT_EQ(world.receiver.signal_count(), 0u);
}

// What is given back --------------------------------------------------------------------------------------------------

struct SDies : subscriber_base_t
{
    void Slot()
    {
        if (--m_Levels != 0)
            return (*m_Signal)();
        m_Signal.reset();
        if (m_Throws)
            throw 1;
    }

    std::unique_ptr<signal_t<>> m_Signal = std::make_unique<signal_t<>>();
    int m_Levels = 0;
    bool m_Throws = false;
};

TEST(Memory, OfASignalThatDiesInItsEmissionsIsGivenBackOnce)
{
    for (int levels : {1, 2, 5})
    {
        for (int others : {0, 40})
        {
            for (bool throws : {false, true})
            {
                long const before = SAllocations::s_Alive;
                {
                    SDies dies;
                    dies.m_Levels = levels;
                    dies.m_Throws = throws;
                    std::vector<CCounter> more(static_cast<std::size_t>(others));
                    dies.m_Signal->connect(&dies, &SDies::Slot);
                    for (CCounter& receiver : more)
                        dies.m_Signal->connect(&receiver, &CCounter::Slot);
                    try
                    {
                        (*dies.m_Signal)();
                        EXPECT_FALSE(throws);
                    }
                    catch (int)
                    {
                        EXPECT_TRUE(throws);
                    }
                    EXPECT_FALSE(dies.m_Signal);
                }
                EXPECT_EQ(SAllocations::s_Alive, before)
                    << levels << " levels, " << others << " others, throws: " << throws;
            }
        }
    }
}

TEST(Memory, OfIdleSignalsAndReceiversIsGivenBackInWhateverOrderTheyDie)
{
    for (bool signalFirst : {false, true})
    {
        for (int count : {1, 3, 40})
        {
            long const before = SAllocations::s_Alive;
            {
                auto signal = std::make_unique<signal_t<>>();
                auto relay = std::make_unique<signal_t<>>();
                std::vector<CCounter> receivers(static_cast<std::size_t>(count));
                signal->connect(relay.get(), &signal_t<>::operator());
                for (CCounter& receiver : receivers)
                {
                    signal->connect(&receiver, &CCounter::Slot);
                    relay->connect(&receiver, &CCounter::OtherSlot);
                }
                (*signal)();
                EXPECT_EQ(receivers.back().m_Calls, 2);
                if (signalFirst)
                    signal.reset();
                else
                    receivers.clear();
                relay.reset();
            }
            EXPECT_EQ(SAllocations::s_Alive, before) << count << " receivers, signal first: " << signalFirst;
        }
    }
}

// Senders and subscribers ---------------------------------------------------------------------------------------------

TEST(AllocationFailure, InTheConstructorOfASenderOrASubscriberLeavesNothing)
{
    struct SNothing
    {};
    int const failures = FailAtEach<SNothing>([](SNothing&) {},
                                              [](SNothing&) {
                                                  CImplEventSender<IEventSender> sender;
                                                  CTimerNotify subscriber;
                                              },
                                              [](SNothing&) {});
    EXPECT_GE(failures, 2);
}

TEST(AllocationFailure, InSubscribeLeavesNoDanglingSubscriber)
{
    struct SSending
    {
        CImplEventSender<IEventSender> sender;
        std::unique_ptr<CTimerNotify> subscriber = std::make_unique<CTimerNotify>();
    };
    int const failures =
        FailAtEach<SSending>([](SSending& world) { world.sender.SetSupportedEvent(typeid(ITimerNotify)); },
                             [](SSending& world) {
                                 if (world.subscriber)
                                     world.sender.Subscribe(world.subscriber.get(), typeid(ITimerNotify), true);
                             },
                             [](SSending& world) {
                                 EXPECT_FALSE(world.sender.IsSubscribed(typeid(ITimerNotify)));
                                 world.subscriber.reset();
                             });
    EXPECT_EQ(failures, 2) << "the place in the list, and the note of the subscriber";
}

}  // namespace
