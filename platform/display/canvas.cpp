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
#include <QPainterPath>

using namespace kits;


outline::outline() : fPath(new QPainterPath) {}


outline::~outline() = default;


void
outline::move_to(BPoint point)
{
	fPath->moveTo(point.x, point.y);
}


void
outline::line_to(BPoint point)
{
	fPath->lineTo(point.x, point.y);
}


void
outline::bezier_to(BPoint first, BPoint second, BPoint end)
{
	fPath->cubicTo(first.x, first.y, second.x, second.y, end.x, end.y);
}


void
outline::close()
{
	fPath->closeSubpath();
}


front_image::front_image() = default;
front_image::~front_image() = default;


// Inverting twice restores each pixel in this format.
static constexpr auto format = QImage::Format_RGB32;


// The device pixels that a length needs.
static int
device_pixels(int32 length, float ratio)
{
	return (int)std::ceil((float)length * ratio);
}


canvas::canvas(int32 width, int32 height, float ratio)
	: fImage(new QImage(device_pixels(width, ratio), device_pixels(height, ratio), format)),
	  fWidth(width),
	  fHeight(height),
	  fRatio(ratio)
{
}


canvas::canvas(void* bits, int32 width, int32 height, int32 bytesPerRow)
	: fImage(new QImage(static_cast<uchar*>(bits), width, height, bytesPerRow, format)),
	  fWidth(width),
	  fHeight(height),
	  fRatio(1)
{
}


canvas::~canvas() = default;


void
canvas::_Touched(const drawing_context& context, BRect rect)
{
	rect.OffsetBy(context.offset);
	rect = rect & BRect(0, 0, (float)fWidth - 1, (float)fHeight - 1);
	if (rect.IsValid())
		fTouched = fTouched.IsValid() ? fTouched | rect : rect;
}


// The rectangle is in device pixels already.
void
canvas::_TouchedDevice(const QRectF& rect, float reach)
{
	BRect box((float)rect.left() / fRatio, (float)rect.top() / fRatio, (float)rect.right() / fRatio,
		(float)rect.bottom() / fRatio);
	box.InsetBy(-reach - 1, -reach - 1);
	drawing_context here;
	_Touched(here, box);
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
		memcpy(front.image->scanLine(y) + 4 * (ptrdiff_t)left,
			fImage->constScanLine(y) + 4 * (ptrdiff_t)left, 4 * (size_t)(right - left));
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
	// Hinted, the height is rounded by one release of the toolkit and left alone by another. The
	// layouts count on one height, so they take the face's own.
	QFont face = screen_font(font.Size(), font.Face() & B_BOLD_FACE);
	face.setHintingPreference(QFont::PreferNoHinting);
	QFontMetricsF metrics(face);
	return {(float)std::ceil(metrics.ascent()), (float)std::ceil(metrics.descent()),
		(float)std::ceil(std::max(0.0, metrics.leading()))};
}
