#include "tests/signals/receiver.h"
#include "tests/signals/reports.h"
#include "vexel/signals/signal.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

using plinth::signal_t;
using signals_test::CReceiver;
using signals_test::CReports;

namespace
{

char const* const duplicate_expression = "\"signal_t::_insert: this connection is already exists.\" == NULL";
char const* const unknown_expression =
    "\"signal_t::disconnect: attempt to disconnect unknown connection\" && subscriber_found";

/// Whether another thread can take the signal's mutex, that is, nobody has kept it.
bool IsFree(signal_t<>& signal)
{
    std::size_t count = 0;
    std::thread other([&] { count = signal.connection_count() + 1; });
    other.join();
    return count != 0;
}

TEST(SignalAssertion, ConnectingTwiceMakesOneConnectionAndOneReport)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> signal;
    CReports reports;
    signal.connect(&a, &CReceiver::Slot);
    signal.connect(&a, &CReceiver::Slot);

    ASSERT_EQ(reports.Count(), 1u);
    EXPECT_EQ(reports.All()[0].expression, duplicate_expression);
    EXPECT_EQ(reports.All()[0].source, "functor/signal");
    EXPECT_EQ(reports.All()[0].line, 299);
    EXPECT_EQ(reports.All()[0].function, "void plinth::_internal::signal_base_t::_insert(const connection_t &)");

    EXPECT_EQ(signal.connection_count(), 1u);
    EXPECT_EQ(a.signal_count(), 1u);
    signal();
    EXPECT_EQ(log, "a");
    EXPECT_TRUE(IsFree(signal));
}

TEST(SignalAssertion, DisconnectingWhatWasNeverConnectedIsReportedAndChangesNothing)
{
    std::string log;
    CReceiver a(log, "a"), b(log, "b");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::Slot);
    CReports reports;
    signal.disconnect(&b, &CReceiver::Slot);
    signal.disconnect(&a, &CReceiver::OtherSlot);

    ASSERT_EQ(reports.Count(), 2u);
    for (signals_test::SReport const& report : reports.All())
    {
        EXPECT_EQ(report.expression, unknown_expression);
        EXPECT_EQ(report.source, "functor/signal");
        EXPECT_EQ(report.line, 314);
        EXPECT_EQ(report.function, "void plinth::_internal::signal_base_t::_erase(const connection_t &)");
    }
    EXPECT_EQ(a.count_signal(&signal), 1u) << "an unknown connection of a known receiver tells it nothing";
    signal();
    EXPECT_EQ(log, "a");
    EXPECT_TRUE(IsFree(signal));
}

TEST(SignalAssertion, DisconnectingFromAnEmptyListIsReported)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> never, once;
    once.connect(&a, &CReceiver::Slot);
    once.disconnect(&a, &CReceiver::Slot);
    CReports reports;
    never.disconnect(&a, &CReceiver::Slot);
    EXPECT_EQ(reports.Count(), 1u);
    once.disconnect(&a, &CReceiver::Slot);
    ASSERT_EQ(reports.Count(), 2u);
    EXPECT_EQ(reports.All()[0].line, 314);
    EXPECT_EQ(reports.All()[1].line, 314);
    EXPECT_EQ(never.connection_count(), 0u);
    EXPECT_EQ(once.connection_count(), 0u);
}

TEST(SignalAssertion, ADisconnectThatFollowsOneInTheSameEmissionIsUnknown)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::Slot);
    CReports reports;
    a.m_Action = [&] {
        signal.disconnect(&a, &CReceiver::Slot);
        signal.disconnect(&a, &CReceiver::Slot);
    };
    signal();
    ASSERT_EQ(reports.Count(), 1u);
    EXPECT_EQ(reports.All()[0].line, 314);
    EXPECT_EQ(signal.connection_count(), 0u);
}

