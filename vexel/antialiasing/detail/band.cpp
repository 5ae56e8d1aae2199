#include "vexel/antialiasing/detail/band.h"

#include "vexel/antialiasing/detail/blend.h"
#include "vexel/antialiasing/detail/shares.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/pixel_editor.h"

#include <algorithm>
#include <cmath>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace antialiasing::detail
{

namespace
{

constexpr int FewStrips = 64;     // put on the surface at a time, at least
constexpr int FetchedAhead = 12;  // strips whose pixels come into the caches while the ones before are blended
constexpr double OffGrid = 0.36;  // samples are set off the line by up to a quarter of a pixel both ways
constexpr double Drift = 0.0625;  // by which the walk may get away from the line through rounding

// What a pixel 0xFFRRGGBB becomes.
std::uint32_t Blend(std::uint16_t const* cell, std::uint32_t pixel)
{
    CColorInfo const sums{cell[2], cell[1], cell[0], cell[3], 0};
    unsigned long const alpha = sums.m_Alpha;
    unsigned long colour = 0;
    if (alpha > 254)
        colour = Compose(sums.m_Red * 255 / alpha, sums.m_Green * 255 / alpha, sums.m_Blue * 255 / alpha);
    else
        colour = detail::Blend(sums, Compose(Blue(pixel), Green(pixel), Red(pixel)));
    return 0xFF000000u | static_cast<std::uint32_t>(Red(colour) << 16 | Green(colour) << 8 | Blue(colour));
}

#if defined(__SSE2__)

__m128i Rest(__m128i sums)  // 255 less the coverage, in every channel
{
    __m128i const cover = _mm_shufflehi_epi16(_mm_shufflelo_epi16(sums, 0xFF), 0xFF);
    return _mm_sub_epi16(_mm_set1_epi16(255), cover);
}

// Pixels of two cells, none of which is solid: 16 bits a channel. The product divided by 255, rounded down.
__m128i BlendTwo(__m128i sums, __m128i pixels)
{
    __m128i const product = _mm_mullo_epi16(pixels, Rest(sums));
    __m128i const part = _mm_srli_epi16(_mm_mulhi_epu16(product, _mm_set1_epi16(static_cast<short>(0x8081))), 7);
    return _mm_add_epi16(part, sums);
}

#endif

}  // namespace

// Puts strips on the surface.
class CBand::CEditor : public vexelbase::IPixelEditor
{
public:
    explicit CEditor(CBand& band) : m_Band(band) {}

    void Edit(vexelbase::SPixelArea const& part) override
    {
        vexelbase::rectangle<int> const& area = part.area;
        if (m_Band.m_Steep)
        {
            for (int y = area.top; y < area.bottom; ++y)
            {
                std::uint32_t* const base = part.At(area.left, y) - area.left;
                if (y + FetchedAhead < area.bottom)
                    FetchStrip(y + FetchedAhead, area.left, area.right, base + FetchedAhead * part.stride, 1);
                EditStrip(y, area.left, area.right, base, 1);
            }
        }
        else
        {
            for (int x = area.left; x < area.right; ++x)
            {
                std::uint32_t* const base = part.At(x, area.top) - area.top * part.stride;
                if (x + FetchedAhead < area.right)
                    FetchStrip(x + FetchedAhead, area.top, area.bottom, base + FetchedAhead, part.stride);
                EditStrip(x, area.top, area.bottom, base, part.stride);
            }
        }
    }

private:
    // The pixels in the middle of a strip, where most of it is.
    void FetchStrip(int along, int low, int high, std::uint32_t* base, std::ptrdiff_t step)
    {
        int const middle = m_Band.FirstAcross(along) + m_Band.m_Width / 2;
        for (int across = std::max(middle - 1, low); across <= std::min(middle + 1, high - 1); ++across)
            __builtin_prefetch(base + across * step, 1);
    }
    // Across from `low` to below `high`; `base` is where the pixel of across 0 would be.
    void EditStrip(int along, int low, int high, std::uint32_t* base, std::ptrdiff_t step)
    {
        int const origin = m_Band.FirstAcross(along);
        low = std::max(low, origin);
        high = std::min(high, origin + m_Band.m_Width);
        Cell const* cell = m_Band.CellAt(along, low);
        std::uint32_t* pixel = base + low * step;
        int i = low;
#if defined(__SSE2__)
        __m128i const zero = _mm_setzero_si128();
        __m128i const limits = _mm_set_epi16(254, 32767, 32767, 32767, 254, 32767, 32767, 32767);
        // Cells without a sample leave their pixels as they are; to blend them costs less than to ask, for which ones these
        // are no processor foresees.
        for (; i + 1 < high; i += 2, cell += 2 * Channels, pixel += 2 * step)
        {
            __m128i const sums = _mm_loadu_si128(reinterpret_cast<__m128i const*>(cell));
            if (_mm_movemask_epi8(_mm_cmpgt_epi16(sums, limits)) != 0)
            {
                pixel[0] = Blend(cell, pixel[0]);
                pixel[step] = Blend(cell + Channels, pixel[step]);
                continue;
            }
            if (step == 1)
            {
                __m128i const two = _mm_loadl_epi64(reinterpret_cast<__m128i const*>(pixel));
                __m128i const mixed = BlendTwo(sums, _mm_unpacklo_epi8(two, zero));
                _mm_storel_epi64(reinterpret_cast<__m128i*>(pixel), _mm_packus_epi16(mixed, zero));
            }
            else
            {
                __m128i const two = _mm_unpacklo_epi32(_mm_cvtsi32_si128(static_cast<int>(pixel[0])),
                                                       _mm_cvtsi32_si128(static_cast<int>(pixel[step])));
                __m128i const mixed = _mm_packus_epi16(BlendTwo(sums, _mm_unpacklo_epi8(two, zero)), zero);
                pixel[0] = static_cast<std::uint32_t>(_mm_cvtsi128_si32(mixed));
                pixel[step] = static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_srli_si128(mixed, 4)));
            }
        }
#endif
        for (; i < high; ++i, cell += Channels, pixel += step)
            *pixel = Blend(cell, *pixel);
    }

    CBand& m_Band;
};

