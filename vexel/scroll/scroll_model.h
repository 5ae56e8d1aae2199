#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"

#include <utility>

namespace vexel
{

/// A range that can be scrolled. Logical values are what the model talks in: pixels, item indices, chart units. Physical
/// values are units of a native scroll bar, and for the measure also pixels of the screen.
class VEXEL_API IScrollModel
{
public:
    virtual ~IScrollModel();

    virtual double GetFrom() const = 0;
    virtual double GetTo() const = 0;  ///< The other end; below GetFrom() on a reversed axis.
    virtual void SetStart(double value) = 0;
    virtual double GetStart() const = 0;           ///< The first logical value that the view shows.
    virtual int GetMinScrollDistance() const = 0;  ///< The bar's line step, in physical units.
    virtual bool IsFixedStepSize() const = 0;      ///< One logical unit is always the same number of physical ones.
    virtual double GetStepSize(double index) const = 0;  ///< The size of a logical step, where steps are unequal.
    virtual void SetStepSize(double index, double size) const = 0;
    /// The scale: `first` logical units are `second` physical units.
    virtual void SetMeasure(std::pair<double, int> measure) = 0;
    virtual std::pair<double, int> GetMeasure() const = 0;
    virtual bool IsInseparableStep() const { return false; }  ///< Steps are scrolled whole: items.
    virtual void Update() {}                                  ///< Whatever shows the model must refresh.
};

/// All steps are 1.
class VEXEL_API ISimpleScrollModel : public IScrollModel
{
public:
    bool IsFixedStepSize() const override { return true; }
    double GetStepSize(double) const override { return 1.0; }
    void SetStepSize(double, double) const override {}
};

/// Logical units are pixels. The measure can't be changed.
class VEXEL_API IPhysicalScrollModel : public ISimpleScrollModel
{
public:
    void SetMeasure(std::pair<double, int>) override {}
    std::pair<double, int> GetMeasure() const override { return {1.0, 1}; }
};

/// The horizontal face of a class that is the model of both axes.
class VEXEL_API IHorzPhysicalScrollModel : public IPhysicalScrollModel
{
public:
    virtual double GetHorzFrom() const = 0;
    virtual double GetHorzTo() const = 0;
    virtual void SetHorzStart(double value) = 0;
    virtual double GetHorzStart() const = 0;
    virtual int GetHorzStepInPixels() const = 0;

    double GetFrom() const override { return GetHorzFrom(); }
    double GetTo() const override { return GetHorzTo(); }
    void SetStart(double value) override { SetHorzStart(value); }
    double GetStart() const override { return GetHorzStart(); }
    int GetMinScrollDistance() const override { return GetHorzStepInPixels(); }
};

/// The vertical face.
class VEXEL_API IVertPhysicalScrollModel : public IPhysicalScrollModel
{
public:
    virtual double GetVertFrom() const = 0;
    virtual double GetVertTo() const = 0;
    virtual void SetVertStart(double value) = 0;
    virtual double GetVertStart() const = 0;
    virtual int GetVertStepInPixels() const = 0;

    double GetFrom() const override { return GetVertFrom(); }
    double GetTo() const override { return GetVertTo(); }
    void SetStart(double value) override { SetVertStart(value); }
    double GetStart() const override { return GetVertStart(); }
    int GetMinScrollDistance() const override { return GetVertStepInPixels(); }
};

}  // namespace vexel
