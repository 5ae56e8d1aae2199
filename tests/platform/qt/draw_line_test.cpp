#include "tests/platform/contract_bench.h"

#include "vexel/core/draw_line.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vexelbase::tests
{

namespace
{

using DrawLineOnQt = CContractTest;

// Two pictures get the same lines, one in bulk and the other pixel by pixel.
TEST_F(DrawLineOnQt, EveryPixelIsThatOfTheContour)
{
    constexpr int width = 150, height = 120;
    vexel::test::CTestRandom random;
    vexel_ptr<IRasterPicture> const pictures[2] = {System().CreateRasterPicture({width, height}),
                                                   System().CreateRasterPicture({width, height})};
    for (auto const& picture : pictures)
        picture->GetPainter()->BeginPaint(IPainter::ssPaint);
    for (int i = 0; i < 1000; ++i)
    {
        pen ink;
        ink.color = _color(static_cast<std::uint32_t>(random.Next()));
        ink.width = random.Int(1, 12);
        ink.style = random.Chance(70) ? 1 : random.Int(0, 6);
        point<double> const from{random.Real(-20, width + 20), random.Real(-20, height + 20)};
        double const length = random.Real(0, 200), angle = random.Real(0, 6.283185307179586);
        point<double> to{from.x + length * std::cos(angle), from.y + length * std::sin(angle)};
        if (random.Chance(20))
            to.y = from.y;
        else if (random.Chance(20))
            to.x = from.x;
        auto const cap1 = static_cast<vexel::CapStyle>(random.Int(0, 6));
        auto const cap2 = static_cast<vexel::CapStyle>(random.Int(0, 6));
        for (int k = 0; k < 2; ++k)
        {
            IPainter* const painter = pictures[k]->GetPainter();
            painter->ResetClip();
            if (i % 4 == 0)
                painter->SetClipRect(30, 20, 100, 90, false);
            painter->SetPen(ink);
            (k == 0 ? vexel::DrawLine : vexel::DrawLineByContour)(painter, from, to, cap1, cap2);
        }
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                ASSERT_EQ(pictures[0]->GetPixels().Row(y)[x], pictures[1]->GetPixels().Row(y)[x])
                    << "line " << i << " at " << x << ", " << y;
    }
    for (auto const& picture : pictures)
        picture->GetPainter()->EndPaint();
}

}  // namespace

}  // namespace vexelbase::tests
