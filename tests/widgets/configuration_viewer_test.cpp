// A page of categories: what becomes a row, which one is open, and what that means to its editors.

#include "tests/widgets/viewer_page.h"
#include "vexel/views/continuous_item_view_model.h"

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Rect = rectangle<int>;

namespace
{

class ConfigurationViewer : public CViewerPage
{
protected:
    CTextLog m_Log;
};

}  // namespace

// What it starts with -------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationViewer, StartsEmptyWithTheDefaultLookAndNothingToSelect)
{
    EXPECT_EQ(m_Viewer.GetCategoryWidth(), 370);
    EXPECT_NE(dynamic_cast<CDefCategoryVis*>(m_Viewer.GetVisualisation()), nullptr);
    EXPECT_FALSE(m_Viewer.GetCanHaveFocus());
    EXPECT_FALSE(m_Viewer.IsAutoRowHeight());
    EXPECT_EQ(m_Viewer.GetSelectionType(), CEventHandlerBase::stOneItem);
    EXPECT_EQ(m_Viewer.GetRowHandler().GetSelectionType(), CEventHandlerBase::stOneItem);
    EXPECT_EQ(m_Viewer.GetRowSelectionModel()->GetSelectedCount(), 0);
    EXPECT_EQ(m_Viewer.GetBkSysColor(), 1);
    EXPECT_EQ(Current(), -1);
    EXPECT_EQ(Rows().GetCount(), 0);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(0), nullptr);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(-1), nullptr);
    EXPECT_EQ(Rows().GetItemType(0), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(Rows().GetItemType(1000000), IDirtyItemSet::dirtyItem);
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(ConfigurationViewer, TheDefaultLookIsSharedByAll)
{
    CConfigurationViewer const other(nullptr, {10, 10}, alClient);
    EXPECT_EQ(other.GetVisualisation(), m_Viewer.GetVisualisation());
    EXPECT_EQ(other.GetCategoryWidth(), 370);
}

TEST_F(ConfigurationViewer, TheWidthOfACategoryScalesWithTheDisplayAndNotWithTheElement)
{
    m_Host.SetScale(1.3);
    CConfigurationViewer const larger(nullptr, {10, 10}, alClient);
    EXPECT_EQ(larger.GetCategoryWidth(), 481);
    EXPECT_EQ(m_Viewer.GetCategoryWidth(), 370);
    m_Host.Resize(200, 200);
    EXPECT_EQ(m_Viewer.GetCategoryWidth(), 370);
}

TEST_F(ConfigurationViewer, FillsItsPlaceWithItsGroundWhileThereAreNoRows)
{
    PaintLog const log = m_Host.Paint().Of("viewer");
    EXPECT_THAT(log, Draws("SetBrush white").Then("FillRect 0 0 399 299"));
}

TEST_F(ConfigurationViewer, TheEmptyAreaIsFilledInTheViewersGround)
{
    SetUpModel();
    m_Viewer.SetBkColor(color_table[5]);
    m_Viewer.UpdateAll();
    EXPECT_THAT(m_Host.Paint().Of("viewer"), Draws("SetBrush " + Describe(color_table[5])).Then("FillRect 0 80*299"));
}

// The rows ------------------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationViewer, EachCategoryIsARowBeforeThoseBelowIt)
{
    SetUpModel();
    EXPECT_EQ(Rows().GetCount(), 3);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(0), &m_General);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(1), &m_Sub);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(2), &m_Other);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(3), nullptr);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(-1), nullptr);
    CConfigurationViewer const& fixed = m_Viewer;
    EXPECT_EQ(fixed.GetCategoryByRow(1), &m_Sub);
    EXPECT_EQ(fixed.GetCategoryByRow(3), nullptr);
    EXPECT_EQ(Heights(), "24 24 32");
    EXPECT_EQ(m_Viewer.GetModel(), &m_Model);
}

TEST_F(ConfigurationViewer, TheTreeIsWalkedDepthFirst)
{
    CTreeModel model;
    CTreeCategory& a = model.AddCategory("a", "");
    CTreeCategory& ab = a.AddCategory("ab", "");
    CTreeCategory& abc = ab.AddCategory("abc", "");
    CTreeCategory& abd = ab.AddCategory("abd", "");
    CTreeCategory& ae = a.AddCategory("ae", "");
    CTreeCategory& f = model.AddCategory("f", "");
    m_Viewer.SetModel(&model);
    CTreeCategory* const expected[] = {&a, &ab, &abc, &abd, &ae, &f};
    ASSERT_EQ(Rows().GetCount(), 6);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(m_Viewer.GetCategoryByRow(i), expected[i]) << i;
}

