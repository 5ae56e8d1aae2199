#pragma once

#include "tests/scroll/scroll_support.h"
#include "vexel/charts/axis.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace charts_test
{

using namespace vexel;
using namespace vexel::test;
using scroll_test::CTestModel;

/// Shows ten times the model's value, and 5 more.
class CTenfold : public IUnitConverter
{
public:
    double ToUnits(double value) override { return value * 10 + 5; }
    double FromUnits(double value) override { return (value - 5) / 10; }
};

/// What was drawn, without brackets and tools: ticks as "tick 0,0-0,5" and labels as they were drawn.
inline std::string Drawing(PaintLog const& log)
{
    std::string text;
    for (std::string const& call : log.Calls())
    {
        if (call.starts_with("MoveTo "))
            text += "\ntick " + call.substr(7);
        else if (call.starts_with("LineTo "))
            text += " - " + call.substr(7);
        else if (call.starts_with("DrawString "))
            text += "\n" + call.substr(11);
    }
    return text + "\n";
}

/// The labels alone: text and along extents are all that it tells.
inline std::string Labels(PaintLog const& log)
{
    std::string text;
    for (std::string const& call : log.Calls())
        if (call.starts_with("DrawString "))
            text += (text.empty() ? "" : "\n") + call.substr(11);
    return text;
}

/// A window of 240 x 140 with a pane that spans 20 to 220 across and 20 to 120 down, and an axis of 30 at an edge.
/// A character is 8 wide and 8 high. Both models are the same: 0 to 1000, from 0 on, one unit a pixel.
template <class Axis> class CAxisBench : public testing::Test
{
protected:
    explicit CAxisBench(Alignment alignment = alBottom)
    {
        m_Pane->SetPos({20, 20, 220, 120}, false);
        Make(alignment);
    }
    void Make(Alignment alignment)
    {
        delete m_Axis;
        m_Axis = new Axis(m_Host.Root(), {30, 30}, alignment);
        m_Axis->SetCentralPane(m_Pane);
        m_Axis->SetHorzScroll(&m_Model);
        m_Axis->SetVertScroll(&m_Model);
        m_Host.Paint();
    }
    /// What a paint of the axis alone draws.
    PaintLog Draw()
    {
        m_Axis->Update(utElement);
        return m_Host.Paint();
    }
    void SetRange(double from, double to, double start)
    {
        m_Model.m_From = from;
        m_Model.m_To = to;
        m_Model.m_Start = start;
    }
    void SetFontSize(int points)
    {
        font value;
        value.size = points;
        m_Axis->SetFont(value);
        m_Host.Paint();
    }

    CTestModel m_Model{0, 1000, 0};
    CTestHost m_Host{240, 140};
    CVisualElement* m_Pane = new CVisualElement(m_Host.Root(), {10, 10}, alNone);
    Axis* m_Axis = nullptr;
};

}  // namespace charts_test
