#pragma once

#include "vexel/platform/native_controls.h"
#include "vexel/platform/painter.h"

#include <string>
#include <utility>
#include <vector>

namespace vexel::test
{

/// An image list of plain squares that notes what is drawn: "draw 0 at 3 4", "disabled 1 at 0 0".
class CTestImages : public vexelbase::IImageList
{
public:
    explicit CTestImages(std::vector<vexelbase::size<int>> sizes) : m_Sizes(std::move(sizes)) {}

    int GetCount() const override { return static_cast<int>(m_Sizes.size()); }
    vexelbase::size<int> GetSize(int index) const override
    {
        return index >= 0 && index < GetCount() ? m_Sizes[static_cast<std::size_t>(index)] : vexelbase::size<int>();
    }
    void Draw(vexelbase::IPainter*, int index, double x, double y) override { Note("draw", index, x, y); }
    void DrawDisabled(vexelbase::IPainter*, int index, double x, double y) override { Note("disabled", index, x, y); }

    /// What was drawn since the last call, parted by "; ".
    std::string Take() { return std::exchange(m_Log, {}); }

private:
    void Note(std::string const& what, int index, double x, double y)
    {
        m_Log += (m_Log.empty() ? "" : "; ") + what + " " + std::to_string(index) + " at " +
                 std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y));
        if (x != static_cast<int>(x) || y != static_cast<int>(y))
            m_Log += " and a bit";
    }

    std::vector<vexelbase::size<int>> m_Sizes;
    std::string m_Log;
};

}  // namespace vexel::test
