// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <AppFileInfo.h>
#include <File.h>


BAppFileInfo::BAppFileInfo(BFile* file) : BNodeInfo(file) {}


status_t
BAppFileInfo::SetType(const char* type)
{
	return BNodeInfo::SetType(type);
}


status_t
BAppFileInfo::GetType(char* type) const
{
	return BNodeInfo::GetType(type);
}
