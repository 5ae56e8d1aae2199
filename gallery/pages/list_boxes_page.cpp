#include "gallery/pages/list_boxes_page.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/system.h"

#include <limits>

namespace gallery
{

namespace
{

CVisualElement* AddColumn(CVisualElement* parent, std::string const& caption)
{
    auto* const pane = new CPanel(parent, {190, 0}, alLeft);
    new CLabel(pane, {0, 30}, alTop, caption);
    new CPanel(parent, {6, 0}, alLeft);
    return pane;
}

}  // namespace

int CNumberedLines::GetItemCount() const
{
    return std::numeric_limits<int>::max();
}

std::string CNumberedLines::GetItemCaption(int index) const
{
    return "Line " + std::to_string(static_cast<long long>(index) + 1);
}

void CShareDrawing::DrawItem(IPainter* painter, int item, int, rectangle<double> const& rect, bool*)
{
    double const share = (item % 100 * 37 % 100 + 1) / 100.0;
    painter->SetBrush({_color::FromRgb(140, 178, 214), brush::bsSolid});
    painter->FillRect(rect.left + 1, rect.top + 2, rect.left + 1 + (rect.right - rect.left - 2) * share,
                      rect.bottom - 2);
}

void CListBoxesPage::Build(CVisualElement* parent)
{
    auto* const top = new CPanel(parent, {0, 160}, alTop);
    CVisualElement* pane = AddColumn(top, "A plain list");
    auto* const plain = new CList(pane, {0, 0}, alTop);
    plain->SetModel(&m_Seasons);
    plain->RecalcSize();
    Report(plain->m_SigItemClicked, "plain.clicked");
    pane = AddColumn(top, "Lines like links");
    auto* const links = new CList(pane, {0, 0}, alTop);
    links->SetHotTrack(true);
    links->SetModel(&m_Seasons);
    links->RecalcSize();
    Report(links->m_SigItemClicked, "links.clicked");
    pane = AddColumn(top, "With images");
    auto* const pictured = new CPicturedList(pane, {0, 0}, alTop);
    pictured->SetMinLineHeight(ToDevicePixels(18));
    pictured->SetModel(&m_Shapes);
    pictured->RecalcSize();
    Report(pictured->m_SigItemClicked, "pictured.clicked");

    auto* const bottom = new CPanel(parent, {0, 0}, alClient);
    pane = AddColumn(bottom, "2,147,483,647 lines");
    auto* const numbered = new CListBox(pane, {0, 0}, alClient);
    numbered->GetViewer().SetModel(&m_Numbered);
    numbered->GetViewer().SetCurrentItem(2);
    Report(numbered->GetViewer().m_SigItemActivated, "numbered.activated");
    pane = AddColumn(bottom, "Scrolls to the side");
    auto* const wide = new CListBox(pane, {0, 0}, alClient);
    wide->GetViewer().SetModel(&m_Long);
    wide->GetViewer().SetLineWidth(ToDevicePixels(460));
    Report(wide->GetViewer().m_SigItemActivated, "wide.activated");
    pane = AddColumn(bottom, "Lines drawn by the page");
    auto* const drawn = new CListBox(pane, {0, 0}, alClient);
    drawn->GetViewer().SetModel(&m_Numbered);
    drawn->GetViewer().SetItemDrawing(&m_Shares);
    Report(drawn->GetViewer().m_SigItemActivated, "drawn.activated");
    pane = AddColumn(bottom, "Without a model");
    new CListBox(pane, {0, 120}, alTop);
}

}  // namespace gallery
