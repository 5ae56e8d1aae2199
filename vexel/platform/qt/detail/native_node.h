#pragma once

#include "vexel/platform/convert.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/qt/detail/guard.h"
#include "vexel/platform/qt/detail/in_qt.h"

#include <QEvent>
#include <QPointer>
#include <QRect>

#include <algorithm>
#include <memory>
#include <utility>

class QWidget;

namespace vexelbase::qt
{

class CQtWindow;

class CQtNativeNode;

/// The way from a widget to its control; null before they hear of each other and once they have parted.
struct SNativeLink
{
    CQtNativeNode* owner = nullptr;
};

/// What all native controls share, apart from their interface: the widget and its place in the window, and showing,
/// moving and focus that wait for the right moment. The widget is a child of the window's. Either side may go first: the
/// control gives its widget up, and without a widget it only keeps what it was told.
class CQtNativeNode
{
public:
    CQtNativeNode(CQtNativeNode const&) = delete;
    CQtNativeNode& operator=(CQtNativeNode const&) = delete;

    QWidget* GetWidget() const { return m_Widget; }  ///< Null once the native side is gone.
    virtual CBase* GetSelf() = 0;

    // From the widget ---------------------------------------------------------------------------------------------
    /// Before Qt's own handling; true: dealt with.
    virtual bool HandleEvent(QEvent& event);
    virtual void EventDone(QEvent& event);  ///< After it.
    void WidgetGoes();

    // From the window ---------------------------------------------------------------------------------------------
    void WindowGoes();
    void Apply();  ///< What had to wait for the end of a paint.
    void LookChanged();
    bool HasFocus() const;
    bool IsTabStop() const { return m_TabStop; }
    /// Whether Tab may go to it now.
    bool TakesTab() const;
    void TakeFocus(Qt::FocusReason reason);
    std::weak_ptr<int> GetLife() const { return m_Life; }

protected:
    explicit CQtNativeNode(CQtWindow& window);
    virtual ~CQtNativeNode();  ///< Derived classes call GiveUp first.

    /// The widget that the derived class has made, a child of the window's.
    void Take(QWidget* widget, SNativeLink& link);
    /// From now on the widget tells. The last step of a constructor: each event holds the control.
    void Listen() { m_Link->owner = this; }
    /// Parts from widget and window. The widget is deleted when Qt no more stands in it.
    void GiveUp();
    CQtWindow* GetWindow() const { return m_Window; }
    double GetScale() const;  ///< Of the system: window pixels for one unscaled.
    double GetRatio() const;  ///< Window pixels for one of Qt's.

    // For ICustomControl ------------------------------------------------------------------------------------------
    void Place(rectangle<int> const& rect);
    rectangle<int> const& GetPlace() const { return m_Rect; }
    void WantVisible(bool visible);
    bool IsWantedVisible() const { return m_WantedVisible; }
    void WantFocus();
    void WantEnabled(bool enabled);
    void WantTabStop(bool stop) { m_TabStop = stop; }
    bool IsShown() const;  ///< With all its ancestors.
    /// The widget's size hint in window pixels, with the fonts of the present scale.
    size<int> GetNaturalSize() const;

    /// Runs what calls the application's handlers: nothing that they throw gets out, and the control lives until it
    /// ends.
    template <class Work> void Do(Work&& work)
    {
        vexel_ptr<CBase> const alive(GetSelf());
        Guarded(std::forward<Work>(work));
    }

    virtual void GotFocus() {}
    virtual void VisibleChanged(bool) {}
    virtual void Shown() {}  ///< Now with all its ancestors.
    virtual bool TakesFocusByTab() const { return true; }

private:
    void SyncFont();
    void DropWidget();

    CQtWindow* m_Window;
    QWidget* m_Widget = nullptr;
    SNativeLink* m_Link = nullptr;
    rectangle<int> m_Rect;
    bool m_Moved = false;  // the widget stands elsewhere yet
    bool m_WantedVisible = false;
    bool m_TabStop = true;
    std::shared_ptr<int> m_Life = std::make_shared<int>(0);
};

/// Where a rectangle of window pixels stands in Qt's coordinates: each edge at the nearest place, so that neighbours
/// meet.
inline QRect ToQtRect(rectangle<int> const& rect, double ratio)
{
    auto const place = [ratio](int pixel) { return FloorToInt(pixel / ratio + 0.5); };
    int const left = place(rect.left);
    int const top = place(rect.top);
    return {left, top, std::max(place(rect.right) - left, 0), std::max(place(rect.bottom) - top, 0)};
}

/// A widget that hands its events to the control first. The control may go in any of them.
template <class Base> class CNativeWidget : public Base, public SNativeLink
{
public:
    explicit CNativeWidget(QWidget* parent) : Base(parent) {}
    ~CNativeWidget() override
    {
        if (owner)
            owner->WidgetGoes();
    }

protected:
    bool event(QEvent* event) override
    {
        if (!owner)
            return Base::event(event);
        CInQt const inside;
        QPointer<CNativeWidget> const self(this);
        vexel_ptr<CBase> const alive(owner->GetSelf());
        bool done = false;
        bool result = true;
        Guarded([&] { done = owner->HandleEvent(*event); });
        if (!done && self)
            result = Base::event(event);
        if (self && owner)
            Guarded([&] { owner->EventDone(*event); });
        return result;
    }
    // Where Tab goes the window says, and hiding gives the focus to nobody.
    bool focusNextPrevChild(bool) override { return false; }
};

/// A native control with the interface `Interface`: what ICustomControl asks, by the node.
template <class Interface> class CQtNativeControl : public CImplEventSender<Interface>, public CQtNativeNode
{
public:
    explicit CQtNativeControl(CQtWindow& window) : CQtNativeNode(window) {}

    // From ICustomControl -----------------------------------------------------------------------------------------
    void SetPos(int left, int top, int width, int height) override
    {
        Place({left, top, AddSaturated(left, std::max(width, 0)), AddSaturated(top, std::max(height, 0))});
    }
    rectangle<int> GetRect() const override { return GetPlace(); }
    void SetVisible(bool visible) override { WantVisible(visible); }
    bool IsVisible() const override { return IsWantedVisible(); }
    void SetFocus() override { WantFocus(); }
    void SetEnabled(bool enabled) override { WantEnabled(enabled); }
    void SetTabStop(bool stop) override { WantTabStop(stop); }

    CBase* GetSelf() override { return this; }

protected:
    void GotFocus() override
    {
        Do([this] { this->m_SigFocusIn(this); });
    }
};

}  // namespace vexelbase::qt
