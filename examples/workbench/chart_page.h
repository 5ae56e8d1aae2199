#pragma once

#include "readings.h"
#include "state.h"

#include "vexel/scroll/scroll_model.h"
#include "vexel/widgets/slider.h"

#include <array>
#include <utility>

namespace vexel
{
class CAxis;
class CCheckBox;
class CExpander;
}  // namespace vexel

namespace workbench
{

using namespace vexel;

/// A range of numbers that is what it was set to. The measure is units for pixels.
class CRange : public ISimpleScrollModel
{
public:
    void SetEnds(double from, double to)
    {
        m_From = from;
        m_To = to;
    }
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

/// The readings around a row as lines, with axes; below them a slider for how many, and an expander with what is shown.
class CChartPage : public CVisualElement
{
public:
    explicit CChartPage(SState const& state);
    ~CChartPage() override;

    signal_t<int> m_SigSpanChosen;

    void ShowRow(int row);  ///< In the middle of the chart.
    void Save(SState& state) const { state.span = m_Span->GetSliderPos(); }

private:
    class CPlot;
    class CSpans : public ISliderModel
    {
    public:
        double GetMinValue() const override { return 0; }
        double GetMaxValue() const override { return 3; }
        int GetPointCount() const override { return 4; }
        double GetPointValue(int index) const override { return index; }
        std::string GetPointCaption(int index) const override;
    };
    class CSpanLook : public CDefSliderDrawingModel
    {
    public:
        void GetContentRect(int point, int state, rectangle<double>& rect, ILayout* layout) const override;
    };

    void SpanChosen(CSlider*, double);
    void TitleClicked(CVisualElement*, int, int, int, MouseButton);
    void SensorSwitched(CCheckBox*);
    void ShowRange();

    CRange m_Seconds;
    CRange m_Parts;  // hundredths, negated: they grow upwards
    CSpans m_Spans;
    CSpanLook m_SpanLook;
    int m_Row = 0;
    std::array<bool, g_SensorCount> m_Shown{true, true, true, false, false, false};
    // Children.
    std::array<CCheckBox*, g_SensorCount> m_Switches{};
    CSlider* m_Span = nullptr;
    CPlot* m_Plot = nullptr;
    CAxis* m_TimeAxis = nullptr;
    CAxis* m_PartAxis = nullptr;
    CExpander* m_Expander = nullptr;
};

}  // namespace workbench
