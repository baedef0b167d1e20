// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_ERRNO_STATUS_H
#define KITS_ERRNO_STATUS_H

#include <SupportDefs.h>

#include <cerrno>

// The platform's code for an error of the system below; never B_OK. What has no code of its own is
// B_ERROR.
status_t status_of_errno(int error);

namespace kits {

// Whether the error says that this cannot be done here, to this file or in this folder, by this
// user. Any other says that something is wrong or has run out, so that another way would fail too.
bool is_refusal(int error);

// Whether there is no space left, by the disk or by somebody's share of it.
bool is_full(int error);


// Repeats a system call for as long as a signal interrupts it. Returns 0 or its error number.
template <class Call>
int
again_when_interrupted(Call call)
{
	while (call() < 0) {
		if (errno != EINTR) {
			return errno;
		}
	}
	return 0;
}

}

#endif
