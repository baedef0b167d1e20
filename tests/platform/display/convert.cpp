// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Texts on their way to the toolkit and back.
#include "display/convert.h"

#include <gtest/gtest.h>
#include <string_view>

using namespace kits;

namespace {

QString
units(std::u16string_view text)
{
	return QString((const QChar*)text.data(), (qsizetype)text.size());
}

}


TEST(text_conversion, takes_utf8_as_it_is)
{
	EXPECT_EQ(to_qstring("aéあ😀"), QStringLiteral("aéあ😀"));
	EXPECT_EQ(to_bytes(QStringLiteral("aéあ😀")), "aéあ😀");
	EXPECT_EQ(to_qstring(""), QString());
	EXPECT_EQ(to_bytes(QString()), "");
}


TEST(text_conversion, makes_half_a_pair_of_each_byte_that_is_not_utf8)
{
	EXPECT_EQ(to_qstring("a\x80z\xFF"), units(u"a\xDC80z\xDCFF"));
	// The beginning of a character counts byte by byte, too.
	EXPECT_EQ(to_qstring("\xF0\x9F\x98"), units(u"\xDCF0\xDC9F\xDC98"));
	EXPECT_EQ(to_qstring("\xED\xB2\x80"), units(u"\xDCED\xDCB2\xDC80"));
}


TEST(text_conversion, gives_every_pair_of_bytes_back)
{
	for (int first = 1; first < 256; first++) {
		for (int second = 1; second < 256; second++) {
			const std::string text = {char(first), char(second), 'z'};
			ASSERT_EQ(to_bytes(to_qstring(text)), text);
		}
	}
}


TEST(text_conversion, puts_a_replacement_for_halves_that_are_no_byte)
{
	EXPECT_EQ(to_bytes(units(u"a\xD83Dz")), "a\uFFFDz");
	EXPECT_EQ(to_bytes(units(u"\xDC7F\xDD00")), "\uFFFD\uFFFD");
}
