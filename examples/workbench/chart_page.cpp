#include "chart_page.h"

#include "ground.h"

#include "vexel/charts/axis.h"
#include "vexel/controls/check_box.h"
#include "vexel/core/clip_holder.h"
#include "vexel/core/draw_line.h"
#include "vexel/platform/system.h"
#include "vexel/scroll/central_part.h"
#include "vexel/widgets/expander.h"

#include <algorithm>

namespace workbench
{

namespace
{

struct SSpan
{
    char const* caption;
    int rows;
};

SSpan const g_Spans[] = {{"10 s", 1000}, {"1 min", 6000}, {"10 min", 60000}, {"1 h", 360000}};
int const g_AxisDepth = 32;
double const g_PartsShown = 110;  // hundredths, of which 5 are room at either end
double const g_FirstPart = -105;
int const g_CaptionRoom = 16;  // to each side of the middle of a caption

_color const g_Colors[g_SensorCount] = {_color::FromRgb(0x2F, 0x7F, 0xD0), _color::FromRgb(0xD0, 0x50, 0x30),
                                        _color::FromRgb(0x2F, 0xA0, 0x50), _color::FromRgb(0xA0, 0x60, 0xC0),
                                        _color::FromRgb(0xC0, 0x90, 0x20), _color::FromRgb(0x50, 0xA0, 0xA8)};

// Where a reading lies between the sensor's extremes, in hundredths.
double ReadPart(std::int64_t row, int sensor)
{
    static double const lows[] = {4.7, 60, 13, 32, 1430, 148};
    static double const highs[] = {7.7, 82, 35, 78, 1530, 272};
    return (Read(row, sensor) - lows[sensor]) / (highs[sensor] - lows[sensor]) * 100;
}

// Shows negated values as they are, and so grows upwards.
class CUpwardAxis : public CAxis
{
public:
    using CAxis::CAxis;
    std::string GetLabelText(double value, double step) const override { return CAxis::GetLabelText(-value, step); }
};

}  // namespace

// The lines over the axes' grid.
class CChartPage::CPlot : public CCentralPart
{
public:
    CPlot(CChartPage& page) : CCentralPart(&page, {0, 0}, alClient), m_Page(page)
    {
        SetBkColor(ISysPalette::scWindow);
        SetHorzScroll(&page.m_Seconds);
        SetVertScroll(&page.m_Parts);
    }
    void SetPos(rectangle<int> const& rect, bool force) override
    {
        CAliveGuard const alive(this);
        CCentralPart::SetPos(rect, force);
        if (alive)
            m_Page.ShowRange();
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
        CClipHolder const clip(painter, {0, 0, static_cast<double>(bounds.right), static_cast<double>(bounds.bottom)});
        ISysPalette const& palette = *GetSysPalette();
        painter->SetPen({palette.GetColor(ISysPalette::scHalfLight), pen::psSolid, 1});
        for (double const tick : m_Page.m_TimeAxis->GetMajorTicks())
            DrawGridLine(painter, ToX(tick), 0, ToX(tick), bounds.bottom);
        for (double const tick : m_Page.m_PartAxis->GetMajorTicks())
            DrawGridLine(painter, 0, ToY(tick), bounds.right, ToY(tick));
        for (int sensor = 0; sensor < g_SensorCount; ++sensor)
            if (m_Page.m_Shown[static_cast<std::size_t>(sensor)])
                DrawSensor(painter, sensor);
    }

private:
    double ToX(double second) const
    {
        return (second - m_Page.m_Seconds.GetStart()) / m_Page.m_Seconds.GetMeasure().first * GetBounds().right;
    }
    double ToY(double negated) const
    {
        return (negated - m_Page.m_Parts.GetStart()) / g_PartsShown * GetBounds().bottom;
    }
    static void DrawGridLine(IPainter* painter, double x1, double y1, double x2, double y2)
    {
        painter->MoveTo(x1, y1);
        painter->LineTo(x2, y2);
    }
    // A point every second pixel, or for every reading where these are fewer.
    void DrawSensor(IPainter* painter, int sensor) const
    {
        painter->SetPen({g_Colors[sensor], pen::psSolid, 1});
        double const first = m_Page.m_Seconds.GetStart() / g_Interval;
        double const rows = m_Page.m_Seconds.GetMeasure().first / g_Interval;
        double const points = std::min(rows, std::max(1.0, GetBounds().right / 2.0));
        point<double> last;
        for (int i = 0; i <= ToInt(points); ++i)
        {
            double const row = std::clamp(first + rows * i / points, 0.0, g_RowCount - 1.0);
            point<double> const next{GetBounds().right * i / points,
                                     ToY(-ReadPart(static_cast<std::int64_t>(row), sensor))};
            if (i > 0)
                DrawLine(painter, last, next, CapNone, CapNone);
            last = next;
        }
    }

