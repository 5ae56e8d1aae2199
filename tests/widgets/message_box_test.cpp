// Message boxes: their parts, how the title keeps level with the picture, and what all boxes share.

#include "vexel/widgets/message_box.h"

#include "tests/support/leaf.h"
#include "tests/support/paint_calls.h"
#include "tests/support/scripted_system.h"
#include "tests/support/virtual_order.h"
#include "tests/widgets/message_bench.h"
#include "vexel/controls/label.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/painter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Size = size<int>;
using Rect = rectangle<int>;

// A box at the top of a window of 300 x 300 pixels. A title's character is 11 wide and 10 high, one of the text 8 and 8;
// each of these captions is 2 larger than its text.
class CMessageBench : public testing::Test
{
protected:
    CMessageBench() : m_Box(*new CMessageBox(m_Host.Root(), {0, 10}, alTop))
    {
        NameElement(m_Box, "box");
        NameElement(m_Box.GetImage(), "image");
        m_Host.Paint();
    }
    void Show(int type, std::string const& title, std::string const& text)
    {
        m_Box.SetImageType(type);
        m_Box.GetTitle().SetCaption(title);
        m_Box.GetText().SetCaption(text);
        m_Host.Paint();
    }
    // The heights of the space above the title and of the one below.
    std::string Spaces() const { return SpacesOf(m_Box); }
    static std::string SpacesOf(CMessageBox& box)
    {
        return std::to_string(box.GetTopSpacer().GetSize().height) + " " +
               std::to_string(box.GetTitleSpacer().GetSize().height);
    }

    CSharedLooks m_Looks;
    CTestHost m_Host{300, 300};
    CMessageBox& m_Box;
};

using MessageBox = CMessageBench;

class CShared : public testing::Test
{
protected:
    CSharedLooks m_Looks;
};
using MessageBoxScaled = CShared;
using MessageBoxAlone = CShared;
using MessageBoxLooks = CShared;

}  // namespace

// The parts ---------------------------------------------------------------------------------------------------------------------

TEST_F(MessageBoxAlone, ItsPartsStandInTheirOrder)
{
    CTestHost::System();
    CMessageBox box(nullptr, {100, 50}, alTop);
    ASSERT_EQ(box.GetChildren()->GetCount(), 6);
    EXPECT_EQ(box.GetChildren()->GetItem(0), &box.GetImage());
    EXPECT_EQ(box.GetChildren()->GetItem(1), &box.GetTopSpacer());
    EXPECT_EQ(box.GetChildren()->GetItem(2), &box.GetTitle());
    EXPECT_EQ(box.GetChildren()->GetItem(3), &box.GetTitleSpacer());
    EXPECT_EQ(box.GetChildren()->GetItem(4), &box.GetButtons());
    EXPECT_EQ(box.GetChildren()->GetItem(5), &box.GetText());
    for (int i = 0; i < 6; ++i)
        EXPECT_FALSE(box.GetChildren()->GetItem(i)->IsDynamic()) << i;
    EXPECT_EQ(box.GetImage().GetAlignment(), alLeft);
    EXPECT_EQ(box.GetTopSpacer().GetAlignment(), alTop);
    EXPECT_EQ(box.GetTitle().GetAlignment(), alTop);
    EXPECT_EQ(box.GetTitleSpacer().GetAlignment(), alTop);
    EXPECT_EQ(box.GetButtons().GetAlignment(), alBottom);
    EXPECT_EQ(box.GetText().GetAlignment(), alTop);
    EXPECT_EQ(box.GetSize(), (Size{100, 50}));
}

TEST_F(MessageBoxAlone, WithoutAControlAllHaveTheirFirstSizes)
{
    CTestHost::System();
    CMessageBox box(nullptr, {100, 50}, alTop);
    EXPECT_EQ(box.GetImage().GetSize(), (Size{12, 12}));
    EXPECT_EQ(box.GetTopSpacer().GetSize(), (Size{12, 12}));
    EXPECT_EQ(box.GetTitle().GetSize(), (Size{12, 12}));
    EXPECT_EQ(box.GetTitleSpacer().GetSize(), (Size{10, 10}));
    EXPECT_EQ(box.GetButtons().GetSize(), (Size{12, 12}));
    EXPECT_EQ(box.GetText().GetSize(), (Size{12, 12}));
    EXPECT_EQ(box.GetImage().GetOffset(), (Rect{10, 10, 10, 10}));
}

