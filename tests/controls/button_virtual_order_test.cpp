// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/controls/arrow_button.h"
#include "vexel/controls/button.h"
#include "vexel/controls/button_set.h"
#include "vexel/controls/help_button.h"
#include "vexel/controls/image.h"
#include "vexel/controls/picture_button.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace vexel;
using namespace vexel::test;

namespace
{

/// Where a base stands in an object, in bytes from its start.
template <class Base, class Class> std::ptrdiff_t Offset(Class const& object)
{
    return reinterpret_cast<char const*>(static_cast<Base const*>(&object)) - reinterpret_cast<char const*>(&object);
}

TEST(ButtonVirtualOrder, OfThePressMachine)
{
    ExpectOrder(0, &CClickHandler::ProcessClick, &CClickHandler::ProcessStageChange);
}

TEST(ButtonVirtualOrder, OfButtonsBehindThatOfCaptions)
{
    std::size_t const first = Place(&CCaption::OnDrawLink) + 1;
    ExpectOrder(first, &CButton::IsMouseOverButton, &CButton::ProcessStageChange, &CButton::ProcessClick,
                &CButton::ProcessRepeatOperation);
}

TEST(ButtonVirtualOrder, OfCustomButtonsBehindThatOfButtons)
{
    std::size_t const first = Place(&CButton::ProcessRepeatOperation) + 1;
    ExpectOrder(first, &CCustomButton::DrawDisabledContent, &CCustomButton::DrawNormalContent,
                &CCustomButton::DrawHighlightedContent, &CCustomButton::DrawPressedContent,
                &CCustomButton::DrawFocusRect);
}

TEST(ButtonVirtualOrder, OfImagesBehindThatOfElements)
{
    EXPECT_EQ(Place(&CImage::RecalculateSize), Place(&CVisualElement::HandleCopyToClipboard) + 1);
}

TEST(ButtonVirtualOrder, WhatAButtonTakesOverKeepsItsPlace)
{
    EXPECT_EQ(Place(&CButton::SetAlignment), Place(&CVisualElement::SetAlignment));
    EXPECT_EQ(Place(&CButton::SetEnabled), Place(&CVisualElement::SetEnabled));
    EXPECT_EQ(Place(&CButton::DrawContent), Place(&CVisualElement::DrawContent));
    EXPECT_EQ(Place(&CButton::ProcessSetVisible), Place(&CVisualElement::ProcessSetVisible));
    EXPECT_EQ(Place(&CButton::HandleButtonDown), Place(&CVisualElement::HandleButtonDown));
    EXPECT_EQ(Place(&CButton::HandleButtonUp), Place(&CVisualElement::HandleButtonUp));
    EXPECT_EQ(Place(&CButton::HandleMouseHover), Place(&CVisualElement::HandleMouseHover));
    EXPECT_EQ(Place(&CButton::HandleMouseLeave), Place(&CVisualElement::HandleMouseLeave));
    EXPECT_EQ(Place(&CButton::HandleKeyDown), Place(&CVisualElement::HandleKeyDown));
    EXPECT_EQ(Place(&CButton::HandleKeyUp), Place(&CVisualElement::HandleKeyUp));
    EXPECT_EQ(Place(&CButton::DrawBackground), Place(&CCaption::DrawBackground));
    EXPECT_EQ(Place(&CButton::GetInternalRect), Place(&CCaption::GetInternalRect));
    EXPECT_EQ(Place(&CButton::GetAutoSizeAdditionalExtent), Place(&CCaption::GetAutoSizeAdditionalExtent));
}

TEST(ButtonVirtualOrder, WhatTheOtherButtonsTakeOverKeepsItsPlace)
{
    EXPECT_EQ(Place(&CCustomButton::HandleMouseMove), Place(&CVisualElement::HandleMouseMove));
    EXPECT_EQ(Place(&CPictureButton::IsTransparent), Place(&CVisualElement::IsTransparent));
    EXPECT_EQ(Place(&CPictureButton::GetContentRect), Place(&CVisualElement::GetContentRect));
    EXPECT_EQ(Place(&CPictureButton::RecalculateSize), Place(&CCaption::RecalculateSize));
    EXPECT_EQ(Place(&CPictureButton::IsMouseOverButton), Place(&CButton::IsMouseOverButton));
    EXPECT_EQ(Place(&CPictureButton::DrawDisabledContent), Place(&CCustomButton::DrawDisabledContent));
    EXPECT_EQ(Place(&CPictureButton::DrawNormalContent), Place(&CCustomButton::DrawNormalContent));
    EXPECT_EQ(Place(&CPictureButton::DrawHighlightedContent), Place(&CCustomButton::DrawHighlightedContent));
    EXPECT_EQ(Place(&CPictureButton::DrawPressedContent), Place(&CCustomButton::DrawPressedContent));
    EXPECT_EQ(Place(&CButtonSet::AfterSetControl), Place(&CVisualElement::AfterSetControl));
    EXPECT_EQ(Place(&CImage::AfterSetControl), Place(&CVisualElement::AfterSetControl));
    EXPECT_EQ(Place(&CImage::HandleControlDestroy), Place(&CVisualElement::HandleControlDestroy));
}

TEST(ButtonVirtualOrder, TheBasesOfAButtonStandInTheirOrder)
{
    CButton const button(nullptr, {0, 0}, alNone);
    EXPECT_EQ(Offset<CCaption>(button), 0);
    EXPECT_LT(Offset<CCaption>(button), Offset<CNativeDrawingFlavor>(button));
    EXPECT_LT(Offset<CNativeDrawingFlavor>(button), Offset<CClickHandler>(button));
    EXPECT_LT(Offset<CClickHandler>(button), Offset<CRepeatableOperation>(button));
}

TEST(ButtonVirtualOrder, TheBasesOfAnImageStandInTheirOrder)
{
    CImage const image(nullptr, {0, 0}, alNone);
    EXPECT_EQ(Offset<CVisualElement>(image), 0);
    EXPECT_LT(0, Offset<IAnimationProcess::IUpdater>(image));
}

TEST(ButtonVirtualOrder, EachKindOfButtonStandsOnTheOneItRefines)
{
    static_assert(std::is_base_of_v<CButton, CArrowButton> && !std::is_base_of_v<CCustomButton, CArrowButton>);
    static_assert(std::is_base_of_v<CButton, CCustomButton> && std::is_abstract_v<CCustomButton>);
    static_assert(std::is_base_of_v<CCustomButton, CPictureButton>);
    static_assert(std::is_base_of_v<CPictureButton, CCaptionButton>);
    static_assert(std::is_base_of_v<CCaptionButton, CHelpButton>);
    static_assert(std::is_base_of_v<CVisualElement, CButtonSet> && !std::is_base_of_v<CCaption, CButtonSet>);
    static_assert(std::is_same_v<CPictureButton::ImageInfo, CImageHolder>);
}

}  // namespace
