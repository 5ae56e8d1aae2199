#pragma once

#include "vexel/scroll/scroll_model.h"

#include <utility>

namespace chart
{

/// A range of numbers that is what it was set to. The measure is units for pixels.
class CRange : public vexel::ISimpleScrollModel
{
public:
    CRange() = default;
    CRange(double from, double to) { SetEnds(from, to); }

    /// The view starts at the lower end.
    void SetEnds(double from, double to)
    {
        m_From = from;
        m_To = to;
        m_Start = from < to ? from : to;
    }
    double GetUnitsOfPixel() const { return m_Measure.first / m_Measure.second; }

    // From IScrollModel
    double GetFrom() const override { return m_From; }
    double GetTo() const override { return m_To; }
    void SetStart(double value) override { m_Start = value; }
    double GetStart() const override { return m_Start; }
    int GetMinScrollDistance() const override { return 1; }
    void SetMeasure(std::pair<double, int> measure) override { m_Measure = measure; }
    std::pair<double, int> GetMeasure() const override { return m_Measure; }

private:
    double m_From = 0;
    double m_To = 1;
    double m_Start = 0;
    std::pair<double, int> m_Measure{1.0, 1};
};

}  // namespace chart
