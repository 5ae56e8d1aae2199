#pragma once

#include "vexel/antialiasing/line_contour.h"
#include "vexel/export.h"

#include <cstdint>
#include <map>

namespace antialiasing
{

/// Keeps the coverage of a line as a mask of bytes, so that a shape that is shown again and again is stroked once.
/// Masks of up to 0x7FFFF bytes lie in one buffer that all objects share: only what was generated last is valid.
class VEXEL_API CCacheableLineContour : public LineContourParams
{
public:
    /// A line in short. Positions count in tenths of a pixel; lines that agree to that grain have one tag.
    struct VEXEL_API Tag
    {
        Tag(LINE_CONTOUR_PARAMS const& line, bool flag, long width, long height);

        std::uint32_t m_Packed1 = 0;  ///< From bit 0: flag, end cap (1), start cap (4), pen style (7), width (13), end.
        std::uint32_t m_Packed2 = 0;  ///< From bit 0: end column, start row (8), start column (22).
        std::uint16_t m_Size = 0;     ///< `width` and `height`, one over the other.
        CColorInfo m_StartColor;
        CColorInfo m_EndColor;

        bool operator<(Tag const& other) const;  ///< By the words, then by size and colours.
    };

    CCacheableLineContour() = default;
    ~CCacheableLineContour();
    CCacheableLineContour(CCacheableLineContour const&) = delete;
    CCacheableLineContour& operator=(CCacheableLineContour const&) = delete;

    /// Strokes the line into a mask of `width` columns and as many rows as the magnitude of `height` says: 255 where
    /// nothing was touched, 0 where the line covers fully; see CContour::FillAlphaMask.
    void Generate(long width, long height, bool flip);

    unsigned long m_Mode = 0;  ///< The law of the shares; see CContour::m_Mode.
    unsigned long m_Reserved = 0;
    unsigned char* m_Mask = nullptr;  ///< Null before the first Generate.
    bool m_OwnsMask = false;          ///< The mask is too large for the common buffer and dies with this object.

    /// For applications that keep masks; nothing in the library puts any there. The masks belong to who does.
    static std::map<Tag, unsigned char*> sm_mapCache;
};

}  // namespace antialiasing
