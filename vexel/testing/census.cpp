#include "vexel/testing/census.h"

#include "vexel/core/visual_element.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/testing/detail/assertion_watch.h"
#include "vexel/testing/detail/element_names.h"
#include "vexel/testing/detail/element_watch.h"
#include "vexel/testing/detail/kit_system.h"
#include "vexel/testing/names.h"

#include <map>
#include <utility>

namespace vexel::test
{

namespace
{

using vexelbase::memory::CMemorySystem;
using vexelbase::memory::SMemoryCounts;

struct SBaseline
{
    SMemoryCounts counts;
    vexelbase::ISystem* system = nullptr;
};

SBaseline& Baseline()
{
    static SBaseline baseline;
    return baseline;
}

std::vector<void (*)()>& WarmUps()
{
    static std::vector<void (*)()> functions;
    return functions;
}

void AddLine(std::vector<std::string>& lines, int count, std::string const& one, std::string const& many,
             std::string const& details = {})
{
    if (count > 0)
        lines.push_back(std::to_string(count) + " " + (count == 1 ? one : many) + " left" +
                        (details.empty() ? "" : ": " + details));
}

std::string ListLivingElements()
{
    std::map<std::string, int> counts;
    for (CVisualElement const* element : CElementWatch::Get().GetElements())
        ++counts[ElementName(element)];
    std::string text;
    for (auto const& [name, count] : counts)
    {
        text += (text.empty() ? "" : ", ") + name;
        if (count > 1)
            text += " (" + std::to_string(count) + ")";
    }
    return text;
}

void PutBack()
{
    if (CMemorySystem* const system = detail::FindKitSystem())
        system->Reset();
    vexelbase::SetDPIAutoScale(true);
    CElementWatch::Get().ForgetAll();
    detail::ForgetElementNames();
}

} // namespace

void CCensus::Begin()
{
    CAssertionWatch::Install();  // a test may have put another reporter in its place
    PutBack();
    Baseline() = {vexelbase::memory::GetMemoryCounts(), vexelbase::GetCurrentSystem()};
}

std::vector<std::string> CCensus::Look()
{
    SMemoryCounts const& before = Baseline().counts;
    SMemoryCounts const now = vexelbase::memory::GetMemoryCounts();
    std::vector<std::string> lines;

    AddLine(lines, static_cast<int>(CElementWatch::Get().GetElements().size()), "element", "elements",
            ListLivingElements());
    AddLine(lines, now.windows - before.windows, "window", "windows");
    AddLine(lines, now.timers - before.timers, "timer", "timers");
    AddLine(lines, now.runningTimers - before.runningTimers, "running timer", "running timers");
    AddLine(lines, now.timerSubscriptions - before.timerSubscriptions, "subscription to a timer",
            "subscriptions to timers");
    AddLine(lines, now.pictures - before.pictures, "picture", "pictures");
    AddLine(lines, now.runners - before.runners, "runner", "runners");
    AddLine(lines, now.locks - before.locks, "lock", "locks");
    AddLine(lines, now.nativeControls - before.nativeControls, "native control", "native controls");
    AddLine(lines, now.popups - before.popups, "popup", "popups");

    CMemorySystem* const system = detail::FindKitSystem();
    if (!system)
        return lines;
    if (system->GetCaptureNode())
        lines.push_back("the mouse capture was left taken");
    AddLine(lines, system->GetRunningRunners(), "piece of background work", "pieces of background work");
    AddLine(lines, system->GetPostedCount(), "posted runnable", "posted runnables");
    return lines;
}

std::vector<std::string> CCensus::End()
{
    std::vector<std::string> lines = Look();
    vexelbase::SetCurrentSystem(Baseline().system);
    PutBack();
    return lines;
}

CWarmUp::CWarmUp(void (*function)())
{
    WarmUps().push_back(function);
}

void InstallKit()
{
    static bool installed = false;
    if (std::exchange(installed, true))
        return;
    CElementWatch::Get().Install();
    CAssertionWatch::Install();
    if (WarmUps().empty())
        return;
    vexelbase::ISystem* const before = vexelbase::GetCurrentSystem();
    detail::KitSystem();
    for (void (*const function)() : WarmUps())
        function();
    vexelbase::SetCurrentSystem(before);
}

} // namespace vexel::test
