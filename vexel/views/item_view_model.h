#pragma once

#include "vexel/core/alive_guard.h"
#include "vexel/export.h"
#include "vexel/signals/signal.h"
#include "vexel/views/dirty_item_set.h"

namespace vexel
{

class IIndexTranslator;

/// Something about a row of items that a view shows, with the items that its next paint must touch.
class VEXEL_API IBaseItemsModel : public IDirtyItemSet
{
public:
    IBaseItemsModel() = default;
    IBaseItemsModel(IBaseItemsModel const&) = delete;
    IBaseItemsModel& operator=(IBaseItemsModel const&) = delete;
    ~IBaseItemsModel() override
    {
        CAliveLink::Forget(this);
        m_SigDestroy(this);
    }

    /// The items have other indices now. Null: nothing.
    virtual void UpdateModelState(IIndexTranslator* translator) = 0;

    signal_t<> m_SigChanged;  ///< Anything that needs a repaint or a new layout; after the change.
    /// Items look otherwise that are not marked dirty: whoever shows them paints them all. Before m_SigChanged.
    signal_t<> m_SigAllStale;
    /// The model dies; only this class's part still lives. Views go back to their own models.
    signal_t<IBaseItemsModel*> m_SigDestroy;
};

/// Guards a model whose signals are fired: a slot may delete it.
using CModelGuard = CAlivePtr<IBaseItemsModel const>;

/// The geometry of one axis of a list or grid: how many items, how big each, how much room the view has and where it
/// stands. Holds no item data. Sizes and positions are pixels along the axis; indices start at 0.
///
/// Signals fire inside the setters. A slot of m_SigSizeChanged sees the model in mid-change.
class VEXEL_API IBaseItemViewModel : public IBaseItemsModel
{
public:
    virtual void SetCount(int count) = 0;
    virtual int GetCount() const = 0;
    virtual void SetDefaultItemSize(int size) = 0;
    virtual int GetDefaultItemSize() const = 0;
    virtual void SetItemSize(int index, int size) = 0;
    virtual int GetItemSize(int index) const = 0;
    /// `invalidateAll`: everything is to be repainted, also if the size stays.
    virtual void SetViewSize(int size, bool invalidateAll) = 0;
    virtual int GetViewSize() const = 0;  ///< Below 0: the view isn't laid out yet.

    /// Whether hit tests take the last item to reach to the end of the view. A change repaints the last item and what
    /// lies behind it.
    void SetStretchLastItem(bool stretch);
    bool IsLastItemStretched() const { return m_StretchLastItem; }

    /// (position, delta, handled) asks the viewer to move pixels instead of painting them anew: all from `position` on,
    /// a pixel of the view, by `delta`. The viewer answers in `*handled` whether they were moved; what the model marks
    /// dirty follows from that. After a new item size the old sizes still hold.
    signal_t<int, int, bool*> m_SigSizeChanged;
    bool m_StretchLastItem = false;
};

/// The view stands at an item: it begins at an item's edge and scrolls by whole items. For rows.
class VEXEL_API IDiscreteItemViewModel : public IBaseItemViewModel
{
public:
    virtual void SetStartItem(int item) = 0;
    virtual int GetStartItem() const = 0;
};

/// The view stands at a pixel and may begin inside an item. For columns, and whatever scrolls by pixels.
class VEXEL_API IContinuousItemViewModel : public IBaseItemViewModel
{
public:
    virtual void SetOffset(int offset) = 0;
    virtual int GetOffset() const = 0;
    virtual int GetFullItemsSize() const = 0;  ///< Of all items together; at most the largest int.
};

/// What a cell needs of which two sets speak: the more urgent of both. In a full paint every cell is dirty.
/// Null painter: no full paint.
VEXEL_API IDirtyItemSet::DirtyType GetCellUpdateType(IPainter* painter, IDirtyItemSet::DirtyType a,
                                                     IDirtyItemSet::DirtyType b);

}  // namespace vexel
