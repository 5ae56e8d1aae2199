#include "gallery/pages.h"

#include "gallery/pages/animation_page.h"
#include "gallery/pages/axes_page.h"
#include "gallery/pages/bar_page.h"
#include "gallery/pages/bevels_page.h"
#include "gallery/pages/boxes_page.h"
#include "gallery/pages/buttons_page.h"
#include "gallery/pages/captions_page.h"
#include "gallery/pages/chart_page.h"
#include "gallery/pages/choices_page.h"
#include "gallery/pages/configuration_page.h"
#include "gallery/pages/docking_page.h"
#include "gallery/pages/drag_drop_page.h"
#include "gallery/pages/dropdowns_page.h"
#include "gallery/pages/edges_page.h"
#include "gallery/pages/event_log_page.h"
#include "gallery/pages/expanders_page.h"
#include "gallery/pages/flashing_page.h"
#include "gallery/pages/flow_grid_page.h"
#include "gallery/pages/focus_page.h"
#include "gallery/pages/gauges_page.h"
#include "gallery/pages/grid_groups_page.h"
#include "gallery/pages/grid_page.h"
#include "gallery/pages/header_page.h"
#include "gallery/pages/html_text_page.h"
#include "gallery/pages/input_log_page.h"
#include "gallery/pages/lines_page.h"
#include "gallery/pages/list_boxes_page.h"
#include "gallery/pages/lists_page.h"
#include "gallery/pages/messages_page.h"
#include "gallery/pages/native_controls_page.h"
#include "gallery/pages/notebook_page.h"
#include "gallery/pages/overlap_page.h"
#include "gallery/pages/painter_page.h"
#include "gallery/pages/panes_page.h"
#include "gallery/pages/partial_repaint_page.h"
#include "gallery/pages/parts_page.h"
#include "gallery/pages/pictures_page.h"
#include "gallery/pages/round_buttons_page.h"
#include "gallery/pages/scrolling_page.h"
#include "gallery/pages/selection_page.h"
#include "gallery/pages/slanted_tabs_page.h"
#include "gallery/pages/sliders_page.h"
#include "gallery/pages/splitter_page.h"
#include "gallery/pages/stages_page.h"
#include "gallery/pages/strips_page.h"
#include "gallery/pages/tab_pane_page.h"
#include "gallery/pages/tooltip_page.h"
#include "gallery/pages/zoomer_roll_page.h"

