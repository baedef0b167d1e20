// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_ERRORS_H
#define KITS_ERRORS_H

// The error codes of the platform. Success is B_OK, every failure is negative: one comparison with
// B_OK, or with zero for what returns a count, tells them apart. All are of the type of status_t.

inline constexpr int B_OK = 0;
inline constexpr int B_NO_ERROR = 0;
inline constexpr int B_ERROR = -1;

inline constexpr int B_GENERAL_ERROR_BASE = -0x7FFFFFFF - 1;
inline constexpr int B_NO_MEMORY = B_GENERAL_ERROR_BASE + 0;
inline constexpr int B_IO_ERROR = B_GENERAL_ERROR_BASE + 1;
inline constexpr int B_PERMISSION_DENIED = B_GENERAL_ERROR_BASE + 2;
inline constexpr int B_BAD_INDEX = B_GENERAL_ERROR_BASE + 3;
inline constexpr int B_BAD_TYPE = B_GENERAL_ERROR_BASE + 4;
inline constexpr int B_BAD_VALUE = B_GENERAL_ERROR_BASE + 5;
inline constexpr int B_MISMATCHED_VALUES = B_GENERAL_ERROR_BASE + 6;
inline constexpr int B_NAME_NOT_FOUND = B_GENERAL_ERROR_BASE + 7;
inline constexpr int B_TIMED_OUT = B_GENERAL_ERROR_BASE + 9;
inline constexpr int B_WOULD_BLOCK = B_GENERAL_ERROR_BASE + 0xB;
inline constexpr int B_NO_INIT = B_GENERAL_ERROR_BASE + 0xD;

inline constexpr int B_BAD_PORT_ID = B_GENERAL_ERROR_BASE + 0x1200;
inline constexpr int B_BAD_HANDLER = B_GENERAL_ERROR_BASE + 0x2003;

inline constexpr int B_FILE_ERROR = B_GENERAL_ERROR_BASE + 0x6000;
inline constexpr int B_FILE_EXISTS = B_GENERAL_ERROR_BASE + 0x6002;
inline constexpr int B_ENTRY_NOT_FOUND = B_GENERAL_ERROR_BASE + 0x6003;
inline constexpr int B_NOT_A_DIRECTORY = B_GENERAL_ERROR_BASE + 0x6005;
inline constexpr int B_IS_A_DIRECTORY = B_GENERAL_ERROR_BASE + 0x6009;

#endif
