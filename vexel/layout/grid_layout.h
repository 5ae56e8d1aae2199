#pragma once

#include "vexel/layout/element_layout.h"

namespace vexel
{

/// The cells of a grid. All lengths in pixels, or whatever unit the cells have.
class VEXEL_API IGridLayoutItems
{
public:
    virtual ~IGridLayoutItems();

    virtual int GetColumnCount() = 0;
    virtual int GetRowCount() = 0;
    virtual size<int> GetItemSize(int row, int column) = 0;  ///< Asked once for each column of the grid.
    /// Takes the cell's place. Top and bottom may be changed: the next row follows the bottom, and where both are equal
    /// it takes the same place.
    virtual void SetItemRect(int row, int column, rectangle<int>& rect) = 0;
    virtual int GetColumnGap(int column) = 0;  ///< Room to the right of the column.
    virtual int GetRowGap(int row) = 0;        ///< Room below the row.
    virtual int GetTopMargin() = 0;
    virtual int GetLeftMargin() = 0;
};

/// Places cells in columns as wide, and rows as high, as their largest cells.
class VEXEL_API CGridLayout : public IElementLayout
{
public:
    CGridLayout() = default;

    void SetItems(IGridLayoutItems* items) { m_Items = items; }  ///< Not owned; null: nothing to place.

    void Update() override;
    /// Where the next column and the next row would start; the row as the last column left it.
    size<int> GetSize() const override { return m_Size; }

private:
    size<int> m_Size;
    IGridLayoutItems* m_Items = nullptr;
};

}  // namespace vexel
