#pragma once

#include "vexel/export.h"
#include "vexel/signals/signal.h"

#include <string>

namespace vexel
{

/// The points of a slider: where they lie and what they are called.
class VEXEL_API ISliderModel
{
public:
    ISliderModel() = default;
    ISliderModel(ISliderModel const&) = delete;
    ISliderModel& operator=(ISliderModel const&) = delete;
    virtual ~ISliderModel();

    virtual double GetMinValue() const = 0;
    virtual double GetMaxValue() const = 0;
    virtual int GetPointCount() const = 0;  ///< 0: the slider counts pixels.
    virtual double GetPointValue(int index) const = 0;
    virtual std::string GetPointCaption(int index) const = 0;

    signal_t<ISliderModel*> m_SigChanged;  ///< The points are others.
    /// The model dies; only this class's part still lives. Sliders forget it.
    signal_t<ISliderModel*> m_SigDestroy;
};

/// From 0 to 1, without points.
class VEXEL_API CDefSliderModel : public ISliderModel
{
public:
    double GetMinValue() const override { return 0.0; }
    double GetMaxValue() const override { return 1.0; }
    int GetPointCount() const override { return 0; }
    double GetPointValue(int) const override { return 0.0; }
    std::string GetPointCaption(int) const override { return {}; }
};

/// Of all sliders without a model of their own.
extern VEXEL_API CDefSliderModel s_DefSliderModel;

}  // namespace vexel
