#pragma once

#include "vexel/charts/unit_converter.h"
#include "vexel/scroll/scroll_converter.h"
#include "vexel/scroll/scrollable_element_ex.h"

#include <string>
#include <vector>

namespace vexel
{

/// A ruler along one edge of a scrolled view: the range of its model with major ticks, their labels, and minor ticks
/// between. The distance of the ticks follows from the width of the labels: a power of ten, or half of one, at which
/// they don't touch. The range may be reversed.
///
/// Drawn in the model's logical units along the edge and in pixels across, from the view's side outwards. "Along" and
/// "across" below are meant so.
class VEXEL_API CAxis : public CScrollableElementEx
{
public:
    CAxis(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CAxis() override;

    // Look: each repaints on a change -------------------------------------------------------------------------------------
    void SetAxisOffset(int offset);  ///< Across position where ticks begin; 0 at first. Labels keep their place.
    int GetAxisOffset() const { return m_AxisOffset; }
    void SetLabelOffset(int offset);  ///< From the end of a major tick to its label; 2 at first.
    int GetLabelOffset() const { return m_LabelOffset; }
    void SetTickMarksSize(int major, int minor);  ///< 5 and 2 at first.
    int GetMajorTickSize() const { return m_MajorTickSize; }
    int GetMinorTickSize() const { return m_MinorTickSize; }
    void SetLabelGapPixels(int gap);  ///< Wanted between two labels, along; 10 at first.
    int GetLabelGapPixels() const { return m_LabelGapPixels; }
    void SetRotateText(bool rotate);  ///< At the left and right edge labels run downwards; on at first.
    bool IsTextRotated() const { return m_RotateText; }

    // Ticks: of the last drawing, and not valid before the first ----------------------------------------------------------
    std::vector<double> const& GetMajorTicks() const { return m_MajorTicks; }  ///< Logical values, rising.
    std::vector<double> const& GetMinorTicks() const { return m_MinorTicks; }  ///< Likewise; without the major ones.
    double GetStep() const { return m_Step; }                                  ///< Between major ticks; logical.
    int GetMinorCount() const { return m_MinorCount; }                         ///< Parts of a step: 10, 5, 2 or 1.
    double GetLabelGap() const { return m_LabelGap; }                          ///< The gap in logical units.

    // Parts of its work -----------------------------------------------------------------------------------------------------
    /// The room of a label: its width and a blank's, were all its characters a 9, and the gap. Logical. Notes the gap.
    double GetLabelTextSize(CScrollConverter const& converter, IPainter* painter, double value, double step) const;
    /// Chooses step and minor count for the model's range. Without a model or a window, and for a range that is not
    /// finite, both stay.
    void CalcLogicStep();
    /// Draws the label of a major tick; `position`: the tick's end. One that would go beyond `limit` is pulled back, or
    /// left out where the label before it, which ends at `lastEnd`, is in the way. Returns where the label ends, or the
    /// tick's along value for one that is left out.
    double DrawLabel(IPainter* painter, point<double> const& position, double value, double lastEnd, double limit);

public:  // From CVisualElement
    /// The background; with a model and some length also ticks and labels.
    void DrawContent(IPainter* painter) override;
    bool ScrollContent(int dx, int dy) override;
    /// Sets the present alignment again: only a control can tell the font.
    void ProcessSetControl(IControl* control) override;
    void HandleRefreshPos() override;  ///< Repaints if a layout has changed the pane's span.

public:  // Overridable
    /// The across extent that ticks and a label like `sample` need; empty: like "9999". 0 without a window.
    virtual int CalcMinHeight(std::string const& sample) const;
    /// Not owned, must outlive its use; null, as at first: the model's own units. Doesn't repaint.
    virtual void SetUnitConverter(IUnitConverter* converter);
    virtual void DrawBackground(IPainter* painter);  ///< In own pixels.
    /// A tick from `*position` outwards, which is then its end.
    virtual void DrawLine(IPainter* painter, point<double>* position, bool major);
    /// Sets pen or font for what follows. Called before each label is measured; `position`: its tick's end.
    virtual void PrepareAttr(point<double> const& /*position*/, double /*value*/) {}
    /// `value` in the shown units, with as many decimals as the step asks for.
    virtual std::string GetLabelText(double value, double step) const;

public:
    IUnitConverter* GetUnitConverter() const { return m_UnitConverter; }

protected:
    IPainter* GetWindowPainter() const;  ///< Null without a control or window.
    font TurnFont(font value) const;     ///< As the text is rotated.

private:
    void ChooseStep(IPainter* painter, IScrollModel* model);
    void DrawTicks(IPainter* painter, IScrollModel const& model);

    double m_Step = 1.0;
    int m_MinorCount = 10;
    bool m_RotateText = true;
    int m_AxisOffset = 0;
    int m_LabelOffset = 2;
    int m_MajorTickSize = 5;
    int m_MinorTickSize = 2;
    int m_LabelGapPixels = 10;
    mutable double m_LabelGap = 0;
    std::vector<double> m_MajorTicks;
    std::vector<double> m_MinorTicks;
    IUnitConverter* m_UnitConverter = nullptr;
    rectangle<double> m_Span;  // own pixels, after the last layout
};

}  // namespace vexel
