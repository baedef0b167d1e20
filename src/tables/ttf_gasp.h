// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_GASP_H
#define KERNIX_TABLES_TTF_GASP_H

#include "font/ttf_table.h"

// The grid-fitting and scan-conversion procedure, gasp: how to render at which size.
class ttf_gasp : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_gasp(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
