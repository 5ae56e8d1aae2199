#pragma once

#include "vexel/export.h"
#include "vexel/scroll/scroll_model.h"

namespace vexel
{

class IContinuousItemViewModel;
class IDiscreteItemViewModel;

/// Presents rows to a scroll bar: a logical unit is an item, scrolled whole. For the bar every item has the default
/// size, so a list of any length is converted without a walk.
class VEXEL_API CDiscreteItemScrollModel : public IScrollModel
{
public:
    /// Null: an empty range. Not owned: it must outlive this object or be replaced first.
    void SetViewModel(IDiscreteItemViewModel* model) { m_ViewModel = model; }
    IDiscreteItemViewModel* GetViewModel() const { return m_ViewModel; }

    double GetFrom() const override { return 0.0; }
    double GetTo() const override;
    void SetStart(double value) override;  ///< Goes to the nearest item.
    double GetStart() const override;
    int GetMinScrollDistance() const override;
    bool IsFixedStepSize() const override { return false; }
    double GetStepSize(double index) const override;  ///< In default sizes; 0 where the default is 0.
    void SetStepSize(double index, double size) const override;
    void SetMeasure(std::pair<double, int>) override {}
    std::pair<double, int> GetMeasure() const override;
    bool IsInseparableStep() const override { return true; }

private:
    IDiscreteItemViewModel* m_ViewModel = nullptr;
};

/// Presents columns to a scroll bar, in pixels.
class VEXEL_API CContinuousItemScrollModel : public IPhysicalScrollModel
{
public:
    /// Null: an empty range. Not owned: it must outlive this object or be replaced first.
    void SetViewModel(IContinuousItemViewModel* model) { m_ViewModel = model; }
    IContinuousItemViewModel* GetViewModel() const { return m_ViewModel; }

    double GetFrom() const override { return 0.0; }
    double GetTo() const override;
    void SetStart(double value) override;
    double GetStart() const override;
    int GetMinScrollDistance() const override { return 4; }  // pixels at any scale

private:
    IContinuousItemViewModel* m_ViewModel = nullptr;
};

}  // namespace vexel
