// Title strips: their parts and colours, the help button, the strip that is clicked, the buttons on such strips.

#include "vexel/controls/element_caption.h"

#include "tests/support/scripted_system.h"
#include "tests/support/slot.h"
#include "tests/support/test_images.h"
#include "vexel/controls/control_caption.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Rect = rectangle<int>;
using Size = size<int>;

namespace
{

void ShowBkImage(CTestHost& host, bool on)
{
    IPainter& painter = *host.Window().GetPainter();
    painter.m_BkImage = on ? CTestHost::System().CreateRasterPicture(Size{200, 100}) : nullptr;
    painter.m_BkImageColor = color_table[9];
}

// A strip at (0, 0, 199, 11), content (3, 0, 198, 11).
class ElementCaption : public testing::Test
{
protected:
    ElementCaption()
    {
        NameElement(m_Strip, "strip");
        m_Host.Paint();
    }
    ~ElementCaption() override { ShowBkImage(m_Host, false); }

    CTestHost m_Host{200, 100};
    CElementCaption& m_Strip = *new CElementCaption(m_Host.Root(), {0, 30}, alTop);
};

}  // namespace

TEST_F(ElementCaption, ItsPartsAreAHiddenHelpButtonAndAText)
{
    ASSERT_EQ(m_Strip.GetChildren()->GetCount(), 2);
    EXPECT_EQ(m_Strip.GetChildren()->GetItem(0), &m_Strip.GetHelpButton());
    EXPECT_EQ(m_Strip.GetChildren()->GetItem(1), &m_Strip.GetText());
    EXPECT_FALSE(m_Strip.GetHelpButton().IsDynamic());
    EXPECT_FALSE(m_Strip.GetText().IsDynamic());
    EXPECT_FALSE(m_Strip.GetHelpButton().IsVisible());
    EXPECT_EQ(m_Strip.GetHelpButton().GetAlignment(), alRight);
    EXPECT_EQ(m_Strip.GetText().GetSize(), (Size{420, 420}));
    EXPECT_EQ(m_Strip.GetText().GetTextAlign(), 0x21);
    EXPECT_TRUE(m_Strip.GetText().IsTransparent());
    EXPECT_TRUE(m_Strip.GetText().IsTextConverted());
    EXPECT_TRUE(m_Strip.IsTransparent());
}

TEST_F(ElementCaption, ItStartsInactiveInShadowWithTextInFaceColour)
{
    EXPECT_FALSE(m_Strip.IsActive());
    EXPECT_EQ(m_Strip.GetBkSysColor(), ISysPalette::scShadow);
    EXPECT_EQ(m_Strip.GetFgSysColor(), ISysPalette::scFace);
    EXPECT_EQ(m_Strip.GetText().GetBkSysColor(), ISysPalette::scShadow);
    EXPECT_EQ(m_Strip.GetText().GetFgSysColor(), ISysPalette::scFace);
}

TEST_F(ElementCaption, ItsHeightFollowsTheFont)
{
    EXPECT_EQ(m_Strip.GetSize().height, 8 + 3);
    EXPECT_EQ(m_Strip.GetContentOffset(), (Rect{3, 0, 1, 0}));
    EXPECT_EQ(m_Strip.GetText().GetPos(), (Rect{3, 0, 198, 11}));

    font large;
    large.size = 20;
    m_Strip.SetFont(large);
    EXPECT_EQ(m_Strip.GetSize().height, 20 + 7);  // 2.5 * 3
    EXPECT_EQ(m_Strip.GetContentOffset(), (Rect{6, 0, 2, 0}));
}

TEST_F(ElementCaption, WithoutAControlItsHeightIsAsAsked)
{
    CElementCaption alone(nullptr, {0, 30}, alTop);
    EXPECT_EQ(alone.GetSize().height, 30);
    EXPECT_EQ(alone.GetContentOffset(), (Rect{2, 2, 2, 2}));
    alone.ReParent(m_Host.Root(), true);
    EXPECT_EQ(alone.GetSize().height, 11);
}

