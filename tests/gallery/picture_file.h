#pragma once

#include "vexel/platform/pixel_buffer.h"

#include <optional>
#include <string>

namespace vexel::test
{

/// Writes a picture as a small PNG file: with a palette if it has no more than 256 colours, otherwise as 8-bit RGB.
/// False if it has no area or can't be written.
bool SavePicture(std::string const& path, vexelbase::CPixelBuffer const& pixels);

/// Reads a PNG file of any kind; nothing if it can't be read.
std::optional<vexelbase::CPixelBuffer> LoadPicture(std::string const& path);

}  // namespace vexel::test
