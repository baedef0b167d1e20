// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/replacement.h"

#include "storage/carry_over.h"
#include "storage/errno_status.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace kits {

namespace {

constexpr int new_file = O_RDWR | O_CLOEXEC;
constexpr mode_t nobody_else = 0600; // until the old file's mode is carried over

// Names are drawn from 2^64: a second try is rare, more tell of another trouble.
constexpr int tries = 16;


// What other folders and files have no more of either. Any other error says that this folder takes
// no new file.
bool
is_shortage(int error)
{
	return error == ENOSPC || error == EDQUOT || error == EIO || error == ENOMEM || error == EMFILE
		|| error == ENFILE;
}


std::string
link_to(int descriptor)
{
	return "/proc/self/fd/" + std::to_string(descriptor);
}


std::string
random_name()
{
	std::random_device random;
	char name[32];
	snprintf(name, sizeof(name), ".new-%08x%08x", random(), random());
	return name;
}


// Calls `step` with one name after the other until it answers otherwise than that the name is taken.
// Returns its last answer, which is that of a system call.
template <class Step>
int
with_free_name(Step step, std::string* name)
{
	int answer = -1;
	for (int i = 0; i < tries; i++) {
		*name = random_name();
		answer = step(name->c_str());
		if (answer >= 0 || (errno != EEXIST && errno != EINTR)) {
			break;
		}
	}
	return answer;
}


bool
is_same(const struct statx& one, const struct statx& other)
{
	return one.stx_ino == other.stx_ino && one.stx_dev_major == other.stx_dev_major
		&& one.stx_dev_minor == other.stx_dev_minor;
}


// In a folder of this kind, as /tmp is, everybody may make files, but only the owners and the
// administrator may replace one.
bool
sticks(const struct statx& folder, const struct statx& file)
{
	const uid_t user = geteuid();
	return (folder.stx_mode & S_ISVTX) != 0 && user != 0 && user != folder.stx_uid
		&& user != file.stx_uid;
}

}


status_t
replacement::begin(int old, std::unique_ptr<replacement>* result, way first)
{
	result->reset();
	std::unique_ptr<replacement> made(new replacement);
	int error = made->find(old);
	if (error == 0) {
		error = made->replaceable(old);
	}
	if (error == 0) {
		error = made->make(first);
	}
	if (error == 0) {
		error = carry_over(old, made->fDescriptor);
	}
	if (error == 0) {
		*result = std::move(made);
	}
	return is_shortage(error) ? status_of_errno(error) : B_OK;
}


replacement::~replacement()
{
	if (fDescriptor >= 0) {
		spoil();
		close();
	}
	if (fFolder >= 0) {
		::close(fFolder);
	}
}


void
replacement::close()
{
	if (!fSpoilt && fHidden.empty() && !give_name()) {
		spoil();
	}
	// A file system on another machine may only now tell that it could not keep the bytes.
	if (::close(fDescriptor) != 0) {
		spoil();
	}
	fDescriptor = -1;
	if (!fSpoilt && renameat(fFolder, fHidden.c_str(), fFolder, fLeaf.c_str()) == 0) {
		return;
	}
	if (!fHidden.empty()) {
		unlinkat(fFolder, fHidden.c_str(), 0);
	}
}


// Links are followed: the system knows where the file that it has opened lies.
int
replacement::find(int old)
{
	char buffer[PATH_MAX];
	const ssize_t length = readlink(link_to(old).c_str(), buffer, sizeof(buffer));
	if (length < 0) {
		return errno;
	}
	const std::string path(buffer, static_cast<size_t>(length));
	const size_t slash = path.rfind('/');
	if (slash == std::string::npos) {
		return ENOENT;
	}
	fLeaf = path.substr(slash + 1);
	fFolder = open(path.substr(0, slash + 1).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
	return fFolder >= 0 ? 0 : errno;
}


// The path that the system tells may be out of date, or one of another process's view of the disk.
int
replacement::replaceable(int old) const
{
	struct statx folder = {};
	struct statx file = {};
	struct statx there = {};
	if (statx(fFolder, "", AT_EMPTY_PATH, STATX_BASIC_STATS, &folder) != 0
		|| statx(old, "", AT_EMPTY_PATH, STATX_BASIC_STATS, &file) != 0
		|| statx(fFolder, fLeaf.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS, &there) != 0) {
		return errno;
	}
	if (!S_ISREG(file.stx_mode) || !is_same(file, there)) {
		return ENOENT;
	}
	// A file that is mounted on its own can be written, but its name is taken.
	if ((there.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0) {
		return EBUSY;
	}
	return sticks(folder, file) ? EPERM : 0;
}


int
replacement::make(way first)
{
	if (first == NAMELESS) {
		fDescriptor = openat(fFolder, ".", new_file | O_TMPFILE, nobody_else);
		if (fDescriptor >= 0) {
			return 0;
		}
		if (is_shortage(errno)) {
			return errno;
		}
	}
	fDescriptor = with_free_name(
		[&](const char* name) {
			return openat(fFolder, name, new_file | O_CREAT | O_EXCL, nobody_else);
		},
		&fHidden);
	if (fDescriptor >= 0) {
		return 0;
	}
	fHidden.clear();
	return errno;
}


// Only a file that has a name can take another's.
bool
replacement::give_name()
{
	const std::string file = link_to(fDescriptor);
	const int answer = with_free_name(
		[&](const char* name) {
			return linkat(AT_FDCWD, file.c_str(), fFolder, name, AT_SYMLINK_FOLLOW);
		},
		&fHidden);
	if (answer != 0) {
		fHidden.clear();
	}
	return answer == 0;
}

}
