// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/errno_status.h"
#include "storage/replacement.h"
#include <Node.h>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

constexpr mode_t new_file_mode = 0666; // less what the user's mask takes away

// Somebody who holds a file for himself, as a file server does for a client, is told to give it up
// when it is opened, and has less time for that.
constexpr std::chrono::seconds patience(60);
constexpr std::chrono::milliseconds pause(10);


int
open_at(int from, const char* path, int flags)
{
	const auto end = std::chrono::steady_clock::now() + patience;
	for (;;) {
		const int opened = openat(from, path, flags, new_file_mode);
		if (opened >= 0) {
			return opened;
		}
		if (errno == EWOULDBLOCK && std::chrono::steady_clock::now() < end) {
			std::this_thread::sleep_for(pause);
			continue;
		}
		if (errno != EINTR) {
			return opened;
		}
	}
}

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
	fDescriptor = open_at(from, path, flags | O_CLOEXEC);
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
	fDescriptor = fReplacement->contents();
	fStatus = B_OK;
}


int
BNode::Release()
{
	const int descriptor = std::exchange(fDescriptor, -1);
	Unset();
	return descriptor;
}


void
BNode::Spoil()
{
	if (fReplacement != nullptr) {
		fReplacement->spoil();
	}
}


int
BNode::AttributeDescriptor() const
{
	return fReplacement != nullptr ? fReplacement->file() : fDescriptor;
}
