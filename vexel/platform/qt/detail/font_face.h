#pragma once

#include "vexel/platform/font.h"
#include "vexel/platform/qt/detail/coverage.h"

#include <QFont>
#include <QRawFont>

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace vexelbase::qt
{

/// One character of a face that needs no shaping.
struct SGlyph
{
    int advance = 0;  ///< Device pixels; whole ones, so that the widths of parts add up to that of the run.
    SCoverage coverage;
};

/// A font at one device size and turn: what plain text needs without asking Qt again, that is the advance and the
/// coverage of each character once it has been seen.
class CFontFace
{
public:
    /// `ratio`: device pixels for one unscaled pixel. `id`: differs from that of every other face.
    CFontFace(font const& value, double ratio, ETurn turn, std::uint32_t id);
    CFontFace(CFontFace const&) = delete;
    CFontFace& operator=(CFontFace const&) = delete;
    ~CFontFace();

    std::uint32_t GetId() const { return m_Id; }
    ETurn GetTurn() const { return m_Turn; }
    QFont const& GetFont() const { return m_Font; }  ///< Sized in device pixels; decorations are left out.
    fontmetrics const& GetMetrics() const { return m_Metrics; }

    /// The glyph of a character, or null where a run with it must be shaped: combining marks, scripts whose letters
    /// join or change places, characters that the font lacks. Null for all of them once they are known.
    SGlyph const* Find(char32_t character)
    {
        if (character >= PageCount * PageSize)
            return nullptr;
        std::unique_ptr<SPage> const& page = m_Pages[character / PageSize];
        if (page)
        {
            SSlot const& slot = page->places[character % PageSize];
            if (slot.state == EState::Plain)
                return &slot.glyph;
            if (slot.state == EState::Complex)
                return nullptr;
        }
        return Load(character);
    }

    // Decorations: half-open rows of the upright frame, from the run's top -------------------------------------------
    bool HasDecoration() const { return m_Underline || m_StrikeOut; }
    /// The stripes of a run of this width, in the upright frame. Returns how many there are.
    int GetDecoration(int width, std::array<rectangle<int>, 2>& stripes) const;

    int GetOverhang() const { return m_Overhang; }  ///< How far ink may stand out of the run's box, a bound.

private:
    static constexpr std::size_t PageSize = 128;
    static constexpr std::size_t PageCount = 0x10000 / PageSize;

    enum class EState : std::uint8_t
    {
        Unknown,
        Plain,
        Complex
    };
    struct SSlot
    {
        SGlyph glyph;
        EState state = EState::Unknown;
    };
    struct SPage
    {
        std::array<SSlot, PageSize> places;
    };

    SGlyph const* Load(char32_t character);
    SCoverage Render(quint32 glyph);
    std::uint8_t* Allocate(std::size_t count);

    std::uint32_t const m_Id;
    ETurn const m_Turn;
    bool const m_Underline;
    bool const m_StrikeOut;
    QFont m_Font;
    QRawFont m_RawFont;
    fontmetrics m_Metrics;
    int m_Overhang = 0;
    int m_LineWidth = 1;
    int m_UnderlineTop = 0;
    int m_StrikeOutTop = 0;
    std::array<std::unique_ptr<SPage>, PageCount> m_Pages;
    std::vector<std::unique_ptr<std::uint8_t[]>> m_Blocks;  // where the coverages lie; never moved
    std::size_t m_BlockUsed = 0;
    std::size_t m_BlockSize = 0;
};

/// The Qt font for one of the framework's; one without size or name takes them from the application's font. `ratio`:
/// multiplies the size, as the font's own factor does. Letters are hinted to whole pixels.
QFont MakeQtFont(font const& value, double ratio);

/// The quarter turns of a font's rotation; false if it stands at another angle.
bool GetTurn(int rotation, ETurn& turn);

/// A character of UTF-8 text and how many bytes it takes; each byte that belongs to no character is U+FFFD by itself.
char32_t DecodeUtf8(char const* text, char const* end, int& length);

/// The text as Qt wants it, ill-formed bytes as above.
QString ToQString(std::string_view text);

}  // namespace vexelbase::qt
