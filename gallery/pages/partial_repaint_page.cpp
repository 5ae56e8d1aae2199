#include "gallery/pages/partial_repaint_page.h"

#include "gallery/frame/panel.h"
#include "vexel/core/dpi.h"
#include "vexel/platform/painter.h"

namespace gallery
{

namespace
{

/// Counts its paints.
class CCell : public CVisualElement
{
public:
    explicit CCell(CVisualElement* parent) : CVisualElement(parent, {0, 0}, alNone)
    {
        SetBkColor(ISysPalette::scWindow);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        ++m_Paints;
        rectangle<double> const rect = ToDouble(GetBounds());
        if (m_Hot)
        {
            brush fill;
            fill.color = color_table[24];
            painter->SetBrush(fill);
        }
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
        painter->DrawString(rect, std::to_string(m_Paints), IPainter::AlignHCenter | IPainter::AlignVCenter, -1);
    }
    void HandleMouseHover(CVisualElement*) override { SetHot(true); }
    void HandleMouseLeave(CVisualElement*) override { SetHot(false); }

private:
    void SetHot(bool hot)
    {
        m_Hot = hot;
        Update(utElement);
    }

    int m_Paints = 0;
    bool m_Hot = false;
};

/// A block that the wheel moves: its pixels go with it, it isn't painted again.
class CRunner : public CCell
{
public:
    using CCell::CCell;

protected:
    bool HandleWheel(int, int, int, MouseButton, int delta) override
    {
        int step = 6 * delta;
        ApplyDPIScale(step);
        rectangle<int> const old = GetPos();
        rectangle<int> place = old;
        place.Offset(step, 0);
        SetPos(place, false);
        GetParent()->Update(utElement);
        return true;
    }
};

}  // namespace

void CPartialRepaintPage::Build(CVisualElement* parent)
{
    auto* const lane = new CPanel(parent, {0, 60}, alBottom);
    lane->SetText("Turn the wheel over the block");
    lane->SetTextFlags(IPainter::AlignRight | IPainter::AlignVCenter);
    auto* const runner = new CRunner(lane);
    rectangle<int> place{12, 12, 60, 48};
    ApplyDPIScale(place);
    runner->SetPos(place, true);

    auto* const grid = new CGrid(parent, {0, 0}, alClient, {44, 28}, 4);
    for (int i = 0; i < 120; ++i)
        new CCell(grid);
    Report(grid->GetChildren()->GetItem(0)->m_SigMouseHover, "cell.hover");
    Report(runner->m_SigWheel, "block.wheel");
}

}  // namespace gallery
