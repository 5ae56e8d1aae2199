#include "gallery/pages/notebook_page.h"

#include "gallery/frame/log.h"
#include "gallery/frame/panel.h"
#include "vexel/controls/button.h"
#include "vexel/widgets/notebook.h"

namespace gallery
{

CButton* CNotebookPage::AddButton(CVisualElement* row, std::string const& caption)
{
    auto* const button = new CButton(row, {90, 24}, alLeft);
    button->SetCaption(caption);
    new CPanel(row, {8, 0}, alLeft);
    return button;
}

// Without a parent at first: it comes into the notebook when it is complete.
CVisualElement* CNotebookPage::MakePage()
{
    static ISysPalette::SysColor const colors[] = {ISysPalette::scWindow, ISysPalette::scTooltip,
                                                   ISysPalette::scHalfLight};
    auto* const page = new CPanel(nullptr, {0, 0}, alClient);
    page->SetBkColor(colors[m_Made % 3]);
    page->SetFrame(true);
    page->SetText("Page " + std::string(1, static_cast<char>('A' + m_Made++ % 26)));
    auto* const foot = new CPanel(page, {0, 40}, alBottom);
    foot->SetText("What stands on a page comes and goes with it");
    auto* const button = new CButton(page, {120, 0}, alRight);
    button->SetCaption("On this page");
    Report(button->m_Clicked, "page.clicked");
    return page;
}

void CNotebookPage::Build(CVisualElement* parent)
{
    auto* const row = new CPanel(parent, {0, 26}, alTop);
    AddButton(row, "Back")->m_Clicked.connect(this, &CNotebookPage::Back);
    AddButton(row, "Forth")->m_Clicked.connect(this, &CNotebookPage::Forth);
    AddButton(row, "Add")->m_Clicked.connect(this, &CNotebookPage::Add);
    AddButton(row, "Remove")->m_Clicked.connect(this, &CNotebookPage::Remove);
    AddButton(row, "Replace")->m_Clicked.connect(this, &CNotebookPage::Replace);
    new CPanel(parent, {0, 10}, alTop);
    m_Notebook = new CNotebook(parent, {0, 200}, alTop);
    for (int i = 0; i < 3; ++i)
        MakePage()->ReParent(m_Notebook, true);
    new CPanel(parent, {0, 10}, alTop);
    new CLabel(parent, {0, 22}, alTop, "An empty notebook shows what stands behind it:");
    new CNotebook(parent, {0, 40}, alTop);
    new CPanel(parent, {0, 0}, alClient);
}

void CNotebookPage::Turn(int step)
{
    m_Notebook->SetPageIndex(m_Notebook->GetPageIndex() + step);
    Tell();
}

void CNotebookPage::Add(CButton*)
{
    MakePage()->ReParent(m_Notebook, true);
    Tell();
}

void CNotebookPage::Remove(CButton*)
{
    delete m_Notebook->RemovePage(m_Notebook->GetPageIndex());
    Tell();
}

void CNotebookPage::Replace(CButton*)
{
    if (m_Notebook->GetPage(m_Notebook->GetPageIndex()))
        delete m_Notebook->ReplacePage(m_Notebook->GetPageIndex(), MakePage());
    Tell();
}

void CNotebookPage::Tell()
{
    CLog::Get().Write("page " + std::to_string(m_Notebook->GetPageIndex()) + " of " +
                      std::to_string(m_Notebook->GetChildren()->GetCount()));
}

}  // namespace gallery
