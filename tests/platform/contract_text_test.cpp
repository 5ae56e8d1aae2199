#include "tests/platform/contract_bench.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

// Text on surfaces of the backend. Its letters look and measure as the backend likes, so these are the properties that
// hold for all: ink lies where the contract says, and what is measured is what is drawn.

namespace vexelbase::tests
{

namespace
{

using Rect = rectangle<double>;
constexpr int Left = IPainter::AlignLeft;
constexpr int Right = IPainter::AlignRight;
constexpr int HCenter = IPainter::AlignHCenter;
constexpr int Top = IPainter::AlignTop;
constexpr int Bottom = IPainter::AlignBottom;
constexpr int VCenter = IPainter::AlignVCenter;
constexpr int Single = IPainter::AlignSingleLine;
constexpr int Fit = IPainter::AlignFitText;
constexpr int Measure = IPainter::AlignMeasureOnly;
constexpr int Disabled = IPainter::AlignDisabled;
constexpr int Horizontals[] = {0, Left, HCenter, Right, Left | Right, Left | HCenter, Right | HCenter};
constexpr int Verticals[] = {0, Top, VCenter, Bottom, Top | Bottom, Top | VCenter, Bottom | VCenter};

class ContractText : public CContractPaintTest
{
protected:
    static void Clean(IPainter& painter)
    {
        painter.SetBrush(BrushOf(White));
        painter.FillRect(0, 0, 119, 119);
    }
    /// The box of all that isn't white, half-open.
    static std::optional<rectangle<int>> Ink(IPainter& painter)
    {
        rectangle<int> box{1000, 1000, -1, -1};
        for (int y = 0; y < 120; ++y)
        {
            for (int x = 0; x < 120; ++x)
            {
                if ((painter.GetPixel(x, y).m_Value & 0xFFFFFFu) == 0xFFFFFFu)
                    continue;
                box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
                       std::max(box.bottom, y + 1)};
            }
        }
        if (box.right < 0)
            return {};
        return box;
    }
    /// Where the block of a text stands along one axis: the contract's precedence, rounded down.
    static double Place(double low, double room, double extent, bool center, bool end)
    {
        return std::floor(center ? low + (room - extent) / 2 : end ? low + room - extent : low);
    }
    static Rect PlaceOf(Rect const& rect, size<double> const& extent, int flags)
    {
        double const x = Place(rect.left, rect.Width(), extent.width, (flags & HCenter) != 0, (flags & Right) != 0);
        double const y = Place(rect.top, rect.Height(), extent.height, (flags & VCenter) != 0, (flags & Bottom) != 0);
        return {x, y, x + extent.width, y + extent.height};
    }
    /// How far letters may reach out of their own box.
    static int Overhang(IPainter& painter)
    {
        fontmetrics metrics;
        painter.GetFontMetrics(&metrics);
        return 2 + metrics.ascent / 4;
    }
    static int LineHeight(IPainter& painter)
    {
        fontmetrics metrics;
        painter.GetFontMetrics(&metrics);
        return metrics.ascent + metrics.descent + metrics.leading;
    }
};

}  // namespace

// Sizes ------------------------------------------------------------------------------------------------------------

TEST_F(ContractText, IsAsHighAsItsLinesAndNothingWithoutALetter)
{
    OnEachPainter([](IPainter& painter) {
        int const line = LineHeight(painter);
        ASSERT_GT(line, 0);
        EXPECT_EQ(painter.GetTextSize("Word", nullptr).height, line);
        EXPECT_EQ(painter.GetTextSize("Word\nand\nmore", nullptr).height, 3 * line);
        EXPECT_EQ(painter.GetTextSize("", nullptr), (size<double>{0, 0}));
        EXPECT_GT(painter.GetTextSize("Word", nullptr).width, 0);
        EXPECT_GT(painter.GetTextSize(" ", nullptr).width, 0);
    });
}

