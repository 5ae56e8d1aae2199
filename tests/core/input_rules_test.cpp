// Input at the edges of the rules: focus by press, tab walks, tips that are tracked, menus, delegates.

#include "tests/support/hearing_element.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/base_control_imp.h"
#include "vexel/core/context_menu.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// box (10, 0, 89, 59) > (one (0, 0, 20, 59), two (21, 0, 41, 59), three (42, 0, 62, 59))
class InputRules : public testing::Test
{
protected:
    InputRules() { m_Host.Paint(); }
    IControl& Control() { return *m_Host.Control().GetControl(); }
    CBaseControlImp& Imp() { return static_cast<CBaseControlImp&>(Control()); }
    void AllCanHaveFocus()
    {
        for (CHearing* element : {&m_One, &m_Two, &m_Three})
            element->SetCanHaveFocus(true);
    }

    CTestHost m_Host{100, 60};
    CSignalLog m_Log;
    CVisualElement& m_Margin = *new CVisualElement(m_Host.Root(), {9, 0}, alLeft);
    CHearing& m_Box = *new CHearing(m_Log, "box", m_Host.Root(), {79, 0}, alLeft);
    CHearing& m_One = *new CHearing(m_Log, "one", &m_Box, {20, 0}, alLeft);
    CHearing& m_Two = *new CHearing(m_Log, "two", &m_Box, {20, 0}, alLeft);
    CHearing& m_Three = *new CHearing(m_Log, "three", &m_Box, {20, 0}, alLeft);
};

}  // namespace

// Mouse -------------------------------------------------------------------------------------------------------------------------

TEST_F(InputRules, APressOnAChildThatCannotHaveTheFocusDoesNotGiveItToTheParent)
{
    m_Box.SetCanHaveFocus(true);

    m_Host.Mouse().Press(m_One, 3, 3);
    EXPECT_EQ(Control().GetFocusedElement(), nullptr);
    m_Host.Mouse().Release();

    m_Host.Mouse().Press(m_Box, 70, 3);
    EXPECT_EQ(Control().GetFocusedElement(), &m_Box);
}

TEST_F(InputRules, APressThatComesWithoutAMoveFindsTheElementUnderThePointer)
{
    m_One.HearMouse();
    CMouseEvent press(12, 5, ksLeft, mbLeft);

    m_Host.Control().OnButtonDown(&press);

    EXPECT_EQ(Control().GetMouseElement(), &m_One);
    EXPECT_EQ(m_Log.Text(), "one.down(2, 5, 1, 1) one:Down box:Down");
}

TEST_F(InputRules, AConsumedReleaseAndAnotherOneUnpressTheElement)
{
    m_Host.Mouse().Press(m_One, 3, 3);
    EXPECT_TRUE(m_One.IsPressed());
    EXPECT_TRUE(m_Box.IsPressed());

    m_Host.Mouse().Release();

    EXPECT_FALSE(m_One.IsPressed());
    EXPECT_FALSE(m_Box.IsPressed());
}

TEST_F(InputRules, ADisabledElementTakesNeitherTheReleaseNorTheDoubleClickNorTheWheel)
{
    m_One.HearMouse();
    m_One.SetEnabled(false);
    m_Host.Mouse().DoubleClick(m_One, 3, 3);
    m_Host.Mouse().Wheel(m_One, 3, 3, 1);

    EXPECT_EQ(m_Log.Text().find("one"), std::string::npos);
    EXPECT_NE(m_Log.Text().find("box:Wheel"), std::string::npos);
    EXPECT_NE(m_Log.Text().find("box:Double"), std::string::npos);
}

