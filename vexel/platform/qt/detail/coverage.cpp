#include "vexel/platform/qt/detail/coverage.h"

#include "vexel/platform/pixel_buffer.h"

#include <cstring>

#if defined(__SSE2__)
#include <immintrin.h>
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

// Rows of a glyph that lies wholly within the clip, groups of pixels at a time. A group may reach over the glyph, where
// the coverage is 0 and leaves the pixels as they are. Red and blue are reckoned in one word, green and alpha in another.
struct SRows
{
    std::uint32_t* target;
    std::ptrdiff_t targetStep;
    std::uint8_t const* cover;
    int coverStep;
    int width;
    int count;
    std::uint32_t pixel;
};

void BlendRowsByFour(SRows const& rows)
{
    __m128i const mask = _mm_set1_epi32(0x00FF00FF);
    __m128i const half = _mm_set1_epi16(128);
    __m128i const full = _mm_set1_epi16(255);
    __m128i const ink = _mm_set1_epi32(static_cast<int>(rows.pixel));
    __m128i const inkLow = _mm_and_si128(ink, mask);
    __m128i const inkHigh = _mm_and_si128(_mm_srli_epi16(ink, 8), mask);
    std::uint32_t* target = rows.target;
    std::uint8_t const* cover = rows.cover;
    for (int row = rows.count; row > 0; --row, target += rows.targetStep, cover += rows.coverStep)
    {
        for (int i = 0; i < rows.width; i += 4)
        {
            int four = 0;
            std::memcpy(&four, cover + i, sizeof four);
            __m128i c = _mm_unpacklo_epi8(_mm_cvtsi32_si128(four), _mm_setzero_si128());
            c = _mm_unpacklo_epi16(c, c);  // each coverage twice, once a channel
            __m128i const rest = _mm_sub_epi16(full, c);
            auto* const place = reinterpret_cast<__m128i*>(target + i);
            __m128i const old = _mm_loadu_si128(place);
            __m128i low = _mm_add_epi16(_mm_add_epi16(_mm_mullo_epi16(inkLow, c), half),
                                        _mm_mullo_epi16(_mm_and_si128(old, mask), rest));
            __m128i high = _mm_add_epi16(_mm_add_epi16(_mm_mullo_epi16(inkHigh, c), half),
                                         _mm_mullo_epi16(_mm_srli_epi16(old, 8), rest));
            low = _mm_srli_epi16(_mm_add_epi16(low, _mm_srli_epi16(low, 8)), 8);
            high = _mm_andnot_si128(mask, _mm_add_epi16(high, _mm_srli_epi16(high, 8)));
            _mm_storeu_si128(place, _mm_or_si128(low, high));
        }
    }
}

[[gnu::target("avx2")]] void BlendRowsByEight(SRows const& rows)
{
    __m256i const mask = _mm256_set1_epi32(0x00FF00FF);
    __m256i const half = _mm256_set1_epi16(128);
    __m256i const full = _mm256_set1_epi16(255);
    __m256i const ink = _mm256_set1_epi32(static_cast<int>(rows.pixel));
    __m256i const inkLow = _mm256_and_si256(ink, mask);
    __m256i const inkHigh = _mm256_and_si256(_mm256_srli_epi16(ink, 8), mask);
    std::uint32_t* target = rows.target;
    std::uint8_t const* cover = rows.cover;
    for (int row = rows.count; row > 0; --row, target += rows.targetStep, cover += rows.coverStep)
    {
        for (int i = 0; i < rows.width; i += 8)
        {
            __m256i c = _mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<__m128i const*>(cover + i)));
            c = _mm256_or_si256(c, _mm256_slli_epi32(c, 16));
            __m256i const rest = _mm256_sub_epi16(full, c);
            auto* const place = reinterpret_cast<__m256i*>(target + i);
            __m256i const old = _mm256_loadu_si256(place);
            __m256i low = _mm256_add_epi16(_mm256_add_epi16(_mm256_mullo_epi16(inkLow, c), half),
                                           _mm256_mullo_epi16(_mm256_and_si256(old, mask), rest));
            __m256i high = _mm256_add_epi16(_mm256_add_epi16(_mm256_mullo_epi16(inkHigh, c), half),
                                            _mm256_mullo_epi16(_mm256_srli_epi16(old, 8), rest));
            low = _mm256_srli_epi16(_mm256_add_epi16(low, _mm256_srli_epi16(low, 8)), 8);
            high = _mm256_andnot_si256(mask, _mm256_add_epi16(high, _mm256_srli_epi16(high, 8)));
            _mm256_storeu_si256(place, _mm256_or_si256(low, high));
        }
    }
}

#endif

}  // namespace

SCoverage TurnCoverage(SCoverage const& upright, ETurn turn, std::vector<std::uint8_t>& bits)
{
    rectangle<int> const place =
        TurnRectangle({upright.left, upright.top, upright.left + upright.width, upright.top + upright.height}, turn);
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
                 static_cast<std::size_t>(column)] = upright.bits[static_cast<std::ptrdiff_t>(v) * upright.stride + u];
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

    std::uint8_t const* cover =
        coverage.bits + static_cast<std::ptrdiff_t>(part.top - place.top) * coverage.stride + (part.left - place.left);
#if defined(__SSE2__)
    static bool const byEight = __builtin_cpu_supports("avx2");
    int const group = byEight ? 8 : 4;
    int const reach = (coverage.width + group - 1) / group * group;
    if (part.left == place.left && part.right == place.right && place.left + reach <= clip.right)
    {
        SRows const rows{pixels.Row(part.top) + part.left,
                         pixels.GetStride(),
                         cover,
                         coverage.stride,
                         coverage.width,
                         part.Height(),
                         pixel};
        if (byEight)
            BlendRowsByEight(rows);
        else
            BlendRowsByFour(rows);
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
        std::uint32_t const* from =
            source + static_cast<std::ptrdiff_t>(y - place.top) * place.Width() + (part.left - place.left);
        std::uint32_t* const row = pixels.Row(y);
        for (int x = part.left; x < part.right; ++x, ++from)
        {
            std::uint32_t const alpha = *from >> 24;
            if (alpha == 0)
                continue;
            std::uint32_t result = 0xFF000000u;
            for (int shift = 0; shift < 24; shift += 8)
            {
                std::uint32_t const value =
                    (*from >> shift & 255u) + DivideBy255((row[x] >> shift & 255u) * (255 - alpha));
                result |= (value > 255 ? 255 : value) << shift;
            }
            row[x] = result;
        }
    }
}

}  // namespace vexelbase::qt