TEST_F(ElementCaption, TheTextTurnsWithTheEdge)
{
    EXPECT_EQ(m_Strip.GetText().GetAlignment(), alTop);
    m_Strip.SetAlignment(alLeft);
    EXPECT_EQ(m_Strip.GetText().GetAlignment(), alLeft);
    EXPECT_EQ(m_Strip.GetText().GetAlong(1, 2), 2);
    m_Strip.SetAlignment(alClient);
    EXPECT_EQ(m_Strip.GetText().GetAlignment(), alLeft);
    CElementCaption right(m_Host.Root(), {20, 20}, alRight);
    EXPECT_EQ(right.GetText().GetAlignment(), alRight);
    CElementCaption none(m_Host.Root(), {20, 20}, alNone);
    EXPECT_EQ(none.GetText().GetAlignment(), alLeft);
}

TEST_F(ElementCaption, ActiveItAndItsChildrenHaveTheHighlight)
{
    auto* const more = new CVisualElement(&m_Strip, {5, 5}, alRight);
    m_Strip.SetActive(true);
    EXPECT_TRUE(m_Strip.IsActive());
    for (CVisualElement const* const each :
         {static_cast<CVisualElement*>(&m_Strip), more, static_cast<CVisualElement*>(&m_Strip.GetText()),
          static_cast<CVisualElement*>(&m_Strip.GetHelpButton())})
    {
        EXPECT_EQ(each->GetBkSysColor(), ISysPalette::scHighlight);
        EXPECT_EQ(each->GetFgSysColor(), ISysPalette::scHighlightText);
    }
    m_Strip.SetActive(false);
    EXPECT_FALSE(m_Strip.IsActive());
    EXPECT_EQ(more->GetBkSysColor(), ISysPalette::scShadow);
    EXPECT_EQ(more->GetFgSysColor(), ISysPalette::scFace);
}

TEST_F(ElementCaption, TheActiveLookIsRepainted)
{
    m_Strip.SetActive(true);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Strip.SetActive(false);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ElementCaption, IsActiveLooksAtTheColourAlone)
{
    m_Strip.SetBkColor(GetSysPalette()->GetColor(ISysPalette::scHighlight));
    EXPECT_TRUE(m_Strip.IsActive());
    m_Strip.SetActive(true);  // nothing to be done
    EXPECT_EQ(m_Strip.GetFgSysColor(), ISysPalette::scFace);
}

TEST_F(ElementCaption, OverABackgroundPictureItsTextIsWhite)
{
    ShowBkImage(m_Host, true);
    CElementCaption over(m_Host.Root(), {0, 20}, alTop);
    EXPECT_EQ(over.GetText().GetFgColor().m_Value, 0xFFFFFFu);
    over.SetActive(true);
    EXPECT_EQ(over.GetText().GetFgSysColor(), ISysPalette::scHighlightText);
    over.SetActive(false);
    EXPECT_EQ(over.GetFgColor().m_Value, 0xFFFFFFu);
    EXPECT_EQ(over.GetText().GetFgColor().m_Value, 0xFFFFFFu);
}

TEST_F(ElementCaption, ItIsFilledWithFortyHundredthsOfItsTextColour)
{
    m_Strip.SetBkColor(color_table[9]);
    m_Strip.GetText().SetFgColor(color_table[6]);  // red on white: 255 * 0.6 of green and blue
    EXPECT_THAT(m_Host.Paint().Of("strip"), Draws("SetBrush #FF9999").Then("FillRect 0 0 199 11"));
}

TEST_F(ElementCaption, OverABackgroundPictureItIsBlended)
{
    ShowBkImage(m_Host, true);
    m_Strip.SetBkColor(color_table[6]);
    EXPECT_THAT(m_Host.Paint().Of("strip"),
                Draws("DrawRasterPictureEx*").Then("picture SetBrush red").Then("AlphaBlend 200x12 0 0 199 11 100"));
    m_Strip.SetTransparent(false);
    EXPECT_THAT(m_Host.Paint().Of("strip"), Not(Draws("AlphaBlend*")));
}

TEST_F(ElementCaption, AHelpTopicShowsTheButtonAndNoneHidesIt)
{
    m_Strip.SetHelpId("topic");
    EXPECT_EQ(m_Strip.GetHelpId(), "topic");
    EXPECT_TRUE(m_Strip.GetHelpButton().IsVisible());
    m_Strip.SetHelpId("");
    EXPECT_FALSE(m_Strip.GetHelpButton().IsVisible());
}

