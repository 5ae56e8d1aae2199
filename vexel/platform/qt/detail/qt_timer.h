#pragma once

#include "vexel/platform/system.h"
#include "vexel/signals/event_sender.h"

#include <memory>

class QTimer;

namespace vexelbase::qt
{

/// A timer on the Qt event loop. When the application object goes it stops for good.
class CQtTimer final : public CImplEventSender<ISysTimer>
{
public:
    explicit CQtTimer(int period);
    ~CQtTimer() override;

    bool IsRunning() const override { return m_Running; }
    void SetPeriod(int milliseconds) override;
    void SetRunning(bool running) override;

    static void StopAll();  ///< Gives up all Qt timers; to be called while the application object still lives.

private:
    void Fire();

    std::unique_ptr<QTimer> m_Timer;  // made at the first start
    int m_Period;
    bool m_Running = false;
};

}  // namespace vexelbase::qt
