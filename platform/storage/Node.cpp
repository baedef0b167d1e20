// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/errno_status.h"
#include "storage/replacement.h"
#include <Node.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr mode_t new_file_mode = 0666; // less what the user's mask takes away

}


BNode::BNode() = default;


BNode::~BNode()
{
	Unset();
}


status_t
BNode::InitCheck() const
{
	return fStatus;
}


void
BNode::Unset()
{
	if (fReplacement != nullptr) {
		fReplacement->close();
		fReplacement.reset();
	} else if (fDescriptor >= 0) {
		// Never repeated: the descriptor is gone also when close() was interrupted.
		close(fDescriptor);
	}
	fDescriptor = -1;
	fStatus = B_NO_INIT;
}


status_t
BNode::GetStat(struct stat* st) const
{
	if (fDescriptor < 0) {
		return B_NO_INIT;
	}
	if (st == nullptr) {
		return B_BAD_VALUE;
	}
	return fstat(fDescriptor, st) == 0 ? B_OK : status_of_errno(errno);
}


status_t
BNode::Open(int from, const char* path, int flags)
{
	Unset();
	do {
		fDescriptor = openat(from, path, flags | O_CLOEXEC, new_file_mode);
	} while (fDescriptor < 0 && errno == EINTR);
	return fStatus = fDescriptor < 0 ? status_of_errno(errno) : B_OK;
}


status_t
BNode::Fail(status_t reason)
{
	Unset();
	return fStatus = reason;
}


void
BNode::Replace(std::unique_ptr<kits::replacement> made)
{
	Unset();
	fReplacement = std::move(made);
	fDescriptor = fReplacement->descriptor();
	fStatus = B_OK;
}


void
BNode::Spoil()
{
	if (fReplacement != nullptr) {
		fReplacement->spoil();
	}
}
