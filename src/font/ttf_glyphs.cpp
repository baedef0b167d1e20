// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The container's way to single glyphs, through maxp, head, loca and glyf, and to their bitmaps,
// through EBLC and EBDT.
#include "bitmaps/bitmap.h"
#include "bitmaps/ttf_ebdt.h"
#include "bitmaps/ttf_eblc.h"
#include "font/glyph_places.h"
#include "font/ttf.h"
#include "font/ttf_head.h"
#include "font/ttf_loca.h"
#include "font/ttf_maxp.h"
#include "outline/ttf_glyf.h"
#include "tables/ttf_cmap.h"
#include <Message.h>


uint32
ttf::numglyphs() const
{
	return maxp != nullptr ? maxp->numglyphs() : 0;
}


uint16
ttf::unitsperem() const
{
	return head != nullptr ? head->unitsperem() : 0;
}


bool
ttf::find_glyph(int index, uint32* offset, uint32* size) const
{
	return glyph_places(*this).find(index, offset, size);
}


bool
ttf::choose_glyph(const BMessage* choice, int16* gno, int16* chr) const
{
	int16 number;
	const bool by_number = choice->FindInt16("gno", &number) == B_OK;
	if (by_number) {
		*gno = (uint16)number < numglyphs() ? number : 0;
		*chr = (int16)cmap->get_chr((uint16)*gno);
	}
	const bool by_character = choice->FindInt16("chr", &number) == B_OK;
	if (by_character) {
		*chr = number;
		*gno = (int16)cmap->get_gno((uint16)*chr);
	}
	return by_number || by_character;
}


int
ttf::get_glyph(int index, glyph* g)
{
	uint32 offset;
	uint32 size;
	if (glyf == nullptr || !find_glyph(index, &offset, &size))
		return -1;
	if (size != 0)
		glyf->decode(offset, size, g);
	return 0;
}


int
ttf::set_glyph(int index, const glyph* g)
{
	uint32 offset;
	uint32 size;
	if (glyf == nullptr || !find_glyph(index, &offset, &size))
		return -1;
	// A place that ends before it starts has a length of nearly 4 GiB.
	if (offset > glyf->length || size > glyf->length - offset)
		return -1;
	const std::vector<uint8> record = glyf->record_of(g, offset, size);
	if (!fit_loca(index, (uint32)record.size()) || !glyf->replace(offset, size, record))
		return -1;
	return loca->chg_length(head->is32loca(), index, record.size());
}


// Short entries reach no further than 128 KiB. Makes them long where a glyph of so many bytes would
// move others beyond that; false, with nothing changed, when they have to be and cannot.
bool
ttf::fit_loca(int index, uint32 size)
{
	if (head->is32loca() || !loca->outgrown_by(index, size, numglyphs(), glyf->length))
		return true;
	if (!head->holds_locformat() || !loca->make_long(glyf->length))
		return false;
	head->set32loca();
	return true;
}


int
ttf::get_bitmap(bitmap* b)
{
	unsigned long offset;
	unsigned short format;
	if (eblc == nullptr || ebdt == nullptr || eblc->get_offset(b, &offset, &format) != 0)
		return -1;
	return ebdt->decode(offset, format, b) != 0 ? -1 : 0;
}


int
ttf::set_bitmap(bitmap* b)
{
	// Looking up may give a bitmap another size than its pixels have.
	bitmap place(b->glyph, b->ppemX, b->ppemY, b->bitDepth);
	unsigned long offset;
	unsigned short format;
	if (eblc == nullptr || ebdt == nullptr || eblc->get_offset(&place, &offset, &format) != 0)
		return -1;
	return ebdt->encode(b, offset, format) != 0 ? -1 : 0;
}


std::vector<glyph_info>
ttf::glyph_infos() const
{
	if (glyf == nullptr)
		return std::vector<glyph_info>(numglyphs());
	return glyf->all_info(numglyphs());
}
