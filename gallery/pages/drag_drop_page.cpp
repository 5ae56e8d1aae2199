#include "gallery/pages/drag_drop_page.h"

#include "gallery/frame/panel.h"
#include "vexel/core/control.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"

namespace gallery
{

namespace
{

/// Can be dragged within the window.
class CTile : public CPanel
{
public:
    CTile(CVisualElement* parent, int color, std::string const& text) : CPanel(parent, {130, 0}, alLeft)
    {
        SetBkColor(color_table[color]);
        SetFgColor(color_table[1]);
        SetFrame(true);
        SetText(text);
        SetCursor(12);
    }

    bool HandleStartDragging(int, int, DragInfo& info) override
    {
        rectangle<int> rect = GetBounds();
        ElementToControl(&rect);
        info.m_Rect = rect;
        rectangle<int> const window = GetControl()->GetWindow()->GetRect();
        info.m_Bounds = {0, 0, window.right - 1, window.bottom - 1};
        return true;
    }
    void HandleDrawDragItem(IPainter* painter, DragInfo& info, bool accepted, CVisualElement*) override
    {
        rectangle<int> rect = info.m_Rect;
        ControlToElement(&rect);
        rectangle<double> const place = ToDouble(rect);
        brush fill;
        fill.color = accepted ? color_table[13] : color_table[23];
        painter->SetBrush(fill);
        pen line;
        line.style = pen::psDash;
        painter->SetPen(line);
        painter->Rectangle(place.left, place.top, place.right, place.bottom);
        painter->SetTextColor(color_table[1]);
        painter->DrawString(place, GetText(), IPainter::AlignHCenter | IPainter::AlignVCenter, -1);
    }
};

/// Counts what is dropped on it, or refuses everything.
class CBin : public CPanel
{
public:
    CBin(CVisualElement* parent, Alignment alignment, bool takes) : CPanel(parent, {220, 0}, alignment), m_Takes(takes)
    {
        SetFrame(true);
        SetBkColor(ISysPalette::scWindow);
        SetFgColor(ISysPalette::scWindowText);
        SetText(takes ? "drop here" : "takes nothing");
    }

    bool HandleDragOver(CVisualElement*, int, int, DragInfo&) override { return m_Takes; }
    void HandleDropDone(CVisualElement* source, int x, int y, DragInfo&) override
    {
        ++m_Count;
        SetText(std::to_string(m_Count) + " dropped, the last at " + std::to_string(x) + ", " + std::to_string(y));
        SetBkColor(source->GetBkColor());
    }

private:
    bool const m_Takes;
    int m_Count = 0;
};

}  // namespace

void CDragDropPage::Build(CVisualElement* parent)
{
    auto* const row = new CPanel(parent, {0, 70}, alTop);
    int const colors[] = {24, 26, 25};
    char const* const names[] = {"one", "two", "three"};
    for (std::size_t i = 0; i < 3; ++i)
    {
        auto* const tile = new CTile(row, colors[i], std::string("tile ") + names[i]);
        tile->SetId(i + 1);
        ReportMouse(tile, names[i]);
        Report(tile->m_SigStartDragging, std::string(names[i]) + ".start");
        Report(tile->m_SigDragFinished, std::string(names[i]) + ".finished");
    }
    auto* const gap = new CPanel(parent, {0, 90}, alTop);
    gap->SetText("a tile over anything else shows that it would not be taken");
    auto* const left = new CBin(parent, alLeft, true);
    left->SetId(11);
    auto* const right = new CBin(parent, alRight, false);
    right->SetId(12);
    new CPanel(parent, {0, 0}, alClient);
    Report(left->m_SigDropDone, "left.drop");
    Report(right->m_SigDropDone, "right.drop");
    Report(left->m_SigDragOver, "left.over");
}

}  // namespace gallery
