#pragma once

#include "vexel/core/update_storage.h"
#include "vexel/export.h"
#include "vexel/signals/signal.h"
#include "vexel/views/item_view_model.h"
#include "vexel/views/selection.h"

#include <limits>

namespace vexel
{

/// Which items of a view are selected, and which one is current. Neither follows from the other.
class VEXEL_API ISelectionModel : public IBaseItemsModel
{
public:
    virtual void SetCurrent(int index) = 0;  ///< -1: none.
    virtual int GetCurrent() const = 0;
    virtual void SelectItem(int index, bool select) = 0;  ///< Does nothing below 0.
    virtual void SetSelectionRange(int a, int b) = 0;     ///< These alone, both included, in any order.
    virtual bool IsItemSelected(int index) const = 0;
    virtual void ClearSelection() = 0;
    virtual int GetSelectedCount() const = 0;
    /// The first selected item behind `index`, written back to it; false if there is none. Begin with -1:
    ///
    ///     for (int i = -1; model.GetNextSelectedItem(i);)
    virtual bool GetNextSelectedItem(int& index) const = 0;

    signal_t<int, int> m_SigCurrentChanged;  ///< (old, new), after the change.
    /// Something was selected. Deselecting an item and clearing fire m_SigChanged only.
    signal_t<> m_SigSelectionChanged;
};

/// The current item, the dirty set and the signals; the subclass stores the selection.
class VEXEL_API CSelectionModelBase : public ISelectionModel
{
public:
    // From IDirtyItemSet: everything is dirty at first -----------------------------------------------------------------
    void AddDirtyItems(int first, int last) override { m_DirtyItems.UpdateItems(first, last); }
    DirtyType GetItemType(int index) const override { return m_DirtyItems.GetItemType(index); }
    void OnEndDraw() override { m_DirtyItems.OnEndDraw(); }

    // From IBaseItemsModel ---------------------------------------------------------------------------------------------
    void UpdateModelState(IIndexTranslator*) override {}

    // From ISelectionModel ---------------------------------------------------------------------------------------------
    void SetCurrent(int index) override;
    int GetCurrent() const override { return m_Current; }
    void SelectItem(int index, bool select) override;
    void SetSelectionRange(int a, int b) override;
    void ClearSelection() override;  ///< Does nothing if nothing is selected.

protected:
    virtual bool IsSelectionEmpty() const = 0;
    // These only store.
    virtual void ClearSelectionImp() = 0;
    virtual void SetItemSelectionImp(int index, bool select) = 0;
    virtual void SetItemsSelectionImp(int a, int b, bool select) = 0;

    int m_Current = -1;
    CUpdateStorage m_DirtyItems{0, std::numeric_limits<int>::max()};
};

/// Stores the selection as runs.
class VEXEL_API CDefaultSelectionModel : public CSelectionModelBase
{
public:
    /// Selection and current go with their items. A removed item's selection goes to the item before it, if there is
    /// one.
    void UpdateModelState(IIndexTranslator* translator) override;
    /// While one run is being dragged, repaints only the new one, and leaves what it has left to the caller.
    void SetSelectionRange(int a, int b) override;
    bool IsItemSelected(int index) const override { return m_Selection.IsSelected(index); }
    int GetSelectedCount() const override { return m_Selection.GetSelectedItems(); }
    bool GetNextSelectedItem(int& index) const override;

protected:
    bool IsSelectionEmpty() const override { return m_Selection.IsEmpty(); }
    void ClearSelectionImp() override { m_Selection.Clear(); }
    void SetItemSelectionImp(int index, bool select) override { m_Selection.SetItemsSelection(index, index, select); }
    void SetItemsSelectionImp(int a, int b, bool select) override { m_Selection.SetItemsSelection(a, b, select); }

private:
    CSelectionTmpl<int> m_Selection;
};

}  // namespace vexel
