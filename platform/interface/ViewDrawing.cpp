// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// What a view draws, and how it comes to the screen.
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <Bitmap.h>
#include <cmath>
#include <cstring>
#include <View.h>
#include <Window.h>

#include "interface/bitmap_state.h"

using namespace kits;


void
BView::SetHighColor(rgb_color color)
{
	fState->drawing.high = color;
}


void
BView::SetHighColor(uchar red, uchar green, uchar blue, uchar alpha)
{
	SetHighColor(rgb_color{red, green, blue, alpha});
}


rgb_color
BView::HighColor() const
{
	return fState->drawing.high;
}


void
BView::SetLowColor(rgb_color color)
{
	fState->drawing.low = color;
}


void
BView::SetLowColor(uchar red, uchar green, uchar blue, uchar alpha)
{
	SetLowColor(rgb_color{red, green, blue, alpha});
}


rgb_color
BView::LowColor() const
{
	return fState->drawing.low;
}


void
BView::SetViewColor(rgb_color color)
{
	fState->view_color = color;
}


void
BView::SetViewColor(uchar red, uchar green, uchar blue, uchar alpha)
{
	SetViewColor(rgb_color{red, green, blue, alpha});
}


rgb_color
BView::ViewColor() const
{
	return fState->view_color;
}


void
BView::SetFont(const BFont* font, uint32 mask)
{
	if (!font)
		return;
	if (mask & B_FONT_SIZE)
		fState->drawing.font.SetSize(font->Size());
	if (mask & (B_FONT_FACE | B_FONT_FAMILY_AND_STYLE))
		fState->drawing.font.SetFace(font->Face());
}


void
BView::SetFontSize(float size)
{
	fState->drawing.font.SetSize(size);
}


void
BView::GetFont(BFont* font) const
{
	*font = fState->drawing.font;
}


float
BView::StringWidth(const char* text) const
{
	return fState->drawing.font.StringWidth(text);
}


void
BView::GetFontHeight(font_height* height) const
{
	fState->drawing.font.GetHeight(height);
}


void
BView::MovePenTo(BPoint where)
{
	if (std::isfinite(where.x) && std::isfinite(where.y))
		fState->drawing.pen = where;
}


void
BView::MovePenTo(float x, float y)
{
	MovePenTo(BPoint(x, y));
}


void
BView::MovePenBy(float dx, float dy)
{
	MovePenTo(fState->drawing.pen + BPoint(dx, dy));
}


BPoint
BView::PenLocation() const
{
	return fState->drawing.pen;
}


void
BView::StrokeLine(BPoint to, ::pattern p)
{
	StrokeLine(fState->drawing.pen, to, p);
}


void
BView::StrokeLine(BPoint from, BPoint to, ::pattern p)
{
	drawing_context context;
	if (_Context(context)) {
		context.target->stroke_line(context, from, to, p);
		_Touched();
	}
	MovePenTo(to);
}


void
BView::StrokeRect(BRect rect, ::pattern p)
{
	drawing_context context;
	if (_Context(context)) {
		context.target->stroke_rect(context, rect, p);
		_Touched();
	}
}


void
BView::FillRect(BRect rect, ::pattern p)
{
	drawing_context context;
	if (_Context(context)) {
		context.target->fill_rect(context, rect, p);
		_Touched();
	}
}


void
BView::DrawString(const char* text, escapement_delta* delta)
{
	DrawString(text, fState->drawing.pen, delta);
}


void
BView::DrawString(const char* text, BPoint baseline, escapement_delta* delta)
{
	if (text)
		DrawString(text, (int32)strlen(text), baseline, delta);
}


void
BView::DrawString(const char* text, int32 length, BPoint baseline, escapement_delta*)
{
	if (!text || length <= 0)
		return;
	drawing_context context;
	if (_Context(context)) {
		context.target->text(context, text, length, baseline);
		_Touched();
	}
	MovePenTo(baseline + BPoint(text_width(fState->drawing.font, text, length), 0));
}


void
BView::DrawBitmap(const BBitmap* bitmap)
{
	DrawBitmap(bitmap, fState->drawing.pen);
}


void
BView::DrawBitmap(const BBitmap* bitmap, BPoint where)
{
	drawing_context context;
	if (!bitmap || !bitmap->IsValid() || !_Context(context))
		return;
	context.target->image(context, *bitmap->fState->pixels, where);
	_Touched();
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


// In a bitmap all views share its pixels, each within its ancestors.
bool
BView::_OffscreenContext(drawing_context& context) const
{
	if (IsHidden())
		return false;
	context.target = fState->window->fWindow->offscreen;
	context.state = &fState->drawing;
	BPoint origin(0, 0);
	BRect clip = Bounds();
	for (const BView* view = this; view->fState->parent; view = view->fState->parent) {
		clip = clip & view->Bounds();
		BPoint step = view->ConvertToParent(BPoint(0, 0));
		origin += step;
		clip.OffsetBy(step);
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
	drawing_state outside = fState->drawing;
	fState->updating = &update;
	fState->drawing.pen = BPoint(0, 0);
	drawing_context context;
	_Context(context);
	if (fState->view_color.alpha != B_TRANSPARENT_COLOR.alpha)
		context.target->erase(context, update.bounds(), fState->view_color);
	if (fState->flags & B_WILL_DRAW)
		Draw(update.bounds());
	fState->updating = nullptr;
	fState->drawing = outside;
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
