// A bar painted bit by bit looks as if painted at once: played with random users.

#include "tests/charts/bar_bench.h"
#include "tests/support/game.h"
#include "tests/support/slot.h"
#include "vexel/testing/random.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// They outlive the host.
struct SModels
{
    CNames names{8};
    CSteps steps{{12.5, 15, 10, 5, 20, 8, 30, 2}};
};

// A bar beside a pane, which a margin may make narrower than the bar, and its user and owner at random.
class CBarGame
{
public:
    CBarGame(CTestHost& host, CTestRandom& random, SModels& models)
        : m_Host(host), m_Random(random), m_Models(models),
          m_Bar(*new CBar(host.Root(), {random.Int(8, 30), random.Int(8, 30)},
                          static_cast<Alignment>(random.Int(alLeft, alBottom)))),
          m_Rest(*new CVisualElement(host.Root(), {0, 0}, alClient)),
          m_Margin(*new CBarPane(&m_Rest, {10, 10}, alLeft)), m_Pane(*new CBarPane(&m_Rest, {0, 0}, alClient))
    {
        m_Margin.SetBkColor(color_table[12]);
        m_Margin.SetVisible(false);
        m_Bar.SetMaxBarSize(40);  // leaves room for margin and pane
        m_Bar.SetBkColor(color_table[3]);
        m_Pane.SetBkColor(color_table[9]);
        m_Bar.SetCentralPane(&m_Pane);
        m_Bar.SetHorzScroll(&models.steps);
        m_Bar.SetVertScroll(&models.steps);
        m_Bar.SetCategoryModel(&models.names);
        m_Bar.SetStyle(static_cast<unsigned long>(random.Int(0, 3)));
        m_Resizing = Listen(m_Bar.m_SigSectionResizing, [this](int section, double step) {
            m_Models.steps.m_Steps[static_cast<std::size_t>(section)] = step;
        });
        host.Paint();
    }
    void Step()
    {
        CMouse& mouse = m_Host.Mouse();
        switch (m_Random.Int(0, 11))
        {
        case 0:
            Own();
            break;
        case 1:
            m_Host.Clock().Advance(100);
            m_Log.Note("time");
            break;
        case 2:
        case 3:
            if (mouse.IsHeld(mbLeft))
                break;
            m_Host.Keyboard().Hold(m_Random.Chance(30) ? ksShift : m_Random.Chance(30) ? ksControl : 0);
            mouse.Press();
            m_Host.Keyboard().Hold(0);
            m_Log.Note("press");
            break;
        case 4:
        case 5:
            mouse.Release();
            m_Log.Note("release");
            break;
        case 6:
            mouse.Leave();
            m_Log.Note("leave");
            break;
        default:
            MoveAbout(m_Host, m_Bar, m_Random, m_Log);
            break;
        }
    }
    bool IsDragged() const { return m_Bar.GetDragSection() >= 0; }
    bool IsSelected() const { return !m_Bar.GetSelection().IsEmpty(); }
    bool IsReversed() const { return m_Models.steps.m_From > m_Models.steps.m_To; }
    bool IsNarrowed() const
    {
        bool const upright = m_Bar.GetAlignment() == alLeft || m_Bar.GetAlignment() == alRight;
        rectangle<int> const bar = m_Bar.GetPos();  // the rest is as long
        rectangle<int> const pane = m_Pane.GetPos();
        return upright ? pane.Height() < bar.Height() : pane.Width() < bar.Width();
    }
    std::string History() const
    {
        std::string text = "bar at " + Describe(m_Bar.GetPos()) + ", docked " + std::to_string(m_Bar.GetAlignment()) +
                           ", pane at " + Describe(m_Pane.GetPos()) + (IsReversed() ? ", reversed\n" : "\n");
        return text + m_Log.Text();
    }

private:
    // Models tell of their changes; the rest asks for its repaint itself.
    void Own()
    {
        int const move = m_Random.Int(0, 10);
        switch (move)
        {
        case 0:
            m_Models.steps.m_Start = m_Random.Int(0, 16) / 2.0;
            m_Models.names.m_SigChanged();
            break;
        case 1:
            m_Models.names.m_Count = m_Random.Int(0, 8);
            m_Models.names.m_SigChanged();
            break;
        case 2:
            m_Bar.SetStyle(static_cast<unsigned long>(m_Random.Int(0, 3)));
            break;
        case 3:
            m_Bar.SetSelectedSections({m_Random.Int(0, 8), m_Random.Int(0, 8)});
            break;
        case 4:
            m_Bar.SetEnabled(!m_Bar.IsEnabled());
            break;
        case 5:
            m_Bar.SetRotateText(m_Random.Bool());
            break;
        case 6:
            std::swap(m_Models.steps.m_From, m_Models.steps.m_To);
            m_Models.names.m_SigChanged();
            break;
        case 7:
            m_Margin.SetVisible(!m_Margin.IsVisible());
            break;
        case 8:
            m_Margin.SetAlignment(static_cast<Alignment>(m_Random.Int(alLeft, alBottom)));
            break;
        case 9:
        {
            int const thickness = m_Random.Int(1, 12);
            m_Margin.SetSize({thickness, thickness}, false);
            break;
        }
        default:
        {
            int const width = m_Random.Int(4, 40);
            int const height = m_Random.Int(4, 40);
            m_Bar.SetSize({width, height}, false);
            break;
        }
        }
        m_Log.Note("own " + std::to_string(move));
    }

    CTestHost& m_Host;
    CTestRandom& m_Random;
    SModels& m_Models;
    CBar& m_Bar;
    CVisualElement& m_Rest;  // is laid out alone
    CBarPane& m_Margin;
    CBarPane& m_Pane;
    std::unique_ptr<CSlot<int, double>> m_Resizing;
    CGameLog m_Log{30};
};

class IncrementalBars : public testing::TestWithParam<double>
{};
INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalBars, testing::Values(1.0, 1.5));

}  // namespace

TEST_P(IncrementalBars, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    int drags = 0;
    int selections = 0;
    int narrowed = 0;
    int reversed = 0;
    for (int game = 0; game < 40; ++game)
    {
        SModels models;
        int const width = random.Int(90, 200);
        int const height = random.Int(90, 160);
        CTestHost host(width, height, GetParam());
        CBarGame bar(host, random, models);
        for (int round = 0; round < 60; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int steps = random.Int(1, 4); steps > 0; --steps)
                    bar.Step();
                host.Paint();
            }
            drags += bar.IsDragged() ? 1 : 0;
            selections += bar.IsSelected() ? 1 : 0;
            narrowed += bar.IsNarrowed() ? 1 : 0;
            reversed += bar.IsReversed() ? 1 : 0;
            ASSERT_EQ(host.CompareWithFullPaint(), "") << bar.History();
            if (random.Chance(3))
            {
                int const newWidth = random.Int(90, 200);
                int const newHeight = random.Int(90, 160);
                host.Resize(newWidth, newHeight);
            }
        }
    }
    EXPECT_GT(drags, 20);
    EXPECT_GT(selections, 500);
    EXPECT_GT(narrowed, 200);
    EXPECT_GT(reversed, 500);
}
