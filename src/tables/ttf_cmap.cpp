// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_cmap.h"


ttf_cmap::ttf_cmap(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'cmap', buffer, size)
{
}