TEST_F(ContractText, IsAsWideAsItsWidestLine)
{
    OnEachPainter([](IPainter& painter) {
        double const wide = painter.GetTextSize("Widest of all", nullptr).width;
        EXPECT_GT(wide, painter.GetTextSize("Wide", nullptr).width);
        EXPECT_EQ(painter.GetTextSize("Wide\nWidest of all\nW", nullptr).width, wide);
        EXPECT_EQ(painter.GetTextSize("Widest of all and no more", nullptr, 13).width, wide);
        EXPECT_EQ(painter.GetTextSize("Widest of all", nullptr, -1).width, wide);
        EXPECT_EQ(painter.GetTextSize("Widest of all", nullptr, 1000).width, wide);
        EXPECT_EQ(painter.GetTextSize("Widest of all", nullptr, 0).width, 0);
    });
}

TEST_F(ContractText, HasTheSizeThatDrawingAndMeasuringReturn)
{
    OnEachPainter([](IPainter& painter) {
        for (char const* text : {"Word", "Two\nlines", "Far too long for this rectangle", "", "\xC3\xA4\xE2\x82\xAC"})
        {
            size<double> const measured = painter.GetTextSize(text, nullptr);
            for (int const vertical : Verticals)
            {
                for (int const horizontal : Horizontals)
                {
                    for (int const more : {0, Single, Fit, Single | Fit, Disabled})
                    {
                        int const flags = horizontal | vertical | more;
                        EXPECT_EQ(painter.DrawString({10, 10, 60, 40}, text, flags | Measure, -1), measured) << flags;
                        EXPECT_EQ(painter.DrawString({10, 10, 60, 40}, text, flags, -1), measured) << flags;
                        EXPECT_EQ(painter.DrawStringEx({10, 10, 60, 40}, text, flags, -1, nullptr, nullptr), measured)
                            << flags;
                    }
                }
            }
        }
    });
}

TEST_F(ContractText, CountsBytesAndLeavesOutAHalfCharacter)
{
    OnEachPainter([](IPainter& painter) {
        Rect const rect{0, 0, 119, 119};
        auto const width = [&](char const* text, int count) {
            return painter.DrawString(rect, text, Measure, count).width;
        };
        EXPECT_EQ(width("abcdef", 3), width("abc", -1));
        EXPECT_EQ(width("abc", 100), width("abc", -1));
        EXPECT_EQ(width("ab\xC3\xA4", 3), width("ab", -1));
        EXPECT_EQ(width("ab\xC3\xA4", 4), width("ab\xC3\xA4", -1));
        EXPECT_EQ(width("abc", 0), 0);
        EXPECT_EQ(width(nullptr, -1), 0);
        EXPECT_EQ(painter.DrawString(rect, std::string("abc"), Measure, -1).width, width("abc", -1));
    });
}

TEST_F(ContractText, OfALargerOrBolderFontIsLarger)
{
    OnEachPainter([](IPainter& painter) {
        font small;
        small.size = 8;
        font large = small;
        large.size = 16;
        font grown = small;
        grown.factor = 2;
        font bold = small;
        bold.style = font::fsBold;
        size<double> const base = painter.GetTextSize("Handbook", &small);
        EXPECT_GT(painter.GetTextSize("Handbook", &large).width, 1.5 * base.width);
        EXPECT_GT(painter.GetTextSize("Handbook", &large).height, 1.5 * base.height);
        EXPECT_EQ(painter.GetTextSize("Handbook", &grown), painter.GetTextSize("Handbook", &large));
        EXPECT_GE(painter.GetTextSize("Handbook", &bold).width, base.width);
        EXPECT_EQ(painter.GetFont(), font());  // only asked
        painter.SetFont(large);
        EXPECT_EQ(painter.GetTextSize("Handbook", nullptr), painter.GetTextSize("Handbook", &large));
        EXPECT_EQ(painter.GetTextSize("Handbook", &small), base);
    });
}

TEST_F(ContractText, GrowsWithTheScale)
{
    std::vector<size<double>> sizes;
    OnEachPainter([&](IPainter& painter) { sizes.push_back(painter.GetTextSize("Handbook of words", nullptr)); });
    ASSERT_EQ(sizes.size(), 8u);
    for (std::size_t i = 0; i < 8; i += 2)
        EXPECT_EQ(sizes[i], sizes[i + 1]);  // picture and window
    EXPECT_GT(sizes[2].width, sizes[0].width);
    EXPECT_GT(sizes[4].width, sizes[2].width);
    EXPECT_GT(sizes[6].width, sizes[4].width);
    EXPECT_GT(sizes[6].height, 1.6 * sizes[0].height);
}

