#include "vexel/widgets/event_log.h"

#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/core/measure_bracket.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/sys_window.h"

#include <algorithm>
#include <vector>

namespace vexel
{

namespace
{

size<int> const g_PartSize{5, 5};
int const g_EndTolerance = 5;  // pixels at any scale that the view may be off the end and still follows it
int const g_ProbeX = 10;       // where lines are looked for

}  // namespace

// The lines -------------------------------------------------------------------------------------------------------------------

rectangle<int> CEventLog::CLogList::GetVisualisationRect() const
{
    CVisualElement const* const parent = GetParent();
    CVisualElement const* const log = parent ? parent->GetParent() : nullptr;
    if (!log)
        return GetBounds();
    rectangle<int> rect = log->GetDrawBounds();
    if (rect.IsZero())
        return rect;
    int const above = AddSaturated(GetPos().top, parent->GetPos().top);
    rect.top = SubtractSaturated(rect.top, above);
    rect.bottom = SubtractSaturated(rect.bottom, above);
    return rect;
}

int CEventLog::CLogList::GetStartDrawingLine() const
{
    rectangle<int> const view = GetVisualisationRect();
    return view.IsZero() ? CList::GetStartDrawingLine() : std::max(HitTest({g_ProbeX, view.top}), 0);
}

int CEventLog::CLogList::GetEndDrawingLine() const
{
    if (!GetModel())
        return 0;
    rectangle<int> const view = GetVisualisationRect();
    if (view.IsZero())
        return CList::GetEndDrawingLine();
    return std::min(AddSaturated(HitTest({g_ProbeX, view.bottom}), 1), GetModel()->GetItemCount());
}

void CEventLog::CLogList::AfterSetModel(IItemsModel* old)
{
    // A model that has died since has left by itself.
    if (old && old != GetModel())
        old->m_SigChanged.disconnect(this, &CLogList::ModelChanged);
    if (GetModel() && old != GetModel())
        GetModel()->m_SigChanged.connect(this, &CLogList::ModelChanged);
    m_MeasuredCount = 0;
    RecalcSize();
}

void CEventLog::CLogList::RecalcSize()
{
    CAliveGuard const alive(this);
    CList::RecalcSize();
    if (alive)
        MeasureNewLines();
    if (alive)
        Update(utElement);
}

void CEventLog::CLogList::MeasureNewLines()
{
    CAliveGuard const alive(this);
    ISysWindow* window = GetControl() ? GetControl()->GetWindow() : nullptr;
    if (!window || !GetModel())
        return;
    // Lines that were taken away will be new when they come back.
    m_MeasuredCount = std::min(m_MeasuredCount, GetModel()->GetItemCount());
    if (GetModel()->GetItemCount() <= m_MeasuredCount)
        return;
    if (m_MeasuredCount == 0)
    {
        ForceRearrange();
        window = alive && GetControl() ? GetControl()->GetWindow() : nullptr;
        if (!window || !GetModel())
            return;
    }

    int widest = 0;
    int const count = GetModel()->GetItemCount();
    if (IPainter* const painter = window->GetPainter())
    {
        CMeasureBracket const measuring(painter, GetFont());
        for (int line = m_MeasuredCount; line < count; ++line)
            widest = std::max(widest, GetItemSize(line).width);
    }
    m_MeasuredCount = count;
    if (widest > GetSize().width)
        SetWidth(widest, false);
}

// With image and title ----------------------------------------------------------------------------------------------------------

CEventLog::CTitledLogList::CTitledLogList(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CMessageBoxTempl(parent, extent, alignment)
{
    GetContent().SetOffset({0, 0, 0, 0});
}

CEventLog::CTitledLogList::~CTitledLogList()
{
    EndParts();
}

void CEventLog::CTitledLogList::ProcessRearrange(CVisualElement** element)
{
    if (!IsChildrenAvailable(0))
        return;
    CAliveGuard const alive(this);
    CMessageBoxBase::ProcessRearrange(element);
    if (!alive)
        return;
    int const needed = AddSaturated(GetContent().GetPos().left, GetContent().GetSize().width);
    if (needed > GetSize().width)
        SetWidth(needed, false);
}

// The log -----------------------------------------------------------------------------------------------------------------------

bool CEventLog::s_UseAsyncAutoScroll = false;

CEventLog::CEventLog(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVertBox(parent, extent, alignment), m_TitledList(this, g_PartSize, alBottom),
      m_Text(&m_TitledList, g_PartSize, alTop)
{
    m_TitledList.SetDynamic(false);
    m_TitledList.SetVisible(false);
    m_Text.SetDynamic(false);
    m_Text.SetAutoSize(true);
    m_Text.SetTextAlign(IPainter::AlignLeft);
    m_Text.AdjustHeight(true);
    SetCanHaveFocus(true);
    m_Built = true;
}

CEventLog::~CEventLog()
{
    m_Built = false;
}

void CEventLog::SetModel(IItemsModel* model)
{
    CAliveGuard const alive(this);
    GetList().SetModel(model);
    if (alive)
        m_TitledList.SetVisible(model != nullptr);
    if (!alive)
        return;
    if (model)
    {
        ForceRearrange();  // only from now on the list stands beside the image, and its box may be too narrow for both
        if (alive)
            m_TitledList.OnRearrange(&m_TitledList);
        return;
    }
    GetList().SetSize(g_PartSize, false);
    if (alive)
        m_TitledList.SetWidth(g_PartSize.width, false);
}

void CEventLog::Clear()
{
    CAliveGuard const alive(this);
    SetModel(nullptr);
    while (alive)
    {
        // The list may have been moved behind others.
        IChildren& children = *GetChildren();
        int last = children.GetCount() - 1;
        if (last > 0 && children.GetItem(last) == &m_TitledList)
            --last;
        if (last <= 0)
            break;
        CVisualElement* const child = children.GetItem(last);
        if (child->IsDynamic())
            delete child;
        else
            child->ReParent(nullptr, true);
    }
    if (alive)
        RecalculateSize();  // a child counts until it has gone
}

void CEventLog::MoveElementBack(CVisualElement* element)
{
    int const index = GetChildren()->GetIndex(element);
    if (index < 0)
        return;
    GetChildren()->MoveItem(index, GetChildren()->GetCount() - 1);
    OnRearrange(this);
}

void CEventLog::SetInitialWidth(int width, bool now)
{
    if (now)
    {
        if (m_TitledList.IsVisible())
            return;
        CAliveGuard const alive(this);
        SetWidth(width, true);
        if (alive)
            RecalculateSize();  // the height was scaled along, once too often
        return;
    }
    if (width == m_InitialWidth)
        return;
    m_InitialWidth = width;
    AttributeChanged();
}

void CEventLog::AttributeChanged()
{
    CAliveGuard const alive(this);
    OnChange(this, utElement);
    if (alive && m_Built && m_InitialWidth > 0 && !m_TitledList.IsVisible())
        SetWidth(ToInt(GetSizeScale() * m_InitialWidth), false);
}

// Layout ------------------------------------------------------------------------------------------------------------------------

bool CEventLog::IsEndInView() const
{
    rectangle<int> const view = GetDrawBounds();
    return !view.IsEmpty() && AddSaturated(view.bottom, g_EndTolerance) >= GetBounds().bottom;
}

void CEventLog::SetPos(rectangle<int> const& rect, bool force)
{
    CAliveGuard const alive(this);
    CVertBox::SetPos(rect, force);
    if (!alive || !m_ScrollPending)
        return;
    m_ScrollPending = false;
    GotoEnd();
}

void CEventLog::ProcessRearrange(CVisualElement** element)
{
    if (!m_Built || !IsChildrenAvailable(0))
        return;
    // One without an extent has no end to follow, but takes its size like any other: nothing else would give it one.
    rectangle<int> const bounds = GetBounds();
    bool const follows = m_AutoScroll && bounds.right > 0 && bounds.bottom > 0 && IsEndInView();
    CAliveGuard const alive(this);
    CVertBox::ProcessRearrange(element);
    if (alive && m_TitledList.IsVisible() && m_TitledList.GetSize().width > GetSize().width)
        SetWidth(m_TitledList.GetSize().width, false);
    if (!alive || !follows)
        return;
    if (s_UseAsyncAutoScroll)
    {
        m_ScrollPending = true;
        return;
    }
    ForceRearrange();
    if (alive)
        GotoEnd();
}

void CEventLog::DrawContent(IPainter* painter)
{
    CClipHolder const clip(painter, ToDouble(GetBounds()));
    CVertBox::DrawContent(painter);
}

}  // namespace vexel
