// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/headers/simple_header_model.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

TEST(HeadersVirtualOrder, OfModels)
{
    ExpectOrder(2, &IItemsModel::GetItemCount, &IItemsModel::GetItemCaption, &IItemsModelEx::GetItemImageIndex,
                &IItemsModelEx::GetItemTextAlign, &ISimpleHeaderModel::GetItemDescr, &ISimpleHeaderModel::GetItemWidth,
                &ISimpleHeaderModel::GetSortingDirection, &ISimpleHeaderModel::TranslateIndex,
                &ISimpleHeaderModel::ConnectHeader, &ISimpleHeaderModel::DisconnectHeader);
}

TEST(HeadersVirtualOrder, OfTranslators)
{
    ExpectOrder(2, &IIndexTranslator::TranslationIsPresented, &IIndexTranslator::TranslateIndex);
}

}  // namespace
