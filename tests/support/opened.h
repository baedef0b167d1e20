// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_OPENED_H
#define KERNIX_SUPPORT_OPENED_H

#include <memory>

#include "support/octets.h"

class ttf;
class ttf_table;

// Loads a file with these contents into `font`; gives what load answered.
int loaded(ttf& font, const octets& file);

// A font loaded from a file with these contents. Throws std::runtime_error when it was refused.
std::unique_ptr<ttf> opened(const octets& file);

// What saving into a new file leaves there. Throws std::runtime_error when save did not answer 0.
octets saved(ttf& font);

// The octets a table object holds, without padding; throws std::runtime_error for a null table.
octets kept(const ttf_table* table);

// A buffer for a table object, which takes it over: padded with zeros to a multiple of 4.
unsigned char* buffer_of(const octets& contents);

#endif
