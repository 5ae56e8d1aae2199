// Rows and columns of cells.

#include "tests/views/viewer_bench.h"
#include "vexel/core/transparent_flavor.h"

using namespace viewer_test;

namespace
{

class CTestGrid : public CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>
{
public:
    using CGridViewer::CGridViewer;

    bool m_WithRects = false;
    CDrawLog m_Draws;  ///< "1/2 state 3 item" for row 1, column 2
    CDrawLog m_Hooks;
    std::function<void(int, int)> m_OnDraw;
    ISelectionModel* m_OldSelection = nullptr;
    ISelectionModel* m_NewSelection = nullptr;

    void DrawCell(IPainter*, int row, int rowSkip, int column, int columnSkip, int state, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType dirty) override
    {
        EXPECT_EQ(rowSkip, 0);
        EXPECT_EQ(columnSkip, 0);
        m_Draws.Add(std::to_string(row) + "/" + std::to_string(column) + " state " + std::to_string(state) +
                    (m_WithRects ? " " + Describe(rect) : "") + " " + DirtyName(dirty));
        if (auto const then = m_OnDraw)
            then(row, column);
    }
    void DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect) override
    {
        m_Draws.Add("row empty " + Describe(rect));
        CGridViewer::DrawRowEmptyArea(painter, rect);
    }
    void DrawColumnEmptyArea(IPainter* painter, rectangle<double> const& rect) override
    {
        m_Draws.Add("column empty " + Describe(rect));
        CGridViewer::DrawColumnEmptyArea(painter, rect);
    }
    void ColumnViewModelChanged(IDiscreteItemViewModel*) override { m_Hooks.Add("columns"); }
    void ColumnSelectionModelChanged(ISelectionModel* old, ISelectionModel* now) override
    {
        m_Hooks.Add(old != now ? "column selection" : "same column selection");
        m_OldSelection = old;
        m_NewSelection = now;
    }
    void CurrentColumnChanged(int old, int& now) override
    {
        m_Hooks.Add("column " + std::to_string(old) + " to " + std::to_string(now));
    }
    void SelectionTypeChanged(CEventHandlerBase::SelectionType type) override
    {
        m_Hooks.Add("type " + std::to_string(type));
    }
    using CGridViewer::SetSelectionAxis;
};

// Two rows of 20 and two columns of 40 in a view of 99 x 50.
class GridViewer : public testing::Test
{
protected:
    GridViewer()
    {
        m_Host.Focus();
        m_Grid->SetAutoRowHeight(false);
        Rows().SetDefaultItemSize(20);
        Rows().SetCount(2);
        Columns().SetDefaultItemSize(40);
        Columns().SetCount(2);
        m_Grid->SetFocus(true);
        Settle();
    }
    IDiscreteItemViewModel& Rows() { return *m_Grid->GetRowViewModel(); }
    IDiscreteItemViewModel& Columns() { return *m_Grid->GetColumnViewModel(); }
    ISelectionModel& RowSelection() { return *m_Grid->GetRowSelectionModel(); }
    ISelectionModel& ColumnSelection() { return *m_Grid->GetColumnSelectionModel(); }
    void Settle()
    {
        m_Host.Paint();
        m_Grid->m_Draws.Take();
        m_Grid->m_Hooks.Take();
    }
    std::string Paint()
    {
        m_Grid->m_Draws.Take();
        m_Host.Paint();
        return m_Grid->m_Draws.Take();
    }
    // Only what is told of cells.
    std::string Cells()
    {
        std::string text = Paint();
        for (std::size_t at; (at = text.find("column empty")) != std::string::npos;)
            text.erase(at, text.find("), ", at) == std::string::npos ? text.size() : text.find("), ", at) + 3 - at);
        if (std::size_t const at = text.find("row empty"); at != std::string::npos)
            text.erase(at);
        while (!text.empty() && (text.back() == ' ' || text.back() == ','))
            text.pop_back();
        return text;
    }

