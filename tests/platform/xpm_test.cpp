#include "tests/platform/text_device.h"

#include "vexel/platform/palette.h"
#include "vexel/platform/system.h"
#include "vexel/platform/xpm.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <climits>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace vexel::test
{

namespace
{

/// Lines in memory of their own, so that reading past an end is found out; `terminated`: a null line at the end.
class CLines
{
public:
    explicit CLines(std::vector<std::string> const& lines, bool terminated = false)
    {
        for (std::string const& line : lines)
        {
            m_Texts.push_back(std::make_unique<char[]>(line.size() + 1));
            std::copy(line.begin(), line.end(), m_Texts.back().get());
        }
        m_Lines = std::make_unique<char const*[]>(lines.size() + (terminated ? 1 : 0));
        for (std::size_t i = 0; i < lines.size(); ++i)
            m_Lines[i] = m_Texts[i].get();
    }

    char const** Get() { return m_Lines.get(); }

private:
    std::vector<std::unique_ptr<char[]>> m_Texts;
    std::unique_ptr<char const*[]> m_Lines;
};

XPMImage Image(std::vector<std::string> const& lines)
{
    CLines copy(lines, true);
    return XPMImage(XPMBuf(copy.Get(), false));
}

/// One pixel of this colour line, or nothing if it isn't understood.
std::optional<_color> Color(std::string const& text)
{
    XPMImage const image = Image({"1 1 1 1", "x " + text, "x"});
    return image.GetWidth() == 1 ? std::optional(image.GetPixel(0, 0)) : std::nullopt;
}

_color const None(0, true);
_color const Red = color_table[6];
_color const White = color_table[9];

}  // namespace

// Reading -------------------------------------------------------------------------------------------------------------

TEST(Xpm, ReadsHeaderColoursAndRows)
{
    XPMImage const image = Image({"3 2 3 1", ". c None", "r c #FF0000", "w c white", ".rw", "w.r"});
    EXPECT_EQ(image.GetWidth(), 3);
    EXPECT_EQ(image.GetHeight(), 2);
    EXPECT_EQ(image.GetPixel(0, 0), None);
    EXPECT_EQ(image.GetPixel(1, 0), Red);
    EXPECT_EQ(image.GetPixel(2, 0), White);
    EXPECT_EQ(image.GetPixel(0, 1), White);
    EXPECT_EQ(image.GetPixel(1, 1), None);
    EXPECT_EQ(image.GetPixel(2, 1), Red);
}

TEST(Xpm, NothingLiesOutsideOfTheImage)
{
    XPMImage const image = Image({"1 1 1 1", "r c red", "r"});
    EXPECT_EQ(image.GetPixel(-1, 0), None);
    EXPECT_EQ(image.GetPixel(0, -1), None);
    EXPECT_EQ(image.GetPixel(1, 0), None);
    EXPECT_EQ(image.GetPixel(0, 1), None);
    EXPECT_EQ(XPMImage().GetWidth(), 0);
    EXPECT_EQ(XPMImage().GetPixel(0, 0), None);
}

TEST(Xpm, APixelMayTakeSeveralCharactersBlanksIncluded)
{
    XPMImage const image = Image({"2 1 2 2", "   c red", " x c white", "   x"});
    EXPECT_EQ(image.GetPixel(0, 0), Red);
    EXPECT_EQ(image.GetPixel(1, 0), White);
    XPMImage const eight = Image({"2 1 2 8", "abcdefgh c red", "abcdefgi c white", "abcdefgiabcdefgh"});
    EXPECT_EQ(eight.GetPixel(0, 0), White);
    EXPECT_EQ(eight.GetPixel(1, 0), Red);
}

TEST(Xpm, AHotSpotAndLongRowsDoNotMatter)
{
    XPMImage const image = Image({" 1\t1 1 1 0 0 XPMEXT", "r c red", "rrrr"});
    EXPECT_EQ(image.GetWidth(), 1);
    EXPECT_EQ(image.GetPixel(0, 0), Red);
}

TEST(Xpm, ColoursMayBeWrittenInSeveralWays)
{
    EXPECT_EQ(Color("c #F00"), Red);
    EXPECT_EQ(Color("c #ff0000"), Red);
    EXPECT_EQ(Color("c #FF80007FF"), _color::FromRgb(0xFF, 0x00, 0x7F));  // FF8 000 7FF... upper eight bits
    EXPECT_EQ(Color("c #123456789ABC"), _color::FromRgb(0x12, 0x56, 0x9A));
    EXPECT_EQ(Color("c Red"), Red);
    EXPECT_EQ(Color("c NONE"), None);
    EXPECT_EQ(Color("c light grey"), _color::FromRgb(0xD3, 0xD3, 0xD3));
    EXPECT_EQ(Color("c LightGray"), _color::FromRgb(0xD3, 0xD3, 0xD3));
    EXPECT_EQ(Color("c gray0"), _color::FromRgb(0, 0, 0));
    EXPECT_EQ(Color("c grey50"), _color::FromRgb(128, 128, 128));
    EXPECT_EQ(Color("c gray100"), White);
}

TEST(Xpm, TheColourKeyWinsOverGreyAndMono)
{
    EXPECT_EQ(Color("m black c red"), Red);
    EXPECT_EQ(Color("s name m black g gray50 c red"), Red);
    EXPECT_EQ(Color("m black g4 gray50 g white"), White);
    EXPECT_EQ(Color("m white"), White);
    EXPECT_EQ(Color("s some thing c red"), Red);
    EXPECT_EQ(Color("c red c white"), Red);
}

TEST(Xpm, WhatIsNoColourMakesNoImage)
{
    for (char const* text :
         {"", "c", "red", "c #", "c #F", "c #FF", "c #FFFF", "c #FFFFF", "c #GGGGGG", "c #FFFFFFFFFFFFFFF", "c fuzzy",
          "c gray101", "c gray1000", "c gray-1", "c grayx", "s red", "x red", "c red m", "c # F00"})
        EXPECT_EQ(Color(text), std::nullopt) << text;
}

TEST(Xpm, MalformedTextGivesAnEmptyImage)
{
    std::vector<std::vector<std::string>> const texts = {
        {""},
        {"1"},
        {"1 1 1"},
        {"0 1 1 1", "x c red", "x"},
        {"1 0 1 1", "x c red", "x"},
        {"1 1 0 1", "x"},
        {"1 1 1 0", "x c red", "x"},
        {"1 1 1 9", "xxxxxxxxx c red", "xxxxxxxxx"},
        {"-1 1 1 1", "x c red", "x"},
        {"1 -1 1 1", "x c red", "x"},
        {"1 1 -1 1", "x c red", "x"},
        {"1x 1 1 1", "x c red", "x"},
        {"99999999999999999999 1 1 1", "x c red", "x"},
        {"4294967297 1 1 1", "x c red", "x"},
        {"1 2147483647 1 1", "x c red", "x"},
        {"1 1 2147483647 1", "x c red", "x"},
        {"32767 32767 1 1", "x c red", "x"},
        {"1 1 1 1"},
        {"1 1 1 1", "x c red"},
        {"1 2 1 1", "x c red", "x"},
        {"2 1 1 1", "x c red", "x"},
        {"2 1 1 2", "xx c red", "xxx"},
        {"1 1 1 2", "x", "xx"},
        {"1 1 1 1", "", "x"},
        {"1 1 1 1", "x c red", "y"},
        {"1 1 1 1", "x c red", ""},
    };
    for (auto const& lines : texts)
    {
        XPMImage const image = Image(lines);
        EXPECT_EQ(image.GetWidth(), 0) << lines[0];
        EXPECT_EQ(image.GetHeight(), 0) << lines[0];
        EXPECT_EQ(image.GetDisabled(nullptr).GetWidth(), 0) << lines[0];
    }
    EXPECT_EQ(XPMImage(XPMBuf(nullptr, false)).GetWidth(), 0);
    EXPECT_EQ(XPMImage(XPMBuf(nullptr, true)).GetWidth(), 0);
    char const* nothing[] = {nullptr};
    EXPECT_EQ(XPMImage(XPMBuf(nothing, true)).GetWidth(), 0);
}

// Buffers -------------------------------------------------------------------------------------------------------------

TEST(Xpm, NoMoreLinesAreReadThanTheHeaderAnnounces)
{
    CLines lines({"1 1 1 1", "x c red", "x"});  // without a null line
    for (bool const shared : {false, true})
    {
        XPMBuf const buffer(lines.Get(), shared);
        EXPECT_EQ(buffer.GetLineCount(), 3);
        EXPECT_STREQ(buffer.GetLine(2), "x");
        EXPECT_EQ(buffer.GetLine(3), nullptr);
        EXPECT_EQ(buffer.GetLine(-1), nullptr);
        EXPECT_EQ(XPMImage(buffer).GetPixel(0, 0), Red);
    }
    CLines senseless({"one two"});
    EXPECT_EQ(XPMBuf(senseless.Get(), true).GetLineCount(), 1);
}

TEST(Xpm, ANullLineEndsTheTextEarly)
{
    CLines lines({"1 9 1 1", "x c red", "x"}, true);
    EXPECT_EQ(XPMBuf(lines.Get(), true).GetLineCount(), 3);
    EXPECT_EQ(XPMBuf(lines.Get(), false).GetLineCount(), 3);
    EXPECT_EQ(XPMImage(XPMBuf(lines.Get(), false)).GetWidth(), 0);
}

TEST(Xpm, ASharedBufferPointsToTheLinesAndACopiedOneDoesNot)
{
    auto lines = std::make_unique<CLines>(std::vector<std::string>{"1 1 1 1", "x c red", "x"});
    XPMBuf const shared(lines->Get(), true);
    XPMBuf const copied(lines->Get(), false);
    EXPECT_EQ(shared.GetLine(1), lines->Get()[1]);
    EXPECT_NE(copied.GetLine(1), lines->Get()[1]);
    XPMImage const image(copied);
    lines.reset();
    XPMBuf const copy = copied;
    EXPECT_STREQ(copy.GetLine(1), "x c red");
    EXPECT_EQ(image.GetPixel(0, 0), Red);
}

TEST(Xpm, ImagesAreCopiedAndAssignedWhetherParsedOrNot)
{
    XPMImage image = Image({"1 1 1 1", "x c red", "x"});
    XPMImage const before = image;
    image.Init();
    XPMImage const after = image;
    image = XPMImage();
    EXPECT_EQ(before.GetPixel(0, 0), Red);
    EXPECT_EQ(after.GetPixel(0, 0), Red);
    EXPECT_EQ(image.GetWidth(), 0);
}

// Disabled ------------------------------------------------------------------------------------------------------------

TEST(Xpm, TheDisabledLookIsTheGreyLevelHalfWayToTheFace)
{
    vexel_ptr<ICustomPaletteEx> const palette = CreateCustomPalette();
    palette->SetColor(ISysPalette::scFace, _color::FromRgb(200, 100, 50));
    XPMImage const image = Image({"4 1 4 1", ". c None", "r c #FF0000", "w c white", "b c black", ".rwb"});
    XPMImage const disabled = image.GetDisabled(palette.get());
    EXPECT_FALSE(image.HasDisabledLook());
    EXPECT_TRUE(disabled.HasDisabledLook());
    EXPECT_EQ(disabled.GetPixel(0, 0), None);
    EXPECT_EQ(disabled.GetPixel(1, 0), _color::FromRgb((76 + 200) / 2, (76 + 100) / 2, (76 + 50) / 2));
    EXPECT_EQ(disabled.GetPixel(2, 0), _color::FromRgb(227, 177, 152));
    EXPECT_EQ(disabled.GetPixel(3, 0), _color::FromRgb(100, 50, 25));
    EXPECT_EQ(disabled.GetDisabled(palette.get()).GetPixel(3, 0), _color::FromRgb(100, 50, 25));
    EXPECT_EQ(image.GetPixel(1, 0), Red);
}

// Drawing -------------------------------------------------------------------------------------------------------------

namespace
{

class CScaledSystem : public ISystem
{
public:
    explicit CScaledSystem(double scale) : m_Former(SetCurrentSystem(this)), m_Scale(scale) {}
    ~CScaledSystem() override { SetCurrentSystem(m_Former); }

    IPointer* GetPointer() override { return nullptr; }
    IClipboard* GetClipboard() override { return nullptr; }
    ISysPalette* GetPalette() override { return nullptr; }
    font GetDefaultFont() override { return {}; }
    int GetSystemMetric(int) override { return 0; }
    double GetScale() override { return m_Scale; }
    vexel_ptr<ISysTimer> CreateTimer(int, int) override { return {}; }
    vexel_ptr<IRasterPicture> CreateRasterPicture(size<int> const&) override { return {}; }
    vexel_ptr<IRasterPicture> CreateRasterPicture(XPMBuf const&) override { return {}; }
    vexel_ptr<IRunner> GetRunner() override { return {}; }
    vexel_ptr<ILock> CreateLock() override { return {}; }

private:
    ISystem* m_Former;
    double m_Scale;
};

class DrawXpm : public testing::Test, public STextBench
{
protected:
    DrawXpm() { pixels.Resize({0, 0}, 0), pixels.Resize({8, 4}, 0xFF0000FFu); }

    /// The surface as text: r red, w white, b black, blue a dot, anything else "?".
    std::string Surface() const
    {
        std::string text;
        for (int y = 0; y < pixels.GetHeight(); ++y)
        {
            if (y > 0)
                text += '/';
            for (int x = 0; x < pixels.GetWidth(); ++x)
            {
                std::uint32_t const pixel = pixels.Row(y)[x];
                text += pixel == 0xFF0000FFu   ? '.'
                        : pixel == 0xFFFF0000u ? 'r'
                        : pixel == 0xFFFFFFFFu ? 'w'
                        : pixel == 0xFF000000u ? 'b'
                                               : '?';
            }
        }
        return text;
    }

    XPMImage image = Image({"3 2 4 1", ". c None", "r c red", "w c white", "b c black", ".rw", "wb."});
};

}  // namespace

TEST_F(DrawXpm, TransparentPixelsLeaveTheSurface)
{
    CScaledSystem system(1);
    painter.DrawXPM(image, 2, 1, 0, 0, -1, -1, IPainter::roCopy);
    EXPECT_EQ(Surface(), "......../...rw.../..wb..../........");
}

TEST_F(DrawXpm, APartCanBeDrawn)
{
    CScaledSystem system(1);
    painter.DrawXPM(image, 0, 0, 1, 0, 1, -1, IPainter::roCopy);
    EXPECT_EQ(Surface(), "r......./b......./......../........");
    painter.DrawXPM(image, 4, 2, 2, 0, 9, 9, IPainter::roCopy);  // what lies beyond the image draws nothing
    EXPECT_EQ(Surface(), "r......./b......./....w.../........");
    painter.DrawXPM(image, 6, 3, 3, 0, -1, -1, IPainter::roCopy);
    painter.DrawXPM(image, 6, 3, -1, -1, 2, 1, IPainter::roCopy);
    painter.DrawXPM(image, 6, 3, 0, 0, 0, 0, IPainter::roCopy);
    EXPECT_EQ(Surface(), "r......./b......./....w.../........");
}

TEST_F(DrawXpm, PositionsAreLogicalAndRoundedDown)
{
    CScaledSystem system(1);
    IPainter::CoordInfo info;
    info.m_LogicalExtent = {10, 10};
    info.m_DeviceExtent = {20, 20};
    painter.SetCoordSystem(IPainter::mmCustom, &info);
    painter.DrawXPM(image, 1.25, -0.25, 0, 0, -1, -1, IPainter::roCopy);  // device (2.5, -0.5)
    EXPECT_EQ(Surface(), "..wb..../......../......../........");
}

TEST_F(DrawXpm, ItIsDrawnAtTheDevicesScale)
{
    CScaledSystem system(2);
    painter.DrawXPM(image, 1, 0, 0, 0, -1, -1, IPainter::roCopy);
    EXPECT_EQ(Surface(), "...rrww./...rrww./.wwbb.../.wwbb...");
}

TEST_F(DrawXpm, AScaledSizeIsTruncated)
{
    CScaledSystem system(1.5);  // 4 by 3
    painter.DrawXPM(image, 0, 0, 0, 0, -1, -1, IPainter::roCopy);
    EXPECT_EQ(Surface(), "..rw..../..rw..../wwb...../........");
}

TEST_F(DrawXpm, WithoutAutomaticScalingItKeepsItsSize)
{
    CScaledSystem system(2);
    SetDPIAutoScale(false);
    painter.DrawXPM(image, 1, 0, 0, 0, -1, -1, IPainter::roCopy);
    SetDPIAutoScale(true);
    EXPECT_EQ(Surface(), "..rw..../.wb...../......../........");
}

TEST_F(DrawXpm, AScaleBelowOneLeavesItsSize)
{
    CScaledSystem system(0.5);
    painter.DrawXPM(image, 1, 0, 0, 0, -1, -1, IPainter::roCopy);
    EXPECT_EQ(Surface(), "..rw..../.wb...../......../........");
}

TEST_F(DrawXpm, TheClipHolds)
{
    CScaledSystem system(1);
    painter.SetClipRect(1, 0, 1, 9, false);
    painter.DrawXPM(image, 0, 0, 0, 0, -1, -1, IPainter::roCopy);
    EXPECT_EQ(Surface(), ".r....../.b....../......../........");
    painter.ResetClip();
    painter.SetClipRect(1, 0, 1, 9, true);
    painter.DrawXPM(image, 0, 2, 0, 0, -1, -1, IPainter::roCopy);
    EXPECT_EQ(Surface(), ".r....../.b....../..w...../w.......");
}

TEST_F(DrawXpm, RasterOperationsHold)
{
    CScaledSystem system(1);
    painter.DrawXPM(image, 0, 0, 0, 0, -1, -1, IPainter::roXor);
    EXPECT_EQ(pixels.Row(0)[1] & 0xFFFFFFu, 0xFF00FFu);
    EXPECT_EQ(pixels.Row(0)[2] & 0xFFFFFFu, 0xFFFF00u);
    painter.DrawXPM(image, 0, 0, 0, 0, -1, -1, IPainter::roXor);
    EXPECT_EQ(Surface(), "......../......../......../........");
}

TEST_F(DrawXpm, InDisabledModeItLooksDisabledOnce)
{
    CScaledSystem system(1);
    painter.m_DisabledMode = true;
    painter.DrawXPM(image, 0, 0, 0, 0, -1, -1, IPainter::roCopy);
    painter.DrawXPM(image.GetDisabled(nullptr), 0, 2, 0, 0, -1, -1, IPainter::roCopy);
    for (int x = 0; x < 3; ++x)
        for (int y = 0; y < 2; ++y)
        {
            _color const expected = image.GetDisabled(nullptr).GetPixel(x, y);
            std::uint32_t const pixel = expected.m_None ? 0xFF0000FFu : CPixelBuffer::ToPixel(expected);
            EXPECT_EQ(pixels.Row(y)[x], pixel);
            EXPECT_EQ(pixels.Row(y + 2)[x], pixel);
        }
}

TEST_F(DrawXpm, AnEmptyImageDrawsNothing)
{
    painter.DrawXPM(XPMImage(), 0, 0, 0, 0, -1, -1, IPainter::roCopy);
    painter.DrawXPM(image, 1e300, std::numeric_limits<double>::quiet_NaN(), 0, 0, -1, -1, IPainter::roCopy);
    painter.DrawXPM(image, 100, 100, INT_MIN, INT_MIN, INT_MAX, INT_MAX, IPainter::roCopy);
    painter.DrawXPM(image, 100, 100, INT_MAX, INT_MAX, -1, -1, IPainter::roCopy);
    EXPECT_EQ(Surface(), "......../......../......../........");
}

// Any text ------------------------------------------------------------------------------------------------------------

namespace
{

/// An image either has the announced size or none, and can be asked for any pixel.
void CheckImage(std::vector<std::string> const& lines, bool shared)
{
    CLines copy(lines, true);
    XPMImage const image(XPMBuf(copy.Get(), shared));
    int const width = image.GetWidth();
    int const height = image.GetHeight();
    RC_ASSERT((width > 0) == (height > 0));
    image.GetPixel(width - 1, height - 1);
    image.GetPixel(width, height);
    RC_ASSERT(image.GetPixel(width, 0).m_None);
    RC_ASSERT(image.GetDisabled(nullptr).GetWidth() == width);
}

rc::Gen<std::string> AnyText(int maxLength)
{
    return rc::gen::resize(maxLength, rc::gen::container<std::string>(rc::gen::nonZero<char>()));
}

rc::Gen<std::string> AnyOf(std::vector<std::string> const& values)
{
    return rc::gen::elementOf(values);
}

}  // namespace

TEST(XpmProperty, AnyLinesDoNoHarm)
{
    EXPECT_TRUE(rc::check(
        [] { CheckImage(*rc::gen::container<std::vector<std::string>>(AnyText(20)), *rc::gen::arbitrary<bool>()); }));
}

TEST(XpmProperty, LinesThatAreNearlyRightDoNoHarm)
{
    EXPECT_TRUE(rc::check([] {
        auto const number = AnyOf({"0", "1", "2", "3", "4", "8", "9", "-1", "255", "32767", "32768", "65536", "65537",
                                   "2147483647", "2147483648", "4294967296", "18446744073709551616", "x", ""});
        auto const small = AnyOf({"1", "2", "3", "4"});
        bool const sane = *rc::gen::weightedElement<bool>({{4, true}, {1, false}});
        std::vector<std::string> lines;
        std::string header;
        for (int i = 0; i < 4; ++i)
            header += (sane ? *small : *number) + " ";
        lines.push_back(header);
        int const count = *rc::gen::inRange(0, 12);
        for (int i = 0; i < count; ++i)
            lines.push_back(*rc::gen::oneOf(
                rc::gen::map(
                    rc::gen::pair(AnyOf({"a", "b", " ", "ab", "  ", "aba", "abab", ""}),
                                  AnyOf({" c red", " c #F00", " c None", " m x c blue", "", " c", " s", " g4 gray1"})),
                    [](std::pair<std::string, std::string> const& parts) { return parts.first + parts.second; }),
                AnyOf({"aaaa", "abab", "a", "", "abababababababab", "bbbbbbbb"}), AnyText(12)));
        CheckImage(lines, *rc::gen::arbitrary<bool>());
    }));
}

TEST(XpmProperty, ARightTextIsReadAsItWasWritten)
{
    EXPECT_TRUE(rc::check([] {
        int const width = *rc::gen::inRange(1, 8);
        int const height = *rc::gen::inRange(1, 8);
        int const characters = *rc::gen::inRange(1, 9);
        int const colors = *rc::gen::inRange(1, 10);
        auto const symbol = [&](int index) {
            return std::string(static_cast<std::size_t>(characters - 1), ' ') + static_cast<char>('a' + index);
        };
        std::vector<std::string> lines = {std::to_string(width) + " " + std::to_string(height) + " " +
                                          std::to_string(colors) + " " + std::to_string(characters)};
        for (int i = 0; i < colors; ++i)
            lines.push_back(symbol(i) + "\tc #0" + std::to_string(i) + "0000");
        std::vector<int> written;
        for (int y = 0; y < height; ++y)
        {
            std::string row;
            for (int x = 0; x < width; ++x)
            {
                written.push_back(*rc::gen::inRange(0, colors));
                row += symbol(written.back());
            }
            lines.push_back(row);
        }
        XPMImage const image = Image(lines);
        RC_ASSERT(image.GetWidth() == width);
        RC_ASSERT(image.GetHeight() == height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                RC_ASSERT(image.GetPixel(x, y).Red() == written[static_cast<std::size_t>(y * width + x)]);
    }));
}

}  // namespace vexel::test
