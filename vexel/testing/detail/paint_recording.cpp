#include "vexel/testing/detail/paint_recording.h"

#include "vexel/testing/names.h"

#include <utility>

namespace vexel::test
{

namespace
{
CPaintRecording* g_Current = nullptr;
}

CPaintRecording::CPaintRecording(PaintLog& log, vexelbase::IPainter* painter)
    : m_Log(log), m_Painter(painter), m_OuterRecorder(vexelbase::memory::SetPaintRecorder(this)),
      m_Outer(std::exchange(g_Current, this))
{
}

CPaintRecording::~CPaintRecording()
{
    g_Current = m_Outer;
    vexelbase::memory::SetPaintRecorder(m_OuterRecorder);
}

CPaintRecording* CPaintRecording::GetCurrent()
{
    return g_Current;
}

void CPaintRecording::PainterCalled(vexelbase::memory::CMemoryPainter& painter, int depth, std::string const& call)
{
    bool const picture = painter.IsPicturePainter();
    if (picture || &painter == m_Painter)
        m_Log.m_Entries.push_back({call, false, picture, depth});
}

void CPaintRecording::ElementPainted(CVisualElement const& element, vexelbase::IPainter* painter)
{
    auto const* const own = dynamic_cast<vexelbase::memory::CMemoryPainter const*>(painter);
    bool const picture = own && own->IsPicturePainter();
    if (picture || painter == m_Painter)
        m_Log.m_Entries.push_back({ElementName(&element), true, picture, 0});
}

} // namespace vexel::test
