#include "vexel/widgets/slider.h"

#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"

#include <algorithm>
#include <cmath>

namespace vexel
{

namespace
{

enum : int
{
    g_LeftKey = 37,
    g_UpKey = 38,
    g_RightKey = 39,
    g_DownKey = 40
};

double const g_CaptionGap = 2;  // along, beside the text; unscaled

// Values that are no numbers come last.
bool IsBefore(double a, double b)
{
    return a < b || (std::isnan(b) && !std::isnan(a));
}

}  // namespace

CSlider::CSlider(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{
    SetCanHaveFocus(true);
    CSlider::SetAlignment(alignment);
    m_Model->m_SigChanged.connect(this, &CSlider::ProcessModelChange);
    ProcessModelChange(m_Model);
    SetTextConversion(true);
    ChangeLayout(alRight);
}

void CSlider::SetDirection(SliderDirection direction)
{
    ChangeLayout(direction == SliderHorizontal ? alBottom : alRight);
}

// Models ----------------------------------------------------------------------------------------------------------------------

void CSlider::SetModel(ISliderModel* model)
{
    m_Model->m_SigChanged.disconnect(this, &CSlider::ProcessModelChange);
    if (m_Model != &s_DefSliderModel)
        m_Model->m_SigDestroy.disconnect(this, &CSlider::ModelDies);
    m_Model = model ? model : &s_DefSliderModel;
    m_Model->m_SigChanged.connect(this, &CSlider::ProcessModelChange);
    if (m_Model != &s_DefSliderModel)
        m_Model->m_SigDestroy.connect(this, &CSlider::ModelDies);
    ProcessModelChange(m_Model);
    OnChange(this, utElement);
}

void CSlider::ModelDies(ISliderModel*)
{
    SetModel(nullptr);
}

void CSlider::SetDrawingModel(ISliderDrawingModel* model)
{
    m_DrawingModel = model ? model : &s_DefSliderDrawingModel;
    OnChange(this, utElement);
}

void CSlider::ProcessModelChange(ISliderModel* model)
{
    // A model may change, die or be exchanged while it is asked: then a later call has read the points.
    unsigned const reading = ++m_Readings;
    CAliveGuard const alive(this);
    m_Items.clear();
    std::vector<std::pair<double, SItem>> items;
    int const count = model->GetPointCount();
    for (int i = 0; i < count && alive && reading == m_Readings; ++i)
    {
        SItem item;
        item.index = i;
        items.emplace_back(model->GetPointValue(i), item);
    }
    if (!alive || reading != m_Readings)
        return;
    std::sort(items.begin(), items.end(), [](auto const& a, auto const& b) { return IsBefore(a.first, b.first); });
    m_Items = std::move(items);
}

int CSlider::GetPointCount() const
{
    return m_Items.empty() ? std::max(0, GetTrackLength()) : static_cast<int>(m_Items.size());
}

double CSlider::GetPointValue(int point) const
{
    if (!m_Items.empty())
        return point >= 0 && point < GetPointCount() ? m_Items[static_cast<std::size_t>(point)].first : 0.0;
    CAliveGuard const alive(this);
    int const length = GetTrackLength();
    if (length <= 1)
        return 0.0;
    double const low = m_Model->GetMinValue();
    double const high = alive ? m_Model->GetMaxValue() : low;
    return low + point * (high - low) / (length - 1);
}

std::string CSlider::GetPointCaption(int point) const
{
    if (m_Items.empty() || point < 0 || point >= GetPointCount())
        return {};
    return m_Model->GetPointCaption(m_Items[static_cast<std::size_t>(point)].second.index);
}

// Places ----------------------------------------------------------------------------------------------------------------------

rectangle<int> CSlider::GetTrack() const
{
    return m_DrawingModel->GetSlotRect(ToDouble(GetBounds()), const_cast<CSlider*>(this));
}

int CSlider::GetTrackLength() const
{
    CAliveGuard const alive(this);
    rectangle<int> const track = GetTrack();
    if (!alive)
        return 0;
    return ToInt(GetAlong(SubtractSaturated(track.right, track.left), SubtractSaturated(track.bottom, track.top)));
}

// How far along the track a place lies.
int CSlider::GetOffset(rectangle<int> const& track, int x, int y) const
{
    return ToInt(GetAlong(SubtractSaturated(x, track.left), SubtractSaturated(y, track.top)));
}

int CSlider::CalcPosByPoint(int point) const
{
    if (m_Items.empty())
        return point;
    if (point < 0 || point >= GetPointCount())
        return 0;
    double const value = m_Items[static_cast<std::size_t>(point)].first;
    CAliveGuard const alive(this);
    double const high = m_Model->GetMaxValue();
    double const low = alive ? m_Model->GetMinValue() : 0.0;
    int const length = alive ? GetTrackLength() : 0;
    return ToInt(length * (value / (high - low)));
}

int CSlider::CalcPointByPos(int position)
{
    if (m_Items.empty())
    {
        int const length = GetTrackLength();
        return position >= length ? length - 1 : std::max(position, 0);
    }
    auto const found = std::lower_bound(m_Items.begin(), m_Items.end(), position,
                                        [](auto const& item, int place) { return item.second.end < place; });
    bool const hit = found != m_Items.end() && position > found->second.start && position < found->second.end;
    return std::clamp(hit ? found->second.index : m_Pos, 0, GetPointCount() - 1);
}

rectangle<int> CSlider::CalcPointerRect(rectangle<int> const& track) const
{
    CAliveGuard const alive(this);
    size<int> const pointer = m_DrawingModel->GetPointerSize(const_cast<CSlider*>(this));
    int const position = alive ? CalcPosByPoint(m_Pos) : 0;
    if (!alive)
        return {};
    int const along = ToInt(GetAlong(pointer.width, pointer.height));
    int const across = ToInt(GetAcross(pointer.width, pointer.height));
    int const beforeAlong = along / 2;
    int const beforeAcross = across / 2;
    double const alongStart = static_cast<double>(ToInt(GetAlong(track.left, track.top))) + position - beforeAlong;
    int const thickness =
        ToInt(GetAcross(SubtractSaturated(track.right, track.left), SubtractSaturated(track.bottom, track.top)));
    double const acrossStart = thickness * 0.5 + ToInt(GetAcross(track.left, track.top)) - beforeAcross;
    rectangle<double> const rect = MakeRect(alongStart, acrossStart, alongStart + along, acrossStart + across);
    return {ToInt(rect.left), ToInt(rect.top), ToInt(rect.right), ToInt(rect.bottom)};
}

// Position --------------------------------------------------------------------------------------------------------------------

void CSlider::UpdateSliderPos(int position, bool tracking)
{
    CAliveGuard const alive(this);
    if (position < 0 || position == m_Pos || position >= GetPointCount() || !alive)
        return;
    m_Pos = position;
    (tracking ? m_PosTracking : m_PosChanged)(this, static_cast<double>(position));
    if (alive)
        OnChange(this, utElement);
}

bool CSlider::IsCapturing() const
{
    return GetControl() && GetControl()->GetCapture() == this;
}

bool CSlider::HandleButtonDown(int x, int y, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    CAliveGuard const alive(this);
    rectangle<int> const track = GetTrack();
    alive.Check();
    bool const onPointer = CalcPointerRect(track).Contains(x, y);
    alive.Check();
    if (onPointer)
    {
        CaptureMouse();
        return true;
    }
    int const point = CalcPointByPos(GetOffset(track, x, y));
    alive.Check();
    UpdateSliderPos(point, false);
    return true;
}

bool CSlider::HandleMouseMove(int x, int y, int, MouseButton)
{
    if (!IsCapturing())
        return true;
    CAliveGuard const alive(this);
    rectangle<int> const track = GetTrack();
    alive.Check();
    int const along = ToInt(GetAlong(x, y));
    int point = 0;
    if (along > GetAlong(track.right, track.bottom))
        point = GetPointCount() - 1;
    else if (along >= GetAlong(track.left, track.top))
        point = CalcPointByPos(GetOffset(track, x, y));
    alive.Check();
    UpdateSliderPos(point, true);
    return true;
}

bool CSlider::HandleButtonUp(int, int, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    if (!IsCapturing())
        return true;
    CAliveGuard const alive(this);
    ReleaseMouse();
    if (alive)
        m_PosChanged(this, static_cast<double>(m_Pos));
    return true;
}

bool CSlider::HandleKeyDown(int, int key)
{
    int step = 0;
    if (key == ToInt(GetAlong(g_RightKey, g_DownKey)))
        step = 1;
    else if (key == ToInt(GetAlong(g_LeftKey, g_UpKey)))
        step = -1;
    else
        return false;
    CAliveGuard const alive(this);
    int const last = GetPointCount() - 1;
    alive.Check();
    UpdateSliderPos(std::max(0, std::min(AddSaturated(m_Pos, step), last)), false);
    return true;
}

// A look of the application's may show where the pointer is.
void CSlider::UpdateHot()
{
    OnChange(this, utElement);
}

void CSlider::HandleMouseHover(CVisualElement*)
{
    UpdateHot();
}

void CSlider::HandleMouseLeave(CVisualElement*)
{
    UpdateHot();
}

// Painting --------------------------------------------------------------------------------------------------------------------

int CSlider::GetState() const
{
    int state = 0;
    if (!IsEnabled())
        state |= IPainter::esDisabled;
    if (IsFocused())
        state |= IPainter::esFocused;
    if (IsEnabled() && GetControl() && GetControl()->GetMouseElement() == this)
        state |= IPainter::esHot;
    return state;
}

void CSlider::DrawBackground(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

void CSlider::DrawContent(IPainter* painter)
{
    int const state = GetState();
    CAliveGuard const alive(this);
    DrawBackground(painter);
    if (!alive)
        return;
    // A look may draw more than a small slider has room for.
    CClipHolder const clip(painter, ToDouble(GetBounds()));
    rectangle<int> const track = GetTrack();
    if (alive)
        m_DrawingModel->OnDrawSlot(painter, ToDouble(track), state, this);
    rectangle<int> const pointer = alive ? CalcPointerRect(track) : rectangle<int>();
    if (alive)
        m_DrawingModel->OnDrawPointer(painter, ToDouble(pointer), state, this);
    if (alive)
        DrawCaptions(painter, track, pointer, state);
}

void CSlider::DrawCaptions(IPainter* painter, rectangle<int> const& track, rectangle<int> const& pointer, int state)
{
    // The text's height is the measure of both directions.
    int const length = ToInt(painter->GetTextSize("W", nullptr).height) + ToDevicePixels(g_CaptionGap);
    int const half = length / 2;
    rectangle<int> const bounds = GetBounds();
    double const bandStart = GetAcross(pointer.right, pointer.bottom) + 1.0;
    double const bandEnd = GetAcross(bounds.right, bounds.bottom);
    double const trackStart = GetAlong(track.left, track.top);
    font const ownFont = GetFont();
    _color const ownColor = GetFgColor();
    _color const ownBackground = GetBkColor();

    // A look or a model may exchange the points, or end the slider: what is drawn is then of no use.
    CAliveGuard const alive(this);
    unsigned const reading = m_Readings;
    auto const isOver = [&] { return !alive || reading != m_Readings; };
    for (int i = 0; i < static_cast<int>(m_Items.size()); ++i)
    {
        int const index = m_Items[static_cast<std::size_t>(i)].second.index;
        font textFont = ownFont;
        _color color = ownColor;
        _color background = ownBackground;
        int pointState = state;
        m_DrawingModel->GetAttr(index, textFont, color, background, pointState);
        painter->SetFont(textFont);
        painter->SetTextColor(color);
        painter->SetBkColor(background);
        painter->SetBrush({background, brush::bsSolid});
        if (isOver())
            return;

        double const start = CalcPosByPoint(i) + trackStart - half;
        if (isOver())
            return;
        rectangle<double> place = MakeRect(start, bandStart, start + length, bandEnd);
        m_DrawingModel->GetContentRect(index, pointState, place, this);
        if (isOver())
            return;
        SItem& item = m_Items[static_cast<std::size_t>(i)].second;
        item.start = ToInt(GetAlong(place.left, place.top) - trackStart);
        item.end = ToInt(GetAlong(place.right, place.bottom) - trackStart);
        std::string const caption = m_Model->GetPointCaption(index);
        if (isOver())
            return;
        m_DrawingModel->OnDrawPointCaption(painter, place, index, pointState, caption, this);
        if (isOver())
            return;
    }
}

}  // namespace vexel
