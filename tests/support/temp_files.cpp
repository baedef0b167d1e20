// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/temp_files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>


temp_folder::temp_folder()
{
	std::string pattern = (std::filesystem::temp_directory_path() / "kernix-XXXXXX").string();
	if (mkdtemp(pattern.data()) == nullptr)
		throw std::runtime_error("no temporary folder");
	fPath = pattern;
}


temp_folder::~temp_folder()
{
	std::error_code ignored;
	std::filesystem::remove_all(fPath, ignored);
}


temp_file::temp_file(const octets& contents)
{
	write_file(path(), contents);
}


octets
temp_file::contents() const
{
	return read_file(path());
}


octets
read_file(const std::string& path)
{
	std::ifstream file(path, std::ios::binary);
	octets contents(file ? std::filesystem::file_size(path) : 0);
	if (!file.read(reinterpret_cast<char*>(contents.data()), std::streamsize(contents.size())))
		throw std::runtime_error("cannot read " + path);
	return contents;
}


void
write_file(const std::string& path, const octets& contents)
{
	std::ofstream file(path, std::ios::binary | std::ios::trunc);
	auto* from = reinterpret_cast<const char*>(contents.data());
	if (!file.write(from, std::streamsize(contents.size())).flush())
		throw std::runtime_error("cannot write " + path);
}
