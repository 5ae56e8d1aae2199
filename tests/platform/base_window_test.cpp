#include "tests/support/canvas.h"

#include "vexel/platform/base_window.h"
#include "vexel/signals/cancel_processing.h"

#include "vexel/testing/expect_report.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace vexelbase::tests
{

namespace
{

// A window without a native one: frames and queue are run by hand.
class CBareWindow : public CBaseWindow
{
public:
    explicit CBareWindow(std::string* log = nullptr) : m_Log(log)
    {
        SetDevice(std::make_unique<CPixelDevice>(GetPixels()));
    }
    ~CBareWindow() override { StartDestroying(); }

    void SetFocus() override {}
    bool HasFocus() const override { return false; }
    void SetCursor(int) override {}
    void CaptureMouse() override {}
    void ReleaseMouse() override {}
    void TrackPointer() override {}
    void HideTooltip() override {}
    void ScreenToClient(point<int>*) const override {}
    void ClientToScreen(point<int>*) const override {}
    vexel_ptr<IScrollBar> CreateScrollBar(int) override { return {}; }
    vexel_ptr<IEdit> CreateEdit(bool) override { return {}; }
    vexel_ptr<IComboBox> CreateComboBox(bool) override { return {}; }
    vexel_ptr<IPopup> CreatePopup() override { return {}; }

    using CBaseWindow::PaintFrame;
    using CBaseWindow::ResizeSurface;
    using CBaseWindow::RunQueue;
    using CBaseWindow::StartDestroying;

    int m_Frames = 0;         // RequestFrame calls
    int m_Wakes = 0;          // WakeQueue calls
    std::string m_Presented;  // the damage of each present

protected:
    void RequestFrame() override { ++m_Frames; }
    void PresentDamage() override
    {
        for (int i = 0; i < GetDevice().GetDamage().GetCount(); ++i)
        {
            rectangle<int> const& rect = GetDevice().GetDamage()[i];
            m_Presented += "(" + std::to_string(rect.left) + " " + std::to_string(rect.top) + " " +
                           std::to_string(rect.right) + " " + std::to_string(rect.bottom) + ")";
        }
        GetDevice().GetDamage().Clear();
    }
    void WakeQueue() override { ++m_Wakes; }
    void AfterPaint() override
    {
        if (m_Log)
            *m_Log += "after ";
    }

private:
    std::string* m_Log;
};

// A control that draws what the test says.
class CDrawn : public CVexelControl
{
public:
    explicit CDrawn(ISysWindow* window) : CVexelControl(window, false) {}

    void OnDraw(IPainter* painter) override
    {
        painter->BeginPaint(IPainter::ssPaint);
        m_Log += painter->IsFullPaint() ? "full " : "part ";
        if (m_Draw)
            m_Draw(painter);
        painter->EndPaint();
    }
    void OnResize(CWindowEvent*) override { m_Log += "resize "; }
    void OnDestroy(CWindowEvent*) override
    {
        m_Log += GetWindow() ? "destroy " : "destroy-without-window ";
        if (m_Destroyed)
            m_Destroyed();
    }

    std::function<void(IPainter*)> m_Draw;
    std::function<void()> m_Destroyed;
    std::string m_Log;
};

void Fill(IPainter* painter, _color const& color, double left, double top, double right, double bottom)
{
    painter->SetBrush({color, brush::bsSolid});
    painter->FillRect(left, top, right, bottom);
}

class CCall : public IRunnable
{
public:
    CCall(std::function<void()> call, int* alive) : m_Call(std::move(call)), m_Alive(alive) { ++*m_Alive; }
    ~CCall() override
    {
        --*m_Alive;
        if (m_AtDeath)
            m_AtDeath();
    }
    bool Run() override
    {
        m_Call();
        return true;  // a queue runs it once all the same
    }

    std::function<void()> m_AtDeath;

private:
    std::function<void()> m_Call;
    int* m_Alive;
};

// Adds a dot; may be made on any thread.
class CDot : public IRunnable
{
public:
    explicit CDot(std::string& log) : m_Log(log) {}
    bool Run() override
    {
        m_Log += ".";
        return false;
    }

private:
    std::string& m_Log;
};

class CBaseWindowTest : public testing::Test
{
protected:
    CBaseWindowTest()
    {
        m_Window->ResizeSurface({20, 10});
        m_Window->PaintFrame();
        m_Control.m_Log.clear();
        m_Window->m_Presented.clear();
        m_Window->m_Frames = 0;
    }
    void Post(std::function<void()> call) { m_Window->Post(new CCall(std::move(call), &m_Alive)); }
    std::function<void()> Note(std::string const& text)
    {
        return [this, text] { m_Log += text; };
    }

    int m_Alive = 0;
    std::string m_Log;
    std::unique_ptr<CBareWindow> m_Window = std::make_unique<CBareWindow>(&m_Log);
    CDrawn m_Control{m_Window.get()};
};

}  // namespace

// Frames -----------------------------------------------------------------------------------------------------------

TEST_F(CBaseWindowTest, AsksForOneFrameForManyRequests)
{
    m_Window->InvalidateRect(0, 0, 20, 10);
    m_Window->InvalidateRect(0, 0, 1, 1);
    EXPECT_EQ(m_Window->m_Frames, 1);
    EXPECT_TRUE(m_Window->IsFramePending());
    m_Window->PaintFrame();
    EXPECT_FALSE(m_Window->IsFramePending());
    m_Window->InvalidateRect(0, 0, 20, 10);
    EXPECT_EQ(m_Window->m_Frames, 2);
}

TEST_F(CBaseWindowTest, PaintsOnlyWhatWasAskedForAndPresentsWhatWasTouched)
{
    m_Control.m_Draw = [](IPainter* painter) { Fill(painter, Red, 1, 2, 3, 4); };
    m_Window->PaintFrame();  // none was asked for
    EXPECT_EQ(m_Control.m_Log, "");
    m_Window->InvalidateRect(0, 0, 20, 10);
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "part ");
    EXPECT_EQ(m_Window->m_Presented, "(1 2 4 5)");
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "part ");
    EXPECT_EQ(m_Window->m_Presented, "(1 2 4 5)");
}