TEST_F(InputRules, ADisabledRootTakesNoWheel)
{
    m_Host.Root()->SetEnabled(false);
    CSignalLog log(m_Host.Root()->m_SigWheel, "wheel");

    m_Host.Mouse().Wheel(m_One, 3, 3, 1);

    EXPECT_EQ(log.Count(), 0);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(InputRules, GoingOverToADisabledElementPutsTheCursorBack)
{
    m_One.SetCursor(7);
    m_Two.SetCursor(9);
    m_Two.SetEnabled(false);
    m_Host.Mouse().Move(m_One, 3, 3);
    EXPECT_EQ(m_Host.Window().GetCursor(), 7);

    m_Host.Mouse().Move(m_Two, 3, 3);

    EXPECT_EQ(m_Host.Window().GetCursor(), 1);
    EXPECT_TRUE(m_Host.Window().IsTracking());
}

TEST_F(InputRules, TheCursorIsPutBackAlsoWhereNobodyIsUnderThePointerAfterwards)
{
    auto const leave = Listen(m_One.m_SigMouseLeave, [&](CVisualElement*) { m_Host.Window().SetCursor(12); });
    m_Host.Mouse().Move(m_One, 3, 3);

    m_Host.Mouse().Leave();

    EXPECT_EQ(Control().GetMouseElement(), nullptr);
    EXPECT_EQ(m_Host.Window().GetCursor(), 1);
}

// Focus -------------------------------------------------------------------------------------------------------------------------

TEST_F(InputRules, TabIntoAWindowWithoutNativeFocusStartsAnew)
{
    AllCanHaveFocus();
    m_Three.SetFocus(false);
    CKeyboardEvent tab(0, vkTab);

    m_Host.Control().OnKeyDown(&tab);

    EXPECT_TRUE(m_Host.Window().HasFocus());
    EXPECT_EQ(Control().GetFocusedElement(), &m_Two);  // the first one came with the native focus
    EXPECT_FALSE(tab.m_PassOn);
}

TEST_F(InputRules, TheElementThatIsBeingFocusedIsKnownFromTheStart)
{
    AllCanHaveFocus();
    m_One.SetFocus(false);
    CVisualElement* coming = nullptr;
    auto const lost = Listen(m_One.m_SigLostFocus, [&](CVisualElement*) { coming = Control().GetFocussingElement(); });

    m_Two.SetFocus(false);

    EXPECT_EQ(coming, &m_Two);
}

TEST_F(InputRules, AFocusedElementThatIsDisabledMeanwhileIsNotAskedToHandTheFocusOn)
{
    m_One.HearFocus();
    m_Host.Focus();
    m_One.SetFocus(true);
    m_One.SetEnabled(false);
    m_Log.Clear();

    m_One.SetFocus(true);

    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(InputRules, NoElementSaysOfItselfThatItsControlIsFocused)
{
    class CWidget : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        bool IsControlFocused() const override { return true; }
    };
    EXPECT_FALSE(m_Host.Root()->IsControlFocused());
    EXPECT_FALSE(m_One.IsControlFocused());
    auto& widget = *new CWidget(m_Host.Root(), {5, 5}, alLeft);
    auto& part = *new CVisualElement(&widget, {5, 5}, alLeft);

    EXPECT_TRUE(part.IsControlFocused());
}

TEST_F(InputRules, ATabThatFindsNobodyStaysOnTheElementEvenInAContainer)
{
    m_Two.SetCanHaveFocus(true);
    m_Box.HearFocusOfChildren();
    m_Host.Focus();
    m_Two.SetFocus(true);
    m_Log.Clear();

    m_Host.Keyboard().Down(vkTab);
    m_Host.Keyboard().Down(vkTab, ksShift);

    EXPECT_EQ(Control().GetFocusedElement(), &m_Two);
    EXPECT_EQ(m_Log.Text().find("Focus"), std::string::npos);
}

TEST_F(InputRules, TheWalkIntoAContainerPassesOverHiddenAndDisabledOnesInside)
{
    auto& hidden = *new CVisualElement(&m_One, {5, 5}, alTop);
    auto& inHidden = *new CVisualElement(&hidden, {5, 5}, alTop);
    auto& disabled = *new CVisualElement(&m_Three, {5, 5}, alTop);
    auto& inDisabled = *new CVisualElement(&disabled, {5, 5}, alTop);
    inHidden.SetCanHaveFocus(true);
    inDisabled.SetCanHaveFocus(true);
    hidden.SetVisible(false);
    disabled.SetEnabled(false);
    m_Two.SetCanHaveFocus(true);

    EXPECT_EQ(m_Box.GetFirstTabElement(), &m_Two);
    EXPECT_EQ(m_Box.GetLastTabElement(), &m_Two);
    EXPECT_EQ(m_Box.GetNextTabElement(&m_Two), &m_Two);
    EXPECT_EQ(m_Box.GetPrevTabElement(&m_Two), &m_Two);
}

TEST_F(InputRules, AContainerThatAnswersTheStartOfTheWalkIsPassedOver)
{
    class CRing : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        CVisualElement* GetFirstTabElement() override { return m_Answer; }
        CVisualElement* GetLastTabElement() override { return m_Answer; }
        CVisualElement* m_Answer = nullptr;
    };
    auto& parent = *new CVisualElement(m_Host.Root(), {20, 0}, alLeft);
    auto& before = *new CRing(&parent, {5, 5}, alTop);
    auto& start = *new CRing(&parent, {5, 5}, alTop);
    auto& behind = *new CRing(&parent, {5, 5}, alTop);
    auto& last = *new CVisualElement(&parent, {5, 5}, alTop);
    for (CRing* ring : {&before, &start, &behind})
        ring->m_Answer = &start;
    start.SetCanHaveFocus(true);
    last.SetCanHaveFocus(true);

    EXPECT_EQ(parent.GetNextTabElement(&start), &last);
    EXPECT_EQ(parent.GetPrevTabElement(&last), &start);
    behind.m_Answer = nullptr;
    EXPECT_EQ(parent.GetPrevTabElement(&start), &start);
}

