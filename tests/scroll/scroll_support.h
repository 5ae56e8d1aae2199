#pragma once

#include "tests/support/text_log.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/painter.h"
#include "vexel/scroll/scroll_model.h"
#include "vexel/signals/event_sender.h"
#include "vexel/signals/notify.h"
#include "vexel/signals/signal.h"
#include "vexel/testing/describe.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace scroll_test
{

using namespace vexel;

using CLog = vexel::test::CTextLog;

/// A range that is what the test says. Steps beyond the list are 1.
class CTestModel : public IScrollModel
{
public:
    CTestModel() = default;
    CTestModel(double from, double to, double start = 0) : m_From(from), m_To(to), m_Start(start) {}

    double m_From = 0;
    double m_To = 0;
    double m_Start = 0;
    int m_LineStep = 5;
    std::pair<double, int> m_Measure{1.0, 1};
    bool m_Fixed = true;
    bool m_Inseparable = false;
    bool m_TakesMeasure = true;
    bool m_CutsStart = false;  ///< To what lies between the ends.
    std::vector<double> m_Steps;
    std::function<void()> m_OnSetStart;  ///< After each.
    CLog m_Calls;                        ///< What changes it.

    double GetFrom() const override { return m_From; }
    double GetTo() const override { return m_To; }
    void SetStart(double value) override
    {
        m_Calls.Add("start(" + test::Describe(value) + ")");
        m_Start = value;
        if (m_CutsStart)
            m_Start = std::max(std::min(m_From, m_To), std::min(std::max(m_From, m_To), value));
        std::function<void()> const then = m_OnSetStart;  // it may delete the model
        if (then)
            then();
    }
    double GetStart() const override { return m_Start; }
    int GetMinScrollDistance() const override { return m_LineStep; }
    bool IsFixedStepSize() const override { return m_Fixed; }
    double GetStepSize(double index) const override
    {
        ++m_StepsAsked;
        return index >= 0 && index < static_cast<double>(m_Steps.size()) ? m_Steps[static_cast<std::size_t>(index)]
                                                                         : 1.0;
    }
    void SetStepSize(double index, double size) const override
    {
        const_cast<CLog&>(m_Calls).Add("step(" + test::Describe(index) + ", " + test::Describe(size) + ")");
    }
    void SetMeasure(std::pair<double, int> measure) override
    {
        m_Calls.Add("measure(" + test::Describe(measure.first) + ", " + test::Describe(measure.second) + ")");
        if (m_TakesMeasure)
            m_Measure = measure;
    }
    std::pair<double, int> GetMeasure() const override { return m_Measure; }
    bool IsInseparableStep() const override { return m_Inseparable; }
    void Update() override { m_Calls.Add("update"); }

    mutable int m_StepsAsked = 0;
};

/// A bar that writes down what is asked of it.
class CTestBar : public CImplEventSender<IScrollBar>
{
public:
    explicit CTestBar(CLog& log) : m_Log(log) { SetSupportedEvent(typeid(IScrollBarNotify)); }

    SScrollBarInfo m_Info;
    double m_Limit = 1e300;  ///< SetScrollPos accepts no more.

    void GetInfo(SScrollBarInfo& info) const override { info = m_Info; }
    void SetInfo(SScrollBarInfo const& info) override
    {
        using test::Describe;
        m_Info = info;
        m_Log.Add("info(" + Describe(static_cast<int>(info.mask)) + ": " + Describe(info.minimum) + " to " +
                  Describe(info.maximum) + " by " + Describe(info.lineStep) + ", page " + Describe(info.page) +
                  ", at " + Describe(info.position) + (info.inverted ? ", inverted)" : ")"));
    }
    double GetScrollPos() const override { return m_Info.position; }
    void SetScrollPos(double position) override
    {
        m_Log.Add("pos(" + test::Describe(position) + ")");
        m_Info.position = std::min(position, m_Limit);
    }
    void SetPos(int, int, int, int) override {}
    rectangle<int> GetRect() const override { return {}; }
    void SetVisible(bool) override {}
    bool IsVisible() const override { return false; }
    void SetFocus() override {}
    void SetEnabled(bool enabled) override { m_Log.Add(enabled ? "enable" : "disable"); }
    void Refresh() override {}
    std::string GetText() const override { return {}; }

private:
    CLog& m_Log;
};

/// Logical origin and extent -> device origin and extent.
inline std::string Text(IPainter::CoordInfo const& info)
{
    return test::Describe(info.m_LogicalOrigin.x) + " " + test::Describe(info.m_LogicalOrigin.y) + ", " +
           test::Describe(info.m_LogicalExtent.width) + " " + test::Describe(info.m_LogicalExtent.height) + " -> " +
           test::Describe(info.m_DeviceOrigin.x) + " " + test::Describe(info.m_DeviceOrigin.y) + ", " +
           test::Describe(info.m_DeviceExtent.width) + " " + test::Describe(info.m_DeviceExtent.height);
}

}  // namespace scroll_test
