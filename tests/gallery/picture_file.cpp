#include "tests/gallery/picture_file.h"

#include <png.h>

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace vexel::test
{

using vexelbase::CPixelBuffer;

namespace
{

constexpr std::size_t MostIndexed = 256;

void Add(std::vector<png_byte>& bytes, std::uint32_t pixel)
{
    bytes.push_back(static_cast<png_byte>(pixel >> 16));
    bytes.push_back(static_cast<png_byte>(pixel >> 8));
    bytes.push_back(static_cast<png_byte>(pixel));
}

/// The picture as bytes: indices into a palette as long as there are few colours.
struct SBytes
{
    explicit SBytes(CPixelBuffer const& picture)
    {
        std::unordered_map<std::uint32_t, png_byte> places;
        bytes.reserve(static_cast<std::size_t>(picture.GetWidth()) * static_cast<std::size_t>(picture.GetHeight()));
        for (int y = 0; y < picture.GetHeight(); ++y)
        {
            std::uint32_t const* const row = picture.Row(y);
            for (int x = 0; x < picture.GetWidth(); ++x)
            {
                if (x > 0 && row[x] == row[x - 1])  // most of them: no need to look for it again
                {
                    bytes.push_back(bytes.back());
                    continue;
                }
                auto place = places.find(row[x]);
                if (place == places.end())
                {
                    if (places.size() == MostIndexed)
                    {
                        TakeAll(picture);
                        return;
                    }
                    place = places.emplace(row[x], static_cast<png_byte>(places.size())).first;
                    Add(palette, row[x]);
                }
                bytes.push_back(place->second);
            }
        }
    }

    std::vector<png_byte> bytes;
    std::vector<png_byte> palette;  // three bytes a colour; empty: the bytes are colours themselves

private:
    void TakeAll(CPixelBuffer const& picture)
    {
        bytes.clear();
        palette.clear();
        for (int y = 0; y < picture.GetHeight(); ++y)
            std::for_each_n(picture.Row(y), picture.GetWidth(), [&](std::uint32_t pixel) { Add(bytes, pixel); });
    }
};

png_image MakeImage()
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    return image;
}

}  // namespace

bool SavePicture(std::string const& path, CPixelBuffer const& pixels)
{
    if (pixels.GetRect().IsEmpty())
        return false;
    SBytes const picture(pixels);
    png_image image = MakeImage();
    image.width = static_cast<png_uint_32>(pixels.GetWidth());
    image.height = static_cast<png_uint_32>(pixels.GetHeight());
    image.format = picture.palette.empty() ? PNG_FORMAT_RGB : PNG_FORMAT_RGB_COLORMAP;
    image.colormap_entries = static_cast<png_uint_32>(picture.palette.size() / 3);
    return png_image_write_to_file(&image, path.c_str(), 0, picture.bytes.data(), 0,
                                   picture.palette.empty() ? nullptr : picture.palette.data()) != 0;
}

std::optional<CPixelBuffer> LoadPicture(std::string const& path)
{
    png_image image = MakeImage();
    if (!png_image_begin_read_from_file(&image, path.c_str()))
        return std::nullopt;
    image.format = PNG_FORMAT_RGB;
    CPixelBuffer pixels({static_cast<int>(image.width), static_cast<int>(image.height)});
    std::vector<png_byte> bytes(PNG_IMAGE_SIZE(image));
    if (!png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr))
        return std::nullopt;
    png_byte const* from = bytes.data();
    for (int y = 0; y < pixels.GetHeight(); ++y)
    {
        std::uint32_t* const row = pixels.Row(y);
        for (int x = 0; x < pixels.GetWidth(); ++x, from += 3)
            row[x] = 0xFF000000u | static_cast<std::uint32_t>(from[0]) << 16 |
                     static_cast<std::uint32_t>(from[1]) << 8 | static_cast<std::uint32_t>(from[2]);
    }
    return pixels;
}

}  // namespace vexel::test
