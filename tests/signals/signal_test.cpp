#include "vexel/signals/signal.h"

#include "tests/signals/receiver.h"
#include "tests/signals/reports.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

using plinth::connection_t;
using plinth::signal_base_t;
using plinth::signal_t;
using plinth::subscriber_base_t;
using signals_test::CReceiver;
using signals_test::CReports;

namespace
{

static_assert(sizeof(signal_t<>) == 2 * sizeof(void*), "a virtual table and one word");
static_assert(sizeof(signal_t<int, std::string const&, bool*>) == 2 * sizeof(void*));
static_assert(sizeof(subscriber_base_t) == 2 * sizeof(void*));
static_assert(sizeof(connection_t) == 5 * sizeof(void*));
static_assert(std::is_base_of_v<subscriber_base_t, signal_base_t>);
static_assert(std::is_base_of_v<signal_base_t, plinth::signal_templ<plinth::dummy_t, plinth::dummy_t, int>>);
static_assert(
    std::is_base_of_v<plinth::signal_templ<plinth::dummy_t, plinth::dummy_t, int, char>, signal_t<int, char>>);
static_assert(
    std::is_same_v<signal_t<int>, plinth::_internal::signal_t<int, plinth::dummy_t, plinth::dummy_t, plinth::dummy_t,
                                                              plinth::dummy_t, plinth::dummy_t>>);
static_assert(std::is_same_v<vexel::signal_t<int>, signal_t<int>>);
static_assert(std::has_virtual_destructor_v<subscriber_base_t> && std::has_virtual_destructor_v<signal_base_t>);
static_assert(!std::is_copy_constructible_v<signal_t<>> && !std::is_copy_assignable_v<signal_t<>>);

// Needs no code at the start of the program.
constinit signal_t<int> s_constant;

/// Counts what happens to a value on its way to a slot.
struct SCounted
{
    SCounted() = default;
    SCounted(SCounted const& other) : text(other.text), copies(other.copies + 1), moves(other.moves) {}
    SCounted(SCounted&& other) noexcept : text(std::move(other.text)), copies(other.copies), moves(other.moves + 1) {}
    SCounted& operator=(SCounted const&) = delete;

    std::string text = "whole";
    int copies = 0;
    int moves = 0;
};

class CTaker : public subscriber_base_t
{
public:
    void TakeReference(SCounted const& value) { m_Address = &value; }
    void TakeValue(SCounted value)
    {
        m_Text += value.text;
        m_Copies = value.copies;
    }
    void TakeSix(int a, char const* b, std::string const& c, bool& d, double e, CTaker* f)
    {
        m_Text = std::to_string(a) + b + c + (d ? "true" : "false") + std::to_string(static_cast<int>(e));
        d = !d;
        m_Address = f;
    }
    void Refuse(bool* accepted) { *accepted = false; }
    void Append(std::string& text) { text += "+"; }
    void TakeLong(long value) { m_Long = value; }
    void TakeView(std::string text) { m_Text += text; }

    void const* m_Address = nullptr;
    std::string m_Text;
    int m_Copies = -1;
    long m_Long = 0;
};

TEST(Signal, WithoutConnectionsCallsNothing)
{
    signal_t<> signal;
    signal();
    EXPECT_EQ(signal.connection_count(), 0u);
}

TEST(Signal, WhoseLastSlotHasLeftCallsNothing)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::Slot);
    signal.disconnect(&a, &CReceiver::Slot);
    signal();
    EXPECT_EQ(log, "");
}

TEST(Signal, CallsItsSlotsInTheOrderOfConnection)
{
    std::string log;
    CReceiver a(log, "a"), b(log, "b"), c(log, "c");
    signal_t<> signal;
    signal.connect(&b, &CReceiver::Slot);
    signal.connect(&c, &CReceiver::Slot);
    signal.connect(&a, &CReceiver::Slot);
    signal();
    EXPECT_EQ(log, "bca");
}