TEST_F(InputRules, TheFirstElementIsTheRootIfItCanHaveTheFocusTheLastOneNever)
{
    AllCanHaveFocus();
    EXPECT_EQ(Imp().GetFirstElement(), &m_One);
    m_Host.Root()->SetCanHaveFocus(true);

    EXPECT_EQ(Imp().GetFirstElement(), m_Host.Root());
    EXPECT_EQ(Imp().GetLastElement(), &m_Three);
}

TEST_F(InputRules, TheNextAndThePreviousElementAreThoseOfTheWalk)
{
    AllCanHaveFocus();
    EXPECT_EQ(Imp().GetNextElement(&m_One), &m_Two);
    EXPECT_EQ(Imp().GetPrevElement(&m_Three), &m_Two);
    EXPECT_EQ(Imp().GetNextElement(nullptr), nullptr);
    EXPECT_EQ(Imp().GetPrevElement(nullptr), nullptr);
    EXPECT_EQ(Imp().GetNextElement(m_Host.Root()), m_Host.Root());
    Control().SetTabHandler(&m_One);
    EXPECT_EQ(Imp().GetNextElement(&m_One), &m_Two);

    Control().SetTabHandler(nullptr);
    m_Host.Control().SetContent(nullptr);
    CVisualElement alone(nullptr, {5, 5}, alNone);
    EXPECT_EQ(Imp().GetNextElement(&alone), &alone);
    EXPECT_EQ(Imp().GetPrevElement(&alone), &alone);
}

TEST_F(InputRules, ARootMayWalkOnFromItself)
{
    class CRoot : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        CVisualElement* GetNextTabElement(CVisualElement*) override { return m_Inner; }
        CVisualElement* m_Inner = new CVisualElement(this, {5, 5}, alTop);
    };
    auto& root = *new CRoot(nullptr, {0, 0}, alClient);
    m_Host.Control().SetContent(&root);
    root.SetCanHaveFocus(true);
    root.m_Inner->SetCanHaveFocus(true);
    m_Host.Focus();
    ASSERT_EQ(Control().GetFocusedElement(), &root);

    m_Host.Keyboard().Down(vkTab);

    EXPECT_EQ(Control().GetFocusedElement(), root.m_Inner);
}

TEST_F(InputRules, ShiftTabWithoutAFocusedElementGoesToTheLastOne)
{
    AllCanHaveFocus();
    for (CHearing* element : {&m_One, &m_Two, &m_Three})
        element->SetEnabled(false);
    m_Host.Focus();
    for (CHearing* element : {&m_One, &m_Two, &m_Three})
        element->SetEnabled(true);
    ASSERT_EQ(Control().GetFocusedElement(), nullptr);

    m_Host.Keyboard().Down(vkTab, ksShift);

    EXPECT_EQ(Control().GetFocusedElement(), &m_Three);
}

TEST_F(InputRules, TheFocusThatComesInByTabIsTellingOfItself)
{
    AllCanHaveFocus();
    bool byTab = false;
    auto const got = Listen(m_Three.m_SigGetFocus, [&](CVisualElement*) { byTab = Control().IsTabKeyProcessing(); });

    m_Host.Control().OnCustomEvent(new CCustomEvent(CCustomEvent::ceLastTabElement));

    EXPECT_TRUE(byTab);
    EXPECT_FALSE(Control().IsTabKeyProcessing());
    EXPECT_EQ(Control().GetFocusedElement(), &m_Three);
}

TEST_F(InputRules, ACustomEventOfAnotherKindChangesNothing)
{
    AllCanHaveFocus();

    m_Host.Control().OnCustomEvent(new CCustomEvent(2));

    EXPECT_EQ(Control().GetFocusedElement(), nullptr);
}

TEST_F(InputRules, AKeyThatAChildConsumedCountsAsConsumedAtTheRoot)
{
    m_One.SetCanHaveFocus(true);
    m_One.SetFocus(false);
    m_One.m_Consumes = {"KeyDown"};
    m_Host.Root()->SetEnabled(false);
    CKeyboardEvent key(0, vkReturn);

    m_Host.Control().OnKeyDown(&key);

    EXPECT_FALSE(key.IsContinue());
    EXPECT_EQ(m_Log.Text(), "one:KeyDown");
}

