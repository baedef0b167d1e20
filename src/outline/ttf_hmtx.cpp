// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/ttf_hmtx.h"


ttf_hmtx::ttf_hmtx(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'hmtx', buffer, size)
{
}
