// How long texts take to be laid out: labels as they come, and a mebibyte of text written to be a burden.
// The device costs next to nothing, so that what is seen is the layout's own work.

#include "vexel/platform/base_painter.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/raster_device.h"
#include "vexel/platform/text_formatter.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace
{

using namespace vexelbase;

class CSquareDevice : public CRasterDevice
{
public:
    explicit CSquareDevice(CPixelBuffer& pixels) : CRasterDevice(pixels) {}

    int MeasureRun(font const& textFont, char const* text, int length) override
    {
        int count = 0;
        for (int i = 0; i < length; ++i)
            count += (static_cast<unsigned char>(text[i]) & 0xC0u) != 0x80u ? 1 : 0;
        return count * (textFont.size + (textFont.style & font::fsBold));
    }
    void DrawRun(SRun const& run) override { benchmark::DoNotOptimize(run.length); }
    void GetMetrics(font const& textFont, fontmetrics& metrics) override
    {
        metrics = {textFont.size * 3 / 4, textFont.size / 4, 0};
    }
    void DrawControlElement(IPainter::ControlElement, rectangle<int> const&, rectangle<int> const&, int) override {}
};

struct SBench
{
    SBench()
    {
        font value;
        value.name = "Square";
        value.family = font::ffSans;
        value.size = 8;
        painter.SetFont(value);
    }

    CPixelBuffer pixels{size<int>{400, 300}};
    CSquareDevice device{pixels};
    CBasePainter painter{device, true};
};

std::string Repeat(char const* part)
{
    std::string text;
    while (text.size() < 1u << 20)
        text += part;
    return text;
}

struct SHostile
{
    char const* name;
    std::string text;
};

std::vector<SHostile> const& HostileTexts()
{
    static std::vector<SHostile> const texts = {
        {"prose", Repeat("The quick brown fox jumps over the lazy dog. ")},
        {"prose_with_tags", Repeat("The <b>quick</b> brown <i>fox</i> &amp; <a href=\"x\">the</a> lazy dog. ")},
        {"unclosed_tags", Repeat("<b")},
        {"deep_nesting", Repeat("<b>")},
        {"brackets", Repeat("<")},
        {"ampersands", Repeat("&")},
        {"giant_attribute", "<a href=\"" + Repeat("x") + "\">y</a>"},
        {"unclosed_attribute", "<a href=\"" + Repeat("x")},
        {"quotes_that_cross", Repeat("<a x='<a y=\"")},
        {"a_style_a_character", Repeat("<b>x</b>y")},
        {"one_word", Repeat("x")},
        {"a_word_of_many_parts", "x " + Repeat("y<b>")},
        {"blanks", Repeat(" ")},
        {"stops", Repeat(".")},
        {"short_words", Repeat("x ")},
        {"line_feeds", Repeat("\n")},
        {"entities", Repeat("&#x1F600;")},
    };
    return texts;
}

void LayOut(benchmark::State& state, std::string const& text, bool markup, double width, int flags)
{
    SBench bench;
    CHTMLTextFormatter formatter;
    for (auto _ : state)
        benchmark::DoNotOptimize(bench.painter.DrawStringEx({0, 0, width, 300}, text.c_str(), flags, -1,
                                                            MarkupDelimiters, markup ? &formatter : nullptr));
}

struct SWay
{
    char const* name;
    bool markup;
    double width;
    int flags;
};

bool const registered = [] {
    SWay const ways[] = {
        {"markup_wrapped", true, 400, 0},
        {"markup_wrapped_narrow", true, 8, 0},
        {"markup_unwrapped", true, 400, IPainter::AlignSingleLine},
        {"markup_measured", true, 100000, IPainter::AlignMeasureOnly},
        {"markup_fitted", true, 400, IPainter::AlignFitText},
        {"plain_wrapped", false, 400, 0},
        {"plain_wrapped_narrow", false, 8, 0},
        {"plain_unwrapped", false, 400, IPainter::AlignSingleLine},
    };
    for (SHostile const& hostile : HostileTexts())
        for (SWay const& way : ways)
            benchmark::RegisterBenchmark((std::string("hostile_text/") + hostile.name + "/vexel/" + way.name).c_str(),
                                         [&hostile, way](benchmark::State& state) {
                                             LayOut(state, hostile.text, way.markup, way.width, way.flags);
                                         })
                ->MinTime(0.02);
    return true;
}();

void Label(benchmark::State& state)
{
    SBench bench;
    for (auto _ : state)
        benchmark::DoNotOptimize(bench.painter.DrawString({0, 0, 100, 20}, "A label", 0x121, -1));
}
BENCHMARK(Label)->Name("text/label/vexel");

void WrappedLabel(benchmark::State& state)
{
    SBench bench;
    for (auto _ : state)
        benchmark::DoNotOptimize(bench.painter.DrawStringEx({0, 0, 100, 60}, "A label that needs two or three lines",
                                                            0x121, -1, TextDelimiters, nullptr));
}
BENCHMARK(WrappedLabel)->Name("text/wrapped_label/vexel");

void MarkupLabel(benchmark::State& state)
{
    SBench bench;
    CHTMLTextFormatter formatter;
    for (auto _ : state)
        benchmark::DoNotOptimize(bench.painter.DrawStringEx(
            {0, 0, 200, 20}, "A <b>label</b> with <a href=\"x\">link</a>", 0x21, -1, MarkupDelimiters, &formatter));
}
BENCHMARK(MarkupLabel)->Name("text/markup_label/vexel");

}  // namespace
