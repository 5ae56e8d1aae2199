// Whatever dies in a slot of a multi-level header or between two events, the header lives on or goes along in peace.

#include "tests/headers/tree_bench.h"
#include "tests/support/deed_play.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/grid_viewer.h"

#include <functional>
#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

class CCells : public CGridViewer<IDiscreteItemViewModel, IContinuousItemViewModel>
{
public:
    using CGridViewer::CGridViewer;
    void DrawCell(IPainter* painter, int, int, int column, int, int, rectangle<double> const& rect,
                  IDirtyItemSet::DirtyType) override
    {
        painter->SetBrush({color_table[9 + column % 18], brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    }
};

// A header over a grid in a scroll box, 200 x 100; A from 0 to 99 with a and b of 50 each, B from 100 to 199 with c and d, C.
class CScene : public CDeedPlay<CHeader>
{
public:
    CScene() : CDeedPlay<CHeader>({200, 100})
    {
        m_Host->Focus();
        m_Grid->SetColumnViewModel(m_Header);
        m_Grid->GetRowViewModel()->SetCount(20);
        m_Header->SetModel(m_Tree.get());
        m_Header->SetVisualElement(m_Tree->Find("a"), m_Carried, alLeft);
        m_Box->ConnectElement(m_Grid, CScrollBox::ctBoth, true);
        m_Box->ConnectElement(m_Header, CScrollBox::ctHorizontal, false);
        m_Header->SetCanHaveFocus(true);
        m_Sorter->SetCanHaveFocus(true);
        Watch(*m_Header);
        m_Host->Paint();
        m_Sorter->SetFocus(true);
    }
    ~CScene() { End(); }

    // Everything that a user can do, each step on its own.
    static std::vector<Step> Steps()
    {
        using H = CTestHost;
        return {[](H& host) { host.Mouse().Press(20, 10, mbRight); },
                [](H& host) { host.Mouse().Release(mbRight); },
                [](H& host) { host.Mouse().Move(60, 30); },
                [](H& host) { host.Mouse().Move(48, 30); },  // a's grip
                [](H& host) { host.Mouse().Press(); },
                [](H& host) { host.Mouse().Move(60, 30); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Move(50, 30); },
                [](H& host) { host.Mouse().Release(); },
                [](H& host) { host.Mouse().Press(90, 8); },  // A's button
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Release(); },
                [](H& host) { host.Mouse().Press(40, 8); },  // and where it is now
                [](H& host) { host.Mouse().Release(); },
                [](H& host) { host.Mouse().Press(30, 30); },
                [](H& host) { host.Mouse().Release(); },
                [](H& host) { host.Mouse().Press(30, 30); },
                [](H& host) { host.Mouse().Move(70, 30); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Move(90, 30); },
                [](H& host) { host.Mouse().Move(205, 30); },
                [](H& host) { host.Clock().Advance(100); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Move(80, 30); },
                [](H& host) { host.Mouse().Release(); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().DoubleClick(48, 30); },
                [](H& host) { host.Mouse().DoubleClick(40, 30); },
                [](H& host) { host.Tooltip(20, 10); },
                [](H& host) { host.Mouse().Leave(); },
                [](H& host) { host.Unfocus(); },
                [](H& host) { host.Paint(); }};
    }
    void Run(int misdeedAt = -1, std::function<void(CScene&)> const& misdeed = {})
    {
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
    }

    // Misdeeds
    void DeleteGrid() { Delete(m_Grid); }
    void DeleteBox() { Delete(m_Box); }
    void DeleteModel() { m_Tree.reset(); }
    void DeleteCarried() { Delete(m_Carried); }
    void DeleteItem(std::string const& name, bool tell)
    {
        CItem* const item = m_Tree ? m_Tree->Find(name) : nullptr;
        if (!item)
            return;
        CItemTree::Remove(item);
        if (tell)
            m_Tree->m_SigChanged();
    }
    void DeleteLeaf() { DeleteItem("a", true); }
    void DeleteLeafSilently() { DeleteItem("a", false); }
    void DeleteGroup() { DeleteItem("A", true); }
    void DeleteGroupSilently() { DeleteItem("A", false); }
    void DeleteOthers()
    {
        DeleteItem("B", false);
        DeleteItem("b", true);
    }
    void Reread()
    {
        if (!m_Tree)
            return;
        m_Tree->Read("A(a b) B");
        m_Tree->m_SigChanged();
    }
    void Empty()
    {
        if (!m_Tree)
            return;
        m_Tree->Read("");
        m_Tree->m_SigChanged();
    }
    void SwapModel()
    {
        if (IsThere(m_Header))
            m_Header->SetModel(&m_Other);
    }
    void DropModel()
    {
        if (IsThere(m_Header))
            m_Header->SetModel(nullptr);
    }
    void Collapse()
    {
        if (IsThere(m_Header) && m_Tree && m_Tree->Find("A"))
            m_Header->ExpandItem(m_Tree->Find("A"), false);
    }

private:
    void Watch(CHeader& header)
    {
        WatchWidget(m_Header, {m_Grid, m_Box, m_Sorter, m_Carried});
        On<CHeader*, IHeaderItem*, bool*>("canResize", header.m_SigCanResize);
        On<CHeader*, IHeaderItem*, int, bool*>("resizing", header.m_SigResizing);
        On<CHeader*, IHeaderItem*, int>("resized", header.m_SigResized);
        On<CHeader*, IHeaderItem*, bool*>("canDrag", header.m_SigCanDrag);
        On<CHeader*, IHeaderItem*, int, int>("dragOver", header.m_SigDragOver);
        On<CHeader*, IHeaderItem*, int>("dropped", header.m_SigDropped);
        On<CHeader*, IHeaderItem*, bool*>("canPress", header.m_SigCanPress);
        On<CHeader*, IHeaderItem*>("clicked", header.m_SigClicked);
        On<CHeader*, IHeaderItem*>("double", header.m_SigGripDoubleClicked);
        On<CHeader*, IHeaderItem*, bool>("expanded", header.m_SigExpanded);
        On<CVisualElement*>("getFocus", header.m_SigGetFocus);
        On<CVisualElement*>("lostFocus", m_Sorter->m_SigLostFocus);
        On<CVisualElement*>("carriedSize", m_Carried->m_SigSize);
        On<CVisualElement*, bool>("carriedVisible", m_Carried->m_SigVisible);
        On<int, int, bool*>("columnSize", header.m_SigSizeChanged);
        On<>("columns", header.m_SigChanged);
    }

public:
    CItemTree m_Other{"P:30 Q(q:40)"};
    std::unique_ptr<CItemTree> m_Tree = std::make_unique<CItemTree>("A(a b) B(c d) C");
    CScrollBox* const m_Box = new CScrollBox(m_Host->Root(), {0, 0}, alClient);
    CHeader* const m_Header = new CHeader(m_Box, {40, 40}, alTop);
    CViewPane* const m_Sorter = new CViewPane(m_Box, {10, 10}, alBottom);
    CCells* const m_Grid = new CCells(m_Box, {0, 0}, alClient);
    CViewPane* const m_Carried = new CViewPane(m_Header, {6, 6}, alNone);
};

SMisdeed<CScene> const g_Misdeeds[] = {{"DeleteHeader", &CScene::DeleteWidget},
                                       {"DeleteGrid", &CScene::DeleteGrid},
                                       {"DeleteBox", &CScene::DeleteBox},
                                       {"DeleteControl", &CScene::DeleteControl},
                                       {"DeleteModel", &CScene::DeleteModel},
                                       {"DeleteCarried", &CScene::DeleteCarried},
                                       {"DeleteLeaf", &CScene::DeleteLeaf},
                                       {"DeleteLeafSilently", &CScene::DeleteLeafSilently},
                                       {"DeleteGroup", &CScene::DeleteGroup},
                                       {"DeleteGroupSilently", &CScene::DeleteGroupSilently},
                                       {"DeleteOthers", &CScene::DeleteOthers},
                                       {"Reread", &CScene::Reread},
                                       {"Empty", &CScene::Empty},
                                       {"SwapModel", &CScene::SwapModel},
                                       {"DropModel", &CScene::DropModel},
                                       {"Collapse", &CScene::Collapse},
                                       {"Detach", &CScene::Detach},
                                       {"Hide", &CScene::Hide},
                                       {"Disable", &CScene::Disable},
                                       {"Cancel", [](CScene&) { throw vexel::cancel_processing(); }}};
char const* const g_Signals[] = {"canResize", "resizing",  "resized",        "canDrag",    "dragOver",
                                 "dropped",   "canPress",  "clicked",        "double",     "expanded",
                                 "getFocus",  "lostFocus", "carriedVisible", "columnSize", "columns"};

class HeaderDeletion : public CDeedTest<CScene>
{};
INSTANTIATE_TEST_SUITE_P(ByDeed, HeaderDeletion, testing::ValuesIn(g_Misdeeds), NameOfDeed());

}  // namespace

