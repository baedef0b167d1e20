// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_H
#define KERNIX_FONT_TTF_H

#include "font/glyph_info.h"
#include <Rect.h>
#include <SupportDefs.h>
#include <vector>

class BFile;
class BMessage;
class bitmap;
class glyph;
class BView;
class ttf_table;
class ttf_cmap;
class ttf_ebdt;
class ttf_eblc;
class ttf_gasp;
class ttf_glyf;
class ttf_head;
class ttf_hhea;
class ttf_hmtx;
class ttf_loca;
class ttf_maxp;
class ttf_name;
class ttf_os2;
class ttf_post;

// What a new font is to contain, as chosen in the set-up view.
struct chrs_record {
	unsigned char ranges[128];  // nonzero for a chosen row of unicode_ranges; the first 71 count
	unsigned char codes[65536]; // nonzero for a character code that the font is to contain
	uint32 count;               // the chosen codes
	uint32 glyphs;              // the same: one glyph for each
};

// The font in memory: the file's offset table and directory as they stand in the file, and one
// object per table. Tables keep their bytes in file form, so what nobody models passes through.
//
// No lock of its own. Loaded in the application's thread while nothing of it is shown; read and
// edited in the window's thread while it is; saved in the application's thread with the window
// locked.
class ttf {
public:
	// Empty: every field null.
	ttf();
	// Destroys the choice and the tables, which must have been detached (reset_view).
	~ttf();
	ttf(const ttf&) = delete;
	ttf& operator=(const ttf&) = delete;

	// Makes the tables of a new font, in an empty one, for the choice in chrs, which is destroyed:
	// OS/2, cmap, glyf, head, hhea, hmtx, loca, maxp, name and post, in this order. Gives 0.
	int init();

	// Reads a TrueType file into an empty font: 0, or 1 with the font empty again. Refused are a
	// version other than 1.0, a directory cut short, a font without cmap, more than sixteen tables
	// that are not modelled, lengths out of all proportion to the file, and bytes that the file has
	// but that cannot be read. A table that runs past the end of the file keeps what could be read
	// and zeros after it. Stored checksums are not examined. The character map is read.
	int load(BFile& file);

	// Writes the font, in the order of its directory: 0, or 1 with nothing written for a font
	// without tables. Stamps the dates and stores fresh checksums and places in head and in the
	// directory in memory too; its search fields stay as they were loaded. Failing writes go
	// unnoticed.
	int save(BFile& file);

	// The design box as head tells it: left xMin, top yMax, right xMax, bottom yMin, font units.
	// Without head the box that a new font has.
	BRect bounds() const;

	// The tags in directory order. *count is the room in tags, then the number of tags; -1 with
	// nothing changed when they do not fit, else 0.
	int get_tables(int* count, unsigned long* tags) const;

	// From maxp and head; 0 without them.
	uint32 numglyphs() const;
	uint16 unitsperem() const;

	// The place of a glyph's record in glyf, bytes. False, with nothing stored, for an index that is
	// no glyph's or has no place in loca. What is found may lie outside of glyf.
	bool find_glyph(int index, uint32* offset, uint32* size) const;

	// The glyph that a palette chose: "gno" (int16), its number, 0 for one that is no glyph's, or
	// "chr" (int16), a character; the latter prevails. Gives both, -1 for no character. False, with
	// nothing stored, when neither is there.
	bool choose_glyph(const BMessage* choice, int16* gno, int16* chr) const;

	// Appends a glyph's outline to g, in font units; an empty glyph leaves it untouched. 0, or -1
	// when there is no such glyph.
	int get_glyph(int index, glyph* g);
	// Writes g in the place of a glyph and moves those behind it. A font whose short loca is too
	// small for that gets a long one first. 0, or -1 with nothing changed when there is no such
	// glyph, its place is not inside glyf, or head is too short to tell of a long loca.
	int set_glyph(int index, const glyph* g);
	// Reads the embedded bitmap of b's glyph and size. 0, or -1 when the font has none that can be
	// read; b may have taken its metrics over, but pixels always have the size that b tells.
	int get_bitmap(bitmap* b);
	// Writes b's pixels over that bitmap, of which they must have the size. 0, or -1 with nothing
	// changed.
	int set_bitmap(bitmap* b);
	// Statistics of every glyph from 0 on; empty ones for all that have no record.
	std::vector<glyph_info> glyph_infos() const;

	// No table to save: nothing was loaded, or the load failed.
	bool empty() const;

	// Makes every panel a hidden child of parent. loca and the raw tables have none. Window's
	// thread, or its lock.
	void set_view(BView* parent);
	// Takes the panels out of parent again; none is destroyed. Window's thread, or its lock, or no
	// window at all.
	void reset_view(BView* parent);

	// How many glyphs the tables of a new font are made for; none without a choice.
	uint32 newglyphs() const;

	enum { max_raw = 16 };

	// Owned, made with new by the set-up view; null unless a new font is being set up.
	chrs_record* chrs;

	// Header and directory in file form, 12 + 16 * numTables bytes. Owned.
	unsigned char* dir;

	// Owned; null when the font has no such table.
	ttf_os2* os2;
	ttf_cmap* cmap;
	ttf_glyf* glyf;
	ttf_head* head;
	ttf_hhea* hhea;
	ttf_hmtx* hmtx;
	ttf_loca* loca;
	ttf_maxp* maxp;
	ttf_name* name;
	ttf_post* post;
	// Tables of other tags, from the first slot on in directory order.
	ttf_table* rawtables[max_raw];
	ttf_gasp* gasp;
	ttf_ebdt* ebdt;
	ttf_eblc* eblc;

private:
	uint32 numtables() const;
	unsigned char* entry(uint32 index) const;
	// The object of a modelled tag, else null.
	ttf_table* find(uint32 tag) const;
	void make_dir(uint32 count);
	bool load_dir(BFile& file);
	bool fit_loca(int index, uint32 size);
	bool in_proportion(uint64 size) const;
	bool saves_in_proportion(uint64 size) const;
	bool load_table(BFile& file, const unsigned char* record);
	bool adopt(uint32 tag, unsigned char* buffer, uint32 size);
	uint32 dir_sum() const;
	void destroy();
};

#endif
