// The order of virtual operations is binary interface: new ones go last.

#include "tests/support/virtual_order.h"
#include "vexel/platform/events.h"
#include "vexel/signals/notify.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <typeinfo>
#include <vector>

using namespace vexelbase;
using namespace vexel::test;

namespace
{

TEST(VirtualOrder, OfNotifyInterfaces)
{
    ExpectOrder(2, &INotify::NoticeStarted, &INotify::NoticeStopped);
    ExpectOrder(4, &IDrawingNotify::OnDraw);
    ExpectOrder(4, &IMouseNotify::OnButtonDown, &IMouseNotify::OnButtonUp, &IMouseNotify::OnMouseMove,
                &IMouseNotify::OnWheel);
    ExpectOrder(4, &IMouseClickNotify::OnClick, &IMouseClickNotify::OnDoubleClick);
    ExpectOrder(4, &IMouseHoverNotify::OnHover, &IMouseHoverNotify::OnLeave);
    ExpectOrder(4, &IKeyboardNotify::OnKeyDown, &IKeyboardNotify::OnKeyUp, &IKeyboardNotify::OnChar);
    ExpectOrder(4, &IWindowNotify::OnResize, &IWindowNotify::OnMove, &IWindowNotify::OnDestroy, &IWindowNotify::OnShow,
                &IWindowNotify::OnHide);
    ExpectOrder(4, &IFocusNotify::OnGetFocus, &IFocusNotify::OnLostFocus);
    ExpectOrder(4, &ITimerNotify::OnTimer);
    ExpectOrder(4, &IContextMenuNotify::OnContextMenu);
    ExpectOrder(4, &ITooltipNotify::OnTooltip, &ITooltipNotify::OnTooltipTrack);
    ExpectOrder(4, &IScrollNotify::OnHorzScroll, &IScrollNotify::OnVertScroll);
    ExpectOrder(4, &ICustomEventNotify::OnCustomEvent);
    ExpectOrder(4, &ISystemNotify::OnSysColorChanged);
    ExpectOrder(4, &IScrollBarNotify::ScrollBarOnScroll);
    ExpectOrder(4, &IEditNotify::EditOnChangeText, &IEditNotify::EditOnChar, &IEditNotify::EditOnKeyDown,
                &IEditNotify::EditOnReturnPress, &IEditNotify::EditOnVisibleChange, &IEditNotify::EditOnMouseWheel);
}

TEST(VirtualOrder, OfSendersAndTheirLists)
{
    using TypedLeave = bool (IEventSender::*)(INotify*, std::type_info const&, bool);
    using Leave = bool (IEventSender::*)(INotify*, bool);
    ExpectOrder(2, &IEventSender::SubscribeToFront, &IEventSender::Subscribe,
                static_cast<TypedLeave>(&IEventSender::Unsubscribe), static_cast<Leave>(&IEventSender::Unsubscribe),
                &IEventSender::SetSupportedEvent, &IEventSender::IsEventSupported, &IEventSender::FireEvent,
                &IEventSender::IsSubscribed, &IEventSender::GetSubscribersCount, &IEventSender::StopEventSending);
    ExpectOrder(2, &IEventSenderList::First, &IEventSenderList::Add, &IEventSenderList::Remove,
                &IEventSenderList::Contains);
    ExpectOrder(2, &ISubscribersTable::SetSupportedEvent, &ISubscribersTable::GetList,
                &ISubscribersTable::FindFirstList, &ISubscribersTable::FindNextList);
    ExpectOrder(7, &ISubscribersTable::IsEmpty, &ISubscribersTable::GetCount);
    ExpectOrder(2, &ISubscribersList::AddToFront, &ISubscribersList::Add, &ISubscribersList::Remove);
    ExpectOrder(6, &ISubscribersList::GetCount, &ISubscribersList::GetItem);
}

TEST(VirtualOrder, TheContinueFlagFollowsTheHeaderOfAnEvent)
{
    CMouseWheelEvent event;
    auto const* const bytes = reinterpret_cast<unsigned char const*>(static_cast<CEvent*>(&event));
    EXPECT_EQ(bytes[sizeof(void*)], 1);
    event.SetContinue(false);
    EXPECT_EQ(bytes[sizeof(void*)], 0);
}

}  // namespace
