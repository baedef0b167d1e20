// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/control_peers.h"
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <algorithm>
#include <cmath>
#include <Message.h>
#include <ScrollBar.h>
#include <Window.h>

using namespace kits;


// A bar keeps to its edge of the window and grows along it.
static uint32
resizing_of(orientation posture)
{
	if (posture == B_VERTICAL)
		return B_FOLLOW_RIGHT | B_FOLLOW_TOP_BOTTOM;
	return B_FOLLOW_BOTTOM | B_FOLLOW_LEFT_RIGHT;
}


BScrollBar::BScrollBar(
	BRect frame, const char* name, BView* target, float min, float max, orientation posture)
	: BView(frame, name, resizing_of(posture), B_WILL_DRAW),
	  fTarget(nullptr),
	  fMin(0),
	  fMax(0),
	  fValue(0),
	  fProportion(1),
	  fSmallStep(1),
	  fLargeStep(10),
	  fPosture(posture)
{
	SetTarget(target);
	SetRange(min, max);
}


BScrollBar::~BScrollBar()
{
	SetTarget((BView*)nullptr);
}


void
BScrollBar::SetValue(float value)
{
	if (!std::isfinite(value))
		return;
	value = std::clamp(std::round(value), fMin, fMax);
	if (value == fValue)
		return;
	fValue = value;
	_TellPeer();
	ValueChanged(value);
}


float
BScrollBar::Value() const
{
	return fValue;
}


void
BScrollBar::ValueChanged(float newValue)
{
	if (!fTarget)
		return;
	BPoint to = fTarget->Bounds().LeftTop();
	if (fPosture == B_VERTICAL)
		to.y = newValue;
	else
		to.x = newValue;
	fTarget->ScrollTo(to);
}


void
BScrollBar::SetRange(float min, float max)
{
	min = std::round(min);
	max = std::round(max);
	if (!(min <= max))
		min = max = 0;
	fMin = min;
	fMax = max;
	float value = std::clamp(fValue, fMin, fMax);
	if (value != fValue)
		SetValue(value);
	_TellPeer();
}


void
BScrollBar::GetRange(float* min, float* max) const
{
	*min = fMin;
	*max = fMax;
}


void
BScrollBar::SetProportion(float proportion)
{
	fProportion = proportion >= 0 ? std::min(proportion, 1.0F) : 0;
	_TellPeer();
}


float
BScrollBar::Proportion() const
{
	return fProportion;
}


void
BScrollBar::SetSteps(float small, float large)
{
	fSmallStep = small;
	fLargeStep = large;
	_TellPeer();
}


void
BScrollBar::GetSteps(float* small, float* large) const
{
	*small = fSmallStep;
	*large = fLargeStep;
}


void
BScrollBar::SetTarget(BView* target)
{
	if (fTarget)
		fTarget->fState->bars[fPosture] = nullptr;
	fTarget = target;
	if (!target)
		return;
	if (BScrollBar* other = target->fState->bars[fPosture])
		other->fTarget = nullptr;
	target->fState->bars[fPosture] = this;
}


void
BScrollBar::SetTarget(const char* name)
{
	SetTarget(Window() && name ? Window()->FindView(name) : nullptr);
}


BView*
BScrollBar::Target() const
{
	return fTarget;
}


orientation
BScrollBar::Orientation() const
{
	return fPosture;
}


void
BScrollBar::MessageReceived(BMessage* message)
{
	if (message->what == scrolled)
		SetValue((float)message->FindInt32("value"));
	else
		BView::MessageReceived(message);
}


namespace {

int32
clamped(float value)
{
	return (int32)std::clamp(value, -1e9F, 1e9F);
}

}


kits::scroll_bar_look
BScrollBar::_Look() const
{
	return {clamped(fMin), clamped(fMax), clamped(fValue), clamped(fSmallStep), clamped(fLargeStep),
		fProportion};
}


void
BScrollBar::_MakePeer()
{
	fState->widget = control_peers::make_scroll_bar(_ParentWidget(), _PeerFrame(),
		fState->hidden <= 0, fPosture == B_VERTICAL, _Look(), {_WindowToken(), _Token()});
}


void
BScrollBar::_TellPeer()
{
	if (fState->widget)
		control_peers::set_scroll_bar(fState->widget, _Look());
}


bool
BScrollBar::_IsPainted() const
{
	return false;
}
