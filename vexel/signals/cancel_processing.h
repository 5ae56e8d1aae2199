#pragma once

#include "vexel/export.h"

namespace vexel
{

/// Thrown by any handler or slot to end the processing of the native event under way; the control swallows it silently.
/// A firing lets it pass, unlike vexelbase::cancel_processing.
class VEXEL_API cancel_processing
{};

}  // namespace vexel
