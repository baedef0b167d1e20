// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/canvas.h"

#include "display/convert.h"
#include "display/display.h"
#include "display/fonts.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

using namespace kits;


namespace {

bool
same(const pattern& a, const pattern& b)
{
	return memcmp(a.data, b.data, sizeof a.data) == 0;
}


// Only the two solid patterns are used so far: what is not solid low paints high.
QColor
colour(const drawing_context& context, const pattern& p)
{
	return to_qcolor(same(p, B_SOLID_LOW) ? context.state->low : context.state->high);
}


bool
finite(BPoint point)
{
	return std::isfinite(point.x) && std::isfinite(point.y);
}


bool
finite(BRect rect)
{
	return finite(rect.LeftTop()) && finite(rect.RightBottom());
}


BRect
in_order(BRect rect)
{
	return BRect(std::min(rect.left, rect.right), std::min(rect.top, rect.bottom),
		std::max(rect.left, rect.right), std::max(rect.top, rect.bottom));
}


// Coordinates are truncated to whole pixels, toward zero.
BRect
truncated(BRect rect)
{
	return BRect(std::trunc(rect.left), std::trunc(rect.top), std::trunc(rect.right),
		std::trunc(rect.bottom));
}

}


front_image::front_image() = default;
front_image::~front_image() = default;


// A painter whose space is the image's device pixels. Geometry is mapped before it is painted:
// with a transform, thin strokes would land between pixels.
class canvas::painter : public QPainter {
public:
	painter(canvas& target, const drawing_context& context)
		: QPainter(target.fImage.get()),
		  fRatio(target.fRatio),
		  fOffset(context.offset)
	{
		QRegion clip(pixels(to_qrect(context.clip)));
		if (context.update) {
			QRegion update;
			QPoint offset((int)fOffset.x, (int)fOffset.y);
			for (const QRect& rect : context.update->pixels())
				update += pixels(rect.translated(offset));
			clip &= update;
		}
		setClipRegion(clip);
	}

	// Canvas pixels to device pixels, whole ones that are touched.
	QRect pixels(const QRect& rect) const
	{
		int left = (int)std::floor(rect.left() * fRatio);
		int top = (int)std::floor(rect.top() * fRatio);
		int right = (int)std::ceil((rect.right() + 1) * fRatio);
		int bottom = (int)std::ceil((rect.bottom() + 1) * fRatio);
		return QRect(left, top, right - left, bottom - top);
	}

	QRect view_pixels(BRect rect) const
	{
		rect.OffsetBy(fOffset);
		return pixels(to_qrect(rect));
	}

	// The middle of the pixel that the point names.
	QPointF centre(BPoint point) const
	{
		return QPointF(
			(point.x + fOffset.x + 0.5F) * fRatio, (point.y + fOffset.y + 0.5F) * fRatio);
	}

private:
	float fRatio;
	BPoint fOffset;
};


canvas::canvas(int32 width, int32 height, float ratio)
	: fImage(new QImage((int)std::ceil((float)width * ratio), (int)std::ceil((float)height * ratio),
		QImage::Format_RGB32)),
	  fWidth(width),
	  fHeight(height),
	  fRatio(ratio)
{
}


canvas::canvas(void* bits, int32 width, int32 height, int32 bytesPerRow)
	: fImage(
		new QImage(static_cast<uchar*>(bits), width, height, bytesPerRow, QImage::Format_RGB32)),
	  fWidth(width),
	  fHeight(height),
	  fRatio(1)
{
}


canvas::~canvas() = default;


void
canvas::erase(const drawing_context& context, BRect rect, rgb_color color)
{
	painter p(*this, context);
	p.fillRect(p.view_pixels(rect), to_qcolor(color));
	_Touched(context, rect);
}


void
canvas::fill_rect(const drawing_context& context, BRect rect, const pattern& p)
{
	if (!finite(rect) || !rect.IsValid())
		return;
	rect = truncated(rect);
	painter paint(*this, context);
	paint.fillRect(paint.view_pixels(rect), colour(context, p));
	_Touched(context, rect);
}


void
canvas::stroke_line(const drawing_context& context, BPoint from, BPoint to, const pattern& p)
{
	if (!finite(from) || !finite(to))
		return;
	painter paint(*this, context);
	// One pixel is a hairline, whose round cap draws the last pixel too; a wider device pixel needs
	// the square one to cover the kit's pixel at both ends.
	bool hairline = fRatio <= 1;
	paint.setPen(QPen(colour(context, p), hairline ? 0 : fRatio, Qt::SolidLine,
		hairline ? Qt::RoundCap : Qt::SquareCap));
	paint.drawLine(paint.centre(from), paint.centre(to));
	BRect box = in_order(BRect(from, to));
	box.InsetBy(-1, -1);
	_Touched(context, box);
}


