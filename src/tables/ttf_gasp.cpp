// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_gasp.h"


ttf_gasp::ttf_gasp(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'gasp', buffer, size)
{
}
