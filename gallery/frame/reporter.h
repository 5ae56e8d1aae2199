#pragma once

#include "gallery/frame/log.h"
#include "vexel/core/visual_element.h"
#include "vexel/signals/signal.h"

#include <string>
#include <type_traits>

namespace gallery
{

/// How a signal's argument reads in the log. Elements that emit are left out by the reporter.
template <class T> std::string Describe(T const& value)
{
    if constexpr (std::is_same_v<T, bool>)
        return value ? "true" : "false";
    else if constexpr (std::is_same_v<T, char>)
        return std::to_string(static_cast<int>(static_cast<unsigned char>(value)));
    else if constexpr (std::is_enum_v<T>)
        return std::to_string(static_cast<int>(value));
    else if constexpr (std::is_arithmetic_v<T>)
        return std::to_string(value);
    else if constexpr (std::is_convertible_v<T const&, std::string>)
        return '"' + std::string(value) + '"';
    else if constexpr (std::is_pointer_v<T> && std::is_same_v<std::remove_cv_t<std::remove_pointer_t<T>>, bool>)
        return value && *value ? "true" : "false";
    else if constexpr (std::is_convertible_v<T, vexel::CVisualElement const*>)
        return value ? "#" + std::to_string(static_cast<vexel::CVisualElement const*>(value)->GetId()) : "none";
    else if constexpr (requires { std::string(value->GetText()); })
        return value ? '"' + std::string(value->GetText()) + '"' : "none";
    else
        return "...";
}

/// A connection that writes a line for each emission.
class IReporter : public vexel::subscriber_base_t
{};

namespace detail
{

template <class Used> class CReporterOf;

template <class... A> class CReporterOf<plinth::_internal::arguments_t<A...>> : public IReporter
{
public:
    explicit CReporterOf(std::string name) : m_Name(std::move(name)) {}

    void Fired(A... arguments)
    {
        std::string text;
        bool first = true;
        [[maybe_unused]] auto const add = [&](auto const& argument) {
            using T = std::remove_cvref_t<decltype(argument)>;
            bool const emitter = first && std::is_convertible_v<T, vexel::CVisualElement const*>;
            first = false;
            if (!emitter)
                text += (text.empty() ? "" : ", ") + Describe(argument);
        };
        (add(arguments), ...);
        CLog::Get().Write("signal " + m_Name + "(" + text + ")");
    }

private:
    std::string const m_Name;
};

}  // namespace detail

/// The reporter that fits a signal.
template <class... A> using CReporter = detail::CReporterOf<plinth::_internal::used_arguments_t<A...>>;

}  // namespace gallery
