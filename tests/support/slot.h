#pragma once

#include "vexel/signals/signal.h"

#include <functional>
#include <memory>

/// Holds a closure that is called when a signal fires, and leaves the signal when it dies.
template <class... Arguments> class CSlot : public plinth::subscriber_base_t
{
public:
    explicit CSlot(std::function<void(Arguments...)> closure) : m_Closure(std::move(closure)) {}

    void Call(Arguments... arguments) { m_Closure(arguments...); }

private:
    std::function<void(Arguments...)> m_Closure;
};

namespace detail
{

template <class Signal, class... Arguments> auto Listen(Signal& signal, std::function<void(Arguments...)> closure)
{
    auto slot = std::make_unique<CSlot<Arguments...>>(std::move(closure));
    signal.connect(slot.get(), &CSlot<Arguments...>::Call);
    return slot;
}

}  // namespace detail

/// Connects a closure, which must take the signal's arguments. It listens as long as the result lives.
///
///     auto const slot = Listen(lamp.m_SigSize, [&](CVisualElement*) { ++sizes; });
template <class Signal, class Closure> [[nodiscard]] auto Listen(Signal& signal, Closure closure)
{
    return detail::Listen(signal, std::function(std::move(closure)));
}

namespace detail
{

template <class Signal, class... Arguments>
std::unique_ptr<plinth::subscriber_base_t> ListenToAny(Signal& signal, std::function<void()> closure,
                                                       plinth::_internal::arguments_t<Arguments...>*)
{
    return Listen(signal, std::function<void(Arguments...)>([closure](Arguments...) { closure(); }));
}

}  // namespace detail

/// Connects a closure that doesn't care for the signal's arguments.
template <class... Arguments>
[[nodiscard]] std::unique_ptr<plinth::subscriber_base_t> ListenToAny(plinth::signal_t<Arguments...>& signal,
                                                                     std::function<void()> closure)
{
    return detail::ListenToAny(signal, std::move(closure),
                               static_cast<plinth::_internal::used_arguments_t<Arguments...>*>(nullptr));
}
