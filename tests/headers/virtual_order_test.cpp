// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/headers/header.h"
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

TEST(HeadersVirtualOrder, OfTheTree)
{
    using Parent = IHeaderContainer* (IHeaderItem::*)();
    using ConstParent = IHeaderContainer const* (IHeaderItem::*)() const;
    using Child = IHeaderItem* (IHeaderItem::*)(int);
    using ConstChild = IHeaderItem const* (IHeaderItem::*)(int) const;
    ExpectOrder(2, static_cast<Parent>(&IHeaderItem::GetParent), static_cast<ConstParent>(&IHeaderItem::GetParent),
                &IHeaderItem::GetChildCount, static_cast<Child>(&IHeaderItem::GetChild),
                static_cast<ConstChild>(&IHeaderItem::GetChild), &IHeaderItem::GetText, &IHeaderItem::GetWidth,
                &IHeaderItem::SetWidth, &IHeaderItem::GetImageIndex, &IHeaderItem::GetTextAlign,
                &IHeaderItem::GetModelIndex, &IHeaderItem::GetSortingDirection, &IHeaderItem::GetDescription,
                &IHeaderItem::Expand, &IHeaderItem::GetExpandState);
}

TEST(HeadersVirtualOrder, OfVisitors)
{
    ExpectOrder(2, &IHeaderVisitor::Visit, &IHeaderVisitor::IsFinished, &FindVisitor::CheckItem);
    ExpectOrder(4, &CPositionProcessor::ProcessSection);
    ExpectOrder(2, &IHeaderItemDrawing::DrawSection);
}

TEST(HeadersVirtualOrder, OfTheVisualisation)
{
    using Look = IHeaderItemVisualisation;
    ExpectOrder(2, &Look::GetVisualisationState, &Look::GetExpandBtnRect, &Look::GetSectionContentRect,
                &Look::DrawSectionBackground, &Look::DrawSectionContent, &Look::DrawExpandButton,
                &Look::DrawSortingMarker, &Look::GetItemState);
}

TEST(HeadersVirtualOrder, OfTheHeader)
{
    using Over = bool (CHeader::*)(CVisualElement*, int, int, DragInfo&);
    using Draw = void (CHeader::*)(IPainter*, IHeaderItem*, rectangle<double> const&, IHeaderItemVisualisation*);
    ExpectOrder(Place(&CScrollableElementEx::FillVertical) + 1, &CHeader::DrawDraggingPointer,
                static_cast<Draw>(&CHeader::DrawSection), &CHeader::SetHeaderTooltip, &CHeader::HandleStartDragging,
                &CHeader::HandleDragFinished, static_cast<Over>(&CHeader::HandleDragOver), &CHeader::HandleDropDone,
                &CHeader::HandleDrawDragItem);
}

TEST(HeadersVirtualOrder, OfTranslators)
{
    ExpectOrder(2, &IIndexTranslator::TranslationIsPresented, &IIndexTranslator::TranslateIndex);
}

}  // namespace
