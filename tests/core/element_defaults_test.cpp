// What an element is before anybody has told it anything.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"
#include "vexel/core/dpi.h"
#include "vexel/core/visual_element.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace vexel;

namespace
{

// Opens what only subclasses see.
class COpenElement : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
};

TEST(ElementDefaults, ItStandsNowhereAndNothingOfItIsPainted)
{
    CScriptedSystem system;
    CVisualElement element(nullptr, {30, 20}, alTop);

    EXPECT_EQ(element.GetPos(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(element.GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(element.GetBounds(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(element.GetContentRect(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(element.GetSize(), (size<int>{30, 20}));
    EXPECT_EQ(element.GetAlignment(), alTop);
}

TEST(ElementDefaults, ItIsVisibleEnabledAndAlone)
{
    CScriptedSystem system;
    CVisualElement element(nullptr, {30, 20}, alNone);

    EXPECT_TRUE(element.IsVisible());
    EXPECT_TRUE(element.IsDisplayable());
    EXPECT_TRUE(element.IsEnabled());
    EXPECT_EQ(element.GetCursor(), 1);
    EXPECT_EQ(element.GetControl(), nullptr);
    EXPECT_EQ(element.GetParent(), nullptr);
    ASSERT_NE(element.GetChildren(), nullptr);
    EXPECT_EQ(element.GetChildren()->GetCount(), 0);
    EXPECT_FALSE(element.IsPressed());
}

TEST(ElementDefaults, ItWantsNoFocusAndHasNoTooltipMenuIdOrHelp)
{
    CScriptedSystem system;
    CVisualElement element(nullptr, {30, 20}, alNone);

    EXPECT_FALSE(element.GetCanHaveFocus());
    EXPECT_EQ(element.GetKeyDelegate(), nullptr);
    EXPECT_EQ(element.GetTooltip(), "");
    EXPECT_FALSE(element.IsTooltipMultiline());
    EXPECT_EQ(element.GetContextMenu(), nullptr);
    EXPECT_EQ(element.GetId(), 0ul);
    EXPECT_EQ(element.GetHelpId(), "");
}

TEST(ElementDefaults, ItsFontSetsNothing)
{
    CScriptedSystem system;
    CVisualElement element(nullptr, {30, 20}, alNone);

    font const own = element.GetOwnFont();
    EXPECT_EQ(own.name, "");
    EXPECT_EQ(own.family, 4);
    EXPECT_EQ(own.size, 0);
    EXPECT_EQ(own.style, 0);
    EXPECT_EQ(own.rotation, 0);
    EXPECT_EQ(own.factor, 1.0);
}

TEST(ElementDefaults, ItsColoursAreThoseOfTheSystemForFacesAndTheirText)
{
    CScriptedSystem system;
    CVisualElement element(nullptr, {30, 20}, alNone);

    EXPECT_EQ(element.GetBkSysColor(), 3);
    EXPECT_EQ(element.GetFgSysColor(), 8);
    EXPECT_EQ(element.GetBkColor(), _color(0xFF000003));
    EXPECT_EQ(element.GetFgColor(), _color(0xFF000008));
}

TEST(ElementDefaults, ItsOverridableQueriesAnswerNo)
{
    CScriptedSystem system;
    COpenElement element(nullptr, {30, 20}, alNone);
    vexel_ptr<IRasterPicture> picture;
    _color color;
    rectangle<int> placement;

    EXPECT_FALSE(element.IsTransparent());
    EXPECT_TRUE(element.GetDrawBounds().IsZero());
    EXPECT_FALSE(element.IsCopyToClipboardEnabled());
    EXPECT_EQ(element.GetCustomPalette(), nullptr);
    EXPECT_FALSE(element.HandleGetBkImage(picture, color, placement));
    EXPECT_FALSE(element.ScrollContent(1, 1));
    EXPECT_FALSE(element.IsControlFocused());
    EXPECT_EQ(element.HandleAsString(), "");
}

TEST(ElementDefaults, ItsOverridableQueriesAboutRepaintingAnswerYes)
{
    CScriptedSystem system;
    COpenElement element(nullptr, {30, 20}, alNone);

    EXPECT_TRUE(element.IsScrollableOnSetPos());
    EXPECT_TRUE(element.IsFullRepainted());
    EXPECT_TRUE(element.BeforeProcessChange(&element, utElement));
}

TEST(ElementDefaults, ItsHandlersOfInputConsumeNothing)
{
    CScriptedSystem system;
    COpenElement element(nullptr, {30, 20}, alNone);
    CTooltipEvent tooltip;

    EXPECT_FALSE(element.HandleMouseMove(1, 2, 1, mbLeft));
    EXPECT_FALSE(element.HandleButtonDown(1, 2, 1, mbLeft));
    EXPECT_FALSE(element.HandleButtonUp(1, 2, 1, mbLeft));
    EXPECT_FALSE(element.HandleClick(1, 2, 1, mbLeft));
    EXPECT_FALSE(element.HandleDoubleClick(1, 2, 1, mbLeft));
    EXPECT_FALSE(element.HandleWheel(1, 2, 1, mbLeft, 1));
    EXPECT_FALSE(element.HandleKeyDown(0, 65));
    EXPECT_FALSE(element.HandleKeyUp(0, 65));
    EXPECT_FALSE(element.HandleChar('a'));
    EXPECT_FALSE(element.HandleOnTooltip(&tooltip));
    EXPECT_FALSE(element.HandleOnTooltipTrack(&tooltip));
    EXPECT_FALSE(element.HandleContextMenu(1, 2));
}

TEST(ElementDefaults, AnUnchangedAttributeOverrideRepaintsTheElement)
{
    CScriptedSystem system;
    CCallLog log;
    CRecordingControl control(log);
    CVisualElement root(nullptr, {0, 0}, alClient);
    log.Name(&root, "root");
    root.SetControl(&control);
    log.Clear();

    root.AttributeChanged();

    EXPECT_EQ(log.Take(), "control.UpdateElement(root, 2)");
}

TEST(ElementDefaults, AChangeOfTheHelpIdIsStored)
{
    CScriptedSystem system;
    CVisualElement element(nullptr, {0, 0}, alNone);

    element.SetHelpId("chapter 3");

    EXPECT_EQ(element.GetHelpId(), "chapter 3");
}

TEST(ElementDefaults, AContentDrawsLikeAnyElementButNothingOfItsOwn)
{
    CScriptedSystem system;
    CContent content(nullptr, {0, 0}, alClient);

    EXPECT_FALSE(content.IsTransparent());
    EXPECT_EQ(content.GetAlignment(), alClient);
    EXPECT_EQ(content.GetSize(), (size<int>{0, 0}));
}

// The simple accessors ------------------------------------------------------------------------------------------------

TEST(ElementAccessors, WhatIsSetIsKept)
{
    CScriptedSystem system;
    CVisualElement element(nullptr, {0, 0}, alNone);

    element.SetTooltip("tip");
    element.SetTooltipMultiline(true);
    element.SetId(77);
    element.SetCanHaveFocus(true);

    EXPECT_EQ(element.GetTooltip(), "tip");
    EXPECT_TRUE(element.IsTooltipMultiline());
    EXPECT_EQ(element.GetId(), 77ul);
    EXPECT_TRUE(element.GetCanHaveFocus());
}

// The display scale -----------------------------------------------------------------------------------------------------

TEST(ElementScale, AtScaleOneTheSizeIsTakenAsGiven)
{
    CScriptedSystem system(1.0);
    CVisualElement element(nullptr, {30, 21}, alNone);

    EXPECT_EQ(element.GetSize(), (size<int>{30, 21}));
}

TEST(ElementScale, AtScaleOneAndAQuarterBothMembersAreMultipliedAndTruncated)
{
    CScriptedSystem system(1.25);
    CVisualElement element(nullptr, {30, 21}, alNone);

    EXPECT_EQ(element.GetSize(), (size<int>{37, 26}));  // 37.5, 26.25
}

TEST(ElementScale, AtScaleTwoBothMembersAreDoubled)
{
    CScriptedSystem system(2.0);
    CVisualElement element(nullptr, {30, 21}, alNone);

    EXPECT_EQ(element.GetSize(), (size<int>{60, 42}));
}

TEST(ElementScale, BelowOneNothingIsScaled)
{
    CScriptedSystem system(0.5);
    CVisualElement element(nullptr, {30, 21}, alNone);

    EXPECT_EQ(element.GetSize(), (size<int>{30, 21}));
}

TEST(ElementScale, WithoutAutomaticScalingTheSizeIsTakenAsGiven)
{
    CScriptedSystem system(2.0);
    CAutoScaleScope off(false);
    CVisualElement element(nullptr, {30, 21}, alNone);

    EXPECT_EQ(element.GetSize(), (size<int>{30, 21}));
}

TEST(ElementScale, APositionIsNeverScaled)
{
    CScriptedSystem system(2.0);
    CVisualElement element(nullptr, {30, 21}, alNone);

    element.SetPos({1, 2, 11, 12}, false);

    EXPECT_EQ(element.GetPos(), (rectangle<int>{1, 2, 11, 12}));
}

TEST(ApplyDPIScale, MultipliesARectangleASizeAndANumberAlike)
{
    CScriptedSystem system(1.25);
    rectangle<int> rect{1, 2, 3, 5};
    size<int> extent{7, 8};
    int number = 9;

    ApplyDPIScale(rect);
    ApplyDPIScale(extent);
    ApplyDPIScale(number);

    EXPECT_EQ(rect, (rectangle<int>{1, 2, 3, 6}));  // 1.25, 2.5, 3.75, 6.25
    EXPECT_EQ(extent, (size<int>{8, 10}));          // 8.75, 10
    EXPECT_EQ(number, 11);                          // 11.25
}

TEST(ApplyDPIScale, TruncatesNegativeNumbersTowardZero)
{
    CScriptedSystem system(1.25);
    rectangle<int> rect{-1, -2, -3, -5};
    int number = -9;

    ApplyDPIScale(rect);
    ApplyDPIScale(number);

    EXPECT_EQ(rect, (rectangle<int>{-1, -2, -3, -6}));
    EXPECT_EQ(number, -11);
}

TEST(ApplyDPIScale, DoesNothingAtScaleOneOrBelowOrWithoutAutomaticScaling)
{
    CScriptedSystem system(1.0);
    int number = 9;
    ApplyDPIScale(number);
    EXPECT_EQ(number, 9);

    system.SetScale(0.5);
    ApplyDPIScale(number);
    EXPECT_EQ(number, 9);

    system.SetScale(2.0);
    CAutoScaleScope off(false);
    size<int> extent{3, 4};
    rectangle<int> rect{1, 2, 3, 4};
    ApplyDPIScale(number);
    ApplyDPIScale(extent);
    ApplyDPIScale(rect);
    EXPECT_EQ(number, 9);
    EXPECT_EQ(extent, (size<int>{3, 4}));
    EXPECT_EQ(rect, (rectangle<int>{1, 2, 3, 4}));
}

// The mark of objects on the heap -----------------------------------------------------------------------------------------

TEST(DynamicMark, AnObjectOnTheHeapHasItAndOneByValueHasNot)
{
    CScriptedSystem system;
    CVisualElement onStack(nullptr, {0, 0}, alNone);
    std::unique_ptr<CVisualElement> onHeap(new CVisualElement(nullptr, {0, 0}, alNone));
    CVisualElement later(nullptr, {0, 0}, alNone);

    EXPECT_FALSE(onStack.IsDynamic());
    EXPECT_TRUE(onHeap->IsDynamic());
    EXPECT_FALSE(later.IsDynamic());
}

TEST(DynamicMark, AMemberOfAnObjectOnTheHeapHasItNot)
{
    struct CHolder : CVisualElement
    {
        CHolder() : CVisualElement(nullptr, {0, 0}, alNone), m_Member(this, {0, 0}, alNone) {}
        CVisualElement m_Member;
    };
    CScriptedSystem system;
    std::unique_ptr<CHolder> holder(new CHolder);

    EXPECT_TRUE(holder->IsDynamic());
    EXPECT_FALSE(holder->m_Member.IsDynamic());
}

TEST(DynamicMark, OfANewWhoseArgumentThrowsDoesNotReachTheNextObject)
{
    CScriptedSystem system;
    auto const extent = []() -> size<int> { throw std::runtime_error("extent"); };
    EXPECT_THROW(delete new CVisualElement(nullptr, extent(), alNone), std::runtime_error);

    CVisualElement byValue(nullptr, {0, 0}, alNone);

    EXPECT_FALSE(byValue.IsDynamic());
}

TEST(DynamicMark, IsNotTakenByObjectsAmongTheArguments)
{
    CScriptedSystem system;
    CVisualElement root(nullptr, {0, 0}, alNone);
    auto const areaOfByValue = [] {
        return CVisualElement(nullptr, {3, 4}, alNone).IsDynamic() ? size<int>{1, 1} : size<int>{2, 2};
    };

    auto* const inner = new CVisualElement(
        new CVisualElement(new CVisualElement(&root, {0, 0}, alNone), {0, 0}, alNone), areaOfByValue(), alNone);

    EXPECT_TRUE(inner->IsDynamic());
    EXPECT_TRUE(inner->GetParent()->IsDynamic());
    EXPECT_TRUE(inner->GetParent()->GetParent()->IsDynamic());
    EXPECT_EQ(inner->GetSize(), (size<int>{2, 2}));
}

TEST(DynamicMark, CanBeOverruled)
{
    CScriptedSystem system;
    CVisualElement element(nullptr, {0, 0}, alNone);

    element.SetDynamic(true);
    EXPECT_TRUE(element.IsDynamic());
    element.SetDynamic(false);
    EXPECT_FALSE(element.IsDynamic());
}

// What the constructor does with a parent ------------------------------------------------------------------------------------

TEST(ElementConstruction, AChildOfAControlledParentTakesItsControlAsksForARepaintAndForALayout)
{
    CScriptedSystem system;
    CCallLog log;
    CRecordingControl control(log);
    CRecordingElement root(log, "root");
    root.SetControl(&control);
    log.Clear();

    CVisualElement child(&root, {10, 10}, alLeft);

    EXPECT_EQ(child.GetParent(), &root);
    EXPECT_EQ(child.GetControl(), &control);
    ASSERT_EQ(root.GetChildren()->GetCount(), 1);
    EXPECT_EQ(root.GetChildren()->GetItem(0), &child);
    EXPECT_EQ(log.Take(), "root.BeforeProcessChange(new, 2) root.ProcessChange(new) control.UpdateElement(new, 2) "
                          "root.AddNewChild(new) "
                          "root.ProcessRearrange(new) control.RearrangeElement(new)");
}

TEST(ElementConstruction, AChildThatIsNotDockedAsksForNoLayout)
{
    CScriptedSystem system;
    CCallLog log;
    CRecordingControl control(log);
    CRecordingElement root(log, "root");
    root.SetControl(&control);
    log.Clear();

    CVisualElement child(&root, {10, 10}, alNone);

    EXPECT_EQ(log.Take({"AddNewChild", "ProcessRearrange", "RearrangeElement"}), "root.AddNewChild(new)");
}

TEST(ElementConstruction, AChildTakesTheFontOfItsParent)
{
    CScriptedSystem system;
    CVisualElement root(nullptr, {0, 0}, alNone);
    font value;
    value.size = 20;
    value.name = "Big";
    root.SetFont(value);

    CVisualElement child(&root, {10, 10}, alNone);

    EXPECT_EQ(child.GetOwnFont(), value);
}

}  // namespace