    CTestHost m_Host{100, 51};
    CTestGrid* m_Grid = new CTestGrid(m_Host.Root(), {10, 10}, alClient);
    ISelectionModel* m_OwnColumnSelection = m_Grid->GetColumnSelectionModel();
};

TEST_F(GridViewer, StartsWithARowHandlerInTheChainAndAColumnHandlerBesideIt)
{
    EXPECT_EQ(m_Grid->GetEventHandlers(), &m_Grid->GetRowHandler());
    EXPECT_EQ(m_Grid->GetRowHandler().GetNext(), nullptr);
    EXPECT_EQ(m_Grid->GetColumnHandler().GetDirection(), idHorizontal);
    EXPECT_EQ(m_Grid->GetColumnHandler().GetSelectionType(), CEventHandlerBase::stNone);
    EXPECT_EQ(m_Grid->GetRowHandler().GetSelectionType(), CEventHandlerBase::stFree);
    EXPECT_EQ(m_Grid->GetColumnViewModel(), m_Grid->GetColumnHandler().GetViewModel());
    EXPECT_EQ(m_Grid->GetColumnSelectionModel(), m_Grid->GetColumnHandler().GetSelectionModel());
    auto* const scroll = dynamic_cast<CDiscreteItemScrollModel*>(m_Grid->GetHorzScroll());
    ASSERT_NE(scroll, nullptr);
    EXPECT_EQ(scroll->GetViewModel(), m_Grid->GetColumnViewModel());
    EXPECT_EQ(Columns().GetViewSize(), 99);
    EXPECT_EQ(Rows().GetViewSize(), 50);
}

TEST_F(GridViewer, ANullScrollModelBringsBackTheOwn)
{
    IScrollModel* const own = m_Grid->GetHorzScroll();
    CContinuousItemScrollModel other;
    m_Grid->SetHorzScroll(&other);
    EXPECT_EQ(m_Grid->GetHorzScroll(), &other);
    m_Grid->SetHorzScroll(nullptr);
    EXPECT_EQ(m_Grid->GetHorzScroll(), own);
}

TEST_F(GridViewer, WalksTheColumnsOncePerRow)
{
    m_Grid->m_WithRects = true;
    m_Host.FullPaint();
    EXPECT_EQ(m_Grid->m_Draws.Take(),
              "0/0 state 0 (0, 0, 39, 19) item, 0/1 state 0 (40, 0, 79, 19) item, column empty (80, 0, 99, 19), "
              "1/0 state 0 (0, 20, 39, 39) item, 1/1 state 0 (40, 20, 79, 39) item, column empty (80, 20, 99, 39), "
              "row empty (0, 40, 99, 50)");
}

TEST_F(GridViewer, EmptyAreasAreFilledWithTheBackground)
{
    m_Host.Name(*m_Grid, "grid");
    m_Grid->SetBkColor(color_table[13]);
    EXPECT_THAT(m_Host.Paint().Of("grid"),
                Draws("SetBrush green").Then("FillRect 80 0 99 19").Then("FillRect 0 40 99 50"));
}

TEST_F(GridViewer, ACellIsCurrentWhereTheCurrentRowMeetsTheCurrentColumn)
{
    RowSelection().SetCurrent(1);
    ColumnSelection().SetCurrent(0);
    EXPECT_EQ(Cells(), "0/0 state 0 item, 0/1 state 0 other, 1/0 state 2 item, 1/1 state 0 item");
}

TEST_F(GridViewer, ASelectedRowSelectsItsCells)
{
    RowSelection().SelectItem(0, true);
    RowSelection().SetCurrent(0);
    ColumnSelection().SelectItem(1, true);  // columns don't select
    ColumnSelection().SetCurrent(1);
    EXPECT_EQ(Cells(), "0/0 state 1 item, 0/1 state 3 item, 1/0 state 0 other, 1/1 state 0 item");
}

