// Splitters survive what a slot does to them, to their siblings and to their control, and what happens between two events.

#include "tests/support/deed_play.h"
#include "tests/support/leaf.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/splitter.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

using namespace vexel;
using namespace vexel::test;

namespace
{

/// The user comes over the bar, drags it there and back, lets go and leaves.
class CDragScene : public CDeedPlay<CSplitter>
{
public:
    explicit CDragScene(bool live) : CDeedPlay<CSplitter>({200, 200})
    {
        NameElement(*m_Bar, "bar");
        m_Bar->SetElements(m_First, m_Second);
        m_Bar->SetHighlight(true);
        m_Bar->SetBkColor(color_table[3]);
        m_Bar->SetLiveResize(live);
        m_Bar->SetRefreshWhileMoving(true);
        WatchWidget(m_Bar, {m_Parent, m_First, m_Second});
        On<CSplitter*, size<int> const&>("proposed", m_Bar->m_SizeProposed);
        On<CSplitter*, int>("delta", m_Bar->m_Delta);
        On<CSplitter*>("moved", m_Bar->m_Moved);
        On<CSplitter*>("finished", m_Bar->m_Finished);
        On<CSplitter*, bool>("highlighted", m_Bar->m_Highlighted);
        On<CVisualElement*>("first laid out", m_First->m_SigSize);
        On<CVisualElement*>("bar laid out", m_Bar->m_SigSize);
        On<CVisualElement*>("second laid out", m_Second->m_SigSize);
        On<CVisualElement*>("parent laid out", m_Parent->m_SigSize);
        m_Host->Paint();
    }
    ~CDragScene() { End(); }

    static std::vector<Step> Steps()
    {
        auto const paint = [](CTestHost& host) { host.Paint(); };
        return {[](CTestHost& host) { host.Mouse().Move(70, 20); },
                [](CTestHost& host) { host.Mouse().Move(63, 20); },
                [](CTestHost& host) { host.Mouse().Press(); },
                [](CTestHost& host) { host.Mouse().Move(83, 20); },
                paint,
                [](CTestHost& host) { host.Mouse().Move(73, 25); },
                [](CTestHost& host) { host.Mouse().Release(); },
                paint,
                [](CTestHost& host) { host.Resize(190, 200); },
                paint,
                [](CTestHost& host) { host.Mouse().Leave(); },
                paint};
    }

    // Misdeeds
    void DeleteFirst() { Delete(m_First); }
    void DeleteSecond() { Delete(m_Second); }
    void DeleteSiblings()
    {
        Delete(m_First);
        Delete(m_Second);
    }
    void DeleteParent() { Delete(m_Parent); }
    void DestroyWindow()
    {
        if (m_Host->HasWindow())
            m_Host->DestroyWindow();
    }
    void TakeFirst() { Take(m_First); }
    void TakeSecond() { Take(m_Second); }
    void TakeParent()
    {
        if (!IsThere(m_Parent))
            return;
        m_Parent->ReParent(nullptr, true);
        m_Taken.reset(m_Parent);
    }
    void MoveBar()
    {
        if (IsThere(m_Bar))
            m_Bar->ReParent(m_Host->Root(), true);
    }
    void Exchange()
    {
        if (IsThere(m_Bar))
            m_Bar->SetElements(m_Second, m_First);
    }
    void Forget()
    {
        if (IsThere(m_Bar))
            m_Bar->SetElements(nullptr, nullptr);
    }
    void Turn()
    {
        if (IsThere(m_Bar))
            m_Bar->SetAlignment(alTop);
    }
    void NestSteps()
    {
        if (!IsThere(m_Bar))
            return;
        m_Bar->UpdateSplitterPos(-7);
        m_Bar->RefreshElementSize();
    }
    void LetGo()
    {
        if (IsThere(m_Bar))
            m_Bar->ReleaseMouse();
    }
    void ShrinkFirst()
    {
        if (IsThere(m_First))
            m_First->SetSize({0, 0}, false);
    }
    void LayOut()
    {
        if (m_Host->HasControl())
            m_Host->Control().Rearrange();
    }

private:
    void Take(CLeaf* sibling)
    {
        if (!IsThere(sibling))
            return;
        sibling->ReParent(nullptr, true);
        m_Taken.reset(sibling);
    }

