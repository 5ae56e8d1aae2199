#include "vexel/controls/label.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/native_controls.h"

#include <algorithm>

namespace vexel
{

char const* const DefaultDelimiters = " .\\/\n";
char const* const HTMLDelimiters = " <.\\/\n";

namespace
{

/// Turns the painter's font for a scope.
class CTurnedFont
{
public:
    CTurnedFont(IPainter* painter, ILayout const& layout) : m_Painter(painter), m_Font(painter->GetFont())
    {
        font turned = m_Font;
        layout.ConvFont(&turned);
        painter->SetFont(turned);
    }
    ~CTurnedFont() { m_Painter->SetFont(m_Font); }
    CTurnedFont(CTurnedFont const&) = delete;
    CTurnedFont& operator=(CTurnedFont const&) = delete;

private:
    IPainter* const m_Painter;
    font const m_Font;
};

struct SLabelImage
{
    IImageList* list;
    int index;
    size<int> extent;
};

/// Draws the label and gathers what it takes.
struct ProcessLabelDraw
{
    static constexpr int TextFlags = 0;

    void PlaceText(rectangle<double> const& text)
    {
        result = {ToInt(text.left), ToInt(text.top), ToInt(text.right), ToInt(text.bottom)};
    }
    void PlaceImage(SLabelImage const& image, point<double> const& position, int flags)
    {
        int const x = ToInt(position.x);
        int const y = ToInt(position.y);
        if ((flags & IPainter::AlignMeasureOnly) == 0)
        {
            if ((flags & IPainter::AlignDisabled) != 0)
                image.list->DrawDisabled(painter, image.index, x, y);
            else
                image.list->Draw(painter, image.index, x, y);
        }
        if (result.IsZero())
            result = {x, y, AddSaturated(x, image.extent.width), AddSaturated(y, image.extent.height)};
        else
            result.left = x;
    }

    IPainter* painter;
    rectangle<int> result{};
};

/// Finds what lies at a point.
struct ProcessLabelHitTest
{
    static constexpr int TextFlags = IPainter::AlignMeasureOnly;

    void PlaceText(rectangle<double> const& text)
    {
        if (text.Contains(where.x, where.y))
            result = 2;
    }
    void PlaceImage(SLabelImage const& image, point<double> const& position, int)
    {
        // The width serves for both directions.
        double const width = image.extent.width;
        if (IsInSpan(where.x, position.x, position.x + width) && IsInSpan(where.y, position.y, position.y + width))
            result = 1;
    }

