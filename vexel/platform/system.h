#pragma once

#include "vexel/export.h"
#include "vexel/platform/font.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/palette.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/platform/ref_ptr.h"
#include "vexel/platform/threads.h"
#include "vexel/signals/event_sender.h"

#include <string>

namespace vexelbase
{

class XPMBuf;

/// The mouse pointer.
class VEXEL_API IPointer
{
public:
    virtual ~IPointer();
    virtual point<int> GetPos() const = 0;  ///< Screen pixels.
};

class VEXEL_API IClipboard
{
public:
    virtual ~IClipboard();
    virtual void SetText(std::string const& text) = 0;  ///< UTF-8.
    virtual std::string GetText() const = 0;
};

/// A repeating timer. Fires ITimerNotify::OnTimer on the GUI thread. Keeps itself alive while it fires.
class VEXEL_API ISysTimer : public CBase, public IEventSender
{
public:
    virtual bool IsRunning() const = 0;
    virtual void SetPeriod(int milliseconds) = 0;  ///< Below 1 counts as 1. The wait of a running timer starts anew.
    virtual void SetRunning(bool running) = 0;     ///< True starts the wait anew.
};

/// What the framework asks of the machine. Belongs to the GUI thread.
class VEXEL_API ISystem
{
public:
    enum Metric : int
    {
        smScrollBarWidth = 0,
        smScrollBarHeight = 1
    };

    virtual ~ISystem();

    virtual IPointer* GetPointer() = 0;
    virtual IClipboard* GetClipboard() = 0;
    virtual ISysPalette* GetPalette() = 0;
    virtual font GetDefaultFont() = 0;
    virtual int GetSystemMetric(int metric) = 0;  ///< Device pixels; 0 for unknown numbers.
    virtual double GetScale() = 0;                ///< Device pixels for one unscaled pixel.

    virtual vexel_ptr<ISysTimer> CreateTimer(int period, int option) = 0;  ///< Stopped.
    virtual vexel_ptr<IRasterPicture> CreateRasterPicture(size<int> const& pictureSize) = 0;
    /// Unscaled; transparent pixels become white.
    virtual vexel_ptr<IRasterPicture> CreateRasterPicture(XPMBuf const& buffer) = 0;
    virtual vexel_ptr<IRunner> GetRunner() = 0;  ///< A fresh one each time.
    virtual vexel_ptr<ILock> CreateLock() = 0;

    /// The part of the screen around the point that windows may cover, in screen pixels, right and bottom excluded.
    /// All zero, as here: unknown.
    virtual rectangle<int> GetWorkArea(point<int> const& screen);
};

/// The backend that is installed; null before the first one and after the last one went.
VEXEL_API ISystem* GetCurrentSystem();
/// Installs a backend; not owned. Returns the one before.
VEXEL_API ISystem* SetCurrentSystem(ISystem* system);

/// The current system's scale, 1.0 without a system.
VEXEL_API double GetSystemScale();
/// The current system's default font; without a system a font of size 8 with an empty name.
VEXEL_API font const& GetDefaultGUIFont();
/// Tells that the default font or scale of the current system may have changed. Called by backends.
VEXEL_API void RefreshDefaultGUIFont();

/// Whether sizes given to elements are multiplied by the scale. On by default.
VEXEL_API bool GetDPIAutoScale();
VEXEL_API void SetDPIAutoScale(bool on);

}  // namespace vexelbase
