#include "gallery/pages/tooltip_page.h"

#include "gallery/frame/panel.h"
#include "vexel/core/dpi.h"
#include "vexel/platform/painter.h"

namespace gallery
{

namespace
{

/// Tells the square that the pointer is in; the tip changes with it.
class CSquares : public CPanel
{
public:
    using CPanel::CPanel;

protected:
    bool HandleOnTooltip(CTooltipEvent* event) override
    {
        int side = 40;
        ApplyDPIScale(side);
        int const column = event->m_X / side;
        int const row = event->m_Y / side;
        event->m_Text = "column " + std::to_string(column + 1) + ", row " + std::to_string(row + 1);
        event->m_HotRect = {column * side, row * side, (column + 1) * side - 1, (row + 1) * side - 1};
        return true;
    }
    void DrawContent(IPainter* painter) override
    {
        int side = 40;
        ApplyDPIScale(side);
        rectangle<int> const bounds = GetBounds();
        for (int y = 0; y <= bounds.bottom; y += side)
        {
            for (int x = 0; x <= bounds.right; x += side)
            {
                brush fill;
                fill.color = color_table[(x / side + y / side) % 2 ? 21 : 9];
                painter->SetBrush(fill);
                painter->FillRect(x, y, std::min(x + side - 1, bounds.right), std::min(y + side - 1, bounds.bottom));
            }
        }
    }
};

}  // namespace

void CTooltipPage::Build(CVisualElement* parent)
{
    auto* const plain = new CPanel(parent, {0, 60}, alTop);
    plain->SetText("a tip of one line");
    plain->SetFrame(true);
    plain->SetTooltip("This is the tip");
    auto* const lines = new CPanel(parent, {0, 60}, alTop);
    lines->SetText("a tip of several lines");
    lines->SetFrame(true);
    lines->SetTooltip("The first line\nthe second line\nand the third");
    lines->SetTooltipMultiline(true);
    auto* const inherited = new CPanel(lines, {160, 0}, alLeft);
    inherited->SetText("a child without a tip");
    inherited->SetFrame(true);

    // The menu is a panel that stands above the rest: the first child is hit first.
    auto* const ground = new CPanel(parent, {0, 0}, alClient);
    auto* const menu = new CPanel(ground, {0, 0}, alTop);
    menu->SetBkColor(ISysPalette::scHighlight);
    menu->SetFgColor(ISysPalette::scHighlightText);
    menu->SetText("");
    m_Menu = menu;
    auto* const squares = new CSquares(ground, {0, 0}, alClient);

    int id = 0;
    for (CPanel* const element : {plain, lines, static_cast<CPanel*>(squares)})
    {
        static char const* const names[] = {"plain", "lines", "squares"};
        ReportMouse(element, names[id]);
        Report(element->m_SigTooltip, std::string(names[id]) + ".tooltip");
        Report(element->m_SigContextMenu, std::string(names[id]) + ".menu");
        element->SetId(static_cast<unsigned long>(++id));
        element->SetContextMenu(this);
    }
}

void CTooltipPage::Show(int x, int y, CVisualElement* element)
{
    static_cast<CPanel*>(m_Menu)->SetText("Menu of panel " + std::to_string(element->GetId()) + " at " +
                                          std::to_string(x) + ", " + std::to_string(y));
    m_Menu->SetSize({0, 30}, true);
}

}  // namespace gallery