TEST_F(ConfigurationViewer, CategoriesThatAreNotThereAreLeftOutAndTheOthersKeepTheirIndices)
{
    CTreeModel model;
    model.AddNoCategory();
    CTreeCategory& first = model.AddCategory("first", "");
    first.AddNoCategory();
    CTreeCategory& below = first.AddCategory("below", "");
    model.AddNoCategory();
    CTreeCategory& last = model.AddCategory("last", "");
    m_Viewer.SetModel(&model);
    m_Host.Paint();
    EXPECT_EQ(Rows().GetCount(), 3);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(0), &first);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(1), &below);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(2), &last);
}

TEST_F(ConfigurationViewer, ACategoryThatIsNoLongerThereIsNoCategoryOfItsRow)
{
    SetUpModel();
    m_General.m_Categories.front().reset();
    EXPECT_EQ(m_Viewer.GetCategoryByRow(1), nullptr);
    m_Model.m_Categories.back().reset();
    EXPECT_EQ(m_Viewer.GetCategoryByRow(2), nullptr);
}

TEST_F(ConfigurationViewer, AModelWithoutCategoriesHasNoRows)
{
    CTreeModel const empty;
    m_Viewer.SetModel(const_cast<CTreeModel*>(&empty));
    EXPECT_EQ(Rows().GetCount(), 0);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(0), nullptr);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationViewer, NoModelIsOneWithoutCategories)
{
    m_Viewer.SetModel(nullptr);
    EXPECT_NE(dynamic_cast<CDefConfigModel*>(m_Viewer.GetModel()), nullptr);
    EXPECT_EQ(Rows().GetCount(), 0);
    CConfigurationViewer other(m_Host.Root(), {10, 10}, alNone);
    other.SetDynamic(false);
    other.SetModel(nullptr);
    EXPECT_EQ(other.GetModel(), m_Viewer.GetModel()) << "the same for all";
}

TEST_F(ConfigurationViewer, ASecondModelAddsItsRowsBehindThoseOfTheFirst)
{
    SetUpModel();
    CTreeModel more;
    CTreeCategory& first = more.AddCategory("first", "");
    CTreeCategory& second = more.AddCategory("second", "x\ny\nz");
    m_Viewer.SetModel(&more);
    m_Host.Paint();
    EXPECT_EQ(Rows().GetCount(), 5);
    EXPECT_EQ(Rows().GetItemSize(4), 40);  // 10 + 24 + 6
    EXPECT_EQ(m_Viewer.GetCategoryByRow(3), &first);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(4), &second);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(0), &first) << "the way to the old rows leads through the new model";
    m_Viewer.SetModel(nullptr);
    EXPECT_EQ(Rows().GetCount(), 5);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(0), nullptr);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(4), nullptr);
    m_Host.Paint();
}

TEST_F(ConfigurationViewer, TheSameModelOnceMoreAddsItsRowsOnceMore)
{
    SetUpModel();
    SetUpModel();
    EXPECT_EQ(Heights(), "24 24 32 24 24 32");
    EXPECT_EQ(m_Viewer.GetCategoryByRow(5), &m_Other);
}

TEST_F(ConfigurationViewer, ANewModelIsMeasuredClosedInTheWidthOfACategory)
{
    m_Viewer.SetVisualisation(&m_Told);
    m_Host.Paint();
    m_Told.m_Log.Take();
    m_Viewer.SetModel(&m_Model);
    EXPECT_EQ(m_Told.m_Log.Take(), "collapsed General 370; collapsed Sub 370; collapsed Other 370");
    EXPECT_EQ(Heights(), "30 30 30");
    EXPECT_FALSE(m_Host.Window().GetPainter()->m_Painting) << "the bracket is closed again";
}

TEST_F(ConfigurationViewer, APaintThatIsUnderWayStaysOpen)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssMeasure);
    m_Viewer.SetModel(&m_Model);
    EXPECT_TRUE(painter.m_Painting);
    m_Viewer.GetRowSelectionModel()->SetCurrent(0);
    EXPECT_TRUE(painter.m_Painting);
    painter.EndPaint();
    EXPECT_FALSE(painter.m_Painting);
    EXPECT_EQ(Heights(), "74 24 32");
}

