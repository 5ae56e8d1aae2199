#include "vexel/platform/qt/detail/font_face.h"

#include "vexel/platform/convert.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace vexelbase::qt
{

namespace
{

constexpr std::size_t BlockSize = 16 * 1024;

struct SSpan
{
    char32_t first;
    char32_t last;
};

// Characters that are drawn one by one, wherever they stand: alphabets without joining, and the ideographs.
constexpr SSpan PlainSpans[] = {
    {0x0020, 0x007E}, {0x00A0, 0x00AC}, {0x00AE, 0x02FF}, {0x0370, 0x0482}, {0x048A, 0x052F},
    {0x0531, 0x058F}, {0x10A0, 0x10FF}, {0x1E00, 0x1FFF}, {0x2010, 0x2027}, {0x2030, 0x205E},
    {0x2070, 0x20C0}, {0x2100, 0x218B}, {0x2190, 0x2319}, {0x231C, 0x23CE}, {0x2400, 0x25A9},
    {0x2E80, 0x2FDF}, {0x3000, 0x3029}, {0x3041, 0x3096}, {0x309B, 0x30FF}, {0x3105, 0x318E},
    {0x3400, 0x4DBF}, {0x4E00, 0x9FFF}, {0xAC00, 0xD7A3}, {0xFF01, 0xFFEE}, {0xFFFD, 0xFFFD},
};

bool IsPlain(char32_t character)
{
    for (SSpan const& span : PlainSpans)
    {
        if (character <= span.last)
            return character >= span.first;
    }
    return false;
}

}  // namespace

QFont MakeQtFont(font const& value, double ratio)
{
    QFont result = QGuiApplication::font();
    if (!value.name.empty())
        result.setFamilies({QString::fromStdString(value.name)});
    else if (value.family == font::ffSerif)
        result.setFamilies({QStringLiteral("serif")});
    else if (value.family == font::ffSans)
        result.setFamilies({QStringLiteral("sans-serif")});
    else if (value.family == font::ffMono)
        result.setFamilies({QStringLiteral("monospace")});
    else if (value.family == font::ffDecorative)
        result.setFamilies({QStringLiteral("fantasy")});

    constexpr double smallest = 1.0;
    constexpr double largest = 2000.0;
    double const scale = value.factor > 0 ? value.factor * ratio : ratio;
    if (value.size > 0)
        result.setPointSizeF(std::clamp(value.size * scale, smallest, largest));
    else if (result.pointSizeF() > 0)
        result.setPointSizeF(std::clamp(result.pointSizeF() * scale, smallest, largest));
    else
        result.setPixelSize(ToInt(std::clamp(result.pixelSize() * scale, smallest, largest)));

    result.setBold((value.style & font::fsBold) != 0);
    result.setItalic((value.style & font::fsItalic) != 0);
    result.setUnderline((value.style & font::fsUnderline) != 0);
    result.setStrikeOut((value.style & font::fsStrikeOut) != 0);
    result.setHintingPreference(QFont::PreferFullHinting);
    result.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return result;
}

bool GetTurn(int rotation, ETurn& turn)
{
    int const angle = ((rotation % 3600) + 3600) % 3600;
    if (angle % 900 != 0)
        return false;
    turn = static_cast<ETurn>(angle / 900);
    return true;
}

char32_t DecodeUtf8(char const* text, char const* end, int& length)
{
    constexpr char32_t replacement = 0xFFFD;
    auto const byte = [](char c) { return static_cast<std::uint32_t>(static_cast<unsigned char>(c)); };
    std::uint32_t const lead = byte(*text);
    length = 1;
    if (lead < 0x80)
        return lead;
    int const count = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || end - text < count)
        return replacement;
    std::uint32_t value = lead & (0xFFu >> (count + 1));
    for (int i = 1; i < count; ++i)
    {
        std::uint32_t const next = byte(text[i]);
        if ((next & 0xC0u) != 0x80u)
            return replacement;
        value = value << 6 | (next & 0x3Fu);
    }
    constexpr std::uint32_t lowest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < lowest[count] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return replacement;
    length = count;
    return value;
}

QString ToQString(std::string_view text)
{
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    char const* const end = text.data() + text.size();
    for (char const* p = text.data(); p < end;)
    {
        int length = 0;
        char32_t const character = DecodeUtf8(p, end, length);
        p += length;
        if (character < 0x10000)
        {
            result.append(QChar(static_cast<char16_t>(character)));
        }
        else
        {
            result.append(QChar(QChar::highSurrogate(character)));
            result.append(QChar(QChar::lowSurrogate(character)));
        }
    }
    return result;
}

CFontFace::CFontFace(font const& value, double ratio, ETurn turn, std::uint32_t id)
    : m_Id(id), m_Turn(turn), m_Underline((value.style & font::fsUnderline) != 0),
      m_StrikeOut((value.style & font::fsStrikeOut) != 0), m_Font(MakeQtFont(value, ratio))
{
    m_Font.setUnderline(false);
    m_Font.setStrikeOut(false);
    m_RawFont = QRawFont::fromFont(m_Font);

    QFontMetrics const metrics(m_Font);
    m_Metrics.ascent = metrics.ascent();
    m_Metrics.descent = metrics.descent();
    m_Metrics.leading = std::max(0, metrics.leading());
    m_LineWidth = std::max(1, metrics.lineWidth());
    m_UnderlineTop = m_Metrics.ascent + std::max(1, metrics.underlinePos());
    m_StrikeOutTop = m_Metrics.ascent - std::max(1, metrics.strikeOutPos());
    m_Overhang = m_Metrics.ascent + m_Metrics.descent;
}

