#include "vexel/platform/system.h"

#include "vexel/platform/detail/default_font.h"

namespace vexelbase
{

namespace
{

// The window system of a process is one; like all of it this belongs to the GUI thread.
struct SCurrent
{
    ISystem* system = nullptr;
    font defaultFont;
    bool fontKnown = false;
    bool autoScale = true;
};

SCurrent& Current()
{
    static SCurrent current;
    return current;
}

unsigned s_FontStamp = 1;

font ReadDefaultFont(ISystem* system)
{
    font result;
    if (system)
        result = system->GetDefaultFont();
    if (result.size < 1)
        result.size = 8;
    if (result.family == font::ffDefault)
        result.family = font::ffSans;
    return result;
}

}  // namespace

IPointer::~IPointer() = default;
IClipboard::~IClipboard() = default;
ISystem::~ISystem() = default;

rectangle<int> ISystem::GetWorkArea(point<int> const&) { return {}; }

ISystem* GetCurrentSystem() { return Current().system; }

ISystem* SetCurrentSystem(ISystem* system)
{
    ISystem* const previous = Current().system;
    Current().system = system;
    RefreshDefaultGUIFont();
    return previous;
}

double GetSystemScale()
{
    ISystem* const system = GetCurrentSystem();
    return system ? system->GetScale() : 1.0;
}

font const& GetDefaultGUIFont()
{
    SCurrent& current = Current();
    if (!current.fontKnown)
    {
        current.defaultFont = ReadDefaultFont(current.system);
        current.fontKnown = true;
    }
    return current.defaultFont;
}

void RefreshDefaultGUIFont()
{
    Current().fontKnown = false;
    ++s_FontStamp;
}

bool GetDPIAutoScale() { return Current().autoScale; }

void SetDPIAutoScale(bool on) { Current().autoScale = on; }

namespace detail
{

unsigned GetDefaultFontStamp() { return s_FontStamp; }

}  // namespace detail

}  // namespace vexelbase
