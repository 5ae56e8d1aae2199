// A slot may delete whatever it likes: the pane, a model, the look, the control, in any signal, whoever caused it.

#include "tests/controls/tab_bench.h"
#include "vexel/core/element_ptr.h"

#include <functional>

using namespace tab_test;

namespace
{

enum Victim
{
    viPane,
    viModel,
    viSelection,
    viLook,
    viControl,
    viWindow,
    viReplaced,  // nobody dies, but the pane gets nothing and its own things
    viCount
};

char const* const g_Victims[] = {"pane", "model", "selection", "look", "control", "window", "replaced"};

/// Draws as the pane itself does.
class CLook : public ITabVisualisation
{
public:
    explicit CLook(CTabPane& pane) : m_Pane(&pane) {}

    rectangle<double> GetCloseBtnRect(rectangle<double> const& r) const override { return m_Pane->GetCloseBtnRect(r); }
    rectangle<double> GetTabContentRect(rectangle<double> const& r, unsigned int s) const override
    {
        return m_Pane->GetTabContentRect(r, s);
    }
    int GetItemOptimalWidth(IPainter* p, int i) const override { return m_Pane->GetItemOptimalWidth(p, i); }
    int GetItemAdditionalHeight() const override { return 14; }
    int GetItemAdditionalWidth() const override { return 10; }
    void DrawBackground(IPainter* p, int i, rectangle<double> const& r, unsigned int s) override
    {
        m_Pane->DrawBackground(p, i, r, s);
    }
    void DrawTab(IPainter* p, int i, rectangle<double> const& r, unsigned int s) override
    {
        m_Pane->DrawTab(p, i, r, s);
    }
    void DrawTabContent(IPainter* p, int i, rectangle<double> const& r, unsigned int s) override
    {
        m_Pane->DrawTabContent(p, i, r, s);
    }
    void DrawCloseButton(IPainter* p, int i, rectangle<double> const& r, unsigned int s) override
    {
        m_Pane->DrawCloseButton(p, i, r, s);
    }
    _color GetBackgroundColor(int i, unsigned int s) override { return m_Pane->GetBackgroundColor(i, s); }
    _color GetTextColor(int i, unsigned int s) override { return m_Pane->GetTextColor(i, s); }
    _color GetFrameColor(int i, unsigned int s) override { return m_Pane->GetFrameColor(i, s); }

private:
    CTabPane* m_Pane;
};

// A pane in the focus with all that may die, and one who kills with the signal of a certain number.
class CScene
{
public:
    CScene(Victim victim, int number) : m_Victim(victim), m_Left(number)
    {
        SetDefAnimationProcess(aptTimer);
        for (int i = 0; i < 12; ++i)
            m_Tabs->Add("tab").close = true;
        (*m_Tabs)[2].enabled = false;
        (*m_Tabs)[1].animated = true;
        m_Tabs->m_Frames = vexel_ptr<IAnimation>(new CTestFrames);
        m_Pane.Watch(new CTestPane(m_Host.Root(), {10, 25}, alTop));
        m_Look = std::make_unique<CLook>(*m_Pane.get());
        m_Pane->SetColumnSelectionModel(m_Selection.get());
        m_Pane->SetItemVisualisation(m_Look.get());
        m_Pane->SetModel(m_Tabs.get());
        m_Pane->SetAutoSize(true);
        m_Host.Focus();
        m_Pane->SetFocus(true);
        m_Host.Paint();
        Watch(m_Pane->m_SigCurrentTabChanged);
        Watch(m_Pane->m_SigCloseClicked);
        Watch(m_Pane->m_SigScrollStateChanged);
        Watch(m_Pane->m_SigColumnSelectionChanged);
        Watch(m_Pane->GetColumnHandler().m_SigCurrentChanging);
        Watch(m_Selection->m_SigChanged);
        Watch(m_Selection->m_SigCurrentChanged);
        Watch(m_Selection->m_SigSelectionChanged);
        Watch(m_Pane->GetColumnViewModel()->m_SigChanged);
        Watch(m_Pane->GetColumnViewModel()->m_SigSizeChanged);
        Watch(m_Pane->GetRowViewModel()->m_SigChanged);
        Watch(m_Tabs->m_SigChanged);
        Watch(m_Tabs->m_SigTabChanged);
        Watch(m_Pane->m_SigSize);
        Watch(m_Pane->m_SigButtonDown);
        Watch(m_Pane->m_SigMouseMove);
        Watch(m_Pane->m_SigMouseLeave);
        Watch(m_Pane->m_SigKeyDown);
        Watch(m_Pane->m_SigTooltip);
        Watch(m_Pane->m_SigGetFocus);
        Watch(m_Pane->m_SigLostFocus);
        if (victim != viWindow)  // a window may not be destroyed within its own paint
            Watch(m_Pane->m_SigDraw);
    }
    ~CScene()
    {
        // Whoever is left goes on living, and the user goes on as if nothing had happened.
        m_Left = 0;
        m_Host.Clock().Advance(120);
        if (HasControl())
        {
            m_Host.RunPending();
            m_Host.Mouse().Release();
            m_Host.Mouse().Move(30, 8);
            m_Host.Paint();
        }
        SetDefAnimationProcess(aptThread);
    }
    CScene(CScene const&) = delete;
    CScene& operator=(CScene const&) = delete;

