// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/headers/simple_header.h"
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

TEST(HeadersVirtualOrder, OfTheSimpleHeader)
{
    // Whoever overrides an operation of a second base gets a place of its own.
    using Over = bool (CSimpleHeader::*)(CVisualElement*, int, int, DragInfo&);
    using OverOwn = bool (CSimpleHeader::*)(CVisualElement*);
    ExpectOrder(Place(&CScrollableElementEx::FillVertical) + 1, &CSimpleHeader::DrawDraggingPointer,
                &CSimpleHeader::HandleStartDragging, &CSimpleHeader::HandleDragFinished,
                &CSimpleHeader::HandleDrawDragItem, static_cast<Over>(&CSimpleHeader::HandleDragOver),
                &CSimpleHeader::HandleDropDone, &CSimpleHeader::DrawSectionRect, &CSimpleHeader::DrawEmptyArea,
                static_cast<OverOwn>(&CSimpleHeader::HandleDragOver));
}

TEST(HeadersVirtualOrder, OfTranslators)
{
    ExpectOrder(2, &IIndexTranslator::TranslationIsPresented, &IIndexTranslator::TranslateIndex);
}

}  // namespace
