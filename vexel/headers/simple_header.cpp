// Models, sections and geometry.

#include "vexel/headers/simple_header.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/system.h"
#include "vexel/scroll/scroll_converter.h"

#include <algorithm>

namespace vexel
{

namespace
{

constexpr double s_MinSectionWidth = 15.0;  // times the display scale
constexpr int s_GripShift = 3;              // pixels at any scale: the grip reaches as far to both sides of the divider
constexpr int s_GripWidth = 6;

int GetLeastSectionWidth()
{
    return ToInt(GetSystemScale() * s_MinSectionWidth);
}

}  // namespace

CSimpleHeader::CSimpleHeader(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CScrollableElementEx(parent, extent, alignment), m_MinSectionWidth(GetLeastSectionWidth())
{
    CSimpleHeader::SetAlignment(alignment);
    SetTextConversion(true);
}

CSimpleHeader::~CSimpleHeader() = default;

// Models --------------------------------------------------------------------------------------------------------------------

void CSimpleHeader::SetModel(ISimpleHeaderModel* model)
{
    if (model == m_Model)
        return;
    if (m_Model)
    {
        m_Model->m_SigChanged.disconnect(this, &CSimpleHeader::OnUpdateModel);
        m_Model->m_SigDestroy.disconnect(this, &CSimpleHeader::ModelDies);
    }
    m_Model = model;
    if (m_Model)
    {
        m_Model->m_SigChanged.connect(this, &CSimpleHeader::OnUpdateModel);
        m_Model->m_SigDestroy.connect(this, &CSimpleHeader::ModelDies);
    }
    OnUpdateModel();
}

void CSimpleHeader::SetViewModel(IBaseItemViewModel* model)
{
    if (model == m_ViewModel)
        return;
    if (m_ViewModel)
    {
        m_ViewModel->m_SigChanged.disconnect(this, &CSimpleHeader::OnUpdateModel);
        m_ViewModel->m_SigDestroy.disconnect(this, &CSimpleHeader::ViewModelDies);
    }
    m_ViewModel = model;
    if (m_ViewModel)
    {
        m_ViewModel->m_SigChanged.connect(this, &CSimpleHeader::OnUpdateModel);
        m_ViewModel->m_SigDestroy.connect(this, &CSimpleHeader::ViewModelDies);
    }
    OnUpdateModel();
}

void CSimpleHeader::ModelDies(IItemsModel*)
{
    m_Model = nullptr;
    OnUpdateModel();
}

void CSimpleHeader::ViewModelDies(IBaseItemsModel*)
{
    m_ViewModel = nullptr;
    OnUpdateModel();
}

// Sections that are gone are asked for nothing any more.
void CSimpleHeader::OnUpdateModel()
{
    int const count = GetSectionCount();
    if (m_HotSection >= count)
        m_HotSection = -1;
    if (m_ActiveSection >= count)
    {
        m_ActiveSection = -1;
        if (m_State != stDragging)  // which the control ends
            m_State = stIdle;
    }
    OnChange(this, utElement);
}

// Style ---------------------------------------------------------------------------------------------------------------------

void CSimpleHeader::SetStyle(unsigned style)
{
    if (style == m_Style)
        return;
    m_Style = style;
    OnChange(this, utElement);
}

void CSimpleHeader::SetMinimalSectionWidth(int width)
{
    m_MinSectionWidth = std::max(width, GetLeastSectionWidth());
}

void CSimpleHeader::ExpandLastSection(bool expand)
{
    if (m_ViewModel || expand == m_ExpandLastSection)
        return;
    m_ExpandLastSection = expand;
    OnChange(this, utElement);
}

bool CSimpleHeader::IsLastSectionExpanded() const
{
    return m_ViewModel ? m_ViewModel->IsLastItemStretched() : m_ExpandLastSection;
}

// Sections ------------------------------------------------------------------------------------------------------------------

int CSimpleHeader::GetSectionCount() const
{
    if (m_ViewModel)
        return m_ViewModel->GetCount();
    return m_Model ? m_Model->GetItemCount() : 0;
}

int CSimpleHeader::GetItemWidth(int section) const
{
    if (m_ViewModel)
        return m_ViewModel->GetItemSize(section);
    return m_Model ? m_Model->GetItemWidth(section) : 0;
}

int CSimpleHeader::GetSortingDirection(int section) const
{
    return m_Model ? m_Model->GetSortingDirection(section) : 0;
}

std::string CSimpleHeader::GetItemCaption(int section) const
{
    return m_Model ? m_Model->GetItemCaption(section) : std::string();
}

int CSimpleHeader::GetItemTextAlign(int section) const
{
    return m_Model ? m_Model->GetItemTextAlign(section) : int{IPainter::AlignLeft};
}

int CSimpleHeader::GetItemImageIndex(int section) const
{
    return m_Model ? m_Model->GetItemImageIndex(section) : -1;
}

std::string CSimpleHeader::GetItemDescription(int section) const
{
    return m_Model ? m_Model->GetItemDescr(section) : std::string();
}

// Geometry ------------------------------------------------------------------------------------------------------------------

int CSimpleHeader::AlongOf(int x, int y) const
{
    return ToInt(GetAlong(x, y));
}

double CSimpleHeader::GetAcrossExtent() const
{
    rectangle<int> const bounds = GetBounds();
    return GetAcross(bounds.right, bounds.bottom);
}

rectangle<double> CSimpleHeader::GetHeaderRect(IPainter* painter) const
{
    rectangle<double> const axis = GetAxisRect(painter);
    if (axis.Width() > 0 && axis.Height() > 0)
        return axis;
    rectangle<int> bounds = GetBounds();
    if (m_ViewModel)
        GetAlongRef(bounds.right, bounds.bottom) = m_ViewModel->GetViewSize();
    if (!painter)
        ElementToControl(&bounds);
    return {static_cast<double>(bounds.left), static_cast<double>(bounds.top), static_cast<double>(bounds.right),
            static_cast<double>(bounds.bottom)};
}

rectangle<double> CSimpleHeader::GetOwnHeaderRect() const
{
    rectangle<double> rect = GetHeaderRect(nullptr);
    point<int> origin;
    ElementToControl(&origin);
    rect.Offset(-origin.x, -origin.y);
    return rect;
}

void CSimpleHeader::CalcFirstSection(int* first, int* offset) const
{
    IScrollModel* const model = GetScrollModel();
    if (!model)
        return;
    double position = model->GetStart();
    if (model->IsInseparableStep())
    {
        *first = ToInt(position);
        *offset = 0;
        return;
    }
    position = CScrollConverter(model).L2P(position);
    int const count = GetSectionCount();
    for (int i = 0; i < count; ++i)
    {
        double const step = model->GetStepSize(i);
        double const width = step == 0 ? GetItemWidth(i) : GetItemWidth(i) / step;
        position -= width;
        if (position < 0)
        {
            *first = i;
            *offset = ToInt(width + position);
            return;
        }
    }
}

int CSimpleHeader::CalcItemWidth(int section, double left, double right) const
{
    int const width = SubtractSaturated(GetItemWidth(section), 1);
    bool const expanded = section == GetSectionCount() - 1 && IsLastSectionExpanded();
    return expanded && left + width < right ? ToInt(right - left) : width;
}

// Goes over the sections that show, beginning with the one at the strip's left end. Along positions, in own pixels.
class CSimpleHeader::CSections
{
public:
    explicit CSections(CSimpleHeader const& header) : m_Header(header), m_Count(header.GetSectionCount())
    {
        rectangle<double> const strip = header.GetOwnHeaderRect();
        m_Left = m_Position = header.GetAlong(strip.left, strip.top);
        m_Right = header.GetAlong(strip.right, strip.bottom);
        int offset = 0;
        header.CalcFirstSection(&m_Section, &offset);
        m_Position -= offset;
    }

    bool IsFound() const { return m_Section >= 0; }  ///< There is a first section, though perhaps behind the last one.
    bool IsSection() const { return m_Section >= 0 && m_Section < m_Count; }
    bool IsInStrip() const { return m_Position <= m_Right; }
    int GetSection() const { return m_Section; }
    double GetPosition() const { return m_Position; }
    double GetLeft() const { return m_Left; }  ///< Of the strip.
    double GetRight() const { return m_Right; }
    rectangle<int> GetRect() const
    {
        int const width = m_Header.CalcItemWidth(m_Section, m_Position, m_Right);
        return MakeRect(m_Position + width);
    }
    rectangle<int> GetEnd() const { return MakeRect(m_Position); }  ///< Without width.
    void Next() { m_Position += m_Header.GetItemWidth(m_Section++); }

private:
    rectangle<int> MakeRect(double end) const
    {
        rectangle<double> const rect = m_Header.MakeRect(m_Position, 0, end, m_Header.GetAcrossExtent());
        return {ToInt(rect.left), ToInt(rect.top), ToInt(rect.right), ToInt(rect.bottom)};
    }

    CSimpleHeader const& m_Header;
    int const m_Count;
    int m_Section = -1;
    double m_Left = 0;
    double m_Position = 0;
    double m_Right = 0;
};

rectangle<int> CSimpleHeader::GetSectionRect(int section)
{
    if (!IsModelAvailable())
        return {};
    CSections sections(*this);
    if (!sections.IsFound() || section < sections.GetSection())
        return {};
    for (; sections.IsSection() && sections.IsInStrip(); sections.Next())
        if (sections.GetSection() == section)
            return sections.GetRect();
    return sections.IsInStrip() && section >= sections.GetSection() ? sections.GetEnd() : rectangle<int>();
}

CSimpleHeader::HitTestResult CSimpleHeader::HitTest(point<int> const& position)
{
    HitTestResult result;
    if (!IsModelAvailable())
        return result;
    rectangle<double> const strip = GetOwnHeaderRect();
    double const left = GetAlong(strip.left, strip.top);
    double const right = GetAlong(strip.right, strip.bottom);
    int along = AlongOf(position);
    if (!strip.Contains(position.x, position.y))
    {
        if (!GetBounds().Contains(position.x, position.y))
            return result;
        if (along < left)
            result.m_Area = htBefore;
        else if (along > right)
            result.m_Area = htBehind;
        return result;
    }
    if (along - s_GripShift >= left)
        along -= s_GripShift;

    CSections sections(*this);
    if (!sections.IsFound())
        return result;
    for (; sections.IsSection(); sections.Next())
    {
        rectangle<int> const rect = sections.GetRect();
        int const end = AlongOf(rect.right, rect.bottom);
        if (end < along)
            continue;
        int const section = sections.GetSection();
        bool const divider =
            end - along < s_GripWidth && !(section == GetSectionCount() - 1 && IsLastSectionExpanded());
        return {divider ? htDivider : htSection, section, divider ? section + 1 : section, rect};
    }
    result.m_Area = htEmptyEnd;
    return result;
}

}  // namespace vexel
