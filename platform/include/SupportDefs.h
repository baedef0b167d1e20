// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_SUPPORTDEFS_H
#define KITS_SUPPORTDEFS_H

#include <Errors.h>
#include <stddef.h>
#include <sys/types.h>

// Exactly these: a pointer to long never passes where a pointer to int32 is wanted, here and on
// every 64-bit build of the platform.
typedef signed char int8;
typedef unsigned char uint8;
typedef short int16;
typedef unsigned short uint16;
typedef int int32;
typedef unsigned int uint32;
typedef long int64;
typedef unsigned long uint64;

typedef unsigned char uchar;

typedef int32 status_t;
typedef int64 bigtime_t; // microseconds
typedef uint32 type_code;

typedef int32 thread_id;
typedef int32 team_id;
typedef int32 port_id;
typedef int32 sem_id;
typedef int32 area_id;

static_assert(sizeof(int64) == 8, "the kits are for 64-bit systems");
static_assert(sizeof(off_t) == 8, "files may be larger than 2 GiB");

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif

#define min_c(a, b) ((a) > (b) ? (b) : (a))
#define max_c(a, b) ((a) > (b) ? (a) : (b))

#endif
