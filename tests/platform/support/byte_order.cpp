// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <ByteOrder.h>

#include <cstring>
#include <gtest/gtest.h>
#include <type_traits>

static_assert(B_HOST_IS_LENDIAN + B_HOST_IS_BENDIAN == 1);

static_assert(B_SWAP_INT16(0x1234) == 0x3412);
static_assert(B_SWAP_INT32(0x12345678) == 0x78563412);
static_assert(B_SWAP_INT64(0x0123456789ABCDEF) == 0xEFCDAB8967452301);

template <class Type, class Result>
constexpr bool is_type = std::is_same_v<Type, Result>;

static_assert(is_type<decltype(B_SWAP_INT16(int64(0))), uint16>);
static_assert(is_type<decltype(B_SWAP_INT32(int64(0))), uint32>);
static_assert(is_type<decltype(B_SWAP_INT64(int8(0))), uint64>);
static_assert(is_type<decltype(B_BENDIAN_TO_HOST_INT16(int64(0))), uint16>);
static_assert(is_type<decltype(B_BENDIAN_TO_HOST_INT32(int64(0))), uint32>);
static_assert(is_type<decltype(B_BENDIAN_TO_HOST_INT64(int8(0))), uint64>);
static_assert(is_type<decltype(B_HOST_TO_BENDIAN_INT16(int64(0))), uint16>);
static_assert(is_type<decltype(B_HOST_TO_BENDIAN_INT32(int64(0))), uint32>);
static_assert(is_type<decltype(B_HOST_TO_BENDIAN_INT64(int8(0))), uint64>);
static_assert(is_type<decltype(B_LENDIAN_TO_HOST_INT16(int64(0))), uint16>);
static_assert(is_type<decltype(B_LENDIAN_TO_HOST_INT32(int64(0))), uint32>);
static_assert(is_type<decltype(B_LENDIAN_TO_HOST_INT64(int8(0))), uint64>);
static_assert(is_type<decltype(B_HOST_TO_LENDIAN_INT16(int64(0))), uint16>);
static_assert(is_type<decltype(B_HOST_TO_LENDIAN_INT32(int64(0))), uint32>);
static_assert(is_type<decltype(B_HOST_TO_LENDIAN_INT64(int8(0))), uint64>);

namespace {

template <class Value>
Value
from_bytes(const char* bytes)
{
	Value value;
	memcpy(&value, bytes, sizeof(value));
	return value;
}

}


TEST(byte_order, big_endian_bytes_are_read_most_significant_first)
{
	const char* bytes = "\x01\x02\x03\x04\x05\x06\x07\x08";
	EXPECT_EQ(B_BENDIAN_TO_HOST_INT16(from_bytes<uint16>(bytes)), 0x0102);
	EXPECT_EQ(B_BENDIAN_TO_HOST_INT32(from_bytes<uint32>(bytes)), 0x01020304U);
	EXPECT_EQ(B_BENDIAN_TO_HOST_INT64(from_bytes<uint64>(bytes)), 0x0102030405060708UL);
}


TEST(byte_order, little_endian_bytes_are_read_least_significant_first)
{
	const char* bytes = "\x01\x02\x03\x04\x05\x06\x07\x08";
	EXPECT_EQ(B_LENDIAN_TO_HOST_INT16(from_bytes<uint16>(bytes)), 0x0201);
	EXPECT_EQ(B_LENDIAN_TO_HOST_INT32(from_bytes<uint32>(bytes)), 0x04030201U);
	EXPECT_EQ(B_LENDIAN_TO_HOST_INT64(from_bytes<uint64>(bytes)), 0x0807060504030201UL);
}


TEST(byte_order, values_are_written_in_the_order_asked_for)
{
	const uint16 big = B_HOST_TO_BENDIAN_INT16(0x0102);
	EXPECT_EQ(memcmp(&big, "\x01\x02", 2), 0);
	const uint32 big_32 = B_HOST_TO_BENDIAN_INT32(0x01020304);
	EXPECT_EQ(memcmp(&big_32, "\x01\x02\x03\x04", 4), 0);
	const uint64 big_64 = B_HOST_TO_BENDIAN_INT64(0x0102030405060708);
	EXPECT_EQ(memcmp(&big_64, "\x01\x02\x03\x04\x05\x06\x07\x08", 8), 0);
	const uint16 little = B_HOST_TO_LENDIAN_INT16(0x0102);
	EXPECT_EQ(memcmp(&little, "\x02\x01", 2), 0);
	const uint32 little_32 = B_HOST_TO_LENDIAN_INT32(0x01020304);
	EXPECT_EQ(memcmp(&little_32, "\x04\x03\x02\x01", 4), 0);
	const uint64 little_64 = B_HOST_TO_LENDIAN_INT64(0x0102030405060708);
	EXPECT_EQ(memcmp(&little_64, "\x08\x07\x06\x05\x04\x03\x02\x01", 8), 0);
}


TEST(byte_order, a_result_is_unsigned_until_it_is_cast)
{
	const uint16 stored = from_bytes<uint16>("\xFF\xFE");
	EXPECT_EQ(B_BENDIAN_TO_HOST_INT16(stored), 65534);
	EXPECT_EQ((int16)B_BENDIAN_TO_HOST_INT16(stored), -2);
}


TEST(byte_order, wider_arguments_lose_their_high_bits)
{
	EXPECT_EQ(B_SWAP_INT32(0xAABBCCDD11223344UL), 0x44332211U);
	EXPECT_EQ(B_SWAP_INT16(-2), 0xFEFF);
}
