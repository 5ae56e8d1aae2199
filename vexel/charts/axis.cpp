#include "vexel/charts/axis.h"

#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

namespace vexel
{

namespace
{

constexpr double s_MaxStep = 1e300;
constexpr double s_HalfStepRoom = 2.5;    // of the widest label's rooms in a step
constexpr double s_MinorPixels = 5.0;     // between two minor ticks at least
constexpr double s_LongValue = 10000.0;   // from here on a label has ten digits, whatever the step
constexpr int s_PreciseDecimals = 10;     // where no step tells how many
constexpr int s_HeightReserve = 2;        // pixels at any scale
constexpr std::size_t s_MaxText = 1280;   // bytes of a label
constexpr char const* s_Sample = "9999";  // a label as they come

bool IsFinite(IScrollModel const& model)
{
    return std::isfinite(model.GetFrom()) && std::isfinite(model.GetTo()) && std::isfinite(model.GetStart());
}

int CountDecimals(double step)
{
    if (!(step > 0))
        return s_PreciseDecimals;
    if (step >= 10)
        return 0;
    if (step >= 1)
        return 1;
    return ToInt(std::abs(std::ceil(std::abs(std::log10(step)))));
}

// What rounds to nothing has no sign, nor has what is no number.
bool IsNegativeZero(std::string const& text)
{
    return text.front() == '-' && text.find_first_of("123456789i") == std::string::npos;
}

// With a mapping of its own, also inside a paint.
class CNestedMeasuring
{
public:
    explicit CNestedMeasuring(IPainter* painter) : m_Painter(painter) { painter->BeginPaint(IPainter::ssMeasure); }
    ~CNestedMeasuring() { m_Painter->EndPaint(); }
    CNestedMeasuring(CNestedMeasuring const&) = delete;
    CNestedMeasuring& operator=(CNestedMeasuring const&) = delete;

private:
    IPainter* const m_Painter;
};

}  // namespace

CAxis::CAxis(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CScrollableElementEx(parent, extent, alignment)
{
    CScrollableElementEx::SetAlignment(alignment);
    SetTextConversion(true);
}

CAxis::~CAxis() = default;

// Look ----------------------------------------------------------------------------------------------------------------------

void CAxis::SetAxisOffset(int offset)
{
    if (offset == m_AxisOffset)
        return;
    m_AxisOffset = offset;
    OnChange(this, utElement);
}

void CAxis::SetLabelOffset(int offset)
{
    if (offset == m_LabelOffset)
        return;
    m_LabelOffset = offset;
    OnChange(this, utElement);
}

void CAxis::SetTickMarksSize(int major, int minor)
{
    if (major == m_MajorTickSize && minor == m_MinorTickSize)
        return;
    m_MajorTickSize = major;
    m_MinorTickSize = minor;
    OnChange(this, utElement);
}

void CAxis::SetLabelGapPixels(int gap)
{
    if (gap == m_LabelGapPixels)
        return;
    m_LabelGapPixels = gap;
    OnChange(this, utElement);
}

void CAxis::SetRotateText(bool rotate)
{
    if (rotate == m_RotateText)
        return;
    m_RotateText = rotate;
    OnChange(this, utElement);
}

void CAxis::SetUnitConverter(IUnitConverter* converter)
{
    m_UnitConverter = converter;
}

bool CAxis::ScrollContent(int dx, int dy)
{
    return CScrollableElement::ScrollContent(dx, dy);
}

void CAxis::ProcessSetControl(IControl* control)
{
    CScrollableElementEx::ProcessSetControl(control);
    SetAlignment(GetAlignment());
}

void CAxis::HandleRefreshPos()
{
    CScrollableElementEx::HandleRefreshPos();
    point<int> origin;
    ElementToControl(&origin);
    rectangle<double> span = GetAxisRect(nullptr);
    span.Offset(-origin.x, -origin.y);
    if (span == m_Span)
        return;
    m_Span = span;
    OnChange(this, utElement);
}

IPainter* CAxis::GetWindowPainter() const
{
    ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    return window ? window->GetPainter() : nullptr;
}

font CAxis::TurnFont(font value) const
{
    if (m_RotateText)
        ConvFont(&value);
    return value;
}

int CAxis::CalcMinHeight(std::string const& sample) const
{
    IPainter* const painter = GetWindowPainter();
    if (!painter)
        return 0;
    CNestedMeasuring const measuring(painter);
    font const own = GetFont();
    size<double> const extent = painter->GetTextSize(sample.empty() ? s_Sample : sample, &own, -1, false);
    int const text = ToInt(GetAcross(extent.width, extent.height));
    int const ticks = AddSaturated(AddSaturated(m_AxisOffset, m_MajorTickSize), m_LabelOffset);
    return AddSaturated(AddSaturated(ticks, text), s_HeightReserve);
}

// Step ----------------------------------------------------------------------------------------------------------------------

std::string CAxis::GetLabelText(double value, double step) const
{
    if (m_UnitConverter)
    {
        value = m_UnitConverter->ToUnits(value);
        step = m_UnitConverter->ToUnits(step) - m_UnitConverter->ToUnits(0);
    }
    std::array<char, s_MaxText> buffer{};
    if (std::abs(value) >= s_LongValue)
        std::snprintf(buffer.data(), buffer.size(), "%.10g", value);
    else
        std::snprintf(buffer.data(), buffer.size(), "%.*f", CountDecimals(step), value);
    std::string text = buffer.data();
    if (IsNegativeZero(text))
        text.erase(0, 1);
    return text;
}

double CAxis::GetLabelTextSize(CScrollConverter const& converter, IPainter* painter, double value, double step) const
{
    m_LabelGap = converter.P2L(m_LabelGapPixels) - converter.P2L(0);
    if (!painter)
        return m_LabelGap;
    // The widest of all texts of this length.
    std::string const widest(GetLabelText(value, step).size() + 1, '9');
    font const turned = TurnFont(GetFont());
    size<double> const extent = painter->GetTextSize(widest, &turned);
    return GetAlong(extent.width, extent.height) + m_LabelGap;
}

void CAxis::CalcLogicStep()
{
    IPainter* const painter = GetWindowPainter();
    IScrollModel* const model = GetScrollModel();
    if (!painter || !model)
        return;
    CNestedMeasuring const measuring(painter);
    IPainter::CoordInfo const own;
    painter->SetCoordSystem(IPainter::mmCustom, &own);
    SetCoordSystem(painter);
    ChooseStep(painter, model);
}

// The painter has the axis's mapping.
void CAxis::ChooseStep(IPainter* painter, IScrollModel* model)
{
    if (!IsFinite(*model))
        return;
    CScrollConverter const converter(model);
    double const origin = converter.P2L(0);
    double const next = converter.P2L(1);
    double const pixel =
        m_UnitConverter ? m_UnitConverter->ToUnits(next) - m_UnitConverter->ToUnits(origin) : next - origin;
    double step = std::pow(10.0, std::ceil(std::log10(pixel) - 0.5));
    if (m_UnitConverter)
        step = std::abs(m_UnitConverter->FromUnits(m_UnitConverter->ToUnits(origin) + step) - origin);
    if (!(step > 0) || !std::isfinite(step))
        step = 1.0;

    // The labels at both ends are the longest. A room that is no number ends it too.
    double room = 0;
    do
    {
        step = std::min(step * 10, s_MaxStep);
        auto const measure = [&](double end) {
            return GetLabelTextSize(converter, painter, std::ceil(end / step) * step, step);
        };
        room = std::max(measure(model->GetFrom()), measure(model->GetTo()));
    } while (step < room && step < s_MaxStep);

    bool const half = step > s_HalfStepRoom * room;
    m_Step = half ? step * 0.5 : step;
    m_MinorCount = half ? 5 : 10;
    while (m_MinorCount >= 2 && !(converter.L2P(origin + m_Step / m_MinorCount) >= s_MinorPixels))
        m_MinorCount >>= 1;
}

// Painting ------------------------------------------------------------------------------------------------------------------

void CAxis::DrawBackground(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->SetBrush({GetBkColor(), brush::bsSolid});
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

void CAxis::DrawLine(IPainter* painter, point<double>* position, bool major)
{
    painter->MoveTo(position->x, position->y);
    IncAcross(position, major ? m_MajorTickSize : m_MinorTickSize);
    painter->LineTo(position->x, position->y);
}

void CAxis::DrawContent(IPainter* painter)
{
    m_MajorTicks.clear();
    m_MinorTicks.clear();
    DrawBackground(painter);
    // In own pixels: on the way to the range's units and back, the clip would lose or win a line, and within another clip
    // a whole unit.
    CClipHolder const clip(painter, GetDrawRect(painter));
    SetCoordSystem(painter);
    IScrollModel* const model = GetScrollModel();
    rectangle<double> const rect = GetAxisRect(nullptr);
    if (!model || !IsFinite(*model) || !(GetAlong(rect.Width(), rect.Height()) > 0))
        return;
    if (GetControl())
        ChooseStep(painter, model);

    font const before = painter->GetFont();
    painter->SetFont(TurnFont(before));
    DrawTicks(painter, *model);
    painter->SetFont(before);
}

void CAxis::DrawTicks(IPainter* painter, IScrollModel const& model)
{
    rectangle<double> const rect = GetAxisRect(painter);
    double const oneEnd = GetAlong(rect.left, rect.top);
    double const otherEnd = GetAlong(rect.right, rect.bottom);
    auto const isAlong = [&](point<double> const& p) { return IsInSpan(GetAlong(p.x, p.y), oneEnd, otherEnd); };
    auto const isAcross = [&](point<double> const& p) {
        return IsInSpan(GetAcross(p.x, p.y), GetAcross(rect.left, rect.top), GetAcross(rect.right, rect.bottom));
    };

    // The first major tick from the start on, and back from it by minor ones.
    double const start = model.GetStart();
    double const from = model.GetFrom();
    double const minor = m_Step / m_MinorCount;
    double const steps = std::ceil(std::abs(start - from) / m_Step);
    double const first = (start < from ? -steps : steps) * m_Step + from;
    double const behind = std::trunc((first - start) / minor);
    double value = first - behind * minor;
    point<double> position = MakePoint(value, m_AxisOffset);
    if (!isAlong(position) || !isAcross(position))
    {
        value = start;
        position = MakePoint(value, m_AxisOffset);
    }
    if (!isAlong(position))
        return;

    double const limit = std::max(oneEnd, otherEnd);
    double lastEnd = std::numeric_limits<double>::min();
    double const begin = value;
    std::int64_t const number = std::int64_t{m_MinorCount} - ToInt(behind);
    // No more than a tick a pixel. Values are multiplied, not added up, so that no error grows along the axis.
    rectangle<double> const pixels = GetAxisRect(nullptr);
    int const most = ToInt(GetAlong(pixels.Width(), pixels.Height()));
    for (int i = 0; i <= most && isAcross(position); ++i)
    {
        point<double> end = position;
        if ((number + i) % m_MinorCount == 0)
        {
            DrawLine(painter, &end, true);
            lastEnd = DrawLabel(painter, end, value, lastEnd, limit);
            m_MajorTicks.push_back(value);
        }
        else
        {
            DrawLine(painter, &end, false);
            m_MinorTicks.push_back(value);
        }
        double const next = begin + (i + 1.0) * minor;
        position = MakePoint(next, m_AxisOffset);
        if (!(next > value) || !isAlong(position))  // values may be so large that a step is lost in them
            break;
        value = next;
    }
}

double CAxis::DrawLabel(IPainter* painter, point<double> const& position, double value, double lastEnd, double limit)
{
    PrepareAttr(position, value);
    double along = GetAlong(position.x, position.y);
    std::string const text = GetLabelText(value, m_Step);
    size<double> const extent = painter->GetTextSize(text, nullptr);
    double const width = std::abs(GetAlong(extent.width, extent.height));
    int align = IPainter::AlignHCenter | IPainter::AlignTop;
    if (along + width / 2 > limit)
    {
        if (lastEnd + m_LabelGap + width > limit)
            return along;
        along = limit - width / 2;
        align = IPainter::AlignRight | IPainter::AlignTop;
    }
    size<int> const own = GetSize();
    double const across = static_cast<double>(m_LabelOffset) + m_MajorTickSize;
    rectangle<double> const rect =
        MakeRect(along - width / 2, across, along + width / 2, GetAcross(own.width, own.height));
    painter->DrawString(rect, text.c_str(), ConvTextAlign(align) | IPainter::AlignSingleLine, -1);
    return along + width / 2;
}

}  // namespace vexel
