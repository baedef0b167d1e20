// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/slider_peers.h"

#include <algorithm>
#include <Message.h>
#include <Slider.h>

using namespace kits;


BSlider::BSlider(BRect frame, const char* name, const char* label, BMessage* message, int32 min,
	int32 max, thumb_style, uint32 resizingMode, uint32 flags)
	: BControl(frame, name, label, message, resizingMode, flags),
	  fMin(min),
	  fMax(std::max(min, max)),
	  fBarColor{180, 180, 190, 255},
	  fHeldFrom(min),
	  fSerial(0),
	  fFollowing(false)
{
	BControl::SetValue(min);
}


BSlider::~BSlider() = default;


void
BSlider::SetModificationMessage(BMessage* message)
{
	fModification.reset(message);
}


void
BSlider::SetValue(int32 value)
{
	fSerial++;
	BControl::SetValue(std::clamp(value, fMin, fMax));
	fHeldFrom = Value();
	_TellPeer();
}


void
BSlider::GetLimits(int32* min, int32* max) const
{
	*min = fMin;
	*max = fMax;
}


void
BSlider::SetBarColor(rgb_color color)
{
	fBarColor = color;
	_TellPeer();
}


rgb_color
BSlider::BarColor() const
{
	return fBarColor;
}


void
BSlider::MessageReceived(BMessage* message)
{
	bool moved = message->what == slider_moved;
	if (!moved && message->what != slider_released) {
		BControl::MessageReceived(message);
		return;
	}
	if (message->FindInt32("serial") != fSerial)
		return;
	int32 value = std::clamp(message->FindInt32("value"), fMin, fMax);
	bool changed = value != Value();
	// The thumb is there already, or further: telling it would pull it back.
	fFollowing = true;
	BControl::SetValue(value);
	fFollowing = false;
	if (changed && fModification)
		Invoke(fModification.get());
	if (!moved && value != fHeldFrom) {
		fHeldFrom = value;
		Invoke();
	}
}


void
BSlider::_MakePeer()
{
	_SetWidget(slider_peers::make(_ParentWidget(), _PeerFrame(), !IsHidden(this), _Look(),
		{fMin, fMax, fBarColor, fSerial}, {_WindowToken(), _Token()}));
}


void
BSlider::_TellPeer()
{
	if (_Widget() && !fFollowing)
		slider_peers::set(_Widget(), _Look(), {fMin, fMax, fBarColor, fSerial});
}