TEST_F(GridViewer, WithoutSelectionOnlyTheCurrentCellShows)
{
    m_Grid->SetSelectionType(CEventHandlerBase::stNone);
    RowSelection().SelectItem(0, true);
    RowSelection().SetCurrent(0);
    ColumnSelection().SetCurrent(1);
    Settle();
    m_Grid->Update(utElement);
    EXPECT_EQ(Cells(), "0/0 state 0 none, 0/1 state 2 none, 1/0 state 0 none, 1/1 state 0 none");
}

TEST_F(GridViewer, ColumnsThatSelectSelectTheirCells)
{
    m_Grid->SetSelectionAxis(CTestGrid::saColumns);
    ColumnSelection().SetCurrent(1);
    m_Grid->SetSelectionType(CEventHandlerBase::stOneItem);
    EXPECT_TRUE(ColumnSelection().IsItemSelected(1));
    EXPECT_EQ(m_Grid->GetColumnHandler().GetSelectionType(), CEventHandlerBase::stOneItem);
    EXPECT_EQ(m_Grid->GetRowHandler().GetSelectionType(), CEventHandlerBase::stFree);
    RowSelection().SetCurrent(0);
    Settle();
    m_Grid->Update(utElement);
    EXPECT_EQ(Cells(), "0/0 state 0 none, 0/1 state 3 none, 1/0 state 0 none, 1/1 state 1 none");
}

TEST_F(GridViewer, ASelectionTypeForgetsWhatIsSelectedButTheCurrentRow)
{
    RowSelection().SetCurrent(1);
    RowSelection().SetSelectionRange(0, 1);
    ColumnSelection().SetCurrent(1);
    ColumnSelection().SelectItem(0, true);
    m_Grid->SetSelectionType(CEventHandlerBase::stFree);
    EXPECT_EQ(RowSelection().GetSelectedCount(), 2);
    EXPECT_EQ(m_Grid->m_Hooks.Take(), "");
    m_Grid->SetSelectionType(CEventHandlerBase::stOneItem);
    EXPECT_EQ(m_Grid->m_Hooks.Take(), "type 0");
    EXPECT_EQ(RowSelection().GetSelectedCount(), 1);
    EXPECT_TRUE(RowSelection().IsItemSelected(1));
    EXPECT_EQ(ColumnSelection().GetSelectedCount(), 0);
    EXPECT_EQ(m_Grid->GetColumnHandler().GetSelectionType(), CEventHandlerBase::stNone);
    m_Grid->SetSelectionType(CEventHandlerBase::stNone);
    EXPECT_EQ(RowSelection().GetSelectedCount(), 0);
    EXPECT_EQ(m_Grid->GetRowHandler().GetSelectionType(), CEventHandlerBase::stNone);
    EXPECT_EQ(m_Grid->GetSelectionType(), CEventHandlerBase::stNone);
}

TEST_F(GridViewer, ACellIsDirtyIfItsRowOrItsColumnIs)
{
    Rows().AddDirtyItems(1, 1);
    m_Grid->Update(utElement);
    EXPECT_EQ(Cells(), "0/0 state 0 other, 0/1 state 0 other, 1/0 state 0 item, 1/1 state 0 item");
    Columns().AddDirtyItems(0, 0);
    m_Grid->Update(utElement);
    EXPECT_EQ(Cells(), "0/0 state 0 item, 0/1 state 0 other, 1/0 state 0 item, 1/1 state 0 other");
    EXPECT_EQ(Dirty(Rows(), 3), "none");
    EXPECT_EQ(Dirty(Columns(), 3), "none");
    EXPECT_EQ(Dirty(RowSelection(), 3), "none");
    EXPECT_EQ(Dirty(ColumnSelection(), 3), "none");
}

TEST_F(GridViewer, AfterAPaintTheSelectionsOfBothAxesAreClean)
{
    ColumnSelection().AddDirtyItems(1, 1);
    RowSelection().AddDirtyItems(1, 1);
    m_Grid->Update(utElement);
    EXPECT_EQ(Cells(), "0/0 state 0 other, 0/1 state 0 item, 1/0 state 0 item, 1/1 state 0 item");
    EXPECT_EQ(Dirty(ColumnSelection(), 3), "none");
}

