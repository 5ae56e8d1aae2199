#include "gallery/pages/docking_page.h"

#include "gallery/frame/panel.h"

#include <algorithm>

namespace gallery
{

namespace
{

char const* const g_Names[] = {"none", "left", "right", "top", "bottom", "client"};

/// A panel that tells where it is docked.
class CDockedPanel : public CPanel
{
public:
    CDockedPanel(CVisualElement* parent, size<int> const& extent, Alignment alignment, int color)
        : CPanel(parent, extent, alignment)
    {
        SetBkColor(color_table[color]);
        SetFgColor(color_table[1]);
        SetFrame(true);
        ShowText();
    }

protected:
    bool HandleClick(int, int, int, MouseButton) override
    {
        if (GetAlignment() == alClient)
            return true;
        SetAlignment(GetAlignment() == alBottom ? alLeft : static_cast<Alignment>(GetAlignment() + 1));
        ShowText();
        return true;
    }
    bool HandleWheel(int, int, int, MouseButton, int delta) override
    {
        auto const change = [delta](int extent) { return std::clamp(extent + 8 * delta, 16, 240); };
        SetSize({change(GetSize().width), change(GetSize().height)}, false);
        return true;
    }

private:
    void ShowText() { SetText(g_Names[GetAlignment()]); }
};

}  // namespace

void CDockingPage::Build(CVisualElement* parent)
{
    auto* const left = new CDockedPanel(parent, {90, 48}, alLeft, 26);
    auto* const top = new CDockedPanel(parent, {90, 48}, alTop, 21);
    auto* const right = new CDockedPanel(parent, {90, 48}, alRight, 25);
    auto* const bottom = new CDockedPanel(parent, {90, 48}, alBottom, 27);
    auto* const thin = new CDockedPanel(parent, {40, 24}, alLeft, 23);
    auto* const client = new CDockedPanel(parent, {0, 0}, alClient, 9);
    Report(left->m_SigSize, "left.size");
    Report(top->m_SigSize, "top.size");
    Report(right->m_SigSize, "right.size");
    Report(bottom->m_SigSize, "bottom.size");
    Report(thin->m_SigSize, "thin.size");
    Report(client->m_SigSize, "client.size");
    ReportMouse(left, "left");

    client->SetText("");
    auto* const inner = new CDockedPanel(client, {70, 36}, alTop, 24);
    new CDockedPanel(client, {70, 36}, alBottom, 26);
    new CDockedPanel(client, {70, 36}, alLeft, 25);
    new CDockedPanel(client, {0, 0}, alClient, 21);
    Report(inner->m_SigSize, "inner.size");
}

}  // namespace gallery
