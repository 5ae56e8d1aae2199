#include "tests/platform/contract_bench.h"

#include "vexel/signals/notify.h"
#include "vexel/testing/expect_report.h"

#include <stdexcept>
#include <thread>

// Windows of the backend: surface, paints, life and queue.

namespace vexelbase::tests
{

namespace
{

class ContractWindow : public CContractWindowTest
{
protected:
    /// What was told but for the focus, which some desktops give to windows that are shown.
    std::string TakeWithoutFocus()
    {
        std::string told = Ear().Take() + ' ';
        for (char const* word : {"nofocus ", "focus "})
        {
            for (std::size_t at = told.find(word); at != std::string::npos; at = told.find(word))
                told.erase(at, std::string(word).size());
        }
        told.pop_back();
        return told;
    }
};

class ContractMove : public CContractWindowTest
{
protected:
    // A colour of its own for each pixel.
    static _color Own(int x, int y) { return _color::FromRgb(x, y, 77); }
    void PaintOwnColors()
    {
        Ear().m_Draw = [](IPainter& painter) {
            for (int y = 0; y < 120; ++y)
            {
                for (int x = 0; x < 120; ++x)
                    painter.SetPixel(x, y, Own(x, y));
            }
        };
        Window().UpdateNow();
        Ear().m_Draw = nullptr;
        Bench().Settle();
        Ear().m_Draws = 0;
    }
    // What each pixel must be after the move: the moved one, if it comes from the surface, else its own.
    void ExpectMoved(int dx, int dy, screen_rectangle<int> const& area)
    {
        for (int y = 0; y < 120; ++y)
        {
            for (int x = 0; x < 120; ++x)
            {
                int const fromX = x - dx;
                int const fromY = y - dy;
                bool const moved = fromX >= area.left && fromX <= area.right && fromY >= area.top &&
                                   fromY <= area.bottom && fromX >= 0 && fromX < 120 && fromY >= 0 && fromY < 120;
                ASSERT_EQ(Painter().GetPixel(x, y), moved ? Own(fromX, fromY) : Own(x, y))
                    << x << ' ' << y << " moved by " << dx << ' ' << dy;
            }
        }
    }
};

class ContractQueue : public CContractWindowTest
{
protected:
    // Notes its runs and its end.
    class CRun : public IRunnable
    {
    public:
        CRun(std::string& log, char const* name, std::function<void()> work = {})
            : m_Log(log), m_Name(name), m_Work(std::move(work))
        {}
        ~CRun() override { m_Log += std::string("~") + m_Name + ' '; }
        bool Run() override
        {
            m_Log += std::string(m_Name) + ' ';
            if (m_Work)
                m_Work();
            return true;  // says nothing to a queue
        }

    private:
        std::string& m_Log;
        char const* m_Name;
        std::function<void()> m_Work;
    };

    void Post(char const* name, std::function<void()> work = {})
    {
        Window().Post(new CRun(m_Log, name, std::move(work)));
    }

