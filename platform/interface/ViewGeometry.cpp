// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// Where a view is: frame, resizing, scrolling, and whether it can be seen.
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <algorithm>
#include <cmath>
#include <Message.h>
#include <ScrollBar.h>
#include <Window.h>

using namespace kits;


namespace {

// How far an edge moves whose rule is the digit, when its parent has grown by delta to a length in
// pixels. Followed is the middle of the length, so that odd steps add up and are taken back.
float
edge_step(uint32 mode, int digit, uint32 follow, float length, float delta)
{
	uint32 rule = mode >> (4 * digit) & 0xF;
	if (rule == follow)
		return delta;
	return rule == 5 ? std::floor(length / 2) - std::floor((length - delta) / 2) : 0;
}

enum { right_digit, bottom_digit, left_digit, top_digit };
enum { follow_bottom = 3, follow_right = 4 };

}


BRect
BView::Bounds() const
{
	BRect bounds = fState->frame;
	bounds.OffsetTo(fState->scroll);
	return bounds;
}


BRect
BView::Frame() const
{
	return fState->frame;
}


BPoint
BView::ConvertToParent(BPoint point) const
{
	return point - fState->scroll + fState->frame.LeftTop();
}


BPoint
BView::ConvertFromParent(BPoint point) const
{
	return point + fState->scroll - fState->frame.LeftTop();
}


BPoint
BView::ConvertToScreen(BPoint point) const
{
	for (const BView* view = this; view; view = view->fState->parent)
		point = view->ConvertToParent(point);
	return fState->window ? point + fState->window->Frame().LeftTop() : point;
}


BPoint
BView::ConvertFromScreen(BPoint point) const
{
	BPoint origin = ConvertToScreen(BPoint(0, 0));
	return point - origin;
}


BPoint
BView::_FromWindow(BPoint where) const
{
	BPoint origin(0, 0);
	for (const BView* view = this; view; view = view->fState->parent)
		origin = view->ConvertToParent(origin);
	return where - origin;
}


void
BView::MoveTo(float x, float y)
{
	BRect frame = fState->frame;
	frame.OffsetTo(std::round(x), std::round(y));
	_SetFrame(frame);
}


void
BView::MoveTo(BPoint where)
{
	MoveTo(where.x, where.y);
}


void
BView::MoveBy(float dx, float dy)
{
	MoveTo(fState->frame.left + dx, fState->frame.top + dy);
}


void
BView::ResizeTo(float width, float height)
{
	BRect frame = fState->frame;
	frame.right = frame.left + std::round(width);
	frame.bottom = frame.top + std::round(height);
	_SetFrame(frame);
}


void
BView::ResizeBy(float dx, float dy)
{
	ResizeTo(fState->frame.Width() + dx, fState->frame.Height() + dy);
}


void
BView::_SetFrame(BRect frame)
{
	BRect before = fState->frame;
	bool finite = std::isfinite(frame.left + frame.top + frame.right + frame.bottom);
	if (frame == before || !finite)
		return;
	fState->frame = frame;
	if (fState->widget && fState->parent)
		peers::set_frame(fState->widget, _PeerFrame());
	float dx = fState->frame.Width() - before.Width();
	float dy = fState->frame.Height() - before.Height();
	if (dx == 0 && dy == 0)
		return;
	BRect bounds = Bounds();
	if (fState->flags & B_FULL_UPDATE_ON_RESIZE)
		Invalidate();
	if (dx > 0)
		Invalidate(BRect(bounds.right - dx + 1, bounds.top, bounds.right, bounds.bottom));
	if (dy > 0)
		Invalidate(BRect(bounds.left, bounds.bottom - dy + 1, bounds.right, bounds.bottom));
	for (BView* child : fState->children)
		child->_FollowParent(dx, dy);
}


void
BView::_FollowParent(float dx, float dy)
{
	uint32 mode = fState->resizing;
	BRect frame = fState->frame;
	float width = fState->parent->Frame().Width() + 1;
	float height = fState->parent->Frame().Height() + 1;
	frame.left += edge_step(mode, left_digit, follow_right, width, dx);
	frame.right += edge_step(mode, right_digit, follow_right, width, dx);
	frame.top += edge_step(mode, top_digit, follow_bottom, height, dy);
	frame.bottom += edge_step(mode, bottom_digit, follow_bottom, height, dy);
	_SetFrame(frame);
}


BScrollBar*
BView::ScrollBar(orientation posture) const
{
	return fState->bars[posture];
}


void
BView::ScrollTo(float x, float y)
{
	ScrollTo(BPoint(x, y));
}


void
BView::ScrollBy(float dx, float dy)
{
	ScrollTo(fState->scroll + BPoint(dx, dy));
}


