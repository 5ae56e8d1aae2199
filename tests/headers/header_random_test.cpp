// A header over random trees answers what a walk over the whole tree would.

#include "tests/headers/tree_bench.h"
#include "vexel/views/item_walks.h"

#include <functional>

using namespace vexel;
using namespace vexel::test;

namespace
{

// To so many levels and items.
void Grow(CTestRandom& random, IHeaderContainer* parent, CItemList& list, int levels, int& left, int& number)
{
    int const count = random.Int(1, 5);
    for (int i = 0; i < count && left > 0; ++i)
    {
        --left;
        auto item = std::make_unique<CItem>(parent, std::to_string(number));
        item->m_ModelIndex = number++;
        item->m_Width = random.Chance(5) ? 0 : random.Int(1, 60);
        item->m_Collapsed = random.Chance(20);
        CItem& made = *item;
        list.m_Children.push_back(std::move(item));
        if (levels > 1 && random.Chance(60))
            Grow(random, &made, made, levels - 1, left, number);
    }
}

void Collect(CItemList const& list, std::vector<CItem*>& all)
{
    for (auto const& child : list.m_Children)
    {
        all.push_back(child.get());
        Collect(*child, all);
    }
}

// What the told walks come to, each over all of the tree.
struct SNaive
{
    CHeader& header;
    CItemTree& tree;

    int Levels() const
    {
        CLevelCounter levels;
        WalkHeaderModel(&tree, &levels, 0);
        return levels.GetLevelCount();
    }
    CHeader::HitTestResult HitTest(int x, int y) const
    {
        CHeader::HitTestResult result;
        if (!header.GetBounds().Contains(x, y))
            return result;
        CHitTester tester(header.GetHeaderRect(), Levels(), header.IsLastItemStretched(), &result, x > 3 ? x - 4 : x, y,
                          header.GetItemVisualisation());
        WalkHeaderModel(&tree, &tester, 0);
        return result;
    }
    rectangle<double> RectOf(CItem* item) const
    {
        CRectCalculator search(header.GetHeaderRect(), Levels(), header.IsLastItemStretched(), item);
        WalkHeaderModel(&tree, &search, 0);
        return search.GetRect();
    }
};

// Writes down what is drawn within the bounds; those before them are cut off by the clip.
class CDrawnSections : public IHeaderItemDrawing
{
public:
    std::string m_Text;
    void DrawSection(IPainter*, IHeaderItem* item, rectangle<double> const& rect) override
    {
        if (rect.right >= 0)
            m_Text += NameOf(item) + " " + Describe(rect) + "; ";
    }
};

class CWritingHeader : public CHeader
{
public:
    using CHeader::CHeader;
    using CHeader::DrawSection;
    std::string m_Text;
    void DrawSection(IPainter*, IHeaderItem* item, rectangle<double> const& rect) override
    {
        m_Text += NameOf(item) + " " + Describe(rect) + "; ";
    }
};

class CRandomHeader
{
public:
    CRandomHeader(CTestHost& host, CTestRandom& random, CItemTree& tree)
        : m_Host(host), m_Random(random), m_Tree(tree),
          m_Header(*new CWritingHeader(host.Root(), {60, random.Int(5, 90)}, alTop)), m_Naive{m_Header, tree}
    {
        m_Header.SetHorzScroll(&m_Scroll);
        m_Header.SetModel(&tree);
        host.Paint();
    }
    void Check(int points)
    {
        CHeader::CViewModelItems columns;
        WalkHeaderModel(&m_Tree, &columns, 0);
        ASSERT_EQ(m_Header.GetCount(), static_cast<int>(columns.GetItems().size())) << m_Tree.Text();
        ASSERT_EQ(m_Header.GetFullItemsSize(), columns.GetFullWidth()) << m_Tree.Text();
        std::int64_t position = 0;
        for (int i = 0; i < m_Header.GetCount(); ++i)
        {
            IHeaderItem* const item = columns.GetItems()[static_cast<std::size_t>(i)];
            ASSERT_EQ(m_Header.GetHeaderItem(i), item) << m_Tree.Text();
            ASSERT_EQ(m_Header.GetItemSize(i), item->GetWidth()) << m_Tree.Text();
            ASSERT_EQ(m_Header.GetVisibleIndex(item), i) << m_Tree.Text();
            ASSERT_EQ(m_Header.GetItemPosition(i), position) << m_Tree.Text();
            if (item->GetWidth() > 0)
            {
                ASSERT_EQ(m_Header.FindItemAt(position), i) << m_Tree.Text();
                ASSERT_EQ(m_Header.FindItemAt(position + item->GetWidth() - 1), i) << m_Tree.Text();
            }
            position += item->GetWidth();
        }
        std::vector<CItem*> all;
        Collect(m_Tree, all);
        for (int i = 0; i < 10 && !all.empty(); ++i)
        {
            CItem* const item = m_Random.Pick(all);
            ASSERT_EQ(m_Header.GetItemRect(item), m_Naive.RectOf(item)) << item->m_Name << " of " << m_Tree.Text();
        }
        for (int i = 0; i < points; ++i)
        {
            int const x = m_Random.Int(-3, 203);
            int const y = m_Random.Int(-3, m_Header.GetBounds().bottom + 3);
            CHeader::HitTestResult const hit = m_Header.HitTest(x, y);
            CHeader::HitTestResult const naive = m_Naive.HitTest(x, y);
            ASSERT_EQ(NameOf(hit.m_Item), NameOf(naive.m_Item)) << x << " " << y << " of " << m_Tree.Text();
            ASSERT_EQ(hit.m_Area, naive.m_Area) << x << " " << y << " of " << m_Tree.Text();
            ASSERT_EQ(hit.m_Rect, naive.m_Rect) << x << " " << y << " of " << m_Tree.Text();
        }
        m_Header.m_Text.clear();
        m_Header.Update(utElement);
        m_Host.Paint();
        CDrawnSections drawn;
        CDrawer drawer(m_Header.GetHeaderRect(), m_Naive.Levels(), m_Header.IsLastItemStretched(), nullptr, &drawn);
        WalkHeaderModel(&m_Tree, &drawer, 0);
        ASSERT_EQ(m_Header.m_Text, drawn.m_Text) << m_Tree.Text();
    }
    void Change()
    {
        std::vector<CItem*> all;
        Collect(m_Tree, all);
        CItem* const item = all.empty() ? nullptr : m_Random.Pick(all);
        int const kind = m_Random.Int(0, 6);
        if (!item)
            return;
        switch (kind)
        {
        case 0:
        case 1:
            m_Header.ExpandItem(item, m_Random.Bool());
            break;
        case 2:
            if (m_Header.GetCount() > 0)
            {
                int const column = m_Random.Index(m_Header.GetCount());
                m_Header.SetItemSize(column, m_Random.Int(0, 80));
            }
            break;
        case 3:
            m_Scroll.m_Start = m_Random.Int(0, std::max(m_Header.GetFullItemsSize(), 1));
            break;
        case 4:
            m_Header.SetStretchLastItem(m_Random.Bool());
            break;
        case 5:
            m_Tree.Move(item, m_Random.Int(0, CItemTree::ListOf(item->m_Parent).Count()));
            m_Tree.m_SigChanged();
            break;
        default:
            item->m_Width = m_Random.Int(0, 60);
            item->m_Collapsed = m_Random.Bool();
            m_Tree.m_SigChanged();
            break;
        }
    }

private:
    CTestHost& m_Host;
    CTestRandom& m_Random;
    CItemTree& m_Tree;
    CPixelScroll m_Scroll;
    CWritingHeader& m_Header;
    SNaive m_Naive;
};

}  // namespace

