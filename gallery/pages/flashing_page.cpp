#include "gallery/pages/flashing_page.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/border.h"
#include "vexel/platform/painter.h"

namespace gallery
{

namespace
{

/// A raised box that draws with a palette of its own.
class CRaisedBox : public CVisualElement, public IPaletteSupport
{
public:
    using CVisualElement::CVisualElement;

    void SetPalette(vexel_ptr<ICustomPaletteEx> palette) override
    {
        m_Palette = palette;
        Update(utElement);
    }
    vexel_ptr<ICustomPaletteEx> GetPalette() override { return m_Palette; }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<double> const rect = ToDouble(GetBounds());
        painter->m_Palette = m_Palette;
        DrawBorder(painter, rect, bsBox, bsRaised, true);
        painter->m_Palette.reset();
        painter->DrawString(rect, "palette", IPainter::AlignHCenter | IPainter::AlignVCenter, -1);
    }

private:
    vexel_ptr<ICustomPaletteEx> m_Palette;
};

}  // namespace

CFlashingPage::~CFlashingPage()
{
    if (m_Timer)
        m_Timer->SetRunning(false);
}

void CFlashingPage::Build(CVisualElement* parent)
{
    char const* const texts[] = {"the system's highlight", "white on red", "only the background"};
    _color const foregrounds[] = {color_table[0], color_table[9], color_table[1]};
    _color const backgrounds[] = {color_table[0], color_table[6], color_table[3]};
    for (int i = 0; i < 3; ++i)
    {
        auto* const panel = new CPanel(parent, {0, 50}, alTop);
        panel->SetText(texts[i]);
        panel->SetFrame(true);
        m_Colors.AddElement(panel, foregrounds[i], backgrounds[i]);
    }
    auto* const row = new CPanel(parent, {0, 60}, alTop);
    for (int color : {24, 17})
    {
        auto* const box = new CRaisedBox(row, {140, 0}, alLeft);
        vexel_ptr<ICustomPaletteEx> const flashed = CreateCustomPalette();
        flashed->SetBaseColor(color_table[color]);
        m_Palettes.AddElement(box, flashed);
    }
    m_Timer = GetCurrentSystem()->CreateTimer(500, 0);
    m_Timer->Subscribe(this, typeid(ITimerNotify), true);
    m_Timer->SetRunning(true);
}

void CFlashingPage::OnTimer(CTimerEvent*)
{
    m_Flashed = !m_Flashed;
    if (m_Flashed)
    {
        m_Colors.ProcessFlashed();
        m_Palettes.ProcessFlashed();
    }
    else
    {
        m_Colors.ProcessNormal();
        m_Palettes.ProcessNormal();
    }
}

}  // namespace gallery
