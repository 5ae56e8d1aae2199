#include "vexel/testing/random.h"

#include <cerrno>
#include <cstdlib>
#include <random>
#include <string>

namespace vexel::test
{

namespace
{

struct SCurrentTest
{
    std::string name;
    std::uint64_t generators = 0;
};

SCurrentTest& CurrentTest()
{
    static SCurrentTest test;
    return test;
}

std::uint64_t ReadSeed()
{
    if (char const* const text = std::getenv("VEXEL_SEED"))
    {
        char* end = nullptr;
        errno = 0;
        std::uint64_t const seed = std::strtoull(text, &end, 0);
        if (end != text && *end == '\0' && errno == 0)
            return seed;
    }
    std::random_device device;
    return std::uint64_t{device()} << 16 ^ device();
}

// Spreads the bits of a number over all of it.
std::uint64_t Mix(std::uint64_t value)
{
    value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9u;
    value = (value ^ value >> 27) * 0x94D049BB133111EBu;
    return value ^ value >> 31;
}

std::uint64_t SeedOfTest()
{
    std::uint64_t hash = Mix(GetSeed());
    for (char const c : CurrentTest().name)
        hash = Mix(hash + static_cast<unsigned char>(c));
    return Mix(hash + CurrentTest().generators++);
}

} // namespace

std::uint64_t GetSeed()
{
    static std::uint64_t const seed = ReadSeed();
    return seed;
}

void SetRunningTest(std::string const& name)
{
    CurrentTest() = {name, 0};
}

CTestRandom::CTestRandom() : CTestRandom(SeedOfTest())
{
}

CTestRandom::CTestRandom(std::uint64_t seed) : m_State(seed)
{
}

std::uint64_t CTestRandom::Next()
{
    m_State += 0x9E3779B97F4A7C15u;
    return Mix(m_State);
}

int CTestRandom::Int(int low, int high)
{
    if (high < low)
        std::swap(low, high);
    // At most 2^32 values, so the unevenness is below what any test could see.
    std::uint64_t const count = static_cast<std::uint64_t>(std::int64_t{high} - low) + 1;
    return static_cast<int>(low + static_cast<std::int64_t>(Next() % count));
}

double CTestRandom::Real(double low, double high)
{
    return low + (high - low) * (static_cast<double>(Next() >> 11) * 0x1p-53);
}

} // namespace vexel::test
