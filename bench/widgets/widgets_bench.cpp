// The event log beside Qt's editor for plain text, and the frames of the workbench beside those of its parts alone. All
// paint through a widget's backing store on Qt's offscreen platform.

#include "bench/application.h"
#include "examples/workbench/chart_page.h"
#include "examples/workbench/log_lines.h"
#include "examples/workbench/table_page.h"
#include "examples/workbench/workbench.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/qt/host_window.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/widgets/event_log.h"
#include "vexel/widgets/expander.h"

#include <benchmark/benchmark.h>

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QWidget>

#include <filesystem>
#include <memory>
#include <string>

namespace
{

using namespace vexel;
using bench::Flush;
using bench::StartApplication;

std::string MakeLine(int number)
{
    return "1  00:00:00.00  unit " + std::to_string(number % 9) + ": limit passed (" + std::to_string(number) + ")";
}

// A control on a widget that was shown and painted once.
class CWindow
{
public:
    CWindow(int width, int height)
    {
        m_Top.resize(width, height);
        m_Window = vexelbase::qt::HostWindow(&m_Top);
        m_Control = std::make_unique<CBaseControl>(m_Window.get());
    }
    ~CWindow() { m_Control.reset(); }

    CVisualElement* Root() { return m_Control->GetContent(); }
    CBaseControl& Control() { return *m_Control; }
    ISysWindow& Window() { return *m_Window; }
    void Show()
    {
        m_Top.show();
        Frame();
    }
    void Frame() { Flush(m_Top); }

private:
    QWidget m_Top;
    std::unique_ptr<ISysWindow> m_Window;
    std::unique_ptr<CBaseControl> m_Control;
};

// The log --------------------------------------------------------------------------------------------------------------------

class CLogScene
{
public:
    explicit CLogScene(int lines)
    {
        auto* const view = new CScrollContainer(m_Window.Root(), {0, 0}, alClient);
        view->GetCentralPart().SetFitMode(CScrollContainer::fmWidth);
        view->GetCentralPart().SetFillAroundChild(true);
        m_Log = new CEventLog(nullptr, {10, 10}, alNone);
        view->SetScrolled(m_Log);
        m_Log->SetAutoScroll(true);
        m_Lines.Append(lines, &MakeLine);
        m_Log->SetModel(&m_Lines);
        m_Window.Show();
        m_Log->GotoEnd();
        m_Window.Frame();
    }
    void Append() { m_Lines.Append(MakeLine(m_Lines.GetItemCount())); }
    void Frame() { m_Window.Frame(); }

private:
    workbench::CLogLines m_Lines;
    CWindow m_Window{600, 300};
    CEventLog* m_Log = nullptr;
};

void AppendToLog(benchmark::State& state, int lines, bool frames)
{
    StartApplication();
    CLogScene scene(lines);
    for (auto _ : state)
    {
        scene.Append();
        if (frames)
            scene.Frame();
    }
}

class CEditScene
{
public:
    explicit CEditScene(int lines)
    {
        m_Edit.setReadOnly(true);
        m_Edit.setUndoRedoEnabled(false);
        m_Edit.setLineWrapMode(QPlainTextEdit::NoWrap);
        m_Edit.resize(600, 300);
        m_Edit.show();
        QString text;
        for (; m_Count < lines; ++m_Count)
            text +=
                QString::fromStdString(MakeLine(m_Count)) + (m_Count + 1 < lines ? QStringLiteral("\n") : QString());
        m_Edit.setPlainText(text);
        m_Edit.verticalScrollBar()->setValue(m_Edit.verticalScrollBar()->maximum());
        Flush(m_Edit);
    }
    void Append() { m_Edit.appendPlainText(QString::fromStdString(MakeLine(m_Count++))); }
    void Frame() { Flush(m_Edit); }

private:
    QPlainTextEdit m_Edit;
    int m_Count = 0;
};

void AppendToEdit(benchmark::State& state, int lines, bool frames)
{
    StartApplication();
    CEditScene scene(lines);
    for (auto _ : state)
    {
        scene.Append();
        if (frames)
            scene.Frame();
    }
}

void LoadLog(benchmark::State& state)
{
    StartApplication();
    for (auto _ : state)
        CLogScene scene(1000000);
}

void LoadEdit(benchmark::State& state)
{
    StartApplication();
    for (auto _ : state)
        CEditScene scene(1000000);
}

constexpr int g_Million = 1000000;

BENCHMARK_CAPTURE(AppendToLog, none, 0, false)->Name("event_log/append_to_none/vexel");
BENCHMARK_CAPTURE(AppendToEdit, none, 0, false)->Name("event_log/append_to_none/qplaintextedit");
BENCHMARK_CAPTURE(AppendToLog, million, g_Million, false)->Name("event_log/append_to_a_million/vexel");
BENCHMARK_CAPTURE(AppendToEdit, million, g_Million, false)->Name("event_log/append_to_a_million/qplaintextedit");
BENCHMARK_CAPTURE(AppendToLog, frames, g_Million, true)->Name("event_log/append_and_show_to_a_million/vexel");
BENCHMARK_CAPTURE(AppendToEdit, frames, g_Million, true)->Name("event_log/append_and_show_to_a_million/qplaintextedit");
BENCHMARK(LoadLog)->Name("event_log/load_a_million/vexel")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(LoadEdit)->Name("event_log/load_a_million/qplaintextedit")->Unit(benchmark::kMillisecond)->Iterations(1);

// The workbench --------------------------------------------------------------------------------------------------------------

class CWorkbenchScene
{
public:
    explicit CWorkbenchScene(int lines)
        : m_Path((std::filesystem::temp_directory_path() / "vexel-bench-workbench").string()),
          m_Bench(m_Window.Control(), m_Window.Window(), m_Path, {})
    {
        m_Bench.LoadHistory(lines);
        m_Bench.Start();
        m_Window.Show();
    }
    void AddLine() { m_Bench.LoadHistory(1); }
    void ChooseRow(int row) { m_Bench.GetTablePage().GetGrid().GetRowSelectionModel()->SetCurrent(row); }
    void Invalidate() { m_Window.Root()->Update(utElement); }
    void Frame() { m_Window.Frame(); }

private:
    std::string const m_Path;
    CWindow m_Window{1000, 700};
    workbench::CWorkbench m_Bench;
};

// A row becomes current: the two rows, and what is told of it beside the table.
void ChooseRowInWorkbench(benchmark::State& state)
{
    StartApplication();
    CWorkbenchScene scene(g_Million);
    int row = 0;
    for (auto _ : state)
    {
        scene.ChooseRow(row ^= 1);
        scene.Frame();
    }
}

void ChooseRowAlone(benchmark::State& state)
{
    StartApplication();
    CWindow window(1000, 436);
    auto* const page = new workbench::CTablePage(workbench::SState());
    page->ReParent(window.Root(), true);
    window.Show();
    int row = 0;
    for (auto _ : state)
    {
        page->GetGrid().GetRowSelectionModel()->SetCurrent(row ^= 1);
        window.Frame();
    }
}

void AddLineInWorkbench(benchmark::State& state)
{
    StartApplication();
    CWorkbenchScene scene(g_Million);
    for (auto _ : state)
    {
        scene.AddLine();
        scene.Frame();
    }
}

void PaintWorkbench(benchmark::State& state)
{
    StartApplication();
    CWorkbenchScene scene(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        scene.Invalidate();
        scene.Frame();
    }
}

BENCHMARK(ChooseRowInWorkbench)->Name("workbench/choose_row/vexel");
BENCHMARK(ChooseRowAlone)->Name("workbench/choose_row/table_alone");
BENCHMARK(AddLineInWorkbench)->Name("workbench/add_line/vexel");
BENCHMARK_CAPTURE(AppendToLog, alone, g_Million, true)->Name("workbench/add_line/log_alone");
BENCHMARK(PaintWorkbench)->Name("workbench/full_paint_with_a_million_lines/vexel")->Arg(g_Million);
BENCHMARK(PaintWorkbench)->Name("workbench/full_paint_with_a_million_lines/with_100_lines")->Arg(100);

// An expander in a column ---------------------------------------------------------------------------------------------------

// A step of an animation, in a column beside another one with so many elements. A step lays its own column out.
void StepExpander(benchmark::State& state)
{
    StartApplication();
    CWindow window(400, 900);
    auto* const others = new CVisualElement(window.Root(), {200, 0}, alLeft);
    for (int i = 0; i < state.range(0); ++i)
        (new CCaption(others, {0, 900 / static_cast<int>(state.range(0)) - 1}, alTop))->SetCaption("another");
    auto* const column = new CVisualElement(window.Root(), {0, 0}, alClient);
    auto* const expander = new CExpander(column, {0, 24}, alTop);
    auto* const title = new CCaption(nullptr, {0, 22}, alTop);
    title->SetCaption("Title");
    auto* const body = new CCaption(nullptr, {0, 300}, alClient);
    body->SetCaption("Body");
    expander->SetTitle(title);
    expander->SetBody(body);
    expander->Expand(false, false);
    auto* const below = new CCaption(column, {0, 0}, alClient);
    below->SetCaption("What it moves");
    window.Show();
    bool open = false;
    for (auto _ : state)
    {
        if (!expander->IsSizing())
            expander->Expand(open = !open, true);
        expander->UpdateSize();
        window.Frame();
    }
}

BENCHMARK(StepExpander)->Name("expander/step_beside_100/beside_4")->Arg(4);
BENCHMARK(StepExpander)->Name("expander/step_beside_100/vexel")->Arg(100);

}  // namespace
