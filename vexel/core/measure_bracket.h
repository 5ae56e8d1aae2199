#pragma once

#include "vexel/core/fwd.h"
#include "vexel/platform/painter.h"

namespace vexel
{

/// Opens a painter for measuring in a font, for a scope. Inside a paint it opens nothing, and only puts the font back.
class CMeasureBracket
{
public:
    static constexpr double s_Unlimited = 100000.0;  ///< Extents of a place in which any text has room.

    CMeasureBracket(IPainter* painter, font const& value)
        : m_Painter(painter), m_Own(!painter->m_Painting), m_Before(m_Own ? font() : painter->GetFont())
    {
        if (m_Own)
            m_Painter->BeginPaint(IPainter::ssMeasure);
        m_Painter->SetFont(value);
    }
    ~CMeasureBracket()
    {
        if (m_Own)
            m_Painter->EndPaint();
        else
            m_Painter->SetFont(m_Before);
    }
    CMeasureBracket(CMeasureBracket const&) = delete;
    CMeasureBracket& operator=(CMeasureBracket const&) = delete;

private:
    IPainter* const m_Painter;
    bool const m_Own;
    font const m_Before;
};

}  // namespace vexel
