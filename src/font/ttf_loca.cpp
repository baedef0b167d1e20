// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_loca.h"


ttf_loca::ttf_loca(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'loca', buffer, size)
{
}
