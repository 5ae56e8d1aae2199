#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/ref_ptr.h"

namespace vexelbase
{

class IPainter;

/// A series of frames that is stepped from outside.
class VEXEL_API IAnimation : public CBase
{
public:
    virtual int GetDelay() = 0;    ///< Milliseconds that the present frame stays.
    virtual void NextFrame() = 0;  ///< Goes on to the next frame, from the last to the first.
    virtual size<int> GetSize() const = 0;
    /// Draws the present frame with its left-top at (x, y), logical.
    virtual void Draw(IPainter* painter, double x, double y) = 0;
};

}  // namespace vexelbase
