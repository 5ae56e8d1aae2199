#pragma once

#include "vexel/export.h"
#include "vexel/platform/events.h"
#include "vexel/platform/memory/memory_node.h"
#include "vexel/platform/memory/memory_palette.h"
#include "vexel/platform/system.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vexelbase::memory
{

class CRunnerQueue;
class CTimerQueue;

/// A machine in memory: nothing in it happens by itself. Time passes in Advance, background work runs in RunBackground,
/// posted work in RunQueues, frames in CMemoryWindow::RunFrame, and the user's mouse and keyboard are operations of
/// this class. With the same calls it does the same things.
///
/// The constructor makes it the current system, the destructor puts the one before back. Objects it gave out may
/// outlive it; its timers never fire then.
class VEXEL_MEMORY_API CMemorySystem : public ISystem
{
public:
    CMemorySystem();
    ~CMemorySystem() override;
    CMemorySystem(CMemorySystem const&) = delete;
    CMemorySystem& operator=(CMemorySystem const&) = delete;

    /// Puts back what is not an object: time 0, scale 1, the pointer at (0, 0) with no button or key held, an empty
    /// clipboard, the first colours, scripted runners. Stops all timers and runners, drops focus, capture and what is
    /// posted.
    void Reset();

    // Time: milliseconds ------------------------------------------------------------------------------------------
    std::int64_t GetTime() const;
    /// Fires every timer that falls due on the way, at its own moment, in the order of these moments; of the same
    /// moment the one first that began to wait first. Exceptions of handlers are reported and go no further.
    void Advance(int milliseconds);
    std::vector<int> GetRunningPeriods() const;  ///< Of the running timers, in the order they fall due.

    // Background work ---------------------------------------------------------------------------------------------
    /// One round of each runner that is due now, in the order they were started, on this thread. Returns how many ran.
    int StepBackground();
    /// Rounds until no runner is due, at most `limit`. Returns how many ran.
    int RunBackground(int limit = 1000);
    int GetRunningRunners() const;
    /// Runners made from now on use threads of their own and real time.
    void UseRealThreads(bool real) { m_RealThreads = real; }

    // Queues ------------------------------------------------------------------------------------------------------
    /// Runs what is posted to all windows now, in the order of the windows. Returns how many runnables ran.
    int RunQueues();
    int GetPostedCount() const;

    // The machine -------------------------------------------------------------------------------------------------
    void SetScale(double scale);             ///< The default font follows in its pixels, not in its points.
    void SetMetric(int metric, int pixels);  ///< Both are 16 at first, at any scale.
    CMemoryPalette& GetMemoryPalette() { return m_Palette; }

    // The user's mouse: screen pixels -----------------------------------------------------------------------------
    void MovePointer(point<int> const& screen);  ///< No event where the position is the same.
    void PressButton(MouseButton button, bool doubled = false);
    void ReleaseButton(MouseButton button);
    void DropButton(MouseButton button);  ///< Comes up without an event.
    void TurnWheel(int notches);
    void RestPointer();  ///< The pointer has rested: OnHover where it is tracked.
    point<int> GetPointerPos() const { return m_PointerPos; }
    CMemoryNode* GetNodeUnderPointer();
    bool IsButtonHeld(MouseButton button) const;
    int GetKeyState() const;  ///< Buttons and keys held now, as events carry it.

    // The user's keyboard: goes to the node with the focus, or to `otherwise` while there is none -------------------
    void SetHeldKeys(int keys);  ///< ksShift, ksControl, ksAlt.
    /// Returns whether the key was dealt with. A Tab that was not moves the focus on. `passOn`: gets the event's
    /// pass-on flag; where it was cleared, the key's character is not to follow.
    bool KeyDown(int virtualKey, CMemoryNode* otherwise = nullptr, bool* passOn = nullptr);
    void KeyUp(int virtualKey, CMemoryNode* otherwise = nullptr);
    void Character(char byte, CMemoryNode* otherwise = nullptr);

    // Focus and capture -------------------------------------------------------------------------------------------
    CMemoryNode* GetFocusNode() const { return m_Focus; }
    void SetFocusNode(CMemoryNode* node);  ///< The old one is told first. Null: nobody has it.
    void FocusWhenShown(CMemoryNode* node) { m_FocusWhenShown = node; }  ///< Unless the focus is moved before.
    void TabFrom(CMemoryNode* node, bool forward);  ///< To the next node that takes the focus, in a ring.
    bool TabInTree(CMemoryNode& node, CKeyboardEvent& event);
    void TabInto(CMemoryNode& node, bool forward);
    CMemoryNode* GetCaptureNode() const { return m_Capture; }
    void SetCaptureNode(CMemoryNode* node);

    std::vector<CMemoryNode*> const& GetTopNodes() const { return m_TopNodes; }  ///< The last one is the uppermost.
    std::vector<CMemoryWindow*> const& GetWindows() const { return m_Windows; }  ///< In the order they were made.
    static constexpr size<int> ScreenSize{4096, 4096};

    // From ISystem ------------------------------------------------------------------------------------------------
    IPointer* GetPointer() override;
    IClipboard* GetClipboard() override;
    ISysPalette* GetPalette() override { return &m_Palette; }
    font GetDefaultFont() override;  ///< "Square", sans, size 8.
    int GetSystemMetric(int metric) override;
    double GetScale() override { return m_Scale; }
    rectangle<int> GetWorkArea(point<int> const& screen) override;  ///< The whole screen.
    vexel_ptr<ISysTimer> CreateTimer(int period, int option) override;
    vexel_ptr<IRasterPicture> CreateRasterPicture(size<int> const& pictureSize) override;
    vexel_ptr<IRasterPicture> CreateRasterPicture(XPMBuf const& buffer) override;
    vexel_ptr<IRunner> GetRunner() override;
    vexel_ptr<ILock> CreateLock() override;

private:
    friend class CMemoryNode;
    friend class CMemoryWindow;

    class CPointer : public IPointer
    {
    public:
        explicit CPointer(CMemorySystem& system) : m_System(system) {}
        point<int> GetPos() const override { return m_System.m_PointerPos; }

    private:
        CMemorySystem& m_System;
    };
    class CClipboard : public IClipboard
    {
    public:
        void SetText(std::string const& text) override { m_Text = text; }
        std::string GetText() const override { return m_Text; }

    private:
        std::string m_Text;
    };

    void NodeGone(CMemoryNode* node);
    void NodeHidden(CMemoryNode* node);
    void NodeShown(CMemoryNode* node);
    CMemoryNode* PointerTarget();
    void SettlePointer();
    void CloseOtherPopups(CMemoryNode* pressed);
    CMouseEvent MakeMouseEvent(CMemoryNode& node, MouseButton button) const;
    MouseButton GetHeldButton() const;

    ISystem* m_Before = nullptr;
    std::shared_ptr<CTimerQueue> m_Timers;
    std::shared_ptr<CRunnerQueue> m_Runners;
    bool m_RealThreads = false;
    double m_Scale = 1.0;
    int m_Metrics[2] = {16, 16};
    CMemoryPalette m_Palette;
    CPointer m_Pointer{*this};
    CClipboard m_Clipboard;

    std::vector<CMemoryNode*> m_TopNodes;
    std::vector<CMemoryWindow*> m_Windows;
    point<int> m_PointerPos;
    int m_Buttons = 0;               // KeyState bits
    int m_Keys = 0;                  // KeyState bits
    CMemoryNode* m_Under = nullptr;  // the node that was told of the pointer last
    CMemoryNode* m_Focus = nullptr;
    CMemoryNode* m_ToldOfFocus = nullptr;
    CMemoryNode* m_FocusWhenShown = nullptr;
    CMemoryNode* m_Capture = nullptr;
};

/// The living objects of the memory backend, for tests that look for leaks. Counted in the whole process.
struct SMemoryCounts
{
    int windows = 0;
    int timers = 0;
    int runningTimers = 0;
    int timerSubscriptions = 0;
    int pictures = 0;
    int runners = 0;
    int locks = 0;
    int nativeControls = 0;
    int popups = 0;
};
VEXEL_MEMORY_API SMemoryCounts GetMemoryCounts();

}  // namespace vexelbase::memory
