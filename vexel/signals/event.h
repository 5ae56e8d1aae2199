#pragma once

#include "vexel/export.h"

namespace vexelbase
{

/// Root of all native events. The continue flag must stay the first member: a firing reads it after each handler.
class VEXEL_API CEvent
{
public:
    virtual ~CEvent();

    bool IsContinue() const { return m_Continue; }
    void SetContinue(bool value)
    {
        m_Continue = value;
    }  ///< False: dealt with, the subscribers that remain are not called.

private:
    bool m_Continue = true;
};

/// Thrown by a handler, or by a list of subscribers, to end the firing under way; FireEvent swallows it.
/// Unlike vexel::cancel_processing it leaves the processing of the native event alone.
class VEXEL_API cancel_processing
{};

}  // namespace vexelbase
