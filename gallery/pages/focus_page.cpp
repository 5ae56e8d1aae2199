#include "gallery/pages/focus_page.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

namespace gallery
{

namespace
{

/// Can have the focus and shows it.
class CStop : public CPanel
{
public:
    CStop(CVisualElement* parent, size<int> const& extent, Alignment alignment, std::string const& text)
        : CPanel(parent, extent, alignment)
    {
        SetText(text);
        SetFrame(true);
        SetCanHaveFocus(true);
        SetBkColor(ISysPalette::scWindow);
        SetFgColor(ISysPalette::scWindowText);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        CPanel::DrawContent(painter);
        if (!IsFocused())
            return;
        double const inset = ToInt(3 * painter->GetDPIScale());
        rectangle<double> const rect = ToDouble(GetBounds());
        painter->FocusRect(rect.left + inset, rect.top + inset, rect.right - inset, rect.bottom - inset);
    }
};

/// Hears keys before the box that it is the delegate of.
class CDelegate : public CPanel
{
public:
    using CPanel::CPanel;

protected:
    bool HandleKeyDown(int, int key) override
    {
        if (key < vkLeft || key > vkDown)
            return false;
        static char const* const names[] = {"left", "up", "right", "down"};
        SetText(std::string("the delegate took the key ") + names[key - vkLeft]);
        return true;
    }
};

CPanel* AddBox(CVisualElement* parent, int height, Alignment alignment, char const* title)
{
    auto* const box = new CPanel(parent, {0, height}, alignment);
    box->SetFrame(true);
    auto* const label = new CLabel(box, {0, 24}, alTop, title);
    font bold;
    bold.style = font::fsBold;
    label->SetFont(bold);
    return box;
}

}  // namespace

void CFocusPage::Build(CVisualElement* parent)
{
    CPanel* const upper = AddBox(parent, 120, alTop, "A container");
    auto* const row = new CPanel(upper, {0, 0}, alClient);
    auto* const one = new CStop(row, {110, 0}, alLeft, "one");
    auto* const two = new CStop(row, {110, 0}, alLeft, "two");
    auto* const off = new CStop(row, {110, 0}, alLeft, "disabled");
    off->SetEnabled(false);
    auto* const three = new CStop(row, {110, 0}, alLeft, "three");

    CPanel* const lower = AddBox(parent, 150, alTop, "A container that has the focus itself, with a key delegate");
    lower->SetCanHaveFocus(true);
    auto* const delegate = new CDelegate(lower, {0, 30}, alBottom);
    delegate->SetText("press an arrow key");
    lower->SetKeyDelegate(delegate);
    auto* const inside = new CPanel(lower, {0, 0}, alClient);
    auto* const four = new CStop(inside, {110, 0}, alLeft, "four");
    auto* const five = new CStop(inside, {110, 0}, alLeft, "five");

    int id = 0;
    for (CVisualElement* const element :
         {static_cast<CVisualElement*>(one), static_cast<CVisualElement*>(two), static_cast<CVisualElement*>(three),
          static_cast<CVisualElement*>(lower), static_cast<CVisualElement*>(four), static_cast<CVisualElement*>(five)})
    {
        static char const* const names[] = {"one", "two", "three", "lower", "four", "five"};
        std::string const name = names[id];
        element->SetId(static_cast<unsigned long>(++id));
        Report(element->m_SigGetFocus, name + ".focus");
        Report(element->m_SigLostFocus, name + ".unfocus");
        Report(element->m_SigKeyDown, name + ".keydown");
    }
    Report(delegate->m_SigKeyDown, "delegate.keydown");
}

}  // namespace gallery
