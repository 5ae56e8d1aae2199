#pragma once

#include "vexel/core/fwd.h"

namespace vexel
{

/// How a parent places a child when it lays its children out, in their order, each taking from what remains.
enum Alignment : int
{
    alNone = 0,  ///< Left where it is.
    alLeft = 1,  ///< Docked to the left edge of the remaining area.
    alRight = 2,
    alTop = 3,
    alBottom = 4,
    alClient = 5  ///< Takes what remains after all others; of several the last one wins.
};

/// What a change asks of the control: a set of bits.
enum UpdateType : int
{
    utFull = 0,  ///< Repaint the whole control.
    utGlobal =
        1,  ///< Call UpdateElement() on every element of the tree, then repaint the whole control. 4 means the same.
    utElement = 2,  ///< Repaint this element only.
    utRemoved = 16  ///< The element leaves the tree: forget every reference to it.
};

}  // namespace vexel
