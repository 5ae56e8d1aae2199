#include "gallery/pages/panes_page.h"

#include "gallery/frame/panel.h"
#include "gallery/frame/toggle.h"
#include "vexel/layout/pane.h"

namespace gallery
{

namespace
{

/// Fills its inside, as panes draw nothing but their frame.
class CFilledPane : public CPane
{
public:
    CFilledPane(CVisualElement* parent, Alignment alignment) : CPane(parent, {220, 0}, alignment)
    {
        auto* const inside = new CPanel(this, {0, 0}, alClient);
        for (char const* text : {"first", "second", "third"})
            (new CToggle(inside, {0, 32}, alTop, text))->SetCanHaveFocus(true);
    }
};

}  // namespace

void CPanesPage::Build(CVisualElement* parent)
{
    for (char const* name : {"left", "middle", "right"})
    {
        auto* const gap = new CPanel(parent, {12, 0}, alLeft);
        gap->SetText("");
        auto* const pane = new CFilledPane(parent, alLeft);
        Report(pane->m_SigChildGetFocus, std::string(name) + ".childGetFocus");
        Report(pane->m_SigChildLostFocus, std::string(name) + ".childLostFocus");
    }
}

}  // namespace gallery
