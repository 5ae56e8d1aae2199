#pragma once

#include "vexel/core/element_ptr.h"
#include "vexel/core/native_drawing_flavor.h"
#include "vexel/headers/header_tree.h"
#include "vexel/scroll/scrollable_element_ex.h"
#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/item_positions.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vexel
{

namespace detail
{
class CHeaderGeometry;
class CHeaderIndex;
}  // namespace detail

/// A strip of sections in several levels above a scrolled view: a section spans those below it, and one that is collapsed or
/// has none below reaches down to the foot. Such a visual leaf is a column. Sections can be resized, pressed, expanded by a
/// button of theirs and dragged among their siblings; each may carry an element. What a user wants is offered by a signal
/// first, and the owner may refuse.
///
/// The header is also the view model of the columns: a grid below it takes it as such and reads its sizes from it.
///
/// It stands at the top. Rectangles and points are the element's pixels; sections include their edges. The tree is the
/// application's; see IHeaderModel for what it has to tell. Hit tests, a step of a resize, expanding and painting take the
/// time of what they show, not of the tree's size.
class VEXEL_API CHeader : public CScrollableElementEx,
                          public CNativeDrawingFlavor,
                          public IHeaderItemDrawing,
                          public IHeaderItemVisualisation,
                          public CSimpleContinuousItemViewModel,
                          public IItemPositions  // columns are found without a walk
{
public:
    using HitTestResult = HeaderHitTestResult;

    /// What a user does.
    struct Processing
    {
        enum State : int
        {
            stIdle = 0,
            stResizing = 1,
            stDragging = 2,
            stPressed = 3
        };

        int m_State = stIdle;
        CHeaderItemRef m_Item;  ///< Hot, resized, pressed or dragged.
        int m_ItemIndex = -1;   ///< Its column; -1: it is none.
        int m_Anchor = 0;       ///< Resizing: the column's left; pressed: where.
        int m_HotState = 0;     ///< Of IHeaderItemVisualisation.

        void Clear() { *this = {}; }
    };
    /// An element carried in a section.
    struct ElementAnchor
    {
        CHeaderItemRef m_Item;  ///< Null: not in the tree at present.
        CElementPtr<> m_Element;
        Alignment m_Alignment = alLeft;  ///< alLeft, alRight, or alClient for the middle.
        int m_Pos = -1;                  ///< From the section's left; -1: by the alignment.
        int m_AcrossPos = -1;            ///< From the section's top; -1: centred.
        bool m_Hidden = false;           ///< By the header.
    };
    enum Style : unsigned  ///< Bits.
    {
        hsResize = 1,  ///< Sections can be resized.
        hsPress = 2,   ///< Sections act as buttons.
        hsDrag = 4     ///< Sections can be dragged.
    };
    /// The columns as a list, made by a walk over the tree.
    class VEXEL_API CViewModelItems : public BaseVisitor
    {
    public:
        std::vector<IHeaderItem*> const& GetItems() const { return m_Items; }
        int GetFullWidth() const { return m_FullWidth; }
        int GetItemIndex(IHeaderItem* item) const;  ///< -1: none.
        int GetItemIndex(int modelIndex) const;     ///< The first one that has it; -1: none.
        bool Visit(IHeaderItem* item, int level) override;

    private:
        std::vector<IHeaderItem*> m_Items;
        int m_FullWidth = 0;
    };

    CHeader(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CHeader() override;

    using CVisualElement::m_SigDestroy;  ///< Of the element; that of the view model fires right before it.

    // Signals: the header comes first, then the item. `allow` is true at first -------------------------------------------
    signal_t<CHeader*, IHeaderItem*, bool*> m_SigCanResize;      ///< The pointer comes over a grip: the column's item.
    signal_t<CHeader*, IHeaderItem*, int, bool*> m_SigResizing;  ///< The width that a resize asks for.
    signal_t<CHeader*, IHeaderItem*, int> m_SigResized;          ///< The width was applied.
    signal_t<CHeader*, IHeaderItem*, bool*> m_SigCanDrag;
    signal_t<CHeader*, IHeaderItem*, int, int> m_SigDragOver;  ///< Its column or -1, the place among its siblings.
    /// Its column or -1. Where to, the last m_SigDragOver has told; the owner moves the item.
    signal_t<CHeader*, IHeaderItem*, int> m_SigDropped;
    signal_t<CHeader*, IHeaderItem*, bool*> m_SigCanPress;    ///< The pointer comes over a section, or presses it.
    signal_t<CHeader*, IHeaderItem*> m_SigClicked;            ///< Pressed and released.
    signal_t<CHeader*, IHeaderItem*> m_SigGripDoubleClicked;  ///< The column's item.
    signal_t<CHeader*, IHeaderItem*, bool> m_SigExpanded;     ///< After the change, by code or by button.

public:  // Overridable
    /// The mark of the place where a dragged section would go: before the child `index` of `parent`, null for the model.
    /// `clip`: nothing is drawn outside; empty: no limit.
    virtual void DrawDraggingPointer(IPainter* painter, IHeaderItem const* parent, int index,
                                     rectangle<double> const& clip);
    virtual void DrawSection(IPainter* painter, IHeaderItem* item, rectangle<double> const& rect,
                             IHeaderItemVisualisation* visualisation);
    /// May fill in the tip of a section. `rect`: the section's, in control pixels.
    virtual void SetHeaderTooltip(int /*x*/, int /*y*/, IHeaderItem*, screen_rectangle<int> const&, std::string*) {}

public:  // From CDragSource and CDropTarget: a header takes only its own sections
    bool HandleStartDragging(int x, int y, DragInfo& info) override;
    void HandleDragFinished(CVisualElement* target, DragInfo& info) override;
    bool HandleDragOver(CVisualElement* source, int x, int y, DragInfo& info) override;
    void HandleDropDone(CVisualElement* source, int x, int y, DragInfo& info) override;
    void HandleDrawDragItem(IPainter* painter, DragInfo& info, bool accepted, CVisualElement* under) override;

public:  // From the view model: its items are the columns
    void SetOffset(int offset) override;
    int GetFullItemsSize() const override;
    void SetDefaultItemSize(int) override {}  ///< Each column has a width of its own.
    int GetDefaultItemSize() const override { return m_MinWidth; }
    /// Stores it in the item. One that doesn't exist is ignored.
    void SetItemSize(int index, int size) override;
    int GetItemSize(int index) const override;  ///< -1: there is no such column.
    void SetCount(int) override {}              ///< The tree has it.
    int GetCount() const override;
    int GetViewSize() const override;
    void UpdateModelState(IIndexTranslator*) override {}  ///< Nothing: the widths are with the items.

protected:
    void SaveItemWidth(int index, int size) override;
    void SaveViewWidth(int size) override { m_ViewWidth = size; }
    void UpdateFullWidth(int) override {}  ///< The sum is kept with the widths.

public:  // From IItemPositions
    std::int64_t GetItemPosition(int index) const override;
    int FindItemAt(std::int64_t position) const override;

public:
    // Model: not owned; one that dies is forgotten. Null: none ------------------------------------------------------------
    void SetModel(IHeaderModel* model);
    IHeaderModel* GetModel() const { return m_Model; }
    void BuildViewModelItems();  ///< Reads the tree anew, without a signal or a repaint.
    /// The tree has changed: reads it anew, tells whoever shows the columns, and repaints. What m_SigChanged of the model
    /// leads to.
    void UpdateAfterChange();

    // Columns ------------------------------------------------------------------------------------------------------------
    IHeaderItem* GetHeaderItem(int index) const;   ///< Null: there is no such column.
    int VisibleIndex2ModelIndex(int index) const;  ///< -1: there is no such column.
    int GetVisibleIndex(IHeaderItem* item) const;  ///< -1: it is no column.
    int GetVisibleIndex(int modelIndex) const;     ///< The first column that has it, or -1. Searches.
    void SetSingleWidth(int width);  ///< With one column: its width; 0, as at first, or below: the item's.
    int GetSingleWidth() const { return m_SingleWidth; }
    void SetSingleColumnFit(bool fit);  ///< A single column's section is kept inside the element. Off at first.
    bool IsSingleColumnFit() const { return m_SingleColumnFit; }

    // Style --------------------------------------------------------------------------------------------------------------
    void SetStyle(unsigned style);  ///< Repaints on a change; all bits at first.
    unsigned GetStyle() const { return m_Style; }
    void SetMinWidth(int width) { m_MinWidth = width; }  ///< What a resize stops at; 30 pixels at first.
    int GetMinWidth() const { return m_MinWidth; }
    void SetDragBounds(rectangle<int> const& rect)
    {
        m_DragBounds = rect;
    }  ///< Of top-level sections; empty: the bounds.
    /// Takes another look for the sections; null: the header's own. Not owned: it must outlive the header or be replaced.
    void SetItemVisualisation(IHeaderItemVisualisation* visualisation);
    IHeaderItemVisualisation* GetItemVisualisation() const { return m_Visualisation; }
    void RecalculateHeight();  ///< A line of text and 4 pixels for each level.

    // Sections -----------------------------------------------------------------------------------------------------------
    void ExpandItem(IHeaderItem* item, bool expand);  ///< Null: nothing.
    HitTestResult HitTest(int x, int y) const;
    rectangle<double> GetHeaderRect() const;  ///< The strip: the bounds, moved to the left by the scroll model's start.
    rectangle<double> GetItemRect(IHeaderItem const* item) const;  ///< All zero for one that doesn't show.
    void CutRectByBounds(rectangle<double>& rect) const;  ///< Along x, if there is a single column that is to fit.
    /// The width of a section that has so much room for its content.
    int ContentWidth2SectionWidth(IHeaderItem const* item, int width,
                                  IHeaderItemVisualisation const* visualisation) const;
    int GetItemOptimalWidth(IHeaderItem const* item) const;  ///< So that nothing of its content is cut off.
    Processing const& GetProcessing() const { return m_Processing; }

    // Carried elements: one for each model index -----------------------------------------------------------------------------
    // An element becomes a child of the header, of alNone, and shows where its section does; not where the section is too
    // narrow for it, nor at the header's edges if it doesn't fit whole. It keeps the size that it asks for.
    /// At the left; or where it stands in the section now, in that size of the section (`keepPlace`).
    void SetVisualElement(IHeaderItem* item, CVisualElement* element, bool keepPlace);
    void SetVisualElement(IHeaderItem* item, CVisualElement* element, Alignment alignment);
    void RemoveVisualElement(int modelIndex);                ///< It leaves the header; the caller has it then.
    CVisualElement* GetVisualElement(int modelIndex) const;  ///< Null: none.
    void RecreateElements();   ///< Finds the items of all carried elements in the tree, by their model indices.
    void UpdateElementsPos();  ///< Puts all of them into their places.

public:  // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;
    void SetEnabled(bool enabled) override;  ///< What a user is doing ends; a drag is the control's to end.
    void ProcessSetControl(IControl* control) override;
    bool ScrollContent(int dx, int dy) override;
    void DrawContent(IPainter* painter) override;
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    bool HandleButtonUp(int x, int y, int keys, MouseButton button) override;
    bool HandleDoubleClick(int x, int y, int keys, MouseButton button) override;
    void HandleMouseLeave(CVisualElement* next) override;
    bool HandleOnTooltip(CTooltipEvent* event) override;
    void HandleControlChangeFocus(bool focused) override;

public:  // From IHeaderItemDrawing
    void DrawSection(IPainter* painter, IHeaderItem* item, rectangle<double> const& rect) override;

public:  // From IHeaderItemVisualisation
    int GetVisualisationState(IHeaderItem const* item) const override;
    rectangle<double> GetExpandBtnRect(rectangle<double> const& section, IHeaderItem const* item) const override;
    rectangle<double> GetSectionContentRect(rectangle<double> const& section, IHeaderItem const* item) const override;
    void DrawSectionBackground(IPainter* painter, rectangle<double> const& section, IHeaderItem const* item) override;
    void DrawSectionContent(IPainter* painter, rectangle<double> const& content, IHeaderItem const* item) override;
    void DrawExpandButton(IPainter* painter, rectangle<double> const& button, IHeaderItem const* item) override;
    void DrawSortingMarker(IPainter* painter, bool up, point<double> const& position) override;

private:
    struct DragRecord
    {
        CHeaderItemRef m_Item;
        int m_Anchor = 0;  // the pointer, from the section's left
        int m_Target = -1;
    };
    struct ContentParts  // what has room
    {
        rectangle<double> rect;
        bool image = true;
        bool text = true;
        int markWidth = 0;
    };

    detail::CHeaderIndex const& GetIndex() const;
    detail::CHeaderGeometry GetGeometry() const;
    void Sync();
    void TreeChanged();
    void ColumnsChanged();
    void ModelDies(IHeaderModel* model);

    // Input
    bool Ask(signal_t<CHeader*, IHeaderItem*, bool*>& signal, IHeaderItem* item);
    bool ResizeTo(int x, int y, int keys);
    void ProcessHotSection(HitTestResult const& result);
    void SetHot(IHeaderItem* item, int hotState);
    IHeaderItem* GetLastLeaf(IHeaderItem* item) const;
    void CheckScroll(int x);
    rectangle<int> GetDraggingBounds(IHeaderItem const* item, rectangle<int> const& rect) const;
    int GetDragDropIndex(int x, int y, IHeaderItem const* item) const;

    // Paint
    bool IsDimmed() const;
    _color GetSectionTextColor() const;
    bool Prepare2DrawSectionContent(IHeaderItem const* item, ContentParts* parts) const;
    int GetItemOptimalWidthInt(IHeaderItem const* item) const;
    size<int> GetImageSize(IHeaderItem const* item) const;

    // Elements
    ElementAnchor* FindAnchor(IHeaderItem const* item);
    ElementAnchor const* FindAnchor(IHeaderItem const* item) const;
    void Carry(IHeaderItem* item, CVisualElement* element, Alignment alignment, int pos, int acrossPos);
    void UpdateElementPos(ElementAnchor& anchor);
    void FindItems(bool all);

    std::map<int, ElementAnchor> m_Elements;  // by model index
    IHeaderModel* m_Model = nullptr;
    IHeaderItemVisualisation* m_Visualisation = this;
    int m_ViewWidth = -1;  // below 0: the element's
    int m_MinWidth = 30;
    Processing m_Processing;
    DragRecord m_Drag;
    unsigned m_Style = hsResize | hsPress | hsDrag;
    rectangle<int> m_DragBounds;
    int m_SingleWidth = 0;
    bool m_SingleColumnFit = false;
    std::unique_ptr<detail::CHeaderIndex> const m_Index;
    mutable bool m_IsStale = false;                 // the index
    mutable unsigned long m_KnownDestroyCount = 0;  // of items, when it was built
    unsigned long m_SyncedVersion = 0;              // of the index, that the fields above know
};

}  // namespace vexel
