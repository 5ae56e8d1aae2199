// What a page of categories does when its categories, items and editors change it in the middle of an opening or closing,
// or throw, and when it comes and goes while one is open.

#include "tests/widgets/viewer_page.h"
#include "vexel/views/continuous_item_view_model.h"

#include <stdexcept>

using namespace vexel;
using namespace vexel::test;

using Rect = rectangle<int>;

namespace
{

class ConfigurationTurns : public CViewerPage
{
protected:
    ConfigurationTurns() { SetUpModel(); }
    // Once, so that a slot that fires in its own work ends.
    void SetCurrentOnce(int row)
    {
        if (std::exchange(m_Done, true))
            return;
        m_Viewer.GetRowSelectionModel()->SetCurrent(row);
    }
    auto Turn(signal_t<CTreeCategory*>& signal, int row)
    {
        return Listen(signal, [this, row](CTreeCategory*) { SetCurrentOnce(row); });
    }
    void ExpectSub()
    {
        EXPECT_EQ(Current(), 1);
        EXPECT_EQ(Heights(), "24 49 32");
        EXPECT_EQ(Shown(), "below");
        EXPECT_EQ(m_Below.GetPos(), (Rect{185, 46, 235, 66}));
        EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
        ExpectWorks();
    }
    void ExpectGeneral()
    {
        EXPECT_EQ(Current(), 0);
        EXPECT_EQ(Heights(), "74 24 32");
        EXPECT_EQ(Shown(), "name kind");
        EXPECT_EQ(m_Name.GetPos(), (Rect{185, 22, 245, 42}));
        EXPECT_EQ(m_Kind.GetPos(), (Rect{185, 47, 275, 67}));
        ExpectWorks();
    }
    // Editors scroll again, and nothing is left open or locked.
    void ExpectWorks()
    {
        EXPECT_FALSE(m_Host.Window().GetPainter()->m_Painting);
        EXPECT_FALSE(m_Host.Window().IsDrawingLocked());
        if (m_Viewer.GetChildren()->GetCount() == 0)
            m_Name.ReParent(&m_Viewer, true);
        CVisualElement const& child = *m_Viewer.GetChildren()->GetItem(0);
        int const before = child.GetPos().top;
        m_Viewer.ScrollElements(0, 3);
        EXPECT_EQ(child.GetPos().top, before + 3);
        m_Viewer.ScrollElements(0, -3);
    }

