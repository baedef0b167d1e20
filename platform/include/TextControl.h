// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TEXTCONTROL_H
#define KITS_TEXTCONTROL_H

#include <Control.h>

// A label and one line of text that the user edits. The message goes out on Enter and when the
// field loses the keyboard, in both cases only if the text differs from what it was when it was last
// sent, set by the program, or found as the field got the keyboard. Never per key.
//
// Bytes that are not UTF-8 show as a mark each and stay what they are, in the text and when they are
// copied to another field. A text that the program sets shows its beginning until the user is in the
// field.
class BTextControl : public BControl {
public:
	// The height becomes that of a line of text; the width is kept. The label may be null.
	BTextControl(BRect frame, const char* name, const char* label, const char* initialText,
		BMessage* message, uint32 resizingMode = B_FOLLOW_LEFT | B_FOLLOW_TOP,
		uint32 flags = B_WILL_DRAW | B_NAVIGABLE);

	// Sends nothing, and later changes are measured against this text. Null is the empty text. What
	// the user types that the program has not heard of yet stands, and counts as such a change.
	virtual void SetText(const char* text);
	// Also what is being typed. Valid until it changes.
	const char* Text() const;
	// Where the field begins, from the left edge; half the width with a label, else 0.
	virtual void SetDivider(float divider);
	float Divider() const;

	void MakeFocus(bool focus = true) override;
	void AttachedToWindow() override;
	void MessageReceived(BMessage* message) override;

private:
	void _MakePeer() override;
	void _TellPeer() override;
	void _TellText();
	void _Confirm();

	std::string fText;
	// What later changes are measured against.
	std::string fSent;
	float fDivider;
	// How many of the user's edits the field has heard of.
	int32 fEdits;
};

#endif