TEST_F(ContractText, IsMeasuredInTheUnitsOfTheMapping)
{
    OnEachPainter([](IPainter& painter) {
        size<double> const pixels = painter.GetTextSize("Word", nullptr);
        IPainter::CoordInfo info;
        info.m_LogicalExtent = {1, 1};
        info.m_DeviceExtent = {2, -4};
        painter.SetCoordSystem(IPainter::mmCustom, &info);
        EXPECT_EQ(painter.GetTextSize("Word", nullptr), (size<double>{pixels.width / 2, pixels.height / 4}));
        EXPECT_EQ(painter.GetTextSize("Word", nullptr, -1, false), pixels);
        EXPECT_EQ(painter.DrawString({0, 0, 9, 9}, "Word", Measure, -1),
                  (size<double>{pixels.width / 2, pixels.height / 4}));
    });
}

TEST_F(ContractText, OfATurnedFontHasTheBoxOfTheTurnedText)
{
    OnEachPainter([](IPainter& painter) {
        size<double> const upright = painter.GetTextSize("Word", nullptr);
        font turned;
        for (int const rotation : {900, 2700, -900, 6300})
        {
            turned.rotation = rotation;
            EXPECT_EQ(painter.GetTextSize("Word", &turned), (size<double>{upright.height, upright.width})) << rotation;
            EXPECT_EQ(painter.GetTextSize("Word", &turned, -1, true, false), upright) << rotation;
        }
        turned.rotation = 1800;
        EXPECT_EQ(painter.GetTextSize("Word", &turned), upright);
        turned.rotation = 450;  // (w + h) / sqrt 2 both ways
        double const side = (upright.width + upright.height) * 0.70710678118;
        EXPECT_NEAR(painter.GetTextSize("Word", &turned).width, side, 1.01);
        EXPECT_NEAR(painter.GetTextSize("Word", &turned).height, side, 1.01);
    });
}

TEST_F(ContractText, CanBeMeasuredOutsideAPaint)
{
    vexel_ptr<IRasterPicture> const picture = System().CreateRasterPicture({1, 1});
    EXPECT_GT(Painter().GetTextSize("Word", nullptr).width, 0);
    EXPECT_EQ(picture->GetPainter()->GetTextSize("Word", nullptr), Painter().GetTextSize("Word", nullptr));
    Painter().BeginPaint(IPainter::ssMeasure);
    EXPECT_EQ(Painter().DrawString({0, 0, 9, 9}, "Word", Measure, -1),
              picture->GetPainter()->GetTextSize("Word", nullptr));
    Painter().EndPaint();
}

// Places -----------------------------------------------------------------------------------------------------------

TEST_F(ContractText, StandsWhereItsFlagsSay)
{
    OnEachPainter([](IPainter& painter) {
        Rect const rect{10, 10, 109, 108};
        size<double> const extent = painter.GetTextSize("HXH", nullptr);
        // The ink of the text at a place known to be its own: nothing cut, left and top.
        painter.DrawString({30, 30, 30, 30}, "HXH", Single, -1);
        std::optional<rectangle<int>> const own = Ink(painter);
        ASSERT_TRUE(own);
        for (int const vertical : Verticals)
        {
            for (int const horizontal : Horizontals)
            {
                int const flags = horizontal | vertical;
                Rect const expected = PlaceOf(rect, extent, flags);
                EXPECT_EQ(painter.GetTextRect(rect, extent, flags), expected) << flags;
                for (int const more : {0, Single, Fit, Single | Fit})
                {
                    Clean(painter);
                    painter.DrawString(rect, "HXH", flags | more, -1);
                    std::optional<rectangle<int>> const ink = Ink(painter);
                    ASSERT_TRUE(ink);
                    EXPECT_EQ(ink->left - own->left, expected.left - 30) << flags << ' ' << more;
                    EXPECT_EQ(ink->top - own->top, expected.top - 30) << flags << ' ' << more;
                    EXPECT_EQ(ink->Width(), own->Width()) << flags << ' ' << more;
                    EXPECT_EQ(ink->Height(), own->Height()) << flags << ' ' << more;
                    // Within the measured rectangle, but for what a letter sticks out.
                    int const overhang = Overhang(painter);
                    EXPECT_GE(ink->left, expected.left - overhang);
                    EXPECT_GE(ink->top, expected.top - overhang);
                    EXPECT_LE(ink->right, expected.right + overhang);
                    EXPECT_LE(ink->bottom, expected.bottom + overhang);
                    EXPECT_FALSE(painter.m_TextShortened);
                }
            }
        }
    });
}

