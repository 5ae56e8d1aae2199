// Whatever a slot does away with while a user works at a bar, the bar touches nothing that is dead.

#include "tests/charts/bar_bench.h"
#include "tests/support/deed_scene.h"
#include "tests/support/slot.h"
#include "vexel/signals/cancel_processing.h"

#include <functional>
#include <map>
#include <memory>
#include <set>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A bar at the left of a pane in a parent, 200 x 200, with sections from 0 to 50, 110, 150, 190, 230 and 270.
class CScene : public CDeedScene
{
public:
    CScene()
    {
        m_Bar->SetStyle(CBar::bsResizeSections | CBar::bsResizeBar);
        m_Bar->SetCentralPane(m_Pane);
        m_Bar->SetVertScroll(m_Steps.get());
        m_Bar->SetCategoryModel(m_Names.get());
        Watch(*m_Bar);
        m_Host->Paint();
    }
    ~CScene() { StopWatching(); }
    CScene(CScene const&) = delete;
    CScene& operator=(CScene const&) = delete;

    // Everything that a user can do, each step on its own.
    static std::vector<std::function<void(CScene&)>> Steps()
    {
        auto const move = [](int x, int y) { return [x, y](CScene& scene) { scene.m_Host->Mouse().Move(x, y); }; };
        auto const press = [](CScene& scene) { scene.m_Host->Mouse().Press(); };
        auto const release = [](CScene& scene) { scene.m_Host->Mouse().Release(); };
        auto const paint = [](CScene& scene) { scene.m_Host->Paint(); };
        auto const wait = [](CScene& scene) { scene.m_Host->Clock().Advance(200); };
        auto const shift = [](CScene& scene) { scene.m_Host->Keyboard().Hold(ksShift); };
        auto const noKeys = [](CScene& scene) { scene.m_Host->Keyboard().Hold(0); };
        return {
            move(10, 48), press,         move(10, 60), move(10, 70), paint,         release,         // a divider
            move(19, 70), press,         move(30, 70), paint,        move(25, 70),  release, paint,  // the free edge
            move(10, 70), press,         release,      paint,                                        // a click
            shift,        move(10, 120), press,        release,      noKeys,        paint,           // a stretch
            move(10, 70), press,         move(10, 74), paint,        move(10, 140), paint,   release, paint,  // a drop
            move(10, 70), press,         move(10, 80), paint,        move(10, 260), wait,    paint,   wait,
            move(10, 10), paint,         release,      paint,        move(150, 150)};
    }
    void Run(int misdeedAt = -1, std::function<void(CScene&)> const& misdeed = {})
    {
        int step = 0;
        for (auto const& act : Steps())
        {
            if (step++ == misdeedAt)
                misdeed(*this);
            if (m_Host->HasControl())
                act(*this);
        }
        m_Host->Keyboard().Hold(0);
    }

    // Misdeeds
    void DeleteBar()
    {
        if (IsThere(m_Bar))
            delete m_Bar;
    }
    void DeletePane()
    {
        if (IsThere(m_Pane))
            delete m_Pane;
    }
    void DeleteParent()
    {
        if (IsThere(m_Parent))
            delete m_Parent;
    }
    void DeleteControl()
    {
        if (m_Host->HasControl())
            m_Host->DestroyControl();
    }
    void DeleteNames() { m_Names.reset(); }
    void DeleteSteps()
    {
        if (IsThere(m_Bar))
            m_Bar->SetVertScroll(nullptr);
        m_Steps.reset();
    }
    void Empty()
    {
        if (!m_Names)
            return;
        m_Names->m_Count = 0;
        m_Names->m_SigChanged();
    }
    void Detach()
    {
        if (!IsThere(m_Bar) || !m_Bar->GetParent())
            return;
        m_Bar->ReParent(nullptr, true);
        m_Detached.reset(m_Bar);
    }
    void Hide()
    {
        if (IsThere(m_Bar))
            m_Bar->SetVisible(false);
    }
    void Disable()
    {
        if (IsThere(m_Bar))
            m_Bar->SetEnabled(false);
    }
    void Turn()
    {
        if (IsThere(m_Bar))
            m_Bar->SetAlignment(alTop);
    }

