// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BITMAPS_TTF_EBLC_H
#define KERNIX_BITMAPS_TTF_EBLC_H

#include "font/ttf_table.h"
#include <vector>

class bitmap;
struct panel_column;

// The embedded bitmap location, EBLC: which sizes (strikes) there are, and where in EBDT each
// bitmap stands. Index formats 1, 2 and 3. Read only; its panel lists the sizes.
//
// What lies outside the table counts as missing, whatever the counts say.
class ttf_eblc : public ttf_table {
public:
	// As for every table: takes the buffer over. There is no default content.
	ttf_eblc(ttf* font, unsigned char* buffer, unsigned long size);

	// Finds the image of the glyph b->glyph at b->ppemX and b->ppemY. Of several sizes alike the
	// first counts, even when it lacks the glyph.
	// @param offset out: bytes from the start of EBDT; may lie outside of it
	// @param imageFormat out: how it is stored; set as soon as the glyph's index sub-table is found
	// 0; 1 when there is none, or at offset 0; 2 for another index format. In index format 2 the
	// image's size and metrics stand here and are given to b, which loses pixels of another size.
	int get_offset(bitmap* b, unsigned long* offset, unsigned short* imageFormat) const;

	// The distinct sizes in their order: two bytes each, pixels per em across and down.
	// @param sizes room for as many as numSizes tells
	int get_sizes(int* count, unsigned char* sizes) const;
	// The same as numbers, 256 times across plus down.
	std::vector<uint16> strikes() const;

	// The listing; of the sizes as many as the panel has room for.
	void Draw(BRect area) override;

private:
	uint32 whole_sizes() const;
	bool find_size(const bitmap& b, uint32* record) const;
	bool find_index(uint32 record, uint16 glyph, uint32* index, uint32* place) const;
	void draw_label(int row, const char* label);
	void draw_size(uint32 record, const panel_column& column);
};

#endif
