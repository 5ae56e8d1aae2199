#include "tests/platform/text_device.h"

#include "vexel/platform/system.h"
#include "vexel/platform/text_formatter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace vexel::test
{

namespace
{

using Flags = IPainter::AlignmentFlags;

constexpr int Left = IPainter::AlignLeft;
constexpr int Right = IPainter::AlignRight;
constexpr int HCenter = IPainter::AlignHCenter;
constexpr int Top = IPainter::AlignTop;
constexpr int Bottom = IPainter::AlignBottom;
constexpr int VCenter = IPainter::AlignVCenter;
constexpr int SingleLine = IPainter::AlignSingleLine;
constexpr int FitText = IPainter::AlignFitText;
constexpr int MeasureOnly = IPainter::AlignMeasureOnly;
constexpr int Disabled = IPainter::AlignDisabled;

using Size = size<double>;
using Rect = rectangle<double>;

class DrawString : public testing::Test, public STextBench
{
protected:
    Size Draw(Rect const& rect, char const* text, int flags, int count = -1)
    {
        return painter.DrawString(rect, text, flags, count);
    }
    std::string Drawn(Rect const& rect, char const* text, int flags, int count = -1)
    {
        Draw(rect, text, flags, count);
        return Runs();
    }
    Size Wrap(Rect const& rect, char const* text, int flags, char const* delimiters = TextDelimiters)
    {
        return painter.DrawStringEx(rect, text, flags, -1, delimiters, nullptr);
    }
    std::string Wrapped(Rect const& rect, char const* text, int flags, char const* delimiters = TextDelimiters)
    {
        Wrap(rect, text, flags, delimiters);
        return Runs();
    }
};

}  // namespace

// Alignment -----------------------------------------------------------------------------------------------------------

TEST_F(DrawString, WithoutFlagsTheTextStandsLeftAndTopAndItsSizeIsReturned)
{
    EXPECT_EQ(Draw({10, 20, 110, 60}, "Hello", 0), (Size{40, 8}));
    EXPECT_EQ(Runs(), "Hello@10,20");
}

TEST_F(DrawString, EachFlagAlignsOnItsAxisOnly)
{
    Rect const rect{10, 20, 110, 61};  // 100 by 41, the text 40 by 8
    EXPECT_EQ(Drawn(rect, "Hello", Left), "Hello@10,20");
    EXPECT_EQ(Drawn(rect, "Hello", Right), "Hello@70,20");
    EXPECT_EQ(Drawn(rect, "Hello", HCenter), "Hello@40,20");
    EXPECT_EQ(Drawn(rect, "Hello", Top), "Hello@10,20");
    EXPECT_EQ(Drawn(rect, "Hello", Bottom), "Hello@10,53");
    EXPECT_EQ(Drawn(rect, "Hello", VCenter), "Hello@10,36");
    EXPECT_EQ(Drawn(rect, "Hello", 0x22), "Hello@70,36");
    EXPECT_EQ(Drawn(rect, "Hello", 0x24), "Hello@40,36");
}

TEST_F(DrawString, CentreWinsOverRightAndBottomAndTheseOverLeftAndTop)
{
    Rect const rect{10, 20, 110, 61};
    EXPECT_EQ(Drawn(rect, "Hello", Left | Right), "Hello@70,20");
    EXPECT_EQ(Drawn(rect, "Hello", Left | Right | HCenter), "Hello@40,20");
    EXPECT_EQ(Drawn(rect, "Hello", Top | Bottom), "Hello@10,53");
    EXPECT_EQ(Drawn(rect, "Hello", Top | Bottom | VCenter), "Hello@10,36");
    EXPECT_EQ(Drawn(rect, "Hello", 28), "Hello@40,53");
    EXPECT_EQ(Drawn(rect, "Hello", 26), "Hello@70,53");
}

TEST_F(DrawString, ALineBeginsAtAWholePixelRoundedDownAlsoLeftOfZero)
{
    EXPECT_EQ(Drawn({-11, 0, 0, 8}, "A", HCenter), "A@-10,0");  // -11 + 1.5
    EXPECT_EQ(Drawn({-0.25, 0, 20, 8}, "A", Left), "A@-1,0");
    EXPECT_EQ(Drawn({0, -9, 20, 0}, "A", VCenter), "A@0,-9");  // -9 + 0.5
    EXPECT_EQ(Drawn({3.75, 2.5, 20, 20}, "A", Left), "A@3,2");
}

TEST_F(DrawString, EachLineIsAlignedByItself)
{
    EXPECT_EQ(Draw({0, 0, 100, 40}, "abc\nd", Right | Bottom), (Size{24, 16}));
    EXPECT_EQ(Runs(), "abc@76,24 d@92,32");
    EXPECT_EQ(Drawn({0, 0, 100, 40}, "abc\nd", HCenter | VCenter), "abc@38,12 d@46,20");
}

TEST_F(DrawString, ATextLargerThanItsRectangleIsAlignedAllTheSame)
{
    EXPECT_EQ(Drawn({50, 50, 60, 54}, "abc", HCenter | VCenter), "abc@43,48");
    EXPECT_EQ(Drawn({50, 50, 60, 54}, "abc", Right | Bottom), "abc@36,46");
}

// Lines and lengths ---------------------------------------------------------------------------------------------------

TEST_F(DrawString, LinesEndAtLineFeedsOnly)
{
    EXPECT_EQ(Draw({0, 0, 20, 90}, "a long text\nb", 0), (Size{88, 16}));
    EXPECT_EQ(Runs(), "a long text@0,0 b@0,8");
}

TEST_F(DrawString, ALineFeedEndsALineAndBeginsNone)
{
    EXPECT_EQ(Draw({0, 0, 99, 90}, "ab\n", 0), (Size{16, 8}));
    EXPECT_EQ(Runs(), "ab@0,0");
    EXPECT_EQ(Draw({0, 0, 99, 90}, "\n", 0), (Size{0, 8}));
    EXPECT_EQ(Draw({0, 0, 99, 90}, "a\n\nb", 0), (Size{8, 24}));
    EXPECT_EQ(Runs(), "a@0,0 b@0,16");
    EXPECT_EQ(Draw({0, 0, 99, 90}, "a\r\nb", 0), (Size{8, 16}));
    EXPECT_EQ(Runs(), "a@0,0 b@0,8");
}

TEST_F(DrawString, LinesAreStackedByAscentDescentAndLeading)
{
    device.m_Leading = 3;
    EXPECT_EQ(Draw({0, 0, 99, 90}, "a\nb", 0), (Size{8, 22}));
    EXPECT_EQ(Runs(), "a@0,0 b@0,11");
}

TEST_F(DrawString, NoTextHasNoSize)
{
    EXPECT_EQ(Draw({0, 0, 99, 90}, "", 0), (Size{0, 0}));
    EXPECT_EQ(Draw({0, 0, 99, 90}, nullptr, 0), (Size{0, 0}));
    EXPECT_EQ(Draw({0, 0, 99, 90}, "abc", 0, 0), (Size{0, 0}));
    EXPECT_EQ(Wrap({0, 0, 99, 90}, "", FitText), (Size{0, 0}));
    EXPECT_EQ(Runs(), "");
}

TEST_F(DrawString, TheCountCutsTheTextButNoCharacter)
{
    Rect const rect{0, 0, 99, 90};
    EXPECT_EQ(Drawn(rect, "Hello", 0, 3), "Hel@0,0");
    EXPECT_EQ(Drawn(rect, "Hello", 0, 99), "Hello@0,0");
    EXPECT_EQ(Drawn(rect, "a\xC3\xA9z", 0, 2), "a@0,0");
    EXPECT_EQ(Drawn(rect, "a\xC3\xA9z", 0, 3), "a\xC3\xA9@0,0");
    EXPECT_EQ(Drawn(rect, "\xF0\x9F\x98\x80", 0, 3), "");
    EXPECT_EQ(painter.DrawString(rect, std::string("Hello"), 0, 2), (Size{16, 8}));
    EXPECT_EQ(painter.DrawString(rect, std::string("Hello"), 0, -1), (Size{40, 8}));
}

// Clip ----------------------------------------------------------------------------------------------------------------

TEST_F(DrawString, TheOutputIsCutToTheInclusiveRectangle)
{
    Draw({10, 20, 30, 25}, "Hello", 0);
    ASSERT_EQ(device.m_Runs.size(), 1u);
    EXPECT_EQ(device.m_Runs[0].clip, (rectangle<int>{10, 20, 31, 26}));
}

TEST_F(DrawString, ASingleLineIsNotCut)
{
    Draw({10, 20, 30, 25}, "Hello", SingleLine);
    ASSERT_EQ(device.m_Runs.size(), 1u);
    EXPECT_EQ(device.m_Runs[0].clip, (rectangle<int>{0, 0, 200, 100}));
}

TEST_F(DrawString, ThePaintersClipCutsToo)
{
    painter.SetClipRect(20, 0, 24, 99, false);
    Draw({10, 20, 30, 25}, "Hello", 0);
    ASSERT_EQ(device.m_Runs.size(), 1u);
    EXPECT_EQ(device.m_Runs[0].clip, (rectangle<int>{20, 20, 25, 26}));
}

TEST_F(DrawString, LinesFarOutsideOfWhatIsVisibleDoNotReachTheDevice)
{
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "x\n";
    EXPECT_EQ(Draw({0, 0, 50, 99}, text.c_str(), 0), (Size{8, 8000}));
    EXPECT_LE(device.m_Drawn, 20);
}

// Measuring, colours --------------------------------------------------------------------------------------------------

TEST_F(DrawString, MeasuringPaintsNothingAndLeavesTheShortenedFlagAlone)
{
    painter.m_TextShortened = true;
    EXPECT_EQ(Draw({0, 0, 10, 10}, "Hello", MeasureOnly | Left), (Size{40, 8}));
    EXPECT_TRUE(painter.m_TextShortened);
    painter.m_TextShortened = false;
    EXPECT_EQ(Wrap({0, 0, 10, 10}, "Hello", MeasureOnly | FitText), (Size{40, 8}));
    EXPECT_FALSE(painter.m_TextShortened);
    EXPECT_EQ(Runs(), "");
}

TEST_F(DrawString, TheTextHasTheTextColourWhateverItsTopByte)
{
    painter.SetTextColor(_color(0x000000FF));  // red
    Draw({0, 0, 99, 90}, "a", 0);
    EXPECT_EQ(device.m_Runs[0].pixel, 0xFFFF0000u);
}

TEST_F(DrawString, ADisabledTextIsGrey)
{
    painter.SetTextColor(color_table[6]);
    Draw({0, 0, 99, 90}, "a", Disabled);
    EXPECT_EQ(device.m_Runs[0].pixel, 0xFF7F7F7Fu);
    EXPECT_EQ(painter.GetTextColor(), color_table[6]);
}

TEST_F(DrawString, InDisabledModeTheColourIsTakenAsItIs)
{
    painter.m_DisabledMode = true;
    painter.SetTextColor(color_table[8]);
    Draw({0, 0, 99, 90}, "a", 0);
    EXPECT_EQ(device.m_Runs[0].pixel, 0xFF7F7F7Fu);
}

TEST_F(DrawString, WithoutAColourNothingIsPainted)
{
    painter.SetTextColor(color_table[0]);
    EXPECT_EQ(Draw({0, 0, 99, 90}, "a", 0), (Size{8, 8}));
    EXPECT_EQ(Runs(), "");
}

TEST_F(DrawString, StylesReachTheDeviceAndBoldIsWider)
{
    UseFont(font::fsBold | font::fsUnderline, 0);
    EXPECT_EQ(Draw({0, 0, 99, 90}, "ab", 0), (Size{18, 8}));
    EXPECT_EQ(Runs(), "ab@0,0[bu]");
}

// Fitting -------------------------------------------------------------------------------------------------------------

TEST_F(DrawString, ATextThatFitsIsNotShortened)
{
    painter.m_TextShortened = true;
    EXPECT_EQ(Draw({0, 0, 88, 8}, "Hello World", FitText), (Size{88, 8}));
    EXPECT_EQ(Runs(), "Hello World@0,0");
    EXPECT_FALSE(painter.m_TextShortened);
}

TEST_F(DrawString, ATextThatIsTooWideEndsInDotsAndReturnsItsFullSize)
{
    EXPECT_EQ(Draw({0, 0, 87, 8}, "Hello World", FitText), (Size{88, 8}));
    EXPECT_EQ(Runs(), "Hello W@0,0 ...@56,0");  // 63 pixels before the dots
    EXPECT_TRUE(painter.m_TextShortened);
    EXPECT_EQ(Drawn({0, 0, 60, 8}, "Hello World", FitText), "Hell@0,0 ...@32,0");
}

TEST_F(DrawString, WithoutTheFlagNothingIsShortened)
{
    painter.m_TextShortened = true;
    EXPECT_EQ(Drawn({0, 0, 60, 8}, "Hello World", 0), "Hello World@0,0");
    EXPECT_FALSE(painter.m_TextShortened);
}

TEST_F(DrawString, AShortenedTextIsAlignedByWhatIsLeftOfIt)
{
    EXPECT_EQ(Drawn({0, 0, 60, 8}, "Hello World", FitText | Right), "Hell@4,0 ...@36,0");
    EXPECT_EQ(Drawn({0, 0, 60, 8}, "Hello World", FitText | HCenter), "Hell@2,0 ...@34,0");
}

TEST_F(DrawString, TheDotsAloneAreLeftWhereNotEvenTheyHaveRoom)
{
    EXPECT_EQ(Drawn({0, 0, 30, 8}, "Hello", FitText), "...@0,0");
    EXPECT_EQ(Drawn({0, 0, 10, 8}, "Hello", FitText), "...@0,0");
    EXPECT_EQ(Drawn({0, 0, 0, 8}, "Hello", FitText), "...@0,0");
}

TEST_F(DrawString, NoCharacterIsCutByShortening)
{
    // Four characters of two bytes each; 40 pixels leave room for two before the dots.
    EXPECT_EQ(Drawn({0, 0, 47, 8}, "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F\xC3\xA4\xC3\xB6", FitText),
              "\xC3\xA4\xC3\xB6@0,0 ...@16,0");
    EXPECT_EQ(Drawn({0, 0, 32, 8}, "\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80",
                    FitText),
              "\xF0\x9F\x98\x80@0,0 ...@8,0");
}

TEST_F(DrawString, TheLastLineThatFitsTellsOfThoseThatDoNot)
{
    EXPECT_EQ(Draw({0, 0, 99, 23}, "aa\nbb\ncc", FitText), (Size{16, 24}));
    EXPECT_EQ(Runs(), "aa@0,0 bb@0,8 ...@16,8");
    EXPECT_TRUE(painter.m_TextShortened);
    EXPECT_EQ(Drawn({0, 0, 99, 24}, "aa\nbb\ncc", FitText), "aa@0,0 bb@0,8 cc@0,16");
    EXPECT_FALSE(painter.m_TextShortened);
}

TEST_F(DrawString, OneLineIsDrawnInARectangleTooLowForIt)
{
    EXPECT_EQ(Drawn({0, 0, 99, 3}, "aa\nbb", FitText | VCenter), "aa@0,-3 ...@16,-3");  // -2.5
}

TEST_F(DrawString, TheDotsTakeCharactersAwayWhereTheLastLineIsFull)
{
    EXPECT_EQ(Drawn({0, 0, 40, 8}, "abcde\nf", FitText), "ab@0,0 ...@16,0");
}

TEST_F(DrawString, EveryLineThatIsTooWideIsShortened)
{
    EXPECT_EQ(Drawn({0, 0, 40, 90}, "abcdefgh\nxy", FitText), "ab@0,0 ...@16,0 xy@0,8");
    EXPECT_TRUE(painter.m_TextShortened);
}

TEST_F(DrawString, ASingleLineCanBeFittedAndIsStillNotCut)
{
    Draw({0, 0, 40, 8}, "abcdefgh", SingleLine | FitText);
    ASSERT_EQ(device.m_Runs.size(), 2u);
    EXPECT_EQ(device.m_Runs[0].clip, (rectangle<int>{0, 0, 200, 100}));
    EXPECT_EQ(Runs(), "ab@0,0 ...@16,0");
    EXPECT_EQ(Drawn({0, 0, 64, 8}, "abcdefgh", 36 | 320), "abcdefgh@0,0");
}

TEST_F(DrawString, ARectangleAsWideAsTheTextFitsAlsoAfterReckoningWithFractions)
{
    double const middle = 1.0 / 3 + 40;
    EXPECT_EQ(Drawn({middle - 32, 0, middle + 32, 8}, "abcdefgh", FitText), "abcdefgh@8,0");
    EXPECT_EQ(Drawn({0.1 + 0.2, 0, 64.3, 8}, "abcdefgh", FitText), "abcdefgh@0,0");
}

// Wrapping ------------------------------------------------------------------------------------------------------------

TEST_F(DrawString, LinesAreWrappedBehindBlanksWhichThenDoNotCount)
{
    EXPECT_EQ(Wrap({0, 0, 64, 90}, "one two three", 0), (Size{56, 16}));
    EXPECT_EQ(Runs(), "one two@0,0 three@0,8");
    EXPECT_EQ(Wrap({0, 0, 56, 90}, "one two three", Right), (Size{56, 16}));
    EXPECT_EQ(Runs(), "one two@0,0 three@16,8");
    EXPECT_EQ(Wrap({0, 0, 55, 90}, "one two three", 0), (Size{40, 24}));
    EXPECT_EQ(Runs(), "one@0,0 two@0,8 three@0,16");
}

TEST_F(DrawString, SeveralBlanksAreOneBreak)
{
    EXPECT_EQ(Wrap({0, 0, 40, 90}, "one    two", 0), (Size{24, 16}));
    EXPECT_EQ(Runs(), "one@0,0 two@0,8");
}

TEST_F(DrawString, EachDelimiterStaysOnItsLine)
{
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "ab.cd", 0), "ab.@0,0 cd@0,8");
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "ab/cd", 0), "ab/@0,0 cd@0,8");
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "ab\\cd", 0), "ab\\@0,0 cd@0,8");
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "ab\ncd", 0), "ab@0,0 cd@0,8");
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "ab<cd", 0), "ab<cd@0,0");
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "ab<cd", 0, MarkupDelimiters), "ab<@0,0 cd@0,8");
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "ab.c d", 0, " \n"), "ab.c@0,0 d@0,8");
}