void
BView::ScrollTo(BPoint where)
{
	if (!std::isfinite(where.x) || !std::isfinite(where.y))
		return;
	const BScrollBar* across = fState->bars[B_HORIZONTAL];
	const BScrollBar* down = fState->bars[B_VERTICAL];
	BPoint to(std::round(where.x), std::round(where.y));
	if (across)
		to.x = std::clamp(to.x, across->fMin, across->fMax);
	if (down)
		to.y = std::clamp(to.y, down->fMin, down->fMax);
	BPoint by = to - fState->scroll;
	if (by == BPoint(0, 0))
		return;
	fState->scroll = to;
	_ScrollContents(by);
	_ScrollBarsFollow();
}


// Pixels that stay in sight move; what comes into sight is drawn.
void
BView::_ScrollContents(BPoint by)
{
	if (fState->image) {
		fState->image->scroll(fState->scroll - by, fState->scroll);
		_Touched();
	}
	BRect bounds = Bounds();
	if (by.x > 0)
		Invalidate(BRect(bounds.right - by.x + 1, bounds.top, bounds.right, bounds.bottom));
	else if (by.x < 0)
		Invalidate(BRect(bounds.left, bounds.top, bounds.left - by.x - 1, bounds.bottom));
	if (by.y > 0)
		Invalidate(BRect(bounds.left, bounds.bottom - by.y + 1, bounds.right, bounds.bottom));
	else if (by.y < 0)
		Invalidate(BRect(bounds.left, bounds.top, bounds.right, bounds.top - by.y - 1));
	for (BView* child : fState->children) {
		if (child->fState->widget)
			peers::set_frame(child->fState->widget, child->_PeerFrame());
	}
}


void
BView::_ScrollBarsFollow()
{
	// Taken first: a bar's own change may scroll the view again.
	BPoint to = fState->scroll;
	if (fState->bars[B_HORIZONTAL])
		fState->bars[B_HORIZONTAL]->SetValue(to.x);
	if (fState->bars[B_VERTICAL])
		fState->bars[B_VERTICAL]->SetValue(to.y);
}


void
BView::_Wheel(BMessage* message)
{
	BScrollBar* across = fState->bars[B_HORIZONTAL];
	BScrollBar* down = fState->bars[B_VERTICAL];
	if (!across && !down) {
		BHandler::MessageReceived(message);
		return;
	}
	if (across)
		across->_Turn(message->FindFloat("be:wheel_delta_x"));
	if (down)
		down->_Turn(message->FindFloat("be:wheel_delta_y"));
}


void
BView::Show()
{
	fState->hidden--;
	if (fState->hidden == 0)
		_VisibilityChanged();
}


void
BView::Hide()
{
	fState->hidden++;
	if (fState->hidden == 1)
		_VisibilityChanged();
}


bool
BView::IsHidden() const
{
	return IsHidden(nullptr);
}


bool
BView::IsHidden(const BView* lookingFrom) const
{
	for (const BView* view = this; view; view = view->fState->parent) {
		if (view->fState->hidden > 0)
			return true;
		if (view == lookingFrom)
			return false;
	}
	return fState->window && fState->window->IsHidden();
}


// True of the view itself too.
bool
BView::_IsWithin(const BView& view) const
{
	const BView* around = this;
	while (around && around != &view)
		around = around->fState->parent;
	return around;
}


// What comes into sight has to be drawn anew, since nothing that is out of sight keeps its pixels.
void
BView::_VisibilityChanged()
{
	if (!fState->window)
		return;
	if (fState->widget && fState->parent)
		peers::set_shown(fState->widget, fState->hidden <= 0);
	// A hidden view may have the keyboard; the display takes it up again when it shows.
	BView* focus = fState->window->CurrentFocus();
	if (focus && focus->_IsWithin(*this) && !focus->IsHidden())
		fState->window->_TellFocus();
	_ForgetImages();
}


void
BView::_ForgetImages()
{
	fState->image = nullptr;
	fState->invalid.clear();
	Invalidate();
	if (fState->widget && fState->parent && _IsPainted()) {
		if (IsHidden()) {
			fState->front = std::make_shared<front_image>();
			peers::set_front(fState->widget, fState->front);
		}
		std::lock_guard guard(fState->front->lock);
		fState->front->background = fState->view_color;
	}
	for (BView* child : fState->children)
		child->_ForgetImages();
}


BView*
BView::_ViewAt(BPoint where)
{
	if (fState->hidden > 0 || !Bounds().Contains(where))
		return nullptr;
	for (size_t above = fState->children.size(); above > 0; above--) {
		BView* child = fState->children[above - 1];
		if (BView* found = child->_ViewAt(child->ConvertFromParent(where)))
			return found;
	}
	return this;
}
