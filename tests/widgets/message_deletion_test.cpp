// Message boxes and check stages survive what slots and overridable operations do to them, to what they stand in and to
// whom they tell, and what happens while they wait.

#include "tests/support/deed_play.h"
#include "tests/widgets/message_bench.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/widgets/check_stage_gui.h"

#include <gtest/gtest.h>

#include <set>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A box with a picture whose texts and buttons change, and that is pressed.
class CBoxScene : public CDeedPlay<CMessageBox>
{
public:
    CBoxScene() : CDeedPlay<CMessageBox>({300, 200})
    {
        CSharedLooks::NewPicture(1, {32, 32});
        CSharedLooks::NewPicture(2, {50, 50});
        m_Box->SetImageType(1);
        m_Box->GetButtons().SetButtons(3);
        WatchWidget(m_Box, {m_Pane});
        On<CMessageBox*, int>("pressed", m_Box->m_ButtonPressed);
        On<int>("set", m_Box->GetButtons().m_ButtonPressed);
        On<CButton*>("clicked", ButtonOf(*m_Box, 0).m_Clicked);
        On<CVisualElement*>("size", m_Box->m_SigSize);
        On<CVisualElement*>("titleSize", m_Box->GetTitle().m_SigSize);
        On<CVisualElement*>("spacerSize", m_Box->GetTitleSpacer().m_SigSize);
        On<CVisualElement*, IPainter*>("draw", m_Box->m_SigDraw);
        On<CVisualElement*, IPainter*>("imageDraw", m_Box->GetImage().m_SigDraw);
        On<CVisualElement*, bool>("buttonsVisible", m_Box->GetButtons().m_SigVisible);
        On<CVisualElement*>("focus", ButtonOf(*m_Box, 0).m_SigGetFocus);
    }
    ~CBoxScene() { End(); }

    static std::vector<void (CBoxScene::*)()> Steps()
    {
        return {&CBoxScene::Fill,      &CBoxScene::Focus, &CBoxScene::Press, &CBoxScene::Wait,
                &CBoxScene::ShowAgain, &CBoxScene::Press, &CBoxScene::Level, &CBoxScene::Clear};
    }
    void Run(int misdeedAt = -1, std::function<void(CBoxScene&)> const& misdeed = {})
    {
        int number = 0;
        for (auto const step : Steps())
        {
            if (number++ == misdeedAt)
                misdeed(*this);
            try
            {
                if (IsThere(m_Box))
                    (this->*step)();
            }
            catch (vexel::cancel_processing const&)
            {}
            if (m_Host->HasControl())
                m_Host->Paint();
        }
    }

    // Misdeeds
    void DeletePane() { Delete(m_Pane); }
    void ClearButtons()
    {
        if (IsThere(m_Box))
            m_Box->GetButtons().ClearButtons();
    }
    void Wait()
    {
        if (!IsThere(m_Box))
            return;
        m_Box->KeepTextWidth();
        m_Box->SetButtonsVisible(false);
        if (IsThere(m_Box))
            m_Box->SetImageType(2);
        if (IsThere(m_Box))
            m_Box->GetTitle().SetCaption("Wait\na bit");
    }

private:
    void Fill()
    {
        m_Box->GetTitle().SetCaption("Disk");
        if (IsThere(m_Box))
            m_Box->GetText().SetCaption("About");
    }
    bool HasButton() { return m_Box->GetButtons().GetButtonCount() > 0; }
    void Focus()
    {
        if (m_Box->GetControl())
            m_Host->Focus();  // its first button gets it
    }
    void Press()
    {
        if (HasButton() && m_Box->GetControl())
            m_Host->Mouse().Click(ButtonOf(*m_Box, 0), 5, 5);
    }
    void ShowAgain() { m_Box->SetButtonsVisible(true); }
    void Level()
    {
        m_Box->GetImage().SetOffset({4, 4, 4, 4});
        if (IsThere(m_Box))
            m_Box->AttributeChanged();
        if (IsThere(m_Box))
            m_Box->CheckImageAlign();
    }
    void Clear() { m_Box->GetButtons().ClearButtons(); }

