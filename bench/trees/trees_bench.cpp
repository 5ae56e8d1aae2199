// Trees of many elements beside trees of many QWidgets, in one process: making, destroying, laying out and painting them.
// Both paint through a widget's backing store on Qt's offscreen platform.

#include "bench/application.h"
#include "vexel/core/base_control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/qt/host_window.h"
#include "vexel/platform/sys_window.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QBoxLayout>
#include <QPainter>
#include <QWidget>

#include <chrono>
#include <malloc.h>
#include <memory>
#include <vector>

namespace
{

using namespace vexel;
using bench::Flush;
using bench::StartApplication;

/// Comes before the first widget of what derives from it.
struct SApplication
{
    SApplication() { StartApplication(); }
};

double Seconds(std::chrono::steady_clock::time_point from)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - from).count();
}

double HeapBytes()
{
    struct mallinfo2 const info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

/// A vexel control that fills a shown widget.
struct SVexelWindow : SApplication
{
    explicit SVexelWindow(int width, int height)
    {
        top.resize(width, height);
        window = vexelbase::qt::HostWindow(&top);
        control = std::make_unique<CBaseControl>(window.get());
    }
    void Show()
    {
        top.show();
        QCoreApplication::processEvents();
        Flush(top);
    }

    QWidget top;
    std::unique_ptr<vexelbase::ISysWindow> window;
    std::unique_ptr<CBaseControl> control;
};

// Making and destroying -------------------------------------------------------------------------------------------------

enum class EMeasure
{
    create,
    destroy
};

template <class Make, class Drop>
void MakeAndDrop(benchmark::State& state, EMeasure measure, int count, Make make, Drop drop)
{
    StartApplication();
    double bytes = 0;
    for (auto _ : state)
    {
        double const before = HeapBytes();
        auto start = std::chrono::steady_clock::now();
        auto* const root = make(count);
        QCoreApplication::sendPostedEvents();  // Qt's part of making children
        double const made = Seconds(start);
        bytes = std::max(bytes, HeapBytes() - before);
        start = std::chrono::steady_clock::now();
        drop(root);
        double const dropped = Seconds(start);
        state.SetIterationTime(measure == EMeasure::create ? made : dropped);
    }
    state.counters["ns_each"] = benchmark::Counter(
        static_cast<double>(count) * 1e-9, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    if (measure == EMeasure::create)
        state.counters["bytes"] = bytes / count;
}

CVisualElement* MakeElements(int count)
{
    auto* const root = new CContent(nullptr, {0, 0}, alClient);
    for (int i = 0; i < count; ++i)
        new CVisualElement(root, {10, 10}, alTop);
    return root;
}

QWidget* MakeWidgets(int count)
{
    auto* const root = new QWidget;
    for (int i = 0; i < count; ++i)
        new QWidget(root);
    return root;
}

void Elements(benchmark::State& state, EMeasure measure, int count)
{
    MakeAndDrop(state, measure, count, MakeElements, [](CVisualElement* root) { delete root; });
}

void Widgets(benchmark::State& state, EMeasure measure, int count)
{
    MakeAndDrop(state, measure, count, MakeWidgets, [](QWidget* root) { delete root; });
}

#define MAKE_AND_DROP(count)                                                                                           \
    BENCHMARK_CAPTURE(Elements, create_##count, EMeasure::create, count)                                               \
        ->Name("trees/create_" #count "/vexel")                                                                        \
        ->UseManualTime();                                                                                             \
    BENCHMARK_CAPTURE(Widgets, create_##count, EMeasure::create, count)                                                \
        ->Name("trees/create_" #count "/qwidget")                                                                      \
        ->UseManualTime();                                                                                             \
    BENCHMARK_CAPTURE(Elements, destroy_##count, EMeasure::destroy, count)                                             \
        ->Name("trees/destroy_" #count "/vexel")                                                                       \
        ->UseManualTime();                                                                                             \
    BENCHMARK_CAPTURE(Widgets, destroy_##count, EMeasure::destroy, count)                                              \
        ->Name("trees/destroy_" #count "/qwidget")                                                                     \
        ->UseManualTime()
MAKE_AND_DROP(10000);
MAKE_AND_DROP(100000);

// Laying out: a root of 10 x 10 x 10 x 10 below it, all docked, so that a new width concerns every one -------------------

constexpr int g_Depth = 4;
constexpr int g_FanOut = 10;

int GrowElements(CVisualElement* parent, int depth)
{
    int made = 0;
    if (depth == 0)
        return made;
    int const height = depth == 4 ? 1111 : depth == 3 ? 111 : depth == 2 ? 11 : 1;
    for (int i = 0; i < g_FanOut; ++i)
        made += 1 + GrowElements(new CVisualElement(parent, {10, height}, alTop), depth - 1);
    return made;
}

void RelayoutElements(benchmark::State& state)
{
    SVexelWindow host(2000, 2000);
    int const count = GrowElements(host.control->GetContent(), g_Depth);
    host.Show();
    CVisualElement* const root = host.control->GetContent();
    bool wide = false;
    for (auto _ : state)
    {
        wide = !wide;
        root->SetPos({0, 0, wide ? 2396 : 1999, 1999}, false);
    }
    state.counters["elements"] = count;
    state.counters["ns_each"] =
        benchmark::Counter(count * 1e-9, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(RelayoutElements)->Name("trees/relayout_11000/vexel");

int GrowWidgets(QWidget* parent, int depth)
{
    int made = 0;
    if (depth == 0)
        return made;
    auto* const box = new QBoxLayout(QBoxLayout::TopToBottom, parent);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(0);
    for (int i = 0; i < g_FanOut; ++i)
    {
        auto* const child = new QWidget(parent);
        box->addWidget(child);
        made += 1 + GrowWidgets(child, depth - 1);
    }
    return made;
}

void RelayoutWidgets(benchmark::State& state)
{
    StartApplication();
    QWidget root;
    int const count = GrowWidgets(&root, g_Depth);
    root.resize(2000, 12000);
    root.setUpdatesEnabled(false);
    root.show();
    QCoreApplication::processEvents();
    bool wide = false;
    for (auto _ : state)
    {
        wide = !wide;
        root.resize(wide ? 2397 : 2000, 12000);
        QCoreApplication::sendPostedEvents();
    }
    state.counters["elements"] = count;
    state.counters["ns_each"] =
        benchmark::Counter(count * 1e-9, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(RelayoutWidgets)->Name("trees/relayout_11000/qwidget");

// Painting: 10,000 small siblings, 125 a row ------------------------------------------------------------------------------

constexpr int g_Leaves = 10000;

rectangle<int> LeafRect(int index)
{
    int const x = index % 125 * 10;
    int const y = index / 125 * 10;
    return {x, y, x + 8, y + 7};
}

class CLeaf : public CVisualElement
{
public:
    explicit CLeaf(CVisualElement* parent) : CVisualElement(parent, {0, 0}, alNone) { SetBkColor(color_table[16]); }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        painter->FillRect(0, 0, rect.right, rect.bottom);
    }
};

struct SVexelLeaves : SVexelWindow
{
    SVexelLeaves() : SVexelWindow(1280, 800)
    {
        for (int i = 0; i < g_Leaves; ++i)
        {
            leaves.push_back(new CLeaf(control->GetContent()));
            leaves.back()->SetPos(LeafRect(i), true);
        }
        Show();
    }
    // A frame, and what it touched goes to the backing store.
    void Frame()
    {
        QCoreApplication::sendPostedEvents();
        Flush(top);
    }
    std::vector<CLeaf*> leaves;
};

class CLeafWidget : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0x1E, 0x90, 0xFF));
    }
};

struct SWidgetLeaves : SApplication
{
    SWidgetLeaves()
    {
        top.resize(1280, 800);
        for (int i = 0; i < g_Leaves; ++i)
        {
            rectangle<int> const rect = LeafRect(i);
            leaves.push_back(new CLeafWidget(&top));
            leaves.back()->setGeometry(rect.left, rect.top, rect.Width() + 1, rect.Height() + 1);
        }
        top.show();
        QCoreApplication::processEvents();
        Flush(top);
    }
    QWidget top;
    std::vector<CLeafWidget*> leaves;
};

// Strides through the leaves, so that those of one round lie apart.
struct SStride
{
    std::size_t Next() { return at = (at + 7919) % g_Leaves; }
    std::size_t at = 0;
};

void ChangeElements(benchmark::State& state, int changes)
{
    SVexelLeaves tree;
    SStride stride;
    for (auto _ : state)
    {
        for (int i = 0; i < changes; ++i)
            tree.leaves[stride.Next()]->Update(utElement);
        tree.Frame();
    }
}
BENCHMARK_CAPTURE(ChangeElements, 1, 1)->Name("trees/change_1_of_10000/vexel");
BENCHMARK_CAPTURE(ChangeElements, 100, 100)->Name("trees/change_100_of_10000/vexel");
BENCHMARK_CAPTURE(ChangeElements, 1000, 1000)->Name("trees/change_1000_of_10000/vexel");

void ChangeWidgets(benchmark::State& state, int changes)
{
    SWidgetLeaves tree;
    SStride stride;
    for (auto _ : state)
    {
        for (int i = 0; i < changes; ++i)
            tree.leaves[stride.Next()]->update();
        Flush(tree.top);
    }
}
BENCHMARK_CAPTURE(ChangeWidgets, 1, 1)->Name("trees/change_1_of_10000/qwidget");
BENCHMARK_CAPTURE(ChangeWidgets, 100, 100)->Name("trees/change_100_of_10000/qwidget");
BENCHMARK_CAPTURE(ChangeWidgets, 1000, 1000)->Name("trees/change_1000_of_10000/qwidget")->Iterations(5);

void RepaintElements(benchmark::State& state)
{
    SVexelLeaves tree;
    for (auto _ : state)
    {
        tree.control->GetContent()->Update(utFull);
        tree.Frame();
    }
}
BENCHMARK(RepaintElements)->Name("trees/repaint_10000/vexel");

void RepaintWidgets(benchmark::State& state)
{
    SWidgetLeaves tree;
    for (auto _ : state)
        tree.top.repaint();
}
BENCHMARK(RepaintWidgets)->Name("trees/repaint_10000/qwidget");

// Hit tests ----------------------------------------------------------------------------------------------------------------

void HitElements(benchmark::State& state)
{
    SVexelLeaves tree;
    SStride stride;
    for (auto _ : state)
    {
        rectangle<int> const rect = LeafRect(static_cast<int>(stride.Next()));
        benchmark::DoNotOptimize(tree.control->GetContent()->FindVisualElement(rect.left + 4, rect.top + 4));
    }
}
BENCHMARK(HitElements)->Name("trees/hit_10000/vexel");

void HitWidgets(benchmark::State& state)
{
    SWidgetLeaves tree;
    SStride stride;
    for (auto _ : state)
    {
        rectangle<int> const rect = LeafRect(static_cast<int>(stride.Next()));
        benchmark::DoNotOptimize(tree.top.childAt(rect.left + 4, rect.top + 4));
    }
}
BENCHMARK(HitWidgets)->Name("trees/hit_10000/qwidget");

}  // namespace
