// Drawing and measuring text on the desktop backend, beside Qt's own.
//
// A page is 400 strings of 10 characters in 20 columns. "fresh" draws another page each time, none of whose strings was
// there before in the same place, "again" the same page; each on a surface of 1600 x 400 pixels.

#include "vexel/platform/base_painter.h"
#include "vexel/platform/qt/application.h"
#include "vexel/platform/system.h"

#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <string>
#include <vector>

namespace
{

using namespace vexelbase;

constexpr int Width = 1600;
constexpr int Height = 400;
constexpr int Columns = 20;
constexpr int Rows = 20;
constexpr int Pages = 50;
constexpr int Points = 10;

// One application object for all benchmarks of the program.
void NeedApplication()
{
    static int count = 1;
    static char name[] = "bench";
    static char* arguments[] = {name, nullptr};
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", QByteArray("offscreen"));
    static qt::CApplication const application(count, arguments);
}

std::vector<std::vector<std::string>> const& AllPages()
{
    static std::vector<std::vector<std::string>> const pages = [] {
        std::vector<std::vector<std::string>> result(Pages);
        unsigned number = 12345;
        for (auto& page : result)
        {
            for (int i = 0; i < Columns * Rows; ++i)
            {
                number = number * 1664525u + 1013904223u;
                char text[16];
                std::snprintf(text, sizeof text, "%c%c %06u%c", 'A' + static_cast<int>(number % 26), 'a' + i % 26,
                              number / 7 % 1000000, 'a' + static_cast<int>(number / 3 % 26));
                page.emplace_back(text);
            }
        }
        return result;
    }();
    return pages;
}

std::vector<std::vector<QString>> const& AllQtPages()
{
    static std::vector<std::vector<QString>> const pages = [] {
        std::vector<std::vector<QString>> result;
        for (auto const& page : AllPages())
        {
            auto& strings = result.emplace_back();
            for (std::string const& text : page)
                strings.push_back(QString::fromStdString(text));
        }
        return result;
    }();
    return pages;
}

font BenchFont()
{
    font result = GetDefaultGUIFont();
    result.size = Points;
    return result;
}

QFont BenchQtFont()
{
    QFont result = QGuiApplication::font();
    result.setPointSize(Points);
    return result;
}

void DrawByVexel(benchmark::State& state, bool fresh)
{
    NeedApplication();
    vexel_ptr<IRasterPicture> const picture = GetCurrentSystem()->CreateRasterPicture(size<int>{Width, Height});
    IPainter& painter = *picture->GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    painter.SetFont(BenchFont());
    painter.SetTextColor(color_table[1]);
    std::size_t page = 0;
    for (auto _ : state)
    {
        auto const& strings = AllPages()[page];
        for (int i = 0; i < Columns * Rows; ++i)
        {
            double const left = i % Columns * (Width / Columns);
            double const top = i / Columns * (Height / Rows);
            painter.DrawString({left, top, left + Width / Columns - 1, top + Height / Rows - 1},
                               strings[static_cast<std::size_t>(i)], IPainter::AlignLeft | IPainter::AlignTop, -1);
        }
        if (fresh)
            page = (page + 1) % Pages;
    }
    painter.EndPaint();
}

void DrawByQt(benchmark::State& state, bool fresh)
{
    NeedApplication();
    QImage image(Width, Height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(BenchQtFont());
    painter.setPen(Qt::black);
    int const ascent = QFontMetrics(BenchQtFont()).ascent();
    std::size_t page = 0;
    for (auto _ : state)
    {
        auto const& strings = AllQtPages()[page];
        for (int i = 0; i < Columns * Rows; ++i)
            painter.drawText(QPoint(i % Columns * (Width / Columns), i / Columns * (Height / Rows) + ascent),
                             strings[static_cast<std::size_t>(i)]);
        if (fresh)
            page = (page + 1) % Pages;
    }
}

void MeasureByVexel(benchmark::State& state)
{
    NeedApplication();
    vexel_ptr<IRasterPicture> const picture = GetCurrentSystem()->CreateRasterPicture(size<int>{1, 1});
    IPainter& painter = *picture->GetPainter();
    painter.SetFont(BenchFont());
    std::size_t page = 0;
    for (auto _ : state)
    {
        for (std::string const& text : AllPages()[page])
            benchmark::DoNotOptimize(painter.MeasureRun(text.data(), static_cast<int>(text.size())));
        page = (page + 1) % Pages;
    }
}

void MeasureByQt(benchmark::State& state)
{
    NeedApplication();
    QFontMetrics const metrics(BenchQtFont());
    std::size_t page = 0;
    for (auto _ : state)
    {
        for (QString const& text : AllQtPages()[page])
            benchmark::DoNotOptimize(metrics.horizontalAdvance(text));
        page = (page + 1) % Pages;
    }
}

[[maybe_unused]] int const s_Registered = [] {
    benchmark::RegisterBenchmark("text/draw_400_fresh/vexel", DrawByVexel, true);
    benchmark::RegisterBenchmark("text/draw_400_fresh/qt_drawtext", DrawByQt, true);
    benchmark::RegisterBenchmark("text/draw_400_again/vexel", DrawByVexel, false);
    benchmark::RegisterBenchmark("text/draw_400_again/qt_drawtext", DrawByQt, false);
    benchmark::RegisterBenchmark("text/measure_400/vexel", MeasureByVexel);
    benchmark::RegisterBenchmark("text/measure_400/qt_fontmetrics", MeasureByQt);
    return 0;
}();

}  // namespace
