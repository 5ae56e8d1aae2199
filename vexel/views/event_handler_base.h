#pragma once

#include "vexel/core/element_ptr.h"
#include "vexel/layout/layout.h"
#include "vexel/scroll/scrollable_element.h"
#include "vexel/tasks/postponed_operation.h"
#include "vexel/tasks/repeatable_operation.h"
#include "vexel/views/event_handler.h"
#include "vexel/views/item_painter.h"
#include "vexel/views/item_view_model.h"
#include "vexel/views/selection_model.h"

#include <memory>

namespace vexel
{

enum ItemsDirection : int
{
    idHorizontal = 0,
    idVertical = 1
};

/// Emits its signal once, when the queue that it was given to comes to it.
class VEXEL_API CSelectionRunnable : public IRunnable
{
public:
    signal_t<> m_SigRun;

    bool Run() override
    {
        m_SigRun();
        return false;
    }
    bool IsDynamicRunnable() const override { return true; }
};

/// How long a listener hears nothing of selections that are moved by keys: milliseconds from the last step on. 0, as at
/// first: it hears after each event. For handlers that have not notified of a key yet.
VEXEL_API void SetSelectionChangeDelay(int milliseconds);
VEXEL_API int GetSelectionChangeDelay();

/// The selection behaviour of a list along one axis: what a click, a shift-click, a control-click, a key and a drag out of
/// the view do to the current item, the selection and the position. The subclass knows the view model.
class VEXEL_API CEventHandlerBase : public CEventHandler,
                                    public subscriber_base_t,
                                    private CRepeatableOperation  // scrolls while a drag is past the edge, every 100 ms
{
public:
    enum SelectionType : int
    {
        stOneItem = 0,
        stFree = 1,  ///< Several items, by shift and control.
        stNone = 2
    };
    enum ScrollState : int
    {
        ssIdle = 0,
        ssForward = 1,
        ssBackward = 2
    };

    CEventHandlerBase();
    ~CEventHandlerBase() override;

    // Signals ------------------------------------------------------------------------------------------------------------
    signal_t<int, int&> m_SigCurrentChanging;  ///< Present current, proposed one: a slot may change the proposal.
    signal_t<> m_SigSelectionChanged;          ///< Once after a change, if it is wanted (SetNotifySelection).

    // What it serves: not owned -------------------------------------------------------------------------------------------
    void SetViewer(CScrollableElement* viewer);
    CScrollableElement* GetViewer() const { return m_Viewer.get(); }
    void SetPainter(IItemPainter* painter) { m_Painter = painter; }
    void SetDirection(ItemsDirection direction);
    ItemsDirection GetDirection() const { return m_Direction; }

    // Behaviour -----------------------------------------------------------------------------------------------------------
    SelectionType GetSelectionType() const { return m_SelectionType; }
    void SetSelectionType(SelectionType type) { m_SelectionType = type; }  ///< What is selected stays.
    int GetAnchor() const { return m_Anchor; }  ///< The fixed end of a shift selection; -1: none.
    void SetAnchor(int item) { m_Anchor = item; }
    bool IsNotifySelection() const { return m_NotifySelection; }
    void SetNotifySelection(bool notify) { m_NotifySelection = notify; }  ///< Off at first.
    bool IsNoAutoVisible() const { return m_NoAutoVisible; }
    void SetNoAutoVisible(bool locked) { m_NoAutoVisible = locked; }  ///< True: MakeCurrentVisible does nothing.
    ScrollState GetScrollState() const { return m_ScrollState; }      ///< Of a drag past the edge.

    // Steps ---------------------------------------------------------------------------------------------------------------
    void SetCurrentItem(int item);  ///< Asks m_SigCurrentChanging first. The selection stays.
    void ProcessItemChange(int old, int now, int keys, ISelectionModel* model);
    void ProcessItemChangeOneItem(int old, int now, int keys, ISelectionModel* model);
    void ProcessItemChangeFree(int old, int now, int keys, ISelectionModel* model);
    void Reselect(int item, ISelectionModel* model);  ///< A plain click on the current item: it alone is selected.
    /// Moves the pixels of the view from `position` on by `delta`, both along the axis. False: it can't.
    bool ScrollItems(int position, int delta);
    /// Starts or stops the scrolling of a drag: backward for a position below 0, forward for no item (below 0).
    void ProcessScrolling(int item, int position);
    void StopScrolling();

    void UpdateScroll();    ///< Tells the viewer's scroll model of this direction that it has changed.
    void UpdateLastItem();  ///< The last item is repainted, if it is stretched.
    bool IsLastItemExpanded() const;
    void OnViewModelChange();
    void OnSelectionModelChange();
    void PostSelectionChanged();
    void NotifySelectionChanged();

public:  // From CEventHandler
    bool ProcessMouseMove(int x, int y, int keys, MouseButton button, bool* handled) override;
    bool ProcessButtonDown(int x, int y, int keys, MouseButton button, bool* handled) override;
    bool ProcessButtonUp(int x, int y, int keys, MouseButton button, bool* handled) override;
    void ProcessResize(rectangle<int> const& old, rectangle<int> const& now, bool invalidate) override;
    void ProcessGetFocus(bool* handled) override;
    void ProcessLostFocus(bool* handled) override;

public:  // Overridable
    virtual IBaseItemViewModel* GetItemViewModel() const { return nullptr; }
    virtual ISelectionModel* GetItemSelectionModel() const { return nullptr; }
    virtual int GetItemIndex(int x, int y);  ///< The item at this point of the viewer; -1: none.

protected:  // From CRepeatableOperation
    void ProcessRepeatOperation() override {}

protected:
    /// What an operation touches again after it has called models or signals, whose slots may delete anything.
    class CGuard
    {
    public:
        CGuard(CEventHandlerBase* handler, IBaseItemsModel const* model) : m_Handler(handler), m_Model(model) {}
        explicit operator bool() const { return m_Handler && m_Model; }
        bool IsHandlerAlive() const { return m_Handler.IsAlive(); }

    private:
        CAlivePtr<CEventHandler> m_Handler;
        CModelGuard m_Model;
    };

    int AlongOf(int x, int y) const;                      ///< The position along the axis.
    int GetLength() const;                                ///< Of the viewer along the axis; 0 without one.
    void RequestRepaint();                                ///< Of what is marked dirty.
    void MarkAll(IBaseItemsModel* model);                 ///< All items are painted anew. Null: nothing.
    bool IsDragging(int keys, MouseButton button) const;  ///< The left button is held and the viewer has the capture.
    /// Treats the item under a drag as shift-clicked, or scrolls where there is none.
    bool DragTo(int item, int x, int y, MouseButton button, bool* handled);
    bool SelectAll(int keys, int key);         ///< Control and A.
    void ToggleItem(int item);                 ///< The model tells of a deselection, too.
    void FollowCurrent(int before, int keys);  ///< The selection follows a current item that has changed.
    void ConnectSelection(ISelectionModel* model);
    void DisconnectSelection(ISelectionModel* model);

    ILayout* m_Layout;
    IItemPainter* m_Painter = nullptr;
    ScrollState m_ScrollState = ssIdle;
    point<int> m_Down{-1, -1};  // where the left button went down
    bool m_FromKeyboard = false;

private:
    void DropPrevious(int old, ISelectionModel* model);
    void SelectionModelStale();
    void MarkSelection();

    CElementPtr<CScrollableElement> m_Viewer;
    ItemsDirection m_Direction = idHorizontal;
    SelectionType m_SelectionType = stFree;
    int m_Anchor = -1;
    bool m_NotifySelection = false;
    bool m_NotifyPending = false;
    bool m_NoAutoVisible = false;
    ISysWindow const* m_PostedTo = nullptr;  // where the pending notification waits; only compared
    std::unique_ptr<CPostponedOperation> m_Postponed;
};

}  // namespace vexel