TEST_F(ElementCaption, TheHelpButtonAsksForTheTopic)
{
    CSignalLog log(m_Host.Control().m_SigHelp, "help");
    m_Strip.SetHelpId("topic");
    m_Host.Paint();
    m_Host.Mouse().Click(m_Strip.GetHelpButton(), 8, 5);
    EXPECT_EQ(log.Text(), "help(\"topic\")");
    CElementCaption alone(nullptr, {0, 30}, alTop);
    alone.OnHelpButtonClick(nullptr);
}

TEST_F(ElementCaption, TheStripMayBeDeletedByItsHelpButton)
{
    auto const end = Listen(m_Host.Control().m_SigHelp, [&](CBaseControl*, std::string const&) { delete &m_Strip; });
    m_Strip.SetHelpId("topic");
    m_Host.Paint();
    m_Host.Mouse().Click(m_Strip.GetHelpButton(), 8, 5);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
}

TEST_F(ElementCaption, WithoutASystemPaletteItIsNotActive)
{
    CElementCaption strip(nullptr, {0, 20}, alTop);
    CScriptedSystem system;
    strip.SetBkColor(system.GetPalette()->GetColor(ISysPalette::scHighlight));
    EXPECT_TRUE(strip.IsActive());
    system.m_HasPalette = false;
    strip.SetBkColor(_color());
    EXPECT_FALSE(strip.IsActive());
    strip.SetBkColor(ISysPalette::scHighlight);
    EXPECT_FALSE(strip.IsActive());
}

TEST_F(ElementCaption, TheTextTakesTheColourThatFitsTheControlItComesTo)
{
    CElementCaption strip(nullptr, {0, 20}, alTop);
    EXPECT_EQ(strip.GetText().GetFgSysColor(), ISysPalette::scFace);
    ShowBkImage(m_Host, true);
    strip.ReParent(m_Host.Root(), true);
    EXPECT_EQ(strip.GetText().GetFgSysColor(), ISysPalette::scLiteral);
    EXPECT_EQ(strip.GetText().GetFgColor().m_Value, 0xFFFFFFu);
    EXPECT_EQ(strip.GetFgSysColor(), ISysPalette::scFace) << "the text's alone";
    CTestHost plain(200, 100);
    strip.ReParent(plain.Root(), true);
    EXPECT_EQ(strip.GetText().GetFgSysColor(), ISysPalette::scFace);
    strip.ReParent(nullptr, false);
}

TEST_F(ElementCaption, TheHelpButtonIsNeitherShownNorHiddenAgain)
{
    CSignalLog log(m_Strip.GetHelpButton().m_SigVisible, "visible");
    m_Strip.SetHelpId("a");
    m_Strip.SetHelpId("b");
    m_Strip.SetHelpId("");
    m_Strip.SetHelpId("");
    EXPECT_EQ(log.Text(), "visible(true) visible(false)");
}

TEST_F(ElementCaption, TheTopicIsKnownWhenTheHelpButtonShows)
{
    std::string topic;
    auto const ask =
        Listen(m_Strip.GetHelpButton().m_SigVisible, [&](CVisualElement*, bool) { topic = m_Strip.GetHelpId(); });
    m_Strip.SetHelpId("topic");
    EXPECT_EQ(topic, "topic");
}

TEST_F(ElementCaption, TheHelpButtonStandsAtTheRightAndTheTextHasTheRest)
{
    m_Strip.SetHelpId("topic");
    m_Host.Paint();
    EXPECT_EQ(m_Strip.GetHelpButton().GetPos(), (Rect{182, 0, 198, 11}));
    EXPECT_EQ(m_Strip.GetText().GetPos(), (Rect{3, 0, 181, 11}));
}

TEST_F(ElementCaption, EachByteOfTheMixIsTruncated)
{
    struct SCase
    {
        unsigned ground;
        unsigned text;
        char const* mixed;
    };
    // Red: 0 to 9 makes 3.6, 9 to 0 makes 5.4; green: 10 to 11 makes 10.4; blue: 200 to 100 makes 160.
    for (SCase const& each :
         {SCase{0xFFC80A00, 0xFF640B09, "SetBrush #030A*"}, SCase{0xFFC80A09, 0xFF640B00, "SetBrush #050A*"},
          SCase{0xFF000000, 0xFF010203, "SetBrush #010000"}})
    {
        m_Strip.SetBkColor(_color{each.ground, false});
        m_Strip.GetText().SetFgColor(_color{each.text, false});
        EXPECT_THAT(m_Host.Paint().Of("strip"), Draws(each.mixed).Then("FillRect 0 0 199 11"));
    }
}

