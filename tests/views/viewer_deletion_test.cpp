// A slot may delete whatever it likes: the list, its box, a model, the control, in any signal, whoever caused it.

#include "tests/views/viewer_bench.h"
#include "vexel/core/element_ptr.h"
#include "vexel/platform/memory/memory_scroll_bar.h"
#include "vexel/scroll/scroll_box.h"

#include <vector>

using namespace viewer_test;

namespace
{

enum Victim
{
    viList,
    viBox,
    viViewModel,
    viSelectionModel,
    viHandler,
    viControl,
    viWindow,
    viReplacedModels,  // nobody dies, but the list gets its own models back
    viCount
};

std::string NameOf(int victim)
{
    char const* const names[] = {"list",    "box",     "view model", "selection model",
                                 "handler", "control", "window",     "replaced models"};
    return names[victim];
}

// A list with models of the application in a box, and one who kills with the signal of a certain number.
template <class Model> class CScene
{
public:
    using ViewModel = std::conditional_t<std::is_same_v<Model, IDiscreteItemViewModel>, CNonEqualItemsViewModel,
                                         CDefaultColumnViewModel>;

    CScene(Victim victim, int number) : m_Victim(victim), m_Left(number)
    {
        m_Host.Focus();
        m_Host.Root()->GetControl()->SetDragStartSensitivity({3, 3});
        m_Box.Watch(new CScrollBox(m_Host.Root(), {10, 10}, alClient));
        auto* const rows = new CTestRows<Model>(m_Box.get(), {10, 10}, alClient);
        m_Rows.Watch(rows);
        rows->SetAutoRowHeight(false);
        rows->SetRowViewModel(m_View.get());
        rows->SetRowSelectionModel(m_Selection.get());
        rows->AddEventHandler(m_Handler.get());
        m_View->SetDefaultItemSize(10);
        m_View->SetCount(30);
        rows->GetRowHandler().SetNotifySelection(true);
        m_Box->ConnectElement(rows, CScrollBox::ctVertical, true);
        m_Host.Paint();
        rows->SetFocus(true);
        m_Selection->SetCurrent(3);
        m_Selection->SelectItem(3, true);
        m_Host.RunPending();
        m_Host.Paint();

        Watch(m_View->m_SigChanged);
        Watch(m_View->m_SigSizeChanged);
        Watch(m_Selection->m_SigChanged);
        Watch(m_Selection->m_SigCurrentChanged);
        Watch(m_Selection->m_SigSelectionChanged);
        Watch(rows->GetRowHandler().m_SigCurrentChanging);
        Watch(rows->GetRowHandler().m_SigSelectionChanged);
        Watch(rows->m_SigSelectionChanged);
        Watch(rows->m_SigSize);
        if (victim != viWindow)  // a window may not be destroyed within its own paint
        {
            Watch(rows->m_SigDraw);
            rows->m_OnDraw = [this](int) { Called(); };
        }
        Watch(rows->m_SigGetFocus);
        Watch(rows->m_SigLostFocus);
        Watch(rows->m_SigVisible);
        Watch(rows->m_SigButtonDown);
        Watch(rows->m_SigKeyDown);
        rows->m_OnCurrent = [this](int&) { Called(); };
    }
    ~CScene()
    {
        // Whoever is left goes on living, and the user goes on as if nothing had happened.
        m_Left = 0;
        m_Host.RunPending();
        if (m_Host.HasWindow() && !m_WindowGone)
        {
            m_Host.Mouse().Release();
            if (m_Host.HasControl() && !m_ControlGone)
                m_Host.Paint();
        }
        m_Host.Clock().Advance(300);
    }
    CScene(CScene const&) = delete;
    CScene& operator=(CScene const&) = delete;

    bool HasKilled() const { return m_Killed; }
    bool HasControl() const { return !m_ControlGone && !m_WindowGone; }
    CTestRows<Model>* Rows() { return m_Rows.get(); }
    CScrollBox* Box() { return m_Box.get(); }
    ViewModel* View() { return m_View.get(); }
    CDefaultSelectionModel* Selection() { return m_Selection.get(); }
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
        case viList:
            delete m_Rows.get();
            break;
        case viBox:
            delete m_Box.get();
            break;
        case viViewModel:
            m_View.reset();
            break;
        case viSelectionModel:
            m_Selection.reset();
            break;
        case viHandler:
            m_Handler.reset();
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
            m_Rows->SetRowViewModel(nullptr);
            m_Rows->SetRowSelectionModel(nullptr);
            break;
        }
    }

    Victim m_Victim;
    int m_Left;
    bool m_Killed = false, m_ControlGone = false, m_WindowGone = false;
    std::vector<std::unique_ptr<plinth::subscriber_base_t>> m_Slots;
    std::unique_ptr<ViewModel> m_View = std::make_unique<ViewModel>();
    std::unique_ptr<CDefaultSelectionModel> m_Selection = std::make_unique<CDefaultSelectionModel>();
    std::unique_ptr<CEventHandler> m_Handler = std::make_unique<CEventHandler>();
    CTestHost m_Host{120, 80};
    CElementPtr<CScrollBox> m_Box;
    CElementPtr<CTestRows<Model>> m_Rows;
};

