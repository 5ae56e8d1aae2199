#include "vexel/platform/memory/png.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <ostream>

namespace vexelbase::memory
{

namespace
{

constexpr std::array<std::uint32_t, 256> MakeCrcTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < 256; ++i)
    {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = value & 1u ? 0xEDB88320u ^ value >> 1 : value >> 1;
        table[i] = value;
    }
    return table;
}

std::uint32_t Crc(std::string const& bytes)
{
    static constexpr std::array<std::uint32_t, 256> table = MakeCrcTable();
    std::uint32_t crc = 0xFFFFFFFFu;
    for (char const byte : bytes)
        crc = table[(crc ^ static_cast<unsigned char>(byte)) & 0xFFu] ^ crc >> 8;
    return ~crc;
}

std::uint32_t Adler(std::string const& bytes)
{
    std::uint32_t a = 1, b = 0;
    for (char const byte : bytes)
    {
        a = (a + static_cast<unsigned char>(byte)) % 65521u;
        b = (b + a) % 65521u;
    }
    return b << 16 | a;
}

std::string BigEndian(std::uint32_t value)
{
    return {static_cast<char>(value >> 24), static_cast<char>(value >> 16), static_cast<char>(value >> 8),
            static_cast<char>(value)};
}

void WriteChunk(std::ostream& out, std::string const& type, std::string const& data)
{
    std::string const body = type + data;
    out << BigEndian(static_cast<std::uint32_t>(data.size())) << body << BigEndian(Crc(body));
}

// A zlib stream of stored blocks.
std::string Store(std::string const& bytes)
{
    constexpr std::size_t most = 65535;
    std::string stream = "\x78\x01";
    for (std::size_t start = 0; start < bytes.size(); start += most)
    {
        std::size_t const length = std::min(most, bytes.size() - start);
        stream += start + length == bytes.size() ? '\1' : '\0';
        stream += static_cast<char>(length);
        stream += static_cast<char>(length >> 8);
        stream += static_cast<char>(~length);
        stream += static_cast<char>(~length >> 8);
        stream.append(bytes, start, length);
    }
    return stream + BigEndian(Adler(bytes));
}

}  // namespace

bool WritePng(std::ostream& out, CPixelBuffer const& pixels)
{
    if (pixels.GetWidth() < 1 || pixels.GetHeight() < 1)
        return WritePng(out, CPixelBuffer(size<int>{1, 1}));

    std::string rows;
    for (int y = 0; y < pixels.GetHeight(); ++y)
    {
        rows += '\0';  // no filter
        std::uint32_t const* const row = pixels.Row(y);
        for (int x = 0; x < pixels.GetWidth(); ++x)
        {
            rows += static_cast<char>(row[x] >> 16);
            rows += static_cast<char>(row[x] >> 8);
            rows += static_cast<char>(row[x]);
        }
    }
    out << "\x89PNG\r\n\x1A\n";
    // Eight bits a channel, red green blue, not interlaced.
    WriteChunk(out, "IHDR",
               BigEndian(static_cast<std::uint32_t>(pixels.GetWidth())) +
                   BigEndian(static_cast<std::uint32_t>(pixels.GetHeight())) + std::string("\x08\x02\0\0\0", 5));
    WriteChunk(out, "IDAT", Store(rows));
    WriteChunk(out, "IEND", "");
    return out.good();
}

bool SavePng(std::string const& path, CPixelBuffer const& pixels)
{
    std::ofstream file(path, std::ios::binary);
    return file && WritePng(file, pixels) && file.flush().good();
}

}  // namespace vexelbase::memory