    CSharedLooks m_Looks;

public:
    CVisualElement* const m_Pane = new CVisualElement(m_Host->Root(), {0, 0}, alClient);
    CMessageBox* const m_Box = new CMessageBox(m_Pane, {0, 0}, alTop);
};

// A chain of one stage after the other, which a user takes through all its ways.
class CStageScene : public CDeedPlay<CVisualElement>
{
public:
    CStageScene() : CDeedPlay<CVisualElement>({300, 200})
    {
        m_Other->SetCanHaveFocus(true);
        m_Pane->SetCanHaveFocus(true);
        m_Host->Focus();
        m_Other->SetFocus(true);
        m_Stage->SetParent(m_Pane);
        m_Stage->SetMessage(0, "Disk", "About");
        m_Stage->SetButtons(3, 1);
        m_Stage->SetWaitMessage(0, "Wait", "a bit");
        m_Stage->SetTimer(m_Timer);
        m_Chain->AddStage(m_Stage.get());
        m_Asked = Listen(m_Stage->m_Check, [this](bool& failed) { failed = m_Fails; });
        m_Created = Listen(m_Stage->m_BoxCreated, [this](CMessageBox* box) { FollowBox(box); });
        WatchWidget(m_Pane, {m_Other});
        On<bool&>("check", m_Stage->m_Check);
        On<CCheckStageGui*, int>("result", m_Stage->m_Result);
        On<CMessageBox*>("created", m_Stage->m_BoxCreated);
        On<int>("starting", m_Chain->m_StageStarting);
        On<>("finished", m_Chain->m_Finished);
        On<>("aborted", m_Chain->m_Aborted);
        On<CVisualElement*>("focus", m_Pane->m_SigGetFocus);
        On<CVisualElement*>("lost", m_Other->m_SigLostFocus);
        On<CVisualElement*>("paneSize", m_Pane->m_SigSize);
        On<>("complete", m_Completes);
        On<>("boxVisible", m_BoxVisible);
        On<>("boxSize", m_BoxSize);
        On<>("buttonsVisible", m_ButtonsVisible);
        On<>("boxFocus", m_BoxFocus);
        On<>("boxPressed", m_BoxPressed);
    }
    ~CStageScene()
    {
        StopWatching();
        m_Ears.clear();
        m_Chain.reset();
        m_Stage.reset();
        End();
    }

    static std::vector<void (CStageScene::*)()> Steps()
    {
        using Scene = CStageScene;
        return {&Scene::Start,     &Scene::Tick,  &Scene::Accept, &Scene::Start, &Scene::Refuse,
                &Scene::Start,     &Scene::Clear, &Scene::Tick,   &Scene::Start, &Scene::Fail,
                &Scene::NoButtons, &Scene::Start, &Scene::Clear,  &Scene::Tick,  &Scene::Fail,
                &Scene::NoTexts,   &Scene::Start, &Scene::Texts,  &Scene::Start, &Scene::Start,
                &Scene::NoWait,    &Scene::Clear, &Scene::Accept, &Scene::Hand,  &Scene::Start};
    }
    void Run(int misdeedAt = -1, std::function<void(CStageScene&)> const& misdeed = {})
    {
        int number = 0;
        for (auto const step : Steps())
        {
            if (number++ == misdeedAt)
                misdeed(*this);
            try
            {
                (this->*step)();
            }
            catch (vexel::cancel_processing const&)
            {}
            if (m_Host->HasControl())
                m_Host->Paint();
        }
    }

