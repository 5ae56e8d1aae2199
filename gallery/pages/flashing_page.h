#pragma once

#include "gallery/frame/page.h"
#include "vexel/core/flashing.h"
#include "vexel/platform/system.h"
#include "vexel/signals/notify.h"

namespace gallery
{

class CFlashingPage : public CPage, public CTimerNotify  // what drives the switching
{
public:
    ~CFlashingPage() override;

    void Build(CVisualElement* parent) override;

    void OnTimer(CTimerEvent* event) override;

private:
    CBkFgRoutine m_Colors;
    CPaletteRoutine m_Palettes;
    vexel_ptr<ISysTimer> m_Timer;
    bool m_Flashed = false;
};

}  // namespace gallery
