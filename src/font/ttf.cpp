// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf.h"
#include "editor/glyfeditview.h"

#include "bitmaps/ttf_ebdt.h"
#include "bitmaps/ttf_eblc.h"
#include "font/malloc32.h"
#include "font/ttf_head.h"
#include "font/ttf_hhea.h"
#include "font/ttf_loca.h"
#include "font/ttf_maxp.h"
#include "outline/ttf_glyf.h"
#include "outline/ttf_hmtx.h"
#include "tables/ttf_cmap.h"
#include "tables/ttf_gasp.h"
#include "tables/ttf_name.h"
#include "tables/ttf_os2.h"
#include "tables/ttf_post.h"
#include <algorithm>
#include <cstdio>
#include <File.h>

// The file's header and an entry of the directory, in bytes; offsets of their fields.
enum { header_size = 12, at_numtables = 4 };
enum { entry_size = 16, at_sum = 4, at_place = 8, at_length = 12 };

static const uint32 sfnt_version = 0x00010000;

// A length may lie; these bounds keep a small file from taking much memory or time.
static const uint64 length_slack = 1 << 20;
static const uint64 most_shared = 32;

static const uint32 panel_tags[] = {
	'OS/2', 'cmap', 'glyf', 'head', 'hhea', 'hmtx', 'maxp', 'name', 'post', 'gasp', 'EBDT', 'EBLC'};


static void
print_tag(const unsigned char* tag)
{
	printf("name=[%c%c%c%c]\n", tag[0], tag[1], tag[2], tag[3]);
}


// Reads size bytes from a place in the file; what the file does not have is zero.
static void
read_all(BFile& file, uint32 place, unsigned char* buffer, uint32 size)
{
	uint32 done = 0;
	while (done < size) {
		ssize_t got = file.ReadAt((off_t)place + done, buffer + done, size - done);
		if (got <= 0)
			break;
		done += (uint32)got;
	}
	memset(buffer + done, 0, size - done);
}


ttf::ttf()
	: chrs(nullptr),
	  dir(nullptr),
	  os2(nullptr),
	  cmap(nullptr),
	  glyf(nullptr),
	  head(nullptr),
	  hhea(nullptr),
	  hmtx(nullptr),
	  loca(nullptr),
	  maxp(nullptr),
	  name(nullptr),
	  post(nullptr),
	  rawtables(),
	  gasp(nullptr),
	  ebdt(nullptr),
	  eblc(nullptr)
{
}


ttf::~ttf()
{
	destroy();
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


BRect
ttf::bounds() const
{
	return head != nullptr ? head->bounds() : BRect(0, 511, 511, 0);
}


int
ttf::get_tables(int* count, unsigned long* tags) const
{
	if (*count < 0 || numtables() > (uint32)*count)
		return -1;
	*count = (int)numtables();
	for (uint32 i = 0; i < numtables(); i++)
		tags[i] = get32(entry(i));
	return 0;
}


bool
ttf::empty() const
{
	return numtables() == 0;
}


void
ttf::set_view(BView* parent)
{
	for (uint32 tag : panel_tags) {
		ttf_table* table = find(tag);
		if (table == nullptr)
			continue;
		table->show(false);
		parent->AddChild(table);
	}
	if (glyf != nullptr)
		glyf->edit->chgscale(0);
}


void
ttf::reset_view(BView* parent)
{
	for (uint32 tag : panel_tags) {
		ttf_table* table = find(tag);
		if (table != nullptr)
			parent->RemoveChild(table);
	}
}


uint32
ttf::newglyphs() const
{
	return chrs != nullptr ? chrs->glyphs : 0;
}


uint32
ttf::numtables() const
{
	return dir != nullptr ? get16(dir + at_numtables) : 0;
}


unsigned char*
ttf::entry(uint32 index) const
{
	return dir + header_size + entry_size * index;
}


ttf_table*
ttf::find(uint32 tag) const
{
	switch (tag) {
		case 'OS/2':
			return os2;
		case 'cmap':
			return cmap;
		case 'glyf':
			return glyf;
		case 'head':
			return head;
		case 'hhea':
			return hhea;
		case 'hmtx':
			return hmtx;
		case 'loca':
			return loca;
		case 'maxp':
			return maxp;
		case 'name':
			return name;
		case 'post':
			return post;
		case 'gasp':
			return gasp;
		case 'EBDT':
			return ebdt;
		case 'EBLC':
			return eblc;
		default:
			return nullptr;
	}
}


bool
ttf::load_dir(BFile& file)
{
	unsigned char header[header_size];
	read_all(file, 0, header, header_size);
	if (get32(header) != sfnt_version)
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
	read_all(file, get32(record + at_place), buffer, length);
	return adopt(get32(record), buffer, length);
}


// A second table of one tag takes the place of the first.
template <class table>
static bool
replace(table*& field, ttf* font, unsigned char* buffer, uint32 size)
{
	delete field;
	field = new table(font, buffer, size);
	return true;
}


bool
ttf::adopt(uint32 tag, unsigned char* buffer, uint32 size)
{
	switch (tag) {
		case 'OS/2':
			return replace(os2, this, buffer, size);
		case 'cmap':
			return replace(cmap, this, buffer, size);
		case 'glyf':
			return replace(glyf, this, buffer, size);
		case 'head':
			return replace(head, this, buffer, size);
		case 'hhea':
			return replace(hhea, this, buffer, size);
		case 'hmtx':
			return replace(hmtx, this, buffer, size);
		case 'loca':
			return replace(loca, this, buffer, size);
		case 'maxp':
			return replace(maxp, this, buffer, size);
		case 'name':
			return replace(name, this, buffer, size);
		case 'post':
			return replace(post, this, buffer, size);
		case 'gasp':
			return replace(gasp, this, buffer, size);
		case 'EBDT':
			return replace(ebdt, this, buffer, size);
		case 'EBLC':
			return replace(eblc, this, buffer, size);
	}
	ttf_table** slot = std::find(rawtables, rawtables + max_raw, nullptr);
	if (slot == rawtables + max_raw) {
		delete[] buffer;
		return false;
	}
	*slot = new ttf_table(this, tag, buffer, size);
	return true;
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


template <class object>
static void
drop(object*& field)
{
	delete field;
	field = nullptr;
}


void
ttf::destroy()
{
	drop(chrs);
	delete[] dir;
	dir = nullptr;
	drop(os2);
	drop(cmap);
	drop(glyf);
	drop(head);
	drop(hhea);
	drop(hmtx);
	drop(loca);
	drop(maxp);
	drop(name);
	drop(post);
	for (ttf_table*& table : rawtables)
		drop(table);
	drop(gasp);
	drop(ebdt);
	drop(eblc);
}
