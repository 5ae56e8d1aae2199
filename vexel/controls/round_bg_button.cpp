#include "vexel/controls/round_bg_button.h"

#include "vexel/controls/detail/painter_colors.h"
#include "vexel/controls/detail/shaded_pictures.h"
#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/core/measure_bracket.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/native_controls.h"

#include <algorithm>
#include <array>

namespace vexel
{

namespace
{

using Index = CRoundBgButton::InternalBgImageIndex;

struct SRow
{
    _color text;
    int transparency;
};

std::array<SRow, 4> g_Rows{{{0xFFB9A06E, 100}, {color_table[0], 60}, {color_table[0], 60}, {color_table[0], 60}}};

// Lives as long as the process.
CRoundBgButton::Pictures& GetStaticPictures()
{
    static auto& pictures = *new CRoundBgButton::Pictures;
    return pictures;
}

SRow* FindRow(Index index)
{
    bool const known = index >= CRoundBgButton::BgDisabled && index <= CRoundBgButton::BgPressed;
    return known ? &g_Rows[static_cast<std::size_t>(index)] : nullptr;
}

vexel_ptr<IRasterPicture> MakePicture(XPMBuf const& lines)
{
    ISystem* const system = GetCurrentSystem();
    return system ? system->CreateRasterPicture(lines) : nullptr;
}

vexel_ptr<IRasterPicture> Find(CRoundBgButton::Pictures const& pictures, Index index)
{
    auto const place = pictures.find(index);
    return place != pictures.end() ? place->second : nullptr;
}

// The images of a list in their disabled form.
class CDisabledImages : public IImageList
{
public:
    explicit CDisabledImages(IImageList* list) : m_List(list) {}

