// A native control inside the tree.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/recording_window.h"
#include "tests/support/scripted_system.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/layout/container.h"
#include "vexel/platform/memory/memory_edit.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A native control that writes down what is asked of it.
class CNative : public ICustomControl
{
public:
    CNative(CCallLog& log, bool* alive) : m_Log(log), m_Alive(alive) { *m_Alive = true; }
    ~CNative() override { *m_Alive = false; }

    rectangle<int> m_Natural{5, 7, 25, 30};  // where it stands after a refresh
    std::string m_Text = "text";

    void SetPos(int left, int top, int width, int height) override
    {
        Note("SetPos", std::to_string(left) + " " + std::to_string(top) + " " + std::to_string(width) + " " +
                           std::to_string(height));
        m_Rect = {left, top, left + width, top + height};
    }
    rectangle<int> GetRect() const override { return m_Rect; }
    void SetVisible(bool visible) override
    {
        Note(visible ? "show" : "hide");
        m_Visible = visible;
    }
    bool IsVisible() const override { return m_Visible; }
    void SetFocus() override { Note("SetFocus"); }
    void SetEnabled(bool enabled) override { Note(enabled ? "enable" : "disable"); }
    void Refresh() override
    {
        Note("Refresh");
        m_Rect = m_Natural;
    }
    std::string GetText() const override { return m_Text; }

private:
    void Note(std::string const& what, std::string const& arguments = "") { m_Log.Add("native", what, arguments); }

    CCallLog& m_Log;
    bool* m_Alive;
    rectangle<int> m_Rect;
    bool m_Visible = false;
};

