#pragma once

#include "vexel/export.h"
#include "vexel/scroll/scroll_model.h"

namespace vexel
{

/// Maps a model's logical values to physical ones and back. A value type around a model, which it doesn't own; null is
/// legal for the two conversions, which then give 0.
///
/// Physical 0 is the lower of the model's two ends. Unequal steps are counted from step 0 on, each position inside a
/// step in proportion; where steps are fixed or inseparable the conversion takes constant time.
class VEXEL_API CScrollConverter
{
public:
    CScrollConverter() = default;
    explicit CScrollConverter(IScrollModel* model) : m_Model(model) {}

    IScrollModel* GetModel() const { return m_Model; }

    double L2P(double value) const;  ///< Not rounded.
    double P2L(int position) const { return P2L(static_cast<double>(position)); }
    double P2L(double position) const;  ///< Also for ranges of more physical units than an int can count.

    bool IsNormalScale() const;  ///< The whole range fits a bar of 32 bits. Requires a model.
    /// Spreads a range that doesn't fit over 2,147,483,646 physical units, by changing the model's measure. True: it had
    /// to. Requires a model.
    bool NormalizeScale();

private:
    double GetPhysicalLength() const;

    IScrollModel* m_Model = nullptr;
};

}  // namespace vexel
