#pragma once

#include "vexel/export.h"
#include "vexel/platform/pixel_buffer.h"

#include <iosfwd>
#include <string>

namespace vexelbase::memory
{

/// Writes a picture as an uncompressed PNG file: 8-bit RGB. A picture without area is written as one white pixel.
/// Returns false if the stream or file could not be written.
VEXEL_MEMORY_API bool WritePng(std::ostream& out, CPixelBuffer const& pixels);
VEXEL_MEMORY_API bool SavePng(std::string const& path, CPixelBuffer const& pixels);

}  // namespace vexelbase::memory
