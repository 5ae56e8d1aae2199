#include "gallery/pages/grid_page.h"

#include "vexel/core/control.h"
#include "vexel/platform/system.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/views/item_walks.h"

#include <limits>

namespace gallery
{

namespace
{

constexpr int s_Rows = std::numeric_limits<int>::max();
constexpr int s_Columns = 1000;

}  // namespace

CGridPage::CGridPage() : m_Columns(s_Columns) {}

CGridPage::~CGridPage() = default;

void CGridPage::CCellTips::GetTooltipAttr(CTooltipEvent* event)
{
    IDiscreteItemViewModel const* const rows = m_Grid->GetRowViewModel();
    IDiscreteItemViewModel const* const columns = m_Grid->GetColumnViewModel();
    int const row = Utils::HitTest(rows, event->m_Y);
    int const column = Utils::HitTest(columns, event->m_X);
    if (row < 0 || column < 0)
        return;
    event->m_Text = "Row " + std::to_string(row + 1LL) + ", column " + std::to_string(column + 1);
    rectangle<int> const bounds = m_Grid->GetBounds();
    range<int> const across = Utils::GetItemIndexRangeEx(columns, column, {0, bounds.right});
    range<int> const along = Utils::GetItemIndexRangeEx(rows, row, {0, bounds.bottom});
    event->m_HotRect = {across.first, along.first, across.second, along.second};
}

void CGridPage::Build(CVisualElement* parent)
{
    m_Columns.SetItemCount(s_Columns);
    m_Columns.m_Caption = [](int column) { return "Column " + std::to_string(column + 1); };

    auto* const box = new CScrollBox(parent, {0, 0}, alClient);
    auto* const header = new CSimpleHeader(box, {0, 24}, alTop);
    m_Grid = new CTextGrid(box, {0, 0}, alClient, [this](int row, int column, std::string& text) {
        int const number = m_Columns.VisibleIndex2ModelIndex(column);
        bool const down = m_Columns.m_SortedColumn == number && m_Columns.m_Direction == 2;
        long long const first = down ? static_cast<long long>(s_Rows) - row : row + 1LL;
        text = std::to_string(number == 0 ? first : first * 1000 + number);
    });
    m_Grid->SetHighlight("17");
    m_Grid->GetRowViewModel()->SetCount(s_Rows);
    IDiscreteItemViewModel* const columns = m_Grid->GetColumnViewModel();
    columns->SetDefaultItemSize(static_cast<int>(110 * GetSystemScale()));
    columns->SetCount(s_Columns);
    columns->SetItemSize(0, static_cast<int>(90 * GetSystemScale()));
    m_Grid->GetRowHandler().SetNotifySelection(true);
    m_Grid->AddEventHandler(&m_Tips);
    m_Tips.SetWindow(parent->GetControl() ? parent->GetControl()->GetWindow() : nullptr);

    header->SetModel(&m_Columns);
    header->SetViewModel(columns);
    m_Columns.ConnectHeader(header);
    box->ConnectElement(m_Grid, CScrollBox::ctBoth, true);
    box->ConnectElement(header, CScrollBox::ctHorizontal, false);

    header->m_SigSectionClicked.connect(this, &CGridPage::SectionClicked);
    header->m_SigSectionMoved.connect(this, &CGridPage::SectionMoved);
    Report(header->m_SigSectionClicked, "clicked");
    Report(header->m_SigResized, "resized");
    Report(header->m_SigSectionMoved, "moved");
    Report(header->m_SigDividerDoubleClicked, "divider double-clicked");
    m_Grid->GetRowViewModel()->m_SigChanged.connect(this, &CGridPage::RowsChanged);
    m_Grid->m_SigSelectionChanged.connect(this, &CGridPage::SelectionChanged);
    Report(m_Grid->GetRowSelectionModel()->m_SigCurrentChanged, "current row");
    Report(m_SigSelected, "selected rows");
    Report(m_SigRows, "rows in view");
}

void CGridPage::SectionClicked(CSimpleHeader*, int section)
{
    m_Columns.Sort(section);
    RepaintAll();
}

void CGridPage::RowsChanged()
{
    IDiscreteItemViewModel const* const rows = m_Grid->GetRowViewModel();
    range<int> const shown{rows->GetStartItem(), Utils::GetLastVisibleItem(rows)};
    if (shown == m_Shown)
        return;
    m_Shown = shown;
    m_SigRows(shown.first, shown.second);
}

void CGridPage::SelectionChanged()
{
    m_SigSelected(m_Grid->GetRowSelectionModel()->GetSelectedCount());
}

void CGridPage::SectionMoved(CSimpleHeader*, int, int)
{
    RepaintAll();
}

void CGridPage::RepaintAll()
{
    m_Grid->GetRowViewModel()->AddDirtyItems(0, s_Rows);
    m_Grid->Update(utElement);
}

}  // namespace gallery
