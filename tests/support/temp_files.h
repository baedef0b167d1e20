// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_TEMP_FILES_H
#define KERNIX_SUPPORT_TEMP_FILES_H

#include <string>

#include "support/octets.h"

// A folder of its own for a test; removed with everything in it.
class temp_folder {
public:
	temp_folder();
	~temp_folder();
	temp_folder(const temp_folder&) = delete;
	temp_folder& operator=(const temp_folder&) = delete;

	const std::string& path() const { return fPath; }
	std::string path(const std::string& leaf) const { return fPath + "/" + leaf; }

private:
	std::string fPath;
};

// A file with the given contents; removed when the test ends.
class temp_file {
public:
	explicit temp_file(const octets& contents = octets());

	std::string path() const { return fFolder.path("font.ttf"); }
	octets contents() const;

private:
	temp_folder fFolder;
};

// Whole files at once. Both throw std::runtime_error when the file cannot be had.
octets read_file(const std::string& path);
void write_file(const std::string& path, const octets& contents);

#endif
