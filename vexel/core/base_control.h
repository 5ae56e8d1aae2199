#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/vexel_control.h"
#include "vexel/signals/signal.h"

#include <string>

namespace vexel
{

/// A native control that hosts a tree of elements. Feeds every native event to the tree and then fires it to its own
/// subscribers. A vexel::cancel_processing thrown by a handler or slot ends the event and goes no further (paint and
/// destruction excepted). May be deleted in any slot of its tree.
class VEXEL_API CBaseControl : public CVexelControl
{
public:
    /// `window`: not owned, may be null until SetSysWindow. The control starts with an empty CContent as its root.
    explicit CBaseControl(ISysWindow* window);
    ~CBaseControl() override;  ///< Deletes the root if it is dynamic, and with it all dynamic elements.

    // Tree ------------------------------------------------------------------------------------------------------------------
    /// Takes another root, which leaves its parent. The old one is deleted if it is dynamic. Null: no root.
    void SetContent(CVisualElement* root);
    CVisualElement* GetContent() const;
    IControl* GetControl() const;  ///< The host as its elements know it.

    // Layout ----------------------------------------------------------------------------------------------------------------
    void Rearrange();               ///< Lays the whole tree out now and repaints it; nothing without a window.
    void LockRearrange(bool lock);  ///< Counted; the last unlock lays out.

    // State -----------------------------------------------------------------------------------------------------------------
    CVisualElement* GetMouseElement() const;
    CVisualElement* GetFocusedElement() const;
    /// The first help id from the element (null: the focused one) up through its parents; empty if there is none.
    std::string GetHelpId(CVisualElement* element) const;
    /// Asks the focused element and its ancestors, root first, to copy themselves, until one does.
    bool CopyToClipboard();
    bool IsCopyShortcut() const { return m_CopyShortcut; }
    void SetCopyShortcut(bool on) { m_CopyShortcut = on; }  ///< Ctrl+C copies; off by default.

    // Signals ---------------------------------------------------------------------------------------------------------------
    signal_t<CBaseControl*> m_SigGetFocus;
    signal_t<CBaseControl*> m_SigLostFocus;
    signal_t<CBaseControl*> m_SigDestroyed;  ///< The native window is gone; the tree lives on.
    signal_t<CBaseControl*> m_SigSysColorChanged;
    signal_t<CBaseControl*, CVisualElement*> m_SigFocusedElement;  ///< The focus has moved; null: to no element.
    signal_t<CBaseControl*, std::string const&> m_SigHelp;

    // From CVexelControl: native events -----------------------------------------------------------------------------------------
    void OnDraw(IPainter* painter) override;
    void OnResize(CWindowEvent* event) override;
    void OnDestroy(CWindowEvent* event) override;
    void OnGetFocus(CFocusEvent* event) override;
    void OnLostFocus(CFocusEvent* event) override;
    void OnTooltip(CTooltipEvent* event) override;
    void OnTooltipTrack(CTooltipEvent* event) override;
    void OnButtonDown(CMouseEvent* event) override;
    void OnButtonUp(CMouseEvent* event) override;
    void OnMouseMove(CMouseEvent* event) override;
    void OnWheel(CMouseWheelEvent* event) override;
    void OnDoubleClick(CMouseEvent* event) override;
    void OnHover(CMouseEvent* event) override;
    void OnLeave(CMouseEvent* event) override;
    void OnKeyDown(CKeyboardEvent* event) override;
    void OnKeyUp(CKeyboardEvent* event) override;
    void OnChar(CKeyboardEvent* event) override;
    void OnSysColorChanged(CEvent* event) override;
    void OnContextMenu(CContextMenuEvent* event) override;
    void OnCustomEvent(CCustomEvent* event) override;

private:
    void ForgetPainter();
    template <class Process, class Base> void Pass(Process const& process, Base const& base);

    CBaseControlImp* m_Imp = nullptr;  // null while it is being deleted
    bool m_CopyShortcut = false;
};

} // namespace vexel