TEST_F(ElementCaption, OpaqueItIsFilledAlsoOverABackgroundPicture)
{
    ShowBkImage(m_Host, true);
    m_Strip.SetTransparent(false);
    m_Strip.SetBkColor(color_table[9]);
    m_Strip.GetText().SetFgColor(color_table[6]);
    EXPECT_THAT(m_Host.Paint().Of("strip"), Draws("SetBrush #FF9999").Then("FillRect 0 0 199 11"));
}

TEST_F(ElementCaption, StripParentOrControlMayBeDeletedByTheHelpButton)
{
    for (char const* const victim : {"strip", "parent", "control"})
    {
        CTestHost host(200, 100);
        auto* const pane = new CVisualElement(host.Root(), {0, 0}, alClient);
        auto* const strip = new CElementCaption(pane, {0, 30}, alTop);
        strip->SetHelpId("topic");
        host.Paint();
        std::string const which = victim;
        auto const end = Listen(strip->GetHelpButton().m_Clicked, [&](CButton*) {
            if (which == "strip")
                delete strip;
            else if (which == "parent")
                delete pane;
            else
                host.DestroyControl();
        });
        host.Mouse().Press(strip->GetHelpButton(), 8, 5);
        host.Mouse().Release(190, 5);
        if (which == "control")
            EXPECT_FALSE(host.HasControl());
        else if (which == "parent")
            EXPECT_EQ(host.Root()->GetChildren()->GetCount(), 0);
        else
            EXPECT_EQ(pane->GetChildren()->GetCount(), 0);
    }
}

TEST_F(ElementCaption, TheControlMayBeDeletedByTheHelpThatIsAskedFor)
{
    auto const end =
        Listen(m_Host.Control().m_SigHelp, [&](CBaseControl*, std::string const&) { m_Host.DestroyControl(); });
    m_Strip.SetHelpId("topic");
    m_Host.Paint();
    m_Host.Mouse().Click(m_Strip.GetHelpButton(), 8, 5);
    EXPECT_FALSE(m_Host.HasControl());
}

TEST_F(ElementCaption, TheTopicOutlivesAStripThatIsDeletedByTheHelp)
{
    std::string heard;
    auto const end = Listen(m_Host.Control().m_SigHelp, [&](CBaseControl*, std::string const&) { delete &m_Strip; });
    auto const late =
        Listen(m_Host.Control().m_SigHelp, [&](CBaseControl*, std::string const& topic) { heard = topic; });
    m_Strip.SetHelpId("a topic that is longer than any small buffer");
    m_Host.Paint();
    m_Host.Mouse().Click(m_Strip.GetHelpButton(), 8, 5);
    EXPECT_EQ(heard, "a topic that is longer than any small buffer");
}

TEST_F(ElementCaption, ItsPartsAreMadeForTheRightAndTheLeft)
{
    CElementCaption none(nullptr, {20, 20}, alNone);
    EXPECT_EQ(none.GetHelpButton().GetAlignment(), alRight);
    EXPECT_EQ(none.GetText().GetAlignment(), alLeft);
    EXPECT_EQ(none.GetText().GetAlong(1, 2), 2) << "so its text runs downward";
}

TEST_F(ElementCaption, TheStripMayBeDeletedAsItsHelpButtonShows)
{
    auto const end = Listen(m_Strip.GetHelpButton().m_SigVisible, [&](CVisualElement*, bool) { delete &m_Strip; });
    m_Strip.SetHelpId("topic");
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
}

// Control captions --------------------------------------------------------------------------------------------------------

namespace
{

// A strip at (0, 0, 199, 11): the arrow at (180, 0, 198, 11), the text before it. Below it another element.
class ControlCaption : public testing::Test
{
protected:
    ControlCaption() { m_Host.Paint(); }

    CTestHost m_Host{200, 100};
    CControlCaption& m_Strip = *new CControlCaption(m_Host.Root(), {0, 30}, alTop);
    CVisualElement& m_Below = *new CVisualElement(m_Host.Root(), {0, 0}, alClient);
};

}  // namespace