TEST_F(ContractText, EachLineIsAlignedByItself)
{
    OnEachPainter([](IPainter& painter) {
        Rect const rect{10, 10, 109, 108};
        int const line = LineHeight(painter);
        for (int const horizontal : {Left, HCenter, Right})
        {
            Clean(painter);
            painter.DrawString(rect, "HHHH\nH", horizontal | Bottom, -1);
            CPixelBuffer const together = ReadPixels(painter, {120, 120});
            Clean(painter);
            painter.DrawString({10, 10, 109, 108.0 - line}, "HHHH", horizontal | Bottom, -1);
            painter.DrawString(rect, "H", horizontal | Bottom, -1);
            CPixelBuffer const apart = ReadPixels(painter, {120, 120});
            for (int y = 0; y < 120; ++y)
            {
                for (int x = 0; x < 120; ++x)
                    ASSERT_EQ(together.Row(y)[x], apart.Row(y)[x]) << horizontal << ' ' << x << ' ' << y;
            }
        }
    });
}

TEST_F(ContractText, BeginsAtWholePixelsAlsoBelowZero)
{
    OnEachPainter([](IPainter& painter) {
        auto const drawn = [&](double x, double y) {
            Clean(painter);
            painter.DrawString({x, y, x + 80, y + 60}, "HXHXHX", Single, -1);
            return ReadPixels(painter, {120, 120});
        };
        auto const same = [](CPixelBuffer const& a, CPixelBuffer const& b, int shift) {
            for (int y = 0; y < 60; ++y)
            {
                for (int x = 0; x + shift < 120; ++x)
                {
                    if (a.Row(y)[x] != b.Row(y)[x + shift])
                        return false;
                }
            }
            return true;
        };
        CPixelBuffer const base = drawn(20, 20);
        EXPECT_TRUE(same(base, drawn(20.99, 20.5), 0));
        EXPECT_TRUE(same(base, drawn(23.2, 20), 3));
        CPixelBuffer const before = drawn(-3, 20);
        EXPECT_TRUE(same(before, drawn(-2.25, 20), 0));
        EXPECT_FALSE(same(before, drawn(-2, 20), 0));
    });
}

TEST_F(ContractText, IsCutToItsRectangleUnlessItIsASingleLine)
{
    OnEachPainter([](IPainter& painter) {
        for (int const horizontal : {Left, HCenter, Right})
        {
            for (int const vertical : {Top, VCenter, Bottom})
            {
                Clean(painter);
                painter.DrawString({50, 50, 65, 69}, "HXHXHXHXHXHXHXH\nHXHXHXHXHXHXHXH\nHXHXHXHXHXHXHXH",
                                   horizontal | vertical, -1);
                std::optional<rectangle<int>> const ink = Ink(painter);
                ASSERT_TRUE(ink);
                EXPECT_GE(ink->left, 50);
                EXPECT_GE(ink->top, 50);
                EXPECT_LE(ink->right, 66);  // the edges belong to it
                EXPECT_LE(ink->bottom, 70);
                EXPECT_FALSE(painter.m_TextShortened);

                Clean(painter);
                painter.DrawString({50, 50, 60, 54}, "HXHXHXHXHXHXHXH", horizontal | vertical | Single, -1);
                EXPECT_GT(Ink(painter)->Width(), 30);
            }
        }
    });
}

