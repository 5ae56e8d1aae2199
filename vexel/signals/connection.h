#pragma once

#include "vexel/signals/signal.h"

#include <memory>
#include <type_traits>
#include <utility>

namespace vexel
{

namespace detail
{

template <class Arguments, class Closure> class CClosureReceiver;

/// The receiver whose slot runs the closure.
template <class... Args, class Closure>
class CClosureReceiver<plinth::_internal::arguments_t<Args...>, Closure> : public subscriber_base_t
{
    static_assert(std::is_invocable_v<Closure&, Args...>, "the closure doesn't take the signal's arguments");

public:
    explicit CClosureReceiver(Closure closure) : m_Closure(std::make_shared<Closure>(std::move(closure))) {}

    void Slot(Args... args)
    {
        std::shared_ptr<Closure> const running = m_Closure;  // it may end its own connection
        static_cast<void>((*running)(std::forward<Args>(args)...));
    }

private:
    std::shared_ptr<Closure> m_Closure;
};

}  // namespace detail

/// A closure connected to a signal, for as long as this object lives. For applications; classes of the framework connect
/// their member functions.
///
///     CConnection lit(lamp.m_SigLit, [&](CLamp*, bool on) { caption.SetCaption(on ? "on" : "off"); });
///
/// It may die before the signal or after it, also while its closure runs. What the closure refers to must outlive it.
/// Connecting and running follow the rules of signal_t.
class CConnection
{
public:
    CConnection() = default;
    template <class A1, class A2, class A3, class A4, class A5, class A6, class Closure>
    CConnection(signal_t<A1, A2, A3, A4, A5, A6>& signal, Closure&& closure)
    {
        using receiver_t = detail::CClosureReceiver<plinth::_internal::used_arguments_t<A1, A2, A3, A4, A5, A6>,
                                                    std::decay_t<Closure>>;
        auto receiver = std::make_unique<receiver_t>(std::forward<Closure>(closure));
        signal.connect(receiver.get(), &receiver_t::Slot);
        m_Receiver = std::move(receiver);
    }
    CConnection(CConnection&&) noexcept = default;
    CConnection& operator=(CConnection&&) noexcept = default;  ///< Ends the connection that it had.

    void Disconnect() { m_Receiver.reset(); }  ///< Ends it; nothing happens when there is none.
    /// Neither was it ended nor has the signal died.
    bool IsConnected() const { return m_Receiver && m_Receiver->signal_count() != 0; }

private:
    std::unique_ptr<subscriber_base_t> m_Receiver;
};

}  // namespace vexel
