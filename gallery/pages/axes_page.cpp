#include "gallery/pages/axes_page.h"

#include "gallery/frame/panel.h"
#include "vexel/charts/categorical_axis.h"
#include "vexel/core/clip_holder.h"
#include "vexel/scroll/central_part.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace gallery
{

namespace
{

constexpr int s_AxisDepth = 30;
constexpr double s_Minute = 0.1;  // units of a pixel at first
constexpr double s_Metre = 0.13;
constexpr double s_FirstMinute = -6;
constexpr int s_CurveStep = 2;  // pixels

_color const g_Curve = _color::FromRgb(0xC0, 0x30, 0x20);
_color const g_Column = _color::FromRgb(0x60, 0x90, 0xD0);

std::array<double, 12> const g_RainOfMonth{52, 39, 45, 31, 58, 66, 71, 63, 44, 40, 55, 61};

// Minutes and metres of a dive; the next one begins two hours later.
constexpr double s_DiveDistance = 120;
std::array<std::pair<double, double>, 11> const g_Dive{
    {{0, 0}, {4, 28}, {14, 31}, {22, 24}, {30, 19}, {38, 12}, {46, 9}, {52, 5}, {57, 5}, {59, 0}, {s_DiveDistance, 0}}};

double DepthAt(double minute)
{
    double const time = minute - std::floor(minute / s_DiveDistance) * s_DiveDistance;
    std::size_t i = 1;
    while (i + 1 < g_Dive.size() && g_Dive[i].first < time)
        ++i;
    auto const [from, high] = g_Dive[i - 1];
    auto const [to, low] = g_Dive[i];
    return high + (low - high) * (time - from) / (to - from);
}

}  // namespace

// The depth of a dive over a grid.
class CAxesPage::CPlot : public chart::CGraph
{
public:
    using CGraph::CGraph;

protected:
    void DrawGraph(IPainter* painter) override
    {
        painter->SetPen({g_Curve, pen::psSolid, 2});
        double const pixel = m_Horz.GetUnitsOfPixel();
        double const start = m_Horz.GetStart();
        for (int x = -s_CurveStep; x <= GetBounds().right + s_CurveStep; x += s_CurveStep)
        {
            double const minute = start + x * pixel;
            x < 0 ? painter->MoveTo(minute, DepthAt(minute)) : painter->LineTo(minute, DepthAt(minute));
        }
    }
};

// A column for each month; all of them fill the pane.
class CAxesPage::CColumns : public CCentralPart
{
public:
    CColumns(CVisualElement* parent, chart::CRange& months, chart::CRange& rain)
        : CCentralPart(parent, {0, 0}, alClient)
    {
        SetHorzScroll(&months);
        SetVertScroll(&rain);
    }
    CAxis* m_Axis = nullptr;

    void SetPos(rectangle<int> const& rect, bool force) override
    {
        for (auto const& [model, pixels] : {std::pair{GetHorzScroll(), rect.Width()}, {GetVertScroll(), rect.Height()}})
            if (model)
                model->SetMeasure({std::abs(model->GetTo() - model->GetFrom()), std::max(pixels, 1)});
        CCentralPart::SetPos(rect, force);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
        CClipHolder const clip(painter, GetDrawRect(painter));
        SetCoordSystem(painter);
        chart::DrawGrid(painter, *m_Axis, GetDrawRect(painter));
        painter->SetBrush({g_Column, brush::bsSolid});
        for (std::size_t i = 0; i < g_RainOfMonth.size(); ++i)
        {
            double const month = static_cast<double>(i);
            painter->FillRect(month - 0.3, 0, month + 0.3, g_RainOfMonth[i]);
        }
    }
};

CAxesPage::CAxesPage() = default;
CAxesPage::~CAxesPage() = default;

int CAxesPage::CMonths::GetItemCount() const
{
    return static_cast<int>(g_RainOfMonth.size());
}

std::string CAxesPage::CMonths::GetItemCaption(int index) const
{
    static char const* const names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                        "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return index >= 0 && index < GetItemCount() ? names[index] : "";
}

void CAxesPage::Build(CVisualElement* parent)
{
    // Axes stand before their panes, and so are painted before them. Those at the sides take the corners, where labels at
    // their ends have room.
    auto* const lower = new CVisualElement(parent, {0, 190}, alBottom);
    new CLabel(lower, {0, 30}, alTop, "An axis of categories: millimetres of rain in each month");
    size<int> const depth{s_AxisDepth, s_AxisDepth};
    auto* const rain = new CAxis(lower, depth, alLeft);
    auto* const months = new CCategoricalAxis(lower, depth, alBottom);
    new CPanel(lower, {s_AxisDepth, 0}, alRight);
    auto* const columns = new CColumns(lower, m_MonthRange, m_Rain);
    columns->m_Axis = rain;
    months->SetCategoryModel(&m_Months);

    m_Minutes.SetMeasure({s_Minute, 1});
    m_Minutes.SetStart(s_FirstMinute);
    m_Metres.SetMeasure({s_Metre, 1});
    new CLabel(
        parent, {0, 30}, alTop,
        "A dive: minutes below and hours above, metres at the left and feet at the right. Drag it, turn the wheel.");
    auto* const upper = new CVisualElement(parent, {0, 0}, alClient);
    auto* const metres = new CAxis(upper, depth, alLeft);
    auto* const feet = new CAxis(upper, depth, alRight);
    auto* const minutes = new CAxis(upper, depth, alBottom);
    auto* const hours = new CAxis(upper, depth, alTop);
    auto* const plot = new CPlot(upper, m_Minutes, m_Metres);
    hours->SetUnitConverter(&m_Hours);
    feet->SetUnitConverter(&m_Feet);
    plot->SetAxes({minutes, metres, hours, feet});

    for (CAxis* const axis : std::initializer_list<CAxis*>{months, rain})
    {
        axis->SetCentralPane(columns);
        axis->SetHorzScroll(&m_MonthRange);
        axis->SetVertScroll(&m_Rain);
    }
    Report(plot->m_SigShown, "minutes in view");
    ReportMouse(plot, "plot");
}

}  // namespace gallery
