// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_RECOUNT_H
#define KERNIX_SUPPORT_RECOUNT_H

#include "support/octets.h"

// A maxp with its six outline limits counted from the octets of the other tables alone, without any
// of the program's code. Tables may be short or empty; what is not there counts as nothing.
octets recounted(const octets& maxp, const octets& glyf, const octets& loca, const octets& head);

#endif
