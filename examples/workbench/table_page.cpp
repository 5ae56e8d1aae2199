#include "table_page.h"

#include "ground.h"

#include "vexel/core/control.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/widgets/splitter.h"

#include <algorithm>

namespace workbench
{

namespace
{

double const g_Inset = 5;         // between a cell's edge and its text; unscaled
int const g_MostCopied = 100000;  // rows

}  // namespace

std::string CReadingColumns::GetItemCaption(int section) const
{
    int const column = VisibleIndex2ModelIndex(section);
    return column <= 0 ? "Day and time" : GetSensorName(column - 1);
}

std::string CReadingColumns::GetItemDescr(int section) const
{
    int const column = VisibleIndex2ModelIndex(section);
    return column <= 0 ? "When it was read"
                       : GetSensorName(column - 1) + std::string(" in ") + GetSensorUnit(column - 1);
}

CReadingGrid::CReadingGrid(CVisualElement* parent, CReadingColumns& columns)
    : CGridViewer(parent, {0, 0}, alClient), m_Columns(columns)
{
    SetBkColor(ISysPalette::scWindow);
    AttributeChanged();  // with the own margin
    GetRowViewModel()->SetCount(g_RowCount);
    GetRowSelectionModel()->m_SigCurrentChanged.connect(this, &CReadingGrid::CurrentChanged);
}

std::string CReadingGrid::GetText(int row, int section) const
{
    int const column = m_Columns.VisibleIndex2ModelIndex(section);
    return column <= 0 ? FormatTime(row) : FormatReading(row, column - 1);
}

bool CReadingGrid::HandleCopyToClipboard() const
{
    ISystem* const system = GetCurrentSystem();
    if (!system || !system->GetClipboard())
        return false;
    std::string text;
    int count = 0;
    for (int row = -1; count < g_MostCopied && GetRowSelectionModel()->GetNextSelectedItem(row); ++count)
        for (int section = 0; section < m_Columns.GetItemCount(); ++section)
            text += GetText(row, section) + (section + 1 < m_Columns.GetItemCount() ? '\t' : '\n');
    system->GetClipboard()->SetText(text);
    return count > 0;
}

void CReadingGrid::DrawCell(IPainter* painter, int row, int, int section, int, int state, rectangle<double> const& rect,
                            IDirtyItemSet::DirtyType dirty)
{
    if (dirty == IDirtyItemSet::dirtyOther)
        return;
    ISysPalette const& palette = *GetSysPalette();
    bool const selected = (state & isSelected) != 0;
    bool const focused = IsFocused();
    _color ground = palette.GetColor(ISysPalette::scWindow);
    if (selected)
        ground = palette.GetColor(focused ? ISysPalette::scHighlight : ISysPalette::scHalfLight);
    painter->SetBrush({ground, brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    painter->SetBrush({palette.GetColor(ISysPalette::scFace), brush::bsSolid});
    painter->FillRect(rect.left, rect.bottom, rect.right, rect.bottom);
    painter->FillRect(rect.right, rect.top, rect.right, rect.bottom);

    bool const isTime = m_Columns.VisibleIndex2ModelIndex(section) <= 0;
    double const inset = g_Inset * GetSystemScale();
    painter->SetTextColor(
        palette.GetColor(selected && focused ? ISysPalette::scHighlightText : ISysPalette::scWindowText));
    painter->DrawString(
        {rect.left + inset, rect.top, rect.right - inset, rect.bottom - 1}, GetText(row, section),
        (isTime ? IPainter::AlignLeft : IPainter::AlignRight) | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
    if ((state & isCurrent) && focused)
        painter->FocusRect(rect.left, rect.top, rect.right - 1, rect.bottom - 1);
}

CTablePage::CTablePage(SState const& state) : CVisualElement(nullptr, {0, 0}, alClient)
{
    m_Details = new CGround(this, {state.detailsWidth, 0}, alRight);
    auto* const splitter = new CSplitter(this, {5, 0}, alRight);
    auto* const box = new CScrollBox(this, {0, 0}, alClient);
    splitter->SetElements(m_Details, box);
    splitter->SetMinSize(ToDevicePixels(80));

    m_Header = new CSimpleHeader(box, {0, 24}, alTop);
    m_Grid = new CReadingGrid(box, m_Columns);
    IDiscreteItemViewModel* const widths = m_Grid->GetColumnViewModel();
    widths->SetCount(m_Columns.GetItemCount());
    for (int place = 0; place < m_Columns.GetItemCount(); ++place)
    {
        SState::SColumn const& column = state.columns[static_cast<std::size_t>(place)];
        m_Columns.SetModelIndex(place, column.number);
        widths->SetItemSize(place, ToDevicePixels(column.width));
    }
    m_Header->SetModel(&m_Columns);
    m_Header->SetViewModel(widths);
    m_Columns.ConnectHeader(m_Header);
    box->ConnectElement(m_Grid, CScrollBox::ctBoth, true);
    box->ConnectElement(m_Header, CScrollBox::ctHorizontal, false);

    new CGround(m_Details, {8, 0}, alLeft);
    m_Time = AddText(m_Details, 28, "");
    for (int sensor = 0; sensor < g_SensorCount; ++sensor)
    {
        AddText(m_Details, 18, GetSensorName(sensor))->SetFgColor(ISysPalette::scShadow);
        CCaption* const value = AddText(m_Details, 26, "");
        font large;
        large.factor = 1.3;
        value->SetFont(large);
        m_Values[static_cast<std::size_t>(sensor)] = value;
    }
    ShowRow(-1);
    m_Grid->m_SigRowChosen.connect(this, &CTablePage::ShowRow);
}

void CTablePage::ShowRow(int row)
{
    bool const there = row >= 0;
    m_Time->SetCaption(there ? "Day " + FormatTime(row) : "Choose a row");
    for (int sensor = 0; sensor < g_SensorCount; ++sensor)
        m_Values[static_cast<std::size_t>(sensor)]->SetCaption(
            there ? FormatReading(row, sensor) + " " + GetSensorUnit(sensor) : "-");
    m_SigRowChosen(row);
}

void CTablePage::Save(SState& state) const
{
    double const scale = GetSystemScale();
    state.detailsWidth = ToInt(m_Details->GetSize().width / scale + 0.5);
    for (int place = 0; place < m_Columns.GetItemCount(); ++place)
        state.columns[static_cast<std::size_t>(place)] = {
            m_Columns.VisibleIndex2ModelIndex(place),
            std::max(1, ToInt(m_Grid->GetColumnViewModel()->GetItemSize(place) / scale + 0.5))};
}

}  // namespace workbench
