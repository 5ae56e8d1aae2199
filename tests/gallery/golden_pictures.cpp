#include "tests/gallery/golden_pictures.h"

#include "tests/gallery/picture_file.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <utility>

namespace vexel::test
{

using vexelbase::CPixelBuffer;
namespace fs = std::filesystem;

namespace
{

constexpr std::uint32_t ColorBits = 0xFFFFFFu;

std::string Hex(std::uint32_t pixel)
{
    char text[16];
    std::snprintf(text, sizeof text, "#%06X", static_cast<unsigned>(pixel & ColorBits));
    return text;
}

std::string Place(int x, int y)
{
    return "(" + std::to_string(x) + ", " + std::to_string(y) + ")";
}

std::string Extent(CPixelBuffer const& picture)
{
    return std::to_string(picture.GetWidth()) + " x " + std::to_string(picture.GetHeight());
}

/// A quarter of the colour on white.
std::uint32_t Faint(std::uint32_t pixel)
{
    return 0xFFC0C0C0u + (pixel >> 2 & 0x3F3F3Fu);
}

/// Where two pictures of one size differ, and how.
class CDifference
{
public:
    CDifference(CPixelBuffer const& golden, CPixelBuffer const& actual) : m_Picture(golden.GetSize())
    {
        for (int y = 0; y < golden.GetHeight(); ++y)
        {
            for (int x = 0; x < golden.GetWidth(); ++x)
            {
                std::uint32_t const was = golden.Row(y)[x];
                std::uint32_t const is = actual.Row(y)[x];
                bool const differs = ((was ^ is) & ColorBits) != 0;
                m_Picture.Row(y)[x] = differs ? 0xFFFF0000u : Faint(was);
                if (differs)
                    Add(x, y, was, is);
            }
        }
    }

    std::string Text() const
    {
        return std::to_string(m_Count) + (m_Count == 1 ? " pixel differs" : " pixels differ") + ", the first one at " +
               m_First + "; all of them are within " + Place(m_Where.left, m_Where.top) + " to " +
               Place(m_Where.right, m_Where.bottom);
    }
    CPixelBuffer const& GetPicture() const { return m_Picture; }

private:
    void Add(int x, int y, std::uint32_t was, std::uint32_t is)
    {
        if (m_Count++ == 0)
        {
            m_First = Place(x, y) + ": " + Hex(is) + " instead of " + Hex(was);
            m_Where = {x, y, x, y};
        }
        m_Where.left = std::min(m_Where.left, x);
        m_Where.right = std::max(m_Where.right, x);
        m_Where.bottom = y;
    }

    CPixelBuffer m_Picture;
    int m_Count = 0;
    std::string m_First;
    vexelbase::rectangle<int> m_Where;  // right and bottom included
};

bool AreEqual(CPixelBuffer const& a, CPixelBuffer const& b)
{
    if (a.GetWidth() != b.GetWidth() || a.GetHeight() != b.GetHeight())
        return false;
    for (int y = 0; y < a.GetHeight(); ++y)
        if (!std::equal(a.Row(y), a.Row(y) + a.GetWidth(), b.Row(y),
                        [](std::uint32_t one, std::uint32_t other) { return ((one ^ other) & ColorBits) == 0; }))
            return false;
    return true;
}

std::string Write(fs::path const& file, CPixelBuffer const& picture)
{
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    return SavePicture(file.string(), picture) ? file.string() : file.string() + " (which can't be written)";
}

}  // namespace

CGoldenPictures::CGoldenPictures(fs::path golden, fs::path failed, bool accept)
    : m_Golden(std::move(golden)), m_Failed(std::move(failed)), m_Accept(accept)
{}

std::string CGoldenPictures::Check(std::string const& name, CPixelBuffer const& actual) const
{
    fs::path const file = m_Golden / (name + ".png");
    fs::path const shown = m_Failed / (name + ".actual.png");
    fs::path const marked = m_Failed / (name + ".difference.png");
    std::error_code error;
    fs::remove(shown, error);  // of an earlier run
    fs::remove(marked, error);

    std::optional<CPixelBuffer> const golden = LoadPicture(file.string());
    if (golden && AreEqual(*golden, actual))
        return {};
    if (m_Accept)
    {
        fs::create_directories(m_Golden, error);
        return SavePicture(file.string(), actual) ? "" : "Can't write " + file.string();
    }

    std::string const text = name + ": ";
    std::string const end = "\n  this picture:  " + Write(shown, actual) + "\n" + Advice;
    if (!golden)
        return text + (fs::exists(file, error) ? "the golden picture can't be read" : "there is no golden picture") +
               "\n  expected file: " + file.string() + end;
    if (golden->GetWidth() != actual.GetWidth() || golden->GetHeight() != actual.GetHeight())
        return text + "the size is " + Extent(actual) + " instead of " + Extent(*golden) +
               "\n  golden:        " + file.string() + end;
    CDifference const difference(*golden, actual);
    return text + difference.Text() + "\n  golden:        " + file.string() +
           "\n  difference:    " + Write(marked, difference.GetPicture()) + end;
}

std::vector<std::string> CGoldenPictures::FindOrphans(std::set<std::string> const& names) const
{
    std::vector<std::string> orphans;
    std::error_code error;
    for (fs::directory_entry const& entry : fs::directory_iterator(m_Golden, error))
    {
        fs::path const& path = entry.path();
        if (path.extension() == ".png" && names.count(path.stem().string()))
            continue;
        if (m_Accept)
            fs::remove(path, error);
        else
            orphans.push_back(path.filename().string());
    }
    std::sort(orphans.begin(), orphans.end());
    return orphans;
}

}  // namespace vexel::test
