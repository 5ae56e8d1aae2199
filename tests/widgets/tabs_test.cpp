// The strip of slanted tabs: which one is current, which ones show, and which one is hit.

#include "vexel/widgets/tabs.h"

#include "tests/support/virtual_order.h"
#include "tests/widgets/tabs_bench.h"

#include <functional>
#include <limits>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Tabs = CTabsBench;

class TabsScaled : public CTabsBench
{
protected:
    TabsScaled() : CTabsBench(1.5) {}
};

// Many tabs, each with a text as long as the others'.
class CManyTabs : public IItemsModel
{
public:
    mutable int m_Asked = 0;

    int GetItemCount() const override { return 1'000'000; }
    std::string GetItemCaption(int) const override
    {
        ++m_Asked;
        return "a";
    }
};

}  // namespace

// Beginnings ------------------------------------------------------------------------------------------------------------------

TEST(TabsDefaults, AreAsTold)
{
    CTestHost const host(100, 50);
    CTabs const tabs(nullptr, {50, 20}, alTop);
    EXPECT_EQ(tabs.GetModel(), nullptr);
    EXPECT_EQ(tabs.GetCurrentTab(), 0);
    EXPECT_EQ(tabs.GetFirstVisibleTab(), 0);
    EXPECT_EQ(tabs.GetActiveColor(), _color(0xFFFFFFFF));    // window
    EXPECT_EQ(tabs.GetInactiveColor(), _color(0xFFC0C0C0));  // face
    EXPECT_EQ(tabs.GetBkColor(), _color(0xFFD9D9D9));        // 192 + 63 * 40 / 100
    EXPECT_EQ(tabs.GetSize(), (size<int>{50, 20}));
    EXPECT_EQ(tabs.GetAlignment(), alTop);
    EXPECT_FALSE(tabs.GetCanHaveFocus());
}

TEST(TabsDefaults, TheLayoutFollowsTheAlignment)
{
    CTabs tabs(nullptr, {50, 20}, alLeft);
    EXPECT_EQ(tabs.GetAlong(1, 2), 2);
    EXPECT_FALSE(tabs.IsTextConverted());
    tabs.SetAlignment(alTop);
    EXPECT_EQ(tabs.GetAlong(1, 2), 1);
    EXPECT_EQ(tabs.GetAlignment(), alTop);
    tabs.SetAlignment(alRight);
    EXPECT_EQ(tabs.GetAlong(1, 2), 2);
    tabs.SetAlignment(alClient);
    EXPECT_EQ(tabs.GetAlong(1, 2), 1);
}

TEST(TabsVirtualOrder, OfWhatATabsClassMayOverride)
{
    ExpectOrder(Place(&CVisualElement::HandleCopyToClipboard) + 1, &CTabs::DrawTab, &CTabs::TabHitTest,
                &CTabs::FirstTabHitTest, &CTabs::GetTabWidth);
    EXPECT_EQ(Place(&CTabs::SetAlignment), Place(&CVisualElement::SetAlignment));
    EXPECT_EQ(Place(&CTabs::DrawContent), Place(&CVisualElement::DrawContent));
    EXPECT_EQ(Place(&CTabs::SetCoordSystem), Place(&CVisualElement::SetCoordSystem));
    EXPECT_EQ(Place(&CTabs::HandleButtonDown), Place(&CVisualElement::HandleButtonDown));
    EXPECT_EQ(Place(&CTabs::HandleAsString), Place(&CVisualElement::HandleAsString));
}

// The current tab -------------------------------------------------------------------------------------------------------------

