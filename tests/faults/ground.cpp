// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "faults/ground.h"

#include "platform/storage/stored.h"
#include "support/attributes.h"

#include <AppFileInfo.h>
#include <cstdint>
#include <cstdlib>
#include <Directory.h>
#include <File.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr uid_t nobody = 65534;
constexpr uid_t somebody = 1234;
constexpr gid_t some_group = 5678;

constexpr const char* access_list = "system.posix_acl_access";


// A list by which the owning group may do nothing, and one other user may read and write, which is what
// the mode's group bits show.
bool
set_list(const std::string& path, const char* name)
{
	struct entry {
		uint16_t tag, permissions;
		uint32_t id;
	};
	constexpr uint32_t none = 0xffffffff;
	const struct {
		uint32_t version;
		entry entries[5];
	} list = {2, {{1, 6, none}, {2, 6, somebody}, {4, 0, none}, {16, 6, none}, {32, 0, none}}};
	return setxattr(path.c_str(), name, &list, sizeof(list), 0) == 0;
}


// No two parts of it are alike.
std::string
text(size_t size, unsigned seed)
{
	std::string result;
	for (unsigned i = seed; result.size() < size; i++) {
		result += std::to_string(i) + ' ';
	}
	result.resize(size);
	return result;
}

}


rights
rights_of(const std::string& path)
{
	struct stat state = {};
	if (lstat(path.c_str(), &state) != 0) {
		return {};
	}
	return {state.st_uid, state.st_gid, state.st_mode & 07777, attribute_of(path, access_list)};
}


ground::ground(const conditions& on)
	: fOn(on),
	  fOld(text(9000, 100000)),
	  fNew(text(on.new_size, 500000))
{
	chmod(fFolder.path().c_str(), 0755);
	chmod(fElsewhere.path().c_str(), 0777);
}


bool
ground::lay()
{
	chmod(folder().c_str(), 0755);
	for (const temp_folder* place : {&fFolder, &fElsewhere}) {
		for (const auto& entry : fs::directory_iterator(place->path())) {
			fs::remove_all(entry.path());
		}
	}
	make_folder(folder());
	chmod(folder().c_str(), 0777);
	if (fOn.over == target::LINK || fOn.over == target::LINK_TO_NOTHING) {
		fs::create_symlink("fonts/font", fFolder.path("link"));
	}
	if (fOn.over == target::EXISTING || fOn.over == target::LINK) {
		if (!lay_font()) {
			return false;
		}
		fBefore = rights_of(path());
	}
	if (fOn.folder_has_list && !set_list(folder(), "system.posix_acl_default")) {
		return false;
	}
	if (fOn.folder_is_closed) {
		chmod(folder().c_str(), 0555);
	}
	return true;
}


bool
ground::lay_font()
{
	store(path(), fOld);
	const bool for_all = fOn.of_somebody_else || fOn.folder_is_closed;
	const uid_t owner = fOn.of_somebody_else ? somebody : nobody;
	const gid_t group = fOn.of_somebody_else ? some_group : getegid();
	if (chmod(path().c_str(), for_all ? 0666 : 0640) != 0
		|| (by_administrator() && chown(path().c_str(), owner, group) != 0)
		|| (fOn.of_somebody_else && !by_administrator())) {
		return false;
	}
	setxattr(path().c_str(), "user.colour", "blue", 4, 0);
	return !fOn.with_list || set_list(path(), access_list);
}


void
ground::overtake() const
{
	const std::string another = fElsewhere.path("another");
	store(another, "another font");
	chmod(another.c_str(), 0666);
	fs::rename(another, path());
}


bool
ground::by_administrator() const
{
	return geteuid() == 0;
}


void
ground::become_user() const
{
	setenv("TMPDIR", fElsewhere.path().c_str(), 1);
	if (by_administrator() && seteuid(nobody) != 0) {
		abort();
	}
}


// In the order in which fonts are written: the tables, the directory in front of them, one table
// once more.
int
ground::save() const
{
	const bool by_link = fOn.over == target::LINK || fOn.over == target::LINK_TO_NOTHING;
	BDirectory directory(by_link ? fFolder.path().c_str() : folder().c_str());
	BFile file;
	if (directory.CreateFile(by_link ? "link" : "font", &file) != B_OK) {
		return 1;
	}
	bool whole = true;
	const size_t half = fNew.size() / 2;
	const struct {
		size_t place, size;
	} pieces[] = {{300, half - 300}, {half, fNew.size() - half}, {0, 300}, {half, 50}};
	for (const auto& piece : pieces) {
		whole = file.WriteAt(static_cast<off_t>(piece.place), fNew.data() + piece.place, piece.size)
				== static_cast<ssize_t>(piece.size)
			&& whole;
	}
	BAppFileInfo(&file).SetType("application/x-truetype");
	return whole ? 0 : 2;
}


bool
ground::has_font() const
{
	return fs::exists(fs::symlink_status(path()));
}


std::string
ground::font() const
{
	return has_font() ? stored(path()) : "";
}


rights
ground::rights_now() const
{
	return rights_of(path());
}


bool
ground::link_leads_there() const
{
	const std::string link = fFolder.path("link");
	return fOn.over == target::LINK || fOn.over == target::LINK_TO_NOTHING
		? fs::is_symlink(link) && fs::read_symlink(link) == "fonts/font"
		: !fs::exists(fs::symlink_status(link));
}


std::vector<std::string>
ground::paths_beside() const
{
	std::vector<std::string> paths;
	for (const std::string& place : {folder(), fElsewhere.path()}) {
		for (const std::string& name : names_in(place)) {
			if (place + "/" + name != path()) {
				paths.push_back(place + "/" + name);
			}
		}
	}
	return paths;
}


std::vector<std::string>
ground::beside() const
{
	std::vector<std::string> contents;
	for (const std::string& found : paths_beside()) {
		contents.push_back(stored(found));
	}
	return contents;
}
