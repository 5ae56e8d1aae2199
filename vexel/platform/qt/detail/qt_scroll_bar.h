#pragma once

#include "vexel/platform/events.h"
#include "vexel/platform/qt/detail/native_node.h"
#include "vexel/platform/qt/detail/scroll_steps.h"

namespace vexelbase::qt
{

/// A QScrollBar. What the record says is kept; the Qt bar shows it as near as it can. Positions that its steps give are
/// reckoned from the record, so that lines and pages are exact whatever the range.
class CQtScrollBar final : public CQtNativeControl<IScrollBar>
{
public:
    CQtScrollBar(CQtWindow& window, bool vertical);
    ~CQtScrollBar() override;

    // From IScrollBar ---------------------------------------------------------------------------------------------
    void GetInfo(SScrollBarInfo& info) const override { info = m_Info; }
    void SetInfo(SScrollBarInfo const& info) override;
    double GetScrollPos() const override { return m_Info.position; }
    void SetScrollPos(double position) override;
    void Refresh() override;
    std::string GetText() const override { return {}; }

    // From CQtNativeNode ------------------------------------------------------------------------------------------
    bool HandleEvent(QEvent& event) override;

protected:
    bool TakesFocusByTab() const override { return false; }

private:
    class CBar;

    double GetWay() const;
    double GetThumbPos() const;  // from the left or top end
    void UserMoves(double fromEnd, CScrollEvent::ScrollAction action);
    void StepBy(double distance, CScrollEvent::ScrollAction action) { UserMoves(GetThumbPos() + distance, action); }
    void ActionTriggered(int action);
    void ValueChanged(int value);
    void ShowInfo();

    bool const m_Vertical;
    CBar* m_Bar = nullptr;  // the widget
    SScrollBarInfo m_Info;
    CScrollSteps m_Steps;
    bool m_Showing = false;  // the bar is being set by code
    int m_WheelRest = 0;
};

}  // namespace vexelbase::qt
