// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_os2.h"


ttf_os2::ttf_os2(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'OS/2', buffer, size)
{
}
