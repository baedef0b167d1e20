// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// What is drawn on a canvas.
#include "display/canvas.h"
#include "display/convert.h"
#include "display/display.h"
#include "display/fonts.h"
#include "display/ink.h"

#include <algorithm>
#include <cmath>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

using namespace kits;


namespace {

// Two values of a pattern's bits as a brush of device pixels. The texture is laid at the brush
// origin, which the painter sets to the view's own.
QBrush
textured(const pattern& p, QRgb one, QRgb zero, int pixel)
{
	QImage tile(8 * pixel, 8 * pixel, QImage::Format_RGB32);
	for (int y = 0; y < tile.height(); y++) {
		for (int x = 0; x < tile.width(); x++) {
			bool bit = p.data[y / pixel] >> (7 - x / pixel) & 1;
			tile.setPixel(x, y, bit ? one : zero);
		}
	}
	return QBrush(tile);
}


// Inverted drawing is an exclusive or with white; where the pattern has no bit, with nothing.
QBrush
brush_of(const drawing_state& state, const pattern& p, float ratio)
{
	bool invert = state.mode == B_OP_INVERT;
	QColor one = invert ? QColor(Qt::white) : to_qcolor(state.high);
	QColor zero = invert ? QColor(Qt::black) : to_qcolor(state.low);
	if (uniform(p, 0xFF))
		return one;
	if (uniform(p, 0x00))
		return zero;
	return textured(p, one.rgb(), zero.rgb(), std::max(1, (int)std::lround(ratio)));
}


Qt::PenCapStyle
cap_of(cap_mode cap)
{
	return cap == B_ROUND_CAP ? Qt::RoundCap : cap == B_SQUARE_CAP ? Qt::SquareCap : Qt::FlatCap;
}


// Qt's own miter join measures the limit differently.
Qt::PenJoinStyle
join_of(join_mode join)
{
	return join == B_ROUND_JOIN ? Qt::RoundJoin
		: join == B_MITER_JOIN  ? Qt::SvgMiterJoin
								: Qt::BevelJoin;
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


BRect
scaled(const drawing_context& context, BRect rect)
{
	float by = context.state->scaled();
	return BRect(rect.left * by, rect.top * by, rect.right * by, rect.bottom * by);
}


BPoint
scaled(const drawing_context& context, BPoint point)
{
	float by = context.state->scaled();
	return BPoint(point.x * by, point.y * by);
}


// What a stroke along the box may reach: half a pen's width, and as much again for mitred corners.
BRect
inked(const drawing_context& context, BRect box)
{
	float reach =
		1 + context.state->pen_size * context.state->scaled() * context.state->miter_limit;
	box.InsetBy(-reach, -reach);
	return box;
}


// Device pixels that a path may reach with its ink, one more on each side.
QRectF
box_of(const QPainterPath& path, float reach)
{
	qreal around = reach + 1;
	return path.controlPointRect().adjusted(-around, -around, around, around);
}

}


// A painter whose space is the image's device pixels. Geometry is mapped before it is painted:
// with a transform, thin strokes would land between pixels.
class canvas::painter : public QPainter {
public:
	painter(canvas& target, const drawing_context& context)
		: QPainter(target.fImage.get()),
		  fState(*context.state),
		  fRatio(target.fRatio),
		  fOrigin(device_origin(context.offset, target.fRatio))
	{
		QRegion clip(pixels(to_qrect(context.clip)));
		if (context.update) {
			QRegion update;
			for (const QRect& rect : context.update->pixels())
				update += pixels(rect).translated(fOrigin);
			clip &= update;
		}
		if (context.covered) {
			for (const QRect& rect : context.covered->pixels())
				clip -= pixels(rect);
		}
		setClipRegion(clip);
		setRenderHint(Antialiasing, false);
		setBrushOrigin(fOrigin);
		if (context.state->mode == B_OP_INVERT)
			setCompositionMode(RasterOp_SourceXorDestination);
	}

