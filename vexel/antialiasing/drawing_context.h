#pragma once

#include "vexel/export.h"

namespace vexel
{

/// Where antialiased rendering reads and writes its pixels. Values are 0x00BBGGRR.
class VEXEL_API IDrawingContext
{
public:
    virtual ~IDrawingContext();
    /// 0xFFFFFFFF: unknown; whoever blends takes the last known one in its place.
    virtual unsigned long GetPixel(long x, long y) = 0;
    virtual void SetPixel(long x, long y, unsigned long value) = 0;
};

}  // namespace vexel