template <class Model> class ViewerDeletion : public testing::Test
{
protected:
    using Scene = CScene<Model>;

    // Does the deed again and again, with each victim in each signal. At least so many signals must come.
    void Play(int signals, std::function<void(Scene&)> const& deed, int leastForWindow = 1)
    {
        for (int victim = 0; victim < viCount; ++victim)
        {
            SCOPED_TRACE(NameOf(victim));
            int number = 0;
            for (bool killed = true; killed; ++number)
            {
                SCOPED_TRACE("signal " + std::to_string(number + 1));
                Scene scene(static_cast<Victim>(victim), number + 1);
                deed(scene);
                killed = scene.HasKilled();
            }
            EXPECT_GE(number - 1, victim == viWindow ? std::min(signals, leastForWindow) : signals);
        }
    }
};

using ItemModels = testing::Types<IDiscreteItemViewModel, IContinuousItemViewModel>;
TYPED_TEST_SUITE(ViewerDeletion, ItemModels);

TYPED_TEST(ViewerDeletion, ByAClickOnEachKindOfRow)
{
    for (int const keys : {0, static_cast<int>(ksShift), static_cast<int>(ksControl)})
        for (int const y : {15, 35, 79})
            this->Play(y == 35 ? 1 : 3, [=](CScene<TypeParam>& scene) {
                CHoldKeys const hold(scene.Host(), keys);
                scene.Host().Mouse().Press(5, y);
                if (scene.HasControl())
                    scene.Host().Mouse().Release();
            });
}

TYPED_TEST(ViewerDeletion, ByAClickWhereSeveralAreSelected)
{
    this->Play(4, [](CScene<TypeParam>& scene) {
        if (scene.Selection())
            scene.Selection()->SetSelectionRange(1, 5);
        if (scene.HasControl())
            scene.Host().Mouse().Press(5, 35);
    });
}

TYPED_TEST(ViewerDeletion, ByAKey)
{
    for (int const key : {vkDown, vkUp, vkEnd, vkHome, vkPageDown, vkPageUp, vkSpace})
        for (int const keys : {0, static_cast<int>(ksShift)})
        {
            bool const page = key == vkPageDown || key == vkPageUp;
            this->Play(page && !CRowViewer<TypeParam>::s_Discrete ? 1 : 3, [=](CScene<TypeParam>& scene) {
                scene.Host().Keyboard().Press(key, keys);
                if (scene.HasControl())
                    scene.Host().Keyboard().Press(key, keys);
            });
        }
    this->Play(2, [](CScene<TypeParam>& scene) { scene.Host().Keyboard().Down('A', ksControl); });
}

TYPED_TEST(ViewerDeletion, ByAKeyWhereTheCurrentRowIsOutOfView)
{
    for (int const start : {0, 15})
        for (int const key : {vkDown, vkUp, vkPageDown, vkPageUp})
            this->Play(1, [=](CScene<TypeParam>& scene) {
                scene.Selection()->SetCurrent(start == 0 ? 25 : 3);
                if (!scene.View() || !scene.HasControl())
                    return;
                if constexpr (CRowViewer<TypeParam>::s_Discrete)
                    scene.View()->SetStartItem(start);
                else
                    scene.View()->SetOffset(start * 10);
                if (scene.HasControl())
                    scene.Host().Keyboard().Press(key);
            });
}

