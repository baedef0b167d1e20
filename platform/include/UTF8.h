// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_UTF8_H
#define KITS_UTF8_H

#include <InterfaceDefs.h>
#include <SupportDefs.h>

// Encodings.
enum {
	B_ISO1_CONVERSION = 0,
	B_ISO2_CONVERSION = 1,
	B_ISO3_CONVERSION = 2,
	B_ISO4_CONVERSION = 3,
	B_ISO5_CONVERSION = 4,
	B_ISO6_CONVERSION = 5,
	B_ISO7_CONVERSION = 6,
	B_ISO8_CONVERSION = 7,
	B_ISO9_CONVERSION = 8,
	B_ISO10_CONVERSION = 9,
	B_MAC_ROMAN_CONVERSION = 10,
	B_SJIS_CONVERSION = 11, // the bytes below 80 are ASCII, 5C and 7E too
	B_EUC_CONVERSION = 12,
	B_JIS_CONVERSION = 13, // has shift states, which a text cut anywhere would lose: not converted
	B_MS_WINDOWS_CONVERSION = 14,
	B_UNICODE_CONVERSION = 15 // UTF-16, big-endian on every machine, without a mark
};

// Both convert a text between UTF-8 and another encoding. *srcLen is the number of bytes to convert
// and then of those consumed, *dstLen the room and then the bytes written; no NUL is needed or
// written. A full destination ends the text at a character boundary. What is malformed or has no
// place in the other encoding becomes one substitute character there. Each call stands alone: *state
// is left as it is, and may be null. Any thread.
//
// B_ERROR for an encoding that is not converted and B_BAD_VALUE for a null length or text, with
// nothing changed; negative lengths count as 0.
status_t convert_to_utf8(uint32 srcEncoding, const char* src, int32* srcLen, char* dst,
	int32* dstLen, int32* state, char substitute = B_SUBSTITUTE);
status_t convert_from_utf8(uint32 dstEncoding, const char* src, int32* srcLen, char* dst,
	int32* dstLen, int32* state, char substitute = B_SUBSTITUTE);

#endif
