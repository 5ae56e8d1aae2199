#pragma once

#include "vexel/export.h"

namespace vexel
{

/// Lets an axis show other units than its model's. The application supplies one; both ways must agree.
class VEXEL_API IUnitConverter
{
public:
    virtual ~IUnitConverter();

    virtual double ToUnits(double value) = 0;    ///< From the model's logical value to what is shown.
    virtual double FromUnits(double value) = 0;  ///< The way back.
};

}  // namespace vexel
