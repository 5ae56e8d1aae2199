#include "gallery/frame/frame.h"

#include "gallery/frame/log.h"
#include "gallery/frame/sample_images.h"
#include "gallery/pages.h"

namespace gallery
{

void EnableAll(CVisualElement* element, bool enabled)
{
    element->SetEnabled(enabled);
    for (int i = 0; i < element->GetChildren()->GetCount(); ++i)
        EnableAll(element->GetChildren()->GetItem(i), enabled);
}

CFrame::CFrame(CBaseControl& control, SHooks hooks, SState const& state) : m_Control(control), m_Hooks(std::move(hooks))
{
    m_Control.SetImageList(&GetSampleImages());
    Build(state);
    BuildPage();
    CLog::Get().m_SigLine.connect(this, &CFrame::LineWritten);
}

// The elements go before the page that they report to, and what they still tell has no place to stand in.
CFrame::~CFrame()
{
    CLog::Get().m_SigLine.disconnect(this, &CFrame::LineWritten);
    m_Control.GetContent()->GetChildren()->Clear();
    m_Control.SetImageList(nullptr);
}

CFrame::SState CFrame::GetState() const
{
    return {m_List->GetCurrent(), m_Enable->IsOn(), m_Scale && m_Scale->IsOn(), m_Repaints && m_Repaints->IsOn()};
}

void CFrame::Build(SState const& state)
{
    CVisualElement* const root = m_Control.GetContent();
    std::vector<std::string> titles;
    for (SPage const& page : GetPages())
        titles.emplace_back(page.title);
    m_List = new CPageList(root, {210, 0}, alLeft, std::move(titles));
    m_List->SetCurrent(state.page);
    m_List->m_SigChosen.connect(this, &CFrame::PageChosen);

    m_Title = new CLabel(root, {0, 34}, alTop, "");
    font big;
    big.style = font::fsBold;
    big.factor = 1.5;
    m_Title->SetFont(big);
    m_Sentence = new CLabel(root, {0, 22}, alTop, "");

    auto* const bar = new CPanel(root, {0, 30}, alTop);
    m_Enable = new CToggle(bar, {120, 0}, alLeft, "Enabled");
    m_Enable->SetOn(state.enabled);
    m_Enable->m_SigToggled.connect(this, &CFrame::EnableToggled);
    if (m_Hooks.setScale)
    {
        m_Scale = new CToggle(bar, {150, 0}, alLeft, "Twice the size");
        m_Scale->SetOn(state.twice);
        m_Scale->m_SigToggled.connect(this, &CFrame::ScaleToggled);
    }
    if (m_Hooks.setShowRepaints)
    {
        m_Repaints = new CToggle(bar, {170, 0}, alLeft, "Flash repaints");
        m_Repaints->SetOn(state.repaints);
        m_Repaints->m_SigToggled.connect(this, &CFrame::RepaintsToggled);
    }

    m_Line = new CLabel(root, {0, 24}, alBottom, "");
    m_Line->SetBkColor(ISysPalette::scWindow);
    m_Line->SetFgColor(ISysPalette::scWindowText);
    m_Area = new CPanel(root, {0, 0}, alClient);
}

void CFrame::SetPage(int index)
{
    m_List->SetCurrent(index);
}

void CFrame::BuildPage()
{
    m_Area->GetChildren()->Clear();
    m_Page.reset();
    SPage const& page = GetPages()[static_cast<std::size_t>(m_List->GetCurrent())];
    m_Title->SetText(page.title);
    m_Sentence->SetText(page.sentence);
    m_Page = page.make();
    m_Page->Build(m_Area);
    if (!m_Enable->IsOn())
        EnableToggled(m_Enable, false);
    m_Control.Rearrange();
}

void CFrame::PageChosen(CPageList*, int)
{
    BuildPage();
}

void CFrame::EnableToggled(CToggle*, bool on)
{
    for (int i = 0; i < m_Area->GetChildren()->GetCount(); ++i)
        EnableAll(m_Area->GetChildren()->GetItem(i), on);
}

// Sizes are scaled when elements are made, so the hook makes the frame anew; later, since this is the switch's signal.
void CFrame::ScaleToggled(CToggle*, bool on)
{
    m_Hooks.setScale(on ? 2.0 : 1.0);
}

void CFrame::RepaintsToggled(CToggle*, bool on)
{
    m_Hooks.setShowRepaints(on);
}

void CFrame::LineWritten(std::string const& line)
{
    m_Line->SetText(line);
}

}  // namespace gallery
