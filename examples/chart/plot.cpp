#include "plot.h"

#include "vexel/core/clip_holder.h"
#include "vexel/core/draw_line.h"
#include "vexel/platform/events.h"
#include "vexel/platform/painter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace chart
{

namespace
{

constexpr double s_ZoomStep = 0.8;  // a notch of the wheel
constexpr double s_Margin = 0.04;   // of the range, around all points
// Pixels
constexpr double s_Beyond = 10;  // so far beyond the view lines are drawn
constexpr double s_Flat = 1.5;   // so high at most is a column that is taken as a point
constexpr double s_Tolerance = 0.6;

_color const g_MinorLine = _color::FromRgb(0xEE, 0xEE, 0xF2);
_color const g_MajorLine = _color::FromRgb(0xC0, 0xC4, 0xD0);

void Show(CRange& range, double start)
{
    range.SetStart(
        std::clamp(start, std::min(range.GetFrom(), range.GetTo()), std::max(range.GetFrom(), range.GetTo())));
}

// Cuts a line to a rectangle; false if nothing of it is left.
bool CutLine(point<double>& from, point<double>& to, rectangle<double> const& area)
{
    double const dx = to.x - from.x, dy = to.y - from.y;
    double begin = 0, end = 1;
    for (auto const& [way, room] : {std::pair{-dx, from.x - area.left}, std::pair{dx, area.right - from.x},
                                    std::pair{-dy, from.y - area.top}, std::pair{dy, area.bottom - from.y}})
    {
        if (way == 0 && room < 0)
            return false;
        if (way < 0)
            begin = std::max(begin, room / way);
        else if (way > 0)
            end = std::min(end, room / way);
    }
    if (!(begin <= end))
        return false;
    to = {from.x + dx * end, from.y + dy * end};
    from = {from.x + dx * begin, from.y + dy * begin};
    return true;
}

}  // namespace

void DrawGrid(IPainter* painter, CAxis const& axis, rectangle<double> const& pane)
{
    auto const draw = [&](std::vector<double> const& ticks, _color const& color) {
        painter->SetPen({color, pen::psSolid, 1});
        for (double const tick : ticks)
        {
            bool const upright = axis.GetAlignment() == alTop || axis.GetAlignment() == alBottom;
            painter->MoveTo(upright ? tick : pane.left, upright ? pane.top : tick);
            painter->LineTo(upright ? tick : pane.right, upright ? pane.bottom : tick);
        }
    };
    draw(axis.GetMinorTicks(), g_MinorLine);
    draw(axis.GetMajorTicks(), g_MajorLine);
}

// CGraph ------------------------------------------------------------------------------------------------------------

CGraph::CGraph(CVisualElement* parent, CRange& horz, CRange& vert)
    : CCentralPart(parent, {0, 0}, alClient), m_Horz(horz), m_Vert(vert)
{
    SetHorzScroll(&horz);
    SetVertScroll(&vert);
}

void CGraph::SetAxes(std::vector<CAxis*> axes)
{
    m_Axes = std::move(axes);
    for (CAxis* const axis : m_Axes)
    {
        axis->SetCentralPane(this);
        axis->SetHorzScroll(&m_Horz);
        axis->SetVertScroll(&m_Vert);
    }
}

void CGraph::SetZoomLimits(double finest, double widest)
{
    m_Finest = finest;
    m_Widest = widest;
}

// The axes come first: the grid takes their ticks.
void CGraph::ShowRange()
{
    for (CAxis* const axis : m_Axes)
        axis->Update(utElement);
    Update(utElement);
    m_SigShown(m_Horz.GetStart(), m_Horz.GetStart() + GetBounds().Width() * m_Horz.GetUnitsOfPixel());
}

void CGraph::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(0, 0, bounds.right, bounds.bottom);
    CClipHolder const clip(painter, GetDrawRect(painter));
    SetCoordSystem(painter);
    for (std::size_t i = 0; i < std::min<std::size_t>(m_Axes.size(), 2); ++i)
        DrawGrid(painter, *m_Axes[i], GetDrawRect(painter));
    DrawGraph(painter);
}

