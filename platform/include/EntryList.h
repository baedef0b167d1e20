// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_ENTRYLIST_H
#define KITS_ENTRYLIST_H

// The common base of what holds entries. Nothing is listed through it here.
class BEntryList {
public:
	BEntryList() = default;
	virtual ~BEntryList() = default;
};

#endif
