// Splitters, expanders and gauges in random trees, set and used at random: what is painted bit by bit looks as if painted
// at once, and at the end of a step nothing runs that need not.

#include "tests/support/game.h"
#include "tests/support/leaf.h"
#include "vexel/controls/caption.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/random.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/expander.h"
#include "vexel/widgets/gauge_box.h"
#include "vexel/widgets/splitter.h"

#include <gtest/gtest.h>

#include <typeinfo>
#include <vector>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A title that is docked by its size alone.
class CPlainTitle : public CLeaf
{
public:
    CPlainTitle(CVisualElement* parent, size<int> const& extent, int look) : CLeaf(parent, extent, alNone, look) {}
};

class CWidgetsGame
{
public:
    CWidgetsGame(CTestRandom& random, double scale) : m_Random(random), m_Host(500, 500, scale)
    {
        // Outside in: each splitter divides what the former ones have left.
        CVisualElement* place = m_Host.Root();
        for (int i = random.Int(1, 3); i > 0; --i)
        {
            auto const edge = static_cast<Alignment>(random.Int(alLeft, alBottom));
            int const extent = random.Int(40, 80);
            auto* const first = NewPane(place, {extent, extent}, edge);
            auto* const bar = new CSplitter(place, {5, 5}, edge);
            auto* const second = NewPane(place, {0, 0}, alClient);
            bar->SetElements(first, second);
            bar->SetBkColor(color_table[random.Int(1, 8)]);
            bar->SetFgColor(color_table[random.Int(9, 20)]);
            m_Bars.push_back(bar);
            Fill(first);
            place = second;
        }
        Fill(place);
        m_Host.Paint();
    }

    void Step()
    {
        int const deed = m_Random.Int(0, 15);
        if (deed < 6)
            UseBar(*m_Random.Pick(m_Bars));
        else if (deed < 10 && !m_Expanders.empty())
            UseExpander(*m_Random.Pick(m_Expanders));
        else if (deed < 13 && !m_Gauges.empty())
            UseGauge(*m_Random.Pick(m_Gauges));
        else if (deed == 13 && !m_Boxes.empty())
            UseBox(*m_Random.Pick(m_Boxes));
        else
            PassTime();
    }
    // An expander or gauge that finds no room lies over its neighbours: an owner takes such ones out. False: even a pane
    // finds none, which a smallest size of the application's would have to prevent.
    bool Paint()
    {
        for (m_Host.Paint(); CVisualElement* const found = FindShown(m_Host.Root(), &IsMisplaced); m_Host.Paint())
        {
            if (dynamic_cast<CSplitter*>(found) || IsPane(found))
                return false;
            m_Log.Note("taken out", found);
            found->SetVisible(false);
            m_Host.Control().Rearrange();
        }
        return true;
    }
    std::string Compare() { return m_Host.CompareWithFullPaint(); }
    std::string Tell() { return m_Log.Text() + DescribeTree(m_Host.Root()); }
    void End()
    {
        for (CExpander* const expander : m_Expanders)
            expander->StopSizing();
    }

