#include "vexel/controls/picture_button.h"

#include "vexel/core/control.h"

namespace vexel
{

CPictureButton::CPictureButton(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CCustomButton(parent, extent, alignment)
{
    SetAutoSize(true);
}

void CPictureButton::ImagesChanged()
{
    CAliveGuard const alive(this);
    RecalculateSize();
    if (alive)
        Update(utElement);
}

IImageList* CPictureButton::GetImages() const
{
    return GetControl() ? GetControl()->GetImageList() : nullptr;
}

// Geometry ----------------------------------------------------------------------------------------------------------------

void CPictureButton::RecalculateSize()
{
    SetSize(m_NormalImage.GetSize(GetImages()), false);
}

point<int> CPictureButton::GetImagePos(size<int> const& extent) const
{
    rectangle<int> const bounds = GetBounds();
    return {SubtractSaturated(SubtractSaturated(bounds.right, extent.width), bounds.left) / 2,
            SubtractSaturated(bounds.bottom, AddSaturated(bounds.top, extent.height)) / 2};
}

rectangle<int> CPictureButton::GetContentRect() const
{
    size<int> const extent = m_NormalImage.GetSize(GetImages());
    point<int> const corner = GetImagePos(extent);
    return {corner.x, corner.y, AddSaturated(corner.x, extent.width - 1), AddSaturated(corner.y, extent.height - 1)};
}

bool CPictureButton::IsTransparent() const
{
    if (CCustomButton::IsTransparent())
        return true;
    size<int> const extent = m_NormalImage.GetSize(GetImages());
    rectangle<int> const bounds = GetBounds();
    return extent.width < bounds.right || extent.height < bounds.bottom;
}

bool CPictureButton::IsMouseOverButton(int x, int y) const
{
    point<int> position{x, y};
    if (x < 0 && y < 0)
        position = GetMousePos();
    rectangle<int> rect = GetContentRect();
    rect.left = AddSaturated(rect.left, 1);
    rect.top = AddSaturated(rect.top, 1);
    return rect.Contains(position.x, position.y);
}

// Drawing -----------------------------------------------------------------------------------------------------------------

void CPictureButton::DrawImage(IPainter* painter, ImageInfo const& image)
{
    if (!painter)
        return;
    IImageList* const images = GetImages();
    point<int> const corner = GetImagePos(image.GetSize(images));
    image.DrawImage(painter, images, corner.x, corner.y);
}

CPictureButton::ImageInfo CPictureButton::GetDisabledImage()
{
    IImageList* const images = GetImages();
    return m_DisabledImage.IsAssigned(images) ? m_DisabledImage : BuidDisabledImage(images);
}

CPictureButton::ImageInfo CPictureButton::BuidDisabledImage(IImageList* list)
{
    ImageInfo result;
    if (m_NormalImage.m_Index >= 0 && list)
    {
        result.m_Index = m_NormalImage.m_Index;
        result.m_Disabled = true;
    }
    else if (m_NormalImage.m_Picture)
        result.m_Picture = m_NormalImage.m_Picture;
    else
        result.m_Xpm = m_NormalImage.m_Xpm.GetDisabled(GetCustomPalette());
    return result;
}

void CPictureButton::DrawDisabledContent(IPainter* painter, bool& handled)
{
    DrawImage(painter, GetDisabledImage());
    handled = true;
}

void CPictureButton::DrawNormalContent(IPainter* painter)
{
    DrawImage(painter, m_NormalImage);
}

void CPictureButton::DrawHighlightedContent(IPainter* painter)
{
    DrawImage(painter, m_HighlightedImage.IsAssigned(GetImages()) ? m_HighlightedImage : m_NormalImage);
}

void CPictureButton::DrawPressedContent(IPainter* painter)
{
    DrawImage(painter, m_PressedImage.IsAssigned(GetImages()) ? m_PressedImage : m_NormalImage);
}

}  // namespace vexel
