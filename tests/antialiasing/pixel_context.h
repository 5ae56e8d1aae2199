#pragma once

#include "vexel/antialiasing/drawing_context.h"
#include "vexel/antialiasing/point.h"

#include <map>
#include <string>

namespace antialiasing::tests
{

/// A surface of hexadecimal colours that writes down what is asked of it: "get 1,2" and "set 1,2 ff8000".
class CPixelContext : public vexel::IDrawingContext
{
public:
    explicit CPixelContext(unsigned long background = 0xFFFFFF) : m_Background(background) {}

    unsigned long GetPixel(long x, long y) override;
    void SetPixel(long x, long y, unsigned long value) override;
    std::string Take();  ///< What was asked since the last time, parted by blanks.

    std::map<tagPOINT, unsigned long> m_Pixels;

private:
    unsigned long m_Background;
    std::string m_Log;
};

}  // namespace antialiasing::tests
