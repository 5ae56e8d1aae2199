#include "vexel/platform/qt/detail/qt_device.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/native_parts.h"
#include "vexel/platform/qt/detail/text_engine.h"

#include <QCoreApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace vexelbase::qt
{

namespace
{

constexpr std::int64_t MaxKeptPart = 1 << 20;  // pixels

// Qt has no fonts without an application object.
bool HasFonts()
{
    return QCoreApplication::instance() != nullptr;
}

std::string_view TextOf(IPaintDevice::SRun const& run)
{
    return {run.text, static_cast<std::size_t>(std::max(0, run.length))};
}

// The pen position after so many pixels along the turned line.
point<int> Along(IPaintDevice::SRun const& run, ETurn turn, std::int64_t distance)
{
    switch (turn)
    {
    case ETurn::Quarter:
        return {run.x, static_cast<int>(run.y - distance)};
    case ETurn::Half:
        return {static_cast<int>(run.x - distance), run.y};
    case ETurn::ThreeQuarters:
        return {run.x, static_cast<int>(run.y + distance)};
    case ETurn::None:
        break;
    }
    return {static_cast<int>(run.x + distance), run.y};
}

// The pen positions from which a glyph may reach the clip.
struct SReach
{
    std::int64_t first;
    std::int64_t last;
};

SReach ReachOf(IPaintDevice::SRun const& run, ETurn turn, rectangle<int> const& clip, int overhang)
{
    std::int64_t const x = run.x;
    std::int64_t const y = run.y;
    SReach result{clip.left - x, clip.right - x};
    if (turn == ETurn::Quarter)
        result = {y - clip.bottom, y - clip.top};
    else if (turn == ETurn::Half)
        result = {x - clip.right, x - clip.left};
    else if (turn == ETurn::ThreeQuarters)
        result = {clip.top - y, clip.bottom - y};
    // A glyph is about as wide as the line is high, and may be twice that.
    return {result.first - 4 * std::int64_t{overhang}, result.last + overhang};
}

}  // namespace

QImage ViewPixels(CPixelBuffer& pixels)
{
    if (pixels.GetWidth() <= 0 || pixels.GetHeight() <= 0)
        return QImage();
    return QImage(reinterpret_cast<uchar*>(pixels.Row(0)), pixels.GetWidth(), pixels.GetHeight(),
                  static_cast<qsizetype>(pixels.GetStride()) * 4, QImage::Format_RGB32);
}

bool CQtDevice::Collect(CFontFace& face, std::string_view text, int& width)
{
    m_Glyphs.clear();
    std::int64_t sum = 0;
    char const* const end = text.data() + text.size();
    for (char const* p = text.data(); p < end;)
    {
        int length = 1;
        auto const byte = static_cast<unsigned char>(*p);
        char32_t const character = byte < 0x80 ? byte : DecodeUtf8(p, end, length);
        SGlyph const* const glyph = face.Find(character);
        if (!glyph)
            return false;
        m_Glyphs.push_back(glyph);
        sum += glyph->advance;
        p += length;
    }
    width = SaturateToInt(sum);
    return true;
}

int CQtDevice::MeasureRun(font const& textFont, char const* text, int length)
{
    if (length <= 0 || !HasFonts())
        return 0;
    CTextEngine& engine = CTextEngine::Get();
    CFontFace& face = engine.GetFace(textFont, m_Ratio);
    std::string_view const all(text, static_cast<std::size_t>(length));

    std::int64_t sum = 0;
    char const* const end = all.data() + all.size();
    for (char const* p = all.data(); p < end;)
    {
        int count = 1;
        auto const byte = static_cast<unsigned char>(*p);
        char32_t const character = byte < 0x80 ? byte : DecodeUtf8(p, end, count);
        SGlyph const* const glyph = face.Find(character);
        if (!glyph)
            return engine.GetRun(face, all, 0xFF000000u).width;
        sum += glyph->advance;
        p += count;
    }
    return SaturateToInt(sum);
}

void CQtDevice::GetMetrics(font const& textFont, fontmetrics& metrics)
{
    metrics = fontmetrics();
    if (HasFonts())
        metrics = CTextEngine::Get().GetFace(textFont, m_Ratio).GetMetrics();
}

void CQtDevice::DrawRun(SRun const& run)
{
    if (run.length <= 0 || !HasFonts())
        return;
    rectangle<int> clip = run.clip;
    clip.Intersect({0, 0, GetPixels().GetWidth(), GetPixels().GetHeight()});
    if (clip.IsEmpty())
        return;

    CFontFace& face = CTextEngine::Get().GetFace(*run.textFont, m_Ratio);
    ETurn turn = ETurn::None;
    int width = 0;
    if (!GetTurn(run.textFont->rotation, turn))
        DrawTurned(run, face, clip);
    else if (Collect(face, TextOf(run), width))
        DrawPlain(run, face, width, clip);
    else
        DrawShaped(run, face, clip);
}

void CQtDevice::DrawPlain(SRun const& run, CFontFace const& face, int width, rectangle<int> const& clip)
{
    ETurn const turn = face.GetTurn();
    fontmetrics const& metrics = face.GetMetrics();
    int const overhang = face.GetOverhang();

    // What the run may touch at most; a run beside the clip ends here.
    rectangle<int> box = TurnRectangle(
        {-overhang, -overhang, AddSaturated(width, overhang), metrics.ascent + metrics.descent + overhang}, turn);
    box = {AddSaturated(box.left, run.x), AddSaturated(box.top, run.y), AddSaturated(box.right, run.x),
           AddSaturated(box.bottom, run.y)};
    box.Intersect(clip);
    if (box.IsEmpty())
        return;

    rectangle<int> ink{clip.right, clip.bottom, clip.left, clip.top};
    SReach const reach = ReachOf(run, turn, clip, overhang);
    std::int64_t pen = 0;
    for (SGlyph const* const glyph : m_Glyphs)
    {
        if (pen > reach.last)
            break;
        SCoverage const& coverage = glyph->coverage;
        if (!coverage.IsEmpty() && pen >= reach.first)
        {
            point<int> const at = Along(run, turn, pen);
            int const left = at.x + coverage.left;
            int const top = at.y + coverage.top;
            ink.left = std::min(ink.left, left);
            ink.top = std::min(ink.top, top);
            ink.right = std::max(ink.right, left + coverage.width);
            ink.bottom = std::max(ink.bottom, top + coverage.height);
            BlendCoverage(GetPixels(), clip, at.x, at.y, coverage, run.pixel);
        }
        pen += glyph->advance;
    }
    ink.Intersect(clip);
    if (!ink.IsEmpty())
        Touch(ink);
    if (face.HasDecoration())
        DrawDecoration(run, face, width, clip);
}

void CQtDevice::DrawShaped(SRun const& run, CFontFace const& face, rectangle<int> const& clip)
{
    SShapedRun const& shaped = CTextEngine::Get().GetRun(face, TextOf(run), run.pixel);
    if (shaped.tooLarge)
    {
        DrawTurned(run, face, clip);
        return;
    }
    rectangle<int> place = shaped.place;
    if (!shaped.colored)
    {
        SCoverage const& coverage = shaped.coverage;
        place = {coverage.left, coverage.top, coverage.left + coverage.width, coverage.top + coverage.height};
    }
    place.Offset(run.x, run.y);
    rectangle<int> ink = place;
    ink.Intersect(clip);
    if (!ink.IsEmpty())
    {
        Touch(ink);
        if (shaped.colored)
            BlendPremultiplied(GetPixels(), clip, place, shaped.pixels.data());
        else
            BlendCoverage(GetPixels(), clip, run.x, run.y, shaped.coverage, run.pixel);
    }
    if (face.HasDecoration())
        DrawDecoration(run, face, shaped.width, clip);
}

// Any angle, and runs too large to be kept: Qt paints on the pixels themselves.
void CQtDevice::DrawTurned(SRun const& run, CFontFace const& face, rectangle<int> const& clip)
{
    int const width = MeasureRun(*run.textFont, run.text, run.length);
    int const overhang = face.GetOverhang();
    int const height = face.GetMetrics().ascent + face.GetMetrics().descent;

    QTransform turn;
    turn.translate(run.x, run.y);
    turn.rotate(-run.textFont->rotation / 10.0);
    QRectF const box = turn.mapRect(QRectF(-overhang, -overhang, width + 2.0 * overhang, height + 2.0 * overhang));
    rectangle<int> ink{FloorToInt(box.left()), FloorToInt(box.top()), CeilToInt(box.right()), CeilToInt(box.bottom())};
    ink.Intersect(clip);
    if (ink.IsEmpty())
        return;
    Touch(ink);

    QImage image = ViewPixels(GetPixels());
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setClipRect(ink.left, ink.top, ink.Width(), ink.Height());
    painter.setTransform(turn);
    painter.setPen(QColor(QRgb(run.pixel)));
    CTextEngine::DrawShaped(painter, face, TextOf(run));
    std::array<rectangle<int>, 2> stripes;
    int const count = face.GetDecoration(width, stripes);
    for (int i = 0; i < count; ++i)
    {
        rectangle<int> const& stripe = stripes[static_cast<std::size_t>(i)];
        painter.fillRect(stripe.left, stripe.top, stripe.Width(), stripe.Height(), QColor(QRgb(run.pixel)));
    }
}

void CQtDevice::DrawDecoration(SRun const& run, CFontFace const& face, int width, rectangle<int> const& clip)
{
    std::array<rectangle<int>, 2> stripes;
    int const count = face.GetDecoration(width, stripes);
    for (int i = 0; i < count; ++i)
    {
        rectangle<int> stripe = TurnRectangle(stripes[static_cast<std::size_t>(i)], face.GetTurn());
        stripe.Offset(run.x, run.y);
        stripe.Intersect(clip);
        if (!stripe.IsEmpty())
            Fill(stripe, run.pixel, IPainter::roCopy);
    }
}

void CQtDevice::DrawControlElement(IPainter::ControlElement element, rectangle<int> const& area,
                                   rectangle<int> const& clip, int state)
{
    rectangle<int> visible = area;
    visible.Intersect(clip);
    visible.Intersect({0, 0, GetPixels().GetWidth(), GetPixels().GetHeight()});
    if (visible.IsEmpty())
        return;
    size<int> const extent{area.Width(), area.Height()};
    if (std::int64_t{extent.width} * extent.height <= MaxKeptPart)
    {
        CPixelBuffer const& picture = CNativeParts::Get().GetPicture(element, extent, state, m_Ratio);
        Blit(area, clip, picture, {0, 0, extent.width, extent.height}, IPainter::roCopy);
        return;
    }

    // Too large to be kept: only what shows is drawn.
    QImage image(visible.Width(), visible.Height(), QImage::Format_RGB32);
    rectangle<int> place = area;
    place.Offset(-visible.left, -visible.top);
    CNativeParts::Draw(image, place, element, state, m_Ratio);
    Touch(visible);
    for (int y = 0; y < visible.Height(); ++y)
    {
        auto const* const row = reinterpret_cast<std::uint32_t const*>(image.constScanLine(y));
        std::copy_n(row, visible.Width(), GetPixels().Row(visible.top + y) + visible.left);
    }
}

}  // namespace vexelbase::qt