    std::string m_Log;
};

}  // namespace

// Surface ----------------------------------------------------------------------------------------------------------

TEST_F(ContractWindow, HasItsSizeFromTheOrigin)
{
    EXPECT_EQ(Window().GetRect(), (rectangle<int>{0, 0, 120, 120}));
    EXPECT_FALSE(Window().IsDestroying());
    EXPECT_EQ(Window().GetEventTarget(), &Ear());
    EXPECT_EQ(Ear().GetWindow(), &Window());
    ASSERT_TRUE(Window().GetPainter());
    EXPECT_TRUE(Window().GetPainter()->GetClipRect().IsZero());
}

TEST_F(ContractWindow, KeepsWhatWasPaintedAndIsPaintedFullyOnce)
{
    Ear().m_Draw = [](IPainter& painter) { painter.SetPixel(5, 6, Red); };
    Window().UpdateNow();
    Ear().m_Draw = [](IPainter& painter) { painter.SetPixel(7, 6, Blue); };
    Window().UpdateNow();
    Ear().m_Draw = nullptr;
    EXPECT_FALSE(Ear().m_WasFull);
    EXPECT_EQ(Painter().GetPixel(5, 6).m_Value & 0xFFFFFFu, 0x0000FFu);
    EXPECT_EQ(Painter().GetPixel(7, 6).m_Value & 0xFFFFFFu, 0xFF0000u);
}

TEST_F(ContractWindow, ResizedTellsItKeepsPixelsAndAsksForAFullPaint)
{
    Ear().m_Draw = [](IPainter& painter) { painter.SetPixel(5, 6, Red); };
    Window().UpdateNow();
    Ear().m_Draw = nullptr;
    Ear().m_Draws = 0;
    Bench().Resize(Window(), {150, 90});
    Bench().Settle();
    EXPECT_EQ(Ear().Take(), "resize(150,90)");
    EXPECT_EQ(Window().GetRect(), (rectangle<int>{0, 0, 150, 90}));
    EXPECT_EQ(Ear().m_Draws, 1);
    EXPECT_TRUE(Ear().m_WasFull);
    EXPECT_EQ(Painter().GetPixel(5, 6).m_Value & 0xFFFFFFu, 0x0000FFu);
    Window().InvalidateRect(0, 0, 150, 90);
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 2);
    EXPECT_FALSE(Ear().m_WasFull);
}

TEST_F(ContractWindow, WithoutAnAreaIsPaintedOnceItHasOne)
{
    Bench().Resize(Window(), {120, 0});
    Bench().Settle();
    Ear().m_Draws = 0;
    Ear().m_Draw = [this](IPainter&) {
        if (Window().GetRect().IsEmpty() && Ear().m_Draws < 50)
            Window().InvalidateRect(0, 0, 120, 120);  // as a layout does that finds another place for something
    };
    Window().InvalidateRect(0, 0, 120, 120);
    Window().UpdateNow();
    Bench().Settle();
    EXPECT_EQ(Window().GetRect(), (rectangle<int>{0, 0, 120, 0}));
    EXPECT_EQ(Ear().m_Draws, 0);
    Bench().Resize(Window(), {120, 90});
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 1);
    EXPECT_TRUE(Ear().m_WasFull);
    Ear().m_Draw = nullptr;
}

// Paints -----------------------------------------------------------------------------------------------------------

TEST_F(ContractWindow, ManyRequestsJoinToOnePaintThatComesLater)
{
    Ear().m_Draws = 0;
    Window().InvalidateRect(0, 0, 120, 120);
    Window().InvalidateRect(0, 0, 10, 10);
    Ear().Invalidate();
    EXPECT_EQ(Ear().m_Draws, 0);
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 1);
    EXPECT_FALSE(Ear().m_WasFull);
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 1);
}

TEST_F(ContractWindow, ARequestDuringAPaintBringsOneMore)
{
    Ear().m_Draws = 0;
    Ear().m_Draw = [this](IPainter&) {
        if (Ear().m_Draws == 1)
        {
            Window().InvalidateRect(0, 0, 120, 120);
            Window().UpdateNow();  // only invalidates
            EXPECT_EQ(Ear().m_Draws, 1);
        }
    };
    Window().UpdateNow();
    EXPECT_EQ(Ear().m_Draws, 1);
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 2);
    Ear().m_Draw = nullptr;
}

TEST_F(ContractWindow, ANativeLoopWithinAPaintLosesNoRequest)
{
    Ear().m_Draws = 0;
    Ear().m_Draw = [this](IPainter&) {
        if (Ear().m_Draws > 1)
            return;
        Window().InvalidateRect(0, 0, 120, 120);
        Bench().Settle();  // a message box, say
        EXPECT_EQ(Ear().m_Draws, 1);
    };
    Window().UpdateNow();
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 2);
    Ear().m_Draw = nullptr;
    Window().InvalidateRect(0, 0, 120, 120);
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 3);
}