    int GetCount() const override { return m_List->GetCount(); }
    size<int> GetSize(int index) const override { return m_List->GetSize(index); }
    void Draw(IPainter* painter, int index, double x, double y) override { DrawDisabled(painter, index, x, y); }
    void DrawDisabled(IPainter* painter, int index, double x, double y) override
    {
        m_List->DrawDisabled(painter, index, x, y);
    }

private:
    IImageList* const m_List;
};

}  // namespace

double CRoundBgButton::m_BorderRadius = 4.0;
_color CRoundBgButton::m_InnerBorderCol = 0xFFFAFAFA;
_color CRoundBgButton::m_InnerBorderColDisabled = 0xFFB9A06E;
_color CRoundBgButton::m_OuterBorderCol = 0xFF473030;
_color CRoundBgButton::m_OuterBorderColDisabled = 0xFF473000;

CRoundBgButton::CRoundBgButton(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CCustomButton(parent, extent, alignment)
{
    if (!GetStaticInternalPicture(BgNormal))
        InitStaticBgPictures();
    m_SigSize.connect(this, &CRoundBgButton::UpdateBgImgDimensions);
    InitCurrentBgPictures();
}

// Of the class ------------------------------------------------------------------------------------------------------------

vexel_ptr<IRasterPicture> GetStaticInternalPicture(CRoundBgButton::InternalBgImageIndex index)
{
    return Find(GetStaticPictures(), index);
}

void CRoundBgButton::InitStaticBgPictures()
{
    for (Index const index : {BgDisabled, BgHighlighted, BgNormal, BgPressed})
        UpdateBgPicture(index, MakePicture(detail::MakeShadedPicture(index)));
}

void CRoundBgButton::UpdateBgPicture(InternalBgImageIndex index, char const** xpm)
{
    UpdateBgPicture(index, MakePicture(XPMBuf(xpm, false)));
}

void CRoundBgButton::UpdateBgPicture(InternalBgImageIndex index, vexel_ptr<IRasterPicture> picture)
{
    if (FindRow(index))
        GetStaticPictures()[index] = std::move(picture);
}

_color CRoundBgButton::GetButtonTextColor(InternalBgImageIndex index)
{
    SRow const* row = FindRow(index);
    if (row && row->text.m_None && (index == BgHighlighted || index == BgPressed))
        row = FindRow(BgNormal);
    return row ? row->text : color_table[0];
}

void CRoundBgButton::SetButtonTextColor(InternalBgImageIndex index, _color const& color)
{
    if (SRow* const row = FindRow(index))
        row->text = color;
}

int CRoundBgButton::GetButtonTransparency(InternalBgImageIndex index)
{
    SRow const* const row = FindRow(index);
    return row ? row->transparency : 0;
}

void CRoundBgButton::SetButtonTransparency(InternalBgImageIndex index, int alpha)
{
    if (SRow* const row = FindRow(index))
        row->transparency = alpha;
}

void CRoundBgButton::SetInnerBorderColors(_color const& normal, _color const& disabled)
{
    m_InnerBorderCol = normal;
    m_InnerBorderColDisabled = disabled;
}

void CRoundBgButton::GetInnerBorderColors(_color& normal, _color& disabled)
{
    normal = m_InnerBorderCol;
    disabled = m_InnerBorderColDisabled;
}

void CRoundBgButton::SetOuterBorderColors(_color const& normal, _color const& disabled)
{
    m_OuterBorderCol = normal;
    m_OuterBorderColDisabled = disabled;
}

void CRoundBgButton::GetOuterBorderColors(_color& normal, _color& disabled)
{
    normal = m_OuterBorderCol;
    disabled = m_OuterBorderColDisabled;
}

// Pictures ----------------------------------------------------------------------------------------------------------------

vexel_ptr<IRasterPicture> CRoundBgButton::GetCurrentPicture(InternalBgImageIndex index) const
{
    return Find(m_CurrentPictures, index);
}

void CRoundBgButton::SetCurrentPicture(InternalBgImageIndex index, vexel_ptr<IRasterPicture> picture)
{
    m_CurrentPictures[index] = std::move(picture);
}

void CRoundBgButton::InitCurrentBgPictures()
{
    for (auto const& [index, picture] : GetStaticPictures())
        m_CurrentPictures[index] = picture ? picture->Copy() : nullptr;
}

bool CRoundBgButton::IsLargeEnough() const
{
    rectangle<int> const bounds = GetBounds();
    return bounds.right > 2 && bounds.bottom > 2;
}

// The scaled picture of a stretched button is higher than the button, so that the lines at its own edges fall outside.
void CRoundBgButton::UpdateBgImgDimensions(CVisualElement*)
{
    vexel_ptr<IRasterPicture> const model = GetStaticInternalPicture(BgNormal);
    if (!model || !IsLargeEnough())
        return;
    size<int> const picture = model->GetSize();
    size<int> target{GetBounds().right, GetBounds().bottom};
    m_BgOffsetX = 0;
    m_BgOffsetY = 0;
    if (target == picture)
    {
        InitCurrentBgPictures();
        return;
    }
    bool const stretches = picture.width < target.width || picture.height < target.height ||
                           target.width < picture.width / 2.0 || target.height < picture.height / 2.0;
    if (stretches)
    {
        m_BgOffsetY = 2;
        target.height = AddSaturated(target.height, 4);
    }
    for (auto const& [index, each] : GetStaticPictures())
        m_CurrentPictures[index] = each ? each->Scale(target) : nullptr;
}

// Metrics -----------------------------------------------------------------------------------------------------------------

size<int> CRoundBgButton::GetAutoSizeAdditionalExtent() const
{
    return {ToDevicePixels(22.0), ToDevicePixels(6.0)};
}

int CRoundBgButton::GetBlurRadius(InternalBgImageIndex index) const
{
    return index == BgHighlighted || index == BgNormal ? 2 : 1;
}

size<int> CRoundBgButton::GetOptimalSize(IPainter* painter, std::string const& text)
{
    if (!painter)
        return {};
    std::string const& measured = text.empty() ? GetCaption() : text;
    font bold = GetFont();
    bold.style |= font::fsBold;
    CMeasureBracket const bracket(painter, bold);
    size<double> const extent =
        painter->DrawString({0.0, 0.0, CMeasureBracket::s_Unlimited, CMeasureBracket::s_Unlimited}, measured,
                            GetTextAlign() | IPainter::AlignMeasureOnly, -1);
    IImageList* const images = GetImages();
    size<int> const image = images && GetImageIndex() != -1 ? images->GetSize(GetImageIndex()) : size<int>();
    size<int> const extra = GetAutoSizeAdditionalExtent();
    int const along = ToInt(GetAlong(extra.width, extra.height));
    return {ToInt(extent.width) + image.width + 2 * extra.width + GetImageSpace() + along / 2 * 2,
            std::max(image.height, ToInt(extent.height)) + extra.height};
}

// Drawing -----------------------------------------------------------------------------------------------------------------

void CRoundBgButton::DrawBackground(IPainter* painter)
{
    painter->m_PenDirty = false;
}

void CRoundBgButton::DrawBkgImage(IPainter* painter, InternalBgImageIndex index)
{
    vexel_ptr<IRasterPicture> const picture = GetCurrentPicture(index);
    if (!painter || !picture || !IsLargeEnough())
        return;
    rectangle<int> const bounds = GetBounds();  // as many pixels from the picture, so that nothing is stretched
    painter->DrawRasterPictureEx(picture.get(), bounds.left, bounds.top, bounds.right, bounds.bottom, m_BgOffsetX,
                                 m_BgOffsetY, AddSaturated(m_BgOffsetX, bounds.right),
                                 AddSaturated(m_BgOffsetY, bounds.bottom), IPainter::roXor);
}

void CRoundBgButton::ApplyRoundRectMask(IPainter* painter)
{
    ISystem* const system = GetCurrentSystem();
    if (!painter || !system || !IsLargeEnough())
        return;
    rectangle<int> const bounds = GetBounds();
    vexel_ptr<IRasterPicture> const mask = system->CreateRasterPicture({bounds.right, bounds.bottom});  // white
    IPainter* const maskPainter = mask->GetPainter();
    maskPainter->BeginPaint(IPainter::ssPaint);
    maskPainter->SetBrush({color_table[1], brush::bsSolid});
    maskPainter->SetPen({color_table[1], pen::psSolid, 1});
    maskPainter->RoundRect(0, 1, bounds.right - 2, bounds.bottom - 2, m_BorderRadius, m_BorderRadius);
    maskPainter->EndPaint();
    painter->DrawRasterPicture(mask.get(), bounds.left, bounds.top, bounds.right, bounds.bottom, IPainter::roAnd);
}

void CRoundBgButton::DrawRoundBorder(IPainter* painter, _color const& color, rectangle<int> const& rect, double radius,
                                     pen::PenStyle style)
{
    if (!painter)
        return;
    painter->SetPen({color, style, 1});
    painter->SetBrush({color_table[0], brush::bsNone});
    painter->RoundRect(rect.left, rect.top, rect.right, rect.bottom, radius, radius);
}

void CRoundBgButton::DrawBkgBorder(IPainter* painter)
{
    if (!IsLargeEnough())
        return;
    rectangle<int> const bounds = GetBounds();
    DrawRoundBorder(painter, IsEnabled() ? m_InnerBorderCol : m_InnerBorderColDisabled,
                    {bounds.left + 1, bounds.top + 1, bounds.right - 2, bounds.bottom - 2}, m_BorderRadius,
                    pen::psSolid);
    DrawRoundBorder(painter, IsEnabled() ? m_OuterBorderCol : m_OuterBorderColDisabled,
                    {bounds.left, bounds.top, bounds.right - 1, bounds.bottom - 1}, m_BorderRadius + 1.0, pen::psSolid);
}

void CRoundBgButton::DrawRawBkgContent(IPainter* painter, InternalBgImageIndex index)
{
    DrawBkgImage(painter, index);
    ApplyRoundRectMask(painter);
    DrawBkgImage(painter, index);
    DrawBkgBorder(painter);
}

void CRoundBgButton::DrawBkgContent(IPainter* painter, InternalBgImageIndex index)
{
    if (!painter)
        return;
    if (!IsEnabled())
        index = BgDisabled;
    if (!IsTransparent() && !IsBkImagePresented())
        DrawRawBkgContent(painter, index);
    else if (IsLargeEnough() && GetCurrentSystem())
        DrawSeeThrough(painter, index);
}

void CRoundBgButton::DrawSeeThrough(IPainter* painter, InternalBgImageIndex index)
{
    rectangle<int> const bounds = GetBounds();
    vexel_ptr<IRasterPicture> const picture = GetCurrentSystem()->CreateRasterPicture({bounds.right, bounds.bottom});
    IPainter* const picturePainter = picture->GetPainter();
    picturePainter->BeginPaint(IPainter::ssPaint);
    DrawBkImage(picturePainter, bounds, {});
    DrawRawBkgContent(picturePainter, index);
    if (m_BorderRadius < bounds.right && m_BorderRadius < bounds.bottom)
    {
        TakeCorners(painter, picture.get());
        DrawBkgBorder(picturePainter);
    }
    picturePainter->EndPaint();
    int const blur = GetBlurRadius(index);
    DrawBkImage(painter, bounds, {blur, blur});
    painter->AlphaBlend(bounds.left, bounds.top, bounds.right, bounds.bottom, picture.get(),
                        GetButtonTransparency(index));
}

// What the parent has painted around the rounded corners.
void CRoundBgButton::TakeCorners(IPainter* painter, IRasterPicture* picture)
{
    rectangle<int> const bounds = GetBounds();
    int const extent = ToInt(m_BorderRadius);
    if (extent < 1)
        return;
    for (int const left : {bounds.left, bounds.right - extent})
        for (int const top : {bounds.top, bounds.bottom - extent})
            painter->ExtractRasterPictureEx(picture, left, top, left + extent - 1, top + extent - 1, left, top,
                                            left + extent - 1, top + extent - 1);
}

void CRoundBgButton::SetCurrentTextColor(IPainter* painter, InternalBgImageIndex index)
{
    _color const color = GetButtonTextColor(IsEnabled() ? index : BgDisabled);
    if (painter && !color.m_None)
        painter->SetTextColor(color);
}

// The text has the colour of the state also where the button is disabled; only the image is drawn so.
void CRoundBgButton::DrawWithText(IPainter* painter, InternalBgImageIndex index)
{
    DrawBkgContent(painter, index);
    SetCurrentTextColor(painter, index);
    DrawBackground(painter);
    CDisabledImages disabled(GetImages());
    DrawTextAndImage(painter, GetTextAlign(), IsEnabled() || !GetImages() ? GetImages() : &disabled);
}

void CRoundBgButton::DrawNormalContent(IPainter* painter)
{
    DrawWithText(painter, BgNormal);
}

void CRoundBgButton::DrawHighlightedContent(IPainter* painter)
{
    DrawWithText(painter, BgHighlighted);
}

void CRoundBgButton::DrawPressedContent(IPainter* painter)
{
    DrawWithText(painter, BgPressed);
}

void CRoundBgButton::DrawFocusRect(IPainter* painter)
{
    if (!painter || !IsEnabled() || !IsLargeEnough())
        return;
    _color color = GetButtonTextColor(BgNormal);
    if (color.m_None)
        color = detail::GetPainterColor(*painter, ISysPalette::scControlText);
    rectangle<int> const bounds = GetBounds();
    // Within the frame's two lines on all sides: outside of its corners nothing would wipe it off again.
    DrawRoundBorder(painter, color, {bounds.left + 2, bounds.top + 2, bounds.right - 3, bounds.bottom - 3},
                    m_BorderRadius - 1.0, pen::psAlternate);
}

}  // namespace vexel