	// What strokes are drawn with. One pixel is a hairline, whose round cap draws the last pixel
	// too; where a kit's pixel is several of the device's, a square cap covers it at both ends.
	QPen stroke(const pattern& p) const
	{
		QBrush brush = brush_of(fState, p, fRatio);
		float width = fState.pen_size * fState.scaled();
		if (_Hairline())
			return QPen(brush, 0, Qt::SolidLine, Qt::RoundCap);
		if (width <= 1)
			return QPen(brush, fRatio, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
		QPen pen(brush, width * fRatio, Qt::SolidLine, cap_of(fState.cap), join_of(fState.join));
		pen.setMiterLimit(fState.miter_limit);
		return pen;
	}

	QBrush fill(const pattern& p) const { return brush_of(fState, p, fRatio); }

	QRect pixels(const QRect& rect) const { return device_pixels(rect, fRatio); }

	QRect view_pixels(BRect rect) const { return pixels(to_qrect(rect)).translated(fOrigin); }

	// The middle of the pixel that the point names.
	QPointF centre(BPoint point) const
	{
		return QPointF((point.x + 0.5F) * fRatio, (point.y + 0.5F) * fRatio) + fOrigin;
	}

	// Where a line has its ends. Hairlines stay a little before the middle: from the very middle
	// Qt rounds single points and rising lines to the pixel beyond.
	QPointF line_end(BPoint point) const { return centre(point) - _Short(); }

	// A path of the view's coordinates between pixel centres (strokes) or pixel edges (fills).
	QPainterPath path(const outline& shape, BPoint by, bool stroked) const
	{
		QTransform map;
		float edge = stroked ? 0.5F : 0;
		map.translate(fOrigin.x(), fOrigin.y());
		if (stroked)
			map.translate(-_Short().x(), -_Short().y());
		map.scale(fRatio, fRatio);
		map.translate(edge, edge);
		map.scale(fState.scaled(), fState.scaled());
		map.translate(by.x, by.y);
		return map.map(shape.path());
	}

	// Qt cuts a wide line off at the image before it works out its pixels, and they come out a little
	// different elsewhere; after a scroll an inverted line could not be lifted. What is filled keeps them.
	void draw_line(BPoint from, BPoint to, const pattern& p)
	{
		if (fRatio > 1 && from != to) {
			QPainterPath line(line_end(from));
			line.lineTo(line_end(to));
			fillPath(QPainterPathStroker(stroke(p)).createStroke(line), fill(p));
			return;
		}
		setPen(stroke(p));
		if (is_thick())
			draw_in_view(from, to);
		else
			drawLine(line_end(from), line_end(to));
	}

	// The pixels where a path's curves end, which Qt's hairlines may leave out. Not for inverting,
	// which they would undo.
	void mark_joints(const QPainterPath& path, const pattern& p)
	{
		if (!_Hairline())
			return;
		setPen(stroke(p));
		for (int i = 0; i < path.elementCount(); i++) {
			bool last = i + 1 == path.elementCount();
			bool within = !last && path.elementAt(i + 1).type == QPainterPath::CurveToDataElement;
			if (path.elementAt(i).type == QPainterPath::CurveToDataElement && !within)
				drawPoint(path.elementAt(i));
		}
	}

private:
	bool _Hairline() const { return fState.pen_size * fState.scaled() <= 1 && fRatio <= 1; }
	QPointF _Short() const { return _Hairline() ? QPointF(1.0 / 64, 1.0 / 64) : QPointF(); }

	// Thin strokes would land between pixels.
	bool is_thick() const { return fState.pen_size * fState.scaled() > 1; }

	// A thick line takes the same pixels wherever the view is: Qt places its round ends by rounding,
	// which depends on how large the coordinates are, and only moves what came of it.
	void draw_in_view(BPoint from, BPoint to)
	{
		save();
		translate(fOrigin);
		setBrushOrigin(0, 0);
		drawLine(centre(from) - fOrigin, centre(to) - fOrigin);
		restore();
	}

	const drawing_state& fState;
	float fRatio;
	QPoint fOrigin;
};


void
canvas::erase(const drawing_context& context, BRect rect, rgb_color color)
{
	painter paint(*this, context);
	paint.setCompositionMode(QPainter::CompositionMode_Source);
	paint.fillRect(paint.view_pixels(rect), to_qcolor(color));
	_Touched(context, rect);
}


void
canvas::fill_rect(const drawing_context& context, BRect rect, const pattern& p)
{
	if (!finite(rect) || !rect.IsValid())
		return;
	rect = truncated(scaled(context, rect));
	_Touched(context, rect);
	if (_FillSmall(context, rect, p, false))
		return;
	painter paint(*this, context);
	paint.fillRect(paint.view_pixels(rect), paint.fill(p));
}


void
canvas::stroke_line(const drawing_context& context, BPoint from, BPoint to, const pattern& p)
{
	if (!finite(from) || !finite(to))
		return;
	from = scaled(context, from);
	to = scaled(context, to);
	painter paint(*this, context);
	paint.draw_line(from, to, p);
	_Touched(context, inked(context, in_order(BRect(from, to))));
}


void
canvas::stroke_rect(const drawing_context& context, BRect rect, const pattern& p)
{
	if (!finite(rect))
		return;
	rect = truncated(scaled(context, in_order(rect)));
	// As four bands: a stroked path would draw its corners twice, which inverting shows.
	float width = std::max(1.0F, std::round(context.state->pen_size * context.state->scaled()));
	BRect outer = rect;
	outer.InsetBy(-std::floor((width - 1) / 2), -std::floor((width - 1) / 2));
	BRect inner = outer;
	inner.InsetBy(width, width);
	painter paint(*this, context);
	QRegion frame(paint.view_pixels(outer));
	if (inner.IsValid())
		frame -= paint.view_pixels(inner);
	QBrush ink = paint.fill(p);
	for (const QRect& part : frame)
		paint.fillRect(part, ink);
	_Touched(context, outer);
}


void
canvas::stroke_ellipse(const drawing_context& context, BRect rect, const pattern& p)
{
	if (!finite(rect))
		return;
	rect = scaled(context, in_order(rect));
	painter paint(*this, context);
	paint.setPen(paint.stroke(p));
	paint.drawEllipse(QRectF(paint.centre(rect.LeftTop()), paint.centre(rect.RightBottom())));
	_Touched(context, inked(context, rect));
}


void
canvas::fill_ellipse(const drawing_context& context, BRect rect, const pattern& p)
{
	if (!finite(rect))
		return;
	rect = truncated(scaled(context, in_order(rect)));
	_Touched(context, rect);
	if (_FillSmall(context, rect, p, true))
		return;
	painter paint(*this, context);
	// As a path: Qt's own ellipses of whole numbers leave the topmost row out.
	QPainterPath path;
	path.addEllipse(paint.view_pixels(rect));
	paint.fillPath(path, paint.fill(p));
}


void
canvas::stroke_path(
	const drawing_context& context, const outline& shape, BPoint by, const pattern& p)
{
	if (shape.path().isEmpty())
		return;
	painter paint(*this, context);
	QPainterPath path = paint.path(shape, by, true);
	paint.strokePath(path, paint.stroke(p));
	if (context.state->mode != B_OP_INVERT)
		paint.mark_joints(path, p);
	_TouchedDevice(box_of(path, inked(context, BRect(0, 0, 0, 0)).Width() / 2 * fRatio));
}


void
canvas::fill_path(const drawing_context& context, const outline& shape, BPoint by, const pattern& p)
{
	if (shape.path().isEmpty())
		return;
	painter paint(*this, context);
	QPainterPath path = paint.path(shape, by, false);
	path.setFillRule(Qt::WindingFill);
	paint.fillPath(path, paint.fill(p));
	_TouchedDevice(box_of(path, fRatio));
}


void
canvas::text(const drawing_context& context, const char* text, int32 length, BPoint baseline)
{
	if (!display::running() || !finite(baseline))
		return;
	const BFont& font = context.state->font;
	float scale = context.state->scaled();
	painter paint(*this, context);
	paint.setPen(to_qcolor(context.state->high));
	paint.setFont(screen_font(font.Size(), font.Face() & B_BOLD_FACE));
	paint.translate(device_origin(context.offset, fRatio));
	paint.scale(fRatio * scale, fRatio * scale);
	paint.drawText(QPointF(baseline.x, baseline.y), QString::fromUtf8(text, length));
	font_height height = text_height(font);
	float width = text_width(font, text, length);
	// Some glyphs reach over their advance on both sides.
	BRect box(baseline.x - height.ascent, baseline.y - 2 * height.ascent,
		baseline.x + width + height.ascent, baseline.y + 2 * height.descent);
	_Touched(context, scaled(context, box));
}


void
canvas::image(const drawing_context& context, const canvas& source, BPoint where)
{
	if (!finite(where))
		return;
	BRect place(
		where.x, where.y, where.x + (float)source.fWidth - 1, where.y + (float)source.fHeight - 1);
	place = truncated(scaled(context, place));
	painter paint(*this, context);
	paint.drawImage(paint.view_pixels(place), *source.fImage);
	_Touched(context, place);
}
