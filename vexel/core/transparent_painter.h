#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/platform/ref_ptr.h"

namespace vexel
{

/// A scope in which one draws off-screen; its end blends what was drawn onto the target with a constant alpha.
class VEXEL_API CTransparentPainter
{
public:
    /// `rect`: the target's logical units, edges included; the picture starts at its left-top. `alpha`: 0 nothing, 255
    /// everything.
    CTransparentPainter(IPainter* target, rectangle<int> const& rect, int alpha);
    ~CTransparentPainter();
    CTransparentPainter(CTransparentPainter const&) = delete;
    CTransparentPainter& operator=(CTransparentPainter const&) = delete;

    IPainter* GetPainter() const { return m_Painter; }  ///< Open for painting; its origin is the rectangle's left-top.

private:
    IPainter* m_Target;
    rectangle<int> m_Rect;
    vexel_ptr<IRasterPicture> m_Picture;
    IPainter* m_Painter;
    int m_Alpha;
};

}  // namespace vexel