TEST_F(CBaseWindowTest, TellsTheBackendOnceThePaintHasEnded)
{
    m_Log.clear();
    m_Control.m_Draw = [this](IPainter*) { m_Log += "draw "; };
    m_Window->InvalidateRect(0, 0, 20, 10);
    m_Window->PaintFrame();
    EXPECT_EQ(m_Log, "draw after ");
    m_Window->PaintFrame();
    EXPECT_EQ(m_Log, "draw after ");
}

TEST_F(CBaseWindowTest, PaintsAgainWhenAskedDuringAPaint)
{
    m_Control.m_Draw = [this](IPainter*) { m_Window->InvalidateRect(0, 0, 1, 1); };
    m_Window->InvalidateRect(0, 0, 20, 10);
    m_Window->PaintFrame();
    EXPECT_EQ(m_Window->m_Frames, 2);
    EXPECT_TRUE(m_Window->IsFramePending());
    m_Control.m_Draw = nullptr;
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "part part ");
    EXPECT_EQ(m_Window->m_Frames, 2);
}

TEST_F(CBaseWindowTest, PaintsAtOnceOnUpdateNow)
{
    m_Window->UpdateNow();
    EXPECT_EQ(m_Control.m_Log, "part ");
    EXPECT_FALSE(m_Window->IsFramePending());
    m_Window->InvalidateRect(0, 0, 1, 1);
    m_Window->UpdateNow();
    EXPECT_FALSE(m_Window->IsFramePending());
    m_Window->PaintFrame();  // the frame that was asked for comes all the same
    EXPECT_EQ(m_Control.m_Log, "part part ");
}

