#pragma once

#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/event_handler_base.h"

#include <type_traits>

namespace vexel
{

/// What the handlers of both kinds of view model share: the models, and the ones that stand in where none is set.
/// `Model`: IDiscreteItemViewModel or IContinuousItemViewModel.
template <class Model> class VEXEL_API CItemEventHandler : public CEventHandlerBase
{
public:
    /// What is used where no model is set.
    using DefaultModel = std::conditional_t<std::is_same_v<Model, IDiscreteItemViewModel>,
                                            CDefaultDiscreteItemViewModel, CDefaultColumnViewModel>;

    CItemEventHandler();
    ~CItemEventHandler() override;

    // Models: null means the handler's own; none is owned otherwise. One that dies is replaced by the own one -------------
    void SetViewModel(Model* model);
    Model* GetViewModel() const { return m_ViewModel; }
    void SetSelectionModel(ISelectionModel* model);
    ISelectionModel* GetSelectionModel() const { return m_SelectionModel; }

    IBaseItemViewModel* GetItemViewModel() const override { return m_ViewModel; }
    ISelectionModel* GetItemSelectionModel() const override { return m_SelectionModel; }

public:  // From CEventHandler
    bool ProcessMouseMove(int x, int y, int keys, MouseButton button, bool* handled) override;
    bool ProcessKeyDown(int keys, int key, bool* handled) override;
    int GetItemIndex(int x, int y) override;

protected:
    /// What of the items is drawn and where, along the axis and across it. No item: `first` below 0.
    struct SSpan
    {
        int first;
        int skip;  // pixels of the first item that lie before the view
        double from;
        double to;
        double near;
        double far;
        double stretchedEnd;  // where the last item ends at least, if it is stretched
    };
    /// Asks the painter for each item, and for the empty area behind the last one.
    void DrawItems(IPainter* painter, SSpan const& span);

    virtual bool MoveByKey(int key) = 0;  ///< False: not a key of this direction.
    virtual void ViewModelScrolled(int position, int delta, bool* handled) = 0;  ///< Slot of m_SigSizeChanged.
    virtual void ShowNewCurrent(int before) = 0;  ///< A press has moved the current item.

    int GetCurrent() const { return m_SelectionModel->GetCurrent(); }
    bool PressItem(int item, int keys);  ///< True: it did something.

private:
    void ViewModelScrolls(int position, int delta, bool* handled) { ViewModelScrolled(position, delta, handled); }
    void ViewModelStale() { MarkAll(m_ViewModel); }
    void ViewModelDies(IBaseItemsModel* model);
    void SelectionModelDies(IBaseItemsModel* model);

    Model* m_ViewModel = nullptr;
    std::unique_ptr<Model> const m_DefViewModel;
    ISelectionModel* m_SelectionModel = nullptr;
    std::unique_ptr<ISelectionModel> const m_DefSelectionModel;
};

extern template class CItemEventHandler<IDiscreteItemViewModel>;
extern template class CItemEventHandler<IContinuousItemViewModel>;

/// Items that scroll whole.
class VEXEL_API CDiscreteItemEventHandler : public CItemEventHandler<IDiscreteItemViewModel>
{
public:
    /// Scrolls so that the item stands in the middle. An index before or behind all items: to the first or last one.
    void ItemToView(int index);
    void CurrentItemToView() { ItemToView(GetCurrent()); }
    /// Scrolls to the current item if it isn't in view: it becomes the first (`toStart`) or the last one. True: it did.
    bool MakeCurrentVisible(bool toStart);
    void CheckNewCurrent();  ///< Scrolls by that little if the current item is one or two behind the last in view.
    void OnRowViewModelScroll(int position, int delta, bool* handled);

public:  // From CEventHandler
    bool ProcessButtonDown(int x, int y, int keys, MouseButton button, bool* handled) override;
    void ProcessDraw(IPainter* painter, rectangle<double> const& rect) override;
    void ProcessResize(rectangle<int> const& old, rectangle<int> const& now, bool invalidate) override;

protected:
    void ProcessRepeatOperation() override;
    void ViewModelScrolled(int position, int delta, bool* handled) override
    {
        OnRowViewModelScroll(position, delta, handled);
    }
    void ShowNewCurrent(int before) override;
    bool MoveByKey(int key) override;

private:
    void PageUp();
    void PageDown();
};

/// Items that scroll by pixels.
class VEXEL_API CContinuousItemEventHandler : public CItemEventHandler<IContinuousItemViewModel>
{
public:
    /// Scrolls so that the item stands in the middle; one that shows already stays where it is.
    void ItemToView(int item);
    void CurrentItemToView() { ItemToView(GetCurrent()); }
    /// Scrolls to the current item if it isn't wholly in view: its end to the view's end (`toEnd`, if there is room), else
    /// its beginning to the view's. True: it did.
    bool MakeCurrentVisible(bool toEnd);
    void OnColViewModelScroll(int position, int delta, bool* handled);
    /// The item at the view's beginning, and how much of it lies before. Both stay as they are if there is none.
    void CalcFirstSection(int* first, int* skip) const;

public:  // From CEventHandler
    bool ProcessButtonDown(int x, int y, int keys, MouseButton button, bool* handled) override;
    void ProcessDraw(IPainter* painter, rectangle<double> const& rect) override;

protected:
    void ProcessRepeatOperation() override;
    void ViewModelScrolled(int position, int delta, bool* handled) override
    {
        OnColViewModelScroll(position, delta, handled);
    }
    void ShowNewCurrent(int before) override;
    bool MoveByKey(int key) override;
};

}  // namespace vexel
