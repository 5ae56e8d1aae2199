// Event logs and pages of categories in random use: what is painted bit by bit looks as if painted at once, and editors
// stand beside their labels.

#include "tests/support/game.h"
#include "tests/support/leaf.h"
#include "tests/widgets/config_tree.h"
#include "tests/widgets/log_lines.h"
#include "vexel/controls/check_box.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/memory/memory_scroll_bar.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/testing/random.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/configuration_viewer.h"
#include "vexel/widgets/event_log.h"
#include "vexel/widgets/message_box.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

using namespace vexel;
using namespace vexel::test;

namespace
{

int const s_Seeds = 30;
int const s_Rounds = 40;

class CGame
{
public:
    CGame(std::uint64_t seed, double scale) : m_Random(seed), m_Scale(scale), m_Host(400, 240, scale) {}

    std::string Compare() { return m_Host.CompareWithFullPaint(); }
    std::string Tell() { return m_Log.Text() + DescribeTree(m_Host.Root()); }

protected:
    void Resize()
    {
        int const width = m_Random.Int(60, 500);
        int const height = m_Random.Int(20, 300);
        m_Log.Note("resize " + std::to_string(width) + " " + std::to_string(height));
        m_Host.Resize(width, height);
    }
    void Wheel(CVisualElement& element)
    {
        int const notches = m_Random.Int(-5, 5);
        m_Log.Note("wheel " + std::to_string(notches));
        rectangle<int> const bounds = element.GetBounds();
        m_Host.Mouse().Wheel(element, bounds.right / 2, bounds.bottom / 2, notches);
    }
    void MoveBar()
    {
        for (int i = 0; i < 2; ++i)
        {
            auto* const bar = m_Host.Native<vexelbase::memory::CMemoryScrollBar>(i);
            if (!bar || m_Random.Bool())
                continue;
            int const to = m_Random.Int(0, 400);
            m_Log.Note("bar " + std::to_string(i) + " to " + std::to_string(to));
            bar->DragThumb(to);
        }
    }

    CTestRandom m_Random;
    double const m_Scale;
    CTestHost m_Host;
    CGameLog m_Log;
};

class CLogGame : public CGame
{
public:
    CLogGame(std::uint64_t seed, double scale) : CGame(seed, scale)
    {
        CEventLog::UseAsyncAutoScroll(m_Random.Bool());
        m_View->GetCentralPart().SetFitMode(m_Random.Bool() ? CScrollContainer::fmWidth : CScrollContainer::fmNone);
        m_Column->SetBkColor(color_table[m_Random.Int(9, 20)]);
        m_Column->GetList().SetBkColor(color_table[m_Random.Int(9, 20)]);
        m_Column->GetTitledList().GetTitle().SetCaption(m_Random.Bool() ? "What happened" : "");
        m_Column->GetText().SetCaption(m_Random.Bool() ? "in the last hours" : "");
        m_View->SetScrolled(m_Column);
        if (m_Random.Bool())
            m_Column->SetModel(m_Lines.get());
        m_Host.Focus();
        m_Column->SetFocus(true);
        m_Host.Paint();
    }
    ~CLogGame() { CEventLog::UseAsyncAutoScroll(false); }

    void Step()
    {
        int const before = m_Column->GetPos().top;
        switch (m_Random.Int(0, 15))
        {
        case 0:
        case 1:
        case 2:
            m_Log.Note("a line");
            m_Lines->Append(std::string(static_cast<std::size_t>(m_Random.Int(0, 30)), 'x'));
            break;
        case 3:
            m_Log.Note("lines");
            m_Lines->AppendNumbers(m_Random.Int(0, 30));
            break;
        case 4:
            m_Log.Note("fewer lines");
            m_Lines->Shrink(m_Random.Int(0, m_Lines->GetItemCount()));
            break;
        case 5:
            AddBox();
            break;
        case 6:
            MoveBox();
            break;
        case 7:
            Wheel(*m_View);
            break;
        case 8:
            MoveBar();
            break;
        case 9:
        case 10:
            Press();
            break;
        case 11:
            m_Column->SetAutoScroll(m_Random.Chance(70));
            m_Log.Note(m_Column->IsAutoScroll() ? "follow" : "stay");
            break;
        case 12:
            if (m_Random.Bool())
                Resize();
            break;
        case 13:
            TakeModel();
            break;
        case 14:
            m_Log.Note("initial width");
            m_Column->SetInitialWidth(m_Random.Int(20, 300), m_Random.Bool());
            break;
        default:
            if (m_Random.Chance(20))
            {
                m_Log.Note("clear");
                m_Column->Clear();
            }
            break;
        }
        m_Moves += m_Column->GetPos().top != before;
    }
    // With lines it is as high as all of it together.
    std::string Check()
    {
        m_Host.Paint();
        int height = 0;
        for (int i = 0; i < m_Column->GetChildren()->GetCount(); ++i)
            if (CVisualElement const& child = *m_Column->GetChildren()->GetItem(i); child.IsVisible())
                height += child.GetSize().height + 1;
        if (m_Column->GetPos().Height() != height)
            return "height " + std::to_string(m_Column->GetPos().Height()) + " for " + std::to_string(height);
        return {};
    }

