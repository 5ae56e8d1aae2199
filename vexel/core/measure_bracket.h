#pragma once

#include "vexel/core/alive_guard.h"
#include "vexel/core/fwd.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"

namespace vexel
{

/// Opens a painter for measuring in a font, for a scope. Inside a paint it opens nothing, and only puts the font back.
class CMeasureBracket
{
public:
    static constexpr double s_Unlimited = 100000.0;  ///< Extents of a place in which any text has room.

    /// `window`: whose painter it is, where slots may run in the scope. A window that they destroy takes the painter along.
    CMeasureBracket(IPainter* painter, font const& value, ISysWindow* window = nullptr)
        : m_Painter(painter), m_Watches(window != nullptr), m_Window(window), m_Own(!painter->m_Painting),
          m_Before(m_Own ? font() : painter->GetFont())
    {
        if (m_Own)
            m_Painter->BeginPaint(IPainter::ssMeasure);
        m_Painter->SetFont(value);
    }
    ~CMeasureBracket()
    {
        if (m_Watches && !m_Window)
            return;
        if (m_Own)
            m_Painter->EndPaint();
        else
            m_Painter->SetFont(m_Before);
    }
    CMeasureBracket(CMeasureBracket const&) = delete;
    CMeasureBracket& operator=(CMeasureBracket const&) = delete;

private:
    IPainter* const m_Painter;
    bool const m_Watches;
    CAlivePtr<ISysWindow> const m_Window;
    bool const m_Own;
    font const m_Before;
};

}  // namespace vexel