void CBand::Begin(vexelbase::point<double> const& start, vexelbase::point<double> const& end, double reach,
                  CColorInfo const& colour, double opacity, vexelbase::IPainter& painter)
{
    vexelbase::point<double> const way{end.x - start.x, end.y - start.y};
    m_Steep = std::abs(way.y) > std::abs(way.x);
    double const along = m_Steep ? way.y : way.x, across = m_Steep ? way.x : way.y;
    m_Start = m_Steep ? vexelbase::point<double>{start.y, start.x} : start;
    m_Forward = along > 0;
    m_Slope = across / along;
    m_Opacity = opacity;
    m_Ink = {static_cast<float>(colour.m_Blue), static_cast<float>(colour.m_Green), static_cast<float>(colour.m_Red),
             255.0f};
    m_Painter = &painter;

    // Seen across, what lies off the line is further away by the slant; and the line itself is elsewhere at the pixels to
    // both sides of a sample.
    m_Reach = reach + OffGrid + Drift;
    m_HalfWidth = m_Reach * std::sqrt(1 + m_Slope * m_Slope) + std::abs(m_Slope);
    m_Width = (vexelbase::ToInt(2 * m_HalfWidth) + 4) & ~1;
    m_Strips = FewStrips;
    while (m_Strips < 2 * m_Reach + 8 + FewStrips)
        m_Strips *= 2;
    m_Mask = static_cast<std::size_t>(m_Strips) - 1;
    if (m_Origins.size() < static_cast<std::size_t>(m_Strips))
        m_Origins.resize(static_cast<std::size_t>(m_Strips));
    std::size_t const cells = static_cast<std::size_t>(m_Strips) * static_cast<std::size_t>(m_Width) * Channels;
    if (m_Cells.size() < cells)
        m_Cells.resize(cells);
    m_Count = 0;
    m_Open = false;
    m_Turn = m_Forward ? -HUGE_VAL : HUGE_VAL;
}

void CBand::End()
{
    Stamp();
    if (!m_Open)
        return;
    if (m_Forward)
        Flush(m_First, std::min(vexelbase::CeilToInt(m_Last + m_Reach) + 2, m_First + m_Strips));
    else
        Flush(std::max(vexelbase::FloorToInt(m_Last - m_Reach) - 1, m_First), m_First + m_Strips);
    m_Open = false;
}

void CBand::Advance()
{
    Stamp();
    // Which strip is the last that the rows from here on don't reach any more.
    int const first =
        m_Forward ? vexelbase::FloorToInt(m_Last - m_Reach) - 1 : vexelbase::CeilToInt(m_Last + m_Reach) + 2 - m_Strips;
    int const end = first + m_Strips, oldEnd = m_First + m_Strips;
    if (!m_Open)
    {
        Open(first, end);
    }
    else if (m_Forward)
    {
        Flush(m_First, std::min(first, oldEnd));
        Open(std::max(first, oldEnd), end);
    }
    else
    {
        Flush(std::max(end, m_First), oldEnd);
        Open(first, std::min(end, m_First));
    }
    m_Open = true;
    m_First = first;
    m_Turn = m_Forward ? end - 3 - m_Reach : first + 2 + m_Reach;
}

