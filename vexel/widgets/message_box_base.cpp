#include "vexel/widgets/message_box_base.h"

#include "vexel/widgets/detail/message_metrics.h"

namespace vexel
{

namespace
{

size<int> const g_PartSize{12, 12};
double const g_TitleFactor = 1.3;  // of the default text's size
int const g_ImageFlags = IPainter::AlignHCenter | IPainter::AlignTop;

}  // namespace

CMessageBoxBase::CMessageBoxBase(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVertBox(parent, extent, alignment), m_Image(this, g_PartSize, alLeft), m_TopSpacer(this, g_PartSize, alTop),
      m_Title(this, g_PartSize, alTop), m_TitleSpacer(this, g_PartSize, alTop)
{
    for (CVisualElement* const part :
         {static_cast<CVisualElement*>(&m_Image), &m_TopSpacer, static_cast<CVisualElement*>(&m_Title), &m_TitleSpacer})
        part->SetDynamic(false);
    int const offset = detail::GetBaseOffset();
    m_Image.SetAutoSize(true);
    m_Image.SetOffset({offset, offset, offset, offset});
    m_Image.SetImageAlign(g_ImageFlags);
    m_Title.SetTransparent(true);
    font titleFont;
    titleFont.style = font::fsBold;
    titleFont.factor = g_TitleFactor;
    m_Title.SetFont(titleFont);
    m_Title.SetAutoSize(true);
    m_Title.SetTextAlign(IPainter::AlignLeft);
    m_TitleSpacer.SetSize({offset, offset}, false);  // device pixels already
    SetClipToParent(false);
    m_Constructed = true;
    CMessageBoxBase::AttributeChanged();
}

CMessageBoxBase::~CMessageBoxBase()
{
    m_Constructed = false;
}

void CMessageBoxBase::CheckImageAlign()
{
    if (!m_Constructed || !GetControl() || !m_Image.IsAssigned() || m_Title.GetCaption().empty())
        return;
    int const imageHeight = m_Image.GetImageSize().height;
    int const above = m_Image.GetOffset().top;
    int const below = m_Image.GetOffset().bottom;
    int const titleHeight = m_Title.GetSize().height;
    CAliveGuard const alive(this);

    int const topHeight = m_TopSpacer.GetSize().height;
    int const imageMiddle = imageHeight / 2 + above;
    int const titleMiddle = titleHeight / 2 + topHeight;
    if (imageMiddle != titleMiddle)
        m_TopSpacer.SetHeight(imageMiddle + topHeight - titleMiddle, false);
    if (!alive || !m_Constructed)
        return;
    int const spacerHeight = m_TitleSpacer.GetSize().height;
    int const left =
        imageHeight + above -
        (detail::GetTextSizeCorrection() + titleHeight + m_TopSpacer.GetSize().height - below + spacerHeight);
    if (left != 0)
        m_TitleSpacer.SetHeight(left + spacerHeight, false);
}

void CMessageBoxBase::AttributeChanged()
{
    CAliveGuard const alive(this);
    OnChange(this, utElement);
    if (alive)
        CheckImageAlign();
}

void CMessageBoxBase::ProcessRearrange(CVisualElement** element)
{
    if (!IsChildrenAvailable(0))
        return;
    CAliveGuard const alive(this);
    CVertBox::ProcessRearrange(element);
    if (alive)
        CheckImageAlign();
}

}  // namespace vexel
