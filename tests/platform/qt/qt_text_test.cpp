#include "tests/platform/qt/qt_test_kit.h"
#include "vexel/platform/system.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace vexelbase::qt::test
{

namespace
{

font Sans(int points, int style = font::fsPlain, int rotation = 0)
{
    font result;
    result.name = "DejaVu Sans";
    result.family = font::ffSans;
    result.size = points;
    result.style = style;
    result.rotation = rotation;
    return result;
}

// The same font as Qt draws it; without kerning, since runs of plain letters have none.
QFont Native(int points, int style = font::fsPlain)
{
    QFont result(QStringLiteral("DejaVu Sans"));
    result.setPointSizeF(points);
    result.setBold((style & font::fsBold) != 0);
    result.setItalic((style & font::fsItalic) != 0);
    result.setKerning(false);
    result.setHintingPreference(QFont::PreferFullHinting);
    result.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return result;
}

// A white picture with a painter between BeginPaint and EndPaint.
class CCanvas
{
public:
    CCanvas(int width, int height) : m_Picture(GetCurrentSystem()->CreateRasterPicture(size<int>{width, height}))
    {
        Painter().BeginPaint(IPainter::ssPaint);
    }
    ~CCanvas() { Painter().EndPaint(); }

    IPainter& Painter() { return *m_Picture->GetPainter(); }
    std::uint32_t At(int x, int y) const { return m_Picture->GetPixels().Row(y)[x]; }
    int Width() const { return m_Picture->GetSize().width; }
    int Height() const { return m_Picture->GetSize().height; }
    void Draw(font const& textFont, std::string const& text, int x, int y, _color const& color = color_table[1])
    {
        Painter().SetFont(textFont);
        Painter().SetTextColor(color);
        Painter().DrawString({static_cast<double>(x), static_cast<double>(y), static_cast<double>(Width()),
                              static_cast<double>(Height())},
                             text, IPainter::AlignLeft | IPainter::AlignTop | IPainter::AlignSingleLine, -1);
    }
    QImage Image() const
    {
        QImage image(Width(), Height(), QImage::Format_RGB32);
        for (int y = 0; y < Height(); ++y)
            std::copy_n(m_Picture->GetPixels().Row(y), Width(), reinterpret_cast<std::uint32_t*>(image.scanLine(y)));
        return image;
    }
    int CountInk() const
    {
        int count = 0;
        for (int y = 0; y < Height(); ++y)
            for (int x = 0; x < Width(); ++x)
                count += At(x, y) != 0xFFFFFFFFu ? 1 : 0;
        return count;
    }

private:
    vexel_ptr<IRasterPicture> m_Picture;
};

QImage DrawnByQt(int width, int height, QFont const& native, QString const& text, int x, int y,
                 QColor const& color = Qt::black, QColor const& back = Qt::white)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(back);
    QPainter painter(&image);
    painter.setFont(native);
    painter.setPen(color);
    painter.drawText(x, y + QFontMetrics(native).ascent(), text);
    return image;
}

// The greatest distance of two channels.
int Difference(QImage const& a, QImage const& b)
{
    int result = a.size() == b.size() ? 0 : 256;
    for (int y = 0; result < 256 && y < a.height(); ++y)
    {
        for (int x = 0; x < a.width(); ++x)
        {
            QRgb const p = a.pixel(x, y);
            QRgb const q = b.pixel(x, y);
            result = std::max(
                {result, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return result;
}

double WidthOf(font const& textFont, std::string const& text)
{
    CCanvas canvas(1, 1);
    return canvas.Painter().GetTextSize(text, &textFont).width;
}

// Qt's rounding of a blend may differ from ours by one step, and its table of text gamma by some more.
constexpr int BlendTolerance = 2;

}  // namespace

TEST(QtText, PlainLettersLookAsQtDrawsThem)
{
    for (int const points : {8, 11, 24})
    {
        for (int const style : {int{font::fsPlain}, int{font::fsBold}, int{font::fsItalic}})
        {
            CCanvas canvas(400, 60);
            canvas.Draw(Sans(points, style), "Quick brown 0123 (fox) j{y}", 3, 5);
            QImage const native = DrawnByQt(400, 60, Native(points, style), "Quick brown 0123 (fox) j{y}", 3, 5);
            EXPECT_GT(canvas.CountInk(), 100);
            EXPECT_LE(Difference(canvas.Image(), native), BlendTolerance) << points << ' ' << style;
        }
    }
}

TEST(QtText, LatinGreekAndCyrillicNeedNoShapingEither)
{
    char const* const text =
        "\xc3\x84\xc3\xb6\xc3\x9f \xce\xb1\xce\xb2\xce\xb3 \xd0\x96\xd1\x83\xd0\xba";  // Äöß αβγ Жук
    CCanvas canvas(200, 30);
    canvas.Draw(Sans(11), text, 0, 0);
    EXPECT_LE(Difference(canvas.Image(), DrawnByQt(200, 30, Native(11), QString::fromUtf8(text), 0, 0)),
              BlendTolerance);
}

TEST(QtText, ColorsBlendIntoWhatLiesBelow)
{
    CCanvas canvas(200, 40);
    brush blue;
    blue.color = color_table[4];
    canvas.Painter().SetBrush(blue);
    canvas.Painter().FillRect(0, 0, 199, 39);
    canvas.Draw(Sans(16), "Yellow", 4, 4, color_table[3]);
    QImage const native = DrawnByQt(200, 40, Native(16), "Yellow", 4, 4, QColor(255, 255, 0), QColor(0, 0, 255));
    EXPECT_LE(Difference(canvas.Image(), native), BlendTolerance);
}

TEST(QtText, WidthsAreThoseOfQt)
{
    char const* const texts[] = {"", " ", "i", "W", "0123456789", "The quick brown fox jumps", "\xc3\x84rger", "\tx"};
    QFontMetrics const native(Native(11));
    for (char const* const text : texts)
    {
        QString expected = QString::fromUtf8(text);
        expected.replace('\t', ' ');
        EXPECT_EQ(WidthOf(Sans(11), text), native.horizontalAdvance(expected)) << text;
    }
}

TEST(QtText, MetricsAreThoseOfQt)
{
    CCanvas canvas(1, 1);
    canvas.Painter().SetFont(Sans(13));
    fontmetrics metrics;
    canvas.Painter().GetFontMetrics(&metrics);
    QFontMetrics const native(Native(13));
    EXPECT_EQ(metrics.ascent, native.ascent());
    EXPECT_EQ(metrics.descent, native.descent());
    EXPECT_EQ(metrics.leading, std::max(0, native.leading()));
}

TEST(QtText, ShapedTextLooksAsQtDrawsIt)
{
    // A mark that stands on its letter, joined Arabic letters, and an emoji, each within plain text.
    for (char const* const text : {"ae\xcc\x81o", "a \xd8\xb3\xd9\x84\xd8\xa7\xd9\x85 b", "x\xf0\x9f\x98\x80y"})
    {
        CCanvas canvas(200, 50);
        canvas.Draw(Sans(14), text, 10, 10);
        QFont native = Native(14);
        native.setKerning(true);
        QImage const expected = DrawnByQt(200, 50, native, QString::fromUtf8(text), 10, 10);
        EXPECT_GT(canvas.CountInk(), 20) << text;
        EXPECT_LE(Difference(canvas.Image(), expected), BlendTolerance) << text;
        EXPECT_NEAR(WidthOf(Sans(14), text), QFontMetricsF(native).horizontalAdvance(QString::fromUtf8(text)), 1.0)
            << text;
    }
}

TEST(QtText, AShapedRunIsDrawnAlikeFromTheCache)
{
    CCanvas first(100, 30);
    CCanvas second(100, 30);
    first.Draw(Sans(14), "e\xcc\x81t\xcc\x81", 2, 2, color_table[6]);
    second.Draw(Sans(14), "e\xcc\x81t\xcc\x81", 2, 2, color_table[6]);
    EXPECT_EQ(Difference(first.Image(), second.Image()), 0);
    CCanvas other(100, 30);
    other.Draw(Sans(14), "e\xcc\x81t\xcc\x81", 2, 2, color_table[13]);
    EXPECT_GT(Difference(first.Image(), other.Image()), 100);
}

TEST(QtText, ManyShapedRunsDoNotPushOutTheFacesLook)
{
    CCanvas canvas(200, 30);
    canvas.Draw(Sans(12), "o\xcc\x88 first", 0, 0);
    QImage const before = canvas.Image();
    {
        CCanvas many(200, 30);
        for (int i = 0; i < 1500; ++i)  // more than the cache keeps
            many.Draw(Sans(12), "o\xcc\x88" + std::to_string(i), 0, 0);
    }
    CCanvas again(200, 30);
    again.Draw(Sans(12), "o\xcc\x88 first", 0, 0);
    EXPECT_EQ(Difference(before, again.Image()), 0);
}

TEST(QtText, ManyFontsDoNotPushOutEachOthersLook)
{
    CCanvas before(200, 40);
    before.Draw(Sans(12), "size", 0, 0);
    for (int points = 1; points < 80; ++points)  // more than the cache keeps
        WidthOf(Sans(points), "size");
    CCanvas after(200, 40);
    after.Draw(Sans(12), "size", 0, 0);
    EXPECT_EQ(Difference(before.Image(), after.Image()), 0);
}

TEST(QtText, IllFormedBytesAreReplacementCharacters)
{
    double const one = WidthOf(Sans(11), "\xef\xbf\xbd");
    EXPECT_GT(one, 0);
    EXPECT_EQ(WidthOf(Sans(11), "\xff"), one);
    EXPECT_EQ(WidthOf(Sans(11), "\x80"), one);
    EXPECT_EQ(WidthOf(Sans(11), "\xc0\xaf"), 2 * one);      // overlong
    EXPECT_EQ(WidthOf(Sans(11), "\xed\xa0\x80"), 3 * one);  // a surrogate
    EXPECT_EQ(WidthOf(Sans(11), "a\xe2\x82z"), one * 2 + WidthOf(Sans(11), "az"));
}

TEST(QtText, OutputIsCutToTheRectangleAndThePicture)
{
    CCanvas whole(60, 30);
    whole.Draw(Sans(12), "Wagon", 0, 0);
    CCanvas cut(60, 30);
    cut.Painter().SetFont(Sans(12));
    cut.Painter().SetTextColor(color_table[1]);
    cut.Painter().DrawString({0, 0, 17, 9}, "Wagon", IPainter::AlignLeft, -1);  // to column 17 and row 9
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 60; ++x)
            ASSERT_EQ(cut.At(x, y), x <= 17 && y <= 9 ? whole.At(x, y) : 0xFFFFFFFFu) << x << ',' << y;

    // Over each edge of the picture, where the groups of four pixels would leave it.
    for (int const x : {-30, -7, -1, 20, 30, 41, 57, 59, 60})
    {
        for (int const y : {-12, -3, 0, 20, 29})
        {
            CCanvas edge(60, 30);
            edge.Draw(Sans(12), "Wagon", x, y);
            CCanvas large(260, 130);
            large.Draw(Sans(12), "Wagon", x + 100, y + 50);
            for (int v = 0; v < 30; ++v)
                for (int u = 0; u < 60; ++u)
                    ASSERT_EQ(edge.At(u, v), large.At(u + 100, v + 50)) << x << ',' << y << ": " << u << ',' << v;
        }
    }
}

TEST(QtText, QuarterTurnsAreTheUprightPictureTurned)
{
    constexpr int side = 161;
    constexpr int middle = 80;
    CCanvas upright(side, side);
    upright.Draw(Sans(12), "Turn, qjT", middle, middle);
    struct
    {
        int rotation;
        std::function<point<int>(int, int)> turned;  // where the upright pixel goes, from the pivot
    } const cases[] = {
        {900,
         [](int u, int v) {
             return point<int>{v, -u - 1};
         }},
        {1800,
         [](int u, int v) {
             return point<int>{-u - 1, -v - 1};
         }},
        {2700,
         [](int u, int v) {
             return point<int>{-v - 1, u};
         }},
        {-900,
         [](int u, int v) {
             return point<int>{-v - 1, u};
         }},
        {3600,
         [](int u, int v) {
             return point<int>{u, v};
         }},
    };
    for (int const style : {int{font::fsPlain}, font::fsUnderline | font::fsStrikeOut})
    {
        CCanvas source(side, side);
        source.Draw(Sans(12, style), "Turn, qjT", middle, middle);
        for (auto const& one : cases)
        {
            // The run is drawn by itself, so that no alignment comes in between.
            CCanvas canvas(side, side);
            auto& device = dynamic_cast<CBasePainter&>(canvas.Painter()).GetDevice();
            font const turnedFont = Sans(12, style, one.rotation);
            IPaintDevice::SRun run;
            run.textFont = &turnedFont;
            run.text = "Turn, qjT";
            run.length = 9;
            run.x = middle;
            run.y = middle;
            run.clip = {0, 0, side, side};
            device.DrawRun(run);
            int compared = 0;
            for (int v = -middle; v < middle; ++v)
            {
                for (int u = -middle; u < middle; ++u)
                {
                    point<int> const to = one.turned(u, v);
                    ASSERT_EQ(canvas.At(to.x + middle, to.y + middle), source.At(u + middle, v + middle))
                        << one.rotation << ": " << u << ',' << v;
                    compared += source.At(u + middle, v + middle) != 0xFFFFFFFFu ? 1 : 0;
                }
            }
            EXPECT_GT(compared, 100);
        }
    }
}

TEST(QtText, OtherAnglesStayInTheTurnedBox)
{
    CCanvas canvas(200, 200);
    auto& device = dynamic_cast<CBasePainter&>(canvas.Painter()).GetDevice();
    font const slanted = Sans(12, font::fsPlain, 450);
    IPaintDevice::SRun run;
    run.textFont = &slanted;
    run.text = "Slanted text";
    run.length = 12;
    run.x = 60;
    run.y = 140;
    run.clip = {0, 0, 200, 150};
    device.DrawRun(run);
    EXPECT_GT(canvas.CountInk(), 100);
    int const width = device.MeasureRun(slanted, "Slanted text", 12);
    EXPECT_EQ(width, device.MeasureRun(Sans(12), "Slanted text", 12));
    for (int y = 0; y < 200; ++y)
    {
        for (int x = 0; x < 200; ++x)
        {
            if (canvas.At(x, y) == 0xFFFFFFFFu)
                continue;
            EXPECT_LT(y, 150);
            // Along the line and across it, in the turned frame.
            double const along = ((x - 60) - (y - 140)) * 0.70710678;
            double const across = ((x - 60) + (y - 140)) * 0.70710678;
            EXPECT_GT(along, -3);
            EXPECT_LT(along, width + 3);
            EXPECT_GT(across, -3);
            EXPECT_LT(across, 24);
        }
    }
}

TEST(QtText, UnderlineAndStrikeOutSpanTheRun)
{
    int const width = static_cast<int>(WidthOf(Sans(12), "    "));
    for (int const style : {int{font::fsUnderline}, int{font::fsStrikeOut}})
    {
        CCanvas canvas(100, 30);
        canvas.Draw(Sans(12, style), "    ", 7, 0, color_table[6]);
        QFont native = Native(12);
        int const thick = std::max(1, QFontMetrics(native).lineWidth());
        EXPECT_EQ(canvas.CountInk(), width * thick) << style;
        int row = 0;
        while (row < 30 && canvas.At(7, row) != 0xFFFF0000u)
            ++row;
        ASSERT_LT(row, 30);
        EXPECT_EQ(canvas.At(6, row), 0xFFFFFFFFu);
        EXPECT_EQ(canvas.At(6 + width, row), 0xFFFF0000u);
        EXPECT_EQ(canvas.At(7 + width, row), 0xFFFFFFFFu);
        bool const below = row > QFontMetrics(native).ascent();
        EXPECT_EQ(below, style == font::fsUnderline);
    }
}

TEST(QtText, AFarTooLongLineIsDrawnWhereItShows)
{
    std::string const text(300000, 'm');
    CCanvas canvas(100, 30);
    canvas.Draw(Sans(12), text, -1000000, 0);
    CCanvas expected(100, 30);
    auto& device = dynamic_cast<CBasePainter&>(expected.Painter()).GetDevice();
    font const used = Sans(12);
    int const letter = device.MeasureRun(used, "m", 1);
    EXPECT_EQ(device.MeasureRun(used, text.data(), 300000), 300000 * letter);
    expected.Draw(Sans(12), std::string(60, 'm'), -1000000 % letter - letter, 0);
    EXPECT_EQ(Difference(canvas.Image(), expected.Image()), 0);
}

TEST(QtText, DamageIsWhatWasInked)
{
    CHosted hosted(200, 60);
    CPaintWatch watch(hosted.Widget());
    QRect inked;
    hosted.Control().m_Draw = [&](IPainter* painter) {
        painter->SetFont(Sans(12));
        painter->SetTextColor(color_table[1]);
        painter->DrawString({20, 10, 150, 40}, "Ink", IPainter::AlignLeft | IPainter::AlignTop, -1);
        CPixelBuffer& pixels = hosted.Base().GetPixels();
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 200; ++x)
                if (pixels.Row(y)[x] != 0xFFFFFFFFu)
                    inked |= QRect(x, y, 1, 1);
    };
    hosted.Window().UpdateNow();
    Settle();
    EXPECT_FALSE(inked.isEmpty());
    EXPECT_EQ(watch.m_Region.boundingRect(), inked);
}

}  // namespace vexelbase::qt::test
