// The stack of pages of which one shows.

#include "vexel/widgets/notebook.h"

#include "tests/support/leaf.h"
#include "tests/support/lines_model.h"
#include "tests/support/slot.h"
#include "tests/support/virtual_order.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/tabs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

std::string Text(rectangle<int> const& rect)
{
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) + " " +
           std::to_string(rect.bottom);
}

/// Writes down what its notebook does with it.
class CPage : public CLeaf
{
public:
    CPage(CSignalLog& log, CNotebook& notebook, std::string const& name, int look)
        : CLeaf(nullptr, {10, 10}, alNone, look), m_Log(log), m_Notebook(notebook), m_Name(name)
    {
        NameElement(*this, name);
        m_Seen = Listen(m_SigVisible, [this](CVisualElement*, bool visible) { Note(visible ? "shown" : "hidden"); });
    }
    void SetAlignment(Alignment alignment) override
    {
        CLeaf::SetAlignment(alignment);
        Note("aligned " + std::to_string(alignment));
    }
    void SetPos(rectangle<int> const& rect, bool force) override
    {
        CLeaf::SetPos(rect, force);
        if (force)
            Note("placed " + Text(rect));
    }

private:
    void Note(std::string const& what)
    {
        m_Log.Note(m_Name + " " + what + " at " + std::to_string(m_Notebook.GetPageIndex()) + ";");
    }

    CSignalLog& m_Log;
    CNotebook& m_Notebook;
    std::string const m_Name;
    std::unique_ptr<CSlot<CVisualElement*, bool>> m_Seen;
};

// It fills a window of 200 x 100.
class Notebook : public testing::Test
{
protected:
    Notebook()
    {
        NameElement(m_Notebook, "notebook");
        m_Host.Paint();
    }
    CPage* NewPage(std::string const& name) { return new CPage(m_Log, m_Notebook, name, m_Look++); }
    void Add(int count)
    {
        for (int i = 0; i < count; ++i)
        {
            m_Pages.push_back(NewPage(std::string(1, static_cast<char>('a' + i))));
            m_Pages.back()->ReParent(&m_Notebook, true);
        }
        m_Host.Paint();
        m_Log.Clear();
    }
    // The letters of the pages, those that are visible in capitals.
    std::string Pages() const
    {
        std::string text;
        for (int i = 0; i < m_Notebook.GetChildren()->GetCount(); ++i)
        {
            CVisualElement const* const page = m_Notebook.GetPage(i);
            char const letter = ElementName(page)[0];
            text += page->IsVisible() ? static_cast<char>(letter - 'a' + 'A') : letter;
        }
        return text + " " + std::to_string(m_Notebook.GetPageIndex());
    }

    CSignalLog m_Log;
    CTestHost m_Host{200, 100};
    CNotebook& m_Notebook = *new CNotebook(m_Host.Root(), {0, 0}, alClient);
    std::vector<CPage*> m_Pages;
    int m_Look = 0;
};

}  // namespace

// Beginnings ------------------------------------------------------------------------------------------------------------------

TEST(NotebookDefaults, NoPageIsShown)
{
    CNotebook const notebook(nullptr, {50, 20}, alTop);
    EXPECT_EQ(notebook.GetPageIndex(), -1);
    EXPECT_EQ(notebook.GetPage(0), nullptr);
    EXPECT_EQ(notebook.GetSize(), (size<int>{50, 20}));
    EXPECT_EQ(notebook.GetAlignment(), alTop);
}

TEST(NotebookVirtualOrder, ItAddsNothingToThatOfAnElement)
{
    EXPECT_EQ(Place(&CNotebook::SetPos), Place(&CVisualElement::SetPos));
    EXPECT_EQ(Place(&CNotebook::DrawContent), Place(&CVisualElement::DrawContent));
    EXPECT_EQ(Place(&CNotebook::AddNewChild), Place(&CVisualElement::AddNewChild));
    EXPECT_EQ(Place(&CNotebook::ProcessRearrange), Place(&CVisualElement::ProcessRearrange));
}

