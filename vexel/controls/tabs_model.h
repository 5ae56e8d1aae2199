#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/animation.h"
#include "vexel/signals/signal.h"

#include <string>

namespace vexel
{

using namespace vexelbase;

/// What a pane of tabs shows. `tab`: 0 to GetTabCount() - 1; nobody asks for any other. Answers are read anew at each
/// paint: whoever changes one fires a signal.
class VEXEL_API ITabsModel
{
public:
    ITabsModel() = default;
    ITabsModel(ITabsModel const&) = delete;
    ITabsModel& operator=(ITabsModel const&) = delete;
    virtual ~ITabsModel();

    virtual int GetTabCount() const = 0;
    virtual std::string GetTabText(int tab) const = 0;
    virtual int GetTabImageIndex(int tab) const = 0;  ///< In the control's image list; below 0: none.
    virtual int GetTabTextFlags(int tab) const = 0;   ///< IPainter::AlignmentFlags; AlignFitText comes in addition.
    virtual std::string GetTabTooltip(int tab) const = 0;
    virtual bool HasTabCloseButton(int tab) const = 0;
    /// Device pixels between this tab and the next one, where tabs have widths of their own. Below 1: those of the
    /// spacer image.
    virtual int GetTabSpacerWidth(int tab) const = 0;
    virtual int GetTabSpacerImageIndex(int tab) const = 0;  ///< Stands in the gap behind the tab; below 0: none.
    virtual bool IsTabEnabled(int tab) const = 0;
    /// It shows the animation in place of an image, while it is enabled.
    virtual bool IsTabAnimated(int tab) const = 0;
    virtual vexel_ptr<IAnimation> GetAnimation() const = 0;  ///< One for all tabs; null: none.

    signal_t<> m_SigChanged;        ///< Anything may be another, the number of tabs too. After the change.
    signal_t<int> m_SigTabChanged;  ///< Something of this tab is another, but none was added or removed.
    /// The model dies; only this class's part still lives. Panes forget it.
    signal_t<ITabsModel*> m_SigDestroy;
};

}  // namespace vexel
