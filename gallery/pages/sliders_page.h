#pragma once

#include "gallery/frame/page.h"
#include "vexel/widgets/slider.h"

#include <vector>

namespace gallery
{

class CSlidersPage : public CPage, public subscriber_base_t
{
public:
    CSlidersPage();
    ~CSlidersPage() override;
    void Build(CVisualElement* parent) override;

private:
    /// Not evenly spread.
    class CPlaces : public ISliderModel
    {
    public:
        double GetMaxValue() const override { return 100.0; }
        double GetMinValue() const override { return 0.0; }
        int GetPointCount() const override { return 5; }
        double GetPointValue(int index) const override;
        std::string GetPointCaption(int index) const override;
    };
    class CColours;

    void SliderPlaced(CVisualElement* slider);
    CSlider* AddSlider(CVisualElement* parent, std::string const& name, size<int> const& extent, Alignment alignment,
                       ISliderModel* model);

    CPlaces m_Places;
    std::unique_ptr<CColours> m_Colours;
};

}  // namespace gallery