TEST_F(MessageBoxScaled, FirstSizesScaleOnce)
{
    CTestHost::System().SetScale(2);
    CMessageBox twice(nullptr, {100, 50}, alTop);
    EXPECT_EQ(twice.GetSize(), (Size{200, 100}));
    EXPECT_EQ(twice.GetImage().GetSize(), (Size{24, 24}));
    EXPECT_EQ(twice.GetTopSpacer().GetSize(), (Size{24, 24}));
    EXPECT_EQ(twice.GetTitle().GetSize(), (Size{24, 24}));
    EXPECT_EQ(twice.GetTitleSpacer().GetSize(), (Size{20, 20}));
    EXPECT_EQ(twice.GetButtons().GetSize(), (Size{24, 24}));
    EXPECT_EQ(twice.GetText().GetSize(), (Size{24, 24}));
    EXPECT_EQ(twice.GetImage().GetOffset(), (Rect{20, 20, 20, 20}));
    CTestHost::System().SetScale(1.25);
    CMessageBox more(nullptr, {100, 50}, alTop);
    EXPECT_EQ(more.GetImage().GetSize(), (Size{15, 15}));
    EXPECT_EQ(more.GetTitleSpacer().GetSize(), (Size{12, 12}));
    EXPECT_EQ(more.GetImage().GetOffset(), (Rect{12, 12, 12, 12}));
}

TEST_F(MessageBoxScaled, WithoutAutomaticScalingTheSpaceBelowTheTitleAndTheOffsetsScaleAllTheSame)
{
    CTestHost::System().SetScale(2);
    CAutoScaleScope const off(false);
    CMessageBox box(nullptr, {100, 50}, alTop);
    EXPECT_EQ(box.GetTopSpacer().GetSize(), (Size{12, 12}));
    EXPECT_EQ(box.GetTitleSpacer().GetSize(), (Size{20, 20}));
    EXPECT_EQ(box.GetImage().GetOffset(), (Rect{20, 20, 20, 20}));
}

TEST_F(MessageBoxScaled, MetricsAreTruncated)
{
    memory::CMemorySystem& system = CTestHost::System();
    EXPECT_EQ(CMessageBox::GetBaseOffset(), 10);
    EXPECT_EQ(CMessageBox::GetTextSizeCorrection(), 6);
    system.SetScale(1.25);
    EXPECT_EQ(CMessageBox::GetBaseOffset(), 12);
    EXPECT_EQ(CMessageBox::GetTextSizeCorrection(), 6);
    system.SetScale(1.5);
    EXPECT_EQ(CMessageBox::GetBaseOffset(), 15);
    EXPECT_EQ(CMessageBox::GetTextSizeCorrection(), 9);
    system.SetScale(2);
    EXPECT_EQ(CMessageBox::GetBaseOffset(), 20);
    EXPECT_EQ(CMessageBox::GetTextSizeCorrection(), 12);
}

