#pragma once

#include "vexel/views/item_event_handler.h"
#include "vexel/views/item_painter.h"
#include "vexel/views/item_scroll_model.h"
#include "vexel/views/viewer_base.h"

#include <type_traits>

namespace vexel
{

/// A list of rows. Holds the models and the handler of the rows; a subclass draws them. What a paint costs goes by what is
/// in view, never by the number of rows. Grid lines, gaps, the mark of the focus and the highlight are the subclass's.
/// `Model`: IDiscreteItemViewModel, rows that scroll whole, or IContinuousItemViewModel, by pixels.
template <class Model> class VEXEL_API CRowViewerBase : public CViewerBase, public IRowPainter
{
public:
    static constexpr bool s_Discrete = std::is_same_v<Model, IDiscreteItemViewModel>;
    using RowHandler = std::conditional_t<s_Discrete, CDiscreteItemEventHandler, CContinuousItemEventHandler>;
    using RowScrollModel = std::conditional_t<s_Discrete, CDiscreteItemScrollModel, CContinuousItemScrollModel>;

    CRowViewerBase(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CRowViewerBase() override;

    signal_t<> m_SigSelectionChanged;  ///< The row handler's; see its SetNotifySelection.

    // Models: null means the handler's own. Not owned otherwise; one that dies is replaced by the own one -----------------
    Model* GetRowViewModel() const { return m_RowViewModel; }
    void SetRowViewModel(Model* model);
    ISelectionModel* GetRowSelectionModel() const { return m_RowSelectionModel; }
    void SetRowSelectionModel(ISelectionModel* model);
    RowHandler& GetRowHandler() { return m_RowHandler; }
    RowHandler const& GetRowHandler() const { return m_RowHandler; }

    CEventHandlerBase::SelectionType GetSelectionType() const { return m_SelectionType; }
    void
    SetSelectionType(CEventHandlerBase::SelectionType type);  ///< Only the current row stays selected, if any may be.
    bool IsAutoRowHeight() const { return m_AutoRowHeight; }
    void SetAutoRowHeight(bool on);  ///< Rows are as high as a line of text, and follow the font. On at first.

public:                                                // From CScrollableElement
    void SetVertScroll(IScrollModel* model) override;  ///< Null: the viewer's own, over its rows.

public:  // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;
    void SetEnabled(bool enabled) override;
    void OnDraw(IPainter* painter) override;
    void AfterSetControl() override;
    void AttributeChanged() override;
    void ProcessSetVisible(bool visible) override;
    void ProcessSetParentVisible(bool visible) override;

public:                              // From CViewerBase
    void ProcessEndDraw() override;  ///< Nothing is dirty any more.

public:  // Overridable
    // A subclass with a height or margin of its own calls AttributeChanged at the end of its constructor.
    virtual int CalculateDefaultRowHeight() const;  ///< Pixels; 0: no text height is known, the rows keep theirs.
    virtual int GetRowMargin() const { return 0; }  ///< Is added to it.
    void DrawRow(IPainter* painter, int row, int skip, int state, rectangle<double> const& rect,
                 IDirtyItemSet::DirtyType dirty) override = 0;
    void DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect) override;  ///< Background.
    virtual void RowViewModelChanged(Model*) {}
    virtual void RowSelectionModelChanged(ISelectionModel* /*old*/, ISelectionModel* /*now*/) {}
    virtual void SelectionTypeChanged(CEventHandlerBase::SelectionType) {}
    virtual void CurrentRowChanged(int /*old*/, int& /*now*/) {}  ///< Before the change: it may be redirected.

protected:
    virtual void MarkAllDirty();
    virtual bool IsPartlyDirty() const;  ///< A paint would leave out what isn't marked.
    virtual bool DependsOnWidth() const
    {
        return true;
    }  ///< All rows are painted anew where the view has another width.
    void StoreSelectionType(CEventHandlerBase::SelectionType type) { m_SelectionType = type; }
    static void RestartSelection(CEventHandlerBase& handler, bool selects, CEventHandlerBase::SelectionType type);

    void ApplyAutoRowHeight();  ///< The height of rows follows font and margin, where it does by itself.

private:
    void CurrentChange(int old, int& now) { CurrentRowChanged(old, now); }
    void SelectionChange() { m_SigSelectionChanged(); }
    void RowViewModelDies(IBaseItemsModel* model);
    void RowSelectionModelDies(IBaseItemsModel* model);

    Model* m_RowViewModel = nullptr;
    ISelectionModel* m_RowSelectionModel = nullptr;
    RowHandler m_RowHandler;
    RowScrollModel m_RowScrollModel;
    CEventHandlerBase::SelectionType m_SelectionType = CEventHandlerBase::stFree;
    bool m_AutoRowHeight = true;
    point<int> m_DrawnAt;  // its left-top when it was last drawn; control pixels
};

/// What applications derive a list from: DrawRow is theirs.
template <class Model> class VEXEL_API CRowViewer : public CRowViewerBase<Model>
{
public:
    using CRowViewerBase<Model>::CRowViewerBase;
};

extern template class CRowViewerBase<IDiscreteItemViewModel>;
extern template class CRowViewerBase<IContinuousItemViewModel>;
extern template class CRowViewer<IDiscreteItemViewModel>;
extern template class CRowViewer<IContinuousItemViewModel>;

}  // namespace vexel