TEST(Signal, PutsASlotThatLeftAndCameAgainLast)
{
    std::string log;
    CReceiver a(log, "a"), b(log, "b");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::Slot);
    signal.connect(&b, &CReceiver::Slot);
    signal.disconnect(&a, &CReceiver::Slot);
    signal.connect(&a, &CReceiver::Slot);
    signal();
    EXPECT_EQ(log, "ba");
}

TEST(Signal, KeepsTheOrderOfTheOthersWhenOneLeaves)
{
    std::string log;
    CReceiver a(log, "a"), b(log, "b"), c(log, "c"), d(log, "d");
    signal_t<> signal;
    for (CReceiver* receiver : {&a, &b, &c, &d})
        signal.connect(receiver, &CReceiver::Slot);
    signal.disconnect(&b, &CReceiver::Slot);
    signal();
    EXPECT_EQ(log, "acd");
}

TEST(Signal, CallsTwoMemberFunctionsOfOneReceiver)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::OtherSlot);
    signal.connect(&a, &CReceiver::Slot);
    signal();
    EXPECT_EQ(log, "a'a");
    signal.disconnect(&a, &CReceiver::Slot);
    signal.disconnect(&a, &CReceiver::OtherSlot);
}

TEST(Signal, CallsConstMemberFunctionsAndDropsResults)
{
    std::string log;
    CReceiver a(log, "a"), b(log, "b");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::ConstSlot);
    signal.connect(&b, &CReceiver::SlotWithResult);
    signal();
    EXPECT_EQ(log, "ab");
}

TEST(Signal, MayStandInAConstObjectAndBeEmitted)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::Slot);
    signal_t<> const& same = signal;
    same();
    EXPECT_EQ(log, "a");
}

TEST(Signal, MayBeAConstantInitializedGlobal)
{
    CTaker taker;
    s_constant.connect(&taker, &CTaker::TakeLong);
    s_constant(5);
    EXPECT_EQ(taker.m_Long, 5);
    s_constant.disconnect(&taker, &CTaker::TakeLong);
}

// Arguments -----------------------------------------------------------------------------------------------------------

TEST(SignalArguments, AConstReferenceReachesTheSlotAsTheVeryObject)
{
    signal_t<SCounted const&> signal;
    CTaker taker;
    signal.connect(&taker, &CTaker::TakeReference);
    SCounted const value;
    signal(value);
    EXPECT_EQ(taker.m_Address, &value);
}

TEST(SignalArguments, AValueIsCopiedForEachSlotAndNotUsedUpByTheFirst)
{
    signal_t<SCounted> signal;
    CTaker first, second;
    signal.connect(&first, &CTaker::TakeValue);
    signal.connect(&second, &CTaker::TakeValue);
    signal(SCounted());
    EXPECT_EQ(first.m_Text, "whole");
    EXPECT_EQ(second.m_Text, "whole");
    EXPECT_EQ(first.m_Copies, 1);
    EXPECT_EQ(second.m_Copies, 1);
}

TEST(SignalArguments, AValueMayBeTakenByConstReference)
{
    signal_t<std::string> signal;
    CTaker taker;
    signal.connect(&taker, &CTaker::TakeView);
    signal("text");
    signal("s");
    EXPECT_EQ(taker.m_Text, "texts");
}

TEST(SignalArguments, SixOfThemArriveUntouchedAndInOrder)
{
    signal_t<int, char const*, std::string const&, bool&, double, CTaker*> signal;
    CTaker taker;
    signal.connect(&taker, &CTaker::TakeSix);
    bool flag = true;
    signal(1, "two", "three", flag, 5.0, &taker);
    EXPECT_EQ(taker.m_Text, "1twothreetrue5");
    EXPECT_FALSE(flag);
    EXPECT_EQ(taker.m_Address, &taker);
}

TEST(SignalArguments, APointerToABoolLetsAReceiverRefuse)
{
    signal_t<bool*> signal;
    CTaker taker;
    signal.connect(&taker, &CTaker::Refuse);
    bool accepted = true;
    signal(&accepted);
    EXPECT_FALSE(accepted);
}

