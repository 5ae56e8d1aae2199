// Whatever a slot or handler deletes or throws, the chain that called it ends without touching the dead. Each scenario is
// run once to count its callbacks, then once more per callback and misdeed.

#include "vexel/core/base_control.h"
#include "vexel/core/context_menu.h"
#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/exception_report.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/platform/painter.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_host.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

using namespace vexel;
using vexelbase::memory::CMemorySystem;
using vexelbase::memory::CMemoryWindow;

namespace
{

class CStage;

// An element that reports every signal and handler to the stage.
class CActor : public CVisualElement
{
public:
    CActor(CStage& stage, CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CActor() override;

    bool IsTransparent() const override { return m_Transparent; }
    bool ScrollContent(int, int) override { return Report(), true; }
    void UpdateElement() override { Report(); }
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
        Report();
    }
    void ProcessSetControl(IControl*) override { Report(); }
    void AfterSetControl() override { Report(); }
    void SysColorsChanged() override { Report(); }
    void ProcessSetVisible(bool) override { Report(); }
    void ProcessSetParentVisible(bool) override { Report(); }
    void AddNewChild(CVisualElement*) override { Report(); }
    void ChangeParent(CVisualElement*) override { Report(); }
    bool HandleMouseMove(int, int, int, MouseButton) override { return Report(); }
    bool HandleButtonDown(int, int, int, MouseButton) override { return Report(); }
    bool HandleButtonUp(int, int, int, MouseButton) override { return Report(); }
    bool HandleClick(int, int, int, MouseButton) override { return Report(); }
    bool HandleDoubleClick(int, int, int, MouseButton) override { return Report(); }
    bool HandleWheel(int, int, int, MouseButton, int) override { return Report(); }
    void HandleMouseHover(CVisualElement*) override { Report(); }
    void HandleMouseLeave(CVisualElement*) override { Report(); }
    void HandleChildrenMouseHover(CVisualElement*) override { Report(); }
    void HandleChildrenMouseLeave(CVisualElement*) override { Report(); }
    bool HandleKeyDown(int, int) override { return Report(); }
    bool HandleKeyUp(int, int) override { return Report(); }
    bool HandleChar(char) override { return Report(); }
    bool HandleOnTooltip(CTooltipEvent*) override { return Report(); }
    bool HandleOnTooltipTrack(CTooltipEvent*) override { return Report(); }
    bool HandleContextMenu(int, int) override { return Report(); }
    void HandleGetFocus(CVisualElement* other, bool focused) override
    {
        if (!focused)
            CVisualElement::HandleGetFocus(other, focused);
        else
            Report();
    }
    void HandleLostFocus(CVisualElement*) override { Report(); }
    void HandleChildFocusChanged(CVisualElement*, CVisualElement*, bool) override { Report(); }
    void HandleControlChangeFocus(bool) override { Report(); }
    void HandleControlDestroy() override { Report(); }
    void HandleRefreshPos() override { Report(); }
    void ProcessRearrange(CVisualElement**) override { Report(); }
    void ProcessChange(CVisualElement**) override { Report(); }
    bool BeforeProcessChange(CVisualElement*, UpdateType) override { return Report(), true; }
    bool HandleStartDragging(int x, int y, DragInfo& info) override
    {
        info.m_Rect = {x, y, x + 5, y + 5};
        return Report(), true;
    }
    void HandleDragFinished(CVisualElement*, DragInfo&) override { Report(); }
    void HandleDrawDragItem(IPainter*, DragInfo&, bool, CVisualElement*) override { Report(); }
    bool HandleDragOver(CVisualElement*, int, int, DragInfo&) override { return Report(), true; }
    void HandleDropDone(CVisualElement*, int, int, DragInfo&) override { Report(); }

    bool m_Transparent = false;

private:
    // The last thing a handler does, for the element may be gone afterwards.
    bool Report();

