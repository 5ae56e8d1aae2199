#include "chart_view.h"

#include "vexel/platform/painter.h"

#include <algorithm>
#include <array>
#include <utility>

namespace chart
{

namespace
{

constexpr int s_BottomDepth = 30;  // of an axis
constexpr int s_LeftDepth = 34;

std::array<_color, 6> const g_Colors{_color::FromRgb(0xC0, 0x30, 0x20), _color::FromRgb(0x20, 0x60, 0xB0),
                                     _color::FromRgb(0x20, 0x80, 0x40), _color::FromRgb(0x90, 0x40, 0xA0),
                                     _color::FromRgb(0xD0, 0x80, 0x10), _color::FromRgb(0x50, 0x50, 0x50)};

/// An element that fills itself with its background.
class CGround : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
    }
};

CCaption* AddCaption(CVisualElement* parent, int width, Alignment alignment, std::string const& text)
{
    auto* const caption = new CCaption(parent, {width, 0}, alignment);
    caption->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter);
    caption->SetCaption(text);
    return caption;
}

}  // namespace

CChartView::CChartView(CVisualElement* parent, SNumbers numbers, std::vector<std::string> const& wanted)
{
    std::string const along = numbers.names.empty() ? "" : numbers.names.front();
    std::size_t const unreadable = numbers.unreadable;
    TakeSeries(std::move(numbers), wanted);

    auto* const top = new CGround(parent, {0, 34}, alTop);
    auto* const save = new CButton(top, {120, 0}, alRight);
    save->SetCaption("Save picture");
    save->SetCanHaveFocus(true);
    m_Save = CConnection(save->m_Clicked, [this](CButton*) { m_SigSave(); });
    new CGround(top, {s_LeftDepth, 0}, alLeft);
    for (auto const& series : m_Series)
        AddCaption(top, 130, alLeft, series->GetName())->SetFgColor(series->GetColor());
    m_Message = AddCaption(top, 0, alClient, "");
    if (m_Series.empty())
        Tell("There is nothing to plot.");
    else if (unreadable > 0)
        Tell(std::to_string(unreadable) + (unreadable == 1 ? " field is no number." : " fields are no numbers."));

    auto* const bottom = new CGround(parent, {0, 24}, alBottom);
    AddCaption(bottom, 0, alClient, along)->SetTextAlign(IPainter::AlignHCenter | IPainter::AlignVCenter);
    new CGround(parent, {20, 0}, alRight);
    auto* const left = new CUpwardAxis(parent, {s_LeftDepth, s_LeftDepth}, alLeft);
    auto* const below = new CAxis(parent, {s_BottomDepth, s_BottomDepth}, alBottom);
    m_Plot = new CPlot(parent, m_Horz, m_Vert);
    m_Plot->SetBkColor(_color::FromRgb(0xFF, 0xFF, 0xFF));
    m_Plot->SetAxes({below, left});
    for (auto const& series : m_Series)
        m_Plot->AddSeries(*series);
}

void CChartView::TakeSeries(SNumbers numbers, std::vector<std::string> const& wanted)
{
    SortByFirst(numbers);
    std::vector<std::size_t> chosen;
    for (std::string const& one : wanted)
    {
        auto const named = std::find(numbers.names.begin(), numbers.names.end(), one);
        auto found = static_cast<std::size_t>(named - numbers.names.begin());
        for (std::size_t i = 0; named == numbers.names.end() && i < numbers.names.size(); ++i)
            found = std::to_string(i + 1) == one ? i : found;
        if (found < numbers.names.size())
            chosen.push_back(found);
        else
            m_Unknown.push_back(one);
    }
    for (std::size_t i = 1; wanted.empty() && i < numbers.columns.size(); ++i)
        chosen.push_back(i);
    for (std::size_t const i : chosen)
        m_Series.push_back(std::make_unique<CSeries>(numbers.names[i], g_Colors[m_Series.size() % g_Colors.size()],
                                                     numbers.columns.front(), numbers.columns[i]));
}

}  // namespace chart
