// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/control_peers.h"
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <algorithm>
#include <AppDefs.h>
#include <cmath>
#include <Message.h>
#include <ScrollBar.h>
#include <Window.h>

using namespace kits;


// Of the bar, for one notch of the wheel.
static constexpr float wheel_steps = 3;


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
	  fTurned(0),
	  fMoves(0),
	  fFollowing(false),
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
	fTurned = 0;
	if (!fFollowing)
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
	fTurned = 0;
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
	switch (message->what) {
		case scrolled:
			_Scrolled(*message);
			break;
		case B_MOUSE_WHEEL_CHANGED: {
			// Over the bar itself a wheel that turns one way only goes the bar's way.
			float across = message->FindFloat("be:wheel_delta_x");
			float down = message->FindFloat("be:wheel_delta_y");
			bool vertical = fPosture == B_VERTICAL;
			_Turn((vertical && down != 0) || across == 0 ? down : across);
			break;
		}
		default:
			BView::MessageReceived(message);
	}
}


// The thumb is not told where it is: by now it may be further on.
void
BScrollBar::_Scrolled(const BMessage& report)
{
	int32 value = report.FindInt32("value");
	fMoves = report.FindInt32("moves");
	fFollowing = true;
	SetValue((float)value);
	fFollowing = false;
	// Unless it cannot be there.
	if (fValue != (float)value)
		_TellPeer();
}


// A fine wheel turns by less than a pixel at a time; the parts add up.
void
BScrollBar::_Turn(float notches)
{
	float turned = fTurned + notches * fSmallStep * wheel_steps;
	if (!std::isfinite(turned))
		return;
	float wanted = fValue + std::round(turned);
	SetValue(wanted);
	// At the end of the bar there is nothing to go on with.
	fTurned = fValue == wanted ? turned - std::round(turned) : 0;
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
		fProportion, fMoves};
}


void
BScrollBar::_MakePeer()
{
	fMoves = 0;
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