TEST_F(ContractWindow, AnUpdateWhileMeasuringOnlyInvalidates)
{
    Ear().m_Draws = 0;
    Painter().BeginPaint(IPainter::ssMeasure);
    Window().UpdateNow();
    EXPECT_EQ(Ear().m_Draws, 0);
    Painter().EndPaint();
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 1);
}

TEST_F(ContractWindow, AnUpdatePaintsAtOnceAndSettlesTheRequest)
{
    Ear().m_Draws = 0;
    Window().InvalidateRect(0, 0, 120, 120);
    Window().UpdateNow();
    EXPECT_EQ(Ear().m_Draws, 1);
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 1);
}

TEST_F(ContractWindow, LockedIsPaintedOnceAfterTheLastUnlock)
{
    Ear().m_Draws = 0;
    Window().LockDrawing(true);
    Ear().InternalBeginUpdate();
    Window().InvalidateRect(0, 0, 120, 120);
    Window().UpdateNow();
    Bench().Settle();
    Window().LockDrawing(false);
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 0);
    Ear().InternalEndUpdate();
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 1);
    Window().LockDrawing(false);  // one too many
    Window().InvalidateRect(0, 0, 120, 120);
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 2);
}

TEST_F(ContractWindow, HiddenWaitsWithItsPaint)
{
    Bench().Show(Window(), false);
    EXPECT_EQ(TakeWithoutFocus(), "hidden");
    Ear().m_Draws = 0;
    Window().InvalidateRect(0, 0, 120, 120);
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 0);
    Bench().Show(Window(), true);
    Bench().Settle();
    EXPECT_EQ(TakeWithoutFocus(), "shown");
    EXPECT_EQ(Ear().m_Draws, 1);
    EXPECT_FALSE(Ear().m_WasFull);
}

TEST_F(ContractWindow, ShownAgainNeedsNoPaint)
{
    Ear().m_Draws = 0;
    Bench().Show(Window(), false);
    Bench().Show(Window(), true);
    Bench().Settle();
    EXPECT_EQ(TakeWithoutFocus(), "hidden shown");
    EXPECT_EQ(Ear().m_Draws, 0);
}

TEST_F(ContractWindow, AnotherControlBeginsWithAFullPaint)
{
    m_Ear.reset();
    m_Ear = std::make_unique<CEar>(&Window());
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 1);
    EXPECT_TRUE(Ear().m_WasFull);
}

TEST_F(ContractWindow, APaintThatThrowsIsRepeatedOnceAsAFullOne)
{
    vexel::test::CExpectException const report("the first draw");
    Ear().m_Draws = 0;
    Ear().m_Draw = [this](IPainter& painter) {
        painter.SetClipRect(0, 0, 1, 1, false);
        painter.BeginPaint(IPainter::ssMeasure);
        if (Ear().m_Draws == 1)
            throw std::runtime_error("the first draw");
        painter.EndPaint();
        painter.ResetClip();
    };
    Window().UpdateNow();
    EXPECT_FALSE(Painter().m_Painting);
    EXPECT_TRUE(Painter().GetClipRect().IsZero());
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 2);
    EXPECT_TRUE(Ear().m_WasFull);
    Ear().m_Draw = nullptr;
}

// Pixel moves ------------------------------------------------------------------------------------------------------

TEST_F(ContractMove, GoesInAllDirectionsAndIncludesTheLastRowAndColumn)
{
    screen_rectangle<int> const area{30, 40, 59, 79};
    for (int const dy : {-50, -40, -7, -1, 0, 1, 7, 40})
    {
        for (int const dx : {-40, -30, -3, -1, 0, 1, 3, 30, 70})
        {
            PaintOwnColors();
            Window().ScrollPixels(dx, dy, area);
            ExpectMoved(dx, dy, area);
            Bench().Settle();
            EXPECT_EQ(Ear().m_Draws, 0);  // nothing is missing, nobody paints
        }
    }
}

