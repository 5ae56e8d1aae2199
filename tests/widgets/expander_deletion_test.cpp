// Expanders survive what a slot or an overridden operation does to them, to their parts and to their control, at once and
// amid the steps.

#include "tests/support/deed_play.h"
#include "tests/support/leaf.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/expander.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace vexel;
using namespace vexel::test;

namespace
{

/// Tells of what an expander does to its parts.
class CTellingPart : public CLeaf
{
public:
    using CLeaf::CLeaf;
    signal_t<> m_Docked;
    signal_t<> m_Leaves;
    signal_t<> m_Arrived;

    void SetAlignment(Alignment alignment) override
    {
        CLeaf::SetAlignment(alignment);
        m_Docked();
    }
    void ProcessSetControl(IControl*) override { m_Leaves(); }
    void AfterSetControl() override { m_Arrived(); }
};

class CTellingExpander : public CExpander
{
public:
    using CExpander::CExpander;
    signal_t<> m_Told;

    void HandleExpand(bool) override { m_Told(); }
};

/// Tells when one below asks for a layout, or for a repaint.
class CTellingParent : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    signal_t<> m_Asked;
    signal_t<> m_Changed;

    void ProcessRearrange(CVisualElement**) override { m_Asked(); }
    void ProcessChange(CVisualElement**) override { m_Changed(); }
};

/// An expander that closes and opens, at once and in steps, turns around amid them and gets other parts.
class CExpanderScene : public CDeedPlay<CTellingExpander>
{
public:
    CExpanderScene() : CDeedPlay<CTellingExpander>({200, 200})
    {
        m_Expander->SetTitle(m_Title);
        m_Expander->SetBody(m_Body);
        WatchWidget(m_Expander, {m_Parent, m_Title, m_Body});
        On<>("told", m_Expander->m_Told);
        On<CVisualElement*>("laid out", m_Expander->m_SigSize);
        On<CVisualElement*, bool>("title shown", m_Title->m_SigVisible);
        On<CVisualElement*>("title laid out", m_Title->m_SigSize);
        On<>("title docked", m_Title->m_Docked);
        On<>("title leaves", m_Title->m_Leaves);
        On<>("title arrived", m_Title->m_Arrived);
        On<CVisualElement*, bool>("body shown", m_Body->m_SigVisible);
        On<CVisualElement*>("body laid out", m_Body->m_SigSize);
        On<>("body docked", m_Body->m_Docked);
        On<>("body leaves", m_Body->m_Leaves);
        On<>("body arrived", m_Body->m_Arrived);
        On<>("asked", m_Parent->m_Asked);
        On<>("changed", m_Parent->m_Changed);
        m_Host->Paint();
    }
    ~CExpanderScene()
    {
        // What is left without an owner is the scene's.
        for (auto* const part : {m_Title, m_Body})
            if (IsAlive(part) && !part->GetParent())
                m_Left.emplace_back(part);
        End();
    }

    using Act = std::function<void(CExpanderScene&)>;