TEST_F(ControlCaption, TheArrowIsTheFirstChildFlatDrawnByUsAndWithoutFocus)
{
    CArrowButton const& arrow = m_Strip.GetArrow();
    EXPECT_EQ(m_Strip.GetChildren()->GetItem(0), &arrow);
    EXPECT_FALSE(arrow.IsDynamic());
    EXPECT_FALSE(arrow.IsNativeDrawing());
    EXPECT_EQ(arrow.GetStyle(), CButton::BorderFlat);
    EXPECT_EQ(arrow.GetBkSysColor(), ISysPalette::scShadow);
    EXPECT_EQ(arrow.GetFgSysColor(), ISysPalette::scFace);
    EXPECT_FALSE(arrow.GetCanHaveFocus());
    EXPECT_EQ(arrow.GetPos(), (Rect{180, 0, 198, 11}));
}

TEST_F(ControlCaption, PlaceAndDirectionOfTheArrowGoByTheEdge)
{
    struct SCase
    {
        Alignment edge;
        Alignment arrow;
        int type;
    };
    for (SCase const& each :
         {SCase{alLeft, alTop, 2}, SCase{alRight, alTop, 0}, SCase{alTop, alRight, 1}, SCase{alBottom, alRight, 3}})
    {
        CControlCaption strip(m_Host.Root(), {20, 20}, each.edge);
        EXPECT_EQ(strip.GetArrow().GetAlignment(), each.arrow) << each.edge;
        EXPECT_EQ(strip.GetArrow().GetArrowType(), each.type) << each.edge;
    }
}

TEST_F(ControlCaption, WhenItIsDockedElsewhereTheArrowGoesByTheEdgeBefore)
{
    m_Strip.SetAlignment(alLeft);
    EXPECT_EQ(m_Strip.GetAlignment(), alLeft);
    EXPECT_EQ(m_Strip.GetText().GetAlignment(), alLeft);
    EXPECT_EQ(m_Strip.GetArrow().GetArrowType(), CArrowButton::ArrowTop);
    m_Strip.SetAlignment(alBottom);
    EXPECT_EQ(m_Strip.GetArrow().GetArrowType(), CArrowButton::ArrowRight);
    m_Strip.Layout();
    EXPECT_EQ(m_Strip.GetArrow().GetArrowType(), CArrowButton::ArrowBottom);
    m_Strip.SetAlignment(alClient);
    m_Strip.Layout();
    EXPECT_EQ(m_Strip.GetArrow().GetArrowType(), CArrowButton::ArrowBottom);
}

TEST_F(ControlCaption, ALeftClickAnywhereOnTheStripTells)
{
    CSignalLog log(m_Strip.m_Clicked, "clicked");
    m_Host.Mouse().Click(m_Strip.GetText(), 5, 5);
    EXPECT_EQ(log.Take(), "clicked()");
    m_Host.Mouse().Click(m_Strip.GetArrow(), 5, 5);
    EXPECT_EQ(log.Take(), "clicked()");
    m_Host.Mouse().Click(m_Strip, 1, 5);
    EXPECT_EQ(log.Take(), "clicked()");
    m_Host.Mouse().Click(m_Strip, 1, 5, mbRight);
    EXPECT_EQ(log.Take(), "");
}

TEST_F(ControlCaption, TheStripLightsUpWhileThePointerIsOnIt)
{
    m_Host.Mouse().Move(m_Strip.GetText(), 5, 5);
    EXPECT_TRUE(m_Strip.IsActive());
    EXPECT_EQ(m_Strip.GetArrow().GetStyle(), CButton::BorderRaised);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Host.Mouse().Move(m_Below, 5, 20);
    EXPECT_FALSE(m_Strip.IsActive());
    EXPECT_EQ(m_Strip.GetArrow().GetStyle(), CButton::BorderFlat);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ControlCaption, MovingBetweenItsChildrenDoesNotToggleTheLook)
{
    class CCounting : public CControlCaption
    {
    public:
        using CControlCaption::CControlCaption;
        void SetActive(bool active) override
        {
            m_Calls += active ? "+" : "-";
            CControlCaption::SetActive(active);
        }
        std::string m_Calls;
    };
    CCounting strip(m_Host.Root(), {0, 20}, alTop);
    m_Host.Paint();
    m_Host.Mouse().Move(strip.GetText(), 5, 5);
    m_Host.Mouse().Move(strip.GetArrow(), 5, 5);
    m_Host.Mouse().Move(strip, 1, 5);
    m_Host.Mouse().Move(strip.GetText(), 5, 5);
    EXPECT_EQ(strip.m_Calls, "+");
    m_Host.Mouse().Leave();
    EXPECT_EQ(strip.m_Calls, "+-");
}

