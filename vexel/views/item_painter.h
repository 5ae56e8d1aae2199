#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/views/dirty_item_set.h"

namespace vexel
{

/// The state of an item that is drawn: a set of bits.
enum ItemState : int
{
    isSelected = 1,
    isCurrent = 2
};

/// Draws the items that a handler finds in view. Rectangles: the viewer's pixels, right and bottom included.
/// `skip`: so many pixels of the item lie before the view; the rectangle begins at the first that shows.
/// `dirty`: only dirtyOther says that the item stands on the screen already and need not be drawn.
class VEXEL_API IItemPainter
{
public:
    virtual ~IItemPainter();
    virtual void DrawItem(IPainter* painter, int item, int skip, int state, rectangle<double> const& rect,
                          IDirtyItemSet::DirtyType dirty) = 0;
    virtual void DrawEmptyArea(IPainter* painter, rectangle<double> const& rect) = 0;  ///< Behind the last item.
};

/// Draws rows, so that a class may draw rows and columns.
class VEXEL_API IRowPainter : public IItemPainter
{
public:
    virtual void DrawRow(IPainter* painter, int row, int skip, int state, rectangle<double> const& rect,
                         IDirtyItemSet::DirtyType dirty) = 0;
    virtual void DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect) = 0;

    void DrawItem(IPainter* painter, int item, int skip, int state, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType dirty) override
    {
        DrawRow(painter, item, skip, state, rect, dirty);
    }
    void DrawEmptyArea(IPainter* painter, rectangle<double> const& rect) override { DrawRowEmptyArea(painter, rect); }
};

/// Draws columns.
class VEXEL_API IColumnPainter : public IItemPainter
{
public:
    virtual void DrawColumn(IPainter* painter, int column, int skip, int state, rectangle<double> const& rect,
                            IDirtyItemSet::DirtyType dirty) = 0;
    virtual void DrawColumnEmptyArea(IPainter* painter, rectangle<double> const& rect) = 0;

    void DrawItem(IPainter* painter, int item, int skip, int state, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType dirty) override
    {
        DrawColumn(painter, item, skip, state, rect, dirty);
    }
    void DrawEmptyArea(IPainter* painter, rectangle<double> const& rect) override
    {
        DrawColumnEmptyArea(painter, rect);
    }
};

/// Draws the cells of a grid.
class VEXEL_API ICellPainter
{
public:
    virtual ~ICellPainter();
    virtual void DrawCell(IPainter* painter, int row, int rowSkip, int column, int columnSkip, int state,
                          rectangle<double> const& rect, IDirtyItemSet::DirtyType dirty) = 0;
};

}  // namespace vexel
