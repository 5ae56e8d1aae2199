#pragma once

#include "vexel/export.h"
#include "vexel/platform/color.h"
#include "vexel/platform/geometry.h"

#include <cstdint>
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
    /// At most as many lines are read as the header announces; a null line ends the text early.
    XPMBuf(char const** lines, bool shared);

    int GetLineCount() const;
    char const* GetLine(int index) const;  ///< Null outside.

private:
    char const** m_Shared = nullptr;
    int m_SharedCount = 0;
    std::vector<std::string> m_Lines;
};

/// An image made from XPM text, with transparent pixels. Malformed text gives an empty image, never more than that.
class VEXEL_API XPMImage
{
public:
    XPMImage() = default;
    explicit XPMImage(XPMBuf const& buffer);

    /// Parses the text now; otherwise the first use does it.
    void Init() const;
    int GetWidth() const;   ///< Unscaled pixels; 0 if the text is malformed.
    int GetHeight() const;
    /// The same picture in the shades of something disabled: grey levels mixed with the palette's face
    /// (null: the default palette). Transparent pixels stay so.
    XPMImage GetDisabled(ICustomPalette* palette) const;
    /// None outside the image and for transparent pixels.
    _color GetPixel(int x, int y) const;

private:
    void Parse() const;

    XPMBuf m_Buffer;
    mutable bool m_Parsed = false;
    mutable int m_Width = 0;
    mutable int m_Height = 0;
    mutable std::vector<_color> m_Pixels;  // row by row
};

} // namespace vexelbase
