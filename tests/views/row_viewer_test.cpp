// A list: its models, its row height, and which rows it is asked to draw.

#include "tests/views/viewer_bench.h"
#include "vexel/scroll/scroll_box.h"

using namespace viewer_test;

namespace
{

class RowViewer : public CRowsBench<IDiscreteItemViewModel>
{};

// What it starts with -------------------------------------------------------------------------------------------------------
TEST_F(RowViewer, StartsFocusableWithItsOwnModelsAndHandler)
{
    CTestRows<IDiscreteItemViewModel> rows(nullptr, {10, 10}, alClient);
    rows.SetDynamic(false);
    EXPECT_TRUE(rows.GetCanHaveFocus());
    EXPECT_EQ(rows.GetEventHandlers(), &rows.GetRowHandler());
    EXPECT_EQ(rows.GetRowHandler().GetNext(), nullptr);
    EXPECT_EQ(rows.GetRowHandler().GetDirection(), idVertical);
    EXPECT_EQ(rows.GetRowHandler().GetViewer(), &rows);
    EXPECT_EQ(rows.GetRowViewModel(), rows.GetRowHandler().GetViewModel());
    EXPECT_EQ(rows.GetRowSelectionModel(), rows.GetRowHandler().GetSelectionModel());
    EXPECT_EQ(rows.GetSelectionType(), CEventHandlerBase::stFree);
    EXPECT_TRUE(rows.IsAutoRowHeight());
    EXPECT_EQ(rows.GetHorzScroll(), nullptr);
    auto* const scroll = dynamic_cast<CDiscreteItemScrollModel*>(rows.GetVertScroll());
    ASSERT_NE(scroll, nullptr);
    EXPECT_EQ(scroll->GetViewModel(), rows.GetRowViewModel());
    EXPECT_EQ(rows.GetRowViewModel()->GetViewSize(), 0);
    EXPECT_EQ(rows.GetBkSysColor(), 1);
    EXPECT_EQ(rows.GetFgSysColor(), 2);
    EXPECT_FALSE(rows.IsFullRepainted());
}

TEST_F(RowViewer, OfPixelsHasAPixelScrollModel)
{
    CTestRows<IContinuousItemViewModel> rows(nullptr, {10, 10}, alClient);
    rows.SetDynamic(false);
    auto* const scroll = dynamic_cast<CContinuousItemScrollModel*>(rows.GetVertScroll());
    ASSERT_NE(scroll, nullptr);
    EXPECT_EQ(scroll->GetViewModel(), rows.GetRowViewModel());
    EXPECT_NE(dynamic_cast<CDefaultColumnViewModel*>(rows.GetRowViewModel()), nullptr);
}

TEST_F(RowViewer, ANullScrollModelBringsBackTheOwn)
{
    IScrollModel* const own = m_Rows->GetVertScroll();
    CContinuousItemScrollModel other;
    m_Rows->SetVertScroll(&other);
    EXPECT_EQ(m_Rows->GetVertScroll(), &other);
    m_Rows->SetVertScroll(nullptr);
    EXPECT_EQ(m_Rows->GetVertScroll(), own);
}

// Models --------------------------------------------------------------------------------------------------------------------
TEST_F(RowViewer, ANewViewModelGetsTheViewAndIsPaintedWhole)
{
    CNonEqualItemsViewModel model;
    model.SetDefaultItemSize(20);
    model.SetCount(3);
    model.OnEndDraw();
    m_Rows->SetRowViewModel(&model);
    EXPECT_EQ(m_Rows->m_Hooks.Take(), "view model");
    EXPECT_EQ(m_Rows->GetRowViewModel(), &model);
    EXPECT_EQ(Handler().GetViewModel(), &model);
    EXPECT_EQ(dynamic_cast<CDiscreteItemScrollModel*>(m_Rows->GetVertScroll())->GetViewModel(), &model);
    EXPECT_EQ(model.GetViewSize(), 50);
    EXPECT_EQ(model.GetDefaultItemSize(), 20);
    EXPECT_EQ(Paint(), "0 state 0 item, 1 state 0 item, 2 state 0 item");
    m_Rows->SetRowViewModel(nullptr);
    EXPECT_EQ(m_Rows->m_Hooks.Take(), "view model");
    EXPECT_EQ(View().GetCount(), 10);
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 0 item, 2 state 0 item, 3 state 0 item, 4 state 0 item, 5 state 0 item");
    model.SetCount(5);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(RowViewer, ANewViewModelThatKnowsItsViewAlreadyIsToldToTheBar)
{
    auto* const box = new CScrollBox(m_Host.Root(), {10, 10}, alClient);
    m_Rows->ReParent(box, true);
    View().SetCount(2);
    box->ConnectElement(m_Rows, CScrollBox::ctVertical, true);
    m_Host.Paint();
    EXPECT_FALSE(box->GetVertElement().IsScrollBarVisible());
    CNonEqualItemsViewModel model;
    model.SetDefaultItemSize(10);
    model.SetCount(30);
    model.SetViewSize(50, false);
    m_Rows->SetRowViewModel(&model);
    EXPECT_TRUE(box->GetVertElement().IsScrollBarVisible());
}

TEST_F(RowViewer, ANewSelectionModelIsToldAndPainted)
{
    CDefaultSelectionModel model;
    model.SetCurrent(1);
    m_Rows->SetRowSelectionModel(&model);
    EXPECT_EQ(m_Rows->m_Hooks.Take(), "selection model");
    EXPECT_EQ(Handler().GetSelectionModel(), &model);
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 2 item, 2 state 0 item, 3 state 0 item, 4 state 0 item, 5 state 0 item");
    m_Rows->SetRowSelectionModel(nullptr);
    EXPECT_EQ(m_Rows->m_Hooks.Take(), "selection model");
    EXPECT_NE(m_Rows->GetRowSelectionModel(), &model);
    m_Host.Paint();
    model.SetCurrent(2);
    EXPECT_FALSE(m_Host.IsFramePending());
}

class CModelsOf : public CTestRows<IDiscreteItemViewModel>
{
public:
    using CTestRows::CTestRows;
    ISelectionModel* m_Old = nullptr;
    ISelectionModel* m_Now = nullptr;
    void RowSelectionModelChanged(ISelectionModel* old, ISelectionModel* now) override
    {
        m_Old = old;
        m_Now = now;
    }
};

TEST_F(RowViewer, ANewSelectionModelIsToldAfterTheOldOne)
{
    CModelsOf rows(nullptr, {10, 10}, alClient);
    rows.SetDynamic(false);
    ISelectionModel* const own = rows.GetRowSelectionModel();
    CDefaultSelectionModel model;
    rows.SetRowSelectionModel(&model);
    EXPECT_EQ(rows.m_Old, own);
    EXPECT_EQ(rows.m_Now, &model);
    rows.SetRowSelectionModel(nullptr);
    EXPECT_EQ(rows.m_Old, &model);
    EXPECT_EQ(rows.m_Now, own);
}

class CCountedScroll : public CDiscreteItemScrollModel
{
public:
    int m_Updates = 0;
    void Update() override { ++m_Updates; }
};

TEST_F(RowViewer, EachChangeOfItsViewModelUpdatesTheScrollModelOfItsDirection)
{
    CCountedScroll vertical;
    CCountedScroll horizontal;
    m_Rows->SetVertScroll(&vertical);
    m_Rows->SetHorzScroll(&horizontal);
    vertical.m_Updates = horizontal.m_Updates = 0;
    View().SetCount(20);
    EXPECT_EQ(vertical.m_Updates, 1);
    View().SetStartItem(3);
    EXPECT_EQ(vertical.m_Updates, 2);
    EXPECT_EQ(horizontal.m_Updates, 0);
    m_Rows->SetVertScroll(nullptr);
    m_Rows->SetHorzScroll(nullptr);
}

TEST_F(RowViewer, ANewViewModelThatIsReplacedAtOnceIsNotToldOf)
{
    CNonEqualItemsViewModel model;
    auto const slot = Listen(model.m_SigChanged, [&] { m_Rows->SetRowViewModel(nullptr); });
    m_Rows->SetRowViewModel(&model);
    EXPECT_EQ(m_Rows->m_Hooks.Take(), "view model");
    EXPECT_NE(m_Rows->GetRowViewModel(), &model);
}

TEST_F(RowViewer, ANewSelectionWithNothingToPaintPaintsAllRows)
{
    CDefaultSelectionModel model;
    model.SetCurrent(1);
    model.OnEndDraw();
    View().AddDirtyItems(4, 4);
    m_Rows->SetRowSelectionModel(&model);
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 2 item, 2 state 0 item, 3 state 0 item, 4 state 0 item, 5 state 0 item");
    m_Rows->SetRowSelectionModel(nullptr);
}

TEST_F(RowViewer, ModelsThatDieAreReplacedByTheOwn)
{
    IDiscreteItemViewModel* const own = m_Rows->GetRowViewModel();
    ISelectionModel* const ownSelection = m_Rows->GetRowSelectionModel();
    {
        CNonEqualItemsViewModel model;
        CDefaultSelectionModel selection;
        m_Rows->SetRowViewModel(&model);
        m_Rows->SetRowSelectionModel(&selection);
        Settle();
    }
    EXPECT_EQ(m_Rows->GetRowViewModel(), own);
    EXPECT_EQ(m_Rows->GetRowSelectionModel(), ownSelection);
    EXPECT_EQ(Handler().GetViewModel(), own);
    EXPECT_EQ(Handler().GetSelectionModel(), ownSelection);
    EXPECT_EQ(dynamic_cast<CDiscreteItemScrollModel*>(m_Rows->GetVertScroll())->GetViewModel(), own);
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 0 item, 2 state 0 item, 3 state 0 item, 4 state 0 item, 5 state 0 item");
}

TEST_F(RowViewer, AHandlersModelGoesWithTheHandlerNotWithTheViewer)
{
    auto* const model = new CNonEqualItemsViewModel;
    m_Rows->SetRowViewModel(model);
    delete m_Rows;
    model->SetCount(7);  // nobody listens any more
    EXPECT_EQ(model->GetCount(), 7);
    delete model;
}

// Row height ----------------------------------------------------------------------------------------------------------------
TEST_F(RowViewer, RowsAreALineOfTextAndAPixelHigh)
{
    EXPECT_EQ(m_Rows->CalculateDefaultRowHeight(), 9);  // ascent 6, descent 2
    m_Rows->SetAutoRowHeight(true);
    EXPECT_EQ(View().GetDefaultItemSize(), 9);
    CSignalLog log(View().m_SigChanged, "changed");
    m_Rows->SetAutoRowHeight(true);
    EXPECT_EQ(log.Take(), "");  // they have that height
    View().SetDefaultItemSize(30);
    m_Rows->AfterSetControl();
    EXPECT_EQ(View().GetDefaultItemSize(), 9);
    m_Rows->m_Margin = 3;
    m_Rows->AttributeChanged();
    EXPECT_EQ(View().GetDefaultItemSize(), 12);
    m_Rows->m_Margin = 0;
    font large;
    large.size = 16;
    m_Rows->SetFont(large);
    EXPECT_EQ(View().GetDefaultItemSize(), 17);
}

TEST_F(RowViewer, AChangeOfLookPaintsAllRowsAlsoWhereTheHeightStays)
{
    m_Rows->SetBkColor(color_table[5]);
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 0 item, 2 state 0 item, 3 state 0 item, 4 state 0 item, 5 state 0 item");
    EXPECT_EQ(View().GetDefaultItemSize(), 10);
}

TEST_F(RowViewer, WithoutAutoRowHeightTheFontChangesNothing)
{
    font large;
    large.size = 16;
    m_Rows->SetFont(large);
    EXPECT_EQ(View().GetDefaultItemSize(), 10);
}

class CNoHeight : public CTestRows<IDiscreteItemViewModel>
{
public:
    using CTestRows::CTestRows;
    int CalculateDefaultRowHeight() const override { return 0; }
};

TEST_F(RowViewer, WithoutATextHeightTheRowsKeepTheirs)
{
    auto* const rows = new CNoHeight(m_Host.Root(), {10, 10}, alTop);
    rows->GetRowViewModel()->SetDefaultItemSize(13);
    rows->m_Margin = 4;
    rows->AttributeChanged();
    EXPECT_EQ(rows->GetRowViewModel()->GetDefaultItemSize(), 13);
}

class CHeightOfItsOwn : public CTestRows<IDiscreteItemViewModel>
{
public:
    using CTestRows::CTestRows;
    int CalculateDefaultRowHeight() const override { return 33; }
};

TEST_F(RowViewer, WithoutAControlARowHeightIsAppliedOnlyForAChangeOfLook)
{
    CHeightOfItsOwn rows(nullptr, {10, 10}, alClient);
    rows.SetDynamic(false);
    CNonEqualItemsViewModel model;
    CDefaultSelectionModel selection;
    model.SetDefaultItemSize(13);
    rows.SetRowViewModel(&model);
    rows.SetRowSelectionModel(&selection);
    rows.SetAutoRowHeight(true);
    EXPECT_EQ(model.GetDefaultItemSize(), 13);
    rows.AttributeChanged();
    EXPECT_EQ(model.GetDefaultItemSize(), 33);
}

TEST_F(RowViewer, ARowHeightIsAppliedWhereAControlComes)
{
    auto* const rows = new CTestRows<IDiscreteItemViewModel>(nullptr, {10, 20}, alTop);
    EXPECT_EQ(rows->GetRowViewModel()->GetDefaultItemSize(), 20);
    rows->ReParent(m_Host.Root(), true);
    EXPECT_EQ(rows->GetRowViewModel()->GetDefaultItemSize(), 9);
    CNonEqualItemsViewModel model;
    rows->SetRowViewModel(&model);
    EXPECT_EQ(model.GetDefaultItemSize(), 9);
    CDefaultSelectionModel selection;
    model.SetDefaultItemSize(30);
    rows->SetRowSelectionModel(&selection);
    EXPECT_EQ(model.GetDefaultItemSize(), 9);
}

TEST_F(RowViewer, AtADoubledScaleTheExtraPixelsAreTwo)
{
    CTestHost host(100, 100, 2.0);
    auto* const rows = new CTestRows<IDiscreteItemViewModel>(host.Root(), {10, 10}, alClient);
    EXPECT_EQ(rows->CalculateDefaultRowHeight(), 18);  // 12 + 4 + 2
    EXPECT_EQ(rows->GetRowViewModel()->GetDefaultItemSize(), 18);
    CTestRows<IDiscreteItemViewModel> alone(nullptr, {10, 10}, alClient);
    alone.SetDynamic(false);
    EXPECT_EQ(alone.CalculateDefaultRowHeight(), 0);  // nothing measures text
    alone.AttributeChanged();
    EXPECT_EQ(alone.GetRowViewModel()->GetDefaultItemSize(), 40);
    CTestHost::System().SetScale(1.0);
}

// Painting ------------------------------------------------------------------------------------------------------------------
TEST_F(RowViewer, AFullPaintDrawsTheRowsThatShowAsDirty)
{
    m_Rows->m_WithRects = true;
    GoTo(1);
    Selection().SetCurrent(2);
    Settle();
    m_Host.FullPaint();
    EXPECT_EQ(m_Rows->m_Draws.Take(),
              "0 state 0 (0, 0, 99, 9) item, 1 state 1 (0, 10, 99, 19) item, 2 state 2 (0, 20, 99, 29) item, "
              "3 state 0 (0, 30, 99, 39) item, 4 state 0 (0, 40, 99, 49) item, 5 state 0 (0, 50, 99, 59) item");
}

TEST_F(RowViewer, ARepaintWithNothingDirtyDrawsAllAsNotDirty)
{
    m_Rows->Update(utElement);
    EXPECT_EQ(Paint(),
              "0 state 0 none, 1 state 0 none, 2 state 0 none, 3 state 0 none, 4 state 0 none, 5 state 0 none");
}

TEST_F(RowViewer, AfterAPaintNothingIsDirty)
{
    View().AddDirtyItems(0, 3);
    Selection().AddDirtyItems(4, 4);
    m_Rows->Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(Dirty(View(), 5), "none");
    EXPECT_EQ(Dirty(Selection(), 5), "none");
}

TEST_F(RowViewer, ThePaintOfAnotherElementEmptiesTheDirtySetsToo)
{
    auto* const leaf = new CVisualElement(m_Host.Root(), {10, 10}, alNone);
    View().AddDirtyItems(0, 3);
    leaf->Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(Dirty(View(), 5), "none");
}

TEST_F(RowViewer, RowsOfTheirOwnSizesFollowEachOther)
{
    m_Rows->m_WithRects = true;
    View().SetItemSize(1, 25);
    View().SetItemSize(2, 7);
    m_Host.FullPaint();
    EXPECT_EQ(m_Rows->m_Draws.Take(),
              "0 state 0 (0, 0, 99, 9) item, 1 state 0 (0, 10, 99, 34) item, 2 state 0 (0, 35, 99, 41) item, "
              "3 state 0 (0, 42, 99, 51) item");
}

TEST_F(RowViewer, BehindTheLastRowTheBackgroundIsFilled)
{
    m_Host.Name(*m_Rows, "rows");
    m_Rows->SetBkColor(color_table[13]);
    View().SetCount(2);
    EXPECT_THAT(m_Host.Paint().Of("rows"), Draws("SetBrush green").Then("FillRect 0 20 99 50"));
    EXPECT_EQ(m_Rows->m_Draws.Take(), "0 state 0 item, 1 state 0 item, empty (0, 20, 99, 50)");
}

TEST_F(RowViewer, AStretchedLastRowReachesToTheEndOfTheView)
{
    m_Rows->m_WithRects = true;
    View().SetCount(2);
    View().SetStretchLastItem(true);
    EXPECT_EQ(Paint(), "0 state 0 (0, 0, 99, 9) item, 1 state 0 (0, 10, 99, 50) item");
    View().SetItemSize(1, 80);
    m_Host.FullPaint();
    EXPECT_EQ(m_Rows->m_Draws.Take(), "0 state 0 (0, 0, 99, 9) item, 1 state 0 (0, 10, 99, 89) item");
    View().SetItemSize(1, 10);
    View().SetViewSize(30, true);  // lower than what is painted
    m_Host.FullPaint();
    EXPECT_EQ(m_Rows->m_Draws.Take(), "0 state 0 (0, 0, 99, 9) item, 1 state 0 (0, 10, 99, 30) item");
}

TEST_F(RowViewer, AFullPaintFillsTheAreaBehindTheRowsAlsoWhereOnlyTheSelectionHasChanged)
{
    View().SetCount(2);
    m_Host.Name(*m_Rows, "rows");
    Settle();
    Selection().SetCurrent(1);
    EXPECT_THAT(m_Host.FullPaint().Of("rows"), Draws("FillRect 0 20 99 50"));
}

TEST_F(RowViewer, AnotherHeightMarksOnlyTheAreaBehindTheRows)
{
    m_Rows->SetAlignment(alNone);
    m_Rows->SetPos({0, 0, 99, 50}, false);
    Settle();
    m_Rows->SetPos({0, 0, 99, 40}, false);
    EXPECT_EQ(Dirty(View(), 12), "10");
}

TEST_F(RowViewer, AStretchedLastRowIsPaintedWithEveryChangeOfItsModel)
{
    View().SetCount(4);
    EXPECT_FALSE(Handler().IsLastItemExpanded());
    View().SetStretchLastItem(true);
    Settle();
    EXPECT_TRUE(Handler().IsLastItemExpanded());
    View().m_SigChanged();
    EXPECT_EQ(Paint(), "0 state 0 other, 1 state 0 other, 2 state 0 other, 3 state 0 item");
    Handler().UpdateLastItem();
    EXPECT_EQ(Dirty(View(), 5), "3");
    View().OnEndDraw();
    Handler().ProcessResize({0, 0, 99, 50}, {0, 0, 99, 50}, true);
    EXPECT_EQ(Dirty(View(), 2), "0-2");
    View().OnEndDraw();
    Handler().ProcessResize({0, 0, 99, 50}, {0, 0, 99, 50}, false);
    EXPECT_EQ(Dirty(View(), 5), "3");
}

TEST_F(RowViewer, AScrollDrawsOnlyTheRowsThatComeIntoViewAsDirty)
{
    View().SetStartItem(1);
    EXPECT_EQ(Paint(),
              "1 state 0 other, 2 state 0 other, 3 state 0 other, 4 state 0 other, 5 state 0 item, 6 state 0 item");
    View().SetStartItem(0);
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 0 other, 2 state 0 other, 3 state 0 other, 4 state 0 other, 5 state 0 other");
}

TEST_F(RowViewer, AListThatComesBackIsPaintedWhole)
{
    for (CVisualElement* const hidden : {static_cast<CVisualElement*>(m_Rows), m_Host.Root()})
    {
        hidden->SetVisible(false);
        m_Host.Paint();
        m_Rows->m_Draws.Take();
        hidden->SetVisible(true);
        EXPECT_EQ(Paint(),
                  "0 state 0 item, 1 state 0 item, 2 state 0 item, 3 state 0 item, 4 state 0 item, 5 state 0 item");
    }
}

TEST_F(RowViewer, ToHideOrShowMarksTheRowsAndTheAreaBehindThem)
{
    for (CVisualElement* const hidden : {static_cast<CVisualElement*>(m_Rows), m_Host.Root()})
        for (bool const visible : {false, true})
        {
            View().OnEndDraw();
            hidden->SetVisible(visible);
            EXPECT_EQ(Dirty(View(), 12), "0-10");
        }
    View().OnEndDraw();
    m_Rows->ProcessSetVisible(true);
    EXPECT_EQ(Dirty(View(), 12), "0-10");
    View().OnEndDraw();
    m_Rows->ProcessSetParentVisible(true);
    EXPECT_EQ(Dirty(View(), 12), "0-10");
}

TEST_F(RowViewer, WithoutAPainterOfItsRowsDrawsNothing)
{
    View().SetCount(2);
    m_Rows->SetBkColor(color_table[13]);
    m_Host.Name(*m_Rows, "rows");
    Settle();
    Handler().SetPainter(nullptr);
    PaintLog const paint = m_Host.FullPaint().Of("rows");
    EXPECT_EQ(m_Rows->m_Draws.Take(), "");
    EXPECT_EQ(paint.Count("FillRect*"), 0);
    EXPECT_EQ(Dirty(View(), 3), "none");
    EXPECT_EQ(Dirty(Selection(), 3), "none");
    Handler().SetPainter(static_cast<IRowPainter*>(m_Rows));
    EXPECT_THAT(m_Host.FullPaint().Of("rows"), Draws("SetBrush green").Then("FillRect 0 20 99 50"));
    EXPECT_EQ(m_Rows->m_Draws.Take(), "0 state 0 item, 1 state 0 item, empty (0, 20, 99, 50)");
    Handler().ProcessDraw(nullptr, {0, 0, 99, 50});
    EXPECT_EQ(m_Rows->m_Draws.Take(), "");
}

TEST_F(RowViewer, TheViewIsAsHighAsTheList)
{
    m_Rows->SetPos({0, 0, 99, 33}, false);
    EXPECT_EQ(View().GetViewSize(), 33);
}

TEST_F(RowViewer, AMillionRowsCostWhatShows)
{
    View().SetCount(1000000);
    View().SetStartItem(999995);
    Settle();
    m_Rows->Update(utElement);
    EXPECT_EQ(Paint(), "999995 state 0 none, 999996 state 0 none, 999997 state 0 none, 999998 state 0 none, "
                       "999999 state 0 none, empty (0, 50, 99, 50)");
}

// Selection type and hooks ----------------------------------------------------------------------------------------------------
TEST_F(RowViewer, TheCurrentRowMayBeRedirectedByTheList)
{
    m_Rows->m_OnCurrent = [](int& now) { now = 4; };
    Click(25);
    EXPECT_EQ(m_Rows->m_Hooks.Take(), "current -1 to 2");
    EXPECT_EQ(Selected(), "4");
}

TEST_F(RowViewer, ASelectionTypeKeepsOnlyTheCurrentRow)
{
    GoTo(2);
    Selection().SetSelectionRange(1, 4);
    m_Rows->SetSelectionType(CEventHandlerBase::stFree);
    EXPECT_EQ(Selected(), "1 2 3 4");
    EXPECT_EQ(m_Rows->m_Hooks.Take(), "");
    m_Rows->SetSelectionType(CEventHandlerBase::stOneItem);
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(Handler().GetSelectionType(), CEventHandlerBase::stOneItem);
    EXPECT_EQ(m_Rows->m_Hooks.Take(), "type 0");
    m_Rows->SetSelectionType(CEventHandlerBase::stNone);
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(m_Rows->GetSelectionType(), CEventHandlerBase::stNone);
}

}  // namespace
