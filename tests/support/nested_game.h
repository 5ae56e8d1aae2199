#pragma once

#include "vexel/testing/test_host.h"

#include <cstdint>
#include <memory>
#include <string>

namespace vexel::test
{

/// Splitters, expanders, gauges and notebooks in each other on a window of their own, rebuilt and used at random. The same
/// seed gives the same game.
class CNestedGame
{
public:
    CNestedGame(std::uint64_t seed, double scale);
    ~CNestedGame();  ///< Stops all steps first.

    CTestHost& Host();
    void Step();                      ///< One change or event.
    void Reseed(std::uint64_t seed);  ///< What follows depends on this number and on what stands.
    /// What finds no room lies over its neighbours: an owner takes such things out. True: none had to be.
    bool Paint();
    void ShowAll();              ///< What was taken out may have found room meanwhile.
    std::string Compare();       ///< With a full paint; empty if they don't differ.
    std::string CheckThreads();  ///< One runs for each expander whose steps are under way; empty if so.
    std::string Tell();          ///< The last steps, and where everything stands.
    int GetMoves() const;        ///< Of splitters.
    int GetAnimatedSteps() const;
    int GetTurned() const;  ///< To other pages, and to other parts of expanders.

private:
    class CPlay;
    std::unique_ptr<CPlay> m_Play;
};

}  // namespace vexel::test
