#include "vexel/tasks/scroll_timers.h"

namespace vexel
{

namespace
{

constexpr int s_Period = 100;

struct SSharedTimer
{
    ISystem* system = nullptr;
    vexel_ptr<ISysTimer> timer;

    ISysTimer* Get()
    {
        ISystem* const current = GetCurrentSystem();
        if (current != system)
        {
            timer = current ? current->CreateTimer(s_Period, 0) : nullptr;
            system = current;
        }
        return timer.get();
    }
};

}  // namespace

// Never freed: the application object, which native timers need, ends before the static objects of a library do.
ISysTimer* GetVertScrollTimer()
{
    static auto* const timer = new SSharedTimer;
    return timer->Get();
}

ISysTimer* GetHorzScrollTimer()
{
    static auto* const timer = new SSharedTimer;
    return timer->Get();
}

}  // namespace vexel
