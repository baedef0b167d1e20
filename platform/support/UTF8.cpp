// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstring>
#include <iterator>
#include <unicode/ucnv.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>
#include <UTF8.h>


namespace {

constexpr UChar32 malformed = -1;

// As many bytes as one character has in any of the encodings, and more.
constexpr size_t longest = 8;


// The converters' names, by the platform's numbers; null for what is not converted.
const char*
name_of(uint32 encoding)
{
	// The Japanese ones are those of desktops, which know the characters that people type.
	static const char* const names[] = {"ISO-8859-1", "ISO-8859-2", "ISO-8859-3", "ISO-8859-4",
		"ISO-8859-5", "ISO-8859-6", "ISO-8859-7", "ISO-8859-8", "ISO-8859-9", "iso-8859_10-1998",
		"macintosh", "ibm-943_P15A-2003", "EUC-JP", nullptr, "windows-1252", "UTF-16BE"};
	return encoding < std::size(names) ? names[encoding] : nullptr;
}


// An encoding other than UTF-8.
class foreign_text {
public:
	explicit foreign_text(uint32 encoding) : fAscii(encoding != B_UNICODE_CONVERSION)
	{
		UErrorCode error = U_ZERO_ERROR;
		const char* name = name_of(encoding);
		if (!name)
			return;
		fConverter = ucnv_open(name, &error);
		if (U_FAILURE(error))
			return;
		ucnv_setToUCallBack(fConverter, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
		ucnv_setFromUCallBack(
			fConverter, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
		// A dash or a wave of another standard is better than none.
		ucnv_setFallback(fConverter, true);
	}
	~foreign_text() { ucnv_close(fConverter); }
	foreign_text(const foreign_text&) = delete;
	foreign_text& operator=(const foreign_text&) = delete;

	bool is_known() const { return fConverter != nullptr; }

	// The next character of a text that is not at its end; moves on past it.
	UChar32 read(const char*& from, const char* end)
	{
		// The converters exchange a few control characters.
		if (fAscii && U8_IS_SINGLE(*from))
			return *from++;
		UErrorCode error = U_ZERO_ERROR;
		const char* start = from;
		UChar32 found = ucnv_getNextUChar(fConverter, &from, end, &error);
		if (!U_FAILURE(error))
			return found;
		ucnv_resetToUnicode(fConverter);
		if (from == start)
			from = end;
		return malformed;
	}

	// Bytes of the character, 0 when it has none here.
	size_t write(UChar32 what, char (&bytes)[longest])
	{
		if (fAscii && what < 0x80) {
			bytes[0] = (char)what;
			return 1;
		}
		UChar units[2];
		int32_t count = 0;
		U16_APPEND_UNSAFE(units, count, what);
		UErrorCode error = U_ZERO_ERROR;
		int32_t length = ucnv_fromUChars(fConverter, bytes, longest, units, count, &error);
		// A yen sign is no backslash, however it was drawn once.
		bool disguised = fAscii && length == 1 && U8_IS_SINGLE(bytes[0]);
		return U_FAILURE(error) || disguised ? 0 : (size_t)length;
	}

private:
	UConverter* fConverter = nullptr;
	// The bytes below 80 are ASCII.
	const bool fAscii;
};


// The same for UTF-8.
struct utf8_text {
	static UChar32 read(const char*& from, const char* end)
	{
		UChar32 found;
		int32_t used = 0;
		U8_NEXT(from, used, (int32_t)(end - from), found);
		from += used;
		return found < 0 ? malformed : found;
	}

	static size_t write(UChar32 what, char (&bytes)[longest])
	{
		size_t length = 0;
		U8_APPEND_UNSAFE(bytes, length, what);
		return length;
	}
};


struct passage {
	const char* source;
	int32* source_length;
	char* target;
	int32* target_length;
	char substitute;
};


template <typename Target>
size_t
write_or_substitute(Target& target, UChar32 what, char substitute, char (&bytes)[longest])
{
	size_t length = what == malformed ? 0 : target.write(what, bytes);
	if (length == 0)
		length = target.write((uint8)substitute, bytes);
	if (length == 0) {
		bytes[0] = substitute;
		length = 1;
	}
	return length;
}


template <typename Source, typename Target>
void
convert(const passage& text, Source& source, Target& target)
{
	const char* from = text.source;
	const char* end = from + std::max(*text.source_length, 0);
	char* to = text.target;
	char* limit = to + std::max(*text.target_length, 0);
	while (from < end) {
		const char* next = from;
		char bytes[longest];
		UChar32 what = source.read(next, end);
		size_t length = write_or_substitute(target, what, text.substitute, bytes);
		if (length > (size_t)(limit - to))
			break;
		memcpy(to, bytes, length);
		to += length;
		from = next;
	}
	*text.source_length = (int32)(from - text.source);
	*text.target_length = (int32)(to - text.target);
}


// B_OK when the texts can be converted.
status_t
check(const foreign_text& foreign, const passage& text)
{
	if (!foreign.is_known())
		return B_ERROR;
	if (!text.source_length || !text.target_length)
		return B_BAD_VALUE;
	bool empty = *text.source_length <= 0;
	bool no_target = !text.target && *text.target_length > 0;
	return !empty && (!text.source || no_target) ? B_BAD_VALUE : B_OK;
}


template <typename Source, typename Target>
status_t
convert_checked(const foreign_text& foreign, const passage& text, Source& source, Target& target)
{
	status_t status = check(foreign, text);
	if (status == B_OK)
		convert(text, source, target);
	return status;
}

}


status_t
convert_to_utf8(uint32 srcEncoding, const char* src, int32* srcLen, char* dst, int32* dstLen,
	int32*, char substitute)
{
	foreign_text source(srcEncoding);
	utf8_text target;
	return convert_checked(source, {src, srcLen, dst, dstLen, substitute}, source, target);
}


status_t
convert_from_utf8(uint32 dstEncoding, const char* src, int32* srcLen, char* dst, int32* dstLen,
	int32*, char substitute)
{
	utf8_text source;
	foreign_text target(dstEncoding);
	return convert_checked(target, {src, srcLen, dst, dstLen, substitute}, source, target);
}
