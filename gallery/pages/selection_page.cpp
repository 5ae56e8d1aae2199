#include "gallery/pages/selection_page.h"

#include "gallery/frame/panel.h"
#include "vexel/scroll/scroll_box.h"

namespace gallery
{

CSelectionPage::CCounted::CCounted(CVisualElement* parent, CEventHandlerBase::SelectionType type,
                                   std::string const& caption)
{
    auto* const pane = new CVisualElement(parent, {240, 100}, alLeft);
    new CPanel(parent, {4, 0}, alLeft);
    new CLabel(pane, {0, 22}, alTop, caption);
    m_Count = new CPanel(pane, {0, 24}, alBottom);
    m_Count->SetTextFlags(IPainter::AlignLeft | IPainter::AlignVCenter);
    auto* const box = new CScrollBox(pane, {0, 0}, alClient);
    m_List = new CTextRows<IDiscreteItemViewModel>(
        box, {0, 0}, alClient, [](int row, std::string& text) { text = "Row " + std::to_string(row + 1); });
    m_List->GetRowViewModel()->SetCount(100000000);
    m_List->SetSelectionType(type);
    box->ConnectElement(m_List, CScrollBox::ctVertical, true);
    m_List->GetRowSelectionModel()->m_SigChanged.connect(this, &CCounted::Changed);
    Changed();
}

void CSelectionPage::CCounted::Changed()
{
    ISelectionModel const* const model = m_List->GetRowSelectionModel();
    std::string const current = model->GetCurrent() < 0 ? "none" : std::to_string(model->GetCurrent() + 1);
    m_Count->SetText(std::to_string(model->GetSelectedCount()) + " selected, current: " + current);
}

void CSelectionPage::Build(CVisualElement* parent)
{
    m_Lists.emplace_back(parent, CEventHandlerBase::stOneItem, "One row");
    m_Lists.emplace_back(parent, CEventHandlerBase::stFree, "Several rows, by Shift and Control");
    m_Lists.emplace_back(parent, CEventHandlerBase::stNone, "No selection, only a current row");
    char const* const names[] = {"one", "several", "none"};
    for (std::size_t i = 0; i < m_Lists.size(); ++i)
        Report(m_Lists[i].GetList()->GetRowSelectionModel()->m_SigSelectionChanged,
               std::string(names[i]) + ".selected");
}

}  // namespace gallery