TEST_F(ContractMove, OfTheWholeSurfaceLeavesWhatIsUncovered)
{
    PaintOwnColors();
    Window().ScrollPixels(-5, 11, {5, 0, 119, 108});
    ExpectMoved(-5, 11, {5, 0, 119, 108});
    Bench().Settle();
    EXPECT_EQ(Ear().m_Draws, 0);
}

TEST_F(ContractMove, FromOutsideTheSurfaceAsksForAFullPaint)
{
    struct SCase
    {
        int dx;
        int dy;
        screen_rectangle<int> area;
    };
    for (SCase const& moved : {SCase{20, 0, {-10, 0, 50, 50}}, SCase{0, -30, {10, 100, 40, 140}},
                               SCase{-200, 0, {200, 10, 240, 40}}, SCase{1, 1, {-1, -1, 119, 119}}})
    {
        PaintOwnColors();
        Window().ScrollPixels(moved.dx, moved.dy, moved.area);
        ExpectMoved(moved.dx, moved.dy, moved.area);
        EXPECT_TRUE(Painter().IsFullPaint());
        Bench().Settle();
        EXPECT_EQ(Ear().m_Draws, 1);
        EXPECT_TRUE(Ear().m_WasFull);
    }
}

TEST_F(ContractMove, ToOutsideOrOfNothingDoesNothing)
{
    PaintOwnColors();
    Window().ScrollPixels(500, 0, {0, 0, 119, 119});
    Window().ScrollPixels(0, -120, {0, 0, 119, 119});
    Window().ScrollPixels(5, 5, {20, 20, 19, 30});
    Window().ScrollPixels(-2147483647, 2147483647, {-2147483647, -2147483647, 2147483647, 2147483647});
    ExpectMoved(0, 0, {0, 0, 119, 119});
}

TEST_F(ContractMove, IsDoneAtOnceWithinAPaintToo)
{
    PaintOwnColors();
    Ear().m_Draw = [this](IPainter& painter) {
        painter.SetPixel(10, 10, Red);
        Window().ScrollPixels(3, 0, {10, 10, 10, 10});
        EXPECT_EQ(painter.GetPixel(13, 10).m_Value & 0xFFFFFFu, 0x0000FFu);
        painter.SetPixel(10, 10, Own(10, 10));
        painter.SetPixel(13, 10, Own(13, 10));
    };
    Window().UpdateNow();
    Ear().m_Draw = nullptr;
    ExpectMoved(0, 0, {0, 0, 119, 119});
}

// Place ------------------------------------------------------------------------------------------------------------

TEST_F(ContractWindow, TellsScreenPositionsBothWays)
{
    for (double const scale : {1.0, 1.25, 2.0, 0.5})  // which counts for text and sizes, not for places
    {
        Bench().SetScale(scale);
        point<int> at{5, 7};
        Window().ClientToScreen(&at);
        EXPECT_EQ(at, (point<int>{65, 37})) << scale;
        Window().ScreenToClient(&at);
        EXPECT_EQ(at, (point<int>{5, 7})) << scale;
    }
    Bench().Move(Window(), {90, 120});
    Bench().Settle();
    point<int> origin{0, 0};
    Window().ScreenToClient(&origin);
    EXPECT_EQ(origin, (point<int>{-90, -120}));
}

TEST_F(ContractWindow, ShowsTheCursorItWasGiven)
{
    for (int const cursor : {7, 9, 12, 13, 1})
    {
        Window().SetCursor(cursor);
        EXPECT_EQ(Bench().GetCursor(Window()), cursor);
    }
}

TEST_F(ContractWindow, HearsThatTheColoursHaveChanged)
{
    Bench().ChangeColors(Window());
    EXPECT_EQ(Ear().Take(), "colors");
}

// Life -------------------------------------------------------------------------------------------------------------