TEST_F(CBaseWindowTest, DoesNotPaintWithinAPaint)
{
    m_Control.m_Draw = [this](IPainter*) {
        m_Control.m_Log += "[";
        m_Window->UpdateNow();
        m_Window->PaintFrame();
        m_Control.m_Log += "] ";
    };
    m_Window->UpdateNow();
    EXPECT_EQ(m_Control.m_Log, "part [] ");
    EXPECT_TRUE(m_Window->IsFramePending());
    EXPECT_EQ(m_Window->m_Frames, 2);  // the one that came within the paint, and another
}

TEST_F(CBaseWindowTest, AsksAgainForAFrameThatCameDuringAPaint)
{
    int draws = 0;
    m_Control.m_Draw = [&](IPainter*) {
        if (++draws > 1)
            return;
        m_Window->InvalidateRect(0, 0, 1, 1);
        m_Window->PaintFrame();  // from a native loop of the handler
    };
    m_Window->UpdateNow();
    EXPECT_EQ(draws, 1);
    EXPECT_TRUE(m_Window->IsFramePending());
    EXPECT_EQ(m_Window->m_Frames, 2);  // the one that came too early, and another
    m_Window->PaintFrame();
    EXPECT_EQ(draws, 2);
    EXPECT_FALSE(m_Window->IsFramePending());
    EXPECT_EQ(m_Window->m_Frames, 2);
}

TEST_F(CBaseWindowTest, OnlyInvalidatesWhileSomebodyMeasures)
{
    m_Window->GetPainter()->BeginPaint(IPainter::ssMeasure);
    m_Window->UpdateNow();
    EXPECT_EQ(m_Control.m_Log, "");
    EXPECT_TRUE(m_Window->IsFramePending());
    m_Window->GetPainter()->EndPaint();
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "part ");
}

TEST_F(CBaseWindowTest, GivesTheSamePainterToDrawAndToMeasure)
{
    IPainter* drawn = nullptr;
    m_Control.m_Draw = [&](IPainter* painter) { drawn = painter; };
    m_Window->UpdateNow();
    EXPECT_EQ(drawn, m_Window->GetPainter());
}

TEST_F(CBaseWindowTest, StartsANewControlWithAFullPaint)
{
    m_Control.SetSysWindow(nullptr);
    EXPECT_EQ(m_Window->GetEventTarget(), nullptr);
    CDrawn other(m_Window.get());
    EXPECT_TRUE(m_Window->IsFramePending());
    m_Window->PaintFrame();
    EXPECT_EQ(other.m_Log, "full ");
}

// Surface ----------------------------------------------------------------------------------------------------------

TEST_F(CBaseWindowTest, KeepsItsPixelsWhenItIsResizedAndPaintsInFull)
{
    m_Control.m_Draw = [](IPainter* painter) { Fill(painter, Red, 0, 0, 2, 0); };
    m_Window->UpdateNow();
    m_Control.m_Draw = nullptr;
    m_Control.m_Log.clear();
    m_Window->m_Presented.clear();
    m_Window->ResizeSurface({4, 2});
    EXPECT_EQ(ToText(m_Window->GetPixels()), "rrr.\n"
                                             "....\n");
    EXPECT_EQ(m_Control.m_Log, "resize ");
    EXPECT_EQ(m_Window->GetRect(), (rectangle<int>{0, 0, 4, 2}));
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "resize full ");
    EXPECT_EQ(m_Window->m_Presented, "(0 0 4 2)");
    m_Window->ResizeSurface({4, 2});  // nothing new
    EXPECT_FALSE(m_Window->IsFramePending());
    m_Window->UpdateNow();
    EXPECT_EQ(m_Control.m_Log, "resize full part ");
}

TEST_F(CBaseWindowTest, PaintsInFullAgainAfterAResizeDuringAPaint)
{
    m_Control.m_Draw = [this](IPainter*) { m_Window->ResizeSurface({30, 30}); };
    m_Window->UpdateNow();
    m_Control.m_Draw = nullptr;
    EXPECT_TRUE(m_Window->IsFramePending());
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "part resize full ");
}