    bool HasKilled() const { return m_Killed; }
    bool HasControl() const { return !m_ControlGone && !m_WindowGone; }
    CTestPane* Pane() { return m_Pane.get(); }
    CTestTabs* Tabs() { return m_Tabs.get(); }
    CTestHost& Host() { return m_Host; }

private:
    template <class... A> void Watch(signal_t<A...>& signal)
    {
        m_Slots.push_back(ListenToAny(signal, [this] { Called(); }));
    }
    void Called()
    {
        if (--m_Left != 0)
            return;
        m_Killed = true;
        switch (m_Victim)
        {
        case viPane:
            delete m_Pane.get();
            break;
        case viModel:
            m_Tabs.reset();
            break;
        case viSelection:
            m_Selection.reset();
            break;
        case viLook:
            m_Look.reset();
            break;
        case viControl:
            m_ControlGone = true;
            m_Host.DestroyControl();
            break;
        case viWindow:
            m_WindowGone = true;
            m_Host.DestroyWindow();
            break;
        default:
            m_Pane->SetModel(nullptr);
            m_Pane->SetItemVisualisation(nullptr);
            m_Pane->SetColumnSelectionModel(nullptr);
            m_Pane->SetColumnViewModel(nullptr);
            break;
        }
    }

    Victim m_Victim;
    int m_Left;
    bool m_Killed = false, m_ControlGone = false, m_WindowGone = false;
    std::vector<std::unique_ptr<plinth::subscriber_base_t>> m_Slots;
    std::unique_ptr<CTestTabs> m_Tabs = std::make_unique<CTestTabs>();
    std::unique_ptr<CDefaultSelectionModel> m_Selection = std::make_unique<CDefaultSelectionModel>();
    CTestHost m_Host{200, 60};
    std::unique_ptr<CLook> m_Look;
    CElementPtr<CTestPane> m_Pane;
};

// Does the deed again and again, with each victim in each signal. At least so many signals must come where all live.
void Play(int signals, std::function<void(CScene&)> const& deed)
{
    for (int victim = 0; victim < viCount; ++victim)
    {
        SCOPED_TRACE(g_Victims[victim]);
        int number = 0;
        for (bool killed = true; killed; ++number)
        {
            ASSERT_LT(number, 400);
            SCOPED_TRACE("signal " + std::to_string(number + 1));
            CScene scene(static_cast<Victim>(victim), number + 1);
            deed(scene);
            killed = scene.HasKilled();
        }
        if (victim != viWindow)
            EXPECT_GE(number - 1, signals);
        else
            EXPECT_GE(number - 1, 1);
    }
}

TEST(TabPaneDeletion, ByAClickOnATab)
{
    Play(5, [](CScene& scene) {
        scene.Host().Mouse().Press(60, 8);
        if (scene.HasControl())
            scene.Host().Mouse().Release();
    });
}

TEST(TabPaneDeletion, ByAClickOnACloseButton)
{
    Play(3, [](CScene& scene) {
        ASSERT_EQ(scene.Pane()->HitTest(36, 9).kind, CTabPane::hkCloseButton);
        scene.Host().Mouse().Press(36, 9);
    });
}

TEST(TabPaneDeletion, ByAToggle)
{
    Play(5, [](CScene& scene) {
        scene.Pane()->SetToggled(true);
        if (scene.HasControl() && scene.Pane())
            scene.Host().Mouse().Press(60, 8);
        if (scene.Pane())
            scene.Pane()->ToggleTab(0, true);
        if (scene.Pane())
            scene.Pane()->SetToggled(false);
    });
}

TEST(TabPaneDeletion, ByKeys)
{
    for (bool const toggled : {false, true})
        Play(4, [=](CScene& scene) {
            scene.Pane()->SetToggled(toggled);
            for (int const key : {vkRight, vkRight, vkLeft, vkSpace})
                if (scene.HasControl())
                    scene.Host().Keyboard().Press(key);
            if (scene.HasControl())
                scene.Host().Keyboard().Press('A');
        });
}

TEST(TabPaneDeletion, ByCode)
{
    Play(6, [](CScene& scene) {
        scene.Pane()->SetCurrentTab(3);
        if (scene.Pane())
            scene.Pane()->SetCurrentTab(9);
        if (scene.Pane())
            scene.Pane()->SetFirstVisibleTab(1);
    });
}

TEST(TabPaneDeletion, ByANewLayout)
{
    Play(5, [](CScene& scene) {
        for (STab& tab : scene.Tabs()->m_Tabs)
            tab.text = "another";
        scene.Pane()->Layout();
        if (scene.Pane() && scene.Tabs())
        {
            (*scene.Tabs())[0].text = "b";
            scene.Tabs()->m_SigTabChanged(0);
        }
        if (scene.Pane() && scene.Tabs())
        {
            scene.Tabs()->Add("c");
            scene.Tabs()->m_SigChanged();
        }
    });
}

TEST(TabPaneDeletion, ByOtherWidthsAndModels)
{
    Play(8, [](CScene& scene) {
        CTestTabs other({"x", "y"});
        scene.Pane()->SetEqualWidths(true);
        if (scene.Pane())
            scene.Pane()->SetEqualWidths(false);
        if (scene.Pane())
            scene.Pane()->SetAutoSize(true);
        if (scene.Pane())
            scene.Pane()->SetModel(&other);
        if (scene.Pane())
            scene.Pane()->SetItemVisualisation(nullptr);
        if (scene.Pane())
            scene.Pane()->SetModel(nullptr);
    });
}

TEST(TabPaneDeletion, ByFontFocusPlaceAndPaint)
{
    Play(8, [](CScene& scene) {
        font large;
        large.size = 14;
        scene.Pane()->SetFont(large);
        if (scene.HasControl())
            scene.Host().Unfocus();
        if (scene.HasControl())
            scene.Host().Resize(150, 50);
        if (scene.HasControl())
            scene.Host().Paint();
        if (scene.HasControl())
            scene.Host().Focus();
        if (scene.HasControl())
            scene.Host().Clock().Advance(60);
        if (scene.HasControl())
            scene.Host().Paint();
    });
}

TEST(TabPaneDeletion, ByTheMouseAndTooltips)
{
    Play(3, [](CScene& scene) {
        scene.Host().Mouse().Move(10, 8);
        if (scene.HasControl())
            scene.Host().Tooltip(12, 8);
        if (scene.HasControl())
            scene.Host().Mouse().Leave();
    });
}

TEST(TabPaneDeletion, ByAnotherControl)
{
    Play(1, [](CScene& scene) {
        CTestHost other(100, 40);
        scene.Pane()->ReParent(other.Root(), true);
        if (scene.Pane())
            other.Paint();
        if (scene.Pane() && scene.HasControl())
            scene.Pane()->ReParent(scene.Host().Root(), true);
        if (scene.Pane() && (!scene.HasControl() || !scene.Pane()->GetParent()))
            delete scene.Pane();
    });
}

TEST(TabPaneDeletion, TheModelsOfAPaneGoWithIt)
{
    CDefaultSelectionModel selection;
    CTestTabs tabs({"a", "b"});
    {
        CTestHost host(100, 40);
        auto* const pane = new CTestPane(host.Root(), {10, 25}, alTop);
        pane->SetColumnSelectionModel(&selection);
        pane->SetModel(&tabs);
        pane->SetEqualWidths(true);
        host.Paint();
        delete pane;
        host.Paint();
    }
    selection.SetCurrent(1);
    tabs.m_SigChanged();
    tabs.m_SigTabChanged(0);
}

}  // namespace