TEST_F(GridViewer, ColumnsScrollOnTheirOwn)
{
    Columns().SetDefaultItemSize(20);
    Columns().SetCount(8);
    Rows().SetCount(1);
    Settle();
    Columns().SetStartItem(1);
    EXPECT_EQ(Cells(), "0/1 state 0 other, 0/2 state 0 other, 0/3 state 0 other, 0/4 state 0 item, 0/5 state 0 item");
    Columns().SetStartItem(0);
    EXPECT_EQ(Cells(), "0/0 state 0 item, 0/1 state 0 other, 0/2 state 0 other, 0/3 state 0 other, 0/4 state 0 other");
    Columns().SetStartItem(3);  // no column stays in view as a whole
    EXPECT_EQ(Cells(), "0/3 state 0 item, 0/4 state 0 item, 0/5 state 0 item, 0/6 state 0 item, 0/7 state 0 item");
}

TEST_F(GridViewer, MouseAndKeysAreTheRowHandlers)
{
    m_Host.Mouse().Click(*m_Grid, 50, 30);
    EXPECT_EQ(RowSelection().GetCurrent(), 1);
    EXPECT_TRUE(RowSelection().IsItemSelected(1));
    EXPECT_EQ(ColumnSelection().GetCurrent(), -1);
    EXPECT_FALSE(m_Grid->HandleKeyDown(0, vkRight));
    EXPECT_EQ(ColumnSelection().GetCurrent(), -1);
}

TEST_F(GridViewer, AColumnHandlerTellsOfItsCurrentAndItsSelection)
{
    m_Grid->GetColumnHandler().SetNotifySelection(true);
    m_Grid->GetColumnHandler().SetSelectionType(CEventHandlerBase::stFree);
    CSignalLog log(m_Grid->m_SigColumnSelectionChanged, "columns");
    log.Add(m_Grid->m_SigSelectionChanged, "rows");
    m_Grid->GetColumnHandler().SetCurrentItem(1);
    EXPECT_EQ(m_Grid->m_Hooks.Take(), "column -1 to 1");
    ColumnSelection().SelectItem(1, true);
    m_Host.RunPending();
    EXPECT_EQ(log.Text(), "columns()");
}

TEST_F(GridViewer, NewColumnModelsGetTheViewAndArePainted)
{
    CNonEqualItemsViewModel model;
    model.SetDefaultItemSize(60);
    model.SetCount(2);
    model.OnEndDraw();
    m_Grid->SetColumnViewModel(&model);
    EXPECT_EQ(m_Grid->m_Hooks.Take(), "columns");
    EXPECT_EQ(model.GetViewSize(), 99);
    EXPECT_EQ(Cells(), "0/0 state 0 item, 0/1 state 0 item, 1/0 state 0 item, 1/1 state 0 item");
    CDefaultSelectionModel selection;
    m_Grid->SetColumnSelectionModel(&selection);
    EXPECT_EQ(m_Grid->m_Hooks.Take(), "column selection");
    EXPECT_EQ(m_Grid->m_OldSelection, m_OwnColumnSelection);
    EXPECT_EQ(m_Grid->m_NewSelection, &selection);
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(m_Grid->GetColumnHandler().GetSelectionModel(), &selection);
    m_Grid->SetColumnViewModel(nullptr);
    m_Grid->SetColumnSelectionModel(nullptr);
    EXPECT_EQ(Columns().GetCount(), 2);
    EXPECT_EQ(Columns().GetDefaultItemSize(), 40);
    EXPECT_NE(&ColumnSelection(), &selection);
}