TEST_F(DrawString, ADelimiterIsNotTakenToTheLineThatItWouldOverfill)
{
    EXPECT_EQ(Wrapped({0, 0, 40, 90}, "a.bc.def", 0), "a.bc.@0,0 def@0,8");
    EXPECT_EQ(Wrapped({0, 0, 39, 90}, "a.bc.def", 0), "a.@0,0 bc.@0,8 def@0,16");
}

TEST_F(DrawString, AWordWiderThanTheLineStaysWhole)
{
    EXPECT_EQ(Wrap({0, 0, 32, 90}, "abcdefgh ij", 0), (Size{64, 16}));
    EXPECT_EQ(Runs(), "abcdefgh@0,0 ij@0,8");
    EXPECT_EQ(Wrapped({0, 0, 32, 90}, "ij abcdefgh kl", 0), "ij@0,0 abcdefgh@0,8 kl@0,16");
    EXPECT_EQ(Wrapped({0, 0, 0, 90}, "a b", 0), "a@0,0 b@0,8");
}

TEST_F(DrawString, WithoutDelimitersOrAsASingleLineNothingIsWrapped)
{
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "one two", 0, nullptr), "one two@0,0");
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "one two", 0, ""), "one two@0,0");
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "one two", SingleLine), "one two@0,0");
    EXPECT_EQ(Wrapped({0, 0, 24, 90}, "one\ntwo", SingleLine), "one@0,0 two@0,8");
}

