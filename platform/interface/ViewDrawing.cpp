// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// What a view draws, and what it draws with.
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <Bitmap.h>
#include <cmath>
#include <cstring>
#include <Shape.h>
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
	BFont font;
	font.SetSize(size);
	SetFont(&font, B_FONT_SIZE);
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
BView::SetDrawingMode(drawing_mode mode)
{
	fState->drawing.mode = mode;
}


drawing_mode
BView::DrawingMode() const
{
	return fState->drawing.mode;
}


void
BView::SetPenSize(float size)
{
	if (std::isfinite(size) && size >= 0)
		fState->drawing.pen_size = size;
}


float
BView::PenSize() const
{
	return fState->drawing.pen_size;
}


void
BView::SetLineMode(cap_mode cap, join_mode join, float miterLimit)
{
	fState->drawing.cap = cap;
	fState->drawing.join = join;
	fState->drawing.miter_limit = miterLimit;
}


void
BView::PushState()
{
	fState->pushed.push_back(fState->drawing);
	fState->drawing.outer_scale *= fState->drawing.scale;
	fState->drawing.scale = 1;
}


void
BView::PopState()
{
	if (fState->pushed.empty())
		return;
	fState->drawing = fState->pushed.back();
	fState->pushed.pop_back();
}


void
BView::SetScale(float scale) const
{
	if (std::isfinite(scale) && scale > 0)
		fState->drawing.scale = scale;
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
BView::StrokeEllipse(BRect rect, ::pattern p)
{
	drawing_context context;
	if (_Context(context)) {
		context.target->stroke_ellipse(context, rect, p);
		_Touched();
	}
}


void
BView::FillEllipse(BRect rect, ::pattern p)
{
	drawing_context context;
	if (_Context(context)) {
		context.target->fill_ellipse(context, rect, p);
		_Touched();
	}
}


void
BView::StrokeShape(BShape* shape, ::pattern p)
{
	drawing_context context;
	if (!shape || !_Context(context))
		return;
	outline path;
	_Trace(*shape, path);
	context.target->stroke_path(context, path, fState->drawing.pen, p);
	_Touched();
}


void
BView::FillShape(BShape* shape, ::pattern p)
{
	drawing_context context;
	if (!shape || !_Context(context))
		return;
	outline path;
	_Trace(*shape, path);
	context.target->fill_path(context, path, fState->drawing.pen, p);
	_Touched();
}


void
BView::_Trace(const BShape& shape, outline& path) const
{
	const BPoint* point = shape.fPoints.data();
	for (BShape::verb verb : shape.fVerbs) {
		switch (verb) {
			case BShape::move_to:
				path.move_to(*point++);
				break;
			case BShape::line_to:
				path.line_to(*point++);
				break;
			case BShape::bezier_to:
				path.bezier_to(point[0], point[1], point[2]);
				point += 3;
				break;
			case BShape::close_path:
				path.close();
				break;
		}
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