TEST_F(ConfigurationViewer, ANewModelClosesTheOpenCategoryAndPaintsAllRows)
{
    SetUpModel();
    Open(0);
    auto const slot = Listen(m_General.m_Deactivated, [&](CTreeCategory*) { m_Log.Add("closed"); });
    CTreeModel more;
    m_Viewer.SetModel(&more);
    EXPECT_EQ(Current(), -1);
    EXPECT_EQ(Rows().GetItemType(0), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(Rows().GetItemType(1000000), IDirtyItemSet::dirtyItem);
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(m_Log.Take(), "") << "by then the row leads nowhere";
    EXPECT_EQ(Shown(), "");
    m_Host.Paint();
}

TEST_F(ConfigurationViewer, FillingLeavesSelectionAndCountAlone)
{
    SetUpModel();
    Open(2);
    m_Viewer.FillCategories(nullptr);
    EXPECT_EQ(Current(), 2);
    EXPECT_EQ(Rows().GetCount(), 3);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(3), &m_General);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(5), &m_Other);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(6), nullptr);
}

TEST_F(ConfigurationViewer, FillingMeasuresOnlyWithAPainter)
{
    CToldVis& vis = m_Told;
    m_Viewer.SetVisualisation(&vis);
    m_Viewer.SetModel(&m_Model);
    vis.m_Log.Take();
    m_Viewer.FillCategories(nullptr);
    EXPECT_EQ(vis.m_Log.Take(), "");
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssMeasure);
    m_Viewer.FillCategories(&painter);
    painter.EndPaint();
    EXPECT_EQ(vis.m_Log.Take(), "collapsed General 370; collapsed Sub 370; collapsed Other 370");
    EXPECT_EQ(Rows().GetItemSize(6), 30);
}

TEST_F(ConfigurationViewer, AddingBelowAPathAddsTheSetItselfThere)
{
    m_Viewer.SetModel(&m_Model);
    std::vector<int> path{0};
    m_Viewer.AddCategory(&m_General, path, nullptr);
    EXPECT_EQ(path, (std::vector<int>{0}));
    EXPECT_EQ(m_Viewer.GetCategoryByRow(3), &m_General);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(4), &m_Sub);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(5), nullptr);
    path.clear();
    m_Viewer.AddCategory(nullptr, path, nullptr);
    EXPECT_EQ(m_Viewer.GetCategoryByRow(5), nullptr);
}

// No window -----------------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationViewer, AModelThatCameBeforeTheWindowIsMeasuredWithIt)
{
    auto& viewer = *new CConfigurationViewer(nullptr, {100, 100}, alClient);
    viewer.SetModel(&m_Model);
    EXPECT_EQ(viewer.GetRowViewModel()->GetCount(), 3);
    EXPECT_EQ(viewer.GetCategoryByRow(1), &m_Sub);
    delete &m_Viewer;
    viewer.ReParent(m_Host.Root(), true);
    m_Host.Paint();
    EXPECT_EQ(viewer.GetRowViewModel()->GetItemSize(0), 24);
    EXPECT_EQ(viewer.GetRowViewModel()->GetItemSize(1), 24);
    EXPECT_EQ(viewer.GetRowViewModel()->GetItemSize(2), 32);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationViewer, WithoutAWindowNothingOpens)
{
    CConfigurationViewer viewer(nullptr, {100, 100}, alClient);
    viewer.SetModel(&m_Model);
    auto const slot = Listen(m_General.m_Activated, [&](CTreeCategory*) { m_Log.Add("opened"); });
    viewer.GetRowSelectionModel()->SetCurrent(0);
    viewer.RefreshActiveCategory();
    viewer.GetRowSelectionModel()->SetCurrent(1);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(viewer.GetChildren()->GetCount(), 0);
}

