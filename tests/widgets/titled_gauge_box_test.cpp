// A gauge in the frame of a message box.

#include "vexel/widgets/titled_gauge_box.h"

#include "tests/support/leaf.h"
#include "tests/support/slot.h"
#include "tests/widgets/message_bench.h"
#include "vexel/core/base_control.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Size = size<int>;
using Rect = rectangle<int>;

// At the top of a window of 300 x 300 pixels.
class CTitledGaugeBench : public testing::Test
{
protected:
    CTitledGaugeBench() : m_Box(*new CTitledGaugeBox(m_Host.Root(), {0, 10}, alTop)) { m_Host.Paint(); }
    void ShowPicture()
    {
        m_Box.GetImage().SetRasterPicture(CTestHost::System().CreateRasterPicture({32, 32}));
        m_Host.Paint();
    }

    CTestHost m_Host{300, 300};
    CTitledGaugeBox& m_Box;
};

using TitledGaugeBox = CTitledGaugeBench;

// The frame around an element that a test can look at.
using CTitledLeafBase = CMessageBoxTempl<CVisualElement>;

}  // namespace

TEST(TitledGaugeBoxAlone, TheGaugeIsTheLastOfItsParts)
{
    CTestHost::System();
    CTitledGaugeBox box(nullptr, {100, 50}, alBottom);
    EXPECT_EQ(box.GetSize(), (Size{100, 50}));
    EXPECT_EQ(box.GetAlignment(), alBottom);
    ASSERT_EQ(box.GetChildren()->GetCount(), 5);
    EXPECT_EQ(box.GetChildren()->GetItem(0), &box.GetImage());
    EXPECT_EQ(box.GetChildren()->GetItem(3), &box.GetTitleSpacer());
    EXPECT_EQ(box.GetChildren()->GetItem(4), &box.GetContent());
    EXPECT_EQ(box.GetContent().GetParent(), &box);
    EXPECT_EQ(box.GetContent().GetAlignment(), alBottom);
    EXPECT_FALSE(box.GetContent().IsDynamic());
    EXPECT_EQ(box.GetContent().GetSize(), (Size{10, 29}));  // as high as its parts
    EXPECT_FALSE(box.GetContent().GetButton().IsVisible());
}

TEST(TitledGaugeBoxAlone, AnyElementCanBeTheContent)
{
    CTestHost host(300, 300);
    CTitledLeafBase alone(nullptr, {100, 50}, alTop);
    EXPECT_EQ(alone.GetContent().GetSize(), (Size{10, 10}));
    EXPECT_EQ(alone.GetContent().GetAlignment(), alBottom);
    auto* const box = new CTitledLeafBase(host.Root(), {0, 0}, alTop);
    EXPECT_EQ(box->GetContent().GetControl(), host.Root()->GetControl());
    box->GetContent().SetHeight(30, false);
    host.Paint();
    EXPECT_EQ(box->GetPos(), (Rect{0, 0, 299, 58}));  // 12, 2, 10 and 30, and one more for each
    EXPECT_EQ(box->GetContent().GetPos(), (Rect{21, 28, 299, 58}));
}

TEST(TitledGaugeBoxAlone, AtAnotherScaleTheContentsFirstSizeIsScaled)
{
    CTestHost::System().SetScale(1.5);
    CTitledLeafBase const box(nullptr, {100, 50}, alTop);
    EXPECT_EQ(box.GetContent().GetSize(), (Size{15, 15}));
}

