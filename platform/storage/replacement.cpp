// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/replacement.h"

#include "storage/carry_over.h"
#include "storage/contents.h"
#include "storage/errno_status.h"
#include "storage/place.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace kits {

namespace {

constexpr int new_file = O_RDWR | O_CLOEXEC;
constexpr mode_t nobody_else = 0600; // until the old file's mode is carried over

// Two processes rarely draw the same name: a second try is rare, more tell of another trouble.
constexpr int tries = 16;


std::string
link_to(int descriptor)
{
	return "/proc/self/fd/" + std::to_string(descriptor);
}


// Whether it is free, the folder says. So nothing that can fail, as a source of chance can, is asked.
std::string
hidden_name(int attempt)
{
	const auto now = std::chrono::system_clock::now().time_since_epoch().count();
	const auto process = static_cast<uint64_t>(getpid()) << 40;
	char name[32];
	snprintf(name, sizeof(name), ".new-%016llx",
		static_cast<unsigned long long>(
			(static_cast<uint64_t>(now) ^ process) + static_cast<uint64_t>(attempt)));
	return name;
}


// Calls `step` with one name after the other until it answers otherwise than that the name is taken.
// Returns 0 or the error number of a system call.
template <class Step>
int
with_free_name(Step step, std::string* name)
{
	int error = EEXIST;
	for (int i = 0; i < tries && (error == EEXIST || error == EINTR); i++) {
		*name = hidden_name(i);
		error = step(name->c_str()) < 0 ? errno : 0;
	}
	if (error != 0) {
		name->clear();
	}
	return error;
}


bool
is_same(const struct statx& one, const struct statx& other)
{
	return one.stx_ino == other.stx_ino && one.stx_dev_major == other.stx_dev_major
		&& one.stx_dev_minor == other.stx_dev_minor;
}


int
state_of(int folder, const char* leaf, struct statx* state)
{
	const int flags = leaf[0] == '\0' ? AT_EMPTY_PATH : AT_SYMLINK_NOFOLLOW;
	return statx(folder, leaf, flags, STATX_BASIC_STATS, state) == 0 ? 0 : errno;
}


descriptor
folder_for_passing_files()
{
	std::error_code error;
	const std::string path = std::filesystem::temp_directory_path(error).string();
	return descriptor(error ? -1 : open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

}


status_t
replacement::begin(
	int from, const char* path, descriptor old, std::unique_ptr<replacement>* result, way first)
{
	result->reset();
	std::unique_ptr<replacement> made(new replacement(std::move(old)));
	int error = path == nullptr ? 0 : made->find(from, path);
	// What another machine has replaced is stale.
	if (is_refusal(error) || error == ESTALE || error == EINTR) {
		return B_OK;
	}
	if (error == 0) {
		error = made->make(first);
	}
	if (error != 0) {
		return status_of_errno(error);
	}
	*result = std::move(made);
	return B_OK;
}


replacement::~replacement()
{
	if (fNew) {
		spoil();
		close();
	}
}


void
replacement::close()
{
	if (fSpoilt) {
		drop();
		return;
	}
	// The new contents have no other place to be: what has failed once may succeed.
	const int unnamed = fHidden.empty() && name() != 0 ? name() : 0;
	bool done = false;
	// A file system on another machine may only now tell that it could not keep the bytes.
	if (is_kept()) {
		const int refused = fInPlace ? EPERM : unnamed != 0 ? unnamed : take_name();
		done = refused == 0 || ((is_refusal(refused) || is_full(refused)) && write_old() == 0);
	}
	if (done) {
		drop();
	}
	fNew.close();
}


// Finds out where the old file lies. ENOENT: not where the path leads to now.
int
replacement::find(int from, const std::string& path)
{
	place found;
	struct statx old = {};
	struct statx there = {};
	int error = find_place(from, path, &found);
	if (error == 0) {
		error = state_of(fOld.get(), "", &old);
	}
	if (error == 0) {
		error = state_of(found.folder.get(), found.leaf.c_str(), &there);
	}
	if (error != 0 || !is_same(old, there)) {
		return error != 0 ? error : ENOENT;
	}
	fFolder = std::move(found.folder);
	fLeaf = found.leaf;
	// A file that is mounted on its own can be written, but its name is taken.
	fInPlace = (there.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
	return 0;
}


int
replacement::make(way first)
{
	int error = fFolder ? make_in(fFolder.get(), first) : EACCES;
	if (is_refusal(error)) {
		fInPlace = true;
		error = make_elsewhere(first);
	} else if (error == 0 && !fInPlace) {
		error = carry_over(fOld.get(), fNew.get());
		fInPlace = is_refusal(error);
		error = fInPlace ? 0 : error;
	}
	return error == 0 ? open_again() : error;
}


int
replacement::make_elsewhere(way first)
{
	fElsewhere = folder_for_passing_files();
	if (fElsewhere && make_in(fElsewhere.get(), first) == 0) {
		return 0;
	}
	fNew = descriptor(memfd_create("new contents", MFD_CLOEXEC));
	return fNew ? 0 : errno;
}


int
replacement::make_in(int folder, way first)
{
	if (first == NAMELESS) {
		fNew = descriptor(openat(folder, ".", new_file | O_TMPFILE, nobody_else));
		if (fNew) {
			return 0;
		}
	}
	return with_free_name(
		[&](const char* name) {
			fNew = descriptor(openat(folder, name, new_file | O_CREAT | O_EXCL, nobody_else));
			return fNew.get();
		},
		&fHidden);
}


// Only a file that has a name can take another's.
int
replacement::name()
{
	const int error = link_new();
	return error == 0 || fInPlace ? error : copy_new();
}


int
replacement::link_new()
{
	const std::string file = link_to(fNew.get());
	return with_free_name(
		[&](const char* name) {
			return linkat(AT_FDCWD, file.c_str(), beside(), name, AT_SYMLINK_FOLLOW);
		},
		&fHidden);
}


// In place of the new file that cannot have a name, one that has.
int
replacement::copy_new()
{
	descriptor nameless = std::move(fNew);
	int error = make_in(beside(), HIDDEN);
	if (error == 0) {
		error = carry_over(nameless.get(), fNew.get());
	}
	if (error == 0) {
		error = copy_contents(nameless.get(), fNew.get());
	}
	if (error == 0) {
		error = open_again();
	}
	if (error != 0) {
		drop();
		fNew = std::move(nameless);
	}
	return error;
}


int
replacement::open_again()
{
	fAgain = descriptor(fcntl(fNew.get(), F_DUPFD_CLOEXEC, 0));
	return fAgain ? 0 : errno;
}


// Whether the bytes are where they are to stay. The new file is still open after it.
bool
replacement::is_kept()
{
	// Interrupted, it tells nothing about the bytes.
	return fAgain.close() == 0 || (errno == EINTR && fsync(fNew.get()) == 0);
}


int
replacement::take_name()
{
	const int error =
		renameat(fFolder.get(), fHidden.c_str(), fFolder.get(), fLeaf.c_str()) == 0 ? 0 : errno;
	// The answer of another machine may be lost when all is done.
	if (error != 0 && !is_at_its_place(fNew.get())) {
		return error;
	}
	fHidden.clear();
	return 0;
}


int
replacement::write_old()
{
	int error = hold_old();
	if (error == 0) {
		error = copy_contents(fNew.get(), fOld.get());
	}
	if (error == 0 && !fInPlace) {
		carry_over_remarks(fNew.get(), fOld.get());
	}
	return error == 0 && fOld.close() != 0 && errno != EINTR ? errno : error;
}


// What was written into a file that has lost its name to another would be lost with it.
int
replacement::hold_old()
{
	if (!fFolder || is_at_its_place(fOld.get())) {
		return 0;
	}
	const int flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
	fOld = descriptor(openat(fFolder.get(), fLeaf.c_str(), flags));
	struct stat state = {};
	if (!fOld || fstat(fOld.get(), &state) != 0) {
		return errno;
	}
	return S_ISREG(state.st_mode) ? 0 : ENOENT;
}


bool
replacement::is_at_its_place(int file) const
{
	struct statx mine = {};
	struct statx there = {};
	return state_of(file, "", &mine) == 0 && state_of(fFolder.get(), fLeaf.c_str(), &there) == 0
		&& is_same(mine, there);
}


// What has been written of the new file goes, or, once it has taken its place, only what is held of
// it.
void
replacement::drop()
{
	if (!fHidden.empty()) {
		unlinkat(beside(), fHidden.c_str(), 0);
		fHidden.clear();
	}
	fNew.close();
}

}