    int m_Moves = 0;

private:
    void AddBox()
    {
        Alignment const edge = m_Random.Bool() ? alTop : alBottom;
        m_Log.Note("box at " + std::to_string(edge));
        if (m_Random.Bool())
        {
            new CLeaf(m_Column, {10, m_Random.Int(5, 30)}, edge, m_Random.Int(0, 17));
            return;
        }
        auto* const box = new CMessageBox(m_Column, {10, 10}, edge);
        box->GetTitle().SetCaption("Waits");
        box->GetText().SetCaption("for long");
    }
    void MoveBox()
    {
        m_Log.Note("back");
        IChildren& children = *m_Column->GetChildren();
        CVisualElement* const child = children.GetItem(m_Random.Index(children.GetCount()));
        if (m_Random.Bool())
            m_Column->MoveElementBack(child);
        else if (child != &m_Column->GetTitledList())
            child->SetVisible(m_Random.Bool());
    }
    void Press()
    {
        int const key = m_Random.Int(vkPageUp, vkDown);
        m_Log.Note("key " + std::to_string(key));
        m_Host.Keyboard().Press(key, m_Random.Bool() ? ksControl : 0);
    }
    void TakeModel()
    {
        m_Log.Note("model");
        if (m_Random.Chance(60))
            m_Column->SetModel(m_Random.Chance(70) ? m_Lines.get() : nullptr);
        else
            m_Lines = std::make_unique<CLogLines>(m_Random.Int(0, 40));
    }

    std::unique_ptr<CLogLines> m_Lines = std::make_unique<CLogLines>(m_Random.Int(0, 20));
    CScrollContainer* m_View = new CScrollContainer(m_Host.Root(), {10, 10}, alClient);
    CEventLog* m_Column = new CEventLog(nullptr, {m_Random.Int(10, 200), 10}, alNone);
};

class CPageGame : public CGame
{
public:
    CPageGame(std::uint64_t seed, double scale) : CGame(seed, scale)
    {
        for (int i = m_Random.Int(1, 5); i > 0; --i)
            Fill(m_Model.AddCategory("Category", Description()), 0);
        m_Page->SetBkColor(color_table[m_Random.Int(9, 20)]);
        if (m_Random.Chance(70))
            m_Box->ConnectElement(m_Page, CScrollBox::ctVertical, true);
        m_Page->SetModel(&m_Model);
        m_Host.Paint();
    }
    ~CPageGame() { m_Host.DestroyControl(); }

