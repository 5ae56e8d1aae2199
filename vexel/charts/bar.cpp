// Sections, selection and geometry.

#include "vexel/charts/bar.h"

#include "vexel/core/measure_bracket.h"
#include "vexel/platform/convert.h"
#include "vexel/scroll/scroll_converter.h"

#include <algorithm>
#include <cmath>

namespace vexel
{

namespace
{

constexpr int s_TimerInterval = 100;  // milliseconds
constexpr int s_TimerStep = 4;        // pixels at any scale, as all below
constexpr int s_TimerMaxStep = 32;
constexpr int s_TimerIncrement = 4;
constexpr int s_TimerTicksPerIncrement = 2;
constexpr double s_SizeReserve = 2.0;
constexpr double s_FreeEdgeReach = 3.0;
constexpr int s_GripReach = 3;         // of a divider, behind it
constexpr int s_GripReachBefore = 2;   // and before it
constexpr double s_Tolerance = 1e-08;  // of a width that should be whole

using Selection = CSelectionTmpl<int>;

// The first selected one from this index on; -1: none.
int FindSelected(Selection const& selection, int from)
{
    auto const& nodes = selection.GetNodes();
    auto const node = nodes.LowerBound(from);
    if (node == nodes.end())
        return -1;
    return node->value == Selection::selEnd ? from : node->key;
}

}  // namespace

CBar::CBar(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CCategoricalAxis(parent, extent, alignment),
      m_Timer(this, s_TimerInterval, s_TimerStep, s_TimerMaxStep, s_TimerIncrement, s_TimerTicksPerIncrement)
{
    m_Timer.m_SigTimerTick.connect(this, &CBar::OnSigTimerTick);
    m_SigSize.connect(this, &CBar::OnSigResize);
}

CBar::~CBar() = default;

void CBar::OnSigResize(CVisualElement*)
{
    rectangle<int> const bounds = GetBounds();
    m_ViewStart = AlongOf(bounds.left, bounds.top);
    m_ViewEnd = AlongOf(bounds.right, bounds.bottom);
    m_ViewTop = AcrossOf(bounds.left, bounds.top);
    m_ViewBottom = AcrossOf(bounds.right, bounds.bottom);
}

// Selection -----------------------------------------------------------------------------------------------------------------

void CBar::GetSelectedSections(std::vector<int>& sections) const
{
    sections.clear();
    int const count = GetSectionCount();
    for (int i = 0; i < count; ++i)
    {
        int const own = FindSelected(m_Selection, i);
        int const ranged = FindSelected(m_RangeSelection, i);
        i = own < 0 || ranged < 0 ? std::max(own, ranged) : std::min(own, ranged);
        if (i < 0 || i >= count)
            return;
        sections.push_back(i);
    }
}

void CBar::SetSelectedSections(std::vector<int> const& sections)
{
    m_Selection.Clear();
    m_RangeSelection.Clear();
    for (int const section : sections)
        if (section >= 0)
            m_Selection.SetItemsSelection(section, section, true);
    OnChange(this, utElement);
}

bool CBar::IsSelected(int section) const
{
    return m_Selection.IsSelected(section) || m_RangeSelection.IsSelected(section);
}

// Geometry ------------------------------------------------------------------------------------------------------------------

int CBar::AlongOf(int x, int y) const
{
    return ToInt(GetAlong(x, y));
}

int CBar::AcrossOf(int x, int y) const
{
    return ToInt(GetAcross(x, y));
}

bool CBar::IsUpright() const
{
    return GetAlignment() == alLeft || GetAlignment() == alRight;
}

int CBar::GetSectionCount() const
{
    return GetCategoryModel() ? std::max(GetCategoryModel()->GetItemCount(), 0) : 0;
}

bool CBar::IsSection(int index) const
{
    return index >= 0 && index < GetSectionCount();
}

double CBar::GetPixelWidth(IScrollModel const& model, int section) const
{
    auto const [logical, physical] = model.GetMeasure();
    return std::floor(model.GetStepSize(section) * physical / logical + s_Tolerance);
}

rectangle<double> CBar::GetOwnAxisRect() const
{
    rectangle<double> rect = GetAxisRect(nullptr);
    point<int> origin;
    ElementToControl(&origin);
    rect.Offset(-origin.x, -origin.y);
    return rect;
}

// Where the sections' coordinates begin.
int CBar::GetStripOrigin() const
{
    rectangle<double> const axis = GetOwnAxisRect();
    return ToInt(GetAlong(axis.left, axis.top));
}

// A section, as it is drawn.
rectangle<int> CBar::ToPixels(rectangle<double> const& rect) const
{
    auto const pixel = [](double value) { return FloorToInt(value + s_Tolerance); };
    return {pixel(rect.left), pixel(rect.top), pixel(rect.right), pixel(rect.bottom)};
}

rectangle<double> CBar::GetSectionRect(int section) const
{
    IScrollModel* const model = GetScrollModel();
    if (!model)
        return {};
    CScrollConverter const converter(model);
    double const origin = converter.L2P(model->GetStart());
    rectangle<int> const bounds = GetBounds();
    return MakeRect(converter.L2P(section) - origin, 0, converter.L2P(section + 1.0) - origin,
                    AcrossOf(bounds.right, bounds.bottom));
}

double CBar::GetSizeHint() const
{
    IPainter* const painter = GetWindowPainter();
    if (!painter)
        return 0.0;
    font const upright = GetFont();
    CMeasureBracket const bracket(painter, upright);
    double height = 0;
    int const count = GetSectionCount();
    for (int i = 0; i < count; ++i)
        height = std::max(height, painter->GetTextSize(getCaption(i), &upright, -1, false, false).height);
    return s_SizeReserve + height;
}

// Everywhere along the far end of a bar at the top; of one at the right or bottom only if it is as thin as that.
bool CBar::IsAtFreeEdge(point<int> const& position) const
{
    if (!(m_Style & bsResizeBar))
        return false;
    rectangle<int> const bounds = GetBounds();
    double distance = 0;
    switch (GetAlignment())
    {
    case alLeft:
        distance = GetAcross(bounds.right, bounds.bottom) - GetAcross(position.x, position.y);
        break;
    case alTop:
        distance = GetAlong(bounds.right, bounds.bottom) - GetAlong(position.x, position.y);
        break;
    case alRight:
    case alBottom:
        distance = GetAcross(bounds.right, bounds.bottom);
        break;
    default:
        return false;
    }
    return std::abs(distance) < s_FreeEdgeReach;
}

CBar::HitTestResult CBar::HitTest(point<int> const& position) const
{
    HitTestResult result;
    if (!GetCategoryModel())
        return result;
    rectangle<double> const axis = GetOwnAxisRect();
    int const along = AlongOf(position.x, position.y);
    if (!axis.Contains(position.x, position.y))
    {
        if (!GetBounds().Contains(position.x, position.y))
            return result;
        if (along < GetAlong(axis.left, axis.top))
            result.m_Area = htBefore;
        else if (along > GetAlong(axis.right, axis.bottom))
            result.m_Area = htBehind;
        return result;
    }
    if (IsAtFreeEdge(position))
    {
        result.m_Area = htFreeEdge;
        return result;
    }
    return HitTestStrip(along);
}

// Without the free edge, and whatever the point's across coordinate.
CBar::HitTestResult CBar::HitTestStrip(int along) const
{
    HitTestResult result;
    IScrollModel* const model = GetScrollModel();
    if (!model)
        return result;
    CScrollConverter const converter(model);
    double const value =
        converter.P2L(static_cast<double>(along) - GetStripOrigin() + converter.L2P(model->GetStart()));
    if (std::isnan(value))
        return result;
    int const count = GetSectionCount();
    if (value > count || count == 0)
    {
        result.m_Area = htBehind;
        result.m_Section = result.m_NextSection = result.m_Hover = count;
        return result;
    }
    if (value < 0)
    {
        result.m_Area = htBefore;
        return result;
    }
    int const section = ToInt(value);
    double const fraction = value - section;
    result.m_Area = htSection;
    result.m_Section = result.m_NextSection = result.m_Hover = section;
    result.m_FirstHalf = fraction <= 0.5;

    auto const [logical, physical] = model->GetMeasure();
    int const pixel = ToInt(physical * model->GetStepSize(section) * fraction / logical);
    if (pixel < s_GripReach && section > 0)
    {
        result.m_Area = htDivider;
        result.m_Section = section - 1;
    }
    else if (GetPixelWidth(*model, section) - pixel <= s_GripReachBefore)
    {
        result.m_Area = htDivider;
        result.m_NextSection = section + 1;
    }
    return result;
}

}  // namespace vexel
