#include "vexel/platform/xpm.h"

#include "vexel/platform/detail/xpm_color.h"
#include "vexel/platform/detail/xpm_look.h"
#include "vexel/platform/palette.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace vexelbase
{

namespace
{

constexpr int MaxSide = 32767;
constexpr int MaxColors = 65536;
constexpr int MaxCharacters = 8;  // a pixel; packed into one word
constexpr std::int64_t MaxPixels = std::int64_t{1} << 26;

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// Cuts the next word off the text; empty at its end.
std::string_view NextWord(std::string_view& text)
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    std::size_t end = 0;
    while (end < text.size() && !IsSpace(text[end]))
        ++end;
    std::string_view const word = text.substr(0, end);
    text.remove_prefix(end);
    return word;
}

struct SHeader
{
    int width = 0;
    int height = 0;
    int colors = 0;
    int characters = 0;

    int GetLineCount() const { return 1 + colors + height; }
};

// 1 to `limit`.
bool ReadCount(std::string_view& text, int limit, int& count)
{
    std::string_view const word = NextWord(text);
    if (word.empty())
        return false;
    std::int64_t value = 0;
    for (char const c : word)
    {
        if (c < '0' || c > '9')
            return false;
        value = value * 10 + (c - '0');
        if (value > limit)
            return false;
    }
    count = static_cast<int>(value);
    return value > 0;
}

// The four numbers; a hot spot and what else may follow doesn't matter.
std::optional<SHeader> ReadHeader(char const* line)
{
    if (!line)
        return std::nullopt;
    std::string_view text = line;
    SHeader header;
    if (!ReadCount(text, MaxSide, header.width) || !ReadCount(text, MaxSide, header.height) ||
        !ReadCount(text, MaxColors, header.colors) || !ReadCount(text, MaxCharacters, header.characters))
        return std::nullopt;
    if (std::int64_t{header.width} * header.height > MaxPixels)
        return std::nullopt;
    return header;
}

std::uint64_t PackSymbol(char const* text, int characters)
{
    std::uint64_t symbol = 0;
    for (int i = 0; i < characters; ++i)
        symbol = symbol << 8 | static_cast<unsigned char>(text[i]);
    return symbol;
}

int KeyRank(std::string_view word)
{
    if (word == "c")
        return 1;
    if (word == "g")
        return 2;
    if (word == "g4")
        return 3;
    if (word == "m")
        return 4;
    return word == "s" ? 5 : 0;
}

// The colour of a line behind its symbol: pairs of a key and a value, which may have several words.
std::optional<_color> ReadColor(std::string_view text)
{
    std::string_view best;
    int bestRank = 5;
    std::string_view word = NextWord(text);
    while (!word.empty())
    {
        int const rank = KeyRank(word);
        if (rank == 0)
            return std::nullopt;
        std::string_view const first = NextWord(text);
        if (first.empty())
            return std::nullopt;
        char const* valueEnd = first.data() + first.size();
        for (word = NextWord(text); !word.empty() && KeyRank(word) == 0; word = NextWord(text))
            valueEnd = word.data() + word.size();
        if (rank < bestRank)
        {
            bestRank = rank;
            best = std::string_view(first.data(), static_cast<std::size_t>(valueEnd - first.data()));
        }
    }
    return best.empty() ? std::nullopt : detail::ParseXpmColor(best);
}

}  // namespace

// XPMBuf --------------------------------------------------------------------------------------------------------------

XPMBuf::XPMBuf(char const** lines, bool shared)
{
    if (!lines || !lines[0])
        return;
    std::optional<SHeader> const header = ReadHeader(lines[0]);
    int const announced = header ? header->GetLineCount() : 1;
    int count = 1;
    while (count < announced && lines[count])
        ++count;
    if (shared)
    {
        m_Shared = lines;
        m_SharedCount = count;
        return;
    }
    m_Lines = std::make_shared<std::vector<std::string> const>(lines, lines + count);
}

int XPMBuf::GetLineCount() const { return m_Lines ? static_cast<int>(m_Lines->size()) : m_SharedCount; }

char const* XPMBuf::GetLine(int index) const
{
    if (index < 0 || index >= GetLineCount())
        return nullptr;
    return m_Lines ? (*m_Lines)[static_cast<std::size_t>(index)].c_str() : m_Shared[index];
}

// XPMImage ------------------------------------------------------------------------------------------------------------

XPMImage::XPMImage(XPMBuf const& buffer) : m_Buffer(buffer) {}

void XPMImage::Init() const
{
    if (m_Parsed)
        return;
    m_Parsed = true;
    Parse();
}

void XPMImage::Parse() const
{
    std::optional<SHeader> const header = ReadHeader(m_Buffer.GetLine(0));
    if (!header || m_Buffer.GetLineCount() < header->GetLineCount())
        return;

    auto const characters = static_cast<std::size_t>(header->characters);
    std::unordered_map<std::uint64_t, _color> colors;
    for (int i = 1; i <= header->colors; ++i)
    {
        std::string_view const line = m_Buffer.GetLine(i);
        if (line.size() < characters)
            return;
        std::optional<_color> const color = ReadColor(line.substr(characters));
        if (!color)
            return;
        colors.insert_or_assign(PackSymbol(line.data(), header->characters), *color);
    }

    std::vector<_color> pixels;
    for (int y = 0; y < header->height; ++y)
    {
        char const* const line = m_Buffer.GetLine(1 + header->colors + y);
        auto const needed = characters * static_cast<std::size_t>(header->width);
        if (strnlen(line, needed) < needed)
            return;
        for (std::size_t x = 0; x < needed; x += characters)
        {
            auto const found = colors.find(PackSymbol(line + x, header->characters));
            if (found == colors.end())
                return;
            pixels.push_back(found->second);
        }
    }
    m_Pixels = std::make_shared<std::vector<_color> const>(std::move(pixels));
    m_Width = header->width;
    m_Height = header->height;
}

int XPMImage::GetWidth() const
{
    Init();
    return m_Width;
}

int XPMImage::GetHeight() const
{
    Init();
    return m_Height;
}

_color XPMImage::GetPixel(int x, int y) const
{
    Init();
    if (x < 0 || y < 0 || x >= m_Width || y >= m_Height)
        return _color(0, true);
    return (*m_Pixels)[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_Width) + static_cast<std::size_t>(x)];
}

XPMImage XPMImage::GetDisabled(ICustomPalette* palette) const
{
    Init();
    XPMImage result(*this);
    result.m_DisabledLook = true;
    if (m_DisabledLook || !m_Pixels)
        return result;
    _color const face = (palette ? palette : GetDefaultPalette())->GetColor(ISysPalette::scFace);
    std::vector<_color> pixels(*m_Pixels);
    for (_color& pixel : pixels)
        pixel = detail::GetDisabledLook(pixel, face);
    result.m_Pixels = std::make_shared<std::vector<_color> const>(std::move(pixels));
    return result;
}

namespace detail
{

_color GetDisabledLook(_color const& color, _color const& face)
{
    if (color.m_None)
        return color;
    int const grey = (color.Red() * 299 + color.Green() * 587 + color.Blue() * 114) / 1000;
    return _color::FromRgb((grey + face.Red()) / 2, (grey + face.Green()) / 2, (grey + face.Blue()) / 2);
}

}  // namespace detail

}  // namespace vexelbase
