// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/carry_over.h"

#include <cerrno>
#include <cstring>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace kits {

namespace {

// The most that the system hands out, of names and of a value.
constexpr size_t attribute_bytes = 65536;

constexpr mode_t permissions = 07777;

// Stands for every owner and group that this process's view of the users has no number for.
constexpr uid_t nobody_known = 65534;

// Access lists, which not every file system mentions among the attributes.
constexpr const char* access_lists[] = {"system.posix_acl_access", "system.cifs_acl"};

using value = std::optional<std::string>;
using name_set = std::set<std::string>;


// These vouch for the contents, which will be others.
bool
vouches_for_contents(const std::string& name)
{
	return name == "security.capability" || name == "security.evm" || name == "security.ima";
}


// Access lists and the labels by which the system decides who may do what.
bool
is_of_rights(const std::string& name)
{
	return name.starts_with("system.") || name.starts_with("security.");
}


bool
means_none(int error)
{
	return error == ENODATA || error == EOPNOTSUPP || error == ENOSYS;
}


int
list_names(int file, name_set* names)
{
	std::vector<char> room(attribute_bytes);
	const ssize_t listed = flistxattr(file, room.data(), room.size());
	if (listed < 0) {
		return means_none(errno) ? 0 : errno;
	}
	const char* const end = room.data() + listed;
	for (const char* name = room.data(); name < end; name += strlen(name) + 1) {
		names->insert(name);
	}
	return 0;
}


int
get_value(int file, const std::string& name, value* result)
{
	std::vector<char> room(attribute_bytes);
	const ssize_t length = fgetxattr(file, name.c_str(), room.data(), room.size());
	if (length < 0) {
		result->reset();
		return means_none(errno) ? 0 : errno;
	}
	*result = std::string(room.data(), static_cast<size_t>(length));
	return 0;
}


// Of a file that has mentioned these names.
int
get_value(int file, const std::string& name, const name_set& mentioned, value* result)
{
	const int error = get_value(file, name, result);
	// One that is there and yet is not may say anything.
	return error == 0 && !*result && mentioned.contains(name) ? EPERM : error;
}


int
set_value(int file, const std::string& name, const value& wanted)
{
	const int result = wanted ? fsetxattr(file, name.c_str(), wanted->data(), wanted->size(), 0)
							  : fremovexattr(file, name.c_str());
	return result == 0 ? 0 : errno;
}


// Gives `to` what `from` has under the name, or takes it away.
int
copy_attribute(int to, const std::string& name, const value& wanted)
{
	const int error = set_value(to, name, wanted);
	if (error != 0) {
		return error;
	}
	// A server may make something else of it.
	value given;
	const int unknown = get_value(to, name, &given);
	return unknown != 0 ? unknown : given == wanted ? 0 : EPERM;
}


int
copy_rights(int from, int to)
{
	name_set wanted_names;
	name_set given_names;
	int error = list_names(from, &wanted_names);
	if (error == 0) {
		error = list_names(to, &given_names);
	}
	// A new file has what its folder keeps for new ones. The old one may have had none.
	name_set names(std::begin(access_lists), std::end(access_lists));
	names.insert(wanted_names.begin(), wanted_names.end());
	names.insert(given_names.begin(), given_names.end());
	for (const std::string& name : names) {
		if (error != 0 || !is_of_rights(name) || vouches_for_contents(name)) {
			continue;
		}
		value wanted;
		value given;
		error = get_value(from, name, wanted_names, &wanted);
		if (error == 0) {
			error = get_value(to, name, given_names, &given);
		}
		if (error == 0 && given != wanted) {
			error = copy_attribute(to, name, wanted);
		}
	}
	return error;
}


int
give_owner(int to, const struct stat& wanted, const struct stat& made)
{
	const bool user = made.st_uid != wanted.st_uid;
	const bool group = made.st_gid != wanted.st_gid;
	// Somebody without a number cannot be given anything; the number may be another's, too.
	if ((user && wanted.st_uid == nobody_known) || (group && wanted.st_gid == nobody_known)) {
		return EPERM;
	}
	return (!user && !group) || fchown(to, wanted.st_uid, wanted.st_gid) == 0 ? 0 : errno;
}


bool
same_rights(const struct stat& one, const struct stat& other)
{
	return one.st_uid == other.st_uid && one.st_gid == other.st_gid
		&& (one.st_mode & permissions) == (other.st_mode & permissions);
}

}


int
carry_over(int from, int to)
{
	struct stat wanted = {};
	struct stat made = {};
	if (fstat(from, &wanted) != 0 || fstat(to, &made) != 0) {
		return errno;
	}
	// The mode comes last: its group bits mean the group only when there is no access list.
	int error = give_owner(to, wanted, made);
	if (error == 0) {
		error = copy_rights(from, to);
	}
	if (error != 0) {
		return error;
	}
	carry_over_remarks(from, to);
	if (fstat(to, &made) != 0) {
		return errno;
	}
	// Not every file system can change the mode, but there all files have the same.
	if (!same_rights(made, wanted)
		&& (fchmod(to, wanted.st_mode & permissions) != 0 || fstat(to, &made) != 0)) {
		return errno;
	}
	// The system may leave out bits without a word.
	return same_rights(made, wanted) ? 0 : EPERM;
}


void
carry_over_remarks(int from, int to)
{
	name_set names;
	list_names(from, &names);
	for (const std::string& name : names) {
		value wanted;
		// One that cannot be set is lost, as it is with every copy to such a file system.
		if (!is_of_rights(name) && get_value(from, name, &wanted) == 0 && wanted) {
			set_value(to, name, wanted);
		}
	}
}

}
