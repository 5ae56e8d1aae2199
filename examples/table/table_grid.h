#pragma once

#include "vexel/headers/simple_header.h"
#include "vexel/views/grid_viewer.h"

#include <functional>
#include <string>
#include <vector>

namespace table
{

using namespace vexel;

/// The header's sections: captions by column of the file, and which of them the rows are sorted by. Their order is kept by
/// the base.
class CColumns : public CSimpleHeaderModel
{
public:
    /// Further columns than there are captions have their number.
    void SetColumns(std::vector<std::string> captions, int count);
    int GetColumn(int section) const { return VisibleIndex2ModelIndex(section); }  ///< Of the file.
    std::string const& GetName(int column) const { return m_Captions[static_cast<std::size_t>(column)]; }

    enum Direction
    {
        None,
        Ascending,
        Descending
    };
    void SetSorted(int column, Direction direction);
    int GetSortedColumn() const { return m_SortedColumn; }
    Direction GetDirection() const { return m_Direction; }

public:  // From IItemsModelEx and ISimpleHeaderModel: by section
    int GetItemCount() const override { return static_cast<int>(m_Captions.size()); }
    std::string GetItemCaption(int section) const override { return GetName(GetColumn(section)); }
    std::string GetItemDescr(int section) const override { return GetItemCaption(section); }
    int GetItemImageIndex(int) const override { return -1; }
    int GetItemTextAlign(int) const override { return IPainter::AlignLeft | IPainter::AlignVCenter; }
    int GetItemWidth(int) const override { return 100; }  // the view model knows better
    int GetSortingDirection(int section) const override
    {
        return GetColumn(section) == m_SortedColumn ? m_Direction : None;
    }

private:
    std::vector<std::string> m_Captions;
    int m_SortedColumn = -1;
    Direction m_Direction = None;
};

/// The grid. It asks for the text of a cell when it paints that cell; numbers stand at the right.
class CTableGrid : public CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>
{
public:
    using Text = std::function<std::string(int row, int section)>;

    CTableGrid(CVisualElement* parent, size<int> const& extent, Alignment alignment, Text text);

    signal_t<int, int> m_SigShown;  ///< The first and the last row that were painted; after each paint of other ones.

    signal_t<> m_SigCopy;  ///< The user wants the selected rows in the clipboard.

    void ShowAnew();  ///< All cells have other texts now.
    /// The width that a column needs for a caption and its cells in these rows, last one included.
    int MeasureColumn(int section, std::string const& caption, int firstRow, int lastRow) const;

    int GetRowMargin() const override { return 6; }
    bool IsCopyToClipboardEnabled() const override { return true; }
    bool HandleCopyToClipboard() const override
    {
        m_SigCopy();
        return true;
    }
    void ProcessEndDraw() override;

protected:
    void DrawCell(IPainter* painter, int row, int rowSkip, int column, int columnSkip, int state,
                  rectangle<double> const& rect, IDirtyItemSet::DirtyType dirty) override;

private:
    Text const m_Text;
    range<int> m_Shown{-1, -1};
};

}  // namespace table