    int m_Moves = 0;
    int m_AnimatedSteps = 0;

private:
    static bool IsMisplaced(CVisualElement* element)
    {
        CVisualElement* const parent = element->GetParent();
        if (!parent)
            return false;
        Alignment const dock = element->GetAlignment();
        rectangle<int> const& pos = element->GetPos();
        bool const squeezed = (dock == alTop || dock == alBottom) && pos.Height() < element->GetSize().height;
        bool const narrow = (dock == alLeft || dock == alRight) && pos.Width() < element->GetSize().width;
        if (dynamic_cast<CExpander*>(parent) || dynamic_cast<CGaugeBox*>(parent) ||
            dynamic_cast<CGaugeBox*>(parent->GetParent()))
            return false;  // a frame shows and hides its parts by itself
        return SticksOut(element) || squeezed || narrow || HasMisplacedPart(element);
    }
    static bool IsPane(CVisualElement* element) { return typeid(*element) == typeid(CBevel); }
    static bool HasMisplacedPart(CVisualElement* element)
    {
        if (dynamic_cast<CGaugeBox*>(element))
            return FindShown(element, &SticksOut);
        return false;
    }
    CVisualElement* NewPane(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    {
        auto* const pane = new CBevel(parent, extent, alignment);
        pane->SetShape(static_cast<CBevel::BorderShape>(m_Random.Int(0, 7)));
        pane->SetBkColor(color_table[m_Random.Int(1, 20)]);
        return pane;
    }
    void Fill(CVisualElement* pane)
    {
        for (int i = m_Random.Int(1, 2); i > 0; --i)
        {
            if (m_Random.Bool())
                AddExpander(pane);
            else
                AddGauge(pane);
        }
        new CLeaf(pane, {0, 0}, alClient, m_Random.Int(0, 17));
    }
    void AddExpander(CVisualElement* pane)
    {
        auto const direction = static_cast<CExpander::ExpandDirection>(m_Random.Int(0, 3));
        bool const sideways = direction >= CExpander::ExpandLeftRight;
        Alignment const edge = sideways ? (m_Random.Bool() ? alLeft : alRight) : (m_Random.Bool() ? alTop : alBottom);
        auto* const expander = new CExpander(pane, {10, 10}, edge);
        expander->SetExpandDirection(direction);
        expander->SetShape(m_Random.Bool() ? CBevel::ShapeBox : CBevel::ShapeNoFrame);
        int const title = m_Random.Int(8, 16);
        expander->SetTitle(new CPlainTitle(nullptr, {title, title}, m_Random.Int(0, 17)));
        int const body = m_Random.Int(8, 30);
        expander->SetBody(new CLeaf(nullptr, {body, body}, alNone, m_Random.Int(0, 17)));
        m_Expanders.push_back(expander);
    }
    void AddGauge(CVisualElement* pane)
    {
        if (m_Random.Bool())
        {
            m_Gauges.push_back(new CGauge(pane, {12, 12}, static_cast<Alignment>(m_Random.Int(alLeft, alBottom))));
        }
        else
        {
            auto* const box = new CGaugeBoxEx(pane, {0, 0}, alTop);
            box->GetText().SetCaption("Copying");
            m_Boxes.push_back(box);
            m_Gauges.push_back(&box->GetGauge());
        }
        m_Gauges.back()->SetMax(m_Random.Int(1, 100));
    }

    void UseBar(CSplitter& bar)
    {
        rectangle<int> const& pos = bar.GetPos();
        switch (m_Random.Int(0, 7))
        {
        case 0:
            bar.SetLiveResize(m_Random.Bool());
            return;
        case 1:
            bar.SetRefreshWhileMoving(m_Random.Bool());
            return;
        case 2:
            bar.SetHighlight(m_Random.Bool());
            return;
        case 3:
            m_Log.Note("step", &bar);
            if (bar.UpdateSplitterPos(m_Random.Int(-40, 40)))
                bar.RefreshElementSize();
            return;
        default:
            break;
        }
        if (pos.Width() < 2 || pos.Height() < 2)
            return;
        if (m_Host.Mouse().IsHeld(mbLeft))
        {
            m_Log.Note("move on");
            int const x = m_Random.Int(0, 499);
            int const y = m_Random.Int(0, 499);
            m_Host.Mouse().Move(x, y);
            if (m_Random.Bool())
                m_Host.Mouse().Release();
            return;
        }
        m_Log.Note("drag", &bar);
        rectangle<int> const before = pos;
        m_Host.Mouse().Press(bar, 1, 1);
        int const x = m_Random.Int(-40, 40);
        int const y = m_Random.Int(-40, 40);
        m_Host.Mouse().Move(bar, x, y);
        m_Moves += bar.GetPos() != before;
        if (m_Random.Chance(70))
            m_Host.Mouse().Release();
    }
    void UseExpander(CExpander& expander)
    {
        m_Log.Note("expand", &expander);
        switch (m_Random.Int(0, 7))
        {
        case 0:
            expander.GetTitle()->SetSize({m_Random.Int(8, 16), 12}, false);
            break;
        case 1:
            expander.GetBody()->SetSize({16, m_Random.Int(8, 30)}, false);
            break;
        case 2:
            expander.StopSizing();
            break;
        case 3:
            expander.Expand(m_Random.Bool(), false);
            break;
        default:
            expander.Expand(m_Random.Bool(), true);
            break;
        }
    }
    void UseGauge(CGauge& gauge)
    {
        m_Log.Note("gauge", &gauge);
        switch (m_Random.Int(0, 5))
        {
        case 0:
            gauge.SetMin(m_Random.Int(-20, 20));
            break;
        case 1:
            gauge.SetMax(m_Random.Int(-20, 100));
            break;
        case 2:
            gauge.Reset();
            break;
        default:
            gauge.Increase(m_Random.Int(-20, 30));
            break;
        }
    }
    void UseBox(CGaugeBoxEx& box)
    {
        m_Log.Note("box", &box);
        switch (m_Random.Int(0, 3))
        {
        case 0:
            box.SetMaxWidth(m_Random.Int(0, 200));
            break;
        case 1:
            box.GetText().SetCaption(m_Random.Bool() ? "Copying" : "two\nlines");
            break;
        case 2:
            box.GetButton().SetCaption(m_Random.Bool() ? "Stop" : "X");
            break;
        default:
            box.GetButton().SetVisible(m_Random.Bool());
            break;
        }
    }
    void PassTime()
    {
        m_Log.Note("time");
        m_Host.StepBackground();
        m_AnimatedSteps += m_Host.RunPending();
        m_Host.Clock().Advance(10);
    }

    CTestRandom& m_Random;
    CTestHost m_Host;
    CGameLog m_Log;
    std::vector<CSplitter*> m_Bars;
    std::vector<CExpander*> m_Expanders;
    std::vector<CGauge*> m_Gauges;
    std::vector<CGaugeBoxEx*> m_Boxes;
};

class IncrementalWidgets : public testing::TestWithParam<double>
{};

TEST_P(IncrementalWidgets, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    int moves = 0;
    int steps = 0;
    int compared = 0;
    for (int game = 0; game < 40; ++game)
    {
        CWidgetsGame play(random, GetParam());
        for (int round = 0; round < 60; ++round)
        {
            for (int i = random.Int(1, 3); i > 0; --i)
                play.Step();
            if (!play.Paint())
                break;
            ASSERT_EQ(play.Compare(), "") << play.Tell();
            ++compared;
        }
        play.End();
        moves += play.m_Moves;
        steps += play.m_AnimatedSteps;
    }
    EXPECT_GT(compared, 500);
    EXPECT_GT(moves, 50);
    EXPECT_GT(steps, 50);
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalWidgets, testing::Values(1.0, 1.5));

}  // namespace
