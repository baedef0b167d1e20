// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BITMAPS_TTF_EBDT_H
#define KERNIX_BITMAPS_TTF_EBDT_H

#include "font/ttf_table.h"

// The embedded bitmap data, EBDT: the pixels, found through EBLC.
class ttf_ebdt : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_ebdt(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