TEST(HeaderAtRandom, AnswersAsWalksOverAllOfTheTree)
{
    CTestRandom random;
    for (int round = 0; round < 120; ++round)
    {
        CItemTree tree;
        int number = 0;
        int left = random.Int(0, 60);
        int const levels = random.Int(1, 6);
        Grow(random, &tree, tree, levels, left, number);
        CTestHost host(200, 120);
        {
            CRandomHeader header(host, random, tree);
            for (int step = 0; step < 15; ++step)
            {
                header.Check(15);
                if (testing::Test::HasFatalFailure())
                    return;
                header.Change();
            }
            host.DestroyControl();  // before its scroll model
        }
    }
}

TEST(HeaderAtRandom, AnswersInATreeOfAHundredThousandColumns)
{
    // Ten of ten of ten of ten of ten, in six levels with the one above all.
    CItemTree tree;
    int number = 0;
    std::function<void(IHeaderContainer*, CItemList&, int, int)> const grow =
        [&](IHeaderContainer* parent, CItemList& list, int levels, int count) {
            for (int i = 0; i < count; ++i)
            {
                auto item = std::make_unique<CItem>(parent, std::to_string(number));
                item->m_ModelIndex = number++;
                item->m_Width = 10 + number % 7;
                CItem& made = *item;
                list.m_Children.push_back(std::move(item));
                if (levels > 1)
                    grow(&made, made, levels - 1, 10);
            }
        };
    grow(&tree, tree, 6, 1);
    CTestRandom random;
    CTestHost host(200, 120);
    {
        CRandomHeader header(host, random, tree);
        header.Check(3);
        for (int step = 0; step < 4; ++step)
        {
            header.Change();
            header.Check(3);
        }
        host.DestroyControl();
    }
}
