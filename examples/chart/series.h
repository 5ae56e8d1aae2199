#pragma once

#include "vexel/platform/color.h"

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace chart
{

/// The lowest and the highest of some values; of none, `low` lies above `high`.
struct SBand
{
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    bool IsEmpty() const { return low > high; }
    void Add(double value)  // what is no number counts for nothing
    {
        low = value < low ? value : low;
        high = value > high ? value : high;
    }
    void Add(SBand const& band)
    {
        low = band.low < low ? band.low : low;
        high = band.high > high ? band.high : high;
    }
};

/// Points in the order of x, of which any stretch tells its band at once, however many there are.
class CSeries
{
public:
    CSeries() = default;
    /// `x` ascends and has numbers only; a `y` that is no number is a gap. Both are of the same length.
    CSeries(std::string name, vexelbase::_color color, std::vector<double> x, std::vector<double> y);

    std::string const& GetName() const { return m_Name; }
    vexelbase::_color GetColor() const { return m_Color; }
    std::size_t GetCount() const { return m_X.size(); }
    double GetX(std::size_t index) const { return m_X[index]; }
    double GetY(std::size_t index) const { return m_Y[index]; }
    std::size_t Find(double x) const;                         ///< The first point at `x` or behind; the count: none.
    SBand GetBand(std::size_t first, std::size_t end) const;  ///< Of y, from `first` to before `end`.
    SBand GetBand() const { return GetBand(0, GetCount()); }

private:
    static constexpr std::size_t s_Block = 64;

    std::string m_Name;
    vexelbase::_color m_Color;
    std::vector<double> m_X;
    std::vector<double> m_Y;
    std::vector<std::vector<SBand>> m_Levels;  // each has the bands of s_Block entries of the one before
};

}  // namespace chart
