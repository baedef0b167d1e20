// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BITMAPS_TTF_EBLC_H
#define KERNIX_BITMAPS_TTF_EBLC_H

#include "font/ttf_table.h"

// The embedded bitmap location, EBLC: which sizes there are and where each bitmap stands.
class ttf_eblc : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_eblc(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
