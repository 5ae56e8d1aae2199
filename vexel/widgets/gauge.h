#pragma once

#include "vexel/core/transparent_flavor.h"
#include "vexel/core/visual_element.h"

#include <string>

namespace vexel
{

/// A progress bar: a bar in the text colour, from the left, as long as the value's part of the range. A fresh one has an
/// empty range and shows no bar. Transparent, it leaves out its ground.
class VEXEL_API CGauge : public CTransparentFlavor<CVisualElement>
{
public:
    CGauge(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    double GetMin() const { return m_Min; }
    void SetMin(double value);  ///< Pulls up a value below it; the maximum stays. Repaints on a change.
    double GetMax() const { return m_Max; }
    void SetMax(double value);  ///< Pulls down a value above it; the minimum stays. Repaints on a change.
    double GetValue() const { return m_Value; }
    void Increase(double step);  ///< Below 0: decreases. Ends at the ends of the range. Repaints on a change.
    void Reset();                ///< Back to the minimum. Repaints on a change.
    /// The bar's right end: of a rising range the value's part of the width, in own pixels, truncated; of any other one 0.
    int GetDrawingVal() const;

public:  // From CVisualElement
    void DrawContent(IPainter* painter) override;
    /// "[42%]", by the value itself over the length of the range: a minimum that isn't 0 is not taken off.
    std::string HandleAsString() const override;

public:  // Overridable
    virtual void DrawBackground(IPainter* painter);

private:
    double m_Min = 0;
    double m_Max = 0;
    double m_Value = 0;
};

}  // namespace vexel