TEST_F(MessageBoxAlone, ItsPartsAreSetUp)
{
    CTestHost::System();
    CMessageBox box(nullptr, {100, 50}, alTop);
    EXPECT_TRUE(box.GetImage().IsAutoSize());
    EXPECT_EQ(box.GetImage().GetImageAlign(), 0x0C);
    EXPECT_FALSE(box.GetImage().IsAssigned());
    EXPECT_TRUE(box.GetTitle().IsTransparent());
    EXPECT_TRUE(box.GetTitle().IsAutoSize());
    EXPECT_EQ(box.GetTitle().GetTextAlign(), 1);
    font const title = box.GetTitle().GetOwnFont();
    EXPECT_EQ(title.name, "");
    EXPECT_EQ(title.family, 4);
    EXPECT_EQ(title.size, 0);
    EXPECT_EQ(title.style, 1);
    EXPECT_EQ(title.rotation, 0);
    EXPECT_EQ(title.factor, 1.3);
    EXPECT_TRUE(box.GetText().IsTransparent());
    EXPECT_TRUE(box.GetText().IsAutoSize());
    EXPECT_EQ(box.GetText().GetTextAlign(), 1);
    EXPECT_FALSE(box.GetText().IsAdjustHeight());
    EXPECT_EQ(box.GetText().GetOwnFont(), font());
    EXPECT_FALSE(box.GetButtons().IsVisible());
    EXPECT_FALSE(box.IsButtonsVisible());
    EXPECT_TRUE(box.IsVisible());
    EXPECT_FALSE(box.IsTransparent());
    EXPECT_EQ(box.GetTitle().GetCaption(), "");
    EXPECT_EQ(box.GetText().GetCaption(), "");
}

TEST(MessageBoxVirtualOrder, BoxesAddNoOperationsToThoseOfABox)
{
    EXPECT_EQ(Place(&CMessageBoxBase::AttributeChanged), Place(&CVisualElement::AttributeChanged));
    EXPECT_EQ(Place(&CMessageBoxBase::ProcessRearrange), Place(&CVisualElement::ProcessRearrange));
    EXPECT_EQ(Place(&CMessageBoxBase::RecalculateSize), Place(&CVertBox::RecalculateSize));
}

TEST_F(MessageBox, ItIsNoScrolledView)
{
    Show(0, "Disk", "About");
    EXPECT_EQ(m_Box.GetDrawBounds(), Rect());
    Rect const before = m_Box.GetPos();
    for (int key = vkPageUp; key <= vkDown; ++key)
        EXPECT_FALSE(m_Box.HandleKeyDown(0, key)) << key;
    EXPECT_EQ(m_Box.GetPos(), before);
}

TEST_F(MessageBox, ItsGroundIsAllThatItDrawsItself)
{
    Show(0, "Disk", "About");
    PaintLog const log = m_Host.FullPaint();
    EXPECT_EQ(log.Of("box").Count("FillRect 0 0 299 48"), 1);
    EXPECT_EQ(log.Of("box").Count("FillRect*"), 1);
    EXPECT_EQ(log.Of("box").Count("Draw*"), 0);
    EXPECT_EQ(log.Of("image").Count("*Rect*"), 0);
}

// Layout ------------------------------------------------------------------------------------------------------------------------

