// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "app/invocation.h"
#include "display/control_look.h"
#include "interface/peer_access.h"
#include "interface/view_state.h"

#include <Control.h>
#include <Errors.h>
#include <Message.h>
#include <Window.h>

using namespace kits;


BControl::BControl(BRect frame, const char* name, const char* label, BMessage* message,
	uint32 resizingMode, uint32 flags)
	: BView(frame, name, resizingMode, flags),
	  BInvoker(message),
	  fLabel(label ? label : ""),
	  fValue(B_CONTROL_OFF),
	  fEnabled(true)
{
}


BControl::~BControl() = default;


void
BControl::SetLabel(const char* label)
{
	fLabel = label ? label : "";
	_TellPeer();
}


const char*
BControl::Label() const
{
	return fLabel.c_str();
}


void
BControl::SetValue(int32 value)
{
	if (value == fValue)
		return;
	fValue = value;
	_TellPeer();
}


int32
BControl::Value() const
{
	return fValue;
}


void
BControl::SetEnabled(bool enabled)
{
	if (enabled == fEnabled)
		return;
	fEnabled = enabled;
	if (!enabled && IsFocus())
		MakeFocus(false);
	_TellPeer();
}


bool
BControl::IsEnabled() const
{
	return fEnabled;
}


status_t
BControl::Invoke(BMessage* message)
{
	std::optional<BMessage> sent = invocation(*this, message, this);
	if (!sent)
		return B_BAD_VALUE;
	sent->AddInt32("be:value", fValue);
	sent->AddMessenger("be:sender", BMessenger(this));
	return BInvoker::Invoke(&*sent);
}


void
BControl::SetFont(const BFont* font, uint32 mask)
{
	BView::SetFont(font, mask);
	_TellPeer();
}


void
BControl::AttachedToWindow()
{
	view_access::take_parent_colors(*this);
	if (Window() && !Messenger().IsValid())
		SetTarget(Window());
	// Made with the window's colours; these are the parent's.
	_TellPeer();
}


bool
BControl::_IsPainted() const
{
	return false;
}


bool
BControl::_TakesKeyboard() const
{
	return fEnabled;
}


control_look
BControl::_Look() const
{
	control_look look = view_access::look_of(*this, fLabel);
	look.value = fValue;
	look.enabled = fEnabled;
	return look;
}


void
BControl::_TellPeer()
{
}


const peer_ref&
BControl::_Widget() const
{
	return fState->widget;
}


void
BControl::_SetWidget(peer_ref widget)
{
	fState->widget = std::move(widget);
}
