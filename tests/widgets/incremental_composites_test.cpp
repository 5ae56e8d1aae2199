// Strips of tabs with notebooks, and sliders with models that change, used at random: what is painted bit by bit looks as
// if painted at once.

#include "tests/support/game.h"
#include "tests/support/leaf.h"
#include "tests/support/lines_model.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/random.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/notebook.h"
#include "vexel/widgets/slider.h"
#include "vexel/widgets/tabs.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace vexel;
using namespace vexel::test;

namespace
{

class CGamePoints : public ISliderModel
{
public:
    double GetMinValue() const override { return 0; }
    double GetMaxValue() const override { return 10; }
    int GetPointCount() const override { return static_cast<int>(m_Values.size()); }
    double GetPointValue(int index) const override { return m_Values.at(static_cast<std::size_t>(index)); }
    std::string GetPointCaption(int index) const override { return std::string(1, static_cast<char>('a' + index)); }

    std::vector<double> m_Values;
};

/// Colours and sizes of captions that depend on the point.
class CGameLook : public CDefSliderDrawingModel
{
public:
    void GetAttr(int point, font& face, _color& text, _color& background, int&) const override
    {
        face.size = 8 + point % 3 * 4;
        text = color_table[1 + point % 8];
        background = color_table[9 + point % 12];
    }
};

class CCompositesGame
{
public:
    CCompositesGame(CTestRandom& random, double scale) : m_Random(random), m_Host(400, 400, scale)
    {
        m_Host.Focus();
        m_Tabs = new CTabs(m_Host.Root(), {20, random.Int(12, 30)}, alTop);
        m_Tabs->SetModel(&m_Lines);
        m_Notebook = new CNotebook(m_Host.Root(), {0, 0}, alClient);
        m_Joined = Listen(m_Tabs->m_TabChanged, [this](CVisualElement*, int tab) { m_Notebook->SetPageIndex(tab); });
        for (int i = random.Int(1, 5); i > 0; --i)
            AddPage();
        m_Host.Paint();
    }
    ~CCompositesGame()
    {
        for (CSlider* const slider : m_Sliders)
        {
            slider->SetModel(nullptr);
            slider->SetDrawingModel(nullptr);
        }
        for (CVisualElement* const page : m_Spare)
            delete page;
    }

    void Step()
    {
        switch (m_Random.Int(0, 11))
        {
        case 0:
        case 1:
            UseTabs();
            break;
        case 2:
        case 3:
            UsePages();
            break;
        case 4:
        case 5:
            MoveMouse();
            break;
        case 6:
            PressKey();
            break;
        case 7:
            m_Host.Resize(m_Random.Int(60, 400), m_Random.Int(60, 400));
            m_Log.Note("resize");
            break;
        case 8:
            if (m_Random.Bool())
                m_Host.Focus();
            else
                m_Host.Unfocus();
            m_Log.Note("focus");
            break;
        default:
            if (!m_Sliders.empty())
                UseSlider(*m_Random.Pick(m_Sliders));
            break;
        }
    }
    void Paint() { m_Host.Paint(); }
    std::string Compare() { return m_Host.CompareWithFullPaint(); }
    std::string Tell() { return m_Log.Text() + DescribeTree(m_Host.Root()); }
    int CountShown() const
    {
        int shown = 0;
        for (int i = 0; i < m_Notebook->GetChildren()->GetCount(); ++i)
            shown += m_Notebook->GetPage(i)->IsVisible();
        return shown;
    }
    bool HasPages() const { return m_Notebook->GetPage(0); }