TEST_F(Notebook, AnEmptyOneShowsNothingAndItsFirstPageIsIgnored)
{
    m_Notebook.SetPageIndex(0);
    m_Notebook.SetPageIndex(-1);
    EXPECT_EQ(m_Notebook.GetPageIndex(), -1);
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_EQ(m_Notebook.GetPage(0), nullptr);
    EXPECT_EQ(m_Notebook.GetPage(-1), nullptr);
    EXPECT_EQ(m_Notebook.RemovePage(0), nullptr);
    CLeaf page(nullptr, {0, 0}, alNone, 1);
    EXPECT_EQ(m_Notebook.ReplacePage(0, &page), nullptr);
    EXPECT_EQ(page.GetParent(), nullptr);
    EXPECT_TRUE(page.IsVisible());
    EXPECT_EQ(m_Notebook.ReplacePage(-1, nullptr), nullptr);
}

TEST_F(Notebook, ItDrawsNothingItself)
{
    m_Notebook.Update(utElement);
    PaintLog const log = m_Host.Paint().Of("notebook");
    for (char const* const call : {"FillRect*", "LineTo*", "Rectangle*", "DrawString*", "Polygon*"})
        EXPECT_EQ(log.Count(call), 0) << call;
    m_Notebook.DrawContent(nullptr);
}

// Pages come ------------------------------------------------------------------------------------------------------------------

