// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_NAME_H
#define KERNIX_TABLES_TTF_NAME_H

#include "font/ttf_table.h"

// The naming table, name: the font's names, by platform, encoding, language and kind.
class ttf_name : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_name(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
