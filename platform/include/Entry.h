// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_ENTRY_H
#define KITS_ENTRY_H

#include <StorageDefs.h>
#include <SupportDefs.h>

class BPath;
struct stat;

// Names an entry of a directory, which need not exist: the volume, the inode of the directory that
// holds it, and the leaf name.
//
// The system below opens nothing by inode. So the kit remembers the path of each directory a ref
// was made in; a ref whose directory it has never seen, or which has moved away since, finds
// nothing. A leaf name that is an absolute path stands for itself. A ref belongs to one thread at a
// time, different ones may be used at once.
struct entry_ref {
	entry_ref();
	entry_ref(dev_t dev, ino_t dir, const char* leaf); // copies the name
	entry_ref(const entry_ref& ref);
	~entry_ref();

	entry_ref& operator=(const entry_ref& ref);

	// The same volume, directory and name; two refs without names are alike.
	bool operator==(const entry_ref& ref) const;
	bool operator!=(const entry_ref& ref) const;

	// Copies the name; NULL takes it away. B_NO_MEMORY leaves the old one.
	status_t set_name(const char* leaf);

	dev_t device;    // -1: none
	ino_t directory; // of the directory, not of the entry
	char* name;      // owned; NULL: none
};

// The entry at a path, absolute or from the current folder. Its directory must exist, the entry
// itself need not; a link at the end of the path is not followed. B_BAD_VALUE for a null pointer,
// else the reason why there is no such directory, and the ref stays as it was.
status_t get_ref_for_path(const char* path, entry_ref* ref);

// What can be asked about its state on disk.
class BStatable {
public:
	BStatable() = default;
	BStatable(const BStatable&) = default;
	BStatable& operator=(const BStatable&) = default;
	virtual ~BStatable() = default;

	virtual status_t GetStat(struct stat* st) const = 0;

	// Bytes of data.
	status_t GetSize(off_t* size) const;

	// All false for what is not there.
	bool IsFile() const;
	bool IsDirectory() const;
	bool IsSymLink() const;
};

// An entry of a directory, in the sense of entry_ref. With `traverse` a link is followed, to the end
// of a chain of them: the entry is then what the link leads to.
class BEntry : public BStatable {
public:
	BEntry();
	BEntry(const entry_ref* ref, bool traverse = false);
	BEntry(const char* path, bool traverse = false);

	// B_NO_INIT before anything was set.
	status_t InitCheck() const;

	// Whether the entry is there; a link that leads nowhere is.
	bool Exists() const;

	status_t SetTo(const entry_ref* ref, bool traverse = false);
	status_t SetTo(const char* path, bool traverse = false);
	void Unset();

	status_t GetRef(entry_ref* ref) const;
	status_t GetPath(BPath* path) const;

	// Room for B_FILE_NAME_LENGTH bytes is needed; a longer name is B_BAD_VALUE.
	status_t GetName(char* buffer) const;

	// Of the entry itself, also when it is a link.
	status_t GetStat(struct stat* st) const override;

private:
	entry_ref fRef;
	status_t fStatus = B_NO_INIT;
};

#endif
