// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "bitmaps/ttf_eblc.h"


ttf_eblc::ttf_eblc(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'EBLC', buffer, size)
{
}
