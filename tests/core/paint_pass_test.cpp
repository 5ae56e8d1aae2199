// What a native paint draws: everything, or only what waits.

#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/core/transparent_flavor.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/base_painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

class CBox : public CTransparentFlavor<CVisualElement>
{
public:
    CBox(CVisualElement* parent, size<int> const& extent, Alignment alignment, char const* name)
        : CTransparentFlavor<CVisualElement>(parent, extent, alignment)
    {
        NameElement(*this, name);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        painter->FillRect(0, 0, rect.right, rect.bottom);
    }
};

// a (0, 0, 20, 39) > inner (0, 0, 20, 10); b (21, 0, 41, 39); c (42, 0, 99, 39)
class PaintPass : public testing::Test
{
protected:
    PaintPass()
    {
        m_A.SetBkColor(color_table[3]);
        m_Inner.SetBkColor(color_table[6]);
        m_B.SetBkColor(color_table[4]);
        m_C.SetBkColor(color_table[9]);
    }
    std::string Paint() { return m_Host.Paint().Elements(); }

    CTestHost m_Host{100, 40};
    CBox& m_A = *new CBox(m_Host.Root(), {20, 0}, alLeft, "a");
    CBox& m_Inner = *new CBox(&m_A, {0, 10}, alTop, "inner");
    CBox& m_B = *new CBox(m_Host.Root(), {20, 0}, alLeft, "b");
    CBox& m_C = *new CBox(m_Host.Root(), {0, 0}, alClient, "c");
};

}  // namespace

TEST_F(PaintPass, TheFirstOnePaintsTheWholeTreeWhateverWaits)
{
    m_B.Update(utElement);

    EXPECT_EQ(Paint(), "CContent a inner b c");
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_EQ(m_Host.Control().GetControl()->GetUpdatesLastPos(), 0);
}

TEST_F(PaintPass, AChangeOfOneElementPaintsThatElement)
{
    Paint();
    m_B.Update(utElement);

    EXPECT_EQ(Paint(), "b");
    EXPECT_EQ(Paint(), "");
}

TEST_F(PaintPass, TheChildrenOfAPaintedElementArePaintedWithIt)
{
    Paint();
    m_A.Update(utElement);

    EXPECT_EQ(Paint(), "a inner");
}

TEST_F(PaintPass, AnElementBelowOneThatIsPaintedAnywayIsNotPaintedTwice)
{
    Paint();
    m_Inner.Update(utElement);
    m_A.Update(utElement);

    EXPECT_EQ(Paint(), "a inner");
}

TEST_F(PaintPass, ElementsThatWaitAreDrawnInTheOrderOfTheirRequests)
{
    Paint();
    m_C.Update(utElement);
    m_Inner.Update(utElement);

    EXPECT_EQ(Paint(), "c inner");
}

TEST_F(PaintPass, AFullPaintDuringAPartialUpdatePaintsEverything)
{
    Paint();
    m_B.Update(utElement);
    static_cast<CBasePainter*>(m_Host.Window().GetPainter())->RequestFullPaint();

    EXPECT_EQ(Paint(), "CContent a inner b c");
}

TEST_F(PaintPass, AFullUpdatePaintsEverythingAndEmptiesWhatWaits)
{
    Paint();
    m_B.Update(utElement);
    m_A.Update(utFull);

    EXPECT_EQ(Paint(), "CContent a inner b c");
    EXPECT_EQ(Paint(), "");
}

TEST_F(PaintPass, WhatAnInvisibleElementAsksForIsNotPainted)
{
    Paint();
    m_B.SetVisible(false);
    Paint();
    m_B.Update(utElement);

    EXPECT_EQ(Paint(), "");
}

TEST_F(PaintPass, AnElementThatIsHiddenBetweenRequestAndPaintIsNotPainted)
{
    Paint();
    m_Inner.Update(utElement);
    m_Host.Control().LockRearrange(true);
    m_A.SetVisible(false);

    EXPECT_EQ(Paint(), "");
    m_Host.Control().LockRearrange(false);
}

TEST_F(PaintPass, AnElementWithoutWidthDrawsNothingNorDoItsChildren)
{
    Paint();
    m_A.SetSize({0, 0}, false);

    EXPECT_EQ(Paint(), "b c");  // the client fills the rest, so the root is not asked
}

TEST_F(PaintPass, WhatShinesThroughIsPaintedBeforeATransparentElement)
{
    Paint();
    m_Inner.SetTransparent(true);

    EXPECT_EQ(Paint(), "a inner");
}

TEST_F(PaintPass, TheToolsOfAnElementAreSetBeforeItsSignal)
{
    Paint();
    m_B.SetFgColor(color_table[12]);

    PaintLog const paint = m_Host.Paint();

    EXPECT_THAT(paint, Draws("SetBrush blue").Then("SetTextColor cyan").Then("SetPen cyan").Then("FillRect 0 0 20 39"));
}

TEST_F(PaintPass, ADisabledElementHasGreyTextAndPen)
{
    Paint();
    m_B.SetFgColor(color_table[12]);
    m_B.SetEnabled(false);

    EXPECT_THAT(m_Host.Paint(), Draws("SetBrush blue").Then("SetTextColor grey").Then("SetPen grey"));
}

