// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_SCROLLBAR_H
#define KITS_SCROLLBAR_H

#include <View.h>

namespace kits {
struct scroll_bar_look;
}

const float B_V_SCROLL_BAR_WIDTH = 14.0F;
const float B_H_SCROLL_BAR_HEIGHT = 14.0F;

// Scrolls its target view; the two keep each other in step. Values are whole numbers of the
// target's coordinates.
class BScrollBar : public BView {
public:
	// Follows the right edge of its parent (vertical) or the bottom one (horizontal).
	BScrollBar(
		BRect frame, const char* name, BView* target, float min, float max, orientation posture);
	~BScrollBar() override;

	// Rounded and clamped to the range; a change scrolls the target.
	void SetValue(float value);
	float Value() const;
	virtual void ValueChanged(float newValue);
	// min > max means 0 to 0.
	void SetRange(float min, float max);
	void GetRange(float* min, float* max) const;
	// Length of the thumb as a part of the bar, clamped to 0..1.
	void SetProportion(float proportion);
	float Proportion() const;
	void SetSteps(float small, float large);
	void GetSteps(float* small, float* large) const;
	// The old target forgets the bar. Scrolls neither.
	void SetTarget(BView* target);
	void SetTarget(const char* name);
	BView* Target() const;
	orientation Orientation() const;

	void MessageReceived(BMessage* message) override;

private:
	friend class BView;

	void _MakePeer() override;
	bool _IsPainted() const override;
	void _TellPeer();
	void _Scrolled(const BMessage& report);
	void _Turn(float notches);
	kits::scroll_bar_look _Look() const;

	BView* fTarget;
	float fMin;
	float fMax;
	float fValue;
	float fProportion;
	float fSmallStep;
	float fLargeStep;
	// What the wheel has turned beyond whole pixels.
	float fTurned;
	// How many of the user's moves of the thumb the bar has heard of.
	int32 fMoves;
	// The thumb is where the value goes, or further.
	bool fFollowing;
	const orientation fPosture;
};

#endif
