#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"

namespace vexel
{

/// Hears of every element of the process: test kits and inspection tools. The calls come on the GUI thread.
class VEXEL_API IElementObserver
{
public:
    virtual ~IElementObserver();
    /// The element's base part is being built: only its address may be used.
    virtual void ElementMade(CVisualElement* element) = 0;
    /// The element is about to paint itself, then its children. Not called for what is hidden or without area.
    virtual void ElementPainted(CVisualElement* element, IPainter* painter) = 0;
    /// The element's base part is being destroyed: only its address may be used.
    virtual void ElementGone(CVisualElement* element) = 0;
};

namespace detail
{
extern VEXEL_API IElementObserver* g_ElementObserver;
}

inline IElementObserver* GetElementObserver()
{
    return detail::g_ElementObserver;
}

/// Installs the one observer; not owned, null takes it away. Returns the one before.
VEXEL_API IElementObserver* SetElementObserver(IElementObserver* observer);

} // namespace vexel
