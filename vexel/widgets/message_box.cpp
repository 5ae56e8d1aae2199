#include "vexel/widgets/message_box.h"

#include "vexel/controls/button_captions.h"
#include "vexel/widgets/detail/message_metrics.h"

#include <map>
#include <utility>

namespace vexel
{

namespace
{

size<int> const g_PartSize{12, 12};

std::map<CMessageBox::ImageType, vexel_ptr<IRasterPicture>>& GetPictures()
{
    static auto* const pictures =
        new std::map<CMessageBox::ImageType, vexel_ptr<IRasterPicture>>;  // outlives static boxes
    return *pictures;
}

}  // namespace

CMessageBox::CMessageBox(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CMessageBoxBase(parent, extent, alignment), m_Buttons(this, g_PartSize, alBottom), m_Text(this, g_PartSize, alTop)
{
    m_Buttons.SetDynamic(false);
    m_Buttons.m_ButtonPressed.connect(this, &CMessageBox::ButtonPressed);
    m_Text.SetDynamic(false);
    m_Text.SetTransparent(true);
    m_Text.SetAutoSize(true);
    m_Text.SetTextAlign(IPainter::AlignLeft);
}

CMessageBox::~CMessageBox()
{
    EndParts();
}

void CMessageBox::SetImageType(ImageType type)
{
    if (vexel_ptr<IRasterPicture> picture = GetPicture(type))
        GetImage().SetRasterPicture(std::move(picture));
}

void CMessageBox::SetButtonsVisible(bool visible)
{
    m_Buttons.SetVisible(visible);
}

void CMessageBox::KeepTextWidth()
{
    rectangle<int> const bounds = m_Text.GetBounds();
    m_Text.SetMaxTextWidth(SubtractSaturated(bounds.right, bounds.left) - 1);
}

void CMessageBox::SetPicture(ImageType type, vexel_ptr<IRasterPicture> picture)
{
    if (picture)
        GetPictures()[type] = std::move(picture);
    else
        GetPictures().erase(type);
}

vexel_ptr<IRasterPicture> CMessageBox::GetPicture(ImageType type)
{
    auto const found = GetPictures().find(type);
    return found == GetPictures().end() ? vexel_ptr<IRasterPicture>() : found->second;
}

void CMessageBox::SetButtonCaption(ButtonType type, std::string const& caption)
{
    GetButtonCaptions()[type] = caption;
}

std::string CMessageBox::GetButtonCaption(ButtonType type)
{
    auto const found = GetButtonCaptions().find(type);
    return found == GetButtonCaptions().end() ? std::string() : found->second;
}

int CMessageBox::GetBaseOffset()
{
    return detail::GetBaseOffset();
}

int CMessageBox::GetTextSizeCorrection()
{
    return detail::GetTextSizeCorrection();
}

}  // namespace vexel
