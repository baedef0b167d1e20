// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FILE_H
#define KITS_FILE_H

#include <DataIO.h>
#include <Entry.h>
#include <Node.h>
#include <StorageDefs.h>

// An open file. Opening waits for nobody but a program that holds the file for itself, which is told to
// give it up and has a minute. A directory does not open, not even for reading. There is no Close(): Unset(), the destructor and opening another one close.
//
// A file that BDirectory::CreateFile() opened in place of an old one is a new one until it is closed:
// then it takes the old one's name. When a Write(), WriteAt() or SetSize() failed or moved fewer bytes
// than it was told to, the file is dropped instead and the old one stays; nothing tells.
//
// Everything below fails with B_NO_INIT when the file is not open.
class BFile : public BNode, public BPositionIO {
public:
	BFile() = default;
	BFile(const entry_ref* ref, uint32 openMode);
	BFile(const BEntry* entry, uint32 openMode);
	BFile(const char* path, uint32 openMode);

	// Close what was open. The mode is one of B_READ_ONLY, B_WRITE_ONLY, B_READ_WRITE with
	// B_CREATE_FILE, B_FAIL_IF_EXISTS, B_ERASE_FILE, B_OPEN_AT_END added.
	status_t SetTo(const entry_ref* ref, uint32 openMode);
	status_t SetTo(const BEntry* entry, uint32 openMode);
	status_t SetTo(const char* path, uint32 openMode);

	// Bytes moved. A count below `size` means the end of the file or, when writing, that an error
	// stopped it halfway; an error before the first byte is returned itself.
	ssize_t Read(void* buffer, size_t size) override;
	ssize_t Write(const void* buffer, size_t size) override;
	ssize_t ReadAt(off_t position, void* buffer, size_t size) override;
	ssize_t WriteAt(off_t position, const void* buffer, size_t size) override;

	// SEEK_SET, SEEK_CUR or SEEK_END. Returns the new position, which may lie beyond the end: a
	// write there fills the gap with zeros. Before the beginning is B_BAD_VALUE.
	off_t Seek(off_t offset, uint32 mode) override;
	off_t Position() const override;

	// Cuts or lengthens with zeros; the position stays.
	status_t SetSize(off_t size) override;
	status_t GetSize(off_t* size) const override;

private:
	friend class BDirectory;

	status_t OpenFile(int from, const char* path, uint32 openMode);

	// Opens a new file that will replace the one at `path`. What is no regular file is opened itself,
	// and the target of a link that leads nowhere is made.
	status_t OpenAnew(int from, const char* path);

	// Returns `moved`, the answer of a call that was to write `size` bytes, and notes a failure.
	ssize_t Written(ssize_t moved, size_t size);
};

#endif
