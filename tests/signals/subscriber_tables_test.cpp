#include "vexel/signals/notify.h"

#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>

using namespace vexelbase;

namespace
{

std::type_info const& timer = typeid(ITimerNotify);
std::type_info const& click = typeid(IMouseClickNotify);
std::type_info const& focus = typeid(IFocusNotify);

class Table : public testing::Test
{
protected:
    std::unique_ptr<ISubscribersTable> table{CreateDefSubscribersTable()};
    CTimerNotify a, b, c;
};

TEST_F(Table, HasNoListForAnUnsupportedType)
{
    EXPECT_EQ(table->GetList(timer), nullptr);
    EXPECT_TRUE(table->IsEmpty(timer));
    EXPECT_EQ(table->GetCount(timer), 0);
    EXPECT_EQ(table->FindFirstList(&a, true), nullptr);
    EXPECT_EQ(table->GetAny(), nullptr);
}

TEST_F(Table, HasOneListPerSupportedTypeThatStaysWhereItIs)
{
    table->SetSupportedEvent(timer);
    ISubscribersList* const list = table->GetList(timer);
    ASSERT_NE(list, nullptr);
    table->SetSupportedEvent(click);
    table->SetSupportedEvent(timer);
    EXPECT_EQ(table->GetList(timer), list);
    EXPECT_NE(table->GetList(click), list);
}

TEST_F(Table, TellsEmptyTypesFromOthers)
{
    table->SetSupportedEvent(timer);
    table->SetSupportedEvent(click);
    table->GetList(timer)->Add(&a);
    table->GetList(timer)->Add(&b);
    EXPECT_FALSE(table->IsEmpty(timer));
    EXPECT_TRUE(table->IsEmpty(click));
    EXPECT_EQ(table->GetCount(timer), 2);
    EXPECT_EQ(table->GetAny(), &a);
    table->Clear();
    EXPECT_TRUE(table->IsEmpty(timer));
    EXPECT_EQ(table->GetAny(), nullptr);
}

TEST_F(Table, SearchGoesThroughTheListsThatHaveTheSubscriberAlsoWhenItLeavesThem)
{
    for (std::type_info const* type : {&timer, &click, &focus})
        table->SetSupportedEvent(*type);
    table->GetList(timer)->Add(&a);
    table->GetList(focus)->Add(&a);
    table->GetList(click)->Add(&b);

    ISubscribersList* list = table->FindFirstList(&a, true);
    EXPECT_EQ(list, table->GetList(timer));
    list->Remove(&a);
    table->FindNextList(&list);
    EXPECT_EQ(list, table->GetList(focus));
    list->Remove(&a);
    table->FindNextList(&list);
    EXPECT_EQ(list, nullptr);
}

TEST_F(Table, ASearchThatIsNotToBeRememberedLeavesTheRememberedOneAlone)
{
    table->SetSupportedEvent(timer);
    table->SetSupportedEvent(click);
    table->GetList(timer)->Add(&a);
    table->GetList(timer)->Add(&b);
    table->GetList(click)->Add(&a);
    ISubscribersList* list = table->FindFirstList(&a, true);
    EXPECT_EQ(table->FindFirstList(&b, false), table->GetList(timer));
    table->FindNextList(&list);
    EXPECT_EQ(list, table->GetList(click));
}

TEST_F(Table, AListKeepsItsOrder)
{
    table->SetSupportedEvent(timer);
    ISubscribersList* const list = table->GetList(timer);
    list->Add(&a);
    list->Add(&b);
    list->AddToFront(&c);
    ASSERT_EQ(list->GetCount(), 3);
    EXPECT_EQ(list->GetItem(0), &c);
    EXPECT_EQ(list->GetItem(1), &a);
    EXPECT_EQ(list->GetItem(2), &b);
    EXPECT_TRUE(list->Contains(&b));
    list->Remove(&a);
    EXPECT_FALSE(list->Contains(&a));
    EXPECT_EQ(list->GetItem(1), &b);
}

TEST_F(Table, AListDropsEveryEntryOfASubscriber)
{
    table->SetSupportedEvent(timer);
    ISubscribersList* const list = table->GetList(timer);
    list->Add(&a);
    list->Add(&b);
    list->Add(&a);
    list->Remove(&a);
    ASSERT_EQ(list->GetCount(), 1);
    EXPECT_EQ(list->GetItem(0), &b);
    list->Remove(&a);
    EXPECT_EQ(list->GetCount(), 1);
}

TEST_F(Table, AnItemOutsideAListThrowsCancelProcessing)
{
    table->SetSupportedEvent(timer);
    ISubscribersList* const list = table->GetList(timer);
    EXPECT_THROW(list->GetItem(0), cancel_processing);
    list->Add(&a);
    EXPECT_EQ(list->GetItem(0), &a);
    EXPECT_THROW(list->GetItem(1), cancel_processing);
    EXPECT_THROW(list->GetItem(-1), cancel_processing);
}

TEST(SenderList, GivesAnySenderUntilAllAreRemoved)
{
    std::unique_ptr<IEventSenderList> const list(CreateDefSenderList());
    CImplEventSender<IEventSender> one, two;
    EXPECT_EQ(list->First(), nullptr);
    EXPECT_FALSE(list->Contains(&one));
    list->Add(&one);
    list->Add(&two);
    EXPECT_TRUE(list->Contains(&two));
    IEventSender* const first = list->First();
    ASSERT_NE(first, nullptr);
    list->Remove(first);
    EXPECT_NE(list->First(), first);
    list->Remove(list->First());
    EXPECT_EQ(list->First(), nullptr);
    list->Remove(&one);
    EXPECT_EQ(list->First(), nullptr);
}

}  // namespace
