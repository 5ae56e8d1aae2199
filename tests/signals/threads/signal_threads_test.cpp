#include "vexel/signals/signal.h"

#include <gtest/gtest.h>

#include <atomic>
#include <barrier>
#include <memory>
#include <thread>
#include <vector>

using plinth::signal_t;
using plinth::subscriber_base_t;

namespace
{

class CCounter : public subscriber_base_t
{
public:
    void Slot() { ++m_Calls; }
    void OtherSlot() { ++m_Calls; }

    int m_Calls = 0;  // emissions hold the signal's mutex, so plain
};

TEST(SignalThreads, TwoThreadsMayMakeTheFirstConnectionAtOnce)
{
    constexpr int rounds = 500;
    std::vector<std::unique_ptr<signal_t<>>> signals;
    for (int i = 0; i < rounds; ++i)
        signals.push_back(std::make_unique<signal_t<>>());
    std::vector<CCounter> first(rounds), second(rounds);
    std::barrier start(2);
    auto const connect = [&](std::vector<CCounter>& receivers) {
        for (std::size_t i = 0; i < rounds; ++i)
        {
            start.arrive_and_wait();
            signals[i]->connect(&receivers[i], &CCounter::Slot);
        }
    };
    std::thread other([&] { connect(second); });
    connect(first);
    other.join();
    for (std::size_t i = 0; i < rounds; ++i)
    {
        EXPECT_EQ(signals[i]->connection_count(), 2u);
        (*signals[i])();
        EXPECT_EQ(first[i].m_Calls, 1);
        EXPECT_EQ(second[i].m_Calls, 1);
    }
}

TEST(SignalThreads, OneReceiverMayBeConnectedToItsFirstSignalsByTwoThreadsAtOnce)
{
    constexpr int rounds = 500;
    std::vector<CCounter> receivers(rounds);
    std::vector<std::unique_ptr<signal_t<>>> first, second;
    for (int i = 0; i < rounds; ++i)
    {
        first.push_back(std::make_unique<signal_t<>>());
        second.push_back(std::make_unique<signal_t<>>());
    }
    std::barrier start(2);
    auto const connect = [&](std::vector<std::unique_ptr<signal_t<>>>& signals) {
        for (std::size_t i = 0; i < rounds; ++i)
        {
            start.arrive_and_wait();
            signals[i]->connect(&receivers[i], &CCounter::Slot);
        }
    };
    std::thread other([&] { connect(second); });
    connect(first);
    other.join();
    for (CCounter& receiver : receivers)
        EXPECT_EQ(receiver.signal_count(), 2u);
}

TEST(SignalThreads, ConnectDisconnectAndEmitFromSeveralThreads)
{
    constexpr int threads = 4;
    constexpr int rounds = 1500;
    signal_t<> signal;
    CCounter always;
    signal.connect(&always, &CCounter::Slot);
    std::vector<std::thread> all;
    for (int i = 0; i < threads; ++i)
        all.emplace_back([&, i] {
            CCounter mine, another;
            for (int round = 0; round < rounds; ++round)
            {
                signal.connect(&mine, &CCounter::Slot);
                if (i % 2 == 0)
                    signal.connect(&another, &CCounter::Slot);
                signal();
                signal.disconnect(&mine, &CCounter::Slot);
                if (i % 2 == 0)
                    signal.disconnect(&another, &CCounter::Slot);
            }
            EXPECT_GE(mine.m_Calls, rounds) << "each emission of this thread reached its own receiver";
        });
    for (std::thread& thread : all)
        thread.join();
    EXPECT_EQ(always.m_Calls, 6000);
    EXPECT_EQ(signal.connection_count(), 1u);
}

TEST(SignalThreads, AnEmissionHoldsTheMutexForItsWholeLength)
{
    class CStarter : public subscriber_base_t
    {
    public:
        void Slot() { m_Action(); }
        std::function<void()> m_Action;
    } starter;
    CCounter late;
    signal_t<> signal;
    signal.connect(&starter, &CStarter::Slot);

    std::atomic<bool> tries{false};
    std::atomic<bool> connected{false};
    bool tooEarly = false;
    std::thread other;
    starter.m_Action = [&] {
        other = std::thread([&] {
            tries = true;
            signal.connect(&late, &CCounter::Slot);
            connected = true;
        });
        while (!tries)
            std::this_thread::yield();
        for (int i = 0; i < 200; ++i)
        {
            std::this_thread::yield();
            tooEarly = tooEarly || connected;
        }
    };
    signal();
    other.join();
    EXPECT_FALSE(tooEarly);
    EXPECT_EQ(late.m_Calls, 0);
    EXPECT_EQ(signal.connection_count(), 2u);
}

TEST(SignalThreads, ASignalConnectedOnAnotherThreadMayBeEmittedAndDestroyedHere)
{
    // As a background task hands a slot of a lasting object over to the thread that runs it.
    CCounter lasting;
    std::atomic<signal_t<>*> handed{nullptr};
    std::thread worker([&] {
        for (int i = 0; i < 500; ++i)
        {
            auto signal = std::make_unique<signal_t<>>();
            signal->connect(&lasting, &CCounter::Slot);
            while (handed)
                std::this_thread::yield();
            handed = signal.release();
        }
    });
    for (int i = 0; i < 500; ++i)
    {
        while (!handed)
            std::this_thread::yield();
        std::unique_ptr<signal_t<>> const signal(handed.load());
        (*signal)();
        handed = nullptr;
    }
    worker.join();
    EXPECT_EQ(lasting.m_Calls, 500);
    EXPECT_EQ(lasting.signal_count(), 0u);
}

TEST(SignalThreads, ReceiversOfOneSignalMayDieOnTheirThreadsWhileOthersConnect)
{
    signal_t<> signal;
    std::vector<std::thread> all;
    for (int i = 0; i < 3; ++i)
        all.emplace_back([&] {
            for (int round = 0; round < 500; ++round)
            {
                std::vector<CCounter> mine(30);
                for (CCounter& receiver : mine)
                    signal.connect(&receiver, &CCounter::Slot);
            }
        });
    for (std::thread& thread : all)
        thread.join();
    EXPECT_EQ(signal.connection_count(), 0u);
}

}  // namespace