TEST_F(MessageBox, WithoutAPictureThePartsStandBelowEachOther)
{
    Show(0, "Disk", "About");
    EXPECT_EQ(m_Box.GetImage().GetSize(), (Size{20, 20}));  // the offsets alone
    EXPECT_EQ(m_Box.GetTitle().GetSize(), (Size{46, 12}));
    EXPECT_EQ(m_Box.GetText().GetSize(), (Size{42, 10}));
    EXPECT_EQ(Spaces(), "12 10");
    EXPECT_EQ(m_Box.GetPos(), (Rect{0, 0, 299, 48}));  // 12, 12, 10 and 10, and one more for each
    EXPECT_EQ(m_Box.GetImage().GetPos(), (Rect{0, 0, 20, 48}));
    EXPECT_EQ(m_Box.GetTopSpacer().GetPos(), (Rect{21, 0, 299, 12}));
    EXPECT_EQ(m_Box.GetTitle().GetPos(), (Rect{21, 13, 299, 25}));
    EXPECT_EQ(m_Box.GetTitleSpacer().GetPos(), (Rect{21, 26, 299, 36}));
    EXPECT_EQ(m_Box.GetText().GetPos(), (Rect{21, 37, 299, 47}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(MessageBox, TheTitlesMiddleIsLevelWithThePicturesAndTheSpaceBelowEndsAtItsFoot)
{
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "Disk", "About");
    EXPECT_EQ(m_Box.GetImage().GetSize(), (Size{52, 52}));
    // Middle of the picture at 10 + 16: 20 above the title's 6. 10 + 32 is where 6 + 12 + 20 - 10 + 14 end.
    EXPECT_EQ(Spaces(), "20 14");
    EXPECT_EQ(m_Box.GetTitle().GetSize().height, 12);
    EXPECT_EQ(m_Box.GetPos(), (Rect{0, 0, 299, 60}));
    EXPECT_EQ(m_Box.GetImage().GetPos(), (Rect{0, 0, 52, 60}));
    EXPECT_EQ(m_Box.GetTopSpacer().GetPos(), (Rect{53, 0, 299, 20}));
    EXPECT_EQ(m_Box.GetTitle().GetPos(), (Rect{53, 21, 299, 33}));
    EXPECT_EQ(m_Box.GetTitleSpacer().GetPos(), (Rect{53, 34, 299, 48}));
    EXPECT_EQ(m_Box.GetText().GetPos(), (Rect{53, 49, 299, 59}));
    EXPECT_EQ(m_Host.FullPaint().Of("image").Count("DrawRasterPicture 32x32 10 10 *"), 1);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(MessageBox, AnOddPictureIsHalvedAsWholePixels)
{
    m_Looks.NewPicture(1, {15, 15});
    Show(1, "Disk", "About");
    EXPECT_EQ(Spaces(), "11 6");  // 7 + 10 - 6; 25 - (6 + 12 + 11 - 10)
}

TEST_F(MessageBox, SpacesOfASmallPictureEndAtNothing)
{
    m_Looks.NewPicture(1, {4, 4});
    Show(1, "Disk", "About");
    EXPECT_EQ(Spaces(), "6 0");
    m_Looks.NewPicture(2, {2, 2});
    Show(2, "Disk", "About");
    EXPECT_EQ(Spaces(), "5 0");
    EXPECT_EQ(m_Host.Pending(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(MessageBox, ATitleHigherThanThePictureHasNoSpaceAround)
{
    m_Looks.NewPicture(1, {2, 2});
    Show(1, "a\nb\nc\nd", "About");
    EXPECT_EQ(m_Box.GetTitle().GetSize().height, 42);
    EXPECT_EQ(Spaces(), "0 0");
    EXPECT_EQ(m_Host.Pending(), "");
    EXPECT_EQ(m_Box.GetPos().bottom, 56);  // 1, 43, 1 and 11
}

TEST_F(MessageBox, ATitleOfTwoLinesIsLevelWithItsMiddle)
{
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "Disk\nfull", "About");
    EXPECT_EQ(m_Box.GetTitle().GetSize().height, 22);
    EXPECT_EQ(Spaces(), "15 9");
    Show(1, "Disk", "About");
    EXPECT_EQ(Spaces(), "20 14");
}

TEST_F(MessageBox, WithoutAPictureOrWithAnEmptyTitleBothSpacesStay)
{
    Show(0, "Disk", "About");
    EXPECT_EQ(Spaces(), "12 10");
    Show(0, "", "About");
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "", "About");
    EXPECT_EQ(Spaces(), "12 10");
    EXPECT_EQ(m_Box.GetImage().GetSize(), (Size{52, 52}));
    Show(1, "Disk", "About");
    EXPECT_EQ(Spaces(), "20 14");
    Show(1, "", "Above\nBelow");
    EXPECT_EQ(Spaces(), "20 14");
    Show(1, "Disk\nfull", "About");
    m_Box.GetImage().Clear();
    Show(0, "Disk", "About");
    EXPECT_EQ(Spaces(), "15 9");
}

TEST_F(MessageBox, AnImageOfTheControlsListCountsAsWell)
{
    m_Box.GetImage().SetImageIndex(0);
    Show(0, "Disk", "About");
    // Without a list it is nothing high: 0 + 10 - 6, and 10 - (6 + 12 + 4 - 10) below 0.
    EXPECT_EQ(Spaces(), "4 0");
}

TEST_F(MessageBoxScaled, AtOneAndAHalfItIsLevelAsWell)
{
    CTestHost host(400, 300, 1.5);
    auto* const box = new CMessageBox(host.Root(), {0, 10}, alTop);
    m_Looks.NewPicture(1, {32, 32});
    box->SetImageType(1);
    box->GetTitle().SetCaption("Disk");
    box->GetText().SetCaption("About");
    host.Paint();
    EXPECT_EQ(box->GetImage().GetSize(), (Size{62, 62}));
    EXPECT_EQ(box->GetTitle().GetSize(), (Size{67, 18}));
    EXPECT_EQ(box->GetTopSpacer().GetSize().height, 22);    // 16 + 15 - 9
    EXPECT_EQ(box->GetTitleSpacer().GetSize().height, 13);  // 47 - (9 + 18 + 22 - 15)
    EXPECT_EQ(box->GetPos(), (Rect{0, 0, 399, 72}));
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST_F(MessageBoxScaled, AtTwoItIsLevelAsWell)
{
    CTestHost host(400, 300, 2);
    auto* const box = new CMessageBox(host.Root(), {0, 10}, alTop);
    m_Looks.NewPicture(1, {32, 32});
    box->SetImageType(1);
    box->GetTitle().SetCaption("Disk");
    box->GetText().SetCaption("About");
    host.Paint();
    EXPECT_EQ(box->GetTitle().GetSize().height, 24);
    EXPECT_EQ(box->GetTopSpacer().GetSize().height, 24);    // 16 + 20 - 12, as it was
    EXPECT_EQ(box->GetTitleSpacer().GetSize().height, 12);  // 52 - (12 + 24 + 24 - 20)
    EXPECT_EQ(box->GetPos(), (Rect{0, 0, 399, 84}));
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST_F(MessageBoxAlone, TheBoxIsLevelledWhenItGetsAControl)
{
    CTestHost host(300, 300);
    auto* const box = new CMessageBox(nullptr, {0, 10}, alTop);
    m_Looks.NewPicture(1, {32, 32});
    box->SetImageType(1);
    box->GetTitle().SetCaption("Disk");
    box->AttributeChanged();
    box->CheckImageAlign();
    EXPECT_EQ(box->GetTopSpacer().GetSize().height, 12);
    EXPECT_EQ(box->GetTitleSpacer().GetSize().height, 10);
    EXPECT_EQ(box->GetSize().height, 10);
    box->ReParent(host.Root(), true);
    EXPECT_EQ(box->GetTopSpacer().GetSize().height, 20);
    EXPECT_EQ(box->GetTitleSpacer().GetSize().height, 14);
    host.Paint();
    EXPECT_EQ(box->GetPos(), (Rect{0, 0, 299, 52}));  // the empty text is 2 high
}

// Without automatic size a new offset asks for no layout, so that the alignment shows alone.
TEST_F(MessageBox, AChangedAttributeLevelsAndRepaints)
{
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "Disk", "About");
    m_Box.GetImage().SetAutoSize(false);
    m_Box.GetImage().SetOffset({10, 20, 10, 14});
    EXPECT_EQ(Spaces(), "20 14");
    m_Box.AttributeChanged();
    EXPECT_EQ(Spaces(), "30 18");  // 16 + 20 - 6; 52 - (6 + 12 + 30 - 14)
    m_Host.Paint();
    m_Box.AttributeChanged();
    EXPECT_FALSE(m_Host.Paint().Of("box").IsEmpty());
}

TEST_F(MessageBox, ALowerFootOfThePictureAloneMovesTheSpaceBelow)
{
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "Disk", "About");
    m_Box.GetImage().SetAutoSize(false);
    m_Box.GetImage().SetOffset({10, 10, 10, 16});
    m_Box.CheckImageAlign();
    EXPECT_EQ(Spaces(), "20 20");
    m_Box.GetImage().SetOffset({50, 10, 60, 16});
    m_Box.CheckImageAlign();
    EXPECT_EQ(Spaces(), "20 20");
}

TEST_F(MessageBox, AnOddTitleIsHalvedAsWholePixels)
{
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "Disk", "About");
    m_Box.GetTitle().SetAutoSize(false);
    m_Box.GetTitle().SetHeight(13, false);
    EXPECT_EQ(Spaces(), "20 13");  // 26 - 6; 42 - (6 + 13 + 20 - 10)
}

TEST_F(MessageBox, EachArrangementLevelsAndCountsAsTheBoxs)
{
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "Disk", "About");
    m_Box.GetImage().SetAutoSize(false);
    m_Box.GetImage().SetOffset({10, 20, 10, 14});
    CVisualElement* asked = &m_Box.GetText();
    m_Box.ProcessRearrange(&asked);
    EXPECT_EQ(asked, &m_Box);
    EXPECT_EQ(Spaces(), "30 18");
}

TEST_F(MessageBox, WithoutChildrenAnArrangementPassesBy)
{
    CMessageBox bare(nullptr, {10, 10}, alTop);
    bare.ReParent(m_Host.Root(), true);
    for (int i = bare.GetChildren()->GetCount() - 1; i >= 0; --i)
        bare.GetChildren()->GetItem(i)->ReParent(nullptr, true);
    CVisualElement* asked = &m_Box;
    bare.ProcessRearrange(&asked);
    EXPECT_EQ(asked, &m_Box);
}

TEST_F(MessageBox, SpacesThatAreMovedComeBack)
{
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "Disk", "About");
    m_Box.GetTopSpacer().SetHeight(3, false);
    EXPECT_EQ(Spaces(), "20 14");
    m_Box.GetTitleSpacer().SetHeight(50, false);
    EXPECT_EQ(Spaces(), "20 14");
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetPos().bottom, 60);
}

