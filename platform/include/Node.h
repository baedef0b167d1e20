// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_NODE_H
#define KITS_NODE_H

#include <Entry.h>
#include <SupportDefs.h>

// Something on disk that is held open: the common part of files and directories. One thread at a
// time.
class BNode : public BStatable {
public:
	BNode() = default;
	~BNode() override;
	BNode(const BNode&) = delete;
	BNode& operator=(const BNode&) = delete;

	// B_OK while it is open, else why it is not; B_NO_INIT before anything was opened.
	status_t InitCheck() const;

	// Closes.
	void Unset();

	status_t GetStat(struct stat* st) const override;

protected:
	// Closes what is open, then opens `path`, from the directory of the descriptor `from` if it is
	// relative. Returns and keeps the status.
	status_t Open(int from, const char* path, int flags);

	// Closes what is open and keeps the reason.
	status_t Fail(status_t reason);

	int Descriptor() const { return fDescriptor; }

private:
	friend class BNodeInfo;

	int fDescriptor = -1; // owned
	status_t fStatus = B_NO_INIT;
};

#endif
