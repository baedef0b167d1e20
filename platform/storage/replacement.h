// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_REPLACEMENT_H
#define KITS_REPLACEMENT_H

#include "storage/descriptor.h"

#include <memory>
#include <string>
#include <SupportDefs.h>

namespace kits {

// A new file that is written beside an old one and takes its name when it is closed: whoever opens
// that name finds all of the old contents or all of the new, also after the process was killed. A
// failure of the machine is another matter: nothing is forced to the disk.
//
// The new file has no name at all where the file system can do that, else a hidden one of its own,
// ".new-" and 16 digits, in the folder of the old. A process that is killed leaves nothing beside
// the old file, or, killed within the few steps of close(), the new contents whole; but the part it
// had written where files cannot be without a name.
//
// Where the new file cannot have the name, or somebody would gain or lose a right to the file, close()
// writes the new contents into the old file. Only a process that is killed or a disk that fails within
// that one write can tear it, and until it is whole a copy of the new contents has a hidden name, in
// the same folder or, where that takes no file, in the one for temporary files. Where that takes none
// either the copy is in memory only.
class replacement {
public:
	// The first way tries the second where it cannot be had.
	enum way { NAMELESS, HIDDEN };

	// Makes the new file. `old` is open for reading and writing on a regular file, which was opened by
	// `path`, from the folder of the descriptor `from` if it is relative. The old file stays as it is.
	// Without a path its place counts as unknown.
	//
	// B_OK without a replacement: another file has the name by now, and the caller has to open that.
	// Any other code: nothing can be written; the old file is closed.
	static status_t begin(int from, const char* path, descriptor old,
		std::unique_ptr<replacement>* result, way first = NAMELESS);

	// Drops the new file unless close() was called.
	~replacement();
	replacement(const replacement&) = delete;
	replacement& operator=(const replacement&) = delete;

	// Open on the new contents for reading and writing. Not the caller's to close.
	int contents() const { return fNew.get(); }

	// Open on what will have the name: its attributes can be set. Not the caller's to close.
	int file() const { return fInPlace ? fOld.get() : fNew.get(); }

	// The new contents are not what they should be: close() drops them.
	void spoil() { fSpoilt = true; }

	// Puts the new file in the place of whatever has the name now, or writes its contents into that.
	// When neither can be done the new file stays beside the old one, under its hidden name.
	void close();

private:
	explicit replacement(descriptor old) : fOld(std::move(old)) {}

	// Return 0 or the system's error number.
	int find(int from, const std::string& path);
	int make(way first);
	int make_elsewhere(way first);
	int make_in(int folder, way first);
	int open_again();
	int name();
	int link_new();
	int copy_new();
	int take_name();
	int write_old();
	int hold_old();

	bool is_kept();
	bool is_at_its_place(int file) const;
	void drop();

	int beside() const { return fElsewhere ? fElsewhere.get() : fFolder.get(); }

	descriptor fOld;
	descriptor fFolder;    // the old file's, none: not to be found
	std::string fLeaf;     // its name there
	descriptor fElsewhere; // where the new file is, none: there
	descriptor fNew;
	descriptor fAgain;   // on the new file, too: closing it tells whether the bytes are kept
	std::string fHidden; // its name, empty: none
	bool fInPlace = false;
	bool fSpoilt = false;
};

}

#endif