TEST_F(Tabs, AChangeIsAskedForToldAndRepainted)
{
    CSignalLog log;
    auto const changing = Listen(m_Tabs.m_TabChanging, [&](CVisualElement* who, int from, int to, bool* allowed) {
        EXPECT_EQ(who, &m_Tabs);
        EXPECT_TRUE(*allowed);
        EXPECT_EQ(m_Tabs.GetCurrentTab(), 0);
        log.Note("changing " + std::to_string(from) + " " + std::to_string(to));
    });
    auto const changed = Listen(m_Tabs.m_TabChanged, [&](CVisualElement* who, int to) {
        EXPECT_EQ(who, &m_Tabs);
        EXPECT_EQ(m_Tabs.GetCurrentTab(), 2);
        EXPECT_FALSE(m_Host.IsFramePending());
        log.Note("changed " + std::to_string(to));
    });
    m_Tabs.SetCurrentTab(2);
    EXPECT_EQ(log.Text(), "changing 0 2 changed 2");
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 2);
    EXPECT_TRUE(m_Host.IsFramePending());
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Tabs, ThePresentTabAndOnesThatDoNotExistChangeNothing)
{
    m_Tabs.SetCurrentTab(3);
    m_Host.Paint();
    CSignalLog log(m_Tabs.m_TabChanging, "changing");
    log.Add(m_Tabs.m_TabChanged, "changed");
    for (int const tab : {3, -1, 4, 5, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        m_Tabs.SetCurrentTab(tab);
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 3);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(Tabs, AVetoLeavesTheCurrentAndTheFirstVisibleTabUntouchedAndNoChangeFollows)
{
    Place(80, 20);
    CSignalLog log(m_Tabs.m_TabChanged, "changed");
    {
        auto const veto =
            Listen(m_Tabs.m_TabChanging, [](CVisualElement*, int, int, bool* allowed) { *allowed = false; });
        m_Tabs.SetCurrentTab(3);
        EXPECT_EQ(m_Tabs.GetCurrentTab(), 0);
        EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
        EXPECT_EQ(log.Text(), "");
        EXPECT_FALSE(m_Host.IsFramePending());
    }
    m_Tabs.SetCurrentTab(3);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 3);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 2);
    EXPECT_EQ(log.Text(), "changed(strip, 3)");
}

TEST_F(Tabs, ATabBehindTheLastVisibleOneIsScrolledIntoView)
{
    Place(80, 20);  // 31 and 39 fit
    m_Tabs.SetCurrentTab(1);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
    m_Tabs.SetCurrentTab(2);  // 23 and 39, but not 31
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 1);
    m_Tabs.SetCurrentTab(3);  // 47 and 23
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 2);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Tabs, ATabBeforeTheFirstVisibleOneBecomesTheFirst)
{
    m_Tabs.SetCurrentTab(2);
    m_Tabs.SetFirstVisibleTab(2);
    m_Tabs.SetCurrentTab(1);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 1);
    m_Tabs.SetCurrentTab(2);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 1);
    m_Tabs.SetCurrentTab(0);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
}

TEST_F(Tabs, ATabThatShowsWholeDoesNotScrollEvenIfMoreHadRoomBeforeIt)
{
    Place(93, 20);
    m_Tabs.SetFirstVisibleTab(1);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), 2);  // 39 and 23; 31 had room, too
    m_Tabs.SetCurrentTab(2);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 1);
}

TEST_F(Tabs, TheViewHasScrolledWhenTheChangeIsTold)
{
    Place(80, 20);
    int first = -1;
    auto const changed =
        Listen(m_Tabs.m_TabChanged, [&](CVisualElement*, int) { first = m_Tabs.GetFirstVisibleTab(); });
    m_Tabs.SetCurrentTab(3);
    EXPECT_EQ(first, 2);
    m_Tabs.SetCurrentTab(0);
    EXPECT_EQ(first, 0);
}

TEST_F(Tabs, ATabThatDoesNotFitAtAllDoesNotScroll)
{
    Place(20, 20);
    m_Tabs.SetCurrentTab(2);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 2);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
}

TEST_F(Tabs, AModelThatShrinksKeepsTheCurrentTab)
{
    m_Tabs.SetCurrentTab(3);
    m_Tabs.SetFirstVisibleTab(2);
    m_Host.Paint();
    m_Model.Set({"ab"});
    EXPECT_FALSE(m_Host.IsFramePending());  // nobody listens
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 3);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 2);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), -1);
    Repaint();
    EXPECT_EQ(m_Tabs.m_Drawn, "");
    EXPECT_EQ(m_Tabs.AsString(), "ab");
    CSignalLog log(m_Tabs.m_TabChanging, "changing");
    m_Tabs.SetCurrentTab(0);
    EXPECT_EQ(log.Text(), "changing(strip, 3, 0, true)");
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
}

TEST_F(Tabs, TheTextHasAllTabsAndTheCurrentOneInBrackets)
{
    EXPECT_EQ(m_Tabs.AsString(), "[ab]\tabc\ta\tabcd");
    m_Tabs.SetCurrentTab(3);
    EXPECT_EQ(m_Tabs.HandleAsString(), "ab\tabc\ta\t[abcd]");
    m_Model.Set({});
    EXPECT_EQ(m_Tabs.HandleAsString(), "");
    m_Tabs.SetModel(nullptr);
    EXPECT_EQ(m_Tabs.HandleAsString(), "");
}

