#include "vexel/testing/detail/element_watch.h"

#include "vexel/testing/detail/element_names.h"
#include "vexel/testing/detail/paint_recording.h"

namespace vexel::test
{

CElementWatch& CElementWatch::Get()
{
    static CElementWatch* const watch = new CElementWatch;  // static elements may go after it
    return *watch;
}

void CElementWatch::Install()
{
    SetElementObserver(this);
}

void CElementWatch::ElementPainted(CVisualElement* element, vexelbase::IPainter* painter)
{
    if (CPaintRecording* const recording = CPaintRecording::GetCurrent())
        recording->ElementPainted(*element, painter);
}

void CElementWatch::ElementGone(CVisualElement* element)
{
    m_Elements.erase(element);
    detail::ForgetElementName(element);
}

} // namespace vexel::test
