#pragma once

#include "vexel/core/native_drawing_flavor.h"
#include "vexel/headers/simple_header_model.h"
#include "vexel/scroll/scrollable_element_ex.h"
#include "vexel/views/item_view_model.h"

#include <string>

namespace vexel
{

/// A strip of sections along one edge of a scrolled view, the header of its columns or rows. Dividers can be dragged,
/// sections pressed, dragged to another place, and marked as sorted. Each of these is offered by a signal first, and the
/// owner may refuse. Captions come from the model, widths from the view model if there is one.
///
/// Indices are places on the screen. Rectangles and points are the element's pixels; one pixel of each section's width is
/// its divider.
class VEXEL_API CSimpleHeader : public CScrollableElementEx, public CNativeDrawingFlavor
{
public:
    enum HitTestArea : int
    {
        htNothing = 0,
        htSection = 1,
        htDivider = 2,
        htEmptyEnd = 3,  ///< Of the strip, behind the last section.
        htBefore = 4,    ///< Before the strip, on the element.
        htBehind = 5     ///< Behind the strip, on the element.
    };
    struct HitTestResult
    {
        HitTestArea m_Area = htNothing;
        int m_Section = 0;
        int m_NextSection = 0;  ///< Behind a divider; else the section.
        rectangle<int> m_Rect;  ///< The section's.
    };
    enum State : int
    {
        stIdle = 0,
        stResizing = 1,
        stDragging = 2,
        stPressed = 3
    };
    enum Style : unsigned  ///< Bits.
    {
        hsResize = 1,  ///< Dividers can be dragged.
        hsPress = 2,   ///< Sections act as buttons.
        hsDrag = 4,    ///< Sections can be dragged.
        hsFlat = 8
    };

