#include "gallery/pages/expanders_page.h"

#include "gallery/frame/panel.h"
#include "vexel/widgets/expander.h"

namespace gallery
{

namespace
{

char const* const g_Bodies[] = {"opens downwards", "opens upwards", "to the right", "to the left"};
char const* const g_Titles[] = {"Down", "Up", "Right", "Left"};

// Opens and closes on a click on its title.
class CClickedExpander : public CExpander
{
public:
    CClickedExpander(CVisualElement* parent, size<int> const& extent, Alignment alignment, ExpandDirection direction,
                     bool animated)
        : CExpander(parent, extent, alignment), m_Animated(animated)
    {
        SetExpandDirection(direction);
        auto* const title = new CPanel(nullptr, {46, 26}, alNone);
        title->SetText(animated ? g_Titles[direction] : "At once");
        title->SetBkColor(ISysPalette::scHighlight);
        title->SetFgColor(ISysPalette::scHighlightText);
        SetTitle(title);
        title->m_SigClick.connect(this, &CClickedExpander::TitleClicked);

        auto* const body = new CPanel(nullptr, {110, 64}, alNone);
        body->SetText(g_Bodies[direction]);
        body->SetBkColor(ISysPalette::scWindow);
        body->SetFgColor(ISysPalette::scWindowText);
        body->SetFrame(true);
        SetBody(body);
    }

private:
    void TitleClicked(CVisualElement*, int, int, int, MouseButton) { Expand(!IsExpanded(), m_Animated); }

    bool const m_Animated;
};

}  // namespace

void CExpandersPage::Build(CVisualElement* parent)
{
    auto const add = [&](CVisualElement* place, Alignment edge, CExpander::ExpandDirection direction, bool animated) {
        auto* const expander = new CClickedExpander(place, {10, 10}, edge, direction, animated);
        Report(expander->GetTitle()->m_SigClick, std::string(g_Titles[direction]) + ".title.click");
        Report(expander->GetBody()->m_SigVisible, std::string(g_Titles[direction]) + ".body.visible");
        return expander;
    };
    add(parent, alTop, CExpander::ExpandTopBottom, true);
    new CPanel(parent, {0, 6}, alTop);
    CExpander* const folded = add(parent, alTop, CExpander::ExpandTopBottom, true);
    folded->Expand(false, false);
    new CPanel(parent, {0, 6}, alTop);
    CExpander* const framed = add(parent, alTop, CExpander::ExpandTopBottom, false);
    framed->SetShape(CBevel::ShapeBox);
    framed->SetStyle(CBevel::BorderRaised);
    framed->SetContentOffset({4, 4, 4, 4});
    framed->Expand(true, false);
    new CPanel(parent, {0, 6}, alTop);
    add(parent, alBottom, CExpander::ExpandBottomTop, true);
    new CPanel(parent, {0, 6}, alBottom);
    add(parent, alLeft, CExpander::ExpandLeftRight, true);
    add(parent, alRight, CExpander::ExpandRightLeft, true);
    auto* const rest = new CPanel(parent, {0, 0}, alClient);
    rest->SetText("The rest makes room.");
}

}  // namespace gallery
