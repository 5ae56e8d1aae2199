// An element larger than its view: how it moves, what it draws, which keys it takes. Views are 100 wide and 50 high.

#include "tests/support/call_log.h"
#include "tests/support/canvas.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"
#include "vexel/layout/scrolled.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

class CLoggedScrolled : public CScrolled
{
public:
    using CScrolled::CScrolled;
    void SetPos(rectangle<int> const& rect, bool force) override
    {
        m_SetPos += (m_SetPos.empty() ? "" : " ") + std::string("(") + Text(rect) + (force ? ", force)" : ")");
        CScrolled::SetPos(rect, force);
    }
    std::string Take()
    {
        std::string const calls = m_SetPos;
        m_SetPos.clear();
        return calls;
    }

private:
    std::string m_SetPos;
};

// 200 x 300 behind a view of 100 x 50. There is no control: geometry needs none.
class Scrolled : public testing::Test
{
protected:
    Scrolled()
    {
        m_View.SetPos({7, 9, 107, 59}, true);
        PutAt(0, 0);
    }
    void PutAt(int left, int top)
    {
        m_Element.SetPos({left, top, left + 200, top + 300}, false);
        m_Element.Take();
        m_Log.Clear();
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingElement m_View{m_Log, "view"};
    CLoggedScrolled m_Element{&m_View, {200, 300}, alNone};
};

TEST_F(Scrolled, KnowsOfItsViewAndCoversWhatIsBehindItAtFirst)
{
    EXPECT_TRUE(m_Element.IsClippedToParent());
    EXPECT_FALSE(m_Element.IsTransparent());
}

TEST_F(Scrolled, ItsDrawBoundsAreTheViewInItsOwnPixels)
{
    EXPECT_EQ(m_Element.GetDrawBounds(), (rectangle<int>{0, 0, 100, 50}));
    PutAt(-10, -20);
    EXPECT_EQ(m_Element.GetDrawBounds(), (rectangle<int>{10, 20, 110, 70}));
    PutAt(5, 6);
    EXPECT_EQ(m_Element.GetDrawBounds(), (rectangle<int>{-5, -6, 95, 44}));
}

TEST_F(Scrolled, HasNoDrawBoundsWithoutAViewOrIfItDoesNotKnowOfIt)
{
    CScrolled alone(nullptr, {10, 10}, alNone);
    alone.SetPos({3, 4, 13, 14}, false);
    EXPECT_TRUE(alone.GetDrawBounds().IsZero());
    PutAt(-10, -20);
    m_Element.SetClipToParent(false);
    EXPECT_FALSE(m_Element.IsClippedToParent());
    EXPECT_TRUE(m_Element.GetDrawBounds().IsZero());
}

// Jumps ------------------------------------------------------------------------------------------------------------

TEST_F(Scrolled, AJumpMovesItByThatMuch)
{
    PutAt(-30, -100);
    m_Element.JumpVert(-10);
    EXPECT_EQ(m_Element.Take(), "(-30 -110 170 190)");
    m_Element.JumpVert(25);
    EXPECT_EQ(m_Element.Take(), "(-30 -85 170 215)");
    m_Element.JumpHorz(-10);
    EXPECT_EQ(m_Element.Take(), "(-40 -85 160 215)");
    m_Element.JumpHorz(25);
    EXPECT_EQ(m_Element.Take(), "(-15 -85 185 215)");
    EXPECT_EQ(m_Element.GetPos(), (rectangle<int>{-15, -85, 185, 215}));
}

TEST_F(Scrolled, AJumpDoesNotTearItFromTheViewsTop)
{
    PutAt(-30, -20);
    m_Element.JumpVert(20);
    EXPECT_EQ(m_Element.Take(), "(-30 0 170 300)");
    PutAt(-30, -20);
    m_Element.JumpVert(21);
    EXPECT_EQ(m_Element.Take(), "(-30 0 170 300)");
}

TEST_F(Scrolled, AJumpDoesNotTearItFromTheViewsLeft)
{
    PutAt(-30, -20);
    m_Element.JumpHorz(31);
    EXPECT_EQ(m_Element.Take(), "(0 -20 200 280)");
}

TEST_F(Scrolled, AJumpDoesNotTearItFromTheViewsFoot)
{
    PutAt(-30, -240);
    m_Element.JumpVert(-10);
    EXPECT_EQ(m_Element.Take(), "(-30 -250 170 50)");
    m_Element.JumpVert(-1);
    EXPECT_EQ(m_Element.Take(), "(-30 -250 170 50)");
    PutAt(-30, 0);
    m_Element.JumpVert(-10000);
    EXPECT_EQ(m_Element.Take(), "(-30 -250 170 50)");
}

TEST_F(Scrolled, AJumpDoesNotTearItFromTheViewsRight)
{
    PutAt(-95, -20);
    m_Element.JumpHorz(-10);
    EXPECT_EQ(m_Element.Take(), "(-100 -20 100 280)");
}

TEST_F(Scrolled, OneThatIsLowerThanItsViewLandsAtTheFoot)
{
    m_Element.SetPos({0, 0, 200, 30}, false);
    m_Element.Take();
    m_Element.JumpVert(5);
    EXPECT_EQ(m_Element.Take(), "(0 20 200 50)");
    m_Element.JumpVert(-40);
    EXPECT_EQ(m_Element.Take(), "(0 20 200 50)");
}

TEST_F(Scrolled, OneThatIsNarrowerThanItsViewLandsAtTheRight)
{
    m_Element.SetPos({0, 0, 60, 300}, false);
    m_Element.Take();
    m_Element.JumpHorz(-5);
    EXPECT_EQ(m_Element.Take(), "(40 0 100 300)");
}

TEST_F(Scrolled, AJumpByNothingStillPlacesIt)
{
    m_Element.JumpVert(0);
    EXPECT_EQ(m_Element.Take(), "(0 0 200 300)");
    m_Element.JumpHorz(0);
    EXPECT_EQ(m_Element.Take(), "(0 0 200 300)");
}

TEST_F(Scrolled, WithoutAViewTheFootIsThePlaceItStartsFrom)
{
    m_Element.SetClipToParent(false);
    m_Element.JumpVert(-400);
    EXPECT_EQ(m_Element.Take(), "(0 -300 200 0)");
}

// To the ends ------------------------------------------------------------------------------------------------------

TEST_F(Scrolled, TheBeginningIsItsTopAtTheViewsTop)
{
    PutAt(-30, -120);
    m_Element.GotoBegin();
    EXPECT_EQ(m_Element.Take(), "(-30 0 170 300)");
    PutAt(-30, 12);
    m_Element.GotoBegin();
    EXPECT_EQ(m_Element.Take(), "(-30 0 170 300)");
}

TEST_F(Scrolled, TheBeginningOfALineIsItsLeftAtTheViewsLeft)
{
    PutAt(-30, -120);
    m_Element.GotoBeginLine();
    EXPECT_EQ(m_Element.Take(), "(0 -120 200 180)");
}

TEST_F(Scrolled, TheEndLeavesTheLastRowOnePixelAboveTheFoot)
{
    m_Element.GotoEnd();
    EXPECT_EQ(m_Element.Take(), "(0 -251 200 49)") << "50 - 300 - 1";
    PutAt(-7, -100);
    m_Element.GotoEnd();
    EXPECT_EQ(m_Element.Take(), "(-7 -251 193 49)") << "150 - 300 - 1";
}

TEST_F(Scrolled, AtTheEndOrBeyondGoingThereDoesNothing)
{
    PutAt(0, -251);
    m_Element.GotoEnd();
    EXPECT_EQ(m_Element.Take(), "");
    PutAt(0, -280);
    m_Element.GotoEnd();
    EXPECT_EQ(m_Element.Take(), "");
    PutAt(0, -250);
    m_Element.GotoEnd();
    EXPECT_EQ(m_Element.Take(), "(0 -251 200 49)");
}

TEST_F(Scrolled, TheEndIsReckonedFromTheHeightItAsksFor)
{
    m_Element.SetSize({200, 280}, false);
    m_Element.Take();
    m_Element.GotoEnd();
    EXPECT_EQ(m_Element.Take(), "(0 -231 200 69)") << "50 - 280 - 1";
}

TEST_F(Scrolled, TheEndOfALineBringsTheRightEdgeToTheViews)
{
    PutAt(0, -20);
    m_Element.GotoEndLine();
    EXPECT_EQ(m_Element.Take(), "(-100 -20 100 280)");
}

TEST_F(Scrolled, TheEndOfALineGoesLessFarFromAPlaceInBetween)
{
    PutAt(-30, -20);
    m_Element.GotoEndLine();
    EXPECT_EQ(m_Element.Take(), "(-70 -20 130 280)") << "130 - 200 + 30 is -40";
}

TEST_F(Scrolled, FromTheMiddleOnGoingToTheEndOfALineDoesNothing)
{
    PutAt(-50, -20);
    m_Element.GotoEndLine();
    EXPECT_EQ(m_Element.Take(), "");
    PutAt(-49, -20);
    m_Element.GotoEndLine();
    EXPECT_EQ(m_Element.Take(), "(-51 -20 149 280)") << "149 - 200 + 49 is -2";
}

TEST_F(Scrolled, TheEndOfALineIsReckonedFromTheWidthItAsksFor)
{
    m_Element.SetSize({130, 300}, false);
    m_Element.Take();
    m_Element.GotoEndLine();
    EXPECT_EQ(m_Element.Take(), "(-30 0 170 300)");
}

// Keys -------------------------------------------------------------------------------------------------------------

class ScrolledKeys : public Scrolled
{
protected:
    // What a key did: the new places, then what the view heard.
    std::string Press(int key, int keys = 0)
    {
        EXPECT_TRUE(m_Element.HandleKeyDown(keys, key));
        std::string const places = m_Element.Take();
        return places + " " + m_Log.Take({"ProcessRearrange"});
    }
};

TEST_F(ScrolledKeys, PageUpAndDownMoveByTheViewsHeight)
{
    PutAt(-30, -120);
    EXPECT_EQ(Press(33), "(-30 -70 170 230) view.ProcessRearrange(view)");
    EXPECT_EQ(Press(34), "(-30 -120 170 180) view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, PagesStopAtTheEnds)
{
    PutAt(-30, -20);
    EXPECT_EQ(Press(33), "(-30 0 170 300) view.ProcessRearrange(view)");
    PutAt(-30, -220);
    EXPECT_EQ(Press(34), "(-30 -250 170 50) view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, ArrowsMoveTenPixels)
{
    PutAt(-30, -120);
    EXPECT_EQ(Press(37), "(-20 -120 180 180) view.ProcessRearrange(view)");
    EXPECT_EQ(Press(38), "(-20 -110 180 190) view.ProcessRearrange(view)");
    EXPECT_EQ(Press(39), "(-30 -110 170 190) view.ProcessRearrange(view)");
    EXPECT_EQ(Press(40), "(-30 -120 170 180) view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, ArrowsStopAtTheEnds)
{
    PutAt(-3, -4);
    EXPECT_EQ(Press(37), "(0 -4 200 296) view.ProcessRearrange(view)");
    EXPECT_EQ(Press(38), "(0 0 200 300) view.ProcessRearrange(view)");
    PutAt(-98, -247);
    EXPECT_EQ(Press(39), "(-100 -247 100 53) view.ProcessRearrange(view)");
    EXPECT_EQ(Press(40), "(-100 -250 100 50) view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, TheStepOfTenDoesNotScale)
{
    m_System.SetScale(2.0);
    PutAt(-30, -120);
    EXPECT_EQ(Press(40), "(-30 -130 170 170) view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, HomeGoesToTheBeginningOfTheLineAndWithControlToTheTop)
{
    PutAt(-30, -120);
    EXPECT_EQ(Press(36), "(0 -120 200 180) view.ProcessRearrange(view)");
    PutAt(-30, -120);
    EXPECT_EQ(Press(36, 0x200), "(-30 0 170 300) view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, EndGoesToTheEndOfTheLineAndWithControlToTheFoot)
{
    PutAt(-30, -120);
    EXPECT_EQ(Press(35), "(-70 -120 130 180) view.ProcessRearrange(view)");
    PutAt(-30, -120);
    EXPECT_EQ(Press(35, 0x200), "(-30 -251 170 49) view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, OtherHeldKeysDoNotMatter)
{
    PutAt(-30, -120);
    EXPECT_EQ(Press(36, 0x100 | 0x400), "(0 -120 200 180) view.ProcessRearrange(view)");
    PutAt(-30, -120);
    EXPECT_EQ(Press(36, 0x100 | 0x200 | 0x1), "(-30 0 170 300) view.ProcessRearrange(view)");
    EXPECT_EQ(Press(40, 0x200), "(-30 -10 170 290) view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, HomeWithControlAtTheTopIsStillConsumed)
{
    PutAt(-30, 0);
    EXPECT_EQ(Press(36, 0x200), "(-30 0 170 300) view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, AKeyThatMovesNothingIsConsumedAndTheViewIsLaidOutAllTheSame)
{
    PutAt(-50, -251);
    EXPECT_EQ(Press(35), " view.ProcessRearrange(view)");
    EXPECT_EQ(Press(35, 0x200), " view.ProcessRearrange(view)");
}

TEST_F(ScrolledKeys, KeysOutsideOfTheNavigationKeysAreNotConsumed)
{
    PutAt(-30, -120);
    for (int const key : {32, 41, 0, 9, 13, 65, -36})
        EXPECT_FALSE(m_Element.HandleKeyDown(0, key)) << key;
    EXPECT_EQ(m_Element.Take(), "");
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ScrolledKeys, OneThatDoesNotKnowOfItsViewTakesNoKeys)
{
    PutAt(-30, -120);
    m_Element.SetClipToParent(false);
    m_Log.Clear();
    for (int key = 33; key <= 40; ++key)
        EXPECT_FALSE(m_Element.HandleKeyDown(0, key)) << key;
    EXPECT_EQ(m_Element.Take(), "");
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ScrolledKeys, WithoutAParentTheyAreConsumedToo)
{
    CLoggedScrolled alone(nullptr, {20, 30}, alNone);
    alone.SetPos({-5, -6, 15, 24}, false);
    alone.Take();
    EXPECT_TRUE(alone.HandleKeyDown(0, 40));
    EXPECT_EQ(alone.Take(), "(-5 -16 15 14)");
    EXPECT_TRUE(alone.HandleKeyDown(0, 36));
    EXPECT_EQ(alone.Take(), "(0 -16 20 14)");
}

// m_SigSize --------------------------------------------------------------------------------------------------------

class ScrolledSize : public Scrolled
{
protected:
    std::string MoveTo(rectangle<int> const& rect, bool force = false)
    {
        CSignalLog log(m_Element.m_SigSize, "size");
        m_Element.SetPos(rect, force);
        return log.Text();
    }
};

TEST_F(ScrolledSize, APureMoveIsTold)
{
    EXPECT_EQ(MoveTo({0, -10, 200, 290}), "size()");
    EXPECT_EQ(MoveTo({-5, -10, 195, 290}), "size()");
    EXPECT_EQ(MoveTo({-6, -11, 194, 289}), "size()") << "once for both directions";
}

TEST_F(ScrolledSize, TheSamePlaceIsNotTold)
{
    EXPECT_EQ(MoveTo({0, 0, 200, 300}), "");
}

TEST_F(ScrolledSize, AMoveInOneDirectionIsToldThoughTheOtherGrows)
{
    EXPECT_EQ(MoveTo({0, -10, 220, 290}), "size()");
    EXPECT_EQ(MoveTo({-10, -10, 210, 310}), "size()");
}

TEST_F(ScrolledSize, GrowthAndShiftInTheSameDirectionAreNoMove)
{
    EXPECT_EQ(MoveTo({0, -10, 200, 320}), "");
    EXPECT_EQ(MoveTo({-10, -10, 240, 320}), "");
    EXPECT_EQ(MoveTo({-11, -11, 250, 330}), "");
}

TEST_F(ScrolledSize, GrowthInPlaceIsNotTold)
{
    EXPECT_EQ(MoveTo({0, 0, 210, 310}), "");
}

TEST_F(ScrolledSize, AForcedMoveIsToldForTheLayoutAndForTheMove)
{
    EXPECT_EQ(MoveTo({0, -10, 200, 290}, true), "size() size()");
    EXPECT_EQ(MoveTo({0, -10, 200, 290}, true), "size()") << "the layout alone";
}

TEST_F(ScrolledSize, ADockedOneIsToldForItsLayoutAndForTheMoveInTheOtherDirection)
{
    m_Element.SetAlignment(alTop);
    EXPECT_EQ(MoveTo({0, 0, 210, 300}), "size()");
    EXPECT_EQ(MoveTo({0, 10, 220, 310}), "size() size()");
}

TEST_F(ScrolledSize, AnObserverSeesTheNewPlace)
{
    rectangle<int> seen;
    struct SObserver : subscriber_base_t
    {
        rectangle<int>* m_Seen;
        void Hear(CVisualElement* element) { *m_Seen = element->GetPos(); }
    } observer;
    observer.m_Seen = &seen;
    m_Element.m_SigSize.connect(&observer, &SObserver::Hear);
    m_Element.JumpVert(-10);
    EXPECT_EQ(seen, (rectangle<int>{0, -10, 200, 290}));
}

// Painting: in a window of 100 x 50 the view ends at (99, 49) ---------------------------------------------------------

class ScrolledPaint : public testing::Test
{
protected:
    CTestHost m_Host{100, 50};
    CScrolled* m_Element = new CScrolled(m_Host.Root(), {200, 300}, alNone);

    PaintLog PaintAt(rectangle<int> const& rect)
    {
        m_Element->SetPos(rect, false);
        return m_Host.FullPaint().Of("CScrolled");
    }
};

TEST_F(ScrolledPaint, FillsOnlyWhatTheViewShows)
{
    EXPECT_THAT(PaintAt({0, 0, 200, 300}), Draws("FillRect 0 0 99 49"));
    EXPECT_THAT(PaintAt({-10, -20, 190, 280}), Draws("FillRect 10 20 109 69"));
    EXPECT_THAT(PaintAt({-110, -270, 90, 30}), Draws("FillRect 110 270 200 300"));
    EXPECT_THAT(PaintAt({40, 30, 240, 330}), Draws("FillRect 0 0 59 19"));
}

TEST_F(ScrolledPaint, FillsNoMoreThanItself)
{
    EXPECT_THAT(PaintAt({5, 6, 25, 16}), Draws("FillRect 0 0 20 10"));
}

TEST_F(ScrolledPaint, FillsAllOfItselfIfItDoesNotKnowOfTheView)
{
    m_Element->SetClipToParent(false);
    EXPECT_THAT(PaintAt({-10, -20, 190, 280}), Draws("FillRect 0 0 200 300"));
}

TEST(ScrolledAlone, WithoutAParentItFillsAllOfItself)
{
    CScriptedSystem system;
    CScrolled alone(nullptr, {3, 2}, alNone);
    alone.SetPos({40, 50, 43, 52}, false);
    vexelbase::tests::CCanvas canvas(6, 4);
    canvas.Brush(color_table[6]);
    alone.DrawContent(&canvas.Painter());
    EXPECT_EQ(canvas.Text(), "rrrr..\nrrrr..\nrrrr..\n......\n");
}

TEST_F(ScrolledPaint, FillsWithItsOwnBackground)
{
    m_Element->SetBkColor(color_table[3]);
    PaintAt({0, 0, 20, 10});
    EXPECT_EQ(m_Host.PixelAt(20, 10), color_table[3]);
    EXPECT_NE(m_Host.PixelAt(21, 10), color_table[3]);
}

TEST_F(ScrolledPaint, ATransparentOneFillsNothing)
{
    m_Element->SetTransparent(true);
    EXPECT_TRUE(m_Element->IsTransparent());
    EXPECT_THAT(PaintAt({0, 0, 200, 300}), testing::Not(Draws("FillRect*")));
}

TEST_F(ScrolledPaint, ChildrenOutsideOfTheViewAreNotPainted)
{
    auto* const seen = new CVisualElement(m_Element, {10, 10}, alNone);
    seen->SetPos({20, 65, 30, 75}, true);
    auto* const unseen = new CVisualElement(m_Element, {10, 10}, alNone);
    unseen->SetPos({20, 0, 30, 10}, true);
    m_Host.Name(*seen, "seen");
    m_Host.Name(*unseen, "unseen");
    m_Element->SetPos({-10, -20, 190, 280}, false);
    EXPECT_EQ(m_Host.FullPaint().Elements(), "CContent CScrolled seen");
    m_Element->SetClipToParent(false);
    EXPECT_EQ(m_Host.FullPaint().Elements(), "CContent CScrolled seen unseen");
}

TEST_F(ScrolledPaint, AChildThatTouchesTheViewByOneLineIsPaintedByItsOwnRepaintAlone)
{
    auto* const child = new CVisualElement(m_Element, {10, 10}, alNone);
    child->SetPos({99, 0, 109, 10}, true);
    m_Host.Name(*child, "child");
    m_Element->SetPos({0, 0, 200, 300}, false);
    EXPECT_EQ(m_Host.FullPaint().Elements(), "CContent CScrolled");
    child->Update(utElement);
    EXPECT_EQ(m_Host.Paint().Elements(), "child");
    m_Element->SetPos({-1, 0, 199, 300}, false);
    EXPECT_EQ(m_Host.FullPaint().Elements(), "CContent CScrolled child");
}

TEST_F(ScrolledPaint, LearningOfTheViewRepaintsIt)
{
    PaintAt({0, 0, 200, 300});
    m_Element->SetClipToParent(true);
    EXPECT_TRUE(m_Host.Paint().IsEmpty());
    m_Element->SetClipToParent(false);
    EXPECT_EQ(m_Host.Paint().Elements(), "CScrolled");
}

TEST_F(ScrolledPaint, NavigationKeysReachItThroughTheFocus)
{
    m_Element->SetCanHaveFocus(true);
    m_Element->SetPos({0, 0, 200, 300}, false);
    m_Host.Paint();
    m_Host.Focus();
    m_Element->SetFocus(true);
    m_Host.Keyboard().Press(vkDown);
    EXPECT_EQ(m_Element->GetPos(), (rectangle<int>{0, -10, 200, 290}));
    m_Host.Keyboard().Press(vkEnd, ksControl);
    EXPECT_EQ(m_Element->GetPos(), (rectangle<int>{0, -252, 200, 48})) << "49 - 300 - 1";
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

}  // namespace
