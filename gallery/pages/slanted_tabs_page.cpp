#include "gallery/pages/slanted_tabs_page.h"

#include "gallery/frame/panel.h"
#include "vexel/widgets/notebook.h"
#include "vexel/widgets/tabs.h"

namespace gallery
{

namespace
{

int const g_ForbiddenTab = 3;

}  // namespace

CSlantedTabsPage::CSlantedTabsPage()
    : m_Seasons({"Spring", "Summer", "Autumn", "Winter"}),
      m_Months({"January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
                "November", "December"})
{}

CTabs* CSlantedTabsPage::AddTabs(CVisualElement* parent, std::string const& name, CTexts& texts, int height)
{
    auto* const tabs = new CTabs(parent, {0, height}, alTop);
    tabs->SetModel(&texts);
    Report(tabs->m_TabChanging, name + ".changing");
    Report(tabs->m_TabChanged, name + ".changed");
    return tabs;
}

void CSlantedTabsPage::Build(CVisualElement* parent)
{
    new CLabel(parent, {0, 22}, alTop, "Below a stack of pages, which they turn");
    auto* const book = new CPanel(parent, {0, 130}, alTop);
    m_Notebook = new CNotebook(book, {0, 100}, alTop);
    int page = 0;
    for (char const* const text : {"All is green", "All is yellow", "All is red", "All is white"})
    {
        static ISysPalette::SysColor const colors[] = {ISysPalette::scWindow, ISysPalette::scHalfLight,
                                                       ISysPalette::scTooltip, ISysPalette::scWindow};
        auto* const panel = new CPanel(nullptr, {0, 0}, alClient);
        panel->SetText(text);
        panel->SetFrame(true);
        panel->SetBkColor(colors[page++]);
        panel->ReParent(m_Notebook, true);
    }
    CTabs* const seasons = AddTabs(book, "seasons", m_Seasons, 24);
    seasons->m_TabChanged.connect(this, &CSlantedTabsPage::ShowPage);

    new CLabel(parent, {0, 22}, alTop, "More than fit: the sliver at the left leads back");
    CTabs* const months = AddTabs(parent, "months", m_Months, 24);
    months->SetCurrentTab(6);
    months->SetFirstVisibleTab(4);

    new CLabel(parent, {0, 22}, alTop, "Higher ones slant further; colours of one's own");
    CTabs* const high = AddTabs(parent, "high", m_Months, 48);
    high->SetActiveColor(color_table[25]);
    high->SetInactiveColor(color_table[26]);
    high->SetBkColor(ISysPalette::scFace);
    high->SetFgColor(color_table[1]);
    high->SetCurrentTab(1);

    new CLabel(parent, {0, 22}, alTop, "Winter is forbidden here");
    CTabs* const vetoed = AddTabs(parent, "vetoed", m_Seasons, 24);
    vetoed->m_TabChanging.connect(this, &CSlantedTabsPage::Forbid);

    new CLabel(parent, {0, 22}, alTop, "Without a model");
    new CTabs(parent, {0, 24}, alTop);
    new CPanel(parent, {0, 0}, alClient);
}

void CSlantedTabsPage::Forbid(CVisualElement*, int, int tab, bool* allowed)
{
    if (tab == g_ForbiddenTab)
        *allowed = false;
}

void CSlantedTabsPage::ShowPage(CVisualElement*, int tab)
{
    m_Notebook->SetPageIndex(tab);
}

}  // namespace gallery