TEST_F(DrawString, BlanksAtTheEndCountWhereTheyHaveRoom)
{
    EXPECT_EQ(Wrap({0, 0, 99, 90}, "abc  ", 0), (Size{40, 8}));
    EXPECT_EQ(Wrap({0, 0, 30, 90}, "abc  ", 0), (Size{24, 8}));
    EXPECT_EQ(Wrap({0, 0, 30, 90}, "abc  \nd", 0), (Size{24, 16}));
}

TEST_F(DrawString, TheSizeReturnedIsTheWrappedOneAlsoWhereItIsShortened)
{
    EXPECT_EQ(Wrap({0, 0, 64, 8}, "one two three four", FitText), (Size{56, 24}));
    EXPECT_EQ(Runs(), "one t@0,0 ...@40,0");
    EXPECT_TRUE(painter.m_TextShortened);
    EXPECT_EQ(Wrapped({0, 0, 64, 16}, "one two three four", FitText), "one two@0,0 three@0,8 ...@40,8");
}

TEST_F(DrawString, AWrappedLineIsMeasuredAsItIsDrawn)
{
    device.m_TightenAbove = 5;  // "one two", of seven bytes, is a pixel narrower than its words
    EXPECT_EQ(Wrap({0, 0, 64, 90}, "one two three", 0), (Size{55, 16}));
    EXPECT_EQ(Wrap({0, 0, 55, 90}, "one two", 0), (Size{55, 8}));
}

