#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"

namespace vexel
{

/// What the next paint of a view must touch, by item index.
class VEXEL_API IDirtyItemSet
{
public:
    /// The order has a meaning: where two sets speak of one cell, the lower value wins.
    enum DirtyType : int
    {
        dirtyItem = 0,   ///< This item needs painting.
        dirtyOther = 1,  ///< The set has entries; this item is not among them.
        dirtyNone = 2    ///< The set is empty.
    };

    virtual ~IDirtyItemSet();
    virtual void AddDirtyItems(int first, int last) = 0;  ///< Both ends included.
    virtual DirtyType GetItemType(int index) const = 0;
    virtual void OnEndDraw() = 0;  ///< All has been painted.
};

}  // namespace vexel
