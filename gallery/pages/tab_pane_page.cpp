#include "gallery/pages/tab_pane_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/arrow_button.h"
#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/system.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace gallery
{

namespace
{

constexpr int g_Many = 10000;

/// Dots on a circle, of which one after the other is the darkest.
class CDots : public IAnimation
{
public:
    int GetDelay() override { return 90; }
    void NextFrame() override { m_Frame = (m_Frame + 1) % s_Dots; }
    size<int> GetSize() const override
    {
        int const side = ToDevicePixels(16);
        return {side, side};
    }
    void Draw(IPainter* painter, double x, double y) override
    {
        double const side = GetSize().width;
        double const dot = std::floor(side / 5);
        for (int i = 0; i < s_Dots; ++i)
        {
            double const angle = 2 * std::numbers::pi * i / s_Dots;
            double const left = std::floor(x + (side - dot) / 2 * (1 + std::sin(angle)));
            double const top = std::floor(y + (side - dot) / 2 * (1 - std::cos(angle)));
            int const level = std::min(40 + (m_Frame - i + s_Dots) % s_Dots * 24, 220);
            painter->SetBrush({_color::FromRgb(level, level, level), brush::bsSolid});
            painter->FillRect(left, top, left + dot - 1, top + dot - 1);
        }
    }

private:
    static constexpr int s_Dots = 8;

    int m_Frame = 0;
};

/// Leaves the text room also while the close button shows, and closes.
class CClosingTabs : public CTabPane
{
public:
    CClosingTabs(CVisualElement* parent, CTabList& tabs) : CTabPane(parent, {0, 30}, alTop), m_Tabs(tabs)
    {
        SetBkColor(ISysPalette::scFace);
        SetModel(&tabs);
        m_SigCloseClicked.connect(this, &CClosingTabs::Close);
    }
    int GetItemOptimalWidth(IPainter* painter, int tab) const override
    {
        return CTabPane::GetItemOptimalWidth(painter, tab) + 2 * GetTextSpace();
    }

private:
    void Close(CTabPane*, int tab)
    {
        m_Tabs.m_Tabs.erase(m_Tabs.m_Tabs.begin() + tab);
        m_Tabs.m_SigChanged();
    }

    CTabList& m_Tabs;
};

/// A ground of slanted stripes that nothing is drawn over but what shines through.
class CStripes : public CPanel
{
public:
    using CPanel::CPanel;

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        CPanel::DrawContent(painter);
        int const step = ToDevicePixels(12);
        painter->SetPen({color_table[27], pen::psSolid, ToDevicePixels(4)});
        CClipHolder const clip(painter, ToDouble(rect));  // lines are thicker than their ends
        for (int x = -rect.bottom; x < rect.right; x += step)
        {
            painter->MoveTo(x, rect.bottom);
            painter->LineTo(x + rect.bottom, 0);
        }
    }
};

/// A caption, and below it the place of a pane; then a gap.
void AddCaption(CVisualElement* parent, std::string const& text)
{
    new CPanel(parent, {0, 6}, alTop);
    auto* const label = new CLabel(parent, {0, 24}, alTop, text);
    label->SetMargin(0);
}

}  // namespace

int CTabList::GetTabTextFlags(int) const
{
    return IPainter::AlignLeft | IPainter::AlignVCenter;
}

std::string CTabList::GetTabTooltip(int tab) const
{
    return "Tooltip of " + Get(tab).text;
}

/// A pane between two arrows that scroll it as far as it says it can.
class CTabPanePage::CScrolledTabs : public CPanel
{
public:
    CScrolledTabs(CVisualElement* parent, CTabList& tabs) : CPanel(parent, {0, 30}, alTop)
    {
        m_Back = AddArrow(alLeft, CArrowButton::ArrowLeft);
        m_Forward = AddArrow(alRight, CArrowButton::ArrowRight);
        m_Pane = new CTabPane(this, {0, 0}, alClient);
        m_Pane->m_SigScrollStateChanged.connect(this, &CScrolledTabs::ScrollStateChanged);
        m_Pane->SetModel(&tabs);
        m_Pane->Layout();
        SetHeight(m_Pane->GetSize().height, false);
    }

    CTabPane& GetPane() { return *m_Pane; }

private:
    CArrowButton* AddArrow(Alignment alignment, CArrowButton::ArrowType type)
    {
        auto* const arrow = new CArrowButton(this, {26, 0}, alignment);
        arrow->SetArrowType(type);
        arrow->SetAutoRepeat(true);
        arrow->m_Clicked.connect(this, &CScrolledTabs::Clicked);
        return arrow;
    }
    void Clicked(CButton* button)
    {
        m_Pane->SetFirstVisibleTab(m_Pane->GetFirstVisibleTab() + (button == m_Back ? -1 : 1));
    }
    void ScrollStateChanged(CTabPane*, bool back, bool forward)
    {
        m_Back->SetEnabled(back);
        m_Forward->SetEnabled(forward);
    }