TEST_F(DrawString, AFormatterThatStaysWhereItIsIsLeft)
{
    class CStuck : public CDefTextFormatter
    {
    public:
        bool GetTextLine(IPainter*, char const*&, int& length, int&, int, char const*) override
        {
            length = 0;
            return true;
        }
    };
    CStuck stuck;
    EXPECT_EQ(painter.DrawStringEx({0, 0, 9, 9}, "abc", 0, -1, " ", &stuck), (Size{0, 0}));
}

TEST_F(DrawString, ATextMayBeDrawnWhileAnotherOneIs)
{
    class CNesting : public CDefTextFormatter
    {
    public:
        void DrawTextLine(IPainter* painter, int x, int y, char const* text, int length) override
        {
            painter->DrawString(Rect{100, 50, 150, 90}, "in\nner", Disabled, -1);
            CDefTextFormatter::DrawTextLine(painter, x, y, text, length);
        }
    };
    CNesting nesting;
    UseFont(0, 2700);
    painter.DrawStringEx({0, 0, 50, 50}, "a\nb", 0, -1, " ", &nesting);
    ASSERT_EQ(device.m_Runs.size(), 6u);
    EXPECT_EQ(device.m_Runs[2].pixel, 0xFF000000u);
    EXPECT_EQ(device.m_Runs[2].clip, (rectangle<int>{0, 0, 51, 51}));
    EXPECT_EQ(Runs(), "in@116,50 ner@108,50 a@16,0 in@116,50 ner@108,50 b@8,0");
}

