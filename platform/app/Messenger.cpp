// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/port.h"
#include "app/registry.h"

#include <Errors.h>
#include <Looper.h>
#include <Message.h>
#include <Messenger.h>

using namespace kits;

BMessenger be_app_messenger;


BMessenger::BMessenger() : fLooper(no_token), fHandler(no_token) {}


BMessenger::BMessenger(const BHandler* handler, const BLooper* looper, status_t* result)
	: BMessenger()
{
	status_t status = SetTo(handler, looper);
	if (result)
		*result = status;
}


status_t
BMessenger::SetTo(const BHandler* handler, const BLooper* looper)
{
	fLooper = fHandler = no_token;
	if (!handler && !looper)
		return B_BAD_VALUE;
	if (!handler) {
		fLooper = looper->fToken;
		fHandler = preferred_handler;
		return B_OK;
	}
	int32 home = registry::looper_of(handler->fToken);
	if (home < 0 || (looper && looper->fToken != home))
		return B_MISMATCHED_VALUES;
	fLooper = home;
	fHandler = handler->fToken;
	return B_OK;
}


status_t
BMessenger::SendMessage(uint32 command, BHandler* replyTo) const
{
	BMessage message(command);
	return SendMessage(&message, replyTo);
}


status_t
BMessenger::SendMessage(BMessage* message, BHandler* replyTo, bigtime_t timeout) const
{
	return SendMessage(message, replyTo ? BMessenger(replyTo) : BMessenger(), timeout);
}


status_t
BMessenger::SendMessage(BMessage* message, BMessenger replyTo, bigtime_t) const
{
	if (!message)
		return B_BAD_VALUE;
	std::shared_ptr<port> messages = registry::port_of(fLooper);
	if (!messages)
		return B_BAD_PORT_ID;
	if (fHandler != preferred_handler && !registry::find(fHandler, fLooper))
		return B_BAD_HANDLER;
	auto copy = std::make_unique<BMessage>(*message);
	copy->fReply = replyTo;
	return messages->post(std::move(copy), fHandler) ? B_OK : B_BAD_PORT_ID;
}


bool
BMessenger::IsValid() const
{
	if (!registry::port_of(fLooper))
		return false;
	return fHandler == preferred_handler || registry::find(fHandler, fLooper);
}


BHandler*
BMessenger::Target(BLooper** looper) const
{
	if (looper)
		*looper = static_cast<BLooper*>(registry::find(fLooper, fLooper));
	return registry::find(fHandler, fLooper);
}


bool
BMessenger::operator==(const BMessenger& other) const
{
	return fLooper == other.fLooper && fHandler == other.fHandler;
}
