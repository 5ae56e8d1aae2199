#include "vexel/platform/qt/detail/coverage.h"

#include "vexel/platform/pixel_buffer.h"

#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vexelbase::qt
{

namespace
{

constexpr std::uint32_t DivideBy255(std::uint32_t value)  // rounded, exact up to 255 * 255
{
    std::uint32_t const v = value + 128;
    return (v + (v >> 8)) >> 8;
}

std::uint32_t BlendPixel(std::uint32_t old, std::uint32_t pixel, std::uint32_t cover)
{
    std::uint32_t const rest = 255 - cover;
    std::uint32_t result = 0xFF000000u;
    for (int shift = 0; shift < 24; shift += 8)
    {
        std::uint32_t const a = pixel >> shift & 255u;
        std::uint32_t const b = old >> shift & 255u;
        result |= DivideBy255(a * cover + b * rest) << shift;
    }
    return result;
}

void BlendRow(std::uint32_t* row, std::uint8_t const* cover, int count, std::uint32_t pixel)
{
    for (int i = 0; i < count; ++i)
    {
        if (cover[i] == 255)
            row[i] = pixel;
        else if (cover[i] != 0)
            row[i] = BlendPixel(row[i], pixel, cover[i]);
    }
}

#if defined(__SSE2__)

// The two pixels in `old` (as eight 16-bit channels) blended with `ink`, by the coverage of each channel.
inline __m128i BlendChannels(__m128i old, __m128i ink, __m128i cover)
{
    __m128i const rest = _mm_sub_epi16(_mm_set1_epi16(255), cover);
    __m128i const sum = _mm_add_epi16(_mm_add_epi16(_mm_mullo_epi16(ink, cover), _mm_mullo_epi16(old, rest)),
                                      _mm_set1_epi16(128));
    return _mm_srli_epi16(_mm_add_epi16(sum, _mm_srli_epi16(sum, 8)), 8);
}

inline void BlendFour(std::uint32_t* row, std::uint8_t const* cover, __m128i ink, std::uint32_t pixel)
{
    std::uint32_t four = 0;
    std::memcpy(&four, cover, sizeof four);
    if (four == 0)
        return;
    auto* const target = reinterpret_cast<__m128i*>(row);
    if (four == 0xFFFFFFFFu)
    {
        _mm_storeu_si128(target, _mm_set1_epi32(static_cast<int>(pixel)));
        return;
    }
    __m128i const zero = _mm_setzero_si128();
    __m128i c = _mm_cvtsi32_si128(static_cast<int>(four));
    c = _mm_unpacklo_epi8(c, c);
    c = _mm_unpacklo_epi16(c, c);  // each coverage four times, once a channel
    __m128i const old = _mm_loadu_si128(target);
    __m128i const low = BlendChannels(_mm_unpacklo_epi8(old, zero), ink, _mm_unpacklo_epi8(c, zero));
    __m128i const high = BlendChannels(_mm_unpackhi_epi8(old, zero), ink, _mm_unpackhi_epi8(c, zero));
    _mm_storeu_si128(target, _mm_packus_epi16(low, high));
}

#endif

} // namespace

SCoverage TurnCoverage(SCoverage const& upright, ETurn turn, std::vector<std::uint8_t>& bits)
{
    rectangle<int> const place = TurnRectangle({upright.left, upright.top, upright.left + upright.width,
                                                upright.top + upright.height},
                                               turn);
    SCoverage result;
    result.left = place.left;
    result.top = place.top;
    result.width = place.Width();
    result.height = place.Height();
    result.stride = SCoverage::StrideOf(result.width);
    bits.assign(static_cast<std::size_t>(result.stride) * static_cast<std::size_t>(result.height), 0);
    for (int v = 0; v < upright.height; ++v)
    {
        for (int u = 0; u < upright.width; ++u)
        {
            int column = u;
            int row = v;
            switch (turn)
            {
            case ETurn::None:
                break;
            case ETurn::Quarter:
                column = v;
                row = upright.width - 1 - u;
                break;
            case ETurn::Half:
                column = upright.width - 1 - u;
                row = upright.height - 1 - v;
                break;
            case ETurn::ThreeQuarters:
                column = upright.height - 1 - v;
                row = u;
                break;
            }
            bits[static_cast<std::size_t>(row) * static_cast<std::size_t>(result.stride) +
                 static_cast<std::size_t>(column)] =
                upright.bits[static_cast<std::ptrdiff_t>(v) * upright.stride + u];
        }
    }
    result.bits = bits.data();
    return result;
}

rectangle<int> TurnRectangle(rectangle<int> const& r, ETurn turn)
{
    switch (turn)
    {
    case ETurn::Quarter:
        return {r.top, -r.right, r.bottom, -r.left};
    case ETurn::Half:
        return {-r.right, -r.bottom, -r.left, -r.top};
    case ETurn::ThreeQuarters:
        return {-r.bottom, r.left, -r.top, r.right};
    case ETurn::None:
        break;
    }
    return r;
}

void BlendCoverage(CPixelBuffer& pixels, rectangle<int> const& clip, int x, int y, SCoverage const& coverage,
                   std::uint32_t pixel)
{
    rectangle<int> const place{x + coverage.left, y + coverage.top, x + coverage.left + coverage.width,
                               y + coverage.top + coverage.height};
    rectangle<int> part = place;
    part.Intersect(clip);
    if (part.IsEmpty())
        return;

    std::uint8_t const* cover = coverage.bits + static_cast<std::ptrdiff_t>(part.top - place.top) * coverage.stride +
                                (part.left - place.left);
#if defined(__SSE2__)
    // Whole groups of four: they may reach over the glyph, where the coverage is 0, but not over the clip.
    bool const whole = part.left == place.left && part.right == place.right &&
                       place.left + coverage.stride <= clip.right;
    if (whole)
    {
        __m128i const ink = _mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(pixel)), _mm_setzero_si128());
        for (int row = part.top; row < part.bottom; ++row, cover += coverage.stride)
        {
            std::uint32_t* const target = pixels.Row(row) + part.left;
            for (int i = 0; i < coverage.stride; i += SCoverage::StrideStep)
                BlendFour(target + i, cover + i, ink, pixel);
        }
        return;
    }
#endif
    for (int row = part.top; row < part.bottom; ++row, cover += coverage.stride)
        BlendRow(pixels.Row(row) + part.left, cover, part.Width(), pixel);
}

void BlendPremultiplied(CPixelBuffer& pixels, rectangle<int> const& clip, rectangle<int> const& place,
                        std::uint32_t const* source)
{
    rectangle<int> part = place;
    part.Intersect(clip);
    if (part.IsEmpty())
        return;
    for (int y = part.top; y < part.bottom; ++y)
    {
        std::uint32_t const* from = source + static_cast<std::ptrdiff_t>(y - place.top) * place.Width() +
                                    (part.left - place.left);
        std::uint32_t* const row = pixels.Row(y);
        for (int x = part.left; x < part.right; ++x, ++from)
        {
            std::uint32_t const alpha = *from >> 24;
            if (alpha == 0)
                continue;
            std::uint32_t result = 0xFF000000u;
            for (int shift = 0; shift < 24; shift += 8)
            {
                std::uint32_t const value = (*from >> shift & 255u) + DivideBy255((row[x] >> shift & 255u) * (255 - alpha));
                result |= (value > 255 ? 255 : value) << shift;
            }
            row[x] = result;
        }
    }
}

} // namespace vexelbase::qt
