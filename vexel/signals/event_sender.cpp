#include "vexel/signals/event_sender.h"

namespace vexelbase
{

INotify::~INotify() = default;
IEventSender::~IEventSender() = default;
IEventSenderList::~IEventSenderList() = default;
ISubscribersList::~ISubscribersList() = default;
ISubscribersTable::~ISubscribersTable() = default;

}  // namespace vexelbase
