// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_OUTLINE_TTF_GLYF_H
#define KERNIX_OUTLINE_TTF_GLYF_H

#include "font/ttf_table.h"

// The glyph data, glyf: one outline record after the other, found through loca.
class ttf_glyf : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_glyf(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
