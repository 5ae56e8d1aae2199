#pragma once

#include <string>

namespace vexelbase
{

/// How a text looks. An element's own font says only what differs from the default (CVisualElement::GetFont).
struct font
{
    enum Family : int
    {
        ffSerif = 0,
        ffSans = 1,
        ffMono = 2,
        ffDecorative = 3,
        ffDefault = 4
    };
    enum Style : int
    {
        fsPlain = 0,
        fsBold = 1,
        fsItalic = 2,
        fsUnderline = 4,
        fsStrikeOut = 8
    };

    std::string name;        ///< Empty: the family decides.
    int family = ffDefault;  ///< 4: not set.
    int size = 0;            ///< Points; below 1: not set.
    int style = fsPlain;     ///< A set of Style bits.
    int rotation = 0;        ///< Tenths of a degree, counter-clockwise; 2700 runs downward.
    double factor = 1.0;     ///< Multiplies the size.

    friend bool operator==(font const&, font const&) = default;
};

/// The vertical extents of a font in device pixels; their sum is the distance between two lines.
struct fontmetrics
{
    int ascent = 0;
    int descent = 0;
    int leading = 0;
};

}  // namespace vexelbase
