// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_DATAIO_H
#define KITS_DATAIO_H

#include <SupportDefs.h>

// Where bytes come from and go to. Counts are bytes; a negative result is an error.
class BDataIO {
public:
	BDataIO() = default;
	virtual ~BDataIO() = default;
	BDataIO(const BDataIO&) = delete;
	BDataIO& operator=(const BDataIO&) = delete;

	virtual ssize_t Read(void* buffer, size_t size) = 0;
	virtual ssize_t Write(const void* buffer, size_t size) = 0;
};

// The same with a position. ReadAt and WriteAt leave the position where it is.
class BPositionIO : public BDataIO {
public:
	virtual ssize_t ReadAt(off_t position, void* buffer, size_t size) = 0;
	virtual ssize_t WriteAt(off_t position, const void* buffer, size_t size) = 0;

	virtual off_t Seek(off_t offset, uint32 mode) = 0;
	virtual off_t Position() const = 0;
	virtual status_t SetSize(off_t size) = 0;
	virtual status_t GetSize(off_t* size) const = 0;
};

#endif