TEST_F(CBaseWindowTest, MovesPixelsAtOnceAndShowsThem)
{
    m_Control.m_Draw = [](IPainter* painter) { Fill(painter, Red, 0, 0, 1, 0); };
    m_Window->UpdateNow();
    m_Control.m_Log.clear();
    m_Window->m_Presented.clear();
    m_Window->m_Frames = 0;
    m_Window->ScrollPixels(2, 1, {0, 0, 1, 0});
    EXPECT_EQ(ToText(m_Window->GetPixels()).substr(0, 42), "rr..................\n"
                                                           "..rr................\n");
    EXPECT_EQ(m_Window->m_Frames, 1);
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "");  // nothing to paint
    EXPECT_EQ(m_Window->m_Presented, "(2 1 4 2)");
    m_Window->UpdateNow();
    EXPECT_EQ(m_Control.m_Log, "part ");
}

TEST_F(CBaseWindowTest, PaintsInFullWhenMovedPixelsWereNeverThere)
{
    m_Window->ScrollPixels(2, 0, {-1, 0, 5, 5});
    EXPECT_TRUE(m_Window->IsFramePending());
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "full ");
    m_Window->ScrollPixels(-2, 0, {0, 0, 19, 9});  // what is uncovered is the framework's business
    m_Window->UpdateNow();
    EXPECT_EQ(m_Control.m_Log, "full part ");
}

TEST_F(CBaseWindowTest, MovesNothingOfAReversedArea)
{
    m_Window->ScrollPixels(2, 0, {5, 0, 3, 5});
    m_Window->ScrollPixels(2, 0, {0, 5, 3, 4});
    m_Window->ScrollPixels(0, 0, {0, 0, 3, 4});
    EXPECT_FALSE(m_Window->IsFramePending());
}

// Locked drawing ---------------------------------------------------------------------------------------------------

TEST_F(CBaseWindowTest, WaitsWithItsFramesWhileDrawingIsLocked)
{
    m_Control.m_Draw = [](IPainter* painter) { Fill(painter, Red, 0, 0, 1, 0); };
    m_Window->LockDrawing(true);
    m_Window->LockDrawing(true);
    m_Window->InvalidateRect(0, 0, 20, 10);
    m_Window->UpdateNow();
    m_Window->PaintFrame();
    EXPECT_EQ(m_Window->m_Frames, 0);
    EXPECT_TRUE(m_Window->IsFramePending());
    m_Window->LockDrawing(false);
    EXPECT_TRUE(m_Window->IsDrawingLocked());
    EXPECT_EQ(m_Window->m_Frames, 0);
    m_Window->LockDrawing(false);
    EXPECT_FALSE(m_Window->IsDrawingLocked());
    EXPECT_EQ(m_Window->m_Frames, 1);
    EXPECT_EQ(m_Control.m_Log, "");
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "part ");
    EXPECT_EQ(m_Window->m_Presented, "(0 0 2 1)");
}

TEST_F(CBaseWindowTest, KeepsAFrameThatComesWhileDrawingIsLocked)
{
    m_Window->InvalidateRect(0, 0, 20, 10);
    m_Window->LockDrawing(true);
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "");
    m_Window->LockDrawing(false);
    EXPECT_EQ(m_Window->m_Frames, 2);
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "part ");
}

TEST_F(CBaseWindowTest, PresentsAfterUnlockingWhatAPaintLocked)
{
    m_Control.m_Draw = [this](IPainter* painter) {
        Fill(painter, Red, 0, 0, 0, 0);
        m_Window->LockDrawing(true);
    };
    m_Window->UpdateNow();
    EXPECT_EQ(m_Window->m_Presented, "");
    m_Window->LockDrawing(false);
    m_Window->PaintFrame();
    EXPECT_EQ(m_Window->m_Presented, "(0 0 1 1)");
    EXPECT_EQ(m_Control.m_Log, "part ");
}

