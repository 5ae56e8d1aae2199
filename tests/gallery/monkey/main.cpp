// The monkey on its own: many random games over the pages of the gallery, random trees and random controls, each in a
// process of its own, so that a fault that ends the process is found like any other.

#include "tests/gallery/monkey_scenes.h"
#include "vexel/testing/census.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace vexel::test;

namespace gallery
{

namespace
{

constexpr char const* Usage =
    "usage: monkey [--events N] [--seed S] [--out FOLDER] [--keep-going]\n"
    "       monkey [--here] FILE\n"
    "\n"
    "  --events N     how many events of mouse, keys and desktop in all, 1000000 unless said\n"
    "  --seed S       which ones; otherwise a random seed, which is printed\n"
    "  --out FOLDER   where the games that failed are kept; out/monkey unless said\n"
    "  --keep-going   don't end with the first game that fails\n"
    "  FILE           plays a game that was kept, and says how it goes\n"
    "  --here         in this process, for a debugger\n";

constexpr int EventsOfGame = 2500;
constexpr unsigned LongestGame = 300;  // seconds
constexpr int MostAttempts = 400;      // to make a game shorter
constexpr int MostSeconds = 120;       // for them

struct SOptions
{
    long long events = 1000000;
    std::uint64_t seed = 0;
    bool seedGiven = false;
    std::string out = "out/monkey";
    bool keepGoing = false;
    bool here = false;
    std::string file;
    bool wrong = false;
};

SOptions Read(int argc, char** argv)
{
    SOptions options;
    for (int i = 1; i < argc; ++i)
    {
        std::string const word = argv[i];
        bool const more = i + 1 < argc;
        if (word == "--events" && more)
            options.events = std::atoll(argv[++i]);
        else if (word == "--seed" && more)
        {
            options.seed = std::strtoull(argv[++i], nullptr, 0);
            options.seedGiven = true;
        }
        else if (word == "--out" && more)
            options.out = argv[++i];
        else if (word == "--keep-going")
            options.keepGoing = true;
        else if (word == "--here")
            options.here = true;
        else if (word.empty() || word[0] == '-' || !options.file.empty())
            options.wrong = true;
        else
            options.file = word;
    }
    options.wrong = options.wrong || options.events < 1;
    return options;
}

std::string ReadAll(std::string const& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// What the last words of a process tell: the line of a sanitizer if there is one.
std::string FindReason(std::string const& words, int status)
{
    for (char const* const mark : {"ERROR: AddressSanitizer: ", "ERROR: LeakSanitizer: ", "runtime error: "})
    {
        std::size_t const place = words.find(mark);
        if (place == std::string::npos)
            continue;
        std::string line = words.substr(place, words.find('\n', place) - place);
        std::size_t const address = line.find(" on ");  // addresses differ from run to run
        return "The process ended: " + line.substr(0, address);
    }
    if (WIFSIGNALED(status))
        return WTERMSIG(status) == SIGALRM
                   ? "The game doesn't end."
                   : "The process was ended by signal " + std::to_string(WTERMSIG(status)) + ".";
    return "The process ended with " + std::to_string(WEXITSTATUS(status)) + ".";
}

/// Plays a game in a process of its own. `words`: the file that takes what it prints.
SMonkeyResult PlayApart(std::function<SMonkeyResult()> const& play, std::string const& words)
{
    std::fflush(nullptr);
    int ends[2];
    if (pipe(ends) != 0)
        return {"No pipe.", 0, 0};
    pid_t const child = fork();
    if (child == 0)
    {
        close(ends[0]);
        if (!std::freopen(words.c_str(), "w", stderr) || dup2(fileno(stderr), STDOUT_FILENO) < 0)
            _exit(9);
        alarm(LongestGame);
        SMonkeyResult const result = play();
        std::string const answer =
            std::to_string(result.lines) + " " + std::to_string(result.events) + "\n" + result.failure;
        bool const told = write(ends[1], answer.data(), answer.size()) == static_cast<ssize_t>(answer.size());
        std::exit(told ? 0 : 9);  // what looks for leaks, looks now
    }
    close(ends[1]);
    std::string answer;
    char piece[4096];
    for (ssize_t count; (count = read(ends[0], piece, sizeof piece)) > 0;)
        answer.append(piece, static_cast<std::size_t>(count));
    close(ends[0]);
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        return {"No process.", 0, 0};

    SMonkeyResult result;
    if (std::sscanf(answer.c_str(), "%d %d", &result.lines, &result.events) == 2)
        result.failure = answer.substr(answer.find('\n') + 1);
    if (result.IsGood() && status != 0)
    {
        std::string const said = ReadAll(words);
        result.failure = FindReason(said, status) + "\n" + said;
    }
    return result;
}

double SecondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// What there is to see at once: of a stack that a sanitizer printed, where it is our own, and no more than a screen.
std::string Shortly(std::string const& failure)
{
    bool const stack = failure.find("\n    #0 0x") != std::string::npos;
    std::istringstream lines(failure);
    std::string text, line;
    for (int count = 0; count < 12 && std::getline(lines, line);)
    {
        bool const own = line.find("    #") == 0 && line.find("/vexel/") != std::string::npos;
        if (count == 0 || !stack || own)
            text += (count++ ? "  " : "") + line + "\n";
    }
    return text;
}

/// Tells of a game that failed, and keeps all of what it said and a shorter game beside it.
void Tell(std::string const& file, std::string const& failure, std::string const& words)
{
    SMonkeyGame game;
    game.Load(file);
    std::string const log = std::filesystem::path(file).replace_extension(".log").string();
    std::ofstream(log) << failure;
    std::printf("\nFAILED: %s  all of it: %s\n  game: %s, %zu lines, %d events\n", Shortly(failure).c_str(),
                log.c_str(), file.c_str(), game.lines.size(), game.CountEvents());
    std::fflush(stdout);
    auto const start = std::chrono::steady_clock::now();
    auto const play = [&](SMonkeyGame const& shorter) {
        if (SecondsSince(start) > MostSeconds)
            return std::string();
        return PlayApart([&] { return PlayGame(shorter, &MakeMonkeyScene); }, words).failure;
    };
    if (KindOfFailure(play(game)) != KindOfFailure(failure))
    {
        std::printf("  Played again, it goes otherwise.\n");
        return;
    }
    SMonkeyGame const shorter = Shorten(game, failure, play, MostAttempts);
    std::string const name = std::filesystem::path(file).replace_extension(".short.txt").string();
    if (shorter.Save(name))
        std::printf("  the same with %zu lines: %s\n", shorter.lines.size(), name.c_str());
    std::printf("  again: ./dev monkey %s\n", name.c_str());
}

int Replay(SOptions const& options)
{
    SMonkeyGame game;
    if (!game.Load(options.file))
    {
        std::fprintf(stderr, "monkey: there is no game in %s\n", options.file.c_str());
        return 2;
    }
    auto const play = [&] { return PlayGame(game, &MakeMonkeyScene); };
    SMonkeyResult const result = options.here ? play()
                                              : PlayApart(play, (std::filesystem::temp_directory_path() /
                                                                 ("vexel-monkey-" + std::to_string(getpid()) + ".log"))
                                                                    .string());
    std::printf("%s: %s%s\n", options.file.c_str(),
                result.IsGood() ? "nothing failed" : "FAILED: ", result.failure.c_str());
    return result.IsGood() ? 0 : 1;
}

int Run(SOptions const& options)
{
    std::filesystem::create_directories(options.out);
    std::printf("seed %llu, %lld events\n", static_cast<unsigned long long>(options.seed), options.events);
    auto const start = std::chrono::steady_clock::now();
    long long played = 0;
    int games = 0;
    int failed = 0;
    double told = 0;
    CTestRandom random(options.seed);
    while (played < options.events && (failed == 0 || options.keepGoing))
    {
        std::uint64_t const seed = random.Next();
        std::string const scene = NameMonkeyScene(games, seed);
        std::string const file =
            options.out + "/game_" + std::to_string(options.seed) + "_" + std::to_string(games) + ".txt";
        std::string const words = options.out + "/words_" + std::to_string(options.seed) + ".log";
        int const events = static_cast<int>(std::min<long long>(EventsOfGame, options.events - played));
        ++games;
        SMonkeyResult result =
            PlayApart([&] { return PlayAtRandom(scene, seed, events, &MakeMonkeyScene, file); }, words);
        if (!result.IsGood())
        {
            ++failed;
            SMonkeyGame kept;
            kept.Load(file);
            result.events = std::max(result.events, kept.CountEvents());
            Tell(file, result.failure, words);
        }
        played += std::max(result.events, 1);
        std::filesystem::remove(words);
        if (SecondsSince(start) > told + 30)
        {
            told = SecondsSince(start);
            std::printf("%lld events, %d games, %d failed, %.0f s\n", played, games, failed, told);
        }
        std::fflush(stdout);
    }
    double const seconds = SecondsSince(start);
    std::printf("%lld events in %d games, %d of which failed; %.0f s, %.0f events a second; seed %llu\n", played, games,
                failed, seconds, static_cast<double>(played) / std::max(seconds, 0.001),
                static_cast<unsigned long long>(options.seed));
    return failed ? 1 : 0;
}

}  // namespace

int Main(int argc, char** argv)
{
    SOptions options = Read(argc, argv);
    if (options.wrong)
    {
        std::fputs(Usage, stderr);
        return 2;
    }
    rlimit const none{0, 0};
    setrlimit(RLIMIT_CORE, &none);  // a game that ends its process is nothing unusual here
    InstallKit();
    if (!options.file.empty())
        return Replay(options);
    if (!options.seedGiven)
        options.seed = std::random_device{}();
    return Run(options);
}

}  // namespace gallery

int main(int argc, char** argv)
{
    return gallery::Main(argc, argv);
}
