// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_OS2_H
#define KERNIX_TABLES_TTF_OS2_H

#include "font/ttf_table.h"

// The OS/2 table: weight, class, ranges and line metrics as other systems want them.
class ttf_os2 : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_os2(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
