#include "table_view.h"

#include "vexel/controls/bevel.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"
#include "vexel/views/item_walks.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace table
{

namespace
{

constexpr std::size_t s_SortMemory = std::size_t{160} << 20;  // bytes
constexpr int s_MostCopied = 100000;                          // rows
constexpr std::size_t s_MostCopiedBytes = std::size_t{16} << 20;
constexpr int s_MeasuredRows = 100;
constexpr int s_ProblemsMargin = 10;  // pixels, above and below together; multiplied by the display scale
constexpr std::chrono::milliseconds s_Refresh{100};  // between two looks at the indexer's progress
_color const g_Problem{0x2020B0};

std::string Percent(double part)
{
    return std::to_string(ToInt(part * 100)) + " %";
}

std::string BytesText(std::uint64_t bytes)
{
    char const* unit = " bytes";
    for (char const* next : {" KB", " MB", " GB", " TB"})
    {
        if (bytes < 10000)
            break;
        bytes /= 1000;
        unit = next;
    }
    return Grouped(bytes) + unit;
}

/// What can be shown of a table, as a count of rows below the header.
int ShownCount(CTableFile::SState const& state)
{
    std::uint64_t const rows = state.rows > 0 ? state.rows - 1 : 0;
    return static_cast<int>(std::min<std::uint64_t>(rows, std::numeric_limits<int>::max()));
}

}  // namespace

CTableView::CTableView(CVisualElement* parent, ISysWindow& window, std::string const& path)
    : m_Window(window), m_File(path)
{
    Build(parent);
    if (path.empty())
        m_Notice->SetCaption("No file was named to be shown.\n\nusage: table [--log] FILE");
}

CTableView::~CTableView()
{
    if (m_Sort)
        m_Sort->Stop();  // so that its thread needn't be waited for
}

void CTableView::Build(CVisualElement* parent)
{
    // Docked in this order: first what stands at the bottom, then what fills the rest.
    m_Status = new CCaption(parent, {0, 24}, alBottom);
    m_Status->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText);
    m_Problems = new CCaption(parent, {0, 24}, alBottom);
    m_Problems->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText);
    m_Problems->SetFgColor(g_Problem);
    m_Problems->SetTooltipFromCaption(true);
    m_Problems->SetVisible(false);
    auto* const line = new CBevel(parent, {0, 1}, alBottom);
    line->SetShape(CBevel::ShapeTopLine);
    m_Notice = new CCaption(parent, {0, 0}, alClient);
    m_Notice->SetBkColor(ISysPalette::scWindow);
    m_Notice->SetVisible(false);
    m_Box = new CScrollBox(parent, {0, 0}, alClient);
    m_Header = new CSimpleHeader(m_Box, {0, 24}, alTop);
    m_Grid = new CTableGrid(m_Box, {0, 0}, alClient, [this](int row, int section) { return GetCell(row, section); });

    IDiscreteItemViewModel* const widths = m_Grid->GetColumnViewModel();
    m_Header->SetModel(&m_Columns);
    m_Header->SetViewModel(widths);
    m_Columns.ConnectHeader(m_Header);  // which takes columns along when they are dragged
    m_Box->ConnectElement(m_Grid, CScrollBox::ctBoth, true);
    m_Box->ConnectElement(m_Header, CScrollBox::ctHorizontal, false);

    m_Header->m_SigSectionClicked.connect(this, &CTableView::SectionClicked);
    m_Header->m_SigSectionMoved.connect(this, &CTableView::SectionMoved);
    m_Header->m_SigResized.connect(this, &CTableView::SectionResized);
    m_Header->m_SigDividerDoubleClicked.connect(this, &CTableView::FitColumn);
    m_Grid->m_SigShown.connect(this, &CTableView::RowsShown);
    m_Grid->m_SigCopy.connect(this, &CTableView::CopySelection);
}

// Indexing -----------------------------------------------------------------------------------------------------------

void CTableView::Start()
{
    m_Grid->SetFocus(true);
    m_File.IndexMore();  // the first rows at once
    Indexed();
    if (m_Indexed)
        return;
    m_Indexing = std::make_unique<CBackground>(m_Window, [this] { return m_File.IndexMore(); });
    m_Indexing->m_SigRound.connect(this, &CTableView::Indexed);
    m_Indexing->Execute();
}

void CTableView::Indexed()
{
    auto const now = std::chrono::steady_clock::now();
    CTableFile::SState const state = m_File.GetState();
    if (m_Indexed || (!state.done && now - m_LastShown < s_Refresh))
        return;
    m_LastShown = now;
    m_Indexed = state.done;
    int const count = ShownCount(state);
    if (count != GetRowCount())
        m_Grid->GetRowViewModel()->SetCount(count);
    TakeColumns(state);
    ShowState(state);
    if (m_Indexed)
        Report("indexed " + std::to_string(count) + " rows");
}

