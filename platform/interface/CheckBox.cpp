// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/field_peers.h"

#include <CheckBox.h>
#include <Message.h>

using namespace kits;


BCheckBox::BCheckBox(BRect frame, const char* name, const char* label, BMessage* message,
	uint32 resizingMode, uint32 flags)
	: BControl(frame, name, label, message, resizingMode, flags)
{
}


void
BCheckBox::MessageReceived(BMessage* message)
{
	if (message->what != control_invoked) {
		BControl::MessageReceived(message);
		return;
	}
	SetValue(Value() == B_CONTROL_OFF ? B_CONTROL_ON : B_CONTROL_OFF);
	Invoke();
}


void
BCheckBox::_MakePeer()
{
	_SetWidget(field_peers::make_check_box(
		_ParentWidget(), _PeerFrame(), !IsHidden(this), _Look(), {_WindowToken(), _Token()}));
}


void
BCheckBox::_TellPeer()
{
	if (_Widget())
		field_peers::set_check_box(_Widget(), _Look());
}
