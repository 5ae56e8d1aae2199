// The chain of handlers that gives a viewer its behaviour.

#include "tests/views/viewer_bench.h"

#include <vector>

using namespace viewer_test;

namespace
{

// Writes down what it hears, and answers as it is told.
class CRecorder : public CEventHandler
{
public:
    CRecorder(CDrawLog& log, std::string name) : m_Log(log), m_Name(std::move(name)) {}

    bool m_Answer = false;
    bool m_Handles = false;
    bool m_PassesDraw = false;

    bool ProcessMouseMove(int x, int y, int keys, MouseButton button, bool* handled) override
    {
        return Hear("move", {x, y, keys, button}, handled);
    }
    bool ProcessButtonDown(int x, int y, int keys, MouseButton button, bool* handled) override
    {
        return Hear("down", {x, y, keys, button}, handled);
    }
    bool ProcessButtonUp(int x, int y, int keys, MouseButton button, bool* handled) override
    {
        return Hear("up", {x, y, keys, button}, handled);
    }
    bool ProcessClick(int x, int y, int keys, MouseButton button, bool* handled) override
    {
        return Hear("click", {x, y, keys, button}, handled);
    }
    bool ProcessDoubleClick(int x, int y, int keys, MouseButton button, bool* handled) override
    {
        return Hear("double", {x, y, keys, button}, handled);
    }
    void ProcessMouseHover(bool* handled) override { Hear("hover", {}, handled); }
    void ProcessMouseLeave(bool* handled) override { Hear("leave", {}, handled); }
    bool ProcessKeyDown(int keys, int key, bool* handled) override { return Hear("key", {keys, key}, handled); }
    bool ProcessKeyUp(int keys, int key, bool* handled) override { return Hear("keyup", {keys, key}, handled); }
    bool ProcessChar(char character, bool* handled) override { return Hear("char", {character}, handled); }
    bool ProcessOnTooltip(CTooltipEvent*, bool* handled) override { return Hear("tip", {}, handled); }
    bool ProcessOnTooltipTrack(CTooltipEvent*, bool* handled) override { return Hear("track", {}, handled); }
    bool ProcessContextMenu(int x, int y, bool* handled) override { return Hear("menu", {x, y}, handled); }
    void ProcessGetFocus(bool* handled) override { Hear("focus", {}, handled); }
    void ProcessLostFocus(bool* handled) override { Hear("unfocus", {}, handled); }
    void ProcessDraw(IPainter* painter, rectangle<double> const& rect) override
    {
        m_Log.Add(m_Name + ".draw " + Describe(rect));
        if (m_PassesDraw)
            CEventHandler::ProcessDraw(painter, rect);
    }
    void ProcessResize(rectangle<int> const& old, rectangle<int> const& now, bool invalidate) override
    {
        m_Log.Add(m_Name + ".resize " + Describe(old) + " " + Describe(now) + " " + Describe(invalidate));
    }
    void ProcessScroll(int dx, int dy) override
    {
        m_Log.Add(m_Name + ".scroll " + std::to_string(dx) + " " + std::to_string(dy));
    }

private:
    bool Hear(std::string const& what, std::vector<int> const& arguments, bool* handled)
    {
        std::string text = m_Name + "." + what;
        for (int const argument : arguments)
            text += " " + std::to_string(argument);
        EXPECT_FALSE(*handled);
        m_Log.Add(text);
        *handled = m_Handles;
        return m_Answer;
    }

    CDrawLog& m_Log;
    std::string m_Name;
};

class EventHandlers : public testing::Test
{
protected:
    EventHandlers()
    {
        m_Viewer->SetCanHaveFocus(true);
        m_Host.Focus();
        m_Host.Paint();
    }
    // An event that goes along the chain: each way is another walk.
    void Walk(int way)
    {
        if (way == 0)
            m_Viewer->HandleKeyDown(0, 65);
        else if (way == 1)
            m_Viewer->HandleGetFocus(nullptr, true);
        else
            m_Viewer->ScrollContent(1, 1);
    }
    void AddBoth()
    {
        m_Viewer->AddEventHandler(&m_A);
        m_Viewer->AddEventHandler(&m_B);
        m_Host.Paint();
        m_Log.Take();
    }

