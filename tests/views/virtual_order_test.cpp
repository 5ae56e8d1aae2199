// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/grid_viewer.h"
#include "vexel/views/item_scroll_model.h"
#include "vexel/views/selection_model.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

TEST(ViewsVirtualOrder, OfItemViewModels)
{
    ExpectOrder(2, &IDirtyItemSet::AddDirtyItems, &IDirtyItemSet::GetItemType, &IDirtyItemSet::OnEndDraw,
                &IBaseItemsModel::UpdateModelState, &IBaseItemViewModel::SetCount, &IBaseItemViewModel::GetCount,
                &IBaseItemViewModel::SetDefaultItemSize, &IBaseItemViewModel::GetDefaultItemSize,
                &IBaseItemViewModel::SetItemSize, &IBaseItemViewModel::GetItemSize, &IBaseItemViewModel::SetViewSize,
                &IBaseItemViewModel::GetViewSize);
    ExpectOrder(14, &IDiscreteItemViewModel::SetStartItem, &IDiscreteItemViewModel::GetStartItem);
    ExpectOrder(14, &IContinuousItemViewModel::SetOffset, &IContinuousItemViewModel::GetOffset,
                &IContinuousItemViewModel::GetFullItemsSize);

    struct SOpen : CSimpleContinuousItemViewModel
    {
        static void Check() { ExpectOrder(17, &SOpen::SaveItemWidth, &SOpen::SaveViewWidth, &SOpen::UpdateFullWidth); }
    };
    SOpen::Check();
}

TEST(ViewsVirtualOrder, OfSelectionModels)
{
    ExpectOrder(6, &ISelectionModel::SetCurrent, &ISelectionModel::GetCurrent, &ISelectionModel::SelectItem,
                &ISelectionModel::SetSelectionRange, &ISelectionModel::IsItemSelected, &ISelectionModel::ClearSelection,
                &ISelectionModel::GetSelectedCount, &ISelectionModel::GetNextSelectedItem);

    struct SOpen : CSelectionModelBase
    {
        static void Check()
        {
            ExpectOrder(14, &SOpen::IsSelectionEmpty, &SOpen::ClearSelectionImp, &SOpen::SetItemSelectionImp,
                        &SOpen::SetItemsSelectionImp);
        }
    };
    SOpen::Check();
}

TEST(ViewsVirtualOrder, OfEventHandlers)
{
    ExpectOrder(2, &CEventHandler::ProcessMouseMove, &CEventHandler::ProcessButtonDown, &CEventHandler::ProcessButtonUp,
                &CEventHandler::ProcessClick, &CEventHandler::ProcessDoubleClick, &CEventHandler::ProcessMouseHover,
                &CEventHandler::ProcessMouseLeave, &CEventHandler::ProcessKeyDown, &CEventHandler::ProcessKeyUp,
                &CEventHandler::ProcessChar, &CEventHandler::ProcessOnTooltip, &CEventHandler::ProcessOnTooltipTrack,
                &CEventHandler::ProcessContextMenu, &CEventHandler::ProcessDragOver, &CEventHandler::ProcessDragDrop,
                &CEventHandler::ProcessGetFocus, &CEventHandler::ProcessLostFocus, &CEventHandler::ProcessDraw,
                &CEventHandler::ProcessResize, &CEventHandler::ProcessScroll);
    ExpectOrder(22, &CEventHandlerBase::GetItemViewModel, &CEventHandlerBase::GetItemSelectionModel,
                &CEventHandlerBase::GetItemIndex);
}

TEST(ViewsVirtualOrder, OfPainters)
{
    ExpectOrder(2, &IItemPainter::DrawItem, &IItemPainter::DrawEmptyArea);
    ExpectOrder(4, &IRowPainter::DrawRow, &IRowPainter::DrawRowEmptyArea);
    ExpectOrder(4, &IColumnPainter::DrawColumn, &IColumnPainter::DrawColumnEmptyArea);
    ExpectOrder(2, &ICellPainter::DrawCell);
}

TEST(ViewsVirtualOrder, OfViewers)
{
    using Rows = CRowViewerBase<IDiscreteItemViewModel>;
    using Grid = CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>;
    std::size_t const first = Place(&CCentralPart::FillCoordInfo) + 1;
    ExpectOrder(first, &CViewerBase::ProcessEndDraw);
    ExpectOrder(first + 1, &Rows::CalculateDefaultRowHeight, &Rows::GetRowMargin, &Rows::DrawRow,
                &Rows::DrawRowEmptyArea, &Rows::RowViewModelChanged, &Rows::RowSelectionModelChanged,
                &Rows::SelectionTypeChanged, &Rows::CurrentRowChanged);
    std::size_t const columns = Place(&Grid::DrawColumn);
    EXPECT_GT(columns, Place(&Rows::CurrentRowChanged));
    ExpectOrder(columns, &Grid::DrawColumn, &Grid::DrawColumnEmptyArea, &Grid::ColumnViewModelChanged,
                &Grid::ColumnSelectionModelChanged, &Grid::CurrentColumnChanged);
}

}  // namespace