// Opening and closing -------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationViewer, TheCurrentRowIsOpenWithItsEditors)
{
    SetUpModel();
    Open(0);
    EXPECT_EQ(Heights(), "74 24 32");  // 24 + 2 x 25
    EXPECT_EQ(Shown(), "name kind");
    EXPECT_EQ(m_Name.GetParent(), &m_Viewer);
    EXPECT_EQ(m_Name.GetPos(), (Rect{185, 22, 245, 42}));
    EXPECT_EQ(m_Kind.GetPos(), (Rect{185, 47, 275, 67}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationViewer, ARowBelowOthersHasItsEditorsThere)
{
    SetUpModel();
    Open(1);
    EXPECT_EQ(Heights(), "24 49 32");
    EXPECT_EQ(Shown(), "below");
    EXPECT_EQ(m_Below.GetPos(), (Rect{185, 46, 235, 66}));  // 24 + 24 - 2
}

TEST_F(ConfigurationViewer, ANewCurrentRowClosesTheOldOneFirst)
{
    m_Viewer.SetVisualisation(&m_Told);
    SetUpModel();
    auto const note = [&](std::string const& what) {
        return [this, what](CTreeCategory* category) {
            m_Told.m_Log.Add(what + " " + category->GetCaption() + (Shown().empty() ? "" : " with " + Shown()));
        };
    };
    auto const a = Listen(m_General.m_Activated, note("open"));
    auto const b = Listen(m_General.m_Deactivated, note("close"));
    auto const c = Listen(m_Other.m_Activated, note("open"));
    auto const d = Listen(m_Other.m_Deactivated, note("close"));
    m_Told.m_Log.Take();
    m_Viewer.GetRowSelectionModel()->SetCurrent(0);
    EXPECT_EQ(m_Told.m_Log.Take(), "open General; expanded General 370; arrange General in viewer (0, 0, 370, 89)");
    m_Name.ReParent(&m_Viewer, true);
    m_Viewer.GetRowSelectionModel()->SetCurrent(2);
    EXPECT_EQ(m_Told.m_Log.Take(), "close General with name; collapsed General 370; open Other; "
                                   "expanded Other 370; arrange Other in viewer (0, 60, 370, 149)");
    EXPECT_EQ(Heights(), "30 30 90");
    m_Viewer.GetRowSelectionModel()->SetCurrent(-1);
    EXPECT_EQ(m_Told.m_Log.Take(), "close Other; collapsed Other 370");
    EXPECT_EQ(Heights(), "30 30 30");
    EXPECT_FALSE(m_Host.Window().GetPainter()->m_Painting);
}

TEST_F(ConfigurationViewer, NoCurrentRowClosesTheOpenCategoryAndOpensNone)
{
    SetUpModel();
    Open(0);
    Open(-1);
    EXPECT_EQ(Heights(), "24 24 32");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(m_Name.GetParent(), &m_Viewer) << "hidden, and still a child";
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationViewer, ClosingHidesEveryChildOfTheViewer)
{
    SetUpModel();
    CVisualElement stranger(&m_Viewer, {10, 10}, alNone);
    stranger.SetDynamic(false);
    NameElement(stranger, "stranger");
    stranger.SetPos({300, 200, 310, 210}, false);
    Open(0);
    EXPECT_EQ(Shown(), "stranger name kind");
    Open(1);
    EXPECT_EQ(Shown(), "below");
}

TEST_F(ConfigurationViewer, ARowThatClosesIsNoLongerSelected)
{
    m_Viewer.SetVisualisation(&m_Told);
    SetUpModel();
    m_Host.Mouse().Click(m_Viewer, 20, 10);
    m_Host.Paint();
    EXPECT_TRUE(m_Viewer.GetRowSelectionModel()->IsItemSelected(0));
    Open(1);
    EXPECT_FALSE(m_Viewer.GetRowSelectionModel()->IsItemSelected(0));
    m_Told.m_Log.Take();
    m_Host.FullPaint();
    EXPECT_TRUE(
        m_Told.m_Log.Take().starts_with("draw General (0, 0, 399, 29) 370 0; draw Sub (0, 30, 399, 119) 370 3"));
    m_Host.Mouse().Click(m_Viewer, 20, 10);
    EXPECT_TRUE(m_Viewer.GetRowSelectionModel()->IsItemSelected(0));
    EXPECT_EQ(m_Viewer.GetRowSelectionModel()->GetSelectedCount(), 1);
    Open(-1);
    EXPECT_EQ(m_Viewer.GetRowSelectionModel()->GetSelectedCount(), 0);
}

TEST_F(ConfigurationViewer, ACategoryWithoutItemsIsAsHighOpenAsClosed)
{
    SetUpModel();
    Open(2);
    EXPECT_EQ(Heights(), "24 24 32");
    EXPECT_EQ(Shown(), "");
}

TEST_F(ConfigurationViewer, ItemsThatAreNotThereCountForTheHeightOnly)
{
    m_Sub.m_Items.insert(m_Sub.m_Items.begin(), nullptr);
    m_Sub.AddItem("Bare");
    SetUpModel();
    Open(1);
    EXPECT_EQ(Heights(), "24 99 32");
    EXPECT_EQ(m_Below.GetPos().top, 46);
}

TEST_F(ConfigurationViewer, RowsOutsideTheRangeAreNeitherClosedNorOpened)
{
    m_Viewer.SetVisualisation(&m_Told);
    SetUpModel();
    m_Told.m_Log.Take();
    m_Viewer.CategoryChanged(-1, 3);
    m_Viewer.CategoryChanged(7, -5);
    EXPECT_EQ(m_Told.m_Log.Take(), "");
    EXPECT_EQ(Heights(), "30 30 30");
}

TEST_F(ConfigurationViewer, ARowWhoseCategoryHasGoneIsMeasuredAllTheSame)
{
    m_Viewer.SetVisualisation(&m_Told);
    SetUpModel();
    Open(2);
    m_Model.m_Categories.back().reset();
    m_Told.m_Log.Take();
    m_Viewer.CategoryChanged(2, 2);
    EXPECT_EQ(m_Told.m_Log.Take(), "expanded none 370; arrange none in viewer (0, 60, 370, 149)");
    m_Viewer.CategoryChanged(2, -1);
    EXPECT_EQ(m_Told.m_Log.Take(), "collapsed none 370");
    m_Viewer.SetVisualisation(nullptr);
    m_Viewer.CategoryChanged(2, -1);
    EXPECT_EQ(Rows().GetItemSize(2), 4);
    m_Viewer.CategoryChanged(-1, 2);
    EXPECT_EQ(Rows().GetItemSize(2), 4);
}

TEST_F(ConfigurationViewer, ARowWhoseCategoryHasGoneIsEmpty)
{
    SetUpModel();
    Open(2);
    ASSERT_NE(m_Host.PixelAt(100, 52), m_Host.PixelAt(390, 52));
    m_Model.m_Categories.back().reset();
    m_Viewer.UpdateAll();
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(100, 52), m_Host.PixelAt(390, 52));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationViewer, AClickOpensTheRowUnderThePointer)
{
    SetUpModel();
    m_Host.Mouse().Click(m_Viewer, 20, 30);
    m_Host.Paint();
    EXPECT_EQ(Current(), 1);
    EXPECT_EQ(Heights(), "24 49 32");
    EXPECT_EQ(Shown(), "below");
    m_Host.Mouse().Click(m_Viewer, 20, 80);
    EXPECT_EQ(Current(), 2);
    m_Host.Mouse().Click(m_Viewer, 20, 250);
    EXPECT_EQ(Current(), 2) << "nothing is there";
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationViewer, AClickOnAnEditorIsTheEditors)
{
    SetUpModel();
    Open(0);
    CSignalLog const log(m_Kind.m_SigClick, "click");
    m_Host.Mouse().Click(m_Kind, 5, 5);
    EXPECT_EQ(log.Count("click"), 1);
    EXPECT_EQ(Current(), 0);
}

TEST_F(ConfigurationViewer, RefreshingMeasuresAndArrangesTheOpenOneAnew)
{
    m_Viewer.SetVisualisation(&m_Told);
    SetUpModel();
    Open(0);
    auto const a = Listen(m_General.m_Activated, [&](CTreeCategory*) { m_Told.m_Log.Add("open"); });
    auto const b = Listen(m_General.m_Deactivated, [&](CTreeCategory*) { m_Told.m_Log.Add("close"); });
    m_Told.m_Log.Take();
    m_Told.m_Expanded = 70;
    m_Viewer.RefreshActiveCategory();
    EXPECT_EQ(m_Told.m_Log.Take(), "open; expanded General 370; arrange General in viewer (0, 0, 370, 69)");
    EXPECT_EQ(Heights(), "70 30 30");
    Open(-1);
    m_Told.m_Log.Take();
    m_Viewer.RefreshActiveCategory();
    EXPECT_EQ(m_Told.m_Log.Take(), "");
}

TEST_F(ConfigurationViewer, RefreshingShowsItemsThatHaveComeAndHidesNothing)
{
    SetUpModel();
    Open(0);
    CVisualElement& more = m_General.AddEditor("More", 40);
    NameElement(more, "more");
    m_Viewer.RefreshActiveCategory();
    m_Host.Paint();
    EXPECT_EQ(Heights(), "99 24 32");
    EXPECT_EQ(Shown(), "name kind more");
    EXPECT_EQ(more.GetPos(), (Rect{185, 72, 225, 92}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// A viewer smaller than what it shows ---------------------------------------------------------------------------------------

TEST_F(ConfigurationViewer, AViewerSmallerThanTheOpenCategoryKeepsTheEditorsWhereTheRowIs)
{
    m_Host.Resize(200, 40);
    SetUpModel();
    Open(0);
    EXPECT_EQ(m_Name.GetPos(), (Rect{185, 22, 245, 42}));
    EXPECT_EQ(m_Kind.GetPos(), (Rect{185, 47, 275, 67}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    Open(1);
    EXPECT_EQ(m_Below.GetPos(), (Rect{185, 46 - Rows().GetOffset(), 235, 66 - Rows().GetOffset()}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ConfigurationViewer, TheExtentOfARowIsToldWhereverTheViewStands)
{
    m_Viewer.SetVisualisation(&m_Told);
    m_Host.Resize(400, 71);
    SetUpModel();
    Rows().SetOffset(15);
    m_Told.m_Log.Take();
    m_Viewer.GetRowSelectionModel()->SetCurrent(0);
    EXPECT_EQ(m_Told.m_Log.Take(), "expanded General 370; arrange General in viewer (0, -15, 370, 74)");
}

TEST_F(ConfigurationViewer, ARowBelowTheViewHasItsPlaceThereToo)
{
    m_Viewer.SetVisualisation(&m_Told);
    m_Host.Resize(400, 5);
    SetUpModel();
    m_Told.m_Log.Take();
    m_Viewer.CategoryChanged(-1, 2);
    EXPECT_EQ(m_Told.m_Log.Take(), "expanded Other 370; arrange Other in viewer (0, 60, 370, 149)");
}

// Drawing -------------------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationViewer, EachRowIsDrawnAsItsCategoryTheCurrentOneOpenAndHighlighted)
{
    m_Viewer.SetVisualisation(&m_Told);
    SetUpModel();
    Open(1);
    m_Told.m_Log.Take();
    m_Host.FullPaint();
    EXPECT_EQ(m_Told.m_Log.Take(), "draw General (0, 0, 399, 29) 370 0; draw Sub (0, 30, 399, 119) 370 3; "
                                   "draw Other (0, 120, 399, 149) 370 0");
}

TEST_F(ConfigurationViewer, ARowThatIsCutByTheTopIsDrawnFromItsOwnTop)
{
    m_Viewer.SetVisualisation(&m_Told);
    m_Host.Resize(400, 40);
    SetUpModel();
    Rows().SetOffset(20);
    m_Host.Paint();
    m_Told.m_Log.Take();
    m_Host.FullPaint();
    std::string const log = m_Told.m_Log.Take();
    EXPECT_TRUE(log.starts_with("draw General (0, -20, 399, 9) 370 0; draw Sub (0, 10, 399, 39) 370 0")) << log;
}

TEST_F(ConfigurationViewer, SelectedRowsLookLikeTheCurrentOne)
{
    m_Viewer.SetVisualisation(&m_Told);
    SetUpModel();
    auto const draw = [&](int state) {
        m_Told.m_Log.Take();
        m_Viewer.DrawRow(m_Host.Window().GetPainter(), 0, 4, state, {1, 10, 50, 60}, IDirtyItemSet::dirtyItem);
        return m_Told.m_Log.Take();
    };
    EXPECT_EQ(draw(0), "draw General (1, 6, 50, 60) 370 0");
    EXPECT_EQ(draw(1), "draw General (1, 6, 50, 60) 370 3");
    EXPECT_EQ(draw(2), "draw General (1, 6, 50, 60) 370 3");
    EXPECT_EQ(draw(3), "draw General (1, 6, 50, 60) 370 3");
    EXPECT_EQ(draw(4), "draw General (1, 6, 50, 60) 370 0");
}

TEST_F(ConfigurationViewer, ARowIsLeftOutWhenOnlyOthersAreDirty)
{
    m_Viewer.SetVisualisation(&m_Told);
    SetUpModel();
    Rows().OnEndDraw();
    Rows().AddDirtyItems(1, 1);
    m_Told.m_Log.Take();
    IPainter* const painter = m_Host.Window().GetPainter();
    m_Viewer.DrawRow(painter, 0, 0, 0, {0, 0, 50, 29}, IDirtyItemSet::dirtyOther);
    EXPECT_EQ(m_Told.m_Log.Take(), "");
    m_Viewer.DrawRow(painter, 1, 0, 0, {0, 30, 50, 59}, IDirtyItemSet::dirtyOther);
    EXPECT_EQ(m_Told.m_Log.Take(), "draw Sub (0, 30, 50, 59) 370 0") << "dirty by its own model";
    m_Viewer.DrawRow(painter, 0, 0, 0, {0, 0, 50, 29}, IDirtyItemSet::dirtyNone);
    EXPECT_EQ(m_Told.m_Log.Take(), "draw General (0, 0, 50, 29) 370 0");
    m_Viewer.DrawRow(painter, 9, 0, 0, {0, 0, 50, 29}, IDirtyItemSet::dirtyItem);
    EXPECT_EQ(m_Told.m_Log.Take(), "") << "no category, nothing to draw";
}

TEST_F(ConfigurationViewer, TheEmptyAreaIsASolidFill)
{
    m_Host.Paint();
    class CFilling : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        CConfigurationViewer* m_Owner = nullptr;
        void DrawContent(IPainter* painter) override { m_Owner->DrawRowEmptyArea(painter, {1, 2, 30, 40}); }
    };
    CFilling filling(&m_Viewer, {10, 10}, alNone);
    filling.SetDynamic(false);
    NameElement(filling, "filling");
    filling.m_Owner = &m_Viewer;
    filling.SetPos({0, 0, 50, 50}, false);
    m_Viewer.SetBkColor(color_table[6]);
    EXPECT_THAT(m_Host.Paint().Of("filling"), Draws("SetBrush red").Then("FillRect 1 2 30 40"));
}

TEST_F(ConfigurationViewer, AnotherLookRepaintsTheRowsWhichKeepTheirHeights)
{
    SetUpModel();
    m_Told.m_Log.Take();
    m_Viewer.SetVisualisation(&m_Told);
    EXPECT_EQ(m_Viewer.GetVisualisation(), &m_Told);
    m_Host.Paint();
    EXPECT_EQ(m_Told.m_Log.Take(), "draw General (0, 0, 399, 23) 370 0; draw Sub (0, 24, 399, 47) 370 0; "
                                   "draw Other (0, 48, 399, 79) 370 0");
    EXPECT_EQ(Heights(), "24 24 32");
    m_Viewer.SetVisualisation(nullptr);
    EXPECT_NE(dynamic_cast<CDefCategoryVis*>(m_Viewer.GetVisualisation()), nullptr);
    EXPECT_EQ(CallsFrom(m_Host.Paint().Of("viewer"), "RoundRect"), "2 2 368 21 7 9; 22 26 368 45 7 9; 2 50 368 77 7 9");
}

TEST_F(ConfigurationViewer, UpdatingAllRepaintsAllRows)
{
    m_Viewer.SetVisualisation(&m_Told);
    SetUpModel();
    m_Told.m_Log.Take();
    m_Viewer.UpdateAll();
    EXPECT_EQ(Rows().GetItemType(1000000), IDirtyItemSet::dirtyItem);
    m_Host.Paint();
    EXPECT_EQ(m_Told.m_Log.Take(), "draw General (0, 0, 399, 29) 370 0; draw Sub (0, 30, 399, 59) 370 0; "
                                   "draw Other (0, 60, 399, 89) 370 0");
}

// Its end -------------------------------------------------------------------------------------------------------------------

TEST_F(ConfigurationViewer, ItNeverDeletesAnEditor)
{
    SetUpModel();
    Open(0);
    Open(1);
    CSignalLog log;
    log.Add(m_Name.m_SigDestroy, "name").Add(m_Below.m_SigDestroy, "below");
    delete &m_Viewer;
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(m_Name.GetParent(), nullptr);
    EXPECT_EQ(m_Below.GetParent(), nullptr);
    EXPECT_EQ(m_Below.GetControl(), nullptr);
}

TEST_F(ConfigurationViewer, NotEvenOneThatWouldGoWithItsParent)
{
    SetUpModel();
    m_Name.SetDynamic(true);
    Open(0);
    CSignalLog log;
    log.Add(m_Name.m_SigDestroy, "name");
    delete &m_Viewer;
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(m_Name.GetParent(), nullptr);
    m_Name.SetDynamic(false);
}
