// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BITMAPS_TTF_EBDT_H
#define KERNIX_BITMAPS_TTF_EBDT_H

#include "font/ttf_table.h"

class bitmap;
class ebdteditview;
class ebdttoolview;

// The embedded bitmap data, EBDT: the images, found through EBLC, of one bit for each pixel. Image
// formats 1, 2, 5, 6 and 7. An image is written over the old one, in the same place and size: the
// table never changes its length.
//
// Its panel is the bitmap editor: the palette and the edit view, which send each other messages.
class ttf_ebdt : public ttf_table {
public:
	// As for every table: takes the buffer over. There is no default content.
	ttf_ebdt(ttf* font, unsigned char* buffer, unsigned long size);

	// Reads the image at an offset, and its metrics where the format has them, into b; b's own size
	// counts in format 5. 0; 1 with b as it was for another image format; 2 with b undefined when
	// the image has no pixels or does not lie in the table.
	int decode(unsigned long offset, unsigned short imageFormat, bitmap* b) const;

	// Writes b's pixels over the image at an offset, padding bits 0, the metrics left alone. The
	// caller answers for b's size being the stored image's. 0; 1 for another image format; 2 when b
	// is undefined or the image does not lie in the table. Only at 0 anything has changed.
	int encode(const bitmap* b, unsigned long offset, unsigned short imageFormat);

	// The panel's children.
	ebdttoolview* tools;
	ebdteditview* edit;
};

#endif
