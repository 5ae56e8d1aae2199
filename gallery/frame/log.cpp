#include "gallery/frame/log.h"

#include <cstdio>

namespace gallery
{

CLog& CLog::Get()
{
    static CLog log;
    return log;
}

void CLog::Write(std::string const& line)
{
    m_Last = line;
    if (m_Echo)
    {
        std::printf("%s\n", line.c_str());
        std::fflush(stdout);  // whoever reads along in a pipe wants it now
    }
    m_SigLine(line);
}

}  // namespace gallery
