// The pane in the middle of a scrolled view: how it moves pixels, and its mapping.

#include "tests/scroll/scroll_support.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/scroll/central_part.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

// A part at (10, 20, 110, 70) of a root of (0, 0, 200, 100) in a control that writes down what is asked of it. All of it
// is painted.
class CentralPart : public testing::Test
{
protected:
    CentralPart()
    {
        m_Log.Name(&m_Part, "part");
        m_Part.SetDynamic(false);
        m_Root.SetPos({0, 0, 200, 100}, false);
        m_Root.SetControl(&m_Control);
        m_Part.SetPos({10, 20, 110, 70}, false);
        Paint();
    }
    ~CentralPart() override { m_Root.SetControl(nullptr); }
    void Paint()
    {
        m_Part.SetValidRect(m_Part.GetPos());
        m_Log.Clear();
    }
    // The call and then the valid rectangle, own pixels.
    std::string Scroll(int dx, int dy)
    {
        m_Log.Clear();
        bool const answer = m_Part.ScrollContent(dx, dy);
        std::string const calls = m_Log.Take();
        return calls + (calls.empty() ? "" : " ") + (answer ? "" : "(no) ") + "valid " + Text(m_Part.GetValidRect());
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingElement m_Root{m_Log, "root", nullptr, {0, 0}, alClient};
    CCentralPart m_Part{&m_Root, {100, 50}, alNone};
};

TEST_F(CentralPart, IsItsOwnPaneInTheColoursOfAView)
{
    EXPECT_EQ(m_Part.GetCentralPane(), &m_Part);
    CVisualElement other(nullptr, {1, 1}, alNone);
    m_Part.SetCentralPane(&other);
    EXPECT_EQ(m_Part.GetCentralPane(), &m_Part);
    m_Part.SetCentralPane(nullptr);
    EXPECT_EQ(m_Part.GetCentralPane(), &m_Part);
    EXPECT_EQ(m_Part.GetCentralRect(), (rectangle<int>{10, 20, 110, 70}));
    EXPECT_EQ(static_cast<int>(m_Part.GetBkSysColor()), 1);
    EXPECT_EQ(static_cast<int>(m_Part.GetFgSysColor()), 2);
    EXPECT_FALSE(m_Part.IsFullRepainted());
    CCentralPart fresh(nullptr, {7, 8}, alLeft);
    EXPECT_TRUE(fresh.GetRearrangeRect().IsZero());
    EXPECT_EQ(fresh.GetSize(), (size<int>{7, 8}));
    EXPECT_EQ(fresh.GetAlignment(), alLeft);
    EXPECT_EQ(fresh.GetHorzScroll(), nullptr);
    EXPECT_EQ(fresh.GetVertScroll(), nullptr);
}

// Moving pixels ----------------------------------------------------------------------------------------------------------

TEST_F(CentralPart, NoDistanceConcernsItNot)
{
    EXPECT_EQ(Scroll(0, 0), "(no) valid 0 0 100 50");
}

TEST_F(CentralPart, MovesWhatStaysAndLeavesTheStripBehindInvalid)
{
    EXPECT_EQ(Scroll(-5, 0), "control.ScrollContent(-5, 0, 15 20 110 70) valid 0 0 95 50");
    Paint();
    EXPECT_EQ(Scroll(5, 0), "control.ScrollContent(5, 0, 10 20 105 70) valid 5 0 100 50");
    Paint();
    EXPECT_EQ(Scroll(0, -7), "control.ScrollContent(0, -7, 10 27 110 70) valid 0 0 100 43");
    Paint();
    EXPECT_EQ(Scroll(0, 7), "control.ScrollContent(0, 7, 10 20 110 63) valid 0 7 100 50");
    Paint();
    EXPECT_EQ(Scroll(-5, 7), "control.ScrollContent(-5, 7, 15 20 110 63) valid 0 7 95 50");
}

TEST_F(CentralPart, WhatIsStillToBePaintedAddsUp)
{
    Scroll(-5, 0);
    EXPECT_EQ(Scroll(3, 0), "control.ScrollContent(3, 0, 10 20 107 70) valid 3 0 95 50");
    EXPECT_EQ(Scroll(0, 10), "control.ScrollContent(0, 10, 10 20 110 60) valid 3 10 95 50");
}

TEST_F(CentralPart, AScrollAsLargeAsThePaneMovesNoPixels)
{
    EXPECT_EQ(Scroll(-99, 0), "control.ScrollContent(-99, 0, 109 20 110 70) valid 0 0 1 50");
    Paint();
    EXPECT_EQ(Scroll(-100, 0), "valid 0 0 0 0");
    Paint();
    EXPECT_EQ(Scroll(100, 0), "valid 0 0 0 0");
    Paint();
    EXPECT_EQ(Scroll(0, 49), "control.ScrollContent(0, 49, 10 20 110 21) valid 0 49 100 50");
    Paint();
    EXPECT_EQ(Scroll(0, 50), "valid 0 0 0 0");
    Paint();
    EXPECT_EQ(Scroll(0, -2000000000), "valid 0 0 0 0");
    Paint();
    EXPECT_EQ(Scroll(-2147483647 - 1, 0), "valid 0 0 0 0");
}

TEST_F(CentralPart, TheValidPartDecidesHowMuchIsTooFar)
{
    Scroll(60, 0);                                 // valid: 60 to 100
    EXPECT_EQ(Scroll(-40, 0), "valid 60 0 60 0");  // at the left-top of what was valid
    EXPECT_EQ(Scroll(-1, 0), "valid 60 0 60 0");
    Paint();
    Scroll(0, 20);
    EXPECT_EQ(Scroll(0, -30), "valid 0 20 0 20");
}

TEST_F(CentralPart, WhatDoesNotShowAsAWholeIsNotMoved)
{
    m_Part.SetPos({150, 20, 250, 70}, false);  // half of it lies outside of the root
    Paint();
    EXPECT_EQ(Scroll(-5, 0), "valid 0 0 0 0");
    m_Part.SetPos({10, 20, 110, 70}, false);
    Paint();
    m_Part.SetVisible(false);
    m_Log.Clear();
    Scroll(-5, 0);
    EXPECT_EQ(m_Log.Take({"ScrollContent"}), "");
}

TEST_F(CentralPart, WithoutAControlThereAreNoPixelsToMove)
{
    m_Root.SetControl(nullptr);
    m_Log.Clear();
    m_Part.ScrollContent(-5, 0);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(CentralPart, AScrollOfTheTreeMovesItAndAsksForItsRepaint)
{
    m_Log.Clear();
    m_Root.m_OnScrollContent = [&] {};
    m_Root.Scroll(0, -7, false);
    EXPECT_EQ(m_Log.Take({"ScrollContent", "UpdateElement"}),
              "root.ScrollContent(0, -7) control.ScrollContent(0, -7, 10 27 110 70) control.UpdateElement(part, 2)");
}

// Layout -----------------------------------------------------------------------------------------------------------------

TEST_F(CentralPart, NotesItsBoundsWhenALayoutBegins)
{
    m_Control.m_SigBeforeRearrange();
    EXPECT_EQ(m_Part.GetRearrangeRect(), (rectangle<int>{10, 20, 110, 70}));
    m_Part.SetPos({10, 25, 60, 45}, false);
    EXPECT_EQ(m_Part.GetRearrangeRect(), (rectangle<int>{10, 20, 110, 70}));
    m_Control.m_SigBeforeRearrange();
    EXPECT_EQ(m_Part.GetRearrangeRect(), (rectangle<int>{10, 25, 60, 45}));
}

TEST_F(CentralPart, HearsTheControlThatItStandsInAndNoOther)
{
    CRecordingControl second(m_Log);
    CRecordingElement root(m_Log, "second", nullptr, {0, 0}, alClient);
    root.SetPos({0, 0, 300, 300}, false);
    root.SetControl(&second);
    m_Part.ReParent(&root, false);
    m_Part.SetPos({1, 2, 11, 12}, false);
    m_Control.m_SigBeforeRearrange();
    EXPECT_TRUE(m_Part.GetRearrangeRect().IsZero());
    second.m_SigBeforeRearrange();
    EXPECT_EQ(m_Part.GetRearrangeRect(), (rectangle<int>{1, 2, 11, 12}));
    m_Part.ReParent(nullptr, false);
    m_Part.SetPos({3, 4, 13, 14}, false);
    second.m_SigBeforeRearrange();
    EXPECT_EQ(m_Part.GetRearrangeRect(), (rectangle<int>{1, 2, 11, 12}));
    m_Part.ReParent(&m_Root, false);
    m_Part.SetPos({3, 4, 13, 14}, false);
    m_Control.m_SigBeforeRearrange();
    EXPECT_EQ(m_Part.GetRearrangeRect(), (rectangle<int>{3, 4, 13, 14}));
    root.SetControl(nullptr);
}

TEST_F(CentralPart, OneMadeInsideAControlHearsItFromTheStartAndOnce)
{
    auto* const part = new CCentralPart(&m_Root, {10, 10}, alNone);
    part->SetPos({1, 2, 3, 4}, false);
    m_Control.m_SigBeforeRearrange();
    EXPECT_EQ(part->GetRearrangeRect(), (rectangle<int>{1, 2, 3, 4}));
    delete part;
    m_Control.m_SigBeforeRearrange();
}

TEST(CentralPartInAWindow, KnowsWhereItStoodBeforeTheLayout)
{
    CTestHost host(100, 50);
    auto* const part = new CCentralPart(host.Root(), {10, 10}, alClient);
    host.Paint();
    EXPECT_EQ(part->GetPos(), (rectangle<int>{0, 0, 99, 49}));
    host.Resize(120, 60);
    host.Paint();
    EXPECT_EQ(part->GetPos(), (rectangle<int>{0, 0, 119, 59}));
    new CVisualElement(host.Root(), {19, 19}, alLeft);
    host.Root()->GetChildren()->MoveItem(1, 0);
    part->OnRearrange(part);
    host.Paint();
    EXPECT_EQ(part->GetPos(), (rectangle<int>{20, 0, 119, 59}));
    EXPECT_EQ(part->GetRearrangeRect(), (rectangle<int>{0, 0, 119, 59}));
}

// Mapping ----------------------------------------------------------------------------------------------------------------

class CentralPartMapping : public testing::Test
{
protected:
    CentralPartMapping()
    {
        m_Part->SetPos({10, 20, 110, 70}, false);
        m_Horz.m_Measure = {2.0, 3};
        m_Vert.m_Measure = {1.0, 4};
        m_Part->SetHorzScroll(&m_Horz);
        m_Part->SetVertScroll(&m_Vert);
    }
    std::string Fill()
    {
        IPainter::CoordInfo info;
        m_Part->FillCoordInfo(&info);
        return Text(info);
    }

    CTestHost m_Host{200, 100};
    CCentralPart* m_Part = new CCentralPart(m_Host.Root(), {100, 50}, alNone);
    CTestModel m_Horz{10, 110, 25};
    CTestModel m_Vert{-50, 150, 7};
};

TEST_F(CentralPartMapping, EachAxisRunsFromItsStartByItsMeasure)
{
    EXPECT_EQ(Fill(), "25 7, 100 200 -> 10 20, 150 800");
}

TEST_F(CentralPartMapping, AReversedModelRunsBackFromTheFarEdge)
{
    std::swap(m_Horz.m_From, m_Horz.m_To);
    EXPECT_EQ(Fill(), "25 7, 100 200 -> 110 20, -150 800");
    std::swap(m_Vert.m_From, m_Vert.m_To);
    EXPECT_EQ(Fill(), "25 7, 100 200 -> 110 70, -150 -800");
}

TEST_F(CentralPartMapping, AnAxisWithoutAModelIsNotFilledIn)
{
    m_Part->SetHorzScroll(nullptr);
    EXPECT_EQ(Fill(), "0 7, 0 200 -> 0 20, 0 800");
    m_Part->SetHorzScroll(&m_Horz);
    m_Part->SetVertScroll(nullptr);
    EXPECT_EQ(Fill(), "25 0, 100 0 -> 10 0, 150 0");
}

TEST_F(CentralPartMapping, ExtentsAreTruncatedAndTooLongOnesKeepTheirScale)
{
    m_Horz.m_Measure = {3.0, 2};
    m_Vert.m_To = 1e18;
    EXPECT_EQ(Fill(), "25 7, 100 1 -> 10 20, 66 4");
}

TEST_F(CentralPartMapping, IsInstalledWithAControlAndBothModels)
{
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssMeasure);
    IPainter::CoordInfo info;
    info.m_LogicalOrigin = {1, 2};
    info.m_LogicalExtent = {3, 4};
    info.m_DeviceOrigin = {5, 6};
    info.m_DeviceExtent = {7, 8};
    IPainter::MapMode mode = IPainter::mmDevice;
    IPainter::CoordInfo got;
    painter->SetCoordSystem(IPainter::mmDevice, &info);

    m_Part->SetVertScroll(nullptr);
    m_Part->SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(mode, IPainter::mmDevice);

    m_Part->SetVertScroll(&m_Vert);
    m_Part->SetHorzScroll(nullptr);
    m_Part->SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(mode, IPainter::mmDevice);

    m_Part->SetHorzScroll(&m_Horz);
    m_Part->SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(mode, IPainter::mmCustom);
    EXPECT_EQ(Text(got), "25 7, 100 200 -> 10 20, 150 800");

    CCentralPart alone(nullptr, {20, 20}, alTop);
    alone.SetHorzScroll(&m_Horz);
    alone.SetVertScroll(&m_Vert);
    painter->SetCoordSystem(IPainter::mmDevice, &info);
    alone.SetCoordSystem(painter);
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(mode, IPainter::mmDevice);
    painter->EndPaint();
}

TEST_F(CentralPartMapping, ASubclassMayFillInItsOwn)
{
    class COwn : public CCentralPart
    {
    public:
        using CCentralPart::CCentralPart;
        void FillCoordInfo(IPainter::CoordInfo* info) override { info->m_DeviceOrigin = {77, 88}; }
    };
    auto* const own = new COwn(m_Host.Root(), {10, 10}, alNone);
    own->SetHorzScroll(&m_Horz);
    own->SetVertScroll(&m_Vert);
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssMeasure);
    own->SetCoordSystem(painter);
    IPainter::MapMode mode = IPainter::mmDevice;
    IPainter::CoordInfo got;
    painter->GetCoordSystem(mode, &got);
    EXPECT_EQ(got.m_DeviceOrigin, (point<int>{77, 88}));
    painter->EndPaint();
}

}  // namespace
