// An axis: its settings, its texts, and how it chooses its step.

#include "tests/charts/axis_bench.h"

#include <cmath>
#include <limits>
#include <type_traits>

using namespace charts_test;

namespace
{

using Axis = CAxisBench<CAxis>;

constexpr double s_NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double s_Infinity = std::numeric_limits<double>::infinity();

}  // namespace

// Settings ----------------------------------------------------------------------------------------------------------------

TEST_F(Axis, StartsWithItsDefaults)
{
    CAxis const axis(nullptr, {30, 20}, alTop);
    EXPECT_EQ(axis.GetStep(), 1.0);
    EXPECT_EQ(axis.GetMinorCount(), 10);
    EXPECT_TRUE(axis.IsTextRotated());
    EXPECT_EQ(axis.GetAxisOffset(), 0);
    EXPECT_EQ(axis.GetLabelOffset(), 2);
    EXPECT_EQ(axis.GetMajorTickSize(), 5);
    EXPECT_EQ(axis.GetMinorTickSize(), 2);
    EXPECT_EQ(axis.GetLabelGapPixels(), 10);
    EXPECT_EQ(axis.GetLabelGap(), 0.0);
    EXPECT_TRUE(axis.GetMajorTicks().empty());
    EXPECT_TRUE(axis.GetMinorTicks().empty());
    EXPECT_EQ(axis.GetUnitConverter(), nullptr);
    EXPECT_EQ(axis.GetSize(), (size<int>{30, 20}));
    EXPECT_EQ(axis.GetAlignment(), alTop);
}

TEST_F(Axis, TurnsTextsWithItsEdgeFromTheStart)
{
    for (Alignment const alignment : {alLeft, alRight, alTop, alBottom})
    {
        CAxis const axis(nullptr, {30, 20}, alignment);
        EXPECT_TRUE(axis.IsTextConverted());
        font turned;
        axis.ConvFont(&turned);
        EXPECT_EQ(turned.rotation, alignment == alLeft || alignment == alRight ? 2700 : 0);
    }
}

TEST_F(Axis, EachSettingRepaintsItOnAChangeOnly)
{
    auto const repaints = [this](auto const& set) {
        m_Host.Paint();
        set();
        std::string const first = m_Host.Paint().Elements();
        set();
        EXPECT_EQ(m_Host.Paint().Elements(), "") << "unchanged";
        return first;
    };
    EXPECT_EQ(repaints([&] { m_Axis->SetAxisOffset(3); }), "CAxis");
    EXPECT_EQ(repaints([&] { m_Axis->SetLabelOffset(4); }), "CAxis");
    EXPECT_EQ(repaints([&] { m_Axis->SetTickMarksSize(7, 2); }), "CAxis");
    EXPECT_EQ(repaints([&] { m_Axis->SetTickMarksSize(7, 3); }), "CAxis");
    EXPECT_EQ(repaints([&] { m_Axis->SetLabelGapPixels(20); }), "CAxis");
    EXPECT_EQ(repaints([&] { m_Axis->SetRotateText(false); }), "CAxis");
    EXPECT_EQ(m_Axis->GetAxisOffset(), 3);
    EXPECT_EQ(m_Axis->GetLabelOffset(), 4);
    EXPECT_EQ(m_Axis->GetMajorTickSize(), 7);
    EXPECT_EQ(m_Axis->GetMinorTickSize(), 3);
    EXPECT_EQ(m_Axis->GetLabelGapPixels(), 20);
    EXPECT_FALSE(m_Axis->IsTextRotated());
}

