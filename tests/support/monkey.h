#pragma once

#include "vexel/platform/geometry.h"
#include "vexel/testing/random.h"
#include "vexel/testing/test_host.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vexel::test
{

/// What a monkey plays with: a tree in the window of a host.
class IMonkeyScene
{
public:
    IMonkeyScene() = default;
    IMonkeyScene(IMonkeyScene const&) = delete;
    IMonkeyScene& operator=(IMonkeyScene const&) = delete;
    virtual ~IMonkeyScene();

    virtual CTestHost& Host() = 0;
    /// A change by program, which this number decides. Only asked for where CanChange().
    virtual void Change(std::uint64_t) {}
    virtual bool CanChange() const { return false; }
    /// Runs the frames of all windows that are pending.
    virtual void Paint();
    /// How what was painted bit by bit differs from what is painted at once; empty if it doesn't, or if nothing is known
    /// of this scene. Never asked for in a game that resizes the window, unless CanCompareAlways().
    virtual std::string Compare() { return {}; }
    virtual bool CanCompareAlways() const { return false; }

    virtual size<int> GetSmallest() const { return {1, 1}; }  ///< What the window may be resized to; device pixels.
    virtual size<int> GetLargest() const = 0;
    virtual rectangle<int> GetBusyArea() const = 0;  ///< Where the most interesting things are.
};

/// Makes the scene of that name; null if there is no such one. The same name gives the same scene.
using MonkeyScenes = std::function<std::unique_ptr<IMonkeyScene>(std::string const& name)>;

/// A game as it is kept in a file: the scene's name, then an event a line, those of CEventScript and
///
///     change 123 | lost | compare
///
/// where "paint" paints all windows.
struct SMonkeyGame
{
    std::string scene;
    std::vector<std::string> lines;

    /// Events of the user and of the desktop; what paints, waits, compares or changes by program is none.
    int CountEvents() const;
    std::string Text() const;
    bool Save(std::string const& path) const;
    /// False if there is no such file, or no game in it.
    bool Load(std::string const& path);
};

/// How a game went.
struct SMonkeyResult
{
    std::string failure;  ///< Empty: nothing went wrong. Its first line tells one fault from another.
    int lines = 0;        ///< That were played.
    int events = 0;       ///< Of these, the user's and the desktop's.
    bool IsGood() const { return failure.empty(); }
};

/// Plays the game until its end or its first failure. What is checked:
///  - after each line: what the controls of all windows remember (capture, focus, hover, drag, pending repaints and
///    layouts) stands in their trees, and the focus only went to what can have it;
///  - after each paint: nothing is pending any more;
///  - at "compare": the scene's own comparison;
///  - always: nothing reports an assertion or an exception;
///  - at the end, when the scene is gone: the census.
/// Must not be called while anything of a scene or a host lives.
SMonkeyResult PlayGame(SMonkeyGame const& game, MonkeyScenes const& scenes);

/// The same with random events, as many as said; `seed` decides them. With an odd one the window is resized, too; with an
/// even one it is not, so that every scene can be compared. `file` always has all lines up to the one under
/// way, also while the process dies; it stays only if the game fails. Empty: no file.
SMonkeyResult PlayAtRandom(std::string const& scene, std::uint64_t seed, int events, MonkeyScenes const& scenes,
                           std::string const& file);

/// A game with fewer lines that fails in the same way: drops what can be dropped, large pieces first, then single lines.
/// `play` tells how a game goes, at most `attempts` times.
SMonkeyGame Shorten(SMonkeyGame game, std::string const& failure,
                    std::function<std::string(SMonkeyGame const&)> const& play, int attempts);

/// What is the same in two failures of one fault: the first line, with each number as '#'.
std::string KindOfFailure(std::string const& failure);

}  // namespace vexel::test