TEST_F(ContractText, OnlyMeasuredLeavesNoPixelAndDrawnFillsNoGround)
{
    OnEachPainter([](IPainter& painter) {
        painter.m_TextShortened = true;
        painter.DrawString({0, 0, 119, 119}, "HXHXHX", Measure, -1);
        painter.DrawString({0, 0, 9, 119}, "HXHXHX", Measure | Fit, -1);
        painter.DrawStringEx({0, 0, 119, 119}, "HX HX HX", Measure, -1, " ", nullptr);
        EXPECT_FALSE(Ink(painter));
        EXPECT_TRUE(painter.m_TextShortened);  // measuring says nothing about it

        painter.SetBkColor(Red);
        painter.SetTextColor(Blue);
        painter.DrawString({0, 0, 119, 119}, "H H H", 0, -1);
        EXPECT_FALSE(painter.m_TextShortened);
        int white = 0;
        int blue = 0;
        fontmetrics metrics;
        painter.GetFontMetrics(&metrics);
        int const width = static_cast<int>(painter.GetTextSize("H H H", nullptr).width);
        for (int y = 0; y < metrics.ascent; ++y)
        {
            for (int x = 0; x < std::min(width, 119); ++x)
            {
                unsigned const value = painter.GetPixel(x, y).m_Value & 0xFFFFFFu;
                white += value == 0xFFFFFFu ? 1 : 0;
                blue += value == 0xFF0000u ? 1 : 0;
                EXPECT_EQ(value >> 16, 0xFFu) << x << ' ' << y;  // from white to blue, nothing of the red
            }
        }
        EXPECT_GT(white, 20);
        EXPECT_GT(blue, 3);
    });
}

TEST_F(ContractText, WithoutAColourOrACharacterDrawsNothing)
{
    OnEachPainter([](IPainter& painter) {
        painter.SetTextColor(NoColor);
        painter.DrawString({0, 0, 119, 119}, "HXHXHX", 0, -1);
        painter.SetTextColor(Black);
        painter.DrawString({0, 0, 119, 119}, nullptr, 0, -1);
        painter.DrawString({0, 0, 119, 119}, "HX", 0, 0);
        painter.DrawString({0, 0, 119, 119}, "  \n ", 0, -1);
        EXPECT_FALSE(Ink(painter));
    });
}

TEST_F(ContractText, OfSomethingDisabledIsGrey)
{
    OnEachPainter([](IPainter& painter) {
        auto const isGreyFrom = [&](unsigned darkest) {
            bool found = false;
            for (int y = 0; y < 60; ++y)
            {
                for (int x = 0; x < 120; ++x)
                {
                    unsigned const value = painter.GetPixel(x, y).m_Value & 0xFFu;
                    EXPECT_GE(value, darkest) << x << ' ' << y;
                    found = found || value == darkest;
                }
            }
            return found;
        };
        painter.SetTextColor(Black);
        painter.DrawString({0, 0, 119, 119}, "HHH", Disabled, -1);
        EXPECT_TRUE(isGreyFrom(0x7F));
        Clean(painter);
        painter.DrawString({0, 0, 119, 119}, "HHH", 0, -1);
        EXPECT_TRUE(isGreyFrom(0));
    });
}

// Fitting ----------------------------------------------------------------------------------------------------------

TEST_F(ContractText, ThatFitsIsNotShortenedAndOnePixelLessShortensIt)
{
    OnEachPainter([](IPainter& painter) {
        double const width = painter.GetTextSize("Handbook", nullptr).width;
        double const height = LineHeight(painter);
        for (int const horizontal : {Left, HCenter, Right})
        {
            painter.DrawString({5, 5, 5 + width, 5 + height}, "Handbook", horizontal | Fit, -1);
            EXPECT_FALSE(painter.m_TextShortened) << horizontal;
            Clean(painter);
            size<double> const told =
                painter.DrawString({5, 5, 5 + width - 1, 5 + height}, "Handbook", horizontal | Fit, -1);
            EXPECT_TRUE(painter.m_TextShortened) << horizontal;
            EXPECT_EQ(told.width, width);  // the whole one's
            std::optional<rectangle<int>> const ink = Ink(painter);
            ASSERT_TRUE(ink);
            EXPECT_GE(ink->left, 5);
            EXPECT_LE(ink->right, 5 + width);
            painter.DrawString({5, 5, 5 + width - 1, 5 + height}, "Handbook", horizontal, -1);
            EXPECT_FALSE(painter.m_TextShortened) << horizontal;
        }
    });
}

