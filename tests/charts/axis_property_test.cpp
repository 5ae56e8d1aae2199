// Axes on ranges of all sizes: they come to an end, and their ticks and labels stand where they should.

#include "tests/charts/axis_bench.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

using namespace charts_test;

namespace
{

// So many axes are drawn: VEXEL_AXIS_RANGES of the environment, or this.
int CountRanges()
{
    char const* const text = std::getenv("VEXEL_AXIS_RANGES");
    return text ? std::atoi(text) : 20000;
}

// Linear units, which may run backwards, or a logarithm, which knows no numbers below zero.
class CRandomUnits : public IUnitConverter
{
public:
    void Choose(CTestRandom& random)
    {
        m_Logarithm = random.Chance(10);
        m_Factor = std::pow(10.0, random.Real(-30, 30)) * (random.Chance(20) ? -1 : 1);
        m_Offset = random.Bool() ? 0 : std::pow(10.0, random.Real(-30, 30));
        if (random.Chance(3))
            m_Factor = random.Bool() ? 0 : std::numeric_limits<double>::quiet_NaN();
    }
    double ToUnits(double value) override { return m_Logarithm ? std::log10(value) : value * m_Factor + m_Offset; }
    double FromUnits(double value) override
    {
        return m_Logarithm ? std::pow(10.0, value) : (value - m_Offset) / m_Factor;
    }

private:
    bool m_Logarithm = false;
    double m_Factor = 1;
    double m_Offset = 0;
};

// Notes the ticks of a drawing.
class CWatchedAxis : public CAxis
{
public:
    using CAxis::CAxis;
    std::vector<double> m_Ticks;

    void PrepareAttr(point<double> const& position, double value) override
    {
        ASSERT_FALSE(std::isnan(value));
        ASSERT_FALSE(std::isnan(GetAlong(position.x, position.y)));
    }
    void DrawLine(IPainter* painter, point<double>* position, bool major) override
    {
        m_Ticks.push_back(GetAlong(position->x, position->y));
        CAxis::DrawLine(painter, position, major);
    }
};

double AnyNumber(CTestRandom& random)
{
    double const size = std::pow(10.0, random.Real(-300, 300));
    return random.Bool() ? size : -size;
}

class AxisRanges : public testing::Test
{
protected:
    AxisRanges()
    {
        m_Pane->SetPos({0, 0, 200, 200}, false);
        for (Alignment const alignment : {alBottom, alLeft, alTop, alRight})
        {
            m_Axes.push_back(new CWatchedAxis(nullptr, {30, 30}, alignment));
            m_Axes.back()->ReParent(m_Host.Root(), false);
            m_Axes.back()->SetCentralPane(m_Pane);
        }
        m_Host.Paint();
    }
    ~AxisRanges() override { m_Host.DestroyControl(); }

    IPainter* Painter() { return m_Host.Window().GetPainter(); }
    void DrawAxis(CWatchedAxis& axis)
    {
        axis.SetHorzScroll(&m_Model);
        axis.SetVertScroll(&m_Model);
        axis.m_Ticks.clear();
        IPainter* const painter = Painter();
        painter->BeginPaint(IPainter::ssMeasure);
        IPainter::CoordInfo const own;
        painter->SetCoordSystem(IPainter::mmCustom, &own);
        painter->SetFont(axis.GetFont());
        axis.DrawContent(painter);
        painter->EndPaint();
    }
    std::string Told() const
    {
        auto const [logical, physical] = m_Model.m_Measure;
        return "from " + Describe(m_Model.m_From) + " to " + Describe(m_Model.m_To) + " at " +
               Describe(m_Model.m_Start) + ", " + Describe(logical) + " : " + Describe(physical);
    }

    CTestModel m_Model;
    CTestHost m_Host{300, 300};
    CVisualElement* m_Pane = new CVisualElement(m_Host.Root(), {10, 10}, alNone);
    std::vector<CWatchedAxis*> m_Axes;
};

}  // namespace

TEST_F(AxisRanges, OfAnySizeAreDrawnToTheirEnd)
{
    CTestRandom random;
    CRandomUnits units;
    for (int i = CountRanges(); i > 0; --i)
    {
        m_Model.m_From = AnyNumber(random);
        m_Model.m_To = random.Chance(50) ? AnyNumber(random) : m_Model.m_From * random.Real(0.9, 1.1);
        m_Model.m_Start = random.Chance(50) ? m_Model.m_From + (m_Model.m_To - m_Model.m_From) * random.Real(-0.1, 1)
                                            : AnyNumber(random);
        m_Model.m_Measure = {std::pow(10.0, random.Real(-300, 300)), random.Int(1, 100)};
        if (random.Chance(50))
            m_Model.m_Measure.first = std::abs(m_Model.m_To - m_Model.m_From) * std::pow(10.0, random.Real(-9, 1));
        if (random.Chance(2))
            m_Model.m_Measure.second = random.Int(-3, 0);
        for (double* const number : {&m_Model.m_From, &m_Model.m_To, &m_Model.m_Start, &m_Model.m_Measure.first})
            if (random.Chance(1))
                *number = random.Pick(std::vector<double>{0, std::numeric_limits<double>::quiet_NaN(), HUGE_VAL,
                                                          -HUGE_VAL, 5e-324, -1.7e308});
        CWatchedAxis& axis = *random.Pick(m_Axes);
        units.Choose(random);
        axis.SetUnitConverter(random.Chance(30) ? &units : nullptr);
        int const length = random.Chance(5) ? random.Int(0, 3) : random.Int(4, 250);
        m_Pane->SetPos({0, 0, length, length}, false);

        DrawAxis(axis);

        std::vector<double> const& ticks = axis.m_Ticks;
        ASSERT_EQ(axis.GetMajorTicks().size() + axis.GetMinorTicks().size(), ticks.size()) << Told();
        ASSERT_LE(ticks.size(), static_cast<std::size_t>(length) + 1) << Told();
        ASSERT_TRUE(axis.GetStep() > 0 && std::isfinite(axis.GetStep())) << Told();
        ASSERT_TRUE(axis.GetMinorCount() >= 1 && axis.GetMinorCount() <= 10) << Told();
        for (std::size_t k = 0; k < ticks.size(); ++k)
        {
            ASSERT_TRUE(std::isfinite(ticks[k])) << Told();
            ASSERT_TRUE(k == 0 || ticks[k] > ticks[k - 1]) << Told();
        }
    }
}

