#pragma once

#include "vexel/controls/custom_button.h"
#include "vexel/controls/image_holder.h"

namespace vexel
{

/// A button that shows an image by its state, and nothing else; it takes the size of the normal one. Where the element is
/// larger than that, the parent shows around it, and presses there don't count.
/// It fills no ground of its own: in the clear pixels of images that fit, what was painted there before stays, such as
/// the image of the state before. Whoever gives it such images sets it transparent, so that the parent is painted first.
class VEXEL_API CPictureButton : public CCustomButton
{
public:
    using ImageInfo = CImageHolder;

    CPictureButton(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    // Images: from an index in the control's list, a picture or an XPM image ---------------------------------------------
    ImageInfo const& GetNormalImage() const { return m_NormalImage; }
    void SetNormalImage(ImageInfo const& image)
    {
        m_NormalImage = image;
        ImagesChanged();
    }
    void SetNormalImage(int index) { SetNormalImage(ImageInfo(index)); }
    void SetNormalImage(vexel_ptr<IRasterPicture> const& picture) { SetNormalImage(ImageInfo(picture)); }
    void SetNormalImage(XPMImage const& image) { SetNormalImage(ImageInfo(image)); }

    /// Without one the disabled image is made from the normal one.
    void SetDisabledImage(ImageInfo const& image)
    {
        m_DisabledImage = image;
        ImagesChanged();
    }
    void SetDisabledImage(int index) { SetDisabledImage(ImageInfo(index)); }
    void SetDisabledImage(vexel_ptr<IRasterPicture> const& picture) { SetDisabledImage(ImageInfo(picture)); }
    void SetDisabledImage(XPMImage const& image) { SetDisabledImage(ImageInfo(image)); }

    ImageInfo const& GetHighlightedImage() const { return m_HighlightedImage; }
    /// Without one the normal image is shown; the same for the pressed one.
    void SetHighlightedImage(ImageInfo const& image)
    {
        m_HighlightedImage = image;
        ImagesChanged();
    }
    void SetHighlightedImage(int index) { SetHighlightedImage(ImageInfo(index)); }
    void SetHighlightedImage(vexel_ptr<IRasterPicture> const& picture) { SetHighlightedImage(ImageInfo(picture)); }
    void SetHighlightedImage(XPMImage const& image) { SetHighlightedImage(ImageInfo(image)); }

    ImageInfo const& GetPressedImage() const { return m_PressedImage; }
    void SetPressedImage(ImageInfo const& image)
    {
        m_PressedImage = image;
        ImagesChanged();
    }
    void SetPressedImage(int index) { SetPressedImage(ImageInfo(index)); }
    void SetPressedImage(vexel_ptr<IRasterPicture> const& picture) { SetPressedImage(ImageInfo(picture)); }
    void SetPressedImage(XPMImage const& image) { SetPressedImage(ImageInfo(image)); }

    ImageInfo GetDisabledImage();  ///< The one that was set, else one made from the normal image.
    /// Of the source that the normal image has with this list: from an index its disabled form, the picture itself, or
    /// the XPM image in shades of the face.
    ImageInfo BuidDisabledImage(IImageList* list);
    void DrawImage(IPainter* painter, ImageInfo const& image);  ///< In the middle. Nothing without a painter.

public:  // From CButton and its bases
    bool IsTransparent() const override;
    rectangle<int> GetContentRect() const override;  ///< Where the normal image stands.
    void RecalculateSize() override;
    /// Below 0 both: where the pointer is.
    bool IsMouseOverButton(int x, int y) const override;
    void DrawDisabledContent(IPainter* painter, bool& handled) override;
    void DrawNormalContent(IPainter* painter) override;
    void DrawHighlightedContent(IPainter* painter) override;
    void DrawPressedContent(IPainter* painter) override;

protected:
    IImageList* GetImages() const;  ///< Of the control; null without.

private:
    void ImagesChanged();
    point<int> GetImagePos(size<int> const& extent) const;

    ImageInfo m_NormalImage;
    ImageInfo m_DisabledImage;
    ImageInfo m_HighlightedImage;
    ImageInfo m_PressedImage;
};

}  // namespace vexel
