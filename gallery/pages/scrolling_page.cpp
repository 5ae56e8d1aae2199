#include "gallery/pages/scrolling_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/button.h"
#include "vexel/core/dpi.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/scroll/scroller.h"

namespace gallery
{

namespace
{

constexpr int s_Rows = 60;
constexpr int s_Columns = 14;
int const g_Colors[] = {21, 23, 24, 25, 26, 27};

// A tree of many elements: rows of panels, each row ended by a button.
CVisualElement* BuildForest(CVisualElement* parent)
{
    auto* const forest = new CPanel(parent, {s_Columns * 84 + 10, s_Rows * 32}, alNone);
    for (int row = 0; row < s_Rows; ++row)
    {
        auto* const line = new CVisualElement(forest, {0, 31}, alTop);
        auto* const button = new CButton(line, {78, 0}, alLeft);
        button->SetCaption("Button " + std::to_string(row + 1));
        for (int column = 1; column < s_Columns; ++column)
        {
            auto* const panel = new CPanel(line, {83, 0}, alLeft);
            panel->SetBkColor(color_table[g_Colors[(row + column) % 6]]);
            panel->SetFgColor(color_table[1]);
            panel->SetText(std::to_string(row + 1) + " / " + std::to_string(column + 1));
            panel->SetFrame(true);
        }
    }
    return forest;
}

CVisualElement* BuildTools(CVisualElement* parent)
{
    auto* const tools = new CPanel(parent, {0, 24 * 30}, alNone);
    for (int i = 0; i < 24; ++i)
    {
        auto* const button = new CButton(tools, {0, 29}, alTop);
        button->SetCaption("Tool " + std::to_string(i + 1));
    }
    return tools;
}

}  // namespace

void CScrollingPage::Build(CVisualElement* parent)
{
    auto* const left = new CVisualElement(parent, {130, 0}, alLeft);
    new CLabel(left, {0, 40}, alTop, "A scroller");
    auto* const scroller = new CScroller(left, {0, 0}, alClient);
    scroller->SetScrolled(BuildTools(nullptr));
    new CPanel(parent, {6, 0}, alLeft);

    auto* const right = new CVisualElement(parent, {0, 0}, alClient);
    new CLabel(right, {0, 40}, alTop,
               "A scroll container over " + std::to_string(s_Rows * s_Columns) +
                   " elements. Tab through the buttons: the one with the focus comes into view.");
    auto* const container = new CScrollContainer(right, {0, 0}, alClient);
    container->SetScrolled(BuildForest(nullptr));
    container->GetCentralPart().SetSteps(16, 16);
    ReportMouse(container->GetScrolled(), "forest");
    Report(container->GetVertElement().m_SigScroll, "vertical");
    Report(container->GetHorzElement().m_SigScroll, "horizontal");
    Report(scroller->GetTopButton().m_Clicked, "scroller.up");
    Report(scroller->GetBottomButton().m_Clicked, "scroller.down");
}

}  // namespace gallery
