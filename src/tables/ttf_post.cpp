// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_post.h"


ttf_post::ttf_post(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'post', buffer, size)
{
}
