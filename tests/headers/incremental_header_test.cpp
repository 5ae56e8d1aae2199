// A multi-level header painted bit by bit looks as if painted at once, and so does the grid below: played with random users.

#include "tests/headers/tree_bench.h"
#include "tests/support/game.h"
#include "tests/support/slot.h"
#include "vexel/platform/convert.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/grid_viewer.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// Cells that show by their colour which row and column they belong to.
class CCells : public CGridViewer<IDiscreteItemViewModel, IContinuousItemViewModel>
{
public:
    CCells(CVisualElement* parent, CHeader const& header) : CGridViewer(parent, {0, 0}, alClient), m_Header(header) {}

    void DrawCell(IPainter* painter, int row, int, int column, int, int, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType dirty) override
    {
        if (dirty == IDirtyItemSet::dirtyOther)
            return;
        int const number = std::max(m_Header.VisibleIndex2ModelIndex(column), 0);
        painter->SetBrush({color_table[9 + (row + 3 * number) % 18], brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
        painter->SetBrush({GetBkColor(), brush::bsSolid});
    }

private:
    CHeader const& m_Header;
};

class CTreeGame
{
public:
    CTreeGame(CTestHost& host, CTestRandom& random, CItemTree& tree) : m_Host(host), m_Random(random), m_Tree(tree)
    {
        m_Box = new CScrollBox(host.Root(), {0, 0}, alClient);
        if (random.Chance(30))
            new CViewPane(m_Box, {random.Int(5, 20), 10}, random.Bool() ? alLeft : alRight);
        int const height = random.Int(25, 60);
        m_Header = new CHeader(m_Box, {height, height}, alTop);
        m_Header->SetBkColor(color_table[21]);
        m_Grid = new CCells(m_Box, *m_Header);
        m_Header->SetModel(&tree);
        m_Grid->SetColumnViewModel(m_Header);
        m_Grid->GetRowViewModel()->SetCount(6);
        for (int number : {2, 5, 6})
        {
            CVisualElement* const element = new CViewPane(m_Header, {random.Int(5, 12), random.Int(5, 12)}, alNone);
            element->SetBkColor(color_table[number]);
            FindByModelIndex search(number);
            WalkHeaderModel(&tree, &search, 0);
            Alignment const side = random.Pick(std::vector<Alignment>{alLeft, alRight, alClient});
            m_Header->SetVisualElement(search.GetFound(), element, side);
        }
        m_Box->ConnectElement(m_Grid, CScrollBox::ctBoth, true);
        m_Box->ConnectElement(m_Header, CScrollBox::ctHorizontal, false);
        // A grid paints and moves only what is new, past the picture that is kept under a dragged item.
        m_CanDrag = random.Bool();
        if (m_CanDrag)
            m_Grid->SetVisible(false);
        SetStyle(7);
        m_Over = Listen(m_Header->m_SigDragOver, [this](CHeader*, IHeaderItem* item, int, int to) {
            m_Groups = m_Groups && static_cast<CItem*>(item)->m_Parent == m_From.parent;
            m_Target = to;
        });
        m_Begins = Listen(m_Header->m_SigCanDrag, [this](CHeader*, IHeaderItem* item, bool*) {
            m_From = {static_cast<CItem*>(item)->m_Parent, m_Tree.Count()};
        });
        m_Dropped = Listen(m_Header->m_SigDropped, [this](CHeader*, IHeaderItem* item, int) {
            auto* const moved = static_cast<CItem*>(item);
            ++m_Drops;
            m_Groups = m_Groups && m_Target >= 0 && m_Target <= CItemTree::ListOf(moved->m_Parent).Count();
            CItemTree::Move(moved, m_Target);
            m_Tree.m_SigChanged();
        });
        m_Box->RefreshScroll();
        host.Paint();
    }

    void Step()
    {
        switch (m_Random.Int(0, 5))
        {
        case 0:
            Own();
            break;
        case 1:
            Scroll();
            break;
        default:
            Use();
            break;
        }
    }
    std::string History() const
    {
        return "header at " + Describe(m_Header->GetPos()) + ", grid at " + Describe(m_Grid->GetPos()) + "\n" +
               m_Tree.Text() + "\n" + m_Log.Text();
    }
    bool KeepsGroups() const { return m_Groups; }
    int GetDrops() const { return m_Drops; }

private:
    void Use()
    {
        CMouse& mouse = m_Host.Mouse();
        switch (m_Random.Int(0, 9))
        {
        case 0:
        case 1:
            if (mouse.IsHeld(mbLeft))
                break;
            mouse.Press();
            m_Log.Note("press");
            break;
        case 2:
        case 3:
            mouse.Release();
            m_Log.Note("release");
            break;
        case 4:
            mouse.Leave();
            m_Log.Note("leave");
            break;
        default:
            MoveAbout(m_Host, *m_Header, m_Random, m_Log);
            break;
        }
    }
    void Scroll() { WaitOrScroll(m_Host, *m_Box->GetWrappedHorzScroll(), m_Random, m_Log); }
    CItem* AnyItem()
    {
        CItemList const* list = &m_Tree;
        CItem* item = nullptr;
        do
        {
            item = list->At(m_Random.Index(list->Count()));
            list = item;
        } while (item->Count() > 0 && m_Random.Bool());
        return item;
    }
    void Own()
    {
        CItem* const item = AnyItem();
        switch (m_Random.Int(0, 9))
        {
        case 0:
        case 1:
        {
            bool const expand = m_Random.Bool();
            m_Header->ExpandItem(item, expand);
            m_Log.Note((expand ? "expand " : "collapse ") + item->m_Name);
            break;
        }
        case 2:
        case 3:
        {
            int const column = m_Random.Index(m_Header->GetCount());
            int const width = m_Random.Int(3, 70);
            m_Header->SetItemSize(column, width);
            m_Log.Note("size " + std::to_string(column) + " " + std::to_string(width));
            break;
        }
        case 4:
            SetStyle(static_cast<unsigned>(m_Random.Int(0, 7)));
            break;
        case 5:
            m_Header->SetNativeDrawing(!m_Header->IsNativeDrawing());
            m_Header->Update(utElement);
            m_Log.Note("native");
            break;
        case 6:
            m_Header->SetStretchLastItem(!m_Header->IsLastItemStretched());
            m_Log.Note("stretch");
            break;
        case 7:
            m_Header->SetEnabled(!m_Header->IsEnabled());
            m_Log.Note("enable");
            break;
        case 8:
            if (m_Random.Bool())
                m_Host.Focus();
            else
                m_Host.Unfocus();
            m_Log.Note("focus");
            break;
        default:
            item->m_Sorting = m_Random.Int(0, 2);
            m_Tree.m_SigChanged();
            m_Log.Note("sort " + item->m_Name);
            break;
        }
    }
    void SetStyle(unsigned style) { m_Header->SetStyle(m_CanDrag ? style : style & ~unsigned{CHeader::hsDrag}); }

    CTestHost& m_Host;
    CTestRandom& m_Random;
    CItemTree& m_Tree;
    CScrollBox* m_Box = nullptr;
    CHeader* m_Header = nullptr;
    CCells* m_Grid = nullptr;
    CGameLog m_Log{30};
    bool m_CanDrag = false;
    struct
    {
        IHeaderContainer* parent = nullptr;
        int count = 0;
    } m_From;
    int m_Target = -1;
    bool m_Groups = true;
    int m_Drops = 0;
    std::unique_ptr<CSlot<CHeader*, IHeaderItem*, bool*>> m_Begins;
    std::unique_ptr<CSlot<CHeader*, IHeaderItem*, int, int>> m_Over;
    std::unique_ptr<CSlot<CHeader*, IHeaderItem*, int>> m_Dropped;
};

class IncrementalHeader : public testing::TestWithParam<double>
{};

TEST_P(IncrementalHeader, LooksAsIfPaintedAtOnceAndKeepsItsGroups)
{
    CTestRandom random;
    int drops = 0;
    for (int game = 0; game < 60; ++game)
    {
        CItemTree tree("A(a:40 b:60(x:30 y:30)) B:50 C-:45(c d) D(e(f:20 g:35) h:25) E");
        CTestHost host(random.Int(120, 260), random.Int(100, 160), GetParam());
        CTreeGame header(host, random, tree);
        for (int round = 0; round < 60; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int steps = random.Int(1, 4); steps > 0; --steps)
                    header.Step();
                host.Paint();
            }
            ASSERT_EQ(host.CompareWithFullPaint(), "") << header.History();
            ASSERT_TRUE(header.KeepsGroups()) << header.History();
            if (random.Chance(3))
                host.Resize(random.Int(120, 260), random.Int(100, 160));
        }
        drops += header.GetDrops();
        // Who stands in which group is the same as ever.
        for (auto const& [group, members] : std::vector<std::pair<std::string, std::string>>{
                 {"A", "ab"}, {"b", "xy"}, {"C", "cd"}, {"D", "eh"}, {"e", "fg"}})
        {
            std::string found;
            for (int i = 0; i < tree[group].Count(); ++i)
                found += tree[group].At(i)->m_Name;
            std::sort(found.begin(), found.end());
            ASSERT_EQ(found, members) << header.History();
        }
        ASSERT_EQ(tree.Count(), 5);
    }
    EXPECT_GT(drops, 10);
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalHeader, testing::Values(1.0, 1.5));

}  // namespace