    // Misdeeds
    void DeleteStage()
    {
        if (m_Stage && m_Chain)
            m_Chain->RemoveStage(m_Stage.get());
        m_Stage.reset();
    }
    void DeleteChainAndStage()
    {
        m_Chain.reset();
        m_Stage.reset();
    }
    void DeleteBox()
    {
        if (m_Stage && m_Stage->GetBox())
            delete m_Stage->GetBox();
    }
    void HideBox()
    {
        if (m_Stage && m_Stage->GetBox())
            m_Stage->GetBox()->SetVisible(false);
    }
    void MoveBox()
    {
        if (m_Stage && m_Stage->GetBox() && IsThere(m_Other))
            m_Stage->GetBox()->ReParent(m_Other, true);
    }
    void DropParent()
    {
        if (m_Stage)
            m_Stage->SetParent(nullptr);
    }
    void DropTimer()
    {
        if (m_Stage)
            m_Stage->SetTimer(nullptr);
    }
    void ClearButtons()
    {
        if (m_Stage && m_Stage->GetBox())
            m_Stage->GetBox()->GetButtons().ClearButtons();
    }
    void Restart() { Start(); }
    void PassIt()
    {
        m_Fails = false;
        if (m_Stage)
            m_Stage->OnTimer(nullptr);
    }

private:
    class CStage : public CCheckStageGui
    {
    public:
        explicit CStage(CStageScene& scene) : m_Scene(scene) {}
        void OnComplete(bool) override { m_Scene.m_Completes(); }

    private:
        CStageScene& m_Scene;
    };

    void FollowBox(CMessageBox* box)
    {
        m_Ears.push_back(ListenToAny(box->m_SigVisible, [this] { m_BoxVisible(); }));
        m_Ears.push_back(ListenToAny(box->m_SigSize, [this] { m_BoxSize(); }));
        m_Ears.push_back(ListenToAny(box->GetButtons().m_SigVisible, [this] { m_ButtonsVisible(); }));
        m_Ears.push_back(ListenToAny(box->m_ButtonPressed, [this] { m_BoxPressed(); }));
        if (box->GetButtons().GetButtonCount() > 0)
            m_Ears.push_back(ListenToAny(ButtonOf(*box, 0).m_SigGetFocus, [this] { m_BoxFocus(); }));
    }

    // Steps
    void Start()
    {
        if (m_Chain)
            m_Chain->StartProcessing();
    }
    void Tick() { m_Host->Clock().Advance(100); }
    void Press(int button)
    {
        CMessageBox* const box = m_Stage ? m_Stage->GetBox() : nullptr;
        if (!box || !box->GetControl() || !box->IsDisplayable() || !m_Host->HasControl())
            return;
        if (box->IsButtonsVisible() && static_cast<int>(box->GetButtons().GetButtonCount()) > button)
            m_Host->Mouse().Click(ButtonOf(*box, button), 5, 5);
    }
    void Accept() { Press(0); }
    void Refuse() { Press(1); }
    void Clear() { m_Fails = false; }
    void Fail() { m_Fails = true; }
    void NoButtons()
    {
        if (m_Stage)
            m_Stage->SetButtons(0, 0);
    }
    void NoTexts()
    {
        if (m_Stage)
            m_Stage->SetMessage(0, "", "");
    }
    void Texts()
    {
        if (!m_Stage)
            return;
        m_Stage->SetMessage(0, "Disk", "About");
        m_Stage->SetButtons(3, 1);
    }
    void NoWait()
    {
        if (m_Stage)
            m_Stage->SetWaitMessage(0, "", "");
    }
    void Hand()
    {
        if (m_Stage)
            m_Stage->OnTimer(nullptr);
    }

    bool m_Fails = true;
    vexel_ptr<ISysTimer> m_Timer = CTestHost::System().CreateTimer(100, 0);
    CVisualElement* const m_Other = new CVisualElement(m_Host->Root(), {0, 20}, alBottom);
    CVisualElement* const m_Pane = new CVisualElement(m_Host->Root(), {0, 0}, alClient);
    signal_t<> m_Completes;
    signal_t<> m_BoxVisible;
    signal_t<> m_BoxSize;
    signal_t<> m_ButtonsVisible;
    signal_t<> m_BoxFocus;
    signal_t<> m_BoxPressed;
    std::unique_ptr<CCheckStages> m_Chain = std::make_unique<CCheckStages>();
    std::unique_ptr<CStage> m_Stage = std::make_unique<CStage>(*this);
    std::unique_ptr<subscriber_base_t> m_Asked;
    std::unique_ptr<subscriber_base_t> m_Created;
    std::vector<std::unique_ptr<subscriber_base_t>> m_Ears;
};

