#include "vexel/testing/census.h"

#include "tests/testing/lamp.h"
#include "vexel/signals/assertion.h"
#include "vexel/signals/notify.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include <memory>
#include <stdexcept>

namespace vexel
{
namespace
{

using namespace vexel::test;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Census, ATestThatCleansUpLeavesNothing)
{
    EXPECT_THAT(CCensus::Look(), IsEmpty());
    {
        CTestHost host(10, 10);
        CLamp lamp(host.Root(), {5, 5}, alLeft);
        host.Paint();
        EXPECT_THAT(CCensus::Look(), ElementsAre("2 elements left: CContent, CLamp", "1 window left"));
    }
    EXPECT_THAT(CCensus::Look(), IsEmpty());
}

TEST(Census, CountsElementsByTheirNames)
{
    CLamp first(nullptr, {5, 5}, alLeft);
    CLamp second(nullptr, {5, 5}, alLeft);
    CLamp named(nullptr, {5, 5}, alLeft);
    NameElement(named, "third");
    EXPECT_THAT(CCensus::Look(), ElementsAre("3 elements left: CLamp (2), third"));
}

TEST(Census, CountsWhatTheSystemGaveOut)
{
    class CHeard : public CTimerNotify
    {
    };
    vexelbase::memory::CMemorySystem& system = CTestHost::System();
    CHeard heard;
    vexel_ptr<ISysTimer> timer = system.CreateTimer(10, 0);
    EXPECT_THAT(CCensus::Look(), ElementsAre("1 timer left"));
    timer->SetRunning(true);
    timer->Subscribe(&heard, typeid(ITimerNotify), true);
    EXPECT_THAT(CCensus::Look(), ElementsAre("1 timer left", "1 running timer left", "1 subscription to a timer left"));
    timer.reset();
    EXPECT_THAT(CCensus::Look(), IsEmpty());

    vexel_ptr<IRasterPicture> const picture = system.CreateRasterPicture(size<int>{1, 1});
    vexel_ptr<IRasterPicture> const copy = picture->Copy();
    vexel_ptr<ILock> const lock = system.CreateLock();
    vexel_ptr<IRunner> const runner = system.GetRunner();
    EXPECT_THAT(CCensus::Look(), ElementsAre("2 pictures left", "1 runner left", "1 lock left"));
}

class CNothing : public IRunnable
{
public:
    bool Run() override { return false; }
};

TEST(Census, CountsCaptureWorkAndPosts)
{
    CTestHost host(10, 10);
    CNothing work;
    vexel_ptr<IRunner> const runner = CTestHost::System().GetRunner();
    runner->Run(&work);
    host.Window().CaptureMouse();
    host.Window().Post(new CNothing);
    EXPECT_THAT(CCensus::Look(),
                ElementsAre("1 element left: CContent", "1 window left", "1 runner left",
                            "the mouse capture was left taken", "1 piece of background work left",
                            "1 posted runnable left"));
    host.RunBackground();
    host.RunPending();
    host.Window().ReleaseMouse();
}

TEST(Census, ATestThatLeavesSomethingFailsAndTheNextOneIsNotBlamed)
{
    // What the listener does around a test, done by hand around a piece of one.
    CCensus::Begin();
    auto* const lost = new CLamp(nullptr, {5, 5}, alLeft);
    CTestHost::System().SetScale(2.0);
    CTestHost::System().GetClipboard()->SetText("left");
    CTestHost::System().MovePointer({5, 5});
    CTestHost::System().SetHeldKeys(ksShift);
    SetDPIAutoScale(false);
    EXPECT_THAT(CCensus::End(), ElementsAre("1 element left: CLamp"));

    CCensus::Begin();
    EXPECT_EQ(GetCurrentSystem(), nullptr);
    EXPECT_EQ(CTestHost::System().GetScale(), 1.0);
    EXPECT_EQ(CTestHost::System().GetClipboard()->GetText(), "");
    EXPECT_EQ(CTestHost::System().GetPointerPos(), (point<int>{0, 0}));
    EXPECT_EQ(CTestHost::System().GetKeyState(), 0);
    EXPECT_EQ(CTestHost::System().GetTime(), 0);
    EXPECT_TRUE(GetDPIAutoScale());
    EXPECT_THAT(CCensus::Look(), IsEmpty());
    delete lost;
}

TEST(Census, ATimerThatWasLeftRunningStops)
{
    CCensus::Begin();
    vexel_ptr<ISysTimer> const timer = CTestHost::System().CreateTimer(10, 0);
    timer->SetRunning(true);
    EXPECT_THAT(CCensus::End(), ElementsAre("1 timer left", "1 running timer left"));
    EXPECT_FALSE(timer->IsRunning());
    CCensus::Begin();
    EXPECT_THAT(CCensus::Look(), IsEmpty());
    // The listener counts from the last Begin on, and the timer goes now.
}

TEST(Census, BeforeTheFirstHostThereIsNoSystem)
{
    EXPECT_EQ(GetCurrentSystem(), nullptr);
    CTestHost host(10, 10);
    EXPECT_NE(GetCurrentSystem(), nullptr);
}

int g_WarmedUp = 0;
vexel_ptr<ISysTimer> g_LastingTimer;

CWarmUp const g_WarmUp([] {
    ++g_WarmedUp;
    g_LastingTimer = GetCurrentSystem()->CreateTimer(100, 0);
});

TEST(Census, WhatAWarmUpMadeStaysAndIsNotCounted)
{
    EXPECT_EQ(g_WarmedUp, 1);
    EXPECT_TRUE(g_LastingTimer);
    EXPECT_THAT(CCensus::Look(), IsEmpty());
    g_LastingTimer->SetRunning(true);
    EXPECT_THAT(CCensus::Look(), ElementsAre("1 running timer left"));
    CTestHost::System().Advance(100);
    g_LastingTimer->SetRunning(false);
}

// Reports ----------------------------------------------------------------------------------------------------------

class CRoom : public subscriber_base_t
{
public:
    void LampLit(CLamp*, bool) {}
};

TEST(ExpectReport, AnAssertionThatIsExpectedPasses)
{
    CRoom room;
    CTestHost host(10, 10);
    CLamp lamp(host.Root(), {5, 5}, alLeft);
    CExpectAssertion twice("attempt to disconnect unknown connection", 2);
    lamp.m_SigLit.disconnect(&room, &CRoom::LampLit);
    EXPECT_EQ(twice.GetSeen(), 1);
    plinth::ReportAssertion("attempt to disconnect unknown connection", "source", 1, "function");
    EXPECT_EQ(twice.GetSeen(), 2);
}

TEST(ExpectReport, AnAssertionThatIsNotExpectedFails)
{
    EXPECT_NONFATAL_FAILURE(plinth::ReportAssertion("a == b", "some/source", 12, "void f()"),
                            "An assertion was reported: a == b\n  some/source:12, in void f()");
}

TEST(ExpectReport, OneTooManyFails)
{
    static CExpectAssertion* expected = nullptr;
    CExpectAssertion once("a == b");
    expected = &once;
    plinth::ReportAssertion("a == b", "s", 1, "f");
    EXPECT_NONFATAL_FAILURE(plinth::ReportAssertion("a == b", "s", 1, "f"), "An assertion was reported: a == b");
    EXPECT_EQ(expected->GetSeen(), 1);
}

TEST(ExpectReport, OneTooFewFails)
{
    EXPECT_NONFATAL_FAILURE(CExpectAssertion("a == b", 2),
                            "Expected an assertion with the text \"a == b\" 2 times, but it came 0 times.");
}

TEST(ExpectReport, AnotherTextIsNotTaken)
{
    static std::unique_ptr<CExpectAssertion> expected;
    expected = std::make_unique<CExpectAssertion>("a == c", 0);
    EXPECT_NONFATAL_FAILURE(plinth::ReportAssertion("a == b", "s", 1, "f"), "An assertion was reported");
    expected.reset();
}

TEST(ExpectReport, TheInnermostIsAskedFirst)
{
    CExpectAssertion outer("a ==", 1);
    {
        CExpectAssertion inner("a ==", 1);
        plinth::ReportAssertion("a == b", "s", 1, "f");
        EXPECT_EQ(inner.GetSeen(), 1);
        EXPECT_EQ(outer.GetSeen(), 0);
        plinth::ReportAssertion("a == b", "s", 1, "f");
        EXPECT_EQ(outer.GetSeen(), 1);
    }
}

TEST(ExpectReport, AssertionsAndExceptionsAreDifferentThings)
{
    static std::unique_ptr<CExpectException> expected;
    expected = std::make_unique<CExpectException>("a == b", 0);
    EXPECT_NONFATAL_FAILURE(plinth::ReportAssertion("a == b", "s", 1, "f"), "An assertion was reported");
    expected.reset();
}

class CThrower : public CLamp
{
public:
    using CLamp::CLamp;

protected:
    bool HandleButtonDown(int, int, int, MouseButton) override { throw std::runtime_error("broken"); }
};

TEST(ExpectReport, AnExceptionOfAHandlerFailsUnlessItIsExpected)
{
    static std::unique_ptr<CTestHost> host;
    host = std::make_unique<CTestHost>(10, 10);
    {
        CThrower lamp(host->Root(), {10, 10}, alClient);
        host->Paint();
        EXPECT_NONFATAL_FAILURE(host->Mouse().Press(3, 3), "An exception left an event handler: broken");
        CExpectException once("broken");
        host->Mouse().Press(3, 3);
        host->Mouse().Release();
    }
    host.reset();
}

} // namespace
} // namespace vexel
