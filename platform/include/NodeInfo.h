// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_NODEINFO_H
#define KITS_NODEINFO_H

#include <SupportDefs.h>

class BNode;

// The type of a file, a MIME string kept beside its contents as the extended attribute
// `user.mime_type`. On a file system without such attributes everything fails and nothing else
// happens.
class BNodeInfo {
public:
	BNodeInfo() = default;
	explicit BNodeInfo(BNode* node); // not owned, must stay
	virtual ~BNodeInfo() = default;

	// B_NO_INIT while the node is not open, which also is the answer of the calls below.
	status_t InitCheck() const;

	// NULL takes the type away. B_BAD_VALUE for B_MIME_TYPE_LENGTH bytes or more.
	virtual status_t SetType(const char* type);

	// Room for B_MIME_TYPE_LENGTH bytes is needed. B_ENTRY_NOT_FOUND if the file has no type.
	virtual status_t GetType(char* type) const;

private:
	BNodeInfo(const BNodeInfo&) = delete;
	BNodeInfo& operator=(const BNodeInfo&) = delete;

	BNode* fNode = nullptr;
};

#endif
