#include "gallery/pages/strips_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/control_caption.h"

namespace gallery
{

namespace
{

Alignment const g_Edges[] = {alTop, alBottom, alLeft, alRight};
char const* const g_Names[] = {"top", "bottom", "left", "right"};

CPanel* AddPane(CVisualElement* parent, std::string const& text)
{
    auto* const pane = new CPanel(parent, {0, 0}, alClient);
    pane->SetBkColor(ISysPalette::scWindow);
    pane->SetFgColor(ISysPalette::scWindowText);
    pane->SetText(text);
    return pane;
}

}  // namespace

void CStripsPage::Build(CVisualElement* parent)
{
    auto* const first = new CElementCaption(parent, {20, 20}, alTop);
    first->GetText().SetCaption("A title with a help topic");
    first->SetHelpId("titles");
    auto* const active = new CElementCaption(parent, {20, 20}, alTop);
    active->GetText().SetCaption("An active title");
    active->SetHelpId("active titles");
    active->SetActive(true);
    new CPanel(parent, {0, 6}, alTop);
    ReportMouse(&first->GetHelpButton(), "help");
    ReportMouse(&first->GetText(), "title");

    auto* const titles = new CPanel(parent, {380, 0}, alLeft);
    auto* const controls = new CPanel(parent, {380, 0}, alClient);
    for (int i = 0; i < 4; ++i)
    {
        auto* const title = new CElementCaption(titles, {22, 22}, g_Edges[i]);
        title->GetText().SetCaption(std::string("Title, ") + g_Names[i]);
        auto* const strip = new CControlCaption(controls, {22, 22}, g_Edges[i]);
        strip->GetText().SetCaption(std::string("Click me, ") + g_Names[i]);
        Report(strip->m_Clicked, std::string(g_Names[i]) + ".clicked");
    }
    ReportMouse(AddPane(titles, "titles on four edges"), "left pane");
    ReportMouse(AddPane(controls, "strips that are clicked"), "right pane");
}

}  // namespace gallery