TEST_F(PaintPass, EachElementDrawsInItsOwnPixels)
{
    Paint();
    m_B.Update(utElement);

    EXPECT_THAT(m_Host.Paint(), Draws("SetCoordSystem 3 0 0 20 39 21 0 20 39").Then("FillRect 0 0 20 39"));
}

TEST_F(PaintPass, ThePictureIsThatOfTheTree)
{
    Paint();

    EXPECT_EQ(m_Host.PixelAt(5, 5), color_table[6]);
    EXPECT_EQ(m_Host.PixelAt(20, 10), color_table[6]);
    EXPECT_EQ(m_Host.PixelAt(5, 11), color_table[3]);
    EXPECT_EQ(m_Host.PixelAt(20, 39), color_table[3]);
    EXPECT_EQ(m_Host.PixelAt(21, 0), color_table[4]);
    EXPECT_EQ(m_Host.PixelAt(41, 39), color_table[4]);
    EXPECT_EQ(m_Host.PixelAt(42, 0), color_table[9]);
}

TEST_F(PaintPass, AfterItsPaintAnElementStandsAsAWhole)
{
    Paint();
    EXPECT_EQ(m_B.GetValidRect(), (rectangle<int>{0, 0, 20, 39}));

    m_B.Update(utElement);
    EXPECT_EQ(m_B.GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(PaintPass, TheHostTellsBeforeAndAfter)
{
    IControl& control = *m_Host.Control().GetControl();
    CSignalLog log(control.m_SigBeforeDraw, "before");
    log.Add(control.m_SigBeforeRearrange, "layout").Add(control.m_SigAfterRearrange, "laid");
    log.Add(m_B.m_SigDraw, "draw").Add(control.m_SigAfterDraw, "after");

    m_Host.Paint();

    EXPECT_EQ(log.Text(), "before() layout() laid() draw(painter) after()");
}

TEST_F(PaintPass, TheEndIsToldAlsoWhenNothingWasDrawn)
{
    Paint();
    CSignalLog log(m_Host.Control().GetControl()->m_SigAfterDraw, "after");

    m_Host.Window().UpdateNow();

    EXPECT_EQ(log.Text(), "after()");
}

TEST(PixelMove, AMovedElementTakesItsPixelsAlongAndIsNotPainted)
{
    CTestHost host(100, 40);
    CBox ground(host.Root(), {0, 0}, alClient, "ground");
    CBox sheet(host.Root(), {0, 0}, alNone, "sheet");
    ground.SetDynamic(false);
    sheet.SetDynamic(false);
    ground.SetBkColor(color_table[9]);
    sheet.SetBkColor(color_table[4]);
    sheet.SetPos({10, 5, 30, 20}, true);
    host.Paint();

    sheet.SetPos({50, 8, 70, 23}, false);

    EXPECT_EQ(host.PixelAt(50, 8), color_table[4]);
    EXPECT_EQ(host.PixelAt(70, 23), color_table[4]);
    EXPECT_EQ(host.PixelAt(71, 23), color_table[9]);
    EXPECT_EQ(host.Paint().Elements(), "");
}

TEST_F(PaintPass, AnElementThatWaitsInsideASlotOfThePaintIsForgotten)
{
    Paint();
    class CAsker : public subscriber_base_t
    {
    public:
        explicit CAsker(CVisualElement& element) : m_Element(element) {}
        void Ask(CVisualElement*, IPainter*) { m_Element.Update(utElement); }
        CVisualElement& m_Element;
    } asker(m_C);
    m_B.m_SigDraw.connect(&asker, &CAsker::Ask);
    m_B.Update(utElement);

    Paint();

    EXPECT_EQ(m_Host.Control().GetControl()->GetUpdatesLastPos(), 0);
}

TEST_F(PaintPass, AResizedWindowIsLaidOutAndPaintedAsAWhole)
{
    Paint();
    m_Host.Resize(120, 50);

    EXPECT_EQ(m_C.GetPos(), (rectangle<int>{42, 0, 119, 49}));
    EXPECT_EQ(Paint(), "CContent a inner b c");
}

TEST_F(PaintPass, ALayoutThatThrowsMakesTheNextPaintLayOutAndPaintEverything)
{
    Paint();
    m_A.SetSize({30, 0}, false);
    {
        auto const slot = Listen(m_A.m_SigSize, [](CVisualElement*) { throw 1; });
        EXPECT_THROW(m_Host.Control().OnDraw(m_Host.Window().GetPainter()), int);
    }

    EXPECT_EQ(Paint(), "CContent a inner b c");
    EXPECT_EQ(m_B.GetPos(), (rectangle<int>{31, 0, 51, 39}));
}

TEST_F(PaintPass, ALayoutThatThrowsOutsideAPaintIsMadeAnewByTheNextOne)
{
    Paint();
    m_A.SetSize({30, 0}, false);
    {
        auto const slot = Listen(m_A.m_SigSize, [](CVisualElement*) { throw 1; });
        EXPECT_THROW(m_A.ForceRearrange(), int);
    }
    EXPECT_EQ(m_B.GetPos(), (rectangle<int>{21, 0, 41, 39}));

    EXPECT_EQ(Paint(), "CContent a inner b c");
    EXPECT_EQ(m_B.GetPos(), (rectangle<int>{31, 0, 51, 39}));
}
