// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/contents.h"

#include "storage/errno_status.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kits {

namespace {

// Only the system looks at the bytes: should somebody cut the file meanwhile, it answers EFAULT.
class mapped_file {
public:
	mapped_file(int file, size_t size)
		: fSize(size),
		  fBytes(mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0))
	{
	}
	~mapped_file()
	{
		if (fBytes != MAP_FAILED) {
			munmap(fBytes, fSize);
		}
	}
	mapped_file(const mapped_file&) = delete;
	mapped_file& operator=(const mapped_file&) = delete;

	const char* bytes() const
	{
		return fBytes == MAP_FAILED ? nullptr : static_cast<char*>(fBytes);
	}

private:
	const size_t fSize;
	void* const fBytes;
};


// Sets space aside. What the file system cannot promise will show when the bytes are written.
int
reserve(int file, off_t size)
{
	const int error =
		again_when_interrupted([&] { return fallocate(file, FALLOC_FL_KEEP_SIZE, 0, size); });
	return is_refusal(error) ? 0 : error;
}


int
write_all(int file, const char* bytes, size_t size)
{
	size_t done = 0;
	while (done < size) {
		const ssize_t moved = pwrite(file, bytes + done, size - done, static_cast<off_t>(done));
		if (moved < 0 && errno != EINTR) {
			return errno;
		}
		if (moved == 0) {
			return EIO;
		}
		done += moved > 0 ? static_cast<size_t>(moved) : 0;
	}
	return 0;
}


int
bring(int from, int to, off_t size)
{
	const mapped_file source(from, static_cast<size_t>(size));
	if (source.bytes() == nullptr) {
		return errno;
	}
	const int error = reserve(to, size);
	return error != 0 ? error : write_all(to, source.bytes(), static_cast<size_t>(size));
}

}


int
copy_contents(int from, int to)
{
	struct stat wanted = {};
	struct stat there = {};
	if (fstat(from, &wanted) != 0 || fstat(to, &there) != 0) {
		return errno;
	}
	const int error = wanted.st_size == 0 ? 0 : bring(from, to, wanted.st_size);
	if (error != 0 || there.st_size <= wanted.st_size) {
		return error;
	}
	return again_when_interrupted([&] { return ftruncate(to, wanted.st_size); });
}

}