// What shows ------------------------------------------------------------------------------------------------------------------

TEST_F(Tabs, TheFirstVisibleTabIsOneThatExists)
{
    m_Tabs.SetFirstVisibleTab(2);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 2);
    EXPECT_TRUE(m_Host.IsFramePending());
    m_Host.Paint();
    for (int const tab : {2, -1, 4, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        m_Tabs.SetFirstVisibleTab(tab);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 2);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Tabs.SetFirstVisibleTab(3);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 3);
    m_Tabs.SetFirstVisibleTab(0);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
}

TEST_F(Tabs, TheLastVisibleTabIsTheLastThatFitsWhole)
{
    auto const last = [this](int width) {
        Place(width, 20);
        return m_Tabs.GetLastVisibleTab();
    };
    EXPECT_EQ(last(200), 3);
    EXPECT_EQ(last(140), 3);
    EXPECT_EQ(last(139), 2);
    EXPECT_EQ(last(70), 1);
    EXPECT_EQ(last(69), 0);
    EXPECT_EQ(last(31), 0);
    EXPECT_EQ(last(30), -1);
    EXPECT_EQ(last(0), -1);
    m_Tabs.SetFirstVisibleTab(1);
    EXPECT_EQ(last(62), 2);
    EXPECT_EQ(last(61), 1);
    EXPECT_EQ(last(38), -1);
    m_Model.Set({});
    EXPECT_EQ(last(200), -1);
}

TEST_F(Tabs, ATabIsMadeTheLastVisibleByAsManyBeforeItAsFit)
{
    auto const first = [this](int width, int tab) {
        m_Tabs.SetFirstVisibleTab(0);
        Place(width, 20);
        m_Tabs.SetLastVisibleTab(tab);
        return m_Tabs.GetFirstVisibleTab();
    };
    EXPECT_EQ(first(62, 2), 1);
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(first(61, 2), 2);
    EXPECT_EQ(first(23, 2), 2);
    EXPECT_EQ(first(22, 2), 0);  // it doesn't fit itself
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_EQ(first(109, 3), 1);
    EXPECT_EQ(first(108, 3), 2);
    EXPECT_EQ(first(140, 3), 0);
    EXPECT_EQ(first(62, 4), 0);
    EXPECT_EQ(first(62, std::numeric_limits<int>::max()), 0);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(Tabs, TheWalkBackEndsAtTheFirstTab)
{
    m_Tabs.SetFirstVisibleTab(2);
    m_Tabs.SetLastVisibleTab(1);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
    m_Host.Paint();
    m_Tabs.SetLastVisibleTab(1);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Tabs.SetLastVisibleTab(-1);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
}

TEST_F(Tabs, ATabIsAsWideAsItsTextSlantAndSix)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssMeasure);
    EXPECT_EQ(m_Tabs.GetTabWidth(&painter, 0), 31);
    EXPECT_EQ(m_Tabs.GetTabWidth(&painter, 3), 47);
    painter.EndPaint();
}

TEST_F(Tabs, WidthsThatASubclassTellsDecideWhatFits)
{
    class CWideTabs : public CTabs
    {
    public:
        using CTabs::CTabs;
        int GetTabWidth(IPainter*, int tab) const override { return 50 + tab; }
    };
    auto& wide = *new CWideTabs(m_Host.Root(), {50, 20}, alNone);
    wide.SetModel(&m_Model);
    wide.SetPos({0, 0, 101, 20}, true);
    EXPECT_EQ(wide.GetLastVisibleTab(), 1);
    wide.SetLastVisibleTab(2);
    EXPECT_EQ(wide.GetFirstVisibleTab(), 2);  // 52, and 51 more do not fit
}

TEST_F(Tabs, TheStripsOwnFontDecidesAlsoOutsideOfAPaint)
{
    font large;
    large.size = 16;
    m_Tabs.SetFont(large);
    m_Host.Paint();
    // Tabs of 9 + 38, 54, 22 and 70.
    EXPECT_EQ(HitTest(47, 15), 0);
    EXPECT_EQ(HitTest(57, 15), 1);
    Place(123, 20);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), 1);  // 47 and 63, then 31
    Place(141, 20);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), 2);
    m_Tabs.SetLastVisibleTab(3);  // 79 and 31
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 2);
}

