// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// How what a view draws comes to the screen.
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <algorithm>
#include <cmath>
#include <View.h>
#include <Window.h>

using namespace kits;


namespace {

using views = std::vector<BView*>;

// Adds the places of those from the first on that are not hidden.
void
cover(region& covered, const views& all, views::const_iterator first)
{
	for (; first != all.end(); ++first) {
		if (!(*first)->IsHidden(*first))
			covered.add((*first)->Frame());
	}
}


// What has to be drawn for an update: where kit pixels end within device pixels, it shows a part of
// those around it as well.
BRect
shown_by(const region& update, float ratio)
{
	BRect box = update.bounds();
	if (ratio != std::floor(ratio))
		box.InsetBy(-1, -1);
	return box;
}

}


void
BView::Invalidate()
{
	Invalidate(Bounds());
}


void
BView::Invalidate(BRect rect)
{
	if (!fState->window || !std::isfinite(rect.left + rect.top + rect.right + rect.bottom))
		return;
	fState->invalid.add(rect & Bounds());
	fState->window->fWindow->dirty = true;
}


void
BView::Flush() const
{
	if (fState->window)
		fState->window->_Flush();
}


void
BView::Sync() const
{
	if (!fState->window || fState->window->fWindow->offscreen)
		return;
	fState->window->_Flush();
	window_peers::ratio(fState->window->fWindow->widget);
}


// False where drawing would be seen by nobody. A view that is to be drawn for the first time has no
// image yet; its first update brings everything.
bool
BView::_Context(drawing_context& context) const
{
	if (!fState->window)
		return false;
	if (fState->window->fWindow->offscreen)
		return _OffscreenContext(context);
	if (!fState->image)
		return false;
	context.target = fState->image.get();
	context.state = &fState->drawing;
	context.offset = BPoint(-fState->scroll.x, -fState->scroll.y);
	context.clip = BRect(0, 0, fState->frame.Width(), fState->frame.Height());
	context.update = fState->updating;
	return true;
}


// In a bitmap all views share its pixels: each within its ancestors, under its children and under
// the siblings in front of it and of them.
bool
BView::_OffscreenContext(drawing_context& context) const
{
	if (IsHidden())
		return false;
	context.target = fState->window->fWindow->offscreen;
	context.state = &fState->drawing;
	BPoint origin(0, 0);
	BRect clip = Bounds();
	context.covered = std::make_unique<region>();
	cover(*context.covered, fState->children, fState->children.begin());
	for (const BView* view = this; BView* parent = view->fState->parent; view = parent) {
		clip = clip & view->Bounds();
		BPoint step = view->ConvertToParent(BPoint(0, 0));
		origin += step;
		clip.OffsetBy(step);
		context.covered->move(step.x, step.y);
		const auto& siblings = parent->fState->children;
		cover(*context.covered, siblings, ++std::find(siblings.begin(), siblings.end(), view));
	}
	context.offset = origin;
	context.clip = clip;
	return clip.IsValid();
}


void
BView::_Touched() const
{
	fState->window->fWindow->dirty = true;
}


// Parents first, so that a child sees what lies behind it already drawn.
void
BView::_UpdateTree()
{
	if (fState->hidden > 0)
		return;
	if (fState->widget && fState->parent && !fState->window->fWindow->offscreen) {
		_Update();
		_Publish();
	}
	// A Draw() may change the children.
	std::vector<BView*> children = fState->children;
	for (BView* child : children) {
		if (child->fState->parent == this)
			child->_UpdateTree();
	}
}


void
BView::_MakeImage()
{
	int32 width = (int32)fState->frame.Width() + 1;
	int32 height = (int32)fState->frame.Height() + 1;
	float ratio = fState->window->fWindow->ratio;
	canvas* old = fState->image.get();
	if (old && old->width() == width && old->height() == height && old->ratio() == ratio)
		return;
	auto fresh = std::make_unique<canvas>(width, height, ratio);
	if (old && old->ratio() == ratio)
		fresh->take_over(*old);
	else
		fState->invalid.add(Bounds());
	fState->image = std::move(fresh);
}


void
BView::_Update()
{
	if (!_IsPainted() || fState->frame.Width() < 0 || fState->frame.Height() < 0)
		return;
	_MakeImage();
	if (fState->invalid.empty())
		return;
	region update;
	update.swap(fState->invalid);
	update.intersect(Bounds());
	if (update.empty())
		return;
	size_t depth = fState->pushed.size();
	PushState();
	fState->updating = &update;
	fState->drawing.pen = BPoint(0, 0);
	drawing_context context;
	_Context(context);
	if (fState->view_color.alpha != B_TRANSPARENT_COLOR.alpha)
		context.target->erase(context, update.bounds(), fState->view_color);
	if (fState->flags & B_WILL_DRAW)
		Draw(shown_by(update, fState->image->ratio()));
	fState->updating = nullptr;
	// Also what an unbalanced Draw() left behind.
	while (fState->pushed.size() > depth)
		PopState();
}


void
BView::_Publish()
{
	if (!fState->image)
		return;
	BRect changed = fState->image->publish(*fState->front);
	if (changed.IsValid())
		peers::update(fState->widget, fState->front, changed);
}


bool
BView::_IsPainted() const
{
	return true;
}
