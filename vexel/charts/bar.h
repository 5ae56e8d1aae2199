#pragma once

#include "vexel/charts/categorical_axis.h"
#include "vexel/scroll/scroll_timer.h"
#include "vexel/views/selection.h"

#include <string>
#include <vector>

namespace vexel
{

/// A strip of named sections, one for each category, each as wide as its step in the scroll model. A user can select
/// sections, resize them by their dividers, drag one to another place, and drag the strip's free edge. The bar changes no
/// data: it offers and tells, the owner does.
///
/// The category model gives number and captions. Rectangles and points are the element's pixels; those of sections begin
/// where the axis begins, which is the element's own beginning where the pane isn't shorter.
class VEXEL_API CBar : public CCategoricalAxis
{
public:
    enum HitTestArea : int
    {
        htNothing = 0,
        htSection = 1,
        htDivider = 2,  ///< Between `m_Section` and `m_NextSection`, or close to it.
        htBefore = 3,   ///< Before the strip, on the element.
        htBehind = 4,   ///< Behind the last section, or behind the strip on the element.
        htFreeEdge = 5
    };
    struct HitTestResult
    {
        int m_Area = htNothing;
        int m_Section = -1;  ///< Behind the last section these three are the count.
        int m_NextSection = -1;
        int m_Hover = -1;          ///< The section under the point, also at a divider.
        bool m_FirstHalf = false;  ///< The point lies in the first half of that.
    };
    enum State : int
    {
        stIdle = 0,
        stResizingSection = 1,
        stResizingBar = 2,
        stDragging = 3,  ///< A press went on for 6 pixels.
        stPressed = 4
    };
    enum Style : unsigned long  ///< Bits. With either of them sections can be dragged through the control, too.
    {
        bsResizeSections = 1,
        bsResizeBar = 2
    };

