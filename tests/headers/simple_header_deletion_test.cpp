// Whatever a slot does away with while a user works at a header, the header touches nothing that is dead.

#include "tests/headers/header_grid.h"
#include "tests/support/deed_play.h"
#include "tests/support/slot.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/views/discrete_item_view_model.h"

#include <functional>
#include <map>
#include <memory>
#include <set>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A header over a grid in a scroll box, 200 x 100; columns of 50 pixels.
class CScene : public CDeedPlay<CSimpleHeader>
{
public:
    CScene() : CDeedPlay<CSimpleHeader>({200, 100})
    {
        m_Host->Focus();
        m_Header->SetBkColor(color_table[3]);
        m_Grid->SetColumnViewModel(m_Columns.get());
        m_Grid->GetRowViewModel()->SetCount(20);
        m_Columns->SetDefaultItemSize(50);
        m_Columns->SetCount(6);
        m_Header->SetModel(m_Sections.get());
        m_Header->SetViewModel(m_Columns.get());
        m_Sections->ConnectHeader(m_Header);
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
        return {[](H& host) { host.Mouse().Press(10, 10, mbRight); },
                [](H& host) { host.Mouse().Release(mbRight); },
                [](H& host) { host.Mouse().Move(70, 10); },
                [](H& host) { host.Mouse().Move(48, 10); },
                [](H& host) { host.Mouse().Press(); },
                [](H& host) { host.Mouse().Move(60, 10); },
                [](H& host) { host.Mouse().Move(70, 10); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Release(); },
                [](H& host) { host.Mouse().Press(20, 10); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Release(); },
                [](H& host) { host.Mouse().Press(20, 10); },
                [](H& host) { host.Mouse().Move(100, 10); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Move(104, 10); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Move(205, 10); },
                [](H& host) { host.Clock().Advance(100); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Move(150, 10); },
                [](H& host) { host.Mouse().Release(); },
                [](H& host) { host.Paint(); },
                [](H& host) { host.Mouse().Press(41, 10); },
                [](H& host) { host.Mouse().Release(); },
                [](H& host) { host.Mouse().DoubleClick(48, 10); },
                [](H& host) { host.Mouse().DoubleClick(49, 10); },
                [](H& host) { host.Mouse().DoubleClick(68, 10); },
                [](H& host) { host.Tooltip(20, 10); },
                [](H& host) { host.Mouse().Leave(); },
                [](H& host) { host.Paint(); }};
    }
    void Run(int misdeedAt = -1, std::function<void(CScene&)> const& misdeed = {})
    {
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
    }

    // Misdeeds
    void DeleteGrid() { Delete(m_Grid); }
    void DeleteBox() { Delete(m_Box); }
    void DeleteSections()
    {
        if (IsThere(m_Grid))
            m_Grid->m_Sections = nullptr;
        m_Sections.reset();
    }
    void DeleteColumns() { m_Columns.reset(); }
    void DeleteModels()
    {
        DeleteColumns();
        DeleteSections();
    }
    void SwapModels()
    {
        if (!IsThere(m_Header))
            return;
        m_Header->SetViewModel(nullptr);
        m_Header->SetModel(&m_Others);
    }
    void DropModels()
    {
        if (!IsThere(m_Header))
            return;
        m_Header->SetViewModel(nullptr);
        m_Header->SetModel(nullptr);
    }
    void Empty()
    {
        if (m_Columns)
            m_Columns->SetCount(0);
    }

private:
    void Watch(CSimpleHeader& header)
    {
        WatchWidget(m_Header, {m_Grid, m_Box, m_Sorter});
        On<CSimpleHeader*, int, bool*>("canResize", header.m_SigCanResize);
        On<CSimpleHeader*, int, int, bool*>("resizing", header.m_SigResizing);
        On<CSimpleHeader*, int, int>("resized", header.m_SigResized);
        On<CSimpleHeader*, int, bool*>("canDrag", header.m_SigCanDrag);
        On<CSimpleHeader*, int, int>("dragOver", header.CSimpleHeader::m_SigDragOver);
        On<CSimpleHeader*, int, int>("moved", header.m_SigSectionMoved);
        On<CSimpleHeader*, int, bool*>("canPress", header.m_SigCanPress);
        On<CSimpleHeader*, int>("clicked", header.m_SigSectionClicked);
        On<CSimpleHeader*, int>("double", header.m_SigDividerDoubleClicked);
        On<CVisualElement*>("getFocus", header.m_SigGetFocus);
        On<CVisualElement*>("lostFocus", m_Sorter->m_SigLostFocus);
        On<int, int, bool*>("columnSize", m_Columns->m_SigSizeChanged);
        On<>("columns", m_Columns->m_SigChanged);
    }

public:
    CSections m_Others{{30, 40}};
    std::unique_ptr<CSections> m_Sections = std::make_unique<CSections>(std::vector<int>{50, 50, 50, 50, 50, 50});
    std::unique_ptr<CDefaultDiscreteItemViewModel> m_Columns = std::make_unique<CDefaultDiscreteItemViewModel>();
    CScrollBox* const m_Box = new CScrollBox(m_Host->Root(), {0, 0}, alClient);
    CSimpleHeader* const m_Header = new CSimpleHeader(m_Box, {20, 20}, alTop);
    CViewPane* const m_Sorter = new CViewPane(m_Box, {10, 10}, alBottom);
    CSectionGrid* const m_Grid = new CSectionGrid(m_Box, m_Sections.get());
};

SMisdeed<CScene> const g_Misdeeds[] = {{"DeleteHeader", &CScene::DeleteWidget},
                                       {"DeleteGrid", &CScene::DeleteGrid},
                                       {"DeleteBox", &CScene::DeleteBox},
                                       {"DeleteControl", &CScene::DeleteControl},
                                       {"DeleteSections", &CScene::DeleteSections},
                                       {"DeleteColumns", &CScene::DeleteColumns},
                                       {"DeleteModels", &CScene::DeleteModels},
                                       {"SwapModels", &CScene::SwapModels},
                                       {"DropModels", &CScene::DropModels},
                                       {"Empty", &CScene::Empty},
                                       {"Detach", &CScene::Detach},
                                       {"Hide", &CScene::Hide},
                                       {"Disable", &CScene::Disable},
                                       {"Cancel", [](CScene&) { throw vexel::cancel_processing(); }}};
char const* const g_Signals[] = {"canResize", "resizing", "resized",  "canDrag",   "dragOver",   "moved",  "canPress",
                                 "clicked",   "double",   "getFocus", "lostFocus", "columnSize", "columns"};

class SimpleHeaderDeletion : public CDeedTest<CScene>
{};
INSTANTIATE_TEST_SUITE_P(ByDeed, SimpleHeaderDeletion, testing::ValuesIn(g_Misdeeds), NameOfDeed());

}  // namespace

TEST_P(SimpleHeaderDeletion, InASlotIsSurvived)
{
    DoInEachSlot(g_Signals, [this](std::string const& signal) {
        // Amid its change a view model must not die.
        return signal == "columnSize" && (Is("DeleteColumns") || Is("DeleteModels"));
    });
}

TEST_P(SimpleHeaderDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep([](CScene& scene) {
        if (!scene.IsThere(scene.m_Header))
            return;
        if (!scene.m_Header->GetControl())
            scene.m_Header->HandleMouseMove(0, 0, 0, mbNone);
        EXPECT_EQ(scene.m_Header->GetState(), CSimpleHeader::stIdle);
    });
}
