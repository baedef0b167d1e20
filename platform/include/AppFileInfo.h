// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_APPFILEINFO_H
#define KITS_APPFILEINFO_H

#include <NodeInfo.h>

class BFile;

// What the platform keeps about a program's file. Of that only the type is offered, and only the
// attribute is written: the contents of the file are never touched.
class BAppFileInfo : public BNodeInfo {
public:
	BAppFileInfo() = default;
	explicit BAppFileInfo(BFile* file); // not owned, must stay

	status_t SetType(const char* type) override;
	status_t GetType(char* type) const override;
};

#endif
