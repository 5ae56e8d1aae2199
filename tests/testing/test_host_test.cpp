#include "tests/testing/lamp.h"

#include <gmock/gmock.h>

namespace vexel
{
namespace
{

using namespace vexel::test;

TEST(TestHost, AClickInTheBulbLightsItOnceAndRepaintsOnlyTheLamp)
{
    CTestHost host(100, 40);
    CLamp lamp(host.Root(), size<int>{20, 20}, alLeft);  // docked: (0, 0, 20, 39), bulb (0, 9, 20, 29)
    CLamp other(host.Root(), size<int>{20, 20}, alRight);
    CSignalLog log(lamp.m_SigLit, "lit");
    host.Paint();

    host.Mouse().Click(lamp, 10, 10);

    EXPECT_EQ(log.Text(), "lit(true)");
    PaintLog const paint = host.Paint();
    EXPECT_EQ(paint.Elements(), "CLamp");
    EXPECT_THAT(paint, Draws("SetBrush yellow").Then("RoundRect 0 9 20 29 20 20"));
}

} // namespace
} // namespace vexel
