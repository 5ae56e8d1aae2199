#include "tests/platform/text_device.h"

#include "vexel/platform/text_formatter.h"

#include <gtest/gtest.h>

#include <cstring>

namespace vexel::test
{

namespace
{

using Size = size<double>;
using Rect = rectangle<double>;

constexpr int SingleLine = IPainter::AlignSingleLine;
constexpr int FitText = IPainter::AlignFitText;
constexpr int MeasureOnly = IPainter::AlignMeasureOnly;

/// Notes what it is told of links: "target(left,top,right,bottom)", or "-(...)" for a further part.
class CLinkLog : public CHTMLTextFormatter
{
public:
    void OnDrawLink(char const* target, int length, rectangle<int> const& rect) override
    {
        if (!m_Links.empty())
            m_Links += ' ';
        m_Links += target ? std::string(target, static_cast<std::size_t>(length)) : std::string("-");
        m_Links += "(" + std::to_string(rect.left) + "," + std::to_string(rect.top) + "," + std::to_string(rect.right) +
                   "," + std::to_string(rect.bottom) + ")";
    }
    bool OwnerDrawLink(IPainter*, int x, int y, char const* text, int length) override
    {
        m_Offered += std::string(text, static_cast<std::size_t>(length)) + "@" + std::to_string(x) + "," +
                     std::to_string(y) + " ";
        return m_Owner;
    }

    std::string m_Links;
    std::string m_Offered;
    bool m_Owner = false;
};

class HtmlText : public testing::Test, public STextBench
{
protected:
    Size Draw(Rect const& rect, char const* text, int flags = 0)
    {
        formatter.m_Links.clear();
        formatter.m_Offered.clear();
        return painter.DrawStringEx(rect, text, flags, -1, MarkupDelimiters, &formatter);
    }
    /// On one wide line.
    std::string Drawn(char const* text)
    {
        Draw({0, 0, 1000, 90}, text);
        return Runs();
    }
    std::string Wrapped(double width, char const* text, int flags = 0)
    {
        Draw({0, 0, width, 90}, text, flags);
        return Runs();
    }

