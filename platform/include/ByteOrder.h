// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_BYTEORDER_H
#define KITS_BYTEORDER_H

#include <SupportDefs.h>

// Byte order of values, not of memory: unaligned bytes are copied out with memcpy first.
//
// The argument may have any integer type, wider ones lose their high bits. The result is always
// the unsigned type of the width in the name, so a signed reading needs a cast. All of it may stand
// in constant expressions.

#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
#define B_HOST_IS_LENDIAN 1
#define B_HOST_IS_BENDIAN 0
#else
#define B_HOST_IS_LENDIAN 0
#define B_HOST_IS_BENDIAN 1
#endif

#define B_SWAP_INT16(x) (static_cast<uint16>(__builtin_bswap16(static_cast<uint16>(x))))
#define B_SWAP_INT32(x) (static_cast<uint32>(__builtin_bswap32(static_cast<uint32>(x))))
#define B_SWAP_INT64(x) (static_cast<uint64>(__builtin_bswap64(static_cast<uint64>(x))))

#if B_HOST_IS_LENDIAN
#define B_HOST_TO_BENDIAN_INT16(x) B_SWAP_INT16(x)
#define B_HOST_TO_BENDIAN_INT32(x) B_SWAP_INT32(x)
#define B_HOST_TO_BENDIAN_INT64(x) B_SWAP_INT64(x)
#define B_HOST_TO_LENDIAN_INT16(x) (static_cast<uint16>(x))
#define B_HOST_TO_LENDIAN_INT32(x) (static_cast<uint32>(x))
#define B_HOST_TO_LENDIAN_INT64(x) (static_cast<uint64>(x))
#else
#define B_HOST_TO_BENDIAN_INT16(x) (static_cast<uint16>(x))
#define B_HOST_TO_BENDIAN_INT32(x) (static_cast<uint32>(x))
#define B_HOST_TO_BENDIAN_INT64(x) (static_cast<uint64>(x))
#define B_HOST_TO_LENDIAN_INT16(x) B_SWAP_INT16(x)
#define B_HOST_TO_LENDIAN_INT32(x) B_SWAP_INT32(x)
#define B_HOST_TO_LENDIAN_INT64(x) B_SWAP_INT64(x)
#endif

#define B_BENDIAN_TO_HOST_INT16(x) B_HOST_TO_BENDIAN_INT16(x)
#define B_BENDIAN_TO_HOST_INT32(x) B_HOST_TO_BENDIAN_INT32(x)
#define B_BENDIAN_TO_HOST_INT64(x) B_HOST_TO_BENDIAN_INT64(x)
#define B_LENDIAN_TO_HOST_INT16(x) B_HOST_TO_LENDIAN_INT16(x)
#define B_LENDIAN_TO_HOST_INT32(x) B_HOST_TO_LENDIAN_INT32(x)
#define B_LENDIAN_TO_HOST_INT64(x) B_HOST_TO_LENDIAN_INT64(x)

#endif
