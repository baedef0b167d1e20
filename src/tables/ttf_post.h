// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_POST_H
#define KERNIX_TABLES_TTF_POST_H

#include "font/ttf_table.h"

// The PostScript information, post: italic angle, underline, memory use.
class ttf_post : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_post(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