    CLinkLog formatter;
};

}  // namespace

// Tags ----------------------------------------------------------------------------------------------------------------

TEST_F(HtmlText, PlainTextIsDrawnInOneRun)
{
    EXPECT_EQ(Draw({0, 0, 1000, 90}, "Hello, world"), (Size{96, 8}));
    EXPECT_EQ(Runs(), "Hello, world@0,0");
}

TEST_F(HtmlText, BoldItalicAndUnderlinedPartsAreDrawnSo)
{
    EXPECT_EQ(Draw({0, 0, 1000, 90}, "a<b>bc</b>d"), (Size{8 + 18 + 8, 8}));
    EXPECT_EQ(Runs(), "a@0,0 bc@8,0[b] d@26,0");
    EXPECT_EQ(Drawn("<i>x</i>y"), "x@0,0[i] y@8,0");
    EXPECT_EQ(Drawn("<u>x</u>y"), "x@0,0[u] y@8,0");
    EXPECT_EQ(Drawn("<b><i><u>x</u></i></b>y"), "x@0,0[biu] y@9,0");
}

TEST_F(HtmlText, TheStylesComeOnTopOfTheFonts)
{
    UseFont(font::fsItalic, 0);
    EXPECT_EQ(Drawn("a<b>b</b><i>c</i>"), "a@0,0[i] b@8,0[bi] c@17,0[i]");
    EXPECT_EQ(painter.GetFont().style, font::fsItalic);
}

TEST_F(HtmlText, TagsNestAndCrossAsTheyLike)
{
    EXPECT_EQ(Drawn("<b>a<b>b</b>c</b>d"), "a@0,0[b] b@9,0[b] c@18,0[b] d@27,0");
    EXPECT_EQ(Drawn("<b>a<i>b</b>c</i>d"), "a@0,0[b] b@9,0[bi] c@18,0[i] d@26,0");
}

TEST_F(HtmlText, TagsThatWereNeverOpenedOrClosedDoNoHarm)
{
    EXPECT_EQ(Drawn("</b></i></u></a>x<b>y"), "x@0,0 y@8,0[b]");
    EXPECT_EQ(Drawn("x"), "x@0,0");  // and nothing is left of it in the next text
    EXPECT_EQ(painter.GetFont().style, 0);
}

TEST_F(HtmlText, NamesMayBeWrittenInAnyCaseAndWithBlanksAndSlashes)
{
    EXPECT_EQ(Drawn("<B>x</B >y"), "x@0,0[b] y@9,0");
    EXPECT_EQ(Drawn("x<BR/>y<br />z<Br>w"), "x@0,0 y@0,8 z@0,16 w@0,24");
    EXPECT_EQ(Drawn("<strong>x</strong><em>y</em>"), "x@0,0[b] y@9,0[i]");
}

TEST_F(HtmlText, UnknownTagsAreDropped)
{
    EXPECT_EQ(Drawn("a<font color=\"red\">b</font>c<hr><!-- no -->d<?x?>e"), "a@0,0 b@8,0 c@16,0 d@24,0 e@32,0");
}

TEST_F(HtmlText, ABracketThatBeginsNoTagStandsForItself)
{
    EXPECT_EQ(Drawn("1 < 2"), "1 < 2@0,0");
    EXPECT_EQ(Drawn("a<"), "a<@0,0");
    EXPECT_EQ(Drawn("<"), "<@0,0");
    EXPECT_EQ(Drawn("</"), "</@0,0");
    EXPECT_EQ(Drawn("<b"), "<b@0,0");
    EXPECT_EQ(Drawn("<b x"), "<b x@0,0");
    EXPECT_EQ(Drawn("<b x=\"y>"), "<b x=\"y>@0,0");
    EXPECT_EQ(Drawn("<>x</>"), "<>x</>@0,0");
    EXPECT_EQ(Drawn("<me@home.org>"), "<me@home.org>@0,0");
    EXPECT_EQ(Drawn("<<b>x"), "<@0,0 x@8,0[b]");
    EXPECT_EQ(Drawn("<i <b>x"), "<i @0,0 x@24,0[b]");
    EXPECT_EQ(Drawn("a > b"), "a > b@0,0");
}

TEST_F(HtmlText, LinesEndAtBreaksAndLineFeeds)
{
    EXPECT_EQ(Draw({0, 0, 1000, 90}, "ab<br>c\nd"), (Size{16, 24}));
    EXPECT_EQ(Runs(), "ab@0,0 c@0,8 d@0,16");
    EXPECT_EQ(Draw({0, 0, 1000, 90}, "a<br><br>b"), (Size{8, 24}));
    EXPECT_EQ(Runs(), "a@0,0 b@0,16");
    EXPECT_EQ(Draw({0, 0, 1000, 90}, "<br>"), (Size{0, 8}));
    EXPECT_EQ(Draw({0, 0, 1000, 90}, "a\r\nb"), (Size{8, 16}));
    EXPECT_EQ(Runs(), "a@0,0 b@0,8");
}

TEST_F(HtmlText, MarkUpAloneMakesNoLine)
{
    EXPECT_EQ(Draw({0, 0, 1000, 90}, ""), (Size{0, 0}));
    EXPECT_EQ(Draw({0, 0, 1000, 90}, "<b><i></i></b>"), (Size{0, 0}));
    EXPECT_EQ(Draw({0, 0, 1000, 90}, "<b>a<br></b>"), (Size{9, 8}));
    EXPECT_EQ(Draw({0, 0, 1000, 90}, "<b>a\n</b>"), (Size{9, 8}));
}

TEST_F(HtmlText, StylesAreCarriedFromLineToLine)
{
    EXPECT_EQ(Drawn("<b>a<br>b</b><br>c"), "a@0,0[b] b@0,8[b] c@0,16");
    EXPECT_EQ(Wrapped(50, "<i>one two</i> three"), "one@0,0[i] two@0,8[i] three@0,16");
}

// Entities ------------------------------------------------------------------------------------------------------------

TEST_F(HtmlText, EntitiesAreResolved)
{
    EXPECT_EQ(Drawn("&lt;b&gt; &amp; &quot;x&quot; &apos;"), "<b> & \"x\" '@0,0");
    EXPECT_EQ(Drawn("a&nbsp;b"), "a\xC2\xA0"
                                 "b@0,0");
    EXPECT_EQ(Drawn("&LT;&Amp;"), "<&@0,0");
    EXPECT_EQ(Drawn("&#65;&#x42;&#X6a;"), "ABj@0,0");
    EXPECT_EQ(Drawn("&#228;&#x20AC;&#x1F600;&#x10FFFF;"), "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF@0,0");
    EXPECT_EQ(Drawn("a&#10;b&#9;c"), "a b c@0,0");
}

TEST_F(HtmlText, WhatIsNoEntityStandsForItself)
{
    for (char const* text : {"&",
                             "&&",
                             "a & b",
                             "&amp",
                             "&lt",
                             "&foo;",
                             "&;",
                             "&#;",
                             "&#x;",
                             "&#0;",
                             "&#1;",
                             "&#127;",
                             "&#150;",
                             "&#xD800;",
                             "&#xDFFF;",
                             "&#x110000;",
                             "&#99999999999999999999;",
                             "&#12a;",
                             "&# 65;",
                             "&ampere;",
                             "&#-5;"})
        EXPECT_EQ(Drawn(text), std::string(text) + "@0,0") << text;
    EXPECT_EQ(Drawn("&#000000000065;"), "A@0,0");
    EXPECT_EQ(Drawn("&&amp;"), "&&@0,0");
}

TEST_F(HtmlText, AnEntityIsOneCharacterWide) { EXPECT_EQ(Draw({0, 0, 1000, 90}, "&lt;&#x1F600;x"), (Size{24, 8})); }

TEST_F(HtmlText, AHardBlankIsNoPlaceToWrap)
{
    EXPECT_EQ(Wrapped(32, "a b&nbsp;c d"), "a@0,0 b\xC2\xA0"
                                           "c@0,8 d@0,16");
}

// Wrapping ------------------------------------------------------------------------------------------------------------

TEST_F(HtmlText, LinesAreWrappedAsPlainOnes)
{
    EXPECT_EQ(Draw({0, 0, 64, 90}, "one two three"), (Size{56, 16}));
    EXPECT_EQ(Runs(), "one two@0,0 three@0,8");
    EXPECT_EQ(Wrapped(24, "ab.cd/ef"), "ab.@0,0 cd/@0,8 ef@0,16");
    EXPECT_EQ(Wrapped(32, "abcdefgh ij"), "abcdefgh@0,0 ij@0,8");
    EXPECT_EQ(Wrapped(40, "one    two"), "one@0,0 two@0,8");
    EXPECT_EQ(Wrapped(64, "one two three", SingleLine), "one two three@0,0");
}

TEST_F(HtmlText, AChangeOfStyleInAWordIsNoPlaceToWrap)
{
    EXPECT_EQ(Draw({0, 0, 56, 90}, "one t<b>w</b>o"), (Size{25, 16}));
    EXPECT_EQ(Runs(), "one@0,0 t@0,8 w@8,8[b] o@17,8");
    EXPECT_EQ(Wrapped(60, "press <b>OK</b>."), "press@0,0 OK@0,8[b] .@18,8");
}

TEST_F(HtmlText, AWordInPartsStaysWholeAlsoWhereItIsTooWide)
{
    EXPECT_EQ(Wrapped(32, "ab<b>cd</b>ef gh"), "ab@0,0 cd@16,0[b] ef@34,0 gh@0,8");
    EXPECT_EQ(Wrapped(32, "x ab<b>cd</b>ef gh"), "x@0,0 ab@0,8 cd@16,8[b] ef@34,8 gh@0,16");
}

TEST_F(HtmlText, BoldBlanksAreMeasuredAsSuch)
{
    EXPECT_EQ(Draw({0, 0, 45, 90}, "<b>ab cd</b>"), (Size{45, 8}));
    EXPECT_EQ(Draw({0, 0, 44, 90}, "<b>ab cd</b>"), (Size{18, 16}));
}

TEST_F(HtmlText, AWrappedLineIsMeasuredAsItIsDrawn)
{
    device.m_TightenAbove = 5;
    EXPECT_EQ(Draw({0, 0, 64, 90}, "one two three"), (Size{55, 16}));
}

TEST_F(HtmlText, LinesAreAligned)
{
    Draw({0, 0, 100, 90}, "ab<br><b>c</b>", IPainter::AlignRight | IPainter::AlignBottom);
    EXPECT_EQ(Runs(), "ab@84,74 c@91,82[b]");
}

// Fitting -------------------------------------------------------------------------------------------------------------

TEST_F(HtmlText, AShortenedTextEndsInPlainDots)
{
    EXPECT_EQ(Draw({0, 0, 60, 8}, "<b>Hello World</b>", FitText), (Size{45, 16}));
    EXPECT_EQ(Runs(), "Hell@0,0[b] ...@36,0");
    EXPECT_TRUE(painter.m_TextShortened);
    Draw({0, 0, 60, 8}, "<b>Hi</b>", FitText);
    EXPECT_FALSE(painter.m_TextShortened);
}

TEST_F(HtmlText, ShorteningFindsItsPlaceAmongTagsAndEntities)
{
    EXPECT_EQ(Wrapped(64, "a&amp;b<i>&lt;cd</i>efgh", FitText), "a&b@0,0 <c@24,0[i] ...@40,0");
    EXPECT_EQ(Wrapped(56, "a<i>bcd</i>efgh", FitText), "a@0,0 bcd@8,0[i] ...@32,0");
    EXPECT_EQ(Wrapped(48, "&#x1F600;&#x1F600;&#x1F600;&#x1F600;xxxxx", FitText),
              "\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80@0,0 ...@24,0");
}

TEST_F(HtmlText, TheStyleOfAPartThatWasCutOffIsStillHeeded)
{
    EXPECT_EQ(Wrapped(48, "abcdefgh<b>ij</b><i>k<br>l", FitText), "abc@0,0 ...@24,0 l@0,8[i]");
}

// Links ---------------------------------------------------------------------------------------------------------------

TEST_F(HtmlText, ALinkIsUnderlinedInTheLinkColourAndTold)
{
    painter.SetTextColor(color_table[6]);
    EXPECT_EQ(Draw({10, 20, 1000, 90}, "see <a href=\"page one\">here</a>."), (Size{72, 8}));
    ASSERT_EQ(device.m_Runs.size(), 3u);
    EXPECT_EQ(device.m_Runs[0].pixel, 0xFFFF0000u);
    EXPECT_EQ(device.m_Runs[1].pixel, CPixelBuffer::ToPixel(GetDefaultPalette()->GetColor(ISysPalette::scLink)));
    EXPECT_EQ(device.m_Runs[2].pixel, 0xFFFF0000u);
    EXPECT_EQ(Runs(), "see @10,20 here@42,20[u] .@74,20");
    EXPECT_EQ(formatter.m_Links, "page one(42,20,73,27)");
    EXPECT_EQ(formatter.m_Offered, "here@42,20 ");
    EXPECT_EQ(painter.GetTextColor(), color_table[6]);
}

TEST_F(HtmlText, TargetsAreReadHoweverTheyAreWritten)
{
    Drawn("<a href='x'>a</a>");
    EXPECT_EQ(formatter.m_Links, "x(0,0,7,7)");
    Drawn("<A HREF=x/y.html>a</A>");
    EXPECT_EQ(formatter.m_Links, "x/y.html(0,0,7,7)");
    Drawn("<a class=q href = \"x>y\" title=''>a</a>");
    EXPECT_EQ(formatter.m_Links, "x>y(0,0,7,7)");
    Drawn("<a href=\"a?b=1&amp;c=2\">a</a>");
    EXPECT_EQ(formatter.m_Links, "a?b=1&c=2(0,0,7,7)");
    Drawn("<a href=\"\">a</a>");
    EXPECT_EQ(formatter.m_Links, "(0,0,7,7)");
    Drawn("<a href=\"x\" href=\"y\">a</a>");
    EXPECT_EQ(formatter.m_Links, "x(0,0,7,7)");
}

TEST_F(HtmlText, AnAnchorWithoutTargetIsNoLink)
{
    EXPECT_EQ(Drawn("<a name=\"x\">a</a><a>b</a><a href>c</a>"), "a@0,0 b@8,0 c@16,0");
    EXPECT_EQ(formatter.m_Links, "");
}

TEST_F(HtmlText, FurtherPartsOfALinkHaveNoTarget)
{
    EXPECT_EQ(Wrapped(50, "<a href=\"t\">one two</a> x"), "one@0,0[u] two@0,8[u]  x@24,8");
    EXPECT_EQ(formatter.m_Links, "t(0,0,23,7) -(0,8,23,15)");
    Drawn("<a href=\"t\">a<b>b</b>c</a><a href=\"s\">d</a>");
    EXPECT_EQ(formatter.m_Links, "t(0,0,7,7) -(8,0,16,7) -(17,0,24,7) s(25,0,32,7)");
    Drawn("<a href=\"t\">a<br>b<br></a>c");
    EXPECT_EQ(formatter.m_Links, "t(0,0,7,7) -(0,8,7,15)");
}

TEST_F(HtmlText, AnInnerLinkEndsTheOuterOne)
{
    EXPECT_EQ(Drawn("<a href=x>a<a href=y>b</a>c</a>d"), "a@0,0[u] b@8,0[u] c@16,0 d@24,0");
    EXPECT_EQ(formatter.m_Links, "x(0,0,7,7) y(8,0,15,7)");
    EXPECT_EQ(Drawn("<a href=x>a<a>b</a>c"), "a@0,0[u] b@8,0 c@16,0");
}

TEST_F(HtmlText, NoLinkIsToldWhileATextIsOnlyMeasured)
{
    EXPECT_EQ(Draw({0, 0, 40, 90}, "<a href=t>one two</a>", MeasureOnly), (Size{24, 16}));
    EXPECT_EQ(formatter.m_Links, "");
    EXPECT_EQ(formatter.m_Offered, "");
    EXPECT_EQ(Runs(), "");
}

TEST_F(HtmlText, TheOwnerMayDrawALink)
{
    formatter.m_Owner = true;
    EXPECT_EQ(Drawn("a<a href=t>b&amp;c</a>d"), "a@0,0 d@32,0");
    EXPECT_EQ(formatter.m_Offered, "b&c@8,0 ");
    EXPECT_EQ(formatter.m_Links, "t(8,0,31,7)");
}

TEST_F(HtmlText, TheLinksOfAShortenedTextAreThosePartsThatAreSeen)
{
    EXPECT_EQ(Wrapped(48, "<a href=t>abcdef</a><a href=s>ghi</a>", FitText), "abc@0,0[u] ...@24,0");
    EXPECT_EQ(formatter.m_Links, "t(0,0,23,7)");
}

TEST_F(HtmlText, ADisabledLinkIsGrey)
{
    Draw({0, 0, 99, 90}, "<a href=t>a</a>", IPainter::AlignDisabled);
    EXPECT_EQ(device.m_Runs[0].pixel, 0xFF7F7F7Fu);
    device.m_Runs.clear();
    painter.m_DisabledMode = true;
    painter.SetTextColor(color_table[8]);
    Draw({0, 0, 99, 90}, "<a href=t>a</a>");
    EXPECT_EQ(device.m_Runs[0].pixel, 0xFF7F7F7Fu);
}

TEST_F(HtmlText, LinksOfARotatedTextAreToldInDevicePixels)
{
    UseFont(0, 2700);
    EXPECT_EQ(Draw({10, 20, 60, 90}, "ab<a href=t>cd</a>"), (Size{8, 32}));
    EXPECT_EQ(Runs(), "ab@18,20 cd@18,36[u]");
    EXPECT_EQ(formatter.m_Links, "t(10,36,17,51)");
    UseFont(0, 900);
    Draw({10, 20, 60, 90}, "ab<a href=t>cd</a>");
    EXPECT_EQ(Runs(), "ab@10,52 cd@10,36[u]");
    EXPECT_EQ(formatter.m_Links, "t(10,20,17,35)");
}

TEST_F(HtmlText, TheBaseClassHasNoUseForLinks)
{
    CHTMLTextFormatter plain;
    EXPECT_EQ(painter.DrawStringEx(Rect{0, 0, 99, 9}, "<a href=t>a</a>", 0, -1, MarkupDelimiters, &plain),
              (Size{8, 8}));
    EXPECT_EQ(Runs(), "a@0,0[u]");
}

// Hostile texts: no crash, no endless loop, and what they take of the device is in proportion to their length ---------

namespace
{

constexpr std::size_t Long = 100000;

std::string Repeat(std::string const& part, std::size_t length = Long)
{
    std::string text;
    while (text.size() < length)
        text += part;
    return text;
}

class HostileText : public testing::TestWithParam<std::string>, public STextBench
{};

}  // namespace

TEST_P(HostileText, IsLaidOutWithWorkInProportionToItsLength)
{
    std::string const& text = GetParam();
    CLinkLog formatter;
    device.m_Keeps = false;
    IPainter::ITextFormatter* const formatters[] = {&formatter, nullptr};
    for (IPainter::ITextFormatter* const each : formatters)
        for (double const width : {0.0, 8.0, 100.0, 1000.0, 1e9})
            for (int const flags : {0, FitText, SingleLine, MeasureOnly})
            {
                device.m_MeasuredBytes = 0;
                device.m_Measured = 0;
                Size const measured =
                    painter.DrawStringEx({0, 0, width, 1000}, text.c_str(), flags, -1, MarkupDelimiters, each);
                EXPECT_GE(measured.width, 0);
                EXPECT_LE(device.m_MeasuredBytes, 12 * static_cast<long>(text.size())) << width << " " << flags;
                EXPECT_LE(device.m_Measured, 6 * static_cast<long>(text.size())) << width << " " << flags;
            }
    EXPECT_EQ(painter.GetFont().style, 0);
}

INSTANTIATE_TEST_SUITE_P(All, HostileText,
                         testing::Values(Repeat("<b"), Repeat("<b>"), Repeat("<b>") + "x" + Repeat("</b>"), Repeat("<"),
                                         Repeat("&"), Repeat("<a href=\""), Repeat("<a href='x' y=\""),
                                         "<a href=\"" + Repeat("x") + "\">y</a>", "<a href=\"" + Repeat("x"),
                                         "<a " + Repeat("x=y ") + ">z", "<a " + Repeat("x=\"<\" ") + "z", Repeat("x"),
                                         Repeat(" "), Repeat("\n"), Repeat("x "), Repeat("."), Repeat("<b>x</b>"),
                                         Repeat("<a href=x>y z</a>"), Repeat("&#x1F600;"), Repeat("&#"), Repeat("&amp"),
                                         Repeat("\x80\xC3"), Repeat("\xF0\x9F\x98\x80"), Repeat("a b <i>"),
                                         "x " + Repeat("y<b>"), Repeat("<!"), Repeat("<br>"), Repeat("one two\r\n"),
                                         Repeat("<a x='<a x=\"")));

// RemoveLinks ---------------------------------------------------------------------------------------------------------

TEST(RemoveLinks, TakesAwayTheMarkUpOfLinksAlone)
{
    EXPECT_EQ(RemoveLinks("see <a href=\"x\">here</a>, <b>now</b> &amp; <A name=y>then</A >"),
              "see here, <b>now</b> &amp; then");
    EXPECT_EQ(RemoveLinks(""), "");
    EXPECT_EQ(RemoveLinks("plain"), "plain");
    EXPECT_EQ(RemoveLinks("<a href=\"x"), "<a href=\"x");
    EXPECT_EQ(RemoveLinks("a < b <abbr>c</abbr>"), "a < b <abbr>c</abbr>");
    EXPECT_EQ(RemoveLinks("<<a href=x>y</a>>"), "<y>");
    EXPECT_EQ(RemoveLinks(std::string("a\0<a>b", 6)), std::string("a\0b", 3));
}

}  // namespace vexel::test
