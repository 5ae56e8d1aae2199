#pragma once

#include "vexel/export.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/platform/ref_ptr.h"
#include "vexel/platform/xpm.h"

#include <variant>
#include <vector>

namespace vexelbase
{

/// A list of pictures and XPM images, for any backend. Pictures are shown as they are, pixel by pixel; XPM images grow
/// with the system's scale. A null picture is an image without size.
class VEXEL_API CImageList final : public IImageList
{
public:
    int Add(vexel_ptr<IRasterPicture> picture);  ///< Shared, not copied. Returns its index.
    int Add(XPMImage const& image);              ///< Returns its index.
    void Clear() { m_Images.clear(); }

    // From IImageList ---------------------------------------------------------------------------------------------
    int GetCount() const override { return static_cast<int>(m_Images.size()); }
    size<int> GetSize(int index) const override;
    void Draw(IPainter* painter, int index, double x, double y) override;
    void DrawDisabled(IPainter* painter, int index, double x, double y) override;

private:
    using Image = std::variant<vexel_ptr<IRasterPicture>, XPMImage>;

    Image const* Find(int index) const;

    std::vector<Image> m_Images;
};

}  // namespace vexelbase