namespace gallery
{

namespace
{

template <class Page> std::unique_ptr<CPage> Make()
{
    return std::make_unique<Page>();
}

SPage const g_Pages[] = {
    {"docking", "Docking", "Click a panel to dock it to the next edge; the wheel makes it thicker or thinner.",
     &Make<CDockingPage>},
    {"overlap", "Overlap and transparency", "Drag the sheets. The last child is painted on top, the first one is hit.",
     &Make<COverlapPage>},
    {"repaint", "Partial repaint", "Each cell counts how often it was painted. Pointing at one repaints it alone.",
     &Make<CPartialRepaintPage>},
    {"input", "Input log", "Mouse, wheel and keys, as the two boxes hear them: the inner one first, but for the wheel.",
     &Make<CInputLogPage>},
    {"focus", "Focus and tab order", "Walk with Tab and Shift+Tab; an arrow key goes to the delegate of the lower box.",
     &Make<CFocusPage>},
    {"tooltip", "Tooltips and context menu", "Let the pointer rest on a panel, or press the right button.",
     &Make<CTooltipPage>},
    {"drag", "Drag and drop", "Drag a tile onto the left bin. The right one takes nothing.", &Make<CDragDropPage>},
    {"flashing", "Flashing", "A timer switches colours and palettes of these elements.", &Make<CFlashingPage>},
    {"painter", "Painter", "Every shape, pen, text flag and raster operation.", &Make<CPainterPage>},
    {"lines", "Antialiased lines", "Widths, patterns, caps and gradients, and what lies beneath them.",
     &Make<CLinesPage>},
    {"parts", "Native parts and borders",
     "Each part plain, hot, pressed and disabled; each border flat, raised, sunken.", &Make<CPartsPage>},
    {"native", "Native controls", "Edits, boxes and bars of the desktop stand in the tree. Walk through them with Tab.",
     &Make<CNativeControlsPage>},
    {"html", "Text with mark-up", "Links tell when they are clicked; narrow columns wrap.", &Make<CHtmlTextPage>},
    {"edges", "Layouts on four edges",
     "Click a ruler to dock it to the next edge: its code knows only along and across.", &Make<CEdgesPage>},
    {"flow", "Flow and grid", "Two layouts for items that are no elements. Make the window narrower.",
     &Make<CFlowGridPage>},
    {"boxes", "Boxes and resizers", "Boxes as large as their items, seen through a view; sizes in step with others.",
     &Make<CBoxesPage>},
    {"panes", "Panes and titled panes", "Frame and title show where the focus is. Walk with Tab, or click a title.",
     &Make<CPanesPage>},
    {"animation", "Animations", "Side by side, each driven in its own way. A hidden one is not stepped.",
     &Make<CAnimationPage>},
    {"captions", "Captions", "Text with images and links; some size themselves, some turn with their side.",
     &Make<CCaptionsPage>},
    {"bevels", "Bevels and borders", "All shapes and styles; a border leaves the area of its children alone.",
     &Make<CBevelsPage>},
    {"strips", "Title strips", "Titles with help buttons, and strips that light up and are clicked.",
     &Make<CStripsPage>},
    {"buttons", "Buttons", "Press them by mouse, space or return; one repeats while it is held.", &Make<CButtonsPage>},
    {"round", "Round buttons", "Shaded pictures in a rounded frame; below they let a picture through.",
     &Make<CRoundButtonsPage>},
    {"choices", "Check boxes and radio buttons", "Click, or press Space. A radio button is only switched on.",
     &Make<CChoicesPage>},
    {"dropdowns", "Drop buttons, combo buttons, editors",
     "A press opens, and so do Alt and Down. Click a field to edit it.", &Make<CDropdownsPage>},
    {"pictures", "Picture buttons and images", "Buttons that are an image for each state; images, one of them moving.",
     &Make<CPicturesPage>},
    {"tabs", "Tab panes", "Click tabs, move by Left and Right, close some, scroll the long one by its arrows.",
     &Make<CTabPanePage>},
    {"scrolling", "Scrolling", "Drag the bars, turn the wheel, hold the arrows of the scroller.",
     &Make<CScrollingPage>},
    {"lists", "Lists", "None of them keeps anything for a row. Scroll to the end by the bar or the End key.",
     &Make<CListsPage>},
    {"listboxes", "Lists and list boxes",
     "Lines that are clicked; boxes in which the line under the pointer is chosen.", &Make<CListBoxesPage>},
    {"selection", "Selection", "Click, Shift and Control, Control+A, Space; drag past the edge.",
     &Make<CSelectionPage>},
    {"grid", "A grid of two billion rows",
     "Scroll, click, drag past the edge; resize, drag and click the sections of the header; rest on a cell for its "
     "tip.",
     &Make<CGridPage>},
    {"header", "Headers of several levels",
     "Expand groups, sort by a click, resize, drag a section among its siblings; double-click a grip for the best "
     "width.",
     &Make<CHeaderPage>},
    {"grid_groups", "A grid under grouped columns",
     "Expand, resize and drag groups of columns over two billion rows; double-click a cell, or press F2, to edit.",
     &Make<CGridGroupsPage>},
    {"axes", "Axes", "Their steps follow from the width of their labels. Drag the range, zoom by the wheel.",
     &Make<CAxesPage>},
    {"chart", "A chart of millions of points",
     "Days above, hours below. Drag it, turn the wheel (Shift: along, Control: up and down), double-click to see all.",
     &Make<CChartPage>},
    {"bar", "Bars of sections", "Click, Shift and Control; drag dividers, sections, and the free edge of the left bar.",
     &Make<CBarPage>},
    {"zoomer", "Zoomer and rolls", "Drag the thumb, or press beside it. A click on a strip rolls its panel up.",
     &Make<CZoomerRollPage>},
    {"splitter", "Splitters", "Drag the bars between the panes. One waits for the end, one lights up.",
     &Make<CSplitterPage>},
    {"expanders", "Expanders", "Click the titles: bodies open and close in steps, one of them at once.",
     &Make<CExpandersPage>},
    {"gauges", "Gauges", "Press the buttons to move the bars.", &Make<CGaugesPage>},
    {"slanted_tabs", "Slanted tabs", "Click the tabs; a sliver at the left leads back to the ones before.",
     &Make<CSlantedTabsPage>},
    {"notebook", "Notebook", "One page at a time. Pages are added, removed and replaced.", &Make<CNotebookPage>},
    {"sliders", "Sliders", "Drag the pointers, press beside them, or use the arrow keys.", &Make<CSlidersPage>},
    {"messages", "Message boxes", "Boxes that are elements, with pictures, buttons and a gauge. Answer the first one.",
     &Make<CMessagesPage>},
    {"eventlog", "Event log", "Add lines: the view follows the end until you scroll away from it.",
     &Make<CEventLogPage>},
    {"stages", "Check stages", "A chain of checks, each with its box. Answer them, or switch the causes off.",
     &Make<CStagesPage>},
    {"configuration", "Configuration viewer", "Click a category to open it; the editors scroll along.",
     &Make<CConfigurationPage>},
};

}  // namespace

std::span<SPage const> GetPages()
{
    return g_Pages;
}

int FindPage(std::string const& name)
{
    for (std::size_t i = 0; i < std::size(g_Pages); ++i)
    {
        if (name == g_Pages[i].name)
            return static_cast<int>(i);
    }
    return -1;
}

}  // namespace gallery
