#pragma once

#include "vexel/testing/test_host.h"

#include <cstdint>
#include <memory>
#include <string>

namespace vexel::test
{

/// Random controls, docked at random on a window of their own, set and used at random. A click may delete what was
/// clicked. The same seed gives the same game.
class CControlsGame
{
public:
    explicit CControlsGame(std::uint64_t seed);  ///< With some controls, painted.
    ~CControlsGame();

    CTestHost& Host();
    void Step();                      ///< One change or event.
    void Reseed(std::uint64_t seed);  ///< What follows depends on this number and on what stands.
    std::string Describe() const;     ///< The last step, and where the controls stand.
    int GetClicks() const;            ///< Of buttons.
    int GetChosen() const;            ///< In check boxes and lists.

private:
    class CPlay;
    std::unique_ptr<CPlay> m_Play;
};

}  // namespace vexel::test
