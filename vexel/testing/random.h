#pragma once

#include "vexel/export.h"

#include <cstdint>
#include <iterator>
#include <string>
#include <utility>

namespace vexel::test
{

/// The seed of this run: the environment's VEXEL_SEED if that is a number, else a random one. Every test that fails
/// prints it.
VEXEL_TESTING_API std::uint64_t GetSeed();

/// Says which test runs, for the generators that are made from now on; empty: none. "vexel/testing/google_test.h" does it.
VEXEL_TESTING_API void SetRunningTest(std::string const& name);

/// Random numbers for one test. The same seed gives the same numbers to the same test on every machine, whichever tests
/// run beside it; the second generator of a test gives other numbers than the first.
class VEXEL_TESTING_API CTestRandom
{
public:
    CTestRandom();                             ///< From the run's seed and the running test.
    explicit CTestRandom(std::uint64_t seed);  ///< From this number alone.

    std::uint64_t Next();        ///< 64 random bits.
    int Int(int low, int high);  ///< From low to high, both included.
    bool Bool() { return (Next() & 1u) != 0; }
    bool Chance(int percent) { return Int(1, 100) <= percent; }
    double Real(double low, double high);  ///< From low to below high.

    /// An index below `count`, which must be above 0.
    int Index(int count) { return Int(0, count - 1); }
    /// One of the items, none of which is likelier than the other. The container must not be empty.
    template <class Container> decltype(auto) Pick(Container&& items)
    {
        auto place = std::begin(items);
        std::advance(place, Index(static_cast<int>(std::size(items))));
        return *place;
    }
    template <class Container> void Shuffle(Container& items)
    {
        for (int i = static_cast<int>(std::size(items)) - 1; i > 0; --i)
        {
            auto a = std::begin(items), b = std::begin(items);
            std::advance(a, i);
            std::advance(b, Index(i + 1));
            using std::swap;
            swap(*a, *b);
        }
    }

private:
    std::uint64_t m_State;
};

} // namespace vexel::test
