// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_ARCHIVABLE_H
#define KITS_ARCHIVABLE_H

// The common base of what the platform could write into a message and bring back from one. Here
// nothing is archived; the base only makes such objects destructible through it.
class BArchivable {
public:
	BArchivable() = default;
	BArchivable(const BArchivable&) = default;
	BArchivable& operator=(const BArchivable&) = default;
	virtual ~BArchivable() = default;
};

#endif