TEST(SignalArguments, AReferenceIsChangedByEachSlotInTurn)
{
    signal_t<std::string&> signal;
    CTaker first, second;
    signal.connect(&first, &CTaker::Append);
    signal.connect(&second, &CTaker::Append);
    std::string text = "x";
    signal(text);
    EXPECT_EQ(text, "x++");
}

TEST(SignalArguments, ASlotMayTakeThemConverted)
{
    signal_t<int> signal;
    CTaker taker;
    signal.connect(&taker, &CTaker::TakeLong);
    signal(-3);
    EXPECT_EQ(taker.m_Long, -3);
}

// Receivers -----------------------------------------------------------------------------------------------------------

class CFirstBase
{
public:
    virtual ~CFirstBase() = default;
    long m_Padding = 0;
};

class CMixIn
{
public:
    virtual ~CMixIn() = default;
    virtual void MixedIn() { m_Calls = "mix-in " + std::to_string(m_Number); }
    void Plain() { m_Calls = "plain " + std::to_string(m_Number); }

    int m_Number = 42;
    std::string m_Calls;
};

class CBaseReceiver : public CFirstBase, public subscriber_base_t
{
public:
    virtual void Virtual() { m_Called = "base"; }
    void NotVirtual() { m_Called = "not virtual"; }

    std::string m_Called;
};

class CDerivedReceiver : public CBaseReceiver, public CMixIn
{
public:
    void Virtual() override { m_Called = "derived"; }
    void MixedIn() override { m_Called = "overridden " + std::to_string(m_Number); }
};

TEST(SignalReceiver, AVirtualMemberFunctionIsCalledVirtually)
{
    CDerivedReceiver receiver;
    signal_t<> signal;
    signal.connect(static_cast<CBaseReceiver*>(&receiver), &CBaseReceiver::Virtual);
    signal();
    EXPECT_EQ(receiver.m_Called, "derived");
}

TEST(SignalReceiver, MemberFunctionsOfABaseThatIsNoSubscriberAreCalledOnThatBase)
{
    CDerivedReceiver receiver;
    signal_t<> plain;
    plain.connect(&receiver, &CDerivedReceiver::Plain);
    plain();
    EXPECT_EQ(receiver.m_Calls, "plain 42");

    signal_t<> virtually;
    virtually.connect(&receiver, &CMixIn::MixedIn);
    virtually();
    EXPECT_EQ(receiver.m_Called, "overridden 42");
}

TEST(SignalReceiver, IsTheSameWhetherNamedByItsOwnClassOrItsBase)
{
    CDerivedReceiver receiver;
    CReports reports;
    signal_t<> signal;
    signal.connect(&receiver, &CBaseReceiver::NotVirtual);
    signal.connect(static_cast<CBaseReceiver*>(&receiver), &CBaseReceiver::NotVirtual);
    EXPECT_EQ(reports.Count(), 1u) << "the second one is the first one again";
    signal.disconnect(static_cast<CBaseReceiver*>(&receiver), &CDerivedReceiver::NotVirtual);
    EXPECT_EQ(signal.connection_count(), 0u);
    EXPECT_EQ(reports.Count(), 1u);
}

TEST(SignalReceiver, ThatDiesLeavesAllItsSignals)
{
    std::string log;
    signal_t<> one, two;
    CReceiver stays(log, "s");
    {
        CReceiver dies(log, "d");
        one.connect(&dies, &CReceiver::Slot);
        one.connect(&stays, &CReceiver::Slot);
        one.connect(&dies, &CReceiver::OtherSlot);
        two.connect(&dies, &CReceiver::Slot);
    }
    one();
    two();
    EXPECT_EQ(log, "s");
    EXPECT_EQ(one.connection_count(), 1u);
    EXPECT_EQ(two.connection_count(), 0u);
}