void CBand::Open(int from, int to)
{
    for (int along = from; along < to; ++along)
    {
        std::size_t const strip = StripOf(along);
        int const across = vexelbase::FloorToInt(m_Start.y + m_Slope * (along - m_Start.x) - m_HalfWidth);
        m_Origins[strip] = static_cast<std::ptrdiff_t>(strip) * m_Width - across;
    }
}

void CBand::Flush(int from, int to)
{
    if (from >= to)
        return;
    // The strips at both ends are the outermost ones across as well.
    int const low = std::min(FirstAcross(from), FirstAcross(to - 1));
    int const high = std::max(FirstAcross(from), FirstAcross(to - 1)) + m_Width;
    CEditor editor(*this);
    m_Painter->EditPixels(m_Steep ? vexelbase::rectangle<int>{low, from, high, to}
                                  : vexelbase::rectangle<int>{from, low, to, high},
                          editor);
    for (int along = from; along < to; ++along)
        std::fill_n(m_Cells.data() + StripOf(along) * static_cast<std::size_t>(m_Width) * Channels, m_Width * Channels,
                    Cell{0});
}

void CBand::Add(int along, int across, double weight)
{
    Cell* const cell = CellAt(along, across);
    for (std::size_t i = 0; i < Channels; ++i)
        cell[i] = static_cast<Cell>(cell[i] + vexelbase::ToInt(static_cast<double>(m_Ink[i]) * weight));
}

void CBand::StampExactly(std::size_t sample)
{
    double const along = m_Along[sample], across = m_Across[sample];
    SShares const shares = ComputeShares(m_Steep ? across : along, m_Steep ? along : across, 0, m_Opacity);
    auto const add = [&](int x, int y, double weight) { Add(m_Steep ? y : x, m_Steep ? x : y, weight); };
    if (shares.onPixel)
    {
        add(shares.left, shares.top, 1.0);
        return;
    }
    add(shares.left, shares.top, shares.weight[0]);
    add(shares.left, shares.bottom, shares.weight[1]);
    add(shares.right, shares.top, shares.weight[2]);
    add(shares.right, shares.bottom, shares.weight[3]);
}

#if defined(__SSE2__)

namespace
{

// Two coordinates: the pixels below, and how far it is from these and to the next ones.
struct SPlace
{
    __m128i pixels;  // in the two low words
    __m128d below;
    __m128d above;
};

SPlace Split(double const* values)
{
    __m128d const value = _mm_loadu_pd(values);
    __m128i const truncated = _mm_cvttpd_epi32(value);
    __m128d const whole = _mm_cvtepi32_pd(truncated);
    __m128d const negative = _mm_cmplt_pd(value, whole);  // rounds down below zero too
    __m128d const one = _mm_set1_pd(1);
    __m128d const floor = _mm_sub_pd(whole, _mm_and_pd(negative, one));
    SPlace place;
    place.pixels = _mm_add_epi32(truncated, _mm_shuffle_epi32(_mm_castpd_si128(negative), _MM_SHUFFLE(3, 3, 2, 0)));
    place.below = _mm_sub_pd(value, floor);
    place.above = _mm_sub_pd(_mm_add_pd(floor, one), value);
    return place;
}

__m128 ToFloats(__m128d low, __m128d high)
{
    return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
}

// A distance to the power 1.5, from its square.
__m128 Measure(__m128 square)
{
    __m128 const root = _mm_sqrt_ps(square);
    return _mm_mul_ps(root, _mm_sqrt_ps(root));
}

template <int Lane> __m128 Spread(__m128 value)
{
    return _mm_shuffle_ps(value, value, _MM_SHUFFLE(Lane, Lane, Lane, Lane));
}

// Two neighbouring cells, a word of eight bytes each: what is stored so can be loaded again at once.
void AddToCells(std::uint16_t* cells, __m128i shares)
{
    __m128i* const first = reinterpret_cast<__m128i*>(cells);
    __m128i* const second = reinterpret_cast<__m128i*>(cells + 4);
    _mm_storel_epi64(first, _mm_add_epi16(_mm_loadl_epi64(first), shares));
    __m128i const rest = _mm_unpackhi_epi64(shares, shares);
    _mm_storel_epi64(second, _mm_add_epi16(_mm_loadl_epi64(second), rest));
}

}  // namespace

