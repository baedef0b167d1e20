// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_START_ARGUMENTS_H
#define KITS_START_ARGUMENTS_H

#include <Message.h>

namespace kits {

// B_REFS_RECEIVED with a reference for each argument of this process that names something that
// exists, in order; without a field when no argument does. Every argument counts as a path, and one
// that leads to nothing is named in a line on standard error, the first time this is called.
BMessage refs_of_start_arguments();

}

#endif