    bool m_Done = false;
};

// Another row in the middle -------------------------------------------------------------------------------------------------

TEST_F(ConfigurationTurns, ACategoryThatOpensAnotherOneWhenItOpensStaysClosedItself)
{
    auto const slot = Turn(m_General.m_Activated, 1);
    Open(0);
    ExpectSub();
    EXPECT_EQ(m_Name.GetParent(), nullptr);
}

TEST_F(ConfigurationTurns, ACategoryThatClosesAllWhenItOpensLeavesNoneOpen)
{
    auto const slot = Turn(m_General.m_Activated, -1);
    Open(0);
    EXPECT_EQ(Heights(), "24 24 32");
    EXPECT_EQ(Shown(), "");
    ExpectWorks();
}

TEST_F(ConfigurationTurns, ACategoryThatOpensAnotherOneWhenItClosesHasItsWay)
{
    Open(0);
    auto const slot = Turn(m_General.m_Deactivated, 1);
    auto const opened = Listen(m_Other.m_Activated, [&](CTreeCategory*) { ADD_FAILURE() << "opened by the way"; });
    Open(2);
    ExpectSub();
}

TEST_F(ConfigurationTurns, ACategoryThatDoesNotLetItselfBeClosedStaysOpen)
{
    Open(0);
    auto const slot = Turn(m_General.m_Deactivated, 0);
    Open(2);
    ExpectGeneral();
}

TEST_F(ConfigurationTurns, AnEditorThatOpensAnotherCategoryWhenItIsHiddenHasItsWay)
{
    Open(0);
    auto const slot = Listen(m_Name.m_SigVisible, [&](CVisualElement*, bool) { SetCurrentOnce(1); });
    Open(2);
    ExpectSub();
}

TEST_F(ConfigurationTurns, AnEditorThatOpensAnotherCategoryWhenItGetsItsPlaceHasItsWay)
{
    auto const slot = Listen(m_Kind.m_SigSize, [&](CVisualElement*) { SetCurrentOnce(1); });
    auto const shown = Listen(m_Kind.m_SigVisible, [&](CVisualElement*, bool) { SetCurrentOnce(1); });
    m_Kind.SetVisible(false);
    m_Done = false;
    m_Viewer.GetRowSelectionModel()->SetCurrent(-1);
    Open(0);
    ExpectSub();
}

TEST_F(ConfigurationTurns, ARowThatGetsItsHeightCanOpenAnotherOne)
{
    CVisualElement extra(nullptr, {10, 10}, alNone);
    extra.SetDynamic(false);
    extra.SetPos({5, 200, 15, 210}, true);
    extra.ReParent(&m_Viewer, true);
    auto const slot = Listen(Rows().m_SigSizeChanged, [&](int, int, bool*) { SetCurrentOnce(1); });
    Open(0);
    ExpectSub();
    EXPECT_EQ(m_Name.GetParent(), nullptr);
    EXPECT_EQ(extra.GetPos(), (Rect{5, 200, 15, 210}));
    extra.ReParent(nullptr, true);
}

TEST_F(ConfigurationTurns, ARowThatLosesItsHeightCanOpenAnotherOne)
{
    Open(0);
    auto const slot = Listen(Rows().m_SigSizeChanged, [&](int, int, bool*) { SetCurrentOnce(1); });
    Open(2);
    ExpectSub();
}

TEST_F(ConfigurationTurns, TheEditorsOfTheCategoryThatStaysOpenKeepShowing)
{
    Open(0);
    auto const slot = Turn(m_Other.m_Activated, 0);
    int hidden = 0;
    auto const ear = Listen(m_Name.m_SigVisible, [&](CVisualElement*, bool visible) { hidden += !visible; });
    Open(2);
    ExpectGeneral();
    EXPECT_EQ(hidden, 1);  // when its category closed
}

TEST_F(ConfigurationTurns, TheEditorsOfTheOtherCategoryAreNotHiddenByTheWay)
{
    Open(0);
    auto const slot = Turn(m_General.m_Deactivated, 1);
    m_Below.ReParent(&m_Viewer, true);
    m_Below.SetVisible(false);
    std::string told;
    auto const ear =
        Listen(m_Below.m_SigVisible, [&](CVisualElement*, bool visible) { told += visible ? "shown " : "hidden "; });
    Open(2);
    EXPECT_EQ(told, "shown ");
    ExpectSub();
}

TEST_F(ConfigurationTurns, WhatWasOvertakenIsMeasuredAtTheEnd)
{
    m_Viewer.SetVisualisation(&m_Told);
    auto const slot = Turn(m_General.m_Activated, 1);
    m_Told.m_Log.Take();
    m_Viewer.GetRowSelectionModel()->SetCurrent(0);
    EXPECT_EQ(m_Told.m_Log.Take(), "collapsed General 370; expanded Sub 370; arrange Sub in viewer (0, 30, 370, 119); "
                                   "collapsed General 370; expanded Sub 370; arrange Sub in viewer (0, 30, 370, 119)");
    EXPECT_EQ(Heights(), "30 90 32");
}

TEST_F(ConfigurationTurns, ARowThatIsOpenAgainIsNotMeasuredClosed)
{
    m_Viewer.SetVisualisation(&m_Told);
    Open(0);
    auto const slot = Turn(m_General.m_Deactivated, 0);
    m_Told.m_Log.Take();
    m_Viewer.GetRowSelectionModel()->SetCurrent(2);
    EXPECT_EQ(m_Told.m_Log.Take(),
              "collapsed Other 370; expanded General 370; arrange General in viewer (0, 0, 370, 89); "
              "collapsed Other 370; expanded General 370; arrange General in viewer (0, 0, 370, 89)");
    EXPECT_EQ(Heights(), "90 24 30");
}

TEST_F(ConfigurationTurns, ARowThatIsOpenAgainStaysSelected)
{
    Open(0);
    m_Viewer.GetRowSelectionModel()->SelectItem(0, true);
    auto const slot = Listen(Rows().m_SigSizeChanged, [&](int, int, bool*) { SetCurrentOnce(0); });
    Open(2);
    ExpectGeneral();
    EXPECT_TRUE(m_Viewer.GetRowSelectionModel()->IsItemSelected(0));
}

// Exceptions ------------------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationTurns, ACategoryThatThrowsWhenItOpensLeavesTheViewerWorking)
{
    {
        auto const slot = Listen(m_General.m_Activated, [](CTreeCategory*) { throw std::runtime_error("not today"); });
        EXPECT_THROW(m_Viewer.GetRowSelectionModel()->SetCurrent(0), std::runtime_error);
        EXPECT_EQ(Heights(), "24 24 32");
        ExpectWorks();
    }
    Open(1);
    ExpectSub();
}

TEST_F(ConfigurationTurns, ACategoryThatThrowsWhenItClosesLeavesTheViewerWorking)
{
    Open(0);
    {
        auto const slot =
            Listen(m_General.m_Deactivated, [](CTreeCategory*) { throw std::runtime_error("not today"); });
        EXPECT_THROW(m_Viewer.GetRowSelectionModel()->SetCurrent(2), std::runtime_error);
        ExpectWorks();
    }
    m_Viewer.CategoryChanged(0, 2);
    EXPECT_EQ(Heights(), "24 24 32");
    EXPECT_EQ(Shown(), "");
}

TEST_F(ConfigurationTurns, AnEditorThatThrowsWhenItIsArrangedLeavesTheViewerWorking)
{
    {
        m_Kind.SetVisible(false);
        auto const slot =
            Listen(m_Kind.m_SigVisible, [](CVisualElement*, bool) { throw std::runtime_error("not today"); });
        EXPECT_THROW(m_Viewer.GetRowSelectionModel()->SetCurrent(0), std::runtime_error);
        ExpectWorks();
    }
    m_Viewer.RefreshActiveCategory();
    m_Host.Paint();
    ExpectGeneral();
}

TEST_F(ConfigurationTurns, AnEditorThatThrowsWhenItScrollsLeavesTheScreenOpen)
{
    Open(0);
    {
        auto const slot = Listen(m_Name.m_SigSize, [](CVisualElement*) { throw std::runtime_error("not today"); });
        EXPECT_THROW(m_Viewer.ScrollElements(0, 5), std::runtime_error);
    }
    ExpectWorks();
}

// Whose caption throws as long as it is told to.
class CMoodyCategory : public CTreeCategory
{
public:
    using CTreeCategory::CTreeCategory;
    bool m_Throws = true;
    std::string GetCaption() const override
    {
        if (m_Throws)
            throw std::runtime_error("no caption");
        return CTreeCategory::GetCaption();
    }
};

TEST_F(ConfigurationTurns, AModelThatThrowsWhenItIsMeasuredIsNotTaken)
{
    CTreeModel model;
    model.AddCategory("First", "of it");
    auto made = std::make_unique<CMoodyCategory>("Moody", "by day");
    CMoodyCategory& moody = *made;
    model.m_Categories.push_back(std::move(made));
    EXPECT_THROW(m_Viewer.SetModel(&model), std::runtime_error);
    EXPECT_EQ(m_Viewer.GetModel(), &m_Model);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(2), &m_Other);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(3), nullptr);
    ExpectWorks();
    moody.m_Throws = false;
    m_Viewer.SetModel(&model);
    EXPECT_EQ(Rows().GetCount(), 5);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(4), &moody);
    m_Viewer.SetModel(nullptr);
}

