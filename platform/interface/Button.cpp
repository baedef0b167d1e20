// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/field_peers.h"

#include <Button.h>
#include <cmath>
#include <Message.h>

using namespace kits;


BButton::BButton(BRect frame, const char* name, const char* label, BMessage* message,
	uint32 resizingMode, uint32 flags)
	: BControl(frame, name, label, message, resizingMode, flags)
{
}


void
BButton::MessageReceived(BMessage* message)
{
	if (message->what != control_invoked) {
		BControl::MessageReceived(message);
		return;
	}
	SetValue(B_CONTROL_ON);
	Invoke();
	SetValue(B_CONTROL_OFF);
}


void
BButton::_MakePeer()
{
	_SetWidget(field_peers::make_button(
		_ParentWidget(), _PeerFrame(), !IsHidden(this), _Look(), {_WindowToken(), _Token()}));
}


void
BButton::_TellPeer()
{
	if (_Widget())
		field_peers::set_button(_Widget(), _Look());
}
