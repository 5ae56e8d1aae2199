// An axis of 1280 pixels whose range moves by a pixel, or is zoomed; and a chart of 1280 x 800 pixels with two axes and a
// grid at their ticks that is painted anew, its ranges moved. All paints through a widget's backing store on Qt's offscreen
// platform.

#include "bench/application.h"
#include "examples/chart/plot.h"
#include "vexel/charts/axis.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/qt/host_window.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QWidget>

#include <qcustomplot.h>

#include <memory>
#include <utility>

namespace
{

using namespace vexel;
using bench::Flush;

constexpr int g_Width = 1280;
constexpr int g_Height = 100;
constexpr int g_AxisHeight = 40;
constexpr int g_ChartHeight = 800;
constexpr double g_ChartStep = 3.7;

class CRange : public ISimpleScrollModel
{
public:
    double m_Start = 0;
    std::pair<double, int> m_Measure{0.5, 1};

    double GetFrom() const override { return 0; }
    double GetTo() const override { return 1e6; }
    void SetStart(double value) override { m_Start = value; }
    double GetStart() const override { return m_Start; }
    int GetMinScrollDistance() const override { return 1; }
    void SetMeasure(std::pair<double, int> measure) override { m_Measure = measure; }
    std::pair<double, int> GetMeasure() const override { return m_Measure; }
};

// A shown window with an axis at its foot.
class CVexelAxis
{
public:
    static constexpr char const* s_Name = "vexel";

    CVexelAxis()
    {
        m_Top.resize(g_Width, g_Height);
        m_Window = vexelbase::qt::HostWindow(&m_Top);
        m_Control = std::make_unique<CBaseControl>(m_Window.get());
        m_Axis = new CAxis(m_Control->GetContent(), {g_AxisHeight, g_AxisHeight}, alBottom);
        auto* const pane = new CVisualElement(m_Control->GetContent(), {0, 0}, alClient);
        m_Axis->SetCentralPane(pane);
        m_Axis->SetHorzScroll(&m_Range);
        m_Top.show();
        QCoreApplication::processEvents();
        Flush(m_Top);
    }
    ~CVexelAxis() { m_Control.reset(); }

    void Move()
    {
        m_Range.m_Start = m_Range.m_Start > 1e5 ? 0 : m_Range.m_Start + m_Range.m_Measure.first;
        Show();
    }
    void Zoom()
    {
        m_Range.m_Measure.first = m_Range.m_Measure.first > 100 ? 0.01 : m_Range.m_Measure.first * 1.1;
        Show();
    }
    std::size_t CountTicks() const { return m_Axis->GetMajorTicks().size() + m_Axis->GetMinorTicks().size(); }

private:
    void Show()
    {
        m_Axis->Update(utElement);
        Flush(m_Top);
    }

    CRange m_Range;
    QWidget m_Top;
    std::unique_ptr<vexelbase::ISysWindow> m_Window;
    std::unique_ptr<CBaseControl> m_Control;
    CAxis* m_Axis = nullptr;
};

// Two axes and a grid, without data.
class CVexelChart
{
public:
    static constexpr char const* s_Name = "vexel";

    CVexelChart()
    {
        m_Top.resize(g_Width, g_ChartHeight);
        m_Window = vexelbase::qt::HostWindow(&m_Top);
        m_Control = std::make_unique<CBaseControl>(m_Window.get());
        m_Left = new CAxis(m_Control->GetContent(), {g_AxisHeight, g_AxisHeight}, alLeft);
        m_Below = new CAxis(m_Control->GetContent(), {g_AxisHeight, g_AxisHeight}, alBottom);
        m_Graph = new CEmpty(m_Control->GetContent(), m_Horz, m_Vert);
        m_Graph->SetBkColor(_color::FromRgb(255, 255, 255));
        m_Graph->SetAxes({m_Below, m_Left});
        m_Horz.SetMeasure({1000, g_Width - g_AxisHeight});
        m_Vert.SetMeasure({1000, g_ChartHeight - g_AxisHeight});
        m_Top.show();
        QCoreApplication::processEvents();
        Flush(m_Top);
    }
    ~CVexelChart() { m_Control.reset(); }

    void Move()
    {
        double const start = m_Horz.GetStart() > 1e5 ? 0 : m_Horz.GetStart() + g_ChartStep;
        m_Horz.SetStart(start);
        m_Vert.SetStart(start);
        m_Graph->ShowRange();
        Flush(m_Top);
    }
    std::size_t CountTicks() const { return m_Below->GetMajorTicks().size() + m_Left->GetMinorTicks().size(); }

private:
    class CEmpty : public chart::CGraph
    {
    public:
        using CGraph::CGraph;

    protected:
        void DrawGraph(IPainter*) override {}
    };

    chart::CRange m_Horz{0, 1e6};
    chart::CRange m_Vert{0, 1e6};
    QWidget m_Top;
    std::unique_ptr<vexelbase::ISysWindow> m_Window;
    std::unique_ptr<CBaseControl> m_Control;
    CAxis* m_Left = nullptr;
    CAxis* m_Below = nullptr;
    CEmpty* m_Graph = nullptr;
};

class CCustomPlotChart
{
public:
    static constexpr char const* s_Name = "qcustomplot";

    CCustomPlotChart()
    {
        m_Plot.resize(g_Width, g_ChartHeight);
        for (QCPAxis* const axis : {m_Plot.xAxis, m_Plot.yAxis})
            axis->grid()->setSubGridVisible(true);  // ours has lines at all ticks, too
        m_Plot.show();
        QCoreApplication::processEvents();
    }

    void Move()
    {
        m_Start = m_Start > 1e5 ? 0 : m_Start + g_ChartStep;
        m_Plot.xAxis->setRange(m_Start, m_Start + 1000);
        m_Plot.yAxis->setRange(m_Start, m_Start + 1000);
        m_Plot.replot(QCustomPlot::rpImmediateRefresh);
    }
    std::size_t CountTicks() const { return static_cast<std::size_t>(m_Plot.width()); }  // it keeps its own to itself

private:
    QCustomPlot m_Plot;
    double m_Start = 0;
};

template <class Peer> void Run(benchmark::State& state, void (Peer::*step)())
{
    bench::StartApplication();
    Peer peer;
    for (auto _ : state)
        (peer.*step)();
    if (peer.CountTicks() < 20)
        state.SkipWithError("no ticks");
}

template <class Peer> void RegisterChart()
{
    benchmark::RegisterBenchmark((std::string("charts/two_axes_with_grid/") + Peer::s_Name).c_str(),
                                 [](benchmark::State& state) { Run<Peer>(state, &Peer::Move); });
}

template <class Peer> void Register()
{
    std::string const tail = std::string("/") + Peer::s_Name;
    benchmark::RegisterBenchmark(("charts/axis_1280_move" + tail).c_str(),
                                 [](benchmark::State& state) { Run<Peer>(state, &Peer::Move); });
    benchmark::RegisterBenchmark(("charts/axis_1280_zoom" + tail).c_str(),
                                 [](benchmark::State& state) { Run<Peer>(state, &Peer::Zoom); });
}

bool const g_Registered = [] {
    Register<CVexelAxis>();
    RegisterChart<CVexelChart>();
    RegisterChart<CCustomPlotChart>();
    return true;
}();

}  // namespace
