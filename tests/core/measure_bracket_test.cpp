// Measuring between paints and within one.

#include "vexel/core/measure_bracket.h"

#include "tests/support/recording_painter.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

font FontOf(int size)
{
    font value;
    value.size = size;
    return value;
}

}  // namespace

TEST(MeasureBracket, BetweenPaintsItOpensThePainterForMeasuring)
{
    CCallLog log;
    CRecordingPainter painter(log);
    {
        CMeasureBracket const bracket(&painter, FontOf(12));
        EXPECT_EQ(painter.GetFont().size, 12);
        EXPECT_EQ(log.Take({"BeginPaint", "EndPaint"}), "painter.BeginPaint(3)");
    }
    EXPECT_EQ(log.Take(), "painter.EndPaint()");
}

TEST(MeasureBracket, WithinAPaintItOnlyPutsTheFontBack)
{
    CCallLog log;
    CRecordingPainter painter(log);
    painter.SetFont(FontOf(9));
    painter.m_Painting = true;
    log.Take();
    {
        CMeasureBracket const bracket(&painter, FontOf(12));
        EXPECT_EQ(painter.GetFont().size, 12);
    }
    EXPECT_EQ(painter.GetFont().size, 9);
    EXPECT_EQ(log.Take({"BeginPaint", "EndPaint"}), "");
}
