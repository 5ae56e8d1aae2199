#pragma once

#include "vexel/core/alive_guard.h"
#include "vexel/core/base.h"
#include "vexel/core/drag_drop.h"
#include "vexel/core/draw_elements.h"
#include "vexel/core/element_list.h"
#include "vexel/core/fwd.h"
#include "vexel/core/types.h"
#include "vexel/export.h"
#include "vexel/platform/color.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/events.h"
#include "vexel/platform/font.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/palette.h"
#include "vexel/platform/pen.h"
#include "vexel/platform/ref_ptr.h"
#include "vexel/signals/signal.h"

#include <memory>
#include <string>

namespace vexel
{

/// Everything that stands in a control's tree. An element owns its dynamic children and paints, lays out and routes input
/// to them. Its rectangle is in its parent's coordinates and includes its right and bottom edge; width is right minus left.
/// `Process...` is the framework's chain, `Handle...` the subclass's answer (true: consumed). A signal fires before the
/// handler of the same element; it can't consume, but a slot or handler may throw vexel::cancel_processing to end the
/// native event, and may delete any element: the chain then ends. Belongs to the GUI thread.
class VEXEL_API CVisualElement : public CBase,
                                 public CDragSource,  // dragging
                                 public CDropTarget,  // and being dropped on need no class of their own
                                 public subscriber_base_t
{
public:
    // Signals: this element comes first ---------------------------------------------------------------------------------
    using CMouseSignal = signal_t<CVisualElement*, int, int, int, MouseButton>;  ///< x, y (own pixels), keys, button.

    signal_t<CVisualElement*> m_SigSize;  ///< After SetPos has laid the children out.
    CMouseSignal m_SigButtonDown;
    CMouseSignal m_SigButtonUp;
    CMouseSignal m_SigMouseMove;
    CMouseSignal m_SigClick;  ///< Pressed and released here; before m_SigButtonUp.
    CMouseSignal m_SigDoubleClick;
    signal_t<CVisualElement*, int, int, int, MouseButton, int>
        m_SigWheel;  ///< Last: whole notches, above 0 away from the user.
    signal_t<CVisualElement*> m_SigMouseHover;
    signal_t<CVisualElement*> m_SigMouseLeave;
    signal_t<CVisualElement*, int, int>
        m_SigKeyDown;  ///< Keys, virtual key. Fires on all ancestors, also once consumed.
    signal_t<CVisualElement*, int, int> m_SigKeyUp;
    signal_t<CVisualElement*, char> m_SigChar;
    signal_t<CVisualElement*, CTooltipEvent*> m_SigTooltip;
    signal_t<CVisualElement*, CTooltipEvent*> m_SigTooltipTrack;
    signal_t<CVisualElement*, int, int> m_SigContextMenu;  ///< x, y in own pixels.
    signal_t<CVisualElement*> m_SigGetFocus;
    signal_t<CVisualElement*> m_SigLostFocus;
    signal_t<CVisualElement*, CVisualElement*> m_SigChildGetFocus;  ///< First the element that gets it, then this one.
    signal_t<CVisualElement*, CVisualElement*>
        m_SigChildLostFocus;                         ///< First the element that loses it, then this one.
    signal_t<CVisualElement*, IPainter*> m_SigDraw;  ///< Before DrawContent. Changes asked for here are not painted.
    signal_t<CVisualElement*, bool> m_SigVisible;    ///< The element's own flag has changed.
    signal_t<CVisualElement*> m_SigControlDestroy;   ///< The control's window goes, the tree lives on.
    signal_t<CVisualElement*, std::string&>
        m_SigAsString;  ///< A slot that fills in text answers in the element's place.
    signal_t<CVisualElement*, bool&> m_SigCopyToClipboard;  ///< Whether copying is allowed; may be changed.
    signal_t<CVisualElement*> m_SigDestroy;  ///< First step of the destructor: only this class's part still lives.

    /// `extent`: what the element asks for when it is docked; multiplied by the display scale if automatic scaling is on.
    /// With a parent the element becomes its last child and, if dynamic, its property.
    CVisualElement(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CVisualElement() override;

    // Overridable: geometry and look --------------------------------------------------------------------------------------
    /// What the element asks for when docked; negative members become 0. Lays the parent out later. `scale`: multiply by
    /// the display scale first.
    virtual void SetSize(size<int> const& extent, bool scale);
    /// Takes the rectangle and lays the children out if the size changed (and the element is visible and not alNone), or
    /// if `force`. A mere move keeps the picture and moves its pixels where it can. The same rectangle without `force`
    /// does nothing.
    virtual void SetPos(rectangle<int> const& rect, bool force);
    virtual rectangle<int> GetContentRect() const;  ///< Where children are docked; own pixels.
    virtual void SetAlignment(Alignment alignment);
    virtual void SetEnabled(bool enabled);  ///< Not inherited: children paint by their own flag, input stops here.
    virtual _color GetBkColor() const;      ///< The colour in effect: literal, or looked up in the palette.
    virtual _color GetFgColor() const;

    // Overridable: tab walk. Null: none. The walk does not wrap ------------------------------------------------------------
    virtual CVisualElement* GetFirstTabElement();
    virtual CVisualElement* GetLastTabElement();
    /// The element after `from`, a child: into it, behind it, then up. `from` itself when there is none.
    virtual CVisualElement* GetNextTabElement(CVisualElement* from);
    /// The element before `from`: a container comes after its inner elements.
    virtual CVisualElement* GetPrevTabElement(CVisualElement* from);

    // Overridable: painting ----------------------------------------------------------------------------------------------
    /// Sets the painter's tools by this element, fires m_SigDraw, draws the content and then the children.
    virtual void OnDraw(IPainter* painter);
    /// True if every pixel is painted anew each time; then a moved element's picture can be moved as a whole.
    virtual bool IsFullRepainted() const;
    virtual bool IsTransparent() const { return false; }  ///< True: the parent is repainted before this element.
    /// Own pixels. Children wholly outside are not painted; all zero: no limit.
    virtual rectangle<int> GetDrawBounds() const { return {}; }
    virtual void SetHelpId(std::string const& id);
    virtual bool IsCopyToClipboardEnabled() const { return false; }
    /// Draws the element without its children. Coordinates: own pixels. Font, brush, text colour and pen are set.
    virtual void DrawContent(IPainter*) {}
    virtual ICustomPalette* GetCustomPalette() const { return nullptr; }  ///< Null: the system's.
    /// True: the background picture, its colour and its placement in the window are filled in.
    virtual bool HandleGetBkImage(vexel_ptr<IRasterPicture>&, _color&, rectangle<int>&) { return false; }

    // Overridable: change and layout ---------------------------------------------------------------------------------------
    virtual void UpdateElement() {}                         ///< A change of the whole control (utGlobal).
    virtual bool ScrollContent(int, int) { return false; }  ///< True: repaint this element as a whole. See Scroll.
    virtual bool IsScrollableOnSetPos() const { return true; }
    virtual void ProcessSetControl(IControl*) {}  ///< Before the control changes; GetControl() is still the old one.
    virtual void AfterSetControl() {}             ///< There is a new control.
    virtual void SetCoordSystem(IPainter*) {}     ///< Installs the element's own logical coordinates.
    virtual void SysColorsChanged() {}
    virtual void AttributeChanged();  ///< A colour, font or flag has changed. Default: repaints.
    virtual void ProcessSetVisible(bool) {}
    virtual void ProcessSetParentVisible(bool) {}  ///< An ancestor's flag took this value, whatever the own flag.
    virtual void AddNewChild(CVisualElement*) {}   ///< The child may still be under construction.
    virtual void ChangeParent(CVisualElement*) {}  ///< After the change; the old parent or null.

    // Overridable: input. Own pixels; true: consumed ------------------------------------------------------------------------
    virtual bool HandleMouseMove(int, int, int, MouseButton) { return false; }
    virtual bool HandleButtonDown(int, int, int, MouseButton) { return false; }
    virtual bool HandleButtonUp(int, int, int, MouseButton) { return false; }
    virtual bool HandleClick(int, int, int, MouseButton) { return false; }
    virtual bool HandleDoubleClick(int, int, int, MouseButton) { return false; }
    virtual bool HandleWheel(int, int, int, MouseButton, int) { return false; }
    virtual void HandleMouseHover(CVisualElement*) {}          ///< The element that the pointer came from, or null.
    virtual void HandleMouseLeave(CVisualElement*) {}          ///< The element that the pointer goes to, or null.
    virtual void HandleChildrenMouseHover(CVisualElement*) {}  ///< The pointer came to this element or a descendant.
    virtual void HandleChildrenMouseLeave(CVisualElement*) {}
    virtual bool HandleKeyDown(int, int) { return false; }
    virtual bool HandleKeyUp(int, int) { return false; }
    virtual bool HandleChar(char) { return false; }
    virtual bool HandleOnTooltip(CTooltipEvent*) { return false; }  ///< True: filled in; rectangles in own pixels.
    virtual bool HandleOnTooltipTrack(CTooltipEvent*) { return false; }
    virtual bool HandleContextMenu(int, int) { return false; }

    // Overridable: focus and life ------------------------------------------------------------------------------------------
    /// `focused` true: this element has the focus now, `other` had it before. False: it was asked to take the focus but
    /// can't have it; by default the call goes to the key delegate.
    virtual void HandleGetFocus(CVisualElement* other, bool focused);
    virtual void HandleLostFocus(CVisualElement*) {}  ///< The element that gets it, or null.
    /// `element` (this one or a descendant) got or lost the focus, from or to `other`.
    virtual void HandleChildFocusChanged(CVisualElement* /*element*/, CVisualElement* /*other*/, bool /*got*/) {}
    virtual void HandleControlChangeFocus(bool) {}  ///< The native control got or lost the focus.
    virtual void HandleControlDestroy() {}
    virtual void HandleRefreshPos() {}  ///< A layout has ended; runs over the whole tree.
    /// The rearrange chain passes by; `*element` may be replaced by this element or cleared to swallow the request.
    virtual void ProcessRearrange(CVisualElement**) {}
    virtual void ProcessChange(CVisualElement**) {}  ///< The same for the change chain.
    virtual bool BeforeProcessChange(CVisualElement*, UpdateType)
    {
        return true;
    }                                       ///< False: ProcessChange isn't asked.
    virtual bool IsControlFocused() const;  ///< Default: asks the parent; false without one.
    virtual std::string HandleAsString() const { return {}; }
    virtual bool HandleCopyToClipboard() const;  ///< Default: the free CopyToClipboard(this).

    // Tree -----------------------------------------------------------------------------------------------------------------
    CVisualElement* GetParent() const { return m_Parent; }
    IChildren* GetChildren() const { return const_cast<CChildren*>(&m_Children); }
    IControl* GetControl() const { return m_Control; }
    /// Becomes the last child of another parent, or of none (null). `rearrange`: the old and the new parent lay out. The
    /// parent's font is taken over. Under itself or a descendant is refused with an assertion.
    void ReParent(CVisualElement* parent, bool rearrange);
    void SetControl(IControl* control);  ///< This element and all below. Called along the tree, not by applications.
    /// How many elements have died so far: whoever keeps plain pointers sees by it whether all of these still live.
    static unsigned long GetDestroyCount() { return s_DestroyCount; }
    bool IsChildrenAvailable(int count) const;  ///< Below 1: is there any child? Otherwise: exactly so many.
    CVisualElement* FindVisualElement(int x, int y) const;  ///< Deepest visible one below; own pixels; null: none.
    /// This one or the first below, depth first. `visibleOnly`: it must be displayable.
    CVisualElement* FindVisualElement(unsigned long const& id, bool visibleOnly) const;

    // Change and layout ------------------------------------------------------------------------------------------------------
    void OnChange(CVisualElement* element, UpdateType type);  ///< The change chain: up the parents, to the control.
    void OnRearrange(CVisualElement* element);                ///< The rearrange chain, likewise.
    void Update(UpdateType type) { OnChange(this, type); }
    void OnGlobalUpdate();  ///< UpdateElement() on this element and all below.
    void ForceRearrange();  ///< The control completes its pending layout now.
    void RefreshPos();      ///< HandleRefreshPos() on this element and all below.
    /// What has been painted counts as gone; asks for nothing.
    void Invalidate() { m_ValidRect = {m_Pos.left, m_Pos.top, m_Pos.left, m_Pos.top}; }
    /// Tells ScrollContent to this element and the visible ones below; repaints those that ask for it, and with `repaint`
    /// or below such a one all.
    void Scroll(int dx, int dy, bool repaint);

    // Geometry ---------------------------------------------------------------------------------------------------------------
    rectangle<int> const& GetPos() const { return m_Pos; }  ///< Parent's pixels.
    size<int> const& GetSize() const { return m_Size; }     ///< What is asked for when docked.
    void SetWidth(int width, bool scale);  ///< By SetSize; with `scale` the other member is scaled as well.
    void SetHeight(int height, bool scale);
    rectangle<int> GetBounds() const
    {
        return {0, 0, SubtractSaturated(m_Pos.right, m_Pos.left), SubtractSaturated(m_Pos.bottom, m_Pos.top)};
    }
    rectangle<int> GetValidRect() const;  ///< The part whose picture still stands; own pixels.
    void SetValidRect(rectangle<int> const& rect) { m_ValidRect = rect; }  ///< Parent's pixels.
    Alignment GetAlignment() const { return m_Alignment; }
    void ElementToControl(point<int>* position) const;
    void ElementToControl(rectangle<int>* rect) const;
    void ControlToElement(point<int>* position) const;
    void ControlToElement(rectangle<int>* rect) const;
    void DP2LP(point<double>* position);  ///< Own pixels to the painter's logical units; without a painter nothing.
    void LP2DP(point<double>* position);
    /// Narrows a rectangle (own pixels) to what this element's and all ancestors' content rectangles leave of it. False:
    /// nothing is left, or somebody is hidden; the rectangle is then meaningless.
    bool GetDisplayableRect(rectangle<int>* rect) const;

    // State ------------------------------------------------------------------------------------------------------------------
    bool IsVisible() const { return m_Visible; }  ///< The own flag.
    bool IsDisplayable() const;                   ///< This one and all ancestors are visible.
    /// Lays out if the element is docked. One of alNone asks for no repaint: the caller does.
    void SetVisible(bool visible);
    void SetParentVisible(bool visible);
    bool IsEnabled() const { return m_Enabled; }
    int GetCursor() const { return m_Cursor; }
    void SetCursor(int cursor);  ///< Shows at once if the pointer is over this element.
    unsigned long GetId() const { return m_Id; }
    void SetId(unsigned long id) { m_Id = id; }
    std::string const& GetHelpId() const;
    std::string const& GetTooltip() const;
    void SetTooltip(std::string const& text);
    bool IsTooltipMultiline() const { return m_TooltipMultiline; }
    void SetTooltipMultiline(bool multiline) { m_TooltipMultiline = multiline; }
    IContextMenu* GetContextMenu() const { return m_ContextMenu; }
    void SetContextMenu(IContextMenu* menu)
    {
        m_ContextMenu = menu;
    }  ///< Not owned; must outlive the element's use of it.

    // Look -------------------------------------------------------------------------------------------------------------------
    void SetFont(font const& value);  ///< Size 0, family 4, style 0 and an empty name leave the default's.
    font GetFont() const;             ///< The font in effect: own values over the default GUI font.
    font const& GetOwnFont() const;   ///< As it was set.
    double GetSizeScale() const;      ///< Size of the font in effect times 0.125; 1.0 if that has none.
    int GetTextLineHeight() const;    ///< Device pixels; -1 without a window. Sets the painter's font.
    void SetBkColor(_color const& color);
    void SetBkColor(ISysPalette::SysColor color);
    void SetFgColor(_color const& color);
    void SetFgColor(ISysPalette::SysColor color);
    ISysPalette::SysColor GetBkSysColor() const { return m_BkSysColor; }  ///< scLiteral: a colour of its own.
    ISysPalette::SysColor GetFgSysColor() const { return m_FgSysColor; }

    // Painting -----------------------------------------------------------------------------------------------------------------
    /// Within the painting of an element: an ancestor is being painted and the element along with it, so that none of its
    /// pixels may be counted on. False where the element is painted for itself alone.
    static bool IsDrawnWithParent() { return s_DrawnWithParent; }
    /// The content rectangle in control pixels, or in the painter's logical units if one is given.
    rectangle<double> GetDrawRect(IPainter* painter) const;
    rectangle<double> GetDrawValidRect(IPainter* painter) const;  ///< The same of the part whose picture stands.
    bool IsBkImagePresented() const;
    /// The background picture from the nearest of this element and its ancestors that has one, else the window's.
    bool GetBkImage(vexel_ptr<IRasterPicture>& picture, _color& color, rectangle<int>& placement);
    /// The part of the window's background picture under `rect` (own pixels), which is narrowed to it.
    rectangle<int> GetBkImageRect(rectangle<int>& rect);
    rectangle<int> GetBkImageRectEx(rectangle<int>& rect, vexel_ptr<IRasterPicture> picture,
                                    rectangle<int> const& placement);
    /// False: there is no painter or picture, and nothing was drawn.
    bool DrawBkImage(IPainter* painter, rectangle<int> const& rect, size<int> const& tile);
    bool DrawBkImageEx(IPainter* painter, rectangle<int> const& rect, vexel_ptr<IRasterPicture> picture,
                       _color const& color, rectangle<int> const& placement, size<int> const& tile);
    void DrawBlendBk(IPainter* painter, rectangle<int> const& rect, brush const& fill, int alpha);

    // Input: the framework's chains ----------------------------------------------------------------------------------------------
    bool ProcessMouseMove(int x, int y, int keys, MouseButton button);
    bool ProcessButtonDown(int x, int y, int keys, MouseButton button);
    bool ProcessButtonUp(int x, int y, int keys, MouseButton button);
    bool ProcessDoubleClick(int x, int y, int keys, MouseButton button);
    bool ProcessWheel(int x, int y, int keys, MouseButton button, int delta);
    bool ProcessKeyDown(int keys, int key, bool handled);  ///< `handled` true: signals only.
    bool ProcessKeyUp(int keys, int key, bool handled);
    bool ProcessChar(char character, bool handled);
    bool ProcessTooltip(CTooltipEvent* event);  ///< The event's position in own pixels; it moves along up the parents.
    bool ProcessTooltipTrack(CTooltipEvent* event);
    void ProcessContextMenu(int x, int y);
    void ProcessMouseHover(CVisualElement* previous);
    void ProcessMouseLeave(CVisualElement* next);
    void ProcessChildrenMouseHover(CVisualElement* previous);
    void ProcessChildrenMouseLeave(CVisualElement* next);
    void ProcessSysColorChanged();
    void ProcessControlDestroy();
    point<int> GetMousePos() const;  ///< The pointer in own pixels; (0, 0) without a window.
    void CaptureMouse();
    void ReleaseMouse();
    bool IsPressed() const { return m_Pressed; }  ///< A button went down here and the pointer has not left since.

    // Focus ----------------------------------------------------------------------------------------------------------------------
    bool GetCanHaveFocus() const { return m_CanHaveFocus; }
    void SetCanHaveFocus(bool can) { m_CanHaveFocus = can; }
    /// Takes the focus, and with `take` the native one too. One that can't have it hands on (HandleGetFocus).
    void SetFocus(bool take);
    bool IsFocused() const;  ///< The window has the native focus and this is its focused element.
    CVisualElement* GetNextTabElementInt(CVisualElement* from, bool descend);
    CVisualElement* GetKeyDelegate() const { return m_KeyDelegate; }
    /// The child that gets keys first. Forgotten when it dies or leaves this parent or control.
    void SetKeyDelegate(CVisualElement* element);
    void ProcessGetFocus(CVisualElement* previous);
    void ProcessLostFocus(CVisualElement* next);
    void ProcessChildGetFocus(CVisualElement* element, CVisualElement* other);
    void ProcessChildLostFocus(CVisualElement* element, CVisualElement* other);
    void ProcessControlChangeFocus(bool focused);

    // Text -----------------------------------------------------------------------------------------------------------------------
    /// The element's text: its own, or its visible children's, row by row with tabs between.
    std::string AsString() const;
    bool CopyToClipboard() const;  ///< False: not allowed, or nothing to copy.

private:
    friend class CBaseControlImp;
    friend class CChildren;
    friend class CElementList;
    friend void DrawElements(IVisualElements*, IPainter*, rectangle<int> const&);

    struct SFont;    // a font with what it comes to on the present default font; shared by equal elements
    struct STexts;   // what few elements have
    class CTransit;  // on the stack: a tree outside of its control's, which would not hear of the control's end

    SFont const& GetFontRecord() const;
    font const& GetEffectiveFont() const;
    void ShareFont(CVisualElement const& other);
    bool HasSameFont(CVisualElement const& other) const;
    void DropFont();
    STexts& GetTexts();
    _color LookUp(_color const& literal, ISysPalette::SysColor color) const;

    point<int> GetOrigin() const;  // in control pixels
    CVisualElement* FindChildAt(int x, int y) const;
    void LayOutChildren(bool force);
    void Prefetch() const;
    void SetUpPainter(IPainter* painter) const;
    CVisualElement* RunChangeChain(CVisualElement* element, UpdateType type);
    void LeaveParent();
    void LeaveControl();
    void ChangeControl(IControl* control);
    void ForsakeControl(IControl& old);
    void DropControl(IControl const* gone);
    static void ControlGone(IControl const* gone);
    void Withdraw() noexcept;
    template <class Fire, class Handle, class Pass>
    bool RunKeyChain(bool handled, Fire const& fire, Handle const& handle, Pass const& pass);
    template <class Fire> void WalkUpFocus(CVisualElement* element, CVisualElement* other, bool got, Fire const& fire);
    void ForgetKeyDelegates(IControl const* leaving);

    static unsigned long s_TreeVersion;   // changes with every rectangle and parent
    static unsigned long s_DestroyCount;  // of elements
    static CTransit* s_Transit;           // innermost first
    static bool s_DrawnWithParent;

    // What layout, hit tests and painting touch stands close together.
    rectangle<int> m_Pos;
    bool m_Visible = true;
    bool m_Enabled = true;
    bool m_Destroying = false;
    bool m_Pressed = false;
    Alignment m_Alignment;
    size<int> m_Size;
    CVisualElement* m_Parent = nullptr;
    IControl* m_Control = nullptr;
    rectangle<int> m_ValidRect;  // parent's pixels; empty: ends equal
    int m_ListIndex = -1;        // in the control's list of pending repaints, if it stands there
    bool m_CanHaveFocus = false;
    bool m_TooltipMultiline = false;
    bool m_IsKeyDelegate = false;  // of somebody
    bool m_WaitsForDelegate = false;
    _color m_BkColor;
    _color m_FgColor;
    ISysPalette::SysColor m_BkSysColor = ISysPalette::scFace;
    ISysPalette::SysColor m_FgSysColor = ISysPalette::scControlText;
    int m_Cursor = 1;
    SFont* m_Font = nullptr;  // null: nothing set
    std::unique_ptr<STexts> m_Texts;
    IContextMenu* m_ContextMenu = nullptr;
    CVisualElement* m_KeyDelegate = nullptr;
    unsigned long m_Id = 0;
    CVisualElement* m_DestroyTop = nullptr;  // while being destroyed: the uppermost ancestor that is, too
    CChildren m_Children;                    // last: destroyed first
};

/// The root that each control makes for itself: draws nothing of its own.
class VEXEL_API CContent : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    ~CContent() override;

    void DrawContent(IPainter*) override {}
};

/// Wants the focus, is displayable and enabled, and has a control. False for null.
VEXEL_API bool CanHaveFocus(CVisualElement* element);
/// `ancestor` is the element itself or one of its parents. False if either is null.
VEXEL_API bool IsAncestor(CVisualElement const* element, CVisualElement const* ancestor);
/// Hands the element's text to the clipboard; false if there is none.
VEXEL_API bool CopyToClipboard(CVisualElement const* element);

/// Reading order of siblings: by top, then by left.
struct PositionComparer
{
    bool operator()(CVisualElement const* a, CVisualElement const* b) const
    {
        rectangle<int> const& p = a->GetPos();
        rectangle<int> const& q = b->GetPos();
        return p.top != q.top ? p.top < q.top : p.left < q.left;
    }
};

}  // namespace vexel