class CLoggedContainer : public CContainer
{
public:
    CLoggedContainer(CCallLog& log, CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CContainer(parent, extent, alignment), m_Log(log)
    {}
    void SetPos(rectangle<int> const& rect, bool force) override
    {
        m_Log.Add("container", "SetPos", Text(rect) + (force ? ", force" : ""));
        CContainer::SetPos(rect, force);
    }
    void SetSize(size<int> const& extent, bool scale) override
    {
        m_Log.Add("container", "SetSize",
                  std::to_string(extent.width) + " " + std::to_string(extent.height) + (scale ? ", scale" : ""));
        CContainer::SetSize(extent, scale);
    }

protected:
    void FitControlPos(rectangle<int> const& rect) override { m_Log.Add("container", "Fit", Text(rect)); }

private:
    CCallLog& m_Log;
};

// A container at (10, 5, 60, 25) in a root of (0, 0, 100, 50), without a window.
class Container : public testing::Test
{
protected:
    Container()
    {
        m_Root.SetPos({0, 0, 100, 50}, false);
        m_Container->SetPos({10, 5, 60, 25}, false);
        m_Log.Clear();
    }
    void Host()
    {
        m_Container->SetNativeControl(m_Native.get());
        m_Log.Clear();
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    bool m_Alive = false;
    vexel_ptr<CNative> m_Native{new CNative(m_Log, &m_Alive)};
    CRecordingElement m_Root{m_Log, "root", nullptr, {0, 0}, alClient};
    CLoggedContainer* m_Container = new CLoggedContainer(m_Log, &m_Root, {50, 20}, alNone);
};

// Taking and giving up a control -----------------------------------------------------------------------------------

TEST_F(Container, HostsNothingAtFirst)
{
    EXPECT_EQ(m_Container->GetNativeControl(), nullptr);
    EXPECT_EQ(m_Container->GetOffset(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(m_Container->GetControlRect(), (rectangle<int>{0, 0, 0, 0}));
    m_Container->UpdateControlPos();
    m_Container->CheckVisible();
    m_Container->ProcessNeedToShow();
    m_Container->FitHeight();
    m_Container->FitWidth();
    m_Container->AttributeChanged();
    m_Container->HandleGetFocus(nullptr, true);
    m_Container->SetEnabled(false);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Container->AsString(), "");
}

TEST_F(Container, ANewControlIsShownAndPlaced)
{
    m_Container->SetNativeControl(m_Native.get());
    EXPECT_EQ(m_Log.Take(), "native.show() native.SetPos(10 5 50 20) container.Fit(10 5 60 25)");
    EXPECT_EQ(m_Container->GetNativeControl(), m_Native.get());
    EXPECT_EQ(m_Container->GetControlRect(), (rectangle<int>{10, 5, 60, 25}));
}

TEST_F(Container, ANewControlOfAHiddenContainerIsHidden)
{
    m_Container->SetVisible(false);
    m_Native->SetVisible(true);
    m_Log.Clear();
    m_Container->SetNativeControl(m_Native.get());
    EXPECT_FALSE(m_Native->IsVisible());
    EXPECT_EQ(m_Log.Take({"SetPos", "show"}), "");
    EXPECT_EQ(m_Container->GetControlRect(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(Container, SharesItsControl)
{
    m_Container->SetNativeControl(m_Native.get());
    m_Native.reset();
    EXPECT_TRUE(m_Alive);
    m_Container->SetNativeControl(nullptr);
    EXPECT_FALSE(m_Alive);
    EXPECT_EQ(m_Container->GetNativeControl(), nullptr);
}

TEST_F(Container, LetsItsControlGoWhenItDies)
{
    m_Container->SetNativeControl(m_Native.get());
    delete m_Container;
    EXPECT_EQ(m_Native->GetRefCount(), 1);
    m_Native->m_SigFocusIn(m_Native.get());
}

TEST_F(Container, LetsItsControlGoWhenTheWindowDoes)
{
    m_Container->SetNativeControl(m_Native.get());
    m_Container->HandleControlDestroy();
    EXPECT_EQ(m_Native->GetRefCount(), 1);
    EXPECT_EQ(m_Container->GetNativeControl(), nullptr);
}

// Its place --------------------------------------------------------------------------------------------------------

TEST_F(Container, TheContentIsTheBoundsWithinTheOffsets)
{
    EXPECT_EQ(m_Container->GetContentRect(), (rectangle<int>{0, 0, 50, 20}));
    m_Container->SetOffset({1, 2, 3, 4});
    EXPECT_EQ(m_Container->GetOffset(), (rectangle<int>{1, 2, 3, 4}));
    EXPECT_EQ(m_Container->GetContentRect(), (rectangle<int>{1, 2, 47, 16}));
    m_Container->SetOffset({-1, -2, -3, -4});
    EXPECT_EQ(m_Container->GetContentRect(), (rectangle<int>{-1, -2, 53, 24}));
}

TEST_F(Container, TheContentOfReversedBoundsIsSorted)
{
    m_Container->SetOffset({1, 2, 3, 4});
    m_Container->SetPos({60, 25, 10, 5}, false);
    EXPECT_EQ(m_Container->GetContentRect(), (rectangle<int>{-49, -18, -3, -4}));
}

TEST_F(Container, AnotherOffsetPlacesTheControlAnew)
{
    Host();
    m_Container->SetOffset({1, 2, 3, 4});
    EXPECT_EQ(m_Log.Take(), "container.SetPos(10 5 60 25) native.SetPos(11 7 46 14) container.Fit(11 7 57 21)");
    m_Container->SetOffset({1, 2, 3, 4});
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Container, TheControlFollowsTheContainer)
{
    Host();
    m_Container->SetPos({20, 6, 50, 26}, false);
    EXPECT_EQ(m_Log.Take({"SetPos"}), "container.SetPos(20 6 50 26) native.SetPos(20 6 30 20)");
    EXPECT_EQ(m_Container->GetControlRect(), (rectangle<int>{20, 6, 50, 26}));
    m_Container->SetPos({20, 6, 50, 26}, false);
    EXPECT_EQ(m_Log.Take({"SetPos"}), "container.SetPos(20 6 50 26) native.SetPos(20 6 30 20)") << "also in place";
}

TEST_F(Container, TheControlCoversWhatIsDisplayable)
{
    Host();
    m_Container->SetPos({80, 40, 130, 60}, false);
    EXPECT_EQ(m_Log.Take({"SetPos"}), "container.SetPos(80 40 130 60) native.SetPos(80 40 20 10)");
    EXPECT_TRUE(m_Native->IsVisible());
}

TEST_F(Container, ANegativeLeftBecomesZero)
{
    Host();
    m_Root.SetPos({-20, -3, 80, 47}, false);
    m_Container->UpdateControlPos();
    EXPECT_EQ(m_Log.Take({"SetPos", "Fit"}),
              "root.SetPos(-20 -3 80 47, false) native.SetPos(0 2 40 20) container.Fit(0 2 40 22)");
    EXPECT_EQ(m_Container->GetControlRect(), (rectangle<int>{0, 2, 40, 22}));
}

TEST_F(Container, AControlWhollyToTheLeftGetsSortedEnds)
{
    Host();
    m_Root.SetPos({-70, 0, 30, 50}, false);
    m_Container->UpdateControlPos();
    EXPECT_EQ(m_Log.Take({"SetPos", "Fit"}),
              "root.SetPos(-70 0 30 50, false) native.SetPos(-10 5 10 20) container.Fit(0 5 -10 25)");
}

TEST_F(Container, OutsideOfTheDisplayableAreaItsControlIsHidden)
{
    Host();
    m_Container->SetPos({110, 5, 160, 25}, false);
    EXPECT_EQ(m_Log.Take({"SetPos", "hide"}), "container.SetPos(110 5 160 25) native.hide()");
    m_Container->ProcessNeedToShow();
    EXPECT_FALSE(m_Native->IsVisible());
    EXPECT_EQ(m_Container->GetControlRect(), (rectangle<int>{10, 5, 60, 25})) << "where it stood last";
}

TEST_F(Container, BackInTheDisplayableAreaItsControlIsToBeShown)
{
    Host();
    m_Container->SetPos({110, 5, 160, 25}, false);
    m_Container->SetPos({10, 5, 60, 25}, false);
    EXPECT_FALSE(m_Native->IsVisible());
    m_Log.Clear();
    m_Container->ProcessNeedToShow();
    EXPECT_EQ(m_Log.Take(), "native.show()");
    m_Container->ProcessNeedToShow();
    EXPECT_EQ(m_Log.Take(), "") << "once";
}

TEST_F(Container, OffsetsThatLeaveNothingHideTheControl)
{
    Host();
    m_Container->SetOffset({30, 0, 20, 0});
    EXPECT_FALSE(m_Native->IsVisible());
}

TEST_F(Container, EachLayoutAboveItPlacesTheControl)
{
    Host();
    m_Root.SetPos({7, 8, 107, 58}, false);
    m_Log.Clear();
    m_Root.RefreshPos();
    EXPECT_EQ(m_Log.Take({"SetPos"}), "native.SetPos(17 13 50 20)");
}

TEST_F(Container, PositionedByHandTheControlWaitsForItsOwner)
{
    Host();
    m_Container->SetManualControlPositioning(true);
    m_Root.SetPos({7, 8, 107, 58}, false);
    m_Log.Clear();
    m_Root.RefreshPos();
    EXPECT_EQ(m_Log.Take({"SetPos"}), "");
    m_Container->UpdateControlPos();
    EXPECT_EQ(m_Log.Take({"SetPos"}), "native.SetPos(17 13 50 20)");
    m_Container->SetPos({11, 5, 61, 25}, false);
    EXPECT_EQ(m_Log.Take({"SetPos"}), "container.SetPos(11 5 61 25) native.SetPos(18 13 50 20)");
    m_Container->SetManualControlPositioning(false);
    m_Root.RefreshPos();
    EXPECT_EQ(m_Log.Take({"SetPos"}), "native.SetPos(18 13 50 20)");
}

// Natural extents --------------------------------------------------------------------------------------------------

TEST_F(Container, FitsItsHeightToTheRefreshedControlAndTheOffsetsDifference)
{
    m_Container->SetOffset({1, 2, 3, 4});
    Host();
    m_Container->FitHeight();
    EXPECT_EQ(m_Log.Take({"Refresh", "SetSize"}), "native.Refresh() container.SetSize(50 21)") << "30 + 2 - (7 + 4)";
}

TEST_F(Container, FitsItsWidthToTheRefreshedControlAndTheOffsetsDifference)
{
    m_Container->SetOffset({1, 2, 4, 3});
    Host();
    m_Container->FitWidth();
    EXPECT_EQ(m_Log.Take({"Refresh", "SetSize"}), "native.Refresh() container.SetSize(17 20)") << "25 + 1 - (5 + 4)";
}

TEST_F(Container, FittedExtentsAreNotScaled)
{
    m_System.SetScale(2.0);
    Host();
    m_Container->FitHeight();
    m_Container->FitWidth();
    EXPECT_EQ(m_Log.Take({"SetSize"}), "container.SetSize(50 23) container.SetSize(20 23)");
}

// Visibility -------------------------------------------------------------------------------------------------------

TEST_F(Container, HidingItHidesTheControl)
{
    Host();
    m_Container->SetVisible(false);
    EXPECT_FALSE(m_Native->IsVisible());
    m_Container->ProcessNeedToShow();
    EXPECT_FALSE(m_Native->IsVisible());
}

TEST_F(Container, HidingAnAncestorHidesTheControl)
{
    Host();
    m_Root.SetVisible(false);
    EXPECT_FALSE(m_Native->IsVisible());
    m_Root.SetVisible(true);
    EXPECT_FALSE(m_Native->IsVisible());
    m_Container->ProcessNeedToShow();
    EXPECT_TRUE(m_Native->IsVisible());
}

TEST_F(Container, AnAncestorThatIsShownDoesNotShowTheControlOfAHiddenContainer)
{
    Host();
    m_Root.SetVisible(false);
    m_Container->SetVisible(false);
    m_Root.SetVisible(true);
    m_Container->ProcessNeedToShow();
    EXPECT_FALSE(m_Native->IsVisible());
}

TEST_F(Container, AControlThatIsShownNeedNotBeShown)
{
    Host();
    m_Container->CheckVisible();
    m_Container->ProcessNeedToShow();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Container, APlacedControlThatIsShownNeedNotBeShown)
{
    Host();
    m_Container->UpdateControlPos();
    m_Log.Clear();
    m_Container->ProcessNeedToShow();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Container, TheWishToShowGoesWithThePlace)
{
    Host();
    m_Native->SetVisible(false);
    m_Container->UpdateControlPos();
    m_Container->SetPos({110, 5, 160, 25}, false);
    m_Log.Clear();
    m_Container->ProcessNeedToShow();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Container, CheckingNotesThatAHiddenControlIsToBeShown)
{
    Host();
    m_Native->SetVisible(false);
    m_Log.Clear();
    m_Container->CheckVisible();
    EXPECT_EQ(m_Log.Take(), "");
    m_Container->ProcessNeedToShow();
    EXPECT_EQ(m_Log.Take(), "native.show()");
}

TEST_F(Container, TheWishToShowGoesWithTheVisibility)
{
    Host();
    m_Native->SetVisible(false);
    m_Container->CheckVisible();
    m_Root.SetVisible(false);
    m_Container->ProcessNeedToShow();
    EXPECT_FALSE(m_Native->IsVisible());
}

// State ------------------------------------------------------------------------------------------------------------

TEST_F(Container, DisablingItDisablesTheControl)
{
    Host();
    m_Container->SetEnabled(false);
    EXPECT_EQ(m_Log.Take(), "native.disable() native.Refresh()");
    EXPECT_FALSE(m_Container->IsEnabled());
    m_Container->SetEnabled(true);
    EXPECT_EQ(m_Log.Take(), "native.enable() native.Refresh()");
    m_Container->SetEnabled(true);
    EXPECT_EQ(m_Log.Take(), "native.enable()") << "the control is told each time";
}

TEST_F(Container, AnotherLookRefreshesTheControlAlone)
{
    Host();
    m_Container->SetBkColor(color_table[3]);
    EXPECT_EQ(m_Log.Take(), "native.Refresh()");
    font larger;
    larger.size = 12;
    m_Container->SetFont(larger);
    EXPECT_EQ(m_Log.Take(), "native.Refresh()");
}

TEST_F(Container, ItsTextIsTheControls)
{
    EXPECT_EQ(m_Container->HandleAsString(), "");
    Host();
    EXPECT_EQ(m_Container->HandleAsString(), "text");
    EXPECT_EQ(m_Root.AsString(), "text");
}

TEST_F(Container, TheFocusGoesToTheControl)
{
    Host();
    m_Container->HandleGetFocus(nullptr, true);
    EXPECT_EQ(m_Log.Take(), "native.SetFocus()");
    m_Container->HandleGetFocus(&m_Root, false);
    EXPECT_EQ(m_Log.Take(), "native.SetFocus()");
}

// A control of the tree that says whether Tab is being processed.
class CTabControl : public CRecordingControl
{
public:
    using CRecordingControl::CRecordingControl;
    bool m_Tab = true;
    bool IsTabKeyProcessing() const override { return m_Tab; }
};

TEST_F(Container, TheFocusThatLeavesByTabTakesTheNativeOneToTheWindow)
{
    CRecordingWindow window(m_Log, 100, 50);
    CTabControl control(m_Log);
    control.m_Window = &window;
    Host();
    m_Root.SetControl(&control);
    m_Log.Clear();

    m_Container->HandleLostFocus(nullptr);
    EXPECT_EQ(m_Log.Take(), "") << "nobody takes it";
    control.m_Tab = false;
    m_Container->HandleLostFocus(&m_Root);
    EXPECT_EQ(m_Log.Take(), "") << "not by Tab";
    control.m_Tab = true;
    m_Container->HandleLostFocus(&m_Root);
    EXPECT_EQ(m_Log.Take(), "window.SetFocus()");
    control.m_Window = nullptr;
    m_Container->HandleLostFocus(&m_Root);
    EXPECT_EQ(m_Log.Take(), "");

    m_Root.SetControl(nullptr);
    m_Container->HandleLostFocus(&m_Root);
}

// In a window, with a real line edit: a container at (0, 0, 99, 20) above a field ------------------------------------

class ContainerInWindow : public testing::Test
{
protected:
    ContainerInWindow()
    {
        m_Host.Name(*m_Container, "container");
        m_Container->SetCanHaveFocus(true);
        m_Field->SetCanHaveFocus(true);
        vexel_ptr<IEdit> const edit = m_Host.Window().CreateEdit(false);
        m_Container->SetNativeControl(edit.get());
    }
    memory::CMemoryEdit* Edit() { return m_Host.Native<memory::CMemoryEdit>(); }

    CTestHost m_Host{100, 50};
    CContainer* m_Container = new CContainer(m_Host.Root(), {0, 20}, alTop);
    CVisualElement* m_Field = new CVisualElement(m_Host.Root(), {0, 0}, alClient);
};

TEST_F(ContainerInWindow, TheControlAppearsWithThePaintOfItsHostAndNotBefore)
{
    EXPECT_FALSE(Edit()->IsVisible()) << "nothing is laid out yet";
    m_Host.Paint();
    EXPECT_TRUE(Edit()->IsVisible());
    EXPECT_EQ(Edit()->GetRect(), (rectangle<int>{0, 0, 99, 20}));
}

TEST_F(ContainerInWindow, MadeVisibleItShowsItsControlAtTheNextPaint)
{
    m_Host.Paint();
    m_Container->SetVisible(false);
    EXPECT_FALSE(Edit()->IsVisible());
    m_Host.Paint();
    EXPECT_FALSE(Edit()->IsVisible());
    m_Container->SetVisible(true);
    EXPECT_FALSE(Edit()->IsVisible());
    m_Host.Paint();
    EXPECT_TRUE(Edit()->IsVisible());
}

TEST_F(ContainerInWindow, FillsItsBoundsBehindTheControl)
{
    m_Container->SetOffset({5, 5, 5, 5});
    m_Container->SetBkColor(color_table[3]);
    EXPECT_THAT(m_Host.FullPaint().Of("container"), Draws("SetBrush yellow").Then("FillRect 0 0 99 20"));
    EXPECT_EQ(m_Host.PixelAt(99, 20), color_table[3]);
}

TEST_F(ContainerInWindow, APaintPlacesTheControlAnew)
{
    m_Host.Paint();
    m_Container->SetManualControlPositioning(true);
    Edit()->SetPos(70, 30, 5, 5);
    m_Container->Update(utElement);
    m_Host.Paint();
    EXPECT_EQ(Edit()->GetRect(), (rectangle<int>{0, 0, 99, 20}));
}

TEST_F(ContainerInWindow, AnotherLookDoesNotRepaintTheContainer)
{
    m_Host.Paint();
    m_Container->SetBkColor(color_table[3]);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(ContainerInWindow, ALayoutMovesTheControl)
{
    auto* const above = new CVisualElement(m_Host.Root(), {0, 10}, alTop);
    m_Host.Root()->GetChildren()->MoveItem(2, 0);
    above->OnRearrange(above);
    m_Host.Paint();
    EXPECT_EQ(Edit()->GetRect(), (rectangle<int>{0, 11, 99, 31}));
}

TEST_F(ContainerInWindow, AControlThatGetsTheNativeFocusMakesItsContainerTheFocusedElement)
{
    m_Host.Paint();
    m_Host.Focus();
    m_Field->SetFocus(true);
    m_Host.Mouse().Click(20, 10);
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), m_Container);
    EXPECT_EQ(m_Host.System().GetFocusNode(), Edit()) << "without a native focus request for the window";
    EXPECT_FALSE(m_Host.Window().HasFocus());
}

TEST_F(ContainerInWindow, AFormerControlDoesNotTakeTheFocusAnyMore)
{
    m_Host.Paint();
    m_Host.Focus();
    m_Field->SetFocus(true);
    vexel_ptr<ICustomControl> const former(m_Container->GetNativeControl());
    m_Container->SetNativeControl(nullptr);
    former->m_SigFocusIn(former.get());
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), m_Field);
}

TEST_F(ContainerInWindow, AReplacedControlDoesNotTakeTheFocusAnyMoreButTheNewOneDoes)
{
    m_Host.Paint();
    m_Field->SetFocus(true);
    vexel_ptr<ICustomControl> const former(m_Container->GetNativeControl());
    vexel_ptr<IEdit> const edit = m_Host.Window().CreateEdit(false);
    m_Container->SetNativeControl(edit.get());
    former->m_SigFocusIn(former.get());
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), m_Field);
    edit->m_SigFocusIn(edit.get());
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), m_Container);
}

