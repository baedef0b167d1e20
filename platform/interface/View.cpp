// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <algorithm>
#include <AppDefs.h>
#include <cmath>
#include <cstring>
#include <Errors.h>
#include <Looper.h>
#include <Message.h>
#include <ScrollBar.h>
#include <Window.h>

using namespace kits;


namespace {

BRect
whole(BRect rect)
{
	return BRect(std::round(rect.left), std::round(rect.top), std::round(rect.right),
		std::round(rect.bottom));
}

}


BView::BView(BRect frame, const char* name, uint32 resizingMode, uint32 flags)
	: BHandler(name),
	  fState(new view_state)
{
	fState->frame = whole(frame);
	fState->resizing = resizingMode;
	fState->flags = flags;
}


BView::~BView()
{
	RemoveSelf();
	for (BScrollBar* bar : fState->bars) {
		if (bar)
			bar->fTarget = nullptr;
	}
	while (!fState->children.empty()) {
		BView* child = fState->children.back();
		child->RemoveSelf();
		delete child;
	}
}


void
BView::AddChild(BView* child, BView* before)
{
	if (!child || child->fState->parent || child == this)
		return;
	auto& children = fState->children;
	auto place = before ? std::find(children.begin(), children.end(), before) : children.end();
	children.insert(place, child);
	child->fState->parent = this;
	if (!fState->window)
		return;
	child->_Attach(fState->window);
	if (before && before->fState->widget)
		peers::stack_under(child->fState->widget, before->fState->widget);
	child->_CallAttached();
	child->_VisibilityChanged();
}


// Gives the view and all below it their window and peers, before any hook runs.
void
BView::_Attach(BWindow* window)
{
	fState->window = window;
	window->AddHandler(this);
	bool topmost = fState->parent == window->fWindow->root;
	SetNextHandler(topmost ? static_cast<BHandler*>(window) : fState->parent);
	if (!window->fWindow->offscreen)
		_MakePeer();
	_Watch(fState->event_mask, fState->event_mask);
	for (BView* child : fState->children)
		child->_Attach(window);
}


// A child that a hook adds is attached by its own AddChild().
void
BView::_CallAttached()
{
	std::vector<BView*> before = fState->children;
	AttachedToWindow();
	for (BView* child : before) {
		auto& now = fState->children;
		if (std::find(now.begin(), now.end(), child) != now.end())
			child->_CallAttached();
	}
	AllAttached();
}


void
BView::_MakePeer()
{
	fState->widget = peers::make_view(_ParentWidget(), _PeerFrame(), fState->hidden <= 0,
		fState->flags & B_NAVIGABLE, {_WindowToken(), _Token()}, fState->front);
}


const peer_ref&
BView::_ParentWidget() const
{
	return fState->parent->fState->widget;
}


// The parent's widget knows nothing of its scroll position.
BRect
BView::_PeerFrame() const
{
	BRect frame = fState->frame;
	BPoint scroll = fState->parent->fState->scroll;
	frame.OffsetBy(-scroll.x, -scroll.y);
	return frame;
}


int32
BView::_WindowToken() const
{
	return fState->window->fToken;
}


int32
BView::_Token() const
{
	return fToken;
}


bool
BView::RemoveChild(BView* child)
{
	if (!child || child->fState->parent != this)
		return false;
	if (fState->window) {
		child->_CallDetached();
		child->_Detach();
	}
	std::erase(fState->children, child);
	child->fState->parent = nullptr;
	return true;
}


bool
BView::RemoveSelf()
{
	return fState->parent && fState->parent->RemoveChild(this);
}


void
BView::_CallDetached()
{
	DetachedFromWindow();
	std::vector<BView*> children = fState->children;
	for (BView* child : children)
		child->_CallDetached();
	AllDetached();
}


void
BView::_Detach()
{
	for (BView* child : fState->children)
		child->_Detach();
	if (IsFocus())
		fState->window->_SetFocus(nullptr);
	_EndWatch();
	if (fState->widget)
		peers::destroy(fState->widget);
	fState->widget = nullptr;
	fState->image = nullptr;
	fState->front = std::make_shared<front_image>();
	fState->invalid.clear();
	fState->window->RemoveHandler(this);
	fState->window = nullptr;
}


int32
BView::CountChildren() const
{
	return (int32)fState->children.size();
}


BView*
BView::ChildAt(int32 index) const
{
	return index >= 0 && index < CountChildren() ? fState->children[(size_t)index] : nullptr;
}


BView*
BView::NextSibling() const
{
	if (!fState->parent)
		return nullptr;
	auto& all = fState->parent->fState->children;
	auto here = std::find(all.begin(), all.end(), this);
	return ++here == all.end() ? nullptr : *here;
}


BView*
BView::PreviousSibling() const
{
	if (!fState->parent)
		return nullptr;
	auto& all = fState->parent->fState->children;
	auto here = std::find(all.begin(), all.end(), this);
	return here == all.begin() ? nullptr : *--here;
}


BView*
BView::FindView(const char* name) const
{
	if (name && strcmp(Name(), name) == 0)
		return const_cast<BView*>(this);
	for (BView* child : fState->children) {
		if (BView* found = child->FindView(name))
			return found;
	}
	return nullptr;
}


BView*
BView::Parent() const
{
	BView* parent = fState->parent;
	bool root = parent && fState->window && parent == fState->window->fWindow->root;
	return root ? nullptr : parent;
}


BWindow*
BView::Window() const
{
	return fState->window;
}


uint32
BView::Flags() const
{
	return fState->flags;
}


void
BView::SetFlags(uint32 flags)
{
	fState->flags = flags;
	if (fState->widget)
		peers::set_navigable(fState->widget, flags & B_NAVIGABLE);
}


uint32
BView::ResizingMode() const
{
	return fState->resizing;
}


void
BView::SetResizingMode(uint32 mode)
{
	fState->resizing = mode;
}


void
BView::AttachedToWindow()
{
}


void
BView::AllAttached()
{
}


void
BView::DetachedFromWindow()
{
}


void
BView::AllDetached()
{
}


void
BView::Draw(BRect)
{
}
