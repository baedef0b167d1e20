// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_STRINGITEM_H
#define KITS_STRINGITEM_H

// The class stands beside its base.
#include <ListItem.h>

#endif
