// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/canvas.h"

#include "display/convert.h"
#include "display/display.h"
#include "display/fonts.h"
#include "display/ink.h"

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
device_length(int32 length, float ratio)
{
	return (int)std::ceil((float)length * ratio);
}


canvas::canvas(int32 width, int32 height, float ratio)
	: fImage(new QImage(device_length(width, ratio), device_length(height, ratio), format)),
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
	QRect place = device_pixels(to_qrect(rect), fRatio);
	_TouchedDevice(place.translated(device_origin(context.offset, fRatio)));
}


void
canvas::_TouchedDevice(const QRectF& place)
{
	BRect box = to_brect((place & QRectF(fImage->rect())).toAlignedRect());
	if (box.IsValid())
		fTouched = fTouched.IsValid() ? fTouched | box : box;
}


// By the difference of two rounded places: steps that are rounded by themselves would add up to
// another place than the one where the view draws.
void
canvas::scroll(BPoint from, BPoint to)
{
	QPoint by = device_origin(-to, fRatio) - device_origin(-from, fRatio);
	QImage before = fImage->copy();
	{
		QPainter paint(fImage.get());
		paint.setCompositionMode(QPainter::CompositionMode_Source);
		paint.drawImage(by, before);
	}
	_TouchedDevice(fImage->rect());
}


void
canvas::take_over(const canvas& old)
{
	if (old.fRatio != fRatio)
		return;
	QPainter paint(fImage.get());
	paint.setCompositionMode(QPainter::CompositionMode_Source);
	paint.drawImage(0, 0, *old.fImage);
	_TouchedDevice(fImage->rect());
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
	auto start = 4 * (ptrdiff_t)touched.left;
	auto length = 4 * (size_t)(touched.Width() + 1);
	for (int y = (int)touched.top; y <= (int)touched.bottom; y++)
		memcpy(front.image->scanLine(y) + start, fImage->constScanLine(y) + start, length);
	// Where kit pixels end within device pixels, the toolkit may leave out those at the edges of what
	// it is asked to repaint.
	float margin = fRatio == std::floor(fRatio) ? 0 : 1;
	return BRect(std::floor(touched.left / fRatio) - margin,
		std::floor(touched.top / fRatio) - margin,
		std::ceil((touched.right + 1) / fRatio) - 1 + margin,
		std::ceil((touched.bottom + 1) / fRatio) - 1 + margin);
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