// Mappings ------------------------------------------------------------------------------------------------------------

namespace
{

IPainter::CoordInfo Mapping(size<double> const& logical, size<int> const& device, point<int> const& origin)
{
    IPainter::CoordInfo info;
    info.m_LogicalExtent = logical;
    info.m_DeviceExtent = device;
    info.m_DeviceOrigin = origin;
    return info;
}

}  // namespace

TEST_F(DrawString, RectanglesAndSizesAreLogicalButTheTextIsNotStretched)
{
    IPainter::CoordInfo const info = Mapping({50, 200}, {100, 100}, {10, 5});  // twice as wide, half as high
    painter.SetCoordSystem(IPainter::mmCustom, &info);
    EXPECT_EQ(Draw({10, 20, 60, 180}, "Hello", 0x24), (Size{20, 16}));
    EXPECT_EQ(Runs(), "Hello@60,51");  // device (30, 15) to (130, 95)
    EXPECT_EQ(painter.GetTextSize("Hello", nullptr), (Size{20, 16}));
    EXPECT_EQ(painter.GetTextSize("Hello", nullptr, -1, false), (Size{40, 8}));
    EXPECT_EQ(painter.GetTextRect({10, 20, 60, 180}, {20, 16}, 0x24), (Rect{25, 92, 45, 108}));
}