TEST_F(ContractText, ShortenedEndsInThreeDots)
{
    OnEachPainter([](IPainter& painter) {
        double const width = painter.GetTextSize("HH...", nullptr).width;
        double const limit = painter.GetTextSize("HHH...", nullptr).width;
        for (double room = width; room < limit && room < 110; ++room)
        {
            Clean(painter);
            painter.DrawString({5, 5, 5 + room, 60}, "HHHHHHHHHHHHHHHHHHHHHHHHH", Fit, -1);
            CPixelBuffer const shortened = ReadPixels(painter, {120, 120});
            Clean(painter);
            painter.DrawString({5, 5, 119, 60}, "HH", 0, -1);
            painter.DrawString({5 + painter.GetTextSize("HH", nullptr).width, 5, 119, 60}, "...", 0, -1);
            CPixelBuffer const expected = ReadPixels(painter, {120, 120});
            EXPECT_EQ(ToText(shortened), ToText(expected)) << room;
        }
    });
}

TEST_F(ContractText, OfTooManyLinesTheLastThatFitsIsShortened)
{
    OnEachPainter([](IPainter& painter) {
        int const line = LineHeight(painter);
        painter.DrawString({5, 5, 119, 5.0 + 2 * line}, "H\nH\nH", Fit, -1);
        EXPECT_TRUE(painter.m_TextShortened);
        std::optional<rectangle<int>> const ink = Ink(painter);
        ASSERT_TRUE(ink);
        EXPECT_LE(ink->bottom, 5 + 2 * line);
        EXPECT_GT(ink->Width(), painter.GetTextSize("H", nullptr).width);  // the dots
        painter.DrawString({5, 5, 119, 5.0 + 3 * line}, "H\nH\nH", Fit, -1);
        EXPECT_FALSE(painter.m_TextShortened);
    });
}

// Wrapping ---------------------------------------------------------------------------------------------------------

TEST_F(ContractText, WrapsBehindDelimiters)
{
    OnEachPainter([](IPainter& painter) {
        int const line = LineHeight(painter);
        double const word = painter.GetTextSize("word", nullptr).width;
        double const two = painter.GetTextSize("word word", nullptr).width;
        auto const extent = [&](double width, int flags) {
            return painter.DrawStringEx({0, 0, width, 119}, "word word word", flags | Measure, -1, " ", nullptr);
        };
        EXPECT_EQ(extent(word, 0), (size<double>{word, 3.0 * line}));
        EXPECT_EQ(extent(two, 0), (size<double>{two, 2.0 * line}));
        EXPECT_EQ(extent(two - 1, 0), (size<double>{word, 3.0 * line}));
        EXPECT_EQ(extent(1, 0), (size<double>{word, 3.0 * line}));  // a word that is too wide stays whole
        EXPECT_EQ(extent(word, Single).height, line);
        EXPECT_EQ(painter.DrawStringEx({0, 0, word, 119}, "word word word", Measure, -1, nullptr, nullptr).height,
                  line);
        EXPECT_EQ(painter.DrawStringEx({0, 0, word, 119}, "word/word", Measure, -1, " ", nullptr).height, line);
        EXPECT_EQ(painter.DrawStringEx({0, 0, word, 119}, "word/word", Measure, -1, " /", nullptr).height, 2.0 * line);
    });
}

TEST_F(ContractText, WrappedIsDrawnLikeItsLines)
{
    OnEachPainter([](IPainter& painter) {
        double const width = painter.GetTextSize("HX HX", nullptr).width;
        for (int const flags : {Left | Top, HCenter | VCenter, Right | Bottom, HCenter | Top, Left | VCenter})
        {
            Rect const rect{3, 4, 3 + width + 2, 110};
            Clean(painter);
            painter.DrawStringEx(rect, "HX HX HXH", flags, -1, " ", nullptr);
            CPixelBuffer const wrapped = ReadPixels(painter, {120, 120});
            Clean(painter);
            painter.DrawString(rect, "HX HX\nHXH", flags, -1);
            CPixelBuffer const lines = ReadPixels(painter, {120, 120});
            for (int y = 0; y < 120; ++y)
            {
                for (int x = 0; x < 120; ++x)
                    ASSERT_EQ(wrapped.Row(y)[x], lines.Row(y)[x]) << flags << ' ' << x << ' ' << y;
            }
        }
    });
}

