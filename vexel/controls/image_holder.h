#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/platform/ref_ptr.h"
#include "vexel/platform/xpm.h"

namespace vexel
{

/// One image out of any of three sources: an index in an image list, if that is not negative and a list is given; else a
/// picture; else an XPM image, which is scaled with the display.
class VEXEL_API CImageHolder
{
public:
    CImageHolder() = default;
    explicit CImageHolder(int index) : m_Index(index) {}
    explicit CImageHolder(vexel_ptr<IRasterPicture> picture) : m_Picture(std::move(picture)) {}
    explicit CImageHolder(XPMImage const& image) : m_Xpm(image) {}

    size<int> GetSize(IImageList* list) const;  ///< Device pixels; (0, 0) for none.
    int GetWidth(IImageList* list) const { return GetSize(list).width; }
    int GetHeight(IImageList* list) const { return GetSize(list).height; }
    bool IsAssigned(IImageList* list) const;  ///< It has a width and a height.
    /// With its left-top at (x, y). A disabled image of a list is drawn on a ground in the painter's brush.
    void DrawImage(IPainter* painter, IImageList* list, int x, int y) const;

    int m_Index = -1;
    bool m_Disabled = false;  ///< The list draws the image in its disabled form.
    XPMImage m_Xpm;
    vexel_ptr<IRasterPicture> m_Picture;
};

}  // namespace vexel
