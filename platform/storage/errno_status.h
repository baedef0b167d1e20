// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_ERRNO_STATUS_H
#define KITS_ERRNO_STATUS_H

#include <SupportDefs.h>

// The platform's code for an error of the system below; never B_OK. What has no code of its own is
// B_ERROR.
status_t status_of_errno(int error);

#endif
