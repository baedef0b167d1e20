// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/descriptor.h"
#include "storage/errno_status.h"
#include "storage/ref_paths.h"
#include "storage/replacement.h"
#include <File.h>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr uint32 open_modes = O_ACCMODE | O_CREAT | O_EXCL | O_TRUNC | O_APPEND;

// How often a file that another program replaces just then is opened again.
constexpr int tries = 8;


// Repeats `step`, which moves bytes from the given offset on and answers like read(), until all is
// moved, nothing more comes or an error stops it. An error after the first byte waits for the next
// call: what was moved must not go uncounted.
template <class Step>
ssize_t
move_bytes(size_t size, Step step)
{
	size_t done = 0;
	while (done < size) {
		const ssize_t moved = step(done);
		if (moved < 0 && errno == EINTR) {
			continue;
		}
		if (moved < 0 && done == 0) {
			return status_of_errno(errno);
		}
		if (moved <= 0) {
			break;
		}
		done += static_cast<size_t>(moved);
	}
	return static_cast<ssize_t>(done);
}

}


BFile::BFile(const entry_ref* ref, uint32 openMode)
{
	SetTo(ref, openMode);
}


BFile::BFile(const BEntry* entry, uint32 openMode)
{
	SetTo(entry, openMode);
}


BFile::BFile(const char* path, uint32 openMode)
{
	SetTo(path, openMode);
}


status_t
BFile::SetTo(const entry_ref* ref, uint32 openMode)
{
	std::string folder;
	std::string leaf;
	const status_t status = ref == nullptr ? B_BAD_VALUE : place_of_ref(*ref, &folder, &leaf);
	if (status != B_OK) {
		return Fail(status);
	}
	// In two steps: together they may be longer than a path can be.
	const kits::descriptor at(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
	return at ? OpenFile(at.get(), leaf.c_str(), openMode) : Fail(status_of_errno(errno));
}


status_t
BFile::SetTo(const BEntry* entry, uint32 openMode)
{
	entry_ref ref;
	const status_t status = entry == nullptr ? B_BAD_VALUE : entry->GetRef(&ref);
	return status == B_OK ? SetTo(&ref, openMode) : Fail(status);
}


status_t
BFile::SetTo(const char* path, uint32 openMode)
{
	return path == nullptr ? Fail(B_BAD_VALUE) : OpenFile(AT_FDCWD, path, openMode);
}


ssize_t
BFile::Read(void* buffer, size_t size)
{
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	if (buffer == nullptr) {
		return B_BAD_VALUE;
	}
	return move_bytes(size, [&](size_t done) {
		return read(Descriptor(), static_cast<char*>(buffer) + done, size - done);
	});
}


ssize_t
BFile::Write(const void* buffer, size_t size)
{
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	if (buffer == nullptr) {
		return Written(B_BAD_VALUE, size);
	}
	const ssize_t moved = move_bytes(size, [&](size_t done) {
		return write(Descriptor(), static_cast<const char*>(buffer) + done, size - done);
	});
	return Written(moved, size);
}


ssize_t
BFile::ReadAt(off_t position, void* buffer, size_t size)
{
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	if (buffer == nullptr) {
		return B_BAD_VALUE;
	}
	return move_bytes(size, [&](size_t done) {
		return pread(Descriptor(), static_cast<char*>(buffer) + done, size - done,
			position + static_cast<off_t>(done));
	});
}


ssize_t
BFile::WriteAt(off_t position, const void* buffer, size_t size)
{
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	if (buffer == nullptr) {
		return Written(B_BAD_VALUE, size);
	}
	const ssize_t moved = move_bytes(size, [&](size_t done) {
		return pwrite(Descriptor(), static_cast<const char*>(buffer) + done, size - done,
			position + static_cast<off_t>(done));
	});
	return Written(moved, size);
}


off_t
BFile::Seek(off_t offset, uint32 mode)
{
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	if (mode > SEEK_END) {
		return B_BAD_VALUE;
	}
	const off_t position = lseek(Descriptor(), offset, static_cast<int>(mode));
	return position < 0 ? status_of_errno(errno) : position;
}


off_t
BFile::Position() const
{
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	const off_t position = lseek(Descriptor(), 0, SEEK_CUR);
	return position < 0 ? status_of_errno(errno) : position;
}


status_t
BFile::SetSize(off_t size)
{
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	int result = 0;
	do {
		result = ftruncate(Descriptor(), size);
	} while (result != 0 && errno == EINTR);
	if (result == 0) {
		return B_OK;
	}
	const status_t status = status_of_errno(errno);
	Spoil();
	return status;
}


status_t
BFile::GetSize(off_t* size) const
{
	return BStatable::GetSize(size);
}


status_t
BFile::OpenFile(int from, const char* path, uint32 openMode)
{
	// Without O_NONBLOCK a named pipe would hold up the program until somebody opens its other end.
	const uint32 flags = (openMode & open_modes) | O_NONBLOCK | O_NOCTTY;
	const status_t status = Open(from, path, static_cast<int>(flags));
	if (status == B_OK && IsDirectory()) {
		return Fail(B_IS_A_DIRECTORY);
	}
	return status;
}


status_t
BFile::OpenAnew(int from, const char* path)
{
	status_t status = B_OK;
	for (int i = 0; i < tries; i++) {
		status = OpenFile(from, path, B_READ_WRITE);
		// A link that leads nowhere, or the file has gone just now.
		const bool absent = status == B_ENTRY_NOT_FOUND;
		if (absent) {
			status = OpenFile(from, path, B_READ_WRITE | B_CREATE_FILE);
		}
		struct stat st = {};
		if (status == B_OK) {
			status = GetStat(&st);
		}
		if (status != B_OK) {
			break;
		}
		// What is there all the same is kept: an error of the disk may look like an absence.
		if (!S_ISREG(st.st_mode) || (absent && st.st_size == 0)) {
			return B_OK;
		}
		// There are paths that lead to no place, as that of a file that has no name any more.
		std::unique_ptr<kits::replacement> made;
		const bool last = i == tries - 1;
		status = kits::replacement::begin(
			from, last ? nullptr : path, kits::descriptor(Release()), &made);
		if (made != nullptr) {
			Replace(std::move(made));
			return B_OK;
		}
		if (status != B_OK) {
			break;
		}
	}
	return Fail(status);
}


ssize_t
BFile::Written(ssize_t moved, size_t size)
{
	if (size > 0 && moved != static_cast<ssize_t>(size)) {
		Spoil();
	}
	return moved;
}
