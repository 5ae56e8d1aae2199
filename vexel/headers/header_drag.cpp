// Dragging a section among its siblings.

#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/headers/detail/header_drawing.h"
#include "vexel/headers/detail/header_index.h"
#include "vexel/headers/header.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <algorithm>
#include <optional>

namespace vexel
{

namespace
{

constexpr int s_DragAlpha = 70;
constexpr int s_PictureMarginRight = 3;  // pixels at any scale, as all below
constexpr int s_PictureMarginBottom = 1;
constexpr int s_PointerSide = 13;
constexpr int s_PointerHalf = 6;
constexpr int s_PointerRise = 14;  // above the strip's foot
_color const g_PointerColor{0xFF0000FF};

// What of the element's coordinates lies in the window, along x.
range<int> GetShownSpan(CVisualElement const& element)
{
    CVisualElement const* root = &element;
    while (root->GetParent())
        root = root->GetParent();
    rectangle<int> area = root->GetBounds();
    root->ElementToControl(&area);
    element.ControlToElement(&area);
    return {area.left, area.right};
}

}  // namespace

bool CHeader::HandleStartDragging(int x, int y, DragInfo& info)
{
    Sync();
    HitTestResult const hit = HitTest(x, y);
    if (hit.m_Area != HitTestResult::haSection || m_Processing.m_State == Processing::stResizing || !(m_Style & hsDrag))
        return false;
    m_Processing.m_Item = hit.m_Item;
    m_Processing.m_ItemIndex = GetVisibleIndex(hit.m_Item);
    if (!Ask(m_SigCanDrag, hit.m_Item) || m_Processing.m_Item != hit.m_Item)
        return false;
    rectangle<int> rect = hit.m_Rect;
    rect.bottom = GetBounds().bottom;  // with all that stands below it
    rectangle<int> limits = GetDraggingBounds(hit.m_Item, rect);
    if (std::int64_t{rect.right} - rect.left > std::int64_t{limits.right} - limits.left)
    {
        rect.left = limits.left;  // longer than its bounds: it could not be kept inside
        rect.right = limits.right;
    }
    ElementToControl(&rect);
    ElementToControl(&limits);
    info.m_Rect = rect;
    info.m_Bounds = limits;
    m_Drag = {hit.m_Item, SubtractSaturated(x, hit.m_Rect.left), -1};
    info.m_Data = reinterpret_cast<std::intptr_t>(&m_Drag);
    m_Processing.m_State = Processing::stDragging;
    m_Processing.m_HotState = vsPressed;
    OnChange(this, utElement);
    return true;
}

// Along the parent; a section stays in its own levels. `rect`: the dragged one's.
rectangle<int> CHeader::GetDraggingBounds(IHeaderItem const* item, rectangle<int> const& rect) const
{
    detail::CHeaderIndex const& tree = GetIndex();
    int const node = tree.Find(item);
    int const parent = node < 0 ? 0 : tree.GetParent(node);
    if (parent == 0)
        return m_DragBounds.IsEmpty() ? GetBounds() : m_DragBounds;
    rectangle<int> const above = detail::Truncate(GetGeometry().GetRect(parent));
    return {above.left, rect.top, above.right, rect.bottom};
}

// The place among the siblings that a section dropped here would take.
int CHeader::GetDragDropIndex(int x, int y, IHeaderItem const* item) const
{
    detail::CHeaderIndex const& tree = GetIndex();
    int const node = tree.Find(item);
    if (node < 0)
        return -1;
    int const parent = tree.GetParent(node);
    int const count = tree.GetChildCount(parent);
    detail::CHeaderGeometry const geometry = GetGeometry();
    rectangle<double> const span = parent == 0 ? GetHeaderRect() : geometry.GetRect(parent);
    if (x < span.left)
        return 0;
    if (x > span.right)
        return count;
    HitTestResult const hit = HitTest(AddSaturated(x, CHitTester::s_GripShift), y);
    int sibling = hit.m_Item ? tree.Find(hit.m_Item) : -1;
    while (sibling > 0 && tree.GetParent(sibling) != parent)
        sibling = tree.GetParent(sibling);
    if (sibling <= 0)
        return count;
    rectangle<double> const rect = geometry.GetRect(sibling);
    int const place = sibling - tree.GetFirstChild(parent);
    return x > rect.left + rect.Width() / 2 ? place + 1 : place;
}

bool CHeader::HandleDragOver(CVisualElement* source, int x, int y, DragInfo&)
{
    Sync();
    if (source != this || m_Processing.m_State != Processing::stDragging || !m_Drag.m_Item)
        return false;
    m_Drag.m_Target = GetDragDropIndex(x, y, m_Drag.m_Item);
    CAliveGuard const alive(this);
    m_SigDragOver(this, m_Drag.m_Item, m_Processing.m_ItemIndex, m_Drag.m_Target);
    alive.Check();
    if (m_Processing.m_State == Processing::stDragging)
        CheckScroll(x);
    return true;
}

// Beyond the strip's ends the view scrolls on, as long as the pointer rests there.
void CHeader::CheckScroll(int x)
{
    if (x >= 0 && x <= GetBounds().right)
        StopScrolling(ISysWindow::stHorizontal);
    else if (!IsScrolling())
        StartScrolling(ISysWindow::stHorizontal, x < 0 ? sdBackward : sdForward, true);
}

void CHeader::HandleDropDone(CVisualElement*, int x, int y, DragInfo&)
{
    CAliveGuard const alive(this);
    StopScrolling(ISysWindow::stHorizontal);
    Sync();
    if (m_Drag.m_Target < 0 || !m_Drag.m_Item)
        return;
    m_SigDropped(this, m_Drag.m_Item, m_Processing.m_ItemIndex);
    alive.Check();
    Sync();
    ProcessHotSection(HitTest(x, y));
    OnChange(this, utElement);
}

void CHeader::HandleDragFinished(CVisualElement*, DragInfo& info)
{
    info.m_Rect = {};
    info.m_Bounds = {};
    info.m_Data = 0;
    m_Drag = {};
    StopScrolling(ISysWindow::stHorizontal);
    m_Processing.m_State = Processing::stIdle;
    m_Processing.m_ItemIndex = -1;
    m_Processing.m_Anchor = 0;
    if (m_Processing.m_HotState == vsPressed || !GetControl() || GetControl()->GetMouseElement() != this)
        m_Processing.Clear();
    OnChange(this, utElement);
}

void CHeader::HandleDrawDragItem(IPainter* painter, DragInfo& info, bool, CVisualElement*)
{
    Sync();
    rectangle<int> rect = info.m_Rect;
    ControlToElement(&rect);
    ISystem* const system = GetCurrentSystem();
    int const node = m_Drag.m_Item ? GetIndex().Find(m_Drag.m_Item) : -1;
    if (rect.IsEmpty() || !system || node < 0)
        return;
    // A wide section is drawn as far as it shows.
    range<int> const window = GetShownSpan(*this);
    int const left = std::max(rect.left, window.first);
    int const right = std::min(rect.right, window.second);
    if (left <= right)
    {
        int const width = right - left + s_PictureMarginRight;
        int const height = rect.Height() + s_PictureMarginBottom;
        vexel_ptr<IRasterPicture> const picture = system->CreateRasterPicture({width, height});
        IPainter* const canvas = picture->GetPainter();
        canvas->BeginPaint(IPainter::ssPaint);
        canvas->SetBrush({detail::GetSystemColor(ISysPalette::scFace), brush::bsSolid});
        canvas->FillRect(0, 0, width - 1, height - 1);
        canvas->SetFont(GetFont());
        canvas->SetTextColor(GetSectionTextColor());
        rectangle<double> const strip{static_cast<double>(rect.left) - left, 0.0,
                                      static_cast<double>(rect.right) - left, static_cast<double>(rect.Height())};
        detail::CHeaderGeometry geometry(GetIndex(), strip, m_StretchLastItem);
        geometry.SetLevelHeight(GetHeaderRect().Height() / GetIndex().GetLevelCount());
        geometry.ForEachBelow(node, 0, width, [&](int section, rectangle<double> const& place) {
            DrawSection(canvas, m_Index->GetItem(section), place);
        });
        canvas->EndPaint();
        painter->AlphaBlend(left, rect.top, left + (width - 1.0), rect.top + (height - 1.0), picture.get(),
                            s_DragAlpha);
    }
    if (m_Drag.m_Target < 0)
        return;
    rectangle<int> clip = info.m_Bounds;
    ControlToElement(&clip);
    DrawDraggingPointer(painter, GetIndex().GetItem(GetIndex().GetParent(node)), m_Drag.m_Target, ToDouble(clip));
}

void CHeader::DrawDraggingPointer(IPainter* painter, IHeaderItem const* parent, int index,
                                  rectangle<double> const& clip)
{
    detail::CHeaderIndex const& tree = GetIndex();
    int const above = parent ? tree.Find(parent) : 0;
    int const count = above < 0 ? 0 : tree.GetChildCount(above);
    if (count == 0 || index < 0)
        return;
    bool const behind = index >= count;
    rectangle<double> const rect = GetGeometry().GetRect(tree.GetFirstChild(above) + (behind ? count - 1 : index));
    int const position = std::max(ToInt(behind ? rect.right : rect.left), 0);
    std::optional<CClipHolder> holder;
    if (!clip.IsEmpty())
        holder.emplace(painter, clip);
    detail::DrawSortTriangle(painter, false, position - s_PointerHalf, GetBounds().bottom - s_PointerRise,
                             s_PointerSide, g_PointerColor);
}

}  // namespace vexel
