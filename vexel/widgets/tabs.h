#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/headers/items_model.h"
#include "vexel/layout/layout_flavor.h"

namespace vexel
{

/// A strip of slanted tabs that hang from its top edge and overlap each other. It tells which one is current and holds no
/// pages. The tabs that have room are shown from the first visible one on; of the one before that a sliver shows. A press
/// of any button makes a tab current. Tabs are as wide as their text; half of a tab's height is its slant.
class VEXEL_API CTabs : public CVisualElement, public CLayoutFlavor
{
public:
    CTabs(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    // Signals: this element comes first. A slot may delete it ---------------------------------------------------------------
    /// Before a change: the old tab, the new one, and true; false forbids the change.
    signal_t<CVisualElement*, int, int, bool*> m_TabChanging;
    signal_t<CVisualElement*, int> m_TabChanged;  ///< After a change.

    // Tabs: their count and texts; not owned, a model that dies is forgotten. Changes of the model are not observed:
    // tell them by Update(utElement), and the current tab by SetCurrentTab ---------------------------------------------------
    void SetModel(IItemsModel* model);
    IItemsModel* GetModel() const { return m_Items; }
    int GetCurrentTab() const { return m_CurrentTab; }
    void SetCurrentTab(int tab);  ///< Scrolls it into view. A tab that doesn't exist changes nothing.
    int GetFirstVisibleTab() const { return m_FirstVisibleTab; }
    void SetFirstVisibleTab(int tab);
    int GetLastVisibleTab() const;            ///< The last one that fits entirely; -1: none, or there is no window.
    void SetLastVisibleTab(int tab);          ///< Scrolls so that this one is the last that fits, if it fits at all.
    int HitTest(point<int> const& position);  ///< Own pixels; -1: none.

    // Look: system colours at first, which follow the desktop ------------------------------------------------------------------
    _color const& GetActiveColor() const { return m_ActiveColor; }
    void SetActiveColor(_color const& color);  ///< Of the current tab.
    _color const& GetInactiveColor() const { return m_InactiveColor; }
    void SetInactiveColor(_color const& color);

public:  // From CVisualElement
    void SetAlignment(Alignment alignment) override;
    void DrawContent(IPainter* painter) override;
    void SetCoordSystem(IPainter*) override {}
    void SysColorsChanged() override;
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;
    /// The texts with tab characters between, the current one in brackets.
    std::string HandleAsString() const override;

public:  // Overridable: x is where a tab begins, counted from the strip's left edge; texts in the painter's font
    /// Returns how far the next one is.
    virtual int DrawTab(IPainter* painter, int tab, int x);
    /// Moves `*x` on to the next tab, whatever the answer.
    virtual bool TabHitTest(point<int> const& position, IPainter* painter, int tab, int* x);
    /// Of what shows of the tab before the first visible one.
    virtual bool FirstTabHitTest(point<int> const& position, IPainter* painter, int tab);
    virtual int GetTabWidth(IPainter* painter, int tab) const;

private:
    std::string GetTabText(int tab) const;
    int GetTabCount() const { return m_Items ? m_Items->GetItemCount() : 0; }
    void SetColor(_color& member, bool& own, _color const& color);
    void TakeSystemColors();
    void DrawSliver(IPainter* painter);
    IPainter* FindPainter() const;
    void ModelDies(IItemsModel* model);

    IItemsModel* m_Items = nullptr;
    int m_CurrentTab = 0;
    int m_FirstVisibleTab = 0;
    _color m_ActiveColor;
    _color m_InactiveColor;
    _color m_DefaultBkColor;
    bool m_OwnActiveColor = false;  // set by the application
    bool m_OwnInactiveColor = false;
};

}  // namespace vexel
