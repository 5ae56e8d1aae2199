// Boxes and scrolled elements painted bit by bit look as if painted at once: played with random trees.

#include "tests/support/game.h"
#include "tests/support/leaf.h"
#include "vexel/core/base_control.h"
#include "vexel/layout/box.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using namespace vexel;
using namespace vexel::test;

namespace
{

// Hears what is laid out below it.
class CView : public CLeaf
{
public:
    using CLeaf::CLeaf;
    bool m_Asked = true;

protected:
    void ProcessRearrange(CVisualElement** element) override { m_Asked = m_Asked || *element != this; }
};

// Grows boxes in boxes and changes them at random, as an application and its user would.
class CBoxGame
{
public:
    CBoxGame(CTestHost& host, CTestRandom& random) : m_Host(host), m_Random(random)
    {
        m_View = new CView(host.Root(), {0, 0}, alClient, 3);
        Alignment const alignment = random.Bool() ? alNone : alClient;
        switch (random.Int(0, 2))
        {
        case 0:
            m_Top = new CVertBox(m_View, {80, 90}, alignment);
            break;
        case 1:
            m_Top = new CHorzBox(m_View, {80, 90}, alignment);
            break;
        default:
            m_Top = new CScrolled(m_View, {random.Int(20, 200), random.Int(20, 200)}, alignment);
            break;
        }
        m_Top->SetBkColor(color_table[20]);
        m_Top->SetCanHaveFocus(true);
        Settle();
        m_Top->SetFocus(true);
    }

    void Step()
    {
        m_All.clear();
        Collect(m_Top, m_All);
        switch (m_Random.Int(0, 9))
        {
        case 0:
        case 1:
            Add();
            break;
        case 2:
            Remove();
            break;
        case 3:
        case 4:
            Change();
            break;
        case 5:
            ChangeBox();
            break;
        case 6:
            Press();
            break;
        case 7:
            Jump();
            break;
        default:
            if (!m_All.empty())
            {
                CVisualElement* const element = m_Random.Pick(m_All);
                element->SetSize({m_Random.Int(1, 40), m_Random.Int(1, 30)}, false);
                m_Log.Note("size", element);
            }
            break;
        }
    }

    // The top one of alNone is as large as it asks for, and is laid out by its owner; what finds no room goes.
    void Settle()
    {
        for (;;)
        {
            m_View->ForceRearrange();
            if (m_Top->GetAlignment() == alNone && std::exchange(m_View->m_Asked, false))
            {
                rectangle<int> const& pos = m_Top->GetPos();
                int const width = std::max(m_Top->GetSize().width, 1);
                int const height = std::max(m_Top->GetSize().height, 1);
                if (pos.Width() != width || pos.Height() != height)
                    m_View->Update(utElement);
                m_Top->SetPos({pos.left, pos.top, pos.left + width, pos.top + height}, true);
                continue;
            }
            CVisualElement* const misplaced = FindShown(m_Top, SticksOut);
            if (misplaced)
                Drop(misplaced);
            else if (point<int> const aside = FindTouching(); aside == point<int>{0, 0})
                return;
            else
                Nudge(aside);
        }
    }

