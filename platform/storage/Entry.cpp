// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/errno_status.h"
#include "storage/ref_paths.h"
#include <Entry.h>
#include <Path.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <sys/stat.h>

namespace {

struct free_memory {
	void operator()(void* memory) const { free(memory); }
};


// Absolute, without links and dots. `path` may be the result.
status_t
real_path(const std::string& path, std::string* result)
{
	const std::unique_ptr<char, free_memory> real(realpath(path.c_str(), nullptr));
	if (real == nullptr) {
		return status_of_errno(errno);
	}
	*result = real.get();
	return B_OK;
}


struct split_path {
	std::string folder;
	std::string leaf; // empty only for the root
};


split_path
split(std::string path)
{
	while (path.size() > 1 && path.back() == '/') {
		path.pop_back();
	}
	const size_t slash = path.rfind('/');
	if (slash == std::string::npos) {
		return {".", path};
	}
	return {slash == 0 ? "/" : path.substr(0, slash), path.substr(slash + 1)};
}


bool
is_link(const std::string& path)
{
	struct stat st = {};
	return lstat(path.c_str(), &st) == 0 && S_ISLNK(st.st_mode);
}

}


entry_ref::entry_ref() : device(static_cast<dev_t>(-1)), directory(0), name(nullptr) {}


entry_ref::entry_ref(dev_t dev, ino_t dir, const char* leaf)
	: device(dev),
	  directory(dir),
	  name(nullptr)
{
	set_name(leaf);
}


entry_ref::entry_ref(const entry_ref& ref)
	: device(ref.device),
	  directory(ref.directory),
	  name(nullptr)
{
	set_name(ref.name);
}


entry_ref::~entry_ref()
{
	free(name);
}


entry_ref&
entry_ref::operator=(const entry_ref& ref)
{
	if (this != &ref) {
		device = ref.device;
		directory = ref.directory;
		set_name(ref.name);
	}
	return *this;
}


bool
entry_ref::operator==(const entry_ref& ref) const
{
	if (device != ref.device || directory != ref.directory) {
		return false;
	}
	if (name == nullptr || ref.name == nullptr) {
		return name == ref.name;
	}
	return strcmp(name, ref.name) == 0;
}


bool
entry_ref::operator!=(const entry_ref& ref) const
{
	return !(*this == ref);
}


status_t
entry_ref::set_name(const char* leaf)
{
	// Copied before the old name goes: `leaf` may be a part of it.
	char* copy = leaf == nullptr ? nullptr : strdup(leaf);
	if (leaf != nullptr && copy == nullptr) {
		return B_NO_MEMORY;
	}
	free(name);
	name = copy;
	return B_OK;
}


status_t
get_ref_for_path(const char* path, entry_ref* ref)
{
	if (path == nullptr || ref == nullptr) {
		return B_BAD_VALUE;
	}
	split_path parts = split(path);
	if (parts.leaf.empty() || parts.leaf == "." || parts.leaf == "..") {
		std::string whole;
		const status_t status = real_path(path, &whole);
		if (status != B_OK) {
			return status;
		}
		parts = split(whole);
	}
	const status_t status = real_path(parts.folder, &parts.folder);
	if (status != B_OK) {
		return status;
	}
	struct stat st = {};
	if (stat(parts.folder.c_str(), &st) != 0) {
		return status_of_errno(errno);
	}
	if (!S_ISDIR(st.st_mode)) {
		return B_NOT_A_DIRECTORY;
	}
	remember_directory(st.st_dev, st.st_ino, parts.folder);
	*ref = entry_ref(st.st_dev, st.st_ino, parts.leaf.empty() ? "." : parts.leaf.c_str());
	return B_OK;
}


status_t
BStatable::GetSize(off_t* size) const
{
	if (size == nullptr) {
		return B_BAD_VALUE;
	}
	struct stat st = {};
	const status_t status = GetStat(&st);
	if (status == B_OK) {
		*size = st.st_size;
	}
	return status;
}


bool
BStatable::IsFile() const
{
	struct stat st = {};
	return GetStat(&st) == B_OK && S_ISREG(st.st_mode);
}


bool
BStatable::IsDirectory() const
{
	struct stat st = {};
	return GetStat(&st) == B_OK && S_ISDIR(st.st_mode);
}


bool
BStatable::IsSymLink() const
{
	struct stat st = {};
	return GetStat(&st) == B_OK && S_ISLNK(st.st_mode);
}


BEntry::BEntry() = default;


BEntry::BEntry(const entry_ref* ref, bool traverse)
{
	SetTo(ref, traverse);
}


BEntry::BEntry(const char* path, bool traverse)
{
	SetTo(path, traverse);
}


status_t
BEntry::InitCheck() const
{
	return fStatus;
}


bool
BEntry::Exists() const
{
	struct stat st = {};
	return GetStat(&st) == B_OK;
}


status_t
BEntry::SetTo(const entry_ref* ref, bool traverse)
{
	std::string path;
	const status_t status = ref == nullptr ? B_BAD_VALUE : path_of_ref(*ref, &path);
	if (status != B_OK) {
		Unset();
		return fStatus = status;
	}
	return SetTo(path.c_str(), traverse);
}


status_t
BEntry::SetTo(const char* path, bool traverse)
{
	Unset();
	if (path == nullptr) {
		return fStatus = B_BAD_VALUE;
	}
	std::string target = path;
	if (traverse && is_link(target)) {
		fStatus = real_path(target, &target);
		if (fStatus != B_OK) {
			return fStatus;
		}
	}
	return fStatus = get_ref_for_path(target.c_str(), &fRef);
}


void
BEntry::Unset()
{
	fRef = entry_ref();
	fStatus = B_NO_INIT;
}


status_t
BEntry::GetRef(entry_ref* ref) const
{
	if (ref == nullptr) {
		return B_BAD_VALUE;
	}
	if (fStatus == B_OK) {
		*ref = fRef;
	}
	return fStatus;
}


status_t
BEntry::GetPath(BPath* path) const
{
	return path == nullptr ? B_BAD_VALUE : path->SetTo(this);
}


status_t
BEntry::GetName(char* buffer) const
{
	if (fStatus != B_OK) {
		return fStatus;
	}
	if (buffer == nullptr || strlen(fRef.name) >= B_FILE_NAME_LENGTH) {
		return B_BAD_VALUE;
	}
	strcpy(buffer, fRef.name);
	return B_OK;
}


status_t
BEntry::GetStat(struct stat* st) const
{
	std::string path;
	const status_t status = fStatus == B_OK ? path_of_ref(fRef, &path) : fStatus;
	if (status != B_OK) {
		return status;
	}
	if (st == nullptr) {
		return B_BAD_VALUE;
	}
	return lstat(path.c_str(), st) == 0 ? B_OK : status_of_errno(errno);
}
