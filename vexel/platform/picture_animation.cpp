#include "vexel/platform/picture_animation.h"

#include "vexel/platform/painter.h"

#include <algorithm>
#include <utility>

namespace vexelbase
{

CPictureAnimation::CPictureAnimation() = default;
CPictureAnimation::~CPictureAnimation() = default;

void CPictureAnimation::AddFrame(vexel_ptr<IRasterPicture> picture, int milliseconds, vexel_ptr<IRasterPicture> mask)
{
    if (picture)
        m_Frames.push_back({std::move(picture), std::move(mask), milliseconds});
}

int CPictureAnimation::GetDelay()
{
    return m_Frames.empty() ? 0 : m_Frames[static_cast<std::size_t>(m_Present)].delay;
}

void CPictureAnimation::NextFrame()
{
    if (++m_Present >= GetFrameCount())
        m_Present = 0;
}

size<int> CPictureAnimation::GetSize() const
{
    size<int> extent;
    for (SFrame const& frame : m_Frames)
    {
        size<int> const own = frame.picture->GetSize();
        extent = {std::max(extent.width, own.width), std::max(extent.height, own.height)};
    }
    return extent;
}

void CPictureAnimation::Draw(IPainter* painter, double x, double y)
{
    if (m_Frames.empty())
        return;
    SFrame const& frame = m_Frames[static_cast<std::size_t>(m_Present)];
    size<int> const extent = frame.picture->GetSize();
    if (extent.width < 1 || extent.height < 1)
        return;
    double const right = x + extent.width - 1;
    double const bottom = y + extent.height - 1;
    if (frame.mask)
        painter->DrawRasterPicture(frame.mask.get(), x, y, right, bottom, IPainter::roAnd);
    painter->DrawRasterPicture(frame.picture.get(), x, y, right, bottom,
                               frame.mask ? IPainter::roXor : IPainter::roCopy);
}

}  // namespace vexelbase
