// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_hhea.h"


ttf_hhea::ttf_hhea(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'hhea', buffer, size)
{
}