    bool IsThere(CVisualElement* element) const
    {
        if (element == m_Bar && m_Detached)
            return true;
        return m_Host->HasControl() && IsAlive(element);
    }

private:
    void Watch(CBar& bar)
    {
        WatchElements({m_Bar, m_Pane, m_Parent}, [this](CVisualElement* dead) {
            if (dead == m_Bar)
                static_cast<void>(m_Detached.release());
        });
        On<CBar*, int, int>("dropped", bar.m_SigSectionDropped);
        On<bool*>("barResizeAllowed", bar.m_SigBarResizeAllowed);
        On<size<int>&>("barResized", bar.m_SigBarResized);
        On<int, bool*>("resizeAllowed", bar.m_SigSectionResizeAllowed);
        On<int, double>("resizing", bar.m_SigSectionResizing);
        On<int, double>("resized", bar.m_SigSectionResized);
        On<int, bool*>("dragAllowed", bar.m_SigDragAllowed);
        On<int, int>("moved", bar.m_SigSectionMoved);
        On<int, bool*>("pressAllowed", bar.m_SigPressAllowed);
        On<int>("clicked", bar.m_SigSectionClicked);
        On<int>("hover", bar.m_SigHover);
        On<CVisualElement*, IPainter*>("draw", bar.m_SigDraw);
        On<CVisualElement*>("size", bar.m_SigSize);
    }

public:
    std::unique_ptr<CNames> m_Names = std::make_unique<CNames>(6);
    std::unique_ptr<CSteps> m_Steps = std::make_unique<CSteps>(std::vector<double>{12.5, 15, 10, 10, 10, 10});
    std::unique_ptr<CTestHost> m_Host = std::make_unique<CTestHost>(200, 200);
    CBarPane* const m_Parent = new CBarPane(m_Host->Root(), {0, 0}, alClient);
    CBar* const m_Bar = new CBar(m_Parent, {20, 20}, alLeft);
    CBarPane* const m_Pane = new CBarPane(m_Parent, {0, 0}, alClient);

private:
    std::unique_ptr<CBar> m_Detached;
};

struct SMisdeed
{
    char const* name;
    std::function<void(CScene&)> deed;
};
SMisdeed const g_Misdeeds[] = {{"DeleteBar", &CScene::DeleteBar},
                               {"DeletePane", &CScene::DeletePane},
                               {"DeleteParent", &CScene::DeleteParent},
                               {"DeleteControl", &CScene::DeleteControl},
                               {"DeleteNames", &CScene::DeleteNames},
                               {"DeleteSteps", &CScene::DeleteSteps},
                               {"Empty", &CScene::Empty},
                               {"Detach", &CScene::Detach},
                               {"Hide", &CScene::Hide},
                               {"Disable", &CScene::Disable},
                               {"Turn", &CScene::Turn},
                               {"Cancel", [](CScene&) { throw vexel::cancel_processing(); }}};
char const* const g_Signals[] = {
    "dropped", "barResizeAllowed", "barResized", "resizeAllowed", "resizing", "resized", "dragAllowed",
    "moved",   "pressAllowed",     "clicked",    "hover",         "draw",     "size"};

class BarDeletion : public testing::TestWithParam<int>
{
protected:
    SMisdeed const& Misdeed() const { return g_Misdeeds[GetParam()]; }
};
INSTANTIATE_TEST_SUITE_P(ByDeed, BarDeletion, testing::Range(0, static_cast<int>(std::size(g_Misdeeds))),
                         [](testing::TestParamInfo<int> const& param) {
                             return std::string(g_Misdeeds[param.param].name);
                         });

}  // namespace

TEST_P(BarDeletion, InASlotIsSurvived)
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
        // Nobody catches what is thrown in a layout or a paint.
        if (Misdeed().name == std::string("Cancel") && (signal == std::string("draw") || signal == std::string("size")))
            continue;
        // Nor may a layout turn against itself.
        if (Misdeed().name == std::string("Turn") && signal == std::string("size"))
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

TEST_P(BarDeletion, BetweenTwoEventsIsSurvived)
{
    if (Misdeed().name == std::string("Cancel"))
        return;  // nobody would catch it
    int const steps = static_cast<int>(CScene::Steps().size());
    for (int step = 0; step < steps; ++step)
    {
        SCOPED_TRACE(step);
        CScene scene;
        scene.Run(step, Misdeed().deed);
        if (!scene.IsThere(scene.m_Bar))
            continue;
        EXPECT_EQ(scene.m_Bar->GetDragSection(), -1);
        EXPECT_EQ(scene.m_Bar->GetDropTarget(), -1);
    }
}

TEST(BarModel, ACategoryModelThatDiesIsForgotten)
{
    CBar bar(nullptr, {20, 20}, alTop);
    {
        CNames names(3);
        bar.SetCategoryModel(&names);
    }
    EXPECT_EQ(bar.GetCategoryModel(), nullptr);
    EXPECT_EQ(bar.HitTest({5, 5}).m_Area, CBar::htNothing);
}