void CTableView::TakeColumns(CTableFile::SState const& state)
{
    int const before = m_Columns.GetItemCount();
    int const count = static_cast<int>(std::min(state.columns, CRowReader::s_MostFields));
    if (state.rows == 0 || count == before)
        return;
    std::vector<std::string> captions;
    CRowReader(m_File).Read(0, captions);
    for (std::string& caption : captions)
        caption = MakeDrawable(caption);
    m_Columns.SetColumns(std::move(captions), count);
    IDiscreteItemViewModel* const widths = m_Grid->GetColumnViewModel();
    widths->SetCount(m_Columns.GetItemCount());
    for (int section = before; section < m_Columns.GetItemCount(); ++section)
        FitColumn(m_Header, section);
}

void CTableView::ShowState(CTableFile::SState const& state)
{
    std::vector<std::string> problems = state.problems.Describe();
    if (!state.problems.open.empty() && m_Notice->GetCaption().empty())
        m_Notice->SetCaption(state.problems.open);
    bool const nothing = !state.problems.open.empty();
    m_Notice->SetVisible(nothing);
    m_Box->SetVisible(!nothing);
    if (nothing)
        return Report("nothing to show: " + m_Notice->GetCaption());

    std::uint64_t const rows = state.rows > 0 ? state.rows - 1 : 0;
    if (rows > static_cast<std::uint64_t>(ShownCount(state)))
        problems.push_back("Only the first " + Grouped(static_cast<std::uint64_t>(ShownCount(state))) +
                           " rows are shown.");
    std::string status = "  " + Grouped(rows) + (rows == 1 ? " row, " : " rows, ") + Grouped(state.columns) +
                         (state.columns == 1 ? " column, " : " columns, ") + BytesText(state.size);
    if (!state.done && state.size > 0)
        status += "  |  Indexing " + Percent(static_cast<double>(state.indexed) / static_cast<double>(state.size));
    for (std::string const& part : {DescribeSorting(), m_Copied})
        if (!part.empty())
            status += "  |  " + part;
    m_Status->SetCaption(status);

    std::string text;
    for (std::string const& problem : problems)
        text += (text.empty() ? "  " : "\n  ") + problem;
    if (text == m_Problems->GetCaption())
        return;
    m_Problems->SetCaption(text);
    int const lines = m_Problems->GetTextLineHeight() * static_cast<int>(problems.size());
    m_Problems->SetHeight(lines + ToDevicePixels(s_ProblemsMargin), false);
    m_Problems->SetVisible(!problems.empty());
    for (std::string const& problem : problems)
        Report("problem: " + problem);
}

// Sorting: upwards, downwards, as in the file --------------------------------------------------------------------------

std::string CTableView::DescribeSorting() const
{
    if (m_Sorting)
        return "Sorting by " + m_Columns.GetName(static_cast<int>(m_Sort->GetColumn())) + " " +
               Percent(m_Sort->GetProgress());
    if (m_Columns.GetDirection() == CColumns::None)
        return {};
    std::string const by = m_Columns.GetName(m_Columns.GetSortedColumn());
    std::size_t const ordered = m_Rows.GetOrderedCount();
    if (ordered >= static_cast<std::size_t>(GetRowCount()))
        return "Sorted by " + by;
    return "Only the first " + Grouped(ordered) + " rows are sorted by " + by +
           (m_OrderLimited ? ", as memory is limited" : "");
}

void CTableView::SectionClicked(CSimpleHeader*, int section)
{
    int const column = m_Columns.GetColumn(section);
    bool const sorted = column == m_Columns.GetSortedColumn() && m_Columns.GetDirection() != CColumns::None;
    bool const complete = m_OrderLimited || m_Rows.GetOrderedCount() == static_cast<std::size_t>(GetRowCount());
    if (sorted && m_Columns.GetDirection() == CColumns::Descending)
    {
        m_Rows.SetOrder({});
        m_Columns.SetSorted(-1, CColumns::None);
        return ShowOrder();
    }
    m_SortDirection = sorted ? CColumns::Descending : CColumns::Ascending;
    if (!sorted || !complete)
        return StartSort(column);
    m_Rows.SetDescending(true);
    m_Columns.SetSorted(column, CColumns::Descending);
    ShowOrder();
}