TEST_F(ControlCaption, TheStripMayBeDeletedInItsClick)
{
    auto const end = Listen(m_Strip.m_Clicked, [&](CControlCaption* strip) { delete strip; });
    m_Host.Mouse().Click(m_Strip.GetArrow(), 5, 5);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
}

TEST_F(ControlCaption, TheArrowStartsAtTheTopPointingLeftWithoutAnEdge)
{
    CControlCaption strip(nullptr, {20, 20}, alNone);
    EXPECT_EQ(strip.GetArrow().GetSize(), (Size{18, 18}));
    EXPECT_EQ(strip.GetArrow().GetAlignment(), alTop);
    EXPECT_EQ(strip.GetArrow().GetArrowType(), CArrowButton::ArrowLeft);
    EXPECT_EQ(strip.GetChildren()->GetCount(), 3);
}

TEST_F(ControlCaption, OnlyAPointerFromOutsideLightsItUp)
{
    m_Strip.HandleChildrenMouseHover(&m_Strip.GetText());
    m_Strip.HandleChildrenMouseHover(&m_Strip);
    EXPECT_FALSE(m_Strip.IsActive());
    m_Strip.HandleChildrenMouseHover(&m_Below);
    EXPECT_TRUE(m_Strip.IsActive());
    m_Strip.HandleChildrenMouseLeave(&m_Strip.GetArrow());
    m_Strip.HandleChildrenMouseLeave(&m_Strip);
    EXPECT_TRUE(m_Strip.IsActive());
    m_Strip.HandleChildrenMouseLeave(nullptr);
    EXPECT_FALSE(m_Strip.IsActive());
    m_Strip.HandleChildrenMouseHover(nullptr);
    EXPECT_TRUE(m_Strip.IsActive());
}

TEST_F(ControlCaption, TheArrowIsRaisedAlsoWhereTheColourIsAlreadyThatOfAnActiveStrip)
{
    m_Strip.SetBkColor(ISysPalette::scHighlight);
    m_Strip.SetActive(true);
    EXPECT_EQ(m_Strip.GetArrow().GetStyle(), CButton::BorderRaised);
    EXPECT_EQ(m_Strip.GetArrow().GetBkSysColor(), ISysPalette::scShadow);
}

TEST_F(ControlCaption, TheTextTurnsWithTheNewEdge)
{
    m_Strip.SetAlignment(alRight);
    EXPECT_EQ(m_Strip.GetText().GetAlignment(), alRight);
    m_Strip.SetAlignment(alNone);
    EXPECT_EQ(m_Strip.GetAlignment(), alNone);
    EXPECT_EQ(m_Strip.GetText().GetAlignment(), alRight);
}

TEST_F(ControlCaption, ParentOrControlMayBeDeletedInItsClick)
{
    for (bool const control : {false, true})
    {
        CTestHost host(200, 100);
        auto* const pane = new CVisualElement(host.Root(), {0, 0}, alClient);
        auto* const strip = new CControlCaption(pane, {0, 30}, alTop);
        host.Paint();
        auto const end = Listen(strip->m_Clicked, [&](CControlCaption*) {
            if (control)
                host.DestroyControl();
            else
                delete pane;
        });
        host.Mouse().Press(strip->GetText(), 5, 5);
        host.Mouse().Release(8, 5);
        EXPECT_EQ(host.HasControl(), !control);
        EXPECT_TRUE(control || host.Root()->GetChildren()->GetCount() == 0);
    }
}

TEST_F(ControlCaption, TheStripMayBeDeletedAsThePointerComesAndGoes)
{
    {
        auto const end = Listen(m_Strip.GetText().m_SigMouseHover, [&](CVisualElement*) { delete &m_Strip; });
        m_Host.Mouse().Move(m_Strip.GetText(), 5, 5);
        EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
    }
    auto* const next = new CControlCaption(m_Host.Root(), {0, 30}, alTop);
    m_Host.Paint();
    auto const end = Listen(next->GetArrow().m_SigMouseLeave, [&](CVisualElement*) { delete next; });
    m_Host.Mouse().Move(next->GetArrow(), 5, 5);
    m_Host.Mouse().Move(m_Below, 5, 20);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
}

// Caption buttons ---------------------------------------------------------------------------------------------------------

