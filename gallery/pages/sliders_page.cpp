#include "gallery/pages/sliders_page.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/system.h"

#include "vexel/platform/device_pixels.h"

namespace gallery
{

namespace
{

int const g_PixelPos = 80;

}  // namespace

double CSlidersPage::CPlaces::GetPointValue(int index) const
{
    static double const values[] = {0, 20, 40, 70, 100};
    return values[index];
}

std::string CSlidersPage::CPlaces::GetPointCaption(int index) const
{
    static char const* const captions[] = {"A", "B", "C", "D", "E"};
    return captions[index];
}

/// A look of one's own: a round pointer that lights up under the mouse, captions in different colours.
class CSlidersPage::CColours : public CDefSliderDrawingModel
{
public:
    void GetAttr(int point, font& value, _color& text, _color&, int&) const override
    {
        static _color const colors[] = {color_table[13], color_table[19], color_table[11], color_table[6],
                                        color_table[5]};
        text = colors[point % 5];
        value.style |= font::fsBold;
    }
    void OnDrawPointer(IPainter* painter, rectangle<double> const& rect, int state, ILayout*) const override
    {
        painter->SetBrush({state & IPainter::esHot ? color_table[11] : color_table[16], brush::bsSolid});
        painter->SetPen({color_table[7], pen::psSolid, 1});
        painter->RoundRect(rect.left, rect.top, rect.right, rect.bottom, rect.Width() / 2, rect.Height() / 2);
    }
    void GetContentRect(int point, int state, rectangle<double>& rect, ILayout* layout) const override
    {
        CDefSliderDrawingModel::GetContentRect(point, state, rect, layout);
        layout->GetAlongRef(rect.left, rect.top) -= 6;  // room for the bold letters
        layout->GetAlongRef(rect.right, rect.bottom) += 6;
    }
    size<int> GetPointerSize(ILayout*) const override
    {
        int const extent = ToDevicePixels(16);
        return {extent, extent};
    }
};

CSlidersPage::CSlidersPage() : m_Colours(std::make_unique<CColours>()) {}
CSlidersPage::~CSlidersPage() = default;

CSlider* CSlidersPage::AddSlider(CVisualElement* parent, std::string const& name, size<int> const& extent,
                                 Alignment alignment, ISliderModel* model)
{
    auto* const slider = new CSlider(parent, extent, alignment);
    if (alignment == alTop)
        slider->SetDirection(CSlider::SliderHorizontal);
    slider->SetModel(model);
    Report(slider->m_PosTracking, name + ".tracking");
    Report(slider->m_PosChanged, name + ".changed");
    return slider;
}

void CSlidersPage::Build(CVisualElement* parent)
{
    auto* const left = new CPanel(parent, {340, 0}, alLeft);
    new CLabel(left, {0, 22}, alTop, "Points, with the arrow keys or the mouse");
    AddSlider(left, "points", {0, 50}, alTop, &m_Places)->SetSliderPos(2);
    new CLabel(left, {0, 22}, alTop, "No points: every pixel is a position");
    CSlider* const pixels = AddSlider(left, "pixels", {0, 30}, alTop, nullptr);
    new CLabel(left, {0, 22}, alTop, "A look of one's own");
    CSlider* const coloured = AddSlider(left, "coloured", {0, 46}, alTop, &m_Places);
    coloured->SetDrawingModel(m_Colours.get());
    coloured->SetSliderPos(1);
    new CLabel(left, {0, 22}, alTop, "Disabled");
    CSlider* const disabled = AddSlider(left, "disabled", {0, 50}, alTop, &m_Places);
    disabled->SetSliderPos(3);
    disabled->SetEnabled(false);
    new CPanel(left, {0, 0}, alClient);

    new CPanel(parent, {20, 0}, alLeft);
    AddSlider(parent, "down", {60, 0}, alLeft, &m_Places)->SetSliderPos(1);
    new CPanel(parent, {20, 0}, alLeft);
    CSlider* const pixelsDown = AddSlider(parent, "pixels down", {30, 0}, alLeft, nullptr);
    new CPanel(parent, {20, 0}, alLeft);
    CSlider* const own = AddSlider(parent, "coloured down", {60, 0}, alLeft, &m_Places);
    own->SetDrawingModel(m_Colours.get());
    own->SetSliderPos(3);
    new CPanel(parent, {0, 0}, alClient);
    for (CSlider* const slider : {pixels, pixelsDown})
        slider->m_SigSize.connect(this, &CSlidersPage::SliderPlaced);
}

// Only a track with a length has positions.
void CSlidersPage::SliderPlaced(CVisualElement* slider)
{
    slider->m_SigSize.disconnect(this, &CSlidersPage::SliderPlaced);
    static_cast<CSlider*>(slider)->SetSliderPos(g_PixelPos);
}

}  // namespace gallery
