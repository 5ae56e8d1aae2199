// Panes of tabs painted bit by bit look as if painted at once: played at random, by mouse, keys and code.

#include "tests/controls/tab_bench.h"
#include "tests/support/game.h"
#include "tests/support/leaf.h"

using namespace tab_test;

namespace
{

/// Images that are really drawn, each in a colour of its own.
class CGameImages : public IImageList
{
public:
    int GetCount() const override { return 3; }
    size<int> GetSize(int index) const override { return {5 + 4 * index, 12 - 3 * index}; }
    void Draw(IPainter* painter, int index, double x, double y) override { Fill(painter, index, x, y, 4); }
    void DrawDisabled(IPainter* painter, int index, double x, double y) override { Fill(painter, index, x, y, 7); }

private:
    void Fill(IPainter* painter, int index, double x, double y, int color) const
    {
        size<int> const extent = GetSize(index);
        painter->SetBrush({color_table[color + index], brush::bsSolid});
        painter->FillRect(x, y, x + extent.width - 1, y + extent.height - 1);
    }
};

/// Counts the tabs that it leaves out.
class CGamePane : public CTestPane
{
public:
    using CTestPane::CTestPane;

    int m_Skipped = 0;

    void DrawCell(IPainter* painter, int row, int rowSkip, int column, int columnSkip, int state,
                  rectangle<double> const& rect, IDirtyItemSet::DirtyType dirty) override
    {
        m_Skipped += dirty == IDirtyItemSet::dirtyOther && !IsTransparent();
        CTestPane::DrawCell(painter, row, rowSkip, column, columnSkip, state, rect, dirty);
    }
};

/// Another look for the tabs of a pane.
class CGameLook : public ITabVisualisation
{
public:
    rectangle<double> GetCloseBtnRect(rectangle<double> const& content) const override
    {
        return {content.right - 8, content.top, content.right, content.top + 8};
    }
    rectangle<double> GetTabContentRect(rectangle<double> const& rect, unsigned int) const override { return rect; }
    int GetItemOptimalWidth(IPainter*, int tab) const override { return 20 + tab % 5 * 4; }
    int GetItemAdditionalHeight() const override { return 4; }
    int GetItemAdditionalWidth() const override { return 4; }
    void DrawBackground(IPainter* painter, int, rectangle<double> const& rect, unsigned int state) override
    {
        Fill(painter, rect, static_cast<int>(state % 20));
    }
    void DrawTab(IPainter* painter, int tab, rectangle<double> const& content, unsigned int state) override
    {
        painter->SetPen(
            {color_table[1 + (static_cast<unsigned int>(tab) + state) % 20], pen::psSolid, 3});  // sticks out
        painter->MoveTo(content.left, content.top);
        painter->LineTo(content.right, content.bottom);
    }
    void DrawTabContent(IPainter* painter, int tab, rectangle<double> const& content, unsigned int) override
    {
        painter->SetTextColor(color_table[1]);
        painter->DrawString(content, std::to_string(tab), 64, -1);
    }
    void DrawCloseButton(IPainter* painter, int, rectangle<double> const& rect, unsigned int) override
    {
        Fill(painter, rect, 5);
    }
    _color GetBackgroundColor(int, unsigned int) override { return {}; }
    _color GetTextColor(int, unsigned int) override { return {}; }
    _color GetFrameColor(int, unsigned int) override { return {}; }
    bool DrawEmptyArea(IPainter* painter, rectangle<double> const& rect, _color const& ground,
                       bool transparent) override
    {
        if (transparent)
            return true;
        painter->SetBrush({ground, brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
        painter->SetPen({color_table[4], pen::psSolid, 1});
        for (double x = rect.left; x <= rect.right; x += 7)
        {
            painter->MoveTo(x, rect.top);
            painter->LineTo(x, rect.bottom);
        }
        return true;
    }

private:
    static void Fill(IPainter* painter, rectangle<double> const& rect, int color)
    {
        painter->SetBrush({color_table[2 + color], brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    }
};

class CGame
{
public:
    CGame(CTestHost& host, CTestRandom& random) : m_Host(host), m_Random(random)
    {
        m_Host.Control().SetImageList(&m_Images);
        m_Host.Control().GetContent()->GetControl()->SetDragStartSensitivity({3, 3});
        for (CTestTabs& tabs : m_Models)
        {
            tabs.m_Frames = vexel_ptr<IAnimation>(new CTestFrames);  // one of them stepped by two panes would show late
            for (int i = m_Random.Int(0, 9); i > 0; --i)
                Fill(tabs.Add(""));
        }
        m_Base = new CLeaf(host.Root(), {10, 10}, alClient, 3);
        Alignment const side = m_Random.Bool() ? alLeft : alRight;
        m_Side = new CLeaf(m_Base, {m_Random.Int(3, 60), 10}, side, 5);
        m_Top = new CLeaf(m_Base, {10, m_Random.Int(3, 20)}, alTop, 8);
        for (CTestTabs& tabs : m_Models)
        {
            auto* const pane = new CGamePane(m_Base, {10, m_Random.Int(15, 40)}, alTop);
            pane->SetModel(&tabs);
            if (m_Random.Chance(70))
                pane->SetAutoSize(true);
            if (m_Random.Chance(30))
                pane->SetEqualWidths(true);
            if (m_Random.Chance(30))
                pane->SetToggled(true);
            pane->SetTransparent(m_Random.Chance(30));
            if (m_Random.Chance(25))
                pane->SetItemVisualisation(&m_Look);
            m_Panes.push_back(pane);
        }
        if (m_Random.Bool())
            m_Panes[0]->SetFocus(true);
        Paint();
    }
    ~CGame()
    {
        for (CTabPane* const pane : m_Panes)
        {
            pane->SetModel(nullptr);
            pane->SetItemVisualisation(nullptr);
        }
        m_Host.Window().GetPainter()->m_BkImage = nullptr;
        m_Host.Control().SetImageList(nullptr);
    }
    CGame(CGame const&) = delete;
    CGame& operator=(CGame const&) = delete;

    void Step()
    {
        m_Pane = m_Random.Pick(m_Panes);
        switch (m_Random.Int(0, 13))
        {
        case 0:
        case 1:
        case 2:
            Point();
            break;
        case 3:
            Click();
            break;
        case 4:
            Key();
            break;
        case 5:
        case 6:
            ChangeTab();
            break;
        case 7:
            ChangeTabs();
            break;
        case 8:
            Scroll();
            break;
        case 9:
            Choose();
            break;
        case 10:
            m_Host.Clock().Advance(m_Random.Int(0, 120));
            Note("time");
            break;
        case 11:
            ChangeLook();
            break;
        case 12:
            ChangePlace();
            break;
        default:
            Repaint();
            break;
        }
    }
    void Paint()
    {
        m_Base->ForceRearrange();
        m_Host.Paint();
        Note("paint");
    }
    std::string History() const { return m_Log.Text() + DescribeTree(m_Base); }
    int CountSkipped() const
    {
        int count = 0;
        for (CGamePane const* const pane : m_Panes)
            count += pane->m_Skipped;
        return count;
    }

private:
    void Note(std::string const& what) { m_Log.Note(what + (m_Pane == m_Panes[0] ? " (first)" : "")); }
    CTestTabs& Tabs() { return m_Models[m_Pane == m_Panes[0] ? 0 : 1]; }
    int RandomTab() { return m_Random.Int(0, std::max(Tabs().GetTabCount() - 1, 0)); }
    void Fill(STab& tab)
    {
        tab.text = std::string(static_cast<std::size_t>(m_Random.Int(0, 6)), 'x');
        tab.image = m_Random.Chance(40) ? m_Random.Int(0, 2) : -1;
        tab.flags = m_Random.Bool() ? 33 : 0x64;
        tab.close = m_Random.Bool();
        tab.spacer = m_Random.Chance(30) ? m_Random.Int(0, 20) : 0;
        tab.spacerImage = m_Random.Chance(40) ? m_Random.Int(0, 2) : -1;
        tab.enabled = m_Random.Chance(80);
        tab.animated = m_Random.Chance(25);
    }
    void Point()
    {
        Paint();  // or the mouse would meet a layout of old
        if (m_Random.Chance(10))
        {
            m_Host.Mouse().Leave();
            Note("leave");
            return;
        }
        int const x = m_Random.Int(0, m_Pane->GetBounds().right + 5);
        int const y = m_Random.Int(0, m_Pane->GetBounds().bottom + 5);
        m_Host.Mouse().Move(*m_Pane, x, y);
        Note("point " + std::to_string(x) + " " + std::to_string(y));
    }
    void Click()
    {
        Paint();
        int const x = m_Random.Int(0, m_Pane->GetBounds().right);
        int const y = m_Random.Int(0, m_Pane->GetBounds().bottom);
        auto const closing = Listen(m_Pane->m_SigCloseClicked, [this](CTabPane*, int tab) {
            Tabs().m_Tabs.erase(Tabs().m_Tabs.begin() + tab);
            Tabs().m_SigChanged();
        });
        MouseButton const button = m_Random.Chance(85) ? mbLeft : mbRight;
        m_Host.Mouse().Click(*m_Pane, x, y, button);
        Note("click " + std::to_string(x) + " " + std::to_string(y));
    }
    void Key()
    {
        if (m_Random.Chance(60))
            m_Pane->SetFocus(true);
        int const all[] = {vkSpace, vkReturn, vkLeft, vkLeft, vkRight, vkRight, vkHome, 'A'};
        int const key = m_Random.Pick(all);
        for (int i = m_Random.Int(1, 4); i > 0; --i)
            m_Host.Keyboard().Press(key);
        Note("key " + std::to_string(key));
    }
    void ChangeTab()
    {
        if (Tabs().GetTabCount() == 0)
            return;
        int const tab = RandomTab();
        bool const last = tab == Tabs().GetTabCount() - 1;
        Fill(Tabs()[tab]);
        Tabs().m_SigTabChanged(tab);
        Note("tab " + std::to_string(tab) + (last ? ", the last" : ""));
    }
    void ChangeTabs()
    {
        int const count = Tabs().GetTabCount();
        if (count > 0 && m_Random.Chance(45))
            Tabs().m_Tabs.erase(Tabs().m_Tabs.begin() + m_Random.Index(count));
        else
        {
            STab tab;
            Fill(tab);
            Tabs().m_Tabs.insert(Tabs().m_Tabs.begin() + m_Random.Int(0, count), tab);
        }
        Tabs().m_SigChanged();
        Note("tabs, now " + std::to_string(Tabs().GetTabCount()));
    }
    void Scroll()
    {
        int const tab = RandomTab();
        switch (m_Random.Int(0, 2))
        {
        case 0:
            m_Pane->SetFirstVisibleTab(tab);
            break;
        case 1:
            m_Pane->GetHorzScroll()->SetStart(tab);
            break;
        default:
            m_Pane->GetColumnViewModel()->SetItemSize(tab, m_Random.Int(0, 60));
            break;
        }
        Note("scroll " + std::to_string(tab));
    }
    void Choose()
    {
        int const tab = RandomTab();
        switch (m_Random.Int(0, 5))
        {
        case 0:
        case 1:
            m_Pane->SetCurrentTab(m_Random.Chance(90) ? tab : -1);
            break;
        case 2:
            m_Pane->ToggleTab(tab, m_Random.Bool());
            break;
        case 3:
            m_Pane->SetToggled(m_Random.Bool());
            break;
        case 4:
            m_Pane->SetStableTab(m_Random.Bool() ? tab : -1);
            break;
        default:
            m_Pane->SetEqualWidths(m_Random.Bool());
            break;
        }
        Note("choose " + std::to_string(tab));
    }
    void ChangeLook()
    {
        switch (m_Random.Int(0, 8))
        {
        case 0:
            m_Pane->SetTransparent(m_Random.Bool());
            Note("glass");
            break;
        case 1:
            m_Pane->SetItemVisualisation(m_Random.Bool() ? &m_Look : nullptr);
            Note("look");
            break;
        case 2:
        {
            font font;
            font.size = m_Random.Int(4, 12);
            m_Pane->SetFont(font);
            Note("font " + std::to_string(font.size));
            break;
        }
        case 3:
            m_Pane->SetBkColor(color_table[m_Random.Int(9, 27)]);
            Note("colour");
            break;
        case 4:
            m_Pane->SetEnabled(!m_Pane->IsEnabled());
            Note("enable");
            break;
        case 5:
            m_Pane->SetVisible(!m_Pane->IsVisible());
            Note("show");
            break;
        case 6:
            m_Random.Bool() ? m_Host.Focus() : m_Host.Unfocus();
            Note("native focus");
            break;
        case 7:
        {
            IPainter& painter = *m_Host.Window().GetPainter();
            if (painter.m_BkImage)
                painter.m_BkImage = nullptr;
            else
                painter.m_BkImage = MakePicture();
            m_Base->Update(utElement);
            Note("picture");
            break;
        }
        default:
            m_Pane->SetAutoSize(m_Random.Bool());
            Note("automatic size");
            break;
        }
    }
    static vexel_ptr<IRasterPicture> MakePicture()
    {
        auto const picture = CTestHost::System().CreateRasterPicture(size<int>{150, 90});
        IPainter& painter = *picture->GetPainter();
        painter.BeginPaint(IPainter::ssPaint);
        for (int i = 0; i < 150; ++i)
        {
            painter.SetBrush({color_table[1 + i % 27], brush::bsSolid});
            painter.FillRect(i, 0, i, 89);
        }
        painter.EndPaint();
        return picture;
    }
    void ChangePlace()
    {
        switch (m_Random.Int(0, 4))
        {
        case 0:
            m_Side->SetSize({m_Random.Int(3, 60), 10}, false);
            break;
        case 1:
            m_Top->SetSize({10, m_Random.Int(3, 20)}, false);
            break;
        case 2:
            m_Pane->SetSize({10, m_Random.Int(10, 40)}, false);
            break;
        case 3:
            m_Pane->SetAutoRowHeight(m_Random.Bool());
            if (m_Random.Bool())
                m_Pane->GetRowViewModel()->SetDefaultItemSize(m_Random.Int(10, 35));
            break;
        default:
        {
            int const width = m_Random.Int(150, 260);
            int const height = m_Random.Int(100, 160);
            m_Host.Resize(width, height);
            break;
        }
        }
        Note("place");
    }
    void Repaint()
    {
        if (m_Random.Bool())
            m_Pane->Update(utElement);
        else
            m_Base->Update(utElement);
        Note("repaint");
    }

    CTestHost& m_Host;
    CTestRandom& m_Random;
    CTestTabs m_Models[2];
    CGameImages m_Images;
    CGameLook m_Look;
    CVisualElement* m_Base = nullptr;
    CVisualElement* m_Side = nullptr;
    CVisualElement* m_Top = nullptr;
    std::vector<CGamePane*> m_Panes;
    CGamePane* m_Pane = nullptr;
    CGameLog m_Log;
};

class IncrementalTabs : public testing::TestWithParam<double>
{};

TEST_P(IncrementalTabs, LookAsIfPaintedAtOnce)
{
    SetDefAnimationProcess(aptTimer);
    CTestRandom random;
    int skipped = 0;
    for (int game = 0; game < 60; ++game)
    {
        int const width = random.Int(150, 260);
        int const height = random.Int(100, 160);
        CTestHost host(width, height, GetParam());
        host.Focus();
        CGame play(host, random);
        for (int round = 0; round < 50; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int steps = random.Int(1, 3); steps > 0; --steps)
                    play.Step();
                play.Paint();
            }
            ASSERT_EQ(host.CompareWithFullPaint(), "") << "game " << game << " round " << round << "\n"
                                                       << play.History();
        }
        skipped += play.CountSkipped();
    }
    EXPECT_GT(skipped, 1000);  // tabs were left out where they stood already
    SetDefAnimationProcess(aptThread);
    CTestHost::System().SetScale(1.0);
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalTabs, testing::Values(1.0, 1.5));

}  // namespace
