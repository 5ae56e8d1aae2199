#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/memory/describe.h"
#include "vexel/platform/ref_ptr.h"
#include "vexel/testing/names.h"

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace vexel::test
{

/// How a value reads in the logs of the kit: true, 12, 'x', 2.5, "text", (1, 2), red, [1, 2]; an enumeration by its number;
/// an element by its name; a pointer to a plain value by that value; other objects by the name of their class;
/// "null" for null.
template <class T> std::string Describe(T const& value);

namespace detail
{

template <class T> concept Complete = requires { sizeof(T); };
template <class T> concept Sequence = requires(T const& v) {
    v.begin();
    v.end();
    v.size();
};

/// The name of a class that may be incomplete.
template <class T> std::string StaticName()
{
    // "std::string vexel::test::detail::StaticName() [with T = NAME; std::string = ...]"
    std::string_view text = __PRETTY_FUNCTION__;
    auto const start = text.find("T = ") + 4;
    return StripNamespaces(std::string(text.substr(start, text.find_first_of(";]", start) - start)));
}

template <class T> std::string DescribeObject(T const& value)
{
    if constexpr (std::is_base_of_v<vexelbase::IPainter, T>)
        return "painter";
    else if constexpr (std::is_convertible_v<T const*, CVisualElement const*>)
        return ElementName(&value);
    else
        return TypeName(typeid(value));
}

template <class T> std::string DescribePointer(T const* value)
{
    if (!value)
        return "null";
    if constexpr (std::is_void_v<T>)
        return "pointer";
    else if constexpr (std::is_same_v<T, vexelbase::IPainter>)
        return "painter";
    else if constexpr (std::is_same_v<T, CVisualElement>)
        return ElementName(value);
    else if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_same_v<T, std::string>)
        return Describe(*value);
    else if constexpr (std::is_class_v<T> && Complete<T>)
        return DescribeObject(*value);
    else
        return StaticName<T>();
}

template <class T> std::string DescribeValue(vexelbase::point<T> const& v)
{
    return "(" + Describe(v.x) + ", " + Describe(v.y) + ")";
}
template <class T> std::string DescribeValue(vexelbase::size<T> const& v)
{
    return "(" + Describe(v.width) + ", " + Describe(v.height) + ")";
}
template <class T> std::string DescribeValue(vexelbase::range<T> const& v)
{
    return "(" + Describe(v.first) + ", " + Describe(v.second) + ")";
}
template <class T> std::string DescribeValue(vexelbase::rectangle<T> const& v)
{
    return "(" + Describe(v.left) + ", " + Describe(v.top) + ", " + Describe(v.right) + ", " + Describe(v.bottom) + ")";
}
template <class T> std::string DescribeValue(vexelbase::screen_rectangle<T> const& v)
{
    return "(" + Describe(v.left) + ", " + Describe(v.top) + ", " + Describe(v.right) + ", " + Describe(v.bottom) + ")";
}
template <class T> std::string DescribeValue(vexelbase::vexel_ptr<T> const& v)
{
    return DescribePointer(v.get());
}
inline std::string DescribeValue(vexelbase::_color const& v)
{
    return vexelbase::memory::DescribeColor(v);
}
inline std::string DescribeValue(vexelbase::font const& v)
{
    return vexelbase::memory::DescribeFont(v);
}
inline std::string DescribeValue(vexelbase::pen const& v)
{
    return vexelbase::memory::DescribePen(v);
}
inline std::string DescribeValue(vexelbase::brush const& v)
{
    return vexelbase::memory::DescribeBrush(v);
}
template <class T> concept HasValue = requires(T const& v) { DescribeValue(v); };

} // namespace detail

template <class T> std::string Describe(T const& value)
{
    if constexpr (std::is_same_v<T, bool>)
        return value ? "true" : "false";
    else if constexpr (std::is_same_v<T, char>)
        return vexelbase::memory::DescribeCharacter(value);
    else if constexpr (std::is_enum_v<T>)
        return std::to_string(static_cast<std::underlying_type_t<T>>(value));
    else if constexpr (std::is_integral_v<T>)
        return std::to_string(value);
    else if constexpr (std::is_floating_point_v<T>)
        return vexelbase::memory::DescribeNumber(static_cast<double>(value));
    else if constexpr (std::is_null_pointer_v<T>)
        return "null";
    else if constexpr (std::is_pointer_v<T> && std::is_same_v<std::remove_cv_t<std::remove_pointer_t<T>>, char>)
        return value ? vexelbase::memory::DescribeText(value) : std::string("null");
    else if constexpr (std::is_pointer_v<T> && std::is_function_v<std::remove_pointer_t<T>>)
        return "function";
    else if constexpr (std::is_pointer_v<T>)
        return detail::DescribePointer<std::remove_cv_t<std::remove_pointer_t<T>>>(value);
    else if constexpr (std::is_convertible_v<T const&, std::string_view>)
        return vexelbase::memory::DescribeText(std::string(std::string_view(value)));
    else if constexpr (detail::HasValue<T>)
        return detail::DescribeValue(value);
    else if constexpr (detail::Sequence<T>)
    {
        std::string text;
        for (auto const& item : value)
            text += (text.empty() ? "" : ", ") + Describe(item);
        return "[" + text + "]";
    }
    else
        return detail::DescribeObject(value);
}

} // namespace vexel::test
