#pragma once

#include "vexel/core/update_storage.h"
#include "vexel/export.h"
#include "vexel/views/item_size_map.h"
#include "vexel/views/item_view_model.h"

#include <limits>

namespace vexel
{

class ISelectionModel;

/// All items have the default size.
///
/// The end of the list leaves the place of an item empty that would just fit; see Utils::CalcMaxStart.
class VEXEL_API CSimpleDiscreteItemViewModel : public IDiscreteItemViewModel
{
public:
    CSimpleDiscreteItemViewModel();  ///< No items, of 20 pixels times the display scale. Everything is dirty.

    // From IDirtyItemSet -----------------------------------------------------------------------------------------------
    void AddDirtyItems(int first, int last) override { m_DirtyItems.UpdateItems(first, last); }
    DirtyType GetItemType(int index) const override { return m_DirtyItems.GetItemType(index); }
    void OnEndDraw() override { m_DirtyItems.OnEndDraw(); }

    // From IBaseItemsModel ---------------------------------------------------------------------------------------------
    /// The start goes with its item, as far as there is a view full behind it; fires only if it moved.
    void UpdateModelState(IIndexTranslator* translator) override;

    // From IBaseItemViewModel ------------------------------------------------------------------------------------------
    /// A start beyond the last item goes to 0. Everything becomes dirty; fires in any case.
    void SetCount(int count) override;
    int GetCount() const override { return m_Count; }
    void SetDefaultItemSize(int size) override;  ///< Everything becomes dirty; fires in any case.
    int GetDefaultItemSize() const override { return m_DefaultItemSize; }
    void SetItemSize(int, int) override {}
    int GetItemSize(int) const override { return m_DefaultItemSize; }
    void SetViewSize(int size, bool invalidateAll) override;  ///< Fires on a change of size only.
    int GetViewSize() const override { return m_ViewSize; }

    // From IDiscreteItemViewModel --------------------------------------------------------------------------------------
    /// Scrolls. Goes as far as the last view full, or anywhere while there is no view. Offers the viewer to move the
    /// pixels where the old and the new view overlap; what was not moved becomes dirty.
    void SetStartItem(int item) override;
    int GetStartItem() const override { return m_StartItem; }

private:
    int m_StartItem = 0;
    int m_DefaultItemSize;
    int m_Count = 0;
    int m_ViewSize = -1;
    CUpdateStorage m_DirtyItems{0, std::numeric_limits<int>::max()};
};

/// The item that stays in view when the view gets another size: a fixed one, else the current one of a model.
class VEXEL_API CItemAnchor : public subscriber_base_t
{
public:
    /// Below 0: the current item of the anchor model. Takes effect with the next change of the view.
    void SetAnchorItem(int item) { m_AnchorItem = item; }
    int GetAnchorItem() const { return m_AnchorItem; }
    /// Null: none. Not owned; it is forgotten when it dies.
    void SetAnchorModel(ISelectionModel* model);
    ISelectionModel* GetAnchorModel() const { return m_AnchorModel; }

protected:
    ~CItemAnchor() override = default;
    int FindAnchor() const;  ///< Below 0: none.

private:
    void AnchorModelDies(IBaseItemsModel*) { m_AnchorModel = nullptr; }

    int m_AnchorItem = -1;
    ISelectionModel* m_AnchorModel = nullptr;
};

/// The size of the items follows from the view, so that they fill it, within bounds.
class VEXEL_API CEqualItemsViewModel : public CSimpleDiscreteItemViewModel, public CItemAnchor
{
public:
    /// 1 and the largest int at first. Takes effect with the next change of the view; with a `min` below 1 the view
    /// no longer sets the size.
    void SetItemSizeBounds(int min, int max)
    {
        m_MinItemSize = min;
        m_MaxItemSize = max;
    }
    int GetMinItemSize() const { return m_MinItemSize; }
    int GetMaxItemSize() const { return m_MaxItemSize; }

    void UpdateView();  ///< Works out size and start anew. Does nothing while not one item fits.

    void SetCount(int count) override;
    void SetViewSize(int size, bool invalidateAll) override;
    void SetStartItem(int item) override;

private:
    void AddDirtyBottomEdge();

    int m_MinItemSize = 1;
    int m_MaxItemSize = std::numeric_limits<int>::max();
};

/// The default size with exceptions.
class VEXEL_API CDefaultDiscreteItemViewModel : public CSimpleDiscreteItemViewModel
{
public:
    CItemSizeMap const& GetItemSizes() const { return m_ItemSizes; }  ///< The exceptions.

    void UpdateModelState(IIndexTranslator* translator) override;  ///< The sizes go with their items; fires.
    /// Below 1: the default. Fires m_SigSizeChanged, if the item is well inside the view, before the new size holds.
    void SetItemSize(int index, int size) override;
    int GetItemSize(int index) const override { return m_ItemSizes.Get(index, GetDefaultItemSize()); }

private:
    CItemSizeMap m_ItemSizes;
};

/// Sizes of their own, and an item that stays in view.
class VEXEL_API CNonEqualItemsViewModel : public CDefaultDiscreteItemViewModel, public CItemAnchor
{
public:
    void UpdateView();  ///< Brings the anchor into view.

    void SetCount(int count) override;
    void SetViewSize(int size, bool invalidateAll) override;
    void SetStartItem(int item) override;
};

}  // namespace vexel
