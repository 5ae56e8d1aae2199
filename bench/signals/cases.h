#pragma once

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

// The cases are the same for each peer. A peer is a class with
//   Signal                         the object that sends
//   Receiver                       has void slot(int), which adds to a sum and is not inlined
//   Handle                         what a connect returns
//   static Handle connect(Signal&, Receiver&)
//   static void disconnect(Signal&, Receiver&, Handle&)
//   static void emit_one(Signal&)  emits the value 1
// Cases are named signals/<case>/<peer>.
namespace bench_signals
{

template <class Peer> struct connected
{
    typename Peer::Signal m_signal;
    std::vector<std::unique_ptr<typename Peer::Receiver>> m_receivers;

    explicit connected(int count)
    {
        for (int i = 0; i < count; ++i)
        {
            m_receivers.push_back(std::make_unique<typename Peer::Receiver>());
            Peer::connect(m_signal, *m_receivers.back());
        }
    }
};

template <class Peer> void emit(benchmark::State& state, int count)
{
    connected<Peer> all(count);
    for (auto _ : state)
    {
        Peer::emit_one(all.m_signal);
        benchmark::ClobberMemory();
    }
}

/// One more receiver comes and goes.
template <class Peer> void connect_disconnect(benchmark::State& state, int others)
{
    connected<Peer> all(others);
    typename Peer::Receiver mine;
    for (auto _ : state)
    {
        typename Peer::Handle handle = Peer::connect(all.m_signal, mine);
        benchmark::ClobberMemory();
        Peer::disconnect(all.m_signal, mine, handle);
    }
}

/// One receiver has so many other senders, and one more comes and goes.
template <class Peer> void connect_disconnect_hub(benchmark::State& state, int senders)
{
    std::vector<std::unique_ptr<typename Peer::Signal>> others;
    typename Peer::Receiver hub;
    for (int i = 0; i < senders; ++i)
    {
        others.push_back(std::make_unique<typename Peer::Signal>());
        Peer::connect(*others.back(), hub);
    }
    typename Peer::Signal mine;
    for (auto _ : state)
    {
        typename Peer::Handle handle = Peer::connect(mine, hub);
        benchmark::ClobberMemory();
        Peer::disconnect(mine, hub, handle);
    }
}

template <class Peer> void construct_destroy(benchmark::State& state)
{
    for (auto _ : state)
    {
        typename Peer::Signal signal;
        benchmark::DoNotOptimize(&signal);
        benchmark::ClobberMemory();
    }
}

/// A signal and a receiver are made, connected and destroyed.
template <class Peer> void whole_life(benchmark::State& state)
{
    for (auto _ : state)
    {
        typename Peer::Signal signal;
        typename Peer::Receiver receiver;
        Peer::connect(signal, receiver);
        benchmark::ClobberMemory();
    }
}

/// So many receivers of one signal die, in the order of their coming. Time per receiver.
template <class Peer> void receivers_die(benchmark::State& state, int count)
{
    for (auto _ : state)
    {
        state.PauseTiming();
        auto all = std::make_unique<connected<Peer>>(count);
        state.ResumeTiming();
        for (auto& receiver : all->m_receivers)
            receiver.reset();
        state.PauseTiming();
        all.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * count);
}

template <class Peer> void register_cases(std::string const& peer, bool is_sender_whole_object = false)
{
    for (int count : {0, 1, 10, 100})
        benchmark::RegisterBenchmark(("signals/emit_to_" + std::to_string(count) + "/" + peer).c_str(),
                                     [count](benchmark::State& state) { emit<Peer>(state, count); });
    for (int others : {0, 10, 1000})
        benchmark::RegisterBenchmark(
            ("signals/connect_disconnect_" + std::to_string(others) + "_others/" + peer).c_str(),
            [others](benchmark::State& state) { connect_disconnect<Peer>(state, others); });
    benchmark::RegisterBenchmark(("signals/connect_disconnect_of_a_receiver_with_1000_senders/" + peer).c_str(),
                                 [](benchmark::State& state) { connect_disconnect_hub<Peer>(state, 1000); });
    // A sender that is a whole object of its toolkit stands for more than a signal.
    std::string const whole = is_sender_whole_object ? "_object" : "";
    benchmark::RegisterBenchmark(("signals/construct_destroy/" + peer + whole).c_str(), construct_destroy<Peer>);
    benchmark::RegisterBenchmark(("signals/connect_once_and_destroy/" + peer + whole).c_str(), whole_life<Peer>);
    benchmark::RegisterBenchmark(("signals/receivers_die_10000_at_one_signal/" + peer).c_str(),
                                 [](benchmark::State& state) { receivers_die<Peer>(state, 10000); })
        ->Unit(benchmark::kMicrosecond);
}

}  // namespace bench_signals
