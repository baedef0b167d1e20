// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/ref_paths.h"
#include <Entry.h>
#include <Path.h>


BPath::BPath(const char* path)
{
	SetTo(path);
}


BPath::BPath(const entry_ref* ref)
{
	SetTo(ref);
}


BPath::BPath(const BEntry* entry)
{
	SetTo(entry);
}


status_t
BPath::InitCheck() const
{
	return fStatus;
}


status_t
BPath::SetTo(const char* path)
{
	entry_ref ref;
	const status_t status = get_ref_for_path(path, &ref);
	if (status != B_OK) {
		Unset();
		return fStatus = status;
	}
	return SetTo(&ref);
}


status_t
BPath::SetTo(const entry_ref* ref)
{
	std::string path;
	const status_t status = ref == nullptr ? B_BAD_VALUE : path_of_ref(*ref, &path);
	fPath = path;
	return fStatus = status;
}


status_t
BPath::SetTo(const BEntry* entry)
{
	entry_ref ref;
	const status_t status = entry == nullptr ? B_BAD_VALUE : entry->GetRef(&ref);
	if (status != B_OK) {
		Unset();
		return fStatus = status;
	}
	return SetTo(&ref);
}


void
BPath::Unset()
{
	fPath.clear();
	fStatus = B_NO_INIT;
}


const char*
BPath::Path() const
{
	return fStatus == B_OK ? fPath.c_str() : nullptr;
}


const char*
BPath::Leaf() const
{
	return fStatus == B_OK ? fPath.c_str() + fPath.rfind('/') + 1 : nullptr;
}
