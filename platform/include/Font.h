// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FONT_H
#define KITS_FONT_H

#include <SupportDefs.h>

// In pixels, above and below the baseline and between lines.
struct font_height {
	float ascent;
	float descent;
	float leading;
};

enum { B_REGULAR_FACE = 0x40, B_BOLD_FACE = 0x20 };

// A text style: the screen font, plain or bold, in a size. A value class.
class BFont {
public:
	// The plain font.
	BFont();
	BFont(const BFont& font);
	BFont(const BFont* font);
	BFont& operator=(const BFont& font);

	// In pixels. Sizes that are not finite or not above 0 are ignored.
	void SetSize(float size);
	float Size() const;
	void SetFace(uint16 face);
	uint16 Face() const;

	// 0 without a display.
	float StringWidth(const char* text) const;
	void GetHeight(font_height* height) const;

private:
	float fSize;
	uint16 fFace;
};

// Never null, with and without an application.
extern const BFont* be_plain_font;
extern const BFont* be_bold_font;

#endif
