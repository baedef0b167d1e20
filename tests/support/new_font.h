// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_NEW_FONT_H
#define KERNIX_SUPPORT_NEW_FONT_H

#include <memory>
#include <vector>

#include "font/ttf.h"
#include "support/font_file.h"

// A font made for these rows of the range table, as the set-up view chooses them.
std::unique_ptr<ttf> new_font(const std::vector<int>& rows);

// The same font put together here, of nothing but the codes of those rows.
font_file expected_font(const std::vector<int>& rows);

// Every row.
std::vector<int> all_rows();

#endif