template <class Scene> std::vector<SMisdeed<Scene>> WithCommon(std::vector<SMisdeed<Scene>> misdeeds)
{
    misdeeds.insert(misdeeds.end(), {{"DeleteWidget", &Scene::DeleteWidget},
                                     {"DeleteControl", &Scene::DeleteControl},
                                     {"Detach", &Scene::Detach},
                                     {"Hide", &Scene::Hide},
                                     {"Disable", &Scene::Disable},
                                     {"Cancel", [](Scene&) { throw vexel::cancel_processing(); }}});
    return misdeeds;
}

class MessageBoxDeeds : public CDeedTest<CBoxScene>
{};
class CheckStageGuiDeeds : public CDeedTest<CStageScene>
{};
INSTANTIATE_TEST_SUITE_P(ByDeed, MessageBoxDeeds,
                         testing::ValuesIn(WithCommon<CBoxScene>({{"DeletePane", &CBoxScene::DeletePane},
                                                                  {"ClearButtons", &CBoxScene::ClearButtons},
                                                                  {"Wait", &CBoxScene::Wait}})),
                         NameOfDeed());
INSTANTIATE_TEST_SUITE_P(ByDeed, CheckStageGuiDeeds,
                         testing::ValuesIn(WithCommon<CStageScene>({{"DeleteStage", &CStageScene::DeleteStage},
                                                                    {"DeleteChainAndStage",
                                                                     &CStageScene::DeleteChainAndStage},
                                                                    {"DeleteBox", &CStageScene::DeleteBox},
                                                                    {"HideBox", &CStageScene::HideBox},
                                                                    {"MoveBox", &CStageScene::MoveBox},
                                                                    {"DropParent", &CStageScene::DropParent},
                                                                    {"DropTimer", &CStageScene::DropTimer},
                                                                    {"ClearButtons", &CStageScene::ClearButtons},
                                                                    {"Restart", &CStageScene::Restart},
                                                                    {"PassIt", &CStageScene::PassIt}})),
                         NameOfDeed());

// In these nobody catches what a slot throws: layout and painting happen in frames.
bool IsInFrame(std::string const& signal)
{
    static std::set<std::string> const names{"size",      "titleSize", "spacerSize", "draw",
                                             "imageDraw", "boxSize",   "paneSize"};
    return names.contains(signal);
}

}  // namespace

TEST_P(MessageBoxDeeds, InASlotAreSurvived)
{
    static char const* const signals[] = {"pressed",    "set",  "clicked",   "size",           "titleSize",
                                          "spacerSize", "draw", "imageDraw", "buttonsVisible", "focus"};
    DoInEachSlot(signals, [this](std::string const& signal) { return Is("Cancel") && IsInFrame(signal); });
}

TEST_P(MessageBoxDeeds, BetweenTwoStepsAreSurvived)
{
    DoBeforeEachStep([](CBoxScene&) {});
}

TEST_P(CheckStageGuiDeeds, InASlotAreSurvived)
{
    static char const* const signals[] = {"check",   "result",     "created",  "starting",       "finished",
                                          "aborted", "focus",      "lost",     "complete",       "boxVisible",
                                          "boxSize", "boxPressed", "boxFocus", "buttonsVisible", "paneSize"};
    DoInEachSlot(signals, [this](std::string const& signal) { return Is("Cancel") && IsInFrame(signal); });
}

TEST_P(CheckStageGuiDeeds, BetweenTwoStepsAreSurvived)
{
    DoBeforeEachStep([](CStageScene&) {});
}