TEST_F(ContractWindow, DestroyedNativelyTellsItOnceAndStaysEmptyAndSilent)
{
    bool destroying = false;
    ISysWindow* during = nullptr;
    Ear().m_After = [&](std::string const& word) {
        if (word != "destroyed")
            return;
        destroying = Window().IsDestroying();
        during = Ear().GetWindow();
    };
    Bench().Close(Window());
    std::string const told = Ear().Take();
    EXPECT_EQ(told.substr(told.size() - 9), "destroyed");
    EXPECT_EQ(told.find("destroyed"), told.size() - 9);
    EXPECT_TRUE(destroying);
    EXPECT_EQ(during, &Window());
    EXPECT_EQ(Ear().GetWindow(), nullptr);
    EXPECT_TRUE(Window().IsDestroying());
    EXPECT_EQ(Window().GetEventTarget(), nullptr);

    // Nothing of it does harm any more.
    Window().InvalidateRect(0, 0, 9, 9);
    Window().UpdateNow();
    Window().SetFocus();
    EXPECT_FALSE(Window().HasFocus());
    Window().SetCursor(7);
    Window().CaptureMouse();
    Window().ReleaseMouse();
    Window().TrackPointer();
    Window().HideTooltip();
    Window().LockDrawing(true);
    Window().LockDrawing(false);
    Window().ScrollPixels(1, 1, {0, 0, 9, 9});
    point<int> at{1, 1};
    Window().ScreenToClient(&at);
    Window().ClientToScreen(&at);
    Ear().Refresh();
    Ear().Invalidate();
    Bench().Settle();
    EXPECT_EQ(Ear().Take(), "");
}

TEST_F(ContractWindow, AndItsControlMayGoInAnyOrder)
{
    m_Window.reset();
    std::string const told = Ear().Take();
    EXPECT_EQ(told.substr(told.size() - 9), "destroyed");
    EXPECT_EQ(Ear().GetWindow(), nullptr);
    Ear().Refresh();
    m_Ear.reset();

    m_Window = Bench().MakeWindow({0, 0}, {30, 30});
    m_Ear = std::make_unique<CEar>(m_Window.get());
    m_Ear.reset();
    EXPECT_EQ(m_Window->GetEventTarget(), nullptr);
    m_Window->UpdateNow();
    Bench().Settle();
}

TEST_F(ContractWindow, MayBeDeletedInEachOfItsEvents)
{
    struct SCase
    {
        char const* event;
        std::function<void()> cause;
    };
    ISysWindow* window = nullptr;
    SCase const cases[] = {
        {"down", [&] { Bench().Press(mbLeft); }},
        {"up",
         [&] {
             Bench().Press(mbLeft);
             Bench().Release(mbLeft);
         }},
        {"double", [&] { Bench().PressTwice(mbLeft); }},
        {"move",
         [&] {
             Bench().MovePointer({120, 60});
         }},
        {"leave",
         [&] {
             window->TrackPointer();
             Bench().MovePointer({400, 400});
         }},
        {"wheel", [&] { Bench().TurnWheel(1); }},
        {"keydown", [&] { Bench().KeyDown('A', "a"); }},
        {"keyup",
         [&] {
             Bench().KeyDown('A', "a");
             Bench().KeyUp('A');
         }},
        {"char", [&] { Bench().KeyDown('A', "a"); }},
        {"resize",
         [&] {
             Bench().Resize(*window, {60, 60});
         }},
        {"moved",
         [&] {
             Bench().Move(*window, {90, 60});
         }},
        {"hidden", [&] { Bench().Show(*window, false); }},
        {"destroyed", [&] { Bench().Close(*window); }},
        {"colors", [&] { Bench().ChangeColors(*window); }},
    };
    m_Ear.reset();
    m_Window.reset();
    for (bool const controlFirst : {false, true})
    {
        for (SCase const& entry : cases)
        {
            SCOPED_TRACE(entry.event);
            Bench().MovePointer({700, 700});
            m_Window = Bench().MakeWindow({60, 30}, {120, 120});
            window = m_Window.get();
            m_Ear = std::make_unique<CEar>(window);
            Bench().Settle();
            Bench().MovePointer({90, 60});
            window->SetFocus();
            Bench().Settle();
            bool deleted = false;
            Ear().m_After = [&](std::string const& word) {
                if (word.rfind(entry.event, 0) != 0 || deleted)
                    return;
                deleted = true;
                if (controlFirst)
                    m_Ear.reset();
                m_Window.reset();
                m_Ear.reset();
            };
            entry.cause();
            Bench().Settle();
            EXPECT_TRUE(deleted);
            m_Ear.reset();
            m_Window.reset();
            for (MouseButton const button : {mbLeft, mbRight})
                Bench().Release(button);
        }
    }
}

