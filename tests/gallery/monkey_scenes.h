#pragma once

#include "tests/support/monkey.h"

#include <cstdint>
#include <memory>
#include <string>

namespace gallery
{

/// The scenes of the monkey:
///
///     page NAME SCALE THEME   a page of the gallery in its frame; the theme is light or dark
///     tree SCALE SEED         a random tree, which changes on
///     nested SCALE SEED       splitters, expanders, gauges and notebooks in each other, which change on
///     controls SEED           random controls, which are set on and deleted in clicks
std::unique_ptr<vexel::test::IMonkeyScene> MakeMonkeyScene(std::string const& name);

/// The name of the scene of a long run's `number`-th game: the pages in turn, and as many trees, nests and controls.
std::string NameMonkeyScene(int number, std::uint64_t seed);

}  // namespace gallery
