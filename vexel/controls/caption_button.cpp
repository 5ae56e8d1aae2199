#include "vexel/controls/caption_button.h"

#include "vexel/controls/detail/painter_colors.h"

namespace vexel
{

namespace
{

int const g_HighlightedAlpha = 0xA0;
int const g_PressedAlpha = 0x28;

}  // namespace

CCaptionButton::CCaptionButton(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CPictureButton(parent, extent, alignment)
{
    SetTransparent(true);
    SetCanHaveFocus(false);
}

void CCaptionButton::DrawBk(IPainter* painter, int alpha)
{
    CVisualElement const* const parent = GetParent();
    if (!parent)
        return;
    rectangle<int> const rect = GetContentRect();
    _color const ground = parent->GetBkColor();
    if (DrawBkImage(painter, rect, {}))
    {
        DrawBlendBk(painter, rect, {ground, brush::bsSolid}, alpha);
        return;
    }
    float const t = static_cast<float>(255 - alpha) / 255.0f;
    painter->SetBrush({detail::MixColors(color_table[9], ground, t), brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
}

void CCaptionButton::DrawImageOrNormal(IPainter* painter, ImageInfo const& image)
{
    DrawImage(painter, image.IsAssigned(GetImages()) ? image : GetNormalImage());
}

void CCaptionButton::DrawHighlightedContent(IPainter* painter)
{
    DrawBk(painter, g_HighlightedAlpha);
    DrawImageOrNormal(painter, GetHighlightedImage());
}

void CCaptionButton::DrawPressedContent(IPainter* painter)
{
    DrawBk(painter, g_PressedAlpha);
    DrawImageOrNormal(painter, GetPressedImage());
}

}  // namespace vexel
