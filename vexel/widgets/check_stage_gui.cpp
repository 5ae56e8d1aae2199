#include "vexel/widgets/check_stage_gui.h"

#include <utility>

namespace vexel
{

namespace
{

size<int> const g_BoxSize{10, 10};

// The parent's colour; one of the system's as such, so that it goes on following the desktop.
void TakeBkColor(CVisualElement& box, CVisualElement const& parent)
{
    box.SetBkColor(parent.GetBkSysColor());
    if (box.GetBkColor() != parent.GetBkColor())
        box.SetBkColor(parent.GetBkColor());
}

void TakeFgColor(CVisualElement& caption, CVisualElement const& parent)
{
    caption.SetFgColor(parent.GetFgSysColor());
    if (caption.GetFgColor() != parent.GetFgColor())
        caption.SetFgColor(parent.GetFgColor());
}

}  // namespace

CCheckStageGui::~CCheckStageGui()
{
    CAliveLink::Forget(this);
    SetTimer(nullptr);
    DropBox();
}

void CCheckStageGui::SetMessage(CMessageBox::ImageType image, std::string const& title, std::string const& text)
{
    m_ImageType = image;
    m_Title = title;
    m_Text = text;
}

void CCheckStageGui::SetButtons(unsigned int mask, CMessageBox::ButtonType accept)
{
    m_ButtonMask = mask;
    m_AcceptValue = accept;
}

void CCheckStageGui::SetWaitMessage(CMessageBox::ImageType image, std::string const& title, std::string const& text)
{
    m_WaitImageType = image;
    m_WaitTitle = title;
    m_WaitText = text;
}

void CCheckStageGui::SetTimer(vexel_ptr<ISysTimer> timer)
{
    if (timer == m_Timer)
        return;
    vexel_ptr<ISysTimer> const old = std::exchange(m_Timer, std::move(timer));
    if (old)
    {
        old->SetRunning(false);
        old->Unsubscribe(this, typeid(ITimerNotify), true);
    }
    if (m_Timer)
        m_Timer->Subscribe(this, typeid(ITimerNotify), true);
}

void CCheckStageGui::RunTimer(bool run)
{
    if (m_Timer)
        m_Timer->SetRunning(run);
}

void CCheckStageGui::DropBox()
{
    CAlivePtr<CMessageBox> const box(m_Box.get());
    m_Box.Watch(nullptr);
    if (box)
        box->ReParent(nullptr, true);  // its room is given away
    delete box.get();
}

void CCheckStageGui::DoCheck(bool& failed)
{
    m_Check(failed);
}

// The run ---------------------------------------------------------------------------------------------------------------------

void CCheckStageGui::Process(IStageNotify* notify)
{
    CAlivePtr<CCheckStageGui> const alive(this);
    m_Notify = notify;
    bool failed = false;
    DoCheck(failed);
    if (!alive)
        return;
    if (!failed)
        DoComplete(true);
    else if ((m_Title.empty() && m_Text.empty()) || !m_Parent)
        DoComplete(false);
    else
        ShowBox();
}

void CCheckStageGui::ShowBox()
{
    CAlivePtr<CCheckStageGui> const alive(this);
    DropBox();
    if (!alive)
        return;
    CAlivePtr<CMessageBox> const box(new CMessageBox(nullptr, g_BoxSize, alTop));
    m_Box.Watch(box.get());
    box->GetTitle().SetCaption(m_Title);
    box->GetText().SetCaption(m_Text);
    box->GetText().AdjustHeight(true);
    box->SetImageType(m_ImageType);
    int const pad = ToInt(box->GetSizeScale() * CMessageBox::GetBaseOffset());
    box->SetBottomPadSize(SubtractSaturated(pad, CMessageBox::GetTextSizeCorrection()));
    box->GetButtons().SetButtons(m_ButtonMask);
    TakeBkColor(*box.get(), *m_Parent);
    TakeFgColor(box->GetTitle(), *m_Parent);
    TakeFgColor(box->GetText(), *m_Parent);
    box->m_ButtonPressed.connect(this, &CCheckStageGui::ProcessResult);
    auto const isLast = [&] { return alive && m_Box.get() == box.get(); };  // no slot has begun another run
    m_BoxCreated(box.get());
    if (!isLast())
        return;
    if (!box || !m_Parent)  // nobody can answer
        return DoComplete(false);
    box->ReParent(m_Parent.get(), true);
    if (!isLast())
        return;
    if (CVisualElement* const first = box ? box->GetFirstTabElement() : nullptr)
        first->SetFocus(true);
    if (!isLast())
        return;
    RunTimer(true);
    if (m_ButtonMask == 0)
        DoComplete(true);
}

void CCheckStageGui::DoComplete(bool ok)
{
    CAlivePtr<CCheckStageGui> const alive(this);
    if (m_Parent)
        m_Parent->SetFocus(true);
    if (alive)
        OnComplete(ok);
    if (alive && m_Notify)
        m_Notify->Complete(ok);
}

void CCheckStageGui::ProcessResult(CMessageBox* pressed, int value)
{
    CAlivePtr<CCheckStageGui> const alive(this);
    CAlivePtr<CMessageBox> const box(pressed);
    RunTimer(false);
    bool failed = true;
    if (m_RecheckOnButton || m_Timer)
        DoCheck(failed);
    if (!alive)
        return;
    m_Result(this, value);
    if (!alive)
        return;
    bool const accepted = value == m_AcceptValue;
    if (box && accepted && failed && !(m_WaitTitle.empty() && m_WaitText.empty()))
    {
        box->KeepTextWidth();
        box->SetButtonsVisible(false);
        if (box)
            box->GetTitle().SetCaption(m_WaitTitle);
        if (box)
            box->GetText().SetCaption(m_WaitText);
        if (box)
            box->SetImageType(m_WaitImageType);
    }
    else if (box)
        box->SetVisible(false);
    if (alive)
        DoComplete(accepted);
}

void CCheckStageGui::OnTimer(CTimerEvent*)
{
    CAlivePtr<CCheckStageGui> const alive(this);
    bool failed = true;
    DoCheck(failed);
    if (alive && !failed)
        Pass();
}

void CCheckStageGui::Pass()
{
    CAlivePtr<CCheckStageGui> const alive(this);
    CAlivePtr<CMessageBox> const box(m_Box.get());
    bool const waits = box && box->IsVisible() && box->IsButtonsVisible();
    if (box)
        box->SetVisible(false);
    if (alive && waits && m_Notify)
        DoComplete(true);
    // The chain may have begun anew meanwhile, with another box.
    if (alive && m_Box.get() == box.get())
        RunTimer(false);
}

}  // namespace vexel
