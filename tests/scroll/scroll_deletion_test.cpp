// Whatever is deleted while something scrolls: nobody is asked any more that has gone.

#include "tests/scroll/scroll_box_support.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/scroll/scroller.h"
#include "vexel/signals/cancel_processing.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

// Does something, once, when a signal fires, whatever its arguments are.
class COnce : public subscriber_base_t
{
public:
    explicit COnce(std::function<void()> deed) : m_Deed(std::move(deed)) {}

    void Run()
    {
        if (std::function<void()> const deed = std::exchange(m_Deed, nullptr))
            deed();
    }
    void OnElement(CVisualElement*) { Run(); }
    void OnWheel(CVisualElement*, int, int, int, MouseButton, int) { Run(); }
    void OnStep(CVisualElement*, int&) { Run(); }
    void OnScroll(CScrollEvent::ScrollAction, double) { Run(); }
    void OnVisible(CVisualElement*, bool) { Run(); }
    bool IsDone() const { return !m_Deed; }

private:
    std::function<void()> m_Deed;
};

// What can be deleted in the middle of something.
enum class Victim
{
    Box,
    Pane,
    Header,
    Control,
    Window,
    Models,
    Count
};

// What is going on when it is.
enum class Moment
{
    BarDragged,
    BarDraggedByMouse,
    BarStepped,
    WheelSignal,
    WheelStep,
    WheelMove,
    WrapMoved,
    HeaderMoved,
    PaneScrolled,
    PaneScrolledByWheel,
    ScrollSignal,
    FellOffTheEnd,
    FellOffInLayout,
    RangeFits,
    SizeSignal,
    BarAppears,
    AutoScroll,
    Count
};

// A box with a pane and a header that scrolls along. The models live on their own, so that they can go at any time.
class CScene
{
public:
    CScene()
    {
        m_Header->SetVisible(true);
        m_Box->GetChildren()->MoveItem(m_Box->GetChildren()->GetCount() - 1, 0);
        m_Pane->SetHorzScroll(m_Horz.get());
        m_Pane->SetVertScroll(m_Vert.get());
        m_Horz->m_CutsStart = m_Vert->m_CutsStart = true;
        m_Box->ConnectElement(m_Pane, CScrollBox::ctBoth, true);
        m_Box->ConnectElement(m_Header, CScrollBox::ctHorizontal, false);
        m_Host->Paint();
        m_WatchBox.Watch(m_Box);
        m_WatchPane.Watch(m_Pane);
        m_WatchHeader.Watch(m_Header);
    }

    void Delete(Victim victim)
    {
        switch (victim)
        {
        case Victim::Box:
            delete m_WatchBox.get();
            break;
        case Victim::Pane:
            delete m_WatchPane.get();
            break;
        case Victim::Header:
            delete m_WatchHeader.get();
            break;
        case Victim::Control:
            m_Host->DestroyControl();
            break;
        case Victim::Window:
            m_Host->DestroyWindow();
            break;
        default:
            // Whoever owns the models takes them away first.
            if (m_WatchBox)
            {
                m_Box->SetVertScroll(nullptr);
                m_Box->SetHorzScroll(nullptr);
            }
            m_Vert->m_OnSetStart = m_Horz->m_OnSetStart = nullptr;
            m_Old.push_back(std::move(m_Vert));
            m_Old.push_back(std::move(m_Horz));
            break;
        }
    }

    vexelbase::memory::CMemoryScrollBar* Vert() const
    {
        return dynamic_cast<vexelbase::memory::CMemoryScrollBar*>(m_Box->GetVertBar());
    }