bool CGraph::HandleButtonDown(int x, int y, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    m_Last = {x, y};
    m_Held = true;
    CaptureMouse();
    return true;
}

bool CGraph::HandleMouseMove(int x, int y, int, MouseButton button)
{
    if (button != mbLeft || !m_Held)
        return false;
    Show(m_Horz, m_Horz.GetStart() + (m_Last.x - x) * m_Horz.GetUnitsOfPixel());
    Show(m_Vert, m_Vert.GetStart() + (m_Last.y - y) * m_Vert.GetUnitsOfPixel());
    m_Last = {x, y};
    ShowRange();
    return true;
}

bool CGraph::HandleButtonUp(int, int, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    m_Held = false;
    ReleaseMouse();
    return true;
}

bool CGraph::HandleWheel(int x, int y, int keys, MouseButton, int delta)
{
    if (!(keys & ksControl))
        Zoom(m_Horz, x, delta);
    if (!(keys & ksShift))
        Zoom(m_Vert, y, delta);
    ShowRange();
    return true;
}

// What lies so many pixels from the start stays where it is.
void CGraph::Zoom(CRange& range, double pixels, int notches)
{
    double const now = range.GetUnitsOfPixel();
    double const next = std::clamp(now * std::pow(s_ZoomStep, notches), m_Finest, m_Widest);
    range.SetMeasure({next, 1});
    Show(range, range.GetStart() + pixels * (now - next));
}

// CPlot -------------------------------------------------------------------------------------------------------------

void CPlot::AddSeries(CSeries const& series)
{
    m_Series.push_back(&series);
    m_FitDue = true;
}

void CPlot::Fit()
{
    SBand along, up;
    for (CSeries const* const series : m_Series)
    {
        if (series->GetCount() == 0)
            continue;
        along.Add(series->GetX(0));
        along.Add(series->GetX(series->GetCount() - 1));
        up.Add(series->GetBand());
    }
    auto const fit = [](CRange& range, double low, double high, double grain, int pixels) {
        if (!(low <= high) || !std::isfinite(high - low))
            low = 0, high = 1;
        if (low == high)
            low -= 0.5, high += 0.5;
        double const margin = (high - low) * s_Margin;
        // Ticks are counted from the range's beginning, so that this is round.
        double const step = grain * std::pow(10.0, std::ceil(std::log10((high - low) / grain)));
        range.SetEnds(std::floor((low - margin) / step) * step, std::ceil((high + margin) / step) * step);
        range.SetStart(low - margin);
        range.SetMeasure({high - low + 2 * margin, std::max(pixels, 1)});
    };
    fit(m_Horz, along.low, along.high, m_Grain, GetBounds().right);
    fit(m_Vert, -up.high, -up.low, 1, GetBounds().bottom);
    double const widest = std::max(m_Horz.GetUnitsOfPixel(), m_Vert.GetUnitsOfPixel());
    SetZoomLimits(std::min(m_Horz.GetUnitsOfPixel(), m_Vert.GetUnitsOfPixel()) * 1e-7, widest * 2);
    ShowRange();
}

void CPlot::SetPos(rectangle<int> const& rect, bool force)
{
    CGraph::SetPos(rect, force);
    if (GetBounds().right > 1 && GetBounds().bottom > 1 && std::exchange(m_FitDue, false))
        Fit();
}

bool CPlot::HandleDoubleClick(int, int, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    Fit();
    return true;
}

void CPlot::DrawGraph(IPainter* painter)
{
    for (CSeries const* const series : m_Series)
        DrawSeries(painter, *series);
}

void CPlot::DrawSeries(IPainter* painter, CSeries const& series)
{
    painter->SetPen({series.GetColor(), pen::psSolid, 1});
    int const width = GetBounds().right + 1;
    std::size_t first = series.Find(m_Horz.GetStart());
    std::size_t end = series.Find(m_Horz.GetStart() + width * m_Horz.GetUnitsOfPixel());
    if (end - first > 2 * static_cast<std::size_t>(width))
        return DrawBands(painter, series);
    // Lines also lead to the points beside the view.
    first -= first > 0 ? 1 : 0;
    end += end < series.GetCount() ? 1 : 0;
    DrawPoints(painter, series, first, end);
}

