// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/choice.h"

#include "font/ttf.h"


chrs_record*
choice(const std::vector<uint16_t>& codes)
{
	auto* chosen = new chrs_record();
	chosen->codes[0] = 1;
	for (uint16_t code : codes)
		chosen->codes[code] = 1;
	for (unsigned char flag : chosen->codes)
		chosen->count += flag;
	chosen->glyphs = chosen->count;
	return chosen;
}
