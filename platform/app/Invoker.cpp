// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include <Errors.h>
#include <Handler.h>
#include <Invoker.h>
#include <Looper.h>
#include <Message.h>


BInvoker::BInvoker() = default;


BInvoker::BInvoker(BMessage* message) : fMessage(message) {}


BInvoker::~BInvoker() = default;


status_t
BInvoker::SetMessage(BMessage* message)
{
	if (message != fMessage.get())
		fMessage.reset(message);
	return B_OK;
}


BMessage*
BInvoker::Message() const
{
	return fMessage.get();
}


uint32
BInvoker::Command() const
{
	return fMessage ? fMessage->what : 0;
}


status_t
BInvoker::SetTarget(const BHandler* handler, const BLooper* looper)
{
	return fTarget.SetTo(handler, looper);
}


status_t
BInvoker::SetTarget(BMessenger messenger)
{
	fTarget = messenger;
	return B_OK;
}


BHandler*
BInvoker::Target(BLooper** looper) const
{
	return fTarget.Target(looper);
}


BMessenger
BInvoker::Messenger() const
{
	return fTarget;
}


status_t
BInvoker::Invoke(BMessage* message)
{
	if (!message)
		message = fMessage.get();
	return message ? fTarget.SendMessage(message) : B_BAD_VALUE;
}
