// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TRUNCATE_H
#define KERNIX_FONT_TRUNCATE_H

#include <cmath>
#include <limits>
#include <SupportDefs.h>

// A coordinate as a whole number: truncated toward zero, what does not fit the type as its nearest
// value, and 0 for what is no number. The program's only way from a float to an integer, for types
// up to 32 bits: a bare cast of what does not fit is undefined.
template <typename whole>
inline whole
toward_zero(double value)
{
	using limits = std::numeric_limits<whole>;
	static_assert(limits::is_integer && limits::digits <= 32, "a double holds these exactly");
	if (std::isnan(value))
		return 0;
	if (value <= (double)limits::min())
		return limits::min();
	if (value >= (double)limits::max())
		return limits::max();
	return (whole)value;
}

#endif