TEST(SignalReceiver, ForgetsASignalThatDies)
{
    std::string log;
    CReceiver a(log, "a");
    {
        signal_t<> signal;
        signal.connect(&a, &CReceiver::Slot);
        EXPECT_EQ(a.count_signal(&signal), 1u);
    }
    EXPECT_EQ(a.signal_count(), 0u);
}

TEST(SignalReceiver, NotesASignalOncePerConnection)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> signal, other;
    signal.connect(&a, &CReceiver::Slot);
    signal.connect(&a, &CReceiver::OtherSlot);
    other.connect(&a, &CReceiver::Slot);
    EXPECT_EQ(a.count_signal(&signal), 2u);
    EXPECT_EQ(a.count_signal(&other), 1u);
    EXPECT_EQ(a.signal_count(), 3u);
}

TEST(SignalReceiver, WithTwoConnectionsThatDisconnectsOneNoLongerListsTheSignal)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::Slot);
    signal.connect(&a, &CReceiver::OtherSlot);
    signal.disconnect(&a, &CReceiver::Slot);
    EXPECT_EQ(a.count_signal(&signal), 0u);

    // The signal still holds the other connection.
    EXPECT_EQ(signal.connection_count(), 1u);
    signal();
    EXPECT_EQ(log, "a'");
    signal.disconnect(&a, &CReceiver::OtherSlot);
}

TEST(SignalReceiver, OfManySignalsWithTwoConnectionsToOneForgetsBothNotesOfItToo)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> signals[40];
    for (signal_t<>& signal : signals)
    {
        signal.connect(&a, &CReceiver::Slot);
        signal.connect(&a, &CReceiver::OtherSlot);
    }

    signals[20].disconnect(&a, &CReceiver::Slot);

    EXPECT_EQ(a.count_signal(&signals[20]), 0u);
    EXPECT_EQ(a.signal_count(), 78u);
    signals[20].disconnect(&a, &CReceiver::OtherSlot);
}

TEST(SignalReceiver, ThatForgotTheSignalAndConnectsAgainLeavesWithAllItsConnections)
{
    std::string log;
    signal_t<> signal;
    {
        CReceiver a(log, "a");
        signal.connect(&a, &CReceiver::Slot);
        signal.connect(&a, &CReceiver::OtherSlot);
        signal.disconnect(&a, &CReceiver::Slot);
        signal.connect(&a, &CReceiver::Slot);
        EXPECT_EQ(a.count_signal(&signal), 1u);
        signal();
        EXPECT_EQ(log, "a'a");
    }
    EXPECT_EQ(signal.connection_count(), 0u);
    signal();
    EXPECT_EQ(log, "a'a");
}

TEST(SignalReceiver, MayLeaveAllSignalsAndLive)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> one, two;
    one.connect(&a, &CReceiver::Slot);
    two.connect(&a, &CReceiver::Slot);
    a.disconnect_all_signals();
    one();
    two();
    EXPECT_EQ(log, "");
    EXPECT_EQ(a.signal_count(), 0u);
    one.connect(&a, &CReceiver::Slot);
    one();
    EXPECT_EQ(log, "a");
}

TEST(Signal, EraseAllLeavesEveryReceiverWithoutIt)
{
    std::string log;
    CReceiver a(log, "a"), b(log, "b");
    signal_t<> signal, other;
    signal.connect(&a, &CReceiver::Slot);
    signal.connect(&a, &CReceiver::OtherSlot);
    signal.connect(&b, &CReceiver::Slot);
    other.connect(&a, &CReceiver::Slot);
    signal._erase_all();
    EXPECT_EQ(signal.connection_count(), 0u);
    EXPECT_EQ(a.count_signal(&signal), 0u);
    EXPECT_EQ(a.count_signal(&other), 1u);
    EXPECT_EQ(b.signal_count(), 0u);
    signal();
    EXPECT_EQ(log, "");
}

