// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The container read from a file and written to one.
#include "font/directory.h"
#include "font/malloc32.h"
#include "font/ttf.h"
#include "font/ttf_head.h"
#include "font/ttf_maxp.h"
#include "tables/ttf_cmap.h"
#include <cassert>
#include <cstring>
#include <File.h>

// A length may lie; these bounds keep a small file from taking much memory or time.
static const uint64 length_slack = 1 << 20;
static const uint64 most_shared = 32;


// Reads size bytes from a place in the file; what the file does not have is zero. False when the
// bytes are there but cannot be read: saved over the file, zeros in their place would destroy them.
static bool
read_all(BFile& file, uint32 place, unsigned char* buffer, uint32 size)
{
	uint32 done = 0;
	ssize_t got = 1;
	while (done < size && got > 0) {
		got = file.ReadAt((off_t)place + done, buffer + done, size - done);
		if (got > 0)
			done += (uint32)got;
	}
	memset(buffer + done, 0, size - done);
	return got >= 0;
}


int
ttf::load(BFile& file)
{
	printf("ttf:load\n");
	off_t end = file.Seek(0, SEEK_END);
	uint64 size = end > 0 ? (uint64)end : 0;
	bool loaded = load_dir(file) && in_proportion(size);
	for (uint32 i = 0; loaded && i < numtables(); i++)
		loaded = load_table(file, entry(i));
	if (!loaded || cmap == nullptr || !saves_in_proportion(size)) {
		destroy();
		return 1;
	}
	// Whatever it finds: a font without a map that is understood shows an empty one.
	cmap->get_tbl();
	return 0;
}


int
ttf::save(BFile& file)
{
	printf("ttf:save\n");
	if (empty())
		return 1;
	if (maxp != nullptr)
		maxp->update();
	if (head != nullptr) {
		head->update();
		head->setsum(ttf_head::balance);
	}
	// In 64 bits: tables that share bytes of the file are written apart, which may pass 4 GiB.
	uint64 place = header_size + entry_size * numtables();
	uint64 head_place = 0;
	uint32 total = 0;
	ttf_table** raw = rawtables;
	for (uint32 i = 0; i < numtables(); i++) {
		unsigned char* record = entry(i);
		print_tag(record);
		ttf_table* table = find(get32(record));
		if (table == nullptr)
			table = *raw++;
		// Loading made an object for each entry.
		assert(table != nullptr);
		if (table == head)
			head_place = place;
		uint32 sum = (uint32)table->sumB32();
		put32(record + at_sum, sum);
		put32(record + at_place, (uint32)place);
		put32(record + at_length, table->length);
		file.WriteAt((off_t)place, table->data, round32(table->length));
		total += sum;
		place += round32(table->length);
	}
	file.WriteAt(0, dir, header_size + entry_size * numtables());
	if (head != nullptr) {
		head->setsum(total + dir_sum());
		file.WriteAt((off_t)head_place, head->data, head->length);
	}
	return 0;
}


bool
ttf::load_dir(BFile& file)
{
	unsigned char header[header_size];
	if (!read_all(file, 0, header, header_size) || get32(header) != sfnt_version)
		return false;
	int size = header_size + entry_size * get16(header + at_numtables);
	dir = malloc32(size);
	bool whole = file.ReadAt(0, dir, size) == size;
	// The count that the array was made for, should the file have changed in between.
	memcpy(dir, header, header_size);
	return whole;
}


bool
ttf::in_proportion(uint64 size) const
{
	uint64 total = 0;
	for (uint32 i = 0; i < numtables(); i++) {
		uint32 length = get32(entry(i) + at_length);
		total += length;
		if (length > size + length_slack || total > most_shared * size + length_slack)
			return false;
	}
	return true;
}


// Entries of one modelled tag are each written with the last one's bytes.
bool
ttf::saves_in_proportion(uint64 size) const
{
	uint64 total = 0;
	for (uint32 i = 0; i < numtables(); i++) {
		ttf_table* table = find(get32(entry(i)));
		total += table != nullptr ? table->length : 0;
	}
	return total <= most_shared * size + length_slack;
}


bool
ttf::load_table(BFile& file, const unsigned char* record)
{
	uint32 length = get32(record + at_length);
	print_tag(record);
	unsigned char* buffer = padded32(length);
	if (buffer == nullptr)
		return false;
	// Exactly the table's bytes: what follows in the file need not be padding.
	if (!read_all(file, get32(record + at_place), buffer, length)) {
		delete[] buffer;
		return false;
	}
	return adopt(get32(record), buffer, length);
}


// Only the first byte of every four counts, as the topmost of a word. The adjustment is defined
// over this sum, not over the directory's words.
uint32
ttf::dir_sum() const
{
	uint32 sum = 0;
	for (uint32 at = 0; at < header_size + entry_size * numtables(); at += 4)
		sum += get32(dir + at) & 0xFF000000;
	return sum;
}
