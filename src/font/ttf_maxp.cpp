// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_maxp.h"


ttf_maxp::ttf_maxp(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'maxp', buffer, size)
{
}
