#include "vexel/antialiasing/line_contour.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <string>

namespace antialiasing
{

namespace
{

using CapParams = CLineContour::CapParams;

// Coverage as a picture: '.' none, '0' to '9' in steps of 25, '#' from 250 on.
std::string Picture(CContour::Map const& map, tagRECT const& area)
{
    std::string text;
    for (long y = area.top; y <= area.bottom; ++y)
    {
        for (long x = area.left; x <= area.right; ++x)
        {
            auto const found = map.find({x, y});
            unsigned long const alpha = found == map.end() ? 0 : found->second.m_Alpha;
            text += alpha == 0 ? '.' : alpha >= 250 ? '#' : static_cast<char>('0' + alpha / 25);
        }
        text += '\n';
    }
    return text;
}

void SetLine(CLineContour& line, double x1, double y1, double x2, double y2)
{
    line.m_Start = {x1, y1};
    line.m_End = {x2, y2};
}

// How often the columns of an exactly horizontal line of width 1 were stamped: each sample leaves 245 of its 255 there.
std::string Columns(CLineContour const& line, int last)
{
    std::string text;
    for (long x = 0; x <= last; ++x)
    {
        auto const found = line.m_Contour.find({x, 0});
        text += found != line.m_Contour.end() && found->second.m_Alpha > 100 ? '#' : '.';
    }
    return text;
}

TEST(LineContour, HasTheUsualDefaults)
{
    CLineContour const line;

    EXPECT_EQ(line.m_Start, vexelbase::point<double>());
    EXPECT_EQ(line.m_End, vexelbase::point<double>());
    EXPECT_EQ(line.m_Width, 1ul);
    EXPECT_EQ(line.m_Density, 100ul);
    EXPECT_EQ(line.m_PenStyle, 1);
    EXPECT_EQ(line.m_StartCap, CapNone);
    EXPECT_EQ(line.m_EndCap, CapNone);
    EXPECT_EQ(line.m_Intensity, 255);
    EXPECT_EQ(line.m_StartColor, (CColorInfo{0, 0, 0, 255, 0}));
    EXPECT_EQ(line.m_EndColor, (CColorInfo{0, 0, 0, 255, 0}));
    EXPECT_EQ(line.m_StartCapOffset, 0);
    EXPECT_EQ(line.m_EndCapOffset, 0);
    EXPECT_FALSE(line.m_CaptionsOnly);
    LINE_CONTOUR_PARAMS const plain{};
    EXPECT_EQ(plain.m_Width, 0ul);
    EXPECT_EQ(plain.m_Density, 0ul);
}

// A sample at (0.25, 0.25): distances 0.353553, 0.790569 twice, 1.06066. Their reciprocals to the power 1.5 are 4.75683,
// 1.42262, 1.42262 and 0.91545; of 8.51753 these are 0.55848, 0.16702, 0.16702, 0.10748, so 142, 42, 42 and 27 of 255.
template <class... Fields> bool StandInOrder(Fields const&... fields)
{
    void const* const places[] = {&fields...};
    return std::is_sorted(std::begin(places), std::end(places), std::less<>());
}

TEST(LineContour, FieldsStandInTheirOrder)
{
    CLineContour const l;
    LINE_CONTOUR_PARAMS const& params = l;
    EXPECT_TRUE(StandInOrder(static_cast<CContour const&>(l).m_Last, params.m_Start, l.m_End, l.m_Width, l.m_Density,
                             l.m_PenStyle, l.m_StartCap, l.m_EndCap, l.m_Intensity, l.m_StartColor, l.m_EndColor,
                             l.m_StartCapOffset, l.m_EndCapOffset, l.m_CaptionsOnly, l.m_Opacity, l.m_CrossStep,
                             l.m_HalfSpan));
    EXPECT_TRUE(
        StandInOrder(l.m_Mode, l.m_Bounds, l.m_Contour, l.m_Solid, l.m_Overlaid, l.m_Ambient, l.m_Forced, l.m_Last));
    EXPECT_TRUE(StandInOrder(l.m_Ambient.m_Primary, l.m_Ambient.m_Secondary, l.m_Ambient.m_Owner, l.m_Ambient.m_Saved,
                             l.m_Ambient.m_Sharers));
    CapParams const cap;
    EXPECT_TRUE(StandInOrder(cap.m_Style, cap.m_Length, cap.m_Offset, cap.m_Radius, cap.m_HalfWidth, cap.m_ExtraArea));
    CColorInfoR const step;
    EXPECT_TRUE(StandInOrder(step.m_Red, step.m_Green, step.m_Blue, step.m_Alpha, step.m_RedCarry, step.m_GreenCarry,
                             step.m_BlueCarry, step.m_AlphaCarry));
}

TEST(LineContour, SamplesOfAHorizontalLineLieAQuarterOffTheGrid)
{
    CLineContour line;
    SetLine(line, 0, 0, 2, 0);

    line.Generate(nullptr, nullptr);

    // Two samples, at 0.25 and 1.25.
    EXPECT_EQ(line.m_Contour.size(), 6u);
    EXPECT_EQ((line.m_Contour[{0, 0}].m_Alpha), 142ul);
    EXPECT_EQ((line.m_Contour[{0, 1}].m_Alpha), 42ul);
    EXPECT_EQ((line.m_Contour[{1, 0}].m_Alpha), 184ul);
    EXPECT_EQ((line.m_Contour[{1, 1}].m_Alpha), 69ul);
    EXPECT_EQ((line.m_Contour[{2, 0}].m_Alpha), 42ul);
    EXPECT_EQ((line.m_Contour[{2, 1}].m_Alpha), 27ul);
    EXPECT_EQ(line.m_Bounds, (tagRECT{0, 0, 2, 1}));
    EXPECT_EQ(line.m_CrossStep, (vexelbase::point<double>{0, 1}));
    EXPECT_EQ(line.m_Opacity, 1.0);
}

TEST(LineContour, AnEvenWidthIsOffTheGridAlongToo)
{
    CLineContour line;
    line.m_Width = 2;
    SetLine(line, 0, 0, 1, 0);

    line.Generate(nullptr, nullptr);

    // The middle is at (0.5, 0.25), the rows of samples at -0.25 and 0.75; bounds from -1 to 1.
    EXPECT_EQ(line.m_Bounds, (tagRECT{0, -1, 1, 1}));
    EXPECT_EQ(line.m_HalfSpan, (vexelbase::point<double>{0, 0.5}));
    EXPECT_EQ((line.m_Contour[{0, -1}].m_Alpha), 41ul);
    EXPECT_EQ((line.m_Contour[{1, 0}].m_Alpha), 126ul);
    EXPECT_EQ((line.m_Contour[{0, 1}].m_Alpha), 85ul);
}

TEST(LineContour, ALineWithoutLengthStampsNothing)
{
    CLineContour line;
    line.m_StartCap = CapArrowWide;
    line.m_EndCap = CapCircle10;
    SetLine(line, 3, 4, 3, 4);

    line.Generate(nullptr, nullptr);

    EXPECT_TRUE(line.m_Contour.empty());
}

TEST(LineContour, AWidthOfNothingStampsNothing)
{
    for (int style = 1; style <= 5; ++style)
    {
        CLineContour line;
        line.m_Width = 0;
        line.m_PenStyle = style;
        SetLine(line, 0, 0, 9, 0);

        line.Generate(nullptr, nullptr);

        EXPECT_TRUE(line.m_Contour.empty()) << style;
    }
}

TEST(LineContour, PenStylesSkipSamplesByWidths)
{
    auto const columns = [](int style, unsigned long width) {
        CLineContour line;
        line.m_PenStyle = style;
        line.m_Width = width;
        SetLine(line, 0, 0, 24, 0);
        line.Generate(nullptr, nullptr);
        return Columns(line, 23);
    };
    EXPECT_EQ(columns(1, 1), "########################");
    EXPECT_EQ(columns(2, 1), "###.###.###.###.###.###.");
    EXPECT_EQ(columns(3, 1), "#.#.#.#.#.#.#.#.#.#.#.#.");
    EXPECT_EQ(columns(4, 1), "###.#.###.#.###.#.###.#.");
    EXPECT_EQ(columns(5, 1), "###.#.#.###.#.#.###.#.#.");
    EXPECT_EQ(columns(0, 1), "........................");
    EXPECT_EQ(columns(6, 1), "........................");
    EXPECT_EQ(columns(3, 3).substr(0, 4), "###.");
    EXPECT_EQ(columns(4, 2).substr(0, 13), "#######.###.#");
}

TEST(LineContour, AnotherStyleStampsCapsOnly)
{
    CLineContour line, caps;
    line.m_PenStyle = 0;
    line.m_Width = caps.m_Width = 2;
    line.m_StartCap = caps.m_StartCap = CapArrowWide;
    SetLine(line, 0, 0, 30, 40);
    SetLine(caps, 0, 0, 30, 40);

    line.Generate(nullptr, nullptr);
    caps.GenerateCaptionsOnly();

    EXPECT_FALSE(line.m_Contour.empty());
    EXPECT_EQ(line.m_Contour, caps.m_Contour);
    EXPECT_FALSE(caps.m_CaptionsOnly);
}

TEST(LineContour, AnotherStyleHasTheEndCapWhereTheLineEnds)
{
    for (int const style : {0, 6, -1})
    {
        CLineContour line;
        line.m_PenStyle = style;
        line.m_Width = 3;
        line.m_StartCap = line.m_EndCap = CapArrowNarrow;  // 13 long
        SetLine(line, 0, 0, 40, 0);

        line.Generate(nullptr, nullptr);

        // From 0.25 on 13 samples, none on 14 places, and 13 from 27.25 on.
        for (auto const& [position, pixel] : line.m_Contour)
            EXPECT_TRUE(position.x <= 13 || position.x >= 27) << style << ": " << position.x;
        EXPECT_EQ(line.m_Contour.begin()->first.x, 0) << style;
        EXPECT_EQ(line.m_Contour.rbegin()->first.x, 40) << style;
    }
}

TEST(LineContour, TheRowOfTheBodyIsSetWhateverTheStyle)
{
    for (int style = 0; style <= 6; ++style)
    {
        CLineContour line;
        line.m_PenStyle = style;
        line.m_Width = 5;
        SetLine(line, 0, 0, 30, 40);  // steps of 0.6 and 0.8

        line.Generate(nullptr, nullptr);

        EXPECT_DOUBLE_EQ(line.m_CrossStep.x, -0.8) << style;
        EXPECT_DOUBLE_EQ(line.m_CrossStep.y, 0.6) << style;
        EXPECT_DOUBLE_EQ(line.m_HalfSpan.x, -1.6) << style;
        EXPECT_DOUBLE_EQ(line.m_HalfSpan.y, 1.2) << style;
    }
}

TEST(LineContour, CaptionsOnlyPutsTheEndCapWhereTheLineEnds)
{
    CLineContour whole, caps;
    for (CLineContour* line : {&whole, &caps})
    {
        line->m_Width = 3;
        line->m_EndCap = CapArrowNarrow;
        SetLine(*line, 0, 0, 40, 0);
    }

    whole.Generate(nullptr, nullptr);
    caps.GenerateCaptionsOnly();

    // The cap is 13 long and begins behind the 27 samples of the body.
    EXPECT_EQ(caps.m_Contour.begin()->first.x, 27);
    EXPECT_EQ(caps.m_Bounds.right, whole.m_Bounds.right);
    EXPECT_EQ((caps.m_Contour[{35, 1}]), (whole.m_Contour[{35, 1}]));
}

TEST(LineContour, AnArrowOpensAtTheStartAndClosesAtTheEnd)
{
    CLineContour line;
    line.m_StartCap = CapArrowWide;  // 7 long, half as wide as 7 * 0.325 = 2.27
    line.m_EndCap = CapArrowWide;
    SetLine(line, 0, 4, 20, 4);

    line.Generate(nullptr, nullptr);

    long top = 99, left = 99;
    for (auto const& [position, pixel] : line.m_Contour)
    {
        if (position.y < top)
        {
            top = position.y;
            left = position.x;
        }
    }
    EXPECT_EQ(top, 1);   // 4.25 - 2.27 = 1.98
    EXPECT_EQ(left, 6);  // the seventh row of the start cap
    EXPECT_EQ(line.m_Contour.count({0, 3}), 0u);
    EXPECT_EQ(line.m_Contour.count({13, 1}), 1u);  // the first row of the end cap
}

TEST(LineContour, AnArrowOfOneStepIsOneRow)
{
    CLineContour line;
    CColorInfo colour;
    CColorInfoR step;
    line.m_Opacity = 1;
    CapParams cap;
    cap.m_Style = CapArrowWide;
    cap.m_Length = 1;
    cap.m_HalfWidth = 2;

    double x = 5.5, y = 5.5;
    line.DrawCaption(cap, true, x, y, 1, 0, colour, step, false);
    EXPECT_EQ(line.m_Contour.size(), 4u);  // one sample
    EXPECT_EQ(x, 6.5);
    EXPECT_EQ(y, 5.5);

    line.Clear();
    line.DrawCaption(cap, false, x, y, 1, 0, colour, step, false);
    EXPECT_EQ(line.m_Bounds, (tagRECT{0, 0, 7, 8}));  // five samples from 3.5 to 7.5
    EXPECT_EQ(line.m_Contour.begin()->first, (tagPOINT{6, 3}));
    EXPECT_EQ(line.m_CrossStep, (vexelbase::point<double>{0, 1}));
}

TEST(LineContour, ACapThatIsCutOffWhollyIsNotStamped)
{
    CLineContour line;
    CColorInfo colour;
    CColorInfoR step;
    CapParams cap;
    cap.m_Style = CapCircle5;
    cap.m_Length = 5;
    cap.m_Offset = 5.25;
    double x = 1, y = 2;

    line.DrawCaption(cap, true, x, y, 0, 1, colour, step, false);
    EXPECT_EQ(y, 2);
    cap.m_Offset = 3;
    line.DrawCaption(cap, true, x, y, 0, 1, colour, step, false);
    EXPECT_EQ(y, 4);
}

TEST(LineContour, WhatIsCutOffACapIsLeftToTheBody)
{
    for (bool const atStart : {true, false})
    {
        CLineContour line;
        line.m_Width = 3;
        (atStart ? line.m_StartCap : line.m_EndCap) = CapArrowNarrow;  // 13 long, of which 9 stay
        (atStart ? line.m_StartCapOffset : line.m_EndCapOffset) = 4;
        SetLine(line, 0, 0, 40, 0);

        line.Generate(nullptr, nullptr);

        // 31 samples of the body and 9 of the cap: from 0.25 to 39.25.
        EXPECT_EQ(line.m_Bounds.right, 40) << atStart;
        EXPECT_EQ(line.m_Contour.begin()->first.x, 0) << atStart;
        EXPECT_EQ(line.m_Contour.rbegin()->first.x, 40) << atStart;
    }
}

TEST(LineContour, WhatIsCutOffOneCapLeavesRoomForTheOther)
{
    for (bool const atStart : {true, false})
    {
        CLineContour line;
        (atStart ? line.m_StartCap : line.m_EndCap) = CapArrowNarrow;
        (atStart ? line.m_EndCapOffset : line.m_StartCapOffset) = 10;
        line.m_Width = 3;
        SetLine(line, 0, 0, 20, 0);

        line.Generate(nullptr, nullptr);

        // 0.4 of 30 long, not of 20; half as wide as 12 * 0.2126 = 2.55, around a middle at 0.25.
        EXPECT_EQ(line.m_Bounds.top, -3) << atStart;
        EXPECT_EQ(line.m_Bounds.bottom, 3) << atStart;
    }
}

TEST(LineContour, TheStepsOfACapAreRoundedToTheNearest)
{
    CLineContour line;
    CColorInfo colour;
    CColorInfoR step;
    CapParams cap;
    cap.m_Style = CapCircle5;
    cap.m_Length = 5;
    double x = 1, y = 2;

    cap.m_Offset = 2.75;  // 2.25
    line.DrawCaption(cap, true, x, y, 0, 1, colour, step, false);
    EXPECT_EQ(y, 4);
    cap.m_Offset = 2.5;
    line.DrawCaption(cap, true, x, y, 0, 1, colour, step, false);
    EXPECT_EQ(y, 7);
}

TEST(LineContour, AnArrowWithoutStepsStillSetsItsSpan)
{
    CLineContour line;
    CColorInfo colour;
    CColorInfoR step;
    CapParams cap;
    cap.m_Style = CapArrowWide;
    cap.m_Length = cap.m_Offset = 5;
    cap.m_HalfWidth = 3;
    double x = 1, y = 2;

    line.DrawCaption(cap, false, x, y, 0.5, 1, colour, step, false);

    EXPECT_EQ(line.m_HalfSpan, (vexelbase::point<double>{-3, 1.5}));
    EXPECT_TRUE(line.m_Contour.empty());
    cap.m_Offset = 5.25;
    cap.m_HalfWidth = 4;
    line.DrawCaption(cap, false, x, y, 0.5, 1, colour, step, false);
    EXPECT_EQ(line.m_HalfSpan, (vexelbase::point<double>{-3, 1.5}));  // cut off wholly
}

TEST(LineContour, ADiscIsRoundOnAVerticalLineButFlatOnAHorizontalOne)
{
    CLineContour upright, flat;
    for (CLineContour* line : {&upright, &flat})
    {
        line->m_StartCap = CapCircle10;
        line->m_PenStyle = 0;
    }
    SetLine(upright, 20, 0, 20, 60);
    SetLine(flat, 0, 20, 60, 20);

    upright.Generate(nullptr, nullptr);
    flat.Generate(nullptr, nullptr);

    // Radius 5 around the start: ten rows, from -4.75 on.
    EXPECT_EQ(upright.m_Contour.begin()->first.x, 15);
    EXPECT_EQ(upright.m_Contour.rbegin()->first.x, 26);
    EXPECT_EQ(upright.m_Bounds.top, -5);
    for (auto const& [position, pixel] : flat.m_Contour)
        EXPECT_TRUE(position.y == 20 || position.y == 21);
    EXPECT_EQ(flat.m_Bounds.left, -5);
}

TEST(LineContour, ADiscBeginsWithAPoint)
{
    CLineContour line;
    CColorInfo colour;
    CColorInfoR step;
    CapParams cap;
    cap.m_Style = CapCircle10;
    cap.m_Length = 10;
    double x = 0.5, y = 0.5;

    line.DrawCaption(cap, true, x, y, 0, 1, colour, step, false);

    // Ten rows, of half widths 0, 3, 4, 4.58, 4.9, 5, 4.9, 4.58, 4, 3.
    EXPECT_EQ(line.m_HalfSpan, (vexelbase::point<double>{-3, 0}));
    EXPECT_EQ(line.m_Contour.begin()->first, (tagPOINT{-5, 3}));  // 0.5 - 4.58, in the fourth row
    EXPECT_EQ(line.m_Contour.count({-1, 0}), 0u);
}

TEST(LineContour, CapsOfAShortLineShrink)
{
    CapParams cap;
    cap.Set(CapArrowNarrow, 2, 10, 0, 0);  // would like 10
    EXPECT_DOUBLE_EQ(cap.m_Length, 4);
    EXPECT_DOUBLE_EQ(cap.m_HalfWidth, 4 * 0.21255656168466908);
    EXPECT_EQ(cap.m_Radius, 0);
    EXPECT_EQ(cap.m_ExtraArea, 6ul);

    cap.Set(CapArrowWide, 3, 10, 20, 30);  // would like 13; 0.4 of 60, but no more than 10
    EXPECT_DOUBLE_EQ(cap.m_Length, 10);
    EXPECT_DOUBLE_EQ(cap.m_HalfWidth, 3.249196962561462);
    EXPECT_EQ(cap.m_Offset, 20);
    EXPECT_EQ(cap.m_ExtraArea, 9ul);

    cap.Set(CapCircle, 6, 100, 0, 0);
    EXPECT_EQ(cap.m_Length, 6);
    EXPECT_EQ(cap.m_Radius, 3);
    EXPECT_EQ(cap.m_HalfWidth, 0);
    EXPECT_EQ(cap.m_ExtraArea, 8ul);

    cap.Set(CapCircle7, 6, 10, 0, 0);
    EXPECT_EQ(cap.m_Length, 4);
    EXPECT_EQ(cap.m_Radius, 2);

    cap.Set(CapNone, 9, 100, 1, 2);
    EXPECT_EQ(cap.m_Length, 0);
    EXPECT_EQ(cap.m_Radius, 0);
    EXPECT_EQ(cap.m_ExtraArea, 9ul);
}

TEST(LineContour, AnUnlistedCapKeepsItsLength)
{
    CapParams cap;
    cap.m_Length = 8;
    cap.Set(static_cast<CapStyle>(7), 1, 100, 0, 0);
    EXPECT_EQ(cap.m_Length, 8);
    EXPECT_EQ(cap.m_Radius, 4);
    cap.Set(static_cast<CapStyle>(7), 1, 10, 0, 0);
    EXPECT_EQ(cap.m_Length, 4);
}

TEST(LineContour, AnUnlistedCapIsADiscOfFivePixels)
{
    CLineContour five, unlisted;
    five.m_StartCap = five.m_EndCap = CapCircle5;
    unlisted.m_StartCap = unlisted.m_EndCap = static_cast<CapStyle>(12);
    SetLine(five, 0, 0, 20, 50);
    SetLine(unlisted, 0, 0, 20, 50);

    five.Generate(nullptr, nullptr);
    unlisted.Generate(nullptr, nullptr);

    EXPECT_EQ(five.m_Contour, unlisted.m_Contour);
}

TEST(LineContour, ExtraAreaTellsHowFarACapReaches)
{
    EXPECT_EQ(CLineContour::GetExtraArea(CapNone, 7), 8ul);
    EXPECT_EQ(CLineContour::GetExtraArea(CapArrowNarrow, 2), 8ul);  // 2.13
    EXPECT_EQ(CLineContour::GetExtraArea(CapArrowWide, 2), 9ul);    // 3.25
    EXPECT_EQ(CLineContour::GetExtraArea(CapCircle, 7), 9ul);       // 3.5
    EXPECT_EQ(CLineContour::GetExtraArea(CapCircle5, 7), 8ul);
    EXPECT_EQ(CLineContour::GetExtraArea(CapCircle7, 7), 9ul);
    EXPECT_EQ(CLineContour::GetExtraArea(CapCircle10, 7), 10ul);
    EXPECT_EQ(CLineContour::GetExtraArea(static_cast<CapStyle>(7), 7), 8ul);
}

TEST(LineContour, AGradientGoesFromOneColourToTheOther)
{
    CLineContour line;
    line.m_StartColor = {0, 255, 0, 255, 0};
    line.m_EndColor = {255, 255, 0, 255, 0};
    SetLine(line, 0, 0, 99, 0);

    line.Generate(nullptr, nullptr);
    line.Normalize(50);

    // 255 * 0.999 / 100 = 2.54745 a step
    auto const red = [&](long x) { return line.m_Solid[{x, 0}] & 255u; };
    EXPECT_LT(red(0), 3u);
    EXPECT_NEAR(static_cast<double>(red(50)), 127, 3);
    EXPECT_NEAR(static_cast<double>(red(98)), 249, 3);
    EXPECT_GT((line.m_Solid[{50, 0}] >> 8), 250u);
}

TEST(LineContour, AnotherAlphaAloneIsAGradientButLeavesCoverage)
{
    CLineContour line, plain;
    line.m_StartColor.m_Alpha = 0;
    SetLine(line, 0, 0, 9, 5);
    SetLine(plain, 0, 0, 9, 5);

    line.Generate(nullptr, nullptr);
    plain.Generate(nullptr, nullptr);

    EXPECT_EQ(line.m_Contour, plain.m_Contour);
}

TEST(LineContour, IntensityScalesCoverage)
{
    CLineContour line;
    line.m_Intensity = 51;
    SetLine(line, 0, 0, 1, 0);

    line.Generate(nullptr, nullptr);

    EXPECT_EQ(line.m_Opacity, 0.2);
    EXPECT_EQ((line.m_Contour[{0, 0}].m_Alpha), 28ul);  // 142.4 / 5
}

TEST(LineContour, GenerateHandsOverToOthers)
{
    CLineContour line;
    SetLine(line, 0, 0, 2, 0);
    CContour first, second;
    first.m_Contour[{0, 0}] = {};
    second.m_Contour[{1, 0}] = {};

    line.Generate(nullptr, &second);
    EXPECT_TRUE(line.m_Overlaid.empty());

    line.Clear();
    line.Generate(&first, &second);
    EXPECT_EQ(line.m_Overlaid.size(), 2u);
    EXPECT_EQ((first.m_Contour[{0, 0}].m_Alpha), 142ul);
    EXPECT_EQ((second.m_Contour[{1, 0}].m_Alpha), 184ul);
}

TEST(LineContour, ARowIsStampedAroundItsMiddle)
{
    CLineContour line;
    CColorInfo colour;
    line.m_Opacity = 1;
    line.m_HalfSpan = {0, 2};
    line.m_CrossStep = {0, 4};

    line.AddPoint(5.0, 5.0, colour, 0ul);
    EXPECT_TRUE(line.m_Contour.empty());
    line.AddPoint(5.0, 5.0, colour, 1ul);
    EXPECT_EQ(line.m_Contour.size(), 1u);
    EXPECT_EQ(line.m_Contour.count({5, 5}), 1u);
    line.AddPoint(5.0, 5.0, colour, 2ul);
    EXPECT_EQ(line.m_Contour.count({5, 3}), 1u);
    EXPECT_EQ(line.m_Contour.count({5, 7}), 1u);
}

TEST(LineContour, APictureOfASlantedLine)
{
    CLineContour line;
    SetLine(line, 0, 0, 8, 4);

    line.Generate(nullptr, nullptr);

    EXPECT_EQ(Picture(line.m_Contour, {0, 0, 9, 5}), "741.......\n"
                                                     "15#51.....\n"
                                                     "..14951...\n"
                                                     "....15851.\n"
                                                     "......152.\n"
                                                     "..........\n");
    line.Clear();
    line.m_Width = 3;
    line.Generate(nullptr, nullptr);
    EXPECT_EQ(Picture(line.m_Contour, {-1, -2, 9, 6}), "...........\n"
                                                       ".262.......\n"
                                                       ".88951.....\n"
                                                       "1#9#9#51...\n"
                                                       ".1598#8#61.\n"
                                                       "...2698#87.\n"
                                                       ".....16#82.\n"
                                                       ".......14..\n"
                                                       "...........\n");
}

}  // namespace

}  // namespace antialiasing
