// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "faults/errors.h"

#include <cerrno>
#include <fcntl.h>
#include <map>
#include <sys/syscall.h>

namespace {

using errors = std::vector<int>;


errors
operator+(errors one, const errors& other)
{
	one.insert(one.end(), other.begin(), other.end());
	return one;
}


// Of a disk, or of a machine far away.
const errors broken{EIO, ENOMEM, EINTR, ESTALE, ETIMEDOUT, EHOSTDOWN, ENOTCONN};

// Of rights, of the kind of file system, of an old system.
const errors refused{EACCES, EPERM, EROFS, EOPNOTSUPP, EINVAL, ENOSYS};

const errors full{ENOSPC, EDQUOT};

const errors of_a_path{ENOENT, ENOTDIR, ELOOP, ENAMETOOLONG};

const errors of_opening{
	EMFILE, ENFILE, EAGAIN, EBUSY, EEXIST, EISDIR, ENXIO, ENODEV, EFBIG, EOVERFLOW, ETXTBSY};

const errors of_attributes{ENODATA, ERANGE, E2BIG};

const std::map<long, errors>&
known()
{
	static const std::map<long, errors> calls = {
		{SYS_openat, broken + refused + full + of_a_path + of_opening},
		{SYS_readlinkat, broken + refused + of_a_path},
		{SYS_newfstatat, broken + refused + of_a_path + errors{EOVERFLOW}},
		{SYS_statx, broken + refused + of_a_path},
		{SYS_fstat, broken + errors{EACCES, EOVERFLOW}},
		{SYS_flistxattr, broken + refused + of_attributes},
		{SYS_fgetxattr, broken + refused + of_attributes},
		{SYS_fsetxattr, broken + refused + full + of_attributes},
		{SYS_fremovexattr, broken + refused + full + of_attributes},
		{SYS_fchown, broken + refused + full},
		{SYS_fchmod, broken + refused + full},
		{SYS_fcntl, {EMFILE, ENFILE, EINVAL, EPERM, EACCES}},
		{SYS_pwrite64, broken + refused + full + errors{EFBIG, EAGAIN, ENXIO}},
		{SYS_ftruncate, broken + refused + full + errors{EFBIG, ETXTBSY}},
		{SYS_fallocate, broken + refused + full + errors{EFBIG, ENODEV}},
		{SYS_fsync, broken + full + errors{EROFS, EINVAL}},
		{SYS_linkat, broken + refused + full + of_a_path + errors{EEXIST, EMLINK, EXDEV}},
		{SYS_renameat,
			broken + refused + full + of_a_path
				+ errors{EEXIST, EMLINK, EXDEV, EBUSY, EISDIR, ENOTEMPTY, ETXTBSY}},
		{SYS_unlinkat, broken + refused + of_a_path + errors{EBUSY, EISDIR}},
		{SYS_close, broken + full + errors{EACCES}},
		{SYS_mmap, {ENOMEM, EACCES, EAGAIN, ENFILE, ENODEV, EPERM}},
		{SYS_clock_nanosleep, {EINTR}},
		{SYS_getpid, {}},
	};
	return calls;
}

}


std::vector<int>
errors_of(const system_call& call)
{
	const auto found = known().find(call.number);
	return found != known().end()
		? found->second
		: broken + refused + full + of_a_path + of_opening + of_attributes;
}


bool
changes_the_disk(const system_call& call)
{
	switch (call.number) {
		case SYS_openat:
			return (call.arguments[2] & O_CREAT) != 0;
		case SYS_fsetxattr:
		case SYS_fremovexattr:
		case SYS_fchown:
		case SYS_fchmod:
		case SYS_ftruncate:
		case SYS_fallocate:
		case SYS_linkat:
		case SYS_renameat:
		case SYS_unlinkat:
			return true;
		default:
			return false;
	}
}


bool
moves_bytes(const system_call& call)
{
	return call.number == SYS_pwrite64 && call.arguments[2] > 1;
}
