// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/ref_paths.h"
#include <Directory.h>
#include <File.h>

#include <fcntl.h>
#include <string>

namespace {

// As a place only: a folder that may be written but not listed serves as well.
constexpr int open_directory = O_PATH | O_DIRECTORY;

}


BDirectory::BDirectory(const entry_ref* ref)
{
	SetTo(ref);
}


BDirectory::BDirectory(const char* path)
{
	SetTo(path);
}


status_t
BDirectory::SetTo(const entry_ref* ref)
{
	std::string path;
	const status_t status = ref == nullptr ? B_BAD_VALUE : path_of_ref(*ref, &path);
	return status == B_OK ? SetTo(path.c_str()) : Fail(status);
}


status_t
BDirectory::SetTo(const char* path)
{
	return path == nullptr ? Fail(B_BAD_VALUE) : Open(AT_FDCWD, path, open_directory);
}


status_t
BDirectory::CreateFile(const char* name, BFile* file, bool failIfExists)
{
	BFile unwanted;
	BFile& created = file == nullptr ? unwanted : *file;
	created.Unset();
	if (InitCheck() != B_OK) {
		return B_NO_INIT;
	}
	if (name == nullptr) {
		return B_BAD_VALUE;
	}
	const status_t status =
		created.OpenFile(Descriptor(), name, B_READ_WRITE | B_CREATE_FILE | B_FAIL_IF_EXISTS);
	return status != B_FILE_EXISTS || failIfExists ? status : created.OpenAnew(Descriptor(), name);
}
