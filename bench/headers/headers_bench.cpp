// A header over a tree of 100,000 columns in six levels, beside walks over the same tree that work out no geometry.

#include "bench/application.h"
#include "vexel/core/base_control.h"
#include "vexel/headers/header.h"
#include "vexel/platform/qt/host_window.h"
#include "vexel/scroll/scroll_model.h"
#include "vexel/views/item_scroll_model.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace
{

using namespace vexel;

constexpr int s_Levels = 6;
constexpr int s_Columns = 100000;

class CNode : public IHeaderItem
{
public:
    explicit CNode(IHeaderContainer* parent) : m_Parent(parent) {}

    std::vector<std::unique_ptr<CNode>> m_Children;
    int m_Width = 60;
    bool m_Collapsed = false;
    int m_Number = 0;

    IHeaderContainer* GetParent() override { return m_Parent; }
    IHeaderContainer const* GetParent() const override { return m_Parent; }
    int GetChildCount() const override { return static_cast<int>(m_Children.size()); }
    IHeaderItem* GetChild(int index) override { return m_Children[static_cast<std::size_t>(index)].get(); }
    IHeaderItem const* GetChild(int index) const override { return m_Children[static_cast<std::size_t>(index)].get(); }
    std::string GetText() const override { return "Column " + std::to_string(m_Number); }
    int GetWidth() const override { return m_Width; }
    void SetWidth(int width) override { m_Width = width; }
    int GetImageIndex() const override { return -1; }
    int GetTextAlign() const override { return 0x21; }
    int GetModelIndex() const override { return m_Number; }
    int GetSortingDirection() const override { return 0; }
    std::string GetDescription() const override { return {}; }
    void Expand(bool expand) override { m_Collapsed = !expand; }
    int GetExpandState() const override { return m_Children.empty() ? esNone : m_Collapsed ? esCollapsed : esExpanded; }

private:
    IHeaderContainer* const m_Parent;
};

// One section above all, and ten below each: 100,000 on the sixth level.
class CTree : public IHeaderModel
{
public:
    CTree() { Grow(this, m_Children, 1); }

    std::vector<std::unique_ptr<CNode>> m_Children;
    int m_Count = 0;
    CNode* Leaf(int column) const  // of the fully expanded tree
    {
        CNode* node = m_Children.front().get();
        for (int below = s_Columns / 10; below > 0; below /= 10)
            node = node->m_Children[static_cast<std::size_t>(column / below % 10)].get();
        return node;
    }

    int GetChildCount() const override { return static_cast<int>(m_Children.size()); }
    IHeaderItem* GetChild(int index) override { return m_Children[static_cast<std::size_t>(index)].get(); }
    IHeaderItem const* GetChild(int index) const override { return m_Children[static_cast<std::size_t>(index)].get(); }

private:
    void Grow(IHeaderContainer* parent, std::vector<std::unique_ptr<CNode>>& list, int level)
    {
        for (int i = 0; i < (level == 1 ? 1 : 10); ++i)
        {
            list.push_back(std::make_unique<CNode>(parent));
            CNode& node = *list.back();
            node.m_Number = m_Count++;
            if (level < s_Levels)
                Grow(&node, node.m_Children, level + 1);
        }
    }
};

/// A header 1,200 pixels wide in a window, scrolled to the middle of the columns.
struct SScene
{
    SScene()
    {
        bench::StartApplication();
        top = std::make_unique<QWidget>();
        top->resize(1200, 200);
        window = vexelbase::qt::HostWindow(top.get());
        control = std::make_unique<CBaseControl>(window.get());
        header = new CHeader(control->GetContent(), {120, 120}, alTop);
        header->SetModel(&tree);
        scroll.SetViewModel(header);
        header->SetHorzScroll(&scroll);
        top->show();
        QCoreApplication::processEvents();
        bench::Flush(*top);
        header->SetOffset(header->GetFullItemsSize() / 2);
    }
    void Paint()
    {
        header->Update(utElement);
        QCoreApplication::processEvents();
        bench::Flush(*top);
    }

    CTree tree;
    CContinuousItemScrollModel scroll;
    std::unique_ptr<QWidget> top;
    std::unique_ptr<vexelbase::ISysWindow> window;
    std::unique_ptr<CBaseControl> control;
    CHeader* header = nullptr;
};

class CCounter : public BaseVisitor
{
public:
    int m_Count = 0;
    bool Visit(IHeaderItem*, int) override
    {
        ++m_Count;
        return true;
    }
};

// Peers: a walk that only counts, and the one that finds the columns ---------------------------------------------------------
void WalkOnly(benchmark::State& state)
{
    CTree tree;
    for (auto _ : state)
    {
        CCounter counter;
        WalkHeaderModel(&tree, &counter, 0);
        benchmark::DoNotOptimize(counter.m_Count);
    }
}
BENCHMARK(WalkOnly)->Name("headers/walk/peer_without_geometry")->Unit(benchmark::kMicrosecond);

void WalkColumns(benchmark::State& state)
{
    CTree tree;
    for (auto _ : state)
    {
        CHeader::CViewModelItems columns;
        WalkHeaderModel(&tree, &columns, 0);
        benchmark::DoNotOptimize(columns.GetFullWidth());
    }
}
BENCHMARK(WalkColumns)->Name("headers/walk/peer_columns")->Unit(benchmark::kMicrosecond);

// The header ------------------------------------------------------------------------------------------------------------------
void HitTest(benchmark::State& state)
{
    SScene scene;
    int x = 0;
    for (auto _ : state)
    {
        x = (x + 37) % 1200;
        benchmark::DoNotOptimize(scene.header->HitTest(x, 110));
    }
}
BENCHMARK(HitTest)->Name("headers/hit_test/vexel")->Unit(benchmark::kMicrosecond);

void ResizeStep(benchmark::State& state)
{
    SScene scene;
    int const column = s_Columns / 2 + 3;
    int width = 60;
    for (auto _ : state)
    {
        width = width == 60 ? 90 : 60;
        scene.header->SetItemSize(column, width);
        benchmark::DoNotOptimize(scene.header->GetItemRect(scene.tree.Leaf(column)));
    }
}
BENCHMARK(ResizeStep)->Name("headers/resize_step/vexel")->Unit(benchmark::kMicrosecond);

// `levelsDown`: 0 is the section above all, with 100,000 columns below it.
void Expand(benchmark::State& state, int levelsDown)
{
    SScene scene;
    CNode* node = scene.tree.m_Children.front().get();
    for (int i = 0; i < levelsDown; ++i)
        node = node->m_Children[5].get();
    bool expand = false;
    for (auto _ : state)
    {
        scene.header->ExpandItem(node, expand);
        expand = !expand;
        benchmark::DoNotOptimize(scene.header->GetCount());
    }
}
BENCHMARK_CAPTURE(Expand, all, 0)->Name("headers/expand_all/vexel")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Expand, ten, 4)->Name("headers/expand_ten/vexel")->Unit(benchmark::kMicrosecond);