TEST_F(DrawString, OnTurnedAxesTheCornersAreOrderedAndSizesStayPositive)
{
    IPainter::CoordInfo const info = Mapping({100, 100}, {-100, -100}, {150, 90});
    painter.SetCoordSystem(IPainter::mmCustom, &info);
    EXPECT_EQ(Draw({0, 0, 100, 80}, "Hello", Right | Bottom), (Size{40, 8}));  // device (50, 10) to (150, 90)
    EXPECT_EQ(Runs(), "Hello@110,82");
    EXPECT_EQ(painter.GetTextSize("Hello", nullptr), (Size{40, 8}));
    EXPECT_EQ(painter.GetTextRect({0, 0, 100, 80}, {40, 8}, Right | Bottom), (Rect{0, 0, 40, 8}));
}

TEST_F(DrawString, ExtentsOfNothingDoNoHarm)
{
    IPainter::CoordInfo const info = Mapping({0, 0}, {0, 0}, {5, 5});
    painter.SetCoordSystem(IPainter::mmCustom, &info);
    EXPECT_EQ(Draw({0, 0, 100, 80}, "Hello", 0), (Size{40, 8}));
    EXPECT_EQ(Runs(), "Hello@5,5");
    double const infinite = std::numeric_limits<double>::infinity();
    Draw({-infinite, -infinite, infinite, infinite}, "Hello", HCenter | VCenter | FitText);
    Draw({std::nan(""), std::nan(""), std::nan(""), std::nan("")}, "Hello", Right | FitText);
    Draw({-1e300, -1e300, 1e300, 1e300}, "Hello", Right | Bottom | FitText);
}

// Rotation ------------------------------------------------------------------------------------------------------------

TEST_F(DrawString, ATextThatReadsUpwardIsAlignedAsABox)
{
    UseFont(0, 900);
    Rect const rect{10, 20, 60, 100};  // 50 by 80, the box 8 by 24
    EXPECT_EQ(Draw(rect, "abc", 0), (Size{8, 24}));
    EXPECT_EQ(Runs(), "abc@10,44");
    EXPECT_EQ(Drawn(rect, "abc", HCenter | VCenter), "abc@31,72");
    EXPECT_EQ(Drawn(rect, "abc", Right | Bottom), "abc@52,100");
}

TEST_F(DrawString, ATextThatReadsDownwardIsAlignedAsABox)
{
    UseFont(0, 2700);
    Rect const rect{10, 20, 60, 100};
    EXPECT_EQ(Draw(rect, "abc", 0), (Size{8, 24}));
    EXPECT_EQ(Runs(), "abc@18,20");
    EXPECT_EQ(Drawn(rect, "abc", HCenter | VCenter), "abc@39,48");
    EXPECT_EQ(Drawn(rect, "abc", Right | Bottom), "abc@60,76");
}

TEST_F(DrawString, ATextUpsideDownIsAlignedAsABox)
{
    UseFont(0, 1800);
    Rect const rect{10, 20, 60, 100};
    EXPECT_EQ(Draw(rect, "abc", 0), (Size{24, 8}));
    EXPECT_EQ(Runs(), "abc@34,28");
    EXPECT_EQ(Drawn(rect, "abc", Right | Bottom), "abc@60,100");
}

