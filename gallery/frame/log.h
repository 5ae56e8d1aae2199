#pragma once

#include "vexel/signals/signal.h"

#include <string>

namespace gallery
{

/// Where everything that happens is told: each signal of the page and each native event, a line each.
class CLog
{
public:
    static CLog& Get();

    void Write(std::string const& line);  ///< Fires m_SigLine; with the echo on also prints to standard output.
    void SetEcho(bool on) { m_Echo = on; }
    std::string const& GetLast() const { return m_Last; }

    vexel::signal_t<std::string const&> m_SigLine;

private:
    bool m_Echo = false;
    std::string m_Last;
};

}  // namespace gallery
