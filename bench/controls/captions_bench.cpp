// A thousand captions below each other, of which fifty are seen, beside a thousand QLabels in a layout: the width changes,
// and what is seen is painted. Both paint through a widget's backing store on Qt's offscreen platform.

#include "bench/application.h"
#include "vexel/controls/caption.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/qt/host_window.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QWidget>

#include <memory>
#include <string>

namespace
{

using namespace vexel;
using bench::Flush;
using bench::StartApplication;

constexpr int g_Count = 1000;
constexpr int g_LineHeight = 20;
constexpr int g_Width = 800;
constexpr int g_Height = 1000;

std::string Text(int number)
{
    return "Caption number " + std::to_string(number) + ", which has a text of some words";
}

void ResizeCaptions(benchmark::State& state, bool wrapped)
{
    StartApplication();
    QWidget top;
    top.resize(g_Width, g_Height);
    auto const window = vexelbase::qt::HostWindow(&top);
    CBaseControl control(window.get());
    for (int i = 0; i < g_Count; ++i)
    {
        auto* const caption = new CCaption(control.GetContent(), {0, g_LineHeight - 1}, alTop);
        caption->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter);
        caption->SetCaption(Text(i));
        if (wrapped)
        {
            caption->AdjustHeight(true);
            caption->SetAutoSize(true);
        }
    }
    top.show();
    QCoreApplication::processEvents();
    Flush(top);
    bool wide = false;
    for (auto _ : state)
    {
        wide = !wide;
        top.resize(wide ? g_Width / 4 : g_Width, g_Height);
        Flush(top);
    }
}

void ResizeLabels(benchmark::State& state, bool wrapped)
{
    StartApplication();
    QWidget top;
    top.resize(g_Width, g_Height);
    QWidget column(&top);
    auto* const box = new QBoxLayout(QBoxLayout::TopToBottom, &column);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(0);
    for (int i = 0; i < g_Count; ++i)
    {
        auto* const label = new QLabel(QString::fromStdString(Text(i)), &column);
        label->setWordWrap(wrapped);
        label->setMinimumWidth(1);
        box->addWidget(label);
    }
    column.resize(g_Width, g_Count * g_LineHeight);
    top.show();
    QCoreApplication::processEvents();
    Flush(top);
    bool wide = false;
    for (auto _ : state)
    {
        wide = !wide;
        int const width = wide ? g_Width / 4 : g_Width;
        top.resize(width, g_Height);
        column.resize(width, wrapped ? box->heightForWidth(width) : g_Count * g_LineHeight);
        Flush(top);
    }
}

BENCHMARK_CAPTURE(ResizeCaptions, plain, false)->Name("captions/resize_1000/vexel");
BENCHMARK_CAPTURE(ResizeLabels, plain, false)->Name("captions/resize_1000/qlabel");
BENCHMARK_CAPTURE(ResizeCaptions, wrapped, true)->Name("captions/resize_wrapped_1000/vexel");
BENCHMARK_CAPTURE(ResizeLabels, wrapped, true)->Name("captions/resize_wrapped_1000/qlabel");

}  // namespace