TEST_F(CBaseWindowTest, TakesNoNoticeOfAnUnlockTooMany)
{
    m_Window->LockDrawing(false);
    m_Window->LockDrawing(true);
    EXPECT_TRUE(m_Window->IsDrawingLocked());
}

// Exceptions and death ---------------------------------------------------------------------------------------------

TEST_F(CBaseWindowTest, RepeatsAPaintThatAnExceptionEndedOnceAndInFull)
{
    m_Control.m_Draw = [](IPainter* painter) {
        painter->BeginPaint(IPainter::ssMeasure);
        throw vexel::cancel_processing();
    };
    m_Window->UpdateNow();
    EXPECT_FALSE(m_Window->GetPainter()->m_Painting);
    EXPECT_EQ(m_Window->m_Frames, 1);
    m_Window->PaintFrame();
    EXPECT_EQ(m_Control.m_Log, "part full ");
    EXPECT_EQ(m_Window->m_Frames, 1);  // not for ever
    EXPECT_FALSE(m_Window->IsFramePending());
    m_Control.m_Draw = nullptr;
    m_Window->UpdateNow();
    m_Window->UpdateNow();
    EXPECT_EQ(m_Control.m_Log, "part full full part ");
}

TEST_F(CBaseWindowTest, ReportsExceptionsButNotCancellations)
{
    // A cancellation that were reported would fail the test.
    m_Control.m_Draw = [](IPainter*) { throw vexel::cancel_processing(); };
    m_Window->UpdateNow();
    m_Control.m_Draw = [](IPainter*) { throw cancel_processing(); };
    m_Window->UpdateNow();
    {
        vexel::test::CExpectException const report("no ink");
        m_Control.m_Draw = [](IPainter*) { throw std::runtime_error("no ink"); };
        m_Window->UpdateNow();
    }
    vexel::test::CExpectException const report("something");
    m_Control.m_Draw = [](IPainter*) { throw 5; };
    m_Window->UpdateNow();
}

TEST_F(CBaseWindowTest, MayBeDeletedByItsOwnPaint)
{
    m_Control.m_Draw = [this](IPainter*) {
        m_Window.reset();
        throw vexel::cancel_processing();
    };
    m_Window->UpdateNow();
    EXPECT_EQ(m_Window, nullptr);
    EXPECT_EQ(m_Control.GetWindow(), nullptr);
    EXPECT_EQ(m_Control.m_Log, "part destroy ");
}

TEST_F(CBaseWindowTest, OutlivesAControlThatItsPaintDeletes)
{
    auto* const control = new CDrawn(m_Window.get());
    control->m_Draw = [&](IPainter*) {
        std::unique_ptr<CDrawn> const death(control);
        throw vexel::cancel_processing();
    };
    m_Window->UpdateNow();
    EXPECT_EQ(m_Window->GetEventTarget(), nullptr);
    m_Window->UpdateNow();
}

TEST_F(CBaseWindowTest, TellsTheControlOnceThatItGoesAndIsForgotten)
{
    m_Window->StartDestroying();
    EXPECT_TRUE(m_Window->IsDestroying());
    EXPECT_EQ(m_Control.m_Log, "destroy ");
    EXPECT_EQ(m_Control.GetWindow(), nullptr);
    m_Window->StartDestroying();
    m_Window.reset();
    EXPECT_EQ(m_Control.m_Log, "destroy ");
}

TEST_F(CBaseWindowTest, AsksForNothingWhileItGoes)
{
    m_Control.m_Destroyed = [this] {
        m_Window->InvalidateRect(0, 0, 1, 1);
        m_Window->UpdateNow();
        m_Window->LockDrawing(true);
        m_Window->LockDrawing(false);
        m_Window->ScrollPixels(1, 0, {-1, 0, 5, 5});
        m_Window->ResizeSurface({1, 1});
        m_Window->PaintFrame();
    };
    m_Window->StartDestroying();
    EXPECT_EQ(m_Window->m_Frames, 0);
    EXPECT_FALSE(m_Window->IsFramePending());
    EXPECT_EQ(m_Control.m_Log, "destroy ");
}

