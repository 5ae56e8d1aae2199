#include "gallery/pages/zoomer_roll_page.h"

#include "gallery/frame/panel.h"
#include "vexel/charts/roll.h"
#include "vexel/charts/zoomer.h"

#include <cmath>

namespace gallery
{

namespace
{

char const* const g_EdgeNames[] = {"", "left", "right", "top", "bottom"};

void AddRoll(CVisualElement* parent, Alignment edge, size<int> const& extent)
{
    auto* const roll = new CRoll(parent, extent, edge);
    roll->SetShape(CBevel::ShapeBox);
    roll->SetStyle(CBevel::BorderRaised);
    roll->SetContentOffset({3, 3, 3, 3});
    roll->GetCaption().GetText().SetCaption(std::string("Roll me up, ") + g_EdgeNames[edge]);
    auto* const content = new CPanel(roll, {0, 0}, alClient);
    content->SetBkColor(ISysPalette::scWindow);
    content->SetFgColor(ISysPalette::scWindowText);
    content->SetText("content");
    if (edge == alBottom || edge == alRight)
        roll->Expand(&roll->GetCaption());
}

}  // namespace

void CZoomerRollPage::Build(CVisualElement* parent)
{
    auto* const strip = new CPanel(parent, {0, 18}, alTop);
    auto* const zoomer = new CZoomer(strip, {180, 18}, alLeft);
    new CPanel(strip, {20, 0}, alLeft);
    auto* const disabled = new CZoomer(strip, {120, 18}, alLeft);
    disabled->SetSliderPos(0.5);
    disabled->SetEnabled(false);
    new CPanel(strip, {20, 0}, alLeft);
    auto* const full = new CZoomer(strip, {80, 18}, alLeft);
    full->SetSliderPos(1.0);
    new CPanel(parent, {0, 8}, alTop);

    AddRoll(parent, alTop, {0, 70});
    AddRoll(parent, alBottom, {0, 70});
    AddRoll(parent, alLeft, {120, 0});
    AddRoll(parent, alRight, {120, 0});
    m_Shown = new CPanel(parent, {0, 0}, alClient);
    m_Shown->SetBkColor(ISysPalette::scWindow);
    m_Shown->SetFgColor(ISysPalette::scWindowText);
    m_Shown->SetFrame(true);
    Zoom(0);

    zoomer->m_SigPosChanging.connect(this, &CZoomerRollPage::Zoom);
    zoomer->m_SigPosChanged.connect(this, &CZoomerRollPage::Zoom);
    Report(zoomer->m_SigPosChanging, "zoomer.changing");
    Report(zoomer->m_SigPosChanged, "zoomer.changed");
    Report(full->m_SigPosChanged, "small.changed");
}

void CZoomerRollPage::Zoom(double position)
{
    font larger = m_Shown->GetFont();
    larger.size = 8 + static_cast<int>(std::lround(24 * position));
    m_Shown->SetFont(larger);
    m_Shown->SetText("Zoom " + std::to_string(std::lround(100 + 300 * position)) + "%");
}

}  // namespace gallery
