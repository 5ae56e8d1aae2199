#include "vexel/controls/list_box.h"

#include "vexel/controls/detail/painter_colors.h"
#include "vexel/core/control.h"
#include "vexel/views/item_walks.h"

namespace vexel
{

namespace
{

size<int> const g_ListExtent{200, 100};
double const g_TextIndent = 3.0;

}  // namespace

IListBoxItemDrawing::~IListBoxItemDrawing() = default;

// Default handler -----------------------------------------------------------------------------------------------------------

bool CDefListBoxHandler::ProcessKeyDown(int, int key, bool* handled)
{
    bool const taken = SetCurProcessKeyDown(key);
    *handled = taken;
    return taken;
}

// Viewer ----------------------------------------------------------------------------------------------------------------------

CListBoxViewer::CListBoxViewer(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CRowViewer<IDiscreteItemViewModel>(parent, extent, alignment)
{
    m_HorzHandler.SetViewModel(&m_HorzViewModel);
    m_HorzHandler.SetViewer(this);
    m_HorzHandler.SetDirection(idHorizontal);
    AddEventHandler(&m_HorzHandler);
    m_HorzScrollModel.SetViewModel(&m_HorzViewModel);
    SetHorzScroll(&m_HorzScrollModel);
    SetDefEventHandler(this);
}

void CListBoxViewer::SetModel(IItemsModel* model)
{
    if (m_Model)
    {
        m_Model->m_SigChanged.disconnect(this, &CListBoxViewer::ModelChanged);
        m_Model->m_SigDestroy.disconnect(this, &CListBoxViewer::ModelDies);
    }
    m_Model = model;
    if (m_Model)
    {
        m_Model->m_SigChanged.connect(this, &CListBoxViewer::ModelChanged);
        m_Model->m_SigDestroy.connect(this, &CListBoxViewer::ModelDies);
    }
    ModelChanged();
}

void CListBoxViewer::ModelDies(IItemsModel*)
{
    m_Model = nullptr;
    ModelChanged();
}

void CListBoxViewer::ModelChanged()
{
    int const count = m_Model ? m_Model->GetItemCount() : 0;
    if (m_HotItem >= count)
        m_HotItem = -1;
    CAliveGuard const alive(this);
    GetRowViewModel()->SetCount(count);
    if (!alive)
        return;
    MarkAllDirty();
    Update(utElement);
}

void CListBoxViewer::SetItemDrawing(IListBoxItemDrawing* drawing)
{
    if (drawing == m_ItemDrawing)
        return;
    m_ItemDrawing = drawing;
    MarkAllDirty();
    Update(utElement);
}

void CListBoxViewer::SetLineWidth(int pixels)
{
    CAliveGuard const alive(this);
    m_HorzViewModel.SetItemSize(0, pixels);
    m_HorzHandler.UpdateScroll();
    if (!alive)
        return;
    MarkAllDirty();
    Update(utElement);
}

// Choice ----------------------------------------------------------------------------------------------------------------------

void CListBoxViewer::SetCurrentItem(int item)
{
    if (item == GetCurrentItem())
        return;
    CAliveGuard const alive(this);
    GetRowSelectionModel()->SetCurrent(item);
    if (alive)
        GetRowSelectionModel()->ClearSelection();
    if (alive && item >= 0)
        GetRowSelectionModel()->SelectItem(item, true);
    if (!alive)
        return;
    GetRowHandler().SetAnchor(item);
    Update(utElement);
    if (alive)
        GetRowHandler().NotifySelectionChanged();
}

void CListBoxViewer::SetCurrentItemEx(int item)
{
    CAliveGuard const alive(this);
    SetCurrentItem(item);
    if (alive)
        m_SigItemActivated(item);
}

bool CListBoxViewer::SetCurProcessButtonDown(int, int, int, MouseButton button, bool* handled)
{
    *handled = true;
    if (button != mbLeft || m_HotItem < 0)
        return false;
    SetCurrentItemEx(m_HotItem);
    return true;
}

bool CListBoxViewer::SetCurProcessKeyDown(int key)
{
    if (key != vkSpace && key != vkReturn)
        return false;
    if (m_HotItem >= 0)
        SetCurrentItemEx(m_HotItem);
    else
        m_SigItemActivated(GetCurrentItem());
    return true;
}

// Highlight ---------------------------------------------------------------------------------------------------------------

bool CListBoxViewer::HighlightingMouseMove(int, int y, int, MouseButton, bool*)
{
    SetHotItem(Utils::HitTest(GetRowViewModel(), y));
    return true;
}

void CListBoxViewer::HighlightingMouseLeave(bool*)
{
    SetHotItem(-1);
}

void CListBoxViewer::SetHotItem(int item)
{
    if (item == m_HotItem)
        return;
    bool const selectionChangesLook = (item < 0) != (m_HotItem < 0);
    for (int const each : {m_HotItem, item})
        if (each >= 0)
            GetRowViewModel()->AddDirtyItems(each, each);
    m_HotItem = item;
    if (selectionChangesLook)
        MarkShownSelection();
    Update(utElement);
}

// The selection shows only while there is no hot row.
void CListBoxViewer::MarkShownSelection()
{
    IDiscreteItemViewModel* const model = GetRowViewModel();
    int const last = Utils::GetLastVisibleItem(model);
    for (int row = model->GetStartItem(); row <= last + 1 && row < model->GetCount(); ++row)
        if (GetRowSelectionModel()->IsItemSelected(row))
            model->AddDirtyItems(row, row);
}

// Drawing -------------------------------------------------------------------------------------------------------------------

// A list that is scrolled sideways paints all rows.
bool CListBoxViewer::IsPartlyDirty() const
{
    return ToInt(m_HorzScrollModel.GetStart()) == 0 && CRowViewer<IDiscreteItemViewModel>::IsPartlyDirty();
}

void CListBoxViewer::DrawRow(IPainter* painter, int row, int, int state, rectangle<double> const& rect,
                             IDirtyItemSet::DirtyType dirty)
{
    int const scrolled = ToInt(m_HorzScrollModel.GetStart());
    if (dirty == IDirtyItemSet::dirtyOther && scrolled == 0)
        return;
    rectangle<double> line = rect;
    line.left -= scrolled;  // the other end stays, so that the ground reaches it
    bool const highlighted = m_HotItem < 0 ? (state & isSelected) != 0 : m_HotItem == row;
    _color const ground = highlighted ? detail::GetPainterColor(*painter, ISysPalette::scHighlight) : GetBkColor();
    painter->SetTextColor(highlighted ? detail::GetPainterColor(*painter, ISysPalette::scHighlightText) : GetFgColor());
    painter->SetBrush({ground, brush::bsSolid});
    painter->FillRect(line.left, line.top, line.right, line.bottom);

    CAliveGuard const alive(this);
    bool drawDefault = true;
    if (m_ItemDrawing)
        m_ItemDrawing->DrawItem(painter, row, state, line, &drawDefault);
    if (!alive || !drawDefault)
        return;
    if (m_Model)
        painter->DrawString({line.left + g_TextIndent, line.top, line.right, line.bottom}, m_Model->GetItemCaption(row),
                            IPainter::AlignVCenter, -1);
    if ((state & isCurrent) != 0 && IsFocused())
        painter->FocusRect(line.left, line.top, line.right, line.bottom);
}

void CListBoxViewer::DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect)
{
    painter->SetBrush({GetBkColor(), brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
}

// List box ------------------------------------------------------------------------------------------------------------------

CListBox::CListBox(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CBorder(parent, extent, alignment), m_ScrollBox(this, g_ListExtent, alClient),
      m_Viewer(&m_ScrollBox, g_ListExtent, alClient)
{
    SetShape(ShapeBox);
    m_ScrollBox.ConnectElement(&m_Viewer, CScrollBox::ctHorizontal, true);
    m_ScrollBox.ConnectElement(&m_Viewer, CScrollBox::ctVertical, true);
}

}  // namespace vexel
