#include "gallery/pages/overlap_page.h"

#include "gallery/frame/panel.h"
#include "vexel/core/control.h"
#include "vexel/core/dpi.h"
#include "vexel/core/transparent_painter.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <algorithm>

namespace gallery
{

namespace
{

/// A sheet that can be dragged about by the mouse. Since sheets overlap, each move repaints their parent.
class CSheet : public CTransparentFlavor<CVisualElement>
{
public:
    CSheet(CVisualElement* parent, rectangle<int> place, int color, int alpha, char const* text)
        : CTransparentFlavor<CVisualElement>(parent, {0, 0}, alNone), m_Alpha(alpha), m_Text(text)
    {
        ApplyDPIScale(place);
        SetBkColor(color_table[color]);
        SetFgColor(color_table[1]);  // the ground is light in every theme
        SetTransparent(alpha < 255);
        SetCursor(12);
        SetPos(place, true);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        if (m_Alpha < 255)
        {
            CTransparentPainter scope(painter, rect, m_Alpha);
            DrawSheet(scope.GetPainter());
        }
        else
        {
            DrawSheet(painter);
        }
        painter->SetTextColor(color_table[1]);
        painter->DrawString(ToDouble(rect), m_Text,
                            IPainter::AlignHCenter | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
    }
    bool HandleButtonDown(int x, int y, int keys, MouseButton) override
    {
        if (!(keys & ksLeft))
            return false;
        m_Grip = {x, y};
        CaptureMouse();
        return true;
    }
    bool HandleMouseMove(int x, int y, int keys, MouseButton) override
    {
        if (!(keys & ksLeft) || GetControl()->GetCapture() != this)
            return false;
        // It stays on its ground, which is what is repainted.
        rectangle<int> const ground = GetParent()->GetBounds();
        rectangle<int> place = GetPos();
        place.Offset(x - m_Grip.x, y - m_Grip.y);
        place.Offset(std::min(ground.right - place.right, 0), std::min(ground.bottom - place.bottom, 0));
        place.Offset(std::max(ground.left - place.left, 0), std::max(ground.top - place.top, 0));
        SetPos(place, true);
        GetParent()->Update(utElement);
        return true;
    }
    bool HandleButtonUp(int, int, int, MouseButton) override
    {
        if (GetControl()->GetCapture() == this)
            ReleaseMouse();
        return true;
    }

private:
    void DrawSheet(IPainter* painter)
    {
        rectangle<double> const rect = ToDouble(GetBounds());
        brush fill;
        fill.color = GetBkColor();
        pen line;
        line.color = color_table[7];
        painter->SetBrush(fill);
        painter->SetPen(line);
        painter->Rectangle(rect.left, rect.top, rect.right, rect.bottom);
    }

    int const m_Alpha;
    char const* const m_Text;
    point<int> m_Grip;
};

/// Stands on a picture that is laid behind everything.
class CPictureGround : public CPanel
{
public:
    CPictureGround(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CPanel(parent, extent, alignment), m_Picture(MakePicture())
    {}

protected:
    bool HandleGetBkImage(vexel_ptr<IRasterPicture>& picture, _color& color, rectangle<int>& placement) override
    {
        // The placement is told in the control's pixels: the picture's left-top stands at this element's.
        rectangle<int> place = GetBounds();
        ElementToControl(&place);
        picture = m_Picture;
        color = color_table[9];
        placement = place;
        return true;
    }
    void DrawContent(IPainter* painter) override { DrawBkImage(painter, GetBounds(), {0, 0}); }

private:
    static vexel_ptr<IRasterPicture> MakePicture()
    {
        size<int> extent{900, 600};
        ApplyDPIScale(extent);
        vexel_ptr<IRasterPicture> picture = GetCurrentSystem()->CreateRasterPicture(extent);
        IPainter* const painter = picture->GetPainter();
        painter->BeginPaint(IPainter::ssPaint);
        for (int y = 0; y < extent.height; ++y)
        {
            brush fill;
            fill.color = _color::FromRgb(255 - 70 * y / extent.height, 248 - 30 * y / extent.height, 230);
            painter->SetBrush(fill);
            painter->FillRect(0, y, extent.width - 1, y);
        }
        painter->EndPaint();
        return picture;
    }

    vexel_ptr<IRasterPicture> const m_Picture;
};

}  // namespace

void COverlapPage::Build(CVisualElement* parent)
{
    auto* const ground = new CPictureGround(parent, {0, 0}, alClient);
    auto* const first = new CSheet(ground, {40, 40, 260, 180}, 24, 255, "first: hit first, painted first");
    auto* const second = new CSheet(ground, {160, 110, 400, 260}, 26, 255, "second");
    auto* const third = new CSheet(ground, {280, 60, 470, 220}, 16, 110, "third: shines through");
    auto* const fourth = new CSheet(ground, {120, 200, 330, 330}, 20, 70, "fourth: shines through");
    ReportMouse(first, "first");
    ReportMouse(second, "second");
    ReportMouse(third, "third");
    ReportMouse(fourth, "fourth");
}

}  // namespace gallery
