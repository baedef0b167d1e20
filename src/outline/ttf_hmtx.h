// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_OUTLINE_TTF_HMTX_H
#define KERNIX_OUTLINE_TTF_HMTX_H

#include "font/ttf_table.h"

// The horizontal metrics, hmtx: advance width and left side bearing of each glyph.
class ttf_hmtx : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_hmtx(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
