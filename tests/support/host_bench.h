#pragma once

#include "tests/support/call_log.h"
#include "tests/support/recording_element.h"
#include "tests/support/recording_window.h"
#include "tests/support/scripted_system.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"

#include <memory>
#include <string>

/// A control on a window of 100 x 50 pixels, with a recording root. Nothing happens but what the test calls.
class CHostBench
{
public:
    CHostBench()
    {
        m_Control->SetContent(m_Root);
        m_Log.Clear();
    }
    virtual ~CHostBench() = default;

    /// Runs the native paint. Returns which elements drew themselves, and forgets all other calls.
    std::string Paint()
    {
        m_Log.Clear();
        m_Control->OnDraw(&m_Window.m_Painter);
        return m_Log.Take({"DrawContent"});
    }
    vexel::IControl& Host() { return *m_Control->GetControl(); }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingWindow m_Window{m_Log, 100, 50};
    std::unique_ptr<vexel::CBaseControl> m_Control = std::make_unique<vexel::CBaseControl>(&m_Window);
    CRecordingElement* m_Root = new CRecordingElement(m_Log, "root", nullptr, {0, 0}, vexel::alClient);
};
