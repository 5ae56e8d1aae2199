// Whatever dies in a slot of a multi-level header or between two events, the header lives on or goes along in peace.

#include "tests/headers/tree_bench.h"
#include "tests/support/deed_scene.h"
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
class CScene : public CDeedScene
{
public:
    CScene()
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
    ~CScene() { StopWatching(); }
    CScene(CScene const&) = delete;
    CScene& operator=(CScene const&) = delete;

    // Everything that a user can do, each step on its own.
    static std::vector<std::function<void(CTestHost&)>> Steps()
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
        int step = 0;
        for (auto const& act : Steps())
        {
            if (step++ == misdeedAt)
                misdeed(*this);
            if (m_Host->HasControl())
                act(*m_Host);
        }
    }

    // Misdeeds
    void DeleteHeader()
    {
        if (IsThere(m_Header))
            delete m_Header;
    }
    void DeleteGrid()
    {
        if (IsThere(m_Grid))
            delete m_Grid;
    }
    void DeleteBox()
    {
        if (IsThere(m_Box))
            delete m_Box;
    }
    void DeleteControl()
    {
        if (m_Host->HasControl())
            m_Host->DestroyControl();
    }
    void DeleteModel() { m_Tree.reset(); }
    void DeleteCarried()
    {
        if (IsThere(m_Carried))
            delete m_Carried;
    }
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
    void Detach()
    {
        if (IsThere(m_Header) && m_Header->GetParent())
        {
            m_Header->ReParent(nullptr, true);
            m_Detached.reset(m_Header);
        }
    }
    void Hide()
    {
        if (IsThere(m_Header))
            m_Header->SetVisible(false);
    }
    void Disable()
    {
        if (IsThere(m_Header))
            m_Header->SetEnabled(false);
    }

    bool IsThere(CVisualElement* element) const
    {
        if ((element == m_Header || element == m_Carried) && m_Detached)
            return IsAlive(element);
        return m_Host->HasControl() && IsAlive(element);
    }

private:
    void Watch(CHeader& header)
    {
        WatchElements({m_Header, m_Grid, m_Box, m_Sorter, m_Carried}, [this](CVisualElement* dead) {
            if (dead == m_Header)
                static_cast<void>(m_Detached.release());
        });
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
    std::unique_ptr<CTestHost> m_Host = std::make_unique<CTestHost>(200, 100);
    CScrollBox* const m_Box = new CScrollBox(m_Host->Root(), {0, 0}, alClient);
    CHeader* const m_Header = new CHeader(m_Box, {40, 40}, alTop);
    CViewPane* const m_Sorter = new CViewPane(m_Box, {10, 10}, alBottom);
    CCells* const m_Grid = new CCells(m_Box, {0, 0}, alClient);
    CViewPane* const m_Carried = new CViewPane(m_Header, {6, 6}, alNone);

private:
    std::unique_ptr<CHeader> m_Detached;
};

struct SMisdeed
{
    char const* name;
    std::function<void(CScene&)> deed;
};
SMisdeed const g_Misdeeds[] = {{"DeleteHeader", &CScene::DeleteHeader},
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

class HeaderDeletion : public testing::TestWithParam<int>
{
protected:
    SMisdeed const& Misdeed() const { return g_Misdeeds[GetParam()]; }
    bool DeletesTheHeader() const
    {
        std::string const name = Misdeed().name;
        return name == "DeleteHeader" || name == "DeleteBox" || name == "DeleteControl";
    }
};
INSTANTIATE_TEST_SUITE_P(ByDeed, HeaderDeletion, testing::Range(0, static_cast<int>(std::size(g_Misdeeds))),
                         [](testing::TestParamInfo<int> const& param) {
                             return std::string(g_Misdeeds[param.param].name);
                         });

}  // namespace

TEST_P(HeaderDeletion, InASlotIsSurvived)
{
    for (char const* const signal : g_Signals)
    {
        int fired = 0;
        {
            CScene scene;
            auto const ear = scene.m_Connect.at(signal)([&] { ++fired; });
            scene.Run();
        }
        EXPECT_GT(fired, 0) << signal;
        for (int turn = 1; turn <= fired && turn <= 6; ++turn)
        {
            SCOPED_TRACE(std::string(signal) + " " + std::to_string(turn));
            CScene scene;
            int count = 0;
            auto const ear = scene.m_Connect.at(signal)([&] {
                if (++count == turn)
                    Misdeed().deed(scene);
            });
            scene.Run();
            EXPECT_GE(count, turn);
            if (DeletesTheHeader())
            {
                EXPECT_FALSE(scene.IsThere(scene.m_Header));
            }
        }
    }
}

TEST_P(HeaderDeletion, BetweenTwoEventsIsSurvived)
{
    if (Misdeed().name == std::string("Cancel"))
        return;  // nobody would catch it
    int const steps = static_cast<int>(CScene::Steps().size());
    for (int step = 0; step < steps; ++step)
    {
        SCOPED_TRACE(step);
        CScene scene;
        scene.Run(step, Misdeed().deed);
        if (!scene.IsThere(scene.m_Header))
            continue;
        if (!scene.m_Header->GetControl())
            scene.m_Header->HandleMouseMove(0, 0, 0, mbNone);
        EXPECT_EQ(scene.m_Header->GetProcessing().m_State, 0);
    }
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