TEST_F(MessageBox, ALongerTextMakesItHigher)
{
    Show(0, "Disk", "About");
    m_Box.GetText().SetCaption("one\ntwo\nthree");
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetText().GetSize().height, 26);
    EXPECT_EQ(m_Box.GetPos().bottom, 64);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(MessageBox, ButtonsStandAtTheBottomAndMakeItHigher)
{
    Show(0, "Disk", "About");
    m_Box.GetButtons().SetButtons(3);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetPos(), (Rect{0, 0, 299, 66}));  // 17 and one more
    EXPECT_EQ(m_Box.GetButtons().GetPos(), (Rect{21, 49, 299, 66}));
    EXPECT_TRUE(m_Box.IsButtonsVisible());
    m_Box.SetButtonsVisible(false);
    EXPECT_FALSE(m_Box.GetButtons().IsVisible());
    EXPECT_FALSE(m_Box.IsButtonsVisible());
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetPos().bottom, 48);
    m_Box.SetButtonsVisible(true);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetPos().bottom, 66);
    EXPECT_TRUE(m_Box.IsButtonsVisible());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(MessageBox, AHiddenBoxHasButtonsThatAreVisible)
{
    m_Box.GetButtons().SetButtons(1);
    m_Box.SetVisible(false);
    EXPECT_TRUE(m_Box.IsButtonsVisible());
}

