#pragma once

#include "gallery/frame/page.h"
#include "vexel/charts/unit_converter.h"
#include "vexel/headers/items_model.h"
#include "vexel/scroll/scroll_model.h"

#include <string>
#include <utility>

namespace gallery
{

class CAxesPage : public CPage
{
public:
    CAxesPage();
    ~CAxesPage() override;
    void Build(CVisualElement* parent) override;

private:
    /// A range that is what it was set to.
    class CRange : public ISimpleScrollModel
    {
    public:
        CRange(double from, double to) : m_From(from), m_To(to), m_Start(from < to ? from : to) {}

        double GetFrom() const override { return m_From; }
        double GetTo() const override { return m_To; }
        void SetStart(double value) override { m_Start = value; }
        double GetStart() const override { return m_Start; }
        int GetMinScrollDistance() const override { return 1; }
        void SetMeasure(std::pair<double, int> measure) override { m_Measure = measure; }
        std::pair<double, int> GetMeasure() const override { return m_Measure; }

    private:
        double const m_From;
        double const m_To;
        double m_Start;
        std::pair<double, int> m_Measure{1.0, 1};
    };
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
    CRange m_Minutes{-600, 1440};
    CRange m_Metres{0, 200};  // grows downwards
    CUnits m_Hours{1.0 / 60};
    CUnits m_Feet{3.28084};
    CRange m_MonthRange{-0.5, 11.5};
    CRange m_Rain{100, 0};  // grows upwards
    CMonths m_Months;
};

}  // namespace gallery