namespace
{

struct SPlainRange
{
    double from, length, start, pixel;  // units
    bool reversed;
};

// As charts have them: the view lies in the range, and the numbers have digits to spare for a pixel.
SPlainRange Plain(CTestRandom& random)
{
    SPlainRange range{};
    range.pixel = std::pow(10.0, random.Chance(50) ? random.Real(-200, 200) : random.Real(-6, 0));
    int const size = random.Bool() ? 100000 : 4000;
    range.length = range.pixel * random.Int(300, size);
    range.from = range.pixel * random.Int(-size, size);
    range.start = range.from + range.pixel * random.Int(0, 100);
    range.reversed = random.Chance(40);
    return range;
}

}  // namespace

TEST_F(AxisRanges, HaveTheirTicksInWholePartsOfAStepAndLabelsThatDoNotOverlap)
{
    CTestRandom random;
    double widest = 0;
    int gaps = 0;
    for (int i = CountRanges(); i > 0; --i)
    {
        SPlainRange const range = Plain(random);
        double const end = range.from + range.length;
        m_Model.m_From = range.reversed ? end : range.from;
        m_Model.m_To = range.reversed ? range.from : end;
        m_Model.m_Start = range.start;
        m_Model.m_Measure = {range.pixel, 1};
        CWatchedAxis& axis = *random.Pick(m_Axes);
        axis.SetUnitConverter(nullptr);
        m_Pane->SetPos({0, 0, 200, 200}, false);

        DrawAxis(axis);

        // A power of ten, or half of one in fifths.
        double const step = axis.GetStep();
        double const decade = std::log10(step);
        double const halfDecade = std::log10(step * 2);
        bool const whole = std::abs(decade - std::round(decade)) < 1e-9;
        bool const half = std::abs(halfDecade - std::round(halfDecade)) < 1e-9;
        ASSERT_TRUE(whole || half) << Told() << ", step " << step;
        int const parts = axis.GetMinorCount();
        ASSERT_TRUE(parts == 5 || parts == 2 || parts == 1 || (parts == 10 && whole)) << Told() << ", parts " << parts;
        // Minor ticks are 5 pixels apart at least, or there are none.
        double const minor = step / parts / range.pixel;
        ASSERT_TRUE(parts == 1 || minor > 4.99) << Told();
        // Ticks are as far apart as they say, and begin within one of them from the start of the view.
        std::vector<double> const& ticks = axis.m_Ticks;
        double const slack = range.pixel * 1e-3;
        ASSERT_FALSE(ticks.empty()) << Told();
        ASSERT_NEAR(ticks.front(), range.start, step / parts + slack) << Told();
        for (std::size_t k = 1; k < ticks.size(); ++k)
            ASSERT_NEAR(ticks[k] - ticks[k - 1], step / parts, slack) << Told();
        rectangle<double> const shown = axis.GetAxisRect(nullptr);
        double const length = axis.GetAlong(shown.Width(), shown.Height());
        ASSERT_GT(length, 150) << Told();
        ASSERT_NEAR(ticks.back(), range.start + length * range.pixel, step / parts + slack) << Told();
        // Major ticks are whole steps from the beginning, but where the first tick was put on a reversed view's start.
        std::vector<double> const& majors = axis.GetMajorTicks();
        for (std::size_t k = 0; k < majors.size(); ++k)
        {
            double const steps = (majors[k] - m_Model.m_From) / step;
            ASSERT_TRUE(range.reversed || std::abs(steps - std::round(steps)) < 1e-6) << Told();
            // Labels on both sides of a gap have room, by the text that is really drawn: as long as all have the same
            // decimals, the longest stand at the ends.
            double const size = 8 * static_cast<double>(axis.GetLabelText(majors[k], step).size()) * range.pixel;
            widest = std::max(widest, size / step);
            if (k > 0 && std::abs(range.from) < 9999 && std::abs(end) < 9999)
            {
                double const last =
                    8 * static_cast<double>(axis.GetLabelText(majors[k - 1], step).size()) * range.pixel;
                ++gaps;
                ASSERT_GE(majors[k] - size / 2 - (majors[k - 1] + last / 2), 0.0) << Told() << ", step " << step;
            }
        }
    }
    EXPECT_GT(widest, 0.6);  // it was near
    EXPECT_GT(gaps, CountRanges() / 4);
}
