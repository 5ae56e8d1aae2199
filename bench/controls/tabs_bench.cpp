// A pane of tabs in a window of 1280 x 30 pixels: what it costs to point at the next tab, to scroll by one and to paint all,
// with ten tabs and with ten thousand, of which a dozen is seen, and what it costs to lay all of them out. Beside QTabBar.
// All paint through a widget's backing store on Qt's offscreen platform.

#include "bench/application.h"
#include "vexel/controls/tab_pane.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/qt/host_window.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTabBar>
#include <QWidget>

#include <algorithm>
#include <memory>
#include <string>

namespace
{

using namespace vexel;
using bench::Flush;
using bench::StartApplication;

constexpr int g_Width = 1280;
constexpr int g_Height = 30;

class CTabs : public ITabsModel
{
public:
    explicit CTabs(int count) : m_Count(count) {}

    int GetTabCount() const override { return m_Count; }
    std::string GetTabText(int tab) const override { return "Document " + std::to_string(tab); }
    int GetTabImageIndex(int) const override { return -1; }
    int GetTabTextFlags(int) const override { return IPainter::AlignLeft | IPainter::AlignVCenter; }
    std::string GetTabTooltip(int) const override { return {}; }
    bool HasTabCloseButton(int) const override { return false; }
    int GetTabSpacerWidth(int) const override { return 0; }
    int GetTabSpacerImageIndex(int) const override { return -1; }
    bool IsTabEnabled(int) const override { return true; }
    bool IsTabAnimated(int) const override { return false; }
    vexel_ptr<IAnimation> GetAnimation() const override { return nullptr; }

private:
    int const m_Count;
};

void SendMove(QWidget& widget, int x, int y)
{
    QPointF const at(x, y);
    QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
}

/// A window with a pane of tabs that were laid out.
class CPaneScene
{
public:
    explicit CPaneScene(int count) : m_Tabs(count)
    {
        m_Top.resize(g_Width, g_Height);
        m_Window = vexelbase::qt::HostWindow(&m_Top);
        m_Control = std::make_unique<CBaseControl>(m_Window.get());
        m_Pane = new CTabPane(m_Control->GetContent(), {0, g_Height}, alClient);
        m_Pane->SetModel(&m_Tabs);
        m_Pane->Layout();
        m_Top.show();
        QCoreApplication::processEvents();
        Flush(m_Top);
    }
    ~CPaneScene() { m_Pane->SetModel(nullptr); }
    CPaneScene(CPaneScene const&) = delete;
    CPaneScene& operator=(CPaneScene const&) = delete;

    CTabPane& Pane() { return *m_Pane; }
    QWidget& Top() { return m_Top; }
    int Middle(int tab) const { return m_Pane->GetColumnViewModel()->GetItemSize(tab) * tab + 20; }

private:
    CTabs m_Tabs;
    QWidget m_Top;
    std::unique_ptr<vexelbase::ISysWindow> m_Window;
    std::unique_ptr<CBaseControl> m_Control;
    CTabPane* m_Pane = nullptr;
};

void HoverPane(benchmark::State& state)
{
    StartApplication();
    CPaneScene scene(static_cast<int>(state.range(0)));
    bool second = false;
    bool handled = false;
    for (auto _ : state)
    {
        second = !second;
        scene.Pane().HighlightingMouseMove(scene.Middle(second ? 2 : 1), 10, 0, mbNone, &handled);
        Flush(scene.Top());
    }
}

void HoverBar(benchmark::State& state)
{
    StartApplication();
    QTabBar bar;
    bar.setUsesScrollButtons(true);
    for (int i = 0; i < state.range(0); ++i)
        bar.addTab(QStringLiteral("Document %1").arg(i));
    bar.resize(g_Width, g_Height);
    bar.show();
    QCoreApplication::processEvents();
    Flush(bar);
    bar.setAttribute(Qt::WA_Hover);
    bool second = false;
    for (auto _ : state)
    {
        second = !second;
        QPoint const at = bar.tabRect(second ? 2 : 1).center();
        SendMove(bar, at.x(), at.y());
        bar.update(bar.tabRect(1) | bar.tabRect(2));
        Flush(bar);
    }
}

void ScrollPane(benchmark::State& state)
{
    StartApplication();
    CPaneScene scene(static_cast<int>(state.range(0)));
    int const first = static_cast<int>(state.range(0)) / 2;
    scene.Pane().SetFirstVisibleTab(first);
    Flush(scene.Top());
    bool second = false;
    for (auto _ : state)
    {
        second = !second;
        scene.Pane().SetFirstVisibleTab(second ? first + 1 : first);
        Flush(scene.Top());
    }
}

void PaintPane(benchmark::State& state)
{
    StartApplication();
    CPaneScene scene(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        scene.Pane().GetColumnViewModel()->AddDirtyItems(0, static_cast<int>(state.range(0)));
        scene.Pane().Update(utElement);
        Flush(scene.Top());
    }
}

void PaintBar(benchmark::State& state)
{
    StartApplication();
    QTabBar bar;
    bar.setUsesScrollButtons(true);
    for (int i = 0; i < state.range(0); ++i)
        bar.addTab(QStringLiteral("Document %1").arg(i));
    bar.resize(g_Width, g_Height);
    bar.show();
    QCoreApplication::processEvents();
    for (auto _ : state)
    {
        bar.update();
        Flush(bar);
    }
}

void LayOutPane(benchmark::State& state)
{
    StartApplication();
    CPaneScene scene(static_cast<int>(state.range(0)));
    for (auto _ : state)
        scene.Pane().Layout();
}

BENCHMARK(HoverPane)->Name("tabs/hover/vexel")->Arg(10)->Arg(10000);
BENCHMARK(HoverBar)->Name("tabs/hover/qtabbar")->Arg(10)->Arg(10000);
BENCHMARK(ScrollPane)->Name("tabs/scroll_step/vexel")->Arg(100)->Arg(10000);
BENCHMARK(PaintPane)->Name("tabs/full_paint/vexel")->Arg(10)->Arg(10000);
BENCHMARK(PaintBar)->Name("tabs/full_paint/qtabbar")->Arg(10)->Arg(10000);
BENCHMARK(LayOutPane)->Name("tabs/layout/vexel")->Arg(10)->Arg(10000);

}  // namespace
