// Counts allocations of the whole process, so this is a program of its own.

#include "tests/platform/text_device.h"
#include "tests/support/allocation.h"

#include "vexel/platform/text_formatter.h"

#include <gtest/gtest.h>

namespace vexel::test
{

namespace
{

class TextAllocation : public testing::Test, public STextBench
{
protected:
    TextAllocation() { device.m_Keeps = false; }

    template <class Draw> long AllocationsOf(Draw draw)
    {
        draw();  // what is kept from then on
        return CountAllocations([&] {
            for (int i = 0; i < 10; ++i)
                draw();
        });
    }

    rectangle<double> rect{0, 0, 150, 20};
};

}  // namespace

TEST_F(TextAllocation, TheCounterCounts)
{
    EXPECT_EQ(AllocationsOf([] { delete new int; }), 10);
}

TEST_F(TextAllocation, AShortLineIsMeasuredOnceAndAllocatesNothing)
{
    for (int const flags : {0, 0x21, 0x22, 0x24, 0x121, 0x64})
    {
        EXPECT_EQ(AllocationsOf([&] { painter.DrawString(rect, "A short line", flags, -1); }), 0) << flags;
        device.m_Measured = 0;
        painter.DrawString(rect, "A short line", flags, -1);
        EXPECT_EQ(device.m_Measured, 1) << flags;
    }
    device.m_Measured = 0;
    painter.DrawStringEx(rect, "A short line", 0x121, -1, TextDelimiters, nullptr);
    EXPECT_EQ(device.m_Measured, 1);
}

TEST_F(TextAllocation, AlsoTheVeryFirstShortLineAllocatesNothing)
{
    painter.MeasureRun("x", 1);
    device.m_LastFont.name.reserve(100);
    painter.DrawString(rect, "warm", 0, -1);
    EXPECT_EQ(CountAllocations([&] { painter.DrawString(rect, "Another line", 0x21, -1); }), 0);
}

TEST_F(TextAllocation, MeasuringAllocatesNothing)
{
    std::string const text = "some text that has a length of more than sixteen";
    font other = painter.GetFont();
    other.name = "A name that is longer than sixteen characters";
    other.size = 10;
    EXPECT_EQ(AllocationsOf([&] { painter.GetTextSize(text, nullptr); }), 0);
    EXPECT_EQ(AllocationsOf([&] { painter.GetTextSize(text, &other); }), 0);
}

TEST_F(TextAllocation, LongAndShortenedAndMarkedUpTextsAllocateNothingOnceTheyWereDrawn)
{
    CHTMLTextFormatter formatter;
    EXPECT_EQ(AllocationsOf([&] {
                  painter.DrawStringEx(rect, "a text that takes more than the one line there is", 0x101, -1,
                                       TextDelimiters, nullptr);
              }),
              0);
    EXPECT_EQ(AllocationsOf([&] {
                  painter.DrawStringEx(
                      rect, "a <b>text</b> of <a href=\"a target that is long\">several</a> lines &amp; styles", 0x101,
                      -1, MarkupDelimiters, &formatter);
              }),
              0);
}

TEST_F(TextAllocation, FontsThatAlternateAllocateNothing)
{
    font one = painter.GetFont();
    one.name = "A name that is longer than sixteen characters";
    font two = one;
    two.size = 12;
    EXPECT_EQ(AllocationsOf([&] {
                  painter.SetFont(one);
                  painter.DrawString(rect, "one", 0, -1);
                  painter.SetFont(two);
                  painter.DrawString(rect, "two", 0, -1);
              }),
              0);
}

}  // namespace vexel::test
