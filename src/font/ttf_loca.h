// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_LOCA_H
#define KERNIX_FONT_TTF_LOCA_H

#include "font/ttf_table.h"

// The index to location, loca: where each glyph's outline starts in glyf. Without a panel:
// never attached.
class ttf_loca : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_loca(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
