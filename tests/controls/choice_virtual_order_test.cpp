// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/controls/combo_box.h"
#include "vexel/controls/combo_box_button.h"
#include "vexel/controls/editor.h"
#include "vexel/controls/list.h"
#include "vexel/controls/list_box.h"
#include "vexel/controls/radio_button.h"
#include "vexel/controls/round_bg_button.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace vexel;
using namespace vexel::test;

namespace
{

std::size_t BehindElements()
{
    return Place(&CVisualElement::HandleCopyToClipboard) + 1;
}
std::size_t BehindButtons()
{
    return Place(&CButton::ProcessRepeatOperation) + 1;
}

TEST(ChoiceVirtualOrder, OfListsBehindThatOfElements)
{
    ExpectOrder(BehindElements(), &CList::DrawItem, &CList::RecalcSize, &CList::GetItemSize,
                &CList::GetStartDrawingLine, &CList::GetEndDrawingLine, &CList::AfterSetModel, &CList::SizeUpdated);
    EXPECT_EQ(Place(&CPicturedList::DrawItem), Place(&CList::DrawItem));
    static_assert(std::is_base_of_v<CList, CPicturedList>);
}

TEST(ChoiceVirtualOrder, OfTheListBoxHandlerBehindThatOfHandlers)
{
    ExpectOrder(Place(&CEventHandler::ProcessScroll) + 1, &CDefListBoxHandler::SetCurProcessButtonDown,
                &CDefListBoxHandler::HighlightingMouseMove, &CDefListBoxHandler::HighlightingMouseLeave,
                &CDefListBoxHandler::SetCurProcessKeyDown);
    static_assert(std::is_base_of_v<CDefListBoxHandler, CListBoxViewer>);
    static_assert(std::is_base_of_v<CRowViewer<IDiscreteItemViewModel>, CListBoxViewer>);
    static_assert(std::is_base_of_v<CBorder, CListBox>);
}

TEST(ChoiceVirtualOrder, OfDrawingsOfItems)
{
    EXPECT_EQ(Place(&IItemDrawing::DrawItem), Place(&IListBoxItemDrawing::DrawItem));
    EXPECT_EQ(Place(&IPicturedItemsModel::GetItemImageIndex), Place(&IItemsModel::GetItemCaption) + 1);
}

TEST(ChoiceVirtualOrder, OfCheckBoxesBehindThatOfButtons)
{
    ExpectOrder(BehindButtons(), &CCheckBox::DrawCheckImage, &CCheckBox::ChangeAllowed);
    EXPECT_EQ(Place(&CRadioButton::DrawCheckImage), Place(&CCheckBox::DrawCheckImage));
    EXPECT_EQ(Place(&CRadioButton::ChangeAllowed), Place(&CCheckBox::ChangeAllowed));
    EXPECT_EQ(Place(&CCustomCheckBox::DrawCheckImage), Place(&CCheckBox::DrawCheckImage));
    EXPECT_EQ(Place(&CCheckBox::GetImageSize), Place(&CCaption::GetImageSize));
    static_assert(std::is_base_of_v<CCheckBox, CRadioButton> && std::is_base_of_v<CCheckBox, CCustomCheckBox>);
    static_assert(!std::is_base_of_v<CVisualElement, CRadioGroup>);
}

TEST(ChoiceVirtualOrder, OfRoundButtonsBehindThatOfCustomButtons)
{
    EXPECT_EQ(Place(&CRoundBgButton::GetBlurRadius), Place(&CCustomButton::DrawFocusRect) + 1);
    EXPECT_EQ(Place(&CRoundBgButton::DrawFocusRect), Place(&CCustomButton::DrawFocusRect));
    EXPECT_EQ(Place(&CRoundBgButton::DrawPressedContent), Place(&CCustomButton::DrawPressedContent));
    EXPECT_EQ(Place(&CRoundBgButton::DrawBackground), Place(&CCaption::DrawBackground));
}

TEST(ChoiceVirtualOrder, OfDropButtonsBehindThatOfButtons)
{
    EXPECT_EQ(Place(&CComboBoxButton::DoDropDown), BehindButtons());
    EXPECT_EQ(Place(&CDropButton::GetInternalRect), Place(&CCaption::GetInternalRect));
    EXPECT_EQ(Place(&CDropButton::GetDrawingAdditionalExtent), Place(&CCaption::GetDrawingAdditionalExtent));
    EXPECT_EQ(Place(&CComboButton::RecalculateSize), Place(&CCaption::RecalculateSize));
    static_assert(std::is_base_of_v<CDropButton, CComboBoxButton> && !std::is_polymorphic_v<CPopup>);
    static_assert(!std::is_base_of_v<CDropButton, CComboButton>);
}

TEST(ChoiceVirtualOrder, OfEditorsBehindThatOfElements)
{
    ExpectOrder(BehindElements(), &CBaseEditor::ProcessEditorCommand, &CEditor::GetEditorRect);
    EXPECT_EQ(Place(&CComboBox::ProcessEditorCommand), Place(&CBaseEditor::ProcessEditorCommand));
    EXPECT_EQ(Place(&CComboBox::GetEditorRect), Place(&CEditor::GetEditorRect));
    static_assert(std::is_abstract_v<CBaseEditor> && std::is_base_of_v<CControlEditor, CLineEditor>);
}

TEST(ChoiceVirtualOrder, WhatRunsThePopupIsNotDeletedByItself)
{
    CDropDownRunnable runnable;
    int runs = 0;
    struct SCounter : subscriber_base_t
    {
        explicit SCounter(int& count) : m_Count(count) {}
        void Count() { ++m_Count; }
        int& m_Count;
    } counter(runs);
    runnable.m_SigRun.connect(&counter, &SCounter::Count);
    EXPECT_TRUE(runnable.Run());
    EXPECT_EQ(runs, 1);
}

}  // namespace