// Buttons -----------------------------------------------------------------------------------------------------------------------

TEST_F(MessageBox, APressTellsTheButtonsBitAndChangesNothing)
{
    CSignalLog log(m_Box.m_ButtonPressed, "pressed");
    Show(0, "Disk", "About");
    m_Box.GetButtons().SetButtons(5);
    m_Host.Paint();
    m_Host.Mouse().Click(ButtonOf(m_Box, 1), 5, 5);
    EXPECT_EQ(log.Take(), "pressed(4)");
    m_Host.Mouse().Click(ButtonOf(m_Box, 0), 5, 5);
    EXPECT_EQ(log.Take(), "pressed(1)");
    EXPECT_TRUE(m_Box.IsVisible());
    EXPECT_TRUE(m_Box.IsEnabled());
    EXPECT_TRUE(m_Box.IsButtonsVisible());
    EXPECT_EQ(m_Box.GetButtons().GetButtonCount(), 2u);
}

TEST_F(MessageBox, AKeyPressesAButtonToo)
{
    CSignalLog log(m_Box.m_ButtonPressed, "pressed");
    m_Box.GetButtons().SetButtons(3);
    m_Host.Focus();
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetFirstTabElement(), m_Box.GetButtons().GetFirstTabElement());
    ButtonOf(m_Box, 1).SetFocus(true);
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_EQ(log.Text(), "pressed(2)");
}