TEST_F(ContractText, WrappedAndFittedStaysInItsHeight)
{
    OnEachPainter([](IPainter& painter) {
        int const line = LineHeight(painter);
        double const width = painter.GetTextSize("HX HX...", nullptr).width;
        Rect const rect{3, 4, 3 + width, 4.0 + 2 * line};
        size<double> const told = painter.DrawStringEx(rect, "HX HX HX HX HX HX HX HX HX", Fit, -1, " ", nullptr);
        EXPECT_TRUE(painter.m_TextShortened);
        EXPECT_GT(told.height, 2.0 * line);  // the whole one's
        std::optional<rectangle<int>> const ink = Ink(painter);
        ASSERT_TRUE(ink);
        EXPECT_LE(ink->bottom, 4 + 2 * line + 1);
        EXPECT_LE(ink->right, 3 + width + 1);
    });
}

// Turned -----------------------------------------------------------------------------------------------------------

TEST_F(ContractText, TurnedByQuartersStandsAsABoxWhereItsFlagsSay)
{
    OnEachPainter([](IPainter& painter) {
        for (int const rotation : {900, 1800, 2700})
        {
            font turned;
            turned.size = 8;
            turned.rotation = rotation;
            painter.SetFont(turned);
            Rect const rect{10, 12, 109, 111};
            size<double> const extent = painter.GetTextSize("HXH", nullptr);
            ASSERT_LT(std::max(extent.width, extent.height), 90);
            for (int const vertical : {Top, VCenter, Bottom})
            {
                for (int const horizontal : {Left, HCenter, Right})
                {
                    int const flags = horizontal | vertical;
                    Clean(painter);
                    painter.DrawString(rect, "HXH", flags, -1);
                    std::optional<rectangle<int>> const ink = Ink(painter);
                    ASSERT_TRUE(ink);
                    Rect const expected = PlaceOf(rect, extent, flags);
                    EXPECT_EQ(painter.GetTextRect(rect, extent, flags), expected);
                    int const overhang = Overhang(painter);
                    EXPECT_GE(ink->left, expected.left - overhang) << rotation << ' ' << flags;
                    EXPECT_GE(ink->top, expected.top - overhang) << rotation << ' ' << flags;
                    EXPECT_LE(ink->right, expected.right + overhang) << rotation << ' ' << flags;
                    EXPECT_LE(ink->bottom, expected.bottom + overhang) << rotation << ' ' << flags;
                    EXPECT_GT(rotation == 1800 ? ink->Width() : ink->Height(),
                              (rotation == 1800 ? extent.width : extent.height) * 0.6);
                }
            }
        }
    });
}

TEST_F(ContractText, TurnedUpsideDownTwiceIsUprightAgain)
{
    OnEachPainter([](IPainter& painter) {
        font turned;
        auto const drawn = [&](int rotation) {
            turned.rotation = rotation;
            painter.SetFont(turned);
            Clean(painter);
            painter.DrawString({10, 10, 109, 109}, "HLH", HCenter | VCenter, -1);
            return ToText(ReadPixels(painter, {120, 120}));
        };
        EXPECT_EQ(drawn(0), drawn(3600));
        EXPECT_EQ(drawn(900), drawn(-2700));
        EXPECT_NE(drawn(0), drawn(1800));
        EXPECT_NE(drawn(900), drawn(2700));
    });
}

// Formatters' runs -------------------------------------------------------------------------------------------------

TEST_F(ContractText, MeasuresARunAsTheText)
{
    OnEachPainter([](IPainter& painter) {
        for (char const* text : {"Handbook", " ", "\xC3\xA4\xE2\x82\xAC", "i"})
        {
            std::string const all(text);
            EXPECT_EQ(painter.MeasureRun(text, static_cast<int>(all.size())), painter.GetTextSize(all, nullptr).width);
        }
        EXPECT_EQ(painter.MeasureRun("abc", 0), 0);
        EXPECT_EQ(painter.MeasureRun(nullptr, 3), 0);
    });
}

TEST_F(ContractText, ACharacterHasOneWidthHoweverManyBytes)
{
    OnEachPainter([](IPainter& painter) {
        double const umlaut = painter.GetTextSize("\xC3\xA4", nullptr).width;
        EXPECT_GT(umlaut, 0);
        EXPECT_LE(umlaut, 2 * painter.GetTextSize("a", nullptr).width);
        // Bytes that are no character don't end the text.
        EXPECT_GT(painter.GetTextSize("a\xFFz", nullptr).width, painter.GetTextSize("az", nullptr).width);
    });
}

}  // namespace vexelbase::tests
