#pragma once

#include "range.h"
#include "series.h"

#include "vexel/charts/axis.h"
#include "vexel/scroll/central_part.h"

#include <vector>

namespace chart
{

using namespace vexel;

/// Lines of a pane at the ticks of an axis; in units of the ranges.
void DrawGrid(IPainter* painter, CAxis const& axis, rectangle<double> const& pane);

/// A pane between axes, with a grid at their ticks. It is dragged by the mouse and zoomed by the wheel about the pointer,
/// with Shift only along and with Control only up and down. What it shows the subclass draws.
class CGraph : public CCentralPart
{
public:
    CGraph(CVisualElement* parent, CRange& horz, CRange& vert);

    signal_t<double, double> m_SigShown;  ///< The first and the last value in view, along.

    /// They get the ranges. The grid is that of the first two.
    void SetAxes(std::vector<CAxis*> axes);
    void SetZoomLimits(double finest, double widest);  ///< Units of a pixel.
    void ShowRange();                                  ///< Something of the ranges has changed.

protected:
    virtual void DrawGraph(IPainter* painter) = 0;  ///< In units of the ranges, cut to the pane.

    CRange& m_Horz;
    CRange& m_Vert;

protected:  // From CVisualElement
    void DrawContent(IPainter* painter) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    bool HandleWheel(int x, int y, int keys, MouseButton button, int delta) override;

private:
    void Zoom(CRange& range, double pixels, int notches);

    std::vector<CAxis*> m_Axes;
    point<int> m_Last;
    bool m_Held = false;
    double m_Finest = 1e-6;
    double m_Widest = 10;
};

/// An axis of negated values, so that a range that grows downwards shows numbers that grow upwards.
class CUpwardAxis : public CAxis
{
public:
    using CAxis::CAxis;
    std::string GetLabelText(double value, double step) const override { return CAxis::GetLabelText(-value, step); }
};

/// Series in antialiased lines. Whatever their length, a frame costs what its pixels cost: where points stand closer than
/// pixels, each column of pixels shows their band. The vertical range has the values negated.
class CPlot : public CGraph
{
public:
    using CGraph::CGraph;

    void AddSeries(CSeries const& series);  ///< Must outlive the plot.
    void Fit();                             ///< All points in view. A double click does that too.
    /// Ticks of the horizontal axis are multiples of it, or of a tenth, a hundredth...; 1 at first. For an axis of other
    /// units beside it: as many as make one of those.
    void SetGrain(double grain) { m_Grain = grain; }

    void SetPos(rectangle<int> const& rect, bool force) override;

protected:
    void DrawGraph(IPainter* painter) override;
    bool HandleDoubleClick(int x, int y, int keys, MouseButton button) override;

private:
    class CThread;

    rectangle<double> GetReach() const;
    void DrawSeries(IPainter* painter, CSeries const& series);
    void DrawBands(IPainter* painter, CSeries const& series);
    void DrawPoints(IPainter* painter, CSeries const& series, std::size_t first, std::size_t end);

    std::vector<CSeries const*> m_Series;
    bool m_FitDue = true;
    double m_Grain = 1;
};

}  // namespace chart
