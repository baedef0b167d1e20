// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/carry_over.h"

#include <cerrno>
#include <cstring>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace kits {

namespace {

// The most that the system hands out, of names and of a value.
constexpr size_t attribute_bytes = 65536;

constexpr const char* access_list = "system.posix_acl_access";

constexpr mode_t permissions = 07777;


// These vouch for the contents, which will be others.
bool
vouches_for_contents(std::string_view name)
{
	return name == "security.capability" || name == "security.evm" || name == "security.ima";
}


void
copy_attribute(int from, int to, const char* name, std::vector<char>& room)
{
	const ssize_t length = fgetxattr(from, name, room.data(), room.size());
	if (length >= 0) {
		// One that cannot be set is lost, as it is with every copy to such a file system.
		[[maybe_unused]] const int set =
			fsetxattr(to, name, room.data(), static_cast<size_t>(length), 0);
	}
}


void
copy_attributes(int from, int to)
{
	// A new file takes the list that its folder keeps for new ones. The old one may have had none.
	fremovexattr(to, access_list);
	std::vector<char> names(attribute_bytes);
	std::vector<char> room(attribute_bytes);
	const ssize_t listed = flistxattr(from, names.data(), names.size());
	const char* const end = names.data() + (listed < 0 ? 0 : listed);
	for (const char* name = names.data(); name < end; name += strlen(name) + 1) {
		if (!vouches_for_contents(name)) {
			copy_attribute(from, to, name, room);
		}
	}
}


// As much of the old mode as the owner and group that the new file got may have.
mode_t
fitting_mode(const struct stat& old, const struct stat& made)
{
	mode_t mode = old.st_mode & permissions;
	if (made.st_uid != old.st_uid) {
		mode &= ~static_cast<mode_t>(S_ISUID);
	}
	if (made.st_gid != old.st_gid) {
		// Another group had no more than everybody's rights; those of the old group are not its.
		const mode_t everybody = (mode & S_IRWXO) << 3;
		mode &= ~static_cast<mode_t>(S_ISGID | (S_IRWXG & ~everybody));
	}
	return mode;
}

}


int
carry_over(int from, int to)
{
	struct stat old = {};
	struct stat made = {};
	if (fstat(from, &old) != 0) {
		return errno;
	}
	// First of all: it takes away bits of the mode. Only the administrator may change the owner.
	if (fchown(to, old.st_uid, old.st_gid) != 0) {
		[[maybe_unused]] const int group = fchown(to, static_cast<uid_t>(-1), old.st_gid);
	}
	copy_attributes(from, to);
	if (fstat(to, &made) != 0) {
		return errno;
	}
	const mode_t mode = fitting_mode(old, made);
	// Not every file system can change the mode, but there all files have the same.
	if (mode == (made.st_mode & permissions)) {
		return 0;
	}
	return fchmod(to, mode) == 0 ? 0 : errno;
}

}
