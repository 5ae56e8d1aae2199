#pragma once

#include "vexel/export.h"
#include "vexel/platform/animation.h"
#include "vexel/platform/raster_picture.h"

#include <vector>

namespace vexelbase
{

/// An animation over pictures, each with a delay of its own. Starts with the first one. Without frames it has no size,
/// draws nothing and asks for a delay of 0.
class VEXEL_API CPictureAnimation : public IAnimation
{
public:
    CPictureAnimation();
    ~CPictureAnimation() override;

    /// Appends a frame. `mask`: null, or a picture as large, white where the frame is transparent and black elsewhere; the
    /// frame's picture must be black there. A null picture is not taken.
    void AddFrame(vexel_ptr<IRasterPicture> picture, int milliseconds, vexel_ptr<IRasterPicture> mask = {});
    int GetFrameCount() const { return static_cast<int>(m_Frames.size()); }
    int GetFrame() const { return m_Present; }  ///< The present one, from 0.

    // From IAnimation -------------------------------------------------------------------------------------------------
    int GetDelay() override;
    void NextFrame() override;
    size<int> GetSize() const override;  ///< Device pixels: the largest width and height of all frames.
    void Draw(IPainter* painter, double x, double y) override;

private:
    struct SFrame
    {
        vexel_ptr<IRasterPicture> picture;
        vexel_ptr<IRasterPicture> mask;
        int delay = 0;
    };

    std::vector<SFrame> m_Frames;
    int m_Present = 0;
};

}  // namespace vexelbase
