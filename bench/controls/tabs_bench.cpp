// A pane of tabs in a window of 1280 x 30 pixels: what it costs to point at the next tab, to scroll by one and to paint all,
// with ten tabs and with ten thousand, of which a dozen is seen, and what it costs to lay all of them out. Ten tabs are
// painted beside QTabBar, which takes minutes to take in ten thousand. All paint through a widget's backing store on Qt's
// offscreen platform.

#include "bench/application.h"
#include "vexel/controls/tab_pane.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/qt/host_window.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTabBar>
#include <QWidget>

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

    bool m_Long = false;

    int GetTabCount() const override { return m_Count; }
    std::string GetTabText(int tab) const override
    {
        return (m_Long ? "Long document " : "Document ") + std::to_string(tab);
    }
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
        m_Pane->SetTransparent(false);
        m_Pane->SetModel(&m_Tabs);
        m_Pane->Layout();
        m_Top.show();
        QCoreApplication::processEvents();
        Flush(m_Top);
    }
    ~CPaneScene() { m_Pane->SetModel(nullptr); }
    CPaneScene(CPaneScene const&) = delete;
    CPaneScene& operator=(CPaneScene const&) = delete;

    CTabs& Tabs() { return m_Tabs; }
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

void HoverPane(benchmark::State& state, int count)
{
    StartApplication();
    CPaneScene scene(count);
    bool second = false;
    bool handled = false;
    for (auto _ : state)
    {
        second = !second;
        scene.Pane().HighlightingMouseMove(scene.Middle(second ? 2 : 1), 10, 0, mbNone, &handled);
        Flush(scene.Top());
    }
}

void ScrollPane(benchmark::State& state, int count)
{
    StartApplication();
    CPaneScene scene(count);
    int const first = count / 2;
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

void PaintPane(benchmark::State& state, int count)
{
    StartApplication();
    CPaneScene scene(count);
    for (auto _ : state)
    {
        scene.Pane().GetColumnViewModel()->AddDirtyItems(0, count);
        scene.Pane().Update(utElement);
        Flush(scene.Top());
    }
}

void PaintBar(benchmark::State& state, int count)
{
    StartApplication();
    QTabBar bar;
    bar.setUsesScrollButtons(true);
    for (int i = 0; i < count; ++i)
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

void LayOutPane(benchmark::State& state, int count)
{
    StartApplication();
    CPaneScene scene(count);
    for (auto _ : state)
        scene.Pane().Layout();
}

void LayOutChangedPane(benchmark::State& state, int count)
{
    StartApplication();
    CPaneScene scene(count);
    for (auto _ : state)
    {
        scene.Tabs().m_Long = !scene.Tabs().m_Long;
        scene.Pane().Layout();
    }
}

BENCHMARK_CAPTURE(HoverPane, of_10, 10)->Name("tabs/hover_10/vexel");
BENCHMARK_CAPTURE(HoverPane, of_10000, 10000)->Name("tabs/hover_10000/vexel");
BENCHMARK_CAPTURE(ScrollPane, of_100, 100)->Name("tabs/scroll_step_100/vexel");
BENCHMARK_CAPTURE(ScrollPane, of_10000, 10000)->Name("tabs/scroll_step_10000/vexel");
BENCHMARK_CAPTURE(PaintPane, of_10, 10)->Name("tabs/full_paint_10/vexel");
BENCHMARK_CAPTURE(PaintPane, of_10000, 10000)->Name("tabs/full_paint_10000/vexel");
BENCHMARK_CAPTURE(PaintBar, of_10, 10)->Name("tabs/full_paint_10/qtabbar");
BENCHMARK_CAPTURE(LayOutPane, of_10, 10)->Name("tabs/layout_10/vexel");
BENCHMARK_CAPTURE(LayOutPane, of_10000, 10000)->Name("tabs/layout_10000/vexel");
BENCHMARK_CAPTURE(LayOutChangedPane, of_10, 10)->Name("tabs/layout_changed_10/vexel");
BENCHMARK_CAPTURE(LayOutChangedPane, of_10000, 10000)->Name("tabs/layout_changed_10000/vexel");

}  // namespace