    std::string History() const { return m_Log.Text() + DescribeTree(m_Top); }

private:
    CVisualElement* PickParent()
    {
        for (int attempt = 0; attempt < 3 && !m_All.empty(); ++attempt)
            if (CVisualElement* const element = m_Random.Pick(m_All); dynamic_cast<CScrolled*>(element))
                return element;
        return m_Top;
    }
    void Add()
    {
        CVisualElement* const parent = PickParent();
        size<int> const extent{m_Random.Int(1, 40), m_Random.Int(1, 30)};
        auto const alignment = static_cast<Alignment>(m_Random.Int(alLeft, alBottom));
        CVisualElement* element = nullptr;
        switch (m_Random.Int(0, 4))
        {
        case 0:
            element = new CVertBox(parent, extent, alignment);
            break;
        case 1:
            element = new CHorzBox(parent, extent, alignment);
            break;
        default:
            element = new CLeaf(parent, extent, alignment, m_Random.Int(0, 17));
            break;
        }
        m_Log.Note("add", element);
    }
    void Remove()
    {
        if (m_All.empty())
            return;
        CVisualElement* const element = m_Random.Pick(m_All);
        m_Log.Note("remove", element);
        Drop(element);
    }
    void Drop(CVisualElement* element)
    {
        CVisualElement* const parent = element->GetParent();
        element->ReParent(nullptr, true);
        delete element;
        if (auto* const box = dynamic_cast<CBoxBase*>(parent))
            box->RecalculateSize();
        parent->Update(utElement);
    }
    void Change()
    {
        if (m_All.empty())
            return;
        CVisualElement* const element = m_Random.Pick(m_All);
        switch (m_Random.Int(0, 3))
        {
        case 0:
            element->SetVisible(!element->IsVisible());
            m_Log.Note(element->IsVisible() ? "show" : "hide", element);
            break;
        case 1:
            element->SetAlignment(static_cast<Alignment>(m_Random.Int(alLeft, alBottom)));
            m_Log.Note("dock", element);
            break;
        case 2:
            element->SetBkColor(color_table[m_Random.Int(9, 27)]);
            m_Log.Note("colour", element);
            break;
        default:
            element->GetParent()->GetChildren()->MoveItem(0, element->GetParent()->GetChildren()->GetCount());
            element->OnRearrange(element);
            element->GetParent()->Update(utElement);
            m_Log.Note("order", element);
            break;
        }
    }
    void ChangeBox()
    {
        CVisualElement* const element = PickParent();
        auto* const scrolled = static_cast<CScrolled*>(element);
        switch (m_Random.Int(0, 2))
        {
        case 0:
            scrolled->SetTransparent(!scrolled->IsTransparent());
            m_Log.Note("glass", element);
            break;
        case 1:
            scrolled->SetBkColor(color_table[m_Random.Int(9, 27)]);
            m_Log.Note("colour", element);
            break;
        default:
            if (auto* const vert = dynamic_cast<CVertBox*>(element))
                vert->SetBottomPadSize(m_Random.Int(0, 12));
            else if (auto* const horz = dynamic_cast<CHorzBox*>(element))
                horz->SetRightPadSize(m_Random.Int(0, 12));
            m_Log.Note("pad", element);
            break;
        }
    }
    // By key the view is laid out again; nobody else need ask for anything.
    void Press()
    {
        if (m_Top->GetAlignment() != alNone)
            return;
        int const key = m_Random.Int(33, 40);
        int const keys = m_Random.Bool() ? ksControl : 0;
        m_Host.Keyboard().Press(key, keys);
        m_Log.Note("key " + std::to_string(key) + (keys ? " with control" : ""), m_Top);
    }
    // By code the owner of one of alNone repaints what it uncovers.
    void Jump()
    {
        if (m_Top->GetAlignment() != alNone)
            return;
        m_Random.Bool() ? m_Top->JumpVert(m_Random.Int(-40, 40)) : m_Top->JumpHorz(m_Random.Int(-40, 40));
        m_View->Update(utElement);
        m_Log.Note("jump", m_Top);
    }
    // A child that touches the view's edge by a single line is painted by its own repaint alone. The way out of it.
    point<int> FindTouching() const
    {
        rectangle<int> const view = m_Top->GetDrawBounds();
        for (int i = 0; i < m_Top->GetChildren()->GetCount(); ++i)
        {
            CVisualElement* const child = m_Top->GetChildren()->GetItem(i);
            rectangle<int> const& pos = child->GetPos();
            if (child->IsVisible() && (pos.left == view.right || pos.right == view.left))
                return {1, 0};
            if (child->IsVisible() && (pos.top == view.bottom || pos.bottom == view.top))
                return {0, 1};
        }
        return {0, 0};
    }
    void Nudge(point<int> const& way)
    {
        rectangle<int> pos = m_Top->GetPos();
        pos.Offset(way.x, way.y);
        m_Top->SetPos(pos, false);
        m_View->Update(utElement);
    }
    CTestHost& m_Host;
    CTestRandom& m_Random;
    CView* m_View = nullptr;
    CScrolled* m_Top = nullptr;
    std::vector<CVisualElement*> m_All;
    CGameLog m_Log;
};

class IncrementalBoxes : public testing::TestWithParam<double>
{};

TEST_P(IncrementalBoxes, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    for (int game = 0; game < 40; ++game)
    {
        CTestHost host(random.Int(60, 160), random.Int(50, 110), GetParam());
        host.Focus();
        CBoxGame boxes(host, random);
        for (int round = 0; round < 60; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int steps = random.Int(1, 4); steps > 0; --steps)
                    boxes.Step();
                boxes.Settle();
                host.Paint();
            }
            ASSERT_EQ(host.CompareWithFullPaint(), "") << boxes.History();
            if (random.Chance(3))
                host.Resize(random.Int(60, 160), random.Int(50, 110));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalBoxes, testing::Values(1.0, 1.5));

}  // namespace