TYPED_TEST(ViewerDeletion, ByADragAndItsTicks)
{
    for (int const to : {-20, 100})
        this->Play(8, [=](CScene<TypeParam>& scene) {
            scene.Host().Mouse().Press(5, 35);
            for (int const y : {45, to, to})
                if (scene.HasControl())
                    scene.Host().Mouse().Move(5, y);
            for (int i = 0; i < 3; ++i)
                scene.Host().Clock().Advance(100);
        });
}

TYPED_TEST(ViewerDeletion, ByTheWheelAndTheBar)
{
    this->Play(2, [](CScene<TypeParam>& scene) { scene.Host().Mouse().Wheel(5, 5, -3); });
    this->Play(2, [](CScene<TypeParam>& scene) {
        dynamic_cast<vexelbase::memory::CMemoryScrollBar*>(scene.Box()->GetVertBar())->DragThumb(50);
    });
}

TYPED_TEST(ViewerDeletion, ByAChangeOfTheModels)
{
    auto const view = [this](int signals, auto const& deed) {
        this->Play(signals, [&](CScene<TypeParam>& scene) { deed(*scene.View()); });
    };
    view(1, [](auto& model) { model.SetCount(2); });
    view(2, [](auto& model) { model.SetItemSize(1, 25); });
    view(1, [](auto& model) { model.SetDefaultItemSize(17); });
    view(1, [](auto& model) { model.SetViewSize(20, true); });
    view(1, [](auto& model) { model.SetStretchLastItem(true); });
    view(1, [](auto& model) {
        CAddRemoveTranslator translator(0, 2);
        model.UpdateModelState(&translator);
    });
    this->Play(2, [](CScene<TypeParam>& scene) { scene.Selection()->SetSelectionRange(4, 8); });
    this->Play(1, [](CScene<TypeParam>& scene) { scene.Selection()->ClearSelection(); });
    this->Play(2, [](CScene<TypeParam>& scene) { scene.Selection()->SetCurrent(5); });
    this->Play(2, [](CScene<TypeParam>& scene) {
        CMoveTranslator translator(3, 1);
        scene.Selection()->UpdateModelState(&translator);
    });
}

TYPED_TEST(ViewerDeletion, ByTheList)
{
    this->Play(1, [](CScene<TypeParam>& scene) { scene.Rows()->SetPos({0, 0, 60, 30}, false); });
    this->Play(1, [](CScene<TypeParam>& scene) {
        if (scene.Rows()->GetRowHandler().GetViewModel()->GetCount() > 0)
            scene.Rows()->GetRowHandler().ItemToView(20);
    });
    this->Play(1, [](CScene<TypeParam>& scene) { scene.Rows()->SetSelectionType(CEventHandlerBase::stOneItem); });
    this->Play(1, [](CScene<TypeParam>& scene) {
        font large;
        large.size = 14;
        scene.Rows()->SetAutoRowHeight(true);
        if (scene.Rows())
            scene.Rows()->SetFont(large);
    });
    this->Play(1, [](CScene<TypeParam>& scene) {
        scene.Rows()->SetVisible(false);
        if (scene.Rows())
            scene.Rows()->SetVisible(true);
        if (scene.HasControl())
            scene.Host().Paint();
    });
    this->Play(1, [](CScene<TypeParam>& scene) { scene.Host().Unfocus(); });
    this->Play(1, [](CScene<TypeParam>& scene) {
        scene.Box()->SetCanHaveFocus(true);
        scene.Box()->SetFocus(true);
    });
}

TYPED_TEST(ViewerDeletion, WithinAPaint)
{
    this->Play(
        5,
        [](CScene<TypeParam>& scene) {
            scene.Rows()->Update(utElement);
            scene.Host().Paint();
        },
        0);
    this->Play(
        5, [](CScene<TypeParam>& scene) { scene.Host().FullPaint(); }, 0);
}

TYPED_TEST(ViewerDeletion, ByANotification)
{
    this->Play(4, [](CScene<TypeParam>& scene) {
        scene.Host().Mouse().Press(5, 15);
        scene.Host().RunPending();
    });
    SetSelectionChangeDelay(100);
    this->Play(4, [](CScene<TypeParam>& scene) {
        scene.Host().Keyboard().Press(vkDown);
        scene.Host().RunPending();
        scene.Host().Clock().Advance(100);
    });
    SetSelectionChangeDelay(0);
}

