#pragma once

#include "gallery/frame/page.h"
#include "vexel/widgets/slider.h"

#include <vector>

namespace gallery
{

class CSlidersPage : public CPage
{
public:
    CSlidersPage();
    ~CSlidersPage() override;
    void Build(CVisualElement* parent) override;

private:
    /// Sizes of a print, say: not evenly spread.
    class CSizes : public ISliderModel
    {
    public:
        double GetMaxValue() const override { return 100.0; }
        double GetMinValue() const override { return 0.0; }
        int GetPointCount() const override { return 5; }
        double GetPointValue(int index) const override;
        std::string GetPointCaption(int index) const override;
    };
    class CColours;

    CSlider* AddSlider(CVisualElement* parent, std::string const& name, size<int> const& extent, Alignment alignment,
                       ISliderModel* model);

    CSizes m_Sizes;
    std::unique_ptr<CColours> m_Colours;
};

}  // namespace gallery