void CTableView::StartSort(int column)
{
    if (m_Sort)
        m_Sort->Stop();
    m_Sorting.reset();
    m_Sort = std::make_unique<CRowSort>(m_File, static_cast<std::size_t>(column),
                                        static_cast<std::uint64_t>(GetRowCount()), s_SortMemory);
    m_Sorting = std::make_unique<CBackground>(m_Window, [sort = m_Sort.get()] { return sort->Step(); });
    m_Sorting->m_SigRound.connect(this, &CTableView::SortRound);
    m_Sorting->Execute();
    ShowState(m_File.GetState());
}

void CTableView::SortRound()
{
    if (!m_Sort->IsDone())
        return ShowState(m_File.GetState());
    int const column = static_cast<int>(m_Sort->GetColumn());
    m_OrderLimited = m_Sort->IsLimited();
    m_Rows.SetOrder(m_Sort->TakeOrder());
    m_Rows.SetDescending(m_SortDirection == CColumns::Descending);
    m_Columns.SetSorted(column, m_SortDirection);
    m_Sorting.reset();
    m_Sort.reset();
    ShowOrder();
}

// The rows are others now, so what was selected isn't any more.
void CTableView::ShowOrder()
{
    m_Grid->GetRowSelectionModel()->ClearSelection();
    m_Grid->GetRowSelectionModel()->SetCurrent(-1);
    m_Grid->GetRowViewModel()->SetStartItem(0);
    m_Grid->ShowAnew();
    ShowState(m_File.GetState());
    char const* const names[] = {"as in the file", "ascending", "descending"};
    Report("sorted " + std::to_string(m_Columns.GetSortedColumn()) + " " + names[m_Columns.GetDirection()] + ", " +
           std::to_string(m_Rows.GetOrderedCount()) + " rows");
}

// The rest of what the user does ---------------------------------------------------------------------------------------

void CTableView::FitColumn(CSimpleHeader*, int section)
{
    IDiscreteItemViewModel const* const rows = m_Grid->GetRowViewModel();
    int const first = rows->GetStartItem();
    int const last = std::min(AddSaturated(first, s_MeasuredRows), rows->GetCount()) - 1;
    m_Grid->GetColumnViewModel()->SetItemSize(
        section, m_Grid->MeasureColumn(section, m_Columns.GetItemCaption(section), first, last));
}

void CTableView::SectionMoved(CSimpleHeader*, int from, int to)
{
    m_Grid->ShowAnew();
    Report("moved column " + std::to_string(from) + " to " + std::to_string(to));
}

void CTableView::SectionResized(CSimpleHeader*, int section, int width)
{
    Report("resized column " + std::to_string(section) + " to " + std::to_string(width));
}

void CTableView::RowsShown(int first, int last)
{
    Report("shown " + std::to_string(first) + ".." + std::to_string(last) + ": " + GetCell(first, 0) + " .. " +
           GetCell(last, 0));
    // Painting may have found out that the file is shorter now.
    if (m_Indexed)
        ShowState(m_File.GetState());
}

void CTableView::CopySelection()
{
    std::vector<int> columns(static_cast<std::size_t>(m_Columns.GetItemCount()));
    for (int section = 0; section < m_Columns.GetItemCount(); ++section)
        columns[static_cast<std::size_t>(section)] = m_Columns.GetColumn(section);
    std::string text;
    int rows = 0;
    ISelectionModel const* const selection = m_Grid->GetRowSelectionModel();
    for (int row = -1; rows < s_MostCopied && text.size() < s_MostCopiedBytes && selection->GetNextSelectedItem(row);)
    {
        if (row >= GetRowCount())
            break;
        m_Rows.AppendAsText(static_cast<std::size_t>(row), columns, text);
        ++rows;
    }
    int const selected = std::min(selection->GetSelectedCount(), GetRowCount());
    m_Copied = rows < selected ? "Copied only the first " + Grouped(static_cast<std::uint64_t>(rows)) + " of " +
                                     Grouped(static_cast<std::uint64_t>(selected)) + " selected rows"
                               : "Copied " + Grouped(static_cast<std::uint64_t>(rows)) + (rows == 1 ? " row" : " rows");
    if (rows == 0)
        return;
    IClipboard& clipboard = *GetCurrentSystem()->GetClipboard();
    clipboard.SetText(text);
    ShowState(m_File.GetState());
    Report("copied " + std::to_string(rows) + " of " + std::to_string(selected) +
           " rows: " + MakeDrawable(clipboard.GetText()));
}

std::string CTableView::GetCell(int row, int section)
{
    std::vector<std::string> const& fields = m_Rows.GetFields(static_cast<std::size_t>(row));
    auto const column = static_cast<std::size_t>(m_Columns.GetColumn(section));
    return column < fields.size() ? MakeDrawable(fields[column]) : std::string();
}

}  // namespace table
