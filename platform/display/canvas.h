// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CANVAS_H
#define KITS_CANVAS_H

#include "display/region.h"

#include <Font.h>
#include <GraphicsDefs.h>
#include <InterfaceDefs.h>
#include <memory>
#include <mutex>
#include <Point.h>
#include <Rect.h>

class QImage;
class QPainter;
class QPainterPath;
class QRectF;

namespace kits {

// What a view draws with.
struct drawing_state {
	rgb_color high = {0, 0, 0, 255};
	rgb_color low = {255, 255, 255, 255};
	drawing_mode mode = B_OP_COPY;
	float pen_size = 1;
	cap_mode cap = B_BUTT_CAP;
	join_mode join = B_MITER_JOIN;
	float miter_limit = B_DEFAULT_MITER_LIMIT;
	// Of this state, and of those it was pushed upon: what is drawn is scaled by both.
	float scale = 1;
	float outer_scale = 1;
	BPoint pen = BPoint(0, 0);
	BFont font;

	float scaled() const { return scale * outer_scale; }
};

// A path in the view's coordinates.
class outline {
public:
	outline();
	~outline();
	outline(const outline&) = delete;
	outline& operator=(const outline&) = delete;

	void move_to(BPoint point);
	void line_to(BPoint point);
	void bezier_to(BPoint first, BPoint second, BPoint end);
	void close();
	const QPainterPath& path() const { return *fPath; }

private:
	std::unique_ptr<QPainterPath> fPath;
};

class canvas;

// One view's drawing on a canvas: where its coordinates lie, what it may touch.
struct drawing_context {
	canvas* target = nullptr;
	const drawing_state* state = nullptr;
	// Added to the view's coordinates: gives canvas pixels.
	BPoint offset;
	// Canvas pixels that the view covers.
	BRect clip;
	// What an update repaints, in the view's coordinates; null outside updates.
	const region* update = nullptr;
	// Canvas pixels that other views lie over; null for none.
	std::unique_ptr<region> covered;
};

// What a peer shows: written by the looper's thread, read by the display, both under the lock and
// only for a copy.
struct front_image {
	front_image();
	~front_image();

	std::mutex lock;
	std::unique_ptr<QImage> image;
	// What is seen while there is no image: the window's own colour when it is transparent.
	rgb_color background = B_TRANSPARENT_COLOR;
	// Set while an update of the peer is on its way; what it will bring to the screen.
	bool asked = false;
	BRect dirty;
};

// Pixels to draw on, and the drawing. Sizes are kit pixels; the image behind has ratio times as many
// device pixels in each direction. One thread at a time.
class canvas {
public:
	canvas(int32 width, int32 height, float ratio);
	// On somebody else's 32-bit pixels, which must outlive the canvas.
	canvas(void* bits, int32 width, int32 height, int32 bytesPerRow);
	~canvas();
	canvas(const canvas&) = delete;
	canvas& operator=(const canvas&) = delete;

	int32 width() const { return fWidth; }
	int32 height() const { return fHeight; }
	float ratio() const { return fRatio; }

	// Fills with one colour, outside all modes. The rectangle is in the context's view coordinates.
	void erase(const drawing_context& context, BRect rect, rgb_color color);
	void fill_rect(const drawing_context& context, BRect rect, const pattern& p);
	void stroke_line(const drawing_context& context, BPoint from, BPoint to, const pattern& p);
	void stroke_rect(const drawing_context& context, BRect rect, const pattern& p);
	void stroke_ellipse(const drawing_context& context, BRect rect, const pattern& p);
	void fill_ellipse(const drawing_context& context, BRect rect, const pattern& p);
	// The path is moved by the offset, in the view's coordinates.
	void stroke_path(
		const drawing_context& context, const outline& shape, BPoint by, const pattern& p);
	void fill_path(
		const drawing_context& context, const outline& shape, BPoint by, const pattern& p);
	// Without a display nothing is drawn.
	void text(const drawing_context& context, const char* text, int32 length, BPoint baseline);
	void image(const drawing_context& context, const canvas& source, BPoint where);

	// Moves the pixels of a view from one scroll position to another; what comes in from outside is
	// left as it is.
	void scroll(BPoint from, BPoint to);
	// Takes over what both have in common, left tops together.
	void take_over(const canvas& old);
	// Copies what was drawn since the last call to the front image. What has to be repainted, in kit
	// pixels; empty when nothing was drawn.
	BRect publish(front_image& front);

private:
	class painter;

	// Fills a few pixels with one colour, in the view's coordinates and unscaled; an ellipse when round.
	// False when that is not all there is to do: nothing has been painted then.
	bool _FillSmall(const drawing_context& context, BRect rect, const pattern& p, bool round);
	// What publish() has to bring: a box in the view's pixels, or one in device pixels.
	void _Touched(const drawing_context& context, BRect rect);
	void _TouchedDevice(const QRectF& place);

	std::unique_ptr<QImage> fImage;
	int32 fWidth;
	int32 fHeight;
	float fRatio;
	// In device pixels.
	BRect fTouched;
};

// Width of the text in pixels; 0 without a display. Any thread.
float text_width(const BFont& font, const char* text, int32 length);
// Rounded up to whole pixels. Any thread.
font_height text_height(const BFont& font);

}

#endif
