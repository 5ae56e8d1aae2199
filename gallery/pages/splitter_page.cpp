#include "gallery/pages/splitter_page.h"

#include "gallery/frame/panel.h"
#include "vexel/widgets/splitter.h"

namespace gallery
{

namespace
{

CPanel* AddPane(CVisualElement* parent, size<int> const& extent, Alignment alignment, char const* text)
{
    auto* const pane = new CPanel(parent, extent, alignment);
    pane->SetBkColor(ISysPalette::scWindow);
    pane->SetFgColor(ISysPalette::scWindowText);
    pane->SetFrame(true);
    pane->SetText(text);
    return pane;
}

CSplitter* AddBar(CVisualElement* parent, Alignment edge, CVisualElement* first)
{
    auto* const bar = new CSplitter(parent, {5, 5}, edge);
    bar->SetElements(first, nullptr);
    return bar;
}

}  // namespace

void CSplitterPage::Build(CVisualElement* parent)
{
    CPanel* const left = AddPane(parent, {110, 0}, alLeft, "left");
    CSplitter* const live = AddBar(parent, alLeft, left);
    auto* const middle = new CVisualElement(parent, {0, 0}, alClient);
    live->SetElements(left, middle);

    CPanel* const right = AddPane(middle, {140, 0}, alRight, "moves at the end");
    CSplitter* const late = AddBar(middle, alRight, right);
    auto* const column = new CVisualElement(middle, {0, 0}, alClient);
    late->SetElements(right, column);
    late->SetLiveResize(false);
    late->SetShape(CBevel::ShapeBox);
    late->SetStyle(CBevel::BorderRaised);

    CPanel* const top = AddPane(column, {0, 70}, alTop, "at least 50 high");
    CSplitter* const lit = AddBar(column, alTop, top);
    auto* const lower = new CVisualElement(column, {0, 0}, alClient);
    lit->SetElements(top, lower);
    lit->SetMinSize(50);
    lit->SetHighlight(true);
    lit->SetBkColor(ISysPalette::scShadow);
    lit->SetFgColor(ISysPalette::scHighlight);

    CPanel* const bottom = AddPane(lower, {0, 70}, alBottom, "bottom");
    CSplitter* const refreshing = AddBar(lower, alBottom, bottom);
    refreshing->SetElements(bottom, AddPane(lower, {0, 0}, alClient, "the rest"));
    refreshing->SetRefreshWhileMoving(true);

    Report(live->m_SizeProposed, "live.sizeProposed");
    Report(live->m_Delta, "live.delta");
    Report(live->m_Moved, "live.moved");
    Report(live->m_Finished, "live.finished");
    Report(left->m_SigSize, "left.size");
    Report(late->m_Moved, "late.moved");
    Report(late->m_Finished, "late.finished");
    Report(lit->m_Moved, "lit.moved");
    Report(lit->m_Highlighted, "lit.highlighted");
    Report(refreshing->m_Moved, "refreshing.moved");
}

}  // namespace gallery