TEST_F(ContainerInWindow, TheFocusOfTheContainerGoesToTheControl)
{
    m_Host.Paint();
    m_Host.Focus();
    m_Container->SetFocus(true);
    EXPECT_EQ(m_Host.System().GetFocusNode(), Edit());
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), m_Container);
    m_Host.Keyboard().Type("ab");
    EXPECT_EQ(m_Container->AsString(), "ab");
}

TEST_F(ContainerInWindow, ByTabTheNativeFocusGoesBackToTheWindow)
{
    m_Host.Paint();
    m_Host.Focus();
    m_Container->SetFocus(true);
    CKeyboardEvent tab(0, vkTab);
    m_Host.Control().OnKeyDown(&tab);
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), m_Field);
    EXPECT_TRUE(m_Host.Window().HasFocus());
}

TEST_F(ContainerInWindow, ByCodeTheNativeFocusStaysWithTheControl)
{
    m_Host.Paint();
    m_Host.Focus();
    m_Container->SetFocus(true);
    m_Field->SetFocus(false);
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), m_Field);
    EXPECT_EQ(m_Host.System().GetFocusNode(), Edit());
}

TEST_F(ContainerInWindow, TheControlGoesWithTheWindow)
{
    m_Host.Paint();
    m_Host.DestroyWindow();
    EXPECT_EQ(m_Container->GetNativeControl(), nullptr);
    EXPECT_EQ(m_Container->AsString(), "");
}

TEST_F(ContainerInWindow, TheControlGoesWithTheContainer)
{
    m_Host.Paint();
    delete m_Container;
    EXPECT_EQ(Edit(), nullptr);
}

}  // namespace