    CStage& m_Stage;
    std::unique_ptr<subscriber_base_t> m_Ears;  // a receiver of its own: an emission may outlive the element
};

enum class Misdeed
{
    deleteSelf,
    deleteParent,
    deleteSibling,
    deleteChildren,
    deleteRoot,
    deleteFocused,
    deleteControl,
    deleteWindow,
    deleteControlThenWindow,
    deleteWindowThenControl,
    detachSelf,
    hideParent,
    throwCancel,
    throwError
};

constexpr Misdeed all_misdeeds[] = {Misdeed::deleteSelf,
                                    Misdeed::deleteParent,
                                    Misdeed::deleteSibling,
                                    Misdeed::deleteChildren,
                                    Misdeed::deleteRoot,
                                    Misdeed::deleteFocused,
                                    Misdeed::deleteControl,
                                    Misdeed::deleteWindow,
                                    Misdeed::deleteControlThenWindow,
                                    Misdeed::deleteWindowThenControl,
                                    Misdeed::detachSelf,
                                    Misdeed::hideParent,
                                    Misdeed::throwCancel,
                                    Misdeed::throwError};

// A window with a control and this tree, and a scenario played on it:
//   root > panel (docked) > left (focusable, dragged), middle > inner (focusable), right; delegate below middle
class CStage
{
public:
    using CScenario = std::function<void(CStage&)>;

    CStage(int moment, Misdeed misdeed) : m_Moment(moment), m_Misdeed(misdeed)
    {
        m_Window = std::make_unique<CMemoryWindow>(System(), point<int>{100, 100}, size<int>{120, 60});
        m_Control = std::make_unique<CBaseControl>(m_Window.get());
        m_Root = new CActor(*this, nullptr, {}, alClient);
        m_Control->SetContent(m_Root);
        m_Panel = new CActor(*this, m_Root, {}, alClient);
        m_Left = new CActor(*this, m_Panel, {40, 0}, alLeft);
        m_Middle = new CActor(*this, m_Panel, {40, 0}, alLeft);
        m_Right = new CActor(*this, m_Panel, {}, alClient);
        m_Inner = new CActor(*this, m_Middle, {}, alClient);
        m_Delegate = new CActor(*this, m_Middle, {5, 5}, alTop);
        m_Left->SetCanHaveFocus(true);
        m_Inner->SetCanHaveFocus(true);
        m_Right->SetCanHaveFocus(true);
        m_Middle->SetKeyDelegate(m_Delegate);
        m_Inner->m_Transparent = true;
        m_Window->RunFrame();
        m_Listening = true;
    }
    ~CStage()
    {
        m_Listening = false;
        m_Control.reset();
        m_Window.reset();
        while (!m_Alive.empty())
            delete *m_Alive.begin();  // what was detached
        System().Reset();
    }

    static CMemorySystem& System() { return test::CTestHost::System(); }

    void Play(CScenario const& scenario)
    {
        scenario(*this);
        m_Listening = false;
        // What is left still works.
        if (m_Window && m_Control && m_Control->GetWindow() && m_Control->GetContent())
        {
            EXPECT_FALSE(m_Control->GetControl()->IsTabKeyProcessing());
            m_Window->Resize({90, 50});
            while (m_Window->RunFrame())
            {}
            EXPECT_FALSE(m_Window->GetPainter()->m_Painting);
            EXPECT_FALSE(m_Window->GetPainter()->m_DisabledMode);
            EXPECT_EQ(m_Control->GetContent()->GetPos(), (rectangle<int>{0, 0, 89, 49}));
            if (Has(m_Left) && m_Left->IsDisplayable() && m_Left->GetControl())
            {
                m_Left->SetWidth(m_Left->GetSize().width == 7 ? 8 : 7, false);
                m_Window->RunFrame();
                EXPECT_EQ(m_Left->GetPos().Width(), m_Left->GetSize().width);
            }
        }
    }

