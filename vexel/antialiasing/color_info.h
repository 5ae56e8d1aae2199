#pragma once

#include "vexel/export.h"

namespace antialiasing
{

/// A colour that isn't there. Others are 0x00BBGGRR.
inline constexpr unsigned long NoColor = 0xFFFFFFFFul;

/// Steps through a gradient: what each channel takes on from one sample to the next, and the fractions still owed.
struct CColorInfoR
{
    double m_Red = 0;
    double m_Green = 0;
    double m_Blue = 0;
    double m_Alpha = 0;
    double m_RedCarry = 0;
    double m_GreenCarry = 0;
    double m_BlueCarry = 0;
    double m_AlphaCarry = 0;
};

/// What a pixel has gathered, or the colour that a sample is stamped with.
struct VEXEL_API CColorInfo
{
    unsigned long m_Red = 0;  ///< Gathered: the sum of shares times colour. Of a stamp: 0 to 255; so green and blue.
    unsigned long m_Green = 0;
    unsigned long m_Blue = 0;
    unsigned long m_Alpha = 0;  ///< Gathered: coverage, 255 times the shares; may exceed 255. Of a stamp: not read.
    unsigned long m_Kind = 0;   ///< Set by CContour::Classify: 1 inner side, 2 outer side, 3 both.

    /// Goes on by one step of a gradient: each channel by the whole part, rounded down, of the step and what was owed. The
    /// rest stays owed, so nothing gets lost, neither upward nor downward.
    CColorInfo& operator+=(CColorInfoR& step);

    friend bool operator==(CColorInfo const&, CColorInfo const&) = default;
};

}  // namespace antialiasing