void
canvas::stroke_rect(const drawing_context& context, BRect rect, const pattern& p)
{
	if (!finite(rect))
		return;
	rect = truncated(in_order(rect));
	painter paint(*this, context);
	QRect outer = paint.view_pixels(rect);
	QRegion frame(outer);
	BRect inner = rect;
	inner.InsetBy(1, 1);
	if (inner.IsValid())
		frame -= paint.view_pixels(inner);
	QColor ink = colour(context, p);
	for (const QRect& part : frame)
		paint.fillRect(part, ink);
	_Touched(context, rect);
}


void
canvas::text(const drawing_context& context, const char* text, int32 length, BPoint baseline)
{
	if (!display::running() || !finite(baseline))
		return;
	const BFont& font = context.state->font;
	painter paint(*this, context);
	paint.setPen(to_qcolor(context.state->high));
	paint.setFont(screen_font(font.Size(), font.Face() & B_BOLD_FACE));
	paint.translate(context.offset.x * fRatio, context.offset.y * fRatio);
	paint.scale(fRatio, fRatio);
	paint.drawText(QPointF(baseline.x, baseline.y), QString::fromUtf8(text, length));
	font_height height = text_height(font);
	float width = text_width(font, text, length);
	// Some glyphs reach over their advance on both sides.
	_Touched(context,
		BRect(baseline.x - height.ascent, baseline.y - 2 * height.ascent,
			baseline.x + width + height.ascent, baseline.y + 2 * height.descent));
}


void
canvas::image(const drawing_context& context, const canvas& source, BPoint where)
{
	if (!finite(where))
		return;
	BRect place(
		where.x, where.y, where.x + (float)source.fWidth - 1, where.y + (float)source.fHeight - 1);
	place = truncated(place);
	painter paint(*this, context);
	paint.drawImage(paint.view_pixels(place), *source.fImage);
	_Touched(context, place);
}


void
canvas::_Touched(const drawing_context& context, BRect rect)
{
	rect.OffsetBy(context.offset);
	rect = rect & BRect(0, 0, (float)fWidth - 1, (float)fHeight - 1);
	if (rect.IsValid())
		fTouched = fTouched.IsValid() ? fTouched | rect : rect;
}


void
canvas::scroll(int32 dx, int32 dy)
{
	int x = (int)std::lround((float)dx * fRatio);
	int y = (int)std::lround((float)dy * fRatio);
	QImage before = fImage->copy();
	{
		QPainter paint(fImage.get());
		paint.setCompositionMode(QPainter::CompositionMode_Source);
		paint.drawImage(x, y, before);
	}
	fTouched = BRect(0, 0, (float)fWidth - 1, (float)fHeight - 1);
}


void
canvas::take_over(const canvas& old)
{
	if (old.fRatio != fRatio)
		return;
	QPainter paint(fImage.get());
	paint.setCompositionMode(QPainter::CompositionMode_Source);
	paint.drawImage(0, 0, *old.fImage);
	fTouched = BRect(0, 0, (float)fWidth - 1, (float)fHeight - 1);
}


BRect
canvas::publish(front_image& front)
{
	BRect touched = fTouched;
	fTouched = BRect();
	if (!touched.IsValid())
		return touched;
	std::lock_guard guard(front.lock);
	if (!front.image || front.image->size() != fImage->size())
		front.image = std::make_unique<QImage>(fImage->size(), QImage::Format_RGB32);
	front.image->setDevicePixelRatio(fRatio);
	int left = std::max(0, (int)std::floor(touched.left * fRatio));
	int top = std::max(0, (int)std::floor(touched.top * fRatio));
	int right = std::min(fImage->width(), (int)std::ceil((touched.right + 1) * fRatio));
	int bottom = std::min(fImage->height(), (int)std::ceil((touched.bottom + 1) * fRatio));
	for (int y = top; y < bottom; y++) {
		memcpy(front.image->scanLine(y) + 4 * left, fImage->constScanLine(y) + 4 * left,
			4 * (size_t)(right - left));
	}
	return touched;
}


float
kits::text_width(const BFont& font, const char* text, int32 length)
{
	if (!display::running())
		return 0;
	QFontMetricsF metrics(screen_font(font.Size(), font.Face() & B_BOLD_FACE));
	return (float)metrics.horizontalAdvance(QString::fromUtf8(text, length));
}


font_height
kits::text_height(const BFont& font)
{
	if (!display::running())
		return {std::ceil(font.Size()), std::ceil(font.Size() / 4), 0};
	QFontMetricsF metrics(screen_font(font.Size(), font.Face() & B_BOLD_FACE));
	return {(float)std::ceil(metrics.ascent()), (float)std::ceil(metrics.descent()),
		(float)std::ceil(std::max(0.0, metrics.leading()))};
}
