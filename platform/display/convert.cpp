// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/convert.h"

#include <algorithm>
#include <cmath>
#include <unicode/utf16.h>
#include <unicode/utf8.h>


namespace {

// Far outside every screen, and sums of two still fit an int.
constexpr float farthest = 1e8F;

// What a byte that is not UTF-8 is added to.
constexpr char16_t raw_byte = 0xDC00;
constexpr UChar32 replacement = 0xFFFD;


int
whole(float value)
{
	return (int)std::floor(std::clamp(value, -farthest, farthest));
}

}


QRect
kits::to_qrect(BRect rect)
{
	return QRect(QPoint(whole(rect.left), whole(rect.top)),
		QPoint(whole(std::ceil(rect.right)), whole(std::ceil(rect.bottom))));
}


BRect
kits::to_brect(const QRect& rect)
{
	return BRect((float)rect.left(), (float)rect.top(), (float)rect.right(), (float)rect.bottom());
}


QString
kits::to_qstring(const std::string& text)
{
	QString made;
	made.reserve((qsizetype)text.size());
	const auto size = (int32_t)text.size();
	for (int32_t at = 0; at < size;) {
		const int32_t start = at;
		UChar32 found;
		U8_NEXT(text, at, size, found);
		if (found >= 0) {
			made += QChar::fromUcs4((char32_t)found);
			continue;
		}
		for (int32_t i = start; i < at; i++)
			made += QChar((char16_t)(raw_byte | (uint8)text[(size_t)i]));
	}
	return made;
}


std::string
kits::to_bytes(const QString& text)
{
	std::string made;
	const auto* units = (const UChar*)text.utf16();
	const auto size = (int32_t)text.size();
	for (int32_t at = 0; at < size;) {
		UChar32 found;
		U16_NEXT(units, at, size, found);
		if (found >= (raw_byte | 0x80) && found <= (raw_byte | 0xFF)) {
			made += (char)found;
			continue;
		}
		char bytes[U8_MAX_LENGTH];
		int32_t length = 0;
		U8_APPEND_UNSAFE(bytes, length, U_IS_SURROGATE(found) ? replacement : found);
		made.append(bytes, (size_t)length);
	}
	return made;
}
