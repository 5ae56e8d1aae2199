#pragma once

#include "vexel/export.h"
#include "vexel/platform/animation.h"

#include <string>

class QIODevice;

namespace vexelbase::qt
{

/// An animation from a file that Qt's image plugins can read, such as a GIF: all of it is read here and now, with the
/// delays that the file tells (100 ms where it tells none below 1). Transparent pixels show what lies behind. Null if
/// nothing could be read; `error`, unless null, then gets the reason.
VEXEL_QT_API vexel_ptr<IAnimation> LoadAnimation(std::string const& path, std::string* error = nullptr);
/// The same from an open device, as from a QBuffer over data in memory. It is not needed afterwards.
VEXEL_QT_API vexel_ptr<IAnimation> LoadAnimation(QIODevice* device, std::string* error = nullptr);

}  // namespace vexelbase::qt