TEST_F(ContractWindow, MayBeDeletedByANativeLoopWithinItsHandler)
{
    class CEnd : public ITimerNotify
    {
    public:
        std::function<void()> m_End;
        void NoticeStarted(IEventSender*) override {}
        void NoticeStopped(IEventSender*) override {}
        void OnTimer(CTimerEvent*) override { m_End(); }
    };
    for (std::string const event : {"down", "wheel", "keydown"})
    {
        SCOPED_TRACE(event);
        m_Ear.reset();
        m_Window = Bench().MakeWindow({60, 30}, {120, 120});
        m_Ear = std::make_unique<CEar>(m_Window.get());
        Bench().MovePointer({90, 60});
        m_Window->SetFocus();
        Bench().Settle();

        vexel_ptr<ISysTimer> const timer = System().CreateTimer(1, 0);
        CEnd end;
        timer->Subscribe(&end, typeid(ITimerNotify), false);
        end.m_End = [&] {
            timer->SetRunning(false);
            m_Ear.reset();
            m_Window.reset();
        };
        bool back = false;
        Ear().m_After = [&](std::string const& word) {
            if (word.rfind(event, 0) != 0)
                return;
            timer->SetRunning(true);
            EXPECT_TRUE(Bench().RunUntil([&] { return !m_Window; }));
            back = true;
        };
        if (event == "down")
            Bench().Press(mbLeft);
        else if (event == "wheel")
            Bench().TurnWheel(1);
        else
            Bench().KeyDown('A', "a");
        Bench().Settle();
        EXPECT_TRUE(back);
        Bench().Release(mbLeft);
        timer->Unsubscribe(&end, false);
    }
}

TEST_F(ContractWindow, MayBeDeletedInItsPaint)
{
    for (bool const controlFirst : {false, true})
    {
        for (bool const atOnce : {false, true})
        {
            m_Ear.reset();
            m_Window = Bench().MakeWindow({60, 30}, {120, 120});
            m_Ear = std::make_unique<CEar>(m_Window.get());
            Bench().Settle();

            // The control's own bracket needs the painter, so the deletion comes from a subscriber of the drawing.
            class CEnd : public IDrawingNotify
            {
            public:
                std::function<void()> m_End;
                void NoticeStarted(IEventSender*) override {}
                void NoticeStopped(IEventSender*) override {}
                void OnDraw(IPainter*) override { m_End(); }
            };
            CEnd end;
            m_Ear.reset();
            auto control = std::make_unique<CVexelControl>(m_Window.get(), false);
            control->Subscribe(&end, typeid(IDrawingNotify), false);
            int ends = 0;
            end.m_End = [&] {
                ++ends;
                if (controlFirst)
                    control.reset();
                m_Window.reset();
                control.reset();
            };
            if (atOnce)
                m_Window->UpdateNow();
            else
                m_Window->InvalidateRect(0, 0, 9, 9);
            Bench().Settle();
            EXPECT_EQ(ends, 1);
        }
    }
}

