#include "vexel/controls/caption.h"

#include "vexel/core/control.h"
#include "vexel/core/measure_bracket.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/sys_window.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vexel
{

namespace
{

int GetDefaultImageSpace()
{
    return ToDevicePixels(4.0);
}

}  // namespace

// Links -------------------------------------------------------------------------------------------------------------------

void CCaption::LinkHolder::AddLink(char const* target, int length, rectangle<int> const& rect)
{
    if (m_Spare.empty())
        m_Links.emplace_back();
    else
    {
        m_Links.push_back(std::move(m_Spare.back()));
        m_Spare.pop_back();
    }
    Link& link = m_Links.back();
    link.target.assign(target ? target : "", target ? static_cast<std::size_t>(std::max(length, 0)) : 0);
    link.rect = rect;
}

void CCaption::LinkHolder::SetValid(bool valid)
{
    m_Valid = valid;
    if (valid)
    {
        std::sort(m_Links.begin(), m_Links.end(), SLinkComparer());
        m_Spare.clear();
        return;
    }
    // In the order in which they are taken, which is the text's, each comes back to its own string.
    m_Spare.insert(m_Spare.end(), std::move_iterator(m_Links.begin()), std::move_iterator(m_Links.end()));
    m_Links.clear();
}

bool CCaption::LinkHolder::IsLink(point<int> const& position) const
{
    return std::any_of(m_Links.begin(), m_Links.end(),
                       [&](Link const& link) { return link.rect.Contains(position.x, position.y); });
}

std::string CCaption::LinkHolder::GetLink(point<int> const& position) const
{
    auto link = std::find_if(m_Links.begin(), m_Links.end(),
                             [&](Link const& each) { return each.rect.Contains(position.x, position.y); });
    link = std::find_if(link, m_Links.end(), [](Link const& each) { return !each.target.empty(); });
    return link != m_Links.end() ? link->target : std::string();
}

// Construction and setters --------------------------------------------------------------------------------------------------

CCaption::CCaption(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CTransparentFlavor<CVisualElement>(parent, extent, alignment), m_ImageSpace(GetDefaultImageSpace())
{
    CCaption::SetAlignment(alignment);
}

void CCaption::SetCaption(std::string const& text)
{
    if (text == m_Caption)
        return;
    CAliveGuard const alive(this);
    m_Caption = text;
    SetCursor(1);
    RecalculateSize();
    if (alive)
        OnChange(this, utElement);
}

void CCaption::SetAutoSize(bool on)
{
    if (on == m_AutoSize)
        return;
    m_AutoSize = on;
    RecalculateSize();
}

void CCaption::AdjustHeight(bool on)
{
    if (on == m_AdjustHeight)
        return;
    m_AdjustHeight = on;
    RecalculateSize();
}

void CCaption::SetMaxTextWidth(int pixels)
{
    int const width = std::max(pixels, 0);
    if (width == m_MaxTextWidth)
        return;
    m_MaxTextWidth = width;
    RecalculateSize();
}

void CCaption::SetTextAlign(int flags)
{
    if (flags == m_TextAlign)
        return;
    m_TextAlign = flags;
    OnChange(this, utElement);
}

void CCaption::UseHTML(bool use)
{
    if (use == m_UseHTML)
        return;
    m_UseHTML = use;
    OnChange(this, utElement);
}

void CCaption::SetImageIndex(int index)
{
    if (index < -1 || index == m_ImageIndex)
        return;
    m_ImageIndex = index;
    OnChange(this, utElement);
}

void CCaption::SetImageSpace(int pixels)
{
    int const space = pixels < 0 ? GetDefaultImageSpace() : pixels;
    if (space == m_ImageSpace)
        return;
    m_ImageSpace = space;
    OnChange(this, utElement);
}

void CCaption::SetTextLayout(bool turn)
{
    CAliveGuard const alive(this);
    SetTextConversion(turn);
    if (turn)
        SetAlignment(GetAlignment());
    else
        ChangeLayout(alTop);
    if (alive)
        OnChange(this, utElement);
}

void CCaption::SetAlignment(Alignment alignment)
{
    if (!ChangeLayout(alignment))
        return;
    if (alignment != GetAlignment())
        CVisualElement::SetAlignment(alignment);
    else
        OnChange(this, utElement);  // it may have had the layout of another edge
}

void CCaption::SetPos(rectangle<int> const& rect, bool force)
{
    CAliveGuard const alive(this);
    int const before = GetWrapExtent();
    CVisualElement::SetPos(rect, force);
    if (alive && m_AdjustHeight && GetWrapExtent() != before)
        RecalculateSize();
}

void CCaption::AttributeChanged()
{
    CAliveGuard const alive(this);
    OnChange(this, utElement);
    if (alive)
        RecalculateSize();
}

std::string CCaption::HandleAsString() const
{
    return m_UseHTML ? RemoveLinks(m_Caption) : m_Caption;
}

// Size --------------------------------------------------------------------------------------------------------------------

size<int> CCaption::GetAutoSizeExtent()
{
    return {ToDevicePixels(2), ToDevicePixels(2)};
}

size<int> CCaption::GetAutoSizeAdditionalExtent() const
{
    return GetAutoSizeExtent();
}

size<int> CCaption::GetDrawingAdditionalExtent() const
{
    return GetAutoSizeAdditionalExtent();
}

IImageList* CCaption::GetImages() const
{
    return GetControl() ? GetControl()->GetImageList() : nullptr;
}

size<int> CCaption::GetImageSize() const
{
    IImageList* const images = m_ImageIndex == -1 ? nullptr : GetImages();
    if (!images)
        return {};
    size<int> extent = images->GetSize(m_ImageIndex);
    if (!m_Caption.empty())
        extent.width = AddSaturated(extent.width, m_ImageSpace);
    return extent;
}

void CCaption::RecalculateSize()
{
    if (GetControl())
        m_Links.SetValid(false);
    if (!m_AutoSize)
    {
        OnChange(this, utElement);
        return;
    }
    ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!painter)
        return;

    size<int> extent;
    {
        CMeasureBracket const bracket(painter, GetFont());
        size<int> const image = GetImageSize();
        size<int> const extra = GetAutoSizeAdditionalExtent();
        size<double> const text = MeasureText(painter, image, extra);
        extent.width = AddSaturated(AddSaturated(ToInt(text.width), extra.width), image.width);
        extent.height = AddSaturated(ToInt(std::max<double>(image.height, text.height)), extra.height);
    }
    if (IsTextConverted())
        extent = {ToInt(GetAlong(extent.width, extent.height)), ToInt(GetAcross(extent.width, extent.height))};
    bool const stays = extent == GetSize();
    CAliveGuard const alive(this);
    SetSize(extent, false);
    if (alive && stays)
        OnChange(this, utElement);  // the same size may be drawn otherwise, and the links are known again then
}

// What the text wraps in. A turned one wraps in the height, which the edge gives it: in its own width, which follows from
// the lines, it would never come to rest.
int CCaption::GetWrapExtent() const
{
    rectangle<int> const bounds = GetBounds();
    return IsTextConverted() ? ToInt(GetAlong(bounds.right, bounds.bottom)) : bounds.right;
}

size<double> CCaption::MeasureText(IPainter* painter, size<int> const& image, size<int> const& extra)
{
    if (m_Caption.empty())
        return {};
    double width = CMeasureBracket::s_Unlimited;
    if (m_AdjustHeight)
    {
        int const along = ToInt(GetAlong(extra.width, extra.height));
        width = SubtractSaturated(GetWrapExtent(), AddSaturated(image.width, along));
    }
    if (m_MaxTextWidth != 0 && m_MaxTextWidth < width)
        width = m_MaxTextWidth;
    return painter->DrawStringEx({0.0, 0.0, width, CMeasureBracket::s_Unlimited}, m_Caption.c_str(),
                                 IPainter::AlignMeasureOnly | IPainter::AlignLeft, -1, GetDelimiters(), GetFormatter());
}

// Drawing -----------------------------------------------------------------------------------------------------------------

void CCaption::DrawBackground(IPainter* painter)
{
    if (IsTransparent())
        return;
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

void CCaption::DrawContent(IPainter* painter)
{
    CAliveGuard const alive(this);
    DrawBackground(painter);
    if (!alive)
        return;
    DrawTextAndImage(painter, IsEnabled() ? m_TextAlign : m_TextAlign | IPainter::AlignDisabled, GetImages());
}

void CCaption::DrawTextAndImage(IPainter* painter, int flags, IImageList* images)
{
    rectangle<int> rect = GetInternalRect();
    bool const hasMargin = (m_TextAlign & IPainter::AlignHCenter) == 0 && !m_Caption.empty();
    size<int> const extra = hasMargin ? GetDrawingAdditionalExtent() : size<int>();
    int const margin = ToInt(ToInt(GetAlong(extra.width, extra.height)) * 0.5 + 0.5);
    rect.left = AddSaturated(rect.left, margin);
    rect.right = SubtractSaturated(rect.right, margin);
    if (m_MaxTextWidth != 0)
    {
        int const limit = AddSaturated(m_MaxTextWidth, GetImageSize().width);
        if (SubtractSaturated(rect.right, rect.left) > limit)
            rect.right = AddSaturated(rect.left, limit);
    }
    FollowDrawing(painter, [&] {
        DrawLabel(painter, rect, m_Caption, flags, m_ImageSpace, images, m_ImageIndex, this, GetDelimiters(),
                  GetFormatter());
    });
}

size<double> CCaption::DrawText(IPainter* painter, rectangle<double> const& rect, int flags)
{
    size<double> extent;
    FollowDrawing(painter, [&] {
        extent = painter->DrawStringEx(rect, m_Caption.c_str(), flags, -1, GetDelimiters(), GetFormatter());
    });
    return extent;
}

// Links and tooltip come from what is drawn.
template <class Draw> void CCaption::FollowDrawing(IPainter* painter, Draw const& draw)
{
    CAliveGuard const alive(this);
    CHTMLTextFormatter::Clear();
    m_Links.SetValid(false);
    draw();
    if (!alive)
        return;
    if (m_TooltipFromCaption)
        FollowShortening(painter->m_TextShortened);
    m_Links.SetValid(true);
}

// Never overwrites a tooltip that is not the caption.
void CCaption::FollowShortening(bool shortened)
{
    if (shortened && GetTooltip().empty())
        SetTooltip(m_Caption);
    else if (!shortened && GetTooltip() == m_Caption)
        SetTooltip({});
}

void CCaption::OnDrawLink(char const* target, int length, rectangle<int> const& rect)
{
    if (m_Links.IsValid())
        return;
    m_LinkOrigin = {0, 0};
    ElementToControl(&m_LinkOrigin);
    m_Links.AddLink(target, length, rect);
}

// The picture may have been moved since it was drawn, and the links with it.
point<int> CCaption::ToLinkPosition(int x, int y) const
{
    return {AddSaturated(x, m_LinkOrigin.x), AddSaturated(y, m_LinkOrigin.y)};
}

// Input -------------------------------------------------------------------------------------------------------------------

bool CCaption::HandleMouseMove(int x, int y, int keys, MouseButton)
{
    if (keys != 0 || !m_UseHTML || m_Links.IsEmpty())
        return false;
    SetCursor(m_Links.IsLink(ToLinkPosition(x, y)) ? 12 : 1);
    return true;
}

bool CCaption::HandleButtonDown(int x, int y, int, MouseButton button)
{
    if (button != mbLeft || !m_UseHTML || m_Links.IsEmpty())
        return false;
    std::string const link = m_Links.GetLink(ToLinkPosition(x, y));
    if (link.empty())
        return false;

    CAliveGuard const alive(this);
    bool handled = false;
    m_LinkClicked(link, handled);
    alive.Check();
    if (!handled && GetControl())
        GetControl()->ActivateHelp(link);
    return true;
}

}  // namespace vexel
