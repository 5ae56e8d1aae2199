#pragma once

#include "vexel/platform/base_window.h"
#include "vexel/platform/qt/detail/qt_input.h"
#include "vexel/platform/qt/detail/store_pixels.h"

#include <QRegion>

#include <memory>
#include <mutex>
#include <vector>

class QEvent;
class QPainter;
class QWidget;

namespace vexelbase::qt
{

class CQtDevice;
class CQtNativeNode;
class CQtPopup;
class CQtWidget;

/// A window on a widget of its own: a top-level one, or one that fills another widget.
/// Its pixels are the screen's: size and positions are Qt's times the widget's pixel ratio. The surface is as large as
/// that product, rounded to the next whole number; where Qt gives the widget a pixel more, the last one is shown twice.
/// The window outlives its widget when the latter goes first (with its parent, or with the application object); then it
/// stays empty and silent.
class CQtWindow final : public CBaseWindow
{
public:
    /// `parent`: the widget to fill; null makes a top-level widget.
    explicit CQtWindow(QWidget* parent);
    /// The hidden window of a popup, above the owner's widget.
    CQtWindow(QWidget* owner, CQtPopup& popup);
    ~CQtWindow() override;

    static void DestroyAll();  ///< Deletes all widgets; to be called while the application object still lives.

    static void SyncAllScales();  ///< The system's scale may have changed.
    static void SetShowRepaints(bool show);

    QWidget* GetWidget() const;  ///< Null when the native side is gone.
    double GetRatio() const { return m_Ratio; }

    // From ISysWindow ---------------------------------------------------------------------------------------------
    void SetFocus() override;
    bool HasFocus() const override;
    IPainter* GetPainter() override;
    void ScrollPixels(int dx, int dy, screen_rectangle<int> const& area) override;
    void SetCursor(int cursor) override;
    void CaptureMouse() override;
    void ReleaseMouse() override;
    void TrackPointer() override {}  // Qt always tells
    void HideTooltip() override { m_Input.HideTooltip(); }
    void ScreenToClient(point<int>* position) const override;
    void ClientToScreen(point<int>* position) const override;
    vexel_ptr<IScrollBar> CreateScrollBar(int type) override;
    vexel_ptr<IEdit> CreateEdit(bool option) override;
    vexel_ptr<IComboBox> CreateComboBox(bool editable) override;
    vexel_ptr<IPopup> CreatePopup() override;

    // From the widget ---------------------------------------------------------------------------------------------
    bool IsForWindow(QEvent const& event) const;
    static bool NeedsQtFirst(QEvent const& event);
    /// Deals with an event; false leaves it to the widget's parents. The window may be gone afterwards.
    bool HandleEvent(QEvent& event);
    void Show(QRegion const& region);  ///< Shows this part of the surface, in the widget's coordinates.
    void SyncSurface();                ///< The surface takes the widget's size and ratio.
    void WidgetGoes();
    void NeighbourComes();  ///< Another widget stands in, or beside, the window's.
    void NeighbourMoves();
    bool IsNativeFocused() const;  ///< A native control of the window has the focus.
    /// Moves the focus out of the window: forward into the native controls that Tab goes to, then to other widgets.
    /// Where there is nobody else it comes back in from the other end.
    void LeaveByTab(bool forward);

    // From the native controls ------------------------------------------------------------------------------------
    void AddNative(CQtNativeNode& native) { m_Natives.push_back(&native); }
    void RemoveNative(CQtNativeNode& native);
    void AddPopup(CQtPopup& popup) { m_Popups.push_back(&popup); }
    void RemovePopup(CQtPopup& popup);
    bool IsInPaint() const { return IsPainting(); }
    void FocusWhenShown(CQtNativeNode& native) { m_FocusWhenShown = &native; }
    void NativeShown(CQtNativeNode& native);
    void NativeGotFocus() { m_FocusWhenShown = nullptr; }
    void PointerEnteredNative() { m_Input.Leave(); }
    /// The Tab key in a native control. `keys`: the state word.
    void TabFromNative(CQtNativeNode& native, int keys);

    /// Calls a handler of the control. False: the window is gone.
    template <class Event> bool Send(void (CVexelControl::*handler)(Event*), Event* event)
    {
        std::weak_ptr<int> const life = GetLifeToken();
        Deliver(handler, event);
        return !life.expired();
    }

protected:
    void RequestFrame() override;
    void PresentDamage() override;
    void WakeQueue() override;
    void BeforePaint() override;
    void AfterPaint() override;

private:
    CQtDevice& GetQtDevice();
    bool SyncScale();
    bool LookChanged();
    bool FocusEntered(int reason);
    bool SettleFocus();
    bool EnterByTab(bool forward);
    bool MoveFocusOut(bool forward);
    CQtNativeNode* FindTabStop(CQtNativeNode const* from, bool forward) const;
    template <class Work> bool ForAllNatives(Work const& work);
    void GiveUpNatives();
    bool PressOutside(QEvent& event);
    size<int> GetWantedSize() const;

    // What is painted lies in a surface of the window's own, or straight in the backing store
    bool IsInStore() const;
    SStorePixels FindStore() const;
    size<int> GetSurfaceSize() const { return GetPixels().GetSize(); }
    size<int> GetShownSize() const;
    bool MayUseStore() const;
    void EnterStore();
    void LeaveStore();
    void CheckStore();
    bool IsPaintedToStore() const;
    bool PaintNow();
    bool CopyToStore(QRegion const& region);
    void RestoreChildren(QRegion const& region);
    void Draw(QPainter& painter, QRegion const& region);
    QRegion GetChildRegion() const;
    QRect ToQtRect(rectangle<int> const& pixels) const;
    QRegion ToQtRegion(CDamage const& damage) const;
    void FlashRepaint(QRegion const& region);

    static bool s_ShowRepaints;

    CQtWidget* m_Widget = nullptr;
    SStorePixels m_Store;          // the backing store's pixels that the window was last shown in
    bool m_HasNeighbours = false;  // others that may paint on the store where the window stands
    bool m_Suspect = false;        // one of them has come, moved or gone since the last paint event
    QRegion m_Missing;             // what is to be shown yet, in the widget's coordinates
    bool m_Showing = false;        // in a paint event of the widget
    QRegion m_Flash;               // what is shown as just repainted
    std::mutex m_WidgetMutex;      // between posting threads and the end of the widget
    double m_Ratio = 1.0;
    int m_Cursor = 0;
    std::vector<CQtNativeNode*> m_Natives;  // in the order of their making
    std::vector<CQtPopup*> m_Popups;
    CQtPopup* m_OwnPopup = nullptr;             // whose window it is
    CQtNativeNode* m_FocusWhenShown = nullptr;  // unless somebody else takes it before
    bool m_ToldOfFocus = false;                 // the control believes that the window has it
    int m_FocusHeld = 0;                        // while above 0 the control is told nothing of it
    CQtInput m_Input{*this};
};

}  // namespace vexelbase::qt
