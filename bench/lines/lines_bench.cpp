// Antialiased lines on a picture of the desktop backend, beside Qt's own and those of cairo, of the same
// opaque colour.
//
// A round is 1,000 lines of 200 pixels at random angles and places on 1280 x 800; "straight" ones are horizontal and
// vertical, as those of a grid are. "by_contour" is the slow way that the pixels are measured by.

#include "vexel/core/draw_line.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/qt/application.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/platform/system.h"

#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPen>

#include <cairo.h>

#include <cmath>
#include <string>
#include <vector>

namespace
{

using namespace vexelbase;

constexpr int Width = 1280;
constexpr int Height = 800;
constexpr int Count = 1000;
constexpr double Length = 200;

struct SLine
{
    point<double> from;
    point<double> to;
};

void NeedApplication()
{
    static int count = 1;
    static char name[] = "bench";
    static char* arguments[] = {name, nullptr};
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", QByteArray("offscreen"));
    static qt::CApplication const application(count, arguments);
}

std::vector<SLine> MakeLines(bool straight)
{
    std::vector<SLine> lines;
    unsigned number = 12345;
    auto const random = [&number] {
        number = number * 1664525u + 1013904223u;
        return (number >> 8) / 16777216.0;
    };
    while (lines.size() < Count)
    {
        double const angle = straight ? std::floor(random() * 4) * 1.5707963267948966 : random() * 6.283185307179586;
        point<double> const from{std::trunc(random() * Width), std::trunc(random() * Height)};
        point<double> const to{std::round(from.x + Length * std::cos(angle)),
                               std::round(from.y + Length * std::sin(angle))};
        auto const isInside = [](point<double> const& end) {
            return end.x >= 20 && end.x < Width - 20 && end.y >= 20 && end.y < Height - 20;
        };
        if (isInside(from) && isInside(to))
            lines.push_back({from, to});
    }
    return lines;
}

void DrawByVexel(benchmark::State& state, int width, bool straight, decltype(vexel::DrawLine) draw)
{
    NeedApplication();
    std::vector<SLine> const lines = MakeLines(straight);
    vexel_ptr<IRasterPicture> const picture = GetCurrentSystem()->CreateRasterPicture(size<int>{Width, Height});
    IPainter& painter = *picture->GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    pen ink;
    ink.color = _color::FromRgb(10, 60, 200);
    ink.width = width;
    painter.SetPen(ink);
    for (auto _ : state)
        for (SLine const& line : lines)
            draw(&painter, line.from, line.to, vexel::CapNone, vexel::CapNone);
    painter.EndPaint();
}

void DrawByQt(benchmark::State& state, int width, bool straight)
{
    NeedApplication();
    std::vector<SLine> const lines = MakeLines(straight);
    QImage image(Width, Height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(10, 60, 200), width, Qt::SolidLine, Qt::FlatCap));
    for (auto _ : state)
        for (SLine const& line : lines)
            painter.drawLine(QPointF(line.from.x, line.from.y), QPointF(line.to.x, line.to.y));
}

void DrawByCairo(benchmark::State& state, int width, bool straight)
{
    std::vector<SLine> const lines = MakeLines(straight);
    cairo_surface_t* const surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, Width, Height);
    cairo_t* const cairo = cairo_create(surface);
    cairo_set_source_rgb(cairo, 1, 1, 1);
    cairo_paint(cairo);
    cairo_set_source_rgb(cairo, 10 / 255.0, 60 / 255.0, 200 / 255.0);
    cairo_set_line_width(cairo, width);
    for (auto _ : state)
        for (SLine const& line : lines)
        {
            cairo_move_to(cairo, line.from.x, line.from.y);
            cairo_line_to(cairo, line.to.x, line.to.y);
            cairo_stroke(cairo);
        }
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
}

[[maybe_unused]] int const s_Registered = [] {
    for (bool const straight : {false, true})
    {
        for (int const width : {1, 3})
        {
            std::string const name =
                "lines/" + std::string(straight ? "straight" : "draw") + "_1000_width_" + std::to_string(width);
            benchmark::RegisterBenchmark((name + "/vexel").c_str(), DrawByVexel, width, straight, &vexel::DrawLine);
            benchmark::RegisterBenchmark((name + "/qt").c_str(), DrawByQt, width, straight);
            benchmark::RegisterBenchmark((name + "/cairo").c_str(), DrawByCairo, width, straight);
            benchmark::RegisterBenchmark((name + "/by_contour").c_str(), DrawByVexel, width, straight,
                                         &vexel::DrawLineByContour);
        }
    }
    return 0;
}();

}  // namespace
