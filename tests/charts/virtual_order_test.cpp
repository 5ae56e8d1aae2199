// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/charts/axis.h"
#include "vexel/charts/categorical_axis.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

TEST(ChartsVirtualOrder, OfUnitConverters)
{
    ExpectOrder(2, &IUnitConverter::ToUnits, &IUnitConverter::FromUnits);
}

TEST(ChartsVirtualOrder, OfAxes)
{
    ExpectOrder(Place(&CScrollableElementEx::FillVertical) + 1, &CAxis::CalcMinHeight, &CAxis::SetUnitConverter,
                &CAxis::DrawBackground, &CAxis::DrawLine, &CAxis::PrepareAttr, &CAxis::GetLabelText);
}

TEST(ChartsVirtualOrder, OfCategoricalAxes)
{
    EXPECT_EQ(Place(&CCategoricalAxis::updateCategoryLabelRect), Place(&CAxis::GetLabelText) + 1);
    auto const draw = &CCategoricalAxis::drawOneCategoryLabel;
    EXPECT_EQ(vexel::test::detail::PlaceOfMember(draw), Place(&CAxis::GetLabelText) + 2);
}

}  // namespace