CFontFace::~CFontFace() = default;

int CFontFace::GetDecoration(int width, std::array<rectangle<int>, 2>& stripes) const
{
    std::size_t count = 0;
    if (width > 0 && m_Underline)
        stripes[count++] = {0, m_UnderlineTop, width, m_UnderlineTop + m_LineWidth};
    if (width > 0 && m_StrikeOut)
        stripes[count++] = {0, m_StrikeOutTop, width, m_StrikeOutTop + m_LineWidth};
    return static_cast<int>(count);
}

std::uint8_t* CFontFace::Allocate(std::size_t count)
{
    if (m_BlockUsed + count > m_BlockSize)
    {
        m_BlockSize = std::max(BlockSize, count);
        m_BlockUsed = 0;
        m_Blocks.push_back(std::make_unique<std::uint8_t[]>(m_BlockSize));
    }
    std::uint8_t* const result = m_Blocks.back().get() + m_BlockUsed;
    m_BlockUsed += count;
    return result;
}

SGlyph const* CFontFace::Load(char32_t character)
{
    std::unique_ptr<SPage>& page = m_Pages[character / PageSize];
    if (!page)
        page = std::make_unique<SPage>();
    SSlot& slot = page->places[character % PageSize];
    slot.state = EState::Complex;

    if (character < 0x20 || character == 0x7F)
    {
        // Control characters take no room, but for the tabulator, which is as wide as a blank.
        if (character == '\t')
        {
            if (SGlyph const* const blank = Find(U' '))
                slot.glyph.advance = blank->advance;
        }
        slot.state = EState::Plain;
        return &slot.glyph;
    }
    if (!m_RawFont.isValid() || !IsPlain(character))
        return nullptr;

    QList<quint32> const glyphs = m_RawFont.glyphIndexesForString(QString(QChar(static_cast<char16_t>(character))));
    if (glyphs.size() != 1 || glyphs[0] == 0)
        return nullptr;
    QList<QPointF> const advances = m_RawFont.advancesForGlyphIndexes(glyphs);
    slot.glyph.advance = advances.isEmpty() ? 0 : std::max(0, qRound(advances[0].x()));
    slot.glyph.coverage = Render(glyphs[0]);
    slot.state = EState::Plain;
    return &slot.glyph;
}

// Lets Qt draw the glyph in black on nothing, so that hinting and made-up bold and italic are Qt's; what it covered is
// the alpha of the result.
SCoverage CFontFace::Render(quint32 glyph)
{
    SCoverage upright;
    QRectF const bounds = m_RawFont.boundingRect(glyph);
    if (bounds.isEmpty())
        return upright;
    constexpr int margin = 3;
    int const left = FloorToInt(bounds.left()) - margin;
    int const top = FloorToInt(bounds.top()) - margin;
    int const width = CeilToInt(bounds.right()) + margin - left;
    int const height = CeilToInt(bounds.bottom()) + margin - top;
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return upright;
    image.fill(Qt::transparent);
    {
        QGlyphRun run;
        run.setRawFont(m_RawFont);
        run.setGlyphIndexes({glyph});
        run.setPositions({QPointF(0, 0)});
        QPainter painter(&image);
        painter.setPen(Qt::black);
        painter.drawGlyphRun(QPointF(-left, -top), run);
    }

    rectangle<int> ink{width, height, 0, 0};
    for (int y = 0; y < height; ++y)
    {
        auto const* const row = reinterpret_cast<QRgb const*>(image.constScanLine(y));
        for (int x = 0; x < width; ++x)
        {
            if (qAlpha(row[x]) == 0)
                continue;
            ink.left = std::min(ink.left, x);
            ink.right = std::max(ink.right, x + 1);
            ink.top = std::min(ink.top, y);
            ink.bottom = std::max(ink.bottom, y + 1);
        }
    }
    if (ink.IsEmpty())
        return upright;

    upright.left = left + ink.left;
    upright.top = m_Metrics.ascent + top + ink.top;
    upright.width = ink.Width();
    upright.height = ink.Height();
    upright.stride = SCoverage::StrideOf(upright.width);
    std::vector<std::uint8_t> bits(static_cast<std::size_t>(upright.stride) * static_cast<std::size_t>(upright.height));
    for (int y = 0; y < upright.height; ++y)
    {
        auto const* const row = reinterpret_cast<QRgb const*>(image.constScanLine(ink.top + y)) + ink.left;
        std::uint8_t* const target = bits.data() + static_cast<std::ptrdiff_t>(y) * upright.stride;
        for (int x = 0; x < upright.width; ++x)
            target[x] = static_cast<std::uint8_t>(qAlpha(row[x]));
    }
    upright.bits = bits.data();

    std::vector<std::uint8_t> turned;
    SCoverage result = upright;
    if (m_Turn != ETurn::None)
        result = TurnCoverage(upright, m_Turn, turned);
    std::size_t const count = static_cast<std::size_t>(result.stride) * static_cast<std::size_t>(result.height);
    std::uint8_t* const kept = Allocate(count);
    std::copy_n(result.bits, count, kept);
    result.bits = kept;
    return result;
}

}  // namespace vexelbase::qt
