#pragma once

#include "examples/chart/plot.h"
#include "gallery/frame/page.h"
#include "vexel/charts/unit_converter.h"
#include "vexel/headers/items_model.h"

#include <string>

namespace gallery
{

class CAxesPage : public CPage
{
public:
    CAxesPage();
    ~CAxesPage() override;
    void Build(CVisualElement* parent) override;

private:
    /// Units in proportion.
    class CUnits : public IUnitConverter
    {
    public:
        explicit CUnits(double factor) : m_Factor(factor) {}

        double ToUnits(double value) override { return value * m_Factor; }
        double FromUnits(double value) override { return value / m_Factor; }

    private:
        double const m_Factor;
    };
    class CMonths : public IItemsModel
    {
    public:
        int GetItemCount() const override;
        std::string GetItemCaption(int index) const override;
    };
    class CPlot;
    class CColumns;

    // They outlive the elements.
    chart::CRange m_Minutes{-600, 1440};
    chart::CRange m_Metres{0, 200};  // grows downwards
    CUnits m_Hours{1.0 / 60};
    CUnits m_Feet{3.28084};
    chart::CRange m_MonthRange{-0.5, 11.5};
    chart::CRange m_Rain{100, 0};  // grows upwards
    CMonths m_Months;
};

}  // namespace gallery