TEST_F(TabsScaled, TextsGrowAndTheSixPixelsDoNot)
{
    // Letters of 12: tabs of 9 + 30, 42, 18 and 54.
    EXPECT_EQ(HitTest(39, 19), 0);
    EXPECT_EQ(HitTest(47, 19), -1);
    EXPECT_EQ(HitTest(48, 19), 1);
    Place(90, 20);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), 1);
    Place(89, 20);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), 0);
}

// Hits ------------------------------------------------------------------------------------------------------------------------

TEST_F(Tabs, TheBoxOfATabIsHitWithBothEdges)
{
    EXPECT_EQ(HitTest(9, 0), 0);
    EXPECT_EQ(HitTest(9, 19), 0);
    EXPECT_EQ(HitTest(31, 19), 0);
    EXPECT_EQ(HitTest(20, 10), 0);
    EXPECT_EQ(HitTest(20, 20), -1);
    EXPECT_EQ(HitTest(8, 19), -1);
    EXPECT_EQ(HitTest(32, 19), -1);
    EXPECT_EQ(HitTest(40, 19), 1);
    EXPECT_EQ(HitTest(70, 19), 1);
    EXPECT_EQ(HitTest(79, 19), 2);
    EXPECT_EQ(HitTest(93, 19), 2);
    EXPECT_EQ(HitTest(102, 19), 3);
    EXPECT_EQ(HitTest(140, 19), 3);
    EXPECT_EQ(HitTest(141, 19), -1);
    EXPECT_EQ(HitTest(199, 5), -1);
}

TEST_F(Tabs, TheSlantsAreHitAboveTheirLines)
{
    EXPECT_EQ(HitTest(4, 7), 0);
    EXPECT_EQ(HitTest(4, 8), -1);
    EXPECT_EQ(HitTest(0, 0), -1);
    EXPECT_EQ(HitTest(1, 1), 0);
    // Right of the box, from 31 to 40; the next tab lies below.
    EXPECT_EQ(HitTest(35, 9), 0);
    EXPECT_EQ(HitTest(35, 10), -1);
    EXPECT_EQ(HitTest(39, 1), 0);
    EXPECT_EQ(HitTest(39, 2), 1);
    EXPECT_EQ(HitTest(40, 0), 1);
    EXPECT_EQ(HitTest(145, 7), 3);
    EXPECT_EQ(HitTest(145, 8), -1);
    EXPECT_EQ(HitTest(148, 1), 3);
    EXPECT_EQ(HitTest(149, 0), -1);
}

TEST_F(Tabs, TheLeftNeighbourLosesItsRightSlantOnlyWhereTheCurrentTabLiesOnIt)
{
    EXPECT_EQ(HitTest(35, 7), 0);
    m_Tabs.SetCurrentTab(1);
    EXPECT_EQ(HitTest(35, 7), 1);
    EXPECT_EQ(HitTest(35, 8), -1);  // on the line itself
    EXPECT_EQ(HitTest(35, 9), 0);
    EXPECT_EQ(HitTest(35, 10), -1);
    EXPECT_EQ(HitTest(32, 1), 1);
    EXPECT_EQ(HitTest(32, 3), 0);
    EXPECT_EQ(HitTest(74, 7), 1);  // its own right slant lies above the next one
    EXPECT_EQ(HitTest(20, 10), 0);
}

TEST_F(Tabs, ASlantHasNoLimitAtTheLeftAndAboveTheStrip)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssMeasure);
    int x = 31;
    EXPECT_TRUE(m_Tabs.TabHitTest({20, -23}, &painter, 1, &x));
    x = 31;
    EXPECT_FALSE(m_Tabs.TabHitTest({20, -22}, &painter, 1, &x));
    x = 31;
    EXPECT_TRUE(m_Tabs.TabHitTest({50, -1}, &painter, 1, &x));
    x = 0;
    EXPECT_TRUE(m_Tabs.TabHitTest({39, -1}, &painter, 0, &x));
    x = 0;
    EXPECT_FALSE(m_Tabs.TabHitTest({40, -1}, &painter, 0, &x));  // where the right slant ends
    m_Tabs.SetCurrentTab(1);
    x = 0;
    EXPECT_TRUE(m_Tabs.TabHitTest({9, -43}, &painter, 0, &x));
    x = 0;
    EXPECT_FALSE(m_Tabs.TabHitTest({9, -44}, &painter, 0, &x));  // 2 * (9 - 31)
    painter.EndPaint();
    EXPECT_EQ(HitTest(20, -1), 0);
}

