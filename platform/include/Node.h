// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_NODE_H
#define KITS_NODE_H

#include <Entry.h>
#include <memory>
#include <SupportDefs.h>

namespace kits {
class replacement;
}

// Something on disk that is held open: the common part of files and directories. One thread at a
// time.
class BNode : public BStatable {
public:
	BNode();
	~BNode() override;
	BNode(const BNode&) = delete;
	BNode& operator=(const BNode&) = delete;

	// B_OK while it is open, else why it is not; B_NO_INIT before anything was opened.
	status_t InitCheck() const;

	// Closes. A file that was written to replace an old one takes its place now.
	void Unset();

	status_t GetStat(struct stat* st) const override;

protected:
	// Closes what is open, then opens `path`, from the directory of the descriptor `from` if it is
	// relative. Returns and keeps the status.
	status_t Open(int from, const char* path, int flags);

	// Closes what is open and keeps the reason.
	status_t Fail(status_t reason);

	// Closes what is open and works on the new file, until that is closed.
	void Replace(std::unique_ptr<kits::replacement> made);

	// Lets go of the descriptor, which is the caller's then. Not while a file is being replaced.
	int Release();

	// What is being written will not be whole: if it was to replace an old file, that one stays.
	void Spoil();

	int Descriptor() const { return fDescriptor; }

private:
	friend class BNodeInfo;

	// The contents of a file may be on their way somewhere else than its attributes.
	int AttributeDescriptor() const;

	int fDescriptor = -1; // owned, or the replacement's
	std::unique_ptr<kits::replacement> fReplacement;
	status_t fStatus = B_NO_INIT;
};

#endif
