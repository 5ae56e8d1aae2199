#include "gallery/pages/boxes_page.h"

#include "gallery/frame/panel.h"
#include "vexel/core/dpi.h"
#include "vexel/layout/box.h"
#include "vexel/layout/resizer.h"

#include <algorithm>
#include <string>

namespace gallery
{

namespace
{

int const g_Colors[] = {21, 23, 24, 25, 26, 27};

/// A panel of a box. A click makes it larger, with Control smaller.
class CBoxItem : public CPanel
{
public:
    CBoxItem(CVisualElement* parent, size<int> const& extent, Alignment alignment, int number)
        : CPanel(parent, extent, alignment)
    {
        SetBkColor(color_table[g_Colors[number % 6]]);
        SetFgColor(color_table[1]);
        SetText("item " + std::to_string(number + 1));
        SetFrame(true);
        ApplyDPIScale(m_Largest);
    }

protected:
    bool HandleClick(int, int, int keys, MouseButton) override
    {
        int const change = keys & ksControl ? -8 : 8;
        // Not larger than what covers the ends of the boxes.
        SetSize({std::clamp(GetSize().width + change, 16, m_Largest.width),
                 std::clamp(GetSize().height + change, 16, m_Largest.height)},
                false);
        return true;
    }

private:
    size<int> m_Largest{100, 40};
};

/// A part of the window through which a box is seen. The box sticks out of it and its neighbours lie over what does, so
/// each change in it repaints them all.
class CView : public CPanel
{
public:
    CView(CVisualElement* parent, size<int> const& extent, Alignment alignment) : CPanel(parent, extent, alignment) {}
    void SetGround(CVisualElement* ground) { m_Ground = ground; }  // what is repainted; the parent if not set
    void ProcessChange(CVisualElement** element) override { *element = m_Ground ? m_Ground : GetParent(); }

private:
    CVisualElement* m_Ground = nullptr;
};

/// Keeps the box as large as it asks for, and takes the focus, so that the navigation keys scroll it.
template <class Box> class CKeyBox : public Box
{
public:
    CKeyBox(CVisualElement* parent, size<int> const& extent) : Box(parent, extent, alNone)
    {
        this->SetCanHaveFocus(true);
    }

    void SetSize(size<int> const& extent, bool scale) override
    {
        Box::SetSize(extent, scale);
        rectangle<int> const pos = this->GetPos();
        this->SetPos({pos.left, pos.top, pos.left + this->GetSize().width, pos.top + this->GetSize().height}, true);
    }

protected:
    bool HandleButtonDown(int, int, int, MouseButton) override
    {
        this->SetFocus(true);
        return false;
    }
};

/// Two neighbours: the left one gets a third of the width.
class CShared : public CPanel
{
public:
    CShared(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CPanel(parent, extent, alignment), m_Third(new CPanel(this, {100, 0}, alLeft)), m_Resizer(m_Third, 1.0 / 3)
    {
        m_Third->SetText("a third");
        m_Third->SetBkColor(color_table[24]);
        m_Third->SetFgColor(color_table[1]);  // the ground is light in every theme
        m_Third->SetFrame(true);
        auto* const rest = new CPanel(this, {0, 0}, alClient);
        rest->SetText("CHorzProportionalResizer leaves the rest");
        rest->SetFrame(true);
        m_SigSize.connect(&m_Resizer, &CResizer::ProcessResize);
    }

private:
    CPanel* const m_Third;
    CHorzProportionalResizer m_Resizer;
};

/// Four panels with equal gaps. These leave no room for the lines of the edges, so that the last one sticks out.
class CSpread : public CView
{
public:
    CSpread(CVisualElement* parent, size<int> const& extent, Alignment alignment) : CView(parent, extent, alignment)
    {
        for (int i = 0; i < 4; ++i)
            (new CBoxItem(this, {0, 30}, alNone, i))->SetText("spread");
        m_SigSize.connect(&m_Resizer, &CResizer::ProcessResize);
    }

private:
    CUniformVertResizer m_Resizer;
};

}  // namespace

void CBoxesPage::Build(CVisualElement* parent)
{
    auto* const column = new CView(parent, {0, 0}, alClient);  // first, so that the others are painted over its ends
    new CLabel(parent, {0, 40}, alTop,
               "Click an item to make it larger (Control: smaller); keys scroll the clicked box.");
    auto* const shared = new CShared(parent, {0, 44}, alBottom);
    auto* const strip = new CPanel(parent, {0, 64}, alBottom);
    auto* const row = new CView(strip, {0, 0}, alClient);
    row->SetGround(parent);
    (new CPanel(strip, {104, 0}, alLeft))->SetText("CHorzBox");
    auto* const horizontal = new CKeyBox<CHorzBox>(row, {0, 60});
    for (int i = 0; i < 14; ++i)
        new CBoxItem(horizontal, {90, 0}, alLeft, i);
    auto* const spread = new CSpread(parent, {120, 0}, alRight);
    auto* const vertical = new CKeyBox<CVertBox>(column, {360, 0});
    for (int i = 0; i < 20; ++i)
        new CBoxItem(vertical, {0, 34}, alTop, i);
    vertical->SetBottomPadSize(10);
    Report(horizontal->m_SigSize, "row.size");
    Report(vertical->m_SigSize, "column.size");
    Report(shared->m_SigSize, "shared.size");
    Report(spread->m_SigSize, "spread.size");
}

}  // namespace gallery
