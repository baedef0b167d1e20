// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_name.h"


ttf_name::ttf_name(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'name', buffer, size)
{
}