TEST_F(MessageBox, APressCanBeToldByCode)
{
    CSignalLog log(m_Box.m_ButtonPressed, "pressed");
    m_Box.ButtonPressed(99);
    m_Box.GetButtons().m_ButtonPressed(-3);
    EXPECT_EQ(log.Text(), "pressed(99) pressed(-3)");
}

// The text's width --------------------------------------------------------------------------------------------------------------

TEST_F(MessageBox, TheTextKeepsItsWidth)
{
    Show(0, "Disk", "About");
    m_Box.GetText().SetCaption("aaaaaaaa bbbbbbbb cccccccc dddddddd eeeeeeee");
    EXPECT_EQ(m_Box.GetText().GetSize(), (Size{354, 10}));
    m_Box.GetText().SetCaption("About");
    m_Host.Paint();
    m_Box.KeepTextWidth();
    EXPECT_EQ(m_Box.GetText().GetMaxTextWidth(), 277);  // 299 - 21 - 1
    m_Box.GetText().SetCaption("aaaaaaaa bbbbbbbb cccccccc dddddddd eeeeeeee");
    EXPECT_EQ(m_Box.GetText().GetSize().height, 18);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(MessageBoxAlone, KeepingAWidthOfNothingIsNoLimit)
{
    CTestHost::System();
    CMessageBox box(nullptr, {100, 50}, alTop);
    box.GetText().SetMaxTextWidth(30);
    EXPECT_EQ(box.GetText().GetMaxTextWidth(), 30);
    box.KeepTextWidth();
    EXPECT_EQ(box.GetText().GetMaxTextWidth(), 0);
}

// What all boxes share ----------------------------------------------------------------------------------------------------------

TEST_F(MessageBoxLooks, ThereAreNoPicturesAndCaptionsAtFirst)
{
    for (int type = -1; type < 10; ++type)
        EXPECT_EQ(CMessageBox::GetPicture(type), nullptr);
    for (int bit = 1; bit <= 64; bit *= 2)
        EXPECT_EQ(CMessageBox::GetButtonCaption(bit), "");
}

TEST_F(MessageBoxLooks, EachTypeHasItsPicture)
{
    auto const first = m_Looks.NewPicture(1, {4, 4});
    auto const second = m_Looks.NewPicture(2, {6, 6});
    EXPECT_EQ(CMessageBox::GetPicture(1), first);
    EXPECT_EQ(CMessageBox::GetPicture(2), second);
    EXPECT_EQ(CMessageBox::GetPicture(3), nullptr);
    CMessageBox::SetPicture(-7, first);
    EXPECT_EQ(CMessageBox::GetPicture(-7), first);
    CMessageBox::SetPicture(-7, nullptr);
    EXPECT_EQ(CMessageBox::GetPicture(-7), nullptr);
}

TEST_F(MessageBox, ATypeWithoutAPictureKeepsTheOneThatShows)
{
    auto const first = m_Looks.NewPicture(1, {4, 4});
    m_Box.SetImageType(1);
    EXPECT_EQ(m_Box.GetImage().GetRasterPicture(), first);
    m_Box.SetImageType(2);
    EXPECT_EQ(m_Box.GetImage().GetRasterPicture(), first);
    CMessageBox::SetPicture(3, nullptr);
    m_Box.SetImageType(3);
    EXPECT_EQ(m_Box.GetImage().GetRasterPicture(), first);
    m_Box.GetImage().SetImageIndex(5);
    m_Box.SetImageType(2);
    EXPECT_EQ(m_Box.GetImage().GetImageIndex(), 5);
}

TEST_F(MessageBox, AReplacedPictureShowsFromTheNextTypeOn)
{
    auto const first = m_Looks.NewPicture(1, {4, 4});
    m_Box.SetImageType(1);
    auto const second = m_Looks.NewPicture(1, {8, 8});
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetImage().GetRasterPicture(), first);
    CMessageBox other(nullptr, {0, 0}, alTop);
    other.SetImageType(1);
    EXPECT_EQ(other.GetImage().GetRasterPicture(), second);
    m_Box.SetImageType(1);
    EXPECT_EQ(m_Box.GetImage().GetRasterPicture(), second);
    CMessageBox::SetPicture(1, nullptr);
    m_Host.Paint();
    EXPECT_EQ(m_Box.GetImage().GetRasterPicture(), second);
}