// Four samples at a time. A weight found in single precision is off by less than 50 of its last places: seven operations
// for a distance, of which three are multiplied, and the sums and the quotient of these. Where a share may be one whole
// number or the other within that, the sample is done again in double precision.
void CBand::Stamp()
{
    constexpr float tolerance = 4e-6f;
    __m128 const ink = _mm_loadu_ps(m_Ink.data());
    __m128 const inkLow = _mm_mul_ps(ink, _mm_set1_ps(1 - tolerance));
    __m128 const inkHigh = _mm_mul_ps(ink, _mm_set1_ps(1 + tolerance));
    __m128 const opacity = _mm_set1_ps(static_cast<float>(m_Opacity));

    for (std::size_t i = m_Count; (i & 3u) != 0; ++i)
    {
        m_Along[i] = m_Along[m_Count - 1];
        m_Across[i] = m_Across[m_Count - 1];
    }
    for (std::size_t i = 0; i < m_Count; i += 4)
    {
        SPlace const along1 = Split(&m_Along[i]), along2 = Split(&m_Along[i + 2]);
        SPlace const across1 = Split(&m_Across[i]), across2 = Split(&m_Across[i + 2]);
        __m128 const left = ToFloats(along1.below, along2.below), right = ToFloats(along1.above, along2.above);
        __m128 const top = ToFloats(across1.below, across2.below), bottom = ToFloats(across1.above, across2.above);
        alignas(16) std::int32_t pixels[8];
        _mm_store_si128(reinterpret_cast<__m128i*>(pixels), _mm_unpacklo_epi64(along1.pixels, along2.pixels));
        _mm_store_si128(reinterpret_cast<__m128i*>(pixels + 4), _mm_unpacklo_epi64(across1.pixels, across2.pixels));

        __m128 const left2 = _mm_mul_ps(left, left), right2 = _mm_mul_ps(right, right);
        __m128 const top2 = _mm_mul_ps(top, top), bottom2 = _mm_mul_ps(bottom, bottom);
        __m128 const m0 = Measure(_mm_add_ps(left2, top2)), m1 = Measure(_mm_add_ps(left2, bottom2));
        __m128 const m2 = Measure(_mm_add_ps(right2, top2)), m3 = Measure(_mm_add_ps(right2, bottom2));
        // The reciprocals, all multiplied by the product of the four measures.
        __m128 const m01 = _mm_mul_ps(m0, m1), m23 = _mm_mul_ps(m2, m3);
        __m128 const r0 = _mm_mul_ps(m1, m23), r1 = _mm_mul_ps(m0, m23);
        __m128 const r2 = _mm_mul_ps(m01, m3), r3 = _mm_mul_ps(m01, m2);
        __m128 const total = _mm_add_ps(_mm_add_ps(r0, r1), _mm_add_ps(r2, r3));
        __m128 const unit = _mm_div_ps(opacity, total);
        __m128 const w0 = _mm_mul_ps(r0, unit), w1 = _mm_mul_ps(r1, unit);
        __m128 const w2 = _mm_mul_ps(r2, unit), w3 = _mm_mul_ps(r3, unit);
        // On a whole coordinate the pixels to both sides are one.
        __m128 const zero = _mm_setzero_ps();
        int const whole = _mm_movemask_ps(_mm_or_ps(_mm_cmpeq_ps(left, zero), _mm_cmpeq_ps(top, zero)));

        auto const stamp = [&]<int Lane>() {
            std::size_t const sample = i + Lane;
            __m128 const s0 = Spread<Lane>(w0), s1 = Spread<Lane>(w1), s2 = Spread<Lane>(w2), s3 = Spread<Lane>(w3);
            auto const shares = [](__m128 a, __m128 b, __m128 by) {
                return _mm_packs_epi32(_mm_cvttps_epi32(_mm_mul_ps(a, by)), _mm_cvttps_epi32(_mm_mul_ps(b, by)));
            };
            __m128i const low01 = shares(s0, s1, inkLow), low23 = shares(s2, s3, inkLow);
            __m128i const same = _mm_and_si128(_mm_cmpeq_epi16(low01, shares(s0, s1, inkHigh)),
                                               _mm_cmpeq_epi16(low23, shares(s2, s3, inkHigh)));
            if (_mm_movemask_epi8(same) != 0xFFFF || (whole >> Lane & 1) != 0)
            {
                StampExactly(sample);
                return;
            }
            AddToCells(CellAt(pixels[Lane], pixels[4 + Lane]), low01);
            AddToCells(CellAt(pixels[Lane] + 1, pixels[4 + Lane]), low23);
        };
        std::size_t const left_over = m_Count - i;
        stamp.template operator()<0>();
        if (left_over > 1)
            stamp.template operator()<1>();
        if (left_over > 2)
            stamp.template operator()<2>();
        if (left_over > 3)
            stamp.template operator()<3>();
    }
    m_Count = 0;
}

#else

void CBand::Stamp()
{
    for (std::size_t i = 0; i < m_Count; ++i)
        StampExactly(i);
    m_Count = 0;
}

#endif

}  // namespace antialiasing::detail
