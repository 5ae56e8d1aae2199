#pragma once

#include "examples/chart/plot.h"
#include "gallery/frame/page.h"
#include "vexel/charts/unit_converter.h"

namespace gallery
{

class CChartPage : public CPage
{
public:
    void Build(CVisualElement* parent) override;

private:
    /// A day has 24 hours.
    class CDays : public IUnitConverter
    {
    public:
        double ToUnits(double value) override { return value / 24; }
        double FromUnits(double value) override { return value * 24; }
    };

    // They outlive the elements.
    chart::CRange m_Hours;
    chart::CRange m_Values;
    CDays m_Days;
};

}  // namespace gallery