    CSimpleHeader(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CSimpleHeader() override;

    // Signals: the header comes first, then the section. `allow` is true at first ------------------------------------------
    signal_t<CSimpleHeader*, int, bool*> m_SigCanResize;      ///< The pointer comes over a divider.
    signal_t<CSimpleHeader*, int, int, bool*> m_SigResizing;  ///< The width that a dragged divider asks for.
    signal_t<CSimpleHeader*, int, int> m_SigResized;          ///< The width was applied.
    signal_t<CSimpleHeader*, int, bool*> m_SigCanDrag;
    signal_t<CSimpleHeader*, int, int> m_SigDragOver;      ///< Dragged section, the one under the pointer.
    signal_t<CSimpleHeader*, int, int> m_SigSectionMoved;  ///< Dropped: from, to.
    signal_t<CSimpleHeader*, int, bool*> m_SigCanPress;    ///< The pointer comes over a section, or presses it.
    signal_t<CSimpleHeader*, int> m_SigSectionClicked;     ///< Pressed and released.
    signal_t<CSimpleHeader*, int> m_SigDividerDoubleClicked;

    // Models: not owned; one that dies is forgotten. Null: none ------------------------------------------------------------
    void SetModel(ISimpleHeaderModel* model);
    ISimpleHeaderModel* GetModel() const { return m_Model; }
    void SetViewModel(IBaseItemViewModel* model);
    IBaseItemViewModel* GetViewModel() const { return m_ViewModel; }
    bool IsModelAvailable() const { return m_Model || m_ViewModel; }  ///< Either.
    void OnUpdateModel();                                             ///< Repaints. Connected to both.

    // Style ----------------------------------------------------------------------------------------------------------------
    void SetStyle(unsigned style);  ///< Repaints on a change; hsResize, hsPress and hsDrag at first.
    unsigned GetStyle() const { return m_Style; }
    void SetMinimalSectionWidth(int width);  ///< Pixels; not below 15 times the display scale, as at first.
    int GetMinimalSectionWidth() const { return m_MinSectionWidth; }
    void ExpandLastSection(bool expand);  ///< To the end of the strip. Only without a view model, which has its own.
    bool IsLastSectionExpanded() const;
    void SetDragRect(rectangle<int> const& rect) { m_DragRect = rect; }  ///< Limits a drag; empty: the bounds.
    void SetShowDragPointer(bool show) { m_ShowDragPointer = show; }     ///< At the place of a drop; on at first.

    // Sections: the view model's, else the model's, else nothing's -----------------------------------------------------------
    int GetSectionCount() const;
    int GetItemWidth(int section) const;
    int GetSortingDirection(int section) const;  ///< 0 none, 1 upwards, others downwards.
    std::string GetItemCaption(int section) const;
    int GetItemTextAlign(int section) const;
    int GetItemImageIndex(int section) const;
    std::string GetItemDescription(int section) const;

    // Geometry -------------------------------------------------------------------------------------------------------------
    HitTestResult HitTest(point<int> const& position);
    /// The strip: as long as the central pane, or as what the view model shows. In the painter's units; without one in
    /// control pixels.
    rectangle<double> GetHeaderRect(IPainter* painter) const;
    /// Empty where the section doesn't show. One behind the last has no width and stands at the end of that.
    rectangle<int> GetSectionRect(int section);
    /// The section at the strip's beginning, and how much of it lies before. Without a scroll model both stay as they are.
    void CalcFirstSection(int* first, int* offset) const;
    int CalcItemWidth(int section, double left, double right) const;  ///< One less than the width, or to the right end.
    State GetState() const { return m_State; }
    int GetActiveSection() const { return m_ActiveSection; }  ///< Resized, pressed or dragged; -1: none.
    int GetHotSection() const { return m_HotSection; }        ///< Under the pointer; -1: none.

    // Parts of its work ----------------------------------------------------------------------------------------------------
    void DrawSection(IPainter* painter, point<double> const& position, int section);
    void CheckScrolling(int position, int extent, HitTestArea area);  ///< Ends scrolling where the pointer is back.
    void ProcessHotSection(HitTestResult const& result);

public:  // From CVisualElement
    void DrawContent(IPainter* painter) override;
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    bool HandleDoubleClick(int x, int y, int keys, MouseButton button) override;
    void HandleMouseLeave(CVisualElement* next) override;
    bool HandleOnTooltip(CTooltipEvent* event) override;

public:  // Overridable
    virtual void DrawDraggingPointer(IPainter* painter, int section);

public:  // From CDragSource and CDropTarget
    bool HandleStartDragging(int x, int y, DragInfo& info) override;
    void HandleDragFinished(CVisualElement* target, DragInfo& info) override;
    void HandleDrawDragItem(IPainter* painter, DragInfo& info, bool accepted, CVisualElement* under) override;
    bool HandleDragOver(CVisualElement* source, int x, int y, DragInfo& info) override;
    void HandleDropDone(CVisualElement* source, int x, int y, DragInfo& info) override;

public:  // Overridable
    virtual void DrawSectionRect(IPainter* painter, rectangle<double> const& rect, int section);
    virtual void DrawEmptyArea(IPainter* painter, double left, double top, double right, double bottom);
    virtual bool
    HandleDragOver(CVisualElement* source);  ///< Whether its sections may be dropped here: only the own ones.

private:
    class CSections;  // a walk over the sections that show

    int AlongOf(int x, int y) const;
    int AlongOf(point<int> const& position) const { return AlongOf(position.x, position.y); }
    rectangle<double> GetOwnHeaderRect() const;  // in own pixels
    double GetAcrossExtent() const;
    bool IsNativeLook() const;
    bool Ask(signal_t<CSimpleHeader*, int, bool*>& signal, int section);
    void SetHotSection(int section, bool allowed);
    void ResizeTo(int position, int x, int y, int keys);
    void ScrollWhileDragging(point<int> const& position);
    void DrawEdge(IPainter* painter, rectangle<double> rect);
    void DrawSortMark(IPainter* painter, rectangle<double> const& section, rectangle<int> const& label, int direction);
    void ModelDies(IItemsModel* model);
    void ViewModelDies(IBaseItemsModel* model);

    State m_State = stIdle;
    int m_ActiveSection = -1;
    int m_HotSection = -1;
    int m_Anchor = 0;  // resizing: the section's beginning; pressed: the pointer's last place
    int m_MinSectionWidth;
    ISimpleHeaderModel* m_Model = nullptr;
    IBaseItemViewModel* m_ViewModel = nullptr;
    rectangle<int> m_DragRect;
    unsigned m_Style = hsResize | hsPress | hsDrag;
    bool m_ExpandLastSection = false;
    bool m_ShowDragPointer = true;
};

}  // namespace vexel