TEST_F(Tabs, AHitTestOfATabMovesOnToTheNextWhateverTheAnswer)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssMeasure);
    int x = 0;
    EXPECT_TRUE(m_Tabs.TabHitTest({20, 10}, &painter, 0, &x));
    EXPECT_EQ(x, 31);
    x = 0;
    EXPECT_FALSE(m_Tabs.TabHitTest({100, 100}, &painter, 0, &x));
    EXPECT_EQ(x, 31);
    x = 100;
    EXPECT_TRUE(m_Tabs.TabHitTest({104, 7}, &painter, 3, &x));  // left slant
    EXPECT_EQ(x, 147);
    painter.EndPaint();
}

TEST_F(Tabs, APointLeftOfTheStripHitsNothing)
{
    EXPECT_EQ(HitTest(-1, 10), -1);
    EXPECT_EQ(HitTest(-100, 0), -1);
    EXPECT_EQ(HitTest(std::numeric_limits<int>::min(), 0), -1);
}

TEST_F(Tabs, PointsFarAwayHitNothing)
{
    int const far = std::numeric_limits<int>::max();
    EXPECT_EQ(HitTest(far, far), -1);
    EXPECT_EQ(HitTest(20, far), -1);
    EXPECT_EQ(HitTest(far, 10), -1);
}

TEST_F(Tabs, TheSliverOfTheHiddenTabIsThatTab)
{
    m_Tabs.SetCurrentTab(3);
    m_Tabs.SetFirstVisibleTab(1);
    EXPECT_EQ(HitTest(2, 13), 0);
    EXPECT_EQ(HitTest(2, 14), -1);
    EXPECT_EQ(HitTest(2, 5), 0);
    EXPECT_EQ(HitTest(2, 4), -1);  // on the line between the two
    EXPECT_EQ(HitTest(2, 3), 1);
    EXPECT_EQ(HitTest(0, 1), 0);
    EXPECT_EQ(HitTest(8, 17), -1);
    EXPECT_EQ(HitTest(9, 17), 1);
    EXPECT_EQ(HitTest(39, 19), 1);  // 0 + 39
    EXPECT_EQ(HitTest(48, 19), 2);
    m_Tabs.SetFirstVisibleTab(3);
    EXPECT_EQ(HitTest(2, 10), 2);
}

TEST_F(Tabs, TheSliverOfTheCurrentTabLiesInFront)
{
    m_Tabs.SetFirstVisibleTab(1);
    EXPECT_EQ(HitTest(2, 3), 0);
    EXPECT_EQ(HitTest(0, 0), 0);
    EXPECT_EQ(HitTest(2, 13), 0);
    EXPECT_EQ(HitTest(2, 14), -1);
    EXPECT_EQ(HitTest(8, 1), 0);
    EXPECT_EQ(HitTest(8, 2), 1);
    EXPECT_EQ(HitTest(9, 0), 1);
}

TEST_F(Tabs, TheTestOfASliverKnowsNoTabBelowZeroAndNoPointBelowTheTabs)
{
    m_Tabs.SetCurrentTab(3);
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssMeasure);
    EXPECT_FALSE(m_Tabs.FirstTabHitTest({2, 10}, &painter, -1));
    EXPECT_TRUE(m_Tabs.FirstTabHitTest({2, 10}, &painter, 0));
    EXPECT_TRUE(m_Tabs.FirstTabHitTest({-1, 18}, &painter, 0));
    EXPECT_FALSE(m_Tabs.FirstTabHitTest({-1, 19}, &painter, 0));
    EXPECT_FALSE(m_Tabs.FirstTabHitTest({9, -1}, &painter, 0));
    EXPECT_FALSE(m_Tabs.FirstTabHitTest({9, -1}, &painter, 3));
    painter.EndPaint();
}

TEST_F(Tabs, AStripOfNoWidthIsNotHit)
{
    Place(0, 20);
    EXPECT_EQ(HitTest(0, 5), -1);
    EXPECT_EQ(HitTest(10, 5), -1);
}

