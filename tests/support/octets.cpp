// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/octets.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>
#include <string>


octets
hex(std::string_view digits)
{
	octets result;
	bool half = false;
	for (char digit : digits) {
		if (std::isspace(static_cast<unsigned char>(digit)))
			continue;
		size_t value = std::string_view("0123456789abcdef").find(digit);
		if (value == std::string_view::npos)
			throw std::invalid_argument("hex: not a lower-case digit: " + std::string(1, digit));
		if (half)
			result.back() = uint8_t(result.back() << 4 | value);
		else
			result.push_back(uint8_t(value));
		half = !half;
	}
	if (half)
		throw std::invalid_argument("hex: half an octet at the end");
	return result;
}


octets
zeros(size_t count)
{
	return octets(count, 0);
}


uint16_t
be16(const octets& from, size_t at)
{
	return uint16_t(from.at(at) << 8 | from.at(at + 1));
}


uint32_t
be32(const octets& from, size_t at)
{
	return uint32_t(be16(from, at)) << 16 | be16(from, at + 2);
}


uint32_t
le32(const octets& from, size_t at)
{
	return uint32_t(from.at(at + 3)) << 24 | uint32_t(from.at(at + 2)) << 16
		| uint32_t(from.at(at + 1)) << 8 | from.at(at);
}


void
put_be16(octets& to, size_t at, uint16_t value)
{
	to.at(at) = uint8_t(value >> 8);
	to.at(at + 1) = uint8_t(value);
}


void
put_be32(octets& to, size_t at, uint32_t value)
{
	put_be16(to, at, uint16_t(value >> 16));
	put_be16(to, at + 2, uint16_t(value));
}


void
put_le32(octets& to, size_t at, uint32_t value)
{
	for (size_t i = 0; i < 4; i++)
		to.at(at + i) = uint8_t(value >> 8 * i);
}


octets
part(const octets& from, size_t at, size_t count)
{
	at = std::min(at, from.size());
	count = std::min(count, from.size() - at);
	return octets(from.begin() + ptrdiff_t(at), from.begin() + ptrdiff_t(at + count));
}


static std::string
digits_of(const octets& from)
{
	std::string text;
	for (uint8_t value : from) {
		text += " ";
		text += "0123456789abcdef"[value >> 4];
		text += "0123456789abcdef"[value & 15];
	}
	return text;
}


testing::AssertionResult
same(const octets& expected, const octets& actual)
{
	if (expected == actual)
		return testing::AssertionSuccess();
	size_t shorter = std::min(expected.size(), actual.size());
	auto end = expected.begin() + ptrdiff_t(shorter);
	size_t at =
		size_t(std::mismatch(expected.begin(), end, actual.begin()).first - expected.begin());
	return testing::AssertionFailure()
		<< "different from octet " << at << " on (" << expected.size() << " octets expected, "
		<< actual.size() << " there)\nexpected:" << digits_of(part(expected, at, 24))
		<< "\nthere:   " << digits_of(part(actual, at, 24));
}
