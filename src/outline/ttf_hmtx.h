// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_OUTLINE_TTF_HMTX_H
#define KERNIX_OUTLINE_TTF_HMTX_H

#include "font/ttf_table.h"
#include <memory>

class BButton;
class BSlider;
class BTextControl;
class glyph;

// The horizontal metrics, hmtx: numberOfHMetrics records of advanceWidth and leftSideBearing, then
// a bearing for each further glyph. The panel edits them for a range of glyphs beside the outline
// of one.
class ttf_hmtx : public ttf_table {
public:
	// As for every table: takes the buffer over; none means the default content.
	ttf_hmtx(ttf* font, unsigned char* buffer, unsigned long size);
	~ttf_hmtx() override;

	// A new font's: every glyph 512 units wide, no bearings.
	void create_default();

	// A glyph's metrics in font units. 0, or 1 with nothing stored when there is no such glyph.
	// What lies outside the table reads as 0. The glyph whose number is numberOfHMetrics is read
	// and written as a full record, although there is one less of them.
	int get_mtx(unsigned short gid, unsigned short* advance, short* lsb) const;
	// 0, or 1 with nothing changed. A glyph behind the full records keeps its advance.
	int set_mtx(unsigned short gid, unsigned short advance, short lsb);

	void AttachedToWindow() override;
	// The preview: the em square, the outline of the glyph shown, and its two metric lines where
	// the sliders stand.
	void Draw(BRect area) override;
	void MessageReceived(BMessage* message) override;

private:
	uint16 numhmetrics() const;
	void choose();
	void slide();
	void set_range();

	// The panel's children; null until it is attached.
	BTextControl* st;
	BTextControl* ed;
	BTextControl* width;
	BTextControl* lsb;
	BButton* set;
	BSlider* left;
	BSlider* right;
	// Where the sliders stand unless somebody moves them.
	int32 left_rest;
	int32 right_rest;

	uint16 shown;                   // 0xFFFF: none
	std::unique_ptr<glyph> preview; // of the glyph shown, in the preview square; null: not decoded
};

#endif
