// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_DESCRIPTOR_H
#define KITS_DESCRIPTOR_H

#include <unistd.h>
#include <utility>

namespace kits {

// Owns an open descriptor, or none (-1).
class descriptor {
public:
	descriptor() = default;
	explicit descriptor(int open) : fOpen(open) {}
	descriptor(descriptor&& from) noexcept : fOpen(from.release()) {}
	~descriptor() { close(); }

	descriptor& operator=(descriptor&& from) noexcept
	{
		if (this != &from) {
			close();
			fOpen = from.release();
		}
		return *this;
	}

	explicit operator bool() const { return fOpen >= 0; }
	int get() const { return fOpen; }

	// Now the caller's to close.
	int release() { return std::exchange(fOpen, -1); }

	// The system's answer. Never repeated: the descriptor is gone also when an error is answered.
	int close() { return fOpen < 0 ? 0 : ::close(release()); }

private:
	int fOpen = -1;
};

}

#endif
