#include "vexel/platform/base_painter.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/detail/base_painter_scratch.h"
#include "vexel/platform/system.h"

#include <algorithm>
#include <cmath>

namespace vexelbase
{

CBasePainter::CBasePainter(IPaintDevice& device, bool picture) : m_Device(device), m_Picture(picture) {}

CBasePainter::~CBasePainter() = default;

CBasePainter::SScratch& CBasePainter::Scratch()
{
    if (!m_Scratch)
        m_Scratch = std::make_unique<SScratch>();
    return *m_Scratch;
}

double CBasePainter::GetDPIScale() const { return GetSystemScale(); }

// Brackets ---------------------------------------------------------------------------------------------------------

void CBasePainter::BeginPaint(StdSettings settings)
{
    if (m_Brackets.size() == static_cast<std::size_t>(m_Depth))
        m_Brackets.emplace_back();
    SSaved& saved = m_Brackets[static_cast<std::size_t>(m_Depth)];
    saved.mode = m_Mode;
    saved.info = m_Info;
    saved.clip = m_Clip;
    saved.textFont = m_Font;
    saved.settings = settings;
    ++m_Depth;
    m_Painting = true;
    if (settings == ssMeasure)
        return;

    SetCoordSystem(mmDevice, nullptr);
    m_Clip.Reset();
    if (m_PaintDepth++ == 0)
    {
        m_FullPaintAnew = false;
        ResetTools();
    }
}

void CBasePainter::EndPaint()
{
    if (m_Depth > 0)
        CloseBracket(true);
}

void CBasePainter::AbandonBrackets(int depth)
{
    while (m_Depth > std::max(depth, 0))
        CloseBracket(false);
}

void CBasePainter::CloseBracket(bool completed)
{
    --m_Depth;
    m_Painting = m_Depth > 0;
    SSaved const& saved = m_Brackets[static_cast<std::size_t>(m_Depth)];
    SetCoordSystem(saved.mode, &saved.info);
    m_Clip = saved.clip;
    SetFont(saved.textFont);
    if (saved.settings != ssMeasure && --m_PaintDepth == 0 && completed)
        m_FullPaint = m_FullPaintAnew;
}

void CBasePainter::RequestFullPaint()
{
    m_FullPaint = true;
    m_FullPaintAnew = true;
}

// What one paint leaves behind must not show in the next.
void CBasePainter::ResetTools()
{
    m_Pen = {};
    m_Brush = {};
    SetFont({});
    m_TextColor = color_table[1];
    m_BkColor = color_table[9];
    m_DrawMode = roCopy;
    m_Position = {};
    m_DisabledMode = false;
    m_Palette.reset();
}

// Mapping ----------------------------------------------------------------------------------------------------------

void CBasePainter::SetCoordSystem(MapMode mode, CoordInfo const* info)
{
    m_Mode = mode;
    if (info)
        m_Info = *info;
    else
        m_Info = {};
    UpdateMapping();
}

void CBasePainter::GetCoordSystem(MapMode& mode, CoordInfo* info) const
{
    mode = m_Mode;
    if (info)
        *info = m_Info;
}

void CBasePainter::UpdateMapping()
{
    m_AxisX = {};
    m_AxisY = {};
    if (m_Mode == mmDevice)
        return;
    auto const set = [](SAxis& axis, double logicalOrigin, double logicalExtent, int deviceOrigin, int deviceExtent)
    {
        axis.logicalOrigin = logicalOrigin;
        axis.deviceOrigin = deviceOrigin;
        axis.logicalExtent = logicalExtent;
        axis.deviceExtent = deviceExtent;
        axis.oneToOne = axis.logicalExtent == axis.deviceExtent || logicalExtent == 0 || deviceExtent == 0 ||
                        !std::isfinite(logicalExtent);
    };
    set(m_AxisX, m_Info.m_LogicalOrigin.x, m_Info.m_LogicalExtent.width, m_Info.m_DeviceOrigin.x,
        m_Info.m_DeviceExtent.width);
    set(m_AxisY, m_Info.m_LogicalOrigin.y, m_Info.m_LogicalExtent.height, m_Info.m_DeviceOrigin.y,
        m_Info.m_DeviceExtent.height);
}

void CBasePainter::ConvertCoord1(point<double>* value, bool extent) const
{
    if (extent)
        *value = {m_AxisX.MapExtent(value->x), m_AxisY.MapExtent(value->y)};
    else
        *value = {m_AxisX.Map(value->x), m_AxisY.Map(value->y)};
}

void CBasePainter::DeconvertCoord1(point<double>* value, bool extent) const
{
    if (extent)
        *value = {m_AxisX.UnmapExtent(value->x), m_AxisY.UnmapExtent(value->y)};
    else
        *value = {m_AxisX.Unmap(value->x), m_AxisY.Unmap(value->y)};
}

void CBasePainter::ConvertCoord2(point<double>* values, bool extent) const
{
    ConvertCoord1(&values[0], extent);
    ConvertCoord1(&values[1], extent);
}

void CBasePainter::DeconvertCoord2(point<double>* values, bool extent) const
{
    DeconvertCoord1(&values[0], extent);
    DeconvertCoord1(&values[1], extent);
}

rectangle<int> CBasePainter::ToDevice(double left, double top, double right, double bottom) const
{
    rectangle<int> rect{FloorToInt(m_AxisX.Map(left)), FloorToInt(m_AxisY.Map(top)), FloorToInt(m_AxisX.Map(right)),
                        FloorToInt(m_AxisY.Map(bottom))};
    rect.Normalize();
    rect.right = AddSaturated(rect.right, 1);
    rect.bottom = AddSaturated(rect.bottom, 1);
    return rect;
}

point<int> CBasePainter::ToDevice(double x, double y) const
{
    return {FloorToInt(m_AxisX.Map(x)), FloorToInt(m_AxisY.Map(y))};
}

// Clip -------------------------------------------------------------------------------------------------------------

rectangle<double> CBasePainter::GetClipRect() const
{
    rectangle<int> const bounds = m_Clip.GetBounds();
    return {static_cast<double>(bounds.left), static_cast<double>(bounds.top), static_cast<double>(bounds.right),
            static_cast<double>(bounds.bottom)};
}

void CBasePainter::SetClipRect(double left, double top, double right, double bottom, bool exclude)
{
    rectangle<int> const rect = ToDevice(left, top, right, bottom);
    if (exclude)
        m_Clip.Exclude(rect, {0, 0, m_Device.GetSize().width, m_Device.GetSize().height});
    else
        m_Clip.Intersect(rect);
}

void CBasePainter::SimpleSetClipRect(rectangle<double> const& rect, bool exclude)
{
    rectangle<int> const outward{FloorToInt(rect.left), FloorToInt(rect.top), CeilToInt(rect.right),
                                 CeilToInt(rect.bottom)};
    if (exclude)
        m_Clip.Exclude(outward, {0, 0, m_Device.GetSize().width, m_Device.GetSize().height});
    else if (rect.IsZero())
        m_Clip.Reset();
    else
        m_Clip.Set(outward);
}

void CBasePainter::ResetClip() { m_Clip.Reset(); }

rectangle<int> CBasePainter::GetVisible() const
{
    rectangle<int> visible{0, 0, m_Device.GetSize().width, m_Device.GetSize().height};
    if (!m_Clip.IsUnlimited())
        visible.Intersect(m_Clip.GetBounds());
    return visible;
}

}  // namespace vexelbase
