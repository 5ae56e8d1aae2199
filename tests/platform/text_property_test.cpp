// Texts of all kinds against plain models of how they are to be laid out.

#include "tests/platform/text_device.h"

#include "vexel/platform/text_formatter.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace vexel::test
{

namespace
{

using Size = size<double>;

struct SLine
{
    std::string text;
    int width = 0;  // in characters
};

bool IsDelimiter(char c)
{
    return c == ' ' || c == '.' || c == '/';
}

/// Cuts off words from the front and puts them on lines as long as they have room. `room`: characters.
std::vector<SLine> WrapByHand(std::string text, int room)
{
    std::vector<SLine> lines;
    while (!text.empty())
    {
        std::size_t const feed = text.find('\n');
        std::string paragraph = text.substr(0, feed);
        text = feed == std::string::npos ? "" : text.substr(feed + 1);
        do
        {
            std::string line;
            while (!paragraph.empty())
            {
                std::size_t end = 0;
                while (end < paragraph.size() && !IsDelimiter(paragraph[end]))
                    ++end;
                if (end < paragraph.size())
                    ++end;
                while (paragraph[end - 1] == ' ' && end < paragraph.size() && paragraph[end] == ' ')
                    ++end;
                std::string const word = paragraph.substr(0, end);
                std::size_t const letters = word.find_last_not_of(' ') + 1;
                if (!line.empty() && letters > 0 && static_cast<int>(line.size() + letters) > room)
                    break;
                line += word;
                paragraph = paragraph.substr(end);
            }
            if (!paragraph.empty() || static_cast<int>(line.size()) > room)
                line = line.substr(0, line.find_last_not_of(' ') + 1);
            lines.push_back({line, static_cast<int>(line.size())});
        } while (!paragraph.empty());
    }
    return lines;
}

std::string WithoutBlanksAtEnd(std::string const& text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// What was drawn, line by line from the top: a line without a run is empty.
std::vector<std::string> DrawnLines(std::vector<SDrawnRun> const& runs)
{
    std::vector<std::string> lines;
    for (SDrawnRun const& run : runs)
    {
        auto const index = static_cast<std::size_t>(run.y / 8);
        lines.resize(std::max(lines.size(), index + 1));
        lines[index] += run.text;
    }
    return lines;
}

struct SPiece
{
    std::string source;
    std::string shown;
    int bold = 0;
    int italic = 0;
    int link = 0;  // 1 opens, -1 closes
    bool breaks = false;
};

std::ostream& operator<<(std::ostream& stream, SPiece const& piece)
{
    return stream << '"' << piece.source << '"';
}

std::vector<SPiece> const& Pieces()
{
    static std::vector<SPiece> const pieces = {
        {"ab", "ab"},
        {"c", "c"},
        {" ", " "},
        {"  ", "  "},
        {".", "."},
        {"&lt;", "<"},
        {"&amp;", "&"},
        {"&#65;", "A"},
        {"&nbsp;", "\xC2\xA0"},
        {"\xC3\xA4", "\xC3\xA4"},
        {"<", "<"},
        {"&", "&"},
        {"&;", "&;"},
        {"<zzz x=\"<\">", ""},
        {"<b>", "", 1},
        {"<b>", "", 1},
        {"</b>", "", -1},
        {"<i>", "", 0, 1},
        {"</i>", "", 0, -1},
        {"<a href=\"t\">", "", 0, 0, 1},
        {"<a href=\"t\">", "", 0, 0, 1},
        {"</a>", "", 0, 0, -1},
        {"<br>", "", 0, 0, 0, true},
        {"\n", "", 0, 0, 0, true},
    };
    return pieces;
}

/// One character that is seen, with how it must look.
struct SShown
{
    std::string text;
    int style = 0;
    int line = 0;

    friend bool operator==(SShown const&, SShown const&) = default;
};

std::ostream& operator<<(std::ostream& stream, SShown const& shown)
{
    return stream << shown.text << '/' << shown.style << '/' << shown.line;
}

void SplitCharacters(std::string const& text, int style, int line, std::vector<SShown>& result)
{
    for (char const c : text)
    {
        if ((static_cast<unsigned char>(c) & 0xC0u) == 0x80u)
            result.back().text += c;
        else
            result.push_back({std::string(1, c), style, line});
    }
}

std::vector<SShown> WithoutBlanksAndLines(std::vector<SShown> shown)
{
    std::erase_if(shown, [](SShown const& character) { return character.text == " "; });
    for (SShown& character : shown)
        character.line = 0;
    return shown;
}

class CLinkCount : public CHTMLTextFormatter
{
public:
    void OnDrawLink(char const* target, int length, rectangle<int> const& rect) override
    {
        m_Targets += target ? 1 : 0;
        m_RightTargets += target && std::string(target, static_cast<std::size_t>(length)) == "t" ? 1 : 0;
        m_Width += rect.right - rect.left + 1;
    }

    int m_Targets = 0;
    int m_RightTargets = 0;
    int m_Width = 0;
};

}  // namespace

TEST(TextProperty, PlainTextIsWrappedAsByHand)
{
    EXPECT_TRUE(rc::check([] {
        auto const text = *rc::gen::container<std::string>(rc::gen::element('a', 'b', 'c', ' ', ' ', '.', '/', '\n'));
        int const room = *rc::gen::inRange(0, 12);
        std::vector<SLine> const expected = WrapByHand(text, room);

        STextBench bench;
        Size const measured = bench.painter.DrawStringEx({0, 0, room * 8.0, 4000}, text.c_str(),
                                                         IPainter::AlignMeasureOnly, -1, TextDelimiters, nullptr);
        bench.device.m_PretendedSize = {2000, 4000};
        Size const drawn =
            bench.painter.DrawStringEx({0, 0, room * 8.0, 4000}, text.c_str(), 0, -1, TextDelimiters, nullptr);
        int width = 0;
        for (SLine const& line : expected)
            width = std::max(width, line.width);
        RC_ASSERT(measured.width == width * 8);
        RC_ASSERT(measured.height == static_cast<double>(expected.size()) * 8);
        RC_ASSERT(drawn == measured);

        std::vector<std::string> lines = DrawnLines(bench.device.m_Runs);
        lines.resize(expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            RC_ASSERT(lines[i] == expected[i].text);

        // Mark-up is laid out the same way where there is none.
        CHTMLTextFormatter formatter;
        bench.device.m_Runs.clear();
        Size const marked =
            bench.painter.DrawStringEx({0, 0, room * 8.0, 4000}, text.c_str(), 0, -1, TextDelimiters, &formatter);
        RC_ASSERT(marked == measured);
        std::vector<std::string> markedLines = DrawnLines(bench.device.m_Runs);
        markedLines.resize(expected.size());
        for (std::size_t i = 0; i < lines.size(); ++i)
            RC_ASSERT(WithoutBlanksAtEnd(markedLines[i]) == WithoutBlanksAtEnd(lines[i]));
    }));
}

TEST(TextProperty, AFittedTextStaysInItsRectangleAndSaysWhetherItWasShortened)
{
    EXPECT_TRUE(rc::check([] {
        auto const text = *rc::gen::container<std::string>(rc::gen::element('a', 'b', ' ', '.', '\n'));
        int const room = *rc::gen::inRange(3, 12);
        int const rows = *rc::gen::inRange(1, 5);
        STextBench bench;
        bench.device.m_PretendedSize = {2000, 4000};
        Size const size = bench.painter.DrawStringEx({0, 0, room * 8.0, rows * 8.0}, text.c_str(),
                                                     IPainter::AlignFitText, -1, TextDelimiters, nullptr);
        for (SDrawnRun const& run : bench.device.m_Runs)
        {
            RC_ASSERT(run.x + static_cast<int>(run.text.size()) * 8 <= room * 8);
            RC_ASSERT(run.y + 8 <= rows * 8);
        }
        RC_ASSERT(bench.painter.m_TextShortened == (size.width > room * 8 || size.height > rows * 8));
    }));
}

TEST(TextProperty, MarkUpShowsTheRightCharactersInTheRightStyles)
{
    EXPECT_TRUE(rc::check([] {
        auto const pieces = *rc::gen::container<std::vector<SPiece>>(rc::gen::elementOf(Pieces()));
        std::string source;
        std::vector<SShown> expected;
        int bold = 0;
        int italic = 0;
        int line = 0;
        int width = 0;
        int linkWidth = 0;
        bool link = false;
        bool told = false;
        int targets = 0;
        for (SPiece const& piece : pieces)
        {
            source += piece.source;
            bold = std::max(0, bold + piece.bold);
            italic = std::max(0, italic + piece.italic);
            if (piece.link != 0)
            {
                link = piece.link > 0;
                told = false;
            }
            line += piece.breaks ? 1 : 0;
            std::size_t const before = expected.size();
            SplitCharacters(piece.shown, (bold ? 1 : 0) | (italic ? 2 : 0) | (link ? 4 : 0), line, expected);
            int const pieceWidth = static_cast<int>(expected.size() - before) * (bold ? 9 : 8);
            width += pieceWidth;
            if (link && pieceWidth > 0)
            {
                linkWidth += pieceWidth;
                targets += told ? 0 : 1;
                told = true;
            }
        }

        STextBench bench;
        bench.device.m_PretendedSize = {3000, 4000};
        CLinkCount formatter;
        auto const shown = [&] {
            std::vector<SShown> result;
            for (SDrawnRun const& run : bench.device.m_Runs)
                SplitCharacters(run.text, run.style, run.y / 8, result);
            bench.device.m_Runs.clear();
            return result;
        };
        bench.painter.DrawStringEx({0, 0, 3000, 4000}, source.c_str(), IPainter::AlignSingleLine, -1, MarkupDelimiters,
                                   &formatter);
        RC_ASSERT(shown() == expected);
        RC_ASSERT(formatter.m_Targets == targets);
        RC_ASSERT(formatter.m_RightTargets == targets);
        RC_ASSERT(formatter.m_Width == linkWidth);
        RC_ASSERT(bench.painter.GetFont().style == 0);

        // Wrapped, the same characters are seen, but for blanks where a line ends.
        int const room = *rc::gen::inRange(0, 100);
        Size const size = bench.painter.DrawStringEx({0, 0, static_cast<double>(room), 4000}, source.c_str(), 0, -1,
                                                     MarkupDelimiters, &formatter);
        RC_ASSERT(WithoutBlanksAndLines(shown()) == WithoutBlanksAndLines(expected));
        RC_ASSERT(size.width <= width);
        RC_ASSERT(bench.painter.DrawStringEx({0, 0, static_cast<double>(room), 4000}, source.c_str(),
                                             IPainter::AlignMeasureOnly, -1, MarkupDelimiters, &formatter) == size);
    }));
}

TEST(TextProperty, AnyBytesDoNoHarm)
{
    EXPECT_TRUE(rc::check([] {
        auto const text = *rc::gen::container<std::string>(rc::gen::oneOf(
            rc::gen::arbitrary<char>(), rc::gen::element('<', '>', '&', ';', '#', '"', '=', 'a', '/', 'b')));
        STextBench bench;
        CLinkCount formatter;
        double const width = *rc::gen::inRange(-50, 200);
        double const height = *rc::gen::inRange(-50, 100);
        bench.UseFont(*rc::gen::inRange(0, 16), *rc::gen::element(0, 900, 1800, 2700, 450));
        int const flags = *rc::gen::inRange(0, 0x4000);
        int const count = *rc::gen::element(-1, 0, 1, 5, 1000);
        IPainter::ITextFormatter* const formatters[] = {&formatter, nullptr};
        for (IPainter::ITextFormatter* const each : formatters)
        {
            Size const size =
                bench.painter.DrawStringEx({0, 0, width, height}, text.c_str(), flags, count, MarkupDelimiters, each);
            RC_ASSERT(size.width >= 0);
            RC_ASSERT(size.height >= 0);
        }
        bench.painter.DrawString({0, 0, width, height}, text.c_str(), flags, count);
        bench.painter.GetTextSize(text, nullptr, count);
        RC_ASSERT(RemoveLinks(text).size() <= text.size());
    }));
}

}  // namespace vexel::test