    CArrowButton* m_Back = nullptr;
    CArrowButton* m_Forward = nullptr;
    CTabPane* m_Pane = nullptr;
};

CTabPanePage::~CTabPanePage() = default;

CTabList& CTabPanePage::AddTabs(std::initializer_list<char const*> texts)
{
    CTabList& tabs = *m_Lists.emplace_back(std::make_unique<CTabList>());
    for (char const* const text : texts)
        tabs.m_Tabs.emplace_back().text = text;
    return tabs;
}

void CTabPanePage::Build(CVisualElement* parent)
{
    auto const add = [&](CTabList& tabs, CVisualElement* to) {
        auto* const pane = new CTabPane(to, {0, 30}, alTop);
        pane->SetBkColor(ISysPalette::scFace);
        pane->SetModel(&tabs);
        pane->SetAutoSize(true);
        return pane;
    };
    new CPanel(parent, {8, 0}, alLeft);
    new CPanel(parent, {8, 0}, alRight);

    AddCaption(parent, "As wide as they need; one is disabled");
    CTabList& plain = AddTabs({"General", "Images", "Printing", "Network", "About"});
    plain.m_Tabs[1].image = 0;
    plain.m_Tabs[3].enabled = false;
    plain.m_Tabs[3].image = 1;
    CTabPane* const first = add(plain, parent);
    first->SetCurrentTab(1);
    Report(first->m_SigCurrentTabChanged, "plain.currentTabChanged");

    AddCaption(parent, "Equally wide, within bounds");
    CTabPane* const equal = add(AddTabs({"One", "Two", "A longer text", "Four", "Five"}), parent);
    equal->SetEqualWidths(true);
    equal->SetCurrentTab(0);
    Report(equal->m_SigCurrentTabChanged, "equal.currentTabChanged");

    AddCaption(parent, "Each can be closed, while it is selected or under the pointer");
    CTabList& documents = AddTabs({"letter.txt", "drawing.png", "budget.ods", "notes.md", "song.ogg"});
    for (CTabList::STab& tab : documents.m_Tabs)
        tab.close = true;
    auto* const closing = new CClosingTabs(parent, documents);
    closing->SetAutoSize(true);
    closing->SetCurrentTab(1);
    Report(closing->m_SigCloseClicked, "closing.closeClicked");

    AddCaption(parent, "With images in the gaps");
    CTabList& path = AddTabs({"Home", "Documents", "Letters", "2026"});
    for (int i = 0; i < 3; ++i)
        path.m_Tabs[static_cast<std::size_t>(i)].spacerImage = 2;
    CTabPane* const gaps = add(path, parent);
    gaps->SetCurrentTab(3);

    AddCaption(parent, "A set of toggles: click, Space or Return");
    CTabPane* const toggles = add(AddTabs({"Bold", "Italic", "Underlined", "Struck out"}), parent);
    toggles->SetToggled(true);
    toggles->ToggleTab(0, true);
    toggles->ToggleTab(2, true);
    Report(toggles->m_SigCurrentTabChanged, "toggles.currentTabChanged");

    AddCaption(parent, "Busy ones show an animation");
    CTabList& busy = AddTabs({"Loading", "Ready", "Counting", "Idle"});
    busy.m_Frames = vexel_ptr<IAnimation>(new CDots);
    for (std::size_t const i : {std::size_t{0}, std::size_t{2}})
    {
        busy.m_Tabs[i].animated = true;
        busy.m_Tabs[i].image = 1;  // when it is done
    }
    CTabPane* const animated = add(busy, parent);
    animated->SetCurrentTab(1);

    AddCaption(parent, "Transparent, over stripes");
    auto* const stripes = new CStripes(parent, {0, 40}, alTop);
    CTabPane* const glass = add(AddTabs({"Clear", "Frosted", "Tinted"}), stripes);
    glass->SetTransparent(true);
    glass->SetCurrentTab(2);
    stripes->SetHeight(glass->GetSize().height, false);

    AddCaption(parent, "10,000 tabs between arrows");
    CTabList& many = AddTabs({});
    many.m_Tabs.resize(g_Many);
    for (int i = 0; i < g_Many; ++i)
        many.m_Tabs[static_cast<std::size_t>(i)].text = "Tab " + std::to_string(i + 1);
    auto* const scrolled = new CScrolledTabs(parent, many);
    scrolled->GetPane().SetCurrentTab(0);
    Report(scrolled->GetPane().m_SigCurrentTabChanged, "many.currentTabChanged");
    Report(scrolled->GetPane().m_SigScrollStateChanged, "many.scrollStateChanged");
}

}  // namespace gallery
