// Whatever a slot does away with while a user works at a header, the header touches nothing that is dead.

#include "tests/headers/header_grid.h"
#include "tests/support/deed_scene.h"
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
class CScene : public CDeedScene
{
public:
    CScene()
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
    ~CScene() { StopWatching(); }
    CScene(CScene const&) = delete;
    CScene& operator=(CScene const&) = delete;

    // Everything that a user can do, each step on its own.
    static std::vector<std::function<void(CTestHost&)>> Steps()
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
        if (element == m_Header && m_Detached)
            return true;
        return m_Host->HasControl() && IsAlive(element);
    }

private:
    void Watch(CSimpleHeader& header)
    {
        WatchElements({m_Header, m_Grid, m_Box, m_Sorter}, [this](CVisualElement* dead) {
            if (dead == m_Header)
                static_cast<void>(m_Detached.release());
        });
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
    std::unique_ptr<CTestHost> m_Host = std::make_unique<CTestHost>(200, 100);
    CScrollBox* const m_Box = new CScrollBox(m_Host->Root(), {0, 0}, alClient);
    CSimpleHeader* const m_Header = new CSimpleHeader(m_Box, {20, 20}, alTop);
    CViewPane* const m_Sorter = new CViewPane(m_Box, {10, 10}, alBottom);
    CSectionGrid* const m_Grid = new CSectionGrid(m_Box, m_Sections.get());

private:
    std::unique_ptr<CSimpleHeader> m_Detached;
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

class SimpleHeaderDeletion : public testing::TestWithParam<int>
{
protected:
    SMisdeed const& Misdeed() const { return g_Misdeeds[GetParam()]; }
};
INSTANTIATE_TEST_SUITE_P(ByDeed, SimpleHeaderDeletion, testing::Range(0, static_cast<int>(std::size(g_Misdeeds))),
                         [](testing::TestParamInfo<int> const& param) {
                             return std::string(g_Misdeeds[param.param].name);
                         });

}  // namespace

TEST_P(SimpleHeaderDeletion, InASlotIsSurvived)
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
        // Amid its change a view model must not die.
        if (signal == std::string("columnSize") && std::string(Misdeed().name).find("Columns") != std::string::npos)
            continue;
        if (signal == std::string("columnSize") && Misdeed().name == std::string("DeleteModels"))
            continue;
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
        }
    }
}

TEST_P(SimpleHeaderDeletion, BetweenTwoEventsIsSurvived)
{
    if (Misdeed().name == std::string("Cancel"))
        return;  // nobody would catch it
    int const steps = static_cast<int>(CScene::Steps().size());
    for (int step = 0; step < steps; ++step)
    {
        SCOPED_TRACE(step);
        CScene scene;
        scene.Run(step, Misdeed().deed);
        if (scene.IsThere(scene.m_Header))
        {
            if (!scene.m_Header->GetControl())
                scene.m_Header->HandleMouseMove(0, 0, 0, mbNone);
            EXPECT_EQ(scene.m_Header->GetState(), CSimpleHeader::stIdle);
        }
    }
}
