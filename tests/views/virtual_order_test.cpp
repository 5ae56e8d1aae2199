// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/views/continuous_item_view_model.h"
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

}  // namespace
