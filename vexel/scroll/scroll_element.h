#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/events.h"
#include "vexel/platform/native_controls.h"
#include "vexel/scroll/scroll_converter.h"
#include "vexel/signals/notify.h"
#include "vexel/signals/signal.h"

namespace vexel
{

/// Drives one native bar from one scroll model: gives the bar its range, and tells the logical positions that the bar
/// asks for. It never moves the model on the bar's behalf: whoever hears m_SigScroll does.
class VEXEL_API CScrollElement : public CScrollBarNotify
{
public:
    enum Policy : int
    {
        spAutomatic = 0,  ///< The bar shows where the range is longer than the page.
        spAlways = 1,
        spNever = 2
    };

    CScrollElement() = default;
    ~CScrollElement() override;

    /// The logical position that is asked for. A slot may delete this object.
    signal_t<CScrollEvent::ScrollAction, double> m_SigScroll;

    // Bar -----------------------------------------------------------------------------------------------------------
    IScrollBar* GetScrollBar() const { return m_ScrollBar; }
    void SetScrollBar(IScrollBar* bar) { m_ScrollBar = bar; }  ///< Not owned, nor subscribed to. Null: none.
    bool IsEnabled() const { return m_Enabled; }
    void SetEnabled(bool enabled) { m_Enabled = enabled; }  ///< Whether Recalculate may enable the bar.
    Policy GetPolicy() const { return m_Policy; }
    void SetPolicy(Policy policy) { m_Policy = policy; }   ///< Takes effect with the next Recalculate.
    bool IsScrollBarVisible() const { return m_Visible; }  ///< As the last Recalculate decided.

    // Range ---------------------------------------------------------------------------------------------------------
    /// Gives the bar the model's range, with a page of so many pixels (at least 1), which counts in whole items where
    /// steps are inseparable. A view that has fallen off the end asks to be moved back (saRangeChanged) before the bar
    /// hears of it. A range no longer than the page disables the bar, which keeps its old range, and moves the model to
    /// its lower end. A null model disables the bar. Nothing without a bar.
    void Recalculate(IScrollModel* model, int pagePixels);

    // Position: logical ---------------------------------------------------------------------------------------------
    double GetVal() const;  ///< Where the bar stands; 0 without one.
    /// Moves the bar and tells (saSetValue) what it accepted. Nothing without a bar.
    void SetVal(double value);

    // From IScrollBarNotify -----------------------------------------------------------------------------------------
    void ScrollBarOnScroll(CScrollEvent* event) override;

private:
    double GetWholePage(IScrollModel const& model, int page) const;

    IScrollBar* m_ScrollBar = nullptr;
    CScrollConverter m_Converter;  // around the model of the last Recalculate
    bool m_Visible = false;
    bool m_Enabled = true;
    Policy m_Policy = spAutomatic;
};

}  // namespace vexel
