// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/ttf_glyf.h"


ttf_glyf::ttf_glyf(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'glyf', buffer, size)
{
}
