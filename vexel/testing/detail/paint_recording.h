#pragma once

#include "vexel/platform/memory/memory_painter.h"
#include "vexel/testing/paint_log.h"

namespace vexel
{
class CVisualElement;
}

namespace vexel::test
{

/// Writes painter calls and painted elements to a log while it stands. Recordings may be nested; the inner one takes all.
class CPaintRecording : public vexelbase::memory::IPaintRecorder
{
public:
    /// Only calls on this painter and on those of pictures are taken.
    CPaintRecording(PaintLog& log, vexelbase::IPainter* painter);
    ~CPaintRecording() override;
    CPaintRecording(CPaintRecording const&) = delete;
    CPaintRecording& operator=(CPaintRecording const&) = delete;

    void PainterCalled(vexelbase::memory::CMemoryPainter& painter, int depth, std::string const& call) override;
    void ElementPainted(CVisualElement const& element, vexelbase::IPainter* painter);
    void AddFrame() { ++m_Log.m_Frames; }

    static CPaintRecording* GetCurrent();

private:
    PaintLog& m_Log;
    vexelbase::IPainter* m_Painter;
    vexelbase::memory::IPaintRecorder* m_OuterRecorder;
    CPaintRecording* m_Outer;
};

} // namespace vexel::test