    // Each step stands alone: what an earlier one has deleted or thrown does not keep the others.
    void Step(std::function<void()> const& step)
    {
        try
        {
            step();
        }
        catch (vexel::cancel_processing const&)
        {}
        catch (std::runtime_error const&)
        {}
    }
    bool Has(CActor* actor) const { return m_Alive.count(actor) != 0; }

    void Report(CActor* actor)
    {
        if (!m_Listening)
            return;
        if (m_Count++ != m_Moment)
            return;
        m_Done = true;
        Do(actor);
    }

    int m_Count = 0;
    bool m_Done = false;
    std::unique_ptr<CMemoryWindow> m_Window;
    std::unique_ptr<CBaseControl> m_Control;
    CActor* m_Root = nullptr;
    CActor* m_Panel = nullptr;
    CActor* m_Left = nullptr;
    CActor* m_Middle = nullptr;
    CActor* m_Right = nullptr;
    CActor* m_Inner = nullptr;
    CActor* m_Delegate = nullptr;
    std::set<CActor*> m_Alive;

private:
    void Kill(CVisualElement* element)
    {
        // Compared as elements: one whose own part is gone already is no actor any more.
        for (CActor* const actor : m_Alive)
            if (actor == element)
                return delete actor;
    }

    void Do(CActor* actor)
    {
        CVisualElement* const parent = actor->GetParent();
        switch (m_Misdeed)
        {
        case Misdeed::deleteSelf:
            return Kill(actor);
        case Misdeed::deleteParent:
            return Kill(parent);
        case Misdeed::deleteSibling:
            if (parent)
                for (int i = 0; i < parent->GetChildren()->GetCount(); ++i)
                    if (parent->GetChildren()->GetItem(i) != actor)
                        return Kill(parent->GetChildren()->GetItem(i));
            return;
        case Misdeed::deleteChildren:
            return actor->GetChildren()->Clear();
        case Misdeed::deleteRoot:
            return Kill(m_Root);
        case Misdeed::deleteFocused:
            return Kill(m_Control ? m_Control->GetFocusedElement() : nullptr);
        case Misdeed::deleteControl:
            return m_Control.reset();
        case Misdeed::deleteWindow:
            return m_Window.reset();
        case Misdeed::deleteControlThenWindow:
            m_Control.reset();
            return m_Window.reset();
        case Misdeed::deleteWindowThenControl:
            m_Window.reset();
            return m_Control.reset();
        case Misdeed::detachSelf:
            return actor->ReParent(nullptr, true);
        case Misdeed::hideParent:
            if (parent)
                parent->SetVisible(false);
            return;
        case Misdeed::throwCancel:
            throw vexel::cancel_processing();
        case Misdeed::throwError:
            throw std::runtime_error("thrown by a test's slot");
        }
    }