    void Bring(Moment moment, COnce& once)
    {
        auto const run = [&once] { once.Run(); };
        switch (moment)
        {
        case Moment::BarDragged:
            m_Vert->m_OnSetStart = run;
            Vert()->DragThumb(50);
            break;
        case Moment::BarDraggedByMouse:
            m_Vert->m_OnSetStart = run;
            m_Host->Mouse().Press(190, 31);
            m_Host->Mouse().Move(190, 41);
            m_Host->Mouse().Move(190, 51);
            m_Host->Mouse().Release();
            break;
        case Moment::BarStepped:
            m_Horz->m_OnSetStart = run;
            dynamic_cast<vexelbase::memory::CMemoryScrollBar&>(*m_Box->GetHorzBar()).StepPage(1);
            break;
        case Moment::WheelSignal:
            m_Box->m_SigWheel.connect(&once, &COnce::OnWheel);
            m_Host->Mouse().Wheel(50, 50, -1);
            break;
        case Moment::WheelStep:
            m_Box->m_SigGetWheelStep.connect(&once, &COnce::OnStep);
            m_Host->Mouse().Wheel(50, 50, -1);
            break;
        case Moment::WheelMove:
            m_Vert->m_OnSetStart = run;
            m_Host->Mouse().Wheel(50, 50, -1);
            break;
        case Moment::WrapMoved:
            m_Vert->m_OnSetStart = run;
            m_Box->GetWrappedVertScroll()->SetStart(30);
            break;
        case Moment::HeaderMoved:
            m_Horz->m_OnSetStart = run;
            m_Header->GetHorzScroll()->SetStart(30);
            break;
        case Moment::PaneScrolled:
            m_Pane->m_OnScroll = run;
            m_Box->VertScroll(CScrollEvent::saLine, 20);
            break;
        case Moment::PaneScrolledByWheel:
            m_Pane->m_OnScroll = run;
            m_Host->Mouse().Wheel(50, 50, -1);
            break;
        case Moment::ScrollSignal:
            m_Box->GetVertElement().m_SigScroll.connect(&once, &COnce::OnScroll);
            Vert()->DragThumb(50);
            break;
        case Moment::FellOffTheEnd:
            m_Box->GetWrappedVertScroll()->SetStart(200);
            m_Vert->m_OnSetStart = run;
            m_Vert->m_To = 120;
            m_Box->RefreshScroll();
            break;
        case Moment::FellOffInLayout:
            m_Box->GetWrappedVertScroll()->SetStart(200);
            m_Host->Paint();
            m_Vert->m_OnSetStart = run;
            m_Vert->m_To = 120;
            m_Host->Resize(220, 110);
            break;
        case Moment::RangeFits:
            m_Box->GetWrappedVertScroll()->SetStart(100);
            m_Vert->m_OnSetStart = run;
            m_Vert->m_To = 20;
            m_Box->RefreshScroll();
            break;
        case Moment::SizeSignal:
            m_Pane->m_SigSize.connect(&once, &COnce::OnElement);
            m_Host->Resize(220, 110);
            break;
        case Moment::BarAppears:
            m_Vert->m_To = 10;
            m_Box->RefreshScroll();
            m_Host->Paint();
            m_Box->GetChildren()->GetItem(1)->m_SigVisible.connect(&once, &COnce::OnVisible);
            m_Box->GetChildren()->GetItem(2)->m_SigVisible.connect(&once, &COnce::OnVisible);
            m_Vert->m_To = 400;
            m_Box->RefreshScroll();
            break;
        default:
            m_Horz->m_OnSetStart = run;
            m_Header->StartScrolling(ISysWindow::stHorizontal, sdForward, false);
            m_Host->Clock().Advance(200);
            break;
        }
    }

    std::unique_ptr<CTestHost> m_Host = std::make_unique<CTestHost>(200, 100);
    std::vector<std::unique_ptr<CTestModel>> m_Old;
    std::unique_ptr<CTestModel> m_Vert = std::make_unique<CTestModel>(0, 300);
    std::unique_ptr<CTestModel> m_Horz = std::make_unique<CTestModel>(0, 400);
    CScrollBox* m_Box = new CScrollBox(m_Host->Root(), {10, 10}, alClient);
    CTestPane* m_Pane = new CTestPane(m_Box);
    CTestPane* m_Header = new CTestPane(m_Box, alTop);
    CElementPtr<> m_WatchBox;
    CElementPtr<> m_WatchPane;
    CElementPtr<> m_WatchHeader;
};

