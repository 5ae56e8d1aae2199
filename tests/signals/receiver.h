#pragma once

#include "vexel/signals/signal.h"

#include <functional>
#include <string>
#include <utility>

namespace signals_test
{

/// A receiver that writes its name to a log and then acts. It may be deleted by its own action.
class CReceiver : public plinth::subscriber_base_t
{
public:
    CReceiver(std::string& log, std::string name) : m_Log(log), m_Name(std::move(name)) {}

    void Slot() { Act(m_Name); }
    void OtherSlot() { Act(m_Name + "'"); }
    void ConstSlot() const { m_Log += m_Name; }
    int SlotWithResult()
    {
        m_Log += m_Name;
        return 7;
    }

    /// What Slot and OtherSlot do behind the entry in the log.
    std::function<void()> m_Action;

private:
    void Act(std::string const& entry)
    {
        m_Log += entry;
        if (std::function<void()> const action = m_Action)
            action();
    }

    std::string& m_Log;
    std::string m_Name;
};

}  // namespace signals_test