TEST_F(Notebook, TheFirstPageIsPlacedHiddenAlignedAndThenShown)
{
    NewPage("a")->ReParent(&m_Notebook, true);
    EXPECT_EQ(m_Log.Text(), "a placed 0 0 199 99 at -1; a hidden at -1; a aligned 5 at -1; "
                            "a shown at -1; a aligned 5 at -1; a placed 0 0 199 99 at 0;");
    EXPECT_EQ(Pages(), "A 0");
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, LaterPagesComeHiddenAndAsLargeAsTheNotebook)
{
    Add(1);
    CPage* const b = NewPage("b");
    b->ReParent(&m_Notebook, true);
    EXPECT_EQ(m_Log.Text(), "b placed 0 0 199 99 at 0; b hidden at 0; b aligned 5 at 0;");
    EXPECT_EQ(b->GetPos(), (rectangle<int>{0, 0, 199, 99}));
    EXPECT_EQ(b->GetAlignment(), alClient);
    EXPECT_EQ(Pages(), "Ab 0");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, APageThatIsMadeInItTakesItsPlaceAlsoBeforeItIsComplete)
{
    auto* const a = new CLeaf(&m_Notebook, {10, 10}, alTop, 1);
    auto* const b = new CLeaf(&m_Notebook, {10, 10}, alTop, 2);
    EXPECT_TRUE(a->IsVisible());
    EXPECT_FALSE(b->IsVisible());
    EXPECT_EQ(a->GetAlignment(), alClient);
    EXPECT_EQ(b->GetAlignment(), alClient);
    m_Host.Paint();
    EXPECT_EQ(a->GetPos(), (rectangle<int>{0, 0, 199, 99}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Showing ---------------------------------------------------------------------------------------------------------------------

TEST_F(Notebook, AnotherPageIsShownWhenTheOldOneIsHidden)
{
    Add(3);
    m_Notebook.SetPageIndex(2);
    EXPECT_EQ(m_Log.Text(), "a hidden at 0; c shown at 0; c aligned 5 at 0; c placed 0 0 199 99 at 2;");
    EXPECT_EQ(Pages(), "abC 2");
    EXPECT_TRUE(m_Host.IsFramePending());
    PaintLog const log = m_Host.Paint();
    EXPECT_EQ(log.Elements(), "notebook c");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Notebook.SetPageIndex(0);
    EXPECT_EQ(Pages(), "Abc 0");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, ThePresentPageAndOnesThatDoNotExistChangeNothing)
{
    Add(2);
    for (int const index : {0, -1, 2, 3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        m_Notebook.SetPageIndex(index);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Pages(), "Ab 0");
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(Notebook, PagesAreFoundByIndexAndIndicesByPage)
{
    Add(3);
    EXPECT_EQ(m_Notebook.GetPage(0), m_Pages[0]);
    EXPECT_EQ(m_Notebook.GetPage(2), m_Pages[2]);
    EXPECT_EQ(m_Notebook.GetPage(3), nullptr);
    EXPECT_EQ(m_Notebook.GetPage(-1), nullptr);
    EXPECT_EQ(m_Notebook.GetPageIndex(m_Pages[0]), 0);
    EXPECT_EQ(m_Notebook.GetPageIndex(m_Pages[2]), 2);
    EXPECT_EQ(m_Notebook.GetPageIndex(&m_Notebook), -1);
    EXPECT_EQ(m_Notebook.GetPageIndex(nullptr), -1);
}

TEST_F(Notebook, ThePageTakesEveryNewSizeOfTheNotebook)
{
    Add(2);
    m_Host.Resize(150, 80);
    m_Host.Paint();
    EXPECT_EQ(m_Pages[0]->GetPos(), (rectangle<int>{0, 0, 149, 79}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Notebook.SetPageIndex(1);
    EXPECT_EQ(m_Pages[1]->GetPos(), (rectangle<int>{0, 0, 149, 79}));
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, AFreeNotebookPlacesItsPageToo)
{
    auto& free = *new CNotebook(m_Host.Root(), {0, 0}, alNone);
    auto* const a = new CLeaf(nullptr, {10, 10}, alNone, 1);
    auto* const b = new CLeaf(nullptr, {10, 10}, alNone, 2);
    a->ReParent(&free, true);
    b->ReParent(&free, true);
    free.SetPos({5, 5, 45, 25}, true);
    EXPECT_EQ(a->GetPos(), (rectangle<int>{0, 0, 40, 20}));
    free.SetPos({5, 5, 65, 35}, false);
    EXPECT_EQ(a->GetPos(), (rectangle<int>{0, 0, 60, 30}));
    free.SetPageIndex(1);
    EXPECT_EQ(b->GetPos(), (rectangle<int>{0, 0, 60, 30}));
    free.SetPos({0, 0, 0, 0}, true);
    free.SetPos({0, 0, std::numeric_limits<int>::max(), std::numeric_limits<int>::max()}, true);
    free.SetPos({0, 0, 10, 10}, true);
    EXPECT_EQ(b->GetPos(), (rectangle<int>{0, 0, 10, 10}));
}

// Pages go --------------------------------------------------------------------------------------------------------------------

TEST_F(Notebook, RemovingTheOnlyPageLeavesNone)
{
    Add(1);
    EXPECT_EQ(m_Notebook.RemovePage(0), m_Pages[0]);
    EXPECT_EQ(m_Notebook.GetPageIndex(), -1);
    EXPECT_EQ(m_Pages[0]->GetParent(), nullptr);
    EXPECT_EQ(m_Notebook.GetChildren()->GetCount(), 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Pages[0]->ReParent(&m_Notebook, true);
    EXPECT_EQ(Pages(), "A 0");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, InThePlaceOfThePageShownTheNextOneShows)
{
    Add(3);
    m_Notebook.SetPageIndex(1);
    m_Host.Paint();
    m_Log.Clear();
    std::unique_ptr<CVisualElement> const removed(m_Notebook.RemovePage(1));
    EXPECT_EQ(removed.get(), m_Pages[1]);
    EXPECT_EQ(Pages(), "aC 1");
    EXPECT_EQ(m_Log.Text(), "c shown at -1; c aligned 5 at -1; c placed 0 0 199 99 at 1;");
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, InThePlaceOfTheLastPageTheNewLastOneShows)
{
    Add(3);
    m_Notebook.SetPageIndex(2);
    m_Host.Paint();
    std::unique_ptr<CVisualElement> const removed(m_Notebook.RemovePage(2));
    EXPECT_EQ(Pages(), "aB 1");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, APageOutsideOfTheRangeIsNotRemoved)
{
    Add(2);
    EXPECT_EQ(m_Notebook.RemovePage(2), nullptr);
    EXPECT_EQ(m_Notebook.RemovePage(-1), nullptr);
    EXPECT_EQ(m_Notebook.RemovePage(std::numeric_limits<int>::max()), nullptr);
    EXPECT_EQ(Pages(), "Ab 0");
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(Notebook, RemovingAPageThatIsNotShownKeepsTheIndexAsANumber)
{
    Add(4);
    m_Notebook.SetPageIndex(2);
    m_Host.Paint();
    std::unique_ptr<CVisualElement> const last(m_Notebook.RemovePage(3));
    EXPECT_EQ(Pages(), "abC 2");
    std::unique_ptr<CVisualElement> const first(m_Notebook.RemovePage(0));
    EXPECT_EQ(Pages(), "bC 2");
    EXPECT_FALSE(first->IsVisible());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Notebook.SetPageIndex(0);  // the page that showed does not stay beside the new one
    EXPECT_EQ(Pages(), "Bc 0");
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, AShownPageThatHasMovedDownIsReplacedByAnotherWhenItGoes)
{
    Add(3);
    m_Notebook.SetPageIndex(1);
    std::unique_ptr<CVisualElement> const first(m_Notebook.RemovePage(0));
    EXPECT_EQ(Pages(), "Bc 1");
    std::unique_ptr<CVisualElement> const shown(m_Notebook.RemovePage(0));
    EXPECT_EQ(Pages(), "C 0");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, APageThatMovedToTheKeptNumberIsNotTheOneShown)
{
    Add(3);
    m_Notebook.SetPageIndex(1);
    std::unique_ptr<CVisualElement> const first(m_Notebook.RemovePage(0));
    std::unique_ptr<CVisualElement> const hidden(m_Notebook.RemovePage(1));
    EXPECT_EQ(hidden.get(), m_Pages[2]);
    EXPECT_EQ(Pages(), "B 1");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, ARemovedPageIsNotDeletedAndKeepsItsVisibility)
{
    Add(2);
    CVisualElement* const hidden = m_Notebook.RemovePage(1);
    EXPECT_FALSE(hidden->IsVisible());
    CVisualElement* const shown = m_Notebook.RemovePage(0);
    EXPECT_TRUE(shown->IsVisible());
    hidden->SetVisible(true);
    hidden->ReParent(m_Host.Root(), true);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    delete shown;
}

TEST_F(Notebook, APageAtTheKeptNumberThatTheApplicationShowedIsHiddenByTheNextOne)
{
    Add(3);
    m_Notebook.SetPageIndex(1);
    std::unique_ptr<CVisualElement> const first(m_Notebook.RemovePage(0));
    m_Pages[2]->SetVisible(true);
    m_Notebook.SetPageIndex(0);
    EXPECT_EQ(Pages(), "Bc 0");
}

TEST_F(Notebook, AShownPageThatIsDeletedLeavesRoomForTheOthers)
{
    Add(3);
    delete m_Pages[0];
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Notebook.SetPageIndex(1);
    EXPECT_EQ(Pages(), "bC 1");
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Notebook.SetPageIndex(0);
    EXPECT_EQ(Pages(), "Bc 0");
    delete m_Pages[1];
    delete m_Pages[2];
    m_Notebook.SetPageIndex(0);
    EXPECT_EQ(m_Notebook.GetPage(0), nullptr);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, WhereTheShownPageWasDeletedTheNumberDecidesWhatShowsNext)
{
    Add(4);
    m_Notebook.SetPageIndex(1);
    delete m_Pages[1];
    EXPECT_EQ(Pages(), "acd 1");
    std::unique_ptr<CVisualElement> const removed(m_Notebook.RemovePage(1));
    EXPECT_EQ(Pages(), "aD 1");
    delete m_Pages[3];
    CPage* const x = NewPage("x");
    x->ReParent(&m_Notebook, true);
    CPage* const y = NewPage("y");
    std::unique_ptr<CVisualElement> const replaced(m_Notebook.ReplacePage(1, y));
    EXPECT_EQ(Pages(), "aY 1");
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, APageThatGoesElsewhereIsForgotten)
{
    Add(2);
    auto* const other = new CVisualElement(m_Host.Root(), {0, 30}, alBottom);
    m_Pages[0]->ReParent(other, true);
    m_Host.Paint();
    m_Notebook.SetPageIndex(0);
    EXPECT_TRUE(m_Pages[0]->IsVisible());
    EXPECT_EQ(Pages(), "B 0");
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Pages are exchanged ---------------------------------------------------------------------------------------------------------

TEST_F(Notebook, TheNewPageShowsInThePlaceOfTheOneThatShowed)
{
    Add(3);
    m_Notebook.SetPageIndex(1);
    m_Host.Paint();
    m_Log.Clear();
    CPage* const x = NewPage("x");
    std::unique_ptr<CVisualElement> const old(m_Notebook.ReplacePage(1, x));
    EXPECT_EQ(old.get(), m_Pages[1]);
    EXPECT_EQ(old->GetParent(), nullptr);
    EXPECT_FALSE(old->IsVisible());
    EXPECT_EQ(m_Notebook.GetPage(1), x);
    EXPECT_EQ(Pages(), "aXc 1");
    EXPECT_EQ(x->GetPos(), (rectangle<int>{0, 0, 199, 99}));
    EXPECT_EQ(x->GetAlignment(), alClient);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, ThePageInPlaceOfAHiddenOneIsHidden)
{
    Add(3);
    CPage* const x = NewPage("x");
    std::unique_ptr<CVisualElement> const old(m_Notebook.ReplacePage(1, x));
    EXPECT_EQ(old.get(), m_Pages[1]);
    EXPECT_EQ(Pages(), "Axc 0");
    CPage* const y = NewPage("y");
    std::unique_ptr<CVisualElement> const last(m_Notebook.ReplacePage(2, y));
    EXPECT_EQ(Pages(), "Axy 0");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, WhatShowsIsThePageAndNotTheNumberThatItHasLeft)
{
    Add(4);
    m_Notebook.SetPageIndex(1);
    std::unique_ptr<CVisualElement> const first(m_Notebook.RemovePage(0));
    CPage* const x = NewPage("x");
    std::unique_ptr<CVisualElement> const hidden(m_Notebook.ReplacePage(1, x));
    EXPECT_EQ(Pages(), "Bxd 1");
    CPage* const y = NewPage("y");
    std::unique_ptr<CVisualElement> const shown(m_Notebook.ReplacePage(0, y));
    EXPECT_EQ(Pages(), "Yxd 0");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, TheOnlyPageIsReplaced)
{
    Add(1);
    CPage* const x = NewPage("x");
    std::unique_ptr<CVisualElement> const old(m_Notebook.ReplacePage(0, x));
    EXPECT_EQ(old.get(), m_Pages[0]);
    EXPECT_EQ(Pages(), "X 0");
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, NothingIsReplacedWithoutSuchAPage)
{
    Add(2);
    std::unique_ptr<CPage> const x(NewPage("x"));
    EXPECT_EQ(m_Notebook.ReplacePage(2, x.get()), nullptr);
    EXPECT_EQ(m_Notebook.ReplacePage(-1, x.get()), nullptr);
    EXPECT_EQ(m_Notebook.ReplacePage(0, nullptr), nullptr);
    EXPECT_EQ(m_Notebook.ReplacePage(0, m_Pages[0]), nullptr);
    EXPECT_EQ(m_Notebook.ReplacePage(0, m_Host.Root()), nullptr);
    EXPECT_EQ(m_Notebook.ReplacePage(0, &m_Notebook), nullptr);
    EXPECT_EQ(x->GetParent(), nullptr);
    EXPECT_EQ(Pages(), "Ab 0");
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(Notebook, APageMayTakeThePlaceOfItsSibling)
{
    Add(3);
    std::unique_ptr<CVisualElement> const old(m_Notebook.ReplacePage(0, m_Pages[2]));
    EXPECT_EQ(old.get(), m_Pages[0]);
    EXPECT_EQ(Pages(), "Cb 0");
    std::unique_ptr<CVisualElement> const next(m_Notebook.ReplacePage(1, m_Pages[2]));
    EXPECT_EQ(next.get(), m_Pages[1]);
    EXPECT_EQ(m_Notebook.GetChildren()->GetCount(), 1);
    EXPECT_TRUE(m_Pages[2]->IsVisible());
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, AReplacedPageMayBeAnotherNotebooksPage)
{
    Add(2);
    auto& other = *new CNotebook(m_Host.Root(), {0, 30}, alBottom);
    auto* const x = new CLeaf(&other, {10, 10}, alNone, 8);
    NameElement(*x, "x");
    m_Host.Paint();
    std::unique_ptr<CVisualElement> const old(m_Notebook.ReplacePage(0, x));
    EXPECT_EQ(Pages(), "Xb 0");
    EXPECT_EQ(other.GetPage(0), nullptr);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Layout ----------------------------------------------------------------------------------------------------------------------

TEST_F(Notebook, AHiddenPageAsksForNoLayout)
{
    Add(2);
    CVisualElement* asked = m_Pages[1];
    m_Notebook.ProcessRearrange(&asked);
    EXPECT_EQ(asked, nullptr);
    asked = m_Pages[0];
    m_Notebook.ProcessRearrange(&asked);
    EXPECT_EQ(asked, m_Pages[0]);
    auto* const inner = new CLeaf(m_Pages[0], {5, 5}, alTop, 3);
    inner->SetVisible(false);
    asked = inner;
    m_Notebook.ProcessRearrange(&asked);
    EXPECT_EQ(asked, inner);
    asked = &m_Notebook;
    m_Notebook.ProcessRearrange(&asked);
    EXPECT_EQ(asked, &m_Notebook);
    asked = nullptr;
    m_Notebook.ProcessRearrange(&asked);
    EXPECT_EQ(asked, nullptr);
}

TEST_F(Notebook, ContentOfAHiddenPageThatChangesIsInPlaceWhenThePageShows)
{
    Add(2);
    auto* const inner = new CLeaf(m_Pages[1], {5, 5}, alTop, 3);
    m_Host.Paint();
    inner->SetHeight(40, false);
    m_Host.Paint();
    m_Notebook.SetPageIndex(1);
    m_Host.Paint();
    EXPECT_EQ(inner->GetPos(), (rectangle<int>{0, 0, 199, 40}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Notebook, FollowsAStripOfTabs)
{
    Add(3);
    CLinesModel model({"aa", "bb", "cc"});
    auto* const tabs = new CTabs(m_Host.Root(), {0, 20}, alTop);
    tabs->SetModel(&model);
    auto const joined = Listen(tabs->m_TabChanged, [&](CVisualElement*, int tab) { m_Notebook.SetPageIndex(tab); });
    m_Host.Paint();
    m_Host.Mouse().Click(*tabs, 50, 10);  // tabs of 9 + 22
    EXPECT_EQ(Pages(), "aBc 1");
    m_Host.Mouse().Click(*tabs, 80, 10);
    EXPECT_EQ(Pages(), "abC 2");
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST(NotebookAlone, WorksWithoutAControl)
{
    CNotebook notebook(nullptr, {50, 20}, alTop);
    notebook.SetPos({0, 0, 50, 20}, true);
    auto* const a = new CLeaf(&notebook, {1, 1}, alNone, 1);
    auto* const b = new CLeaf(&notebook, {1, 1}, alNone, 2);
    EXPECT_TRUE(a->IsVisible());
    EXPECT_FALSE(b->IsVisible());
    notebook.SetPageIndex(1);
    EXPECT_FALSE(a->IsVisible());
    EXPECT_TRUE(b->IsVisible());
    EXPECT_EQ(b->GetPos(), (rectangle<int>{0, 0, 50, 20}));
    std::unique_ptr<CVisualElement> const removed(notebook.RemovePage(1));
    EXPECT_EQ(notebook.GetPageIndex(), 0);
    EXPECT_TRUE(a->IsVisible());
}

TEST(NotebookAlone, PagesThatLieInItByValueAreLeftWhenItDies)
{
    CLeaf page(nullptr, {1, 1}, alNone, 1);
    page.SetDynamic(false);
    {
        CNotebook notebook(nullptr, {50, 20}, alTop);
        page.ReParent(&notebook, true);
        EXPECT_EQ(notebook.GetPageIndex(), 0);
    }
    EXPECT_EQ(page.GetParent(), nullptr);
}
