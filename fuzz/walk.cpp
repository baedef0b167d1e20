// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "fuzz.h"

#include "bitmaps/bitmap.h"
#include "bitmaps/ttf_eblc.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "font/ttf_table.h"
#include "outline/glyph.h"
#include "outline/ttf_glyf.h"
#include "outline/ttf_hmtx.h"
#include "support/temp_files.h"
#include "tables/ttf_cmap.h"
#include "tables/ttf_gasp.h"
#include "tables/ttf_name.h"
#include <algorithm>
#include <Bitmap.h>
#include <cstdio>
#include <cstdlib>
#include <File.h>

// One file for all inputs, and nothing said about them.
static const temp_file&
the_file()
{
	static const temp_file* const file = [] {
		if (!freopen("/dev/null", "w", stdout))
			abort();
		return new temp_file;
	}();
	return *file;
}


int
load_octets(ttf& font, const octets& contents)
{
	write_file(the_file().path(), contents);
	BFile file(the_file().path().c_str(), B_READ_ONLY);
	return font.load(file);
}


octets
save_octets(ttf& font)
{
	BFile file(the_file().path().c_str(), B_READ_WRITE | B_CREATE_FILE | B_ERASE_FILE);
	font.save(file);
	file.Unset();
	return the_file().contents();
}


static void
walk_glyphs(ttf& font, int most)
{
	const int count = (int)std::min<uint32>(font.numglyphs(), (uint32)most);
	for (int i = -1; i <= count; i++) {
		glyph outline((unsigned short)i);
		font.get_glyph(i, &outline);
		outline.trans(font.bounds(), BRect(0, 0, 511, 511));
		unsigned short advance;
		short bearing;
		if (font.hmtx != nullptr)
			font.hmtx->get_mtx((unsigned short)i, &advance, &bearing);
		short box[4];
		unsigned short info[4];
		if (font.glyf != nullptr) {
			font.glyf->get_rect((unsigned short)i, &box[0], &box[1], &box[2], &box[3]);
			font.glyf->get_info((unsigned short)i, &info[0], &info[1], &info[2], &info[3]);
		}
		font.cmap->get_chr((unsigned short)i);
		font.cmap->get_gno((unsigned short)(i * 218));
	}
	font.glyph_infos();
}


static void
walk_records(ttf& font, int most)
{
	unsigned short ids[4];
	char text[256];
	for (int i = -1; font.name != nullptr && i <= std::min(font.name->count(), most); i++) {
		long size = sizeof text;
		font.name->get_field(i, &ids[0], &ids[1], &ids[2], &ids[3], &size, text);
	}
	for (int i = -1; font.gasp != nullptr && i <= std::min(font.gasp->count(), most); i++)
		font.gasp->get_field(i, &ids[0], &ids[1]);
}


static void
walk_bitmaps(ttf& font, int most)
{
	if (font.eblc == nullptr)
		return;
	std::vector<uint16> strikes = font.eblc->strikes();
	strikes.resize(std::min<size_t>(strikes.size(), 16));
	for (uint16 strike : strikes) {
		for (int i = 0; i < most; i++) {
			bitmap image((unsigned short)i, (uint8)(strike >> 8), (uint8)strike, 1);
			if (font.get_bitmap(&image) == 0)
				font.set_bitmap(&image);
		}
	}
}


// Every panel as it is attached, shown and drawn.
static void
walk_panels(ttf& font)
{
	BBitmap paper(BRect(0, 0, 561, 511), B_RGB32, true);
	paper.Lock();
	BView parent(paper.Bounds(), "parent", B_FOLLOW_NONE, B_WILL_DRAW);
	paper.AddChild(&parent);
	canvas = BRect(0, 0, 1000, 1000);
	font.set_view(&parent);
	for (int32 i = 0; i < parent.CountChildren(); i++) {
		auto* panel = dynamic_cast<ttf_table*>(parent.ChildAt(i));
		panel->show(true);
		panel->Draw(panel->Bounds());
		for (int32 k = 0; BView* child = panel->ChildAt(k); k++)
			child->Draw(child->Bounds());
		panel->show(false);
	}
	font.reset_view(&parent);
	paper.RemoveChild(&parent);
	paper.Unlock();
}


void
walk(ttf& font, int most)
{
	curttf = &font;
	walk_glyphs(font, most);
	walk_records(font, most);
	walk_bitmaps(font, std::min<int>(most, (int)font.numglyphs()));
	walk_panels(font);
	curttf = nullptr;
}
