#pragma once

namespace vexelbase::qt
{

/// The whole numbers that a Qt scroll bar counts in, for a way of any length. A way of whole numbers that Qt can count
/// is taken as it is; others are parted evenly.
class CScrollSteps
{
public:
    CScrollSteps() = default;
    /// `way`: how far the thumb can go; below 0 and what is no number count as 0.
    explicit CScrollSteps(double way);

    int GetCount() const { return m_Count; }
    int FromDistance(double distance) const;  ///< The nearest step; cut to the way.
    double ToDistance(int step) const;        ///< Exactly the whole way at the last step.
    int FromLength(double length) const;      ///< Of a page or line; at least 1.

    static constexpr int MaxCount = 1000000000;  // Qt adds a page to it, in whole numbers

private:
    double m_Way = 0;
    int m_Count = 0;
};

/// A number that can be reckoned with: 0 for what is none, cut to what differences do not overflow with.
double ToFinite(double value);

}  // namespace vexelbase::qt