TEST_F(GridViewer, ANewColumnModelThatKnowsItsViewAlreadyIsPaintedAndToldToTheBar)
{
    class CCountedScroll : public CDiscreteItemScrollModel
    {
    public:
        int m_Updates = 0;
        void Update() override { ++m_Updates; }
    };
    CCountedScroll horizontal;
    m_Grid->SetHorzScroll(&horizontal);
    CDefaultDiscreteItemViewModel model;
    model.SetDefaultItemSize(60);
    model.SetCount(2);
    model.SetViewSize(99, false);
    model.OnEndDraw();
    Settle();
    EXPECT_FALSE(m_Host.IsFramePending());
    horizontal.m_Updates = 0;
    m_Grid->SetColumnViewModel(&model);
    EXPECT_EQ(Dirty(model, 3), "0-2");
    EXPECT_EQ(horizontal.m_Updates, 1);
    EXPECT_TRUE(m_Host.IsFramePending());
    model.SetCount(3);
    EXPECT_EQ(horizontal.m_Updates, 2);
    m_Grid->SetColumnViewModel(nullptr);
    m_Grid->SetHorzScroll(nullptr);
}

TEST_F(GridViewer, AnAncestorThatIsPaintedPaintsAllWhereAColumnIsSelectedAnew)
{
    ColumnSelection().AddDirtyItems(1, 1);
    m_Host.Root()->Update(utElement);
    EXPECT_EQ(Cells(), "0/0 state 0 item, 0/1 state 0 item, 1/0 state 0 item, 1/1 state 0 item");
}

TEST_F(GridViewer, AFullPaintFillsTheEmptyAreasOfRowsThatAreClean)
{
    m_Host.Name(*m_Grid, "grid");
    Rows().AddDirtyItems(1, 1);
    EXPECT_THAT(m_Host.FullPaint().Of("grid"), Draws("FillRect 80 0 99 19").Then("FillRect 80 20 99 39"));
}

TEST_F(GridViewer, ANewColumnSelectionWithNothingToPaintPaintsAllCells)
{
    CDefaultSelectionModel selection;
    selection.SetCurrent(1);
    selection.OnEndDraw();
    RowSelection().SetCurrent(0);
    Settle();
    Columns().AddDirtyItems(0, 0);
    m_Grid->SetColumnSelectionModel(&selection);
    EXPECT_EQ(Dirty(Rows(), 3), "0-3");
    EXPECT_EQ(Cells(), "0/0 state 0 item, 0/1 state 2 item, 1/0 state 0 item, 1/1 state 0 item");
    m_Grid->SetColumnSelectionModel(nullptr);
}

TEST_F(GridViewer, WithoutAPainterOfItsColumnsDrawsOnlyTheAreaBehindTheRows)
{
    m_Grid->GetColumnHandler().SetPainter(nullptr);
    m_Host.FullPaint();
    EXPECT_EQ(m_Grid->m_Draws.Take(), "row empty (0, 40, 99, 50)");
}

TEST_F(GridViewer, ColumnModelsThatDieAreReplacedByTheOwn)
{
    {
        CNonEqualItemsViewModel model;
        CDefaultSelectionModel selection;
        m_Grid->SetColumnViewModel(&model);
        m_Grid->SetColumnSelectionModel(&selection);
        Settle();
    }
    EXPECT_EQ(Columns().GetDefaultItemSize(), 40);
    EXPECT_EQ(m_Grid->GetColumnHandler().GetViewModel(), m_Grid->GetColumnViewModel());
    EXPECT_EQ(m_Grid->GetColumnHandler().GetSelectionModel(), m_Grid->GetColumnSelectionModel());
    EXPECT_EQ(dynamic_cast<CDiscreteItemScrollModel*>(m_Grid->GetHorzScroll())->GetViewModel(), &Columns());
    EXPECT_EQ(Cells(), "0/0 state 0 item, 0/1 state 0 item, 1/0 state 0 item, 1/1 state 0 item");
}

TEST_F(GridViewer, BothViewsFollowThePlaceOfTheGrid)
{
    m_Grid->SetPos({0, 0, 70, 30}, false);
    EXPECT_EQ(Columns().GetViewSize(), 70);
    EXPECT_EQ(Rows().GetViewSize(), 30);
}

