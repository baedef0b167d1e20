// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TYPECONSTANTS_H
#define KITS_TYPECONSTANTS_H

#include <SupportDefs.h>

// The types of message fields.

inline constexpr type_code B_ANY_TYPE = 'ANYT';
inline constexpr type_code B_BOOL_TYPE = 'BOOL';
inline constexpr type_code B_DOUBLE_TYPE = 'DBLE';
inline constexpr type_code B_FLOAT_TYPE = 'FLOT';
inline constexpr type_code B_INT8_TYPE = 'BYTE';
inline constexpr type_code B_INT16_TYPE = 'SHRT';
inline constexpr type_code B_INT32_TYPE = 'LONG';
inline constexpr type_code B_INT64_TYPE = 'LLNG';
inline constexpr type_code B_MESSAGE_TYPE = 'MSGG';
inline constexpr type_code B_MESSENGER_TYPE = 'MSNG';
inline constexpr type_code B_MIME_STRING_TYPE = 'MIMS';
inline constexpr type_code B_POINTER_TYPE = 'PNTR';
inline constexpr type_code B_POINT_TYPE = 'BPNT';
inline constexpr type_code B_RAW_TYPE = 'RAWT';
inline constexpr type_code B_RECT_TYPE = 'RECT';
inline constexpr type_code B_REF_TYPE = 'RREF';
inline constexpr type_code B_STRING_TYPE = 'CSTR';
inline constexpr type_code B_UINT8_TYPE = 'UBYT';
inline constexpr type_code B_UINT16_TYPE = 'USHT';
inline constexpr type_code B_UINT32_TYPE = 'ULNG';

#endif
