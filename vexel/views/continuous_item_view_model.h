#pragma once

#include "vexel/core/update_storage.h"
#include "vexel/export.h"
#include "vexel/views/item_size_map.h"
#include "vexel/views/item_view_model.h"

#include <cstdint>
#include <limits>

namespace vexel
{

/// Position and dirty set; count and sizes are stored by the subclass.
class VEXEL_API CSimpleContinuousItemViewModel : public IContinuousItemViewModel
{
public:
    // From IDirtyItemSet: everything is dirty at first -----------------------------------------------------------------
    void AddDirtyItems(int first, int last) override { m_DirtyItems.UpdateItems(first, last); }
    DirtyType GetItemType(int index) const override { return m_DirtyItems.GetItemType(index); }
    void OnEndDraw() override { m_DirtyItems.OnEndDraw(); }

    // From IBaseItemViewModel ------------------------------------------------------------------------------------------
    void SetItemSize(int index, int size) override;  ///< Fires m_SigSizeChanged before the new size holds.
    void SetViewSize(int size, bool invalidateAll) override;

    // From IContinuousItemViewModel ------------------------------------------------------------------------------------
    /// Scrolls. Goes as far as the items fill the view, or anywhere while there is no view. Offers the viewer to move
    /// the pixels; what was not moved becomes dirty.
    void SetOffset(int offset) override;
    int GetOffset() const override { return m_Offset; }

protected:
    virtual void SaveItemWidth(int index, int size) = 0;  ///< Only stores.
    virtual void SaveViewWidth(int size) = 0;             ///< Only stores.
    virtual void UpdateFullWidth(int delta) = 0;          ///< The sum of all sizes has changed by so much.

private:
    int m_Offset = 0;
    CUpdateStorage m_DirtyItems{0, std::numeric_limits<int>::max()};
};

/// The default size with exceptions.
class VEXEL_API CDefaultColumnViewModel : public IContinuousItemViewModel
{
public:
    CDefaultColumnViewModel();  ///< No items, of 20 pixels times the display scale. Everything is dirty.

    CItemSizeMap const& GetItemSizes() const { return m_ItemSizes; }  ///< The exceptions.

    // From IDirtyItemSet -----------------------------------------------------------------------------------------------
    void AddDirtyItems(int first, int last) override { m_DirtyItems.UpdateItems(first, last); }
    DirtyType GetItemType(int index) const override { return m_DirtyItems.GetItemType(index); }
    void OnEndDraw() override { m_DirtyItems.OnEndDraw(); }

    // From IBaseItemsModel ---------------------------------------------------------------------------------------------
    void UpdateModelState(IIndexTranslator* translator) override;  ///< The sizes go with their items; fires.

    // From IBaseItemViewModel ------------------------------------------------------------------------------------------
    /// An offset beyond the last item goes to 0. Everything becomes dirty; fires in any case.
    void SetCount(int count) override;
    int GetCount() const override { return m_Count; }
    void SetDefaultItemSize(int size) override;  ///< Likewise, but only on a change.
    int GetDefaultItemSize() const override { return m_DefaultItemSize; }
    /// Below 1: the default. Fires m_SigSizeChanged before the new size holds.
    void SetItemSize(int index, int size) override;
    int GetItemSize(int index) const override { return m_ItemSizes.Get(index, m_DefaultItemSize); }
    void SetViewSize(int size, bool invalidateAll) override;
    int GetViewSize() const override { return m_ViewSize; }

    // From IContinuousItemViewModel ------------------------------------------------------------------------------------
    void SetOffset(int offset) override;  ///< As in CSimpleContinuousItemViewModel.
    int GetOffset() const override { return m_Offset; }
    /// Where there are no more items than exceptions, only the exceptions are counted.
    int GetFullItemsSize() const override;

private:
    void AllChanged();

    int m_Offset = 0;
    int m_DefaultItemSize;
    int m_Count = 0;
    int m_ViewSize = -1;
    mutable std::int64_t m_FullSize = 0;  // 0 or less: not known
    CItemSizeMap m_ItemSizes;
    CUpdateStorage m_DirtyItems{0, std::numeric_limits<int>::max()};
};

/// One item that is larger than its view, like a document in a pane.
class VEXEL_API COneItemViewModel : public IContinuousItemViewModel
{
public:
    /// The item must be painted, or has been. Fires m_SigChanged if that is new.
    void Changed(bool changed);

    // From IDirtyItemSet -----------------------------------------------------------------------------------------------
    void AddDirtyItems(int, int) override {}
    DirtyType GetItemType(int) const override { return m_Changed ? dirtyItem : dirtyOther; }
    void OnEndDraw() override { m_Changed = false; }

    void UpdateModelState(IIndexTranslator*) override {}

    // From IBaseItemViewModel: the item's size is stored without a signal ----------------------------------------------
    void SetCount(int) override {}
    int GetCount() const override { return 1; }
    void SetDefaultItemSize(int size) override { m_Size = size; }
    int GetDefaultItemSize() const override { return m_Size; }
    void SetItemSize(int, int size) override { m_Size = size; }
    int GetItemSize(int) const override { return m_Size; }
    void SetViewSize(int size, bool invalidateAll) override;  ///< Does nothing for the same size, whatever the flag.
    int GetViewSize() const override { return m_ViewSize; }

    // From IContinuousItemViewModel ------------------------------------------------------------------------------------
    /// Goes as far as the item fills the view. m_SigSizeChanged comes before the store, with the new offset as its
    /// position.
    void SetOffset(int offset) override;
    int GetOffset() const override { return m_Offset; }
    int GetFullItemsSize() const override { return m_Size; }

private:
    int m_Size = 0;
    int m_ViewSize = 0;
    int m_Offset = 0;
    bool m_Changed = false;
};

}  // namespace vexel
