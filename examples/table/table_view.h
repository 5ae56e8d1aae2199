#pragma once

#include "background.h"
#include "row_sort.h"
#include "shown_rows.h"
#include "table_file.h"
#include "table_grid.h"

#include "vexel/controls/caption.h"
#include "vexel/scroll/scroll_box.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace table
{

/// A table file in a window: header and grid, and below them what is going on and what is wrong.
///
/// Indexing and sorting run on threads of their own. The GUI thread reads only the rows that it paints or copies.
class CTableView : public subscriber_base_t
{
public:
    /// Fills `parent`, which must outlive the view. An empty path: nothing was named to be shown.
    CTableView(CVisualElement* parent, ISysWindow& window, std::string const& path);
    ~CTableView() override;

    signal_t<std::string const&> m_SigReport;  ///< What has happened, a line each time; for a log.

    void Start();  ///< Begins to index. Call it once the signals are connected.

private:
    void Build(CVisualElement* parent);
    void Report(std::string const& line) { m_SigReport(line); }

    // Indexing
    void Indexed();
    void TakeColumns(CTableFile::SState const& state);
    void ShowState(CTableFile::SState const& state);
    std::string DescribeSorting() const;

    // Sorting
    void SectionClicked(CSimpleHeader*, int section);
    void StartSort(int column);
    void SortRound();
    void ShowOrder();

    // The rest of what the user does
    void FitColumn(CSimpleHeader*, int section);
    void SectionMoved(CSimpleHeader*, int from, int to);
    void SectionResized(CSimpleHeader*, int section, int width);
    void RowsShown(int first, int last);
    void CopySelection();
    std::string GetCell(int row, int section);
    int GetRowCount() const { return m_Grid->GetRowViewModel()->GetCount(); }

    ISysWindow& m_Window;
    CTableFile m_File;
    CShownRows m_Rows{m_File};
    CColumns m_Columns;

    // The tree's
    CScrollBox* m_Box = nullptr;
    CSimpleHeader* m_Header = nullptr;
    CTableGrid* m_Grid = nullptr;
    CCaption* m_Notice = nullptr;    // in the grid's place, when there is nothing to be shown
    CCaption* m_Status = nullptr;    // what is going on
    CCaption* m_Problems = nullptr;  // what is wrong

    std::chrono::steady_clock::time_point m_LastShown;
    bool m_Indexed = false;
    std::string m_Copied;  // what was copied last, for the status line

    std::unique_ptr<CRowSort> m_Sort;
    CColumns::Direction m_SortDirection = CColumns::None;  // when m_Sort is done
    bool m_OrderLimited = false;                           // the memory was too little for more rows
    // Last, as they use the others: threads end before anything else goes.
    std::unique_ptr<CBackground> m_Indexing;
    std::unique_ptr<CBackground> m_Sorting;
};

}  // namespace table