    static std::vector<Act> Steps()
    {
        Act const time = [](CExpanderScene& it) { it.PassTime(); };
        Act const titled = [](CExpanderScene& it) { it.m_Expander->SetTitle(it.m_Title); };
        Act const bodied = [](CExpanderScene& it) { it.m_Expander->SetBody(it.m_Body); };
        return {Expanding(false, false),
                time,
                Expanding(true, true),
                time,
                Expanding(false, true),
                Expanding(true, true),
                time,
                [](CExpanderScene& it) { it.SetHeight(it.m_Title, 30); },
                [](CExpanderScene& it) { it.SetHeight(it.m_Body, 50); },
                time,
                [](CExpanderScene& it) { it.m_Expander->SetExpandDirection(CExpander::ExpandBottomTop); },
                titled,
                bodied,
                time,
                Expanding(false, true),
                time,
                [](CExpanderScene& it) { it.m_Expander->SetBody(nullptr); },
                time,
                bodied,
                [](CExpanderScene& it) { it.m_Title->SetVisible(!it.m_Title->IsVisible()); },
                Expanding(true, false),
                [](CExpanderScene& it) { it.m_Expander->UpdateSize(); },
                time};
    }
    void Run(int misdeedAt = -1, Act const& misdeed = {})
    {
        int number = 0;
        for (Act const& act : Steps())
        {
            if (number++ == misdeedAt)
                misdeed(*this);
            // The parts are set again only as long as all are there.
            if (!IsThere(m_Expander) || !IsAlive(m_Title) || !IsAlive(m_Body))
                break;
            try
            {
                act(*this);
            }
            catch (vexel::cancel_processing const&)
            {}  // as the event would end in which it was done
        }
    }
    bool IsExpanderThere() const { return IsThere(m_Expander); }
    bool HasBothParts() const { return IsAlive(m_Title) && IsAlive(m_Body); }
    CTellingExpander& Expander() const { return *m_Expander; }

    // Misdeeds
    void DeleteTitle() { DeletePart(m_Title); }
    void DeleteBody() { DeletePart(m_Body); }
    void DeleteParent() { Delete(m_Parent); }
    void DestroyWindow()
    {
        if (m_Host->HasWindow())
            m_Host->DestroyWindow();
    }
    void DropTitle()
    {
        With([](CExpander& it) { it.SetTitle(nullptr); });
    }
    void DropBody()
    {
        With([](CExpander& it) { it.SetBody(nullptr); });
    }
    void SetParts()
    {
        if (!IsThere(m_Expander) || !IsAlive(m_Title) || !IsAlive(m_Body))
            return;
        m_Expander->SetBody(m_Body);
        if (IsThere(m_Expander) && IsAlive(m_Title))
            m_Expander->SetTitle(m_Title);
    }
    void TakeBody()
    {
        if (IsThere(m_Parent) && IsAlive(m_Body))
            m_Body->ReParent(m_Parent, true);
    }
    void TakeTitle()
    {
        if (IsThere(m_Parent) && IsAlive(m_Title))
            m_Title->ReParent(m_Parent, true);
    }
    void Open()
    {
        With([](CExpander& it) { it.Expand(true, false); });
    }
    void Close()
    {
        With([](CExpander& it) { it.Expand(false, false); });
    }
    void OpenInSteps()
    {
        With([](CExpander& it) { it.Expand(true, true); });
    }
    void CloseInSteps()
    {
        With([](CExpander& it) { it.Expand(false, true); });
    }
    void Stop()
    {
        With([](CExpander& it) { it.StopSizing(); });
    }
    void Step()
    {
        With([](CExpander& it) { it.UpdateSize(); });
    }
    void Turn()
    {
        With([](CExpander& it) { it.SetExpandDirection(CExpander::ExpandLeftRight); });
    }
    void HideBody()
    {
        if (IsAlive(m_Body))
            m_Body->SetVisible(false);
    }
    void LayOut()
    {
        if (m_Host->HasControl())
            m_Host->Control().Rearrange();
    }

private:
    static Act Expanding(bool expand, bool animated)
    {
        return [expand, animated](CExpanderScene& it) { it.m_Expander->Expand(expand, animated); };
    }
    void With(std::function<void(CExpander&)> const& deed)
    {
        if (IsThere(m_Expander))
            deed(*m_Expander);
    }
    void DeletePart(CTellingPart* part)
    {
        if (IsAlive(part))
            delete part;
    }
    void SetHeight(CTellingPart* part, int height)
    {
        if (IsAlive(part))
            part->SetHeight(height, false);
    }
    void PassTime()
    {
        for (int i = 0; i < 2 && m_Host->HasControl(); ++i)
        {
            m_Host->Paint();
            if (m_Host->HasWindow())
                m_Host->StepBackground();
            m_Host->RunPending();
            m_Host->Clock().Advance(10);
        }
    }