TEST(ScrollDeletion, EverythingMayGoAtAnyMoment)
{
    for (int moment = 0; moment < static_cast<int>(Moment::Count); ++moment)
        for (int victim = 0; victim < static_cast<int>(Victim::Count); ++victim)
        {
            SCOPED_TRACE("moment " + std::to_string(moment) + ", victim " + std::to_string(victim));
            auto scene = std::make_unique<CScene>();
            COnce once([&] { scene->Delete(static_cast<Victim>(victim)); });
            try
            {
                scene->Bring(static_cast<Moment>(moment), once);
            }
            catch (vexel::cancel_processing const&)
            {}
            if (scene->m_Host->HasWindow())
                scene->m_Host->Paint();
            EXPECT_TRUE(once.IsDone());
            // What is left works on.
            if (scene->m_WatchBox && scene->m_Vert)
            {
                scene->m_Vert->m_OnSetStart = scene->m_Horz->m_OnSetStart = nullptr;
                scene->m_Vert->m_To = 300;
                scene->m_Box->RefreshScroll();
                scene->m_Box->GetWrappedVertScroll()->SetStart(40);
            }
            if (scene->m_WatchBox && scene->m_Host->HasWindow() && scene->m_Host->HasControl() &&
                static_cast<Victim>(victim) != Victim::Window)
            {
                scene->m_Host->Mouse().Wheel(60, 60, -1);
                scene->m_Host->Clock().Advance(300);
                scene->m_Host->Paint();
                EXPECT_EQ(scene->m_Host->CompareWithFullPaint(), "");
            }
        }
}

