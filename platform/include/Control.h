// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CONTROL_H
#define KITS_CONTROL_H

#include <Invoker.h>
#include <string>
#include <View.h>

namespace kits {
struct control_look;
}

enum { B_CONTROL_OFF = 0, B_CONTROL_ON = 1 };

// A view that the display paints and that sends its message when the user works it. BView is the
// first base: the address in "source" is that of every class of the object.
//
// Attached, a control takes the background of its parent and, when nobody has aimed it, its window
// as the target. A copy of its message goes out with "when", "source", "be:value" and "be:sender".
class BControl : public BView, public BInvoker {
public:
	// Takes the message over.
	BControl(BRect frame, const char* name, const char* label, BMessage* message,
		uint32 resizingMode, uint32 flags);
	~BControl() override;

	virtual void SetLabel(const char* label);
	// Never null.
	const char* Label() const;
	// Sends nothing.
	virtual void SetValue(int32 value);
	int32 Value() const;
	virtual void SetEnabled(bool enabled);
	void SetFont(const BFont* font, uint32 mask = B_FONT_ALL) override;
	bool IsEnabled() const;
	status_t Invoke(BMessage* message = NULL) override;

	void AttachedToWindow() override;

protected:
	bool _IsPainted() const override;
	bool _TakesKeyboard() const override;
	kits::control_look _Look() const;
	// What changed for the eye is brought to the peer.
	virtual void _TellPeer();
	const std::shared_ptr<kits::peer>& _Widget() const;
	void _SetWidget(std::shared_ptr<kits::peer> widget);

private:
	std::string fLabel;
	int32 fValue;
	bool fEnabled;
};

#endif