TEST_F(ConfigurationTurns, APathIsAsBeforeWhereACategoryBelowItThrows)
{
    CMoodyCategory moody("Moody", "by day");
    std::vector<int> path{2};
    EXPECT_THROW(m_Viewer.AddCategory(&moody, path, m_Host.Window().GetPainter()), std::runtime_error);
    EXPECT_EQ(path, std::vector<int>{2});
}

TEST_F(ConfigurationTurns, RowsThatCouldNotBeMeasuredWithTheirWindowAreMeasuredWithTheNextOne)
{
    m_Model.m_Categories.clear();
    auto made = std::make_unique<CMoodyCategory>("Moody", "by\nday");
    CMoodyCategory& moody = *made;
    m_Model.m_Categories.push_back(std::move(made));
    CConfigurationViewer viewer(nullptr, {100, 100}, alNone);
    viewer.SetDynamic(false);
    viewer.SetModel(&m_Model);
    EXPECT_THROW(viewer.ReParent(m_Host.Root(), true), std::runtime_error);
    viewer.ReParent(nullptr, true);
    moody.m_Throws = false;
    viewer.ReParent(m_Host.Root(), true);
    EXPECT_EQ(viewer.GetRowViewModel()->GetItemSize(0), 32);
    viewer.ReParent(nullptr, true);
}