TEST(Signal, EraseAllOfAnUnconnectedOneDoesNothing)
{
    signal_t<> signal;
    signal._erase_all();
    EXPECT_EQ(signal.connection_count(), 0u);
}

// Signals as slots ----------------------------------------------------------------------------------------------------

TEST(SignalAsSlot, IsEmittedByTheSignalThatItIsConnectedTo)
{
    std::string log;
    CReceiver a(log, "a"), b(log, "b");
    signal_t<> first, second;
    first.connect(&a, &CReceiver::Slot);
    first.connect(&second, &signal_t<>::operator());
    second.connect(&b, &CReceiver::Slot);
    first();
    EXPECT_EQ(log, "ab");
    second();
    EXPECT_EQ(log, "abb");
    first.disconnect(&second, &signal_t<>::operator());
    first();
    EXPECT_EQ(log, "abba");
}

TEST(SignalAsSlot, HandsOnItsArguments)
{
    signal_t<std::string&, int> first, second;
    first.connect(&second, &signal_t<std::string&, int>::operator());
    class CTakesBoth : public subscriber_base_t
    {
    public:
        void Take(std::string& text, int number) { text += std::to_string(number); }
    } receiver;
    second.connect(&receiver, &CTakesBoth::Take);
    std::string text = "n";
    first(text, 12);
    EXPECT_EQ(text, "n12");
}

TEST(SignalAsSlot, ThatDiesLeavesTheSignalsThatItIsConnectedTo)
{
    signal_t<> first;
    {
        signal_t<> second;
        first.connect(&second, &signal_t<>::operator());
        EXPECT_EQ(second.count_signal(&first), 1u);
        EXPECT_EQ(first.connection_count(), 1u);
    }
    EXPECT_EQ(first.connection_count(), 0u);
    first();
}

TEST(SignalAsSlot, ThatIsConnectedToButConnectsNothingItselfIsStillEmpty)
{
    signal_t<> first, second;
    first.connect(&second, &signal_t<>::operator());
    first();
    second();
    EXPECT_EQ(second.connection_count(), 0u);
}

TEST(SignalAsSlot, MayOutliveTheSignalThatEmitsIt)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> second;
    second.connect(&a, &CReceiver::Slot);
    {
        signal_t<> first;
        first.connect(&second, &signal_t<>::operator());
        first();
    }
    EXPECT_EQ(second.signal_count(), 0u);
    second();
    EXPECT_EQ(log, "aa");
}

TEST(SignalAsSlot, MayBeItsOwnAndDies)
{
    std::string log;
    signal_t<> signal;
    signal.connect(&signal, &signal_t<>::operator());
    EXPECT_EQ(signal.connection_count(), 1u);
    EXPECT_EQ(signal.count_signal(&signal), 1u);
}

// Equality ------------------------------------------------------------------------------------------------------------

TEST(ConnectionRecord, IsTheSameForReceiverAndMethodAlone)
{
    std::string log;
    CReceiver a(log, "a");
    connection_t one;
    one.m_receiver = &log;
    one.m_method = {16, 8};
    connection_t two = one;
    two.m_subscriber = &a;
    two.m_caster = reinterpret_cast<void (*)()>(&std::terminate);
    EXPECT_TRUE(one == two);

    two = one;
    two.m_receiver = &a;
    EXPECT_FALSE(one == two);

    two = one;
    two.m_method.m_function = 17;
    EXPECT_FALSE(one == two);

    two = one;
    two.m_method.m_adjustment = 0;
    EXPECT_FALSE(one == two);
}

