// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_TESTS_GROUND_H
#define KERNIX_TESTS_GROUND_H

#include "support/temp_files.h"

#include <string>
#include <sys/types.h>
#include <vector>

// Who may do what with a file.
struct rights {
	uid_t user = 0;
	gid_t group = 0;
	mode_t mode = 0;
	std::string list; // of access; "none"

	bool operator==(const rights&) const = default;
};

rights rights_of(const std::string& path);

// What a font is saved over.
enum class target { EXISTING, ABSENT, LINK, LINK_TO_NOTHING };

struct conditions {
	target over = target::EXISTING;
	bool with_list = false;        // the old font has an access list
	bool folder_has_list = false;  // for the files that are made in it
	bool of_somebody_else = false; // but everybody may write to it; takes the administrator
	bool folder_is_closed = false; // takes no new files and lets none go
	size_t new_size = 7000;        // the old one has 9000
};

// A folder with a font in it, and a save over it by a user without special rights.
class ground {
public:
	explicit ground(const conditions& on);

	// Everything as it was before the save. False where the system cannot make it so.
	bool lay();

	// As another program does it: its font, with contents and rights of its own, takes the name.
	void overtake() const;

	// Becomes the user who saves.
	void become_user() const;

	// 0, or 1 when no file could be had, or 2 when not all could be written.
	int save() const;

	// How it looks now.
	bool has_font() const;
	std::string font() const; // "" when there is none
	rights rights_now() const;
	bool link_leads_there() const;
	// Contents of all files but the font, those for passing files included.
	std::vector<std::string> beside() const;
	std::vector<std::string> paths_beside() const;

	const std::string& old_contents() const { return fOld; }
	const std::string& new_contents() const { return fNew; }
	rights rights_before() const { return fBefore; }

private:
	std::string folder() const { return fFolder.path("fonts"); }
	std::string path() const { return folder() + "/font"; }
	bool by_administrator() const;
	bool lay_font();

	const conditions fOn;
	temp_folder fFolder;
	temp_folder fElsewhere;
	std::string fOld;
	std::string fNew;
	rights fBefore;
};

#endif