TEST_F(Tabs, AStripShorterThanThreePixelsHasNoSlantAndIsStillHit)
{
    Place(200, 2);
    EXPECT_EQ(HitTest(0, 0), 0);
    EXPECT_EQ(HitTest(22, 1), 0);
    EXPECT_EQ(HitTest(23, 0), 1);
    EXPECT_EQ(HitTest(10, 2), -1);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), 3);
    Place(104, 2);  // 22, 30, 14 and 38
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), 3);
    Place(103, 2);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), 2);
    m_Tabs.SetFirstVisibleTab(1);
    EXPECT_EQ(HitTest(0, 0), 1);  // no sliver
}

TEST_F(Tabs, ASubclassDecidesWhatIsHit)
{
    class COwnTabs : public CTabs
    {
    public:
        using CTabs::CTabs;
        std::string m_Calls;
        bool FirstTabHitTest(point<int> const& position, IPainter*, int tab) override
        {
            m_Calls += "first " + std::to_string(tab) + " ";
            return position.x == 77;
        }
        bool TabHitTest(point<int> const& position, IPainter*, int tab, int* x) override
        {
            m_Calls += "tab " + std::to_string(tab) + " at " + std::to_string(*x) + " ";
            *x += 10;
            return position.x < *x;
        }
    };
    auto& own = *new COwnTabs(m_Host.Root(), {50, 20}, alNone);
    own.SetModel(&m_Model);
    own.SetPos({0, 0, 100, 20}, true);
    EXPECT_EQ(own.HitTest({15, 0}), 1);
    EXPECT_EQ(own.m_Calls, "first -1 tab 0 at 0 tab 1 at 10 ");
    EXPECT_EQ(own.HitTest({77, 0}), -1);  // one before the first
    own.SetFirstVisibleTab(2);
    own.m_Calls.clear();
    EXPECT_EQ(own.HitTest({77, 0}), 1);
    EXPECT_EQ(own.HitTest({70, 0}), -1);
    EXPECT_EQ(own.HitTest({5, 0}), 2);
    EXPECT_EQ(own.m_Calls, "first 1 first 1 tab 2 at 0 tab 3 at 10 first 1 tab 2 at 0 ");
}

// The mouse -------------------------------------------------------------------------------------------------------------------

TEST_F(Tabs, APressOfAnyButtonMakesATabCurrent)
{
    m_Host.Mouse().Press(m_Tabs, 50, 10);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 1);
    m_Host.Mouse().Release();
    m_Host.Mouse().Click(m_Tabs, 85, 10, mbRight);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 2);
    m_Host.Mouse().Click(m_Tabs, 20, 10, mbMiddle);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 0);
    m_Host.Mouse().Click(m_Tabs, 190, 10);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Tabs, APressIsTakenIfThereIsAModel)
{
    EXPECT_TRUE(m_Tabs.HandleButtonDown(50, 10, 0, mbLeft));
    EXPECT_TRUE(m_Tabs.HandleButtonDown(190, 10, 0, mbRight));
    m_Model.Set({});
    EXPECT_TRUE(m_Tabs.HandleButtonDown(20, 10, 0, mbLeft));
    m_Tabs.SetModel(nullptr);
    EXPECT_FALSE(m_Tabs.HandleButtonDown(20, 10, 0, mbLeft));
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 1);
}

TEST_F(Tabs, APressOnTheSliverScrollsBack)
{
    m_Tabs.SetCurrentTab(3);
    m_Tabs.SetFirstVisibleTab(2);
    m_Host.Paint();
    m_Host.Mouse().Press(m_Tabs, 2, 10);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 1);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 1);
    m_Host.Mouse().Release();
    m_Host.Mouse().Click(m_Tabs, 2, 10);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 0);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Tabs, ADisabledStripTakesNoPress)
{
    m_Tabs.SetEnabled(false);
    m_Host.Mouse().Press(m_Tabs, 50, 10);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 0);
}

// Models ----------------------------------------------------------------------------------------------------------------------

