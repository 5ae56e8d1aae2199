#include "vexel/signals/connection.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

using vexel::CConnection;
using vexel::signal_t;

namespace
{

TEST(Connection, RunsItsClosureWithTheArgumentsOfTheSignal)
{
    signal_t<std::string const&, bool&> signal;
    std::string text;
    CConnection const connection(signal, [&](std::string const& value, bool& flag) {
        text = value;
        flag = true;
    });
    bool flag = false;
    signal("value", flag);
    EXPECT_EQ(text, "value");
    EXPECT_TRUE(flag);
}

TEST(Connection, EndsWithItsObject)
{
    signal_t<> signal;
    int calls = 0;
    {
        CConnection const connection(signal, [&] { ++calls; });
        signal();
    }
    signal();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(signal.connection_count(), 0u);
}

TEST(Connection, OutlivesTheSignalAndKnowsIt)
{
    CConnection connection;
    EXPECT_FALSE(connection.IsConnected());
    {
        signal_t<> signal;
        connection = CConnection(signal, [] {});
        EXPECT_TRUE(connection.IsConnected());
    }
    EXPECT_FALSE(connection.IsConnected());
    connection.Disconnect();
    connection.Disconnect();
}

TEST(Connection, MayBeMovedAndReplaced)
{
    signal_t<> signal;
    std::string log;
    CConnection first(signal, [&] { log += "1"; });
    CConnection second(signal, [&] { log += "2"; });
    CConnection moved = std::move(first);
    signal();
    EXPECT_EQ(log, "12");
    second = std::move(moved);
    signal();
    EXPECT_EQ(log, "121");
    EXPECT_EQ(signal.connection_count(), 1u);
}

TEST(Connection, MayEndItselfWhileItsClosureRuns)
{
    signal_t<> signal;
    auto kept = std::make_shared<std::string>("kept");
    std::string seen;
    CConnection connection;
    connection = CConnection(signal, [&, kept] {
        connection.Disconnect();
        seen = *kept;
    });
    signal();
    signal();
    EXPECT_EQ(seen, "kept");
    EXPECT_EQ(kept.use_count(), 1) << "the closure is gone";
}

TEST(Connection, KeepsAStateOfItsClosure)
{
    signal_t<int> signal;
    int last = 0;
    CConnection const connection(signal, [&last, sum = 0](int value) mutable { last = sum += value; });
    signal(2);
    signal(3);
    EXPECT_EQ(last, 5);
}

TEST(Connection, TwoOfTheSameClosureAreTwoConnections)
{
    signal_t<> signal;
    int calls = 0;
    auto const closure = [&] { ++calls; };
    CConnection const first(signal, closure), second(signal, closure);
    signal();
    EXPECT_EQ(calls, 2);
}

}  // namespace
