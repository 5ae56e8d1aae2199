#pragma once

#include "vexel/export.h"
#include "vexel/platform/system.h"
#include "vexel/signals/notify.h"

namespace vexel
{

using namespace vexelbase;

/// A timer's subscriber whose tick has a name of its own, so that it can stand beside other subscribers in one class.
class VEXEL_API CRepeatTimerNotify : public CTimerNotify
{
public:
    void OnTimer(CTimerEvent* event) override { OnRepeatTimer(event); }
    virtual void OnRepeatTimer(CTimerEvent*) {}
};

/// Repeats something on a timer, on the GUI thread. It may be stopped, started again or deleted within its own tick.
class VEXEL_API CRepeatableOperation : public CRepeatTimerNotify
{
public:
    explicit CRepeatableOperation(int interval = 0) : m_RepeatInterval(interval) {}
    ~CRepeatableOperation() override;

    int GetRepeatInterval() const { return m_RepeatInterval; }
    /// Milliseconds. A running timer waits anew, a stopped one stays stopped. The same value does nothing.
    void SetRepeatInterval(int milliseconds);
    /// The first repetition comes one interval later. Does nothing if the interval isn't above 0, or without a system.
    void StartRepeating();
    void StopRepeating();
    bool IsRepeating() const { return m_Timer && m_Timer->IsRunning(); }

    void OnRepeatTimer(CTimerEvent*) override { ProcessRepeatOperation(); }

protected:
    virtual void ProcessRepeatOperation() = 0;

private:
    int m_RepeatInterval;
    vexel_ptr<ISysTimer> m_Timer;  // null while not repeating
};

}  // namespace vexel
