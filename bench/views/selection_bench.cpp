// Selections of many runs, beside a sorted map and a set of indices, and the walks of models with many exceptions.

#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/item_walks.h"
#include "vexel/views/selection.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <vector>

namespace
{

using namespace vexel;

constexpr int s_Runs = 1000000;
constexpr int s_Distance = 8;  // from run to run; a run has four indices

std::vector<int> const& Starts(bool shuffled)
{
    static auto const make = [](bool shuffle) {
        std::vector<int> starts;
        for (int i = 0; i < s_Runs; ++i)
            starts.push_back(i * s_Distance);
        if (shuffle)
            std::shuffle(starts.begin(), starts.end(), std::mt19937(1));
        return starts;
    };
    static std::vector<int> const inOrder = make(false), atRandom = make(true);
    return shuffled ? atRandom : inOrder;
}

// Peers: what a selection would be without runs, and runs as begin and end in a tree --------------------------------------
struct SVexel
{
    static constexpr char const* s_Name = "vexel";
    void SelectOne(int index) { m_Selection.SetItemsSelection(index, index, true); }
    void SelectRun(int first, int last) { m_Selection.SetItemsSelection(first, last, true); }
    bool IsSelected(int index) const { return m_Selection.IsSelected(index); }
    CSelectionTmpl<int> m_Selection;
};

struct SStdMap
{
    static constexpr char const* s_Name = "std_map";
    void SelectOne(int index) { SelectRun(index, index); }
    void SelectRun(int first, int last) { m_Runs.emplace(last, first); }
    bool IsSelected(int index) const
    {
        auto const run = m_Runs.lower_bound(index);
        return run != m_Runs.end() && run->second <= index;
    }
    std::map<int, int> m_Runs;
};

struct SStdSet
{
    static constexpr char const* s_Name = "std_set";
    void SelectOne(int index) { m_Indices.insert(index); }
    void SelectRun(int first, int last)
    {
        for (int i = first; i <= last; ++i)
            m_Indices.insert(i);
    }
    bool IsSelected(int index) const { return m_Indices.count(index) > 0; }
    std::set<int> m_Indices;
};

template <class Peer> void Fill(Peer& peer, bool shuffled, bool runs)
{
    for (int const start : Starts(shuffled))
        if (runs)
            peer.SelectRun(start, start + 3);
        else
            peer.SelectOne(start);
}

template <class Peer> void Build(benchmark::State& state, bool shuffled, bool runs)
{
    Starts(shuffled);
    for (auto _ : state)
    {
        Peer peer;
        Fill(peer, shuffled, runs);
        benchmark::DoNotOptimize(peer.IsSelected(0));
    }
}

template <class Peer> void Query(benchmark::State& state)
{
    Peer peer;
    Fill(peer, false, true);
    std::mt19937 random(2);
    for (auto _ : state)
        benchmark::DoNotOptimize(peer.IsSelected(static_cast<int>(random() % (s_Runs * s_Distance))));
}

// As a paint asks: for the items of a page that follow each other.
template <class Peer> void QueryPages(benchmark::State& state)
{
    Peer peer;
    Fill(peer, false, true);
    std::mt19937 random(2);
    int index = 0, left = 0;
    for (auto _ : state)
    {
        if (--left < 0)
        {
            index = static_cast<int>(random() % (s_Runs * s_Distance));
            left = 49;
        }
        benchmark::DoNotOptimize(peer.IsSelected(index++));
    }
}

template <class Peer> void Register()
{
    auto const name = [](char const* what) { return std::string("selection/") + what + "/" + Peer::s_Name; };
    auto const slow = benchmark::kMillisecond;
    benchmark::RegisterBenchmark(name("build_ones_in_order").c_str(), Build<Peer>, false, false)->Unit(slow);
    benchmark::RegisterBenchmark(name("build_ones_at_random").c_str(), Build<Peer>, true, false)->Unit(slow);
    benchmark::RegisterBenchmark(name("build_runs_in_order").c_str(), Build<Peer>, false, true)->Unit(slow);
    benchmark::RegisterBenchmark(name("build_runs_at_random").c_str(), Build<Peer>, true, true)->Unit(slow);
    benchmark::RegisterBenchmark(name("query_a_million_runs").c_str(), Query<Peer>);
    benchmark::RegisterBenchmark(name("query_pages_of_a_million_runs").c_str(), QueryPages<Peer>);
}

// A million columns, every second with a size of its own.
void HitColumns(benchmark::State& state)
{
    CDefaultColumnViewModel columns;
    columns.SetDefaultItemSize(20);
    columns.SetCount(s_Runs);
    columns.SetViewSize(1000, false);
    for (int i = 0; i < s_Runs; i += 2)
        columns.SetItemSize(i, 30);
    int offset = 0;
    for (auto _ : state)
    {
        offset = (offset + 1234567) % 20000000;
        columns.SetOffset(offset);
        benchmark::DoNotOptimize(Utils::HitTest(&columns, 500));
        columns.OnEndDraw();
    }
}

bool const registered = [] {
    Register<SVexel>();
    Register<SStdMap>();
    Register<SStdSet>();
    benchmark::RegisterBenchmark("columns/scroll_a_million/vexel", HitColumns);
    return true;
}();

}  // namespace
