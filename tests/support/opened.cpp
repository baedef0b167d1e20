// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/opened.h"

#include <algorithm>
#include <stdexcept>

#include <File.h>

#include "font/malloc32.h"
#include "font/ttf.h"
#include "font/ttf_table.h"
#include "support/temp_files.h"


int
loaded(ttf& font, const octets& file)
{
	temp_file on_disk(file);
	BFile source(on_disk.path().c_str(), B_READ_ONLY);
	if (source.InitCheck() != B_OK)
		throw std::runtime_error("cannot open the test's own file");
	return font.load(source);
}


std::unique_ptr<ttf>
opened(const octets& file)
{
	auto font = std::make_unique<ttf>();
	if (loaded(*font, file) != 0)
		throw std::runtime_error("the font was refused");
	return font;
}


octets
saved(ttf& font)
{
	temp_file on_disk;
	BFile target(on_disk.path().c_str(), B_READ_WRITE | B_CREATE_FILE | B_ERASE_FILE);
	if (target.InitCheck() != B_OK)
		throw std::runtime_error("cannot create the test's own file");
	if (font.save(target) != 0)
		throw std::runtime_error("the font was not saved");
	target.Unset();
	return on_disk.contents();
}


octets
kept(const ttf_table* table)
{
	if (table == nullptr)
		throw std::runtime_error("the font has no such table");
	return octets(table->data, table->data + table->length);
}


unsigned char*
buffer_of(const octets& contents)
{
	unsigned char* buffer = malloc32(int(contents.size()));
	std::copy(contents.begin(), contents.end(), buffer);
	return buffer;
}
