// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "interface/view_state.h"
#include "interface/window_state.h"

#include "app/looper_state.h"

#include <algorithm>
#include <AppDefs.h>
#include <Application.h>
#include <cmath>
#include <Message.h>
#include <Window.h>

using namespace kits;


namespace {

// The lock of a window for as long as this lives; false when the window has quit. What is only asked
// takes it too, since the window's thread may be changing the answer.
class window_lock {
public:
	explicit window_lock(const BWindow& window)
		: fWindow(const_cast<BWindow&>(window)),
		  fHeld(fWindow.Lock())
	{
	}
	~window_lock()
	{
		if (fHeld)
			fWindow.Unlock();
	}
	window_lock(const window_lock&) = delete;
	window_lock& operator=(const window_lock&) = delete;

	explicit operator bool() const { return fHeld; }

private:
	BWindow& fWindow;
	const bool fHeld;
};

}


BWindow::BWindow(BRect frame, const char* title, window_type, uint32, uint32)
	: BLooper(title),
	  fWindow(new window_state)
{
	fWindow->title = title ? title : "";
	_Init(frame);
	fWindow->widget = window_peers::make(frame, fWindow->title, fToken, fWindow->pointer);
	fWindow->root->fState->widget = fWindow->widget;
	be_app->_AddWindow(this);
}


// A bitmap's window: never on the screen, never run.
BWindow::BWindow(BRect bounds, offscreen) : BLooper("offscreen"), fWindow(new window_state)
{
	_Init(bounds);
	fWindow->hidden = 0;
	fWindow->first_show = false;
	Unlock();
}


void
BWindow::_Init(BRect frame)
{
	fWindow->position = frame.LeftTop();
	fWindow->width = std::round(frame.Width());
	fWindow->height = std::round(frame.Height());
	fWindow->root = new BView(Bounds(), "root", B_FOLLOW_ALL_SIDES, 0);
	fWindow->root->fState->window = this;
}


BWindow::~BWindow()
{
	_EndLoop();
	// The lock of a looper that has ended is still a lock: nobody else may be inside.
	fState->gone = false;
	Lock();
	BView* root = fWindow->root;
	while (BView* child = root->ChildAt(0)) {
		root->RemoveChild(child);
		delete child;
	}
	root->fState->window = nullptr;
	root->fState->widget = nullptr;
	delete root;
	fState->gone = true;
	if (fWindow->widget) {
		peers::destroy(fWindow->widget);
		be_app->_RemoveWindow(this);
	}
}


void
BWindow::AddChild(BView* child, BView* before)
{
	if (!Lock())
		return;
	fWindow->root->AddChild(child, before);
	Unlock();
}


bool
BWindow::RemoveChild(BView* child)
{
	if (!Lock())
		return false;
	bool removed = fWindow->root->RemoveChild(child);
	Unlock();
	return removed;
}


int32
BWindow::CountChildren() const
{
	const window_lock lock(*this);
	return lock ? fWindow->root->CountChildren() : 0;
}


BView*
BWindow::ChildAt(int32 index) const
{
	const window_lock lock(*this);
	return lock ? fWindow->root->ChildAt(index) : nullptr;
}


BView*
BWindow::FindView(const char* name) const
{
	const window_lock lock(*this);
	if (!lock)
		return nullptr;
	for (const BView* child : fWindow->root->fState->children) {
		if (BView* found = child->FindView(name))
			return found;
	}
	return nullptr;
}


void
BWindow::Show()
{
	if (!Lock())
		return;
	if (--fWindow->hidden == 0) {
		if (be_app->_ShowsLater(this))
			window_peers::show_late(fWindow->widget);
		else
			window_peers::show(fWindow->widget, true);
		fWindow->root->_ForgetImages();
	}
	bool first = fWindow->first_show;
	fWindow->first_show = false;
	if (first && be_app->_Started())
		_StartThread();
	Unlock();
	while (first && IsLocked())
		Unlock();
}


void
BWindow::Hide()
{
	if (!Lock())
		return;
	if (++fWindow->hidden == 1) {
		window_peers::show(fWindow->widget, false);
		fWindow->root->_ForgetImages();
	}
	Unlock();
}


bool
BWindow::IsHidden() const
{
	return fWindow->hidden > 0;
}


void
BWindow::_StartIfShown()
{
	if (!Lock())
		return;
	if (!fWindow->first_show && !_HasThread())
		_StartThread();
	Unlock();
}


// Drawing means something: the window is shown and its thread runs.
bool
BWindow::_OnScreen() const
{
	return fWindow->hidden <= 0 && (fWindow->offscreen || _HasThread());
}


bool
BWindow::QuitRequested()
{
	return true;
}


void
BWindow::Quit()
{
	if (fWindow->hidden <= 0)
		Hide();
	fState->retired = true;
	_EndLoop();
}


