#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"

namespace vexel
{

using namespace vexelbase;

/// Places items that are no elements: it asks a provider for their sizes and hands it a rectangle for each.
class VEXEL_API IElementLayout
{
public:
    IElementLayout() = default;
    IElementLayout(IElementLayout const&) = delete;
    IElementLayout& operator=(IElementLayout const&) = delete;
    virtual ~IElementLayout();

    virtual void Update() = 0;              ///< Places all items anew; without a provider nothing happens.
    virtual size<int> GetSize() const = 0;  ///< Of all items together, as the last Update left it.
};

}  // namespace vexel
