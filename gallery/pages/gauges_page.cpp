#include "gallery/pages/gauges_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/button.h"
#include "vexel/widgets/gauge_box.h"

namespace gallery
{

namespace
{

CButton* AddButton(CVisualElement* parent, char const* text)
{
    auto* const button = new CButton(parent, {60, 24}, alLeft);
    button->SetCaption(text);
    new CPanel(parent, {8, 0}, alLeft);
    return button;
}

void AddSpace(CVisualElement* parent)
{
    new CPanel(parent, {0, 10}, alTop);
}

}  // namespace

CGauge* CGaugesPage::Adopt(CGauge& gauge, double value)
{
    gauge.SetMax(100);
    gauge.Increase(value);
    m_Gauges.push_back(&gauge);
    return &gauge;
}

void CGaugesPage::Build(CVisualElement* parent)
{
    auto* const buttons = new CPanel(parent, {0, 26}, alTop);
    CButton* const more = AddButton(buttons, "More");
    CButton* const less = AddButton(buttons, "Less");
    CButton* const again = AddButton(buttons, "Reset");
    more->m_Clicked.connect(this, &CGaugesPage::More);
    less->m_Clicked.connect(this, &CGaugesPage::Less);
    again->m_Clicked.connect(this, &CGaugesPage::Again);
    Report(more->m_Clicked, "more.clicked");
    Report(less->m_Clicked, "less.clicked");
    Report(again->m_Clicked, "reset.clicked");
    AddSpace(parent);

    for (double const value : {0.0, 40.0, 100.0})
    {
        Adopt(*new CGauge(parent, {0, 14}, alTop), value)->SetBkColor(ISysPalette::scWindow);
        AddSpace(parent);
    }
    CGauge* const coloured = Adopt(*new CGauge(parent, {0, 14}, alTop), 70);
    coloured->SetFgColor(color_table[4]);
    coloured->SetTransparent(true);
    AddSpace(parent);

    new CLabel(parent, {0, 22}, alTop, "Boxes: plain, with a button, no wider than 300, with a text");
    Adopt((new CGaugeBox(parent, {0, 22}, alTop))->GetGauge(), 25);
    AddSpace(parent);
    auto* const stopped = new CGaugeBox(parent, {0, 22}, alTop);
    Adopt(stopped->GetGauge(), 50);
    stopped->GetButton().SetCaption("Stop");
    Report(stopped->GetButton().m_Clicked, "stop.clicked");
    AddSpace(parent);
    auto* const narrow = new CGaugeBox(parent, {0, 22}, alTop);
    Adopt(narrow->GetGauge(), 75);
    narrow->SetMaxWidth(300);
    AddSpace(parent);
    auto* const copying = new CGaugeBoxEx(parent, {0, 0}, alTop);
    Adopt(copying->GetGauge(), 60);
    copying->GetButton().SetCaption("Cancel");
    copying->GetText().SetCaption("Copying 60 files");
    Report(copying->GetButton().m_Clicked, "cancel.clicked");
}

void CGaugesPage::Step(double step)
{
    for (CGauge* const gauge : m_Gauges)
        gauge->Increase(step);
}

void CGaugesPage::Again(CButton*)
{
    for (CGauge* const gauge : m_Gauges)
        gauge->Reset();
}

}  // namespace gallery