    IPainter* painter;
    point<double> where;
    int result = 0;
};

/// The label's measures, through the layout.
struct SLabelMeasures
{
    double rectAlong = 0;
    double rectAcross = 0;
    double originAlong = 0;
    double originAcross = 0;
    double imageAlong = 0;
    double imageAcross = 0;
    double textAlong = 0;
    double textAcross = 0;
    double lineHeight = 0;
    int imageSpace = 0;
    bool hasText = false;
};

// In the middle, but beside the first line of a text that has several, or that has much room around its line.
double GetImageAcross(SLabelMeasures const& m, int flags)
{
    int const centered = ToInt((m.rectAcross - m.imageAcross) * 0.5 + m.originAcross + 0.5);
    if (!m.hasText || !(m.lineHeight < m.textAcross || 2 * m.lineHeight < m.rectAcross))
        return centered;
    double base = 0;
    if ((flags & IPainter::AlignTop) != 0)
        base = m.originAcross;
    else if ((flags & IPainter::AlignBottom) != 0)
        base = m.rectAcross - m.textAcross + m.originAcross;
    else if ((flags & IPainter::AlignVCenter) != 0)
    {
        int const half = ToInt(m.rectAcross - m.textAcross) / 2;
        base = half + m.originAcross;
    }
    else
        return centered;
    return base + ToInt((m.lineHeight - m.imageAcross) * 0.5 + 0.5);
}

double GetImageAlong(SLabelMeasures const& m, int flags, double end)
{
    if ((flags & IPainter::AlignLeft) != 0)
        return ToInt(m.originAlong);
    if ((flags & IPainter::AlignRight) != 0)
        return end - (m.imageAlong + m.textAlong) - (m.hasText ? m.imageSpace : 0);
    if ((flags & IPainter::AlignHCenter) == 0)
        return 0;
    if (!m.hasText)
        return (m.rectAlong - m.imageAlong) / 2 + m.originAlong + 0.5;
    return (m.rectAlong - m.textAlong) / 2 - (m.imageAlong + m.imageSpace) + m.originAlong + 0.5;
}

template <class Operation>
void ProcessLabel(Operation& operation, rectangle<int> const& rect, std::string const& text, int flags, int imageSpace,
                  IImageList* images, int imageIndex, ILayout const* layout, char const* delimiters,
                  IPainter::ITextFormatter* formatter)
{
    if (!layout)
        layout = CLayoutManager::GetLayout(alTop);
    IPainter* const painter = operation.painter;
    CTurnedFont const turned(painter, *layout);

    SLabelMeasures m;
    m.hasText = !text.empty();
    m.imageSpace = imageSpace;
    SLabelImage image{images, imageIndex, {}};
    rectangle<double> textRect = ToDouble(rect);
    if (imageIndex != -1 && images)
    {
        image.extent = images->GetSize(imageIndex);
        m.imageAlong = layout->GetAlong(image.extent.width, image.extent.height);
        m.imageAcross = layout->GetAcross(image.extent.width, image.extent.height);
        point<double> corner = textRect.LeftTop();
        layout->IncAlong(&corner, m.imageAlong);
        if (m.hasText)
            layout->IncAlong(&corner, imageSpace);
        textRect.left = corner.x;
        textRect.top = corner.y;
    }
    if (textRect.right < textRect.left)
        textRect.right = textRect.left + 1;
    if (textRect.bottom < textRect.top)
        textRect.bottom = textRect.top + 1;

    if (m.hasText)
    {
        int const textFlags = layout->ConvTextAlign(flags) | IPainter::AlignFitText;
        size<double> const extent =
            painter->DrawStringEx(textRect, text.c_str(), textFlags | Operation::TextFlags, -1, delimiters, formatter);
        m.textAlong = layout->GetAlong(extent.width, extent.height);
        m.textAcross = layout->GetAcross(extent.width, extent.height);
        size<double> const line = painter->GetTextSize("W", nullptr);
        m.lineHeight = layout->GetAcross(line.width, line.height);
        operation.PlaceText(painter->GetTextRect(textRect, extent, textFlags));
    }
    if (imageIndex == -1)
        return;

    rectangle<double> const place = (flags & IPainter::AlignLeft) != 0 || !m.hasText ? ToDouble(rect) : textRect;
    m.rectAlong = layout->GetAlong(place.Width(), place.Height());
    m.rectAcross = layout->GetAcross(place.Width(), place.Height());
    m.originAlong = layout->GetAlong(place.left, place.top);
    m.originAcross = layout->GetAcross(place.left, place.top);
    if (m.rectAcross < m.imageAcross || m.rectAlong < m.imageAlong)
        return;

    double const across = GetImageAcross(m, flags);
    double const along = std::max(GetImageAlong(m, flags, layout->GetAlong(place.right, place.bottom)),
                                  layout->GetAlong(rect.left, rect.top));
    if (images && imageIndex >= 0)
        operation.PlaceImage(image, layout->MakePoint(along, across), flags);
}

}  // namespace

rectangle<int> DrawLabel(IPainter* painter, rectangle<int> const& rect, std::string const& text, int flags,
                         int imageSpace, IImageList* images, int imageIndex, ILayout* layout, char const* delimiters,
                         IPainter::ITextFormatter* formatter)
{
    ProcessLabelDraw operation{painter};
    ProcessLabel(operation, rect, text, flags, imageSpace, images, imageIndex, layout, delimiters, formatter);
    return operation.result;
}

int LabelHitTest(point<double> const& where, IPainter* painter, rectangle<int> const& rect, std::string const& text,
                 int flags, int imageSpace, IImageList* images, int imageIndex, ILayout* layout, char const* delimiters,
                 IPainter::ITextFormatter* formatter)
{
    ProcessLabelHitTest operation{painter, where};
    ProcessLabel(operation, rect, text, flags, imageSpace, images, imageIndex, layout, delimiters, formatter);
    return operation.result;
}

}  // namespace vexel