TEST(ScrollDeletion, AModelThatIsTakenAwayWithItsOwnerIsForgotten)
{
    // The pane owns the models: with it they go, and the box must not ask them again.
    CTestHost host(200, 100);
    auto* const box = new CScrollBox(host.Root(), {10, 10}, alClient);
    auto* const pane = new CTestPane(box);
    auto* const header = new CTestPane(box, alTop);
    pane->m_Vert.m_To = 300;
    pane->m_Horz.m_To = 400;
    box->ConnectElement(pane, CScrollBox::ctBoth, true);
    box->ConnectElement(header, CScrollBox::ctHorizontal, false);
    host.Paint();
    delete pane;
    EXPECT_EQ(box->GetVertScroll(), nullptr);
    EXPECT_EQ(box->GetHorzScroll(), nullptr);
    EXPECT_EQ(box->GetCentralPane(), nullptr);
    header->GetHorzScroll()->SetStart(20);
    EXPECT_EQ(header->GetHorzScroll()->GetTo(), 0.0);
    host.Mouse().Wheel(50, 50, -1);
    host.Resize(300, 200);
    host.Paint();
    EXPECT_FALSE(box->GetVertElement().IsScrollBarVisible());
    EXPECT_EQ(host.CompareWithFullPaint(), "");

    auto* const next = new CTestPane(box);
    next->m_Vert.m_To = 500;
    box->ConnectElement(next, CScrollBox::ctBoth, true);
    host.Paint();
    box->GetWrappedVertScroll()->SetStart(50);
    EXPECT_EQ(next->m_Vert.m_Start, 50.0);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST(ScrollDeletion, ThePaneMayGoWithItsModelsWhileItsModelMoves)
{
    for (int way = 0; way < 5; ++way)
    {
        CTestHost host(200, 100);
        auto* const box = new CScrollBox(host.Root(), {10, 10}, alClient);
        auto* pane = new CTestPane(box);
        pane->m_Vert.m_To = 300;
        pane->m_Horz.m_To = 400;
        box->ConnectElement(pane, CScrollBox::ctBoth, true);
        host.Paint();
        if (way >= 3)
            box->GetWrappedVertScroll()->SetStart(200);
        pane->m_Vert.m_OnSetStart = [&] { delete std::exchange(pane, nullptr); };
        switch (way)
        {
        case 0:
            dynamic_cast<vexelbase::memory::CMemoryScrollBar&>(*box->GetVertBar()).DragThumb(40);
            break;
        case 1:
            host.Mouse().Wheel(50, 50, -1);
            break;
        case 2:
            box->GetWrappedVertScroll()->SetStart(40);
            break;
        case 3:
            pane->m_Vert.m_To = 150;
            box->RefreshScroll();
            break;
        default:
            pane->m_Vert.m_To = 15;
            box->RefreshScroll();
            break;
        }
        EXPECT_EQ(pane, nullptr) << way;
        EXPECT_EQ(box->GetVertScroll(), nullptr) << way;
        host.Paint();
        EXPECT_FALSE(box->GetVertElement().IsScrollBarVisible()) << way;
        EXPECT_EQ(host.CompareWithFullPaint(), "") << way;
    }
}

TEST(ScrollDeletion, EachAxisForgetsTheModelOfItsOwnOwner)
{
    CTestHost host(200, 100);
    auto* const box = new CScrollBox(host.Root(), {10, 10}, alClient);
    auto* const first = new CTestPane(box, alTop);
    auto* const second = new CTestPane(box);
    first->m_Horz.m_To = 400;
    second->m_Vert.m_To = 300;
    box->ConnectElement(first, CScrollBox::ctHorizontal, true);
    box->ConnectElement(second, CScrollBox::ctVertical, true);
    host.Paint();
    EXPECT_EQ(box->GetHorzScroll(), &first->m_Horz);
    EXPECT_EQ(box->GetVertScroll(), &second->m_Vert);
    delete first;
    EXPECT_EQ(box->GetHorzScroll(), nullptr);
    EXPECT_EQ(box->GetVertScroll(), &second->m_Vert);
    host.Paint();
    box->GetWrappedVertScroll()->SetStart(20);
    EXPECT_EQ(second->m_Vert.m_Start, 20.0);
    delete second;
    EXPECT_EQ(box->GetVertScroll(), nullptr);
    host.Paint();

    // One that owns both, and then one of them only.
    auto* const both = new CTestPane(box);
    auto* const other = new CTestPane(box, alTop);
    CTestModel own(0, 500);
    both->m_Vert.m_To = 300;
    box->ConnectElement(both, CScrollBox::ctBoth, true);
    box->ConnectElement(other, CScrollBox::ctHorizontal, true);
    delete both;
    EXPECT_EQ(box->GetVertScroll(), nullptr);
    EXPECT_EQ(box->GetHorzScroll(), &other->m_Horz);
    box->SetHorzScroll(&own);
    delete other;
    EXPECT_EQ(box->GetHorzScroll(), &own);
    box->SetHorzScroll(nullptr);
}

TEST(ScrollDeletion, WhoeverHasTheBoxesModelsAlreadyDoesNotOwnThem)
{
    CTestHost host(200, 100);
    auto* const box = new CScrollBox(host.Root(), {10, 10}, alClient);
    auto* const owner = new CTestPane(box, alTop);
    auto* const pane = new CTestPane(box);
    owner->m_Vert.m_To = 300;
    owner->m_Horz.m_To = 400;
    box->ConnectElement(owner, CScrollBox::ctBoth, true);
    box->ConnectElement(pane, CScrollBox::ctBoth, false);
    box->ConnectElement(pane, CScrollBox::ctBoth, true);  // it shows now what the other has
    EXPECT_EQ(box->GetVertScroll(), &owner->m_Vert);
    EXPECT_EQ(box->GetHorzScroll(), &owner->m_Horz);
    delete owner;
    EXPECT_EQ(box->GetVertScroll(), nullptr);
    EXPECT_EQ(box->GetHorzScroll(), nullptr);
    host.Paint();
}

TEST(ScrollDeletion, AnElementMayGoWhileItIsConnected)
{
    for (bool const vertical : {false, true})
    {
        CTestHost host(200, 100);
        auto* const box = new CScrollBox(host.Root(), {10, 10}, alClient);
        auto* pane = new CTestPane(box);
        host.Paint();
        CTestModel& model = vertical ? pane->m_Vert : pane->m_Horz;
        model.m_To = 10;
        model.m_Start = 5;  // all of it fits, so that it is moved to its beginning
        model.m_OnSetStart = [&] { delete std::exchange(pane, nullptr); };
        box->ConnectElement(pane, CScrollBox::ctBoth, true);
        EXPECT_EQ(pane, nullptr);
        EXPECT_EQ(box->GetVertScroll(), nullptr);
        EXPECT_EQ(box->GetHorzScroll(), nullptr);
        host.Paint();
        box->GetWrappedVertScroll()->SetStart(3);
        box->GetWrappedHorzScroll()->SetStart(3);
    }
}

TEST(ScrollDeletion, TheBoxMayGoWhenItsModelTakesAScale)
{
    class CScaled : public CTestModel
    {
    public:
        std::function<void()> m_OnMeasure;
        void SetMeasure(std::pair<double, int> measure) override
        {
            CTestModel::SetMeasure(measure);
            if (std::function<void()> const then = std::exchange(m_OnMeasure, nullptr))
                then();
        }
    };
    for (bool const byRange : {false, true})
    {
        CTestHost host(200, 100);
        auto* box = new CScrollBox(host.Root(), {10, 10}, alClient);
        auto* const pane = new CTestPane(box);
        CScaled model;
        model.m_To = 300;
        pane->SetVertScroll(&model);
        box->ConnectElement(pane, CScrollBox::ctBoth, true);
        host.Paint();
        model.m_OnMeasure = [&] { delete std::exchange(box, nullptr); };
        if (byRange)
        {
            model.m_To = 1e12;
            box->RefreshScroll();
        }
        else
        {
            box->GetWrappedVertScroll()->SetMeasure({1.0, 2});
        }
        EXPECT_EQ(box, nullptr);
        host.Paint();
    }
}

TEST(ScrollDeletion, ElementsOutliveTheBoxWithoutItsModels)
{
    CTestPane pane(nullptr);
    CTestPane header(nullptr, alTop);
    CTestPane stranger(nullptr, alTop);
    pane.m_Vert.m_To = 300;
    {
        CScrollBox box(nullptr, {10, 10}, alNone);
        box.ConnectElement(&pane, CScrollBox::ctBoth, true);
        box.ConnectElement(&header, CScrollBox::ctHorizontal, false);
        box.ConnectElement(&stranger, CScrollBox::ctBoth, false);
        stranger.SetVertScroll(&stranger.m_Vert);  // it has turned elsewhere meanwhile
        EXPECT_EQ(pane.GetVertScroll(), box.GetWrappedVertScroll());
    }
    EXPECT_TRUE(pane.GetVertScroll() == nullptr || pane.GetVertScroll() == &pane.m_Vert);
    EXPECT_TRUE(pane.GetHorzScroll() == nullptr || pane.GetHorzScroll() == &pane.m_Horz);
    EXPECT_EQ(header.GetHorzScroll(), nullptr);
    EXPECT_EQ(header.GetVertScroll(), &header.m_Vert);
    EXPECT_EQ(stranger.GetVertScroll(), &stranger.m_Vert);
    EXPECT_EQ(stranger.GetHorzScroll(), nullptr);
}

TEST(ScrollDeletion, ABarThatIsHeldWhileItsBoxGoesMovesNobody)
{
    CTestHost host(200, 100);
    auto* const box = new CScrollBox(host.Root(), {10, 10}, alClient);
    auto* const pane = new CTestPane(box);
    pane->m_Vert.m_To = 300;
    box->ConnectElement(pane, CScrollBox::ctBoth, true);
    host.Paint();
    host.Mouse().Press(190, 20);
    host.Mouse().Move(190, 30);
    delete box;
    host.Mouse().Move(190, 60);
    host.Mouse().Release();
    host.Paint();
    EXPECT_EQ(vexelbase::memory::GetMemoryCounts().nativeControls, 0);
}

TEST(ScrollDeletion, WhatAContainerShowsMayGoAtAnyMoment)
{
    for (int moment = 0; moment < 7; ++moment)
        for (int victim = 0; victim < 4; ++victim)
        {
            SCOPED_TRACE("moment " + std::to_string(moment) + ", victim " + std::to_string(victim));
            CTestHost host(100, 80);
            host.Focus();
            auto* const container = new CScrollContainer(host.Root(), {10, 10}, alClient);
            auto* const content = new CVisualElement(nullptr, {300, 400}, alNone);
            container->SetScrolled(content);
            auto* const child = new CVisualElement(content, {10, 10}, alTop);
            child->SetCanHaveFocus(true);
            host.Paint();
            CElementPtr<> watch(container);
            CElementPtr<> watchContent(content);
            CElementPtr<> watchChild(child);
            COnce once([&] {
                switch (victim)
                {
                case 0:
                    delete container;
                    break;
                case 1:
                    delete content;
                    break;
                case 2:
                    delete watchChild.get();
                    break;
                default:
                    host.DestroyControl();
                    break;
                }
            });
            CScrollContainer::CCentralPart& part = container->GetCentralPart();
            try
            {
                switch (moment)
                {
                case 0:
                    content->m_SigSize.connect(&once, &COnce::OnElement);
                    part.SetVertStart(50);
                    break;
                case 1:
                    content->m_SigSize.connect(&once, &COnce::OnElement);
                    dynamic_cast<vexelbase::memory::CMemoryScrollBar&>(*container->GetVertBar()).DragThumb(50);
                    break;
                case 2:
                    container->m_SigGetWheelStep.connect(&once, &COnce::OnStep);
                    host.Mouse().Wheel(20, 20, -1);
                    break;
                case 3:
                    child->m_SigGetFocus.connect(&once, &COnce::OnElement);
                    part.SetVertStart(100);
                    child->SetFocus(true);
                    break;
                case 4:
                    content->m_SigSize.connect(&once, &COnce::OnElement);
                    content->SetSize({200, 20}, false);
                    host.Paint();
                    break;
                case 5:
                    part.m_SigSize.connect(&once, &COnce::OnElement);
                    host.Resize(150, 120);
                    host.Paint();
                    break;
                default:
                    part.SetVertStart(50);
                    child->Update(utElement);
                    once.Run();
                    break;
                }
            }
            catch (vexel::cancel_processing const&)
            {}
            EXPECT_TRUE(once.IsDone());
            host.Paint();
            if (watch)
            {
                host.Mouse().Wheel(20, 20, -2);
                host.Resize(120, 90);
                host.Paint();
                EXPECT_TRUE(watchContent || !container->GetScrolled());
            }
        }
}

TEST(ScrollDeletion, WhatAScrollerShowsMayGoAtAnyMoment)
{
    for (int moment = 0; moment < 3; ++moment)
        for (int victim = 0; victim < 3; ++victim)
        {
            SCOPED_TRACE("moment " + std::to_string(moment) + ", victim " + std::to_string(victim));
            CTestHost host(100, 80);
            auto* const scroller = new CScroller(host.Root(), {10, 10}, alClient);
            auto* const content = new CVisualElement(nullptr, {300, 400}, alNone);
            scroller->SetScrolled(content);
            host.Paint();
            CElementPtr<> watch(scroller);
            CElementPtr<> watchContent(content);
            COnce once([&] {
                if (victim == 0)
                    delete scroller;
                else if (victim == 1)
                    delete content;
                else
                    host.DestroyControl();
            });
            try
            {
                switch (moment)
                {
                case 0:
                    content->m_SigSize.connect(&once, &COnce::OnElement);
                    scroller->GetCentralPart().OnBottomButtonClick(nullptr);
                    host.Resize(110, 85);
                    host.Paint();
                    break;
                case 1:
                    scroller->GetTopButton().m_SigVisible.connect(&once, &COnce::OnVisible);
                    host.Resize(100, 600);
                    host.Paint();
                    break;
                default:
                    scroller->GetCentralPart().m_SigSize.connect(&once, &COnce::OnElement);
                    host.Resize(100, 90);
                    host.Paint();
                    break;
                }
            }
            catch (vexel::cancel_processing const&)
            {}
            EXPECT_TRUE(once.IsDone());
            host.Paint();
            EXPECT_TRUE(!watch || watchContent || !scroller->GetScrolled());
        }
}

}  // namespace
