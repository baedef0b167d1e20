// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_CMAP_H
#define KERNIX_TABLES_TTF_CMAP_H

#include "font/ttf_table.h"

// The character map, cmap: from character codes to glyphs. No font opens without one.
class ttf_cmap : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_cmap(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