TEST_P(HeaderDeletion, InASlotIsSurvived)
{
    bool const deletesTheHeader = Is("DeleteHeader") || Is("DeleteBox") || Is("DeleteControl");
    DoInEachSlot(
        g_Signals, [](std::string const&) { return false; },
        [&](CScene& scene) { EXPECT_TRUE(!deletesTheHeader || !scene.IsThere(scene.m_Header)); });
}

TEST_P(HeaderDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep([](CScene& scene) {
        if (!scene.IsThere(scene.m_Header))
            return;
        if (!scene.m_Header->GetControl())
            scene.m_Header->HandleMouseMove(0, 0, 0, mbNone);
        EXPECT_EQ(scene.m_Header->GetProcessing().m_State, 0);
    });
}

TEST(HeaderDeletionByModel, AModelThatDeletesItsHeaderInSetWidthAndExpandIsSurvived)
{
    for (int way = 0; way < 2; ++way)
    {
        CItemTree tree("A(a b) B");
        auto host = std::make_unique<CTestHost>(200, 100);
        CPixelScroll scroll;
        auto* const header = new CHeader(host->Root(), {40, 40}, alTop);
        header->SetHorzScroll(&scroll);
        header->SetModel(&tree);
        bool dead = false;
        auto const death = Listen(header->m_SigDestroy, [&](CVisualElement*) { dead = true; });
        auto const ear = Listen(tree.m_SigChanged, [&] { delete header; });
        tree["a"].m_Tell = tree["A"].m_Tell = &tree.m_SigChanged;
        if (way == 0)
            header->SetItemSize(0, 77);
        else
            header->ExpandItem(&tree["A"], false);
        EXPECT_TRUE(dead);
        host.reset();
    }
}