// Coming and going --------------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationTurns, TheOpenCategoryGoesAlongToAnotherControl)
{
    CTestHost other(400, 300);
    Open(0);
    m_Viewer.ReParent(other.Root(), true);
    other.Paint();
    EXPECT_EQ(Heights(), "74 24 32");
    EXPECT_EQ(Shown(), "name kind");
    EXPECT_EQ(m_Name.GetPos(), (Rect{185, 22, 245, 42}));
    EXPECT_EQ(other.CompareWithFullPaint(), "");
    m_Viewer.GetRowSelectionModel()->SetCurrent(1);
    other.Paint();
    EXPECT_EQ(Shown(), "below");
    EXPECT_EQ(other.CompareWithFullPaint(), "");
    m_Viewer.ReParent(m_Host.Root(), true);
    m_Host.Paint();
    ExpectSub();
}

TEST_F(ConfigurationTurns, WhatHasBeenMeasuredIsNotOpenedAnewInAnotherControl)
{
    m_Viewer.ReParent(nullptr, true);
    m_Viewer.GetRowSelectionModel()->SetCurrent(0);
    int opened = 0;
    auto const slot = Listen(m_General.m_Activated, [&](CTreeCategory*) { ++opened; });
    m_Viewer.ReParent(m_Host.Root(), true);
    EXPECT_EQ(opened, 1);
    m_Viewer.ReParent(nullptr, true);
    m_Viewer.ReParent(m_Host.Root(), true);
    EXPECT_EQ(opened, 1);
}

TEST_F(ConfigurationTurns, AnotherRowThatBecameCurrentWithoutAWindowOpensWithTheNextOne)
{
    Open(0);
    int closed = 0;
    auto const slot = Listen(m_General.m_Deactivated, [&](CTreeCategory*) { ++closed; });
    m_Viewer.ReParent(nullptr, true);
    m_Viewer.GetRowSelectionModel()->SetCurrent(2);
    m_Viewer.GetRowSelectionModel()->SetCurrent(1);
    EXPECT_EQ(closed, 0);
    m_Viewer.ReParent(m_Host.Root(), true);
    m_Host.Paint();
    EXPECT_EQ(closed, 1);
    ExpectSub();
}

TEST_F(ConfigurationTurns, OneThatWasLeftWithoutAWindowClosesWithTheNextOne)
{
    Open(0);
    m_Viewer.ReParent(nullptr, true);
    m_Viewer.GetRowSelectionModel()->SetCurrent(-1);
    m_Viewer.ReParent(m_Host.Root(), true);
    m_Host.Paint();
    EXPECT_EQ(Heights(), "24 24 32");
    EXPECT_EQ(Shown(), "");
}

TEST_F(ConfigurationTurns, AHiddenViewerOpensAndClosesAllTheSame)
{
    Open(0);
    m_Viewer.SetVisible(false);
    Open(1);
    m_Viewer.SetVisible(true);
    m_Host.Paint();
    ExpectSub();
}

TEST_F(ConfigurationTurns, AWindowThatGoesWhenACategoryOpensEndsTheOpening)
{
    auto const slot = Listen(m_General.m_Activated, [&](CTreeCategory*) { m_Host.DestroyWindow(); });
    m_Viewer.GetRowSelectionModel()->SetCurrent(0);
    EXPECT_EQ(Heights(), "24 24 32");
    EXPECT_EQ(Shown(), "");
}

TEST_F(ConfigurationTurns, AWindowThatGoesWhileEditorsScrollNeedsNoLockLifted)
{
    Open(0);
    auto const slot = Listen(m_Name.m_SigSize, [&](CVisualElement*) { m_Host.DestroyWindow(); });
    m_Viewer.ScrollElements(0, 5);
    EXPECT_EQ(m_Kind.GetPos().top, 52);
}

TEST_F(ConfigurationTurns, AControlThatGoesWhenACategoryOpensLeavesItsWindowUsable)
{
    auto const slot = Listen(m_General.m_Activated, [&](CTreeCategory*) { m_Host.DestroyControl(); });
    m_Viewer.GetRowSelectionModel()->SetCurrent(0);
    EXPECT_FALSE(m_Host.Window().GetPainter()->m_Painting);
}

}  // namespace
