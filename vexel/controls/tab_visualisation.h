#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/color.h"
#include "vexel/platform/geometry.h"
#include "vexel/signals/signal.h"

namespace vexel
{

using namespace vexelbase;

/// How a tab is drawn: a set of bits. A disabled tab has tsDisabled and tsPlain and no other.
enum TabState : unsigned int
{
    tsHot = 1,       ///< Under the pointer.
    tsHotClose = 2,  ///< Its close button is; tsHot comes with it.
    tsSelected = 4,
    tsPlain = 8,  ///< None of the three above.
    tsDisabled = 16,
    tsFocused = 32  ///< The current tab, while the pane has the focus.
};

/// The measures and the look of tabs. Rectangles are the pane's pixels, right and bottom included. `tab` is an index of
/// the pane's model, `state` a set of TabState. What an operation draws is cut to the tab's place.
class VEXEL_API ITabVisualisation
{
public:
    ITabVisualisation() = default;
    ITabVisualisation(ITabVisualisation const&) = delete;
    ITabVisualisation& operator=(ITabVisualisation const&) = delete;
    virtual ~ITabVisualisation();

    /// Where the close button stands in the content of a tab; an empty rectangle: it finds no room.
    virtual rectangle<double> GetCloseBtnRect(rectangle<double> const& content) const = 0;
    /// The part of a tab's place, without its spacer, that it draws in and that the mouse hits.
    virtual rectangle<double> GetTabContentRect(rectangle<double> const& rect, unsigned int state) const = 0;
    /// Device pixels, without the spacer. The painter is open for measuring, with the pane's font.
    virtual int GetItemOptimalWidth(IPainter* painter, int tab) const = 0;
    virtual int GetItemAdditionalHeight() const = 0;  ///< Over the height of a line of text.
    virtual int GetItemAdditionalWidth() const = 0;   ///< Over the width of what a tab shows.

    virtual void DrawBackground(IPainter* painter, int tab, rectangle<double> const& rect, unsigned int state) = 0;
    virtual void DrawTab(IPainter* painter, int tab, rectangle<double> const& content, unsigned int state) = 0;
    /// Picture and text. `content` ends before the close button, where one is drawn.
    virtual void DrawTabContent(IPainter* painter, int tab, rectangle<double> const& content, unsigned int state) = 0;
    virtual void DrawCloseButton(IPainter* painter, int tab, rectangle<double> const& rect, unsigned int state) = 0;

    virtual _color GetBackgroundColor(int tab, unsigned int state) = 0;
    virtual _color GetTextColor(int tab, unsigned int state) = 0;
    virtual _color GetFrameColor(int tab, unsigned int state) = 0;

    /// The area below the tabs. False: the pane fills it with `ground`, unless it is transparent.
    virtual bool DrawEmptyArea(IPainter* /*painter*/, rectangle<double> const& /*rect*/, _color const& /*ground*/,
                               bool /*transparent*/)
    {
        return false;
    }

    /// It dies; only this class's part still lives. Panes go back to their own look.
    signal_t<ITabVisualisation*> m_SigVisualisationDestroy;
};

}  // namespace vexel
