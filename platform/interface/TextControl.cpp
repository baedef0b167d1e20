// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/field_peers.h"

#include <cmath>
#include <Message.h>
#include <TextControl.h>

using namespace kits;


namespace {

// A line of text and what the field draws around it, in pixels.
float
line_height()
{
	font_height height;
	be_plain_font->GetHeight(&height);
	return height.ascent + height.descent + 6;
}

}


BTextControl::BTextControl(BRect frame, const char* name, const char* label,
	const char* initialText, BMessage* message, uint32 resizingMode, uint32 flags)
	: BControl(frame, name, label, message, resizingMode, flags),
	  fText(initialText ? initialText : ""),
	  fSent(fText),
	  fDivider(0),
	  fEdits(0)
{
	ResizeTo(Frame().Width(), line_height() - 1);
	if (label && label[0])
		fDivider = std::floor(Frame().Width() / 2);
}


void
BTextControl::SetText(const char* text)
{
	fText = fSent = text ? text : "";
	_TellText();
}


const char*
BTextControl::Text() const
{
	return fText.c_str();
}


void
BTextControl::SetDivider(float divider)
{
	fDivider = divider;
	_TellPeer();
}


float
BTextControl::Divider() const
{
	return fDivider;
}


void
BTextControl::MakeFocus(bool focus)
{
	BControl::MakeFocus(focus);
	if (!focus)
		_Confirm();
}


void
BTextControl::AttachedToWindow()
{
	BControl::AttachedToWindow();
	_TellText();
}


void
BTextControl::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case field_edited:
		case field_entered:
			fEdits = message->FindInt32("edits");
			fText = message->FindString("text");
			if (message->what == field_entered)
				_Confirm();
			break;
		default:
			BControl::MessageReceived(message);
	}
}


void
BTextControl::_Confirm()
{
	if (fText == fSent)
		return;
	fSent = fText;
	Invoke();
}


void
BTextControl::_MakePeer()
{
	fEdits = 0;
	_SetWidget(field_peers::make_text(_ParentWidget(), _PeerFrame(), !IsHidden(this), _Look(),
		fDivider, {_WindowToken(), _Token()}));
}


void
BTextControl::_TellPeer()
{
	if (_Widget())
		field_peers::set_text_look(_Widget(), _Look(), fDivider);
}


void
BTextControl::_TellText()
{
	if (_Widget())
		field_peers::set_text(_Widget(), fText, fEdits);
}
