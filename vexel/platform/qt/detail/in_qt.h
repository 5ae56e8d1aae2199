#pragma once

namespace vexelbase::qt
{

/// Stands on the stack while Qt is at work on one of the backend's widgets: what it may still touch, which can be another
/// widget than the one whose event it is, must not be deleted at once.
class CInQt
{
public:
    CInQt() { ++s_Depth; }
    ~CInQt() { --s_Depth; }
    CInQt(CInQt const&) = delete;
    CInQt& operator=(CInQt const&) = delete;

    static bool Is() { return s_Depth > 0; }

private:
    inline static int s_Depth = 0;
};

}  // namespace vexelbase::qt
