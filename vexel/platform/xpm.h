#pragma once

#include "vexel/export.h"
#include "vexel/platform/color.h"

#include <memory>
#include <string>
#include <vector>

namespace vexelbase
{

class ICustomPalette;

/// The lines of an XPM text: header "width height colours characters-per-pixel", colours, rows.
class VEXEL_API XPMBuf
{
public:
    XPMBuf() = default;
    /// `shared`: the lines live as long as all copies and are only pointed to; otherwise they are copied now.
    /// At most as many lines are read as the header announces, only the header if that makes no sense (more than 32767
    /// pixels a side or 65536 colours included); a null line ends the text early. Null: no lines.
    XPMBuf(char const** lines, bool shared);

    int GetLineCount() const;
    char const* GetLine(int index) const;  ///< Null outside.

private:
    char const* const* m_Shared = nullptr;
    int m_SharedCount = 0;
    std::shared_ptr<std::vector<std::string> const> m_Lines;
};

/// An image made from XPM text, with transparent pixels. Malformed text gives an empty image, never more than that:
/// a header that makes no sense, too few lines, a short row, a symbol that no colour line names, a colour that isn't
/// known. Of the keys c, g, g4, m the first in this order decides; s is skipped. Copies share what they hold.
class VEXEL_API XPMImage
{
public:
    XPMImage() = default;
    explicit XPMImage(XPMBuf const& buffer);

    /// Parses the text now; otherwise the first use does it.
    void Init() const;
    int GetWidth() const;  ///< Unscaled pixels; 0 if the text is malformed.
    int GetHeight() const;
    /// The same picture in the shades of something disabled: each pixel's grey level, half-way to the palette's face
    /// (null: the default palette). Transparent pixels stay so. A disabled picture has no further disabled look.
    XPMImage GetDisabled(ICustomPalette* palette) const;
    bool HasDisabledLook() const { return m_DisabledLook; }
    /// None outside the image and for transparent pixels.
    _color GetPixel(int x, int y) const;

private:
    void Parse() const;

    XPMBuf m_Buffer;
    bool m_DisabledLook = false;
    mutable bool m_Parsed = false;
    mutable int m_Width = 0;
    mutable int m_Height = 0;
    mutable std::shared_ptr<std::vector<_color> const> m_Pixels;  // row by row
};

}  // namespace vexelbase
