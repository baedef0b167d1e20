// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/registry.h"

#include <Handler.h>
#include <Looper.h>


BHandler::BHandler(const char* name)
	: fToken(kits::registry::enter(this)),
	  fLooper(nullptr),
	  fNext(nullptr),
	  fName(name ? name : "")
{
}


BHandler::~BHandler()
{
	BLooper* looper = Looper();
	if (looper && looper != this)
		looper->RemoveHandler(this);
	kits::registry::leave(fToken);
}


void
BHandler::MessageReceived(BMessage* message)
{
	if (fNext)
		fNext->MessageReceived(message);
}


BLooper*
BHandler::Looper() const
{
	return fLooper.load();
}


const char*
BHandler::Name() const
{
	return fName.c_str();
}


void
BHandler::SetName(const char* name)
{
	fName = name ? name : "";
}


void
BHandler::SetNextHandler(BHandler* handler)
{
	fNext = handler;
}


BHandler*
BHandler::NextHandler() const
{
	return fNext;
}
