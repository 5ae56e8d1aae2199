#include "vexel/controls/check_box.h"

#include "vexel/core/control.h"
#include "vexel/platform/device_pixels.h"

#include <algorithm>

namespace vexel
{

namespace
{

int const g_TextGap = 5;   // between mark and text, at any scale
int const g_FocusGap = 2;  // the focus mark begins that far before the text

}  // namespace

// Check box ---------------------------------------------------------------------------------------------------------------

CCheckBox::CCheckBox(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CButton(parent, extent, alignment)
{
    m_Clicked.connect(this, &CCheckBox::ChangeCheck);
}

void CCheckBox::SetChecked(bool checked)
{
    if (checked == m_Checked)
        return;
    CAliveGuard const alive(this);
    m_Checked = checked;
    m_CheckChanged(this);
    if (alive)
        Update(utElement);
}

void CCheckBox::ChangeCheck(CButton*)
{
    if (ChangeAllowed())
        SetChecked(!m_Checked);
}

size<int> CCheckBox::GetImageSize() const
{
    ISystem* const system = GetCurrentSystem();
    int const extent = system ? system->GetSystemMetric(ISystem::smScrollBarHeight) : 0;
    return {extent, extent};
}

size<int> CCheckBox::GetAutoSizeAdditionalExtent() const
{
    return {ToDevicePixels(8.0), ToDevicePixels(2.0)};
}

std::string CCheckBox::HandleAsString() const
{
    return (m_Checked ? "[X] " : "[ ] ") + CButton::HandleAsString();
}

int CCheckBox::GetCenteredTop(int height) const
{
    rectangle<int> const bounds = GetBounds();
    return AddSaturated(ToInt((static_cast<double>(bounds.bottom) - height - bounds.top) * 0.5 + 0.5), bounds.top);
}

int CCheckBox::DrawMark(IPainter* painter, IPainter::ControlElement element) const
{
    int const extent = CCheckBox::GetImageSize().width;
    int const left = GetBounds().left;
    int const top = GetCenteredTop(extent);
    painter->DrawControlElement(element, left, top, left + extent, AddSaturated(top, extent), GetNativeState());
    return extent;
}

int CCheckBox::DrawCheckImage(IPainter* painter)
{
    return DrawMark(painter, m_Checked ? IPainter::ceCheckChecked : IPainter::ceCheckUnchecked);
}

void CCheckBox::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    if (!IsTransparent())
        painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
    CAliveGuard const alive(this);
    int const markWidth = DrawCheckImage(painter);
    if (!alive)
        return;

    size<double> text;
    if (!GetCaption().empty())
    {
        int const left = AddSaturated(AddSaturated(bounds.left, markWidth), g_TextGap);
        if (left > bounds.right)
            return;
        text = DrawText(painter,
                        {static_cast<double>(left), static_cast<double>(bounds.top), static_cast<double>(bounds.right),
                         static_cast<double>(bounds.bottom)},
                        IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText);
    }
    if (alive && IsFocused())
        DrawFocusMark(painter, markWidth, text);
}

// Around the text; without one around the mark. What sticks out would be inverted again by the next drawing, so it is cut.
void CCheckBox::DrawFocusMark(IPainter* painter, int markWidth, size<double> const& text)
{
    rectangle<int> const bounds = GetBounds();
    if (GetCaption().empty())
    {
        int const height = GetImageSize().height;
        int const top = GetCenteredTop(height);
        int const right = AddSaturated(bounds.left, markWidth);
        if (right <= bounds.right)
            painter->FocusRect(bounds.left, std::max(top, bounds.top), right,
                               std::min(AddSaturated(top, height), bounds.bottom));
        return;
    }
    double const left = static_cast<double>(bounds.left) + markWidth + g_TextGap;
    double const top = ToInt((bounds.top + bounds.bottom - text.height) * 0.5 + 0.5);
    painter->FocusRect(left - g_FocusGap, std::max<double>(top, bounds.top),
                       std::min<double>(left + text.width + 3, bounds.right),
                       std::min<double>(top + text.height, bounds.bottom));
}

// Custom images -----------------------------------------------------------------------------------------------------------

IImageList* CCustomCheckBox::GetImages() const
{
    return GetControl() ? GetControl()->GetImageList() : nullptr;
}

int CCustomCheckBox::DrawCheckImage(IPainter* painter)
{
    int const key = GetNativeState() | (IsChecked() ? s_CheckedBit : 0);
    auto image = m_Images.find(key);
    if (image == m_Images.end())
    {
        CAliveGuard const alive(this);
        CImageHolder holder;
        m_NeedImage(this, key, holder);
        if (!alive)
            return 0;
        image = m_Images.insert_or_assign(key, holder).first;
    }
    size<int> const extent = image->second.GetSize(GetImages());
    image->second.DrawImage(painter, GetImages(), GetBounds().left, GetCenteredTop(extent.height));
    return extent.width;
}

size<int> CCustomCheckBox::GetImageSize() const
{
    return m_Images.empty() ? CCheckBox::GetImageSize() : m_Images.begin()->second.GetSize(GetImages());
}

}  // namespace vexel