TEST_F(DrawString, RotatedLinesFollowEachOtherInReadingOrder)
{
    Rect const rect{10, 20, 60, 100};
    UseFont(0, 900);
    EXPECT_EQ(Draw(rect, "abc\nd", 0), (Size{16, 24}));
    EXPECT_EQ(Runs(), "abc@10,44 d@18,28");
    EXPECT_EQ(Drawn(rect, "abc\nd", Bottom), "abc@10,100 d@18,100");
    EXPECT_EQ(Drawn(rect, "abc\nd", VCenter | Right), "abc@44,72 d@52,64");
    UseFont(0, 2700);
    EXPECT_EQ(Drawn(rect, "abc\nd", 0), "abc@26,20 d@18,20");
    EXPECT_EQ(Drawn(rect, "abc\nd", Bottom), "abc@26,76 d@18,92");
    UseFont(0, 1800);
    EXPECT_EQ(Drawn(rect, "abc\nd", 0), "abc@34,36 d@18,28");
    EXPECT_EQ(Drawn(rect, "abc\nd", Right), "abc@60,36 d@60,28");
}

TEST_F(DrawString, ARotatedTextIsWrappedAndFittedAlongItsReading)
{
    UseFont(0, 900);
    EXPECT_EQ(Wrap({10, 20, 60, 100}, "one two three", 0), (Size{16, 56}));  // 80 pixels to read
    EXPECT_EQ(Runs(), "one two@10,76 three@18,60");
    EXPECT_EQ(Draw({10, 20, 60, 60}, "abcdef", FitText), (Size{8, 48}));
    EXPECT_EQ(Runs(), "ab@10,60 ...@10,44");
    EXPECT_TRUE(painter.m_TextShortened);
    EXPECT_EQ(Drawn({10, 20, 25, 60}, "a\nb", FitText), "a@10,52 ...@10,44");  // 15 pixels hold one line
    UseFont(0, 2700);
    EXPECT_EQ(Drawn({10, 20, 60, 60}, "abcdef", FitText), "ab@18,20 ...@18,36");
}

TEST_F(DrawString, OtherRotationsAreAlignedByTheirBoundingBox)
{
    UseFont(0, 450);
    EXPECT_EQ(Draw({0, 0, 100, 100}, "abcd", 0), (Size{29, 29}));  // (32 + 8) / square root of 2
    EXPECT_EQ(Runs(), "abcd@0,23");
    EXPECT_EQ(Draw({0, 0, 129, 100}, "abcd", Right), (Size{29, 29}));
    EXPECT_EQ(Runs(), "abcd@100,23");
    EXPECT_EQ(Wrapped({0, 0, 10, 10}, "abc d", FitText), "abc d@0,28");  // neither wrapped nor shortened
    EXPECT_FALSE(painter.m_TextShortened);
}

TEST_F(DrawString, RotationsAreTakenRoundTheCircle)
{
    UseFont(0, -900);
    Draw({10, 20, 60, 100}, "abc", 0);
    EXPECT_EQ(device.m_Runs[0].rotation, 2700);
    EXPECT_EQ(Runs(), "abc@18,20");
    UseFont(0, 4500);
    EXPECT_EQ(painter.GetTextSize("abc", nullptr), (Size{8, 24}));
}

// Sizes ---------------------------------------------------------------------------------------------------------------

TEST_F(DrawString, TextSizesAreMeasuredAlsoOutsideOfAPaint)
{
    EXPECT_EQ(painter.GetTextSize("abc\nd", nullptr), (Size{24, 16}));
    EXPECT_EQ(painter.GetTextSize("", nullptr), (Size{0, 0}));
    EXPECT_EQ(painter.GetTextSize("abc", nullptr, 2), (Size{16, 8}));
    EXPECT_EQ(painter.GetTextSize("abc", nullptr, 0), (Size{0, 0}));
    EXPECT_EQ(painter.GetTextSize("a\xC3\xA9", nullptr, 2), (Size{8, 8}));
    EXPECT_EQ(painter.GetTextSize("one two three", nullptr), (Size{104, 8}));
    EXPECT_EQ(Runs(), "");
}

TEST_F(DrawString, AnotherFontIsMeasuredWithoutTakingIt)
{
    font other = painter.GetFont();
    other.style = font::fsBold;
    other.size = 16;
    EXPECT_EQ(painter.GetTextSize("abc", &other), (Size{51, 16}));
    EXPECT_EQ(painter.GetFont().size, 8);
    EXPECT_EQ(painter.GetTextSize("abc", nullptr), (Size{24, 8}));
    fontmetrics metrics;
    painter.GetFontMetrics(&metrics);
    EXPECT_EQ(metrics.ascent, 6);
    EXPECT_EQ(metrics.descent, 2);
    EXPECT_EQ(metrics.leading, 0);
}

TEST_F(DrawString, TheSizeOfARotatedTextIsThatOfItsBoxUnlessAskedUpright)
{
    UseFont(0, 2700);
    EXPECT_EQ(painter.GetTextSize("abc", nullptr), (Size{8, 24}));
    EXPECT_EQ(painter.GetTextSize("abc", nullptr, -1, true, false), (Size{24, 8}));
}

