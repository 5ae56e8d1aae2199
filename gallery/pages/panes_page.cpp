#include "gallery/pages/panes_page.h"

#include "gallery/frame/panel.h"
#include "gallery/frame/toggle.h"
#include "vexel/controls/titled_pane.h"
#include "vexel/layout/pane.h"

namespace gallery
{

namespace
{

/// Panes draw nothing but their frame, so something fills the inside.
void Fill(CPane* pane)
{
    auto* const inside = new CPanel(pane, {0, 0}, alClient);
    for (char const* text : {"first", "second", "third"})
        (new CToggle(inside, {0, 32}, alTop, text))->SetCanHaveFocus(true);
}

CTitledPane* AddTitled(CVisualElement* parent, char const* title, Alignment edge)
{
    auto* const pane = new CTitledPane(parent, {170, 0}, alLeft);
    pane->GetTitle().GetText().SetCaption(title);
    pane->SetTitleAlignment(edge);
    Fill(pane);
    new CPanel(parent, {12, 0}, alLeft);
    return pane;
}

}  // namespace

void CPanesPage::Build(CVisualElement* parent)
{
    auto* const plain = new CPane(parent, {130, 0}, alLeft);
    Fill(plain);
    new CPanel(parent, {12, 0}, alLeft);
    CTitledPane* const top = AddTitled(parent, "Title at the top", alTop);
    top->GetTitle().SetHelpId("panes");
    CTitledPane* const left = AddTitled(parent, "Title at the left", alLeft);
    CTitledPane* const bottom = AddTitled(parent, "Title at the bottom", alBottom);
    Report(plain->m_SigChildGetFocus, "plain.childGetFocus");
    Report(top->m_SigChildGetFocus, "top.childGetFocus");
    Report(top->GetTitle().m_SigButtonDown, "top.title.buttonDown");
    Report(left->m_SigChildGetFocus, "left.childGetFocus");
    Report(bottom->m_SigChildGetFocus, "bottom.childGetFocus");
}

}  // namespace gallery
