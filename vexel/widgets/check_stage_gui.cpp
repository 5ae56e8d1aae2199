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

// The run that is under way: no slot has begun another one, nor deleted the stage.
class CCheckStageGui::CThisRun
{
public:
    explicit CThisRun(CCheckStageGui& stage) : m_Stage(&stage), m_Number(stage.m_Run) {}

    bool operator()() const { return m_Stage && m_Stage->m_Run == m_Number; }

private:
    CAlivePtr<CCheckStageGui> const m_Stage;
    unsigned int const m_Number;
};

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
    ++m_Run;
    CThisRun const isLast(*this);
    m_Notify = notify;
    bool failed = false;
    DoCheck(failed);
    if (!isLast())
        return;
    if (failed && !(m_Title.empty() && m_Text.empty()) && m_Parent)
        return ShowBox();
    if (m_Box)  // of the last run: nobody waits for an answer any more
    {
        RunTimer(false);
        DropBox();
    }
    if (isLast())
        DoComplete(!failed);
}

void CCheckStageGui::ShowBox()
{
    CThisRun const isLast(*this);
    DropBox();
    if (!isLast())
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
    CThisRun const isLast(*this);
    if (m_Parent)
        m_Parent->SetFocus(true);
    if (isLast())
        OnComplete(ok);
    if (isLast() && m_Notify)
        m_Notify->Complete(ok);
}

void CCheckStageGui::ProcessResult(CMessageBox* pressed, int value)
{
    CThisRun const isLast(*this);
    CAlivePtr<CMessageBox> const box(pressed);
    RunTimer(false);
    bool failed = true;
    if (m_RecheckOnButton || m_Timer)
        DoCheck(failed);
    if (!isLast())
        return;
    m_Result(this, value);
    if (!isLast())
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
    if (isLast())
        DoComplete(accepted);
}

void CCheckStageGui::OnTimer(CTimerEvent*)
{
    CThisRun const isLast(*this);
    bool failed = true;
    DoCheck(failed);
    if (isLast() && !failed)
        Pass();
}

void CCheckStageGui::Pass()
{
    CThisRun const isLast(*this);
    CAlivePtr<CMessageBox> const box(m_Box.get());
    bool const waits = box && box->IsVisible() && box->IsButtonsVisible();
    if (box)
        box->SetVisible(false);
    if (isLast() && waits && m_Notify)
        DoComplete(true);
    if (isLast())
        RunTimer(false);
}

}  // namespace vexel
