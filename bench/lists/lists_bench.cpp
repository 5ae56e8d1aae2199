// A list box of 2,147,483,647 lines beside a plain viewer of as many rows that draws the same text, and beside a list box
// of a thousand lines. All paint through a widget's backing store on Qt's offscreen platform.

#include "bench/application.h"
#include "vexel/controls/list_box.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/qt/host_window.h"

#include <benchmark/benchmark.h>

#include <QWidget>

#include <limits>
#include <memory>
#include <string>

namespace
{

using namespace vexel;
using bench::Flush;
using bench::StartApplication;

constexpr int g_Width = 400;
constexpr int g_Height = 800;
constexpr int g_All = std::numeric_limits<int>::max();

class CLines : public IItemsModel
{
public:
    explicit CLines(int count) : m_Count(count) {}
    int GetItemCount() const override { return m_Count; }
    std::string GetItemCaption(int index) const override { return "Line number " + std::to_string(index); }

private:
    int const m_Count;
};

// What a row viewer does at least: a ground by the selection, and the text.
class CPlainRows : public CRowViewer<IDiscreteItemViewModel>
{
public:
    CPlainRows(CVisualElement* parent, IItemsModel const& lines)
        : CRowViewer<IDiscreteItemViewModel>(parent, {0, 0}, alClient), m_Lines(lines)
    {}

    void DrawRow(IPainter* painter, int row, int, int state, rectangle<double> const& rect,
                 IDirtyItemSet::DirtyType dirty) override
    {
        if (dirty == IDirtyItemSet::dirtyOther)
            return;
        painter->SetBrush({(state & 1) != 0 ? color_table[4] : color_table[9], brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
        painter->DrawString({rect.left + 3, rect.top, rect.right, rect.bottom}, m_Lines.GetItemCaption(row),
                            IPainter::AlignVCenter, -1);
    }

private:
    IItemsModel const& m_Lines;
};

class CScene
{
public:
    CScene(int count, bool plain) : m_Lines(count)
    {
        m_Top.resize(g_Width, g_Height);
        m_Window = vexelbase::qt::HostWindow(&m_Top);
        m_Control = std::make_unique<CBaseControl>(m_Window.get());
        if (plain)
        {
            auto* const box = new CScrollBox(m_Control->GetContent(), {0, 0}, alClient);
            m_Rows = new CPlainRows(box, m_Lines);
            box->ConnectElement(m_Rows, CScrollBox::ctVertical, true);
            m_Rows->GetRowViewModel()->SetCount(count);
        }
        else
        {
            auto* const list = new CListBox(m_Control->GetContent(), {0, 0}, alClient);
            list->GetViewer().SetModel(&m_Lines);
            m_Rows = &list->GetViewer();
        }
        m_Top.show();
        QCoreApplication::processEvents();
        Flush(m_Top);
    }
    ~CScene() { m_Control.reset(); }

    CRowViewer<IDiscreteItemViewModel>& GetRows() { return *m_Rows; }
    void Show() { Flush(m_Top); }
    void Point(int y) { m_Control->GetContent()->ProcessMouseMove(50, y, 0, static_cast<MouseButton>(0)); }

private:
    CLines m_Lines;
    QWidget m_Top;
    std::unique_ptr<vexelbase::ISysWindow> m_Window;
    std::unique_ptr<CBaseControl> m_Control;
    CRowViewer<IDiscreteItemViewModel>* m_Rows = nullptr;
};

void FullPaint(benchmark::State& state, int count, bool plain)
{
    StartApplication();
    CScene scene(count, plain);
    for (auto _ : state)
    {
        scene.GetRows().GetRowViewModel()->AddDirtyItems(0, g_All);
        scene.GetRows().Update(utElement);
        scene.Show();
    }
}

void Scroll(benchmark::State& state, int count, bool plain)
{
    StartApplication();
    CScene scene(count, plain);
    IDiscreteItemViewModel& rows = *scene.GetRows().GetRowViewModel();
    for (auto _ : state)
    {
        rows.SetStartItem(rows.GetStartItem() > 500 ? 0 : rows.GetStartItem() + 1);
        scene.Show();
    }
}

void Jump(benchmark::State& state, int count, bool plain)
{
    StartApplication();
    CScene scene(count, plain);
    IDiscreteItemViewModel& rows = *scene.GetRows().GetRowViewModel();
    bool far = false;
    for (auto _ : state)
    {
        far = !far;
        rows.SetStartItem(far ? count - 200 : 0);
        scene.Show();
    }
}

void Hover(benchmark::State& state, int count)
{
    StartApplication();
    CScene scene(count, false);
    int y = 0;
    for (auto _ : state)
    {
        y = (y + 31) % g_Height;
        scene.Point(y);
        scene.Show();
    }
}

void Register()
{
    auto const add = [](std::string const& name, auto function, auto... arguments) {
        benchmark::RegisterBenchmark(("list_box/" + name).c_str(), function, arguments...);
    };
    for (auto const& [name, function] : {std::pair{"full_paint", &FullPaint}, {"scroll_row", &Scroll}, {"jump", &Jump}})
    {
        add(std::string(name) + "_of_all/vexel", function, g_All, false);
        add(std::string(name) + "_of_all/row_viewer", function, g_All, true);
        add(std::string(name) + "_of_all/of_1000", function, 1000, false);
    }
    add("hover_of_all/vexel", &Hover, g_All);
    add("hover_of_all/of_1000", &Hover, 1000);
}

int const g_Registered = (Register(), 0);

}  // namespace
