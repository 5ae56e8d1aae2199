#pragma once

#include "vexel/controls/highlighting_handler.h"
#include "vexel/controls/tab_visualisation.h"
#include "vexel/controls/tabs_model.h"
#include "vexel/core/transparent_flavor.h"
#include "vexel/tasks/animation_process.h"
#include "vexel/views/grid_viewer.h"
#include "vexel/views/tooltip_event_handler.h"

#include <memory>

namespace vexel
{

/// A strip of tabs that come out of a model: a grid of one row, whose columns are the tabs. The current tab is the
/// selected one; or the tabs are toggles, each on or off. A tab may have a close button, an image or a running animation,
/// and a gap with an image behind it. The strip scrolls by whole tabs. What a paint, a move of the mouse or a scroll costs
/// goes by what is in view; only Layout, CheckAnimation and a model that has changed walk all tabs.
///
/// It draws its tabs itself, unless it is given another look. Transparent at first; an opaque one repaints less. The tabs' font is bold.
class VEXEL_API CTabPane : public CTransparentFlavor<CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>>,
                           public CTooltipEventHandler,        // of each tab
                           public CDefTabHandler,              // in place of the row handler's selection
                           public ITabVisualisation,           // the look where no other is set
                           public IAnimationProcess::IUpdater  // one animation for all tabs
{
public:
    enum HitKind : int
    {
        hkNothing = 0,
        hkTab = 1,
        hkCloseButton = 2
    };
    struct SHit
    {
        HitKind kind = hkNothing;
        int tab = -1;
        rectangle<int> rect;  ///< The tab's content, right and bottom included; not cut to the view.
    };

    /// `extent`: its height is that of the tabs, until the pane has a control and knows its font.
    CTabPane(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CTabPane() override;

    // Signals: a slot may delete the pane ----------------------------------------------------------------------------
    using CVisualElement::m_SigDestroy;  ///< The pane's: the models' have others.
    /// New tab, old tab, true; after the change, by code or by the user. Of toggles: the current tab twice, and whether
    /// it is on, whenever one was toggled by the user or switched on by code.
    signal_t<CTabPane*, int, int, bool> m_SigCurrentTabChanged;
    signal_t<CTabPane*, int> m_SigCloseClicked;  ///< The tab. Closing it is the slot's.
    /// Whether there are tabs before the view, and whether behind it. After each change of tabs, sizes or view, also
    /// where both are as they were; once for a Layout.
    signal_t<CTabPane*, bool, bool> m_SigScrollStateChanged;

    // Content: not owned; one that dies is forgotten --------------------------------------------------------------------
    ITabsModel* GetModel() const { return m_Model; }
    void SetModel(ITabsModel* model);  ///< Null: no tabs.
    ITabVisualisation* GetItemVisualisation() const { return m_Visualisation; }
    void SetItemVisualisation(ITabVisualisation* visualisation);  ///< Null: the pane's own.
    void UpdateRepresentation();  ///< Takes all of the model over, as when it tells that it has changed.
    /// The animation runs if the model has one and any tab shows it. To be called when a tab begins or ceases to.
    void CheckAnimation();

    // Widths: device pixels --------------------------------------------------------------------------------------------
    /// All tabs are equally wide and fill the view, each from 50 to 100 pixels times the display scale; or each has its
    /// own width, as at first. Either way keeps its start and sizes while the other one is in use.
    void SetEqualWidths(bool equal);
    bool GetEqualWidths() const { return m_EqualModel && GetColumnViewModel() == m_EqualModel.get(); }
    /// With widths of their own, tabs are laid out whenever the model tells of a change.
    void SetAutoSize(bool on);
    bool IsAutoSize() const { return m_AutoSize; }
    /// Gives each tab the width that it needs, with its spacer, and asks for the size of all. Nothing without a model or
    /// a window. With equal widths only the latter.
    void Layout();
    int GetSpacerWidth(int tab) const;  ///< Behind it: as the model says, else the spacer image's; 0: no such tab.

    // The current tab, toggles, the view: -1 for no tab -----------------------------------------------------------------
    int GetCurrentTab() const { return GetColumnSelectionModel()->GetCurrent(); }
    /// Makes it current, selects it and scrolls it to the middle; nothing if it is current. Disabled ones too.
    void SetCurrentTab(int tab);
    /// The tabs become toggles, or no longer are. Only the current one is on then.
    void SetToggled(bool on);
    bool IsToggled() const { return m_Toggled; }
    void ToggleTab(int tab, bool on);  ///< Nothing unless the tabs are toggles and there is this one.
    bool IsTabToggled(int tab) const;  ///< False unless the tabs are toggles.
    void SetStableTab(int tab);        ///< Stays in view when that gets another size. -1: the current one does.
    int GetStableTab() const;          ///< Of the widths in use.
    void SetFirstVisibleTab(int tab);  ///< Scrolls, as far as the last view full. Nothing if there is no such tab.
    int GetFirstVisibleTab() const { return GetColumnViewModel()->GetStartItem(); }

    // What stands where: the pane's pixels -------------------------------------------------------------------------------
    SHit HitTest(int x, int y) const;
    /// The tab at `x`, its spacer included, and its content. False: none is there. Either pointer may be null; nothing is
    /// written then and where there is no tab.
    bool GetTabByPos(int x, int* tab, screen_rectangle<int>* rect) const;
    unsigned int GetVisualisationState(int tab) const;  ///< A set of TabState.

public:  // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;
    void OnDraw(IPainter* painter) override;
    void AttributeChanged() override;
    void ProcessSetControl(IControl* control) override;
    void AfterSetControl() override;
    void HandleControlDestroy() override;
    void HandleGetFocus(CVisualElement* other, bool focused) override;
    void HandleLostFocus(CVisualElement* other) override;

public:  // From the grid
    int GetRowMargin() const override { return m_Visualisation->GetItemAdditionalHeight(); }
    void DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect) override;
    void DrawColumnEmptyArea(IPainter* painter, rectangle<double> const& rect) override;
    void ColumnSelectionModelChanged(ISelectionModel* old, ISelectionModel* now) override;
    void CurrentColumnChanged(int old, int& now) override;  ///< Passes over disabled tabs.
    void DrawCell(IPainter* painter, int row, int rowSkip, int column, int columnSkip, int state,
                  rectangle<double> const& rect, IDirtyItemSet::DirtyType dirty) override;

public:  // From the handlers
    void GetTooltipAttr(CTooltipEvent* event) override;
    bool SetCurProcessButtonDown(int x, int y, int keys, MouseButton button, bool* handled) override;
    bool HighlightingMouseMove(int x, int y, int keys, MouseButton button, bool* handled) override;
    void HighlightingMouseLeave(bool* handled) override;
    /// Left and right move the current tab. Of toggles, space and return turn over the current one, and A switches all on.
    bool SetCurProcessKeyDown(int key) override;

public:  // From ITabVisualisation
    rectangle<double> GetCloseBtnRect(rectangle<double> const& content) const override;
    rectangle<double> GetTabContentRect(rectangle<double> const& rect, unsigned int state) const override;
    int GetItemOptimalWidth(IPainter* painter, int tab) const override;
    int GetItemAdditionalHeight() const override;
    int GetItemAdditionalWidth() const override;
    void DrawBackground(IPainter* painter, int tab, rectangle<double> const& rect, unsigned int state) override;
    void DrawTab(IPainter* painter, int tab, rectangle<double> const& content, unsigned int state) override;
    void DrawTabContent(IPainter* painter, int tab, rectangle<double> const& content, unsigned int state) override;
    void DrawCloseButton(IPainter* painter, int tab, rectangle<double> const& rect, unsigned int state) override;
    _color GetBackgroundColor(int tab, unsigned int state) override;
    _color GetTextColor(int tab, unsigned int state) override;
    _color GetFrameColor(int tab, unsigned int state) override;

public:  // From IAnimationProcess::IUpdater
    void UpdateAnimation() override;
    bool IsUpdatable() const override { return IsDisplayable(); }

protected:
    // Measures of the own look: device pixels, by the font's size and the display's scale
    int GetButtonSpace() const;
    int GetImageOffset() const;
    int GetTextSpace() const;
    int GetCloseBtnSize() const;

private:
    using Base = CTransparentFlavor<CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>>;
    class CLayoutScope;

    IDiscreteItemViewModel& GetWidthModel(bool equal);
    void CurrentTabChanged(int old, int now);
    void TabSelectionChanged();
    void ViewModelChanged();
    void TabChanged(int tab);
    void ModelChanged() { UpdateRepresentation(); }
    void ModelDies(ITabsModel* model);
    void VisualisationDies(ITabVisualisation* visualisation);
    void StopAnimation();
    void SetUpTooltip();

    int GetTabCount() const;
    bool IsTab(int tab) const { return tab >= 0 && tab < GetTabCount(); }
    bool IsLaidOutByItself() const { return m_AutoSize && !GetEqualWidths(); }
    bool IsOverPicture() const { return IsTransparent() || IsBkImagePresented(); }
    bool IsRowFitting(rectangle<double> const& rect) const;
    bool ShowsCloseButton(int tab, unsigned int state) const;
    bool ShowsAnimation(int tab) const;
    int GetGap(int tab) const;  // that its width includes
    IImageList* GetImages() const;
    rectangle<double> GetTabRect(int tab) const;  // without its spacer
    void MarkTab(int tab);
    void MarkCurrent();
    void SetHot(int tab, bool onClose);
    void RefreshHot();
    void FillGround(IPainter* painter, rectangle<double> const& rect);
    void DrawSpacer(IPainter* painter, int tab, rectangle<double> const& gap);

    int m_HotTab = -1;  // under the pointer
    bool m_HotOnClose = false;
    std::unique_ptr<CEqualItemsViewModel> m_EqualModel;        // made when first used,
    std::unique_ptr<CNonEqualItemsViewModel> m_NonEqualModel;  // so is this
    ITabsModel* m_Model = nullptr;
    ITabVisualisation* m_Visualisation = this;
    vexel_ptr<IAnimationProcess> m_Animation;  // made when first used
    bool m_Toggled = false;
    bool m_AutoSize = false;
    double m_Scale = 1.0;              // of the font times that of the display
    vexel_ptr<IAnimation> m_Animated;  // what the process steps; null: it stands
    int m_LastVisible = -1;            // the last tab wholly in view
    bool m_DrawnTransparent = false;   // when it was last drawn,
    bool m_DrawnPicture = false;       // with a background picture
    bool m_LayingOut = false;          // a change of the view model is told afterwards
    bool m_ViewModelChanged = false;   // meanwhile
};

}  // namespace vexel
