#pragma once

#include "tests/support/slot.h"
#include "tests/support/test_images.h"
#include "vexel/controls/tab_pane.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Panes of tabs and the model that feeds them.

namespace tab_test
{

using namespace vexel;
using namespace vexel::test;

/// What one tab shows.
struct STab
{
    std::string text;
    int image = -1;
    int flags = 33;  // left, in the middle of the height
    std::string tooltip;
    bool close = false;
    int spacer = 0;
    int spacerImage = -1;
    bool enabled = true;
    bool animated = false;
};

class CTestTabs : public ITabsModel
{
public:
    CTestTabs() = default;
    explicit CTestTabs(std::vector<std::string> const& texts)
    {
        for (std::string const& text : texts)
            Add(text);
    }

    std::vector<STab> m_Tabs;
    vexel_ptr<IAnimation> m_Frames;
    mutable int m_Questions = 0;  ///< How many answers were asked for, but for the count.

    STab& Add(std::string const& text)
    {
        m_Tabs.emplace_back();
        m_Tabs.back().text = text;
        return m_Tabs.back();
    }
    STab& operator[](int tab) { return m_Tabs.at(static_cast<std::size_t>(tab)); }

    int GetTabCount() const override { return static_cast<int>(m_Tabs.size()); }
    std::string GetTabText(int tab) const override { return Get(tab).text; }
    int GetTabImageIndex(int tab) const override { return Get(tab).image; }
    int GetTabTextFlags(int tab) const override { return Get(tab).flags; }
    std::string GetTabTooltip(int tab) const override { return Get(tab).tooltip; }
    bool HasTabCloseButton(int tab) const override { return Get(tab).close; }
    int GetTabSpacerWidth(int tab) const override { return Get(tab).spacer; }
    int GetTabSpacerImageIndex(int tab) const override { return Get(tab).spacerImage; }
    bool IsTabEnabled(int tab) const override { return Get(tab).enabled; }
    bool IsTabAnimated(int tab) const override { return Get(tab).animated; }
    vexel_ptr<IAnimation> GetAnimation() const override { return m_Frames; }

private:
    STab const& Get(int tab) const
    {
        ++m_Questions;
        return m_Tabs.at(static_cast<std::size_t>(tab));  // throws for a tab that doesn't exist
    }
};

/// Frames of 6 x 4, each for 50 ms, of which each one has another colour.
class CTestFrames : public IAnimation
{
public:
    int GetDelay() override { return 50; }
    void NextFrame() override { ++m_Frame; }
    size<int> GetSize() const override { return {6, 4}; }
    void Draw(IPainter* painter, double x, double y) override
    {
        painter->SetBrush({color_table[1 + m_Frame % 6], brush::bsSolid});
        painter->FillRect(x, y, x + 5, y + 3);
    }

    int m_Frame = 0;
};

/// A pane that writes down which tabs it draws.
class CTestPane : public CTabPane
{
public:
    using CTabPane::CTabPane;

    std::string m_Draws;  ///< "1 3"

    std::string TakeDraws() { return std::exchange(m_Draws, {}); }

    void DrawTab(IPainter* painter, int tab, rectangle<double> const& content, unsigned int state) override
    {
        m_Draws += (m_Draws.empty() ? "" : " ") + std::to_string(tab);
        CTabPane::DrawTab(painter, tab, content, state);
    }
};

inline std::string Describe(CTabPane::SHit const& hit)
{
    return std::to_string(hit.kind) + " " + std::to_string(hit.tab) + " " + vexel::test::Describe(hit.rect);
}

/// A pane at the top of a window of 200 x 60, with three tabs of three letters: each is 43 wide, which are 27 of the bold
/// letters, 10 in addition, 4 and 2. They begin at 0, 43 and 86. A line is 8 high, the row 8 + 1 + 10 = 19. The view is
/// 199 wide.
class CTabBench : public testing::Test
{
protected:
    CTabBench()
    {
        SetDefAnimationProcess(aptTimer);
        m_Host.Control().SetImageList(&m_Images);
        NameElement(m_Pane, "pane");
        m_Pane.SetTransparent(false);
        m_Pane.SetModel(&m_Tabs);
        m_Pane.SetAutoSize(true);
        Settle();
    }
    ~CTabBench() override
    {
        SetDefAnimationProcess(aptThread);
        if (m_Host.HasControl())
            m_Host.Control().SetImageList(nullptr);
    }
    void Settle()
    {
        m_Host.Paint();
        m_Host.RunPending();
        m_Pane.TakeDraws();
        m_Images.Take();
    }
    /// What is drawn of what waits.
    std::string DrawnTabs()
    {
        m_Pane.TakeDraws();
        m_Host.Paint();
        return m_Pane.TakeDraws();
    }
    PaintLog FullPaint() { return m_Host.FullPaint().Of("pane"); }
    void Focus()
    {
        m_Host.Focus();
        m_Pane.SetFocus(true);
        Settle();
    }
    IDiscreteItemViewModel& View() { return *m_Pane.GetColumnViewModel(); }
    ISelectionModel& Selection() { return *m_Pane.GetColumnSelectionModel(); }

    CTestTabs m_Tabs{{"abc", "def", "ghi"}};
    CTestImages m_Images{{{16, 10}, {6, 4}}};
    CTestHost m_Host{200, 60};
    CTestPane& m_Pane = *new CTestPane(m_Host.Root(), {0, 20}, alTop);
};

}  // namespace tab_test