TEST_F(DrawString, TextRectsFollowTheFlags)
{
    Rect const rect{10, 20, 110, 61};
    EXPECT_EQ(painter.GetTextRect(rect, {40, 8}, 0), (Rect{10, 20, 50, 28}));
    EXPECT_EQ(painter.GetTextRect(rect, {40, 8}, 0x22), (Rect{70, 36, 110, 44}));
    EXPECT_EQ(painter.GetTextRect(rect, {40, 8}, 0x24), (Rect{40, 36, 80, 44}));
    EXPECT_EQ(painter.GetTextRect(rect, {140, 8}, HCenter), (Rect{-10, 20, 130, 28}));
}

TEST_F(DrawString, AFittedTextStandsInItsRectangle)
{
    EXPECT_EQ(painter.GetTextRect({10, 20, 110, 61}, {140, 80}, HCenter | VCenter | FitText), (Rect{10, 20, 110, 61}));
    EXPECT_EQ(painter.GetTextRect({10, 20, 110, 61}, {40, 8}, HCenter | FitText), (Rect{40, 20, 80, 28}));
}

// Fonts ---------------------------------------------------------------------------------------------------------------

namespace
{

class CFontSystem : public ISystem
{
public:
    IPointer* GetPointer() override { return nullptr; }
    IClipboard* GetClipboard() override { return nullptr; }
    ISysPalette* GetPalette() override { return nullptr; }
    font GetDefaultFont() override { return m_Font; }
    int GetSystemMetric(int) override { return 0; }
    double GetScale() override { return 1; }
    vexel_ptr<ISysTimer> CreateTimer(int, int) override { return {}; }
    vexel_ptr<IRasterPicture> CreateRasterPicture(size<int> const&) override { return {}; }
    vexel_ptr<IRasterPicture> CreateRasterPicture(XPMBuf const&) override { return {}; }
    vexel_ptr<IRunner> GetRunner() override { return {}; }
    vexel_ptr<ILock> CreateLock() override { return {}; }

    font m_Font;
};

class DefaultFont : public testing::Test, public STextBench
{
protected:
    DefaultFont()
    {
        system.m_Font.name = "Plain";
        system.m_Font.family = font::ffMono;
        system.m_Font.size = 10;
        m_Former = SetCurrentSystem(&system);
    }
    ~DefaultFont() override { SetCurrentSystem(m_Former); }

    font Effective(font const& value)
    {
        painter.SetFont(value);
        painter.MeasureRun("x", 1);
        return device.m_LastFont;
    }

    CFontSystem system;

private:
    ISystem* m_Former = nullptr;
};

}  // namespace

TEST_F(DefaultFont, WhatAFontLeavesOpenIsTakenFromTheDefault)
{
    font const effective = Effective(font());
    EXPECT_EQ(effective.name, "Plain");
    EXPECT_EQ(effective.family, font::ffMono);
    EXPECT_EQ(effective.size, 10);
    EXPECT_EQ(effective.factor, 1.0);
    EXPECT_EQ(painter.GetFont(), font());
}

TEST_F(DefaultFont, WhatAFontSaysIsKept)
{
    font value;
    value.family = font::ffSerif;
    value.size = 12;
    value.style = font::fsItalic;
    value.factor = 1.5;
    font const effective = Effective(value);
    EXPECT_EQ(effective.name, "");  // the family decides
    EXPECT_EQ(effective.family, font::ffSerif);
    EXPECT_EQ(effective.size, 12);
    EXPECT_EQ(effective.style, font::fsItalic);
    EXPECT_EQ(effective.factor, 1.5);

    font named;
    named.name = "Fancy";
    EXPECT_EQ(Effective(named).name, "Fancy");
    named.factor = -1;
    EXPECT_EQ(Effective(named).factor, 1.0);
}

TEST_F(DefaultFont, AChangeOfTheDefaultIsSeenAtTheNextUse)
{
    painter.SetFont(font());
    EXPECT_EQ(painter.GetTextSize("ab", nullptr), (Size{20, 10}));
    system.m_Font.size = 20;
    EXPECT_EQ(GetDefaultGUIFont().size, 10);
    RefreshDefaultGUIFont();
    EXPECT_EQ(GetDefaultGUIFont().size, 20);
    EXPECT_EQ(painter.GetTextSize("ab", nullptr), (Size{40, 20}));
}

TEST_F(DefaultFont, ADefaultThatSaysNothingStillHasASizeAndAFamily)
{
    system.m_Font = font();
    RefreshDefaultGUIFont();
    EXPECT_EQ(GetDefaultGUIFont().size, 8);
    EXPECT_EQ(GetDefaultGUIFont().family, font::ffSans);
}

}  // namespace vexel::test
