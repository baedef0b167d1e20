// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_STORAGEDEFS_H
#define KITS_STORAGEDEFS_H

#include <fcntl.h>

// How to open a file.
#define B_READ_ONLY O_RDONLY
#define B_WRITE_ONLY O_WRONLY
#define B_READ_WRITE O_RDWR
#define B_FAIL_IF_EXISTS O_EXCL
#define B_CREATE_FILE O_CREAT
#define B_ERASE_FILE O_TRUNC
#define B_OPEN_AT_END O_APPEND

// Kinds of nodes, as a mask.
enum { B_FILE_NODE = 1, B_SYMLINK_NODE = 2, B_DIRECTORY_NODE = 4, B_ANY_NODE = 7 };

// Lengths in bytes, the closing NUL included.
#define B_FILE_NAME_LENGTH 256
#define B_PATH_NAME_LENGTH 1024
#define B_MIME_TYPE_LENGTH 240

#endif
