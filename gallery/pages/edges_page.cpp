#include "gallery/pages/edges_page.h"

#include "gallery/frame/panel.h"
#include "gallery/frame/toggle.h"
#include "vexel/core/dpi.h"
#include "vexel/layout/layout_flavor.h"

#include <string>

namespace gallery
{

namespace
{

/// A ruler that can stand at any edge: all its code computes along and across. A click docks it to the next edge.
class CRuler : public CPanel, public CLayoutFlavor
{
public:
    CRuler(CVisualElement* parent, Alignment alignment, int color) : CPanel(parent, {40, 40}, alignment)
    {
        SetBkColor(color_table[color]);
        SetFgColor(color_table[1]);
        SetTextConversion(true);
        ChangeLayout(alignment);
    }

    void SetAlignment(Alignment alignment) override
    {
        if (ChangeLayout(alignment))
            CPanel::SetAlignment(alignment);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> bounds = GetBounds();
        painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
        painter->SetPen({GetFgColor(), pen::psSolid, 1});
        font turned = GetFont();
        ConvFont(&turned);
        painter->SetFont(turned);

        int unit = 10;
        ApplyDPIScale(unit);
        double const length = GetAlong(bounds.right, bounds.bottom);
        double const thickness = GetAcross(bounds.right, bounds.bottom);
        bool const fromEnd = GetAlignment() == alTop || GetAlignment() == alLeft;  // ticks stand on the inner side
        double const base = fromEnd ? thickness : 0;
        double const inwards = fromEnd ? -1 : 1;
        for (int i = 0; i * unit <= length; ++i)
        {
            double const tick = inwards * unit * (i % 5 == 0 ? 1.0 : 0.5);
            point<double> const from = MakePoint(i * unit, base);
            point<double> const to = MakePoint(i * unit, base + tick);
            painter->MoveTo(from.x, from.y);
            painter->LineTo(to.x, to.y);
            if (i % 10 != 0 || i == 0 || (i + 2) * unit > length)
                continue;
            rectangle<double> label =
                MakeRect((i - 4) * unit, base + inwards * unit, (i + 4) * unit, fromEnd ? 0 : thickness);
            label.Normalize();
            int const centered = IPainter::AlignHCenter | IPainter::AlignVCenter;
            painter->DrawString(label, std::to_string(i * 10).c_str(), ConvTextAlign(centered), -1);
        }
    }

    bool HandleClick(int, int, int, MouseButton) override
    {
        SetAlignment(GetAlignment() == alBottom ? alLeft : static_cast<Alignment>(GetAlignment() + 1));
        return true;
    }
};

}  // namespace

void CEdgesPage::Build(CVisualElement* parent)
{
    auto* const top = new CRuler(parent, alTop, 26);
    auto* const bottom = new CRuler(parent, alBottom, 27);
    auto* const left = new CRuler(parent, alLeft, 21);
    auto* const right = new CRuler(parent, alRight, 25);
    auto* const middle = new CPanel(parent, {0, 0}, alClient);
    middle->SetText("The four rulers are one class.");
    ReportMouse(top, "top");
    ReportMouse(bottom, "bottom");
    ReportMouse(left, "left");
    ReportMouse(right, "right");
}

}  // namespace gallery