TEST_F(TitledGaugeBox, IsAsHighAsTitleAndGauge)
{
    m_Box.GetTitle().SetCaption("Copying");
    m_Box.GetContent().GetText().SetCaption("one");
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetContent().GetSize().height, 34);  // 20, 4 and 10
    EXPECT_EQ(m_Box.GetPos(), (Rect{0, 0, 299, 72}));    // 12, 12, 10 and 34, and one more for each
    EXPECT_EQ(m_Box.GetImage().GetPos(), (Rect{0, 0, 20, 72}));
    EXPECT_EQ(m_Box.GetTitle().GetPos(), (Rect{21, 13, 299, 25}));
    EXPECT_EQ(m_Box.GetContent().GetPos(), (Rect{21, 38, 299, 72}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");

    ShowPicture();
    EXPECT_EQ(m_Box.GetTopSpacer().GetSize().height, 20);
    EXPECT_EQ(m_Box.GetTitleSpacer().GetSize().height, 14);
    EXPECT_EQ(m_Box.GetPos(), (Rect{0, 0, 299, 84}));
    EXPECT_EQ(m_Box.GetContent().GetPos(), (Rect{53, 50, 299, 84}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");

    m_Box.GetContent().GetText().SetCaption("one\ntwo");
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetPos().bottom, 92);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST(TitledGaugeBoxScaled, AtTwoItIsAsHighAsTitleAndGauge)
{
    CTestHost host(400, 300, 2);
    auto* const box = new CTitledGaugeBox(host.Root(), {0, 10}, alTop);
    box->GetTitle().SetCaption("Copying");
    box->GetContent().GetText().SetCaption("one");
    host.Paint();
    EXPECT_EQ(box->GetContent().GetSize().height, 68);  // 40, 8 and 20
    EXPECT_EQ(box->GetPos(), (Rect{0, 0, 399, 140}));   // 24, 24, 20 and 68, and one more for each
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST_F(TitledGaugeBox, ProgressRepaintsTheGaugeAlone)
{
    m_Box.GetTitle().SetCaption("Copying");
    CGauge& gauge = m_Box.GetContent().GetGauge();
    NameElement(gauge, "gauge");
    gauge.SetMax(10);
    m_Host.Paint();
    gauge.Increase(5);
    EXPECT_EQ(m_Host.Paint().Elements(), "gauge");
    EXPECT_EQ(gauge.AsString(), "[50%]");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TitledGaugeBox, ItsButtonCanBePressed)
{
    m_Box.GetContent().GetButton().SetCaption("Stop");
    m_Host.Paint();
    CSignalLog log(m_Box.GetContent().GetButton().m_Clicked, "clicked");
    m_Host.Mouse().Click(m_Box.GetContent().GetButton(), 5, 5);
    EXPECT_EQ(log.Text(), "clicked()");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TitledGaugeBox, AMaximumWidthKeepsTheGaugeAtTheLeft)
{
    m_Box.GetTitle().SetCaption("Copying");
    m_Box.GetContent().SetMaxWidth(100);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetContent().GetOffset().right, 178);  // 299 - 21 - 100
    EXPECT_EQ(m_Box.GetContent().GetStrip().GetPos().right, 100);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST(TitledGaugeBoxDeletion, InSlotsOfItsPartsIsSurvived)
{
    static char const* const deeds[] = {"box", "parent", "control", "detached"};
    for (int where = 0; where < 6; ++where)
        for (char const* const deed : deeds)
        {
            SCOPED_TRACE(std::string(deed) + " " + std::to_string(where));
            CTestHost host(300, 300);
            auto* const parent = new CVisualElement(host.Root(), {0, 0}, alClient);
            auto* const box = new CTitledGaugeBox(parent, {0, 0}, alTop);
            std::unique_ptr<CTitledGaugeBox> detached;
            host.Paint();
            int done = 0;
            auto const act = [&](int place) {
                if (where != place || done++ > 0)
                    return;
                if (deed == deeds[0])
                    delete box;
                else if (deed == deeds[1])
                    delete parent;
                else if (deed == deeds[2])
                    host.DestroyControl();
                else
                {
                    box->ReParent(nullptr, true);
                    detached.reset(box);
                }
            };
            CGaugeBoxEx& content = box->GetContent();
            auto const shown = ListenToAny(content.GetButton().m_SigVisible, [&] { act(0); });
            auto const clicked = ListenToAny(content.GetButton().m_Clicked, [&] { act(1); });
            auto const titled = ListenToAny(box->GetTitle().m_SigSize, [&] { act(2); });
            auto const spaced = ListenToAny(box->GetTitleSpacer().m_SigSize, [&] { act(3); });
            auto const painted = ListenToAny(box->GetImage().m_SigDraw, [&] { act(4); });
            auto const sized = ListenToAny(box->m_SigSize, [&] { act(5); });
            auto const goesOn = [&] { return host.HasControl() && done == 0; };
            box->GetImage().SetRasterPicture(CTestHost::System().CreateRasterPicture({40, 40}));
            box->GetTitle().SetCaption("Copying");
            if (goesOn())
                content.GetButton().SetCaption("Stop");
            if (goesOn())
                host.Paint();
            if (goesOn())
                host.Mouse().Click(content.GetButton(), 5, 5);
            EXPECT_GT(done, 0);
            if (host.HasControl())
                host.Paint();
        }
}