    void Step()
    {
        IContinuousItemViewModel& rows = *m_Page->GetRowViewModel();
        int const before = rows.GetOffset();
        switch (m_Random.Int(0, 11))
        {
        case 0:
        case 1:
        case 2:
            Click();
            break;
        case 3:
            Wheel(*m_Page);
            break;
        case 4:
            MoveBar();
            break;
        case 5:
            m_Log.Note("offset");
            rows.SetOffset(m_Random.Int(-10, 300));
            break;
        case 6:
            m_Log.Note("refresh");
            if (auto* const open = Open(); open && m_Random.Bool())
                AddItem(*open);
            m_Page->RefreshActiveCategory();
            break;
        case 7:
            Resize();
            break;
        case 8:
            m_Log.Note("current");
            m_Page->GetRowSelectionModel()->SetCurrent(m_Random.Int(-1, rows.GetCount() - 1));
            break;
        case 9:
            m_Log.Note("hide or show");
            m_Page->SetVisible(!m_Page->IsVisible());
            rows.SetOffset(m_Random.Int(0, 200));
            m_Page->SetVisible(true);
            break;
        case 10:
            if (m_Random.Chance(20))
                m_Page->UpdateAll();
            break;
        default:
            m_Host.Mouse().Move(m_Random.Int(0, 400), m_Random.Int(0, 240));
            break;
        }
        m_Moves += rows.GetOffset() != before;
    }
    // The editors of the open category stand beside their labels, and no others show.
    std::string Check()
    {
        m_Host.Paint();
        int const row = m_Page->GetRowSelectionModel()->GetCurrent();
        auto* const open = Open();
        int top = -m_Page->GetRowViewModel()->GetOffset();
        for (int i = 0; i < row; ++i)
            top += m_Page->GetRowViewModel()->GetItemSize(i);
        int shown = 0;
        if (open)
        {
            int const items = 25 * open->GetItemCount();
            int y = top + m_Page->GetRowViewModel()->GetItemSize(row) - items - 2;
            for (auto const& item : open->m_Items)
            {
                if (!item)
                    continue;
                CVisualElement const* const editor = item->m_Editor.get();
                if (editor && (editor->GetPos().top != y || !editor->IsVisible()))
                    return "editor at " + Describe(editor->GetPos()) + ", not " + std::to_string(y);
                shown += editor != nullptr;
                y += 25;
            }
        }
        for (int i = 0; i < m_Page->GetChildren()->GetCount(); ++i)
            shown -= m_Page->GetChildren()->GetItem(i)->IsVisible();
        return shown == 0 ? "" : "other editors show";
    }

    int m_Moves = 0;

private:
    static std::string Description() { return "what it\nis for"; }
    void AddItem(CTreeCategory& category)
    {
        if (m_Random.Chance(20))
        {
            category.AddItem("Bare");
            return;
        }
        auto& box = category.AddEditor<CCheckBox>("Item", m_Random.Int(20, 150));
        box.SetCaption("on");
    }
    void Fill(CTreeCategory& category, int depth)
    {
        for (int i = m_Random.Int(0, 4); i > 0; --i)
            AddItem(category);
        for (int i = m_Random.Int(0, depth < 2 ? 2 : 0); i > 0; --i)
            Fill(category.AddCategory("Below", "it"), depth + 1);
    }
    CTreeCategory* Open()
    {
        return dynamic_cast<CTreeCategory*>(m_Page->GetCategoryByRow(m_Page->GetRowSelectionModel()->GetCurrent()));
    }
    void Click()
    {
        rectangle<int> const bounds = m_Page->GetBounds();
        int const x = m_Random.Int(0, bounds.right);
        int const y = m_Random.Int(0, bounds.bottom);
        m_Log.Note("click " + std::to_string(x) + " " + std::to_string(y));
        m_Host.Mouse().Click(*m_Page, x, y);
    }

    CTreeModel m_Model;
    CScrollBox* m_Box = new CScrollBox(m_Host.Root(), {10, 10}, alClient);
    CConfigurationViewer* m_Page = new CConfigurationViewer(m_Box, {10, 10}, alClient);
};

class IncrementalLog : public testing::TestWithParam<double>
{
protected:
    template <class Game> void Play()
    {
        CTestRandom random;
        int moves = 0;
        for (int i = 0; i < s_Seeds; ++i)
        {
            Game game(random.Next(), GetParam());
            for (int round = 0; round < s_Rounds; ++round)
            {
                for (int step = random.Int(1, 3); step > 0; --step)
                    game.Step();
                ASSERT_EQ(game.Check(), "") << game.Tell();
                ASSERT_EQ(game.Compare(), "") << game.Tell();
            }
            moves += game.m_Moves;
        }
        EXPECT_GT(moves, 200);
    }
};

TEST_P(IncrementalLog, LogsLookAsIfPaintedAtOnce)
{
    Play<CLogGame>();
}

TEST_P(IncrementalLog, PagesLookAsIfPaintedAtOnce)
{
    Play<CPageGame>();
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalLog, testing::Values(1.0, 1.5));

}  // namespace
