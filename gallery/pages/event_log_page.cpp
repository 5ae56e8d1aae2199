#include "gallery/pages/event_log_page.h"

#include "gallery/frame/panel.h"
#include "gallery/frame/toggle.h"
#include "vexel/controls/button.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/widgets/event_log.h"

#include <cstdio>

namespace gallery
{

namespace
{

int const g_Many = 100000;

CButton* AddButton(CVisualElement* row, char const* caption)
{
    auto* const button = new CButton(row, {110, 0}, alLeft);
    button->SetCaption(caption);
    new CPanel(row, {8, 0}, alLeft);
    return button;
}

}  // namespace

std::string CEventLogPage::MakeLine(int number) const
{
    static char const* const deeds[] = {"connected", "read a block", "wrote a block", "waits", "checked a sum"};
    char text[80];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d  worker %d %s (%d)", number / 3600 % 24, number / 60 % 60,
                  number % 60, number % 7, deeds[number * 7 % 5], number);
    return text;
}

void CEventLogPage::Build(CVisualElement* parent)
{
    auto* const row = new CPanel(parent, {0, 26}, alTop);
    AddButton(row, "A line")->m_Clicked.connect(this, &CEventLogPage::AddLine);
    AddButton(row, "100,000 lines")->m_Clicked.connect(this, &CEventLogPage::AddMany);
    AddButton(row, "A box below")->m_Clicked.connect(this, &CEventLogPage::AddBox);
    CButton* const clear = AddButton(row, "Clear");
    clear->m_Clicked.connect(this, &CEventLogPage::Clear);
    Report(clear->m_Clicked, "clear.clicked");
    auto* const follow = new CToggle(row, {160, 0}, alLeft, "Follow the end");
    follow->SetOn(true);
    follow->m_SigToggled.connect(this, &CEventLogPage::FollowToggled);
    Report(follow->m_SigToggled, "follow");
    new CPanel(parent, {0, 10}, alTop);

    auto* const view = new CScrollContainer(parent, {0, 0}, alClient);
    view->GetCentralPart().SetFitMode(CScrollContainer::fmWidth);
    view->GetCentralPart().SetFillAroundChild(true);
    m_Log = new CEventLog(nullptr, {10, 10}, alNone);
    view->SetScrolled(m_Log);
    m_Log->SetBkColor(ISysPalette::scWindow);
    m_Log->SetAutoScroll(true);
    m_Log->GetTitledList().SetBkColor(ISysPalette::scWindow);
    m_Log->GetTitledList().GetTitle().SetCaption("What happened");
    m_Log->GetTitledList().GetImage().SetRasterPicture(CMessageBox::GetPicture(workbench::CMessageSetUp::ImageInfo));
    m_Log->GetText().SetCaption("Each line as it came");
    m_Log->GetText().SetTransparent(true);
    m_Log->GetList().SetBkColor(ISysPalette::scWindow);
    m_Lines.Append(40, [this](int number) { return MakeLine(number); });
    m_Log->SetModel(&m_Lines);
    Report(m_Log->GetList().m_SigItemClicked, "line.clicked");
}

void CEventLogPage::AddLine(CButton*)
{
    m_Lines.Append(MakeLine(m_Lines.GetItemCount()));
}

void CEventLogPage::AddMany(CButton*)
{
    m_Lines.Append(g_Many, [this](int number) { return MakeLine(number); });
}

void CEventLogPage::AddBox(CButton*)
{
    auto* const box = new CMessageBox(m_Log, {0, 10}, alBottom);
    box->SetImageType(workbench::CMessageSetUp::ImageWarning);
    box->GetTitle().SetCaption("A worker waits for long");
    box->GetText().SetCaption("Any element may stand in the log.");
    m_Log->MoveElementBack(&m_Log->GetTitledList());  // the last one is docked above the others
}

void CEventLogPage::Clear(CButton*)
{
    m_Log->Clear();
    m_Lines.Clear();
    m_Log->SetModel(&m_Lines);
}

void CEventLogPage::FollowToggled(CToggle*, bool on)
{
    m_Log->SetAutoScroll(on);
}

}  // namespace gallery
