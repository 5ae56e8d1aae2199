#pragma once

#include "vexel/export.h"

#include <cstdint>

namespace vexel
{

/// What a view model may be besides, if it knows where its items stand: walks over it (see item_walks.h) then need not ask
/// for each size. A class that answers other sizes than its base answers these otherwise, too.
class VEXEL_API IItemPositions
{
public:
    virtual ~IItemPositions();
    /// The sizes of all items before `index`, which runs from 0 to the count.
    virtual std::int64_t GetItemPosition(int index) const = 0;
    /// The item that has the pixel `position`, which is not below 0 and counted from the first item on; behind the last item
    /// the count.
    virtual int FindItemAt(std::int64_t position) const = 0;
};

}  // namespace vexel
