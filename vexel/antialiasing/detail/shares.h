#pragma once

#include <array>

namespace antialiasing::detail
{

/// How a sample spreads over the pixels around it.
struct SShares
{
    int left = 0;  ///< The columns and rows around; the same ones where the coordinate is a whole number.
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool onPixel = false;          ///< The sample lies on the pixel (left, top), which gets all of it.
    bool stamped = true;           ///< False where the law stamps nothing; then there are no weights.
    std::array<double, 4> weight;  ///< Of (left, top), (left, bottom), (right, top), (right, bottom), in this order.
};

/// The law of weights. A pixel's share falls with a power of its distance, by the low two bits of `mode`: 0 the power 1.5,
/// 1 the distance itself, 2 its square, 3 nothing is stamped. The shares sum up to `alpha`, but for a sample on a pixel,
/// which counts fully. Whatever else finds these weights must agree with this one to the last bit.
SShares ComputeShares(double x, double y, unsigned long mode, double alpha);

}  // namespace antialiasing::detail