    int const m_Moment;
    Misdeed const m_Misdeed;
    bool m_Listening = false;
};

// Listens to all signals of an element. Lives on after the element while the element's signals emit.
class CEars : public subscriber_base_t
{
public:
    CEars(CStage& stage, CActor* actor) : m_Stage(stage), m_Actor(actor)
    {
        actor->m_SigSize.connect(this, &CEars::Heard<>);
        for (CVisualElement::CMouseSignal* signal :
             {&actor->m_SigButtonDown, &actor->m_SigButtonUp, &actor->m_SigMouseMove, &actor->m_SigClick,
              &actor->m_SigDoubleClick})
            signal->connect(this, &CEars::Heard<int, int, int, MouseButton>);
        actor->m_SigWheel.connect(this, &CEars::Heard<int, int, int, MouseButton, int>);
        actor->m_SigMouseHover.connect(this, &CEars::Heard<>);
        actor->m_SigMouseLeave.connect(this, &CEars::Heard<>);
        actor->m_SigKeyDown.connect(this, &CEars::Heard<int, int>);
        actor->m_SigKeyUp.connect(this, &CEars::Heard<int, int>);
        actor->m_SigChar.connect(this, &CEars::Heard<char>);
        actor->m_SigTooltip.connect(this, &CEars::Heard<CTooltipEvent*>);
        actor->m_SigTooltipTrack.connect(this, &CEars::Heard<CTooltipEvent*>);
        actor->m_SigContextMenu.connect(this, &CEars::Heard<int, int>);
        actor->m_SigGetFocus.connect(this, &CEars::Heard<>);
        actor->m_SigLostFocus.connect(this, &CEars::Heard<>);
        actor->m_SigChildGetFocus.connect(this, &CEars::Heard<CVisualElement*>);
        actor->m_SigChildLostFocus.connect(this, &CEars::Heard<CVisualElement*>);
        actor->m_SigDraw.connect(this, &CEars::Heard<IPainter*>);
        actor->m_SigVisible.connect(this, &CEars::Heard<bool>);
        actor->m_SigControlDestroy.connect(this, &CEars::Heard<>);
        actor->m_SigAsString.connect(this, &CEars::Heard<std::string&>);
        actor->m_SigCopyToClipboard.connect(this, &CEars::Heard<bool&>);
        actor->m_SigStartDragging.connect(this, &CEars::Heard<int, int, DragInfo*, bool*, bool*>);
        actor->m_SigDragFinished.connect(this, &CEars::Heard<CVisualElement*, DragInfo*, bool*>);
        actor->m_SigDrawDragItem.connect(this, &CEars::Heard<CVisualElement*, IPainter*, DragInfo*, bool, bool*>);
        actor->m_SigDragOver.connect(this, &CEars::Heard<CVisualElement*, DragInfo*, bool*, bool*>);
        actor->m_SigDropDone.connect(this, &CEars::Heard<CVisualElement*, int, int, DragInfo*, bool*>);
    }

private:
    template <class... Args> void Heard(CVisualElement*, Args...) { m_Stage.Report(m_Actor); }

    CStage& m_Stage;
    CActor* const m_Actor;
};

CActor::CActor(CStage& stage, CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment), m_Stage(stage)
{
    stage.m_Alive.insert(this);
    m_Ears = std::make_unique<CEars>(stage, this);
}

CActor::~CActor()
{
    m_Stage.m_Alive.erase(this);
}

bool CActor::Report()
{
    m_Stage.Report(this);
    return false;
}

// What a slot threw may be reported at a native entry, and nothing else.
class CStoppedExceptions
{
public:
    CStoppedExceptions() : m_Before(vexelbase::SetExceptionReporter(&Report)) {}
    ~CStoppedExceptions() { vexelbase::SetExceptionReporter(m_Before); }
    CStoppedExceptions(CStoppedExceptions const&) = delete;
    CStoppedExceptions& operator=(CStoppedExceptions const&) = delete;

private:
    static void Report(char const*, char const* what) { EXPECT_STREQ(what, "thrown by a test's slot"); }

