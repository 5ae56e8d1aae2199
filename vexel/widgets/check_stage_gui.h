#pragma once

#include "vexel/core/element_ptr.h"
#include "vexel/platform/system.h"
#include "vexel/signals/notify.h"
#include "vexel/widgets/check_stages.h"
#include "vexel/widgets/message_box.h"

#include <string>

namespace vexel
{

/// A stage that checks a condition and, when that fails, docks a message box into an element and waits for a button, or
/// for the condition to clear by itself:
///
///     stage.m_Check.connect(this, &CStart::CheckDisk);  // sets its bool where the check fails
///     stage.SetParent(panel);
///     stage.SetMessage(warningPicture, "Disk almost full", "Free some space, or go on with less.");
///     stage.SetButtons(goOnButton | quitButton, goOnButton);
///
/// It makes one box at a time, which the next run takes away, and takes it along when it dies. A run that begins in the
/// middle of another one takes over: the other ends without a word. All belongs to the GUI thread.
class VEXEL_API CCheckStageGui : public ICheckStage, public subscriber_base_t, public CTimerNotify
{
public:
    CCheckStageGui() = default;
    ~CCheckStageGui() override;

    // Signals: a slot may delete the stage, the box and their parents -----------------------------------------------------------
    /// Whether the check fails: false at the first check, true at later ones.
    signal_t<bool&> m_Check;
    signal_t<CCheckStageGui*, int> m_Result;  ///< The bit of the button that was pressed.
    signal_t<CMessageBox*> m_BoxCreated;      ///< The box is ready and not docked yet.

    // What it shows: counts from the next run ------------------------------------------------------------------------------------
    CVisualElement* GetParent() const { return m_Parent.get(); }
    /// Where the box is docked, at the top; it gets the focus back at the end. Null: a check that fails ends the chain.
    void SetParent(CVisualElement* parent) { m_Parent.Watch(parent); }
    void SetMessage(CMessageBox::ImageType image, std::string const& title, std::string const& text);
    CMessageBox::ImageType GetImageType() const { return m_ImageType; }
    std::string const& GetTitle() const { return m_Title; }
    std::string const& GetText() const { return m_Text; }
    /// Bits as of CButtonSet::SetButtons; the one that passes the stage. Without buttons the message stays and the stage
    /// passes at once.
    void SetButtons(unsigned int mask, CMessageBox::ButtonType accept);
    unsigned int GetButtonMask() const { return m_ButtonMask; }
    CMessageBox::ButtonType GetAcceptValue() const { return m_AcceptValue; }
    /// What the box shows on, without buttons, where it was accepted although the check still fails. Both texts empty: it
    /// goes away.
    void SetWaitMessage(CMessageBox::ImageType image, std::string const& title, std::string const& text);
    CMessageBox::ImageType GetWaitImageType() const { return m_WaitImageType; }
    std::string const& GetWaitTitle() const { return m_WaitTitle; }
    std::string const& GetWaitText() const { return m_WaitText; }

    // When it checks again -------------------------------------------------------------------------------------------------------
    bool IsRecheckOnButton() const { return m_RecheckOnButton; }
    void SetRecheckOnButton(bool on) { m_RecheckOnButton = on; }
    ISysTimer* GetTimer() const { return m_Timer.get(); }
    /// Its ticks check again while the box waits for a button: where the check passes, the box goes and the stage is passed.
    /// Null: none.
    void SetTimer(vexel_ptr<ISysTimer> timer);

    CMessageBox* GetBox() const
    {
        return m_Box.get();
    }  ///< Of the last run; null: it needed none, or it has been deleted.
    IStageNotify* GetNotify() const { return m_Notify; }

public:  // Overridable; the first is from ICheckStage, the last from CTimerNotify
    void Process(IStageNotify* notify) override;  ///< `notify` must live until it is told.
    virtual void DoCheck(bool& failed);           ///< Fires m_Check.
    virtual void OnComplete(bool) {}              ///< Before the chain is told.
    void OnTimer(CTimerEvent* event) override;

private:
    class CThisRun;

    void ShowBox();
    void DoComplete(bool ok);
    void ProcessResult(CMessageBox* box, int value);
    void Pass();
    void DropBox();
    void RunTimer(bool run);

    CElementPtr<> m_Parent;
    IStageNotify* m_Notify = nullptr;
    CMessageBox::ImageType m_ImageType = 0;
    std::string m_Title;
    std::string m_Text;
    unsigned int m_ButtonMask = 0;
    CMessageBox::ButtonType m_AcceptValue = 0;
    CMessageBox::ImageType m_WaitImageType = 0;
    std::string m_WaitTitle;
    std::string m_WaitText;
    bool m_RecheckOnButton = false;
    CElementPtr<CMessageBox> m_Box;
    unsigned int m_Run = 0;  // the last one's number
    vexel_ptr<ISysTimer> m_Timer;
};

}  // namespace vexel
