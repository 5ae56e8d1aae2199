// Whatever a slot does away with while a user works at a bar, the bar touches nothing that is dead.

#include "tests/charts/bar_bench.h"
#include "tests/support/deed_play.h"
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
class CScene : public CDeedPlay<CBar>
{
public:
    CScene() : CDeedPlay<CBar>({200, 200})
    {
        m_Bar->SetStyle(CBar::bsResizeSections | CBar::bsResizeBar);
        m_Bar->SetCentralPane(m_Pane);
        m_Bar->SetVertScroll(m_Steps.get());
        m_Bar->SetCategoryModel(m_Names.get());
        Watch(*m_Bar);
        m_Host->Paint();
    }
    ~CScene() { End(); }

    // Everything that a user can do, each step on its own.
    static std::vector<Step> Steps()
    {
        auto const move = [](int x, int y) { return [x, y](CTestHost& host) { host.Mouse().Move(x, y); }; };
        auto const press = [](CTestHost& host) { host.Mouse().Press(); };
        auto const release = [](CTestHost& host) { host.Mouse().Release(); };
        auto const paint = [](CTestHost& host) { host.Paint(); };
        auto const wait = [](CTestHost& host) { host.Clock().Advance(200); };
        auto const shift = [](CTestHost& host) { host.Keyboard().Hold(ksShift); };
        auto const noKeys = [](CTestHost& host) { host.Keyboard().Hold(0); };
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
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
        m_Host->Keyboard().Hold(0);
    }

    // Misdeeds
    void DeletePane() { Delete(m_Pane); }
    void DeleteParent() { Delete(m_Parent); }
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
    void Turn()
    {
        if (IsThere(m_Bar))
            m_Bar->SetAlignment(alTop);
    }

private:
    void Watch(CBar& bar)
    {
        WatchWidget(m_Bar, {m_Pane, m_Parent});
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
    CBarPane* const m_Parent = new CBarPane(m_Host->Root(), {0, 0}, alClient);
    CBar* const m_Bar = new CBar(m_Parent, {20, 20}, alLeft);
    CBarPane* const m_Pane = new CBarPane(m_Parent, {0, 0}, alClient);
};

SMisdeed<CScene> const g_Misdeeds[] = {{"DeleteBar", &CScene::DeleteWidget},
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

class BarDeletion : public CDeedTest<CScene>
{};
INSTANTIATE_TEST_SUITE_P(ByDeed, BarDeletion, testing::ValuesIn(g_Misdeeds), NameOfDeed());

}  // namespace

TEST_P(BarDeletion, InASlotIsSurvived)
{
    DoInEachSlot(g_Signals, [this](std::string const& signal) {
        // Nobody catches what is thrown in a layout or a paint, nor may a layout turn against itself.
        return (Is("Cancel") && (signal == "draw" || signal == "size")) || (Is("Turn") && signal == "size");
    });
}

TEST_P(BarDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep([](CScene& scene) {
        if (!scene.IsThere(scene.m_Bar))
            return;
        EXPECT_EQ(scene.m_Bar->GetDragSection(), -1);
        EXPECT_EQ(scene.m_Bar->GetDropTarget(), -1);
    });
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
