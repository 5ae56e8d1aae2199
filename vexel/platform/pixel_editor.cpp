#include "vexel/platform/pixel_editor.h"

#include <vector>

namespace vexelbase
{

IPixelEditor::~IPixelEditor() = default;

void EditPixelCopy(rectangle<int> const& area, IPixelEditor& editor, std::function<std::uint32_t(int, int)> const& read,
                   std::function<void(int, int, std::uint32_t)> const& write)
{
    if (area.IsEmpty())
        return;
    std::vector<std::uint32_t> old;
    old.reserve(static_cast<std::size_t>(area.Width()) * static_cast<std::size_t>(area.Height()));
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            old.push_back(read(x, y));

    std::vector<std::uint32_t> pixels = old;
    editor.Edit({area, pixels.data(), area.Width()});
    std::size_t i = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x, ++i)
            if (pixels[i] != old[i])
                write(x, y, pixels[i]);
}

}  // namespace vexelbase
