#include "vexel/antialiasing/detail/shares.h"

#include "vexel/platform/convert.h"

#include <cmath>

namespace antialiasing::detail
{

namespace
{

double Measure(double square, unsigned long law)
{
    switch (law)
    {
    case 0:
        return std::pow(square, 0.75);
    case 1:
        return std::sqrt(square);
    default:
        return square;
    }
}

}  // namespace

SShares ComputeShares(double x, double y, unsigned long mode, double alpha)
{
    SShares shares;
    shares.left = vexelbase::ToInt(std::floor(x));
    shares.right = vexelbase::ToInt(std::ceil(x));
    shares.top = vexelbase::ToInt(std::floor(y));
    shares.bottom = vexelbase::ToInt(std::ceil(y));

    auto const square = [&](int column, int row) { return (x - column) * (x - column) + (y - row) * (y - row); };
    double const squares[4] = {square(shares.left, shares.top), square(shares.left, shares.bottom),
                               square(shares.right, shares.top), square(shares.right, shares.bottom)};
    if (squares[0] + squares[1] + squares[2] + squares[3] == 0)
    {
        shares.onPixel = true;
        return shares;
    }

    unsigned long const law = mode & 3u;
    if (law == 3)
    {
        shares.stamped = false;
        return shares;
    }
    double measures[4];
    for (int i = 0; i < 4; ++i)
        measures[i] = Measure(squares[i], law);
    double const total = 1 / measures[0] + 1 / measures[1] + 1 / measures[2] + 1 / measures[3];
    double const unit = alpha / total;
    for (std::size_t i = 0; i < 4; ++i)
        shares.weight[i] = unit / measures[i];
    return shares;
}

}  // namespace antialiasing::detail
