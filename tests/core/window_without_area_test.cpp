// A window that has no width or no height: its tree waits until it has both.

#include "vexel/core/base_control.h"
#include "vexel/core/visual_element.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

TEST(WindowWithoutArea, AsksForNoFramesAndIsLaidOutAndPaintedOnceItHasOne)
{
    CTestHost host(100, 40);
    CVisualElement strip(host.Root(), {20, 20}, alLeft);
    host.Paint();

    for (size<int> const& extent : {size<int>{0, 40}, size<int>{40, 0}, size<int>{0, 0}})
    {
        host.Resize(extent.width, extent.height);
        host.Paint();
        EXPECT_FALSE(host.IsFramePending()) << extent.width << " x " << extent.height;
        strip.SetWidth(30, false);  // asks for a layout
        host.Paint();
        EXPECT_FALSE(host.IsFramePending()) << extent.width << " x " << extent.height;
        strip.SetWidth(20, false);
    }

    host.Resize(80, 30);
    host.Paint();
    EXPECT_EQ(strip.GetPos(), (rectangle<int>{0, 0, 20, 29}));
    EXPECT_FALSE(host.IsFramePending());
}