TEST(Signal, EraseTellsTheSubscriberOfItsArgument)
{
    // A connection that stands for one subscriber, and a namesake that stands for another one.
    std::string log;
    CReceiver stored(log, "s"), told(log, "t");
    class COpen : public signal_t<>
    {
    } signal;
    connection_t connection;
    connection.m_receiver = &log;
    connection.m_subscriber = &stored;
    signal._insert(connection);
    connection.m_subscriber = &told;
    told.on_connect(&signal);
    signal._erase(connection);
    EXPECT_EQ(signal.connection_count(), 0u);
    EXPECT_EQ(stored.count_signal(&signal), 1u);
    EXPECT_EQ(told.count_signal(&signal), 0u);
    stored.on_disconnect(&signal);

    connection.m_subscriber = &stored;
    signal._insert(connection);
    connection.m_subscriber = nullptr;
    signal._erase(connection);
    EXPECT_EQ(signal.connection_count(), 0u) << "nobody is told then";
    EXPECT_EQ(stored.count_signal(&signal), 1u);
    stored.on_disconnect(&signal);
}

// Many ----------------------------------------------------------------------------------------------------------------

TEST(Signal, WithAThousandConnectionsKeepsTheirOrderWhileEveryThirdLeaves)
{
    struct SNumbered : subscriber_base_t
    {
        SNumbered(std::vector<int>& calls, int number) : m_Calls(calls), m_Number(number) {}
        void Slot() { m_Calls.push_back(m_Number); }

        std::vector<int>& m_Calls;
        int m_Number;
    };
    std::vector<int> calls;
    std::vector<std::unique_ptr<SNumbered>> receivers;
    signal_t<> signal;
    CReports reports;
    for (int i = 0; i < 1000; ++i)
    {
        receivers.push_back(std::make_unique<SNumbered>(calls, i));
        signal.connect(receivers.back().get(), &SNumbered::Slot);
    }
    signal.connect(receivers[999].get(), &SNumbered::Slot);
    EXPECT_EQ(reports.Count(), 1u) << "a duplicate is found among many";
    for (std::size_t i = 0; i < 1000; i += 3)
    {
        if (i % 2 == 0)
            signal.disconnect(receivers[i].get(), &SNumbered::Slot);
        else
            receivers[i].reset();
    }
    signal.disconnect(receivers[0].get(), &SNumbered::Slot);
    EXPECT_EQ(reports.Count(), 2u) << "one that has left is not found";

    EXPECT_EQ(signal.connection_count(), 666u);
    signal();
    ASSERT_EQ(calls.size(), 666u);
    EXPECT_EQ(calls[0], 1);
    EXPECT_EQ(calls[1], 2);
    EXPECT_EQ(calls[2], 4);
    EXPECT_EQ(calls[665], 998);
    for (std::size_t i = 1; i < calls.size(); ++i)
        EXPECT_LT(calls[i - 1], calls[i]);
}

TEST(SignalReceiver, OfAThousandSignalsForgetsExactlyThoseThatDie)
{
    std::string log;
    CReceiver hub(log, "h");
    std::vector<std::unique_ptr<signal_t<>>> signals;
    for (int i = 0; i < 1000; ++i)
    {
        signals.push_back(std::make_unique<signal_t<>>());
        signals.back()->connect(&hub, &CReceiver::Slot);
    }
    signals[10]->connect(&hub, &CReceiver::OtherSlot);
    EXPECT_EQ(hub.signal_count(), 1001u);
    for (std::size_t i = 0; i < 1000; i += 2)
        signals[i].reset();
    EXPECT_EQ(hub.signal_count(), 500u);
    EXPECT_EQ(hub.count_signal(signals[11].get()), 1u);
    (*signals[11])();
    (*signals[999])();
    EXPECT_EQ(log, "hh");
    hub.disconnect_all_signals();
    (*signals[11])();
    EXPECT_EQ(log, "hh");
    EXPECT_EQ(signals[999]->connection_count(), 0u);

    signals[11]->connect(&hub, &CReceiver::Slot);
    signals[13]->connect(&hub, &CReceiver::Slot);
    EXPECT_EQ(hub.signal_count(), 2u);
    signals[11]->disconnect(&hub, &CReceiver::Slot);
    EXPECT_EQ(hub.signal_count(), 1u);
    EXPECT_EQ(hub.count_signal(signals[13].get()), 1u);
}

}  // namespace
