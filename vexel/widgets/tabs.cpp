#include "vexel/widgets/tabs.h"

#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/core/measure_bracket.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"
#include "vexel/widgets/detail/system_color.h"

namespace vexel
{

namespace
{

int const g_TextMargin = 6;  // of both sides together; pixels at any scale
int const g_BkLightening = 40;
int const g_TextFlags = IPainter::AlignHCenter | IPainter::AlignVCenter;

template <class T> int GetSlant(rectangle<T> const& content)
{
    return (ToInt(content.bottom) - ToInt(content.top) - 1) / 2;
}

double GetTextWidth(IPainter& painter, std::string const& text)
{
    return painter.GetTextSize(text, nullptr).width;
}

void SetPenColor(IPainter& painter, _color const& color)
{
    painter.SetPen({color, pen::psSolid, 1});
}

void SetBrushColor(IPainter& painter, _color const& color)
{
    painter.SetBrush({color, brush::bsSolid});
}

}  // namespace

CTabs::CTabs(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{
    CTabs::SetAlignment(alignment);
    TakeSystemColors();
}

// Look ------------------------------------------------------------------------------------------------------------------------

// Colours that the application has set stay.
void CTabs::TakeSystemColors()
{
    if (!m_OwnActiveColor)
        m_ActiveColor = detail::GetSystemColor(ISysPalette::scWindow);
    if (!m_OwnInactiveColor)
        m_InactiveColor = detail::GetSystemColor(ISysPalette::scFace);
    bool const isDefault = m_DefaultBkColor == _color() || GetBkColor() == m_DefaultBkColor;
    m_DefaultBkColor = detail::GetSystemColor(ISysPalette::scFace).Lighter(g_BkLightening);
    if (isDefault)
        SetBkColor(m_DefaultBkColor);
}

void CTabs::SysColorsChanged()
{
    TakeSystemColors();
}

void CTabs::SetColor(_color& member, bool& own, _color const& color)
{
    own = true;
    if (color.m_Value == member.m_Value)
        return;
    member = color;
    OnChange(this, utElement);
}

void CTabs::SetActiveColor(_color const& color)
{
    SetColor(m_ActiveColor, m_OwnActiveColor, color);
}

void CTabs::SetInactiveColor(_color const& color)
{
    SetColor(m_InactiveColor, m_OwnInactiveColor, color);
}

void CTabs::SetAlignment(Alignment alignment)
{
    if (ChangeLayout(alignment))
        CVisualElement::SetAlignment(alignment);
}

// The tabs --------------------------------------------------------------------------------------------------------------------

void CTabs::SetModel(IItemsModel* model)
{
    if (model == m_Items)
        return;
    if (m_Items)
        m_Items->m_SigDestroy.disconnect(this, &CTabs::ModelDies);
    m_Items = model;
    if (m_Items)
        m_Items->m_SigDestroy.connect(this, &CTabs::ModelDies);
    OnChange(this, utElement);
}

void CTabs::ModelDies(IItemsModel*)
{
    m_Items = nullptr;
    OnChange(this, utElement);
}

void CTabs::SetCurrentTab(int tab)
{
    CAliveGuard const alive(this);
    if (tab == m_CurrentTab || tab < 0 || tab >= GetTabCount() || !alive)
        return;
    bool allowed = true;
    m_TabChanging(this, m_CurrentTab, tab, &allowed);
    if (!alive || !allowed)
        return;
    m_CurrentTab = tab;
    if (tab < m_FirstVisibleTab)
        SetFirstVisibleTab(tab);
    else if (GetLastVisibleTab() < tab && alive)
        SetLastVisibleTab(tab);
    if (!alive)
        return;
    m_TabChanged(this, tab);
    if (alive)
        OnChange(this, utElement);
}

void CTabs::SetFirstVisibleTab(int tab)
{
    CAliveGuard const alive(this);
    if (tab == m_FirstVisibleTab || tab < 0 || tab >= GetTabCount() || !alive)
        return;
    m_FirstVisibleTab = tab;
    OnChange(this, utElement);
}

IPainter* CTabs::FindPainter() const
{
    ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    return window ? window->GetPainter() : nullptr;
}

// Empty if the model has died while it was asked for something else.
std::string CTabs::GetTabText(int tab) const
{
    return m_Items ? m_Items->GetItemCaption(tab) : std::string();
}

int CTabs::GetTabWidth(IPainter* painter, int tab) const
{
    int const slant = GetSlant(GetContentRect());
    return slant + ToInt(GetTextWidth(*painter, GetTabText(tab))) + g_TextMargin;
}

int CTabs::GetLastVisibleTab() const
{
    IPainter* const painter = FindPainter();
    if (!painter)
        return -1;
    CAliveGuard const alive(this);
    CMeasureBracket const measuring(painter, GetFont());
    rectangle<int> const content = GetContentRect();
    int room = SubtractSaturated(content.right, content.left);
    int last = -1;
    for (int tab = m_FirstVisibleTab; tab < GetTabCount() && alive; ++tab)
    {
        room = SubtractSaturated(room, GetTabWidth(painter, tab));
        if (room < 0 || !alive)
            break;
        last = tab;
    }
    return last;
}

void CTabs::SetLastVisibleTab(int tab)
{
    IPainter* const painter = FindPainter();
    CAliveGuard const alive(this);
    if (!painter || tab < 0 || tab >= GetTabCount() || !alive)
        return;
    int first = -1;
    {
        CMeasureBracket const measuring(painter, GetFont());
        rectangle<int> const content = GetContentRect();
        int room = SubtractSaturated(content.right, content.left);
        for (int candidate = tab; candidate >= 0; --candidate)
        {
            room = SubtractSaturated(room, GetTabWidth(painter, candidate));
            if (!alive)
                return;
            if (room < 0)
                break;
            first = candidate;
        }
    }
    if (first < 0 || first == m_FirstVisibleTab)
        return;
    m_FirstVisibleTab = first;
    OnChange(this, utElement);
}

// Painting --------------------------------------------------------------------------------------------------------------------

void CTabs::DrawContent(IPainter* painter)
{
    SetPenColor(*painter, detail::GetSystemColor(ISysPalette::scShadow));
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
    painter->MoveTo(0, 0);
    painter->LineTo(bounds.right, 0);

    CAliveGuard const alive(this);
    CClipHolder const clip(painter, {static_cast<double>(bounds.left), static_cast<double>(bounds.top),
                                     static_cast<double>(bounds.right), static_cast<double>(bounds.bottom)});
    SetCoordSystem(painter);
    if (!alive)
        return;
    rectangle<double> const content = GetDrawRect(painter);
    int const room = ToInt(content.right - content.left);
    int x = 0;
    for (int tab = m_FirstVisibleTab; tab < GetTabCount() && alive && x < room; ++tab)
    {
        int const advance = DrawTab(painter, tab, x);
        if (!alive || advance >= SubtractSaturated(room, x))
            return;
        x = AddSaturated(x, advance);
    }
}

// What shows of the tab before the first visible one.
void CTabs::DrawSliver(IPainter* painter)
{
    bool const current = m_FirstVisibleTab - 1 == m_CurrentTab;
    SetBrushColor(*painter, current ? m_ActiveColor : m_InactiveColor);
    double const slant = GetSlant(GetDrawRect(painter));
    point<double> const corners[] = {{0, 0}, {0, 2 * slant}, {slant, 0}};
    painter->Polygon(corners, 3);
}

int CTabs::DrawTab(IPainter* painter, int tab, int x)
{
    rectangle<double> const content = GetDrawRect(painter);
    int const slant = GetSlant(content);
    CAliveGuard const alive(this);
    std::string const text = GetTabText(tab);
    if (!alive || !m_Items)
        return 0;
    double const textWidth = GetTextWidth(*painter, text);
    double const width = textWidth + g_TextMargin;
    double const left = x;
    double const start = left + slant;
    double const foot = 2.0 * slant;
    double const end = foot + left + width;

    if (tab == m_FirstVisibleTab && tab != 0)
        DrawSliver(painter);
    bool const current = tab == m_CurrentTab;
    SetBrushColor(*painter, current ? m_ActiveColor : m_InactiveColor);
    if (tab == 0 || current)
    {
        point<double> const corners[] = {{left, 0}, {start, foot}, {start + width, foot}, {end, 0}};
        painter->Polygon(corners, 4);
    }
    else
    {
        // Tucked under its left neighbour.
        point<double> const corners[] = {{start, 0},
                                         {slant * 0.5 + left, static_cast<double>(slant)},
                                         {start, foot},
                                         {start + width, foot},
                                         {end, 0}};
        painter->Polygon(corners, 5);
    }
    if (current)
    {
        SetPenColor(*painter, m_ActiveColor);
        painter->MoveTo(left + 1, 0);
        painter->LineTo(end - 1, 0);
        SetPenColor(*painter, detail::GetSystemColor(ISysPalette::scShadow));
    }
    double const textLeft = ToInt(start);
    painter->DrawString({textLeft, content.top, textLeft + width, content.bottom - 1}, text, g_TextFlags, -1);
    return ToInt(slant + width);
}

// Hit tests -------------------------------------------------------------------------------------------------------------------

int CTabs::HitTest(point<int> const& position)
{
    IPainter* const painter = FindPainter();
    if (!painter)
        return -1;
    CAliveGuard const alive(this);
    CMeasureBracket const measuring(painter, GetFont());
    int const hidden = m_FirstVisibleTab - 1;
    if (m_Items && FirstTabHitTest(position, painter, hidden))
        return hidden;
    if (!alive)
        return -1;
    rectangle<int> const content = GetContentRect();
    if (content.right <= content.left)
        return -1;
    int x = 0;
    for (int tab = m_FirstVisibleTab; tab < GetTabCount() && alive; ++tab)
    {
        if (TabHitTest(position, painter, tab, &x))
            return tab;
        if (position.x < 0 || !alive)
            return -1;
    }
    return -1;
}

bool CTabs::TabHitTest(point<int> const& position, IPainter* painter, int tab, int* x)
{
    rectangle<int> const content = GetContentRect();
    int const slant = GetSlant(content);
    int const before = *x;
    int const start = AddSaturated(slant, before);
    CAliveGuard const alive(this);
    int const end = AddSaturated(start, ToInt(GetTextWidth(*painter, GetTabText(tab))) + g_TextMargin);
    *x = end;
    if (!alive)
        return false;

    if (position.x >= start && position.x <= end && position.y >= content.top && position.y <= content.bottom - 1)
        return true;
    if (position.y > content.bottom - 1 || position.x >= AddSaturated(end, slant))
        return false;
    int const fromLeft = SubtractSaturated(position.x, before);
    if (fromLeft < slant)
        return position.y < 2 * std::int64_t{fromLeft};
    int const fromEnd = SubtractSaturated(position.x, end);
    if (position.y >= 2 * (std::int64_t{slant} - fromEnd))
        return false;
    return tab + 1 != m_CurrentTab || position.y > 2 * std::int64_t{fromEnd};
}

bool CTabs::FirstTabHitTest(point<int> const& position, IPainter*, int tab)
{
    int const slant = GetSlant(GetContentRect());
    if (tab < 0 || position.y > 2 * slant || position.x >= slant)
        return false;
    if (position.y >= 2 * (std::int64_t{slant} - position.x))
        return false;
    return tab == m_CurrentTab || 2 * std::int64_t{position.x} < position.y;
}

bool CTabs::HandleButtonDown(int x, int y, int, MouseButton)
{
    if (!m_Items)
        return false;
    CAliveGuard const alive(this);
    if (int const tab = HitTest({x, y}); tab != -1 && alive)
        SetCurrentTab(tab);
    return true;
}

std::string CTabs::HandleAsString() const
{
    std::string result;
    CAliveGuard const alive(this);
    for (int tab = 0; tab < GetTabCount() && alive; ++tab)
    {
        std::string const text = GetTabText(tab);
        if (!alive)
            break;
        if (tab > 0)
            result += '\t';
        result += tab == m_CurrentTab ? "[" + text + "]" : text;
    }
    return result;
}

}  // namespace vexel
