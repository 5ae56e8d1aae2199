#include "vexel/platform/base_painter.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/detail/default_font.h"
#include "vexel/platform/detail/utf8.h"
#include "vexel/platform/detail/xpm_look.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/system.h"
#include "vexel/platform/text_formatter.h"
#include "vexel/platform/xpm.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <utility>

namespace vexelbase
{

namespace
{

constexpr double Tolerance = 1e-6;         // pixels: what mapping to the device and back may lose
constexpr std::size_t KeptLines = 0x1000;  // memory kept from one text to the next
constexpr char const* Ellipsis = "...";

// Of a rotated text, which the extents of its upright box take on the device.
bool IsQuarterTurn(int rotation)
{
    return rotation % 900 == 0;
}
bool IsUpDown(int rotation)
{
    return rotation == 900 || rotation == 2700;
}

int NormalizeRotation(int rotation)
{
    rotation %= 3600;
    return rotation < 0 ? rotation + 3600 : rotation;
}

double ToRadians(int rotation)
{
    return rotation * (3.14159265358979323846 / 1800);
}

// The share of the free room that stands before the text.
double HorizontalShare(int flags)
{
    if (flags & IPainter::AlignHCenter)
        return 0.5;
    return flags & IPainter::AlignRight ? 1 : 0;
}
double VerticalShare(int flags)
{
    if (flags & IPainter::AlignVCenter)
        return 0.5;
    return flags & IPainter::AlignBottom ? 1 : 0;
}

int LengthOf(char const* text, int count)
{
    if (!text)
        return 0;
    if (count < 0)
        return SaturateToInt(static_cast<std::int64_t>(std::min<std::size_t>(std::strlen(text), INT_MAX)));
    int const length = static_cast<int>(strnlen(text, static_cast<std::size_t>(count)));
    return length == count ? detail::WithoutPartialUtf8(text, length) : length;
}

CDefTextFormatter& PlainFormatter()
{
    static CDefTextFormatter formatter;  // has no state
    return formatter;
}

}  // namespace

// Where a text stands.
struct CBasePainter::STextPlace
{
    rectangle<double> box;  // device, ordered
    int rotation = 0;
    int maxWidth = -1;       // in the reading direction, below 0: no limit
    int maxLines = INT_MAX;  // that need to be drawn
};

// Puts back what drawing a text changes.
class CBasePainter::CTextScope
{
public:
    explicit CTextScope(CBasePainter& painter)
        : m_Painter(painter), m_Frame(painter.m_Frame), m_Lines(painter.m_TextLines.size())
    {}
    ~CTextScope()
    {
        m_Painter.m_Frame = m_Frame;
        m_Painter.m_TextLines.resize(m_Lines);
        if (m_Lines == 0 && m_Painter.m_TextLines.capacity() > KeptLines)
            std::vector<STextLine>().swap(m_Painter.m_TextLines);
    }
    CTextScope(CTextScope const&) = delete;
    CTextScope& operator=(CTextScope const&) = delete;

private:
    CBasePainter& m_Painter;
    STextFrame m_Frame;
    std::size_t m_Lines;
};

// Font ----------------------------------------------------------------------------------------------------------------

void CBasePainter::SetFont(font const& value)
{
    int const style = std::exchange(m_Font.style, value.style);
    if (value == m_Font)
    {
        // All but the style is the same, as it is for mark-up within a text.
        if (style != value.style)
        {
            m_EffectiveFont.style = value.style;
            m_MetricsStamp = 0;
        }
        return;
    }
    m_Font = value;
    m_EffectiveStamp = 0;
}

font const& CBasePainter::EffectiveFont() const
{
    unsigned const stamp = detail::GetDefaultFontStamp();
    if (m_EffectiveStamp == stamp)
        return m_EffectiveFont;

    font const& base = GetDefaultGUIFont();
    m_EffectiveFont = m_Font;
    if (m_Font.family == font::ffDefault)
    {
        m_EffectiveFont.family = base.family;
        if (m_Font.name.empty())
            m_EffectiveFont.name = base.name;
    }
    if (m_Font.size < 1)
        m_EffectiveFont.size = base.size;
    if (!(m_Font.factor > 0) || !std::isfinite(m_Font.factor))
        m_EffectiveFont.factor = 1;
    m_EffectiveFont.rotation = NormalizeRotation(m_Font.rotation);
    m_EffectiveStamp = stamp;
    m_MetricsStamp = 0;
    return m_EffectiveFont;
}

fontmetrics const& CBasePainter::EffectiveMetrics() const
{
    font const& effective = EffectiveFont();
    if (m_MetricsStamp != m_EffectiveStamp)
    {
        m_EffectiveMetrics = fontmetrics();
        m_Device.GetMetrics(effective, m_EffectiveMetrics);
        m_MetricsStamp = m_EffectiveStamp;
    }
    return m_EffectiveMetrics;
}

void CBasePainter::GetFontMetrics(fontmetrics* metrics)
{
    if (metrics)
        *metrics = EffectiveMetrics();
}

// Runs ----------------------------------------------------------------------------------------------------------------

point<int> CBasePainter::STextFrame::ToDevice(int x, int y) const
{
    int const dx = SubtractSaturated(x, pivot.x);
    int const dy = SubtractSaturated(y, pivot.y);
    switch (rotation)
    {
    case 0:
        return {x, y};
    case 900:
        return {AddSaturated(pivot.x, dy), SubtractSaturated(pivot.y, dx)};
    case 1800:
        return {SubtractSaturated(pivot.x, dx), SubtractSaturated(pivot.y, dy)};
    case 2700:
        return {SubtractSaturated(pivot.x, dy), AddSaturated(pivot.y, dx)};
    default:
        return {FloorToInt(pivot.x + dx * cosine + dy * sine + 0.5),
                FloorToInt(pivot.y - dx * sine + dy * cosine + 0.5)};
    }
}

int CBasePainter::MeasureRun(char const* text, int length)
{
    return text && length > 0 ? m_Device.MeasureRun(EffectiveFont(), text, length) : 0;
}

void CBasePainter::DrawRun(int x, int y, char const* text, int length)
{
    _color const color = m_Frame.ownColor ? m_Frame.color : m_TextColor;
    if (!text || length <= 0 || color.m_None)
        return;
    rectangle<int> area{0, 0, m_Device.GetSize().width, m_Device.GetSize().height};
    if (m_Frame.cut)
        area.Intersect(m_Frame.limit);
    if (area.IsEmpty())
        return;

    IPaintDevice::SRun run;
    run.textFont = &EffectiveFont();
    if (run.textFont->rotation == 0)
    {
        // Lines far above or below need no asking for the glyphs; some glyphs reach a little over their line.
        fontmetrics const& metrics = EffectiveMetrics();
        int const height = metrics.ascent + metrics.descent;
        if (AddSaturated(y, 2 * height) < area.top || SubtractSaturated(y, height) > area.bottom)
            return;
    }
    point<int> const origin = m_Frame.ToDevice(x, y);
    run.text = text;
    run.length = length;
    run.x = origin.x;
    run.y = origin.y;
    run.pixel = CPixelBuffer::ToPixel(color);
    m_Clip.ForEach(area, [&](rectangle<int> const& part) {
        run.clip = part;
        m_Device.DrawRun(run);
    });
}

rectangle<int> CBasePainter::RunToDevice(rectangle<int> const& rect) const
{
    if (m_Frame.rotation == 0)
        return rect;
    point<int> const corners[4] = {m_Frame.ToDevice(rect.left, rect.top), m_Frame.ToDevice(rect.right, rect.top),
                                   m_Frame.ToDevice(rect.left, rect.bottom), m_Frame.ToDevice(rect.right, rect.bottom)};
    rectangle<int> box{corners[0].x, corners[0].y, corners[0].x, corners[0].y};
    for (point<int> const& corner : corners)
    {
        box.left = std::min(box.left, corner.x);
        box.top = std::min(box.top, corner.y);
        box.right = std::max(box.right, corner.x);
        box.bottom = std::max(box.bottom, corner.y);
    }
    return box;
}

// Sizes ---------------------------------------------------------------------------------------------------------------

rectangle<double> CBasePainter::ToDeviceBox(rectangle<double> const& rect) const
{
    rectangle<double> box = rect;
    ConvertCoord2(&box, false);
    box.Normalize();
    return box;
}

size<double> CBasePainter::DeviceTextSize(int width, double height, bool rotated) const
{
    int const rotation = rotated ? EffectiveFont().rotation : 0;
    if (IsUpDown(rotation))
        return {height, static_cast<double>(width)};
    if (IsQuarterTurn(rotation))
        return {static_cast<double>(width), height};
    double const cosine = std::fabs(std::cos(ToRadians(rotation)));
    double const sine = std::fabs(std::sin(ToRadians(rotation)));
    return {std::ceil(width * cosine + height * sine - Tolerance),
            std::ceil(width * sine + height * cosine - Tolerance)};
}

size<double> CBasePainter::ToLogicalSize(size<double> const& extent) const
{
    point<double> logical{extent.width, extent.height};
    DeconvertCoord1(&logical, true);
    return {std::fabs(logical.x), std::fabs(logical.y)};
}

size<double> CBasePainter::GetTextSize(std::string const& text, font const* textFont, int count, bool logical,
                                       bool rotated)
{
    int const all = SaturateToInt(static_cast<std::int64_t>(std::min<std::size_t>(text.size(), INT_MAX)));
    int const length = count < 0 || count >= all ? all : detail::WithoutPartialUtf8(text.data(), count);
    bool const other = textFont && !(*textFont == m_Font);
    if (other)
    {
        m_MeasuredFont = *textFont;
        std::swap(m_MeasuredFont, m_Font);
        m_EffectiveStamp = 0;
    }
    STextLayout const layout = LayOut(text.data(), length, -1, nullptr, PlainFormatter(), 0);
    size<double> extent =
        DeviceTextSize(layout.width, static_cast<double>(layout.lineCount) * layout.lineHeight, rotated);
    if (other)
    {
        std::swap(m_MeasuredFont, m_Font);
        m_EffectiveStamp = 0;
    }
    return logical ? ToLogicalSize(extent) : extent;
}

rectangle<double> CBasePainter::GetTextRect(rectangle<double> const& rect, size<double> const& textSize, int flags)
{
    rectangle<double> const box = ToDeviceBox(rect);
    point<double> extent{textSize.width, textSize.height};
    ConvertCoord1(&extent, true);
    extent = {std::fabs(extent.x), std::fabs(extent.y)};
    if (flags & AlignFitText)
        extent = {std::min(extent.x, box.Width()), std::min(extent.y, box.Height())};
    double const left = std::floor(box.left + HorizontalShare(flags) * (box.Width() - extent.x));
    double const top = std::floor(box.top + VerticalShare(flags) * (box.Height() - extent.y));
    rectangle<double> result{left, top, left + extent.x, top + extent.y};
    DeconvertCoord2(&result, false);
    result.Normalize();
    return result;
}

// Texts ---------------------------------------------------------------------------------------------------------------

size<double> CBasePainter::DrawString(rectangle<double> const& rect, char const* text, int flags, int count)
{
    return LayOutAndDraw(rect, text, LengthOf(text, count), flags, nullptr, PlainFormatter());
}

size<double> CBasePainter::DrawStringEx(rectangle<double> const& rect, char const* text, int flags, int count,
                                        char const* delimiters, ITextFormatter* formatter)
{
    return LayOutAndDraw(rect, text, LengthOf(text, count), flags, delimiters,
                         formatter ? *formatter : PlainFormatter());
}

// Cuts the text into lines; the first `kept` of them go to m_TextLines.
CBasePainter::STextLayout CBasePainter::LayOut(char const* text, int length, int maxWidth, char const* delimiters,
                                               ITextFormatter& formatter, int kept)
{
    fontmetrics const& metrics = EffectiveMetrics();
    STextLayout layout;
    layout.first = m_TextLines.size();
    layout.lineHeight = std::max(1, metrics.ascent + metrics.descent + metrics.leading);

    formatter.BeforeFormatting(this);
    char const* const end = text + length;
    char const* cursor = text;
    while (cursor < end)
    {
        char const* const begin = cursor;
        int lineLength = static_cast<int>(end - cursor);
        int width = 0;
        if (!formatter.GetTextLine(this, cursor, lineLength, width, maxWidth, delimiters))
            break;
        if (cursor <= begin)
            break;  // a formatter that stays where it is
        layout.width = std::max(layout.width, width);
        if (layout.lineCount++ < kept)
        {
            m_TextLines.push_back({static_cast<int>(begin - text), lineLength, width});
            ++layout.keptCount;
        }
    }
    formatter.AfterFormatting(this);
    return layout;
}

size<double> CBasePainter::LayOutAndDraw(rectangle<double> const& rect, char const* text, int length, int flags,
                                         char const* delimiters, ITextFormatter& formatter)
{
    CTextScope const scope(*this);
    bool const draws = !(flags & AlignMeasureOnly);
    STextPlace place;
    place.box = ToDeviceBox(rect);
    place.rotation = EffectiveFont().rotation;
    if (IsQuarterTurn(place.rotation))
    {
        bool const upDown = IsUpDown(place.rotation);
        place.maxWidth = std::max(0, FloorToInt((upDown ? place.box.Height() : place.box.Width()) + Tolerance));
        fontmetrics const& metrics = EffectiveMetrics();
        int const lineHeight = std::max(1, metrics.ascent + metrics.descent + metrics.leading);
        double const room = upDown ? place.box.Width() : place.box.Height();
        double const share = upDown ? HorizontalShare(flags) : VerticalShare(flags);
        bool const fromStart = (place.rotation < 1800 ? share : 1 - share) == 0;
        if (flags & AlignFitText)
            place.maxLines = std::max(1, FloorToInt((room + Tolerance) / lineHeight));
        else if (fromStart && !(flags & AlignSingleLine))
            place.maxLines = AddSaturated(FloorToInt(room / lineHeight), 2);  // further ones would be cut off
    }

    bool const wraps = !(flags & AlignSingleLine) && delimiters;
    STextLayout const layout = LayOut(text, length, wraps ? place.maxWidth : -1, wraps ? delimiters : nullptr,
                                      formatter, draws ? place.maxLines : 0);
    if (draws)
        DrawLines(layout, place, text, flags, formatter);
    return ToLogicalSize(DeviceTextSize(layout.width, static_cast<double>(layout.lineCount) * layout.lineHeight, true));
}

void CBasePainter::DrawLines(STextLayout const& layout, STextPlace const& place, char const* text, int flags,
                             ITextFormatter& formatter)
{
    m_TextShortened = false;
    if (layout.keptCount == 0)
        return;

    rectangle<double> const& box = place.box;
    int const rotation = place.rotation;
    bool const quarter = IsQuarterTurn(rotation);
    bool const upDown = IsUpDown(rotation);
    double const alongShare = upDown ? VerticalShare(flags) : HorizontalShare(flags);
    double const along = upDown ? box.Height() : box.Width();
    double const height = static_cast<double>(layout.keptCount) * layout.lineHeight;

    m_Frame = STextFrame();
    m_Frame.rotation = rotation;
    if (!(flags & AlignSingleLine))
    {
        m_Frame.cut = true;
        m_Frame.limit = {FloorToInt(box.left), FloorToInt(box.top), AddSaturated(FloorToInt(box.right), 1),
                         AddSaturated(FloorToInt(box.bottom), 1)};
    }
    m_Frame.ownColor = m_DisabledMode || (flags & AlignDisabled);
    m_Frame.color = flags & AlignDisabled ? color_table[8] : m_TextColor;

    // The whole block: its left-top on the device.
    size<double> const block = DeviceTextSize(layout.width, height, true);
    point<int> const blockPlace{FloorToInt(box.left + HorizontalShare(flags) * (box.Width() - block.width)),
                                FloorToInt(box.top + VerticalShare(flags) * (box.Height() - block.height))};
    m_Frame.pivot = blockPlace;
    if (!quarter)
    {
        // The pivot is the upright block's left-top, wherever that comes to lie in the bounding box.
        m_Frame.cosine = std::cos(ToRadians(rotation));
        m_Frame.sine = std::sin(ToRadians(rotation));
        double const right = layout.width * m_Frame.cosine;
        double const down = height * m_Frame.sine;
        double const up = layout.width * m_Frame.sine;
        double const bottom = height * m_Frame.cosine;
        m_Frame.pivot.x = FloorToInt(blockPlace.x - std::min({0.0, right, down, right + down}) + 0.5);
        m_Frame.pivot.y = FloorToInt(blockPlace.y - std::min({0.0, -up, bottom, bottom - up}) + 0.5);
    }

    // What the lines take across: from `across`, in steps of the line height, forward or backward.
    bool const forward = rotation < 1800;
    int const across = upDown ? blockPlace.x : blockPlace.y;
    int const acrossFrom = m_Frame.cut ? (upDown ? m_Frame.limit.left : m_Frame.limit.top) : INT_MIN;
    int const acrossTo = m_Frame.cut ? (upDown ? m_Frame.limit.right : m_Frame.limit.bottom) : INT_MAX;

    bool const fits = (flags & AlignFitText) && place.maxWidth >= 0;
    int ellipsisWidth = -1;
    formatter.BeforeFormatting(this);
    for (int i = 0; i < layout.keptCount; ++i)
    {
        STextLine const line = m_TextLines[layout.first + static_cast<std::size_t>(i)];
        char const* const lineText = text + line.start;
        int const before = SaturateToInt(std::int64_t{i} * layout.lineHeight);
        int const behind = SaturateToInt(std::int64_t{layout.keptCount - i} * layout.lineHeight);
        if (quarter && m_Frame.cut)
        {
            // A line that is cut off goes by; some glyphs reach a little over their line.
            int const start = AddSaturated(across, forward ? before : behind - layout.lineHeight);
            bool const tooLow = AddSaturated(start, 2 * layout.lineHeight) <= acrossFrom;
            bool const tooHigh = SubtractSaturated(start, layout.lineHeight) >= acrossTo;
            if (forward ? tooHigh : tooLow)
                break;
            if (tooLow || tooHigh)
            {
                formatter.SkipText(lineText, line.length);
                continue;
            }
        }
        int shownLength = line.length;
        int shownWidth = line.width;
        bool const shortened =
            fits && (line.width > place.maxWidth || (i + 1 == layout.keptCount && i + 1 < layout.lineCount));
        if (shortened)
        {
            if (ellipsisWidth < 0)
                ellipsisWidth = MeasureRun(Ellipsis, 3);
            int const room = place.maxWidth - ellipsisWidth;
            if (shownWidth > room)
                shownLength = formatter.FitTextLine(this, lineText, line.length, room, shownWidth);
            m_TextShortened = true;
        }
        int const wholeWidth = shortened ? AddSaturated(shownWidth, ellipsisWidth) : shownWidth;

        // The line's left-top in the frame.
        point<int> origin;
        if (quarter)
        {
            int const alongPlace = FloorToInt((upDown ? box.top : box.left) + alongShare * (along - wholeWidth));
            switch (rotation)
            {
            case 0:
                origin = {alongPlace, AddSaturated(blockPlace.y, before)};
                break;
            case 900:  // reads upward, the next line stands on the right
                origin = {SubtractSaturated(blockPlace.x, AddSaturated(alongPlace - blockPlace.y, wholeWidth)),
                          AddSaturated(blockPlace.y, before)};
                break;
            case 1800:
                origin = {SubtractSaturated(blockPlace.x, AddSaturated(alongPlace - blockPlace.x, wholeWidth)),
                          SubtractSaturated(blockPlace.y, behind)};
                break;
            default:  // 2700: reads downward, the next line stands on the left
                origin = {AddSaturated(blockPlace.x, alongPlace - blockPlace.y),
                          SubtractSaturated(blockPlace.y, behind)};
                break;
            }
        }
        else
        {
            origin.x = AddSaturated(m_Frame.pivot.x, FloorToInt(alongShare * (layout.width - wholeWidth)));
            origin.y = AddSaturated(m_Frame.pivot.y, SaturateToInt(std::int64_t{i} * layout.lineHeight));
        }

        formatter.DrawTextLine(this, origin.x, origin.y, lineText, shownLength);
        if (shownLength < line.length)
            formatter.SkipText(lineText + shownLength, line.length - shownLength);
        if (shortened)
            DrawRun(AddSaturated(origin.x, shownWidth), origin.y, Ellipsis, 3);
    }
    formatter.AfterFormatting(this);
}

// Images --------------------------------------------------------------------------------------------------------------

void CBasePainter::DrawXPM(XPMImage const& image, double x, double y, int sourceX, int sourceY, int sourceWidth,
                           int sourceHeight, RasterOperation operation)
{
    int const width = sourceWidth < 0 ? SubtractSaturated(image.GetWidth(), sourceX) : sourceWidth;
    int const height = sourceHeight < 0 ? SubtractSaturated(image.GetHeight(), sourceY) : sourceHeight;
    if (width <= 0 || height <= 0)
        return;
    double const scale = GetDPIAutoScale() ? std::max(1.0, GetDPIScale()) : 1.0;  // as an image is measured
    int const targetWidth = ToInt(width * scale);
    int const targetHeight = ToInt(height * scale);
    if (targetWidth <= 0 || targetHeight <= 0)
        return;

    point<double> corner{x, y};
    ConvertCoord1(&corner, false);
    point<int> const origin{FloorToInt(corner.x), FloorToInt(corner.y)};
    rectangle<int> visible{0, 0, m_Device.GetSize().width, m_Device.GetSize().height};
    visible.Intersect({origin.x, origin.y, AddSaturated(origin.x, targetWidth), AddSaturated(origin.y, targetHeight)});
    if (!m_Clip.IsUnlimited())
        visible.Intersect(m_Clip.GetBounds());

    bool const disabled = m_DisabledMode && !image.HasDisabledLook();
    _color const face = disabled ? GetDefaultPalette()->GetColor(ISysPalette::scFace) : _color();
    for (int row = visible.top; row < visible.bottom; ++row)
    {
        int const imageY =
            AddSaturated(sourceY, static_cast<int>(std::int64_t{row - origin.y} * height / targetHeight));
        // Stretches of one colour go in one filling.
        int start = visible.left;
        _color color{0, true};
        for (int column = visible.left; column <= visible.right; ++column)
        {
            _color next{0, true};
            if (column < visible.right)
            {
                int const imageX =
                    AddSaturated(sourceX, static_cast<int>(std::int64_t{column - origin.x} * width / targetWidth));
                next = image.GetPixel(imageX, imageY);
            }
            if (next == color)
                continue;
            if (!color.m_None)
                FillDevice({start, row, column, row + 1},
                           CPixelBuffer::ToPixel(disabled ? detail::GetDisabledLook(color, face) : color), operation);
            start = column;
            color = next;
        }
    }
}

}  // namespace vexelbase
