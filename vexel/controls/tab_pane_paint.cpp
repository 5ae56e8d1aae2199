// Painting, and the pane's own look.

#include "vexel/controls/detail/focus_frame.h"
#include "vexel/controls/tab_pane.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/painter.h"

#include <algorithm>
#include <string>

namespace vexel
{

namespace
{

constexpr int g_BlendAlpha = 127;
constexpr _color g_CloseEdge = 0xff0000ff;    // red
constexpr _color g_CloseGround = 0xff00ffff;  // yellow

_color SystemColor(ISysPalette::SysColor number)
{
    return GetDefaultPalette()->GetColor(number);
}

// Each channel in single precision, truncated.
_color Mix(_color const& a, float shareOfA, _color const& b, float shareOfB)
{
    auto const mix = [=](int channelOfA, int channelOfB) {
        float const sum =
            static_cast<float>(channelOfA) / 255.0f * shareOfA + static_cast<float>(channelOfB) / 255.0f * shareOfB;
        return ToInt(sum * 255.0f);
    };
    return _color::FromRgb(mix(a.Red(), b.Red()), mix(a.Green(), b.Green()), mix(a.Blue(), b.Blue()));
}

rectangle<int> ToInt(rectangle<double> const& rect)
{
    return {vexelbase::ToInt(rect.left), vexelbase::ToInt(rect.top), vexelbase::ToInt(rect.right),
            vexelbase::ToInt(rect.bottom)};
}

/// Cuts to a tab's place for a scope, also where only a line of pixels is left of it.
class CCellClip
{
public:
    CCellClip(IPainter* painter, rectangle<double> const& cell) : m_Painter(painter), m_Saved(painter->GetClipRect())
    {
        m_Painter->SetClipRect(cell.left, cell.top, cell.right, cell.bottom, false);
    }
    ~CCellClip()
    {
        m_Painter->ResetClip();
        m_Painter->m_ClipCache = {};
        if (!m_Saved.IsZero())
            m_Painter->SimpleSetClipRect(m_Saved, false);
    }
    CCellClip(CCellClip const&) = delete;
    CCellClip& operator=(CCellClip const&) = delete;

private:
    IPainter* const m_Painter;
    rectangle<double> const m_Saved;
};

void FillRect(IPainter* painter, rectangle<double> const& rect, _color const& color)
{
    painter->SetBrush({color, brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
}

}  // namespace

// What must be painted ------------------------------------------------------------------------------------------------------

void CTabPane::OnDraw(IPainter* painter)
{
    bool const transparent = IsTransparent();
    bool const picture = IsBkImagePresented();
    if (transparent != m_DrawnTransparent || picture != m_DrawnPicture)
        MarkAllDirty();
    m_DrawnTransparent = transparent;
    m_DrawnPicture = picture;
    Base::OnDraw(painter);
}

// While only tabs have changed, what lies below them and behind them stands on the screen already.
void CTabPane::DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect)
{
    bool const standing = std::min(GetRowViewModel()->GetItemType(1), GetRowSelectionModel()->GetItemType(1)) !=
                              IDirtyItemSet::dirtyItem &&
                          IsPartlyDirty();
    if (standing && !IsTransparent() && !painter->IsFullPaint())
        return;
    if (!m_Visualisation->DrawEmptyArea(painter, rect, GetBkColor(), IsTransparent()) && !IsTransparent())
        FillRect(painter, rect, GetBkColor());
}

void CTabPane::DrawColumnEmptyArea(IPainter* painter, rectangle<double> const& rect)
{
    if (IsTransparent())
        return;
    int const behind = GetColumnViewModel()->GetCount();
    auto const type =
        std::min({GetRowViewModel()->GetItemType(0), GetRowSelectionModel()->GetItemType(0),
                  GetColumnViewModel()->GetItemType(behind), GetColumnSelectionModel()->GetItemType(behind)});
    if (type != IDirtyItemSet::dirtyOther || painter->IsFullPaint())
        FillRect(painter, rect, GetBkColor());
}

bool CTabPane::IsRowFitting(rectangle<double> const& rect) const
{
    return rect.bottom - rect.top <= GetRowViewModel()->GetViewSize();
}

void CTabPane::DrawCell(IPainter* painter, int, int rowSkip, int column, int columnSkip, int,
                        rectangle<double> const& rect, IDirtyItemSet::DirtyType dirty)
{
    if ((dirty == IDirtyItemSet::dirtyOther && !IsTransparent()) || !IsTab(column))
        return;
    rectangle<double> cell = rect;
    cell.Normalize();
    cell.left -= columnSkip;
    cell.top -= rowSkip;
    CCellClip const clip(painter, cell);
    unsigned int const state = GetVisualisationState(column);
    if (IsRowFitting(cell))
        m_Visualisation->DrawBackground(painter, column, cell, state);
    else
        FillGround(painter, cell);
    if (int const gap = GetGap(column); gap > 0)
    {
        double const end = cell.right;
        cell.right -= gap;
        IDiscreteItemViewModel const* const view = GetColumnViewModel();
        if (end + 1 + view->GetItemSize(column + 1) <= view->GetViewSize())
            DrawSpacer(painter, column, {cell.right, cell.top, end, cell.bottom});
    }
    rectangle<double> content = m_Visualisation->GetTabContentRect(cell, state);
    m_Visualisation->DrawTab(painter, column, content, state);
    if (ShowsCloseButton(column, state))
    {
        rectangle<double> const close = m_Visualisation->GetCloseBtnRect(content);
        if (!close.IsEmpty())
        {
            m_Visualisation->DrawCloseButton(painter, column, close, state);
            content.right = close.left - 1;
        }
    }
    m_Visualisation->DrawTabContent(painter, column, content, state);
}

bool CTabPane::ShowsCloseButton(int tab, unsigned int state) const
{
    return (state & tsPlain) == 0 && m_Model->HasTabCloseButton(tab);
}

bool CTabPane::ShowsAnimation(int tab) const
{
    return IsTab(tab) && m_Model->IsTabAnimated(tab) && m_Model->IsTabEnabled(tab) && m_Model->GetAnimation();
}

void CTabPane::DrawSpacer(IPainter* painter, int tab, rectangle<double> const& gap)
{
    int const image = m_Model->GetTabSpacerImageIndex(tab);
    IImageList* const images = image >= 0 ? GetImages() : nullptr;
    if (!images)
        return;
    size<int> const extent = images->GetSize(image);
    images->Draw(painter, image, (gap.left + gap.right - extent.width) * 0.5,
                 (gap.top + gap.bottom - extent.height) * 0.5);
}

void CTabPane::FillGround(IPainter* painter, rectangle<double> const& rect)
{
    if (!DrawBkImage(painter, ToInt(rect), {}) && !IsTransparent())
        FillRect(painter, rect, GetBkColor());
}

// Measures of the own look --------------------------------------------------------------------------------------------------

int CTabPane::GetButtonSpace() const
{
    return vexelbase::ToInt(2 * m_Scale);
}

int CTabPane::GetImageOffset() const
{
    return vexelbase::ToInt(4 * m_Scale);
}

int CTabPane::GetTextSpace() const
{
    return vexelbase::ToInt(4 * m_Scale);
}

int CTabPane::GetCloseBtnSize() const
{
    constexpr int least = 12;  // points
    return vexelbase::ToInt(std::max(GetFont().size, least) * m_Scale);
}

rectangle<double> CTabPane::GetCloseBtnRect(rectangle<double> const& content) const
{
    double const extent = GetCloseBtnSize();
    double const x = content.right - extent - GetTextSpace();
    double const y = (content.top + content.bottom - extent) * 0.5;
    if (x <= content.left || y <= content.top)
        return {};
    return {x, y, x + extent, y + extent};
}

rectangle<double> CTabPane::GetTabContentRect(rectangle<double> const& rect, unsigned int) const
{
    rectangle<double> content = rect;
    content.Normalize();
    int const space = GetButtonSpace();
    content.top += space;
    content.right -= 2 * space;
    content.bottom -= 2 * space;
    return content;
}

int CTabPane::GetItemOptimalWidth(IPainter* painter, int tab) const
{
    int width = GetItemAdditionalWidth();
    if (!IsTab(tab))
        return width;
    int const image = m_Model->GetTabImageIndex(tab);
    if (IImageList* const images = image >= 0 ? GetImages() : nullptr)
        width = AddSaturated(width, images->GetSize(image).width);
    if (std::string const text = m_Model->GetTabText(tab); !text.empty())
    {
        constexpr double room = 10000;
        int const flags = IPainter::AlignMeasureOnly | IPainter::AlignLeft | IPainter::AlignTop;
        size<double> const extent = painter->DrawString({0, 0, room, room}, text, flags, -1);
        width = AddSaturated(width, AddSaturated(vexelbase::ToInt(extent.width), GetTextSpace()));
    }
    if (!m_Model->HasTabCloseButton(tab))
        return AddSaturated(width, GetButtonSpace());
    constexpr double room = 1000;
    rectangle<double> const close = GetCloseBtnRect({0, 0, room, room});
    return AddSaturated(width, vexelbase::ToInt(close.right - close.left));
}

int CTabPane::GetItemAdditionalHeight() const
{
    return GetButtonSpace() + GetImageOffset() + GetTextSpace();
}

int CTabPane::GetItemAdditionalWidth() const
{
    return GetButtonSpace() + GetImageOffset() + GetTextSpace();
}

// The own look --------------------------------------------------------------------------------------------------------------

void CTabPane::DrawBackground(IPainter* painter, int, rectangle<double> const& rect, unsigned int)
{
    FillGround(painter, rect);
}

void CTabPane::DrawTab(IPainter* painter, int tab, rectangle<double> const& content, unsigned int state)
{
    brush fill{GetBackgroundColor(tab, state), brush::bsSolid};
    if (IsOverPicture())
    {
        rectangle<int> shown = ToInt(content);
        shown.Intersect(GetBounds());
        if (shown.left <= shown.right && shown.top <= shown.bottom)
            DrawBlendBk(painter, shown, fill, g_BlendAlpha);
        fill.style = brush::bsNone;
    }
    painter->SetPen({GetFrameColor(tab, state), pen::psSolid, 1});
    painter->SetBrush(fill);
    painter->Rectangle(content.left, content.top, content.right, content.bottom);
    if (state & tsFocused)
        detail::DrawFocusFrame(painter, content, vexelbase::ToInt(2 * painter->GetDPIScale()));
}

void CTabPane::DrawTabContent(IPainter* painter, int tab, rectangle<double> const& content, unsigned int state)
{
    if (!IsTab(tab))
        return;
    painter->SetFont(GetFont());
    painter->SetTextColor(GetTextColor(tab, state));
    rectangle<double> text = content;
    text.left += GetImageOffset();
    auto const centre = [&](int height) { return (content.top + content.bottom - height) * 0.5; };
    int const image = m_Model->GetTabImageIndex(tab);
    IImageList* const images = image >= 0 ? GetImages() : nullptr;
    if (ShowsAnimation(tab))
    {
        vexel_ptr<IAnimation> const animation = m_Model->GetAnimation();
        size<int> const extent = animation->GetSize();
        animation->Draw(painter, text.left, centre(extent.height));
        text.left += extent.width;
    }
    else if (images)
    {
        size<int> const extent = images->GetSize(image);
        if (m_Model->IsTabEnabled(tab))
            images->Draw(painter, image, text.left, centre(extent.height));
        else
            images->DrawDisabled(painter, image, text.left, centre(extent.height));
        text.left += extent.width;
    }
    text.left += GetTextSpace();
    text.right -= GetButtonSpace();
    painter->DrawString(text, m_Model->GetTabText(tab), m_Model->GetTabTextFlags(tab) | IPainter::AlignFitText, -1);
}

void CTabPane::DrawCloseButton(IPainter* painter, int tab, rectangle<double> const& rect, unsigned int state)
{
    if ((state & (tsHot | tsHotClose | tsSelected)) == 0)
        return;
    bool const hot = (state & tsHotClose) != 0;
    if (hot)
    {
        double const radius = painter->GetDPIScale();
        painter->SetPen({g_CloseEdge, pen::psSolid, vexelbase::ToInt(painter->GetDPIScale())});
        painter->SetBrush({g_CloseGround, brush::bsSolid});
        painter->RoundRect(rect.left, rect.top, rect.right, rect.bottom, radius, radius);
    }
    int const space = GetButtonSpace();
    int const inset = vexelbase::ToInt(space * 1.5);
    painter->SetPen({hot ? g_CloseEdge : GetTextColor(tab, state), pen::psSolid, space / 2 * 2});
    painter->MoveTo(rect.left + inset, rect.top + inset);
    painter->LineTo(rect.right - inset, rect.bottom - inset);
    painter->MoveTo(rect.left + inset, rect.bottom - inset);
    painter->LineTo(rect.right - inset, rect.top + inset);
}

_color CTabPane::GetBackgroundColor(int, unsigned int state)
{
    _color const ground = GetBkColor();
    if (state & tsPlain)
        return ground;
    _color const mark = SystemColor(ISysPalette::scHighlight);
    bool const overPicture = IsOverPicture();
    if (state & tsSelected)
        return overPicture ? mark : Mix(ground, 0.4f, mark, 0.6f);
    return overPicture ? Mix(ground, 0.6f, mark, 0.4f) : Mix(ground, 0.7f, mark, 0.3f);
}

_color CTabPane::GetTextColor(int tab, unsigned int state)
{
    if (state & tsSelected)
        return SystemColor(ISysPalette::scHighlightText);
    bool const enabled = !IsTab(tab) || m_Model->IsTabEnabled(tab);
    return enabled ? GetFgColor() : SystemColor(ISysPalette::scShadow);
}

_color CTabPane::GetFrameColor(int, unsigned int state)
{
    if (state & tsPlain)
        return SystemColor(ISysPalette::scShadow);
    return SystemColor(state & tsHot ? ISysPalette::scHighlight : ISysPalette::scDarkShadow);
}

}  // namespace vexel
