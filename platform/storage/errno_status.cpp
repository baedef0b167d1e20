// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/errno_status.h"

#include <cerrno>


status_t
status_of_errno(int error)
{
	switch (error) {
		case ENOMEM:
			return B_NO_MEMORY;
		case EIO:
		case ENXIO:
		case ENOSPC:
		case EDQUOT:
		case EFBIG:
			return B_IO_ERROR;
		case EPERM:
		case EACCES:
		case EROFS:
			return B_PERMISSION_DENIED;
		case EINVAL:
		case EFAULT:
		case ERANGE:
		case E2BIG:
		case EOVERFLOW:
		case ENAMETOOLONG:
			return B_BAD_VALUE;
		case EAGAIN:
			return B_WOULD_BLOCK;
		case EBADF:
			return B_FILE_ERROR;
		case EEXIST:
			return B_FILE_EXISTS;
		case ENOENT:
		case ENODATA: // an attribute that is not there
			return B_ENTRY_NOT_FOUND;
		case ENOTDIR:
			return B_NOT_A_DIRECTORY;
		case EISDIR:
			return B_IS_A_DIRECTORY;
		default:
			return B_ERROR;
	}
}


bool
kits::is_refusal(int error)
{
	switch (error) {
		case EACCES:
		case EPERM:
		case EROFS:
		case EBUSY:
		case ETXTBSY:
		case EEXIST: // a name that cannot be taken from who has it
		case EINVAL: // the system has no number for the owner, or no such call
		case ENOSYS:
		case EOPNOTSUPP:
		case EXDEV:
		case ENOENT:
		case ENAMETOOLONG:
			return true;
		default:
			return false;
	}
}


bool
kits::is_full(int error)
{
	return error == ENOSPC || error == EDQUOT;
}
