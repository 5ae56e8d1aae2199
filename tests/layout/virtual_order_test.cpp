// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/layout/container.h"
#include "vexel/layout/flow_layout.h"
#include "vexel/layout/grid_layout.h"
#include "vexel/layout/layout_flavor.h"
#include "vexel/layout/pane.h"
#include "vexel/layout/resizer.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

TEST(LayoutVirtualOrder, OfDockingLayouts)
{
    using DoubleRef = double& (ILayout::*)(double&, double&) const;
    using IntRef = int& (ILayout::*)(int&, int&) const;
    ExpectOrder(2, &ILayout::IncAlong, &ILayout::IncAcross, &ILayout::GetAlong,
                static_cast<DoubleRef>(&ILayout::GetAlongRef), static_cast<IntRef>(&ILayout::GetAlongRef),
                &ILayout::GetAcross, static_cast<DoubleRef>(&ILayout::GetAcrossRef),
                static_cast<IntRef>(&ILayout::GetAcrossRef), &ILayout::CutRect, &ILayout::MakePoint, &ILayout::MakeRect,
                &ILayout::ConvFont, &ILayout::ConvTextAlign);

    struct SOpen : CLayoutBase
    {
        static void Check() { ExpectOrder(15, &SOpen::ConvFontInt, &SOpen::ConvTextAlignInt); }
    };
    SOpen::Check();
}

TEST(LayoutVirtualOrder, OfFlowsAndGrids)
{
    ExpectOrder(2, &IElementLayout::Update, &IElementLayout::GetSize);
    ExpectOrder(2, &IFlowLayoutItems::GetItemCount, &IFlowLayoutItems::GetItemSize, &IFlowLayoutItems::SetItemRect,
                &IFlowLayoutItems::GetItemGap, &IFlowLayoutItems::GetLineGap, &IFlowLayoutItems::GetTopMargin,
                &IFlowLayoutItems::GetLeftMargin);
    ExpectOrder(2, &IGridLayoutItems::GetColumnCount, &IGridLayoutItems::GetRowCount, &IGridLayoutItems::GetItemSize,
                &IGridLayoutItems::SetItemRect, &IGridLayoutItems::GetColumnGap, &IGridLayoutItems::GetRowGap,
                &IGridLayoutItems::GetTopMargin, &IGridLayoutItems::GetLeftMargin);
}

TEST(LayoutVirtualOrder, OfResizers)
{
    std::size_t const first = Place(&CResizer::ProcessResize);
    ExpectOrder(first + 1, &CProportionalResizer::GetSize, &CProportionalResizer::SetSize);
    using Ex = CProportionalResizerEx;
    ExpectOrder(first + 3, &Ex::SetValidatorSize, static_cast<int (Ex::*)() const>(&Ex::GetValidatorSize),
                &Ex::SetElementSize, static_cast<int (Ex::*)() const>(&Ex::GetElementSize), &Ex::IsProportionalResizing,
                static_cast<int (Ex::*)(CVisualElement*) const>(&Ex::GetValidatorSize),
                static_cast<int (Ex::*)(CVisualElement*) const>(&Ex::GetElementSize));
}

TEST(LayoutVirtualOrder, OfPanesAndContainers)
{
    // Both add theirs where the element's end.
    struct SOpen : CContainer
    {
        static std::size_t GetPlace() { return Place(&SOpen::FitControlPos); }
    };
    ExpectOrder(SOpen::GetPlace(), &CPane::GetActiveColor, &CPane::GetInactiveColor);
}

}  // namespace
