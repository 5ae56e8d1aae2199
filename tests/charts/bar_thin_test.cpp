// The free edge of bars at the right and at the bottom: it is met only where they are thinner than three pixels.

#include "tests/charts/bar_bench.h"
#include "tests/support/slot.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// Two pixels thick, at 197 to 199 of the window. Only the bar can be resized.
template <Alignment Side> class CThinBarBench : public CBarBench
{
protected:
    CThinBarBench() : CBarBench(Side, 2)
    {
        HearAll(m_Log);
        KeepFromDragging();
        m_Bar.SetStyle(CBar::bsResizeBar);
    }

    CSignalLog m_Log;
};

using ThinRightBar = CThinBarBench<alRight>;
using ThinBottomBar = CThinBarBench<alBottom>;

}  // namespace

// At the right: the thickness follows the pointer's way across ------------------------------------------------------------------

TEST_F(ThinRightBar, IsGrabbedAnywhere)
{
    for (int const x : {0, 1, 2})
        EXPECT_EQ(HitAt({x, 70}), "5: -1 -1 -1") << x;
    EXPECT_EQ(HitAt({1, 199}), "5: -1 -1 -1");
    EXPECT_EQ(HitAt({3, 70}), "0: -1 -1 -1");
    m_Host.Mouse().Move(m_Bar, 1, 70);
    EXPECT_EQ(m_Bar.GetCursor(), 9);
    m_Host.Mouse().Press(m_Bar, 1, 70);
    EXPECT_EQ(m_Log.Take(), "barResizeAllowed(true)");
    EXPECT_EQ(m_Bar.GetState(), CBar::stResizingBar);
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Captured(), &m_Bar);
    Release();
    EXPECT_EQ(m_Log.Text(), "barResized((2, 2))");
    EXPECT_EQ(Captured(), nullptr);
}

TEST_F(ThinRightBar, BecomesAsMuchThickerAsThePointerGoesRight)
{
    ASSERT_EQ(m_Bar.GetPos(), (rectangle<int>{197, 0, 199, 199}));
    m_Host.Mouse().Press(m_Bar, 1, 70);
    m_Host.Mouse().Move(m_Bar, 1, 100);  // along: nothing
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{2, 2}));
    m_Host.Mouse().Move(m_Bar, 2, 100);  // 3 is less than the least
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{2, 2}));
    m_Host.Mouse().Move(m_Bar, 3, 100);  // two pixels from the press
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{4, 2}));
    EXPECT_EQ(m_Bar.GetCursor(), 9);
    m_Host.Mouse().Move(m_Bar, 8, 100);
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{9, 2}));
    m_Host.Mouse().Move(m_Bar, 6, 100);
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{7, 2}));
    m_Host.Paint();
    EXPECT_EQ(m_Bar.GetPos(), (rectangle<int>{192, 0, 199, 199}));
    m_Log.Clear();
    Release();
    EXPECT_EQ(m_Log.Text(), "barResized((7, 2))");
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
}

TEST_F(ThinRightBar, CountsFromItsOwnLeftEdgeWhichMovesAwayAsItGrows)
{
    m_Host.Mouse().Press(m_Bar, 1, 70);
    m_Host.Mouse().Move(m_Bar, 4, 70);  // 201 in the window
    EXPECT_EQ(m_Bar.GetSize().width, 5);
    m_Host.Paint();
    ASSERT_EQ(m_Bar.GetPos(), (rectangle<int>{194, 0, 199, 199}));
    m_Host.Mouse().Move(202, 70);  // 8 in its own pixels, 4 at the last step
    EXPECT_EQ(m_Bar.GetSize().width, 9);
}

TEST_F(ThinRightBar, BecomesThinnerDownToItsLeastAndNoFurther)
{
    m_Bar.SetMinBarSize(1);
    m_Host.Mouse().Press(m_Bar, 1, 70);
    m_Host.Mouse().Move(m_Bar, -1, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 2);
    m_Host.Mouse().Move(m_Bar, 0, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 1);
    m_Host.Mouse().Move(m_Bar, -1, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 1);
    m_Bar.SetMaxBarSize(2);
    m_Host.Mouse().Move(m_Bar, 2, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 1);
    m_Host.Mouse().Move(m_Bar, 1, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 2);
}

TEST_F(ThinRightBar, OnceItIsThickIsPressedAndNotGrabbed)
{
    m_Host.Mouse().Press(m_Bar, 1, 70);
    m_Host.Mouse().Move(m_Bar, 3, 70);
    Release();
    m_Host.Paint();
    m_Log.Clear();
    for (int const x : {0, 4})
        EXPECT_EQ(HitAt({x, 70}), "1: 1 1 1 first") << x;
    m_Host.Mouse().Press(m_Bar, 0, 70);
    EXPECT_EQ(m_Log.Text(), "pressAllowed(1, true)");
    EXPECT_EQ(m_Bar.GetState(), CBar::stPressed);
    Release();
}

TEST_F(ThinRightBar, StaysWhereTheResizeIsRefused)
{
    auto const no = Listen(m_Bar.m_SigBarResizeAllowed, [](bool* allow) { *allow = false; });
    m_Host.Mouse().Press(m_Bar, 1, 70);
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    m_Host.Mouse().Move(m_Bar, 9, 70);
    Release();
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{2, 2}));
    EXPECT_EQ(m_Log.Text(), "barResizeAllowed(true)");
}

// At the bottom: its extent along is what changes -------------------------------------------------------------------------------

TEST_F(ThinBottomBar, IsGrabbedAnywhere)
{
    for (int const y : {0, 1, 2})
        EXPECT_EQ(HitAt({120, y}), "5: -1 -1 -1") << y;
    m_Host.Mouse().Move(m_Bar, 120, 1);
    EXPECT_EQ(m_Bar.GetCursor(), 7);
    m_Host.Mouse().Press(m_Bar, 120, 1);
    EXPECT_EQ(m_Log.Take(), "barResizeAllowed(true)");
    EXPECT_EQ(m_Bar.GetState(), CBar::stResizingBar);
    Release();
    EXPECT_EQ(m_Log.Text(), "barResized((2, 2))");
}

TEST_F(ThinBottomBar, BecomesLongerAndNotThicker)
{
    m_Host.Mouse().Press(m_Bar, 120, 1);
    m_Host.Mouse().Move(m_Bar, 120, -40);  // across: nothing
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{2, 2}));
    m_Host.Mouse().Move(m_Bar, 130, -40);
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{12, 2}));
    EXPECT_EQ(m_Bar.GetCursor(), 7);
    m_Host.Paint();
    EXPECT_EQ(m_Bar.GetPos(), (rectangle<int>{0, 197, 199, 199}));  // docked: as long as its side
    m_Host.Mouse().Move(m_Bar, 121, 1);                             // 3 is less than the least
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{12, 2}));
    m_Host.Mouse().Move(m_Bar, 122, 1);
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{4, 2}));
    m_Log.Clear();
    Release();
    EXPECT_EQ(m_Log.Text(), "barResized((4, 2))");
    EXPECT_EQ(HitAt({120, 1}), "5: -1 -1 -1");  // still as thin
}
