#include "bench/signals/cases.h"
#include "vexel/signals/signal.h"

#include <sigc++/sigc++.h>

namespace bench_signals
{

namespace
{

struct receiver_base
{
    long sum = 0;
    virtual ~receiver_base() = default;
    __attribute__((noinline)) void slot(int value)
    {
        sum += value;
        benchmark::ClobberMemory();
    }
};

struct vexel_peer
{
    using Signal = vexel::signal_t<int>;
    struct Receiver : vexel::subscriber_base_t
    {
        long sum = 0;
        __attribute__((noinline)) void slot(int value)
        {
            sum += value;
            benchmark::ClobberMemory();
        }
    };
    struct Handle
    {};

    static Handle connect(Signal& signal, Receiver& receiver)
    {
        signal.connect(&receiver, &Receiver::slot);
        return {};
    }
    static void disconnect(Signal& signal, Receiver& receiver, Handle&)
    {
        signal.disconnect(&receiver, &Receiver::slot);
    }
    static void emit_one(Signal& signal) { signal(1); }
};

/// Receivers that leave their signals when they die, as vexel's do.
struct sigc_trackable_peer
{
    using Signal = sigc::signal<void(int)>;
    struct Receiver : receiver_base, sigc::trackable
    {};
    using Handle = sigc::connection;

    static Handle connect(Signal& signal, Receiver& receiver)
    {
        return signal.connect(sigc::mem_fun(receiver, &Receiver::slot));
    }
    static void disconnect(Signal&, Receiver&, Handle& handle) { handle.disconnect(); }
    static void emit_one(Signal& signal) { signal(1); }
};

/// Receivers that may not die before their signals.
struct sigc_peer
{
    using Signal = sigc::signal<void(int)>;
    using Receiver = receiver_base;
    using Handle = sigc::connection;

    static Handle connect(Signal& signal, Receiver& receiver)
    {
        return signal.connect(sigc::mem_fun(receiver, &Receiver::slot));
    }
    static void disconnect(Signal&, Receiver&, Handle& handle) { handle.disconnect(); }
    static void emit_one(Signal& signal) { signal(1); }
};

void sigc_untracked_cases()
{
    for (int count : {0, 1, 10, 100})
        benchmark::RegisterBenchmark(("signals/emit_to_" + std::to_string(count) + "/sigc_untracked").c_str(),
                                     [count](benchmark::State& state) { emit<sigc_peer>(state, count); });
    for (int others : {0, 1000})
        benchmark::RegisterBenchmark(
            ("signals/connect_disconnect_" + std::to_string(others) + "_others/sigc_untracked").c_str(),
            [others](benchmark::State& state) { connect_disconnect<sigc_peer>(state, others); });
}

void lock_cases()
{
    benchmark::RegisterBenchmark("signals/lock/vexel", [](benchmark::State& state) {
        plinth::threading::mutex_t mutex;
        for (auto _ : state)
        {
            mutex.acquire();
            benchmark::ClobberMemory();
            mutex.release();
        }
    });
}

bool const registered = [] {
    register_cases<vexel_peer>("vexel");
    register_cases<sigc_trackable_peer>("sigc");
    sigc_untracked_cases();
    lock_cases();
    return true;
}();

}  // namespace

}  // namespace bench_signals
