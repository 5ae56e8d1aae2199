#include "gallery/pages/round_buttons_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/round_bg_button.h"
#include "vexel/core/clip_holder.h"
#include "vexel/platform/system.h"

#include <string>

namespace gallery
{

namespace
{

CRoundBgButton* Add(CVisualElement* parent, std::string const& text, int image = -1)
{
    auto* const button = new CRoundBgButton(parent, {0, 0}, alNone);
    button->SetImageIndex(image);
    button->SetCaption(text);
    button->SetFgColor(color_table[1]);  // the pictures are light in every theme
    return button;
}

_color const g_Even = _color::FromRgb(214, 226, 196);
_color const g_Odd = _color::FromRgb(178, 203, 156);

void PaintStripes(IPainter* painter, size<int> const& extent)
{
    int const stripe = 24;
    for (int x = -extent.height, number = 0; x < extent.width; x += stripe, ++number)
    {
        _color const color = number % 2 == 0 ? g_Even : g_Odd;
        painter->SetBrush({color, brush::bsSolid});
        painter->SetPen({color, pen::psSolid, 1});
        double const left = x;
        double const shift = extent.height;
        point<double> const corners[] = {
            {left + shift, 0}, {left + shift + stripe, 0}, {left + stripe, shift}, {left, shift}};
        painter->Polygon(corners, 4);
    }
}

// A pane that paints slanted stripes itself.
class CStripes : public CGrid
{
public:
    using CGrid::CGrid;

private:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        CClipHolder const clip(painter, ToDouble(bounds));
        PaintStripes(painter, {bounds.right + 1, bounds.bottom + 1});
    }
};

// A pane with the same as a background picture, which its children know of.
class CPicturePane : public CGrid
{
public:
    using CGrid::CGrid;

private:
    bool HandleGetBkImage(vexel_ptr<IRasterPicture>& picture, _color& color, rectangle<int>& placement) override
    {
        rectangle<int> const bounds = GetBounds();
        if (bounds.IsEmpty())
            return false;
        size<int> const extent{bounds.right + 1, bounds.bottom + 1};
        if (!m_Picture || m_Picture->GetSize() != extent)
        {
            m_Picture = GetCurrentSystem()->CreateRasterPicture(extent);
            IPainter* const painter = m_Picture->GetPainter();
            painter->BeginPaint(IPainter::ssPaint);
            PaintStripes(painter, extent);
            painter->EndPaint();
        }
        picture = m_Picture;
        color = g_Even;
        point<int> origin;
        ElementToControl(&origin);
        placement = {origin.x, origin.y, origin.x, origin.y};
        return true;
    }
    void DrawContent(IPainter* painter) override { DrawBkImage(painter, GetBounds(), {}); }

    vexel_ptr<IRasterPicture> m_Picture;
};

}  // namespace

void CRoundButtonsPage::Build(CVisualElement* parent)
{
    new CLabel(parent, {0, 28}, alTop, "One picture for each state: at rest, under the pointer, pressed, disabled");
    auto* const grid = new CGrid(parent, {0, 104}, alTop, {150, 36}, 12);
    Report(Add(grid, "Accept")->m_Clicked, "accept.clicked");
    Report(Add(grid, "With an image", 0)->m_Clicked, "image.clicked");
    Add(grid, "Disabled")->SetEnabled(false);
    Add(grid, "Disabled", 1)->SetEnabled(false);
    auto* const repeating = Add(grid, "Hold me");
    repeating->SetAutoRepeat(true);
    Report(repeating->m_Clicked, "repeating.clicked");
    Report(Add(grid, "")->m_Clicked, "empty.clicked");

    new CLabel(parent, {0, 28}, alTop, "In other sizes");
    auto* const small = new CGrid(parent, {0, 44}, alTop, {60, 22}, 12);
    Report(Add(small, "Small")->m_Clicked, "small.clicked");
    Report(Add(small, "Two")->m_Clicked, "small.clicked");
    auto* const large = new CGrid(parent, {0, 92}, alTop, {320, 68}, 12);
    Report(Add(large, "Large")->m_Clicked, "large.clicked");

    new CLabel(parent, {0, 28}, alTop, "See-through, over what the parent paints");
    AddSeeThrough(new CStripes(parent, {0, 64}, alTop, {150, 40}, 12));
    new CLabel(parent, {0, 28}, alTop, "See-through, over a background picture");
    AddSeeThrough(new CPicturePane(parent, {0, 0}, alClient, {150, 40}, 12));
}

void CRoundButtonsPage::AddSeeThrough(CVisualElement* pane)
{
    for (std::string const text : {"Let", "through", "Disabled"})
    {
        auto* const button = Add(pane, text);
        button->SetTransparent(true);
        button->SetEnabled(text != "Disabled");
        Report(button->m_Clicked, text + ".clicked");
    }
}

}  // namespace gallery
