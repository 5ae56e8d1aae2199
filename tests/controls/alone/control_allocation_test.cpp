// What controls take of memory while they are painted again and again: nothing, from the second time on.

#include "tests/platform/text_device.h"
#include "tests/support/allocation.h"
#include "vexel/controls/control_caption.h"
#include "vexel/controls/image.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>

namespace vexel::test
{

namespace
{

/// Draws elements on a device that keeps nothing.
struct SBench : STextBench
{
    SBench()
    {
        device.m_Keeps = false;
        painter.BeginPaint(IPainter::ssPaint);
    }
    ~SBench() { painter.EndPaint(); }

    long AllocationsOfADrawing(CVisualElement& element)
    {
        element.SetPos({0, 0, 150, 40}, true);
        auto const draw = [&] { element.OnDraw(&painter); };
        draw();
        draw();
        return CountAllocations(draw);
    }

    CTestHost host{10, 10};  // for the system and its palette
};

long AllocationsOfAButton(std::function<void(CButton&)> const& set)
{
    SBench bench;
    CButton button(nullptr, {0, 0}, alClient);
    button.SetCaption("Press me");
    set(button);
    long const count = bench.AllocationsOfADrawing(button);
    EXPECT_EQ(bench.device.m_Drawn, 3);
    return count;
}

}  // namespace

TEST(ControlAllocation, TheCounterCounts)
{
    EXPECT_EQ(CountAllocations([] { delete new int; }), 1);
}

TEST(ControlAllocation, APlainCaption)
{
    SBench bench;
    CCaption caption(nullptr, {0, 0}, alClient);
    caption.SetCaption("A text that is too long for its one line, and so wraps, until it ends in dots somewhere");
    EXPECT_EQ(bench.AllocationsOfADrawing(caption), 0);
}

TEST(ControlAllocation, ACaptionThatIsTurnedWithItsSide)
{
    SBench bench;
    CCaption caption(nullptr, {30, 0}, alLeft);
    caption.SetTextLayout(true);
    caption.SetCaption("A text");
    EXPECT_EQ(bench.AllocationsOfADrawing(caption), 0);
}

TEST(ControlAllocation, ACaptionWithLinks)
{
    SBench bench;
    CCaption caption(nullptr, {0, 0}, alClient);
    caption.UseHTML(true);
    caption.SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
    caption.SetCaption("<a href=\"a\">short</a> and <a href=\"a target that no small buffer has room for\">long, over "
                       "two lines</a> and <a href=\"another of those targets without end\"><b>bo</b>ld</a>");
    EXPECT_EQ(bench.AllocationsOfADrawing(caption), 0);
    EXPECT_TRUE(caption.HandleButtonDown(5, 4, 1, mbLeft));
}

TEST(ControlAllocation, LinksThatAreNotDrawnAgainAreFreed)
{
    CCaption::LinkHolder holder;
    std::string const target(100, 't');
    auto const draw = [&](int links) {
        holder.SetValid(false);
        for (int i = 0; i < links; ++i)
            holder.AddLink(target.data(), 100, {i, 0, i, 8});
        holder.SetValid(true);
    };
    draw(3);
    draw(3);
    long const before = SAllocations::s_Alive;
    draw(1);
    EXPECT_EQ(SAllocations::s_Alive, before - 2);
}

TEST(ControlAllocation, ButtonsOfAllLooksAndStages)
{
    EXPECT_EQ(AllocationsOfAButton([](CButton&) {}), 0);
    for (bool const pressed : {false, true})
    {
        for (int style = CButton::BorderFlat; style <= CButton::BorderSunken; ++style)
        {
            EXPECT_EQ(AllocationsOfAButton([&](CButton& button) {
                          button.SetNativeDrawing(false);
                          button.SetStyle(static_cast<CButton::BorderStyle>(style));
                          if (pressed)
                              button.HandleKeyDown(0, vkSpace);
                      }),
                      0)
                << style << " " << pressed;
        }
    }
}

TEST(ControlAllocation, AColouredBevel)
{
    SBench bench;
    CBevel bevel(nullptr, {0, 0}, alClient);
    bevel.SetBkColor(color_table[3]);
    bevel.SetShape(CBevel::ShapeBox);
    EXPECT_EQ(bench.AllocationsOfADrawing(bevel), 0);
}

TEST(ControlAllocation, AStripWithArrowTextAndHelpButton)
{
    SBench bench;
    CControlCaption strip(nullptr, {0, 20}, alTop);
    strip.GetText().SetCaption("A title");
    strip.SetHelpId("topic");
    EXPECT_EQ(bench.AllocationsOfADrawing(strip), 0);
}

}  // namespace vexel::test