    CBar(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CBar() override;

    // Signals. Flags to allow are true at first. A slot may delete the bar --------------------------------------------------
    signal_t<CBar*, int, int> m_SigSectionDropped;   ///< From, to: where it stands once it is taken away from `from`.
    signal_t<bool*> m_SigBarResizeAllowed;           ///< Pressed on the free edge.
    signal_t<size<int>&> m_SigBarResized;            ///< A drag of the free edge ended; the size that the bar asks for.
    signal_t<int, bool*> m_SigSectionResizeAllowed;  ///< Pressed on the divider behind this section.
    signal_t<int, double> m_SigSectionResizing;      ///< Section, and the step that the pointer asks for.
    signal_t<int, double> m_SigSectionResized;       ///< The button came up: section and its width in pixels.
    signal_t<int, bool*> m_SigDragAllowed;           ///< A pressed section was moved by 6 pixels or more.
    signal_t<int, int> m_SigSectionMoved;            ///< Such a move ended over a section or divider: from, to.
    signal_t<int, int> m_SigSectionSwapped;          ///< Never fired by the bar: for the owner's use.
    signal_t<int, bool*> m_SigPressAllowed;          ///< Pressed; the selection changes anyway.
    signal_t<int> m_SigSectionClicked;               ///< Pressed and released.
    signal_t<int> m_SigHover;                        ///< At every move: the section under the pointer, -1 for none.

    // Style -----------------------------------------------------------------------------------------------------------------
    void SetStyle(unsigned long style) { m_Style = style; }
    unsigned long GetStyle() const { return m_Style; }             ///< 0 at first.
    void SetMinSectionSize(int size) { m_MinSectionSize = size; }  ///< Of a resize; pixels, 1 at first.
    int GetMinSectionSize() const { return m_MinSectionSize; }
    void SetMinBarSize(int size) { m_MinBarSize = size; }  ///< Of a drag of the free edge; 4 at first.
    int GetMinBarSize() const { return m_MinBarSize; }
    void SetMaxBarSize(int size) { m_MaxBarSize = size; }  ///< Unlimited at first.
    int GetMaxBarSize() const { return m_MaxBarSize; }
    void SetDragTransparency(int transparency) { m_DragTransparency = transparency; }  ///< 0 to 255; 128 at first.
    int GetDragTransparency() const { return m_DragTransparency; }

    // Selection -------------------------------------------------------------------------------------------------------------
    void GetSelectedSections(std::vector<int>& sections) const;  ///< Rising. None without a category model.
    void SetSelectedSections(std::vector<int> const& sections);  ///< These alone. Negative ones are ignored.
    bool IsSelected(int section) const;
    CSelectionTmpl<int> const& GetSelection() const { return m_Selection; }
    CSelectionTmpl<int> const& GetRangeSelection() const { return m_RangeSelection; }  ///< Of a shift selection.
    int GetSelAnchor() const { return m_SelAnchor; }  ///< The fixed end of a shift selection; -1: none.
    int GetSelLast() const { return m_SelLast; }      ///< The other one.

    // Geometry --------------------------------------------------------------------------------------------------------------
    /// Not cut to the view. Empty without a scroll model.
    rectangle<double> GetSectionRect(int section) const;
    /// The thickness that the captions ask for; 0 without a window.
    double GetSizeHint() const;
    HitTestResult HitTest(point<int> const& position) const;

    // State -----------------------------------------------------------------------------------------------------------------
    State GetState() const { return m_State; }
    int GetActiveSection() const { return m_ActiveSection; }  ///< Resized, pressed or moved; -1: none.
    int GetDragSection() const { return m_DragSection; }      ///< Dragged through the control, not drawn; -1: none.
    int GetDropTarget() const { return m_DropTarget; }        ///< Before which section it would be dropped; -1: none.
    bool IsTargetChanged() const { return m_TargetChanged; }  ///< By scrolling, since the last drawing.

    // Parts of its work -----------------------------------------------------------------------------------------------------
    void OnSigTimerTick(CScrollTimer* timer);  ///< The strip was scrolled under a drag: another drop target.
    void OnSigResize(CVisualElement* element);

public:  // From CScrollableElementEx: pixels, also along
    void FillHorizontal(IPainter::CoordInfo* info, IScrollModel* model) override;
    void FillVertical(IPainter::CoordInfo* info, IScrollModel* model) override;

public:  // From CVisualElement
    /// Without a scroll model or category model nothing is drawn.
    void DrawContent(IPainter* painter) override;
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    void HandleMouseLeave(CVisualElement* next) override;
    void ProcessSetControl(IControl* control) override;  ///< What a user was doing ends.

public:  // Overridable: sections, in pixels along and across as the strip is drawn
    virtual void DrawSection(IPainter* painter, rectangle<int> const& rect, int section, bool selected);
    virtual void DrawSpace(IPainter* painter, rectangle<int> const& rect);

public:  // Overridable: dragging, as the operations of CDragSource and CDropTarget that forward to these
    using CDragSource::CanStartDragging;
    using CDragSource::DragFinished;
    using CDragSource::DrawDragItem;
    using CDropTarget::DragOver;
    using CDropTarget::DropDone;
    virtual bool CanStartDragging(int x, int y, DragInfo& info);
    virtual void DragFinished(CVisualElement* target, DragInfo& info);
    virtual void DrawDragItem(IPainter* painter, DragInfo& info, bool accepted, CVisualElement* under);
    virtual bool DragOver(CVisualElement* source, int x, int y, DragInfo& info);
    virtual void DropDone(CVisualElement* source, int x, int y, DragInfo& info);

public:  // From CDragSource and CDropTarget
    bool HandleStartDragging(int x, int y, DragInfo& info) override;
    void HandleDragFinished(CVisualElement* target, DragInfo& info) override;
    void HandleDrawDragItem(IPainter* painter, DragInfo& info, bool accepted, CVisualElement* under) override;
    bool HandleDragOver(CVisualElement* source, int x, int y, DragInfo& info) override;
    void HandleDropDone(CVisualElement* source, int x, int y, DragInfo& info) override;

private:
    int AlongOf(int x, int y) const;
    int AcrossOf(int x, int y) const;
    bool IsUpright() const;
    int GetSectionCount() const;
    bool IsSection(int index) const;
    double GetPixelWidth(IScrollModel const& model, int section) const;
    rectangle<double> GetOwnAxisRect() const;
    int GetStripOrigin() const;
    rectangle<int> ToPixels(rectangle<double> const& rect) const;
    bool IsAtFreeEdge(point<int> const& position) const;
    HitTestResult HitTestStrip(int along) const;

    template <class... Index> bool Ask(signal_t<Index..., bool*>& signal, Index... index);
    void Press(HitTestResult const& hit, int x, int y);
    void Select(int section, int keys);
    void ResizeSection(int along);
    void ResizeBar(int position);
    void DragPressed(int along);
    void ShowCursor(HitTestResult const& hit);
    void EndPress(int x, int y);
    int BarResizePosition(int x, int y) const;

    int FindTarget(int position) const;
    void ScrollWhileDragging();
    rectangle<int> GetShownDragRect(DragInfo const& info) const;
    void DrawDraggedSection(IPainter* painter, rectangle<int> const& rect);
    void DrawDropPointer(IPainter* painter) const;

    CSelectionTmpl<int> m_Selection;
    CSelectionTmpl<int> m_RangeSelection;
    int m_SelAnchor = -1;
    int m_SelLast = -1;
    int m_MinSectionSize = 1;
    unsigned long m_Style = 0;
    int m_MinBarSize = 4;
    int m_MaxBarSize = 0x7FFFFFFF;
    int m_DragTransparency = 128;
    int m_DragSection = -1;
    int m_DropTarget = -1;
    bool m_TargetChanged = true;
    int m_DragPos = 0;  // along
    int m_ViewStart = 0;
    int m_ViewEnd = 0;
    int m_ViewTop = 0;
    int m_ViewBottom = 0;
    State m_State = stIdle;
    int m_ActiveSection = -1;
    int m_Anchor = 0;  // the pointer at the last step, along; across where a left or right bar is resized
    CScrollTimer m_Timer;
};

}  // namespace vexel
