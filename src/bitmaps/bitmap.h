// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BITMAPS_BITMAP_H
#define KERNIX_BITMAPS_BITMAP_H

#include <Point.h>
#include <Rect.h>
#include <SupportDefs.h>

class BView;
class cursor;

// The embedded bitmap of one glyph at one size, a grid of pixels, and its place in a view: the em
// square fills the view rectangle, a pixel is one cell of it. The baseline is the rectangle's lower
// edge.
//
// A bitmap without pixels is undefined: it shows so and cannot be hit. Nor can one of a size of 0
// pixels per em, which has no cells. Used in one thread at a time.
class bitmap {
public:
	// Undefined, without a size, its advance that of the em.
	bitmap(unsigned short index, unsigned char across, unsigned char down, unsigned char depth);
	~bitmap();
	bitmap(const bitmap&) = delete;
	bitmap& operator=(const bitmap&) = delete;

	// The part of a view, in its pixels with both edges, that the em square fills.
	void setvrect(const BRect& r);

	// Turns the pixel under a point of the view round: 0, or 1 when there is none. The value means
	// nothing. A point less than one unit left of the image or above it hits the first column or
	// row, on purpose.
	int create(const unsigned char& value, const BPoint& p);

	// Ink in white and a grey box around the image, or a word instead. Changes the high colour.
	void draw(BView* v) const;

	// Whether the em square has cells.
	bool has_cells() const { return ppemX > 0 && ppemY > 0; }

	// Takes size, bearings and advance from the next five bytes, as glyph metrics begin: height
	// comes first. Another size drops the pixels. False, with nothing taken, without them.
	bool take_metrics(cursor& from);

	uint16 glyph;
	// Pixels per em.
	uint8 ppemX;
	uint8 ppemY;
	uint8 bitDepth;
	// Pixels; bearings from the left edge of the em and from the baseline up to the image's top.
	uint8 width;
	uint8 height;
	int8 horiBearingX;
	int8 horiBearingY;
	uint8 horiAdvance;
	// Owned; width x height bytes row by row from the top, 1 for ink, else 0; null: undefined.
	unsigned char* pixels;
	BRect vrect;

private:
	float cell_width() const;
	float cell_height() const;
	BPoint origin() const;
	void draw_cells(BView* v) const;
};

#endif