TEST_F(CBaseWindowTest, MayBeDeletedInOnDestroy)
{
    m_Control.m_Destroyed = [this] { m_Window.reset(); };
    CBareWindow* const window = m_Window.get();
    window->StartDestroying();
    EXPECT_EQ(m_Window, nullptr);
    m_Control.SetSysWindow(nullptr);
}

// Queue ------------------------------------------------------------------------------------------------------------

TEST_F(CBaseWindowTest, RunsItsQueueInOrderAndDeletesWhatRan)
{
    m_Log.clear();
    Post(Note("a"));
    Post(Note("b"));
    Post(Note("c"));
    EXPECT_EQ(m_Log, "");
    EXPECT_EQ(m_Alive, 3);
    EXPECT_EQ(m_Window->m_Wakes, 1);
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "abc");
    EXPECT_EQ(m_Alive, 0);
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "abc");
    m_Window->Post(nullptr);
    EXPECT_EQ(m_Window->m_Wakes, 1);
}

TEST_F(CBaseWindowTest, LeavesWhatIsPostedByARunnableToTheNextRun)
{
    m_Log.clear();
    Post([this] {
        m_Log += "a";
        Post(Note("c"));
    });
    Post(Note("b"));
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "ab");
    EXPECT_EQ(m_Window->m_Wakes, 2);
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "abc");
}

TEST_F(CBaseWindowTest, KeepsTheOrderWhenARunnableRunsTheQueue)
{
    m_Log.clear();
    Post([this] {
        m_Log += "a";
        Post(Note("d"));
        m_Window->RunQueue();
        m_Log += "!";
    });
    Post(Note("b"));
    Post(Note("c"));
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "abcd!");
    EXPECT_EQ(m_Alive, 0);
}

TEST_F(CBaseWindowTest, RunsTheOthersWhenOneThrows)
{
    m_Log.clear();
    Post(Note("a"));
    Post([] { throw vexel::cancel_processing(); });
    Post(Note("b"));
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "ab");
    EXPECT_EQ(m_Alive, 0);
}

TEST_F(CBaseWindowTest, DeletesUnrunWhatIsLeftWhenARunnableDeletesIt)
{
    m_Log.clear();
    Post(Note("a"));
    Post([this] { m_Window.reset(); });
    Post(Note("b"));
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "a");
    EXPECT_EQ(m_Alive, 0);
}

TEST_F(CBaseWindowTest, DeletesUnrunWhatIsLeftWhenItGoes)
{
    m_Log.clear();
    Post(Note("a"));
    m_Control.m_Destroyed = [this] {
        Post(Note("b"));
        EXPECT_EQ(m_Alive, 0);
    };
    m_Window->StartDestroying();
    EXPECT_EQ(m_Alive, 0);
    Post(Note("c"));
    EXPECT_EQ(m_Alive, 0);
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "");
    EXPECT_EQ(m_Window->m_Wakes, 1);
}

TEST_F(CBaseWindowTest, TakesWhatADyingRunnablePosts)
{
    m_Log.clear();
    auto* const first = new CCall(Note("a"), &m_Alive);
    first->m_AtDeath = [this] { Post(Note("b")); };
    m_Window->Post(first);
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "a");
    m_Window->RunQueue();
    EXPECT_EQ(m_Log, "ab");

    auto* const second = new CCall(Note("c"), &m_Alive);
    second->m_AtDeath = [this] { Post(Note("d")); };
    m_Window->Post(second);
    m_Window->StartDestroying();
    EXPECT_EQ(m_Log, "ab");
    EXPECT_EQ(m_Alive, 0);
}

TEST_F(CBaseWindowTest, TakesPostsFromOtherThreads)
{
    m_Log.clear();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
    {
        threads.emplace_back([this] {
            for (int j = 0; j < 100; ++j)
                m_Window->Post(new CDot(m_Log));
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    m_Window->RunQueue();
    EXPECT_EQ(m_Log.size(), 400u);
}

}  // namespace vexelbase::tests