    CChartPage& m_Page;
};

std::string CChartPage::CSpans::GetPointCaption(int index) const
{
    return g_Spans[index].caption;
}

void CChartPage::CSpanLook::GetContentRect(int point, int state, rectangle<double>& rect, ILayout* layout) const
{
    CDefSliderDrawingModel::GetContentRect(point, state, rect, layout);
    double const room = g_CaptionRoom * GetSystemScale();
    layout->GetAlongRef(rect.left, rect.top) -= room;
    layout->GetAlongRef(rect.right, rect.bottom) += room;
}

CChartPage::CChartPage(SState const& state) : CVisualElement(nullptr, {0, 0}, alClient)
{
    auto* const foot = new CGround(this, {0, 54}, alBottom);
    new CGround(foot, {20, 0}, alLeft);
    m_Span = new CSlider(foot, {320, 0}, alLeft);
    m_Span->SetDirection(CSlider::SliderHorizontal);
    m_Span->SetModel(&m_Spans);
    m_Span->SetDrawingModel(&m_SpanLook);
    m_Span->SetSliderPos(state.span);
    m_Span->m_PosChanged.connect(this, &CChartPage::SpanChosen);
    m_Span->m_PosTracking.connect(this, &CChartPage::SpanChosen);
    new CGround(foot, {0, 0}, alClient);

    m_Expander = new CExpander(this, {0, 24}, alBottom);
    auto* const title = new CCaption(nullptr, {0, 22}, alTop);
    title->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter);
    title->SetCaption("  What is shown (click to open and close)");
    title->m_SigClick.connect(this, &CChartPage::TitleClicked);
    auto* const body = new CGround(nullptr, {0, 28}, alClient);
    new CGround(body, {8, 0}, alLeft);
    for (int sensor = 0; sensor < g_SensorCount; ++sensor)
    {
        auto* const box = new CCheckBox(body, {110, 0}, alLeft);
        box->SetCaption(GetSensorName(sensor));
        box->SetFgColor(g_Colors[sensor]);
        box->SetChecked(m_Shown[static_cast<std::size_t>(sensor)]);
        box->m_CheckChanged.connect(this, &CChartPage::SensorSwitched);
        m_Switches[static_cast<std::size_t>(sensor)] = box;
    }
    m_Expander->SetTitle(title);
    m_Expander->SetBody(body);
    m_Expander->Expand(true, false);

    // Axes stand before the plot, and so have their ticks when it draws its grid. The lower one takes both corners, where
    // labels at its ends have room.
    new CGround(this, {0, 10}, alTop);
    m_TimeAxis = new CAxis(this, {g_AxisDepth, g_AxisDepth}, alBottom);
    m_PartAxis = new CUpwardAxis(this, {g_AxisDepth, g_AxisDepth}, alLeft);
    m_PartAxis->SetRotateText(false);
    new CGround(this, {24, 0}, alRight);
    m_Seconds.SetEnds(0, g_RowCount * g_Interval);
    m_Parts.SetEnds(-200, 100);
    m_Parts.SetStart(g_FirstPart);
    m_Plot = new CPlot(*this);
    for (CAxis* const axis : {m_TimeAxis, m_PartAxis})
    {
        axis->SetCentralPane(m_Plot);
        axis->SetHorzScroll(&m_Seconds);
        axis->SetVertScroll(&m_Parts);
    }
    ShowRange();
}

CChartPage::~CChartPage() = default;

void CChartPage::ShowRow(int row)
{
    if (row < 0)
        return;
    m_Row = row;
    ShowRange();
}

void CChartPage::ShowRange()
{
    if (!m_Plot)
        return;
    double const length = g_Spans[std::clamp(m_Span->GetSliderPos(), 0, 3)].rows * g_Interval;
    double const last = g_RowCount * g_Interval - length;
    m_Seconds.SetStart(std::clamp(m_Row * g_Interval - length / 2, 0.0, last));
    m_Seconds.SetMeasure({length, std::max(1, m_Plot->GetBounds().right)});
    m_Parts.SetMeasure({g_PartsShown, std::max(1, m_Plot->GetBounds().bottom)});
    for (CVisualElement* const element :
         {static_cast<CVisualElement*>(m_TimeAxis), static_cast<CVisualElement*>(m_PartAxis),
          static_cast<CVisualElement*>(m_Plot)})
        element->Update(utElement);
}

void CChartPage::SpanChosen(CSlider*, double position)
{
    ShowRange();
    m_SigSpanChosen(ToInt(position));
}

void CChartPage::TitleClicked(CVisualElement*, int, int, int, MouseButton)
{
    m_Expander->Expand(!m_Expander->IsExpanded(), true);
}

void CChartPage::SensorSwitched(CCheckBox*)
{
    for (std::size_t i = 0; i < m_Shown.size(); ++i)
        m_Shown[i] = m_Switches[i]->IsChecked();
    m_Plot->Update(utElement);
}

}  // namespace workbench