TEST_F(Tabs, WithoutAModelThereAreNoTabs)
{
    m_Tabs.SetModel(nullptr);
    EXPECT_EQ(m_Tabs.GetModel(), nullptr);
    m_Tabs.SetCurrentTab(1);
    m_Tabs.SetFirstVisibleTab(1);
    m_Tabs.SetLastVisibleTab(1);
    m_Tabs.SetLastVisibleTab(0);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 0);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 0);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), -1);
    EXPECT_EQ(HitTest(20, 10), -1);
    EXPECT_EQ(HitTest(2, 10), -1);
    m_Host.Mouse().Press(m_Tabs, 20, 10);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Tabs, AModelThatDiesIsForgotten)
{
    {
        CLinesModel brief({"x", "y"});
        m_Tabs.SetModel(&brief);
        m_Tabs.SetCurrentTab(1);
        m_Host.Paint();
    }
    EXPECT_EQ(m_Tabs.GetModel(), nullptr);
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Tabs.SetModel(&m_Model);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 1);
    EXPECT_EQ(m_Tabs.AsString(), "ab\t[abc]\ta\tabcd");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Tabs, AFormerModelMayDieWithoutTheStripCaring)
{
    {
        CLinesModel brief({"x", "y"});
        m_Tabs.SetModel(&brief);
        m_Tabs.SetModel(&m_Model);
        m_Tabs.SetModel(&m_Model);
        m_Host.Paint();
    }
    EXPECT_EQ(m_Tabs.GetModel(), &m_Model);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(Tabs, OfAMillionTabsOnlyThoseInViewAreAskedFor)
{
    CManyTabs many;
    m_Tabs.SetModel(&many);
    Repaint();
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), 7);  // 8 of 23
    EXPECT_EQ(HitTest(175, 10), 7);
    EXPECT_EQ(HitTest(-1, 10), -1);
    m_Tabs.SetCurrentTab(999'999);
    EXPECT_EQ(m_Tabs.GetFirstVisibleTab(), 999'992);
    Repaint();
    EXPECT_EQ(HitTest(15, 10), 999'992);
    EXPECT_LT(many.m_Asked, 200);
    m_Tabs.SetModel(nullptr);
}

// Alone -----------------------------------------------------------------------------------------------------------------------

TEST(TabsAlone, WithoutAWindowNothingIsMeasuredAndTheCurrentTabStillChanges)
{
    CLinesModel model({"a", "b", "c"});
    CTabs tabs(nullptr, {50, 20}, alTop);
    tabs.SetModel(&model);
    tabs.SetPos({0, 0, 100, 20}, true);
    EXPECT_EQ(tabs.HitTest({10, 5}), -1);
    EXPECT_EQ(tabs.GetLastVisibleTab(), -1);
    tabs.SetLastVisibleTab(2);
    EXPECT_EQ(tabs.GetFirstVisibleTab(), 0);
    CSignalLog log(tabs.m_TabChanging, "changing");
    log.Add(tabs.m_TabChanged, "changed");
    tabs.SetCurrentTab(2);
    EXPECT_EQ(log.Text(), "changing(CTabs, 0, 2, true) changed(CTabs, 2)");
    EXPECT_EQ(tabs.GetCurrentTab(), 2);
    EXPECT_TRUE(tabs.HandleButtonDown(10, 5, 0, mbLeft));
    EXPECT_EQ(tabs.GetCurrentTab(), 2);
    EXPECT_EQ(tabs.AsString(), "a\tb\t[c]");
    tabs.SetFirstVisibleTab(1);
    EXPECT_EQ(tabs.GetFirstVisibleTab(), 1);
    tabs.SetCurrentTab(0);
    EXPECT_EQ(tabs.GetFirstVisibleTab(), 0);
}

TEST_F(Tabs, AWindowThatIsDestroyedLeavesTheStripUsable)
{
    m_Host.DestroyWindow();
    m_Tabs.SetCurrentTab(2);
    EXPECT_EQ(m_Tabs.GetCurrentTab(), 2);
    EXPECT_EQ(HitTest(20, 10), -1);
    EXPECT_EQ(m_Tabs.GetLastVisibleTab(), -1);
}

TEST_F(Tabs, HugeAndReversedBoundsAreSurvived)
{
    int const far = std::numeric_limits<int>::max();
    for (rectangle<int> const& bounds :
         {rectangle<int>{0, 0, far, far}, rectangle<int>{0, 0, 20, far}, rectangle<int>{50, 50, 10, 10},
          rectangle<int>{-far, -far, far, far}, rectangle<int>{0, 0, 0, 0}})
    {
        m_Tabs.SetPos(bounds, true);
        m_Tabs.Update(utElement);
        m_Host.Paint();
        m_Tabs.GetLastVisibleTab();
        m_Tabs.SetLastVisibleTab(3);
        HitTest(5, 5);
        HitTest(far, far);
        m_Tabs.SetFirstVisibleTab(1);
        HitTest(5, 5);
        m_Tabs.SetFirstVisibleTab(0);
    }
    Place(200, 20);
    EXPECT_EQ(HitTest(20, 10), 0);
}