TEST(SignalAssertion, RemovingTheClearedOnesDuringAnEmissionIsReportedAndDoneAllTheSame)
{
    std::string log;
    CReceiver a(log, "a"), b(log, "b"), c(log, "c");
    signal_t<> signal;
    for (CReceiver* receiver : {&a, &b, &c})
        signal.connect(receiver, &CReceiver::Slot);
    CReports reports;
    std::size_t whileEmitting = 0;
    a.m_Action = [&] {
        signal.disconnect(&a, &CReceiver::Slot);
        signal.disconnect(&b, &CReceiver::Slot);
        signal.remove_invalid_connections();
        whileEmitting = signal.connection_count();
    };
    signal();
    ASSERT_EQ(reports.Count(), 1u);
    EXPECT_EQ(reports.All()[0].expression, "!m_is_valid_flag");
    EXPECT_EQ(reports.All()[0].source, "functor/signal");
    EXPECT_EQ(reports.All()[0].line, 348);
    EXPECT_EQ(reports.All()[0].function, "void plinth::_internal::signal_base_t::remove_invalid_connections() const");
    EXPECT_EQ(whileEmitting, 1u);
    EXPECT_EQ(log, "ac") << "the emission finds its way from the removed place";
    signal();
    EXPECT_EQ(log, "acc");
}

TEST(SignalAssertion, RemovingTheClearedOnesOfAnIdleSignalIsNotReported)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> unconnected, signal;
    signal.connect(&a, &CReceiver::Slot);
    CReports reports;
    unconnected.remove_invalid_connections();
    signal.remove_invalid_connections();
    EXPECT_EQ(reports.Count(), 0u);
    EXPECT_EQ(signal.connection_count(), 1u);
}

TEST(SignalAssertion, AReporterThatThrowsLeavesTheMutexFreeAndEverythingAsItWas)
{
    std::string log;
    CReceiver a(log, "a"), b(log, "b");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::Slot);
    CReports reports;
    reports.Throw();

    try
    {
        signal.connect(&a, &CReceiver::Slot);
        ADD_FAILURE() << "no exception";
    }
    catch (int line)
    {
        EXPECT_EQ(line, 299);
    }
    EXPECT_TRUE(IsFree(signal));

    try
    {
        signal.disconnect(&b, &CReceiver::Slot);
        ADD_FAILURE() << "no exception";
    }
    catch (int line)
    {
        EXPECT_EQ(line, 314);
    }
    EXPECT_TRUE(IsFree(signal));

    a.m_Action = [&] { signal.remove_invalid_connections(); };
    EXPECT_THROW(signal(), int);
    EXPECT_TRUE(IsFree(signal));

    a.m_Action = nullptr;
    log.clear();
    signal();
    EXPECT_EQ(log, "a");
}

signal_t<>* s_reported = nullptr;

TEST(SignalAssertion, AReporterMayUseTheSignal)
{
    std::string log;
    CReceiver a(log, "a");
    signal_t<> signal;
    signal.connect(&a, &CReceiver::Slot);
    CReports reports;
    s_reported = &signal;
    reports.OnReport([](int) { (*s_reported)(); });
    signal.connect(&a, &CReceiver::Slot);
    EXPECT_EQ(log, "a");
    EXPECT_TRUE(IsFree(signal));
    s_reported = nullptr;
}

// The reporter --------------------------------------------------------------------------------------------------------

int s_lastLine = 0;

void RememberLine(char const*, char const*, int line, char const*)
{
    s_lastLine = line;
}

TEST(AssertionReporter, IsReturnedWhenItIsReplaced)
{
    plinth::assertion_reporter_t const before = plinth::SetAssertionReporter(&RememberLine);
    plinth::ReportAssertion("x", "source", 12, "f()");
    EXPECT_EQ(s_lastLine, 12);
    EXPECT_EQ(plinth::SetAssertionReporter(before), &RememberLine);
}

TEST(AssertionReporter, BuiltInOnePrintsOneLineAndReturns)
{
    plinth::assertion_reporter_t const before = plinth::SetAssertionReporter(nullptr);
    testing::internal::CaptureStderr();
    plinth::ReportAssertion("a == b", "functor/signal", 299, "void f()");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "functor/signal:299: assertion failed: a == b, in void f()\n");
    EXPECT_EQ(plinth::SetAssertionReporter(before), nullptr);
}

}  // namespace
