#pragma once

#include "numbers.h"
#include "plot.h"

#include "vexel/controls/button.h"
#include "vexel/controls/caption.h"
#include "vexel/signals/connection.h"

#include <memory>
#include <string>
#include <vector>

namespace chart
{

/// The window's contents: a legend, a button that saves, a plot and its axes.
class CChartView
{
public:
    /// The first column is the plot's horizontal one; `wanted` are names or numbers (from 1 on) of the others, none: all.
    CChartView(CVisualElement* parent, SNumbers numbers, std::vector<std::string> const& wanted);

    signal_t<> m_SigSave;  ///< The button was pressed.

    void Tell(std::string const& text) { m_Message->SetCaption(text); }
    CPlot& GetPlot() { return *m_Plot; }
    std::vector<std::string> const& GetUnknown() const { return m_Unknown; }  ///< Those of `wanted` that there are not.

private:
    void TakeSeries(SNumbers numbers, std::vector<std::string> const& wanted);

    CRange m_Horz;
    CRange m_Vert;
    std::vector<std::unique_ptr<CSeries>> m_Series;
    std::vector<std::string> m_Unknown;
    CPlot* m_Plot = nullptr;  // the tree's, as what follows
    CCaption* m_Message = nullptr;
    CConnection m_Save;
};

}  // namespace chart
