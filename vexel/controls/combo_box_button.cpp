#include "vexel/controls/combo_box_button.h"

#include "vexel/controls/detail/arrow_width.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/sys_window.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace vexel
{

namespace
{

size<int> const g_ListExtent{200, 100};

ISysWindow* WindowOf(CVisualElement const* element)
{
    return element && element->GetControl() ? element->GetControl()->GetWindow() : nullptr;
}

// What the frame of a list takes of a popup's height.
double GetFrameHeight(CListBox const& list)
{
    rectangle<int> const& outer = list.GetOffset();
    rectangle<int> const& inner = list.GetContentOffset();
    return 1.0 + outer.top + outer.bottom + inner.top + inner.bottom;
}

}  // namespace

// Popup ---------------------------------------------------------------------------------------------------------------------

void CPopup::AttributeChanged()
{
    ISysWindow* const window = WindowOf(m_Owner);
    if (m_Popup || !window)
        return;
    m_Popup = window->CreatePopup();
    m_Control = new CBaseControl(m_Popup->GetWindow());
}

void CPopup::Show()
{
    if (!m_Popup || !m_Owner)
        return;
    point<int> origin;
    m_Owner->ElementToControl(&origin);
    rectangle<int> const bounds = m_Owner->GetBounds();
    PositionPopup(m_Popup,
                  {origin.x, origin.y, AddSaturated(origin.x, bounds.right), AddSaturated(origin.y, bounds.bottom)});
}

// Button --------------------------------------------------------------------------------------------------------------------

CComboBoxButton::CComboBoxButton(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CDropButton(parent, extent, alignment), m_List(new CListBox(nullptr, g_ListExtent, alClient))
{
    m_SigButtonDown.connect(this, &CComboBoxButton::ProcessMouseDown);
    m_SigDropDown.connect(this, &CComboBoxButton::ProcessDropDown);
    SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter);
}

CComboBoxButton::~CComboBoxButton()
{
    if (m_ListOwned)
        delete m_List.get();
    ReleasePopup();
}

void CComboBoxButton::ReleasePopup()
{
    vexel_ptr<IPopup> const popup = std::exchange(m_DropPopup.m_Popup, nullptr);
    delete std::exchange(m_DropPopup.m_Control, nullptr);
}

bool CComboBoxButton::IsDropDownShown() const
{
    return m_DropPopup.m_Popup && m_DropPopup.m_Popup->IsVisible();
}

// A button that has moved to another window gets another popup there, with the same list.
bool CComboBoxButton::PreparePopup()
{
    if (m_DropPopup.m_Popup && m_DropPopup.m_Popup->GetOwner() == WindowOf(this))
        return true;
    CPopup old = m_DropPopup;
    m_DropPopup = {nullptr, nullptr, this};
    m_DropPopup.AttributeChanged();
    if (m_DropPopup.m_Control && m_List)
    {
        if (std::exchange(m_ListOwned, false))
            m_List->GetViewer().m_SigItemActivated.connect(this, &CComboBoxButton::ProcessClosePopup);
        m_DropPopup.m_Control->SetContent(m_List.get());
    }
    delete old.m_Control;
    return m_DropPopup.m_Control != nullptr;
}

void CComboBoxButton::ScheduleDropDown()
{
    ISysWindow* const window = WindowOf(this);
    if (!window || window->IsDestroying() || !PreparePopup())
        return;
    auto runnable = std::make_unique<CDropDownRunnable>();
    runnable->m_SigRun.connect(this, &CComboBoxButton::DoDropDown);
    window->Post(runnable.release());
}

void CComboBoxButton::DoDropDown()
{
    CAliveGuard const alive(this);
    UpdateDropSize();
    if (!alive)
        return;
    m_DropPopup.Show();
    if (alive && m_List)
        m_List->GetViewer().SetFocus(true);  // keys go to the list
}

void CComboBoxButton::UpdateDropSize()
{
    vexel_ptr<IPopup> const popup = m_DropPopup.m_Popup;
    if (!popup || m_VisibleDropItems <= 0 || !m_List)
        return;
    CListBoxViewer const& viewer = m_List->GetViewer();
    int const item = viewer.GetRowViewModel()->GetDefaultItemSize();
    int const shown = std::min(m_VisibleDropItems, viewer.GetModel() ? viewer.GetModel()->GetItemCount() : 0);
    int const bar = m_List->GetScrollBox().GetHorzElement().IsScrollBarVisible() ? detail::GetArrowWidth() : 0;
    int const width = m_VisibleDropWidth >= 1 ? m_VisibleDropWidth : AddSaturated(GetBounds().right, 1);
    double height = static_cast<double>(shown) * (static_cast<double>(item) + 1);
    if (shown > 0)  // one pixel a row is less than the frame takes where there are few
        height = std::max(height, static_cast<double>(shown) * item + GetFrameHeight(*m_List));
    popup->SetSize(width, ToInt(bar + height));
}

void CComboBoxButton::UpdateCaption(int index)
{
    IItemsModel* const model = m_List ? m_List->GetViewer().GetModel() : nullptr;
    if (model && index >= 0 && index < model->GetItemCount())
        SetCaption(model->GetItemCaption(index));
}

void CComboBoxButton::ProcessClosePopup(int index)
{
    CAliveGuard const alive(this);
    vexel_ptr<IPopup> const popup = m_DropPopup.m_Popup;
    if (popup)
        popup->Close(index);
    if (alive)
        UpdateCaption(index);
}

}  // namespace vexel
