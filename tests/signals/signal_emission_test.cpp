#include "tests/signals/receiver.h"
#include "tests/signals/reports.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/signals/signal.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

using plinth::signal_t;
using signals_test::CReceiver;
using signals_test::CReports;

namespace
{

class Emission : public testing::Test
{
protected:
    std::string log;
    signal_t<> signal;
    CReceiver a{log, "a"};
    CReceiver b{log, "b"};
    CReceiver c{log, "c"};

    void ConnectAll()
    {
        for (CReceiver* receiver : {&a, &b, &c})
            signal.connect(receiver, &CReceiver::Slot);
    }

    std::string Emit()
    {
        log.clear();
        signal();
        return log;
    }
};

TEST_F(Emission, ASlotThatDisconnectsItselfFinishesAndIsClearedUntilTheOutermostEmissionEnds)
{
    ConnectAll();
    bool finished = false;
    std::size_t whileEmitting = 0;
    b.m_Action = [&] {
        signal.disconnect(&b, &CReceiver::Slot);
        whileEmitting = signal.connection_count();
        finished = true;
    };
    EXPECT_EQ(Emit(), "abc");
    EXPECT_TRUE(finished);
    EXPECT_EQ(whileEmitting, 3u) << "the node stays";
    EXPECT_EQ(signal.connection_count(), 2u) << "and goes with the end of the emission";
    EXPECT_EQ(b.signal_count(), 0u);
    EXPECT_EQ(Emit(), "ac");
}

TEST_F(Emission, ASlotThatDisconnectsALaterSlotKeepsItFromBeingCalled)
{
    ConnectAll();
    a.m_Action = [&] { signal.disconnect(&c, &CReceiver::Slot); };
    EXPECT_EQ(Emit(), "ab");
    a.m_Action = nullptr;
    EXPECT_EQ(Emit(), "ab");
}

TEST_F(Emission, ASlotThatConnectsANewSlotHasItCalledLastInThisSameEmission)
{
    ConnectAll();
    CReceiver d(log, "d");
    a.m_Action = [&] {
        signal.connect(&d, &CReceiver::Slot);
        a.m_Action = nullptr;
    };
    EXPECT_EQ(Emit(), "abcd");
    EXPECT_EQ(Emit(), "abcd");
}

TEST_F(Emission, TheLastSlotMayConnectANewOneToo)
{
    ConnectAll();
    CReceiver d(log, "d");
    c.m_Action = [&] {
        signal.connect(&d, &CReceiver::Slot);
        c.m_Action = nullptr;
    };
    EXPECT_EQ(Emit(), "abcd");
}

TEST_F(Emission, ASlotThatDisconnectsItselfAndConnectsAgainIsCalledAgainAtTheEnd)
{
    ConnectAll();
    b.m_Action = [&] {
        b.m_Action = nullptr;
        signal.disconnect(&b, &CReceiver::Slot);
        signal.connect(&b, &CReceiver::Slot);
    };
    EXPECT_EQ(Emit(), "abcb");
    EXPECT_EQ(Emit(), "acb");
    EXPECT_EQ(b.signal_count(), 1u);
}

TEST_F(Emission, ASlotThatDeletesItsOwnReceiverLetsTheEmissionGoOn)
{
    auto dying = std::make_unique<CReceiver>(log, "d");
    signal.connect(&a, &CReceiver::Slot);
    signal.connect(dying.get(), &CReceiver::Slot);
    signal.connect(&b, &CReceiver::Slot);
    dying->m_Action = [&] { dying.reset(); };
    EXPECT_EQ(Emit(), "adb");
    EXPECT_EQ(signal.connection_count(), 2u);
    EXPECT_EQ(Emit(), "ab");
}

TEST_F(Emission, ASlotThatDeletesTheSignalIsTheLastOneAndTheReceiversForgetTheSignal)
{
    auto dying = std::make_unique<signal_t<>>();
    dying->connect(&a, &CReceiver::Slot);
    dying->connect(&b, &CReceiver::Slot);
    a.m_Action = [&] { dying.reset(); };
    (*dying)();
    EXPECT_EQ(log, "a");
    EXPECT_EQ(a.signal_count(), 0u);
    EXPECT_EQ(b.signal_count(), 0u);
}

TEST_F(Emission, ASlotThatDeletesTheSignalAndThrowsLetsTheExceptionPass)
{
    auto dying = std::make_unique<signal_t<>>();
    dying->connect(&a, &CReceiver::Slot);
    dying->connect(&b, &CReceiver::Slot);
    a.m_Action = [&] {
        dying.reset();
        throw std::runtime_error("slot");
    };
    EXPECT_THROW((*dying)(), std::runtime_error);
    EXPECT_EQ(log, "a");
}

TEST_F(Emission, DeepInsideOthersASlotMayDeleteTheSignal)
{
    auto dying = std::make_unique<signal_t<>>();
    dying->connect(&a, &CReceiver::Slot);
    dying->connect(&b, &CReceiver::Slot);
    int depth = 0;
    a.m_Action = [&] {
        ++depth;
        if (depth < 5)
        {
            (*dying)();
            log += ".";
        }
        else
            dying.reset();
    };
    (*dying)();
    EXPECT_EQ(log, "aaaaa....") << "no b, on no level";
}

TEST_F(Emission, ADeletedSignalLeavesTheSignalsThatItIsASlotOf)
{
    signal_t<> source;
    auto dying = std::make_unique<signal_t<>>();
    source.connect(dying.get(), &signal_t<>::operator());
    source.connect(&c, &CReceiver::Slot);
    dying->connect(&a, &CReceiver::Slot);
    dying->connect(&b, &CReceiver::Slot);
    a.m_Action = [&] { dying.reset(); };
    source();
    EXPECT_EQ(log, "ac");
    EXPECT_EQ(source.connection_count(), 1u);
}

TEST_F(Emission, ASignalThatIsDeletedInItsSlotMayBeMadeAnewInTheSamePlace)
{
    alignas(signal_t<>) unsigned char place[sizeof(signal_t<>)];
    auto* made = new (place) signal_t<>;
    made->connect(&a, &CReceiver::Slot);
    made->connect(&b, &CReceiver::Slot);
    a.m_Action = [&] {
        a.m_Action = nullptr;
        std::destroy_at(made);
        made = new (place) signal_t<>;
        made->connect(&c, &CReceiver::Slot);
        (*made)();
    };
    (*made)();
    EXPECT_EQ(log, "ac") << "the old emission doesn't go on in the new signal";
    (*made)();
    EXPECT_EQ(log, "acc");
    std::destroy_at(made);
}

TEST_F(Emission, ASlotThatEmitsTheSameSignalRunsAllValidSlotsAndPurgesOnlyAfterTheOutermostOne)
{
    ConnectAll();
    std::size_t afterNested = 0;
    b.m_Action = [&] {
        b.m_Action = nullptr;
        signal.disconnect(&a, &CReceiver::Slot);
        signal();
        afterNested = signal.connection_count();
    };
    EXPECT_EQ(Emit(), "abbcc");
    EXPECT_EQ(afterNested, 3u) << "a is cleared, but the outer emission still runs";
    EXPECT_EQ(signal.connection_count(), 2u);
}

TEST_F(Emission, AnOtherReceiverThatIsDeletedIsSkipped)
{
    auto dying = std::make_unique<CReceiver>(log, "d");
    signal.connect(&a, &CReceiver::Slot);
    signal.connect(dying.get(), &CReceiver::Slot);
    signal.connect(dying.get(), &CReceiver::OtherSlot);
    signal.connect(&b, &CReceiver::Slot);
    std::size_t whileEmitting = 0;
    a.m_Action = [&] {
        dying.reset();
        whileEmitting = signal.connection_count();
    };
    EXPECT_EQ(Emit(), "ab");
    EXPECT_EQ(whileEmitting, 4u);
    EXPECT_EQ(signal.connection_count(), 2u);
}

TEST_F(Emission, EraseAllInASlotEndsIt)
{
    ConnectAll();
    std::size_t whileEmitting = 0;
    a.m_Action = [&] {
        signal._erase_all();
        whileEmitting = signal.connection_count();
    };
    EXPECT_EQ(Emit(), "a");
    EXPECT_EQ(whileEmitting, 3u);
    EXPECT_EQ(signal.connection_count(), 0u);
    EXPECT_EQ(c.signal_count(), 0u);
}

TEST_F(Emission, AnExceptionOfASlotReachesTheEmitterAndStopsThisEmissionOnly)
{
    ConnectAll();
    b.m_Action = [&] { throw std::runtime_error("slot"); };
    EXPECT_THROW(Emit(), std::runtime_error);
    EXPECT_EQ(log, "ab");
    b.m_Action = nullptr;
    EXPECT_EQ(Emit(), "abc");
}

TEST_F(Emission, AnExceptionEndsItLikeAnyOtherEnd)
{
    ConnectAll();
    b.m_Action = [&] {
        signal.disconnect(&a, &CReceiver::Slot);
        throw vexel::cancel_processing();
    };
    EXPECT_THROW(Emit(), vexel::cancel_processing);
    EXPECT_EQ(signal.connection_count(), 2u) << "what was cleared is removed";

    // It is idle again: a disconnect removes at once.
    signal.disconnect(&c, &CReceiver::Slot);
    EXPECT_EQ(signal.connection_count(), 1u);
}

TEST_F(Emission, AnExceptionThatANestedEmitterCatchesLeavesTheOuterOneRunning)
{
    ConnectAll();
    int calls = 0;
    a.m_Action = [&] {
        if (++calls != 1)
            throw 5;
        try
        {
            signal();
        }
        catch (int)
        {
            log += "!";
        }
        signal.disconnect(&b, &CReceiver::Slot);
        EXPECT_EQ(signal.connection_count(), 3u) << "still emitting";
    };
    EXPECT_EQ(Emit(), "aa!c");
    EXPECT_EQ(signal.connection_count(), 2u);
}

TEST_F(Emission, ItsArgumentsOutliveTheSignal)
{
    struct STaker : plinth::subscriber_base_t
    {
        void Take(std::string const& text, std::string value)
        {
            m_Action();
            m_Text = text + value;
        }
        std::function<void()> m_Action;
        std::string m_Text;
    } taker;
    auto dying = std::make_unique<signal_t<std::string const&, std::string>>();
    dying->connect(&taker, &STaker::Take);
    taker.m_Action = [&] { dying.reset(); };
    (*dying)("a text of some length, ", "and another one, longer than a short string");
    EXPECT_EQ(taker.m_Text, "a text of some length, and another one, longer than a short string");
}

TEST_F(Emission, ReceiversThatDieInAnEmissionWithManyConnectionsAreSkipped)
{
    // Long lists are searched in another way than short ones.
    std::vector<std::unique_ptr<CReceiver>> many;
    for (int i = 0; i < 100; ++i)
    {
        many.push_back(std::make_unique<CReceiver>(log, i % 10 == 0 ? "x" : "."));
        signal.connect(many.back().get(), &CReceiver::Slot);
    }
    many[0]->m_Action = [&] {
        for (std::size_t i = 1; i < 100; ++i)
        {
            if (i % 10 != 0)
                many[i].reset();
        }
        signal.disconnect(many[50].get(), &CReceiver::Slot);
        signal.connect(many[50].get(), &CReceiver::Slot);
        many[0]->m_Action = nullptr;
    };
    EXPECT_EQ(Emit(), "xxxxxxxxxx");
    EXPECT_EQ(signal.connection_count(), 10u);
    EXPECT_EQ(Emit(), "xxxxxxxxxx");
}

}  // namespace
