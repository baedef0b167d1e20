// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "bitmaps/ttf_ebdt.h"


ttf_ebdt::ttf_ebdt(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'EBDT', buffer, size)
{
}
