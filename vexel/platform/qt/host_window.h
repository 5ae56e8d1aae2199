#pragma once

#include "vexel/export.h"
#include "vexel/platform/sys_window.h"

#include <memory>

class QWidget;

namespace vexelbase::qt
{

/// A window that fills a widget of a Qt application: it covers the widget's contents and follows their size, so that a
/// vexel view stands wherever the widget stands. A QApplication must exist; the first call takes it for the system.
///
/// The caller owns the window, Qt owns its native side as a child of `host`. They may go in any order, and so may the
/// control on the window: deleting the window takes its child out of `host`; deleting `host`, or ending the application,
/// tells the control (OnDestroy), which then has no window, and leaves an empty window behind. Handlers of input may
/// delete any of the three at once; handlers of OnResize, OnMove, OnShow and OnHide, within which Qt still works on the
/// widget, may delete window and control, but `host` only by deleteLater.
VEXEL_QT_API std::unique_ptr<ISysWindow> HostWindow(QWidget* host);

/// The widget that a window of this backend is: null for windows of others and when its native side is gone. It belongs
/// to the window.
VEXEL_QT_API QWidget* GetWidget(ISysWindow* window);

}  // namespace vexelbase::qt