    CDrawLog m_Log;
    CTestHost m_Host{100, 51};
    CViewerBase* m_Viewer = new CViewerBase(m_Host.Root(), {10, 10}, alClient);
    CRecorder m_A{m_Log, "a"};
    CRecorder m_B{m_Log, "b"};
    CRecorder m_C{m_Log, "c"};
};

TEST_F(EventHandlers, ADefaultHandlerGoesToTheFrontAndAnOrdinaryOneToTheEnd)
{
    EXPECT_EQ(m_Viewer->GetEventHandlers(), nullptr);
    m_Viewer->SetDefEventHandler(&m_A);
    m_Viewer->SetDefEventHandler(&m_B);
    EXPECT_EQ(m_Viewer->GetEventHandlers(), &m_B);
    EXPECT_EQ(m_B.GetNext(), &m_A);
    EXPECT_EQ(m_A.GetNext(), nullptr);
    m_Viewer->AddEventHandler(&m_C);
    EXPECT_EQ(m_A.GetNext(), &m_C);
    EXPECT_EQ(m_C.GetNext(), nullptr);
}

TEST_F(EventHandlers, AHandlerIsRemovedFromTheFrontTheMiddleAndTheEnd)
{
    AddBoth();
    m_Viewer->AddEventHandler(&m_C);
    EXPECT_TRUE(m_Viewer->RemoveEventHandler(&m_B));
    EXPECT_EQ(m_A.GetNext(), &m_C);
    EXPECT_FALSE(m_Viewer->RemoveEventHandler(&m_B));
    EXPECT_TRUE(m_Viewer->RemoveEventHandler(&m_C));
    EXPECT_EQ(m_A.GetNext(), nullptr);
    EXPECT_TRUE(m_Viewer->RemoveEventHandler(&m_A));
    EXPECT_EQ(m_Viewer->GetEventHandlers(), nullptr);
    EXPECT_FALSE(m_Viewer->RemoveEventHandler(&m_A));
}

TEST_F(EventHandlers, ANullOrTwiceAddedHandlerMakesNoLoop)
{
    m_Viewer->AddEventHandler(nullptr);
    m_Viewer->SetDefEventHandler(nullptr);
    EXPECT_EQ(m_Viewer->GetEventHandlers(), nullptr);
    AddBoth();
    m_Viewer->AddEventHandler(&m_A);
    m_Viewer->SetDefEventHandler(&m_B);
    int count = 0;
    for (CEventHandler* handler = m_Viewer->GetEventHandlers(); handler && count < 5; handler = handler->GetNext())
        ++count;
    EXPECT_EQ(count, 2);
}

TEST_F(EventHandlers, ADyingHandlerLeavesItsChainAndADyingViewerItsHandlers)
{
    {
        CRecorder dying(m_Log, "d");
        AddBoth();
        m_Viewer->SetDefEventHandler(&dying);
    }
    EXPECT_EQ(m_Viewer->GetEventHandlers(), &m_A);
    delete m_Viewer;
    EXPECT_EQ(m_A.GetChainOwner(), nullptr);
    EXPECT_EQ(m_B.GetChainOwner(), nullptr);
}

TEST_F(EventHandlers, AHandlerThatIsAddedAgainDoesNotReachForItsOldNeighbour)
{
    for (bool const viewerDies : {false, true})
    {
        auto* const viewer = new CViewerBase(m_Host.Root(), {10, 10}, alTop);
        auto* const neighbour = new CRecorder(m_Log, "n");
        viewer->AddEventHandler(&m_A);
        viewer->AddEventHandler(neighbour);
        if (viewerDies)
            delete viewer;
        else
        {
            EXPECT_TRUE(viewer->RemoveEventHandler(&m_A));
            EXPECT_EQ(m_A.GetNext(), neighbour);
        }
        delete neighbour;
        m_Viewer->AddEventHandler(&m_B);
        m_Viewer->AddEventHandler(&m_A);
        EXPECT_EQ(m_A.GetNext(), nullptr);
        m_Log.Take();
        m_Viewer->HandleChar('a');
        EXPECT_EQ(m_Log.Take(), "b.char 97, a.char 97");
        m_Viewer->RemoveEventHandler(&m_A);
        m_Viewer->RemoveEventHandler(&m_B);
    }
}

TEST_F(EventHandlers, AnAnswerOfTrueDoesNotEndTheWalk)
{
    AddBoth();
    m_A.m_Answer = true;
    EXPECT_TRUE(m_Viewer->HandleKeyDown(3, 65));
    EXPECT_EQ(m_Log.Take(), "a.key 3 65, b.key 3 65");
    m_A.m_Answer = false;
    m_B.m_Answer = true;
    EXPECT_TRUE(m_Viewer->HandleKeyDown(0, 66));
    EXPECT_EQ(m_Log.Take(), "a.key 0 66, b.key 0 66");
}

TEST_F(EventHandlers, HandledEndsTheWalkWithTheAnswerOfThatHandler)
{
    AddBoth();
    m_A.m_Handles = true;
    m_B.m_Answer = true;
    EXPECT_FALSE(m_Viewer->HandleKeyDown(0, 65));
    EXPECT_EQ(m_Log.Take(), "a.key 0 65");
    m_A.m_Answer = true;
    EXPECT_TRUE(m_Viewer->HandleKeyDown(0, 65));
    EXPECT_EQ(m_Log.Take(), "a.key 0 65");
}

TEST_F(EventHandlers, EveryInputEventWalksTheChain)
{
    AddBoth();
    for (bool const handles : {false, true})
    {
        m_A.m_Handles = handles;
        auto const expect = [&](std::string const& call) {
            EXPECT_EQ(m_Log.Take(), "a." + call + (handles ? "" : ", b." + call));
        };
        m_Viewer->HandleMouseMove(1, 2, 0x101, mbLeft);
        expect("move 1 2 257 1");
        m_Viewer->HandleButtonDown(3, 4, 1, mbRight);
        expect("down 3 4 1 3");
        m_Viewer->HandleButtonUp(5, 6, 0x200, mbMiddle);
        expect("up 5 6 512 2");
        m_Viewer->HandleClick(7, 8, 0, mbLeft);
        expect("click 7 8 0 1");
        m_Viewer->HandleDoubleClick(9, 10, 0, mbLeft);
        expect("double 9 10 0 1");
        m_Viewer->HandleKeyDown(0x100, 40);
        expect("key 256 40");
        m_Viewer->HandleKeyUp(0x400, 41);
        expect("keyup 1024 41");
        m_Viewer->HandleChar('a');
        expect("char 97");
        CTooltipEvent tip;
        m_Viewer->HandleOnTooltip(&tip);
        expect("tip");
        m_Viewer->HandleOnTooltipTrack(&tip);
        expect("track");
        m_Viewer->HandleContextMenu(11, 12);
        expect("menu 11 12");
        m_Viewer->HandleMouseHover(nullptr);
        expect("hover");
        m_Viewer->HandleMouseLeave(nullptr);
        expect("leave");
        m_Viewer->HandleGetFocus(nullptr, true);
        expect("focus");
        m_Viewer->HandleLostFocus(nullptr);
        expect("unfocus");
    }
}

TEST_F(EventHandlers, AViewerThatCannotHaveTheFocusHandsItToItsKeyDelegate)
{
    AddBoth();
    class CDelegate : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        int m_Asked = 0;
        void HandleGetFocus(CVisualElement*, bool focused) override { m_Asked += focused ? 100 : 1; }
    };
    auto* const asked = new CDelegate(m_Host.Root(), {10, 10}, alNone);
    m_Viewer->SetKeyDelegate(asked);
    m_Viewer->HandleGetFocus(nullptr, false);
    EXPECT_EQ(asked->m_Asked, 1);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(EventHandlers, AViewerWithoutHandlersAnswersFalseAndDrawsNothing)
{
    EXPECT_FALSE(m_Viewer->HandleMouseMove(1, 2, 0, mbNone));
    EXPECT_FALSE(m_Viewer->HandleButtonDown(1, 2, 0, mbLeft));
    EXPECT_FALSE(m_Viewer->HandleButtonUp(1, 2, 0, mbLeft));
    EXPECT_FALSE(m_Viewer->HandleClick(1, 2, 0, mbLeft));
    EXPECT_FALSE(m_Viewer->HandleDoubleClick(1, 2, 0, mbLeft));
    EXPECT_FALSE(m_Viewer->HandleKeyDown(0, 65));
    EXPECT_FALSE(m_Viewer->HandleKeyUp(0, 65));
    EXPECT_FALSE(m_Viewer->HandleChar('a'));
    EXPECT_FALSE(m_Viewer->HandleOnTooltip(nullptr));
    EXPECT_FALSE(m_Viewer->HandleOnTooltipTrack(nullptr));
    EXPECT_FALSE(m_Viewer->HandleContextMenu(1, 2));
    m_Host.Name(*m_Viewer, "viewer");
    EXPECT_EQ(m_Host.FullPaint().Of("viewer").Count("SetClipRect*"), 0);
    EXPECT_FALSE(m_Viewer->ScrollContent(1, 2));
}

TEST_F(EventHandlers, APlainHandlerAnswersFalseToEverything)
{
    CEventHandler plain;
    bool handled = false;
    CTooltipEvent tip;
    EXPECT_FALSE(plain.HandleMouseMove(1, 2, 0, mbNone, &handled));
    EXPECT_FALSE(plain.HandleButtonDown(1, 2, 0, mbLeft, &handled));
    EXPECT_FALSE(plain.HandleKeyDown(0, 65, &handled));
    EXPECT_FALSE(plain.HandleOnTooltip(&tip, &handled));
    EXPECT_FALSE(plain.ProcessDragOver(nullptr, &handled));
    EXPECT_FALSE(plain.ProcessDragDrop(nullptr, &handled));
    plain.ProcessMouseHover(&handled);
    plain.ProcessGetFocus(&handled);
    plain.ProcessDraw(nullptr, {0, 0, 1, 1});
    EXPECT_FALSE(handled);
}

TEST_F(EventHandlers, OnlyTheFirstDrawsUnlessItHandsOver)
{
    AddBoth();
    m_Viewer->Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(m_Log.Take(), "a.draw (0, 0, 99, 50)");
    m_A.m_PassesDraw = true;
    m_Viewer->Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(m_Log.Take(), "a.draw (0, 0, 99, 50), b.draw (0, 0, 99, 50)");
}

TEST_F(EventHandlers, APlainHandlerInFrontHandsThePaintOn)
{
    CEventHandler plain;
    m_Viewer->AddEventHandler(&plain);
    m_Viewer->AddEventHandler(&m_A);
    m_Host.Paint();
    m_Log.Take();
    m_Viewer->Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(m_Log.Take(), "a.draw (0, 0, 99, 50)");
}

TEST_F(EventHandlers, TheContentIsDrawnWithinItsClip)
{
    AddBoth();
    m_Host.Name(*m_Viewer, "viewer");
    m_Viewer->Update(utElement);
    EXPECT_THAT(m_Host.Paint().Of("viewer"), Draws("SetClipRect 0 0 99 50").Then("ResetClip"));
}

TEST_F(EventHandlers, EveryHandlerHearsOfANewPlaceAndOfScrolls)
{
    auto* const leaf = new CVisualElement(m_Host.Root(), {20, 10}, alLeft);
    m_Host.Root()->GetChildren()->MoveItem(1, 0);
    m_Host.Paint();
    AddBoth();
    leaf->SetSize({30, 10}, false);
    m_Host.Paint();
    // the left edge has moved; the width is one less than the distance to the next
    std::string const text = m_Log.Take();
    EXPECT_NE(text.find("a.resize (0, 0, 78, 50) (0, 0, 68, 50) false"), std::string::npos) << text;
    EXPECT_NE(text.find("b.resize (0, 0, 78, 50) (0, 0, 68, 50) false"), std::string::npos) << text;
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_FALSE(m_Viewer->ScrollContent(3, -4));
    EXPECT_EQ(m_Log.Take(), "a.scroll 3 -4, b.scroll 3 -4");
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(EventHandlers, NativeEventsReachTheHandlersInTheViewersPixels)
{
    AddBoth();
    m_B.m_Answer = true;
    m_Host.Mouse().Click(*m_Viewer, 10, 20);
    EXPECT_EQ(m_Log.Take(), "a.hover, b.hover, a.move 10 20 0 0, b.move 10 20 0 0, a.down 10 20 1 1, b.down 10 20 1 1, "
                            "a.click 10 20 0 1, b.click 10 20 0 1, a.up 10 20 0 1, b.up 10 20 0 1");
    m_Host.Keyboard().Press('X');
    EXPECT_EQ(m_Log.Take(), "a.key 0 88, b.key 0 88, a.char 120, b.char 120, a.keyup 0 88, b.keyup 0 88");
    m_Host.ContextMenu(*m_Viewer, 12, 20);
    EXPECT_EQ(m_Log.Take(), "a.move 12 20 0 0, b.move 12 20 0 0, a.menu 12 20, b.menu 12 20");
    m_Host.Tooltip(*m_Viewer, 12, 22);
    EXPECT_EQ(m_Log.Take(), "a.move 12 22 0 0, b.move 12 22 0 0, a.tip, b.tip");
    m_Host.Mouse().Leave();
    EXPECT_EQ(m_Log.Take(), "a.leave, b.leave");
}

// A handler that does something to the chain while it is walked.
class CMeddler : public CEventHandler
{
public:
    std::function<void()> m_Deed;
    bool ProcessKeyDown(int, int, bool*) override { return Do(); }
    void ProcessGetFocus(bool*) override { Do(); }
    void ProcessDraw(IPainter*, rectangle<double> const&) override { Do(); }
    void ProcessScroll(int, int) override { Do(); }
    void ProcessResize(rectangle<int> const&, rectangle<int> const&, bool) override { Do(); }

private:
    bool Do()
    {
        if (auto const deed = std::exchange(m_Deed, nullptr))
            deed();
        return true;
    }
};

TEST_F(EventHandlers, AHandlerMayDieInTheWalk)
{
    for (int way = 0; way < 4; ++way)
    {
        auto* const meddler = new CMeddler;
        m_Viewer->AddEventHandler(meddler);
        m_Viewer->AddEventHandler(&m_B);
        meddler->m_Deed = [&] { delete meddler; };
        if (way == 0)
            m_Viewer->HandleKeyDown(0, 65);
        else if (way == 1)
            m_Viewer->HandleGetFocus(nullptr, true);
        else if (way == 2)
            m_Viewer->ScrollContent(1, 1);
        else
            m_Viewer->SetPos({0, 0, 50, 20}, false);
        EXPECT_EQ(m_Viewer->GetEventHandlers(), &m_B);
        m_Viewer->RemoveEventHandler(&m_B);
    }
}

TEST_F(EventHandlers, TheNextHandlerMayDieInTheWalk)
{
    for (int way = 0; way < 3; ++way)
    {
        CMeddler meddler;
        auto* const next = new CRecorder(m_Log, "next");
        m_Viewer->AddEventHandler(&meddler);
        m_Viewer->AddEventHandler(next);
        m_Viewer->AddEventHandler(&m_B);
        meddler.m_Deed = [&] { delete next; };
        m_Log.Take();
        Walk(way);
        EXPECT_EQ(meddler.GetNext(), &m_B);
        EXPECT_EQ(m_Log.Take().substr(0, 2), "b.");
        m_Viewer->RemoveEventHandler(&m_B);
    }
}

TEST_F(EventHandlers, AHandlerThatMovesToAnotherViewerInTheWalkLeavesTheRestOfItsOldChainToIt)
{
    for (bool const toFront : {false, true})
        for (int way = 0; way < 4; ++way)
        {
            SCOPED_TRACE(std::to_string(way) + (toFront ? ", to the front" : ", to the end"));
            auto* const other = new CViewerBase(m_Host.Root(), {10, 10}, alTop);
            CMeddler meddler;
            m_Viewer->AddEventHandler(&meddler);
            m_Viewer->AddEventHandler(&m_B);
            m_Viewer->AddEventHandler(&m_C);
            other->AddEventHandler(&m_A);
            m_Host.Paint();
            meddler.m_Deed = [&] {
                if (toFront)
                    other->SetDefEventHandler(&meddler);
                else
                    other->AddEventHandler(&meddler);
            };
            m_Log.Take();
            if (way == 0)
                EXPECT_TRUE(m_Viewer->HandleKeyDown(0, 65));
            else if (way == 1)
                m_Viewer->HandleGetFocus(nullptr, true);
            else if (way == 2)
                m_Viewer->ScrollContent(1, 2);
            else
                m_Viewer->SetPos({0, 0, 50, 20 + way + (toFront ? 1 : 0)}, false);
            std::string const heard = m_Log.Take();
            EXPECT_EQ(heard.substr(0, 2), "b.");
            EXPECT_NE(heard.find(", c."), std::string::npos) << heard;
            EXPECT_EQ(heard.find("a."), std::string::npos) << heard;
            EXPECT_EQ(meddler.GetChainOwner(), other);
            EXPECT_EQ(m_Viewer->GetEventHandlers(), &m_B);
            delete other;
            m_Viewer->RemoveEventHandler(&m_B);
            m_Viewer->RemoveEventHandler(&m_C);
        }
}

TEST_F(EventHandlers, AHandlerThatLeavesItsChainInTheWalkIsFollowedByTheOneItStoodBefore)
{
    for (int way = 0; way < 3; ++way)
    {
        CMeddler meddler;
        m_Viewer->AddEventHandler(&meddler);
        m_Viewer->AddEventHandler(&m_B);
        meddler.m_Deed = [&] { m_Viewer->RemoveEventHandler(&meddler); };
        m_Log.Take();
        Walk(way);
        EXPECT_EQ(m_Log.Take().substr(0, 2), "b.");
        EXPECT_EQ(meddler.GetChainOwner(), nullptr);
        m_Viewer->RemoveEventHandler(&m_B);
    }
}

TEST_F(EventHandlers, TheViewerMayDieInTheWalk)
{
    for (int way = 0; way < 5; ++way)
    {
        auto* const viewer = new CViewerBase(m_Host.Root(), {10, 20}, alTop);
        CMeddler meddler;
        viewer->AddEventHandler(&meddler);
        viewer->AddEventHandler(&m_B);
        viewer->SetCanHaveFocus(true);
        m_Host.Paint();
        meddler.m_Deed = [&] { delete viewer; };
        switch (way)
        {
        case 0:
            viewer->HandleKeyDown(0, 65);
            break;
        case 1:
            viewer->SetFocus(true);
            break;
        case 2:
            viewer->ScrollContent(1, 1);
            break;
        case 3:
            viewer->SetPos({0, 0, 50, 20}, false);
            break;
        default:
            viewer->Update(utElement);
            m_Host.Paint();
            break;
        }
        EXPECT_EQ(meddler.GetChainOwner(), nullptr) << way;
        EXPECT_EQ(m_B.GetChainOwner(), nullptr) << way;
        m_Host.Paint();
    }
}

// The end of a paint -------------------------------------------------------------------------------------------------------
class CEndOfDraw : public CViewerBase
{
public:
    using CViewerBase::CViewerBase;
    int m_Ends = 0;
    void ProcessEndDraw() override { ++m_Ends; }
};

TEST(ViewerBase, HearsTheEndOfEachPaintOfTheControlThatItIsIn)
{
    CTestHost host(50, 50);
    CTestHost other(50, 50);
    auto* const viewer = new CEndOfDraw(host.Root(), {10, 10}, alLeft);
    auto* const leaf = new CVisualElement(host.Root(), {10, 10}, alRight);
    host.Paint();
    EXPECT_EQ(viewer->m_Ends, 1);
    leaf->Update(utElement);
    host.Paint();
    EXPECT_EQ(viewer->m_Ends, 2);
    viewer->ReParent(other.Root(), true);
    host.Paint();
    other.Paint();
    EXPECT_EQ(viewer->m_Ends, 3);
    leaf->Update(utElement);
    host.Paint();
    EXPECT_EQ(viewer->m_Ends, 3);
    viewer->ReParent(nullptr, true);
    other.FullPaint();
    EXPECT_EQ(viewer->m_Ends, 3);
    viewer->OnEndDraw();
    EXPECT_EQ(viewer->m_Ends, 4);
    delete viewer;
}

}  // namespace
