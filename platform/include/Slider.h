// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_SLIDER_H
#define KITS_SLIDER_H

#include <Control.h>

enum thumb_style { B_BLOCK_THUMB = 0, B_TRIANGLE_THUMB = 1 };

// A number chosen by dragging a thumb along a horizontal bar; the label stands left of the bar. The
// message goes out once, when the thumb or an arrow key is let go with the value changed; the
// modification message at every change on the way. Both carry the fields of a control.
class BSlider : public BControl {
public:
	// min > max means min to min.
	BSlider(BRect frame, const char* name, const char* label, BMessage* message, int32 min,
		int32 max, thumb_style thumb = B_BLOCK_THUMB,
		uint32 resizingMode = B_FOLLOW_LEFT | B_FOLLOW_TOP,
		uint32 flags = B_NAVIGABLE | B_WILL_DRAW | B_FRAME_EVENTS);
	~BSlider() override;

	// Takes the message over.
	virtual void SetModificationMessage(BMessage* message);
	// Clamped to the limits; sends nothing.
	void SetValue(int32 value) override;
	void GetLimits(int32* min, int32* max) const;
	virtual void SetBarColor(rgb_color color);
	rgb_color BarColor() const;

	void MessageReceived(BMessage* message) override;

private:
	void _MakePeer() override;
	void _TellPeer() override;

	std::unique_ptr<BMessage> fModification;
	const int32 fMin;
	const int32 fMax;
	rgb_color fBarColor;
	// The value before the user took hold of the thumb.
	int32 fHeldFrom;
	// Counts the program's own values: what the user did before the last is out of date.
	int32 fSerial;
	bool fFollowing;
};

#endif
