// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_OCTETS_H
#define KERNIX_SUPPORT_OCTETS_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

using octets = std::vector<uint8_t>;

// The octets that hexadecimal digits name; white space between them is for the reader. Throws
// std::invalid_argument for anything else and for half an octet.
octets hex(std::string_view digits);

octets zeros(size_t count);

// Numbers in an octet string, most significant octet first (le32: least). They throw
// std::out_of_range past the end, so that a test never reads or writes beside its subject.
uint16_t be16(const octets& from, size_t at);
uint32_t be32(const octets& from, size_t at);
uint32_t le32(const octets& from, size_t at);
void put_be16(octets& to, size_t at, uint16_t value);
void put_be32(octets& to, size_t at, uint32_t value);
void put_le32(octets& to, size_t at, uint32_t value);

// `count` octets from `at`; what lies past the end is left out.
octets part(const octets& from, size_t at, size_t count);

// Equality that names the first difference instead of printing megabytes.
testing::AssertionResult same(const octets& expected, const octets& actual);

#endif