    CTellingParent* const m_Parent = new CTellingParent(m_Host->Root(), {0, 0}, alClient);
    CTellingExpander* const m_Expander = new CTellingExpander(m_Parent, {30, 10}, alTop);
    CTellingPart* const m_Title = new CTellingPart(nullptr, {0, 20}, alNone, 1);
    CTellingPart* const m_Body = new CTellingPart(nullptr, {0, 40}, alNone, 2);
    std::vector<std::unique_ptr<CVisualElement>> m_Left;
};

class ExpanderDeedDeletion : public CDeedTest<CExpanderScene>
{};
INSTANTIATE_TEST_SUITE_P(ByDeed, ExpanderDeedDeletion,
                         testing::ValuesIn(std::vector<SMisdeed<CExpanderScene>>{
                             {"DeleteWidget", &CExpanderScene::DeleteWidget},
                             {"DeleteTitle", &CExpanderScene::DeleteTitle},
                             {"DeleteBody", &CExpanderScene::DeleteBody},
                             {"DeleteParent", &CExpanderScene::DeleteParent},
                             {"DeleteControl", &CExpanderScene::DeleteControl},
                             {"DestroyWindow", &CExpanderScene::DestroyWindow},
                             {"Detach", &CExpanderScene::Detach},
                             {"Hide", &CExpanderScene::Hide},
                             {"Disable", &CExpanderScene::Disable},
                             {"DropTitle", &CExpanderScene::DropTitle},
                             {"DropBody", &CExpanderScene::DropBody},
                             {"SetParts", &CExpanderScene::SetParts},
                             {"TakeTitle", &CExpanderScene::TakeTitle},
                             {"TakeBody", &CExpanderScene::TakeBody},
                             {"HideBody", &CExpanderScene::HideBody},
                             {"Open", &CExpanderScene::Open},
                             {"Close", &CExpanderScene::Close},
                             {"OpenInSteps", &CExpanderScene::OpenInSteps},
                             {"CloseInSteps", &CExpanderScene::CloseInSteps},
                             {"Stop", &CExpanderScene::Stop},
                             {"Step", &CExpanderScene::Step},
                             {"Turn", &CExpanderScene::Turn},
                             {"LayOut", &CExpanderScene::LayOut},
                             {"Cancel", [](CExpanderScene&) { throw vexel::cancel_processing(); }}}),
                         NameOfDeed());

char const* const g_Signals[] = {"told",         "laid out",      "title shown", "title laid out", "title docked",
                                 "title leaves", "title arrived", "body shown",  "body laid out",  "body docked",
                                 "body leaves",  "body arrived",  "asked",       "changed"};

// Whatever was done: a thread runs only for steps, and the steps that are under way come to their end.
void ExpectOrder(CExpanderScene& scene)
{
    bool const there = scene.IsExpanderThere();
    bool const sizing = there && scene.Expander().IsSizing();
    EXPECT_EQ(CTestHost::System().GetRunningRunners() > 0,
              sizing && scene.Expander().GetControl() && scene.m_Host->HasWindow());
    if (!there)
        return;
    scene.Expander().StopSizing();
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 0);
    if (scene.m_Host->HasControl() && scene.m_Host->HasWindow())
    {
        if (!scene.HasBothParts())
            scene.LayOut();  // as whoever deletes an element asks for
        EXPECT_EQ(scene.m_Host->CompareWithFullPaint(), "");
    }
}

}  // namespace

TEST_P(ExpanderDeedDeletion, InASlotIsSurvived)
{
    DoInEachSlot(
        g_Signals,
        [this](std::string const& signal) {
            // Nobody catches what is thrown in a layout before a paint, and nothing is to be thrown at elements on their way.
            return Is("Cancel") && signal != "told" && signal != "body shown" && signal != "title shown";
        },
        &ExpectOrder);
}

TEST_P(ExpanderDeedDeletion, BetweenTwoStepsIsSurvived)
{
    DoBeforeEachStep(&ExpectOrder);
}
