#pragma once

#include <algorithm>

namespace vexelbase
{

/// A position. The unit and the origin are those of the operation that takes it.
template <class T> struct point
{
    T x{};
    T y{};

    friend bool operator==(point const&, point const&) = default;
};

/// An extent. The framework never stores a negative one.
template <class T> struct size
{
    T width{};
    T height{};

    friend bool operator==(size const&, size const&) = default;
};

/// Two ends, `first` and `second`. A query that found nothing answers (-1, -1).
template <class T> struct range
{
    T first{};
    T second{};

    friend bool operator==(range const&, range const&) = default;
};

/// True if `v` lies between `a` and `b`, both included, whichever is larger; nothing lies between equal ends.
/// The one rule of all hit testing.
template <class T> constexpr bool IsInSpan(T v, T a, T b)
{
    return a != b && (a < b ? a <= v && v <= b : b <= v && v <= a);
}

/// Four edges, stored in the order left, top, right, bottom.
/// Element rectangles include their right and bottom edge, window rectangles do not; width is right minus left in both.
template <class T> struct rectangle
{
    T left{};
    T top{};
    T right{};
    T bottom{};

    constexpr T Width() const { return right - left; }
    constexpr T Height() const { return bottom - top; }
    constexpr point<T> LeftTop() const { return {left, top}; }
    constexpr point<T> RightBottom() const { return {right, bottom}; }

    /// All four edges are zero: "none" for clips, bounds and tooltip rectangles.
    constexpr bool IsZero() const { return left == T{} && top == T{} && right == T{} && bottom == T{}; }
    /// Right is not above left, or bottom not above top. A rectangle of one inclusive pixel counts as empty here.
    constexpr bool IsEmpty() const { return !(left < right && top < bottom); }
    /// Hit test by the span rule: edges belong to it, equal or exchanged ends included.
    constexpr bool Contains(T x, T y) const { return IsInSpan(x, left, right) && IsInSpan(y, top, bottom); }

    constexpr void Offset(T dx, T dy)
    {
        left += dx;
        top += dy;
        right += dx;
        bottom += dy;
    }
    /// Exchanges ends so that left is not above right and top not above bottom.
    constexpr void Normalize()
    {
        if (right < left)
            std::swap(left, right);
        if (bottom < top)
            std::swap(top, bottom);
    }
    /// Narrows each edge to the other rectangle's; the result may be empty or have exchanged ends.
    constexpr void Intersect(rectangle const& other)
    {
        left = std::max(left, other.left);
        top = std::max(top, other.top);
        right = std::min(right, other.right);
        bottom = std::min(bottom, other.bottom);
    }

    friend bool operator==(rectangle const&, rectangle const&) = default;
};

/// The same four edges in screen or control pixels.
template <class T> struct screen_rectangle
{
    T left{};
    T top{};
    T right{};
    T bottom{};

    constexpr T Width() const { return right - left; }
    constexpr T Height() const { return bottom - top; }

    friend bool operator==(screen_rectangle const&, screen_rectangle const&) = default;
};

}  // namespace vexelbase
