#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/sys_window.h"

#include <memory>
#include <string>

namespace vexelbase::qt
{

/// A program on the Qt 6 desktop: makes the application object, unless there is one already, and installs the backend as
/// the current system. Belongs to the thread that runs main. Where there is one already, another stands on the same
/// application object.
///
/// Windows and controls should go before it. Windows that are left over lose their native side with it; pictures, timers
/// and palettes may outlive it, but do nothing any more.
class VEXEL_QT_API CApplication
{
public:
    /// Qt takes its own arguments out of the list; `argc` and `argv` must live as long as the application.
    CApplication(int& argc, char** argv);
    /// Stands on the QApplication that the program has made, which must live longer.
    CApplication();
    ~CApplication();
    CApplication(CApplication const&) = delete;
    CApplication& operator=(CApplication const&) = delete;

    /// A top-level window with a client area of `extent` unscaled pixels. It is shown when the event loop runs next, so
    /// that what is put on it first shows from the start. Closing it hides it; when the last window is closed, Run
    /// returns.
    std::unique_ptr<ISysWindow> CreateMainWindow(std::string const& title, size<int> const& extent);

    /// Makes everything larger or smaller than the desktop says: multiplies the scale of the system, from 0.25 to 8 (others
    /// count as the nearest). Controls hear of it as of a theme change; elements made before keep their sizes.
    void SetZoom(double factor);
    enum class Theme
    {
        Desktop,  ///< As the user has chosen; also follows later choices. At first.
        Light,
        Dark
    };
    /// The colours of the whole program, native controls included. Controls hear of a change as of one of the desktop's.
    void SetTheme(Theme theme);
    /// Shows for a moment, in colour over the windows, what each paint has changed. For finding needless repaints.
    void SetShowRepaints(bool show);

    int Run();                ///< The event loop; returns what Quit was given, 0 after the last window was closed.
    void Quit(int code = 0);  ///< Ends the loop after the present event.
    void ProcessEvents();     ///< What waits now, without waiting for more.

private:
    struct SData;
    std::unique_ptr<SData> m_Data;
};

}  // namespace vexelbase::qt
