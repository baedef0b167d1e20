// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf.h"
#include "editor/glyfeditview.h"

#include "bitmaps/ebdttoolview.h"
#include "bitmaps/ttf_ebdt.h"
#include "bitmaps/ttf_eblc.h"
#include "font/directory.h"
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
#include <iterator>

static const uint32 panel_tags[] = {
	'OS/2', 'cmap', 'glyf', 'head', 'hhea', 'hmtx', 'maxp', 'name', 'post', 'gasp', 'EBDT', 'EBLC'};


template <class object>
static void
drop(object*& field)
{
	delete field;
	field = nullptr;
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
ttf::init()
{
	static const uint32 tags[] = {
		'OS/2', 'cmap', 'glyf', 'head', 'hhea', 'hmtx', 'loca', 'maxp', 'name', 'post'};
	make_dir(std::size(tags));
	for (uint32 i = 0; i < std::size(tags); i++) {
		put32(entry(i), tags[i]);
		print_tag(entry(i));
		// Without bytes each table makes its own, of the choice and of the tables before it.
		adopt(tags[i], nullptr, 0);
	}
	cmap->get_tbl();
	drop(chrs);
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
	if (ebdt != nullptr)
		ebdt->tools->init();
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
	return dir + header_size + (size_t)entry_size * index;
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


// A directory for so many tables, their entries all zero.
void
ttf::make_dir(uint32 count)
{
	uint32 power = 1;
	uint32 exponent = 0;
	while (2 * power <= count) {
		power *= 2;
		exponent++;
	}
	dir = malloc32((int)(header_size + entry_size * count));
	put32(dir, sfnt_version);
	put16(dir + at_numtables, (uint16)count);
	put16(dir + at_searchrange, (uint16)(entry_size * power));
	put16(dir + at_entryselector, (uint16)exponent);
	put16(dir + at_rangeshift, (uint16)(entry_size * (count - power)));
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
