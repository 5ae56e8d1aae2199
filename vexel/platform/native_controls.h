#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/ref_ptr.h"
#include "vexel/signals/event_sender.h"
#include "vexel/signals/signal.h"

#include <cstdint>
#include <string>

namespace vexelbase
{

class IPainter;
class ISysWindow;

/// A native control that stands inside a window. Rectangles: pixels of the window.
class VEXEL_API ICustomControl : public CBase
{
public:
    plinth::signal_t<ICustomControl*> m_SigFocusIn;  ///< The control got the native focus, by mouse, key or code.

    virtual void SetPos(int left, int top, int width, int height) = 0;
    virtual rectangle<int> GetRect() const = 0;  ///< Right and bottom excluded.
    virtual void SetVisible(bool visible) = 0;  ///< During a paint it takes effect after it; IsVisible answers at once.
    virtual bool IsVisible() const = 0;
    virtual void SetFocus() = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual void Refresh() = 0;  ///< Takes the natural size again (a bar its thickness), which GetRect then tells.
    virtual std::string GetText() const = 0;
    /// On at first: Tab reaches the control behind the window that it stands in and leaves it for the next one. A host
    /// that has it in an order of its own turns this off: then Tab does not go to it by itself, and one that leaves it is
    /// the window's key (OnKeyDown), as if the window had the focus.
    virtual void SetTabStop(bool stop) { static_cast<void>(stop); }
};

/// What a scroll bar shows. Positions run from minimum to maximum - page.
struct SScrollBarInfo
{
    std::uint32_t mask = 0;
    double minimum = 0;
    double maximum = 0;
    double lineStep = 0;
    double page = 0;
    double position = 0;
    bool inverted = false;  ///< The thumb runs from the other end; positions are in the bar's own sense.
};

/// A native scroll bar. Fires IScrollBarNotify when the user moves it.
class VEXEL_API IScrollBar : public ICustomControl, public IEventSender
{
public:
    virtual void GetInfo(SScrollBarInfo& info) const = 0;
    virtual void SetInfo(SScrollBarInfo const& info) = 0;  ///< Kept as given.
    virtual double GetScrollPos() const = 0;
    virtual void SetScrollPos(double position) = 0;  ///< Cut to the range; fires nothing.
};

/// A native line edit. Fires IEditNotify.
class VEXEL_API IEdit : public ICustomControl, public IEventSender
{
public:
    virtual void SetText(std::string const& text) = 0;  ///< Fires EditOnChangeText only on a change.
    virtual void SelectAll() = 0;
    virtual void SetSelection(int start, int length) = 0;  ///< Characters; cut to the text.
    virtual void SetReadOnly(bool readOnly) = 0;
    virtual void SetMaxLength(int characters) = 0;  ///< Below 1: no limit.
};

/// A native combo box. Fires IEditNotify.
class VEXEL_API IComboBox : public ICustomControl, public IEventSender
{
public:
    virtual bool IsEditable() const = 0;
    virtual void SetText(std::string const& text) = 0;
    virtual void ShowDropDown(bool show) = 0;
    virtual void SetOption(bool option) = 0;
    virtual void ClearItems() = 0;
    virtual void AddItem(std::string const& text) = 0;
    virtual int GetItemCount() const = 0;
    virtual std::string GetItemText(int index) const = 0;  ///< Empty outside.
    virtual int GetCurrentItem() const = 0;                ///< -1: none.
    virtual void SetCurrentItem(int index) = 0;
};

/// A window that stands above its owner until it is closed or the user turns elsewhere.
class VEXEL_API IPopup : public CBase
{
public:
    virtual ISysWindow* GetWindow() = 0;
    virtual ISysWindow* GetOwner() = 0;  ///< Null once the owner is gone.
    virtual void SetSize(int width, int height) = 0;
    virtual void Show(point<int> const& screen) = 0;
    virtual void Close(int code) = 0;
    virtual bool IsVisible() const = 0;
    virtual int GetCloseCode() const = 0;
};

/// A row of images by index. An index outside has size (0, 0) and draws nothing.
class VEXEL_API IImageList
{
public:
    virtual ~IImageList();
    virtual int GetCount() const = 0;
    virtual size<int> GetSize(int index) const = 0;
    virtual void Draw(IPainter* painter, int index, double x, double y) = 0;
    virtual void DrawDisabled(IPainter* painter, int index, double x, double y) = 0;
};

/// Shows the popup with its left-top at the rectangle's left-bottom (control pixels of the popup's owner). Where the
/// system tells its work area: above the rectangle if there is more room and it doesn't fit below, and moved sideways
/// into the area, its left end first. Null, or a popup whose owner is gone, does nothing.
VEXEL_API void PositionPopup(vexel_ptr<IPopup> popup, screen_rectangle<int> const& owner);

}  // namespace vexelbase