    int m_Moves = 0;

private:
    CVisualElement* NewPage()
    {
        auto* const page = new CLeaf(nullptr, {10, 10}, alNone, m_Random.Int(0, 17));
        for (int i = m_Random.Int(0, 2); i > 0; --i)
        {
            bool const upright = m_Random.Bool();
            auto* const slider = new CSlider(page, {50, 50}, upright ? alLeft : alTop);
            slider->SetDirection(upright ? CSlider::SliderVertical : CSlider::SliderHorizontal);
            slider->SetBkColor(color_table[m_Random.Int(9, 20)]);
            m_Moved.push_back(Listen(slider->m_PosChanged, [this](CSlider*, double) { ++m_Moves; }));
            m_Sliders.push_back(slider);
        }
        return page;
    }
    void AddPage()
    {
        NewPage()->ReParent(m_Notebook, true);
        Name();
    }
    void Name()  // as many tabs as pages
    {
        std::vector<std::string> lines;
        for (int i = 0; i < m_Notebook->GetChildren()->GetCount(); ++i)
            lines.push_back(std::string(static_cast<std::size_t>(m_Random.Int(0, 8)), 'a'));
        m_Lines.Set(lines);
        m_Tabs->Update(utElement);
    }
    void UseTabs()
    {
        int const tab = m_Random.Int(-1, 6);
        switch (m_Random.Int(0, 6))
        {
        case 0:
            m_Tabs->SetFirstVisibleTab(tab);
            break;
        case 1:
            m_Tabs->SetLastVisibleTab(tab);
            break;
        case 2:
            m_Tabs->SetCurrentTab(tab);
            break;
        case 3:
            m_Tabs->SetActiveColor(color_table[m_Random.Int(1, 20)]);
            break;
        case 4:
            m_Tabs->SetInactiveColor(color_table[m_Random.Int(1, 20)]);
            break;
        default:
            m_Host.Mouse().Click(*m_Tabs, m_Random.Int(0, 200), m_Random.Int(0, 20));
            break;
        }
        m_Log.Note("tabs " + std::to_string(tab));
    }
    void UsePages()
    {
        int const count = m_Notebook->GetChildren()->GetCount();
        int const index = m_Random.Int(-1, count);
        int const deed = m_Random.Int(0, 3);
        m_Log.Note("page " + std::to_string(index) + " deed " + std::to_string(deed));
        if (deed == 0 && count < 6)
            AddPage();
        else if (deed == 1)
            Spare(m_Notebook->RemovePage(index));
        else if (deed == 2)
            m_Notebook->SetPageIndex(index);
        else
        {
            CVisualElement* const page = m_Spare.empty() || m_Random.Bool() ? NewPage() : m_Spare.back();
            std::erase(m_Spare, page);
            Spare(m_Notebook->ReplacePage(index, page));
            if (!page->GetParent())
                m_Spare.push_back(page);
        }
        Name();
    }
    void Spare(CVisualElement* page)
    {
        if (page)
            m_Spare.push_back(page);
    }
    void MoveMouse()
    {
        CVisualElement* over = m_Notebook;
        if (!m_Sliders.empty() && m_Random.Chance(80))
            over = m_Random.Pick(m_Sliders);
        m_Log.Note("mouse", over);
        if (over->GetControl() && over->IsDisplayable())
            m_Host.Mouse().Move(*over, m_Random.Int(-5, 200), m_Random.Int(-5, 60));
        if (m_Host.Mouse().IsHeld(mbLeft))
        {
            if (m_Random.Bool())
                m_Host.Mouse().Release();
        }
        else if (m_Random.Chance(70))
            m_Host.Mouse().Press();
    }
    void PressKey()
    {
        int const key = m_Random.Int(vkLeft, vkDown);
        m_Log.Note("key " + std::to_string(key));
        if (m_Random.Chance(20))
            m_Host.Keyboard().Tab(m_Random.Bool());
        else
            m_Host.Keyboard().Press(key);
    }
    void UseSlider(CSlider& slider)
    {
        m_Log.Note("slider", &slider);
        switch (m_Random.Int(0, 9))
        {
        case 0:
            slider.SetDirection(static_cast<CSlider::SliderDirection>(m_Random.Int(0, 2)));
            slider.Update(utElement);  // the caller's
            break;
        case 1:
            slider.SetModel(m_Random.Bool() ? &m_Points : nullptr);
            break;
        case 2:
            slider.SetDrawingModel(m_Random.Bool() ? &m_Look : nullptr);
            break;
        case 3:
            slider.SetEnabled(m_Random.Bool());
            break;
        case 4:
            slider.SetFocus(m_Random.Bool());
            break;
        case 5:
        case 6:
        {
            m_Points.m_Values.clear();
            for (int i = m_Random.Int(0, 6); i > 0; --i)
                m_Points.m_Values.push_back(m_Random.Int(0, 10));
            m_Points.m_SigChanged(&m_Points);
            for (CSlider* const each : m_Sliders)
                each->Update(utElement);  // the caller's
            break;
        }
        default:
            slider.UpdateSliderPos(m_Random.Int(-1, m_Random.Bool() ? 6 : 100), m_Random.Bool());
            break;
        }
    }

    CTestRandom& m_Random;
    CLinesModel m_Lines{{}};
    CGamePoints m_Points;
    CGameLook m_Look;
    CTestHost m_Host;
    CGameLog m_Log;
    CTabs* m_Tabs = nullptr;
    CNotebook* m_Notebook = nullptr;
    std::unique_ptr<CSlot<CVisualElement*, int>> m_Joined;
    std::vector<std::unique_ptr<CSlot<CSlider*, double>>> m_Moved;
    std::vector<CSlider*> m_Sliders;
    std::vector<CVisualElement*> m_Spare;
};

class IncrementalComposites : public testing::TestWithParam<double>
{};

TEST_P(IncrementalComposites, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    int moves = 0;
    for (int game = 0; game < 30; ++game)
    {
        CCompositesGame play(random, GetParam());
        for (int round = 0; round < 60; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int i = random.Int(1, 3); i > 0; --i)
                    play.Step();
                play.Paint();
            }
            ASSERT_EQ(play.CountShown(), play.HasPages() ? 1 : 0) << play.Tell();
            ASSERT_EQ(play.Compare(), "") << "game " << game << " round " << round << "\n" << play.Tell();
        }
        moves += play.m_Moves;
    }
    EXPECT_GT(moves, 200);
    CTestHost::System().SetScale(1.0);
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalComposites, testing::Values(1.0, 1.5));

}  // namespace