TEST_F(MessageBox, ButtonsHaveTheCaptionsOfTheirBits)
{
    CMessageBox::SetButtonCaption(1, "Yes");
    CMessageBox::SetButtonCaption(4, "No");
    EXPECT_EQ(CMessageBox::GetButtonCaption(1), "Yes");
    EXPECT_EQ(CMessageBox::GetButtonCaption(2), "");
    EXPECT_EQ(CMessageBox::GetButtonCaption(4), "No");
    m_Box.GetButtons().SetButtons(7);
    EXPECT_EQ(ButtonOf(m_Box, 0).GetCaption(), "Yes");
    EXPECT_EQ(ButtonOf(m_Box, 1).GetCaption(), "<Unassigned>");  // the question left no caption behind
    EXPECT_EQ(ButtonOf(m_Box, 2).GetCaption(), "No");
    CMessageBox::SetButtonCaption(1, "Certainly");
    EXPECT_EQ(ButtonOf(m_Box, 0).GetCaption(), "Yes");
    CMessageBox other(nullptr, {0, 0}, alTop);
    other.GetButtons().SetButtons(1);
    EXPECT_EQ(ButtonOf(other, 0).GetCaption(), "Certainly");
}

TEST_F(MessageBox, ABoxWithoutSharedLooksSaysSo)
{
    m_Box.SetImageType(0);
    m_Box.GetButtons().SetButtons(127);
    EXPECT_FALSE(m_Box.GetImage().IsAssigned());
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(ButtonOf(m_Box, i).GetCaption(), "<Unassigned>");
}

// Themes and windows ------------------------------------------------------------------------------------------------------------

TEST_F(MessageBox, ItsColoursFollowTheDesktop)
{
    Show(0, "Disk", "About");
    EXPECT_EQ(m_Host.PixelAt(200, 5), _color(0xFFC0C0C0u));
    CTestHost::System().GetMemoryPalette().SetColor(ISysPalette::scFace, color_table[13]);
    m_Host.SysColorChange();
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(200, 5), color_table[13]);
    EXPECT_EQ(m_Host.PixelAt(200, 30), color_table[13]);  // see-through texts
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(MessageBox, AllWorksWhenTheWindowIsGone)
{
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "Disk", "About");
    m_Host.DestroyWindow();
    m_Box.GetTitle().SetCaption("Disk full");
    m_Box.GetText().SetCaption("one\ntwo");
    m_Box.GetButtons().SetButtons(3);
    m_Box.SetImageType(1);
    m_Box.KeepTextWidth();
    m_Box.AttributeChanged();
    EXPECT_EQ(Spaces(), "20 14");
}

TEST_F(MessageBox, PartsThatDieBeforeTheirBoxAreNobodysProperty)
{
    m_Looks.NewPicture(1, {32, 32});
    Show(1, "Disk", "About");
    m_Box.GetButtons().SetButtons(3);
    m_Box.SetControl(nullptr);
    m_Box.SetControl(m_Host.Root()->GetControl());
    EXPECT_EQ(Spaces(), "20 14");
    delete &m_Box;
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
}
