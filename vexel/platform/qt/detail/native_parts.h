#pragma once

#include "vexel/platform/geometry.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/pixel_buffer.h"

#include <cstdint>
#include <list>
#include <map>
#include <tuple>

class QImage;

namespace vexelbase::qt
{

/// Pictures of the desktop style's parts, kept by part, size and state; bounded. GUI thread.
class CNativeParts
{
public:
    static CNativeParts& Get();

    /// Covers the whole size, device pixels. Valid until the next call.
    CPixelBuffer const& GetPicture(IPainter::ControlElement element, size<int> const& extent, int state, double ratio);
    void Clear();  ///< Style or colours have changed.

    /// Draws a part into the image, at device pixels `area`, without keeping it. Sets the image's ratio.
    static void Draw(QImage& image, rectangle<int> const& area, IPainter::ControlElement element, int state,
                     double ratio);

    static constexpr std::size_t MaxPictures = 256;
    static constexpr std::size_t MaxBytes = 8u << 20;

private:
    using Key = std::tuple<int, int, int, int, double>;
    struct SPicture
    {
        CPixelBuffer pixels;
        std::list<Key>::iterator order;
    };

    std::map<Key, SPicture> m_Pictures;
    std::list<Key> m_Order;  // the one used last in front
    std::size_t m_Bytes = 0;
};

}  // namespace vexelbase::qt