TEST_F(ContractWindow, AHandlerThatThrowsHarmsNobody)
{
    Bench().MovePointer({90, 60});
    Ear().Take();
    {
        vexel::test::CExpectException const reports("a handler", 3);
        Ear().m_After = [](std::string const&) { throw std::runtime_error("a handler"); };
        Bench().Press(mbLeft);
        Bench().Release(mbLeft);
        Bench().Resize(Window(), {150, 150});
        Ear().m_After = nullptr;
    }
    EXPECT_EQ(Ear().Take(), "down(30,30,0x1,1) up(30,30,0x0,1) resize(150,150)");
    Bench().Press(mbLeft);
    EXPECT_EQ(Ear().Take(), "down(30,30,0x1,1)");
    Bench().Release(mbLeft);
}

// Queue ------------------------------------------------------------------------------------------------------------

TEST_F(ContractQueue, RunsLaterInOrderAndDeletesEachAfterItsRun)
{
    Post("a");
    Post("b");
    Window().Post(nullptr);
    Post("c");
    EXPECT_EQ(m_Log, "");
    Bench().Settle();
    EXPECT_EQ(m_Log, "a ~a b ~b c ~c ");
}

TEST_F(ContractQueue, RunsWhatIsPostedMeanwhileBehindTheRest)
{
    Post("a", [this] {
        Post("c");
        EXPECT_EQ(m_Log, "a ");
    });
    Post("b");
    Bench().Settle();
    EXPECT_EQ(m_Log, "a ~a b ~b c ~c ");
}

TEST_F(ContractQueue, RunsAfterThePresentEvent)
{
    Ear().m_After = [this](std::string const& word) {
        if (word.rfind("down", 0) != 0)
            return;
        Post("a");
        Ear().Note("end");
        m_Log += "event ";
    };
    Bench().MovePointer({90, 60});
    Ear().Take();
    Bench().Press(mbLeft);
    Bench().Settle();
    EXPECT_EQ(Ear().Take(), "down(30,30,0x1,1) end");
    EXPECT_EQ(m_Log, "event a ~a ");
    Ear().m_After = nullptr;
    Bench().Release(mbLeft);
}

TEST_F(ContractQueue, DiesUnrunWithTheWindow)
{
    Post("a");
    Post("b");
    m_Window.reset();
    Bench().Settle();
    EXPECT_EQ(m_Log, "~a ~b ");
}

TEST_F(ContractQueue, DiesUnrunWhenTheWindowIsDestroyedNativelyAndTakesNoMore)
{
    Post("a");
    Bench().Close(Window());
    EXPECT_EQ(m_Log, "~a ");
    Post("b");
    EXPECT_EQ(m_Log, "~a ~b ");
    Bench().Settle();
    EXPECT_EQ(m_Log, "~a ~b ");
}

TEST_F(ContractQueue, ARunMayDeleteTheWindow)
{
    Post("a", [this] {
        m_Ear.reset();
        m_Window.reset();
    });
    Post("b");
    Bench().Settle();
    EXPECT_EQ(m_Log, "a ~b ~a ");
}

TEST_F(ContractQueue, ARunThatThrowsStopsNobody)
{
    vexel::test::CExpectException const report("a run");
    Post("a", [] { throw std::runtime_error("a run"); });
    Post("b");
    Bench().Settle();
    EXPECT_EQ(m_Log, "a ~a b ~b ");
}

TEST_F(ContractQueue, TakesFromOtherThreadsInTheirOrder)
{
    std::thread thread([this] {
        Post("a");
        Post("b");
        Post("c");
    });
    thread.join();
    EXPECT_EQ(m_Log, "");
    EXPECT_TRUE(Bench().RunUntil([this] { return m_Log.size() == 15; }));
    EXPECT_EQ(m_Log, "a ~a b ~b c ~c ");
}

TEST_F(ContractQueue, RunsForAHiddenWindowToo)
{
    Bench().Show(Window(), false);
    Post("a");
    Bench().Settle();
    EXPECT_EQ(m_Log, "a ~a ");
}

}  // namespace vexelbase::tests
