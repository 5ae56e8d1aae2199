#pragma once

#include "tests/support/edge_bench.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/slider.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace vexel::test
{

/// Points with values; their captions are "p0", "p1", ... by their indices.
class CPoints : public ISliderModel
{
public:
    explicit CPoints(std::vector<double> values, double min = 0, double max = 1)
        : m_Values(std::move(values)), m_Min(min), m_Max(max)
    {}
    void Set(std::vector<double> values)  ///< Tells.
    {
        m_Values = std::move(values);
        m_SigChanged(this);
    }
    double GetMinValue() const override { return m_Min; }
    double GetMaxValue() const override { return m_Max; }
    int GetPointCount() const override { return static_cast<int>(m_Values.size()); }
    double GetPointValue(int index) const override { return m_Values.at(static_cast<std::size_t>(index)); }
    std::string GetPointCaption(int index) const override { return "p" + std::to_string(index); }

    std::vector<double> m_Values;
    double m_Min;
    double m_Max;
};

/// A slider at (10, 30) of the window, 199 long and 39 across in either direction. Its track goes from 12 to 187 along,
/// which is a length of 175, and from 10 to 12 across. The pointer is 10 long and 22 across.
class CSliderBench : public testing::Test
{
protected:
    explicit CSliderBench(bool vertical, double scale = 1.0) : m_Vertical(vertical), m_Host(300, 300, scale)
    {
        NameElement(m_Slider, "slider");
        m_Slider.SetDirection(vertical ? CSlider::SliderVertical : CSlider::SliderHorizontal);
        Place(199, 39);
        m_Host.Focus();
        m_Slider.SetFocus(false);
        m_Host.Paint();
    }
    // In along and across pixels
    rectangle<int> Turned(int alongStart, int acrossStart, int alongEnd, int acrossEnd) const
    {
        return m_Vertical ? rectangle<int>{acrossStart, alongStart, acrossEnd, alongEnd}
                          : rectangle<int>{alongStart, acrossStart, alongEnd, acrossEnd};
    }
    /// The same as "left top right bottom".
    std::string Text(double alongStart, double acrossStart, double alongEnd, double acrossEnd) const
    {
        if (m_Vertical)
        {
            std::swap(alongStart, acrossStart);
            std::swap(alongEnd, acrossEnd);
        }
        std::string text;
        for (double const value : {alongStart, acrossStart, alongEnd, acrossEnd})
        {
            std::string number = std::to_string(value);
            number.erase(number.find_last_not_of('0') + 1);
            if (number.back() == '.')
                number.pop_back();
            text += (text.empty() ? "" : " ") + number;
        }
        return text;
    }
    point<int> At(int along, int across) const
    {
        return m_Vertical ? point<int>{across, along} : point<int>{along, across};
    }
    void Place(int along, int across)
    {
        rectangle<int> const extent = Turned(0, 0, along, across);
        m_Slider.SetPos({10, 30, 10 + extent.right, 30 + extent.bottom}, true);
        m_Ground.Update(utElement);
        m_Host.Paint();
    }
    PaintLog Repaint()
    {
        m_Slider.Update(utElement);
        return m_Host.Paint().Of("slider");
    }
    void UseModel()  ///< Three points: at 0, 87 and 175 of the track, with captions 5 pixels to both sides.
    {
        m_Slider.SetModel(&m_Points);
        m_Host.Paint();
    }

    // The user
    void Press(int along, int across, MouseButton button = mbLeft)
    {
        point<int> const where = At(along, across);
        m_Host.Mouse().Press(m_Slider, where.x, where.y, button);
    }
    void Move(int along, int across)
    {
        point<int> const where = At(along, across);
        m_Host.Mouse().Move(m_Slider, where.x, where.y);
    }
    void Release(MouseButton button = mbLeft) { m_Host.Mouse().Release(button); }
    bool IsCapturing() const { return m_Host.Control().GetControl()->GetCapture() == &m_Slider; }
    rectangle<int> Track() const { return Turned(12, 10, 187, 12); }

    bool const m_Vertical;
    CPoints m_Points{{0, 0.5, 1}};
    CTestHost m_Host;
    CSheet& m_Ground = *new CSheet(m_Host.Root(), {0, 0}, alClient);
    CSlider& m_Slider = *new CSlider(&m_Ground, {50, 20}, alNone);
};

}  // namespace vexel::test