namespace
{

class CaptionButton : public testing::Test
{
protected:
    CaptionButton()
    {
        m_Host.Control().SetImageList(&m_Images);
        NameElement(m_Button, "button");
        m_Pane.SetBkColor(color_table[6]);
        m_Button.SetNormalImage(0);
        m_Host.Paint();
        m_Images.Take();
    }
    ~CaptionButton() override
    {
        m_Host.Control().SetImageList(nullptr);
        ShowBkImage(m_Host, false);
    }

    CTestImages m_Images{{{16, 16}, {8, 8}}};
    CTestHost m_Host{60, 40};
    CVisualElement& m_Pane = *new CVisualElement(m_Host.Root(), {0, 0}, alClient);
    CCaptionButton& m_Button = *new CCaptionButton(&m_Pane, {14, 14}, alLeft);  // (0, 0, 16, 39)
};

}  // namespace

TEST_F(CaptionButton, ItIsTransparentAndTakesNoFocus)
{
    EXPECT_TRUE(m_Button.IsTransparent());
    EXPECT_FALSE(m_Button.GetCanHaveFocus());
    EXPECT_EQ(m_Button.GetContentRect(), (Rect{0, 11, 15, 26}));
}

TEST_F(CaptionButton, UnderThePointerItsGroundIsWhiteWithALittleOfTheParent)
{
    m_Host.Mouse().Move(m_Button, 8, 18);
    // 95 parts of 255 on the way from white to red: green and blue come out just below 160 in single precision.
    EXPECT_THAT(m_Host.Paint().Of("button"), Draws("SetBrush #FF9F9F").Then("FillRect 0 11 15 26"));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 11");
}

TEST_F(CaptionButton, PressedItsGroundIsMoreOfTheParent)
{
    m_Button.SetPressedImage(1);
    m_Host.Mouse().Press(m_Button, 8, 18);
    EXPECT_THAT(m_Host.Paint().Of("button"), Draws("SetBrush #FF2727").Then("FillRect 0 11 15 26"));
    EXPECT_EQ(m_Images.Take(), "draw 1 at 4 15");
}

TEST_F(CaptionButton, AtRestItHasNoGround)
{
    m_Button.Update(utElement);
    EXPECT_EQ(m_Host.Paint().Of("button").Count("FillRect*"), 0);
}

TEST_F(CaptionButton, OverABackgroundPictureTheParentsColourIsBlended)
{
    ShowBkImage(m_Host, true);
    m_Host.Mouse().Move(m_Button, 8, 18);
    EXPECT_THAT(m_Host.Paint().Of("button"),
                Draws("DrawRasterPictureEx*").Then("picture SetBrush red").Then("AlphaBlend 16x16 0 11 15 26 160"));
}

TEST_F(CaptionButton, WithoutAParentThereIsNoGround)
{
    CCaptionButton alone(nullptr, {14, 14}, alNone);
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.SetBrush({color_table[4], brush::bsSolid});
    alone.DrawBk(&painter, 40);
    EXPECT_EQ(painter.GetBrush().color, color_table[4]);
}

TEST_F(CaptionButton, TheHelpButtonHasThreePicturesOfSixteenBySixteenWithSeeThroughCorners)
{
    CHelpButton help(&m_Pane, {14, 14}, alRight);
    EXPECT_EQ(help.GetSize(), (Size{16, 16}));
    for (CImageHolder const* const each :
         {&help.GetNormalImage(), &help.GetHighlightedImage(), &help.GetPressedImage()})
    {
        EXPECT_EQ(each->GetSize(nullptr), (Size{16, 16}));
        EXPECT_TRUE(each->m_Xpm.GetPixel(0, 0).m_None);
        EXPECT_FALSE(each->m_Xpm.GetPixel(7, 7).m_None);
    }
}

TEST_F(CaptionButton, TheHelpButtonsPicturesHaveSevenThreeAndThreeColoursWithTheTransparentOne)
{
    CHelpButton help(&m_Pane, {14, 14}, alRight);
    auto const count = [](CImageHolder const& image) {
        std::set<std::pair<unsigned, bool>> colors;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x)
            {
                _color const color = image.m_Xpm.GetPixel(x, y);
                colors.insert({color.m_None ? 0 : color.m_Value, color.m_None});
            }
        return colors.size();
    };
    EXPECT_EQ(count(help.GetNormalImage()), 7u);
    EXPECT_EQ(count(help.GetHighlightedImage()), 3u);
    EXPECT_EQ(count(help.GetPressedImage()), 3u);
}
