#include "tests/support/recording_painter.h"

using namespace vexelbase;

namespace
{

// The tests give whole numbers only.
std::string Coordinates(point<double> const& value, bool extent)
{
    return std::to_string(static_cast<int>(value.x)) + " " + std::to_string(static_cast<int>(value.y)) + ", " +
           (extent ? "true" : "false");
}

} // namespace

void CRecordingPainter::BeginPaint(StdSettings settings)
{
    m_Log.Add("painter", "BeginPaint", std::to_string(settings));
    m_Painting = true;
}

void CRecordingPainter::EndPaint()
{
    m_Log.Add("painter", "EndPaint");
    m_Painting = false;
    m_FullPaint = false;
}

void CRecordingPainter::ConvertCoord1(point<double>* value, bool extent) const
{
    m_Log.Add("painter", "ConvertCoord1", Coordinates(*value, extent));
    value->x *= 4;
    value->y *= 4;
}

void CRecordingPainter::DeconvertCoord1(point<double>* value, bool extent) const
{
    m_Log.Add("painter", "DeconvertCoord1", Coordinates(*value, extent));
    value->x /= 4;
    value->y /= 4;
}

void CRecordingPainter::SetFont(font const& value)
{
    m_Log.Add("painter", "SetFont", value.name + " " + std::to_string(value.size));
    m_Font = value;
}

void CRecordingPainter::GetFontMetrics(fontmetrics* metrics)
{
    m_Log.Add("painter", "GetFontMetrics");
    *metrics = {6, 2, 1};
}
