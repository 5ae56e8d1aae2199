#include "vexel/platform/qt/detail/text_engine.h"

#include "vexel/platform/convert.h"

#include <QImage>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace vexelbase::qt
{

namespace
{

constexpr std::int64_t MaxRunPixels = 1 << 20;

// A laid-out line whose baseline lies at the face's ascent, whatever fonts it needed.
class CLine
{
public:
    CLine(CFontFace const& face, std::string_view text) : m_Layout(ToText(text), face.GetFont())
    {
        constexpr qreal unlimited = 1 << 24;
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setFlags(QTextOption::IncludeTrailingSpaces);
        m_Layout.setTextOption(option);
        m_Layout.beginLayout();
        m_Line = m_Layout.createLine();
        if (m_Line.isValid())
        {
            m_Line.setLineWidth(unlimited);
            m_Line.setPosition(QPointF(0, face.GetMetrics().ascent - m_Line.ascent()));
        }
        m_Layout.endLayout();
    }

    int GetWidth() const { return m_Line.isValid() ? CeilToInt(m_Line.naturalTextWidth()) : 0; }
    int GetTop() const { return m_Line.isValid() ? FloorToInt(m_Line.y()) : 0; }
    int GetBottom() const { return m_Line.isValid() ? CeilToInt(m_Line.y() + m_Line.height()) : 0; }
    void Draw(QPainter& painter) const { m_Layout.draw(&painter, QPointF(0, 0)); }

private:
    // What would end the line becomes a blank.
    static QString ToText(std::string_view text)
    {
        QString result = ToQString(text);
        for (QChar& character : result)
        {
            if (character == QChar::LineSeparator || character == QChar::ParagraphSeparator ||
                character.unicode() < 0x20)
                character = u' ';
        }
        return result;
    }

    QTextLayout m_Layout;
    QTextLine m_Line;
};

QImage RenderLine(CLine const& line, rectangle<int> const& box, QColor const& ink)
{
    QImage image(box.Width(), box.Height(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(-box.left, -box.top);
    painter.setPen(ink);
    line.Draw(painter);
    return image;
}

rectangle<int> FindInk(QImage const& image, bool& colored)
{
    rectangle<int> ink{image.width(), image.height(), 0, 0};
    colored = false;
    for (int y = 0; y < image.height(); ++y)
    {
        auto const* const row = reinterpret_cast<QRgb const*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
        {
            if (qAlpha(row[x]) == 0)
                continue;
            colored = colored || (row[x] & 0xFFFFFFu) != 0;
            ink.left = std::min(ink.left, x);
            ink.right = std::max(ink.right, x + 1);
            ink.top = std::min(ink.top, y);
            ink.bottom = std::max(ink.bottom, y + 1);
        }
    }
    return ink;
}

}  // namespace

CTextEngine& CTextEngine::Get()
{
    // Never destroyed, so that static objects may still paint and measure when the program ends; emptied when the
    // application object goes.
    static CTextEngine* const engine = new CTextEngine;
    return *engine;
}

void CTextEngine::Clear()
{
    m_Faces.clear();
    m_Last = 0;
    m_Runs.clear();
    m_Order.clear();
    m_RunBytes = 0;
}

CFontFace& CTextEngine::GetFace(font const& value, double ratio)
{
    auto const fits = [&](SFace const& entry) { return entry.ratio == ratio && entry.value == value; };
    ++m_Clock;
    if (m_Last < m_Faces.size() && fits(m_Faces[m_Last]))
    {
        m_Faces[m_Last].used = m_Clock;
        return *m_Faces[m_Last].face;
    }
    auto found = std::find_if(m_Faces.begin(), m_Faces.end(), fits);
    if (found == m_Faces.end())
    {
        if (m_Faces.size() >= MaxFaces)
        {
            found = std::min_element(m_Faces.begin(), m_Faces.end(),
                                     [](SFace const& a, SFace const& b) { return a.used < b.used; });
            m_Faces.erase(found);
        }
        ETurn turn = ETurn::None;
        if (!GetTurn(value.rotation, turn))
            turn = ETurn::None;
        m_Faces.push_back({value, ratio, m_Clock, std::make_unique<CFontFace>(value, ratio, turn, m_NextId++)});
        found = m_Faces.end() - 1;
    }
    found->used = m_Clock;
    m_Last = static_cast<std::size_t>(found - m_Faces.begin());
    return *found->face;
}

SShapedRun const& CTextEngine::GetRun(CFontFace const& face, std::string_view text, std::uint32_t ink)
{
    auto const found = m_Runs.find(SKeyView{face.GetId(), text});
    if (found != m_Runs.end())
    {
        SCached& cached = found->second;
        m_Order.splice(m_Order.begin(), m_Order, cached.order);
        if (cached.run.colored && cached.run.ink != ink)
            Shape(face, text, ink, cached.run);
        return cached.run;
    }

    while (!m_Runs.empty() && (m_Runs.size() >= MaxRuns || m_RunBytes > MaxRunBytes))
        DropOldest();
    auto const made = m_Runs.try_emplace(SKey{face.GetId(), std::string(text)}).first;
    m_Order.push_front(&made->first);
    made->second.order = m_Order.begin();
    Shape(face, text, ink, made->second.run);
    m_RunBytes += BytesOf(made->first, made->second.run);
    return made->second.run;
}

std::size_t CTextEngine::BytesOf(SKey const& key, SShapedRun const& run)
{
    return sizeof(SCached) + key.text.size() + run.bits.size() + run.pixels.size() * sizeof(std::uint32_t);
}

void CTextEngine::DropOldest()
{
    auto const found = m_Runs.find(static_cast<SKeyView>(*m_Order.back()));
    m_RunBytes -= std::min(m_RunBytes, BytesOf(found->first, found->second.run));
    m_Order.pop_back();
    m_Runs.erase(found);
}

void CTextEngine::DrawShaped(QPainter& painter, CFontFace const& face, std::string_view text)
{
    CLine(face, text).Draw(painter);
}

void CTextEngine::Shape(CFontFace const& face, std::string_view text, std::uint32_t ink, SShapedRun& run)
{
    run = SShapedRun();
    CLine const line(face, text);
    run.width = line.GetWidth();
    run.ink = ink;
    int const margin = face.GetOverhang();
    rectangle<int> const box{-margin, std::min(0, line.GetTop()) - margin, AddSaturated(run.width, margin),
                             line.GetBottom() + margin};
    if (std::int64_t{box.Width()} * box.Height() > MaxRunPixels)
    {
        run.tooLarge = true;
        return;
    }

    QImage image = RenderLine(line, box, Qt::black);
    rectangle<int> found = FindInk(image, run.colored);
    if (run.colored)
    {
        image = RenderLine(line, box, QColor(QRgb(ink)));
        bool ignored = false;
        found = FindInk(image, ignored);
    }
    if (found.IsEmpty())
        return;

    rectangle<int> upright = found;
    upright.Offset(box.left, box.top);
    if (run.colored)
    {
        QImage part = image.copy(found.left, found.top, found.Width(), found.Height());
        if (face.GetTurn() != ETurn::None)
            part = part.transformed(QTransform().rotate(-90.0 * static_cast<int>(face.GetTurn())))
                       .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        run.place = TurnRectangle(upright, face.GetTurn());
        for (int y = 0; y < part.height(); ++y)
        {
            auto const* const row = reinterpret_cast<QRgb const*>(part.constScanLine(y));
            run.pixels.insert(run.pixels.end(), row, row + part.width());
        }
        return;
    }

    SCoverage coverage;
    coverage.left = upright.left;
    coverage.top = upright.top;
    coverage.width = upright.Width();
    coverage.height = upright.Height();
    coverage.stride = SCoverage::StrideOf(coverage.width);
    std::vector<std::uint8_t> bits(static_cast<std::size_t>(coverage.stride) *
                                   static_cast<std::size_t>(coverage.height));
    for (int y = 0; y < coverage.height; ++y)
    {
        auto const* const row = reinterpret_cast<QRgb const*>(image.constScanLine(found.top + y)) + found.left;
        std::uint8_t* const target = bits.data() + static_cast<std::ptrdiff_t>(y) * coverage.stride;
        for (int x = 0; x < coverage.width; ++x)
            target[x] = static_cast<std::uint8_t>(qAlpha(row[x]));
    }
    coverage.bits = bits.data();
    run.coverage = TurnCoverage(coverage, face.GetTurn(), run.bits);
}

}  // namespace vexelbase::qt
