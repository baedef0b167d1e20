// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "bitmaps/ttf_ebdt.h"

#include "bitmaps/bitmap.h"
#include "bitmaps/ebdteditview.h"
#include "bitmaps/ebdttoolview.h"
#include "font/cursor.h"
#include <cstring>

// The metrics in front of an image, bytes; the small ones are the first five of the big ones.
enum { no_metrics = 0, small_metrics = 5, big_metrics = 8 };

struct image_layout {
	uint32 metrics;
	bool aligned; // every row starts with a byte of its own
};

static bool
find_layout(unsigned short format, image_layout* layout)
{
	switch (format) {
		case 1:
			*layout = {small_metrics, true};
			return true;
		case 2:
			*layout = {small_metrics, false};
			return true;
		case 5:
			*layout = {no_metrics, false};
			return true;
		case 6:
			*layout = {big_metrics, true};
			return true;
		case 7:
			*layout = {big_metrics, false};
			return true;
		default:
			return false;
	}
}


// Bits from one row to the next.
static uint32
stride_of(const bitmap& b, const image_layout& layout)
{
	return layout.aligned ? (b.width + 7u) / 8 * 8 : b.width;
}


static uint32
size_of(const bitmap& b, const image_layout& layout)
{
	return (stride_of(b, layout) * b.height + 7) / 8;
}


// The first pixel of a byte is its highest bit.
static uint8
mask_of(uint32 bit)
{
	return (uint8)(0x80 >> bit % 8);
}


ttf_ebdt::ttf_ebdt(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'EBDT', buffer, size),
	  tools(new ebdttoolview(BRect(0, 0, 49, 511), this)),
	  edit(new ebdteditview(BRect(50, 0, 561, 511), this))
{
	AddChild(tools);
	AddChild(edit);
}


int
ttf_ebdt::decode(unsigned long offset, unsigned short imageFormat, bitmap* b) const
{
	image_layout layout;
	if (!find_layout(imageFormat, &layout))
		return 1;
	cursor image(all(), (uint32)offset);
	bool known = layout.metrics == no_metrics || b->take_metrics(image);
	delete[] b->pixels;
	b->pixels = nullptr;
	if (layout.metrics == big_metrics)
		image.skip(big_metrics - small_metrics);
	uint32 count = (uint32)b->width * b->height;
	if (!known || image.failed() || count == 0 || size_of(*b, layout) > image.left())
		return 2;
	b->pixels = new unsigned char[count];
	const uint8* bits = image.rest();
	for (uint32 i = 0; i < count; i++) {
		uint32 bit = i / b->width * stride_of(*b, layout) + i % b->width;
		b->pixels[i] = (bits[bit / 8] & mask_of(bit)) != 0;
	}
	return 0;
}


int
ttf_ebdt::encode(const bitmap* b, unsigned long offset, unsigned short imageFormat)
{
	image_layout layout;
	if (!find_layout(imageFormat, &layout))
		return 1;
	cursor image(all(), (uint32)offset);
	image.skip(layout.metrics);
	uint32 count = (uint32)b->width * b->height;
	uint32 size = size_of(*b, layout);
	if (b->pixels == nullptr || count == 0 || image.failed() || size > image.left())
		return 2;
	uint8* bits = data + image.place();
	memset(bits, 0, size);
	for (uint32 i = 0; i < count; i++) {
		uint32 bit = i / b->width * stride_of(*b, layout) + i % b->width;
		if (b->pixels[i] != 0)
			bits[bit / 8] |= mask_of(bit);
	}
	return 0;
}