    vexelbase::ExceptionReporter m_Before;
};

// Scenarios ------------------------------------------------------------------------------------------------------------

void UseMouse(CStage& stage)
{
    CMemorySystem& system = CStage::System();
    stage.Step([&] { system.MovePointer({110, 120}); });
    stage.Step([&] { system.MovePointer({150, 130}); });
    stage.Step([&] { system.PressButton(mbLeft); });
    stage.Step([&] { system.ReleaseButton(mbLeft); });
    stage.Step([&] { system.PressButton(mbLeft, true); });
    stage.Step([&] { system.ReleaseButton(mbLeft); });
    stage.Step([&] { system.TurnWheel(1); });
    stage.Step([&] { system.RestPointer(); });
    stage.Step([&] { stage.m_Window ? stage.m_Window->AskTooltip() : false; });
    stage.Step([&] { stage.m_Window ? stage.m_Window->AskContextMenu() : void(); });
    stage.Step([&] { stage.Has(stage.m_Left) ? stage.m_Left->CaptureMouse() : void(); });
    stage.Step([&] { system.MovePointer({190, 140}); });
    stage.Step([&] { stage.Has(stage.m_Left) ? stage.m_Left->ReleaseMouse() : void(); });
    stage.Step([&] { system.MovePointer({0, 0}); });
}

void UseKeyboard(CStage& stage)
{
    CMemorySystem& system = CStage::System();
    stage.Step([&] { stage.m_Window ? stage.m_Window->SetFocus() : void(); });
    stage.Step([&] { system.KeyDown(vkTab); });
    stage.Step([&] { system.KeyDown('X'); });
    stage.Step([&] { system.KeyUp('X'); });
    stage.Step([&] { system.Character('x'); });
    stage.Step([&] { stage.Has(stage.m_Middle) ? void(stage.m_Middle->ProcessKeyDown(0, 'Y', false)) : void(); });
    stage.Step([&] { stage.Has(stage.m_Right) ? stage.m_Right->SetFocus(true) : void(); });
    stage.Step([&] {
        system.SetHeldKeys(ksShift);
        system.KeyDown(vkTab);
    });
    system.SetHeldKeys(0);
    stage.Step([&] { system.SetFocusNode(nullptr); });
    stage.Step([&] { stage.m_Window ? stage.m_Window->SetFocus() : void(); });
    stage.Step([&] { stage.m_Control ? stage.m_Control->GetControl()->SetFocusedElement(nullptr, true) : void(); });
}

void DragAndDrop(CStage& stage)
{
    CMemorySystem& system = CStage::System();
    stage.Step([&] { system.MovePointer({110, 120}); });
    stage.Step([&] { system.PressButton(mbLeft); });
    stage.Step([&] { system.MovePointer({120, 125}); });
    stage.Step([&] { stage.m_Window ? void(stage.m_Window->RunFrame()) : void(); });
    stage.Step([&] { system.MovePointer({190, 130}); });
    stage.Step([&] { stage.m_Window ? void(stage.m_Window->RunFrame()) : void(); });
    stage.Step([&] { system.ReleaseButton(mbLeft); });
    stage.Step([&] { stage.m_Window ? void(stage.m_Window->RunFrame()) : void(); });
}

void LayOutAndPaint(CStage& stage)
{
    stage.Step([&] { stage.m_Window ? stage.m_Window->Resize({150, 70}) : void(); });
    stage.Step([&] { stage.m_Window ? void(stage.m_Window->RunFrame()) : void(); });
    stage.Step([&] { stage.Has(stage.m_Left) ? stage.m_Left->SetSize({20, 20}, false) : void(); });
    stage.Step([&] { stage.Has(stage.m_Middle) ? stage.m_Middle->SetAlignment(alRight) : void(); });
    stage.Step([&] { stage.m_Window ? void(stage.m_Window->RunFrame()) : void(); });
    stage.Step([&] { stage.Has(stage.m_Left) ? stage.m_Left->Update(utElement) : void(); });
    stage.Step([&] { stage.Has(stage.m_Inner) ? stage.m_Inner->Update(utElement) : void(); });
    stage.Step([&] { stage.m_Window ? void(stage.m_Window->RunFrame()) : void(); });
    stage.Step([&] { stage.Has(stage.m_Panel) ? stage.m_Panel->Update(utGlobal) : void(); });
    stage.Step([&] { stage.m_Window ? void(stage.m_Window->RunFrame()) : void(); });
    stage.Step([&] { stage.m_Control ? stage.m_Control->Rearrange() : void(); });
    stage.Step([&] { stage.Has(stage.m_Panel) ? stage.m_Panel->Scroll(3, 3, false) : void(); });
    stage.Step([&] { stage.m_Window ? void(stage.m_Window->RunFrame()) : void(); });
}

void ChangeTree(CStage& stage)
{
    stage.Step([&] { stage.Has(stage.m_Middle) ? stage.m_Middle->SetVisible(false) : void(); });
    stage.Step([&] { stage.Has(stage.m_Middle) ? stage.m_Middle->SetVisible(true) : void(); });
    stage.Step([&] { stage.Has(stage.m_Middle) ? stage.m_Middle->SetEnabled(false) : void(); });
    stage.Step([&] {
        if (stage.Has(stage.m_Middle) && stage.Has(stage.m_Root))
            stage.m_Middle->ReParent(stage.m_Root, true);
    });
    stage.Step([&] { stage.Has(stage.m_Middle) ? stage.m_Middle->ReParent(nullptr, true) : void(); });
    stage.Step([&] {
        if (stage.Has(stage.m_Middle) && stage.Has(stage.m_Panel))
            stage.m_Middle->ReParent(stage.m_Panel, true);
    });
    stage.Step([&] { stage.m_Window ? stage.m_Window->TellSysColorChange() : void(); });
    stage.Step([&] { stage.Has(stage.m_Panel) ? void(stage.m_Panel->AsString()) : void(); });
    stage.Step([&] { stage.Has(stage.m_Inner) ? void(stage.m_Inner->CopyToClipboard()) : void(); });
    stage.Step([&] { stage.Has(stage.m_Panel) ? stage.m_Panel->SetFont({"Other", 4, 9, 0, 0, 1.0}) : void(); });
    stage.Step([&] { stage.m_Window ? stage.m_Window->Destroy() : void(); });
}

void ExchangeRoot(CStage& stage)
{
    stage.Step([&] {
        if (stage.m_Control && stage.Has(stage.m_Middle))
            stage.m_Control->SetContent(stage.m_Middle);
    });
    stage.Step([&] { stage.m_Window ? void(stage.m_Window->RunFrame()) : void(); });
}

class DeletionAnywhere : public testing::TestWithParam<Misdeed>
{
protected:
    void PlayWithEach(CStage::CScenario const& scenario)
    {
        int count = 0;
        {
            CStage stage(-1, GetParam());
            stage.Play(scenario);
            count = stage.m_Count;
        }
        EXPECT_GT(count, 10);
        for (int moment = 0; moment < count; ++moment)
        {
            SCOPED_TRACE(moment);
            CStoppedExceptions const stopped;
            CStage stage(moment, GetParam());
            stage.Play(scenario);
            EXPECT_TRUE(stage.m_Done);
        }
    }
};

TEST_P(DeletionAnywhere, EndsAMouseChain)
{
    PlayWithEach(&UseMouse);
}
TEST_P(DeletionAnywhere, EndsAKeyOrFocusChain)
{
    PlayWithEach(&UseKeyboard);
}
TEST_P(DeletionAnywhere, EndsADrag)
{
    PlayWithEach(&DragAndDrop);
}
TEST_P(DeletionAnywhere, EndsALayoutOrPaint)
{
    PlayWithEach(&LayOutAndPaint);
}
TEST_P(DeletionAnywhere, EndsAChangeOfTheTree)
{
    PlayWithEach(&ChangeTree);
}
TEST_P(DeletionAnywhere, EndsAnExchangeOfTheRoot)
{
    PlayWithEach(&ExchangeRoot);
}

std::string MisdeedName(testing::TestParamInfo<Misdeed> const& info)
{
    static char const* const names[] = {"DeleteSelf",    "DeleteParent",      "DeleteSibling", "DeleteChildren",
                                        "DeleteRoot",    "DeleteFocused",     "DeleteControl", "DeleteWindow",
                                        "ControlWindow", "WindowThenControl", "DetachSelf",    "HideParent",
                                        "ThrowCancel",   "ThrowError"};
    return names[static_cast<int>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(All, DeletionAnywhere, testing::ValuesIn(all_misdeeds), MisdeedName);

}  // namespace
