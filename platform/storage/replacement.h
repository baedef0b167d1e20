// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_REPLACEMENT_H
#define KITS_REPLACEMENT_H

#include <memory>
#include <string>
#include <SupportDefs.h>

namespace kits {

// A new file that is written beside an old one and takes its name when it is closed: whoever opens
// that name finds all of the old contents or all of the new, also after the process was killed. A
// failure of the machine is another matter: nothing is forced to the disk.
//
// The new file has no name at all where the file system can do that, else a hidden one of its own
// in the folder of the old. A process that is killed thus leaves nothing beside the old file, or,
// killed within the few steps of close(), the new contents whole; but the part it had written where
// files cannot be without a name.
class replacement {
public:
	// The first way tries the second where it cannot be had.
	enum way { NAMELESS, HIDDEN };

	// Makes the new file, with the owner, mode and attributes of the old one, which stays as it is.
	// `old` is open on it for writing and remains the caller's.
	//
	// B_OK without a replacement: there can be none, the old file has to be written itself. It is no
	// regular file, its place is not to be found, or its folder lets us make or replace no file. When
	// something has run out that making the file takes, that is an error: writing to the old file
	// would fail halfway too.
	static status_t begin(int old, std::unique_ptr<replacement>* result, way first = NAMELESS);

	// Drops the new file unless close() was called.
	~replacement();
	replacement(const replacement&) = delete;
	replacement& operator=(const replacement&) = delete;

	// Open on the new file for reading and writing. Not the caller's to close.
	int descriptor() const { return fDescriptor; }

	// The new contents are not what they should be: close() drops them.
	void spoil() { fSpoilt = true; }

	// Puts the new file in the place of whatever has the name now. When that fails, the new file is
	// dropped.
	void close();

private:
	replacement() = default;

	// Return 0 or the system's error number.
	int find(int old);
	int replaceable(int old) const;
	int make(way first);

	bool give_name();

	int fFolder = -1; // owned; as a place only
	std::string fLeaf;
	int fDescriptor = -1; // owned
	std::string fHidden;  // its name until it is closed, empty: none
	bool fSpoilt = false;
};

}

#endif