// Joins points that come from left to right, and draws what lies nearly straight as one line: an antialiased line begins and
// ends at whole pixels, so that many short ones would show steps.
class CPlot::CThread
{
public:
    CThread(IPainter* painter, rectangle<double> const& area, double tolerance)
        : m_Painter(painter), m_Area(area), m_Tolerance(tolerance)
    {}

    void Add(point<double> const& next)
    {
        if (m_Count > 0)
        {
            double const way = next.x - m_From.x;
            double const least = (next.y - m_Tolerance - m_From.y) / way;
            double const most = (next.y + m_Tolerance - m_From.y) / way;
            if (m_Count > 1 && (least > m_Most || most < m_Least))
            {
                point<double> const corner = m_To;
                End();
                Add(corner);
                return Add(next);
            }
            m_Least = m_Count > 1 ? std::max(m_Least, least) : least;
            m_Most = m_Count > 1 ? std::min(m_Most, most) : most;
        }
        else
        {
            m_From = next;
        }
        m_To = next;
        ++m_Count;
    }
    void End()
    {
        if (m_Count > 1 && CutLine(m_From, m_To, m_Area))
            DrawLine(m_Painter, m_From, m_To, CapNone, CapNone);
        m_Count = 0;
    }

private:
    IPainter* const m_Painter;
    rectangle<double> const m_Area;
    double const m_Tolerance;
    point<double> m_From;
    point<double> m_To;
    double m_Least = 0;  // slopes that come near enough to all points since
    double m_Most = 0;
    int m_Count = 0;
};

rectangle<double> CPlot::GetReach() const
{
    double const dx = m_Horz.GetUnitsOfPixel(), dy = m_Vert.GetUnitsOfPixel();
    double const left = m_Horz.GetStart(), top = m_Vert.GetStart();
    return {left - s_Beyond * dx, top - s_Beyond * dy, left + (GetBounds().right + s_Beyond) * dx,
            top + (GetBounds().bottom + s_Beyond) * dy};
}

// A flat column is a point of a line; a high one is itself a line, which reaches to where the column before it ended.
void CPlot::DrawBands(IPainter* painter, CSeries const& series)
{
    double const unit = m_Horz.GetUnitsOfPixel();
    double const pixel = m_Vert.GetUnitsOfPixel();
    rectangle<double> const reach = GetReach();
    CThread thread(painter, reach, s_Tolerance * pixel);
    std::size_t first = series.Find(m_Horz.GetStart());
    double before = std::nan("");
    for (int column = 0; column <= GetBounds().right; ++column)
    {
        double const x = m_Horz.GetStart() + column * unit;
        std::size_t const end = series.Find(x + unit);
        if (end == first)
            continue;
        SBand band = series.GetBand(first, end);
        double const last = series.GetY(end - 1);
        first = end;
        if (!band.IsEmpty() && band.high - band.low <= s_Flat * pixel)
        {
            thread.Add({x, -(band.low + band.high) / 2});
        }
        else
        {
            thread.End();
            band.Add(before);
            double const from = std::max(-band.high, reach.top), to = std::min(-band.low, reach.bottom);
            if (from <= to)
            {
                painter->MoveTo(x, from);
                painter->LineTo(x, to);
            }
            if (!std::isnan(last))
                thread.Add({x, -last});
        }
        before = last;
    }
    thread.End();
}

void CPlot::DrawPoints(IPainter* painter, CSeries const& series, std::size_t first, std::size_t end)
{
    rectangle<double> const reach = GetReach();
    for (std::size_t i = first; i + 1 < end; ++i)
    {
        point<double> from{series.GetX(i), -series.GetY(i)}, to{series.GetX(i + 1), -series.GetY(i + 1)};
        if (std::isfinite(from.y) && std::isfinite(to.y) && CutLine(from, to, reach))
            DrawLine(painter, from, to, CapNone, CapNone);
    }
}

}  // namespace chart
