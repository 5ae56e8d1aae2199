#include "gallery/pages/parts_page.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/border.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

namespace gallery
{

namespace
{

using Rect = rectangle<double>;

void AddParts(CGrid* grid)
{
    struct SPart
    {
        char const* caption;
        IPainter::ControlElement element;
    };
    static SPart const parts[] = {{"header", IPainter::ceHeaderSection},     {"check on", IPainter::ceCheckChecked},
                                  {"check off", IPainter::ceCheckUnchecked}, {"button", IPainter::cePushButton},
                                  {"combo arrow", IPainter::ceComboArrow},   {"drop arrow", IPainter::ceDropArrow},
                                  {"radio on", IPainter::ceRadioChecked},    {"radio off", IPainter::ceRadioUnchecked}};
    for (SPart const& part : parts)
    {
        new CSample(grid, part.caption, [part](IPainter* p, Rect const& r) {
            bool const mark = part.element != IPainter::ceHeaderSection && part.element != IPainter::cePushButton;
            double const width = mark ? 18 * p->GetDPIScale() : (r.right - r.left) / 2 - 2;
            double const height = 18 * p->GetDPIScale();
            int const states[] = {0, IPainter::esHot, IPainter::esPressed, IPainter::esDisabled};
            for (int i = 0; i < 4; ++i)
            {
                int const row = i / 2;
                double const x = r.left + i % 2 * ToInt(width + 3);
                double const y = r.top + row * ToInt(height + 4);
                p->DrawControlElement(part.element, x, y, x + ToInt(width) - 1, y + ToInt(height) - 1, states[i]);
            }
        });
    }
}

void AddBorders(CGrid* grid)
{
    for (int shape = bsBox; shape <= bsFrame; ++shape)
    {
        new CSample(grid, "border " + std::to_string(shape), [shape](IPainter* p, Rect const& r) {
            double const step = ToInt((r.bottom - r.top) / 3);
            for (int style = bsFlat; style <= bsSunken; ++style)
            {
                Rect const box{r.left, r.top + style * step, r.right, r.top + (style + 1) * step - 4};
                DrawBorder(p, box, static_cast<BorderShape>(shape), static_cast<BorderStyle>(style), true);
            }
        });
    }
}

}  // namespace

void CPartsPage::Build(CVisualElement* parent)
{
    auto* const grid = new CGrid(parent, {0, 0}, alClient, {100, 88}, 4);
    AddParts(grid);
    AddBorders(grid);
    Report(grid->m_SigSize, "grid.size");
}

}  // namespace gallery
