#include "gallery/pages/chart_page.h"

#include "gallery/frame/panel.h"

#include <cmath>
#include <cstdint>
#include <utility>

namespace gallery
{

namespace
{

constexpr int s_Points = 1'000'000;
constexpr double s_Hours = 24 * 365;  // that they spread over
constexpr double s_Turn = 6.283185307179586;
constexpr int s_BottomDepth = 30;
constexpr int s_SideDepth = 34;

// The same at every start; from 0 to 1.
class CNoise
{
public:
    double Next()
    {
        m_State = m_State * 6364136223846793005u + 1442695040888963407u;
        return static_cast<double>(m_State >> 11) / 9007199254740992.0;
    }

private:
    std::uint64_t m_State = 1;
};

// Three that differ in kind: by day and year, at random, and a slow wave.
std::vector<chart::CSeries> MakeSeries()
{
    std::vector<double> x(s_Points), days(s_Points), walk(s_Points), wave(s_Points);
    CNoise noise;
    double place = 0;
    for (std::size_t i = 0; i < s_Points; ++i)
    {
        x[i] = s_Hours * static_cast<double>(i) / s_Points;
        double const year = x[i] / s_Hours * s_Turn;
        days[i] = 12 - 9 * std::cos(year) + 4 * std::sin(x[i] / 24 * s_Turn) + noise.Next();
        place += 0.06 * (noise.Next() - 0.5);
        walk[i] = place - 20;
        wave[i] = 35 + 6 * std::sin(3 * year) * std::cos(11 * year);
    }
    std::vector<chart::CSeries> series;
    series.emplace_back("temperature", _color::FromRgb(0xC0, 0x30, 0x20), x, std::move(days));
    series.emplace_back("walk", _color::FromRgb(0x20, 0x80, 0x40), x, std::move(walk));
    series.emplace_back("wave", _color::FromRgb(0x20, 0x60, 0xB0), x, std::move(wave));
    return series;
}

}  // namespace

void CChartPage::Build(CVisualElement* parent)
{
    static std::vector<chart::CSeries> const series = MakeSeries();  // 48 MB: once, and not before the page is seen
    auto* const right = new chart::CUpwardAxis(parent, {s_SideDepth, s_SideDepth}, alRight);
    auto* const left = new chart::CUpwardAxis(parent, {s_SideDepth, s_SideDepth}, alLeft);
    auto* const hours = new CAxis(parent, {s_BottomDepth, s_BottomDepth}, alBottom);
    auto* const days = new CAxis(parent, {s_BottomDepth, s_BottomDepth}, alTop);
    days->SetUnitConverter(&m_Days);
    auto* const plot = new chart::CPlot(parent, m_Hours, m_Values);
    plot->SetBkColor(_color::FromRgb(0xFF, 0xFF, 0xFF));
    plot->SetAxes({hours, left, days, right});
    plot->SetGrain(m_Days.FromUnits(1));
    for (chart::CSeries const& one : series)
        plot->AddSeries(one);
    Report(plot->m_SigShown, "hours in view");
    ReportMouse(plot, "plot");
}

}  // namespace gallery