    CVisualElement* const m_Parent = new CVisualElement(m_Host->Root(), {0, 0}, alClient);
    CLeaf* const m_First = new CLeaf(m_Parent, {60, 60}, alLeft, 1);
    CSplitter* const m_Bar = new CSplitter(m_Parent, {5, 5}, alLeft);
    CLeaf* const m_Second = new CLeaf(m_Parent, {0, 0}, alClient, 2);
    std::unique_ptr<CVisualElement> m_Taken;
};

template <bool Live> class CDragSceneOf : public CDragScene
{
public:
    CDragSceneOf() : CDragScene(Live) {}
    void Run(int misdeedAt = -1, std::function<void(CDragSceneOf&)> const& misdeed = {})
    {
        Play(Steps(), misdeedAt, [&] { misdeed(*this); });
    }
};
using CLiveScene = CDragSceneOf<true>;
using CLateScene = CDragSceneOf<false>;

template <class Scene> std::vector<SMisdeed<Scene>> Misdeeds()
{
    return {{"DeleteWidget", &Scene::DeleteWidget},
            {"DeleteFirst", &Scene::DeleteFirst},
            {"DeleteSecond", &Scene::DeleteSecond},
            {"DeleteSiblings", &Scene::DeleteSiblings},
            {"DeleteParent", &Scene::DeleteParent},
            {"DeleteControl", &Scene::DeleteControl},
            {"DestroyWindow", &Scene::DestroyWindow},
            {"Detach", &Scene::Detach},
            {"TakeFirst", &Scene::TakeFirst},
            {"TakeSecond", &Scene::TakeSecond},
            {"TakeParent", &Scene::TakeParent},
            {"MoveBar", &Scene::MoveBar},
            {"Hide", &Scene::Hide},
            {"Disable", &Scene::Disable},
            {"Exchange", &Scene::Exchange},
            {"Forget", &Scene::Forget},
            {"Turn", &Scene::Turn},
            {"NestSteps", &Scene::NestSteps},
            {"LetGo", &Scene::LetGo},
            {"ShrinkFirst", &Scene::ShrinkFirst},
            {"LayOut", &Scene::LayOut},
            {"Cancel", [](Scene&) { throw vexel::cancel_processing(); }}};
}

class SplitterDeletion : public CDeedTest<CLiveScene>
{};
class LateSplitterDeletion : public CDeedTest<CLateScene>
{};
INSTANTIATE_TEST_SUITE_P(ByDeed, SplitterDeletion, testing::ValuesIn(Misdeeds<CLiveScene>()), NameOfDeed());
INSTANTIATE_TEST_SUITE_P(ByDeed, LateSplitterDeletion, testing::ValuesIn(Misdeeds<CLateScene>()), NameOfDeed());

char const* const g_Signals[] = {"proposed",       "delta",        "moved",           "finished",       "highlighted",
                                 "first laid out", "bar laid out", "second laid out", "parent laid out"};

bool IsOfLayout(std::string const& signal)
{
    return signal.find("laid out") != std::string::npos;  // nobody catches what is thrown in a layout before a paint
}

// The pointer is free again, and what was painted bit by bit looks as if painted at once.
void ExpectOrder(CDragScene& scene)
{
    if (!scene.m_Host->HasControl() || !scene.m_Host->HasWindow())
        return;
    EXPECT_EQ(scene.m_Host->Root()->GetControl()->GetCapture(), nullptr);
    EXPECT_EQ(scene.m_Host->CompareWithFullPaint(), "");
}

}  // namespace

TEST_P(SplitterDeletion, InASlotIsSurvived)
{
    DoInEachSlot(
        g_Signals, [this](std::string const& signal) { return Is("Cancel") && IsOfLayout(signal); }, &ExpectOrder);
}

TEST_P(SplitterDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep(&ExpectOrder);
}

TEST_P(LateSplitterDeletion, InASlotIsSurvived)
{
    DoInEachSlot(
        g_Signals, [this](std::string const& signal) { return Is("Cancel") && IsOfLayout(signal); }, &ExpectOrder);
}

TEST_P(LateSplitterDeletion, BetweenTwoEventsIsSurvived)
{
    DoBeforeEachStep(&ExpectOrder);
}