TEST_F(Axis, TakesAConverterWithoutRepainting)
{
    CTenfold tenfold;
    m_Axis->SetUnitConverter(&tenfold);
    EXPECT_EQ(m_Axis->GetUnitConverter(), &tenfold);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(Axis, RepaintsForAScrollAlongItselfOnly)
{
    for (Alignment const alignment : {alLeft, alRight, alTop, alBottom})
    {
        bool const upright = alignment == alLeft || alignment == alRight;
        CAxis axis(nullptr, {30, 20}, alignment);
        EXPECT_EQ(axis.ScrollContent(3, 0), !upright) << alignment;
        EXPECT_EQ(axis.ScrollContent(0, 3), upright) << alignment;
        EXPECT_FALSE(axis.ScrollContent(0, 0));
    }
}

TEST_F(Axis, SetsItsAlignmentAgainForANewControl)
{
    class CTold : public CAxis
    {
    public:
        using CAxis::CAxis;
        std::vector<int> m_Set;
        void SetAlignment(Alignment alignment) override
        {
            m_Set.push_back(alignment);
            CAxis::SetAlignment(alignment);
        }
    };
    CTold axis(nullptr, {30, 20}, alLeft);
    EXPECT_TRUE(axis.m_Set.empty());
    axis.ReParent(m_Host.Root(), false);
    EXPECT_EQ(axis.m_Set, (std::vector<int>{alLeft}));
    axis.ReParent(nullptr, false);
    EXPECT_EQ(axis.m_Set, (std::vector<int>{alLeft, alLeft}));
}

// Height ------------------------------------------------------------------------------------------------------------------

TEST_F(Axis, ItsMinimalHeightHasRoomForTickLabelAndTwoPixels)
{
    EXPECT_EQ(m_Axis->CalcMinHeight("12"), 0 + 5 + 2 + 8 + 2);
    m_Axis->SetAxisOffset(3);
    m_Axis->SetLabelOffset(4);
    m_Axis->SetTickMarksSize(7, 20);
    EXPECT_EQ(m_Axis->CalcMinHeight("12"), 3 + 7 + 4 + 8 + 2);
    SetFontSize(16);
    EXPECT_EQ(m_Axis->CalcMinHeight("12"), 3 + 7 + 4 + 16 + 2);
}

TEST_F(Axis, AtASideItsMinimalHeightIsThatOfAnUprightTextsWidth)
{
    Make(alLeft);
    EXPECT_EQ(m_Axis->CalcMinHeight("12"), 5 + 2 + 16 + 2);
    EXPECT_EQ(m_Axis->CalcMinHeight(""), 5 + 2 + 32 + 2);  // as "9999"
}

TEST_F(Axis, WithoutAControlItHasNoMinimalHeight)
{
    EXPECT_EQ(CAxis(nullptr, {30, 20}, alTop).CalcMinHeight("12"), 0);
    m_Host.DestroyWindow();
    EXPECT_EQ(m_Axis->CalcMinHeight("12"), 0);
}

// Texts -------------------------------------------------------------------------------------------------------------------

TEST_F(Axis, StepsOfTenAndMoreShowNoDecimals)
{
    EXPECT_EQ(m_Axis->GetLabelText(20, 10), "20");
    EXPECT_EQ(m_Axis->GetLabelText(-1250, 50), "-1250");
    EXPECT_EQ(m_Axis->GetLabelText(3.7, s_Infinity), "4");
}

TEST_F(Axis, StepsFromOneToTenShowOneDecimal)
{
    EXPECT_EQ(m_Axis->GetLabelText(3, 1), "3.0");
    EXPECT_EQ(m_Axis->GetLabelText(-15, 5), "-15.0");
    EXPECT_EQ(m_Axis->GetLabelText(9, 9.99), "9.0");
}

TEST_F(Axis, StepsBelowOneShowAsManyDecimalsAsTheyHave)
{
    EXPECT_EQ(m_Axis->GetLabelText(0.5, 0.5), "0.5");
    EXPECT_EQ(m_Axis->GetLabelText(0.5, 0.1), "0.5");
    EXPECT_EQ(m_Axis->GetLabelText(0.25, 0.05), "0.25");
    EXPECT_EQ(m_Axis->GetLabelText(0.25, 0.01), "0.25");
    EXPECT_EQ(m_Axis->GetLabelText(1, 0.005), "1.000");
}

TEST_F(Axis, StepsThatAreNoneShowTenDecimals)
{
    EXPECT_EQ(m_Axis->GetLabelText(0.5, 0), "0.5000000000");
    EXPECT_EQ(m_Axis->GetLabelText(0.5, -10), "0.5000000000");
    EXPECT_EQ(m_Axis->GetLabelText(0.5, s_NaN), "0.5000000000");
}

TEST_F(Axis, ValuesFromTenThousandOnHaveTenDigitsWhateverTheStep)
{
    EXPECT_EQ(m_Axis->GetLabelText(10000, 1), "10000");
    EXPECT_EQ(m_Axis->GetLabelText(-10000, 0.001), "-10000");
    EXPECT_EQ(m_Axis->GetLabelText(9999, 1), "9999.0");
    EXPECT_EQ(m_Axis->GetLabelText(-9999, 1), "-9999.0");
    EXPECT_EQ(m_Axis->GetLabelText(12345.25, 100), "12345.25");
    EXPECT_EQ(m_Axis->GetLabelText(1e10, 1), "1e+10");
    EXPECT_EQ(m_Axis->GetLabelText(1234567891, 1), "1234567891");
    EXPECT_EQ(m_Axis->GetLabelText(-1e300, 1), "-1e+300");
}

TEST_F(Axis, AValueThatRoundsToZeroHasNoSign)
{
    EXPECT_EQ(m_Axis->GetLabelText(-1e-17, 0.1), "0.0");
    EXPECT_EQ(m_Axis->GetLabelText(-0.0, 10), "0");
    EXPECT_EQ(m_Axis->GetLabelText(-0.1, 0.1), "-0.1");
}

TEST_F(Axis, TheSmallestStepShowsAllItsDecimals)
{
    EXPECT_EQ(m_Axis->GetLabelText(1, 1e-300), "1." + std::string(300, '0'));
    EXPECT_EQ(m_Axis->GetLabelText(1, 5e-324), "1." + std::string(324, '0'));
}

TEST_F(Axis, WhatIsNoNumberIsShownSo)
{
    EXPECT_EQ(m_Axis->GetLabelText(s_NaN, 10), "nan");
    EXPECT_EQ(m_Axis->GetLabelText(-s_NaN, 10), "nan");
    EXPECT_EQ(m_Axis->GetLabelText(s_Infinity, 10), "inf");
    EXPECT_EQ(m_Axis->GetLabelText(-s_Infinity, 10), "-inf");
}

TEST_F(Axis, AConverterTurnsValueAndStep)
{
    CTenfold tenfold;
    m_Axis->SetUnitConverter(&tenfold);
    EXPECT_EQ(m_Axis->GetLabelText(2, 1), "25");      // a step of 10
    EXPECT_EQ(m_Axis->GetLabelText(2, 0.5), "25.0");  // of 5
    EXPECT_EQ(m_Axis->GetLabelText(0.25, 0.005), "7.50");
    EXPECT_EQ(m_Axis->GetLabelText(1000, 0.5), "10005");
}

// Room of a label ---------------------------------------------------------------------------------------------------------

TEST_F(Axis, ALabelTakesItsTextABlankAndTheGap)
{
    CScrollConverter const converter(&m_Model);
    IPainter* const painter = m_Host.Window().GetPainter();
    EXPECT_EQ(m_Axis->GetLabelTextSize(converter, painter, 1000, 100), 5 * 8 + 10.0);
    EXPECT_EQ(m_Axis->GetLabelTextSize(converter, painter, 1, 1), 4 * 8 + 10.0);
    m_Axis->SetLabelGapPixels(0);
    EXPECT_EQ(m_Axis->GetLabelTextSize(converter, painter, 1, 1), 4 * 8.0);
}

TEST_F(Axis, TheGapIsNotedInLogicalUnits)
{
    m_Model.m_Measure = {3.0, 2};
    m_Model.m_From = 500;
    CScrollConverter const converter(&m_Model);
    m_Axis->GetLabelTextSize(converter, m_Host.Window().GetPainter(), 1000, 100);
    EXPECT_EQ(m_Axis->GetLabelGap(), 15.0);
    EXPECT_EQ(m_Axis->GetLabelTextSize(converter, nullptr, 1000, 100), 15.0);
}

TEST_F(Axis, AllCharactersOfALabelCountAsNines)
{
    class CThin : public CAxis
    {
    public:
        using CAxis::CAxis;
        std::string GetLabelText(double, double) const override { return "\n\n\n"; }  // would be no width at all
    };
    CThin thin(m_Host.Root(), {30, 30}, alBottom);
    CScrollConverter const converter(&m_Model);
    EXPECT_EQ(thin.GetLabelTextSize(converter, m_Host.Window().GetPainter(), 0, 1), 4 * 8 + 10.0);
    thin.ReParent(nullptr, false);
}

TEST_F(Axis, AtASideALabelsRoomIsThatOfTurnedText)
{
    Make(alLeft);
    CScrollConverter const converter(&m_Model);
    IPainter* const painter = m_Host.Window().GetPainter();
    EXPECT_EQ(m_Axis->GetLabelTextSize(converter, painter, 1000, 100), 5 * 8 + 10.0);
    m_Axis->SetRotateText(false);
    EXPECT_EQ(m_Axis->GetLabelTextSize(converter, painter, 1000, 100), 8 + 10.0);
}

// Step --------------------------------------------------------------------------------------------------------------------

namespace
{

class AxisStep : public Axis
{
protected:
    // "step / minor count"
    std::string Choose(double from, double to, std::pair<double, int> measure)
    {
        SetRange(from, to, from);
        m_Model.m_Measure = measure;
        m_Axis->CalcLogicStep();
        return Describe(m_Axis->GetStep()) + " / " + Describe(m_Axis->GetMinorCount());
    }
};

}  // namespace

TEST_F(AxisStep, IsTheFirstPowerOfTenWithRoomForTheLongerEndLabel)
{
    // "1000" takes 50 pixels, 10 is too little for "0" already.
    EXPECT_EQ(Choose(0, 1000, {1.0, 1}), "100 / 10");
    EXPECT_EQ(Choose(1000, 0, {1.0, 1}), "100 / 10");
    EXPECT_EQ(Choose(-1000, 0, {1.0, 1}), "100 / 10");
    // A pixel is 100 units: 1000 is 10 pixels, 10000 is 100, and "10000" takes 58.
    EXPECT_EQ(Choose(0, 10000, {100.0, 1}), "10000 / 10");
    // A hundredth: 0.1 is 10 pixels, 1 is 100. "1.0" takes 42.
    EXPECT_EQ(Choose(0, 1, {0.01, 1}), "1 / 10");
}

TEST_F(AxisStep, IsHalvedWhereThatLeavesMoreThanTheRoomOfALabel)
{
    // Half a unit a pixel: 100 units are 200 pixels, "100" takes 42, and two and a half of that are 105.
    EXPECT_EQ(Choose(0, 100, {0.5, 1}), "50 / 5");
}

TEST_F(AxisStep, OfExactlyTwoAndAHalfLabelsStaysWholeAndIsHalvedJustAbove)
{
    m_Axis->SetLabelGapPixels(8);  // "100" takes 32 + 8
    EXPECT_EQ(Choose(0, 100, {1.0, 1}), "100 / 10");
    m_Axis->SetLabelGapPixels(7);
    EXPECT_EQ(Choose(0, 100, {1.0, 1}), "50 / 5");
}

TEST_F(AxisStep, OfExactlyALabelIsEnough)
{
    m_Axis->SetLabelGapPixels(68);  // "100" takes 32 + 68
    EXPECT_EQ(Choose(0, 100, {1.0, 1}), "100 / 10");
    m_Axis->SetLabelGapPixels(69);
    EXPECT_EQ(Choose(0, 100, {1.0, 1}), "500 / 5");  // 1000 against 2.5 times 109
}

TEST_F(AxisStep, IsLargerForARangeWithLongEndLabelsAtTheSameScale)
{
    EXPECT_EQ(Choose(0, 90, {1.0, 1}), "100 / 10");
    EXPECT_EQ(Choose(-1234567890123, 0, {1.0, 1}), "500 / 5");  // "-1.234567889e+12" takes 146
    EXPECT_EQ(Choose(0, -1234567890123, {1.0, 1}), "500 / 5");
}

TEST_F(AxisStep, MeasuresTheLabelsAtTheNextWholeStepOfBothEnds)
{
    m_Axis->SetLabelGapPixels(60);
    // At a step of 100 the end 901 is labelled "1000", which takes 100, and 900 only 92.
    EXPECT_EQ(Choose(0, 901, {1.0, 1}), "100 / 10");
    m_Axis->SetLabelGapPixels(61);
    EXPECT_EQ(Choose(0, 901, {1.0, 1}), "500 / 5");  // 1000 against 2.5 times 101
    EXPECT_EQ(Choose(0, 900, {1.0, 1}), "100 / 10");
    EXPECT_EQ(Choose(901, 0, {1.0, 1}), "500 / 5");
}

TEST_F(AxisStep, IsNotTriedBelowThreePixelsAndABit)
{
    SetFontSize(1);                 // a character a pixel
    m_Axis->SetLabelGapPixels(-2);  // then "-5.0" takes 3, and "0" nothing
    // 10 units are 31 pixels, so a unit would be too little: they are the first that is tried, and halved.
    EXPECT_EQ(Choose(-5, 0, {10.0, 31}), "5 / 2");
    // Of 32 pixels a tenth is tried, and it is enough.
    EXPECT_EQ(Choose(-5, 0, {10.0, 32}), "1 / 1");
}

TEST_F(AxisStep, MinorTicksUnderFivePixelsAreThinned)
{
    EXPECT_EQ(Choose(0, 5, {1.0, 5}), "10 / 10");  // a unit is 5 pixels; "10" takes 34, of 50
    EXPECT_EQ(Choose(0, 5, {1.0, 4}), "10 / 5");   // 4, so two of them
    m_Axis->SetLabelGapPixels(0);
    EXPECT_EQ(Choose(-5, 0, {1.0, 2}), "10 / 2");  // "0" takes 16, of 20
    SetFontSize(4);
    EXPECT_EQ(Choose(-5, 0, {1.25, 1}), "10 / 1");  // "0" takes 8, of 8
}

TEST_F(AxisStep, MinorTicksOfAHalfStepAreThinnedFromFiveToTwoAndOne)
{
    m_Axis->SetLabelGapPixels(0);
    EXPECT_EQ(Choose(-5, 0, {1.0, 5}), "5 / 5");    // "0" takes 16, of 50: 5 units of 5 pixels
    EXPECT_EQ(Choose(-5, 0, {10.0, 45}), "5 / 2");  // of 45: 5 units of 4.5 pixels
    SetFontSize(3);
    EXPECT_EQ(Choose(-5, 0, {10.0, 18}), "5 / 1");  // "0" takes 6, of 18: halves of 4.5 pixels
}

TEST_F(AxisStep, FollowsTheConvertersUnits)
{
    // A pixel is 10 shown units, a step of 1000 of these 100 pixels. "10005" takes 58, of 100.
    CTenfold tenfold;
    m_Axis->SetUnitConverter(&tenfold);
    EXPECT_EQ(Choose(0, 1000, {1.0, 1}), "100 / 10");

    // Another scale is another step: 1000 shown units are 250 of the model's.
    class CFourfold : public IUnitConverter
    {
    public:
        double ToUnits(double value) override { return value * 4 + 7; }
        double FromUnits(double value) override { return (value - 7) / 4; }
    } fourfold;
    m_Axis->SetUnitConverter(&fourfold);
    // A pixel is 4 shown units: 10 to the power of the rounded-up 0.602 - 0.5 is 10, ten of it 100, of 25 pixels. "4007"
    // takes 50, so 1000 are tried, of 250 pixels: more than 125.
    EXPECT_EQ(Choose(0, 1000, {1.0, 1}), "125 / 5");
}

TEST_F(AxisStep, ConverterUnitsMayBeginAnywhere)
{
    class CShifted : public IUnitConverter
    {
    public:
        double ToUnits(double value) override { return value + 5000; }
        double FromUnits(double value) override { return value - 5000; }
    } shifted;
    m_Axis->SetUnitConverter(&shifted);
    EXPECT_EQ(Choose(0, 1000, {1.0, 1}), "100 / 10");  // "6000" takes 50
}

TEST_F(AxisStep, AConverterThatRunsBackwardsGivesAStepAllTheSame)
{
    class CBackwards : public IUnitConverter
    {
    public:
        double ToUnits(double value) override { return -value; }
        double FromUnits(double value) override { return -value; }
    } backwards;
    m_Axis->SetUnitConverter(&backwards);
    // No pixel size, so the search starts at 1; all labels show ten decimals: "-1000.0000000000" takes 146.
    EXPECT_EQ(Choose(0, 1000, {1.0, 1}), "500 / 5");
}

TEST_F(AxisStep, StaysAsItIsWithoutAModelOrAWindow)
{
    Choose(0, 100, {0.5, 1});
    m_Axis->SetHorzScroll(nullptr);
    m_Axis->CalcLogicStep();
    EXPECT_EQ(m_Axis->GetStep(), 50.0);
    m_Axis->SetHorzScroll(&m_Model);
    m_Host.DestroyWindow();
    EXPECT_EQ(Choose(0, 1000, {1.0, 1}), "50 / 5");
}

TEST_F(AxisStep, StaysAsItIsForEndsThatAreNoNumbers)
{
    for (double const bad : {s_NaN, s_Infinity, -s_Infinity})
    {
        EXPECT_EQ(Choose(0, 100, {0.5, 1}), "50 / 5");
        EXPECT_EQ(Choose(bad, 1000, {1.0, 1}), "50 / 5");
        EXPECT_EQ(Choose(0, bad, {1.0, 1}), "50 / 5");
    }
}

TEST_F(AxisStep, AMeasureThatIsNoneStillGivesAStep)
{
    EXPECT_EQ(Choose(0, 100, {s_NaN, 1}), "10 / 1");
    EXPECT_EQ(Choose(0, 100, {1.0, 0}), "10 / 1");
    EXPECT_EQ(Choose(0, 100, {s_Infinity, 1}), "10 / 1");
}

TEST_F(AxisStep, AConverterThatKnowsNoNumbersStillGivesAStep)
{
    class CLost : public IUnitConverter
    {
    public:
        double m_Value = 0;
        double ToUnits(double) override { return m_Value; }
        double FromUnits(double) override { return m_Value; }
    } lost;
    m_Axis->SetUnitConverter(&lost);
    for (double const value : {s_NaN, s_Infinity, 0.0, 1e300})
    {
        lost.m_Value = value;
        Choose(0, 1000, {1.0, 1});
        EXPECT_GT(m_Axis->GetStep(), 0.0) << value;
        EXPECT_TRUE(std::isfinite(m_Axis->GetStep())) << value;
    }
    lost.m_Value = s_Infinity;
    EXPECT_EQ(Choose(0, 1000, {1.0, 1}), "100 / 10");  // begins at 1; "inf" takes 42
}

TEST_F(AxisStep, EndsBeyondAllMeasure)
{
    // A pixel more is no other value: no gap, and minor ticks have no distance.
    EXPECT_EQ(Choose(1e300, 2e300, {1.0, 1}), "100 / 1");
    SetRange(0, 1e308, 0);
    m_Model.m_Measure = {1e307, 1};
    m_Axis->CalcLogicStep();
    EXPECT_EQ(m_Axis->GetStep(), 1e300);
}

TEST_F(AxisStep, IsChosenByTheOwnMappingAlsoOutsideOfAPaint)
{
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssMeasure);
    IPainter::CoordInfo other;
    other.m_LogicalExtent = {1000, 1000};
    other.m_DeviceExtent = {1, 1};
    painter->SetCoordSystem(IPainter::mmCustom, &other);
    EXPECT_EQ(Choose(0, 1000, {1.0, 1}), "100 / 10");
    IPainter::MapMode mode = IPainter::mmDevice;
    IPainter::CoordInfo after;
    painter->GetCoordSystem(mode, &after);
    EXPECT_EQ(after, other);
    painter->EndPaint();
}