TEST_F(InputRules, ADelegateBelowAChildIsAskedOnceAndItsOwnerToo)
{
    auto& deep = *new CHearing(m_Log, "deep", &m_One, {5, 5}, alTop);
    m_Box.SetKeyDelegate(&deep);
    m_Box.SetCanHaveFocus(true);
    m_Box.SetFocus(false);

    m_Host.Keyboard().Down(vkReturn);

    EXPECT_EQ(m_Log.Text(), "deep:KeyDown one:KeyDown box:KeyDown");
}

// Tips and menus ----------------------------------------------------------------------------------------------------------------

TEST_F(InputRules, ATipIsMultilineIfItsElementSaysSo)
{
    m_One.SetTooltip("a\nb");
    m_One.SetTooltipMultiline(true);
    m_Host.Mouse().Move(m_One, 3, 3);
    CTooltipEvent event;
    event.m_X = 13;
    event.m_Y = 3;

    m_Host.Control().OnTooltip(&event);

    EXPECT_TRUE(event.m_Multiline);
    EXPECT_EQ(event.m_HotRect, (rectangle<int>{10, 0, 30, 59}));
}

TEST_F(InputRules, TheRectanglesOfATipAreSortedAndConverted)
{
    class CTip : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        bool HandleOnTooltip(CTooltipEvent* event) override
        {
            event->m_BoundsRect = {1, 2, 3, 4};
            return true;
        }
    };
    auto& tip = *new CTip(&m_One, {10, 10}, alTop);  // (0, 0, 20, 10) of one, (10, 0, 30, 10) of the control
    m_Host.Paint();
    CTooltipEvent event;
    EXPECT_TRUE(tip.ProcessTooltip(&event));
    EXPECT_EQ(event.m_BoundsRect, (rectangle<int>{11, 2, 13, 4}));
    EXPECT_EQ(event.m_HotRect, rectangle<int>());

    auto& turned = *new CVisualElement(m_Host.Root(), {0, 0}, alNone);
    turned.SetPos({60, 30, 50, 20}, false);
    turned.SetTooltip("turned");
    EXPECT_TRUE(turned.ProcessTooltip(&event));
    EXPECT_EQ(event.m_HotRect, (rectangle<int>{50, 20, 60, 30}));
}

TEST_F(InputRules, TrackingATipGoesUpUntilOneAnswersOrIsDisabled)
{
    std::string told;
    auto const note = [&](CVisualElement* element, CTooltipEvent* event) {
        told += ElementName(element) + "(" + std::to_string(event->m_X) + "," + std::to_string(event->m_Y) + ") ";
    };
    NameElement(*m_Host.Root(), "root");
    auto const one = Listen(m_One.m_SigTooltipTrack, note);
    auto const box = Listen(m_Box.m_SigTooltipTrack, note);
    auto const root = Listen(m_Host.Root()->m_SigTooltipTrack, note);
    auto const track = [&] {
        CTooltipEvent event;
        event.m_X = 3;
        event.m_Y = 4;
        m_One.ProcessTooltipTrack(&event);
        return std::exchange(told, "");
    };
    EXPECT_EQ(track(), "one(3,4) box(3,4) root(13,4) ");

    m_Box.SetEnabled(false);
    EXPECT_EQ(track(), "one(3,4) ");

    m_One.SetEnabled(false);
    EXPECT_EQ(track(), "");
}

TEST_F(InputRules, WithoutAnElementUnderThePointerTheRootShowsItsMenu)
{
    class CMenu : public IContextMenu
    {
    public:
        void Show(int x, int y, CVisualElement* element) override
        {
            m_Shown = std::to_string(x) + "," + std::to_string(y);
            m_For = element;
        }
        std::string m_Shown;
        CVisualElement* m_For = nullptr;
    } menu;
    m_Host.Root()->SetContextMenu(&menu);
    CContextMenuEvent event(7, 8);

    m_Host.Control().OnContextMenu(&event);

    EXPECT_EQ(menu.m_Shown, "7,8");
    EXPECT_EQ(menu.m_For, m_Host.Root());
}

TEST_F(InputRules, NewSystemColoursReachTheElementBeforeItsAttributesChange)
{
    class CColours : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        std::string m_Told;

    protected:
        void SysColorsChanged() override { m_Told += "colours "; }
        void AttributeChanged() override { m_Told += "attributes "; }
    } element(nullptr, {5, 5}, alNone);

    element.ProcessSysColorChanged();

    EXPECT_EQ(element.m_Told, "colours attributes ");
}