bool
BWindow::_HasQuit() const
{
	return fState->retired;
}


void
BWindow::FrameResized(float, float)
{
}


void
BWindow::Zoom()
{
	const window_lock lock(*this);
	if (!lock)
		return;
	BRect frame = Frame();
	float width = std::min(fWindow->zoom_width, fWindow->max_width);
	float height = std::min(fWindow->zoom_height, fWindow->max_height);
	BRect zoomed(frame.left, frame.top, frame.left + width, frame.top + height);
	bool back = fWindow->zoomed && frame.Width() == width && frame.Height() == height;
	if (!back)
		fWindow->unzoomed = frame;
	fWindow->zoomed = !back;
	BRect to = back ? fWindow->unzoomed : zoomed;
	Zoom(to.LeftTop(), to.Width(), to.Height());
}


void
BWindow::Zoom(BPoint leftTop, float width, float height)
{
	const window_lock lock(*this);
	if (!lock)
		return;
	MoveTo(leftTop);
	ResizeTo(width, height);
}


void
BWindow::ResizeTo(float width, float height)
{
	if (!std::isfinite(width) || !std::isfinite(height) || !Lock())
		return;
	width = std::clamp(std::round(width), fWindow->min_width, fWindow->max_width);
	height = std::clamp(std::round(height), fWindow->min_height, fWindow->max_height);
	if (width != fWindow->width || height != fWindow->height) {
		fWindow->size_serial++;
		window_peers::set_size(
			fWindow->widget, (int32)width + 1, (int32)height + 1, fWindow->size_serial);
		_SetSize(width, height);
	}
	Unlock();
}


void
BWindow::ResizeBy(float dx, float dy)
{
	if (!Lock())
		return;
	ResizeTo(fWindow->width + dx, fWindow->height + dy);
	Unlock();
}


// The children follow at once; the hook comes later, by a message.
void
BWindow::_SetSize(float width, float height)
{
	fWindow->width = width;
	fWindow->height = height;
	fWindow->root->ResizeTo(width, height);
	fWindow->dirty = true;
	if (!fWindow->resize_told)
		fWindow->resize_told = PostMessage(B_VIEW_RESIZED) == B_OK;
}


void
BWindow::MoveTo(float x, float y)
{
	MoveTo(BPoint(x, y));
}


void
BWindow::MoveTo(BPoint leftTop)
{
	if (!std::isfinite(leftTop.x) || !std::isfinite(leftTop.y) || !Lock())
		return;
	if (leftTop != fWindow->position) {
		fWindow->position = leftTop;
		fWindow->move_serial++;
		window_peers::set_position(fWindow->widget, leftTop, fWindow->move_serial);
	}
	Unlock();
}


void
BWindow::SetSizeLimits(float minWidth, float maxWidth, float minHeight, float maxHeight)
{
	if (!(minWidth <= maxWidth && minHeight <= maxHeight) || !Lock())
		return;
	fWindow->min_width = minWidth;
	fWindow->max_width = maxWidth;
	fWindow->min_height = minHeight;
	fWindow->max_height = maxHeight;
	window_peers::set_limits(fWindow->widget,
		{(int32)minWidth + 1, (int32)maxWidth + 1, (int32)minHeight + 1, (int32)maxHeight + 1});
	ResizeTo(fWindow->width, fWindow->height);
	Unlock();
}


void
BWindow::GetSizeLimits(float* minWidth, float* maxWidth, float* minHeight, float* maxHeight) const
{
	*minWidth = fWindow->min_width;
	*maxWidth = fWindow->max_width;
	*minHeight = fWindow->min_height;
	*maxHeight = fWindow->max_height;
}


void
BWindow::SetZoomLimits(float maxWidth, float maxHeight)
{
	fWindow->zoom_width = maxWidth;
	fWindow->zoom_height = maxHeight;
}


void
BWindow::SetPulseRate(bigtime_t rate)
{
	fWindow->pulse_rate = rate;
}


bigtime_t
BWindow::PulseRate() const
{
	return fWindow->pulse_rate;
}


BRect
BWindow::Bounds() const
{
	return BRect(0, 0, fWindow->width, fWindow->height);
}


BRect
BWindow::Frame() const
{
	BRect frame = Bounds();
	frame.OffsetTo(fWindow->position);
	return frame;
}


const char*
BWindow::Title() const
{
	return fWindow->title.c_str();
}


void
BWindow::_Flush()
{
	if (!_OnScreen() || fWindow->offscreen || !fWindow->dirty)
		return;
	if (!fWindow->ratio_known) {
		fWindow->ratio = window_peers::ratio(fWindow->widget);
		fWindow->ratio_known = true;
	}
	fWindow->dirty = false;
	fWindow->root->_UpdateTree();
	// What a Draw() invalidated has a later turn, so that it cannot hold this one for ever.
	if (fWindow->dirty)
		PostMessage(_UPDATE_);
}