// What a list calls as it goes by its models --------------------------------------------------------------------------------
class CDyingRows : public CTestRows<IDiscreteItemViewModel>
{
public:
    using CTestRows::CTestRows;
    bool m_Dies = false;
    bool BeforeProcessChange(CVisualElement* element, UpdateType type) override
    {
        bool const goesOn = CTestRows::BeforeProcessChange(element, type);
        if (m_Dies)
            delete this;
        return goesOn;
    }
};

TEST(ListDeletion, ByTheUpdateOfItsScrollModel)
{
    class CDeadlyScroll : public CDiscreteItemScrollModel
    {
    public:
        CElementPtr<CDyingRows> m_Victim;
        void Update() override { delete m_Victim.get(); }
    };
    CNonEqualItemsViewModel model;
    CDeadlyScroll scroll;
    CTestHost host(100, 51);
    auto* const rows = new CDyingRows(host.Root(), {10, 10}, alClient);
    rows->SetRowViewModel(&model);
    rows->SetVertScroll(&scroll);
    CElementPtr<CDyingRows> const watched(rows);
    scroll.m_Victim.Watch(rows);
    model.SetCount(5);
    EXPECT_FALSE(watched);
    host.Paint();
}

TEST(ListDeletion, ByTheRepaintThatAChangeAsksFor)
{
    for (bool const ofSelection : {false, true})
    {
        CNonEqualItemsViewModel model;
        CDefaultSelectionModel selection;
        CTestHost host(100, 51);
        auto* const rows = new CDyingRows(host.Root(), {10, 10}, alClient);
        rows->SetRowViewModel(&model);
        rows->SetRowSelectionModel(&selection);
        rows->GetRowHandler().SetNotifySelection(true);
        model.SetCount(5);
        host.Paint();
        CElementPtr<CDyingRows> const watched(rows);
        rows->m_Dies = true;
        if (ofSelection)
            selection.SelectItem(2, true);
        else
            model.SetCount(7);
        EXPECT_FALSE(watched);
        EXPECT_EQ(CTestHost::System().GetPostedCount(), 0);  // nobody is left who would notify
        host.Paint();
    }
}

// Grids --------------------------------------------------------------------------------------------------------------------
class CDyingGrid : public CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>
{
public:
    using CGridViewer::CGridViewer;
    std::function<void()> m_OnCell;
    void DrawCell(IPainter*, int, int, int, int, int, rectangle<double> const&, IDirtyItemSet::DirtyType) override
    {
        if (auto const then = std::exchange(m_OnCell, nullptr))
            then();
    }
};

TEST(GridDeletion, OfTheGridOrAModelWithinACell)
{
    for (int victim = 0; victim < 6; ++victim)
    {
        auto rows = std::make_unique<CNonEqualItemsViewModel>();
        auto columns = std::make_unique<CNonEqualItemsViewModel>();
        auto rowSelection = std::make_unique<CDefaultSelectionModel>();
        auto columnSelection = std::make_unique<CDefaultSelectionModel>();
        CTestHost host(100, 51);
        auto* const grid = new CDyingGrid(host.Root(), {10, 10}, alClient);
        rows->SetCount(3);
        columns->SetCount(3);
        grid->SetRowViewModel(rows.get());
        grid->SetColumnViewModel(columns.get());
        grid->SetRowSelectionModel(rowSelection.get());
        grid->SetColumnSelectionModel(columnSelection.get());
        host.Paint();
        bool deleted = false;
        grid->m_OnCell = [&] {
            deleted = true;
            switch (victim)
            {
            case 0:
                delete grid;
                break;
            case 1:
                rows.reset();
                break;
            case 2:
                columns.reset();
                break;
            case 3:
                rowSelection.reset();
                break;
            case 4:
                columnSelection.reset();
                break;
            default:
                host.DestroyControl();
                break;
            }
        };
        host.FullPaint();
        EXPECT_TRUE(deleted);
        if (victim < 5)
            host.Paint();
    }
}

}  // namespace
