#pragma once

#include "vexel/export.h"
#include "vexel/platform/system.h"
#include "vexel/signals/notify.h"
#include "vexel/signals/signal.h"

namespace vexel
{

using namespace vexelbase;

/// Runs something once, a delay after it was asked for; a burst of requests leads to one run after the last of them.
class VEXEL_API CPostponedOperation : public CTimerNotify
{
public:
    explicit CPostponedOperation(int delay) : m_Delay(delay) {}  ///< Milliseconds.
    ~CPostponedOperation() override;

    signal_t<> m_SigFire;  ///< On the GUI thread. A slot may delete the operation.

    void Schedule();  ///< Starts the wait, anew if it is on. Without a system nothing happens.

    void OnTimer(CTimerEvent* event) override;

private:
    int const m_Delay;
    vexel_ptr<ISysTimer> m_Timer;
};

}  // namespace vexel