TEST_F(GridViewer, TheAreaBehindTheRowsIsPaintedWithAnotherWidth)
{
    m_Grid->SetAlignment(alNone);
    m_Grid->SetPos({0, 0, 70, 50}, false);
    Settle();
    RowSelection().SetCurrent(1);
    m_Grid->SetPos({0, 0, 80, 50}, false);
    EXPECT_EQ(Dirty(Rows(), 4), "2");
    m_Host.Name(*m_Grid, "grid");
    m_Grid->Update(utElement);
    EXPECT_THAT(m_Host.Paint().Of("grid"), Draws("FillRect 0 40 80 50"));
    m_Grid->SetPos({0, 0, 60, 50}, false);
    EXPECT_EQ(Dirty(Rows(), 4), "2");
    EXPECT_EQ(Dirty(Columns(), 4), "2");  // the area behind the columns
}

TEST_F(GridViewer, AGridThatComesBackIsPaintedWhole)
{
    m_Grid->SetVisible(false);
    m_Host.Paint();
    m_Grid->SetVisible(true);
    EXPECT_EQ(Dirty(Columns(), 2), "0-2");
    EXPECT_EQ(Dirty(Rows(), 2), "0-2");
    EXPECT_EQ(Cells(), "0/0 state 0 item, 0/1 state 0 item, 1/0 state 0 item, 1/1 state 0 item");
}

TEST_F(GridViewer, ToHideOrShowTheGridOrWhatItIsInMarksRowsAndColumnsAndWhatLiesBehindThem)
{
    for (CVisualElement* const hidden : {static_cast<CVisualElement*>(m_Grid), m_Host.Root()})
        for (bool const visible : {false, true})
        {
            Rows().OnEndDraw();
            Columns().OnEndDraw();
            hidden->SetVisible(visible);
            EXPECT_EQ(Dirty(Columns(), 4), "0-2");
            EXPECT_EQ(Dirty(Rows(), 4), "0-2");
        }
    for (bool const ofParent : {false, true})
    {
        Rows().OnEndDraw();
        Columns().OnEndDraw();
        if (ofParent)
            m_Grid->ProcessSetParentVisible(true);
        else
            m_Grid->ProcessSetVisible(true);
        EXPECT_EQ(Dirty(Columns(), 4), "0-2");
        EXPECT_EQ(Dirty(Rows(), 4), "0-2");
    }
}

class CCutRows : public CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>
{
public:
    using CGridViewer::CGridViewer;
    CDrawLog m_Draws;
    void DrawRow(IPainter* painter, int row, int, int state, rectangle<double> const& rect,
                 IDirtyItemSet::DirtyType dirty) override
    {
        CGridViewer::DrawRow(painter, row, row + 3, state, rect, dirty);
    }
    void DrawCell(IPainter*, int row, int rowSkip, int column, int columnSkip, int, rectangle<double> const&,
                  IDirtyItemSet::DirtyType) override
    {
        m_Draws.Add(std::to_string(row) + " cut by " + std::to_string(rowSkip) + ", " + std::to_string(column) +
                    " cut by " + std::to_string(columnSkip));
    }
};

TEST_F(GridViewer, ACellHearsHowMuchOfItsRowLiesAboveTheView)
{
    delete m_Grid;
    auto* const grid = new CCutRows(m_Host.Root(), {10, 10}, alClient);
    grid->GetRowViewModel()->SetCount(2);
    grid->GetColumnViewModel()->SetCount(1);
    m_Host.Paint();
    EXPECT_EQ(grid->m_Draws.Take(), "0 cut by 3, 0 cut by 0, 1 cut by 4, 0 cut by 0");
}

class CGlassGrid : public CTransparentFlavor<CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>>
{
public:
    using CTransparentFlavor::CTransparentFlavor;
    void DrawCell(IPainter*, int, int, int, int, int, rectangle<double> const&, IDirtyItemSet::DirtyType) override {}
};

TEST_F(GridViewer, MayBeTransparent)
{
    CGlassGrid glass(nullptr, {10, 10}, alClient);
    glass.SetDynamic(false);
    glass.SetTransparent(true);
    EXPECT_TRUE(glass.IsTransparent());
    EXPECT_FALSE(m_Grid->IsTransparent());
}

}  // namespace