// What a change costs that the model tells: the tree is read anew.
void ModelChange(benchmark::State& state)
{
    SScene scene;
    for (auto _ : state)
    {
        scene.tree.m_SigChanged();
        benchmark::DoNotOptimize(scene.header->GetCount());
    }
}
BENCHMARK(ModelChange)->Name("headers/model_change/vexel")->Unit(benchmark::kMicrosecond);

void Paint(benchmark::State& state)
{
    SScene scene;
    for (auto _ : state)
        scene.Paint();
}
BENCHMARK(Paint)->Name("headers/paint/vexel")->Unit(benchmark::kMicrosecond);

// A small header that shows as many sections.
void PaintSmall(benchmark::State& state)
{
    SScene scene;
    CNode* const above = scene.tree.m_Children.front().get();
    above->m_Children.resize(1);
    above->m_Children[0]->m_Children.resize(1);
    above->m_Children[0]->m_Children[0]->m_Children.resize(1);
    scene.tree.m_SigChanged();  // 100 columns are left
    scene.header->SetOffset(scene.header->GetFullItemsSize() / 2);
    for (auto _ : state)
        scene.Paint();
}
BENCHMARK(PaintSmall)->Name("headers/paint/peer_of_100_columns")->Unit(benchmark::kMicrosecond);

}  // namespace
